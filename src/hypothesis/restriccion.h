// The text of a linear restriction on the coefficients of the last regression, as in "3*BETA(1)-BETA(2)=8".
#pragma once

#include "platform/plataforma.h"

#include <string>

// Reads a text into row `fila` of the matrix R, which is BufferMatriz with its rows set, and into r[fila]. R takes
// `coeficientes` columns, its cells that nothing was written to become 0.0, and `maximo` grows to the largest index of a
// beta. The blanks of the text are removed in it. 0, or 1 after a message. With `fila` below BufferMatriz.Filas, which
// times `coeficientes` is at most ElementosBloque.
int AnalizarRestriccion(std::string &texto, int fila, Ventana *ventana, int coeficientes, int &maximo,
                        double *r);
