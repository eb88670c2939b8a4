// The auxiliary regressions: restricted model, the halves of Goldfeld and Quandt, White's equation.
#include "apoyo/datos_regresion.h"
#include "estimation/ecuacion.h"
#include "estimation/pasos.h"

#include <cmath>
#include <gtest/gtest.h>

namespace {

using Textos = std::vector<std::string>;

std::string Unir(const std::vector<std::string> &nombres) {
    std::string r;
    for (const std::string &n : nombres) r += n + " ";
    return r;
}

// The regression of a code up to where its report would come; what it stored stays.
struct Corrida {
    LineasSentencia lineas;
    Estimacion e;
    bool leida, estimada;
};

void Correr(Corrida &c, int codigo, const char *texto) {
    AbrirPilaColumnas();
    LimpiarEvaluador();
    c.lineas[0] = texto;
    c.e.lineas = &c.lineas;
    c.e.codigo = codigo;
    c.leida = LeerEcuacion(c.e, 0) == 1;
    c.estimada = c.leida && EjecutarPasos(c.e) == 1 && CompletarRegresion(c.e) == 1;
    SoltarTodasMatrices();
    CerrarPilaColumnas();
}

double Prob(const char *formula) {
    EXPECT_TRUE(Procesar(std::string("ESC PROBADA = ") + formula));
    return EscalarDe("PROBADA");
}

} // namespace

TEST(ModeloRestringido, ComparaSumasDeCuadrados) {
    EmpezarRegresion();
    ASSERT_TRUE(Procesar("MC Y 1 X Z"));
    const double scr = EscalarDe("_SCR");
    const std::vector<double> res = ValoresDe("_RES", 20);
    Corrida c;
    Correr(c, OrdenCR, "Y 1 X");
    ASSERT_TRUE(c.estimada) << Unir(TextosDeCajas());
    const double scrr = EscalarDe("_SCRR");
    EXPECT_GT(scrr, scr);
    EXPECT_EQ(EscalarDe("_SCR"), scr);
    EXPECT_EQ(EscalarDe("_EST5"), 1.0);
    EXPECT_DOUBLE_EQ(EscalarDe("_FORLAR"), ((scrr - scr) / 1) / (scr / 17));
    EXPECT_EQ(EscalarDe("_ESTFR"), Prob("PROBF(_FORLAR,1,17)"));
    EXPECT_EQ(Unir(UltimaRegresion.TextosRegresores), "1 X ");
    EXPECT_EQ(Unir(UltimaRegresion.CodigosRegresores), "1 X Z ");
    EXPECT_EQ(UltimaRegresion.NumTextos, 2);

    // The statement itself removes all of it, and leaves the MC as it was.
    EXPECT_TRUE(Procesar("CR Y 1 X"));
    ASSERT_EQ(Prueba.resultados.size(), 1u);
    EXPECT_EQ(Prueba.resultados[0].clase, OrdenCR);
    for (const char *e : {"_EST5", "_FORLAR", "_ESTFR", "_SCRR", "_NORER"})
        EXPECT_EQ(BuscarEscalar(e), -1) << e;
    for (const char *s : {"_RESR", "_DIVR", "_PROBTR", "_DTER2", "_YAJUS", "_BETA2"})
        EXPECT_EQ(BuscarSerie(s), -1) << s;
    for (const char *m : {"_BETAR", "_COVR", "_DTER", "_DTER1"}) EXPECT_EQ(BuscarMatriz(m), -1) << m;
    EXPECT_EQ(ValoresDe("_RES", 20), res);
    EXPECT_GE(BuscarMatriz("_BETA"), 0);
    EXPECT_GE(BuscarMatriz("_COV"), 0);
}

TEST(ModeloRestringido, LosGradosSonLosDelRangoDelMomento) {
    EmpezarRegresion();
    ASSERT_TRUE(Procesar("MC Y 1 X Z"));
    Corrida c;
    Correr(c, OrdenCR, "Y 1 X(-2)");
    ASSERT_TRUE(c.estimada) << Unir(TextosDeCajas());
    const double scr = EscalarDe("_SCR"), scrr = EscalarDe("_SCRR");
    EXPECT_DOUBLE_EQ(EscalarDe("_FORLAR"), (scrr - scr) / (scr / (18 - 3)));
}

