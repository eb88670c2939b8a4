// The pipeline of a regression: from _YDEP and _XIND to the result families, one formula a step.
#pragma once

#include "estimation/estimacion.h"

// Runs the steps over the equation that LeerEcuacion left: all that every code has in common. 1, or 0 after a message.
// The temporaries stay for the caller to delete, _YDEP and _RESM are left locked.
int EjecutarPasos(Estimacion &e);

// The steps that CR, MGD and CWH add to the common ones, and the record of the last MC or MCP. 1, or 0 after a message.
int CompletarRegresion(Estimacion &e);
