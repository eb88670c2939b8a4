// Control flow: REPITE, MIENTRAS and SI, read straight from the text and run line by line.
#pragma once

#include "language/evaluador.h"

// Runs the block whose first line, as the driver normalised it, is in buffer 0 of `lineas`. `cuerpo` is the text
// behind that line up to the end of the selection. On return `avance` is the number of characters of `cuerpo` that
// the block took. 1, or 0 after a message.
int EjecutarBloque(std::string_view cuerpo, LineasSentencia &lineas, int &avance, Ventana *ventana,
                   int &primera, int &ultima);

// True for the words that control the flow inside a block: SI, SINO, ROMPE, CONTINUA and the closing ones. In capitals.
bool EsPalabraDeControl(std::string_view palabra);
