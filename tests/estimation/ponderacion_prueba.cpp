// Weighted least squares: the estimates, the residuals on the original data, the report, and what inherits the weight.
#include "apoyo/datos_regresion.h"
#include "estimation/ecuacion.h"
#include "estimation/pasos.h"
#include "estimation/ponderacion.h"

#include <Eigen/Dense>
#include <cmath>
#include <gtest/gtest.h>
#include <utility>

namespace {

using Textos = std::vector<std::string>;

Eigen::VectorXd Columna(const char *serie) {
    const std::vector<double> v = ValoresDe(serie, 20);
    return Eigen::Map<const Eigen::VectorXd>(v.data(), 20);
}

Eigen::VectorXd Beta(const char *nombre = "_BETA") {
    int filas = 0, columnas = 0;
    const std::vector<double> v = MatrizDe(nombre, filas, columnas);
    return Eigen::Map<const Eigen::VectorXd>(v.data(), filas);
}

struct Ajuste {
    Eigen::VectorXd beta, residuos; // of the weighted data
};

// By orthogonal decomposition of the weighted data.
Ajuste Minimos(const Eigen::MatrixXd &x, const Eigen::VectorXd &y, const Eigen::VectorXd &peso) {
    const Eigen::MatrixXd xp = peso.asDiagonal() * x;
    const Eigen::VectorXd yp = peso.asDiagonal() * y;
    const Eigen::VectorXd beta = xp.colPivHouseholderQr().solve(yp);
    return {beta, yp - xp * beta};
}

Eigen::MatrixXd ConstanteYX() {
    Eigen::MatrixXd x(20, 2);
    x.col(0).setOnes();
    x.col(1) = Columna("X");
    return x;
}

// A number of the report that is being shown, behind its name.
double DelInforme(const std::string &nombre) {
    for (const auto &linea : Prueba.resultados.back().lineas) {
        const std::size_t lugar = linea.second.find(nombre);
        if (lugar != std::string::npos) return std::stod(linea.second.substr(lugar + nombre.size()));
    }
    return __builtin_nan("");
}

} // namespace

TEST(Ponderada, LosEstimadoresSonLosDeLosDatosPonderados) {
    EmpezarRegresion();
    Lote.VerRegresion = 1;
    ASSERT_TRUE(Procesar("MCP (1 / (X + 1)) Y 1 X")) << TextosDeCajas().back();
    EXPECT_EQ(TextosDeCajas(), Textos{"¿Desea ver la regresion?"});
    const Eigen::VectorXd y = Columna("Y"), peso = (Columna("X").array() + 1.0).inverse();
    const Ajuste a = Minimos(ConstanteYX(), y, peso);
    EXPECT_LT((Beta() - a.beta).norm(), 1e-10 * a.beta.norm());
    EXPECT_LT((Columna("_RES") - a.residuos).norm(), 1e-9);
    const double scr = a.residuos.squaredNorm();
    EXPECT_NEAR(EscalarDe("_SCR"), scr, 1e-10 * scr);
    EXPECT_NEAR(EscalarDe("_DTR"), std::sqrt(scr / 18), 1e-10);
    // The mean and the rest are those of the weighted dependent.
    const Eigen::VectorXd yp = peso.asDiagonal() * y;
    const double variacion = (yp.array() - yp.mean()).square().sum();
    EXPECT_NEAR(DelInforme("Media Var. Dependiente:"), yp.mean(), 5.1e-5);
    EXPECT_NEAR(DelInforme("Des. Típ. Var. Depen.:"), std::sqrt(variacion / 19), 5.1e-5);
    EXPECT_NEAR(DelInforme("R Cuadrado            :"), 1.0 - scr / variacion, 5.1e-5);
    // The residuals on the original data.
    const Eigen::VectorXd original = y - ConstanteYX() * Beta();
    EXPECT_LT((Columna("_RESN") - original).norm(), 1e-10);
    EXPECT_EQ(UltimaRegresion.MetodoRegresion, 13);
    EXPECT_EQ(UltimaRegresion.Ponderada, 1);
    EXPECT_EQ(UltimaRegresion.RegresionHecha, 1);
    EXPECT_EQ(UltimaRegresion.SeriesRegresion[8], 1);
    EXPECT_EQ(UltimaRegresion.TextosRegresores, (Textos{"1", "X"}));
    for (const char *m : {"_XIND", "_YDEP", "_S2", "_TMF5"}) EXPECT_EQ(BuscarMatriz(m), -1) << m;
    EXPECT_GE(BuscarSerie("_VORD"), 0);
}

TEST(Ponderada, UnPesoConstanteEsElMC) {
    EmpezarRegresion();
    ASSERT_TRUE(Procesar("MC Y 1 X Z"));
    const Eigen::VectorXd beta = Beta(), res = Columna("_RES");
    ASSERT_TRUE(Procesar("MCP (1) Y 1 X Z"));
    EXPECT_EQ(Beta(), beta);
    EXPECT_EQ(Columna("_RES"), res);
    EXPECT_LT((Columna("_RESN") - res).norm(), 1e-12);
}

