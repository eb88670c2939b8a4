// The chart of a histogram: a bar a class, as wide as its limits lie apart.
#include "charts/graficos/clases.h"

#include <algorithm>

namespace {

constexpr Pluma PlumaGruesa = {{0, 0, 0}, 2, PlumaContinua}; // axes
constexpr Pluma PlumaFina = {{0, 0, 0}, 1, PlumaContinua};   // bars
constexpr Color Grises[] = {{200, 200, 200}, {225, 225, 225}, {250, 250, 250}};

void DibujarBarras(const Lienzo &l) {
    const DatosHistograma &h = l.g.histograma;
    for (std::size_t i = 0; i < h.frecuencias.size(); ++i) {
        const int y = std::clamp(YDeValor(l, h.frecuencias[i]), l.d.area.superior, l.d.area.inferior);
        Rectangulo(l.s, XDeValor(l, h.limites[i]), y, XDeValor(l, h.limites[i + 1]), l.d.area.inferior,
                   PlumaFina, &Grises[i % std::size(Grises)]);
    }
}

// Every limit of a class has its tick, and its label as far as the one before leaves room.
void MarcasDeLimites(const Lienzo &l) {
    int libre = l.d.area.izquierda;
    for (const double v : l.g.histograma.limites) {
        const int x = XDeValor(l, v);
        const std::string texto = TextoDeEje(v);
        if (x >= libre) {
            Texto(l.s, x, l.d.area.inferior + l.d.h / 2, texto);
            libre = x + (static_cast<int>(texto.size()) + 1) * l.d.c;
        }
        Linea(l.s, x, l.d.area.inferior - l.d.h / 4, x, l.d.area.inferior + l.d.h / 4, PlumaEjes);
    }
}

void DibujarTitulo(const Lienzo &l) {
    const DatosHistograma &h = l.g.histograma;
    if (h.conTitulo == 0 || h.titulo.find_first_not_of(' ') == std::string::npos) return;
    const CajaGrafico &a = l.d.area;
    const int letras = static_cast<int>(h.titulo.size());
    Texto(l.s, a.izquierda + (a.derecha - a.izquierda - letras * l.d.c) / 2,
          h.tituloArriba != 0 ? a.superior - 3 * l.d.h : a.inferior + 2 * l.d.h, h.titulo);
}

} // namespace

void DibujarGraficoHistograma(const Lienzo &l) {
    DibujarBarras(l);
    EjeHorizontal(l, l.d.area.inferior, PlumaGruesa);
    EjeVertical(l, l.d.area.izquierda, PlumaGruesa);
    MarcasDeLimites(l);
    MarcasDeValoresY(l);
    DibujarTitulo(l);
}
