// Differences and autocorrelations, against published tables and against another way to the same numbers.
#include "platform/diferencias_autocorrelacion.h"

#include <Eigen/Dense>
#include <cmath>
#include <fstream>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>

namespace {

using Datos = std::vector<double>;

constexpr double Sin = -77.0; // what the arrays hold before a call

// G. E. P. Box and G. M. Jenkins (1970), series F: yields of a batch chemical process.
const Datos SerieF = {47, 64, 23, 71, 38, 64, 55, 41, 59, 48, 71, 35, 57, 40, 58, 44, 80, 55,
                      37, 74, 51, 57, 50, 60, 45, 57, 50, 45, 25, 59, 50, 71, 56, 74, 50, 58,
                      45, 54, 36, 54, 48, 55, 45, 57, 50, 62, 44, 64, 43, 52, 38, 59, 55, 41,
                      53, 49, 34, 35, 54, 45, 68, 38, 50, 60, 39, 59, 40, 57, 54, 23};

Datos Nilo() {
    std::ifstream entrada(TABIRA_DATOS "/nilo.csv");
    std::string codigo;
    std::getline(entrada, codigo);
    Datos d;
    for (double x; entrada >> x;) d.push_back(x);
    return d;
}

// An autoregression of order two, the same for the same seed.
Datos Autorregresion(int n, unsigned semilla) {
    std::mt19937 azar(semilla);
    std::normal_distribution<double> ruido;
    Datos d = {ruido(azar), ruido(azar)};
    while (d.size() < static_cast<std::size_t>(n))
        d.push_back(20.0 + 0.7 * d[d.size() - 1] - 0.4 * d[d.size() - 2] + ruido(azar));
    return d;
}

struct Autocorrelaciones {
    Datos R;
    double XM = Sin, XV = Sin, STAT = Sin;
    int IFAIL = 0;
};

Autocorrelaciones DeSerie(const Datos &x, int lags, std::size_t sitio = 500) {
    Autocorrelaciones a;
    a.R.assign(sitio, Sin);
    G13ABF(x.data(), static_cast<int>(x.size()), lags, a.XM, a.XV, a.R.data(), a.STAT, a.IFAIL);
    return a;
}

struct Parciales {
    Datos P, V, AR;
    int NVL = -1, IFAIL = 0;
};

Parciales DeAutocorrelaciones(const Datos &R, int nk, int nl) {
    Parciales p;
    p.P.assign(500, Sin);
    p.V.assign(500, Sin);
    p.AR.assign(500, Sin);
    G13ACF(R.data(), nk, nl, p.P.data(), p.V.data(), p.AR.data(), p.NVL, p.IFAIL);
    return p;
}

// The equations of Yule and Walker for l lags, solved as they stand: the last unknown is the partial coefficient.
Eigen::VectorXd YuleWalker(const Datos &R, int l) {
    Eigen::MatrixXd m(l, l);
    Eigen::VectorXd r(l);
    for (int i = 0; i < l; ++i) {
        r(i) = R[static_cast<std::size_t>(i)];
        for (int j = 0; j < l; ++j) m(i, j) = i == j ? 1.0 : R[static_cast<std::size_t>(std::abs(i - j)) - 1];
    }
    return m.fullPivLu().solve(r);
}

} // namespace

// ----- Differences

namespace {

struct CasoDiferencias {
    int ND, NDS, NS;
    Datos X, XD;
};

} // namespace

