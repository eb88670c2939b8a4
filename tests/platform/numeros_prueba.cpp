// Numbers read from text.
#include "platform/numeros.h"

#include "platform/texto.h"

#include <gtest/gtest.h>

#include <climits>
#include <clocale>
#include <cmath>
#include <limits>
#include <string>

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