// A sample that a regression was tried on comes before the regression that isn't there.
TEST(ModeloRestringido, LaMuestraAntesQueLaRegresion) {
    EmpezarRegresion();
    EXPECT_FALSE(Procesar("MUEST 1 2\nMC Y 1 X"));
    Prueba.cajas.clear();
    EXPECT_FALSE(Procesar("CR Y 1 X"));
    EXPECT_EQ(TextosDeCajas(), Textos{"La muestra es muy pequeña. Pto 293"});
}

TEST(ModeloRestringido, FamiliaOcupada) {
    const struct {
        const char *nombre, *caja;
    } Casos[] = {
        {"_EST5", "Secuencia no válida. Pto 656"},
        {"_SCRR", "Secuencia no válida. Pto 656"},
        {"_ESTFR", "Secuencia no válida. Pto 881"}, // the common step comes first
    };
    for (const auto &caso : Casos) {
        EmpezarRegresion();
        ASSERT_TRUE(Procesar("MC Y 1 X Z"));
        PonerSerie(caso.nombre, {1.0});
        EXPECT_FALSE(Procesar("CR Y 1 X"));
        EXPECT_EQ(TextosDeCajas(), Textos{caso.caja}) << caso.nombre;
    }
}

TEST(GoldfeldQuandt, HeredaLaCuentaDelUltimoMC) {
    EmpezarRegresion();
    ASSERT_TRUE(Procesar("MC Y 1 X Z"));
    Corrida c;
    Muestra.FinRegresion = 9;
    Correr(c, OrdenMGN, "Y 1 X");
    ASSERT_TRUE(c.estimada);
    EXPECT_EQ(EscalarDe("_ANREGGN"), 2.0);
    EXPECT_EQ(EscalarDe("_NREGGN"), 2.0);
    EXPECT_EQ(EscalarDe("_NOREGN"), 8.0);
    EXPECT_EQ(UltimaRegresion.NumRegresores, 3);
    EXPECT_GE(BuscarSerie("_RESGN"), 0);
}

// What the test of both will read stays behind the numerator's regression; the denominator's clears both.
TEST(GoldfeldQuandt, LoDelNumeradorQuedaHastaElDenominador) {
    EmpezarRegresion();
    ASSERT_TRUE(Procesar("MC Y 1 X Z"));
    ASSERT_TRUE(Procesar("MGN Y 1 X"));
    EXPECT_TRUE(Prueba.resultados.empty());
    for (const char *e : {"_SCRGN", "_NOREGN", "_MTRGN"}) EXPECT_GE(BuscarEscalar(e), 0) << e;
    EXPECT_GE(BuscarSerie("_RESGN"), 0);
    ASSERT_TRUE(Procesar("MGD Y 1 X"));
    ASSERT_EQ(Prueba.resultados.size(), 1u);
    EXPECT_EQ(Prueba.resultados[0].clase, OrdenMGD);
    for (const char *e : {"_SCRGN", "_NOREGN", "_SCRGD", "_NOREGD", "_ESTFG"})
        EXPECT_EQ(BuscarEscalar(e), -1) << e;
    EXPECT_EQ(BuscarSerie("_RESGN"), -1);
    EXPECT_GE(BuscarEscalar("_SCR"), 0);
    // A numerator that fails leaves nothing.
    EXPECT_FALSE(Procesar("MGN Y X X"));
    for (const char *m : {"_YDEP", "_XIND", "_TMF5", "_TMF6"}) EXPECT_EQ(BuscarMatriz(m), -1) << m;
}

