// The dialog "HISTOGRAMA".
#pragma once

#include "platform/plataforma.h"

// Each OK counts and shows the table window, with the chart behind it, and the dialog stays until "Cancela".
void DialogoHistograma(Ventana *ventana, const DatosDialogo &datos);
