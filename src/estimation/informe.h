// The report of a regression, as lines of text.
#pragma once

#include "charts/resultado.h"

#include <string>
#include <vector>

// A number of a report: `decimales` from 0 to 7, any other count means 10. At the right of `ancho` characters; a longer
// one is cut to its first `ancho` - 1 characters.
std::string NumeroCampo(int decimales, double valor, int ancho);

// Title of the result window of a code.
std::string TituloRegresion(int codigo);

// A part of the sample as Goldfeld and Quandt's test orders it: positions from 1, both included, and the row of the
// first one.
struct ParteMuestra {
    int primera, ultima;
    int fila;
};

// Appends the block of a regression to `texto` and its rows to `tablas`. The code selects the results: 8 and 13; 10
// and 11, with the part of the ordered sample that they ran on; 12, with names at the left. 1, or 0 after a message when
// a result is gone.
int BloqueRegresion(TextoSalida &texto, std::vector<TablaCoeficientes> &tablas, Ventana *ventana, int codigo,
                    const ParteMuestra *parte);

// Decides whether the regression of MC or MCP is shown, asks, builds the report and opens its window, which returns
// when it is closed. For 10, 11 and 104 after a weighted regression: the box "Utilice MC ordinarios" and nothing else.
void MostrarRegresion(Ventana *ventana, int codigo);
