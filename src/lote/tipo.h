// The argument of --tipo: a data type as one word of the command line.
#pragma once

#include "store/tipos_datos.h"

#include <string_view>

// Reads the proposal of a data type:
//   sin
//   anual, anual:1990:2005, trimestral:1990.1:2005.4, mensual:1990.01:2005.12 (either year may be left out)
//   panel:constante:PRIMERO:N:PERIODICIDAD:INICIO:FIN   PRIMERO periodo or individuo, PERIODICIDAD as above
//   panel:variable:periodo:1990=3,1991=2                period = number of individuals
//   panel:variable:individuo:1=1990/1991,2=1990         individual = its periods
// with ",etiquetas" behind sin or a panel. The name is the one that the dialog shows. False when the form can't be
// read; what can be read is checked by AceptarTipoDatos, with the messages of the dialogs.
bool LeerTipo(std::string_view texto, PropuestaTipoDatos &propuesta);
