// The equation of a regression: from its text to the matrices _YDEP and _XIND.
#pragma once

#include "estimation/estimacion.h"

// A text that is read token by token.
struct Lector {
    const std::string *texto;
    int posicion;
    Ventana *ventana;
    bool comprobado = false; // the characters of the rest were looked at
};

// Reads a token: a word, or one of ( ) [ ] + - * / by itself; empty at the end. False after "Caracter no válido" or
// "Nombre demasiado largo", both with point 121. A word has at most 12 characters.
bool ExtraerToken(Lector &lector, std::string &token);

// True when only blanks are left, over which it moves.
bool AlFinal(Lector &lector);

// Adds a column under the name of the brace list and the text to show.
void AnadirRegresor(Estimacion &e, std::string_view columna, std::string_view texto);

// Reads the whole statement from `posicion` of the present level on and builds _YDEP and _XIND over the range of the
// regression, which lags and leads move. 1, or 0 after a message.
int LeerEcuacion(Estimacion &e, int posicion);

// The matrix `destino` from the brace list over the range of the regression. 1, or 0 after the evaluator's message.
int MatrizDelRango(Estimacion &e, std::string_view destino, const std::string &llaves);
