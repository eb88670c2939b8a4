// The dialogs of MC and MCP.
#pragma once

#include "platform/dialogos.h"

void DialogoMC(Ventana *ventana, const DatosDialogo &);
void DialogoMCP(Ventana *ventana, const DatosDialogo &);
