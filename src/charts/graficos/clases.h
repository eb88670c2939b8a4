// The kinds of charts: what each draws inside its layout.
#pragma once

#include "charts/graficos/lienzo.h"

void DibujarGraficoSeries(const Lienzo &l); // of observed and estimated values, too
void DibujarGraficoDispersion(const Lienzo &l);
void DibujarGraficoResiduos(const Lienzo &l);
void DibujarGraficoPrediccion(const Lienzo &l);
void DibujarGraficoAutocorrelacion(const Lienzo &l);
void DibujarGraficoHistograma(const Lienzo &l);
