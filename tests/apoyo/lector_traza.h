// A reader of the record of the trace that believes nothing: it has the data, and computes every step from its text and
// its operands.
#pragma once

#include "apoyo/calculo_traza.h"

#include <string>
#include <string_view>

// Reads the record of the last run, over annual data whose first row is the year `primerAno`. Every step must have gone
// well; its result must be what its text gives, to eight figures; its operands must be the names that the text takes values
// from, each with the step that gave the value that was used, or with that value. Behind a step the surroundings have its
// result. Whatever is not so is a failure of the test.
void RecalcularTraza(EntornoTraza &entorno, int primerAno);

// The last result in the record under this name, or of this formula; its elements as they are kept, empty when there is
// none.
std::vector<double> ResultadoTrazado(std::string_view nombre);
