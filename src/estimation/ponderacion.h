// The weight of MCP.
#pragma once

#include "estimation/estimacion.h"

// Reads "(formula)" from `posicion`, which moves behind it, keeps the text as TextoPonderacion and evaluates it over
// the range of the regression into the series _VORD. 1, or 0 after a message.
int LeerPonderacion(Estimacion &e, const std::string &texto, int &posicion);
