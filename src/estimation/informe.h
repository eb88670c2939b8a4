// The report of a regression, as lines of text.
#pragma once

#include "charts/resultados/resultado.h"

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

// What a result window shows: its lines, where its coefficient tables stand, and the same for a spreadsheet.
struct InformeProducido {
    TextoSalida lineas;
    std::vector<TablaCoeficientes> tablas;
    std::string tabla; // may stay empty
};

// Fills the report of a code. 1, or 0 after a message.
using ProductorDeInforme = int (*)(InformeProducido &informe, Ventana *ventana, int clase);

// Opens the result window of a code of a regression or of a test, and returns when it is closed. For 10, 11 and 104
// after a weighted regression: the box "Utilice MC ordinarios" and nothing else. For 8 and 13 only when VerRegresion is
// set and the user answers yes to "¿Desea ver la regresion?". A report that can't be filled opens no window.
void MostrarSalida(Ventana *ventana, int clase, ProductorDeInforme producir);

// MostrarSalida with the block of the regression that has just run.
void MostrarRegresion(Ventana *ventana, int codigo);
