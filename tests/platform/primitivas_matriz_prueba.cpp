// Matrix primitives.
#include "platform/primitivas_matriz.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <random>
#include <vector>

namespace {

using Datos = std::vector<double>;

Datos AlAzar(int n, unsigned semilla) {
    std::mt19937 azar(semilla);
    std::uniform_real_distribution<double> elemento(-1.0, 1.0);
    Datos d(static_cast<std::size_t>(n));
    for (double &x : d) x = elemento(azar) * std::pow(10.0, static_cast<double>(azar() % 12));
    return d;
}

// The definition: each element by itself, its products from left to right, begun with 0.0.
Datos Producto(const Datos &a, const Datos &b, int filas, int n, int columnas) {
    Datos c;
    for (int i = 0; i < filas; ++i)
        for (int j = 0; j < columnas; ++j) {
            double suma = 0.0;
            for (int k = 0; k < n; ++k) {
                const double producto =
                    a[static_cast<std::size_t>(i * n + k)] * b[static_cast<std::size_t>(k * columnas + j)];
                suma += producto;
            }
            c.push_back(suma);
        }
    return c;
}

TEST(PrimitivasMatriz, ElProductoSumaEnSuOrdenHastaElUltimoBit) {
    static constexpr int casos[][3] = {{1, 1, 1},     {2, 3, 4},   {10, 1, 10}, {1, 10, 1},    {17, 17, 17},
                                       {5, 100, 1},   {6, 7, 1},   {3, 1, 3},   {4000, 10, 1}, {10, 50, 9},
                                       {199, 2, 201}, {1, 40, 33}, {7, 13, 1},  {100, 3, 100}};
    for (const auto &[filas, n, columnas] : casos) {
        SCOPED_TRACE(testing::Message() << filas << " x " << n << " x " << columnas);
        const Datos a = AlAzar(filas * n, 1), b = AlAzar(n * columnas, 2);
        Datos c(static_cast<std::size_t>(filas * columnas), 77.0);
        MultiplicarMatrices(a.data(), b.data(), filas, n, columnas, c.data());
        const Datos esperado = Producto(a, b, filas, n, columnas);
        EXPECT_EQ(std::memcmp(c.data(), esperado.data(), c.size() * sizeof(double)), 0);
    }
}

TEST(PrimitivasMatriz, UnaSumaNuncaEmpiezaEnMenosCero) {
    for (const int columnas : {1, 2}) {
        const Datos a = {-0.0}, b = {1.0, 1.0};
        Datos c(2, 5.0);
        MultiplicarMatrices(a.data(), b.data(), 1, 1, columnas, c.data());
        EXPECT_FALSE(std::signbit(c[0]));
    }
}

TEST(PrimitivasMatriz, LoQueNoEsNumeroPasaAlProducto) {
    const Datos a = {0.0, 1.0}, b = {std::numeric_limits<double>::infinity(), 1.0, 2.0, 3.0};
    Datos c(2);
    MultiplicarMatrices(a.data(), b.data(), 1, 2, 2, c.data());
    EXPECT_TRUE(std::isnan(c[0]));
    EXPECT_EQ(c[1], 3.0);
}

TEST(PrimitivasMatriz, EscalarSumaYTraspuesta) {
    const Datos a = {1, 2, 3, 4, 5, 6}, b = {10, 20, 30, 40, 50, 60};
    Datos c(6);
    EscalarPorMatriz(a.data(), -0.5, 2, 3, c.data());
    EXPECT_EQ(c, (Datos{-0.5, -1, -1.5, -2, -2.5, -3}));
    SumarMatrices(a.data(), b.data(), 2, 3, c.data());
    EXPECT_EQ(c, (Datos{11, 22, 33, 44, 55, 66}));
    TrasponerMatriz(a.data(), 2, 3, c.data());
    EXPECT_EQ(c, (Datos{1, 4, 2, 5, 3, 6}));
    TrasponerMatriz(a.data(), 6, 1, c.data());
    EXPECT_EQ(c, a);
}

TEST(PrimitivasMatriz, Determinante) {
    static const struct {
        int orden;
        Datos datos;
        double esperado;
    } casos[] = {
        {0, {}, 0},
        {1, {-3}, -3},
        {2, {1, 2, 3, 4}, -2},
        {2, {0, 1, 1, 0}, -1},
        {2, {1, 2, 2, 4}, 0},
        {3, {2, 0, 0, 0, 3, 0, 0, 0, 4}, 24},
        {3, {0, 1, 0, 0, 0, 1, 1, 0, 0}, 1},
        {3, {1, 1 / 2., 1 / 3., 1 / 2., 1 / 3., 1 / 4., 1 / 3., 1 / 4., 1 / 5.}, 1 / 2160.},
    };
    for (const auto &c : casos)
        EXPECT_NEAR(Determinante(c.datos.data(), c.orden), c.esperado, 1e-14) << c.orden;
    Datos grande(200 * 200);
    for (std::size_t i = 0; i < 200; ++i) grande[i * 201] = i % 2 == 0 ? 2.0 : 0.5;
    EXPECT_NEAR(Determinante(grande.data(), 200), 1.0, 1e-12);
}

} // namespace
