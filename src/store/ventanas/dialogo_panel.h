// The dialogs of panel data.
#pragma once

#include "store/tipos_datos.h"

// The dialog "Datos Panel" and those behind its buttons. True when the work file was reset for the panel.
bool DialogoPanel(Ventana *ventana, PropuestaTipoDatos &propuesta);
