// Blocks between the grid and a spreadsheet.
#include "data/portapapeles.h"

#include "data/editor_apoyo.h"
#include "platform/campos_texto.h"
#include "platform/numeros.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

std::string CodigoDe(int serie) {
    return std::string(Recortado(ArchivoTrabajo.Codigos[serie]));
}

// Values of a slot in rows 0 to n - 1, "-" for a missing one.
std::string Columna(int serie, int n) {
    std::string r;
    for (int i = 0; i < n; ++i)
        r += (i > 0 ? " " : "") + (ArchivoTrabajo.PresenciaObs[i][serie] == 1
                                       ? Formatear("%g", ArchivoTrabajo.ValoresObs[i][serie])
                                       : std::string("-"));
    return r;
}

// How many fields the box counted, 0 without a box.
int SinPegar() {
    if (Prueba.cajas.empty()) return 0;
    EXPECT_EQ(Prueba.cajas.size(), 1u);
    EXPECT_EQ(Prueba.cajas[0].titulo, "Aviso");
    const std::string texto = Prueba.cajas[0].texto;
    const std::string principio = "Datos sin pegar: ";
    EXPECT_EQ(texto.substr(0, principio.size()), principio);
    const int n = LeerEntero(texto.substr(principio.size()));
    EXPECT_EQ(texto, Formatear("Datos sin pegar: %d. Les falta código o fila, o no son números.", n));
    return n;
}

} // namespace

// ----- Numbers

struct CasoDeNumero {
    const char *texto;
    const char *numero; // null: none
};

constexpr CasoDeNumero Numeros[] = {
    {"1", "1"},
    {"-1", "-1"},
    {"+1", "1"},
    {"1.5", "1.5"},
    {"1,5", "1.5"},
    {",5", ".5"},
    {".5", ".5"},
    {"5,", "5"},
    {"1.234", "1.234"},
    {"1,234", "1.234"},
    {"1.234,5", "1234.5"},
    {"1,234.5", "1234.5"},
    {"1.234.567", "1234567"},
    {"1,234,567", "1234567"},
    {"-1.234.567,25", "-1234567.25"},
    {"12.345.678", "12345678"},
    {"1e3", "1e3"},
    {"1,5E-3", "1.5e-3"},
    {"2e+5", "2e+5"},
    {"1.2.3", nullptr},
    {"1234.567.890", nullptr},
    {"1.23.456", nullptr},
    {"1.2345,6", nullptr},
    {".123,5", nullptr},
    {"1.5,5,5", nullptr},
    {"1,234.567.890", nullptr},
    {"", nullptr},
    {"-", nullptr},
    {".", nullptr},
    {",", nullptr},
    {"e3", nullptr},
    {"1e", nullptr},
    {"1e+", nullptr},
    {"1e2.5", nullptr},
    {"1e2e3", nullptr},
    {"1e999", nullptr}, // beyond what a value can be
    {"--1", nullptr},
    {"1-2", nullptr},
    {"1 2", nullptr},
    {"12%", nullptr},
    {"A", nullptr},
    {"0x10", nullptr},
    {"nan", nullptr},
    {"inf", nullptr},
};

TEST(Portapapeles, Numeros) {
    for (const CasoDeNumero &c : Numeros) {
        SCOPED_TRACE(c.texto);
        std::string numero;
        EXPECT_EQ(NumeroPegado(c.texto, numero), c.numero != nullptr);
        if (c.numero != nullptr) {
            EXPECT_EQ(numero, c.numero);
        }
    }
}

TEST(Portapapeles, NumerosParaLaHoja) {
    EXPECT_EQ(NumeroParaHoja(1.5, '.'), "1.5");
    EXPECT_EQ(NumeroParaHoja(-1.5, ','), "-1,5");
    EXPECT_EQ(NumeroParaHoja(0.1, ','), "0,1");
    for (const double v :
         {1.0 / 3, 1e300, -5e-324, std::numeric_limits<double>::max(), 123456789.123456789, -0.0, 1e22}) {
        for (const char marca : {'.', ','}) {
            std::string numero;
            ASSERT_TRUE(NumeroPegado(NumeroParaHoja(v, marca), numero)) << v;
            EXPECT_EQ(LeerDecimal(numero), v);
        }
    }
}

