// The diagram of predictions against observations.
#pragma once

#include "platform/plataforma.h"

// Draws what the last prediction compares. 1, or 0 without a chart: no prediction came to its report, or it took the
// original values, of which there is no diagram.
int AbrirDiagramaPrediccion(Ventana *ventana);
