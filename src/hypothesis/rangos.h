// CRA: the rank test. Spearman's correlation between the ranks of an ordering variable and those of the absolute residuals.
#pragma once

#include "language/evaluador.h"

// Runs the statement, whose ordering text is read from its fifth character on, whatever stands there. 1, or 0 after a
// message. Its series and scalars are deleted at the end.
int ContrasteRangos(LineasSentencia &lineas, Ventana *ventana);
