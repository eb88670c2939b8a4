// The inverse of a small matrix.
#include "matrix/evaluacion.h"

#include "matrix/inversa.h"

#include "matrix/doble_doble.h"

#include <boost/multiprecision/cpp_bin_float.hpp>

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

// ----- Digits

using Exacto = boost::multiprecision::cpp_bin_float_100;

// Gauss and Jordan with 100 digits.
std::vector<double> InversaExacta(const std::vector<double> &A, int n) {
    std::vector<std::vector<Exacto>> t(static_cast<std::size_t>(n));
    const auto N = static_cast<std::size_t>(n);
    for (std::size_t i = 0; i < N; ++i) {
        t[i].assign(2 * N, Exacto(0));
        for (std::size_t j = 0; j < N; ++j) t[i][j] = A[i * N + j];
        t[i][N + i] = 1;
    }
    for (std::size_t c = 0; c < N; ++c) {
        std::size_t mayor = c;
        for (std::size_t f = c; f < N; ++f)
            if (abs(t[f][c]) > abs(t[mayor][c])) mayor = f;
        std::swap(t[c], t[mayor]);
        const Exacto pivote = t[c][c];
        for (Exacto &x : t[c]) x /= pivote;
        for (std::size_t f = 0; f < N; ++f) {
            if (f == c) continue;
            const Exacto factor = t[f][c];
            for (std::size_t j = 0; j < 2 * N; ++j) t[f][j] -= factor * t[c][j];
        }
    }
    std::vector<double> inversa;
    for (std::size_t i = 0; i < N; ++i)
        for (std::size_t j = 0; j < N; ++j) inversa.push_back(static_cast<double>(t[i][N + j]));
    return inversa;
}

// Moments of 1, x, ..., x to the power n - 1 over x = 0 to 20: a condition of 1e13 for n = 6.
std::vector<double> Momentos(int n) {
    std::vector<double> A(static_cast<std::size_t>(n * n));
    for (int x = 0; x <= 20; ++x)
        for (int i = 0; i < n; ++i)
            for (int j = 0; j < n; ++j) A[static_cast<std::size_t>(i * n + j)] += std::pow(x, i + j);
    return A;
}

// Every element is the double next to the true one, or its neighbour.
void EsperarInversaExacta(const std::vector<double> &A, int n) {
    std::vector<double> inversa(A.size());
    ASSERT_EQ(InvertirMatriz(A.data(), n, inversa.data(), nullptr), 1);
    const std::vector<double> exacta = InversaExacta(A, n);
    for (std::size_t i = 0; i < exacta.size(); ++i) {
        const double vecino = std::nextafter(std::fabs(exacta[i]), INFINITY) - std::fabs(exacta[i]);
        EXPECT_NEAR(inversa[i], exacta[i], vecino) << n << ": " << i;
    }
}

TEST(Inversa, TieneTodosLosDigitosQueUnDobleGuarda) {
    EmpezarPrueba();
    for (int n = 1; n <= 6; ++n) EsperarInversaExacta(Momentos(n), n);
    std::mt19937 azar(11);
    std::uniform_real_distribution<double> elemento(-10.0, 10.0);
    for (int n = 2; n <= 17; n += 3) {
        std::vector<double> a(static_cast<std::size_t>(n * n));
        for (double &x : a) x = elemento(azar);
        EsperarInversaExacta(a, n);
    }
}

// ----- Verdicts

// The same elimination in doubles. True when it finds the matrix singular.
bool SingularEnDobles(std::vector<double> A, int n) {
    const auto a = [&](int i, int j) -> double & { return A[static_cast<std::size_t>(i * n + j)]; };
    std::vector<double> escala;
    for (int i = 0; i < n; ++i) {
        double mayor = 0;
        for (int j = 0; j < n; ++j) mayor = std::max(mayor, std::fabs(a(i, j)));
        if (mayor < 1e-5) return true;
        escala.push_back(1 / mayor);
    }
    for (int j = 0; j < n; ++j) {
        int pivote = j;
        double mayor = 0;
        for (int i = 0; i < n; ++i) {
            for (int k = 0; k < std::min(i, j); ++k) a(i, j) -= a(i, k) * a(k, j);
            const double talla = escala[static_cast<std::size_t>(i)] * std::fabs(a(i, j));
            if (i >= j && mayor <= talla) {
                mayor = talla;
                pivote = i;
            }
        }
        for (int k = 0; k < n; ++k) std::swap(a(pivote, k), a(j, k));
        escala[static_cast<std::size_t>(pivote)] = escala[static_cast<std::size_t>(j)];
        if (std::fabs(a(j, j)) < 1e-5) return true;
        for (int i = j + 1; i < n; ++i) a(i, j) /= a(j, j);
    }
    return false;
}

