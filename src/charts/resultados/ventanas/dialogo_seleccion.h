// The dialog in which the user chooses the series or matrices of a listing.
#pragma once

#include "charts/resultados/seleccion.h"

#include <functional>

// Shows the codes of the work file at the left and the chosen ones at the right, until "Cancela". Each OK prints what
// stands at the right, and the dialog stays. "&Decimales" sets the decimals of all output.
void DialogoSeleccion(Ventana *ventana, ModosSeleccion modo);

// The same two lists of series for a tool: each OK hands it what is chosen, and the dialog stays. "&Decimales" stands in a menu
// bar.
void ElegirSeries(Ventana *ventana,
                  const std::function<void(const EstadoSeleccion &seleccion, Ventana *dialogo)> &aceptar);
