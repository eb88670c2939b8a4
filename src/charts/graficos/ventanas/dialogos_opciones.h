// The option dialogs of charts. Each changes `opciones`, or the chart, at its OK.
#pragma once

#include "charts/graficos/grafico.h"

void DialogoIntervalos(Ventana *ventana, ClasesDeGrafico clase, OpcionesGrafico &opciones);

// `nombres` are the series of the chart, in the order of their colours. What a "Si" gives to a series stays after Cancela.
void DialogoFormas(Ventana *ventana, ClasesDeGrafico clase, OpcionesGrafico &opciones,
                   const std::vector<std::string> &nombres);

void DialogoOtrasOpciones(Ventana *ventana, Grafico &g);
