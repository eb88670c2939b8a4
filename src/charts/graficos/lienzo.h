// What the kinds of charts draw with: mappings from values to units of the surface, axes, marks of the axes, series, legend
// and titles.
#pragma once

#include "charts/graficos/grafico.h"

#include <string>
#include <string_view>

// A chart on its way to a surface.
struct Lienzo {
    Superficie &s;
    const Grafico &g;
    const DisposicionGrafico &d;
    std::string &errorInterno; // text of the first error of the drawing itself; empty while there is none
};

// A coordinate, rounded by truncation. Far outside any surface it stays at a bound, and so does what is no number.
int Coordenada(double v);

// Rows charted.
int FilasTrazadas(const Grafico &g);

// Units between successive rows: of the charts of series, and of the chart of residuals, whose bars part the plot.
double PasoDeSeries(const Lienzo &l);
double PasoDeResiduos(const Lienzo &l);

int XDeFila(const Lienzo &l, int fila, double paso);
int XDeValor(const Lienzo &l, double v); // from the left edge on
int YDeValor(const Lienzo &l, double v); // from the bottom up
// The same where zero stands in the middle of the plot.
int XMedia(const Lienzo &l), YMedia(const Lienzo &l);
int XDesdeElMedio(const Lienzo &l, double v);
int YDesdeElMedio(const Lienzo &l, double v);

// The whole width at height `y`, and the whole height at `x`.
void EjeHorizontal(const Lienzo &l, int y, const Pluma &pluma = PlumaEjes);
void EjeVertical(const Lienzo &l, int x, const Pluma &pluma = PlumaEjes);

// A number with the decimals of the work.
std::string TextoDeEje(double v);

// A label and its tick at `x` on a line at height `eje`; nothing at the edges of the plot and beyond.
void MarcaEnX(const Lienzo &l, int x, int eje, std::string_view texto);
// A label and its tick left of a line at `eje`.
void MarcaEnY(const Lienzo &l, int eje, int y, std::string_view texto);

// The intervals that an axis is divided in: of the X axis, cut to the sample; a value of 1 becomes 2; 0 for no marks.
int IntervalosX(const Grafico &g);
int IntervalosY(const Grafico &g);
// The fewest where there are any. Some axes of the charts of a regression have these even where the user wants none.
inline constexpr int MinIntervalos = 2;

// Marks of periods on a line at height `eje`, and of values along the bottom and the left edge.
void MarcasDePeriodos(const Lienzo &l, int eje, double paso, int intervalos);
void MarcasDeValoresX(const Lienzo &l);
void MarcasDeValoresY(const Lienzo &l);

// How a kind of chart places its points.
struct ReglaDePuntos {
    int (*x)(const Lienzo &l, int fila, double paso);
    int (*y)(const Lienzo &l, double v);
    double paso;     // handed to `x`; a bar is no wider
    int base;        // where bars end
    bool soloDentro; // nothing is drawn at points above or below the plot
};
void DibujarSeries(const Lienzo &l, const ReglaDePuntos &regla);

void DibujarLeyenda(const Lienzo &l);
void DibujarTitulos(const Lienzo &l);
