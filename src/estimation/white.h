// The equation of White's test, which the program makes itself.
#pragma once

#include "estimation/estimacion.h"

// Reads the options PC and RA, makes the series _RESCUAD and replaces `linea` by the equation of the squared residuals
// on the regressors of the last regression, `posicion` at its start. 1, or 0 after a message.
int PrepararWhite(Estimacion &e, std::string &linea, int &posicion);

// Widens the list of regressors that was read: a constant if there is none, the squares, with PC the products of
// pairs; then drops the columns that repeat an earlier one. 1, or 0 after a message.
int AmpliarRegresores(Estimacion &e);
