// The result window of the desktop.
#pragma once

#include "charts/resultados/resultado.h"

// Opens the window, modal, and returns when it is closed.
void MostrarResultadoQt(Ventana *ventana, const SalidaResultado &salida);