TEST(GoldfeldQuandt, ElCocienteDeLasVarianzas) {
    static const struct {
        int den[2], num[2]; // rows
        int n, m;           // sizes; without degrees of freedom the quotient is 0
    } Casos[] = {{{0, 7}, {10, 19}, 8, 10},
                 {{12, 19}, {0, 9}, 8, 10},
                 {{0, 2}, {10, 19}, 0, 0},
                 {{0, 7}, {17, 19}, 0, 0}};
    for (const auto &caso : Casos) {
        EmpezarRegresion();
        ASSERT_TRUE(Procesar("MC Y 1 X Z"));
        UltimoContraste.primeraDenominador = caso.den[0];
        UltimoContraste.ultimaDenominador = caso.den[1];
        UltimoContraste.primeraNumerador = caso.num[0];
        UltimoContraste.ultimaNumerador = caso.num[1];
        Corrida n, d;
        Muestra.InicioRegresion = caso.num[0];
        Muestra.FinRegresion = caso.num[1];
        Correr(n, OrdenMGN, "Y 1 X");
        Muestra.InicioRegresion = caso.den[0];
        Muestra.FinRegresion = caso.den[1];
        Correr(d, OrdenMGD, "Y 1 X");
        ASSERT_TRUE(n.estimada && d.estimada) << Unir(TextosDeCajas());
        const double a = EscalarDe("_SCRGD") / (caso.n - 3), b = EscalarDe("_SCRGN") / (caso.m - 3);
        const double f = caso.n == 0 ? 0.0 : b / a;
        const int glNumerador = caso.num[1] - caso.num[0] + 1 - 3,
                  glDenominador = caso.den[1] - caso.den[0] + 1 - 3;
        EXPECT_EQ(EscalarDe("_ESTFG"),
                  Prob(Formatear("PROBF(%f,%d,%d)", f, glNumerador, glDenominador).c_str()));
    }
}

// ----- White

struct CasoWhite {
    const char *antes; // statements
    const char *opciones;
    const char *textos; // the list of the auxiliary regression
    int grados;
};

class EcuacionWhite : public testing::TestWithParam<CasoWhite> {};

TEST_P(EcuacionWhite, Regresores) {
    const CasoWhite &caso = GetParam();
    EmpezarRegresion();
    ASSERT_TRUE(Procesar(caso.antes)) << Unir(TextosDeCajas());
    Corrida c;
    Correr(c, OrdenCWH, caso.opciones);
    ASSERT_TRUE(c.estimada) << Unir(TextosDeCajas());
    EXPECT_EQ(Unir(c.e.textos), caso.textos);
    EXPECT_EQ(Unir(UltimaRegresion.TextosRegresores), caso.textos);
    EXPECT_EQ(UltimaRegresion.SeriesRegresion[OrdenCWH], caso.grados);
    EXPECT_EQ(EscalarDe("_TM12"), caso.grados);
    EXPECT_NEAR(EscalarDe("_TM11"), c.e.observaciones * EscalarDe("_RCW"), 5e-7);
    EXPECT_EQ(EscalarDe("_TM13"), Prob("PROBC(_TM11,_TM12)"));
    EXPECT_EQ(c.e.dependiente, "_RESCUAD");
    // Squares in all 4,000 rows, all present.
    const int r = BuscarSerie("_RES"), s = BuscarSerie("_RESCUAD");
    ASSERT_GE(s, 0);
    for (const int i : {0, 7, 19, 20, 3999}) {
        EXPECT_EQ(ArchivoTrabajo.ValoresObs[i][s],
                  ArchivoTrabajo.ValoresObs[i][r] * ArchivoTrabajo.ValoresObs[i][r]);
        EXPECT_EQ(ArchivoTrabajo.PresenciaObs[i][s], 1);
    }
    EXPECT_EQ(std::string(UltimaRegresion.CodigoDependiente), "Y           ");

    EXPECT_TRUE(Procesar(std::string("CWH ") + caso.opciones));
    ASSERT_EQ(Prueba.resultados.size(), 1u);
    EXPECT_EQ(Prueba.resultados[0].clase, OrdenCWH);
    for (const char *n : {"_RESCUAD", "_TMP1", "_TMP2", "_RESW", "_TMR1", "_DTEW2"})
        EXPECT_EQ(BuscarSerie(n), -1) << n;
    for (const char *n : {"_TM11", "_TM12", "_TM13", "_RCW"}) EXPECT_EQ(BuscarEscalar(n), -1) << n;
}

