// From a number of a line to the step that gave it, and from the windows of the reports to the trace.
#include "charts/resultados/fuentes.h"

#include "analysis/descriptivos.h"
#include "analysis/prediccion.h"
#include "apoyo/datos_csv.h"
#include "apoyo/plataforma_prueba.h"
#include "charts/resultados/resultado.h"
#include "estimation/listados_regresion.h"
#include "hypothesis/autocorrelacion.h"
#include "hypothesis/normalidad.h"
#include "platform/literal.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/ordenes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace {

std::vector<FuenteDeNumero> Fuentes(std::initializer_list<const char *> nombres) {
    std::vector<FuenteDeNumero> r;
    for (const char *n : nombres) r.push_back({n});
    return r;
}

// A column, and what it leads to; "" for nothing.
struct Columna {
    int columna;
    const char *paso;
};

struct CasoDeColumna {
    const char *texto;
    std::vector<FuenteDeNumero> fuentes;
    std::vector<Columna> columnas;
};

} // namespace

TEST(Fuentes, ElNumeroDeUnaColumna) {
    const CasoDeColumna casos[] = {
        // The code of the constant, and one with its lag, look like numbers.
        {"              1     16.236600      1.302698   12.46      0.0000",
         Fuentes({"_BETA", "_DTE", "_DIV", "_PROBT"}),
         {{14, ""},
          {19, ""},
          {20, "_BETA"},
          {28, "_BETA"},
          {29, ""},
          {35, "_DTE"},
          {42, "_DTE"},
          {46, "_DIV"},
          {57, "_PROBT"},
          {62, "_PROBT"},
          {63, ""}}},
        {"      BENEF(-1)      0.089885",
         Fuentes({"_BETA"}),
         {{6, ""}, {12, ""}, {13, ""}, {21, "_BETA"}, {28, "_BETA"}}},
        {"Est. F(  3, 17):  292.7076",
         Fuentes({"_ANREG", "_NORE", "_FORLA"}),
         {{5, ""}, {9, "_ANREG"}, {10, ""}, {12, "_NORE"}, {13, "_NORE"}, {18, "_FORLA"}, {25, "_FORLA"}}},
        // More numbers than sources: those on the left have none. Fewer: the last ones count.
        {"2 3 4", Fuentes({"A"}), {{0, ""}, {2, ""}, {4, "A"}}},
        {"x 4", Fuentes({"A", "B"}), {{0, ""}, {2, "B"}}},
        {"1 2", Fuentes({"", "B"}), {{0, ""}, {2, "B"}}},
        {"a: -1.5 -nan inf 1e+20 -",
         Fuentes({"A", "B", "C", "D"}),
         {{0, ""}, {3, "A"}, {8, "B"}, {13, "C"}, {17, "D"}, {23, ""}}},
        {"", Fuentes({"A"}), {{0, ""}, {-1, ""}}},
        {"1.5", {}, {{0, ""}}},
    };
    for (const CasoDeColumna &c : casos)
        for (const Columna &en : c.columnas) {
            int primera = -1, detras = -1;
            const FuenteDeNumero *f = FuenteEnColumna(c.texto, c.fuentes, en.columna, primera, detras);
            EXPECT_EQ(f != nullptr ? f->paso : "", en.paso) << c.texto << ": " << en.columna;
            if (f == nullptr) continue;
            EXPECT_LE(primera, en.columna);
            EXPECT_GT(detras, en.columna);
        }
}