TEST(Portapapeles, Lineas) {
    EXPECT_EQ(LineaDeHoja({}), "\n");
    EXPECT_EQ(LineaDeHoja({"a", "", "b"}), "a\t\tb\n");
    EXPECT_EQ(LineaDeHoja({"a\tb", "c\nd\re"}), "a b\tc d e\n");
}

// ----- Pasting series

TEST(Portapapeles, UnBloqueConCodigos) {
    AbrirSeries(1, "1990#1992");
    PegarEnEditor(nullptr, "renta\tgasto\r\n1,5\t2\r\n3\t\r\n-4.25\t6\r\n");
    EXPECT_EQ(CodigoDe(0), "renta"); // as they are typed
    EXPECT_EQ(CodigoDe(1), "gasto");
    EXPECT_EQ(Columna(0, 4), "1.5 3 -4.25 -");
    EXPECT_EQ(Columna(1, 4), "2 - 6 -");
    EXPECT_EQ(SinPegar(), 0);
    EXPECT_EQ(Editor.CeldaActual, 17);
    EXPECT_EQ(Campo(), "renta");
    EXPECT_EQ(Prueba.refrescos, 1);
}

struct CasoDeBloque {
    const char *bloque;
    const char *a, *b; // columns A and B in rows 0 to 3, which were 1 2 3 - and 4 5 6 -
    int sinPegar;
};

// From the cell of A in the second row, of a work file of four rows.
constexpr CasoDeBloque Bloques[] = {
    {"9", "1 9 3 -", "4 5 6 -", 0},
    {"9\n", "1 9 3 -", "4 5 6 -", 0},
    {"9\r\n8", "1 9 8 -", "4 5 6 -", 0},
    {"9\r8", "1 9 8 -", "4 5 6 -", 0},
    {"9\t8", "1 9 3 -", "4 8 6 -", 0},
    {" 9 \t 8 ", "1 9 3 -", "4 8 6 -", 0},
    {"", "1 2 3 -", "4 5 6 -", 0},
    {"\t8", "1 - 3 -", "4 8 6 -", 0}, // nothing is a missing value
    {"\n\n7", "1 - - 7", "4 5 6 -", 0},
    {"x\t8", "1 2 3 -", "4 8 6 -", 1}, // no number
    {"x\ty\nz", "1 2 3 -", "4 5 6 -", 3},
    {"9\t8\t7", "1 9 3 -", "4 8 6 -", 1},    // no code
    {"9\t8\t", "1 9 3 -", "4 8 6 -", 0},     // and nothing to lose
    {"9\n8\n7\n6", "1 9 8 7", "4 5 6 -", 1}, // no row
    {"9\n8\n7\n\n\n", "1 9 8 7", "4 5 6 -", 0},
    {"-\t---", "1 2 3 -", "4 5 6 -", 2},
};

TEST(Portapapeles, DesdeUnaCelda) {
    for (const CasoDeBloque &c : Bloques) {
        SCOPED_TRACE(c.bloque);
        AbrirSeries(1, "1990#1993");
        PonerSerie("A", {1, 2, 3});
        PonerSerie("B", {4, 5, 6});
        Clic(CeldaEn(1, 2));
        PegarEnEditor(nullptr, c.bloque);
        EXPECT_EQ(Columna(0, 4), c.a);
        EXPECT_EQ(Columna(1, 4), c.b);
        EXPECT_EQ(Columna(2, 4), "- - - -");
        EXPECT_EQ(SinPegar(), c.sinPegar);
    }
}

// The block goes on beyond what is shown, to the last slot and the last row.
TEST(Portapapeles, MasAllaDeLoQueSeVe) {
    AbrirSeries();
    EntrarEnEditor({BarraEnColumna, 95});
    EntrarEnEditor({BarraEnFila, 3980});
    Clic(CeldaEn(4, 0));
    PegarEnEditor(nullptr, "Y\tZ\tNADA\n1\t2\t3\n4\t5");
    EXPECT_EQ(CodigoDe(98), "Y");
    EXPECT_EQ(CodigoDe(99), "Z");
    EXPECT_EQ(ArchivoTrabajo.ValoresObs[3980][98], 1.0);
    EXPECT_EQ(ArchivoTrabajo.ValoresObs[3981][99], 5.0);
    EXPECT_EQ(SinPegar(), 2); // NADA and its 3
    Prueba.cajas.clear();
    std::string bloque;
    for (int i = 0; i < 30; ++i) bloque += Formatear("%d\n", i);
    Clic(CeldaEn(4, 1));
    PegarEnEditor(nullptr, bloque);
    EXPECT_EQ(ArchivoTrabajo.ValoresObs[3999][98], 19.0);
    EXPECT_EQ(SinPegar(), 10);
}

