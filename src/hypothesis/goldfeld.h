// CGQ: Goldfeld and Quandt's test. The observations of the last regression are sorted by a variable, and the model is
// estimated again on two parts of them.
#pragma once

#include "language/evaluador.h"

// The parts of the ordered sample as the four numbers of the statement cut them, with what they are checked against. All
// are rows.
struct PartesGoldfeld {
    int primera, ultima;                       // the sample now
    int primeraRegresion, ultimaRegresion;     // the sample of the last regression
    int primeraDenominador, ultimaDenominador; // a part
    int primeraNumerador, ultimaNumerador;
};

// True when the parts can be estimated, else false after the first message that applies: points 866 to 876.
bool ComprobarPartes(const PartesGoldfeld &partes, Ventana *ventana);

// Runs the statement from `posicion` of the present level, behind its word and blanks: (variable) [RA] Di Df Ni Nf, numbers
// of positions in the ordered sample. The result is 0 after a correct test too, so that the batch stops; the sample of the
// last regression is left at the denominator's.
int ContrasteGoldfeldQuandt(LineasSentencia &lineas, int posicion, Ventana *ventana);
