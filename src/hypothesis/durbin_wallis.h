// The tests of autocorrelation that are statements without arguments: Durbin's h and Wallis's statistic.
#pragma once

#include "language/evaluador.h"

// CDU: h from _DW and the variance of the coefficient of the regressor with the shortest lag. 1, or 0 after a message:
// "No se encuentra la matriz de covarianza", "No existen retardos en la regresión", "Secuencia no válida", title "Aviso". A
// negative variance of h shows "El resultado es un número imaginario" and goes on with 0.
int ContrasteDurbin(LineasSentencia &lineas, Ventana *ventana);

// CWA: the statistic of fourth order from _RES. 1, or 0 after a message, title "Aviso". The title of the main window is
// "Tabira" afterwards.
int ContrasteWallis(LineasSentencia &lineas, Ventana *ventana);
