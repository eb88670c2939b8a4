// What the files of the matrix evaluator share: its elements, level by level.
#pragma once

#include "language/evaluador.h"
#include "matrix/operaciones_matriz.h"

#include <string>
#include <string_view>

// ----- Characters and tokens

// A character that a matrix formula can hold; any other one ends it.
inline bool EsCaracterMatriz(char c) {
    return EsCaracterFormula(c) || c == '\'' || c == '$' || c == '_';
}

// Skips blanks and reads a token: an operator by itself, or what stands before the next operator, blank, parenthesis
// or character that ends a formula. It is empty before a parenthesis and at the end. `posicion` is moved behind it.
std::string_view LeerElementoMatriz(const std::string &texto, int &posicion);

// ----- Expressions

// Evaluates the buffer of the current level from `posicion` to where the formula ends. 1, or 0 after a message.
int EvaluarExpresionMatriz(LineasSentencia &lineas, int &posicion, Ventana *ventana);

// Evaluates what stands between the "(" at `posicion` and its ")" in the next level's buffer, on the same stacks, and
// moves `posicion` behind the ")". 1, or 0 after a message ("Excesivos paréntesis", Pto 12, at level 11).
int EvaluarParentesisMatriz(LineasSentencia &lineas, int &posicion, Ventana *ventana);

// Applies the ' or $ that stands at `posicion`, if one does. 1, or 0 after a message.
int AplicarSignoDirecto(const LineasSentencia &lineas, int &posicion, Ventana *ventana);

// ----- Operands

enum ResultadosOperando { OperandoFallido, OperandoTratado, NoEsOperando };

// Pushes the operand that the token names: a matrix, a number, a scalar or the value of a function, in this order.
// A matrix behind an operand is multiplied at once. OperandoFallido after a message.
ResultadosOperando OperandoMatriz(std::string_view token, LineasSentencia &lineas, int &posicion,
                                  Ventana *ventana);

// Applies a function to the parenthesised argument at `posicion` (NOBS has none). `resultado` receives the value of a
// scalar function, else 0.0; DIAG, VECT, LNMT and RCMT leave a matrix on the stack, and a ' or $ behind them unread,
// while behind the others it is applied to the argument. 1, or 0 when the argument doesn't suit the function, without
// a message, or could not be evaluated, after one.
int AplicarFuncionMatriz(std::string_view nombre, double &resultado, int &posicion, LineasSentencia &lineas,
                         Ventana *ventana);
// True for the four functions that leave a matrix.
bool DaMatriz(std::string_view funcion);

// ----- Results

// Stores a matrix as CodigoMatrizDestino. 1, or 0 after "Demasiadas Matrices. Borre algunas.: %d" (Pto 31) or "Falta
// memoria" (Pto 25).
int GuardarMatrizDestino(const double *datos, int filas, int columnas, Ventana *ventana);

// The form { a b c ... } that begins at `posicion`: one column for each series, scalar or number, one row for each
// observation. NivelLinea stays raised. 1, or 0 after a message.
int EvaluarLlaves(LineasSentencia &lineas, int &posicion, Ventana *ventana, int primera, int ultima);
