// The consistent covariance matrices against sandwiches computed straight from their definitions, and what surrounds them.
#include "apoyo/datos_csv.h"
#include "apoyo/datos_regresion.h"

#include <Eigen/Dense>
#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

namespace {

using Textos = std::vector<std::string>;
using Matriz = Eigen::MatrixXd;

Eigen::VectorXd Columna(const char *serie) {
    const std::vector<double> v = ValoresDe(serie, 20);
    return Eigen::Map<const Eigen::VectorXd>(v.data(), 20);
}

Matriz Almacenada(const char *nombre) {
    int filas = 0, columnas = 0;
    const std::vector<double> v = MatrizDe(nombre, filas, columnas);
    using PorFilas = Eigen::Matrix<double, Eigen::Dynamic, Eigen::Dynamic, Eigen::RowMajor>;
    return Eigen::Map<const PorFilas>(v.data(), filas, columnas);
}

// Regressors of the small work file: a constant where `constante`, then X and Z.
Matriz Regresores(bool constante) {
    Matriz x(20, constante ? 3 : 2);
    if (constante) x.col(0).setOnes();
    x.col(x.cols() - 2) = Columna("X");
    x.col(x.cols() - 1) = Columna("Z");
    return x;
}

// A weight goes through a text of ten decimals.
double EnTexto(double peso) {
    return std::stod(Formatear("%30.10f", peso));
}

// The sum of the squares divided by N beside the undivided sums over the lags; -1 lags: White's.
Matriz Sandwich(const Matriz &x, const Eigen::VectorXd &y, int retardos) {
    const Matriz inversa = (x.transpose() * x).inverse();
    const Eigen::VectorXd e = y - x * (inversa * (x.transpose() * y));
    const auto n = x.rows();
    Matriz centro = Matriz::Zero(x.cols(), x.cols());
    for (Eigen::Index t = 0; t < n; ++t) centro += EnTexto(e(t) * e(t)) * x.row(t).transpose() * x.row(t);
    if (retardos < 1) return inversa * centro * inversa;
    centro /= static_cast<double>(n);
    for (int r = 1; r <= retardos; ++r)
        for (Eigen::Index t = r; t < n; ++t) {
            const Matriz producto = x.row(t).transpose() * x.row(t - r);
            const double peso = e(t) * e(t - r) * (1.0 - r / (retardos + 1.0));
            centro += EnTexto(peso) * (producto + producto.transpose());
        }
    return static_cast<double>(n) * inversa * centro * inversa;
}

double Wald(const Matriz &v, const Eigen::VectorXd &b, int d) {
    return b.dot(v.inverse() * b) / d;
}

struct CasoConsistente {
    const char *sentencia;
    int retardos; // -1: White's
    bool constante;
    const char *titulo; // of the report
};

void PrintTo(const CasoConsistente &c, std::ostream *salida) {
    *salida << c.sentencia;
}

} // namespace

class Consistente : public testing::TestWithParam<CasoConsistente> {};

TEST_P(Consistente, ComoSuDefinicion) {
    const CasoConsistente &c = GetParam();
    EmpezarRegresion();
    ASSERT_TRUE(Procesar(c.constante ? "MC Y 1 X Z" : "MC Y X Z"));
    const Matriz beta = Almacenada("_BETA");
    const double clasica = EscalarDe("_FORLA");
    Lote.VerRegresion = 1;
    ASSERT_TRUE(Procesar(c.sentencia));
    EXPECT_EQ(TextosDeCajas(), Textos{"¿Desea ver la regresion?"});
    EXPECT_EQ(Almacenada("_BETA"), beta);

    const Matriz x = Regresores(c.constante);
    const Matriz v = Sandwich(x, Columna("Y"), c.retardos);
    const Matriz cov = Almacenada("_COV");
    ASSERT_EQ(cov.rows(), x.cols());
    EXPECT_LT((cov - v).cwiseAbs().maxCoeff(), 1e-9 * v.cwiseAbs().maxCoeff());
    for (Eigen::Index j = 0; j < x.cols(); ++j) {
        // With lags a variance may come out negative: its root counts as 0, and so does what is divided by it.
        const double t = v(j, j) > 0.0 ? beta(j) / std::sqrt(v(j, j)) : 0.0;
        EXPECT_NEAR(ValoresDe("_DIV", 3)[static_cast<std::size_t>(j)], t, 1e-9 * std::fabs(t));
    }
    if (c.retardos < 0) {
        const Eigen::Index k = x.cols(), desde = c.constante ? 1 : 0;
        const double f = Wald(v.bottomRightCorner(k - desde, k - desde), beta.col(0).tail(k - desde),
                              static_cast<int>(k) - 1);
        EXPECT_NEAR(EscalarDe("_FORLA"), f, 1e-9 * f);
    } else {
        EXPECT_EQ(EscalarDe("_FORLA"), clasica);
    }
    // Its probability is that of the classical F, which came first.
    ASSERT_TRUE(Procesar(Formatear("ESC P = PROBF(%.17g,2,%d)", clasica, c.constante ? 17 : 18)));
    EXPECT_EQ(EscalarDe("_ESTF"), EscalarDe("P"));
    ASSERT_EQ(Prueba.resultados.size(), 1u);
    EXPECT_EQ(Prueba.resultados[0].titulo, c.titulo);
    // Nothing of the computation stays.
    for (const char *m :
         {"_S0", "_S2", "_S3", "_S5", "_S7", "_S8", "_S9", "_TMS2", "_TMS3", "_XIND", "_TMF5"})
        EXPECT_EQ(BuscarMatriz(m), -1) << m;
}

