// The equation of a regression: from its text to the matrices _YDEP and _XIND.
#pragma once

#include "estimation/estimacion.h"

// Reads the whole statement from `posicion` of the present level on and builds _YDEP and _XIND over the range of the
// regression, which lags and leads move. 1, or 0 after a message.
int LeerEcuacion(Estimacion &e, int posicion);
