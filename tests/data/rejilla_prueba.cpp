// The grid: where each key takes the cursor, the bars, and the field.
#include "data/editor_apoyo.h"

#include "platform/texto.h"
#include "store/archivo.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace {

enum Rejillas { SinEtiquetas_, ConEtiquetas_, DeMatriz_ };

void Abrir(Rejillas cual) {
    if (cual == DeMatriz_) {
        AbrirMatrices();
    } else {
        AbrirSeries(0, "", cual == ConEtiquetas_);
    }
}

// ----- Moves. From a cell and a position of the bars, keys, and where they lead.

struct CasoDeMovimiento {
    Rejillas rejilla;
    int columna, fila; // of the bars
    int celda;
    const char *teclas;
    int celdaFinal, columnaFinal, filaFinal;
};

constexpr CasoDeMovimiento Movimientos[] = {
    // Tab: 17 cells on, and a page of columns past the last one
    {SinEtiquetas_, 0, 0, 17, "<Tab>", 34, 0, 0},
    {SinEtiquetas_, 0, 0, 20, "<Tab>", 37, 0, 0},
    {SinEtiquetas_, 0, 0, 84, "<Tab>", 101, 0, 0},
    {SinEtiquetas_, 0, 0, 85, "<Tab>", 17, 5, 0},
    {SinEtiquetas_, 0, 0, 101, "<Tab>", 17, 5, 0},
    {SinEtiquetas_, 7, 30, 90, "<Tab>", 17, 12, 30},
    {SinEtiquetas_, 92, 0, 90, "<Tab>", 17, 95, 0},
    {SinEtiquetas_, 95, 0, 90, "<Tab>", 17, 95, 0},
    {ConEtiquetas_, 0, 0, 18, "<Tab>", 35, 0, 0},
    {ConEtiquetas_, 0, 0, 85, "<Tab>", 18, 4, 0},
    {ConEtiquetas_, 94, 0, 100, "<Tab>", 18, 96, 0},
    {DeMatriz_, 0, 0, 18, "<Tab>", 35, 0, 0},
    {DeMatriz_, 0, 0, 86, "<Tab>", 18, 5, 0},
    {DeMatriz_, 93, 0, 86, "<Tab>", 18, 95, 0},
    // Shift+Tab: 17 back, and a page of columns to the left of the first one; the cursor ends at its beginning
    {SinEtiquetas_, 0, 0, 34, "<Shift><Tab>", 17, 0, 0},
    {SinEtiquetas_, 0, 0, 101, "<Shift><Tab>", 84, 0, 0},
    {SinEtiquetas_, 0, 0, 33, "<Shift><Tab>", 17, 0, 0},
    {SinEtiquetas_, 0, 0, 17, "<Shift><Tab>", 17, 0, 0},
    {SinEtiquetas_, 7, 3, 20, "<Shift><Tab>", 17, 2, 3},
    {SinEtiquetas_, 3, 0, 20, "<Shift><Tab>", 17, 0, 0},
    {ConEtiquetas_, 0, 0, 35, "<Shift><Tab>", 18, 0, 0},
    {ConEtiquetas_, 9, 0, 34, "<Shift><Tab>", 18, 5, 0},
    {DeMatriz_, 0, 0, 35, "<Shift><Tab>", 18, 0, 0},
    {DeMatriz_, 9, 0, 20, "<Shift><Tab>", 18, 4, 0},
    // held for two, and let go
    {SinEtiquetas_, 0, 0, 90, "<Shift><Tab><Tab>", 56, 0, 0},
    {SinEtiquetas_, 0, 0, 90, "<Shift><Tab><shift><Tab>", 90, 0, 0},
    // Enter and Down: one down; below the last row a page of rows, and the first row of the same column
    {SinEtiquetas_, 0, 0, 17, "<Enter>", 18, 0, 0},
    {SinEtiquetas_, 0, 0, 32, "<Enter>", 33, 0, 0},
    {SinEtiquetas_, 0, 0, 33, "<Enter>", 18, 0, 16},
    {SinEtiquetas_, 0, 0, 34, "<Enter>", 35, 0, 0},
    {SinEtiquetas_, 0, 0, 84, "<Enter>", 69, 0, 16},
    {SinEtiquetas_, 0, 0, 101, "<Enter>", 86, 0, 16},
    {SinEtiquetas_, 4, 3980, 101, "<Enter>", 86, 4, 3984},
    {SinEtiquetas_, 4, 3984, 50, "<Enter>", 35, 4, 3984},
    {SinEtiquetas_, 0, 0, 17, "<Abajo>", 18, 0, 0},
    {SinEtiquetas_, 0, 5, 33, "<Abajo>", 18, 0, 21},
    {SinEtiquetas_, 0, 0, 101, "<Abajo>", 86, 0, 16},
    {ConEtiquetas_, 0, 0, 33, "<Enter>", 18, 0, 16},
    {ConEtiquetas_, 0, 0, 34, "<Enter>", 35, 0, 0},
    {DeMatriz_, 0, 0, 33, "<Enter>", 18, 0, 16},
    {DeMatriz_, 0, 3984, 101, "<Abajo>", 86, 0, 3984},
    // Up: one up, through the head into the bottom of the column at the left, and from the first cell to the last one
    {SinEtiquetas_, 0, 9, 18, "<Arriba>", 17, 0, 9},
    {SinEtiquetas_, 0, 9, 17, "<Arriba>", 101, 0, 9},
    {SinEtiquetas_, 0, 9, 35, "<Arriba>", 34, 0, 9},
    {SinEtiquetas_, 0, 9, 34, "<Arriba>", 33, 0, 9},
    {ConEtiquetas_, 0, 9, 18, "<Arriba>", 101, 0, 9},
    {ConEtiquetas_, 0, 9, 34, "<Arriba>", 33, 0, 9},
    {DeMatriz_, 0, 9, 18, "<Arriba>", 101, 0, 9},
    {DeMatriz_, 0, 9, 36, "<Arriba>", 35, 0, 9},
    {DeMatriz_, 0, 9, 35, "<Arriba>", 34, 0, 9},
    // Home, End
    {SinEtiquetas_, 6, 9, 60, "<Inicio>", 17, 6, 9},
    {ConEtiquetas_, 6, 9, 60, "<Inicio>", 18, 6, 9},
    {DeMatriz_, 6, 9, 60, "<Inicio>", 18, 6, 9},
    {SinEtiquetas_, 6, 9, 60, "<Fin>", 101, 6, 9},
    {DeMatriz_, 6, 9, 60, "<Fin>", 101, 6, 9},
    // Page Up, Page Down
    {SinEtiquetas_, 6, 40, 60, "<RePag>", 17, 6, 24},
    {SinEtiquetas_, 6, 16, 60, "<RePag>", 17, 6, 0},
    {SinEtiquetas_, 6, 15, 60, "<RePag>", 17, 6, 0},
    {ConEtiquetas_, 6, 40, 60, "<RePag>", 18, 6, 24},
    {SinEtiquetas_, 6, 40, 60, "<AvPag>", 17, 6, 56},
    {SinEtiquetas_, 6, 3970, 60, "<AvPag>", 17, 6, 3984},
    {DeMatriz_, 6, 40, 60, "<AvPag>", 18, 6, 56},
    {DeMatriz_, 6, 3968, 60, "<AvPag>", 18, 6, 3984},
    // From the code of the matrix every way leads into the grid.
    {DeMatriz_, 2, 3, 102, "<Tab>", 18, 2, 3},
    {DeMatriz_, 2, 3, 102, "<Shift><Tab>", 18, 2, 3},
    {DeMatriz_, 2, 3, 102, "<Enter>", 18, 2, 3},
    {DeMatriz_, 2, 3, 102, "<Abajo>", 18, 2, 3},
    {DeMatriz_, 2, 3, 102, "<Arriba>", 18, 2, 3},
    {DeMatriz_, 2, 3, 102, "<Inicio>", 18, 2, 3},
    {DeMatriz_, 2, 3, 102, "<Fin>", 101, 2, 3},
    {DeMatriz_, 2, 3, 102, "<RePag>", 18, 2, 0},
    {DeMatriz_, 2, 3, 102, "<AvPag>", 18, 2, 19},
};

