// The dialogs of the tests of significance and of heteroscedasticity.
#pragma once

#include "platform/dialogos.h"

void DialogoHipotesisNula(Ventana *ventana, const DatosDialogo &);
void DialogoModeloRestringido(Ventana *ventana, const DatosDialogo &);
void DialogoGoldfeldQuandt(Ventana *ventana, const DatosDialogo &);
void DialogoWhite(Ventana *ventana, const DatosDialogo &);
void DialogoRangos(Ventana *ventana, const DatosDialogo &);
