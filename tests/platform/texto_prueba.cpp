// Text between Windows-1252 and UTF-8, and formatted text.
#include "platform/texto.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

using namespace std::string_view_literals;

namespace {

struct CasoUtf8 {
    std::string_view utf8, texto;
    bool valido;
};

constexpr CasoUtf8 Casos[] = {
    {"Peñón"sv, "Pe\xF1\xF3n"sv, true},
    {""sv, ""sv, true},
    {"5 €"sv, "5 \x80"sv, true},
    {"β"sv, "?"sv, true}, // Windows-1252 lacks it
    {"\xF0\x9F\x98\x80x"sv, "?x"sv, true},
    {"a\xF1o"sv, "a?o"sv, false},
    {"\xC3"sv, "?"sv, false},           // cut short
    {"\xC0\x80"sv, "??"sv, false},      // overlong
    {"\xED\xA0\x80"sv, "???"sv, false}, // surrogate
    {"\xF4\x90\x80\x80"sv, "????"sv, false},
    {"\xE2\x82"sv, "??"sv, false},
    {"\xFF\xFE"sv, "??"sv, false},
    {"a\0b"sv, "a\0b"sv, true},
};

TEST(Texto, DeUtf8) {
    for (const CasoUtf8 &c : Casos) {
        bool valido = false;
        EXPECT_EQ(Texto1252DeUtf8(c.utf8, &valido), c.texto);
        EXPECT_EQ(valido, c.valido) << c.utf8;
    }
}

TEST(Texto, CadaByteVaYVuelve) {
    std::string todos;
    for (int b = 0; b < 256; ++b) todos += static_cast<char>(b);
    bool valido = false;
    EXPECT_EQ(Texto1252DeUtf8(Utf8De1252(todos), &valido), todos);
    EXPECT_TRUE(valido);
    EXPECT_EQ(Utf8De1252("Pe\xF1\xF3n \x80"), "Peñón €");
}

TEST(Texto, DeArchivo) {
    EXPECT_EQ(Texto1252DeArchivo("\xEF\xBB\xBF"
                                 "Peñón"),
              "Pe\xF1\xF3n");                                       // byte order mark
    EXPECT_EQ(Texto1252DeArchivo("Pe\xF1\xF3n"), "Pe\xF1\xF3n");    // Windows-1252 as it stands
    EXPECT_EQ(Texto1252DeArchivo("Pe\xF1n ñ"), "Pe\xF1n \xC3\xB1"); // one bad byte: all of it is
    EXPECT_EQ(Texto1252DeArchivo("a\0b"sv), "a?b");
    EXPECT_EQ(Texto1252DeArchivo("a\0\xF1"sv), "a?\xF1");
    EXPECT_EQ(Texto1252DeArchivo(""), "");
}

TEST(Texto, Formatear) {
    EXPECT_EQ(Formatear("%4d.%1d", 1995, 2), "1995.2");
    EXPECT_EQ(Formatear("%s", ""), "");
    for (const std::size_t n : {255u, 256u, 257u, 100000u}) {
        const std::string largo(n, 'x');
        EXPECT_EQ(Formatear("%s|", largo.c_str()), largo + "|");
    }
    EXPECT_EQ(Formatear("%10.6f", 1.5), "  1.500000");
}

} // namespace
