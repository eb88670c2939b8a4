// Matrix primitives and special functions. Matrices are plain arrays by rows; source and destination are distinct.
// None of them reports a failure or throws: sizes are the caller's to check, and outside its domain a function is 0.0.
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

// Standard normal distribution function. The lower tail keeps its digits down to the smallest numbers, so an upper
// tail is NormalAcumulada(-x); 0.0 for what is no number.
double NormalAcumulada(double x);
// Regularised incomplete beta function I_x(a, b); 0.0 outside its domain (a > 0, b > 0, both finite, 0 <= x <= 1).
double BetaIncompleta(double a, double b, double x);
// I_x(a, b) with x = p / (p + q), for p and q of 0.0 or above, not both 0.0. Neither x nor 1 - x is formed where it
// would lose digits, as x does near 1. 0.0 outside the domain.
double BetaIncompletaDePartes(double a, double b, long double p, long double q);
// Upper regularised incomplete gamma function Q(a, x); 0.0 outside its domain (a > 0, x >= 0, both finite).
double GammaIncompleta(double a, double x);
