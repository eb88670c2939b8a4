// The text of a result window on paper.
#pragma once

#include "charts/resultados/impresion.h"

struct EstadoInforme {
    const SalidaResultado *salida; // what ImprimirResultado prints, null between its jobs
};

extern EstadoInforme Informe;

// Prints Informe.salida: the method centred as title, then the lines in a block as the window paints it. A text longer
// than the page goes on under the same title on the next one.
bool ImprimirTextoInforme(DispositivoImpresion *dispositivo, Ventana *ventana);