std::string NombreDe(const CasoDeMovimiento &c) {
    return Formatear("rejilla %d, columna %d, fila %d, celda %d, %s", c.rejilla, c.columna, c.fila, c.celda,
                     c.teclas);
}

void Colocar(const CasoDeMovimiento &c) {
    Abrir(c.rejilla);
    EntrarEnEditor({BarraEnColumna, c.columna});
    EntrarEnEditor({BarraEnFila, c.fila});
    Clic(c.celda);
    ASSERT_EQ(Editor.CeldaActual, c.celda);
}

void EsperarLlegada(const CasoDeMovimiento &c) {
    EXPECT_EQ(Editor.CeldaActual, c.celdaFinal);
    EXPECT_EQ(Editor.ColumnaInicial, c.columnaFinal);
    EXPECT_EQ(Editor.FilaInicial, c.filaFinal);
    EXPECT_EQ(Editor.foco, FocoEnCelda);
    EXPECT_EQ(Editor.cursorCampo, 0);
}

} // namespace

TEST(Rejilla, TeclasDeLaCelda) {
    for (const CasoDeMovimiento &c : Movimientos) {
        SCOPED_TRACE(NombreDe(c));
        Colocar(c);
        Teclear(c.teclas);
        EsperarLlegada(c);
    }
}

