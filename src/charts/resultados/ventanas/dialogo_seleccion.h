// The dialog in which the user chooses the series or matrices of a listing.
#pragma once

#include "charts/resultados/seleccion.h"

// Shows the codes of the work file at the left and the chosen ones at the right, until "Cancela". Each OK prints what
// stands at the right, and the dialog stays. "&Decimales" sets the decimals of all output.
void DialogoSeleccion(Ventana *ventana, ModosSeleccion modo);
