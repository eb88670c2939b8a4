// The dialog of data types and those that follow it.
#pragma once

#include "platform/dialogos.h"

void ElegirTipoDatos(Ventana *ventana, const DatosDialogo &);
