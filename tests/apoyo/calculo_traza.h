// A calculator of the texts of a trace that shares nothing with the program: its own reading, its own inverse, its own
// probabilities. Numbers have more digits than the program's.
//
// The formulas of the language go strictly from left to right. Those that a direct computation stands for are written as
// in a book: x(t) is a value of the observation t, things side by side are multiplied, "suma de" and "media de" run over
// the rows of the step.
#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

// A matrix by rows; a number is one of 1 x 1.
struct ValorCalculado {
    int filas = 1, columnas = 1;
    std::vector<long double> datos = {0.0L};
};

// What the names are worth. A missing value of a series is a NaN.
struct EntornoTraza {
    std::map<std::string, std::vector<long double>> series; // from row 0 on
    std::map<std::string, ValorCalculado> matrices;
    std::map<std::string, long double> escalares;
    std::map<std::string, int> primeraFila;      // of a matrix whose rows are observations
    std::map<std::string, std::string> llamadas; // what x, y and e stand for
};

struct FilasCalculo {
    int primera, ultima;
};

// The value of a text at the row t. `deIzquierdaADerecha`: as the language reads it; else as a book does. The names that
// it took values from are added to `nombres`. A text that can't be read is a failure of the test and a NaN.
ValorCalculado CalcularTexto(const EntornoTraza &entorno, const std::string &texto, int t, FilasCalculo filas,
                             bool deIzquierdaADerecha, std::set<std::string> &nombres);
