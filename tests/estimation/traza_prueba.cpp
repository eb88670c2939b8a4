// The trace of the regressions and tests on Klein's data, worked out a second time from its texts, down to the numbers of
// the reports.
#include "language/traza.h"

#include "analysis/prediccion.h"
#include "apoyo/datos_csv.h"
#include "apoyo/lector_traza.h"
#include "apoyo/plataforma_prueba.h"
#include "hypothesis/normalidad.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <sstream>

namespace {

constexpr int PrimerAno = 1920;

// A number of a report: behind `rotulo`, in the line that has it. `lugar` counts the numbers behind it.
struct NumeroDeInforme {
    const char *rotulo;
    std::size_t lugar;
    const char *paso; // its destination, or its formula
    std::size_t elemento = 0;
};

struct CasoTraza {
    const char *nombre;
    const char *sentencias; // the last one is traced as the others are
    std::vector<NumeroDeInforme> informe;
};

std::vector<std::string> NumerosDetras(const std::string &rotulo) {
    for (std::size_t r = Prueba.resultados.size(); r-- > 0;)
        for (const auto &[clase, linea] : Prueba.resultados[r].lineas) {
            const std::size_t donde = linea.find(rotulo);
            if (donde == std::string::npos) continue;
            std::string resto = linea.substr(donde + rotulo.size());
            for (char &c : resto)
                if (c == '|' || c == ':') c = ' ';
            std::istringstream palabras(resto);
            std::vector<std::string> numeros;
            for (std::string p; palabras >> p;)
                if (p.find_first_not_of("+-.0123456789eE") == p.npos &&
                    p.find_first_of("0123456789") != p.npos)
                    numeros.push_back(p);
            return numeros;
        }
    return {};
}

std::string ConLosDecimalesDe(const std::string &escrito, double valor) {
    const std::size_t punto = escrito.find('.');
    const int decimales = punto == escrito.npos ? 0 : static_cast<int>(escrito.size() - punto - 1);
    char texto[64];
    std::snprintf(texto, sizeof texto, "%.*f", decimales, valor);
    return texto;
}

void CompararInforme(const std::vector<NumeroDeInforme> &informe) {
    for (const NumeroDeInforme &n : informe) {
        SCOPED_TRACE(n.rotulo);
        const std::vector<std::string> numeros = NumerosDetras(n.rotulo);
        const std::vector<double> paso = ResultadoTrazado(n.paso);
        if (numeros.size() <= n.lugar || paso.size() <= n.elemento) {
            ADD_FAILURE() << numeros.size() << " números, " << paso.size() << " elementos de " << n.paso;
            continue;
        }
        EXPECT_EQ(numeros[n.lugar], ConLosDecimalesDe(numeros[n.lugar], paso[n.elemento])) << n.paso;
    }
}

// The statements over Klein's data, with the trace on; the surroundings have the data.
EntornoTraza Trazar(const std::string &sentencias) {
    EmpezarConDatos(TipoAnual, "1920#1941");
    EntornoTraza entorno;
    for (const ColumnaCsv &c : LeerCsv("klein.csv")) {
        PonerSerie(c.codigo, c.valores);
        entorno.series[c.codigo].assign(c.valores.begin(), c.valores.end());
    }
    ActualizarMuestra();
    PonerTraza(true);
    Procesar("MUEST 1920 1941\nSER SALARIOS = SALPRIV + SALPUB\n" + sentencias);
    PonerTraza(false);
    return entorno;
}

class TrazaDeKlein : public testing::TestWithParam<CasoTraza> {};

TEST_P(TrazaDeKlein, CadaPasoSaleDeSuFormula) {
    EntornoTraza entorno = Trazar(GetParam().sentencias);
    ASSERT_FALSE(Prueba.resultados.empty()) << testing::PrintToString(TextosDeCajas());
    RecalcularTraza(entorno, PrimerAno);
    CompararInforme(GetParam().informe);
}

const std::vector<NumeroDeInforme> InformeDeRegresion = {
    {"              1 ", 0, "_BETA", 0},
    {"              1 ", 1, "_DTE", 0},
    {"              1 ", 2, "_DIV", 0},
    {"              1 ", 3, "_PROBT", 0},
    {"          BENEF ", 0, "_BETA", 1},
    {"          BENEF ", 3, "_PROBT", 1},
    {"       SALARIOS ", 0, "_BETA", 3},
    {"       SALARIOS ", 1, "_DTE", 3},
    {"       SALARIOS ", 2, "_DIV", 3},
    {"       SALARIOS ", 3, "_PROBT", 3},
    {"Media Var. Dependiente:", 0, "_MVD"},
    {"Des. Típ. Var. Depen.:", 0, "_DTVD"},
    {"Error Típico Regresión:", 0, "_DTR"},
    {"Suma Cuadrados Resid.:", 0, "_SCR"},
    {"R Cuadrado            :", 0, "_RC"},
    {"R Cuadrado Corregido :", 0, "_RCC"},
    {"Logaritmo de Verosim. :", 0, "_LV"},
    {"Criterio AIC         :", 0, "_AIC"},
    {"17):", 0, "_FORLA"},
    {"Prob > F             :", 0, "_ESTF"},
    {"Estadís. Durbin-Watson:", 0, "_DW"},
    {"Est. Autocorrelación :", 0, "_EA1"},
};

#define MC_KLEIN "MC CONSUMO 1 BENEF BENEF(-1) SALARIOS\n"

const CasoTraza Casos[] = {
    {"MC", MC_KLEIN, InformeDeRegresion},
    {"MCHeterocedasticidad", "MC (CH) CONSUMO 1 BENEF BENEF(-1) SALARIOS\n", InformeDeRegresion},
    {"MCAutocorrelacion", "MC (CA 2) CONSUMO 1 BENEF BENEF(-1) SALARIOS\n", InformeDeRegresion},
    {"MCMasRetardosQueAnos", "MC (CA 25) CONSUMO 1 BENEF SALARIOS\n", {}},
    {"MCDosConstantes", "MC (CH) CONSUMO BENEF 1 SALARIOS\n", {}},
    {"MCP", "MCP (1/BENEF) CONSUMO 1 BENEF BENEF(-1) SALARIOS\n", InformeDeRegresion},
    {"CR",
     MC_KLEIN "CR CONSUMO 1 SALARIOS\n",
     {{"17):", 0, "_FORLAR"}, {"Prob > F             :", 0, "_ESTFR"}}},
    {"CHN",
     MC_KLEIN "CHN IR 2\nCHN MR 1 BETA(2) - BETA(3) = 0\nCHN MR 2 2*BETA(4) + BETA(1) = 0.8\nCHN FR 2\n",
     {{"17) :", 0, "_FORLARH"}, {"Prob > F :", 0, "_ESTFH"}}},
    {"CGQ",
     MC_KLEIN "CGQ (BENEF) 1 10 12 21\n",
     {{"SCR denominador :", 0, "_SCRGD"},
      {"SCR numerador   :", 0, "_SCRGN"},
      {"6):", 0, "(_SCRGN/6) / (_SCRGD/6)"},
      {"Prob > F             :", 0, "_ESTFG"}}},
    {"CWH", MC_KLEIN "CWH\n", {{"Chi-cuadrado (  6):", 0, "_TM11"}, {"Prob > Chi-cuadrado :", 0, "_TM13"}}},
    {"CWHConProductos",
     MC_KLEIN "CWH PC\n",
     {{"Chi-cuadrado (  9):", 0, "_TM11"}, {"Prob > Chi-cuadrado :", 0, "_TM13"}}},
    {"CWHTrasMCP",
     "MCP (1/BENEF) CONSUMO 1 BENEF BENEF(-1) SALARIOS\nCWH\n",
     {{"Chi-cuadrado (  6):", 0, "_TM11"}, {"Prob > Chi-cuadrado :", 0, "_TM13"}}},
    {"CRA", MC_KLEIN "CRA BENEF\n", {{"t( 19) :", 0, "_TMP10"}, {"Prob > |t| :", 0, "_TMP12"}}},
    {"CDU",
     "MC CONSUMO 1 BENEF CONSUMO(-1) SALARIOS\nCDU\n",
     {{"h de Durbin ", 0, "_TMDU"}, {"Prob > |N| :", 0, "_TMDN"}}},
    {"CWA", MC_KLEIN "CWA\n", {{"Wallis    :", 0, "_DWWA"}}},
};

INSTANTIATE_TEST_SUITE_P(Klein, TrazaDeKlein, testing::ValuesIn(Casos),
                         [](const auto &caso) { return std::string(caso.param.nombre); });

// ----- Prediction and normality, which are commands: each is a run of its own

const std::vector<NumeroDeInforme> InformeDePrediccion = {
    {"(EAM)...:", 0, "eam"},          {"(ECM).:", 0, "ecm"},        {"(COP):", 0, "correlacion"},
    {"Theil.........:", 0, "theil"},  {"de sesgo...:", 0, "sesgo"}, {"varianza...:", 0, "varianza"},
    {"aleatorio..:", 0, "aleatorio"},
};

TEST(TrazaDeComandos, PrediccionEnLosTresModos) {
    for (const ModosEvaluacion modo : {EvaluarOriginales, EvaluarTasas, EvaluarIncrementos}) {
        SCOPED_TRACE(modo);
        for (const char *regresion : {MC_KLEIN, "MC CONSUMO BENEF 1 SALARIOS\n"}) {
            EntornoTraza entorno = Trazar(regresion);
            RecalcularTraza(entorno, PrimerAno);
            PonerTraza(true);
            ASSERT_EQ(AceptarPrediccion(nullptr, {"1925", "1938", "P", "M", "I", modo}), 1);
            PonerTraza(false);
            ASSERT_EQ(Traza.pasos.at(0).clase, TrazaGrupo);
            RecalcularTraza(entorno, PrimerAno);
            CompararInforme(InformeDePrediccion);
            // The commands went on with the tables, and the reader with its own: what was stored is what it has.
            EXPECT_EQ(ResultadoTrazado("P").size(), 10u);
        }
    }
}

TEST(TrazaDeComandos, Normalidad) {
    for (const char *serie : {"BENEF", "_RES"}) {
        SCOPED_TRACE(serie);
        EntornoTraza entorno = Trazar(MC_KLEIN);
        RecalcularTraza(entorno, PrimerAno);
        Procesar("MUEST 1922 1940");
        PonerTraza(true);
        ASSERT_EQ(AceptarNormalidad(nullptr, serie), 1);
        PonerTraza(false);
        RecalcularTraza(entorno, PrimerAno);
        CompararInforme({{"asimetria...:", 0, "asimetria"},
                         {"curtosis....:", 0, "curtosis"},
                         {"Estadístico................:", 0, "estadistico"},
                         {"Prob > Chi-cuadrado...... .:", 0, "probabilidad"}});
    }
}

// ----- Numbers that go through a text

// A number that stands in a formula in digits leads to the step that computed it.
constexpr struct {
    const char *sentencias, *destino, *numeros[2];
} EnCifras[] = {
    {"", "_FORLA", {"estadisticoF"}},  {"", "_RCC", {"corregido"}},
    {"", "_MVD", {"media"}},           {"", "_STVD", {"total"}},
    {"", "_SCVD", {"variacion"}},      {"", "_DW", {"saltos"}},
    {"CDU", "_TMDU", {"rho", "raiz"}}, {"CDU", "_TMDN", {"h"}},
    {"CWA", "_DWWA", {"wallis"}},      {"CWH", "_TM11", {"chi"}},
    {"CWH", "_TM13", {"chi"}},         {"CGQ (BENEF) 1 10 12 21", "_ESTFG", {"cociente"}},
};

TEST(TrazaDeNumeros, LosQueVanEnCifrasSonOperandos) {
    for (const auto &c : EnCifras) {
        SCOPED_TRACE(c.destino);
        Trazar(std::string(MC_KLEIN "\n") + c.sentencias);
        const int paso = PasoQueDio(c.destino);
        ASSERT_GE(paso, 0);
        for (const char *numero : c.numeros) {
            if (numero == nullptr) continue;
            const auto &operandos = Traza.pasos[static_cast<std::size_t>(paso)].operandos;
            const auto o = std::find_if(operandos.begin(), operandos.end(),
                                        [&](const OperandoTraza &x) { return x.nombre == numero; });
            ASSERT_NE(o, operandos.end()) << numero;
            EXPECT_LT(o->paso, paso);
            EXPECT_EQ(Traza.pasos[static_cast<std::size_t>(o->paso)].destino, numero);
        }
    }
}

// ----- The reader itself

// Something that is not so, in a step of the regression.
struct Dano {
    const char *que;
    const char *destino;
    void (*danar)(PasoTraza &p);
};

constexpr Dano Danos[] = {
    {"una cifra", "_BETA", [](PasoTraza &p) { p.resultado.valores[2] *= 1 + 1e-7; }},
    {"un extremo", "_RES", [](PasoTraza &p) { p.resultado.valores[9] += 1e-6; }},
    {"el tamaño", "_TMF6", [](PasoTraza &p) { std::swap(p.resultado.filas, p.resultado.columnas); }},
    {"la cuenta", "_RES", [](PasoTraza &p) { ++p.resultado.filas; }},
    {"los períodos", "_RES", [](PasoTraza &p) { p.resultado.primerPeriodo = "1920"; }},
    {"la fórmula", "_DTR", [](PasoTraza &p) { p.formula = "RCUAD(_SCR/18)"; }},
    {"las filas", "_TMF5", [](PasoTraza &p) { ++p.filas.primera; }},
    {"un operando de menos", "_BETA", [](PasoTraza &p) { p.operandos.pop_back(); }},
    {"un operando de más", "_BETA",
     [](PasoTraza &p) { p.operandos.push_back(p.operandos[0]), p.operandos[2].nombre = "_XIND"; }},
    {"el paso de un operando", "_BETA", [](PasoTraza &p) { --p.operandos[0].paso; }},
    {"el valor de un operando", "SALARIOS", [](PasoTraza &p) { p.operandos[0].valor.valores[3] += 1; }},
    {"un fallo", "_DW", [](PasoTraza &p) { p.fallo = "no"; }},
    {"sin explicación", "_DW", [](PasoTraza &p) { p.explicacion.clear(); }},
};

TEST(LectorDeTraza, NotaLoQueNoEsAsi) {
    for (const Dano &d : Danos) {
        SCOPED_TRACE(d.que);
        EntornoTraza entorno = Trazar(MC_KLEIN);
        const int paso = PasoQueDio(d.destino);
        ASSERT_GE(paso, 0);
        d.danar(Traza.pasos[static_cast<std::size_t>(paso)]);
        testing::TestPartResultArray fallos;
        {
            testing::ScopedFakeTestPartResultReporter nota(&fallos);
            RecalcularTraza(entorno, PrimerAno);
        }
        EXPECT_GT(fallos.size(), 0);
    }
}

} // namespace