TEST(G13AAF, Valores) {
    const CasoDiferencias Casos[] = {
        {0, 0, 0, {3, 1, 4}, {3, 1, 4}},
        {1, 0, 0, {3, 1, 4, 1, 5}, {-2, 3, -3, 4}},
        {2, 0, 0, {3, 1, 4, 1, 5}, {5, -6, 7}},
        {4, 0, 0, {3, 1, 4, 1, 5}, {24}}, // 5 - 4*1 + 6*4 - 4*1 + 3
        {0, 1, 4, {1, 2, 3, 4, 11, 13, 15, 17, 31}, {10, 11, 12, 13, 20}},
        {0, 2, 4, {1, 2, 3, 4, 11, 13, 15, 17, 31}, {10}},
        {0, 2, 2, {1, 2, 3, 4, 11, 13, 15}, {6, 7, -4}},
        {1, 1, 4, {1, 2, 3, 4, 11, 13, 15, 17, 31}, {1, 1, 1, 7}},
        {0, 1, 1, {3, 1, 4}, {-2, 3}},
        {1, 0, 12, {3, 1, 4}, {-2, 3}}, // a period that nothing asks for
    };
    for (const CasoDiferencias &c : Casos) {
        SCOPED_TRACE(testing::Message() << c.ND << " " << c.NDS << " " << c.NS);
        Datos XD(c.X.size(), Sin);
        int NXD = -1, IFAIL = 9;
        G13AAF(c.X.data(), static_cast<int>(c.X.size()), c.ND, c.NDS, c.NS, XD.data(), NXD, IFAIL);
        EXPECT_EQ(IFAIL, 0);
        ASSERT_EQ(NXD, static_cast<int>(c.XD.size()));
        XD.resize(c.XD.size());
        EXPECT_EQ(XD, c.XD);
        Datos enSuSitio = c.X;
        G13AAF(enSuSitio.data(), static_cast<int>(c.X.size()), c.ND, c.NDS, c.NS, enSuSitio.data(), NXD,
               IFAIL);
        enSuSitio.resize(c.XD.size());
        EXPECT_EQ(enSuSitio, c.XD);
    }
}

TEST(G13AAF, ElDesarrolloDelPolinomio) {
    // (1 - B)(1 - B^12)^2 written out.
    const Datos x = Autorregresion(60, 5);
    Datos XD(x.size());
    int NXD = 0, IFAIL = 9;
    G13AAF(x.data(), 60, 1, 2, 12, XD.data(), NXD, IFAIL);
    ASSERT_EQ(IFAIL, 0);
    ASSERT_EQ(NXD, 35);
    for (std::size_t i = 0; i < 35; ++i)
        EXPECT_NEAR(XD[i], x[i + 25] - x[i + 24] - 2 * x[i + 13] + 2 * x[i + 12] + x[i + 1] - x[i], 1e-11)
            << i;
}

TEST(G13AAF, Fallos) {
    static constexpr struct {
        int NX, ND, NDS, NS, IFAIL;
    } Casos[] = {
        {5, -1, 0, 0, 1},
        {5, 0, -1, 4, 1},
        {5, 0, 0, -1, 1},
        {5, 0, 1, 0, 1},
        {5, 5, 0, 0, 2},
        {5, 1, 1, 4, 2},
        {5, 0, 1, 5, 2},
        {0, 0, 0, 0, 2},
        {5, 0, 1, 4, 0},
        {5, 4, 0, 0, 0},
        {5, 0, 0, 0, 0},
        {5, 2147483647, 0, 0, 2},
        {5, 2147483647, 2147483647, 2147483647, 2},
    };
    for (const auto &c : Casos) {
        SCOPED_TRACE(testing::Message() << c.NX << " " << c.ND << " " << c.NDS << " " << c.NS);
        const Datos x = {3, 1, 4, 1, 5};
        Datos XD(5, Sin);
        int NXD = -1, IFAIL = 9;
        G13AAF(x.data(), c.NX, c.ND, c.NDS, c.NS, XD.data(), NXD, IFAIL);
        EXPECT_EQ(IFAIL, c.IFAIL);
        EXPECT_EQ(NXD == 0, c.IFAIL != 0);
        EXPECT_EQ(XD[0] == Sin, c.IFAIL != 0);
    }
}

// ----- Autocorrelation

