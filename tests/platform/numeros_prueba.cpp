// Numbers read from text.
#include "platform/numeros.h"

#include "platform/texto.h"

#include <gtest/gtest.h>

#include <bit>
#include <climits>
#include <clocale>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <string>
#include <vector>

namespace {

constexpr double Infinito = std::numeric_limits<double>::infinity();

struct CasoDecimal {
    const char *texto;
    double valor;
};

constexpr CasoDecimal Decimales[] = {
    {"0", 0.0},         {"1995.1", 1995.1}, {"  12", 12.0},      {"-3.5", -3.5},         {"+4", 4.0},
    {".5", 0.5},        {"-.5", -0.5},      {"5.", 5.0},         {"1e3", 1000.0},        {"1E-2", 0.01},
    {"1e", 1.0},        {"1.2.3", 1.2},     {"12abc", 12.0},     {"abc", 0.0},           {"", 0.0},
    {"   ", 0.0},       {"-", 0.0},         {".", 0.0},          {"1,5", 1.0},           {"0x10", 0.0},
    {"inf", 0.0},       {"nan", 0.0},       {"1e999", Infinito}, {"-1e999", -Infinito},  {"1e-999", 0.0},
    {"1990-1", 1990.0}, {"--5", 0.0},       {"\t7", 7.0},        {"1995.01  ", 1995.01},
};

TEST(Numeros, LeerDecimal) {
    for (const CasoDecimal &c : Decimales)
        EXPECT_EQ(LeerDecimal(c.texto), c.valor) << "\"" << c.texto << "\"";
    EXPECT_EQ(LeerDecimal(std::string(400, '9')), Infinito);
    EXPECT_EQ(LeerDecimal("0." + std::string(400, '0') + "1"), 0.0);
    // What is too large or too small is so by its digits and its exponent together.
    const std::string ceros(400, '0');
    EXPECT_EQ(LeerDecimal(ceros + std::string(400, '9')), Infinito);
    EXPECT_EQ(LeerDecimal("-" + ceros + std::string(400, '9')), -Infinito);
    EXPECT_EQ(LeerDecimal("1" + ceros + "e-50"), Infinito);
    EXPECT_EQ(LeerDecimal("1" + ceros + ".5e-50"), Infinito);
    EXPECT_EQ(LeerDecimal("0." + ceros + "1e50"), 0.0);
    EXPECT_EQ(LeerDecimal("." + ceros + "1e+50"), 0.0);
    EXPECT_EQ(LeerDecimal("1e-99999999999999999999"), 0.0);
    EXPECT_EQ(LeerDecimal("1e99999999999999999999"), Infinito);
    EXPECT_TRUE(std::signbit(LeerDecimal("-0")));
    for (const char *t : {"-", "-x", "- 5", "--"}) EXPECT_FALSE(std::signbit(LeerDecimal(t))) << t;
}

struct CasoEntero {
    const char *texto;
    int valor;
};

constexpr CasoEntero Enteros[] = {
    {"0", 0},
    {"1990", 1990},
    {" 42 ", 42},
    {"-7", -7},
    {"+7", 7},
    {"12.9", 12},
    {"1e5", 1},
    {"abc", 0},
    {"", 0},
    {"-", 0},
    {"2147483647", INT_MAX},
    {"2147483648", INT_MAX},
    {"-2147483648", INT_MIN},
    {"-99999999999999999999", INT_MIN},
    {"99999999999999999999", INT_MAX},
    {"007", 7},
};

TEST(Numeros, LeerEntero) {
    for (const CasoEntero &c : Enteros) EXPECT_EQ(LeerEntero(c.texto), c.valor) << "\"" << c.texto << "\"";
}

struct CasoEsNumero {
    const char *texto;
    bool es;
};

constexpr CasoEsNumero EsNumeros[] = {
    {"1", true},  {"1.5", true}, {"-1", true},   {".", true},    {"1.2.3", true}, {"-.", true}, {"", false},
    {"-", false}, {"+1", false}, {"1e3", false}, {"--1", false}, {" 1", false},   {"A", false}, {"1-", false},
};

TEST(Numeros, EsNumero) {
    for (const CasoEsNumero &c : EsNumeros) EXPECT_EQ(EsNumero(c.texto), c.es) << "\"" << c.texto << "\"";
}

// The same bits as by way of the text, also at ties and where the text has more digits than a double.
TEST(Numeros, EnDiezDecimales) {
    std::vector<double> valores = {0.0,
                                   -0.0,
                                   1.0,
                                   -1.0,
                                   0.1,
                                   1e-10,
                                   5e-11,
                                   -5e-11,
                                   4.9e-11,
                                   5.1e-11,
                                   1e-300,
                                   -1e-300,
                                   5e-324,
                                   524287.99999999994,
                                   524288.0,
                                   524288.00000000012,
                                   1e15,
                                   1e300,
                                   450359.96274,
                                   450359.9627370496,
                                   450359.96273704961};
    for (int j = 1; j < 4000; j += 2) valores.push_back(j / 2048.0); // half of the last decimal, exactly
    std::mt19937_64 azar(11);
    std::uniform_real_distribution<double> uniforme(-1.0, 1.0), exponente(-14.0, 8.0);
    for (int i = 0; i < 200000; ++i) valores.push_back(uniforme(azar) * std::pow(10.0, exponente(azar)));
    for (int i = 0; i < 50000; ++i) valores.push_back(450000.0 + 74288.0 * std::fabs(uniforme(azar)));
    for (const double v : valores) {
        const double esperado = LeerDecimal(Formatear("%30.10f", v)), visto = EnDiezDecimales(v);
        ASSERT_EQ(std::bit_cast<std::uint64_t>(visto), std::bit_cast<std::uint64_t>(esperado))
            << Formatear("%.17g", v);
    }
}

// Where the machine has a locale with a decimal comma, reading doesn't follow it.
TEST(Numeros, LaComaDelEscritorioNoCuenta) {
    const std::string antes = std::setlocale(LC_NUMERIC, nullptr);
    for (const char *local : {"es_ES.UTF-8", "es_ES", "de_DE.UTF-8"})
        if (std::setlocale(LC_NUMERIC, local) != nullptr) {
            EXPECT_EQ(LeerDecimal("1.5"), 1.5) << local;
            EXPECT_EQ(LeerDecimal("1,5"), 1.0) << local;
        }
    std::setlocale(LC_NUMERIC, antes.c_str());
}

} // namespace