INSTANTIATE_TEST_SUITE_P(
    Listas, EcuacionWhite,
    testing::Values(CasoWhite{"MC Y 1 X Z", "", "1 X Z X*X Z*Z ", 4},
                    CasoWhite{"MC Y 1 X Z", "RA", "1 X Z X*X Z*Z ", 4},
                    CasoWhite{"MC Y 1 X Z", "PC", "1 X Z X*X Z*Z X*Z ", 5},
                    CasoWhite{"MC Y X Z", "", "X Z 1 X*X Z*Z ", 4},               // a constant is added
                    CasoWhite{"SER D = X > 10\nMC Y 1 X D", "", "1 X D X*X ", 3}, // a dummy is its own square
                    CasoWhite{"SER XX = X * X\nMC Y 1 X XX", "", "1 X XX XX*XX ", 3},
                    CasoWhite{"MC Y 1 X(-1)", "", "1 X(-1) X(-1)*X(-1) ", 2}));

// The same column within 0.00005; one that differs by more somewhere stays, whatever its regression becomes.
TEST(EcuacionWhiteFallos, ToleranciaDeLasRepetidas) {
    const struct {
        const char *diferencia, *textos;
    } Casos[] = {
        {"+0.000049", "1 X XX XX*XX "},
        {"+0.000055", "1 X XX X*X XX*XX "},
        {"-0.000049", "1 X XX XX*XX "},
        {"-0.000055", "1 X XX X*X XX*XX "},
    };
    for (const auto &caso : Casos) {
        EmpezarRegresion();
        const std::string serie = std::string("SER XX = (X * X) + ((Z > 4) * (0") + caso.diferencia + "))";
        ASSERT_TRUE(Procesar(serie + "\nMC Y 1 X XX")) << Unir(TextosDeCajas());
        Corrida c;
        Correr(c, OrdenCWH, "");
        ASSERT_TRUE(c.leida);
        EXPECT_EQ(Unir(c.e.textos), caso.textos) << caso.diferencia;
    }
}

TEST(EcuacionWhiteFallos, SinResiduos) {
    EmpezarRegresion();
    ASSERT_TRUE(Procesar("MC Y 1 X"));
    EliminarSerie(BuscarSerie("_RES"));
    EXPECT_FALSE(Procesar("CWH"));
    EXPECT_EQ(TextosDeCajas(), Textos{"No existen los residuos. Pto 1634"});
    // After a weighted regression the residuals are those on the original data.
    Prueba.cajas.clear();
    UltimaRegresion.MetodoRegresion = OrdenMCP;
    PonerSerie("_RES", {1, 2, 3});
    EXPECT_FALSE(Procesar("CWH"));
    EXPECT_EQ(TextosDeCajas(), Textos{"No existen los residuos. Pto 1634"});
}

TEST(EcuacionWhiteFallos, SinSitio) {
    EmpezarRegresion();
    ASSERT_TRUE(Procesar("MC Y 1 X"));
    while (CabeOtraSerie()) PonerSerie(Formatear("S%d", ArchivoTrabajo.NumSeries), {1.0});
    EXPECT_FALSE(Procesar("CWH"));
    EXPECT_EQ(TextosDeCajas(), Textos{"Borre algunas series. Pto 1634"});
    EmpezarRegresion();
    ASSERT_TRUE(Procesar("MC Y 1 X"));
    while (ArchivoTrabajo.NumSeries < 98) PonerSerie(Formatear("S%d", ArchivoTrabajo.NumSeries), {1.0});
    EXPECT_FALSE(Procesar("CWH"));
    EXPECT_EQ(TextosDeCajas(), Textos{"Borre algunas series. Pto 862"});
}

TEST(Ponderada, LaHeredanLosContrastesHastaElSiguienteMC) {
    EmpezarRegresion();
    ASSERT_TRUE(Procesar("MC Y 1 X Z"));
    EXPECT_TRUE(Procesar("MCP ( LN(X) / 2 ) Y 1 X"));
    EXPECT_EQ(UltimaRegresion.Ponderada, 1);
    EXPECT_EQ(UltimaRegresion.TextoPonderacion, " LN(X) / 2 ");
    EXPECT_EQ(UltimaRegresion.TextoEcuacion, " Y 1 X");
    EXPECT_EQ(UltimaRegresion.MetodoRegresion, 13);
    EXPECT_NEAR(ValoresDe("_VORD", 20)[4], std::log(6.0) / 2, 1e-15);
    ASSERT_TRUE(Procesar("MC Y 1 X"));
    EXPECT_EQ(UltimaRegresion.Ponderada, 0);
    EXPECT_EQ(UltimaRegresion.MetodoRegresion, 8);
    // Its own name is refused to a scalar and a matrix.
    EliminarSerie(BuscarSerie("_VORD"));
    PonerEscalar(nullptr, "_VORD", 1.0);
    Prueba.cajas.clear();
    EXPECT_FALSE(Procesar("MCP (X) Y 1 X"));
    EXPECT_EQ(TextosDeCajas(), Textos{"Borre algunas series. Pto 8628"});
}