TEST(G13ABF, TablaPublicadaDeLaSerieF) {
    // Box and Jenkins, table 2.2, to two decimals.
    const Datos Publicadas = {-0.39, 0.30, -0.17, 0.07, -0.10, -0.05, 0.04, -0.04};
    ASSERT_EQ(SerieF.size(), 70u);
    const Autocorrelaciones a = DeSerie(SerieF, 15);
    EXPECT_EQ(a.IFAIL, 0);
    for (std::size_t k = 0; k < Publicadas.size(); ++k) EXPECT_NEAR(a.R[k], Publicadas[k], 0.00501) << k + 1;
    EXPECT_EQ(a.R[15], Sin) << "no lag more than asked for";
}

TEST(G13ABF, LaDefinicionEnDobleLargo) {
    for (const Datos &x :
         {Nilo(), Autorregresion(499, 1), Datos{2, 1}, Datos{1e9, 1e9 + 1, 1e9 + 5, 1e9 - 2}}) {
        const int n = static_cast<int>(x.size());
        const int lags = std::min(n - 1, 40);
        const Autocorrelaciones a = DeSerie(x, lags);
        ASSERT_EQ(a.IFAIL, 0);
        long double suma = 0, cuadrados = 0, estadistico = 0;
        for (const double v : x) suma += v;
        const long double media = suma / n;
        for (const double v : x) cuadrados += (v - media) * (v - media);
        EXPECT_NEAR(a.XM, static_cast<double>(media), std::fabs(a.XM) * 1e-13);
        EXPECT_NEAR(a.XV, static_cast<double>(cuadrados / (n - 1)), a.XV * 1e-9);
        for (int k = 1; k <= lags; ++k) {
            long double producto = 0;
            for (int i = k; i < n; ++i)
                producto +=
                    (x[static_cast<std::size_t>(i)] - media) * (x[static_cast<std::size_t>(i - k)] - media);
            EXPECT_NEAR(a.R[static_cast<std::size_t>(k) - 1], static_cast<double>(producto / cuadrados), 1e-9)
                << k;
            estadistico += producto / cuadrados * producto / cuadrados;
        }
        EXPECT_NEAR(a.STAT, static_cast<double>(estadistico * n), a.STAT * 1e-9);
    }
}

TEST(G13ABF, Fallos) {
    const struct {
        Datos X;
        int NK, IFAIL;
    } Casos[] = {
        {{1, 2, 4}, 0, 1},
        {{1, 2, 4}, -1, 1},
        {{1, 2, 4}, 3, 1},
        {{1, 2, 4}, 2, 0},
        {{1, 2, 4}, 1000000, 1},
        {{7, 7, 7}, 1, 2},
        {{0.1, 0.1, 0.1}, 1, 2},
        {{0, 0, 0, 0}, 2, 2},
        {{5}, 1, 1},
        {{1, NAN, 2}, 1, 2},
        {{0.1, 0.1, 0.1000001}, 1, 0},
    };
    for (const auto &c : Casos) {
        SCOPED_TRACE(testing::Message() << c.X.size() << " values, " << c.NK << " lags");
        const Autocorrelaciones a = DeSerie(c.X, c.NK);
        EXPECT_EQ(a.IFAIL, c.IFAIL);
        EXPECT_EQ(a.R[0] == Sin, c.IFAIL != 0);
        EXPECT_EQ(a.XM == Sin, c.IFAIL != 0);
        EXPECT_EQ(a.XV == Sin, c.IFAIL != 0);
        EXPECT_EQ(a.STAT == Sin, c.IFAIL != 0);
    }
}

// ----- Partial autocorrelation

TEST(G13ACF, TablaPublicadaDeLaSerieF) {
    // Box and Jenkins, table 3.1, to two decimals.
    const Datos Publicadas = {-0.39, 0.18, 0.00, -0.04, -0.07, -0.12, 0.02};
    const Parciales p = DeAutocorrelaciones(DeSerie(SerieF, 15).R, 15, 15);
    EXPECT_EQ(p.IFAIL, 0);
    EXPECT_EQ(p.NVL, 15);
    for (std::size_t k = 0; k < Publicadas.size(); ++k) EXPECT_NEAR(p.P[k], Publicadas[k], 0.00501) << k + 1;
    EXPECT_EQ(p.P[15], Sin);
    EXPECT_EQ(p.V[15], Sin);
    EXPECT_EQ(p.AR[15], Sin);
}