// The same keys confirm the field and then move as they do at the cell. The field doesn't see Shift, but the cell did.
TEST(Rejilla, TeclasQueConfirman) {
    for (const CasoDeMovimiento &c : Movimientos) {
        SCOPED_TRACE(NombreDe(c));
        Colocar(c);
        std::string teclas = c.teclas;
        const std::size_t ultima = teclas.rfind('<');
        if (teclas.find("<Tab><") != std::string::npos) continue; // more than one move
        Teclear(teclas.substr(0, ultima));
        Teclear("<Derecha>");
        ASSERT_EQ(Editor.foco, FocoEnCampo);
        Teclear(teclas.substr(ultima));
        EsperarLlegada(c);
    }
}

TEST(Rejilla, ShiftEnElCampoNoSeVe) {
    AbrirSeries();
    Clic(52);
    Teclear("<Derecha><Shift><Tab>");
    EXPECT_EQ(Editor.CeldaActual, 69);
    EXPECT_EQ(Editor.ShiftPulsado, 0);
    Clic(52);
    Teclear("<Shift><Derecha><shift><Tab>"); // nor does it see it go
    EXPECT_EQ(Editor.CeldaActual, 35);
    EXPECT_EQ(Editor.ShiftPulsado, 1);
}

// A capital is typed with Shift held; the key is let go in the field, which doesn't see it.
TEST(Rejilla, UnCaracterQuitaShift) {
    AbrirSeries();
    Teclear("<Shift>A<shift><Tab>");
    EXPECT_EQ(Editor.CeldaActual, 34);
    EXPECT_EQ(Editor.ShiftPulsado, 0);
    Clic(52);
    Teclear("<Shift><Retroceso><Tab>"); // which is not printable
    EXPECT_EQ(Editor.CeldaActual, 35);
}

// ----- Opening and size

TEST(Rejilla, AlAbrir) {
    struct Caso {
        Rejillas rejilla;
        int celda, inicial;
    };
    for (const Caso &c :
         {Caso{SinEtiquetas_, 17, 17}, Caso{ConEtiquetas_, 17, 18}, Caso{DeMatriz_, 102, 18}}) {
        SCOPED_TRACE(c.rejilla);
        Abrir(c.rejilla);
        Teclear("<Shift>");
        EntrarEnEditor({BarraEnFila, 50});
        EntrarEnEditor({BarraEnColumna, 50});
        AbrirEditor(c.rejilla == DeMatriz_ ? EditorDeMatrices : EditorDeSeries);
        EXPECT_EQ(Editor.CeldaActual, c.celda);
        EXPECT_EQ(Editor.CeldaInicial, c.inicial);
        EXPECT_EQ(Editor.FilaInicial, 0);
        EXPECT_EQ(Editor.ColumnaInicial, 0);
        EXPECT_EQ(Editor.ShiftPulsado, 0);
        EXPECT_EQ(Editor.foco, FocoEnCelda);
    }
}

TEST(Rejilla, LaCabeceraDeEtiquetasSoloDejaPasar) {
    struct Caso {
        const char *teclas;
        int celda;
    };
    for (const Caso &c : {Caso{"<Tab>", 34}, Caso{"<Shift><Tab>", 18}, Caso{"<Enter>", 18},
                          Caso{"<Arriba>", 101}, Caso{"X<Enter>", 18}}) {
        SCOPED_TRACE(c.teclas);
        AbrirSeries(0, "", true);
        Teclear(c.teclas);
        EXPECT_EQ(Editor.CeldaActual, c.celda);
        EXPECT_EQ(Celda(17), "Etiquetas");
        EXPECT_EQ(Celda(34), "");
    }
}

