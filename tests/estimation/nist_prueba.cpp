// The linear regression sets of NIST's Statistical Reference Datasets (public domain), from their files as published: the
// digits that the certified coefficients and standard errors agree in are lower bounds.
#include "apoyo/datos_regresion.h"
#include "store/temporales.h"

#include <Eigen/Dense>
#include <cmath>
#include <fstream>
#include <sstream>

namespace {

struct ConjuntoNist {
    std::vector<double> coeficientes, desviaciones; // certified
    std::vector<std::vector<double>> columnas;      // y, then the regressors of the file
};

// The head names its parameters one a line ("B1  1.00211681802045  0.4297E-03"); the data begin behind the last line that
// says "Data:".
ConjuntoNist LeerNist(const std::string &nombre) {
    ConjuntoNist c;
    std::ifstream archivo(std::string(TABIRA_NIST) + "/" + nombre + ".dat");
    bool enDatos = false;
    for (std::string linea; std::getline(archivo, linea);) {
        if (linea.rfind("Data:", 0) == 0) {
            enDatos = linea.find(" y ") != std::string::npos;
            continue;
        }
        std::istringstream palabras(linea);
        if (!enDatos) {
            std::string parametro;
            double valor = 0, desviacion = 0;
            if (palabras >> parametro >> valor >> desviacion && parametro[0] == 'B') {
                c.coeficientes.push_back(valor);
                c.desviaciones.push_back(desviacion);
            }
            continue;
        }
        double x = 0;
        for (std::size_t j = 0; palabras >> x; ++j) {
            if (c.columnas.size() <= j) c.columnas.emplace_back();
            c.columnas[j].push_back(x);
        }
    }
    return c;
}

// Decimal digits in which a value agrees with the certified one, at most 15.
double Digitos(double valor, double certificado) {
    const double error = std::fabs(valor - certificado) / (certificado != 0.0 ? std::fabs(certificado) : 1.0);
    return error == 0.0 ? 15.0 : std::min(-std::log10(error), 15.0);
}

double MenosDigitos(const std::vector<double> &valores, std::size_t desde,
                    const std::vector<double> &ciertos) {
    double menos = 15.0;
    for (std::size_t i = 0; i < ciertos.size(); ++i)
        menos = std::min(menos, Digitos(valores.at(desde + i), ciertos[i]));
    return menos;
}

struct CasoNist {
    const char *nombre;
    const char *sentencias;                          // Y and X, or Y and X1 to X6, are there
    double digitosCoeficientes, digitosDesviaciones; // at least; 0 where the true standard error is 0
};

constexpr const char *Grado5 = "SER X2 = X * X\nSER X3 = X2 * X\nSER X4 = X3 * X\nSER X5 = X4 * X\n"
                               "MC Y 1 X X2 X3 X4 X5";

constexpr CasoNist Casos[] = {
    {"Norris", "MC Y 1 X", 13.0, 13.0},
    {"NoInt1", "MC Y X", 14.0, 14.0},
    {"NoInt2", "MC Y X", 14.0, 14.0},
    {"Pontius", "SER X2 = X * X\nMC Y 1 X X2", 11.0, 13.0},
    // From here on the bounds are what X'X and X'y hold once they are rounded to doubles: their exact inverse, rounded, and the
    // product from left to right agree with the certified values in no more digits.
    {"Longley", "MC Y 1 X1 X2 X3 X4 X5 X6", 8.3, 10.0},
    {"Wampler1", Grado5, 6.6, 0.0},
    {"Wampler2", Grado5, 9.2, 0.0},
    {"Wampler3", Grado5, 6.6, 14.0},
    {"Wampler4", Grado5, 6.6, 14.0},
    {"Wampler5", Grado5, 6.6, 14.0},
};

void CargarNist(const ConjuntoNist &c) {
    EmpezarConDatos(TipoSinPeriodicidad, "");
    PonerSerie("Y", c.columnas.at(0));
    for (std::size_t j = 1; j < c.columnas.size(); ++j)
        PonerSerie(c.columnas.size() == 2 ? "X" : "X" + std::to_string(j), c.columnas[j]);
    Lote.VerRegresion = 0;
}

} // namespace

class Nist : public ::testing::TestWithParam<CasoNist> {};

TEST_P(Nist, LosDigitosQueLosDatosTienen) {
    const CasoNist &caso = GetParam();
    const ConjuntoNist c = LeerNist(caso.nombre);
    ASSERT_GE(c.columnas.size(), 2u);
    CargarNist(c);
    ASSERT_TRUE(Procesar(caso.sentencias));
    int filas = 0, columnas = 0;
    const std::vector<double> beta = MatrizDe("_BETA", filas, columnas);
    ASSERT_EQ(beta.size(), c.coeficientes.size());
    const double coeficientes = MenosDigitos(beta, 0, c.coeficientes);
    const double desviaciones =
        MenosDigitos(ValoresDe("_DTE2", static_cast<int>(beta.size())), 0, c.desviaciones);
    EXPECT_GE(coeficientes, caso.digitosCoeficientes);
    if (caso.digitosDesviaciones > 0.0) {
        EXPECT_GE(desviaciones, caso.digitosDesviaciones);
    }
}

