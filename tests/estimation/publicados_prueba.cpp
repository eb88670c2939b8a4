// Published results, and the special shapes of a regression.
#include "apoyo/datos_csv.h"
#include "apoyo/datos_regresion.h"
#include "estimation/ecuacion.h"
#include "estimation/pasos.h"

#include <cmath>
#include <gtest/gtest.h>

namespace {

std::vector<double> Matriz(std::string_view codigo) {
    int f = 0, c = 0;
    return MatrizDe(codigo, f, c);
}

// Nine digits.
void Iguales9(double valor, double publicado) {
    EXPECT_NEAR(valor, publicado, std::fabs(publicado) * 5e-10);
}

} // namespace

// NIST Statistical Reference Datasets, linear regression, "Norris".
TEST(Publicados, Norris) {
    EmpezarConDatos(TipoSinPeriodicidad, "");
    ASSERT_TRUE(CargarCsv("norris.csv"));
    Lote.VerRegresion = 0;
    ASSERT_TRUE(Procesar("MC Y 1 X"));
    const std::vector<double> beta = Matriz("_BETA"), dte = ValoresDe("_DTE2", 2);
    ASSERT_EQ(beta.size(), 2u);
    Iguales9(beta[0], -0.262323073774029);
    Iguales9(beta[1], 1.00211681802045);
    Iguales9(EscalarDe("_DTR"), 0.884796396144373);
    Iguales9(dte[0], 0.232818234301152);
    Iguales9(dte[1], 0.000429796848199937);
    EXPECT_EQ(EscalarDe("_NREG"), 2);
    EXPECT_EQ(EscalarDe("_NORE"), 34);
    // R squared is computed from sums of six decimals and deleted at the end; F comes from it.
    EXPECT_NEAR(EscalarDe("_FORLA"), 5436385.54079785, 1.0);
}

// L. Klein (1950): consumption on profits, profits a year before and wages, United States, 1921 to 1941.
TEST(Publicados, Klein) {
    EmpezarConDatos(TipoAnual, "1920#1941");
    ASSERT_TRUE(CargarCsv("klein.csv"));
    Lote.VerRegresion = 0;
    ASSERT_TRUE(Procesar("SER SAL = SALPRIV + SALPUB\nMC CONSUMO 1 BENEF BENEF(-1) SAL"));
    const std::vector<double> beta = Matriz("_BETA"), dte = ValoresDe("_DTE2", 22);
    const double publicados[4][2] = {{16.237, 1.303}, {0.193, 0.091}, {0.090, 0.091}, {0.796, 0.040}};
    ASSERT_EQ(beta.size(), 4u);
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_NEAR(beta[i], publicados[i][0], 0.0005);
        EXPECT_NEAR(dte[i + 1], publicados[i][1], 0.0005);
    }
    EXPECT_EQ(UltimaRegresion.PrimeraObsRegresion, 1);
    EXPECT_EQ(EscalarDe("_NORE"), 17);
}

// ----- Shapes

TEST(Formas, UnaSolaConstante) {
    EmpezarRegresion();
    ASSERT_TRUE(Procesar("MC Y 1"));
    EXPECT_EQ(EscalarDe("_NREG"), 1);
    EXPECT_EQ(EscalarDe("_FORLA"), 0.0);
    EXPECT_EQ(UltimaRegresion.SeriesRegresion[OrdenMC], 0);
    EXPECT_NEAR(Matriz("_BETA")[0], 307.0 / 20, 1e-12); // the mean
}

TEST(Formas, SinConstantePasaPorElOrigen) {
    EmpezarRegresion();
    ASSERT_TRUE(Procesar("MC Y X"));
    const std::vector<double> y = ValoresDe("Y", 20), x = ValoresDe("X", 20);
    double xy = 0, xx = 0;
    for (std::size_t i = 0; i < 20; ++i) {
        xy += x[i] * y[i];
        xx += x[i] * x[i];
    }
    EXPECT_NEAR(Matriz("_BETA")[0], xy / xx, 1e-14);
}

// As many observations as regressors: no degrees of freedom, and nothing divides by them.
TEST(Formas, SinGradosDeLibertad) {
    EmpezarRegresion();
    ASSERT_TRUE(Procesar("MUEST 1 3\nMC Y 1 X Z"));
    EXPECT_EQ(EscalarDe("_DTR"), 0.0);
    EXPECT_EQ(EscalarDe("_FORLA"), 0.0);
    EXPECT_EQ(EscalarDe("_NORE"), 0.0);
    EXPECT_EQ(Matriz("_COV"), std::vector<double>(9, 0.0));
    const std::vector<double> t = ValoresDe("_DIV", 3);
    for (const double v : t) EXPECT_EQ(v, 0.0); // a division by zero gives zero
    EXPECT_TRUE(Prueba.cajas.empty());
}