TEST(Inversa, LosVeredictosJuntoALaToleranciaSonLosDeSiempre) {
    EmpezarPrueba();
    std::mt19937 azar(3);
    std::uniform_real_distribution<double> elemento(-3.0, 3.0);
    int singulares = 0, regulares = 0;
    for (int n = 2; n <= 6; ++n)
        for (const double cerca : {0.5, 0.99, 0.999999, 1.000001, 1.01, 2.0})
            for (int forma = 0; forma < 4; ++forma) {
                std::vector<double> a(static_cast<std::size_t>(n * n));
                const auto en = [&](int i, int j) -> double & {
                    return a[static_cast<std::size_t>(i * n + j)];
                };
                for (int i = 0; i < n; ++i)
                    for (int j = 0; j <= i; ++j) en(i, j) = en(j, i) = elemento(azar);
                const double medida = cerca * 1e-5;
                for (int j = 0; j < n; ++j) {
                    if (forma == 0) en(n - 1, j) = j == n - 1 ? medida : 0.0;    // a small row
                    if (forma == 1) en(n - 1, j) = en(0, j) + (j == 0) * medida; // almost a row twice
                    if (forma == 2) en(n - 1, j) = en(0, j) - 2 * en(1, j) + (j == n - 1) * medida;
                    if (forma == 3) en(j, n - 1) = en(j, 0) + (j == 1) * medida; // almost a column twice
                }
                std::vector<double> inversa(a.size());
                const int r = InvertirMatriz(a.data(), n, inversa.data(), nullptr);
                const bool singular = SingularEnDobles(a, n);
                EXPECT_EQ(r, singular ? 2 : 1) << n << " " << cerca << " " << forma;
                (singular ? singulares : regulares)++;
            }
    EXPECT_GT(singulares, 20);
    EXPECT_GT(regulares, 20);
}

// ----- The arithmetic below

TEST(DobleDoble, OperacionesContraCienDigitos) {
    std::mt19937 azar(17);
    std::uniform_real_distribution<double> mantisa(-1.0, 1.0);
    const auto numero = [&] {
        const double alto = mantisa(azar) * std::pow(10.0, static_cast<double>(azar() % 20) - 10.0);
        return SumaExacta(alto, alto * 1e-17 * mantisa(azar));
    };
    const auto exacto = [](const DobleDoble &x) { return Exacto(x.alto) + x.bajo; };
    for (int vez = 0; vez < 2000; ++vez) {
        const DobleDoble x = numero(), y = numero(), z = numero();
        const DobleDoble suma = SumaExacta(x.alto, y.alto), producto = ProductoExacto(x.alto, y.alto);
        EXPECT_EQ(exacto(suma), Exacto(x.alto) + y.alto);
        EXPECT_EQ(exacto(producto), Exacto(x.alto) * y.alto);
        const Exacto p = exacto(x) * exacto(y), q = exacto(x) / exacto(y), r = exacto(z) - p;
        EXPECT_LE(abs(exacto(Producto(x, y)) - p), abs(p) * 1e-31);
        EXPECT_LE(abs(exacto(Cociente(x, y)) - q), abs(q) * 1e-30);
        EXPECT_LE(abs(exacto(RestarProducto(z, x, y)) - r), (abs(p) + abs(exacto(z))) * 1e-31);
    }
}

TEST(DobleDoble, LoQueNoCabeEsInfinitoYNoOtraCosa) {
    const DobleDoble grande = {1e300, 0.0}, uno = {1.0, 0.0};
    EXPECT_EQ(Producto(grande, grande).alto, INFINITY);
    EXPECT_EQ(Producto(grande, uno).alto, 1e300);
    EXPECT_EQ(SumaExacta(1e308, 1e308).alto, INFINITY);
    EXPECT_EQ(SumaExacta(INFINITY, 1.0).bajo, 0.0);
    EXPECT_EQ(Cociente(uno, {0.0, 0.0}).alto, INFINITY);
    EXPECT_EQ(ProductoExacto(6e307, 1.0).alto, 6e307); // its halves overflow, the product does not
    EXPECT_EQ(ProductoExacto(6e307, 1.0).bajo, 0.0);
}

} // namespace