constexpr const char *TituloCH = "Mínimos C.: Matriz de covarianzas consistente bajo heterocedasticidad";

INSTANTIATE_TEST_SUITE_P(
    Casos, Consistente,
    testing::Values(
        CasoConsistente{"MC (CH) Y 1 X Z", -1, true, TituloCH},
        CasoConsistente{"MC (CH) Y X Z", -1, false, TituloCH},
        CasoConsistente{"MC (CA 0) Y 1 X Z", 0, true,
                        "Mínimos C.: Matriz de covarianzas consistente bajo autocorrelacion (0 r.)"},
        CasoConsistente{"MC (CA 1) Y 1 X Z", 1, true,
                        "Mínimos C.: Matriz de covarianzas consistente bajo autocorrelacion (1 r.)"},
        CasoConsistente{"MC (CA 4) Y X Z", 4, false,
                        "Mínimos C.: Matriz de covarianzas consistente bajo autocorrelacion (4 r.)"},
        CasoConsistente{"MC (CA 19) Y 1 X Z", 19, true,
                        "Mínimos C.: Matriz de covarianzas consistente bajo autocorrelacion (19 r.)"}));

// Klein's consumption function, one of its regressors lagged: the residuals begin a row later than the data.
TEST(ConsistentePublicados, Klein) {
    static constexpr struct {
        const char *opcion;
        int retardos;
    } Casos[] = {{"(CH)", -1}, {"(CA 0)", 0}, {"(CA 1)", 1}, {"(CA 3)", 3}};
    for (const auto &c : Casos) {
        SCOPED_TRACE(c.opcion);
        EmpezarConDatos(TipoAnual, "1920#1941");
        ASSERT_TRUE(CargarCsv("klein.csv"));
        Lote.VerRegresion = 0;
        ASSERT_TRUE(Procesar("SER SAL = SALPRIV + SALPUB"));
        ASSERT_TRUE(Procesar(Formatear("MC %s CONSUMO 1 BENEF BENEF(-1) SAL", c.opcion)));
        const std::vector<double> consumo = ValoresDe("CONSUMO", 22), benef = ValoresDe("BENEF", 22),
                                  sal = ValoresDe("SAL", 22);
        Matriz x(21, 4);
        Eigen::VectorXd y(21);
        for (Eigen::Index t = 0; t < 21; ++t) {
            const auto i = static_cast<std::size_t>(t + 1);
            x.row(t) << 1.0, benef[i], benef[i - 1], sal[i];
            y(t) = consumo[i];
        }
        const Matriz v = Sandwich(x, y, c.retardos), cov = Almacenada("_COV");
        EXPECT_LT((cov - v).cwiseAbs().maxCoeff(), 1e-9 * v.cwiseAbs().maxCoeff());
        const std::vector<double> dte = ValoresDe("_DTE2", 22);
        for (Eigen::Index j = 0; j < 4; ++j) {
            const double d = std::sqrt(std::max(v(j, j), 0.0));
            EXPECT_NEAR(dte[static_cast<std::size_t>(j + 1)], d, 1e-9 * d) << j;
        }
        if (c.retardos >= 0) continue;
        const Matriz beta = Almacenada("_BETA");
        const double f = Wald(v.bottomRightCorner(3, 3), beta.col(0).tail(3), 3);
        EXPECT_NEAR(EscalarDe("_FORLA"), f, 1e-9 * f);
    }
}