TEST(Formas, AjustePerfecto) {
    static constexpr const char *Sentencias[] = {
        "SER W = X * 2\nMC W X",
        // Two columns, so that it isn't the single regressor that leaves F without a value.
        "SER W = X * 2 + Z\nMC W X Z",
    };
    for (const char *sentencias : Sentencias) {
        SCOPED_TRACE(sentencias);
        EmpezarRegresion();
        ASSERT_TRUE(Procesar(sentencias));
        EXPECT_NEAR(EscalarDe("_SCR"), 0.0, 1e-20);
        EXPECT_EQ(EscalarDe("_FORLA"), 0.0);
        ASSERT_TRUE(Procesar("MC Y 1 X")); // and the next one is not disturbed
        EXPECT_GT(EscalarDe("_FORLA"), 0.0);
    }
}

TEST(Formas, LoQueQueda) {
    EmpezarRegresion();
    ASSERT_TRUE(Procesar("MC Y 1 X(-1)"));
    for (const char *m : {"_BETA", "_COV"}) EXPECT_GE(BuscarMatriz(m), 0) << m;
    for (const char *m :
         {"_YDEP", "_XIND", "_YAJU1", "_DTE", "_DTE1", "_RESM", "_SCR1", "_TMF2", "_TMF5", "_TMF6"})
        EXPECT_EQ(BuscarMatriz(m), -1) << m;
    for (const char *s : {"_RES", "_YAJUS", "_DTE2", "_BETA2", "_DIV", "_PROBT"})
        EXPECT_GE(BuscarSerie(s), 0) << s;
    EXPECT_EQ(BuscarSerie("_TMR1"), -1);
    for (const char *e : {"_SCR", "_DTR", "_FORLA", "_ESTF", "_NORE", "_NREG", "_DW"})
        EXPECT_GE(BuscarEscalar(e), 0) << e;
    for (const char *e :
         {"_MTR", "_MVD", "_STVD", "_LV", "_AIC", "_SCVD", "_DTVD", "_DCR", "_RC", "_RCC", "_EA1", "_ANREG"})
        EXPECT_EQ(BuscarEscalar(e), -1) << e;
    for (int m = 0; m < MaxMatrices; ++m) EXPECT_NE(TablaMatrices.EstadoBloque[m], BloqueFijado);
    EXPECT_EQ(ArchivoTrabajo.NumSeries, 4 + 6);
}

namespace {

// The steps of the regression of T, made by `sentencia`, on a constant and X; what they leave in the store stays. The variation
// of T that they found.
double VariacionTrasLosPasos(const char *sentencia) {
    EmpezarRegresion();
    EXPECT_TRUE(Procesar(sentencia));
    LineasSentencia lineas;
    Estimacion e;
    LeerEcuacionMC(e, lineas, "T 1 X");
    EXPECT_EQ(EjecutarPasos(e), 1);
    SoltarTodasMatrices();
    CerrarPilaColumnas();
    return e.variacion;
}

} // namespace

// Values that pass through a text keep six decimals, for every formula behind it too; the variation is about the exact
// mean, and only its sum is rounded.
TEST(Formas, SeisDecimales) {
    VariacionTrasLosPasos("SER T = Y / 7");
    // The sum of Y is 307 and that of its squares 5,927: variation 5927 - 307 * 307 / 20 = 1214.55, over 49.
    EXPECT_DOUBLE_EQ(EscalarDe("_STVD"), 43.857143);
    EXPECT_DOUBLE_EQ(EscalarDe("_MVD"), 2.192857);
    EXPECT_DOUBLE_EQ(EscalarDe("_SCVD"), 24.786735);
    EXPECT_DOUBLE_EQ(EscalarDe("_DTVD"), std::sqrt(24.786735 / 19.0));
    EXPECT_DOUBLE_EQ(EscalarDe("_RC"), 1.0 - EscalarDe("_SCR") / 24.786735);
}

// Values that have nothing but what six decimals lose.
TEST(Formas, LaVariacionEsSobreLaMediaExacta) {
    const double variacion = VariacionTrasLosPasos("SER T = Y / 7000000");
    EXPECT_DOUBLE_EQ(EscalarDe("_MVD"), 0.000002); // of 0.00000219
    EXPECT_NEAR(variacion, 1214.55 / 49e12, 1e-12 * variacion);
    EXPECT_EQ(EscalarDe("_SCVD"), 0.0);
}
