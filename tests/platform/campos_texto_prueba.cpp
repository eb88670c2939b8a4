// The operations on blank-padded text.
#include "platform/campos_texto.h"

#include "platform/literal.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

namespace {

TEST(CamposTexto, RellenarCadena) {
    char texto[6] = {'x', 'x', 'x', 'x', 'x', 'y'};
    RellenarCadena(texto, '-', 4);
    EXPECT_STREQ(texto, "----");
    EXPECT_EQ(texto[5], 'y'); // nothing behind the terminator
    RellenarCadena(texto, ' ', 0);
    EXPECT_STREQ(texto, "");
}

struct CasoAncho {
    const char *texto;
    int n;
    const char *resultado;
};

constexpr CasoAncho Anchos[] = {
    {"AB", 6, "AB   "}, {"ABCDE", 6, "ABCDE"}, {"ABCDEF", 6, "ABCDE"},
    {"", 6, "     "},   {"", 1, ""},           {"A", 1, ""},
};

TEST(CamposTexto, AjustarAncho) {
    for (const CasoAncho &c : Anchos) {
        SCOPED_TRACE(c.texto);
        char campo[16];
        std::strcpy(campo, c.texto);
        AjustarAncho(campo, c.n);
        EXPECT_STREQ(campo, c.resultado);
        PonerCampo(campo, c.texto, c.n);
        EXPECT_STREQ(campo, c.resultado);
    }
}

struct CasoRecorte {
    const char *texto, *derecha, *ambos, *izquierda;
};

constexpr CasoRecorte Recortes[] = {
    {"  A B  ", "  A B", "A B", "A B  "}, {"A", "A", "A", "A"}, {"   ", "", "", ""}, {"", "", "", ""},
    {"\tA ", "\tA", "\tA", "\tA "},
};

TEST(CamposTexto, RecortarCadena) {
    for (const CasoRecorte &c : Recortes) {
        SCOPED_TRACE(c.texto);
        char destino[16];
        RecortarCadena(destino, c.texto, RecorteDerecha);
        EXPECT_STREQ(destino, c.derecha);
        RecortarCadena(destino, c.texto, RecorteIzquierda);
        EXPECT_STREQ(destino, c.izquierda);
        std::strcpy(destino, c.texto); // onto itself
        RecortarCadena(destino, destino, RecorteAmbos);
        EXPECT_STREQ(destino, c.ambos);
        EXPECT_EQ(Recortado(c.texto), c.ambos);
        EXPECT_EQ(Recortado(c.texto, RecorteDerecha), c.derecha);
        EXPECT_EQ(Recortado(c.texto, RecorteIzquierda), c.izquierda);
    }
}

TEST(CamposTexto, SinBlancos) {
    EXPECT_EQ(SinBlancos(" 1990 . 1 "), "1990.1");
    EXPECT_EQ(SinBlancos("   "), "");
}

TEST(CamposTexto, CadenaDeCaracter) {
    EXPECT_EQ(CadenaDeCaracter("    ", ' '), 1);
    EXPECT_EQ(CadenaDeCaracter("  x ", ' '), 0);
    EXPECT_EQ(CadenaDeCaracter("", ' '), 1);
    EXPECT_EQ(CadenaDeCaracter("---", '-'), 1);
}

struct CasoSub {
    int desde, hasta;
    const char *resultado;
};

constexpr CasoSub Subcadenas[] = {
    {0, 0, "A"},   {1, 3, "BCD"}, {0, 4, "ABCDE"}, {3, 10, "DE"},
    {-2, 1, "AB"}, {3, 2, ""},    {7, 9, ""},      {-5, -1, ""},
};

TEST(CamposTexto, SubCadena) {
    for (const CasoSub &c : Subcadenas) {
        char destino[16];
        SubCadena("ABCDE", destino, c.desde, c.hasta);
        EXPECT_STREQ(destino, c.resultado) << c.desde << " " << c.hasta;
    }
}

struct CasoJustificar {
    const char *texto;
    Justificacion modo;
    const char *resultado;
};

constexpr CasoJustificar Justificados[] = {
    {"AB", JustificarDerecha, "    AB"},         {"AB", JustificarIzquierda, "AB    "},
    {"ABCDEF", JustificarDerecha, "ABCDEF"},     {"ABCDEFGH", JustificarDerecha, "ABCDEF"},
    {"ABCDEFGH", JustificarIzquierda, "ABCDEF"}, {"", JustificarDerecha, "      "},
};

TEST(CamposTexto, JustificarCadena) {
    for (const CasoJustificar &c : Justificados) {
        char destino[7];
        JustificarCadena(destino, c.texto, 6, c.modo);
        EXPECT_STREQ(destino, c.resultado) << c.texto;
    }
}

TEST(CamposTexto, UnaEtiquetaConAcentosOcupaSusDocePlazas) {
    char campo[13];
    PonerCampo(campo, "Peñón"_w, 13);
    EXPECT_EQ(std::strlen(campo), 12u);
    EXPECT_STREQ(campo, "Pe\xF1\xF3n       ");
}

TEST(CamposTexto, Mayusculas) {
    for (int i = 0; i < 256; ++i) {
        const char c = static_cast<char>(i);
        const bool minuscula =
            std::string_view("abcdefghijklmnopqrstuvwxyz").find(c) != std::string_view::npos;
        EXPECT_EQ(Mayuscula(c), static_cast<char>(minuscula ? i - 32 : i)) << i;
    }
    std::string texto = "aZz{`@ 1 \xF1";
    PonerEnMayusculas(texto);
    EXPECT_EQ(texto, "AZZ{`@ 1 \xF1");
}

} // namespace