TEST(ConsistenteBordes, SinRetardosEsLaDeWhite) {
    EmpezarRegresion();
    ASSERT_TRUE(Procesar("MC (CH) Y 1 X Z"));
    const Matriz deWhite = Almacenada("_COV");
    ASSERT_TRUE(Procesar("MC (CA 0) Y 1 X Z"));
    EXPECT_EQ(Almacenada("_COV"), deWhite);
}

// Lags that no two observations have add the last sum once more each, however many they are.
TEST(ConsistenteBordes, MasRetardosQueObservaciones) {
    EmpezarRegresion();
    ASSERT_TRUE(Procesar("MC Y 1 X Z"));
    const Matriz x = Regresores(true), inversa = (x.transpose() * x).inverse();
    const Eigen::VectorXd e = Columna("_RES");
    for (const int retardos : {25, 1000, 2147483647}) {
        SCOPED_TRACE(retardos);
        Matriz centro = Matriz::Zero(3, 3), ultima;
        for (Eigen::Index t = 0; t < 20; ++t) centro += e(t) * e(t) * x.row(t).transpose() * x.row(t) / 20.0;
        for (int r = 1; r < 20; ++r) {
            ultima = Matriz::Zero(3, 3);
            for (Eigen::Index t = r; t < 20; ++t) {
                const Matriz producto = x.row(t).transpose() * x.row(t - r);
                ultima += e(t) * e(t - r) * (1.0 - r / (retardos + 1.0)) * (producto + producto.transpose());
            }
            centro += ultima;
        }
        centro += (retardos - 19.0) * ultima;
        const Matriz v = 20.0 * inversa * centro * inversa;
        ASSERT_TRUE(Procesar(Formatear("MC (CA %d) Y 1 X Z", retardos)));
        EXPECT_LT((Almacenada("_COV") - v).cwiseAbs().maxCoeff(), 1e-7 * v.cwiseAbs().maxCoeff());
    }
}

// With one regressor there would be no restriction to divide by.
TEST(ConsistenteBordes, UnSoloRegresor) {
    EmpezarRegresion();
    ASSERT_TRUE(Procesar("MC (CH) Y X"));
    const double b = Almacenada("_BETA")(0), v = Almacenada("_COV")(0);
    EXPECT_NEAR(EscalarDe("_FORLA"), b * b / v, 1e-12 * b * b / v);
}

// With nothing but a constant there is nothing to test.
TEST(ConsistenteBordes, SoloLaConstante) {
    EmpezarRegresion();
    ASSERT_TRUE(Procesar("MC (CH) Y 1"));
    EXPECT_EQ(TextosDeCajas(), Textos{});
    EXPECT_EQ(EscalarDe("_FORLA"), 0.0);
    EXPECT_GT(Almacenada("_COV")(0), 0.0);
}

// Residuals that vanish leave a zero matrix, by whose roots nothing is divided.
TEST(ConsistenteBordes, ResiduosNulosDeLaConstante) {
    EmpezarRegresion();
    ASSERT_TRUE(Procesar("SER CINCO = 5\nMC (CA 2) CINCO 1"));
    EXPECT_EQ(TextosDeCajas(), Textos{});
    EXPECT_EQ(Almacenada("_BETA")(0), 5.0);
    EXPECT_EQ(Almacenada("_COV"), Matriz::Zero(1, 1));
    EXPECT_EQ(ValoresDe("_DTE2", 1)[0], 0.0);
    EXPECT_EQ(ValoresDe("_DIV", 1)[0], 0.0);
}

// A negative constant and a scalar are no constants to the test: their texts read as no number above 0.
TEST(ConsistenteBordes, SoloUnNumeroMayorQueCeroEsConstante) {
    EmpezarRegresion();
    ASSERT_TRUE(Procesar("MC (CH) Y ALFA X"));
    const Matriz b = Almacenada("_BETA"), v = Almacenada("_COV");
    EXPECT_NEAR(EscalarDe("_FORLA"), Wald(v, b.col(0), 1), 1e-9 * EscalarDe("_FORLA"));
    ASSERT_TRUE(Procesar("MC (CH) Y 0.5 X"));
    const double bx = Almacenada("_BETA")(1), vx = Almacenada("_COV")(1, 1);
    EXPECT_NEAR(EscalarDe("_FORLA"), bx * bx / vx, 1e-9 * bx * bx / vx);
}

