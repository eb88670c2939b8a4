// The dialogs of the ASCII exchange, and the one that sorts series.
#pragma once

#include "platform/plataforma.h"

// The first dialog, over the state `Intercambio` of data/intercambio.h, with the two format dialogs behind it.
void DialogoIntercambio(Ventana *ventana, const DatosDialogo &datos);

// "Ordenación de series".
void DialogoOrdenarSeries(Ventana *ventana, const DatosDialogo &datos);
