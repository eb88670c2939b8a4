// How each kind of result is laid out in its window and on paper.
#pragma once

#include "charts/resultados/resultado.h"

// Where the block of lines stands in the client area.
enum LugaresDeBloque {
    BloqueCentradoAncho, // centred, but for the character that its text is moved to the right
    BloqueCentradoJusto, // centred, and held inside
    BloqueALaIzquierda   // a character behind the left edge, and as far from the right one
};

// Where titles stand on paper.
enum LugaresDeTitulos { TitulosEncima, TitulosEntreReglas, SinTitulos };

struct FormaVentana {
    TiposDeSalida tipo;
    int Contenido;      // of SalidaRegresion
    int claseImpresion; // ClasesImpresion; SinImpresion where nothing can be printed
    int columnas;       // characters of a line that are shown; the block is as wide
    int topeBarra;      // the vertical bar runs from 0 to here; 0: the window doesn't scroll
    LugaresDeBloque lugar;
    bool marco;       // the client area has a frame
    int grosor;       // of the rules
    int filasVacias;  // in the window's block, above the first and below the last line
    bool conGraficos; // the second entry of the menu is "&Gráficos", not "&Salir"
    LugaresDeTitulos titulos;
    const char *tituloImpreso; // null: the title of the window
    int margenImpreso;         // lines of a page that its records leave free; 0: as many fit as the paper has
};

inline constexpr int SinImpresion = -1;

// The row of a result; one of an unknown content is laid out as a report and can't be printed.
const FormaVentana &FormaDe(const SalidaResultado &salida);

// Width of the client area when the window opens, in characters.
int ColumnasAlAbrir(const FormaVentana &forma);

// The least width of the client area that shows the block whole.
int ColumnasMinimas(const FormaVentana &forma);