TEST(Fuentes, ElPasoDeUnMomento) {
    EmpezarPrueba();
    PonerTraza(true);
    EmpezarTraza();
    TrazarEscalar("A", "1", 1.0, "Primero");
    TrazarEscalar({}, "A + 1", 2.0, "Estadístico: la suma"_w);
    const MomentoDeTraza antes;
    TrazarEscalar("A", "3", 3.0, "Segundo");
    const MomentoDeTraza luego;
    EXPECT_EQ(PasoDeFuente({"A"}, antes), 0) << "the one that came later isn't its source";
    EXPECT_EQ(PasoDeFuente({"A"}, luego), 2);
    EXPECT_EQ(PasoDeFuente({"=Estadístico"_w}, luego), 1);
    EXPECT_EQ(PasoDeFuente({"=Segundo"}, antes), -1);
    EXPECT_EQ(PasoDeFuente({"B"}, luego), -1);
    EXPECT_EQ(PasoDeFuente({""}, luego), -1);
    TerminarTraza();
    PonerTraza(false);
    EXPECT_EQ(PasoDeFuente({"A"}, luego), 2) << "switched off, the record stays";
    const MomentoDeTraza apagada;
    EXPECT_FALSE(SigueAnotado(apagada));
    PonerTraza(true);
    EmpezarTraza();
    TrazarEscalar("A", "1", 1.0, "Otro");
    EXPECT_FALSE(SigueAnotado(antes));
    EXPECT_EQ(PasoDeFuente({"A"}, antes), -1);
    // Of a step that was only counted, an earlier one of the same name isn't the source.
    for (int i = 0; i < MaxPasosTraza; ++i) TrazarEscalar("B", "1", 1.0, "Otro");
    EXPECT_EQ(PasoDeFuente({"A"}, MomentoDeTraza()), -1);
    TerminarTraza();
    PonerTraza(false);
}

namespace {

std::size_t Vistos; // numbers with a source in the last result

// The place of an element among the values that a step keeps of its result; -1 when it isn't one of them.
int LugarGuardado(const ValorTraza &v, int elemento) {
    if (static_cast<int>(v.valores.size()) == v.filas * v.columnas) return std::max(elemento, 0);
    const std::vector<int> lugares = LugaresMostrados(v.filas);
    const auto en = std::find(lugares.begin(), lugares.end(), elemento);
    return en == lugares.end() ? -1 : static_cast<int>(en - lugares.begin());
}

// Every number of a result that has a source equals the value of its step, as far as it is printed.
void MirarResultado(Ventana *, const SalidaResultado &salida) {
    Vistos = 0;
    ASSERT_NE(salida.fuentes, nullptr);
    for (const FuentesDeLinea &l : *salida.fuentes) {
        const std::string texto = (*salida.lineas)[static_cast<std::size_t>(l.linea)].texto;
        SCOPED_TRACE(Utf8De1252(texto));
        for (int columna = 0; columna < static_cast<int>(texto.size());) {
            int primera = columna, detras = columna + 1;
            const FuenteDeNumero *f = FuenteEnColumna(texto, l.numeros, columna, primera, detras);
            columna = detras;
            if (f == nullptr) continue;
            ++Vistos;
            const int paso = PasoDeFuente(*f, salida.traza);
            ASSERT_GE(paso, 0) << f->paso;
            const ValorTraza &v = Traza.pasos[static_cast<std::size_t>(paso)].resultado;
            const int lugar = LugarGuardado(v, f->elemento);
            if (lugar < 0) continue;
            ASSERT_LT(lugar, static_cast<int>(v.valores.size())) << f->paso;
            const std::string impreso =
                texto.substr(static_cast<std::size_t>(primera), static_cast<std::size_t>(detras - primera));
            const std::size_t punto = impreso.find('.');
            const auto decimales =
                punto == std::string::npos ? 0.0 : static_cast<double>(impreso.size() - punto - 1);
            EXPECT_NEAR(std::strtod(impreso.c_str(), nullptr), v.valores[static_cast<std::size_t>(lugar)],
                        1.0000001 * std::pow(10.0, -decimales))
                << f->paso;
        }
    }
}

// Klein's data, the trace on, and a platform that looks at results.
void EmpezarConKlein() {
    EmpezarConDatos(TipoAnual, "1920#1941");
    ASSERT_TRUE(CargarCsv("klein.csv"));
    static OperacionesPlataforma mirona;
    mirona = Plataforma();
    mirona.mostrarResultado = MirarResultado;
    InstalarPlataforma(mirona);
    PonerTraza(true);
    Vistos = 0;
    Procesar("SER SALARIOS = SALPRIV + SALPUB\nMUEST 1920 1941");
}

} // namespace

