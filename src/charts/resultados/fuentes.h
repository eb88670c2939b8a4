// Where the numbers of a result come from: the steps of the trace that gave them.
//
// The lines of a result are plain text. Whoever writes one that shows computed numbers says beside it which steps they came
// from, from left to right. They are the last numbers of the line: a name on the left may look like one, too.
#pragma once

#include "language/traza.h"

#include <string>
#include <string_view>
#include <vector>

// A step by the name that it gave a value to; "=" and how its explanation begins for one whose value isn't stored.
struct FuenteDeNumero {
    std::string paso;
    int elemento =
        -1; // of its value, from 0: of a matrix by rows, of a series its values in their order; -1 for all of it
};

// The sources of the last numbers of a line; an empty one for a number that no step gave.
struct FuentesDeLinea {
    int linea; // of the result, from 0
    std::vector<FuenteDeNumero> numeros;
};
using FuentesDeSalida = std::vector<FuentesDeLinea>;

// What the record of the trace was at a moment. Of a result made without a trace, `corrida` is 0.
struct MomentoDeTraza {
    int corrida = Trazando() ? Traza.corrida : 0;
    int pasos = static_cast<int>(Traza.pasos.size());
    bool faltan = Traza.numero > static_cast<std::int64_t>(Traza.pasos.size()); // steps that were not kept
};

// True while the record still holds the steps of that moment.
bool SigueAnotado(const MomentoDeTraza &momento);

// The last step before that moment that gave this number, from 0; -1 when the record has none.
int PasoDeFuente(const FuenteDeNumero &fuente, const MomentoDeTraza &momento);

// The source of the number at a column, from 0, of a line with this text; null when no number stands there, or its step isn't
// known. `primera` and `detras` receive the columns of the number.
const FuenteDeNumero *FuenteEnColumna(std::string_view texto, const std::vector<FuenteDeNumero> &fuentes,
                                      int columna, int &primera, int &detras);