TEST(Rejilla, ElTamanoNoCambiaLaRejilla) {
    AbrirSeries(0, "", true);
    Clic(60);
    EntrarEnEditor({BarraEnFila, 32});
    Teclear("12");
    RedimensionarEditor(1300, 700);
    EXPECT_EQ(Editor.CeldaActual, 17);
    EXPECT_EQ(Editor.CeldaInicial, 17);
    EXPECT_EQ(Editor.FilaInicial, 32);
    EXPECT_EQ(Editor.ancho, 1300);
    EXPECT_EQ(Editor.alto, 700);
    EXPECT_EQ(Campo(), "");
    EXPECT_EQ(Editor.foco, FocoEnCelda);
    EXPECT_EQ(NumCeldas, 102);
    EXPECT_EQ(FilasVisibles, 16);
    EXPECT_EQ(ColumnasVisibles, 5);
    Teclear("<Inicio>"); // the next key knows the first cell again
    EXPECT_EQ(Editor.CeldaActual, 18);
    AbrirMatrices();
    RedimensionarEditor(640, 450);
    EXPECT_EQ(Editor.CeldaActual, 102);
    Clic(40);
    RedimensionarEditor(640, 450);
    EXPECT_EQ(Editor.CeldaActual, 17);
}

// ----- Mouse

TEST(Rejilla, Clics) {
    struct Caso {
        Rejillas rejilla;
        int celda;
        bool vale;
    };
    constexpr Caso Casos[] = {
        {SinEtiquetas_, 0, false},   {SinEtiquetas_, 1, false},   {SinEtiquetas_, 16, false},
        {SinEtiquetas_, 17, true},   {SinEtiquetas_, 34, true},   {SinEtiquetas_, 101, true},
        {SinEtiquetas_, 102, false}, {SinEtiquetas_, 103, false}, {SinEtiquetas_, -1, false},
        {ConEtiquetas_, 17, false},  {ConEtiquetas_, 18, true},   {ConEtiquetas_, 34, true},
        {DeMatriz_, 17, false},      {DeMatriz_, 18, true},       {DeMatriz_, 34, true},
        {DeMatriz_, 101, true},      {DeMatriz_, 102, true},      {DeMatriz_, 103, false},
    };
    for (const Caso &c : Casos) {
        SCOPED_TRACE(Formatear("%d %d", c.rejilla, c.celda));
        Abrir(c.rejilla);
        Clic(50);
        Teclear("<Derecha>");
        Clic(c.celda);
        EXPECT_EQ(Editor.CeldaActual, c.vale ? c.celda : 50);
        EXPECT_EQ(Editor.foco, c.vale ? FocoEnCelda : FocoEnCampo);
    }
}

// A click confirms nothing.
TEST(Rejilla, UnClicPierdeLoTecleado) {
    AbrirSeries();
    Teclear("A<Enter>5<Enter>7");
    Clic(CeldaEn(1, 5));
    Clic(CeldaEn(1, 2));
    EXPECT_EQ(Celda(CeldaEn(1, 1)), "5.00");
    EXPECT_EQ(Celda(CeldaEn(1, 2)), "");
    EXPECT_EQ(Campo(), "");
    AbrirSeries();
    Teclear("A");
    Clic(CeldaEn(2, 0));
    EXPECT_EQ(Celda(CeldaEn(1, 0)), "");
}

TEST(Rejilla, ClicEnElCampo) {
    struct Caso {
        int columna, cursor;
    };
    for (const Caso &c : {Caso{0, 0}, Caso{7, 7}, Caso{20, 20}, Caso{21, 20}, Caso{-1, 0},
                          Caso{std::numeric_limits<int>::max(), 20}}) {
        AbrirSeries();
        EntrarEnEditor({ClicEnCampo, c.columna});
        EXPECT_EQ(Editor.foco, FocoEnCampo);
        EXPECT_EQ(Editor.cursorCampo, c.cursor);
    }
}

// ----- Bars

struct CasoDeBarra {
    Rejillas rejilla;
    int columna, fila; // before
    EntradasEditor clase;
    int dato;
    int columnaFinal, filaFinal;
};

