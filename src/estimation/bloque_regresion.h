// The block of a regression in a report: its lines, and the same for a spreadsheet. Everything is read back from the store
// by name.
#pragma once

#include "charts/resultados/resultado.h"

#include <string>
#include <vector>

// A part of the sample as Goldfeld and Quandt's test orders it: positions from 1, both included, and the row of the
// first one.
struct ParteMuestra {
    int primera, ultima;
    int fila;
};

// Appends the block of a regression to `texto` and its rows to `tablas`. The code selects the results: 8 and 13; 10
// and 11, with the part of the ordered sample that they ran on; 12, with names at the left. 1, or 0 after a message when
// a result is gone. `fuentes`, when given, receives those of its numbers.
int BloqueRegresion(TextoSalida &texto, std::vector<TablaCoeficientes> &tablas, Ventana *ventana, int codigo,
                    const ParteMuestra *parte, FuentesDeSalida *fuentes = nullptr);

// The numbers of the block, once BloqueRegresion has found all of its results.
RegresionMostrada RegresionDe(int codigo, const ParteMuestra *parte);

// The coefficients with their statistics, then the statistics of the whole: fields parted by tabulators, numbers with all
// their digits. Code and part select the results as above; those that are gone are left out.
std::string TablaRegresion(int codigo, const ParteMuestra *parte = nullptr);
