// The inverse of a small matrix.
#include "matrix/evaluacion.h"

#include "matrix/inversa.h"

#include <limits>
#include <random>

namespace {

struct CasoInversa {
    const char *que;
    int n;
    std::vector<double> A;
    int resultado;
    std::vector<double> esperada; // when resultado is 1
};

const std::vector<CasoInversa> Casos = {
    {"one element", 1, {4}, 1, {0.25}},
    {"two by two", 2, {1, 2, 3, 4}, 1, {-2, 1, 1.5, -0.5}},
    {"a zero pivot asks for a swap", 2, {0, 1, 1, 0}, 1, {0, 1, 1, 0}},
    {"a cycle of rows", 3, {0, 1, 0, 0, 0, 1, 1, 0, 0}, 1, {0, 0, 1, 1, 0, 0, 0, 1, 0}},
    {"Hilbert's of order 3",
     3,
     {1, 1 / 2., 1 / 3., 1 / 2., 1 / 3., 1 / 4., 1 / 3., 1 / 4., 1 / 5.},
     1,
     {9, -36, 30, -36, 192, -180, 30, -180, 180}},
    {"proportional rows", 2, {1, 2, 2, 4}, 2, {}},
    {"a row of zeros", 2, {1, 2, 0, 0}, 2, {}},
    {"a row that is too small, though the matrix is regular", 2, {1, 0, 0, 9e-6}, 2, {}},
    {"the same, just large enough", 2, {1, 0, 0, 1.1e-5}, 1, {1, 0, 0, 1 / 1.1e-5}},
    {"the same matrix on a larger scale", 2, {1000, 0, 0, 9e-3}, 1, {1e-3, 0, 0, 1 / 9e-3}},
    {"a pivot that is too small", 2, {1, 1, 1, 1.000001}, 2, {}},
    {"no order", 0, {}, 0, {}},
    {"what is no number", 2, {std::numeric_limits<double>::quiet_NaN(), 1, 1, 1}, -1, {}},
    {"infinities",
     2,
     {std::numeric_limits<double>::infinity(), 1, 1, -std::numeric_limits<double>::infinity()},
     -1,
     {}},
};

TEST(Inversa, Casos) {
    EmpezarPrueba();
    for (const CasoInversa &c : Casos) {
        SCOPED_TRACE(c.que);
        std::vector<double> inversa(c.A.size() + 1);
        const int r = InvertirMatriz(c.A.data(), c.n, inversa.data(), nullptr);
        if (c.resultado >= 0) {
            EXPECT_EQ(r, c.resultado);
        }
        for (std::size_t i = 0; i < c.esperada.size(); ++i)
            EXPECT_NEAR(inversa[i], c.esperada[i], 1e-11 * (1 + std::fabs(c.esperada[i])));
    }
    EXPECT_TRUE(Prueba.cajas.empty());
}

TEST(Inversa, DiecisieteSiDieciochoNo) {
    EmpezarPrueba();
    const MatrizVista m17 = Identidad(17), m18 = Identidad(18);
    std::vector<double> inversa(18 * 18, -5.0);
    EXPECT_EQ(InvertirMatriz(m17.datos.data(), 17, inversa.data(), nullptr), 1);
    EXPECT_EQ(std::vector<double>(inversa.begin(), inversa.begin() + 17 * 17), m17.datos);
    EXPECT_EQ(InvertirMatriz(m18.datos.data(), 18, inversa.data(), nullptr), 0);
    EXPECT_EQ(InvertirMatriz(m18.datos.data(), 4000, inversa.data(), nullptr), 0);
    const CajaVista caja = {"Proceso Cancelado", "Demasiados regresores", IconoInformacion, BotonesAceptar};
    EXPECT_EQ(Prueba.cajas, (std::vector<CajaVista>{caja, caja}));
}

TEST(Inversa, PorSuMatrizDaLaIdentidad) {
    EmpezarPrueba();
    std::mt19937 azar(5);
    std::uniform_real_distribution<double> elemento(-10.0, 10.0);
    for (int n = 1; n <= 17; ++n) {
        SCOPED_TRACE(n);
        std::vector<double> a(static_cast<std::size_t>(n * n)), inversa(a.size());
        for (double &x : a) x = elemento(azar);
        ASSERT_EQ(InvertirMatriz(a.data(), n, inversa.data(), nullptr), 1);
        for (int i = 0; i < n; ++i)
            for (int j = 0; j < n; ++j) {
                double suma = 0.0;
                for (int k = 0; k < n; ++k)
                    suma +=
                        a[static_cast<std::size_t>(i * n + k)] * inversa[static_cast<std::size_t>(k * n + j)];
                EXPECT_NEAR(suma, i == j ? 1.0 : 0.0, 1e-9);
            }
    }
}

} // namespace
