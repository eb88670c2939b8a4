// The charts of series, and those of a regression.
#include "charts/graficos/clases.h"

#include <algorithm>

namespace {

constexpr Pluma PlumaBanda = {{0, 0, 0}, 1, PlumaPunteada};

// A mark of the Y axis of the chart of residuals, on both sides of zero.
void MarcasSimetricas(const Lienzo &l) {
    const int intervalos = IntervalosY(l.g);
    if (intervalos == 0) return;
    const double salto = 2 * l.g.limites.maxY / intervalos;
    for (int i = 0; i <= intervalos / 2; ++i)
        for (const int lado : {1, -1}) {
            if (i == 0 && lado < 0) continue; // zero has one label
            const double v = lado * (i * salto);
            MarcaEnY(l, l.d.area.izquierda, YDesdeElMedio(l, v), TextoDeEje(v));
        }
}

void DibujarBanda(const Lienzo &l) {
    const double ancho = l.g.estandarizados != 0 ? 2 : 2 * l.g.desviacion;
    for (const double v : {ancho, -ancho}) {
        const int y = YDesdeElMedio(l, v);
        if (y >= l.d.area.superior && y <= l.d.area.inferior) EjeHorizontal(l, y, PlumaBanda);
    }
}

// From zero outwards, in both directions. At the left edge a label would stand on the axis of the other.
void MarcasDesdeElMedioX(const Lienzo &l) {
    const int intervalos = std::max(IntervalosX(l.g), MinIntervalos);
    const int eje = l.g.marcasAlMedio != 0 ? YMedia(l) : l.d.area.inferior;
    for (int i = 0; i <= intervalos; ++i)
        for (const int lado : {1, -1}) {
            if (i == 0 && lado < 0) continue;
            const double v = lado * (i * (l.g.limites.maxX / intervalos));
            const int x = XDesdeElMedio(l, v);
            if (x - l.d.area.izquierda >= 3 * l.d.c) MarcaEnX(l, x, eje, TextoDeEje(v));
        }
}

void MarcasDesdeElMedioY(const Lienzo &l) {
    const int intervalos = std::max(IntervalosY(l.g), MinIntervalos);
    const int eje = l.g.marcasYAlMedio != 0 ? XMedia(l) : l.d.area.izquierda;
    for (int i = 0; i <= intervalos; ++i)
        for (const int lado : {1, -1}) {
            if (i == 0 && lado < 0) continue;
            const double v = lado * (i * (l.g.limites.maxY / intervalos));
            MarcaEnY(l, eje, YDesdeElMedio(l, v), TextoDeEje(v));
        }
}

double ValorEnX(const Lienzo &l, int fila) {
    const auto i = static_cast<std::size_t>(fila);
    return i < l.g.ejeX.size() ? l.g.ejeX[i] : 0;
}

} // namespace

void DibujarGraficoSeries(const Lienzo &l) {
    const double paso = PasoDeSeries(l);
    EjeHorizontal(l, l.d.area.inferior);
    EjeVertical(l, l.d.area.izquierda);
    MarcasDePeriodos(l, l.d.area.inferior, paso, IntervalosX(l.g));
    MarcasDeValoresY(l);
    DibujarSeries(l, {XDeFila, YDeValor, paso, l.d.area.inferior, false});
}

void DibujarGraficoDispersion(const Lienzo &l) {
    EjeHorizontal(l, l.d.area.inferior);
    EjeVertical(l, l.d.area.izquierda);
    MarcasDeValoresX(l);
    MarcasDeValoresY(l);
    const auto x = [](const Lienzo &m, int fila, double) { return XDeValor(m, ValorEnX(m, fila)); };
    DibujarSeries(l, {x, YDeValor, static_cast<double>(l.d.c), l.d.area.inferior, false});
}

void DibujarGraficoResiduos(const Lienzo &l) {
    const double paso = PasoDeResiduos(l);
    EjeHorizontal(l, YMedia(l));
    EjeVertical(l, l.d.area.izquierda);
    MarcasDePeriodos(l, l.g.marcasAlMedio != 0 ? YMedia(l) : l.d.area.inferior, paso,
                     std::max(IntervalosX(l.g), MinIntervalos));
    MarcasSimetricas(l);
    if (l.g.conBanda != 0) DibujarBanda(l);
    DibujarSeries(l, {XDeFila, YDesdeElMedio, paso, YMedia(l), true});
}

void DibujarGraficoPrediccion(const Lienzo &l) {
    const CajaGrafico &a = l.d.area;
    EjeHorizontal(l, YMedia(l));
    EjeVertical(l, XMedia(l));
    MarcasDesdeElMedioX(l);
    MarcasDesdeElMedioY(l);
    Linea(l.s, a.izquierda, a.inferior, a.derecha, a.superior, PlumaEjes); // the perfect prediction
    const auto x = [](const Lienzo &m, int fila, double) { return XDesdeElMedio(m, ValorEnX(m, fila)); };
    DibujarSeries(l, {x, YDesdeElMedio, static_cast<double>(l.d.c), YMedia(l), true});
}