// A head without text keeps the code that is there.
TEST(Portapapeles, CodigosEnBlanco) {
    AbrirSeries();
    PonerSerie("A", {1});
    PonerSerie("B", {2});
    PegarEnEditor(nullptr, "\tNUEVO\n7\t8\n");
    EXPECT_EQ(CodigoDe(0), "A");
    EXPECT_EQ(CodigoDe(1), "NUEVO");
    EXPECT_EQ(Columna(0, 2), "7 -");
    EXPECT_EQ(Columna(1, 2), "8 -");
    EXPECT_EQ(SinPegar(), 0);
}

TEST(Portapapeles, ConEtiquetas) {
    AbrirSeries(0, "", true);
    PegarEnEditor(nullptr, "Lugar\tA\nPeñón\t1\n\t2\n"_w);
    EXPECT_EQ(SinPegar(), 0);
    EXPECT_EQ(Celda(18), "Peñón");
    EXPECT_EQ(Celda(19), "");
    EXPECT_EQ(CodigoDe(0), "A");
    EXPECT_EQ(Columna(0, 3), "1 2 -");
    ArchivoTrabajo.ConEtiquetas = 1;
    PonerTextoPeriodo(1, ""); // where the work file has no row there is no label
    Clic(18);
    PegarEnEditor(nullptr, "uno\ndos");
    EXPECT_EQ(Celda(18), "uno");
    EXPECT_EQ(Celda(19), "");
    EXPECT_EQ(SinPegar(), 1);
}

// What was typed and not confirmed goes, as with a click.
TEST(Portapapeles, PegarMientrasSeTeclea) {
    AbrirSeries();
    PonerSerie("A", {1, 2});
    Clic(CeldaEn(1, 1));
    Teclear("33");
    PegarEnEditor(nullptr, "7");
    EXPECT_EQ(Columna(0, 2), "7 2");
    EXPECT_EQ(Campo(), "        7.0000000000");
    EXPECT_EQ(Editor.foco, FocoEnCelda);
}

// ----- Copying series

TEST(Portapapeles, SeCopiaLaMuestra) {
    AbrirSeries(1, "1990#1994");
    PonerSerie("A", {1.5, 2.5, 3.5, 4.5, 5.5});
    PonerSerie("B", {10, std::numeric_limits<double>::quiet_NaN(), 1.0 / 3, 40, 50});
    EXPECT_EQ(CopiarDelEditor('.'), "A\tB\n1.5\t10\n2.5\t\n3.5\t0.3333333333333333\n4.5\t40\n5.5\t50\n");
    MuestraDeSentencia("MUEST 1991 1992");
    EXPECT_EQ(CopiarDelEditor(','), "A\tB\n2,5\t\n3,5\t0,3333333333333333\n");
    PonerCodigoSerie(0, "");
    EXPECT_EQ(CopiarDelEditor('.'), "B\n\n0.3333333333333333\n");
}

TEST(Portapapeles, SinDatosLaMuestraEsElArchivo) {
    AbrirSeries(1, "1990#1991");
    EXPECT_EQ(CopiarDelEditor('.'), "\n\n\n");
    Teclear("A<Enter>");
    EXPECT_EQ(CopiarDelEditor('.'), "A\n\n\n");
}

