// Where the parts of a chart stand.
#include "charts/graficos/disposicion.h"

#include <algorithm>

namespace {

// Margins of the plot, in cells. The charts of autocorrelations have more room and smaller margins at the sides.
constexpr int MargenLado = 15, MargenAlto = 4;
constexpr int MargenLadoAutocorrelacion = 5, MargenAltoAutocorrelacion = 6;

constexpr int LeyendaDesdeDerecha = 18, AnchoLeyenda = 21, FilasSinSeries = 3;

// The layout that a print takes where no window has shown the chart: the usual screen of the program's youth.
constexpr int AnchoNominal = 640, AltoNominal = 480, AnchoCaracterNominal = 8, AltoLineaNominal = 16;

int Centrado(const CajaGrafico &area, std::size_t letras, int c) {
    return area.izquierda + (area.derecha - area.izquierda - static_cast<int>(letras) * c) / 2;
}

CajaGrafico CajaDesde(int x, int y, int ancho, int alto) {
    return {x, y, x + ancho, y + alto};
}

// Bars stand half a cell wide; where there is room for more than four cells between them, the plot narrows instead.
void DisponerBarras(const Grafico &g, DisposicionGrafico &d) {
    const int barra = d.c / 2;
    const int numero = NumeroDeBarras(g.autocorrelacion);
    const int ancho = d.area.derecha - d.area.izquierda;
    const int libre = numero > 0 ? (ancho - numero * barra) / numero : 0;
    d.separa = std::max(libre, 2 * d.c);
    if (d.separa <= 4 * d.c) return;
    const int sobra = (ancho - 2 * numero * (barra + 4 * d.c)) / 2;
    d.separa = 4 * d.c;
    if (sobra <= 0) return;
    d.area.izquierda += sobra;
    d.area.derecha -= sobra;
}

void DisponerPartes(const Grafico &g, DisposicionGrafico &d) {
    const CajaGrafico &area = d.area;
    const OpcionesGrafico &o = g.opciones;
    d.parte[ParteLeyenda] =
        CajaDesde(area.derecha - LeyendaDesdeDerecha * d.c, area.superior + 2 * d.h, AnchoLeyenda * d.c,
                  (FilasSinSeries + static_cast<int>(g.series.size())) * d.h);
    const auto ancho = [&](const std::string &t) { return static_cast<int>(t.size()) * d.c; };
    d.parte[ParteTitulo] =
        CajaDesde(Centrado(area, o.titulo.size(), d.c), area.superior - 3 * d.h, ancho(o.titulo), 2 * d.h);
    d.parte[ParteTituloX] =
        CajaDesde(Centrado(area, o.tituloX.size(), d.c), area.inferior + 2 * d.h, ancho(o.tituloX), 2 * d.h);
    d.parte[ParteTituloY] =
        CajaDesde(2 * d.c, area.superior, 2 * d.c, static_cast<int>(o.tituloY.size()) * d.h);
}

// The title of autocorrelations stands in the middle of the window, not of the plot, and can't be moved.
void DisponerTituloDeBarras(const Grafico &g, DisposicionGrafico &d) {
    const DatosAutocorrelacion &a = g.autocorrelacion;
    const int ancho = static_cast<int>(a.titulo.size()) * d.c;
    const int y = a.tituloAbajo != 0 ? d.area.inferior + 3 * d.h : d.area.superior - 3 * d.h;
    d.parte[ParteTitulo] = CajaDesde((d.ancho - ancho) / 2, y, ancho, 2 * d.h);
}

// A title that was moved and then rewritten keeps its corner, that of the X axis the height that its move gave it, too.
void DejarLasMovidas(const Grafico &g, DisposicionGrafico &d) {
    for (std::size_t i = 0; i < NumPartesDeGrafico; ++i) {
        if (!g.arrastre.movida[i]) continue;
        const CajaGrafico &antes = g.disposicion.parte[i];
        const CajaGrafico &nueva = d.parte[i];
        d.parte[i] = i == ParteLeyenda
                         ? antes
                         : CajaDesde(antes.izquierda, antes.superior, nueva.derecha - nueva.izquierda,
                                     i == ParteTituloX ? antes.inferior - antes.superior
                                                       : nueva.inferior - nueva.superior);
    }
}

// A box whose cells would lie beyond the paper is moved onto it, as far as it fits.
CajaGrafico DentroDelPapel(CajaGrafico caja, const Superficie &papel) {
    const int dx = std::max(-caja.izquierda, std::min(papel.ancho - caja.derecha, 0));
    const int dy = std::max(-caja.superior, std::min(papel.alto - caja.inferior, 0));
    return {caja.izquierda + dx, caja.superior + dy, caja.derecha + dx, caja.inferior + dy};
}

} // namespace

int NumeroDeBarras(const DatosAutocorrelacion &a) {
    return std::max(std::min(a.retardos, a.observaciones), 0);
}

DisposicionGrafico DisponerEnVentana(const Grafico &g, const Superficie &s) {
    const bool barras = g.clase == GraficoAutocorrelacion;
    const int lado = (barras ? MargenLadoAutocorrelacion : MargenLado) * s.anchoCaracter;
    const int alto = (barras ? MargenAltoAutocorrelacion : MargenAlto) * s.altoLinea;
    DisposicionGrafico d{};
    d.ancho = s.ancho;
    d.alto = s.alto;
    d.c = s.anchoCaracter;
    d.h = s.altoLinea;
    d.area = {lado, alto, s.ancho - lado, s.alto - alto};
    if (barras) DisponerBarras(g, d);
    DisponerPartes(g, d);
    if (barras) DisponerTituloDeBarras(g, d);
    DejarLasMovidas(g, d);
    return d;
}

DisposicionGrafico DisponerEnPapel(const Grafico &g, const Superficie &papel) {
    DisposicionGrafico v = g.disposicion;
    if (v.c == 0) {
        Superficie nominal{};
        nominal.ancho = AnchoNominal;
        nominal.alto = AltoNominal;
        nominal.anchoCaracter = AnchoCaracterNominal;
        nominal.altoLinea = AltoLineaNominal;
        v = DisponerEnVentana(g, nominal);
    }
    DisposicionGrafico d{};
    d.ancho = papel.ancho;
    d.alto = papel.alto;
    d.c = papel.anchoCaracter;
    d.h = papel.altoLinea;
    d.enPapel = true;
    d.separa = v.separa / v.c * d.c;
    const int ancho = (v.area.derecha - v.area.izquierda) / v.c * d.c;
    const int alto = (v.area.inferior - v.area.superior) / v.h * d.h;
    d.area.izquierda = std::max((papel.ancho - ancho) / 2 / d.c * d.c, 0);
    d.area.derecha = std::min(d.area.izquierda + ancho, papel.ancho);
    d.area.superior = papel.alto / 10;
    d.area.inferior = std::min(d.area.superior + alto, papel.alto);
    for (std::size_t i = 0; i < NumPartesDeGrafico; ++i) {
        const CajaGrafico &p = v.parte[i];
        const CajaGrafico enCeldas =
            CajaDesde(d.area.izquierda + (p.izquierda - v.area.izquierda) / v.c * d.c,
                      d.area.superior + (p.superior - v.area.superior) / v.h * d.h,
                      (p.derecha - p.izquierda) / v.c * d.c, (p.inferior - p.superior) / v.h * d.h);
        d.parte[i] = DentroDelPapel(enCeldas, papel);
    }
    return d;
}
