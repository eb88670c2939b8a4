// The chain of formulas by which a regression is defined, run to the letter: two formulas an observation, every scalar
// over the whole range. What the program computes in a shorter way must be the same to the last bit.
#pragma once

#include <string>
#include <string_view>
#include <vector>

// What the chain does besides plain least squares.
struct OpcionesCadena {
    int covarianza = 1;     // TiposDeCovarianza
    int retardos = 1;       // of 3
    bool ponderada = false; // the data are multiplied by the series _VORD, which exists
};

// Runs an MC over the range Muestra.InicioRegresion to FinRegresion: matrices _YDEP and _XIND from the series
// `dependiente` and the columns of the brace form (codes, numbers, scalars), then every step. The evaluation stack must
// be open. False when a formula fails; the evaluator has shown its message.
bool EstimarPorFormulas(std::string_view dependiente, const std::vector<std::string> &columnas,
                        int seriesRegresoras, const OpcionesCadena &opciones = {});
