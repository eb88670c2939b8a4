// Descriptive measures of chosen series, and their correlations.
#pragma once

#include "charts/resultados/resultado.h"
#include "platform/plataforma.h"
#include "store/periodos.h"

#include <string>
#include <vector>

struct MedidasDescriptivas {
    double media, desviacion; // the deviation is that of the values themselves: the divisor is their number
    double minimo, maximo;
};

// Measures of the present values of a series (its slot) in the rows. Where the first row has no value the extremes begin
// at 9999999 and -9999999, so that values beyond aren't seen; without any value mean and deviation are 0.
MedidasDescriptivas MedirSerie(int serie, const FilasDeMuestra &filas);

// Correlation of two series about the means given. All rows count, those without a value as the zero that they hold. 0
// where one of the two doesn't vary.
double CorrelacionDeSeries(int serie1, double media1, int serie2, double media2, const FilasDeMuestra &filas);

// OK of the dialog: the measures of the chosen series over the present sample, in their order, in a window. 1, or 0 after
// "Demasiadas series escogidas" (more than 9) or "Escoja una serie", title "Aviso", or after "Serie no Encontrada. Pto 86",
// title "Proceso cancelado", for a code that is gone.
int AceptarDescriptivos(Ventana *ventana, const std::vector<std::string> &elegidas);
