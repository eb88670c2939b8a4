// Literals in Windows-1252.
#include "platform/literal.h"

#include <gtest/gtest.h>

#include <string>

namespace {

TEST(Literal, UnByteCadaCaracter) {
    EXPECT_EQ(std::string("Nº"_w), "N\xBA");
    EXPECT_EQ(std::string("Peñón"_w), "Pe\xF1\xF3n");
    EXPECT_EQ(std::string("Típica"_w).size(), 6u);
    EXPECT_EQ(std::string("¿Desea ver la regresion?"_w), "\xBF"
                                                         "Desea ver la regresion?");
    EXPECT_EQ(std::string("€ – “ ”"_w), "\x80 \x96 \x93 \x94"); // the block that Latin-1 has not
    EXPECT_EQ(std::string("ABC"_w), "ABC");
    EXPECT_EQ(std::string(""_w), "");
}

TEST(Literal, ElPunteroVaAUnObjetoQueDura) {
    const char *a = nullptr;
    { a = "Año"_w; }
    EXPECT_EQ(std::string(a), "A\xF1o");
}

struct CasoByte {
    std::uint32_t punto;
    int byte;
};

constexpr CasoByte Bytes[] = {
    {'A', 'A'},    {0x7F, 0x7F}, {0xA0, 0xA0}, {0xF1, 0xF1}, {0xFF, 0xFF}, {0x20AC, 0x80}, {0x178, 0x9F},
    {0x152, 0x8C}, {0x81, 0x81}, {0x9D, 0x9D}, {0x80, -1},   {0x100, -1},  {0x3B1, -1},    {0x1F600, -1},
};

TEST(Literal, Byte1252) {
    for (const CasoByte &c : Bytes) EXPECT_EQ(Byte1252(c.punto), c.byte) << c.punto;
}

} // namespace
