// What the matrix evaluator does with the operands on its stacks: the operators, the transpose and the inverse.
#pragma once

#include "matrix/pilas_matriz.h"

#include <string_view>

// Keeps an operator until its right operand is complete. 1, or 0 after "Demasiadas operaciones" (Pto 11) with 50 of
// them or a text of 3 characters.
int ApilarOperacion(std::string_view operador, Ventana *ventana);

// Applies the operator on top to the operands on top. 1, or 0 after a message (Pto 13 to 21).
int ReducirOperacion(Ventana *ventana);

// Replaces the two temporaries on top by their product. 1, or 0 after "Dimensiones matrices no válidas" with `punto`,
// or after "Matrices demasiado grandes para multiplicar" (Pto 15) when the product doesn't fit.
int MultiplicarSuperiores(int punto, Ventana *ventana);

// Replaces the temporary on top by its transpose, of which the rows beyond the first 100 are dropped (signo '), or by
// its inverse ($). 1, or 0 after a message (Pto 39; 40, 41, 401, 402; 55 when there is no temporary).
int AplicarSigno(char signo, Ventana *ventana);