constexpr CasoDeBarra Barras[] = {
    {SinEtiquetas_, 0, 0, DesplazaColumnas, 1, 1, 0},
    {SinEtiquetas_, 0, 0, DesplazaColumnas, -1, 0, 0},
    {SinEtiquetas_, 95, 0, DesplazaColumnas, 1, 95, 0},
    {SinEtiquetas_, 10, 0, PaginaDeColumnas, 1, 15, 0},
    {SinEtiquetas_, 10, 0, PaginaDeColumnas, -1, 5, 0},
    {SinEtiquetas_, 93, 0, PaginaDeColumnas, 1, 95, 0},
    {SinEtiquetas_, 0, 0, BarraEnColumna, 60, 60, 0},
    {SinEtiquetas_, 0, 0, BarraEnColumna, 96, 95, 0},
    {SinEtiquetas_, 9, 0, BarraEnColumna, -7, 0, 0},
    {ConEtiquetas_, 10, 0, PaginaDeColumnas, 1, 14, 0},
    {ConEtiquetas_, 10, 0, PaginaDeColumnas, -1, 6, 0},
    {ConEtiquetas_, 0, 0, BarraEnColumna, 200, 96, 0},
    {DeMatriz_, 10, 0, PaginaDeColumnas, 1, 15, 0},
    {DeMatriz_, 0, 0, BarraEnColumna, 200, 95, 0},
    {SinEtiquetas_, 0, 0, DesplazaFilas, 1, 0, 1},
    {SinEtiquetas_, 0, 0, DesplazaFilas, -1, 0, 0},
    {SinEtiquetas_, 0, 3984, DesplazaFilas, 1, 0, 3984},
    {SinEtiquetas_, 0, 50, PaginaDeFilas, 1, 0, 66},
    {SinEtiquetas_, 0, 50, PaginaDeFilas, -1, 0, 34},
    {SinEtiquetas_, 0, 3975, PaginaDeFilas, 1, 0, 3984},
    {SinEtiquetas_, 0, 3, BarraEnFila, 3984, 0, 3984},
    {SinEtiquetas_, 0, 3, BarraEnFila, 3985, 0, 3984},
    {SinEtiquetas_, 0, 3, BarraEnFila, -1, 0, 0},
    {DeMatriz_, 0, 3, BarraEnFila, 4000, 0, 3984},
    {SinEtiquetas_, 0, 0, PaginaDeFilas, std::numeric_limits<int>::max(), 0, 3984},
    {SinEtiquetas_, 95, 0, PaginaDeColumnas, std::numeric_limits<int>::min(), 0, 0},
};

// Columns take the cursor to the first cell; rows leave it. The field shows what stands there now.
TEST(Rejilla, LasBarras) {
    for (const CasoDeBarra &c : Barras) {
        SCOPED_TRACE(Formatear("rejilla %d, %d %d, %d %d", c.rejilla, c.columna, c.fila, c.clase, c.dato));
        Abrir(c.rejilla);
        EntrarEnEditor({BarraEnColumna, c.columna});
        EntrarEnEditor({BarraEnFila, c.fila});
        Clic(60);
        Teclear("123");
        EntrarEnEditor({c.clase, c.dato});
        EXPECT_EQ(Editor.ColumnaInicial, c.columnaFinal);
        EXPECT_EQ(Editor.FilaInicial, c.filaFinal);
        const bool porColumnas = c.clase <= BarraEnColumna;
        EXPECT_EQ(Editor.CeldaActual, porColumnas ? Editor.CeldaInicial : 60);
        EXPECT_EQ(Editor.foco, FocoEnCelda);
        EXPECT_EQ(Campo(), "");
    }
}

TEST(Rejilla, UnaFilaMasAbajoElCampoEsElSuyo) {
    AbrirSeries();
    Teclear("A<Enter>1<Enter>2<Enter>3");
    Teclear("<Enter>");
    Clic(CeldaEn(1, 1));
    EXPECT_EQ(Campo(), "        1.0000000000");
    EntrarEnEditor({DesplazaFilas, 1});
    EXPECT_EQ(Campo(), "        2.0000000000");
    EXPECT_EQ(Celda(CeldaInformacion), "2; A");
}

