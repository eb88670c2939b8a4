// The reports of the tests that read the last regression: their lines, and the way to their windows.
#pragma once

#include "estimation/informe.h"

// Shows the report of CRA, CDU or CWA (OrdenCRA, OrdenCDU, OrdenCWA), whose scalars are in the store, and returns when its
// window is closed. After a weighted regression CRA shows "Utilice MC ordinarios" and no window.
void MostrarInformeContraste(Ventana *ventana, int codigo);

// Shows the result of CHN, modal: its restrictions and the statistic, from HipotesisNula and the store.
void VentanaHipotesisNula(Ventana *ventana);