// White's test after a weighted regression squares the residuals on the original data, and weights its own regression.
TEST(Ponderada, WhiteTrasPonderar) {
    EmpezarRegresion();
    ASSERT_TRUE(Procesar("MCP (Z + 1) Y 1 X"));
    Corrida c;
    Correr(c, OrdenCWH, "");
    ASSERT_TRUE(c.estimada) << Unir(TextosDeCajas());
    EXPECT_EQ(Unir(c.e.textos), "1 X X*X ");
    const int n = BuscarSerie("_RESN"), cuadrados = BuscarSerie("_RESCUAD"), simples = BuscarSerie("_RES");
    for (const int i : {0, 7, 19}) {
        const double residuo = ArchivoTrabajo.ValoresObs[i][n];
        EXPECT_EQ(ArchivoTrabajo.ValoresObs[i][cuadrados], residuo * residuo);
        EXPECT_NE(residuo, ArchivoTrabajo.ValoresObs[i][simples]);
    }
    const double scr = EscalarDe("_SCRW"), rc = EscalarDe("_RCW");
    EXPECT_NEAR(EscalarDe("_TM11"), 20 * rc, 5e-7);
    EXPECT_EQ(EscalarDe("_TM12"), 2.0);
    ASSERT_TRUE(Procesar("SER Q = _RESN * _RESN\nSER XX = X * X\nMCP (Z + 1) Q 1 X XX"));
    EXPECT_EQ(EscalarDe("_SCR"), scr);
}

// The restricted model of a weighted regression is weighted too, and compares with its sum of squares.
TEST(Ponderada, ModeloRestringidoTrasPonderar) {
    EmpezarRegresion();
    ASSERT_TRUE(Procesar("MCP (X) Y 1"));
    const double restringida = EscalarDe("_SCR");
    ASSERT_TRUE(Procesar("MCP (X) Y 1 Z"));
    const double libre = EscalarDe("_SCR");
    Corrida c;
    Correr(c, OrdenCR, "Y 1");
    ASSERT_TRUE(c.estimada) << Unir(TextosDeCajas());
    EXPECT_EQ(EscalarDe("_SCRR"), restringida);
    EXPECT_EQ(EscalarDe("_EST5"), 1.0);
    EXPECT_DOUBLE_EQ(EscalarDe("_FORLAR"), (restringida - libre) / (libre / 18));
    EXPECT_EQ(EscalarDe("_ESTFR"), Prob("PROBF(_FORLAR,1,18)"));
}

// Under a consistent covariance the F of a restricted model is the Wald statistic of the MC, over its own coefficients,
// while its probability is that of the comparison.
TEST(ModeloRestringido, TrasUnaCovarianzaConsistente) {
    EmpezarRegresion();
    ASSERT_TRUE(Procesar("MC (CH) Y 1 X Z"));
    const double wald = EscalarDe("_FORLA"), scr = EscalarDe("_SCR");
    Corrida c;
    Correr(c, OrdenCR, "Y 1 X");
    ASSERT_TRUE(c.estimada) << Unir(TextosDeCajas());
    EXPECT_NEAR(EscalarDe("_FORLAR"), wald * 2, 1e-12 * wald);
    const double f = (EscalarDe("_SCRR") - scr) / (scr / 17);
    EXPECT_NEAR(EscalarDe("_ESTFR"), Prob(Formatear("PROBF(%.17g,1,17)", f).c_str()), 1e-12);
    EXPECT_EQ(EscalarDe("_FORLA"), wald);
}
