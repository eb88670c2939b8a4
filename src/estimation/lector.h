// The tokens of a regression statement.
#pragma once

#include "platform/plataforma.h"

#include <string>

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
