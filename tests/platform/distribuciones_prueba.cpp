// Distribution functions.
#include "platform/distribuciones.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <limits>

namespace {

// The relative error, below 1e-12 throughout.
void EsperarRelativo(double valor, double esperado) {
    if (esperado == 0.0) {
        EXPECT_EQ(valor, 0.0);
    } else {
        EXPECT_NEAR(valor / esperado, 1.0, 1e-12) << valor << " instead of " << esperado;
    }
}

// Mills' ratio by Laplace's continued fraction: the upper tail at x is the density times it.
double ColaNormal(double x) {
    double fraccion = x;
    for (int k = 400; k >= 1; --k) fraccion = x + k / fraccion;
    return std::exp(-x * x / 2.0) / (2.506628274631000502 * fraccion);
}

TEST(Distribuciones, NormalAcumulada) {
    EXPECT_EQ(NormalAcumulada(0.0), 0.5);
    // Published: 1.96 and the quantiles of 95 and 99.5 percent.
    EXPECT_NEAR(NormalAcumulada(1.96), 0.9750021048517795, 1e-15);
    EXPECT_NEAR(NormalAcumulada(1.6448536269514722), 0.95, 1e-15);
    EXPECT_NEAR(NormalAcumulada(-2.5758293035489004), 0.005, 1e-16);
    for (const double x : {3.0, 4.0, 6.5, 10.0, 20.0, 30.0, 36.0}) {
        SCOPED_TRACE(x);
        EsperarRelativo(NormalAcumulada(-x), ColaNormal(x));
        EXPECT_NEAR(NormalAcumulada(x), 1.0 - ColaNormal(x), 1e-15);
    }
    EXPECT_EQ(NormalAcumulada(-40.0), 0.0);
    EXPECT_EQ(NormalAcumulada(40.0), 1.0);
    EXPECT_EQ(NormalAcumulada(std::numeric_limits<double>::infinity()), 1.0);
    EXPECT_EQ(NormalAcumulada(-std::numeric_limits<double>::infinity()), 0.0);
    EXPECT_EQ(NormalAcumulada(std::numeric_limits<double>::quiet_NaN()), 0.0);
}

TEST(Distribuciones, BetaIncompletaEnFormaCerrada) {
    for (const double x : {0.0, 1e-12, 0.01, 0.3, 0.5, 0.75, 1.0}) {
        SCOPED_TRACE(x);
        EsperarRelativo(BetaIncompleta(1, 1, x), x);
        EsperarRelativo(BetaIncompleta(3, 1, x), x * x * x);
        EsperarRelativo(BetaIncompleta(1, 4, x), -std::expm1(4.0 * std::log1p(-x)));
        EsperarRelativo(BetaIncompleta(2, 2, x), x * x * (3.0 - 2.0 * x));
        EsperarRelativo(BetaIncompleta(0.5, 0.5, x), std::asin(std::sqrt(x)) * 2.0 / M_PI);
    }
    EsperarRelativo(BetaIncompleta(200, 1, 0.001), 0.0);
    EsperarRelativo(BetaIncompleta(50, 1, 0.001), 1e-150);
}

TEST(Distribuciones, BetaIncompletaDePartes) {
    for (const double q : {0.0, 1e-30, 1e-9, 0.1, 1.0, 50.0, 1e9}) {
        SCOPED_TRACE(q);
        EsperarRelativo(BetaIncompletaDePartes(0.5, 0.5, 1.0L, q),
                        std::atan2(1.0, std::sqrt(q)) * 2.0 / M_PI);
        EsperarRelativo(BetaIncompletaDePartes(3, 1, 1.0L, q), std::pow(1.0 + q, -3.0));
        EsperarRelativo(BetaIncompletaDePartes(1, 3, q, 1.0L), -std::expm1(-3.0 * std::log1p(q)));
    }
    EsperarRelativo(BetaIncompletaDePartes(1.5, 1, 1.0L, 1e200L), 1e-300);
}

TEST(Distribuciones, GammaIncompletaEnFormaCerrada) {
    for (const double x : {0.0, 1e-12, 0.5, 1.0, 3.0, 40.0, 300.0, 700.0}) {
        SCOPED_TRACE(x);
        EsperarRelativo(GammaIncompleta(1, x), std::exp(-x));
        EsperarRelativo(GammaIncompleta(2, x), std::exp(-x) * (1.0 + x));
        EsperarRelativo(GammaIncompleta(0.5, x), std::erfc(std::sqrt(x)));
        // Half a step more: the recurrence in a.
        EsperarRelativo(GammaIncompleta(1.5, x),
                        std::erfc(std::sqrt(x)) + 2.0 * std::sqrt(x / M_PI) * std::exp(-x));
    }
}

// Where the large parameters begin the two methods meet: the functions are smooth there.
TEST(Distribuciones, ParametrosGrandes) {
    for (const double d : {-3.0, -0.01, 0.0, 0.5, 4.0}) {
        SCOPED_TRACE(d);
        const double a = 1e8, mayor = std::nextafter(a, 2e8);
        const double debajo = GammaIncompleta(a, a + d * 1e4), encima = GammaIncompleta(mayor, a + d * 1e4);
        EXPECT_NEAR(encima / debajo, 1.0, 2e-11); // the step moves it by 1e-12 of a deviation
        const long double p = 1.0L, q = 1.0L + static_cast<long double>(d) * 1e-4L;
        EXPECT_NEAR(BetaIncompletaDePartes(mayor, mayor, p, q) / BetaIncompletaDePartes(a, a, p, q), 1.0,
                    2e-11);
    }
    // Q(a, a) is 1/2 - 1 / (3 sqrt(2 pi a)) to the first order.
    for (const double a : {1e9, 1e12, 1e15})
        EXPECT_NEAR(GammaIncompleta(a, a), 0.5 - 1.0 / (3.0 * std::sqrt(2.0 * M_PI * a)), 1e-12);
}

TEST(Distribuciones, FueraDelDominio) {
    const double nan = std::numeric_limits<double>::quiet_NaN(),
                 inf = std::numeric_limits<double>::infinity();
    for (const double mal : {-1.0, 0.0, nan, inf, -inf}) {
        SCOPED_TRACE(mal);
        EXPECT_EQ(BetaIncompleta(mal, 1, 0.5), 0.0);
        EXPECT_EQ(BetaIncompleta(1, mal, 0.5), 0.0);
        EXPECT_EQ(BetaIncompletaDePartes(mal, 1, 1.0L, 1.0L), 0.0);
        EXPECT_EQ(GammaIncompleta(mal, 0.5), 0.0);
    }
    for (const double mal : {-1e-9, 1.0000001, nan, inf, -inf}) EXPECT_EQ(BetaIncompleta(1, 1, mal), 0.0);
    for (const double mal : {-1e-9, nan, inf, -inf}) EXPECT_EQ(GammaIncompleta(1, mal), 0.0);
    EXPECT_EQ(BetaIncompletaDePartes(1, 1, 0.0L, 0.0L), 0.0);
    EXPECT_EQ(BetaIncompletaDePartes(1, 1, -1.0L, 2.0L), 0.0);
    EXPECT_EQ(BetaIncompletaDePartes(1, 1, 1.0L, std::numeric_limits<long double>::infinity()), 0.0);
}

TEST(Distribuciones, NingunParametroLasDetiene) {
    const auto inicio = std::chrono::steady_clock::now();
    const double valores[] = {1e-300,   1e-10, 0.5, 1,    7,    50,   999,   1e5,  1e7,
                              99999999, 1e8,   1e9, 1e12, 1e15, 1e50, 1e100, 1e300};
    for (const double a : valores)
        for (const double b : valores) {
            const double g = GammaIncompleta(a, b);
            EXPECT_TRUE(g >= 0.0 && g <= 1.0) << a << " " << b << " " << g;
            for (const double x : {0.0, 1e-300, 1e-5, 0.3, 0.5, 0.7, 0.99999, 1.0}) {
                const double p = BetaIncompleta(a, b, x);
                EXPECT_TRUE(p >= 0.0 && p <= 1.0) << a << " " << b << " " << x << " " << p;
            }
            for (const double d : {-1e-3, -1e-6, 1e-9, 1e-4}) { // near the mean
                const double p = BetaIncompletaDePartes(a, b, a, static_cast<long double>(b) * (1 + d));
                EXPECT_TRUE(p >= 0.0 && p <= 1.0) << a << " " << b << " " << p;
            }
        }
    EXPECT_LT(std::chrono::steady_clock::now() - inicio, std::chrono::seconds(20));
}

} // namespace
