// The grid on series: which place of the tables a cell stands for, and how what is typed or pasted enters it.
#pragma once

#include "platform/plataforma.h"

#include <string_view>

enum LugaresDeSerie {
    LugarNinguno, // beyond the tables
    LugarEsquina,
    LugarPeriodo,
    LugarCabeceraEtiquetas,
    LugarEtiqueta,
    LugarCodigo,
    LugarValor
};

// What a cell stands for. `serie` is a slot (codes and values), `fila` an observation (periods, labels and values), both
// within the tables; -1 where the kind has none.
struct LugarDeSerie {
    LugaresDeSerie clase;
    int serie, fila;
};

// Of a cell of the grid, at the present position of the bars; and of a column and a row of the grid, from 0, that may lie
// beyond the cells.
LugarDeSerie LugarDeCelda(int celda);
LugarDeSerie LugarEnRejilla(int columna, int fila);

// True where a value is kept: the slot has a code and the row has a period.
bool AdmiteValor(int serie, int fila);

// Checks all codes and closes the series up. False after the message of a code that is refused, title "Proceso
// cancelado".
bool ValidarYCompactar(Ventana *ventana);

// The one way in, for what is typed and what is pasted. A code or a label is cut to 12 characters, and no test is made of
// it: a blank code deletes the series at the next check of all codes. A value is what the text begins with as a number;
// blank, or where AdmiteValor is false, it is missing. Other places take nothing.
void EntrarEnSerie(const LugarDeSerie &lugar, std::string_view texto);