TEST(Rejilla, RangoDeLaBarraDeFilas) {
    AbrirSeries();
    EXPECT_EQ(TopeBarraFilas(), 3984);
    EXPECT_EQ(TopeBarraColumnas, 95);
    ArchivoTrabajo.NumObs = 4000;
    EXPECT_EQ(TopeBarraFilas(), 3984);
    ArchivoTrabajo.NumObs = 4001;
    EXPECT_EQ(TopeBarraFilas(), 3985);
    Editor.ModoEditor = EditorDeMatrices;
    EXPECT_EQ(TopeBarraFilas(), 3984);
}

// Only a damaged work file has more rows than the tables. Nothing is shown beyond them, and nothing is read.
TEST(Rejilla, ConMasFilasQueLasTablas) {
    AbrirSeries();
    Teclear("A<Enter>");
    ArchivoTrabajo.NumObs = 9000;
    EntrarEnEditor({BarraEnFila, 3990});
    EXPECT_EQ(Editor.FilaInicial, 3990);
    Clic(CeldaEn(1, 10));
    Teclear("5<Enter>"); // row 3,999, the last one
    EXPECT_EQ(ArchivoTrabajo.ValoresObs[3999][0], 5.0);
    Teclear("6<Enter>"); // none
    EXPECT_EQ(Celda(CeldaEn(0, 11)), "");
    EXPECT_EQ(Celda(CeldaEn(1, 11)), "");
    Clic(CeldaEn(1, 11));
    EXPECT_EQ(Campo(), "");
    EXPECT_EQ(Celda(CeldaInformacion), ";");
    for (const int fila : {std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
        EntrarEnEditor({BarraEnFila, fila});
        EntrarEnEditor({PaginaDeFilas, fila});
        Teclear("7<Enter><RePag><AvPag>");
        for (int c = 0; c <= CeldaInformacion; ++c) TextoDeCelda(c);
    }
}

// Each step checks the codes, whatever comes of it: a column that lost its code is cleared, and none moves.
TEST(Rejilla, DesplazarValida) {
    for (const EntradasEditor clase : {DesplazaColumnas, DesplazaFilas}) {
        AbrirSeries();
        PonerSerie("A", {1});
        PonerSerie("b", {2});
        PonerSerie("C", {3});
        PonerCodigoSerie(0, "");
        PonerCodigoSerie(2, " C");
        EntrarEnEditor({clase, 1});
        EXPECT_EQ(ArchivoTrabajo.PresenciaObs[0][0], 0);
        EXPECT_STREQ(ArchivoTrabajo.Codigos[1], "B           ");
        EXPECT_STREQ(ArchivoTrabajo.Codigos[2], "C           ");
        EXPECT_EQ(ArchivoTrabajo.ValoresObs[0][2], 3.0);
        EXPECT_EQ(Prueba.refrescos, 1);
        PonerCodigoSerie(2, "B"); // refused, in silence
        EntrarEnEditor({clase, 1});
        EXPECT_TRUE(Prueba.cajas.empty());
    }
}

// ----- The field

struct CasoDeCampo {
    const char *teclas;
    const char *campo;
    int cursor;
};

// On a code, where any character counts.
constexpr CasoDeCampo EnUnCodigo[] = {
    {"A", "A", 1},
    {"AB", "AB", 2},
    {"ABC<Izquierda>", "ABC", 2},
    {"<Izquierda>", "", 0},
    {"A<Izquierda><Izquierda>", "A", 0},
    {"AB<Derecha>", "AB", 3},
    {"AB<Izquierda>X", "AX", 2}, // over what stands there
    {"ABC<Izquierda><Izquierda><Suprimir>", "AC", 1},
    {"AB<Suprimir>", "AB", 2},
    {"ABC<Retroceso>", "AB", 2},
    {"ABC<Izquierda><Retroceso>", "AC", 1},
    {"ABC<Izquierda><Izquierda><Izquierda><Retroceso>", "ABC", 0},
    {"<Retroceso>", "", 0},
    {"<Suprimir>", "", 0},
    {"ABC<Escape>", "", 0},
    {"ABC<Escape>X", "X", 1},
    {" }~", " }", 2},              // from blank to "}"
    {"A\x1f\x7f\xd1", "A", 1},     // nothing outside
    {"a<Shift>b<shift>", "ab", 2}, // Shift isn't the field's
    // The field has 21 columns; behind the twentieth character the caret is back at the first.
    {"1234567890123456789", "1234567890123456789", 19},
    {"12345678901234567890", "12345678901234567890", 0},
    {"12345678901234567890X", "X2345678901234567890", 1},
};

TEST(Rejilla, TeclasDelCampo) {
    for (const CasoDeCampo &c : EnUnCodigo) {
        SCOPED_TRACE(c.teclas);
        AbrirSeries();
        Teclear(c.teclas);
        EXPECT_EQ(Campo(), c.campo);
        EXPECT_EQ(Editor.cursorCampo, c.cursor);
        EXPECT_EQ(Editor.foco, FocoEnCampo);
        EXPECT_EQ(Editor.CeldaActual, 17);
        EXPECT_EQ(Celda(17), "");
    }
}

// The last column is reached by the key alone; a character, and Backspace is one, begins at the first then.
TEST(Rejilla, AlFinalDelCampo) {
    const auto alFinal = [] {
        AbrirSeries();
        Teclear("AB");
        for (int i = 0; i < 30; ++i) Teclear("<Derecha>");
        EXPECT_EQ(Editor.cursorCampo, 20);
    };
    alFinal();
    Teclear("X");
    EXPECT_EQ(Campo(), "XB");
    EXPECT_EQ(Editor.cursorCampo, 1);
    alFinal();
    Teclear("<Retroceso>");
    EXPECT_EQ(Campo(), "AB");
    EXPECT_EQ(Editor.cursorCampo, 0);
    alFinal();
    Teclear("<Suprimir>");
    EXPECT_EQ(Campo(), "AB");
    EXPECT_EQ(Editor.cursorCampo, 20);
    alFinal();
    Teclear("<Izquierda>X");
    EXPECT_EQ(Campo(), "AB                 X");
    EXPECT_EQ(Editor.cursorCampo, 0);
}

// On a value only digits, point and minus are kept; the caret goes on all the same.
constexpr CasoDeCampo EnUnValor[] = {
    {"1234567890.-", "1234567890.-", 12},
    {"A", "", 1},
    {"1A2", "1 2", 3},
    {"1,5", "1 5", 3},
    {"+1", " 1", 2},
    {"1e3", "1 3", 3},
    {" 1", " 1", 2},
    {"/:", "", 2},
};

TEST(Rejilla, EnUnValorSoloCifras) {
    for (const CasoDeCampo &c : EnUnValor) {
        SCOPED_TRACE(c.teclas);
        AbrirSeries();
        Clic(CeldaEn(2, 4));
        Teclear(c.teclas);
        EXPECT_EQ(Campo(), c.campo);
        EXPECT_EQ(Editor.cursorCampo, c.cursor);
    }
}

TEST(Rejilla, QuienTieneElTeclado) {
    AbrirSeries();
    EXPECT_EQ(CeldaConCursor(), 17);
    for (const char *tecla :
         {"<Izquierda>", "<Derecha>", "<Suprimir>", "<Retroceso>", "<Escape>", "x", " "}) {
        AbrirSeries();
        Teclear(tecla);
        EXPECT_EQ(CeldaConCursor(), -1) << tecla;
    }
    for (const char *tecla : {"<Shift>", "<shift>", "~", "\x1f"}) {
        AbrirSeries();
        Teclear(tecla);
        EXPECT_EQ(CeldaConCursor(), 17) << tecla;
    }
}

TEST(Rejilla, LoQueSeLee) {
    AbrirSeries(1, "1990#1995");
    EXPECT_EQ(Utf8De1252(TextoHablado()), "Código: en blanco");
    Teclear("CONSUMO<Enter>12.5<Enter><Arriba>");
    EXPECT_EQ(TextoHablado(), "1990; CONSUMO: 12.5000000000");
    Teclear("<Arriba>");
    EXPECT_EQ(Utf8De1252(TextoHablado()), "Código: CONSUMO");
    Teclear("<Enter><Enter>");
    EXPECT_EQ(TextoHablado(), "1991; CONSUMO en blanco");
}

TEST(Rejilla, NumerosDeLasCeldas) {
    EXPECT_EQ(NumeroDeCelda(1.5, 0), "           2");
    EXPECT_EQ(NumeroDeCelda(1.5, 2), "        1.50");
    EXPECT_EQ(NumeroDeCelda(1.5, 6), "    1.500000");
    EXPECT_EQ(NumeroDeCelda(1.5, 7), "    1.500000");
    EXPECT_EQ(NumeroDeCelda(1.5, -1), "    1.500000");
    EXPECT_EQ(NumeroCompleto(-1.5), "       -1.5000000000");
}
