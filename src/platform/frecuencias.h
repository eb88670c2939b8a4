// Frequency counting.
#pragma once

// Counts `nValores` values into the classes that `nLimites` rising limits part: resultados[i] receives the number of values
// from limites[i] on that stay below limites[i + 1]; the last class takes its upper limit, too. A value outside the limits
// counts nowhere. `resultados` has room for nLimites - 1 counts. The last two arguments are 0.
void ContarFrecuencias(const double *valores, const double *limites, double *resultados, int nValores,
                       int nLimites, int, int);
