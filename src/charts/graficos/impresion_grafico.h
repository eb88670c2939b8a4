// Charts on paper.
#pragma once

#include "charts/graficos/grafico.h"

struct DispositivoImpresion;

// The routine of every print kind of a chart: draws it on the open page, and shows the box of an error of the drawing.
bool ImprimirGrafico(DispositivoImpresion *dispositivo, Ventana *ventana, const Grafico &g);
