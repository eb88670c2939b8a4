// Where the parts of a chart stand: in a window, and on paper.
#pragma once

#include "charts/graficos/grafico.h"

// Bars that the chart of an autocorrelation function makes room for: one a lag, as far as the sample goes.
int NumeroDeBarras(const DatosAutocorrelacion &a);

// The layout in a client area. Parts that the user moved stay where they are; of the titles the corner stays.
DisposicionGrafico DisponerEnVentana(const Grafico &g, const Superficie &s);

// The layout on a page, from that in the window: the plot and what hangs on it keep their whole character cells. The
// plot is centred by whole cells and held inside the page.
DisposicionGrafico DisponerEnPapel(const Grafico &g, const Superficie &papel);
