// What the files of this folder share while one regression runs: its working set, and how it runs its formulas.
#pragma once

#include "estimation/regresion.h"
#include "language/cadena.h"
#include "language/traza.h"

#include <string>
#include <string_view>
#include <vector>

struct Estimacion {
    LineasSentencia *lineas = nullptr;
    Ventana *ventana = nullptr;
    int codigo = 0;

    // The equation. The two lists run in parallel, one entry a column.
    std::string dependiente;
    std::vector<std::string> columnas; // as the brace form names them: X1, _TMR1, 1
    std::vector<std::string> textos;   // as they are shown: X1, SALARIO(-1), 1; at most 25 characters
    int numeroGenerada = 1;            // of the next _TMRn
    int retardoMayor = 0;              // the most negative lag
    int adelantoMayor = 0;             // the largest lead

    // The estimation.
    int observaciones = 0; // N, rows of _YDEP
    int regresores = 0;    // k, columns of _XIND
    double suma = 0.0;     // of the dependent
    double media = 0.0;
    double variacion = 0.0; // sum of squares of the dependent about its mean
    double saltos = 0.0;    // sum of squares of the differences of successive residuals
    bool seQuedan = false;  // a failure after which the temporaries are not deleted
};

// Adds a column under the name of the brace list and the text to show.
void AnadirRegresor(Estimacion &e, std::string_view columna, std::string_view texto);

// The chain over the range of the regression at this moment, with the names of its code.
Cadena CadenaDe(const Estimacion &e, std::span<const DatoCadena> datos = {});

// The range of the regression at this moment, for the trace.
FilasTraza FilasDeRegresion();

// Elements of a matrix, by rows, with its block locked; null when there is no such matrix. The place is valid until the
// matrix is stored anew or deleted, locked or not.
double *ElementosDe(std::string_view matriz);
