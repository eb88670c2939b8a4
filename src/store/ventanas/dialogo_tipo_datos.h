// The dialog of data types and those that follow it.
#pragma once

#include "platform/plataforma.h"

void ElegirTipoDatos(Ventana *ventana);
