// CHN: linear restrictions on the coefficients of the last regression, tested by the Wald form of the F statistic. The
// statement is spread over lines: CHN IR n, then n lines CHN MR i equation, then CHN FR n.
#pragma once

#include "language/evaluador.h"
#include "store/limites.h"

#include <array>
#include <string>

using Restricciones = std::array<std::string, MaxRestricciones>;

struct EstadoHipotesisNula {
    // What the lines so far have brought. A line that is refused clears `iniciada`; a test that ends doesn't.
    int iniciada;
    int cuentaIR, cuentaFR; // the numbers given
    int cuentaMR;           // lines MR since IR
    Restricciones textos;

    // Kept for the dialog and the report.
    int q;                         // restrictions in force
    int K;                         // rows of _BETA
    Restricciones textosGuardados; // the last ones read without error, blanks removed
    bool dialogoAbierto;           // the dialog was opened in this run of the program
};

extern EstadoHipotesisNula HipotesisNula;

void IniciarHipotesisNula();

// Runs one CHN line from `posicion` of the present level, behind its first word. 1, or 0 after a message: points 2663 to
// 2668, or those of the test.
int ContrasteHipotesisNula(LineasSentencia &lineas, int posicion, Ventana *ventana);

// Puts HipotesisNula.q into its range (above 11 it becomes 10, below 1 it becomes 1) and K from _BETA. 1, or 0 after "No
// existe la matriz _BETA", "Número de restricciones no válidas" or "No existe la matriz _COV".
int PrepararRestricciones(Ventana *ventana);

// Tests the first q texts, in the sample of the last regression, and shows the result. Its matrices and scalars are
// deleted at the end. 1, or 0 after a message.
int CalcularHipotesisNula(Ventana *ventana, Restricciones &textos, LineasSentencia &lineas);
