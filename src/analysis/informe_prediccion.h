// The window of the evaluation of a prediction.
#pragma once

#include "charts/resultados/resultado.h"

#include <string>

// The report of the last prediction, and the same for a spreadsheet.
TextoSalida LineasPrediccion();
std::string TablaPrediccion();

void MostrarPrediccion(Ventana *ventana);
