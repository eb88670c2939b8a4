// Which texts can name a series, a matrix or a scalar, and the check of the whole table of codes.
#include "apoyo/plataforma_prueba.h"
#include "platform/campos_texto.h"
#include "platform/texto.h"
#include "store/archivo.h"

#include <gtest/gtest.h>

namespace {

struct CasoCodigo {
    const char *texto;
    const char *codigo; // the result without its padding; null when refused
};

constexpr CasoCodigo Codigos[] = {
    {"A", "A"},
    {"ABCDEFGH", "ABCDEFGH"}, // eight characters
    {"ABCDEFGHI", nullptr},   // nine
    {"ABCDEFGH ", "ABCDEFGH"},
    {"ABCDEFGH  K", nullptr},
    {"ABCDEFGHIJKLMN", nullptr},
    {"ABCDEFGH    XYZ", "ABCDEFGH"}, // cut at 12 characters before anything is looked at
    {"abc", "ABC"},
    {"aBc1", "ABC1"},
    {"A^1", "A^1"},
    {"A-1", nullptr},
    {"A.1", nullptr},
    {"A_1", nullptr},
    {"_TMP1", "_TMP1"}, // names of the program's own kind are open to the user
    {"_", "_"},
    {"__A", nullptr},
    {"A B", "A B"},
    {" A", " A"},
    {"  _A", "  _A"}, // the first place of the text without its leading blanks
    {" A_", nullptr},
    {"1A", nullptr},
    {"^A", nullptr},
    {"A0189", "A0189"},
    {"A:", nullptr},
    {"A;", nullptr},
    {"A<", nullptr},
    {"A=", nullptr},
    {"A>", nullptr},
    {"A?", nullptr},
    {"A@", nullptr},
    {"A[", nullptr},
    {"A\\", nullptr},
    {"A]", nullptr},
    {"A`", nullptr},
    {"A{", nullptr},
    {"A|", nullptr},
    {"A~", nullptr},
    {"A!", nullptr},
    {"A/", nullptr},
    {"A\t", nullptr},
    {"Año", nullptr},
    {"ñ", nullptr},
    {"Z z", "Z Z"},
    {"", nullptr},
    {"        ", nullptr},
    {"AND", "AND"}, // not reserved
    {"OR", "OR"},
    {"log", "LOG"}, // compared as it comes
    {"LOG ", "LOG"},
    {"LOGX", "LOGX"},
};

constexpr const char *Reservadas[] = {
    "LOG",   "RCUAD",  "LN",     "ABS",    "EXP",    "POT",    "TEND", "PROG",  "PROBT", "PROBF", "PROBN",
    "PROBC", "SUMSER", "MEDSER", "DESSER", "MAXSER", "MINSER", "RND",  "RNDN",  "NOT",   "-LOG",  "-RCUAD",
    "-LN",   "-ABS",   "-EXP",   "-POT",   "-TEND",  "-PROG",  "DET",  "LNDET", "TRAZA", "MIN",   "MAX",
    "SUMA",  "NFILA",  "NCOLU",  "DIAG",   "ESCAL",  "VECT",   "NOBS", "NREG",  "MINC",  "LNMT",  "RCMT"};

TEST(Codigo, CadaTextoSegunLaTabla) {
    EmpezarPrueba();
    for (const CasoCodigo &c : Codigos) {
        SCOPED_TRACE(std::string("\"") + c.texto + "\"");
        Codigo codigo;
        const int valido = CodigoValido(Texto1252DeUtf8(c.texto), codigo);
        EXPECT_EQ(valido, c.codigo != nullptr ? 1 : 0);
        if (c.codigo == nullptr) continue;
        std::string esperado = c.codigo;
        esperado.resize(12, ' ');
        EXPECT_EQ(std::string(codigo), esperado);
    }
}

TEST(Codigo, CadaByteEnSegundoLugar) {
    for (int b = 1; b < 256; ++b) {
        const char c = static_cast<char>(b);
        const std::string texto{'A', c};
        const bool pasa = c == ' ' || c == '^' || (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') ||
                          (c >= 'a' && c <= 'z');
        Codigo codigo;
        EXPECT_EQ(CodigoValido(texto, codigo), pasa ? 1 : 0) << b;
    }
}

TEST(Codigo, LasPalabrasReservadasSoloSinRelleno) {
    EXPECT_EQ(std::size(Reservadas), 44u);
    for (const char *palabra : Reservadas) {
        SCOPED_TRACE(palabra);
        Codigo codigo;
        EXPECT_EQ(CodigoValido(palabra, codigo), 0);
        EXPECT_TRUE(EsFuncionSerie(palabra) != EsFuncionMatriz(palabra));
        // The editor hands padded texts, which never equal a reserved word.
        Codigo relleno;
        PonerCampo(relleno, palabra, AnchoCodigo);
        EXPECT_EQ(CodigoValido(relleno, codigo), palabra[0] == '-' ? 0 : 1);
    }
    EXPECT_FALSE(EsFuncionSerie("AND"));
    EXPECT_FALSE(EsFuncionMatriz("OR"));
}

struct CasoTabla {
    const char *codigos[3]; // slots 0, 1 and 2
    const char *matriz, *escalar;
    const char *error; // null: the table is valid
};

constexpr CasoTabla Tablas[] = {
    {{"A", "B", "C"}, "M", "E", nullptr},
    {{"A", "", "C"}, nullptr, nullptr, nullptr},
    {{"LOG", "", ""}, nullptr, nullptr, nullptr},
    {{"A", "B", "A"}, nullptr, nullptr, "Códigos repetidos : A           "},
    {{"A", "1B", "A"}, nullptr, nullptr, "Códigos repetidos : A           "},
    {{"1B", "A", "A"}, nullptr, nullptr, "Primer caracter código no válido1B          "},
    {{"1B", "1B", ""}, nullptr, nullptr, "Códigos repetidos : 1B          "},
    {{"A-1", "2", ""}, nullptr, nullptr, "Primer caracter código no válido2           "},
    {{"A-1", "M", ""}, "M", nullptr, "Código de serie no válido:A-1         "},
    {{"M", "A-1", ""}, "M", nullptr, "Código de serie no válido, igual a matriz:M           "},
    {{"E", "M", ""}, "M", "E", "Código de serie no válido, igual a escalar:E           "},
    {{"ABCDEFGHI", "", ""}, nullptr, nullptr, "Código de serie no válido:ABCDEFGHI   "},
    {{"m", "", ""},
     "M",
     nullptr,
     "Código de serie no válido, igual a matriz:M           "}, // in capitals by then
    {{"e", "", ""}, nullptr, "E", "Código de serie no válido, igual a escalar:E           "},
    {{"a-1", "", ""}, nullptr, nullptr, "Código de serie no válido:a-1         "},
};

TEST(ValidarCodigos, CadaTabla) {
    for (const CasoTabla &c : Tablas) {
        SCOPED_TRACE(c.codigos[0]);
        EmpezarConDatos(TipoAnual, "1990#1999");
        for (int s = 0; s < 3; ++s) PonerCodigoSerie(s, c.codigos[s]);
        ArchivoTrabajo.NumSeries = 3;
        if (c.matriz != nullptr) PonerMatriz(c.matriz, {1.0}, 1, 1);
        if (c.escalar != nullptr) {
            PonerCampo(TablaEscalares.registro[0].Codigo, c.escalar, AnchoCodigo);
            TablaEscalares.numero = 1;
        }
        std::string error;
        EXPECT_EQ(ValidarCodigosSeries(false, error), c.error == nullptr ? 1 : 0);
        EXPECT_EQ(Utf8De1252(error), c.error == nullptr ? "" : c.error);
        EXPECT_EQ(ArchivoTrabajo.NumSeries, 3);
        EXPECT_TRUE(Prueba.cajas.empty()); // the caller shows it
    }
}

TEST(ValidarCodigos, LimpiaLasColumnasSinCodigoAunqueFalle) {
    EmpezarConDatos(TipoAnual, "1990#1999");
    PonerSerie("A", {1, 2, 3});
    PonerSerie("B", {4, 5, 6});
    PonerSerie("C", {7, 8, 9});
    PonerCodigoSerie(1, "");
    PonerCodigoSerie(2, "A");
    std::string error;
    EXPECT_EQ(ValidarCodigosSeries(true, error), 0);
    EXPECT_EQ(ArchivoTrabajo.PresenciaObs[1][1], 0);
    EXPECT_EQ(ArchivoTrabajo.ValoresObs[1][1], 0.0);
    EXPECT_EQ(ArchivoTrabajo.ValoresObs[1][2], 8.0);
    EXPECT_EQ(ArchivoTrabajo.NumSeries, 3); // no compaction after a failure
    PonerCodigoSerie(2, "c");
    EXPECT_EQ(ValidarCodigosSeries(true, error), 1);
    EXPECT_EQ(ArchivoTrabajo.NumSeries, 2);
    EXPECT_EQ(BuscarSerie("C"), 1); // turned into capitals and moved down
    EXPECT_EQ(ArchivoTrabajo.ValoresObs[2][1], 9.0);
}

} // namespace