// A zero weight takes the observation out of the estimation but not out of N; a missing one counts as zero.
TEST(Ponderada, PesoNuloYPesoQueFalta) {
    for (const char *sentencia : {"MCP (X / FALTA) Y 1 X", "MCP (NOT(X = 5)) Y 1 X"}) {
        SCOPED_TRACE(sentencia);
        EmpezarRegresion(); // FALTA is X but for row 5, where X is 5
        Lote.VerRegresion = 1;
        ASSERT_TRUE(Procesar(sentencia)) << TextosDeCajas().back();
        Eigen::VectorXd peso = Eigen::VectorXd::Ones(20);
        peso(5) = 0.0;
        const Ajuste a = Minimos(ConstanteYX(), Columna("Y"), peso);
        EXPECT_LT((Beta() - a.beta).norm(), 1e-10 * a.beta.norm());
        EXPECT_EQ(EscalarDe("_NORE"), 18.0);
        EXPECT_NEAR(DelInforme("Media Var. Dependiente:"), (Columna("Y").sum() - 9.0) / 20, 5.1e-5);
        EXPECT_EQ(ValoresDe("_RES", 20)[5], 0.0);
        EXPECT_NEAR(ValoresDe("_RESN", 20)[5], 9.0 - Beta()(0) - 5.0 * Beta()(1), 1e-12);
    }
}

// The covariance option is no option of MCP, and that of an earlier MC ends with it.
TEST(Ponderada, LaCovarianzaEsLaClasica) {
    EmpezarRegresion();
    ASSERT_TRUE(Procesar("MC (CH) Y 1 X"));
    ASSERT_TRUE(Procesar("MCP (X) Y 1 X"));
    EXPECT_EQ(UltimaRegresion.TipoCovarianza, 1);
    EXPECT_EQ(BuscarMatriz("_S3"), -1);
    Eigen::MatrixXd xp = Columna("X").asDiagonal() * ConstanteYX();
    const Eigen::MatrixXd v = EscalarDe("_SCR") / 18 * (xp.transpose() * xp).inverse();
    int filas = 0, columnas = 0;
    EXPECT_NEAR(MatrizDe("_COV", filas, columnas)[3], v(1, 1), 1e-10 * v(1, 1));
    EXPECT_FALSE(Procesar("MCP (CH) Y 1 X"));
    EXPECT_EQ(TextosDeCajas(), (Textos{"Función desconocida [CH]", "CH. Pto 199", "CH. Pto 8511"}));
}

// The regressors of the original residuals: series, numbers, and what reads as no number.
TEST(Ponderada, ResiduosOriginalesSinLosRetardos) {
    EmpezarRegresion();
    ASSERT_TRUE(Procesar("MCP (Z + 1) Y 2 X(-1) Z"));
    const std::vector<double> n = ValoresDe("_RESN", 20), y = ValoresDe("Y", 20), z = ValoresDe("Z", 20);
    EXPECT_TRUE(std::isnan(n[0])); // outside the range
    for (std::size_t i = 1; i < 20; ++i)
        EXPECT_NEAR(n[i], y[i] - (2.0 * Beta()(0) + z[i] * Beta()(2)), 1e-12) << i;
    const int s = BuscarSerie("_RESN");
    EXPECT_EQ(ArchivoTrabajo.PrimeraObs[s], 1);
    EXPECT_EQ(ArchivoTrabajo.UltimaObs[s], 19);
    EXPECT_EQ(ArchivoTrabajo.PresenciaObs[20][s], 0);
    // A scalar's text reads as no number.
    ASSERT_TRUE(Procesar("MCP (1) Y ALFA X"));
    EXPECT_NEAR(ValoresDe("_RESN", 20)[3], y[3] - 4.0 * Beta()(1), 1e-12);
    // The series may be its own regressor: its old values are what counts.
    ASSERT_TRUE(Procesar("SER _RESN = Z\nMCP (1) Y 1 _RESN"));
    EXPECT_NEAR(ValoresDe("_RESN", 20)[1], y[1] - Beta()(0) - z[1] * Beta()(1), 1e-12);
}

// Coefficients that are gone count for nothing.
TEST(Ponderada, ResiduosOriginalesConMenosCoeficientes) {
    EmpezarRegresion();
    ASSERT_TRUE(Procesar("MCP (1) Y 1 X"));
    PonerMatriz("_BETA", {2.5}, 1, 1);
    ASSERT_TRUE(Procesar("MGN Y 1 X"));
    EXPECT_EQ(ValoresDe("_RESN", 20)[19], 30.0 - 2.5);
}

