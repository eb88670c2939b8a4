// Inverse of a small matrix by Crout's LU decomposition with a fixed tolerance.
#pragma once

#include "platform/plataforma.h"

// Inverse of the n by n matrix A (by rows) into Ainv. 1; 0 on failure (above 17 by 17 after the box "Demasiados
// regresores", title "Proceso Cancelado"); 2 for a singular matrix.
int InvertirMatriz(const double *A, int n, double *Ainv, Ventana *ventana);
