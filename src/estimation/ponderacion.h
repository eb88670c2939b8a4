// Weighted least squares: the weight, the weighted data, and the residuals on the original ones.
#pragma once

#include "estimation/estimacion.h"

// Reads "(formula)" from `posicion`, which moves behind it, keeps the text as TextoPonderacion and evaluates it over
// the range of the regression into the series _VORD. 1, or 0 after a message.
int LeerPonderacion(Estimacion &e, const std::string &texto, int &posicion);

// Multiplies every row of _XIND and of _YDEP by the value of _VORD at its observation; a missing one counts as the 0
// that it holds. 1, or 0 after a message.
int PonderarDatos(Estimacion &e);

// The series _RESN: the dependent of the last MCP less its fitted values, both on the original data, over the range. A
// regressor that is no series counts as the number that its text begins with, so that a lagged one counts for nothing.
// Without room for the series nothing is stored. 1, or 0 after a message.
int GuardarResiduosOriginales(const Estimacion &e);
