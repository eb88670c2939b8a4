// The chart window of the desktop.
#pragma once

#include "platform/plataforma.h"

// Opens the window, modal, and returns when it is closed.
void MostrarGraficoQt(Ventana *ventana, Grafico &grafico);
