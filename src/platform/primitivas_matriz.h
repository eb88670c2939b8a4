// Matrix primitives. Matrices are plain arrays by rows; source and destination are distinct. None of them reports a
// failure or throws: sizes are the caller's to check.
#pragma once

// C = A B. A has filasA rows and columnasA columns, C has filasA rows and columnasB columns. Every element is the sum
// of its products from left to right, begun with 0.0 and with one rounding for each product and each sum: whoever
// accumulates the same products in this order has the same bits.
void MultiplicarMatrices(const double *A, const double *B, int filasA, int columnasA, int columnasB,
                         double *C);
// C = escalar A
void EscalarPorMatriz(const double *A, double escalar, int filas, int columnas, double *C);
// C = A + B
void SumarMatrices(const double *A, const double *B, int filas, int columnas, double *C);
// C = A', columnas by filas
void TrasponerMatriz(const double *A, int filas, int columnas, double *C);
// Determinant of the orden by orden matrix A, by its LU decomposition with partial pivoting. A is left alone.
double Determinante(const double *A, int orden);