INSTANTIATE_TEST_SUITE_P(Conjuntos, Nist, ::testing::ValuesIn(Casos),
                         [](const auto &caso) { return std::string(caso.param.nombre); });

// A polynomial of degree 10 whose moments reach from 82 to 1e17: their matrix, rounded to doubles, no longer holds the
// data's digits, and whatever inverts it answers for that matrix. The program inverts it and does not stop.
TEST(NistFilip, LaMatrizDeMomentosNoTieneYaSusDigitos) {
    const ConjuntoNist c = LeerNist("Filip");
    ASSERT_EQ(c.columnas.size(), 2u);
    CargarNist(c);
    std::string sentencias = "SER X2 = X * X\n";
    std::string regresores = "MC Y 1 X X2";
    for (int g = 3; g <= 10; ++g) {
        sentencias += "SER X" + std::to_string(g) + " = X" + std::to_string(g - 1) + " * X\n";
        regresores += " X" + std::to_string(g);
    }
    ASSERT_TRUE(Procesar(sentencias + regresores));
    EXPECT_TRUE(Prueba.cajas.empty());
    int filas = 0, columnas = 0;
    const std::vector<double> beta = MatrizDe("_BETA", filas, columnas);
    ASSERT_EQ(beta.size(), 11u);
    for (const double b : beta) EXPECT_TRUE(std::isfinite(b));
    EXPECT_LT(MenosDigitos(beta, 0, c.coeficientes), 2.0);
    // The residuals are far above the certified standard deviation of 0.00335: the answer is none.
    EXPECT_GT(EscalarDe("_DTR"), 2 * 0.00334801051324544);
}

// Longley's data weighted by the reciprocal of their second column, against an orthogonal decomposition in long double. The
// weight keeps the moments of the constant above what counts as zero. Products of weighted data are no whole numbers, so
// that the moments of all six columns hold fewer digits than those of the data as they are; two columns lose none.
TEST(NistLongley, Ponderada) {
    using Real = long double;
    const struct {
        const char *sentencia;
        std::vector<std::size_t> columnas; // of the data
        double digitosCoeficientes, digitosDesviaciones;
        double tolerancia; // of residuals of some hundreds, of a dependent of some 65,000
    } casos[] = {
        {"MCP (300000 / X2) Y 1 X1 X2 X3 X4 X5 X6", {1, 2, 3, 4, 5, 6}, 6.0, 7.5, 0.05},
        {"MCP (300000 / X2) Y 1 X2 X3", {2, 3}, 9.0, 9.0, 1e-7},
    };
    for (const auto &caso : casos) {
        SCOPED_TRACE(caso.sentencia);
        const ConjuntoNist c = LeerNist("Longley");
        CargarNist(c);
        ASSERT_TRUE(Procesar(caso.sentencia));
        const auto n = 16, k = static_cast<int>(caso.columnas.size()) + 1;
        Eigen::Matrix<Real, Eigen::Dynamic, Eigen::Dynamic> x(n, k);
        Eigen::Matrix<Real, Eigen::Dynamic, 1> y(n);
        for (int i = 0; i < n; ++i) {
            const std::size_t fila = static_cast<std::size_t>(i);
            const Real peso = 300000.0 / c.columnas.at(2)[fila];
            x(i, 0) = peso;
            for (int j = 1; j < k; ++j)
                x(i, j) = peso * c.columnas[caso.columnas[static_cast<std::size_t>(j - 1)]][fila];
            y(i) = peso * c.columnas[0][fila];
        }
        const Eigen::Matrix<Real, Eigen::Dynamic, 1> exactos = x.colPivHouseholderQr().solve(y);
        const Real scr = (y - x * exactos).squaredNorm();
        const auto inversa = (x.transpose() * x).inverse().eval();
        std::vector<double> coeficientes, desviaciones;
        for (int j = 0; j < k; ++j) {
            coeficientes.push_back(static_cast<double>(exactos(j)));
            desviaciones.push_back(static_cast<double>(std::sqrt(scr / (n - k) * inversa(j, j))));
        }
        int filas = 0, columnas = 0;
        EXPECT_GE(MenosDigitos(MatrizDe("_BETA", filas, columnas), 0, coeficientes),
                  caso.digitosCoeficientes);
        EXPECT_GE(MenosDigitos(ValoresDe("_DTE2", k), 0, desviaciones), caso.digitosDesviaciones);
        const std::vector<double> resn = ValoresDe("_RESN", n);
        for (std::size_t i = 0; i < resn.size(); ++i) {
            double ajustado = coeficientes[0];
            for (std::size_t j = 1; j < coeficientes.size(); ++j)
                ajustado += coeficientes[j] * c.columnas[caso.columnas[j - 1]][i];
            EXPECT_NEAR(resn[i], c.columnas[0][i] - ajustado, caso.tolerancia) << i;
        }
    }
}
