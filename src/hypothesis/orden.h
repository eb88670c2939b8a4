// The exchange sort of the tests. How it leaves equal values is part of their results: it decides where a sample is cut.
#pragma once

#include <vector>

// Values of a series in the rows from `primera` to `ultima`, which exist.
std::vector<double> ValoresDeFilas(int serie, int primera, int ultima);

// Sorts `claves` in ascending order: for i from the first to the last but one, for j behind i, i and j change places when
// clave j is strictly less than clave i. Result: where each of them stood, counted from 0.
std::vector<int> OrdenarPorIntercambio(std::vector<double> &claves);

// Row primera + k of the series takes what row primera + orden[k] held, values and presence.
void ReordenarSerie(int serie, int primera, const std::vector<int> &orden);