// Residuals that vanish leave a zero matrix, which the Wald statistic can't invert. The evaluator's box is the only
// one, and the temporaries stay.
TEST(ConsistenteBordes, ResiduosNulos) {
    for (const char *sentencia : {"MC (CH) DOBLE X", "MC (CA 2) DOBLE X"}) {
        SCOPED_TRACE(sentencia);
        EmpezarRegresion();
        ASSERT_TRUE(Procesar("SER DOBLE = X * 2"));
        EXPECT_FALSE(Procesar(sentencia));
        EXPECT_EQ(TextosDeCajas(), Textos{"Matriz singular. Pto 402"});
        EXPECT_EQ(Almacenada("_COV"), Matriz::Zero(1, 1));
        for (const char *m : {"_XIND", "_TMF5", "_S0", "_S9", "_S8"}) EXPECT_GE(BuscarMatriz(m), 0) << m;
        // The next regression is none the worse for them.
        ASSERT_TRUE(Procesar("MC Y 1 X"));
        for (const char *m : {"_XIND", "_TMF5", "_S0", "_S9", "_S8"}) EXPECT_EQ(BuscarMatriz(m), -1) << m;
    }
}

struct OcupadoConsistente {
    const char *nombre, *sentencia;
};

// A name that is taken stops the block with the evaluator's box alone, and nothing is deleted.
TEST(ConsistenteBordes, NombresOcupados) {
    static constexpr OcupadoConsistente Casos[] = {
        {"_S2", "MC (CH) Y 1 X"},   {"_S3", "MC (CH) Y 1 X"},   {"_TMS2", "MC (CH) Y 1 X"},
        {"_TMS3", "MC (CH) Y 1 X"}, {"_S5", "MC (CH) Y 1 X"},   {"_S0", "MC (CH) Y 1 X"},
        {"_S9", "MC (CH) Y 1 X"},   {"_S8", "MC (CA 1) Y 1 X"}, {"_S7", "MC (CA 1) Y 1 X"},
        {"_COV", "MC (CH) Y 1 X"},
    };
    for (const auto &c : Casos) {
        SCOPED_TRACE(c.nombre);
        EmpezarRegresion();
        PonerSerie(c.nombre, {1.0});
        EXPECT_FALSE(Procesar(c.sentencia));
        EXPECT_EQ(TextosDeCajas(), Textos{"Nombre matriz no válido. Pto 28"});
        EXPECT_GE(BuscarMatriz("_XIND"), 0);
    }
}

// A residual whose square is no number any more: its text is no operand of the formula.
TEST(ConsistenteBordes, CuadradoSinNumero) {
    EmpezarRegresion();
    ASSERT_TRUE(Procesar("SER GRANDE = 10 ** 160 * Y"));
    EXPECT_FALSE(Procesar("MC (CH) GRANDE 1 X"));
    EXPECT_EQ(TextosDeCajas(), Textos{"Error en secuencia. Pto 55"});
    EmpezarRegresion();
    ASSERT_TRUE(Procesar("SER GRANDE = 10 ** 160 * Y"));
    EXPECT_FALSE(Procesar("MC (CA 2) GRANDE 1 X"));
    EXPECT_EQ(TextosDeCajas(), Textos{"Error en secuencia. Pto 55"});
}

// ----- The other regressions inherit the kind of covariance

TEST(ConsistenteHeredada, LosResiduosYElEstadisticoSonDelUltimoMC) {
    EmpezarRegresion();
    ASSERT_TRUE(Procesar("MC (CH) Y 1 X Z"));
    const double wald = EscalarDe("_FORLA");
    const Eigen::VectorXd e = Columna("_RES");
    ASSERT_TRUE(Procesar("MGN Z 1 X"));
    const Matriz x = Regresores(true).leftCols(2), inversa = (x.transpose() * x).inverse();
    Matriz centro = Matriz::Zero(2, 2);
    for (Eigen::Index t = 0; t < 20; ++t) centro += e(t) * e(t) * x.row(t).transpose() * x.row(t);
    const Matriz v = inversa * centro * inversa;
    EXPECT_LT((Almacenada("_COVGN") - v).cwiseAbs().maxCoeff(), 1e-8 * v.cwiseAbs().maxCoeff());
    // The coefficients and the covariance of the statistic are the MC's, the divisor is of the present regression.
    EXPECT_NEAR(EscalarDe("_FORLAGN"), wald * 2, 1e-9 * wald);
}

TEST(ConsistenteHeredada, SinLosResiduosNoSigue) {
    EmpezarRegresion();
    ASSERT_TRUE(Procesar("MC (CH) Y 1 X Z"));
    EliminarSerie(BuscarSerie("_RES"));
    EXPECT_FALSE(Procesar("MGN Y 1 X"));
    EXPECT_EQ(TextosDeCajas(), Textos{"Secuencia no válida. Pto 6528"});
    EXPECT_EQ(BuscarMatriz("_XIND"), -1);
}
