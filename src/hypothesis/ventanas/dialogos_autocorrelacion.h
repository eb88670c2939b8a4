// The dialogs of the autocorrelation functions and of the normality test.
#pragma once

#include "platform/dialogos.h"

// Both functions; `modo` is the command (FuncionesAutocorrelacion). OK opens the listing, and the dialog stays.
void DialogoAutocorrelacion(Ventana *ventana, const DatosDialogo &datos);

// OK opens the window of the test, and the dialog stays.
void DialogoNormalidad(Ventana *ventana, const DatosDialogo &datos);
