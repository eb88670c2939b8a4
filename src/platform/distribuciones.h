// Distribution functions and the special functions below them. None of them reports a failure or throws: outside its
// domain a function is 0.0.
#pragma once

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
