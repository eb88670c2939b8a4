// Matrix primitives and special functions. Matrices are plain arrays by rows; source and destination are distinct.
#pragma once

// C = A B. C has `filasA` rows and `columnasB` columns. Every element is the sum of its products from left to right.
void MultiplicarMatrices(const double *A, const double *B, int filasA, int columnasA, int columnasB, double *C);
// C = escalar A
void EscalarPorMatriz(const double *A, double escalar, int filas, int columnas, double *C);
// C = A + B
void SumarMatrices(const double *A, const double *B, int filas, int columnas, double *C);
// C = A', columnas by filas
void TrasponerMatriz(const double *A, int filas, int columnas, double *C);
double Determinante(const double *A, int orden);

// Standard normal distribution function.
double NormalAcumulada(double x);
// Regularised incomplete beta function I_x(a, b); 0.0 outside its domain.
double BetaIncompleta(double a, double b, double x);
// Upper regularised incomplete gamma function Q(a, x); 0.0 outside its domain.
double GammaIncompleta(double a, double x);
