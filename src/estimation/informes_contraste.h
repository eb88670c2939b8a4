// The reports of the tests that are regressions themselves: CR, CGQ and CWH.
#pragma once

#include "estimation/informe.h"

// Each fills the report of its code from the store, UltimaRegresion and UltimoContraste. 1, or 0 after a message when a
// result is gone.

// CR: the regression that it restricts, its own names, and its statistic.
int InformeModeloRestringido(InformeProducido &informe, Ventana *ventana, int codigo);

// CGQ: the sums of squares of the two parts of the ordered sample and their quotient; with RA the regression of the
// denominator, then that of the numerator. What it prints as F divides each sum by the observations of its part, though
// the probability beside it belongs to the statistic with degrees of freedom: the two agree for parts of equal size.
int InformeGoldfeldQuandt(InformeProducido &informe, Ventana *ventana, int codigo);

// CWH: its statistic; with RA the auxiliary regression.
int InformeWhite(InformeProducido &informe, Ventana *ventana, int codigo);
