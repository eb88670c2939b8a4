// A regression as a table for spreadsheets.
#pragma once

#include <string>

// The coefficients with their statistics, then the statistics of the whole: fields parted by tabulators, numbers with all
// their digits. `codigo` selects the results; those that are gone are left out.
std::string TablaRegresion(int codigo);