TEST(Ponderada, ResiduosOriginalesSinSitio) {
    EmpezarRegresion();
    PonerEscalar(nullptr, "_RESN", 3.0);
    ASSERT_TRUE(Procesar("MCP (1) Y 1 X"));
    EXPECT_EQ(BuscarSerie("_RESN"), -1);
    EXPECT_EQ(EscalarDe("_RESN"), 3.0);
    EmpezarRegresion();
    PonerMatriz("_RESN", {1.0}, 1, 1);
    ASSERT_TRUE(Procesar("MCP (1) Y 1 X"));
    EXPECT_EQ(BuscarSerie("_RESN"), -1);
    // A full table: the regression itself takes _VORD, _YAJUS, _RES, _DTE2, _BETA2, _DIV and _PROBT.
    EmpezarRegresion();
    while (ArchivoTrabajo.NumSeries < 92) PonerSerie(Formatear("S%d", ArchivoTrabajo.NumSeries), {1.0});
    ASSERT_TRUE(Procesar("MCP (1) Y 1 X"));
    EXPECT_EQ(BuscarSerie("_RESN"), -1);
    EmpezarRegresion();
    while (ArchivoTrabajo.NumSeries < 91) PonerSerie(Formatear("S%d", ArchivoTrabajo.NumSeries), {1.0});
    ASSERT_TRUE(Procesar("MCP (1) Y 1 X"));
    EXPECT_GE(BuscarSerie("_RESN"), 0);
}

// After an MCP every regression makes them anew, from what the MCP left.
TEST(Ponderada, ResiduosOriginalesDeLoQueFalta) {
    for (const bool dependiente : {true, false}) {
        EmpezarRegresion();
        ASSERT_TRUE(Procesar("SER D = Y\nMCP (1) D 1 X"));
        if (dependiente)
            EliminarSerie(BuscarSerie("D"));
        else
            BorrarMatriz(nullptr, BuscarMatriz("_BETA"));
        EXPECT_FALSE(Procesar("MGN Y 1 X"));
        EXPECT_EQ(TextosDeCajas(), Textos{dependiente ? "No existe la variable dependiente. Pto 1"
                                                      : "No existe la matriz beta. Pto 1"});
        EXPECT_EQ(BuscarMatriz("_XIND"), -1);
    }
}

TEST(Ponderada, LasDemasRegresionesPonderan) {
    EmpezarRegresion();
    ASSERT_TRUE(Procesar("MCP (Z + 1) Y 1 X"));
    ASSERT_TRUE(Procesar("MGN Y 1"));
    const Eigen::VectorXd peso = Columna("Z").array() + 1.0;
    const Ajuste a = Minimos(Eigen::MatrixXd::Ones(20, 1), Columna("Y"), peso);
    EXPECT_NEAR(EscalarDe("_SCRGN"), a.residuos.squaredNorm(), 1e-9 * a.residuos.squaredNorm());
    // Until the next MC.
    ASSERT_TRUE(Procesar("MC Y 1 X\nMGN Y 1"));
    const Ajuste simple = Minimos(Eigen::MatrixXd::Ones(20, 1), Columna("Y"), Eigen::VectorXd::Ones(20));
    EXPECT_NEAR(EscalarDe("_SCRGN"), simple.residuos.squaredNorm(), 1e-9 * simple.residuos.squaredNorm());
}

TEST(Ponderada, SinElPesoNoSigue) {
    EmpezarRegresion();
    ASSERT_TRUE(Procesar("MCP (Z + 1) Y 1 X"));
    EliminarSerie(BuscarSerie("_VORD"));
    EXPECT_FALSE(Procesar("MGN Y 1 X"));
    EXPECT_EQ(TextosDeCajas(), Textos{"Secuencia no válida. Pto 6528"});
}

TEST(Ponderada, LosDatosPonderadosNoSePueden) {
    EmpezarRegresion();
    PonerSerie("_S2", {1.0});
    EXPECT_FALSE(Procesar("MCP (X) Y 1 X"));
    EXPECT_EQ(TextosDeCajas(), (Textos{"Nombre matriz no válido. Pto 28", "Secuencia no válida. Pto 6527"}));
    EXPECT_EQ(BuscarMatriz("_XIND"), -1);
    // A matrix whose block is gone.
    for (const char *nombre : {"_XIND", "_YDEP"}) {
        EmpezarRegresion();
        ASSERT_TRUE(Procesar("SER _VORD = 1"));
        LineasSentencia lineas;
        Estimacion e;
        LeerEcuacionMC(e, lineas, "Y 1 X");
        const int m = BuscarMatriz(nombre);
        double *bloque = std::exchange(TablaMatrices.bloque[m], nullptr);
        EXPECT_EQ(PonderarDatos(e), 0);
        EXPECT_EQ(TextosDeCajas(), Textos{Formatear("Secuencia no válida: [%s]. Pto 6523", nombre)});
        TablaMatrices.bloque[m] = bloque;
        CerrarPilaColumnas();
    }
}

TEST(Ponderada, Informe) {
    EmpezarRegresion();
    Lote.VerRegresion = 1;
    ASSERT_TRUE(Procesar("MCP (LN(X) / 2) Y 1 X"));
    EXPECT_EQ(TextosDeCajas(), Textos{"¿Desea ver la regresion?"});
    ASSERT_EQ(Prueba.resultados.size(), 1u);
    const ResultadoVisto &r = Prueba.resultados[0];
    EXPECT_EQ(r.titulo, "Mínimos cuadrados ponderados");
    EXPECT_EQ(r.clase, 13);
    EXPECT_EQ(r.lineas.at(3).second, "Variable de ponderación :LN(X) / 2");
}
