// The random numbers: published values of their scrambling, their distribution, and seeds of any kind.
#include "platform/aleatorios.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

namespace {

// The hash of the empty text with a seed is the finaliser alone: 0x514E28B7 for 1 and 0x81F16F39 for 0xFFFFFFFF, as
// the test vectors of MurmurHash3 have it. The counter steps by 0x9E3779B9 before.
TEST(Aleatorios, ValoresPublicados) {
    const struct {
        std::uint32_t contador, valor;
    } casos[] = {{1u, 0x514E28B7u}, {0xFFFFFFFFu, 0x81F16F39u}, {0u, 0u}};
    for (const auto &caso : casos) {
        auto semilla = static_cast<std::int32_t>(caso.contador - 0x9E3779B9u);
        EXPECT_EQ(AleatorioUniforme(&semilla), (caso.valor + 0.5) / 4294967296.0);
        EXPECT_EQ(static_cast<std::uint32_t>(semilla), caso.contador);
    }
}

const std::int32_t Semillas[] = {0,
                                 1,
                                 -1,
                                 1234567,
                                 1700000000,
                                 std::numeric_limits<std::int32_t>::min(),
                                 std::numeric_limits<std::int32_t>::max()};

constexpr int N = 100000;

// Largest distance between the distribution of the sample and the one expected; 1.95 / sqrt(n) is passed by chance
// once in a thousand.
double Distancia(std::vector<double> x, double (*acumulada)(double)) {
    std::sort(x.begin(), x.end());
    double mayor = 0.0;
    for (std::size_t i = 0; i < x.size(); ++i) {
        const double f = acumulada(x[i]);
        mayor = std::max({mayor, std::fabs(f - static_cast<double>(i) / N),
                          std::fabs(f - static_cast<double>(i + 1) / N)});
    }
    return mayor;
}

TEST(Aleatorios, Uniforme) {
    for (const std::int32_t inicial : Semillas) {
        SCOPED_TRACE(inicial);
        std::int32_t semilla = inicial;
        std::vector<double> x(N);
        double producto = 0.0;
        for (int i = 0; i < N; ++i) {
            x[static_cast<std::size_t>(i)] = AleatorioUniforme(&semilla);
            ASSERT_GT(x[static_cast<std::size_t>(i)], 0.0);
            ASSERT_LT(x[static_cast<std::size_t>(i)], 1.0);
            if (i > 0)
                producto +=
                    (x[static_cast<std::size_t>(i)] - 0.5) * (x[static_cast<std::size_t>(i) - 1] - 0.5);
        }
        EXPECT_NE(semilla, inicial);
        EXPECT_LT(Distancia(x, [](double v) { return v; }), 1.95 / std::sqrt(N));
        EXPECT_LT(std::fabs(producto / N * 12), 4 / std::sqrt(N)); // correlation with the number before
    }
}

TEST(Aleatorios, Normal) {
    for (const std::int32_t inicial : Semillas) {
        SCOPED_TRACE(inicial);
        std::int32_t semilla = inicial;
        std::vector<double> x(N);
        for (double &v : x) v = AleatorioNormal(&semilla);
        EXPECT_LT(Distancia(x, [](double v) { return 0.5 * std::erfc(-v / std::sqrt(2.0)); }),
                  1.95 / std::sqrt(N));
    }
}

// Seeds are seconds: the first numbers of one second after the other are as good as any.
TEST(Aleatorios, SemillasVecinas) {
    std::vector<double> x(N);
    for (int i = 0; i < N; ++i) {
        std::int32_t semilla = 1700000000 + i;
        x[static_cast<std::size_t>(i)] = AleatorioUniforme(&semilla);
    }
    EXPECT_LT(Distancia(x, [](double v) { return v; }), 1.95 / std::sqrt(N));
    double producto = 0.0;
    for (std::size_t i = 1; i < x.size(); ++i) producto += (x[i] - 0.5) * (x[i - 1] - 0.5);
    EXPECT_LT(std::fabs(producto / N * 12), 4 / std::sqrt(N));
}

} // namespace
