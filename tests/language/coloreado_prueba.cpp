// The parts of a statement's text.
#include "apoyo/plataforma_prueba.h"
#include "language/coloreado.h"
#include "platform/texto.h"
#include "store/archivo.h"

#include <gtest/gtest.h>

namespace {

void Empezar() {
    EmpezarConDatos(TipoAnual, "1990#1999");
    PonerSerie("X", {1, 2, 3});
    PonerSerie("SALARIO", {1, 2, 3});
    PonerEscalar(nullptr, "ALFA", 1.0);
    const double m[] = {1.0};
    GuardarMatriz("M", m, 1, 1);
}

// One letter a character: P word, F function, N number, C code, d name that nothing bears, o target, ; comment, ? foreign, a
// point for what has no colour.
std::string Pintada(const std::string &linea) {
    std::string letras(linea.size(), '.');
    for (const Trozo &t : TrozosDeLinea(linea))
        letras.replace(static_cast<std::size_t>(t.desde), static_cast<std::size_t>(t.largo),
                       static_cast<std::size_t>(t.largo), "PFNCdo;?"[t.clase]);
    return letras;
}

constexpr struct {
    const char *linea, *pintada;
} Lineas[] = {
    {"", ""},
    {"   ", "..."},
    {"; SER X = 3", ";;;;;;;;;;;"},
    {"SER Z = X + 3.5 ; Z", "PPP.o...C...NNN.;;;"},
    {"ser z = ln(x) / nadie", "PPP.o...FF.C....ddddd"},
    {"SER X = X(-1) * ALFA", "PPP.C...C..N....CCCC"},
    {"SER FICTIC X", "PPP.PPPPPP.C"},
    {"MC SALARIO 1 X X(-1)", "PP.CCCCCCC.N.C.C..N."},
    {"MC (CA 4) SALARIO 1 X", "PP..PP.N..CCCCCCC.N.C"},
    {"CHN IR 2", "PPP.PP.N"},
    {"chn MR 1 BETA(2)-X", "PPP.PP.N.PPPP.N..C"},
    {"MC (HC) SALARIO 1 X", "PP..dd..CCCCCCC.N.C"},
    {"NADA X", "????.C"},
    {"REPITE I DESDE 1 HASTA 9", "PPPPPP.o.PPPPP.N.PPPPP.N"},
    {"  SI (ALFA > 2) ENTONCES", "..PP..CCCC...N..PPPPPPPP"},
    {"FINREPITE", "PPPPPPPPP"},
    {"VSR NO", "PPP.PP"},
    {"MAT B = DET(M)", "PPP.o...FFF.C."},
    {"SER Z = X AND _BETA", "PPP.o...C.PPP.ddddd"},
    {"OBS W[1994] = 2", "PPP.d.NNNN....N"},
};

constexpr struct {
    const char *linea;
    int posicion, pareja;
} Parejas[] = {
    {"(A)", 0, 2},     {"(A)", 2, 0},        {"(A)", 1, -1},   {"((A)", 0, -1},   {"((A)", 1, 3},
    {"((A) B)", 6, 0}, {"X[1] + (2)", 1, 3}, {"{A (B}", 0, 5}, {"(A ; )", 0, -1}, {"( ; )", 4, -1},
    {")", 0, -1},      {"", 0, -1},          {"(A)", -1, -1},  {"(A)", 3, -1},
};

} // namespace

TEST(Coloreado, CadaLinea) {
    Empezar();
    for (const auto &l : Lineas) EXPECT_EQ(Pintada(l.linea), l.pintada) << l.linea;
}

// Bytes above 127 are no name's, and nothing is read beyond a line.
TEST(Coloreado, CualquierTexto) {
    Empezar();
    EXPECT_EQ(Pintada(Texto1252DeUtf8("SER Año = 1")), "PPP.o.d...N");
    for (int c = 1; c < 256; ++c) {
        const std::string linea(3, static_cast<char>(c));
        for (const Trozo &t : TrozosDeLinea(linea)) {
            EXPECT_GE(t.desde, 0);
            EXPECT_LE(t.desde + t.largo, 3);
        }
    }
}

TEST(Coloreado, Parejas) {
    for (const auto &p : Parejas)
        EXPECT_EQ(Pareja(p.linea, p.posicion), p.pareja) << p.linea << " " << p.posicion;
}
