// The dialog "Formato decimal", which many windows share.
#pragma once

#include "platform/plataforma.h"

// Stores 0 to 6 in `decimales` on OK. Two decimals are checked at first, whatever the present value is.
void DialogoDecimales(int &decimales, Ventana *ventana);
