// The grid in which series and matrices are typed, without its window: 102 cells with a head row and a head column, the
// field into which every keystroke is carried, and one routine a key. A window paints what stands here and forwards
// what the user does; a test does the same.
#pragma once

#include "platform/plataforma.h"
#include "store/limites.h"

#include <string>
#include <string_view>

// ---------------------------------------------------------------------------------------------------------------
// Cells

// Cell i stands at grid column i / 17 and grid row i mod 17; row 0 is the head row, column 0 the head column.
inline constexpr int FilasVisibles = 16;
inline constexpr int ColumnasVisibles = 5;
inline constexpr int CeldasPorColumna = FilasVisibles + 1;
inline constexpr int NumCeldas = CeldasPorColumna * (ColumnasVisibles + 1);
inline constexpr int UltimaCelda = NumCeldas - 1;
// Beside the grid: the code of the matrix, and what tells the place of the current cell.
inline constexpr int CeldaCodigoMatriz = NumCeldas;
inline constexpr int CeldaInformacion = NumCeldas + 1;

inline constexpr int AnchoCelda = 12;             // characters that a cell shows
inline constexpr int AnchoCampoEdicion = 21;      // characters of the field: a value in full takes 20
inline constexpr int AnchoCodigoCampoEdicion = 9; // characters of a code that the field shows

inline constexpr int UltimaFilaInicial =
    MaxObservaciones - FilasVisibles;                                  // lowest position of the vertical bar
inline constexpr int TopeBarraColumnas = MaxSeries - ColumnasVisibles; // range of the horizontal bar

inline int ColumnaDeCelda(int celda) {
    return celda / CeldasPorColumna;
}
inline int FilaDeCelda(int celda) {
    return celda % CeldasPorColumna;
}

// A cell is not for typing, holds a code or a label, which take any character, or a value.
enum TiposDeCelda { CeldaFija, CeldaDeTexto, CeldaDeValor };

// ---------------------------------------------------------------------------------------------------------------
// State

enum ModosDeEditor { EditorDeSeries = 0, EditorDeMatrices = 1 };
enum FocosDeEditor { FocoEnCelda, FocoEnCampo };

struct EstadoEditor {
    int ModoEditor;                           // ModosDeEditor
    int CeldaActual;                          // with the cursor: a cell of the grid, or CeldaCodigoMatriz
    int CeldaInicial;                         // where the first of the cells stands in which is typed
    int ColumnaInicial;                       // first series slot, or column of the matrix, that is shown
    int FilaInicial;                          // first observation, or row of the matrix, that is shown
    int ShiftPulsado;                         // for Shift+Tab; a cell sees the key, the field doesn't
    FocosDeEditor foco;                       // who has the keyboard: CeldaActual or CampoEdicion
    char CampoEdicion[AnchoCampoEdicion + 1]; // blank padded
    int cursorCampo;                          // column of its caret, 0 to 20
    int ancho, alto;                          // of the client area, in pixels
};

extern EstadoEditor Editor;

// What is different between series and matrices. The cells are those of the grid and CeldaCodigoMatriz.
struct ModoDeRejilla {
    int (*celdaInicial)();
    int (*columnasPorPagina)(); // of the horizontal bar
    bool (*filasAcotadas)();    // the rows end at UltimaFilaInicial
    TiposDeCelda (*tipo)(int celda);
    // False for a cell that takes no keys.
    bool (*tomaTeclas)(int celda);
    std::string (*texto)(int celda);       // what the cell shows, before it is cut
    std::string (*detalle)(int celda);     // its full content, for the field
    std::string (*informacion)(int celda); // what CeldaInformacion shows for it
    // Stores what was typed for a cell. No test is made of what can't be stored: it is dropped.
    void (*confirmar)(int celda, std::string_view texto);
    // One field of a pasted block for the cell at this column and row of the grid, which may lie beyond what is shown; the
    // text without blanks at its sides. False when it finds no place, or is no number where one belongs: nothing changes.
    bool (*pegar)(int columna, int fila, std::string_view texto);
    // What Ctrl+C takes, for a spreadsheet; numbers with all their digits and this decimal mark.
    std::string (*copiar)(char marcaDecimal);
};

extern const ModoDeRejilla RejillaDeSeries;   // editor_series.cpp
extern const ModoDeRejilla RejillaDeMatrices; // editor_matrices.cpp

const ModoDeRejilla &RejillaActual();

// ---------------------------------------------------------------------------------------------------------------
// What the user does

// Keys first: the first eight confirm what stands in the field, when it has the keyboard, and move.
enum EntradasEditor {
    PulsaTab,
    PulsaEnter,
    PulsaAbajo,
    PulsaArriba,
    PulsaInicio,
    PulsaFin,
    PulsaRePag,
    PulsaAvPag,
    PulsaIzquierda,
    PulsaDerecha,
    PulsaSuprimir,
    PulsaShift,
    SueltaShift,
    EscribeRetroceso,
    EscribeEscape,
    EscribeCaracter,  // dato: its code
    ClicEnCelda,      // dato: the cell
    ClicEnCampo,      // dato: the column of the field
    DesplazaColumnas, // dato: lines, to the right when positive
    PaginaDeColumnas, // dato: pages
    BarraEnColumna,   // dato: position of the bar
    DesplazaFilas,    // the same downwards
    PaginaDeFilas,
    BarraEnFila,
    NumEntradasEditor
};

struct EntradaEditor {
    EntradasEditor clase;
    int dato = 0;
};

// The one entry for everything that keys, mouse and bars do. Whatever `dato` is, it is safe.
void EntrarEnEditor(const EntradaEditor &entrada);

// The window opens on series or matrices: first cell, first page. On matrices the code has the cursor.
void AbrirEditor(ModosDeEditor modo);

// The window has another size. The grid never changes with it, but the cursor goes to the first column.
void RedimensionarEditor(int ancho, int alto);

// ---------------------------------------------------------------------------------------------------------------
// What the window shows

// Text of a cell of the grid or of CeldaCodigoMatriz, at most AnchoCelda characters; of CeldaInformacion the whole text.
std::string TextoDeCelda(int celda);

// The cell that the window frames, shows a caret in and reads out: the current one, or -1 while the field has the
// keyboard or the cell takes no keys.
int CeldaConCursor();

// Content and place of the current cell, for a reader of the screen.
std::string TextoHablado();

// Range of the vertical bar.
int TopeBarraFilas();

// ---------------------------------------------------------------------------------------------------------------
// For the two modes and for the commands of the window

// The cursor goes to `celda`: caret at its first column, the field shows its full content, the keyboard is hers.
void IrACelda(int celda);

// First row, first column, first cell, everything shown anew.
void PosicionInicial();

// A number as the cells and the field show it, by `decimales` (0 to 6, any other value counts as 6).
std::string NumeroDeCelda(double valor, int decimales);
std::string NumeroCompleto(double valor);

// What RefrescarEditor does to the tables: every label and code is left without blanks in front, padded. The window
// paints itself from the tables, so nothing is copied.
void NormalizarRotulos();

// The same, and the window paints anew if there is one.
void RefrescarRejilla();
