// The dialogs "Gráficos temporales" and "Gráficos de dispersión".
#pragma once

#include "platform/plataforma.h"

// `datos.modo`: ModosDeGraficos. The dialog stays open behind its charts, until "Cancela".
void DialogoGraficosSeries(Ventana *ventana, const DatosDialogo &datos);