TEST(Portapapeles, IdaYVuelta) {
    AbrirSeries(0, "", true);
    PonerSerie("A", {0.1, 1e-300, -7});
    PonerSerie("B", {1, 2, 1.0 / 7});
    PonerCampo(ArchivoTrabajo.EtiquetasObs[0], "Peñón"_w, AnchoEtiqueta);
    MuestraDeSentencia("MUEST 1 3");
    const std::string copia = CopiarDelEditor(',');
    EXPECT_EQ(copia, "Etiquetas\tA\tB\nPeñón\t0,1\t1\n\t1e-300\t2\n\t-7\t0,14285714285714285\n"_w);
    BorrarTodasLasSeries(true);
    AbrirEditor(EditorDeSeries);
    PegarEnEditor(nullptr, copia);
    EXPECT_EQ(SinPegar(), 0);
    EXPECT_EQ(ArchivoTrabajo.ValoresObs[1][0], 1e-300);
    EXPECT_EQ(ArchivoTrabajo.ValoresObs[2][1], 1.0 / 7);
    EXPECT_EQ(CodigoDe(1), "B");
    EXPECT_EQ(Celda(18), "Peñón");
}

// ----- Matrices

TEST(Portapapeles, UnaMatriz) {
    AbrirMatrices();
    EXPECT_EQ(CopiarDelEditor('.'), "");
    Clic(CeldaEn(2, 3));
    PegarEnEditor(nullptr, "1,5\t2\n\t3\n");
    EXPECT_EQ(SinPegar(), 0);
    EXPECT_EQ(BufferMatriz.datos[2 * 40 + 1], 1.5);
    EXPECT_EQ(BufferMatriz.presencia[3 * 40 + 1], 0);
    EXPECT_EQ(BufferMatriz.datos[3 * 40 + 2], 3.0);
    EXPECT_EQ(CopiarDelEditor(','), "1,5\t2\n\t3\n");
    PegarEnEditor(nullptr, "x\t\n");
    EXPECT_EQ(SinPegar(), 1);
    EXPECT_EQ(BufferMatriz.datos[2 * 40 + 1], 1.5);
    EXPECT_EQ(BufferMatriz.presencia[2 * 40 + 2], 0);
}

// What was typed stands more to the left below than above.
TEST(Portapapeles, UnaMatrizEscalonada) {
    AbrirMatrices();
    Clic(CeldaEn(3, 1));
    PegarEnEditor(nullptr, "1\n");
    Clic(CeldaEn(1, 2));
    PegarEnEditor(nullptr, "2\t3\t\t\t4\n");
    Clic(CeldaEn(2, 4));
    PegarEnEditor(nullptr, "5\n");
    EXPECT_EQ(CopiarDelEditor('.'), "\t\t1\t\t\n2\t3\t\t\t4\n\t\t\t\t\n\t5\t\t\t\n");
}

// No wrapping: beyond the 40th column and row there is no place.
TEST(Portapapeles, ElBordeDelArea) {
    AbrirMatrices();
    EntrarEnEditor({BarraEnColumna, 38});
    EntrarEnEditor({BarraEnFila, 38});
    Clic(CeldaEn(1, 1));
    PegarEnEditor(nullptr, "1\t2\t3\n4\t5\t6\n7\t\t\n");
    EXPECT_EQ(SinPegar(), 3);
    EXPECT_EQ(BufferMatriz.datos[38 * 40 + 38], 1.0);
    EXPECT_EQ(BufferMatriz.datos[1599], 5.0);
    EXPECT_EQ(BufferMatriz.presencia[39 * 40], 0);
    EXPECT_EQ(CopiarDelEditor('.'), "1\t2\n4\t5\n");
}

TEST(Portapapeles, ElCodigoDeLaMatriz) {
    AbrirMatrices();
    PegarEnEditor(nullptr, "beta larga\t\n");
    EXPECT_STREQ(BufferMatriz.Codigo, "beta lar    ");
    EXPECT_EQ(SinPegar(), 0);
    PegarEnEditor(nullptr, "\n");
    EXPECT_STREQ(BufferMatriz.Codigo, "beta lar    ");
    PegarEnEditor(nullptr, "A\t1\n2\n");
    EXPECT_STREQ(BufferMatriz.Codigo, "A           ");
    EXPECT_EQ(SinPegar(), 2);
    Clic(35);
    Teclear("<Arriba>"); // the head of a column
    Prueba.cajas.clear();
    PegarEnEditor(nullptr, "3\n4\n");
    EXPECT_EQ(SinPegar(), 1);
    EXPECT_EQ(BufferMatriz.datos[1], 4.0);
}
