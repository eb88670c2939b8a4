// The series of a chart in their forms, its legend and its titles.
#include "charts/graficos/lienzo.h"

#include <algorithm>
#include <cmath>

namespace {

struct Punto {
    int x, y;
    bool visible;
};

Punto PuntoDeFila(const Lienzo &l, const ReglaDePuntos &regla, const SerieGrafico &serie, int fila) {
    const double v = serie.valores[static_cast<std::size_t>(fila)];
    if (!std::isfinite(v)) return {0, 0, false};
    const Punto p = {regla.x(l, fila, regla.paso), regla.y(l, v), true};
    const bool dentro = p.y >= l.d.area.superior && p.y <= l.d.area.inferior;
    return {p.x, p.y, dentro || !regla.soloDentro};
}

void Simbolo(const Lienzo &l, const Punto &p, const Pluma &pluma) {
    const CajaGrafico &a = l.d.area;
    const int lado = l.d.c / 2;
    if (p.x <= a.izquierda || p.x + lado > a.derecha || p.y < a.superior || p.y + lado > a.inferior) return;
    Rectangulo(l.s, p.x, p.y, p.x + lado, p.y + lado, pluma, nullptr);
}

template <class Marca>
void PorCadaPunto(const Lienzo &l, const ReglaDePuntos &regla, const SerieGrafico &serie, Marca marca) {
    const int ultima = std::min(l.g.limites.ultima, static_cast<int>(serie.valores.size()) - 1);
    for (int t = l.g.limites.primera; t <= ultima; ++t) marca(PuntoDeFila(l, regla, serie, t));
}

// A point that isn't seen parts the line.
void TerminarCamino(const Lienzo &l, std::vector<PuntoDibujo> &camino, const Pluma &pluma) {
    Camino(l.s, camino, pluma);
    camino.clear();
}

void DibujarSerie(const Lienzo &l, const ReglaDePuntos &regla, const SerieGrafico &serie,
                  const Pluma &pluma) {
    const int forma = l.g.opciones.forma;
    if (forma == FormaLineas || forma == FormaLineasYSimbolos) {
        std::vector<PuntoDibujo> camino;
        PorCadaPunto(l, regla, serie, [&](const Punto &p) {
            if (p.visible) {
                camino.push_back({p.x, p.y});
            } else {
                TerminarCamino(l, camino, pluma);
            }
        });
        TerminarCamino(l, camino, pluma);
    }
    if (forma == FormaSimbolos || forma == FormaLineasYSimbolos)
        PorCadaPunto(l, regla, serie, [&](const Punto &p) {
            if (p.visible) Simbolo(l, p, pluma);
        });
    if (forma == FormaBarras) {
        const int ancho = Coordenada(std::min(regla.paso, static_cast<double>(l.d.c)));
        PorCadaPunto(l, regla, serie, [&](const Punto &p) {
            if (p.visible) Rectangulo(l.s, p.x, p.y, p.x + ancho, regla.base, pluma, nullptr);
        });
    }
}

} // namespace

void DibujarSeries(const Lienzo &l, const ReglaDePuntos &regla) {
    for (std::size_t i = 0; i < l.g.series.size(); ++i)
        DibujarSerie(l, regla, l.g.series[i], PlumaDeSerie(l.g.opciones, static_cast<int>(i)));
}

void DibujarLeyenda(const Lienzo &l) {
    if (l.g.opciones.verLeyenda == 0) return;
    const CajaGrafico &caja = l.d.parte[ParteLeyenda];
    const int c = l.d.c, h = l.d.h, ancho = caja.derecha - caja.izquierda;
    Rectangulo(l.s, caja.izquierda, caja.superior, caja.derecha, caja.inferior,
               l.g.opciones.leyendaConMarco != 0 ? PlumaEjes : PlumaSinMarco, nullptr);
    for (std::size_t i = 0; i < l.g.series.size(); ++i) {
        const int y = caja.superior + h + static_cast<int>(i) * h;
        Linea(l.s, caja.izquierda + c, y + h / 2, caja.izquierda + 6 * c, y + h / 2,
              PlumaDeSerie(l.g.opciones, static_cast<int>(i)));
        std::string_view nombre = l.g.series[i].nombre;
        if (ancho < static_cast<int>(nombre.size()) * c + 7 * c)
            nombre = nombre.substr(0, static_cast<std::size_t>(std::max((ancho - 4 * c) / c, 0)));
        Texto(l.s, caja.izquierda + 7 * c, y, nombre);
    }
}

void DibujarTitulos(const Lienzo &l) {
    const auto horizontal = [&](PartesDeGrafico parte, std::string_view texto) {
        if (!texto.empty()) Texto(l.s, l.d.parte[parte].izquierda, l.d.parte[parte].superior, texto);
    };
    horizontal(ParteTitulo, l.g.opciones.titulo);
    const CajaGrafico &y = l.d.parte[ParteTituloY];
    for (std::size_t i = 0; i < l.g.opciones.tituloY.size(); ++i)
        Texto(l.s, y.izquierda, y.superior + static_cast<int>(i) * l.d.h,
              std::string_view(l.g.opciones.tituloY).substr(i, 1));
    horizontal(ParteTituloX, l.g.opciones.tituloX);
}
