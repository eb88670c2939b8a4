// Tail probabilities: the one routine through which every probability of the program is computed.
#pragma once

// Probability that the distribution `tipo` ('t', 'f', 'n', 'c') exceeds x, in absolute value for t and the normal.
// gl1 and gl2 are the degrees of freedom: t and chi-square use gl1, F uses gl1 (numerator) and gl2 (denominator).
// 1, or 0 with `resultado` 0.0 when the expression under the division is not positive. Any other `tipo` gives 1 and
// leaves `resultado` alone. Outside the domain of the functions the result is 0.0.
int Probabilidad(char tipo, double x, double gl1, double gl2, double &resultado);
