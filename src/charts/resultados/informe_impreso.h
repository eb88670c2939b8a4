// The text of a result window on paper.
#pragma once

#include "charts/resultados/impresion.h"

// The titles of the result, above its lines or between rules, then the lines in a block as the window paints it. A text
// longer than the page goes on under the same titles on the next one. Every kind of result window prints so.
bool ImprimirTextoInforme(DispositivoImpresion *dispositivo, Ventana *ventana, const SalidaResultado &salida);
