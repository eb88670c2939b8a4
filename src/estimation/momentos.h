// The sums over the observations of a regression.
#pragma once

#include "estimation/estimacion.h"

// _TMF5 := X'X and _TMF6 := X'y, with y the dependent's series: one outer product an observation is added, in the
// order of the observations. _TMF2, _TMF3 and _TMF4 keep the last observation. 1, or 0 after a message.
int AcumularMomentos(Estimacion &e);

// _SCR1 := the sum of the squared elements of _RESM, in the same way. 1, or 0 after a message.
int AcumularResiduos(Estimacion &e);

// Sum, mean and variation of _YDEP and the differences of _RESM. 1, or 0 after a message.
int SumarDirecto(Estimacion &e);