TEST(G13ACF, LasEcuacionesDeYuleYWalker) {
    for (const Datos &x : {Nilo(), Autorregresion(499, 2), Autorregresion(50, 3), SerieF}) {
        const Datos R = DeSerie(x, 30).R;
        for (const int lags : {1, 2, 3, 30}) {
            const Parciales p = DeAutocorrelaciones(R, 30, lags);
            ASSERT_EQ(p.IFAIL, 0);
            ASSERT_EQ(p.NVL, lags);
            double resto = 1.0;
            for (int l = 1; l <= lags; ++l) {
                const Eigen::VectorXd a = YuleWalker(R, l);
                const std::size_t i = static_cast<std::size_t>(l) - 1;
                EXPECT_NEAR(p.P[i], a(l - 1), 1e-12) << l;
                // The share of the variance that the autoregression leaves, by its own formula.
                resto = 1.0;
                for (int j = 0; j < l; ++j) resto -= a(j) * R[static_cast<std::size_t>(j)];
                EXPECT_NEAR(p.V[i], resto, 1e-12) << l;
            }
            const Eigen::VectorXd a = YuleWalker(R, lags);
            for (int j = 0; j < lags; ++j) EXPECT_NEAR(p.AR[static_cast<std::size_t>(j)], a(j), 1e-12) << j;
        }
    }
}

TEST(G13ACF, UnaAutorregresionSeCortaEnSuOrden) {
    // Of x(t) = 0.6 x(t-1) + e(t): r(k) = 0.6^k, and no lag but the first has a partial coefficient.
    Datos R;
    for (int k = 1; k <= 10; ++k) R.push_back(std::pow(0.6, k));
    const Parciales p = DeAutocorrelaciones(R, 10, 10);
    EXPECT_EQ(p.IFAIL, 0);
    EXPECT_NEAR(p.P[0], 0.6, 1e-15);
    for (std::size_t k = 1; k < 10; ++k) EXPECT_NEAR(p.P[k], 0.0, 1e-15) << k;
    EXPECT_NEAR(p.V[9], 0.64, 1e-15);
}

TEST(G13ACF, Fallos) {
    const struct {
        Datos R;
        int NK, NL, IFAIL, NVL;
    } Casos[] = {
        {{0.5, 0.2}, 2, 0, 1, 0},      {{0.5, 0.2}, 2, -1, 1, 0},     {{0.5, 0.2}, 2, 3, 1, 0},
        {{0.5, 0.2}, 0, 0, 1, 0},      {{0.5, 0.2}, 2, 2, 0, 2},      {{0.5, 0.2}, 2, 1, 0, 1},
        {{1.0, 0.2}, 2, 2, 2, 0}, // no series but one that repeats itself has it
        {{-1.0, 0.2}, 2, 2, 2, 0},     {{0.5, 1.0}, 2, 2, 2, 1}, // p(2) = 0.75 / 0.75
        {{0.5, -0.6}, 2, 2, 2, 1},     {{0.9, 0.1, 0.0}, 3, 3, 2, 1}, {{NAN, 0.2}, 2, 2, 2, 0},
        {{0.0, 0.0, 0.0}, 3, 3, 0, 3},
    };
    for (const auto &c : Casos) {
        SCOPED_TRACE(testing::Message() << c.R[0] << " " << c.R[1] << " " << c.NK << " " << c.NL);
        const Parciales p = DeAutocorrelaciones(c.R, c.NK, c.NL);
        EXPECT_EQ(p.IFAIL, c.IFAIL);
        EXPECT_EQ(p.NVL, c.NVL);
        for (std::size_t k = 0; k < 3; ++k) {
            EXPECT_EQ(p.P[k] == Sin, static_cast<int>(k) >= c.NVL) << k;
            EXPECT_EQ(p.V[k] == Sin, static_cast<int>(k) >= c.NVL) << k;
        }
    }
}