TEST(Fuentes, DeLosInformes) {
    static constexpr struct {
        const char *lote;
        std::size_t numeros; // with a source in the last report
    } Casos[] = {
        {"MC CONSUMO 1 BENEF BENEF(-1) SALARIOS", 4 * 4 + 14},
        {"MC (CH) CONSUMO 1 BENEF SALARIOS", 3 * 4 + 14},
        {"MCP (SALARIOS) CONSUMO 1 BENEF SALARIOS", 3 * 4 + 14},
        {"VSR NO\nMC CONSUMO 1 BENEF SALARIOS\nCR CONSUMO 1 SALARIOS", 4},
        {"VSR NO\nMC CONSUMO 1 BENEF SALARIOS\nCHN IR 2\nCHN MR 1 BETA(2)+BETA(3)=1\nCHN MR 2 "
         "BETA(1)=16\nCHN FR 2",
         3},
        {"VSR NO\nMC CONSUMO 1 BENEF SALARIOS\nCGQ (SALARIOS) 1 8 15 22", 4},
        {"VSR NO\nMC CONSUMO 1 BENEF SALARIOS\nCGQ (SALARIOS) RA 1 8 15 22", 4 + 2 * (3 * 4 + 14)},
        {"VSR NO\nMC CONSUMO 1 BENEF SALARIOS\nCWH", 3},
        {"VSR NO\nMC CONSUMO 1 BENEF SALARIOS\nCWH RA", 3 + 5 * 4 + 14},
        {"VSR NO\nMC CONSUMO 1 BENEF SALARIOS\nCRA (SALARIOS)", 3},
        {"VSR NO\nMC CONSUMO 1 BENEF CONSUMO(-1)\nCDU", 2},
        {"HIST CONSUMO INTERX 6", 6},
    };
    for (const auto &caso : Casos) {
        SCOPED_TRACE(caso.lote);
        EmpezarConKlein();
        Procesar(caso.lote);
        PonerTraza(false);
        EXPECT_EQ(Vistos, caso.numeros);
    }
    EmpezarPrueba();
}

TEST(Fuentes, DeLosComandos) {
    static constexpr struct {
        const char *nombre;
        void (*ordenar)();
        std::size_t numeros;
    } Casos[] = {
        {"normality", [] { AceptarNormalidad(nullptr, "CONSUMO"); }, 4},
        {"measures",
         [] {
             AceptarDescriptivos(nullptr, {"CONSUMO", "BENEF", "SALARIOS"});
         },
         3 * 4 + 3},
        {"autocorrelations",
         [] { AceptarAutocorrelacion(nullptr, FuncionEstimada, {.serie = "CONSUMO", .retardos = "7"}); }, 7},
        {"with their band",
         [] {
             AceptarAutocorrelacion(nullptr, FuncionEstimada,
                                    {.serie = "CONSUMO", .retardos = "5", .banda = BandaArma});
         },
         2 * 5},
        {"partial ones",
         [] { AceptarAutocorrelacion(nullptr, FuncionParcial, {.serie = "CONSUMO", .retardos = "4"}); }, 4},
        {"a prediction", [] { AceptarPrediccion(nullptr, {.inicio = "1930", .fin = "1941"}); }, 7},
        {"the covariances", [] { PedirListado(nullptr, ListadoCovarianza, "MC", OrdenMC); }, 6},
        {"the residuals", [] { PedirListado(nullptr, ListadoValores, "MC", OrdenMC); }, 22},
        // The sums, mean squares and the statistic; the degrees of freedom come from no step.
        {"the variance", [] { PedirListado(nullptr, ListadoVarianza, "MC", OrdenMC); }, 3 * 2 + 2},
    };
    for (const auto &caso : Casos) {
        SCOPED_TRACE(caso.nombre);
        EmpezarConKlein();
        Procesar("VSR NO\nMC CONSUMO 1 BENEF SALARIOS");
        caso.ordenar();
        PonerTraza(false);
        EXPECT_EQ(Vistos, caso.numeros);
    }
    EmpezarPrueba();
}
