// The evaluator of matrix formulas.
#pragma once

#include "language/evaluador.h"

// Evaluates the formula that begins at `posicion` of lineas[NivelLinea] and stores it as
// Evaluador.CodigoMatrizDestino, which is padded.
// `primera` and `ultima` are rows and matter to the brace form only, which leaves NivelLinea raised by one: the
// caller puts it back. 1, or 0 after its message.
int EvaluarFormulaMatriz(LineasSentencia &lineas, int &posicion, Ventana *ventana, int primera, int ultima);

// A scalar function of a matrix for the series evaluator: `posicion` stands on the "(" of the argument and is moved
// behind the ")" and any sign behind it. 1, or 0 after a message.
int ValorFuncionMatriz(std::string_view nombre, double &resultado, int &posicion, LineasSentencia &lineas,
                       Ventana *ventana);
