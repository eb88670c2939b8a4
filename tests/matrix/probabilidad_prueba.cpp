// Tail probabilities, also far in the tails.
#include "matrix/probabilidad.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <limits>

namespace {

constexpr double Nan = std::numeric_limits<double>::quiet_NaN();
constexpr double Inf = std::numeric_limits<double>::infinity();

double De(char tipo, double x, double gl1 = 0.0, double gl2 = 0.0) {
    double p = -1.0;
    EXPECT_EQ(Probabilidad(tipo, x, gl1, gl2, p), 1);
    return p;
}

void EsperarRelativo(double valor, double esperado) {
    EXPECT_NEAR(valor / esperado, 1.0, 1e-12) << valor << " instead of " << esperado;
}

struct Caso {
    char tipo;
    double x, gl1, gl2, esperado;
};

// Values to 20 digits from an evaluation of the incomplete functions with 400 digits.
const Caso Calculados[] = {
    {'t', 1.5, 3, 0, 2.3058386524482305228e-1},
    {'t', 2.228138852, 10, 0, 4.9999999998836510842e-2},
    {'t', 0.001, 7, 0, 9.9923001724499884376e-1},
    {'t', 40, 7, 0, 1.5902179984850370469e-9},
    {'t', 1000, 5.5, 0, 1.1171579497945418863e-15},
    {'t', 12, 30, 0, 5.580185415199256063e-13},
    {'t', 3.5, 120, 0, 6.5380773986187513522e-4},
    {'t', 25, 500, 0, 4.3008595195229320426e-90},
    {'t', 5, 100000, 0, 5.7427016786416728533e-7},
    {'t', 0.1, 0.5, 0, 9.4633162112860640462e-1},
    {'f', 4.256, 2, 9, 5.0012714144943339602e-2},
    {'f', 0.01, 5, 7, 9.9995455681501684609e-1},
    {'f', 3.3, 3, 40, 2.9921537797621163566e-2},
    {'f', 250, 3, 40, 6.1504291677905683102e-26},
    {'f', 1.5, 60, 120, 3.0842034104337382369e-2},
    {'f', 9, 60, 120, 2.8187444520079229771e-24},
    {'f', 1e6, 4, 6, 1.3499924062773374203e-17},
    {'f', 2.5, 1.5, 2.5, 2.4474348933946416933e-1},
    {'f', 1.1, 3990, 3990, 1.3086282672148406321e-3},
    {'f', 30, 10, 3000, 1.2136620874679583996e-55},
    {'n', 0.00001, 0, 0, 9.9999202115439210433e-1},
    {'n', 0.5, 0, 0, 6.1707507745197379272e-1},
    {'n', 1.959963984540054, 0, 0, 5.0000000000000027531e-2},
    {'n', 3, 0, 0, 2.6997960632601890533e-3},
    {'n', 5, 0, 0, 5.7330314375838782335e-7},
    {'n', 8.5, 0, 0, 1.8959069644406636708e-17},
    {'n', 20, 0, 0, 5.5072482372124673902e-89},
    {'n', 37, 0, 0, 1.1451142445049153645e-299},
    {'c', 3.841458820694124, 1, 0, 5.0000000000000058397e-2},
    {'c', 0.001, 3, 0, 9.9999159208094195384e-1},
    {'c', 200, 3, 0, 4.2185411071920423377e-43},
    {'c', 1000, 7, 0, 1.2044267735190187622e-211},
    {'c', 150, 99, 0, 7.2044539571696291787e-4},
    {'c', 500, 99, 0, 7.6159439566737969283e-55},
    {'c', 5500, 5000, 0, 6.2030199453285956042e-7},
    {'c', 1e-9, 2.5, 0, 9.9999999999791319721e-1},
};

TEST(Probabilidad, ContraValoresDeMuchasCifras) {
    for (const Caso &c : Calculados) {
        SCOPED_TRACE(testing::Message() << c.tipo << " " << c.x << " " << c.gl1 << " " << c.gl2);
        EsperarRelativo(De(c.tipo, c.x, c.gl1, c.gl2), c.esperado);
        if (c.tipo == 't' || c.tipo == 'n') EsperarRelativo(De(c.tipo, -c.x, c.gl1, c.gl2), c.esperado);
    }
}

// Percentage points as tables print them, to the digits that they print.
const Caso DeTablas[] = {
    {'t', 12.706, 1, 0, 0.05},  {'t', 2.228, 10, 0, 0.05},    {'t', 3.169, 10, 0, 0.01},
    {'t', 2.042, 30, 0, 0.05},  {'t', 1.645, 1e6, 0, 0.10},   {'f', 4.96, 1, 10, 0.05},
    {'f', 3.33, 5, 10, 0.05},   {'f', 2.348, 10, 20, 0.05},   {'f', 3.37, 10, 20, 0.01},
    {'f', 1.84, 30, 30, 0.05},  {'n', 1.96, 0, 0, 0.05},      {'n', 2.5758, 0, 0, 0.01},
    {'c', 3.841, 1, 0, 0.05},   {'c', 18.307, 10, 0, 0.05},   {'c', 23.209, 10, 0, 0.01},
    {'c', 43.773, 30, 0, 0.05}, {'c', 124.342, 100, 0, 0.05},
};

TEST(Probabilidad, ContraTablasImpresas) {
    for (const Caso &c : DeTablas) {
        SCOPED_TRACE(testing::Message() << c.tipo << " " << c.x << " " << c.gl1 << " " << c.gl2);
        EXPECT_NEAR(De(c.tipo, c.x, c.gl1, c.gl2), c.esperado, 0.004 * c.esperado);
    }
}

TEST(Probabilidad, FormasCerradasDeT) {
    for (const double x : {1e-8, 0.01, 0.5, 1.0, 3.0, 50.0, 1e4, 1e8, 1e70, 1e150, 1e200}) {
        SCOPED_TRACE(x);
        EsperarRelativo(De('t', x, 1), std::atan(1.0 / x) * 2.0 / M_PI);
        if (x > 1e60) continue; // beyond, the closed forms leave the range
        const double s2 = std::sqrt(2.0 + x * x);
        EsperarRelativo(De('t', x, 2), 2.0 / (s2 * (s2 + x)));
        // With s the sine of atan(x / 2): (1 - s)^2 (2 + s) / 2.
        const double r = std::sqrt(4.0 + x * x), s = x / r, falta = 4.0 / (r * r) / (1.0 + s);
        EsperarRelativo(De('t', x, 4), falta * falta * (2.0 + s) / 2.0);
    }
}

TEST(Probabilidad, FormasCerradasDeF) {
    for (const double x : {1e-9, 0.01, 0.5, 1.0, 3.0, 50.0, 1e4, 1e9})
        for (const double gl : {1.0, 2.0, 5.0, 30.0}) {
            SCOPED_TRACE(testing::Message() << x << " " << gl);
            EsperarRelativo(De('f', x, 2, gl), std::exp(-gl / 2.0 * std::log1p(2.0 * x / gl)));
            EsperarRelativo(De('f', x, gl, 2), -std::expm1(-gl / 2.0 * std::log1p(2.0 / (gl * x))));
            // A squared t.
            EsperarRelativo(De('f', x * x, 1, gl), De('t', x, gl));
        }
}

TEST(Probabilidad, FormasCerradasDeChi2) {
    for (const double x : {1e-9, 0.5, 2.0, 10.0, 100.0, 700.0, 1400.0}) {
        SCOPED_TRACE(x);
        EsperarRelativo(De('c', x, 1), De('n', std::sqrt(x)));
        double termino = std::exp(-x / 2.0), suma = 0.0;
        for (int k = 0; k < 20; ++k) { // even degrees of freedom: the first terms of a Poisson distribution
            suma += termino;
            EsperarRelativo(De('c', x, 2.0 * k + 2.0), suma);
            termino *= x / 2.0 / (k + 1.0);
        }
    }
}

TEST(Probabilidad, ConMuchosGradosDeLibertadTTiendeALaNormal) {
    for (const double x : {0.1, 1.0, 5.0, 20.0}) EsperarRelativo(De('t', x, 1e18), De('n', x));
}

TEST(Probabilidad, Bordes) {
    EXPECT_EQ(De('t', 0.0, 10), 1.0);
    EXPECT_EQ(De('f', 0.0, 3, 10), 1.0);
    EXPECT_EQ(De('n', 0.0), 1.0);
    EXPECT_EQ(De('c', 0.0, 4), 1.0);
    EXPECT_EQ(De('n', 1e300), 0.0);
    EXPECT_EQ(De('n', Inf), 0.0);
    EXPECT_EQ(De('c', 1e300, 4), 0.0);
    EXPECT_EQ(De('t', Inf, 4), 0.0);
}

TEST(Probabilidad, SinDenominador) {
    static constexpr struct {
        char tipo;
        double x, gl1, gl2;
    } casos[] = {{'f', 2, 0, 0},  {'f', 0, 3, 0},  {'f', -4, 2, 3},  {'f', Nan, 2, 3}, {'t', 0, 0, 0},
                 {'t', 1, -1, 0}, {'t', 1, -5, 0}, {'t', Nan, 4, 0}, {'t', 1, Nan, 0}};
    for (const auto &c : casos) {
        SCOPED_TRACE(testing::Message() << c.tipo << " " << c.x << " " << c.gl1 << " " << c.gl2);
        double p = -1.0;
        EXPECT_EQ(Probabilidad(c.tipo, c.x, c.gl1, c.gl2, p), 0);
        EXPECT_EQ(p, 0.0);
    }
}

TEST(Probabilidad, FueraDelDominio) {
    static constexpr struct {
        char tipo;
        double x, gl1, gl2;
    } casos[] = {{'t', 3, -2, 0},  {'t', 3, 0, 0},   {'t', 3, Inf, 0}, {'f', 3, -1, 5}, {'f', -1, 2, 5},
                 {'f', 3, 2, Inf}, {'f', 3, 0, 5},   {'c', 3, -1, 0},  {'c', 3, 0, 0},  {'c', -1, 3, 0},
                 {'c', Nan, 3, 0}, {'c', 3, Nan, 0}, {'c', 3, Inf, 0}, {'n', Nan, 0, 0}};
    for (const auto &c : casos) {
        SCOPED_TRACE(testing::Message() << c.tipo << " " << c.x << " " << c.gl1 << " " << c.gl2);
        EXPECT_EQ(De(c.tipo, c.x, c.gl1, c.gl2), 0.0);
    }
}

TEST(Probabilidad, OtroTipoNoTocaElResultado) {
    EXPECT_EQ(De('x', 1, 2, 3), -1.0);
    EXPECT_EQ(De('T', 1, 2, 3), -1.0);
    EXPECT_EQ(De('\0', 1, 2, 3), -1.0);
}

TEST(Probabilidad, GradosDeLibertadEnormesNoLaDetienen) {
    const auto inicio = std::chrono::steady_clock::now();
    for (const double gl1 : {1.0, 50.0, 1e8, 1e15, 1e100, 1e300})
        for (const double gl2 : {1.0, 50.0, 1e8, 1e15, 1e100, 1e300})
            for (const double x : {1e-5, 0.9999, 1.0, 1.0001, 3.0, 1e10}) {
                EXPECT_LE(De('f', x, gl1, gl2), 1.0);
                EXPECT_LE(De('t', x, gl1), 1.0);
                EXPECT_LE(De('c', x * gl1, gl1), 1.0);
            }
    EXPECT_EQ(De('f', 1.0, 1e300, 1e300), 0.5);
    EXPECT_LT(std::chrono::steady_clock::now() - inicio, std::chrono::seconds(10));
}

} // namespace
