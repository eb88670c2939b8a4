// The dialogs of the analysis: prediction, descriptive measures, transformations.
#pragma once

#include "platform/dialogos.h"

// OK opens the window of the evaluation, and the dialog stays.
void DialogoPrediccion(Ventana *ventana, const DatosDialogo &datos);

// The choice of series. OK opens the table, and the dialog stays.
void DialogoDescriptivos(Ventana *ventana, const DatosDialogo &datos);

// OK makes the series and closes the dialog.
void DialogoTransformacion(Ventana *ventana, const DatosDialogo &datos);
