// The ends of the axes of a chart, from its data and from what the user asked for.
#include "charts/graficos/grafico.h"

#include "platform/campos_texto.h"
#include "platform/numeros.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr double Extremo = 1e51; // the search begins with limits that are inverted
constexpr double Tope = 1e300;   // beyond it the distance between two limits might be infinite

struct Rango {
    double minimo = Extremo, maximo = -Extremo;
};

double Acotado(double limite) {
    return std::clamp(limite, -Tope, Tope);
}

// Takes in the first `filas` values. What isn't a finite number has no place on an axis.
void Abarcar(Rango &r, const std::vector<double> &valores, int filas) {
    const int n = std::min(filas, static_cast<int>(valores.size()));
    for (int i = 0; i < n; ++i) {
        const double v = valores[static_cast<std::size_t>(i)];
        if (!std::isfinite(v)) continue;
        r.minimo = std::min(r.minimo, Acotado(v));
        r.maximo = std::max(r.maximo, Acotado(v));
    }
}

void Separar(Rango &r) {
    if (r.maximo == r.minimo) r.maximo = MaximoSeparado(r.minimo);
}

void LimitesDelUsuarioEnY(Rango &r, const OpcionesGrafico &o) {
    if (o.minYDefecto == 0) r.minimo = Acotado(o.minY);
    if (o.maxYDefecto == 0) r.maximo = Acotado(o.maxY);
}

// The first row of the sample whose period is this text, or this number; -1 for none.
int FilaDelPeriodo(const Grafico &g, std::string_view texto) {
    const std::string_view buscado = Recortado(texto);
    const double numero = LeerDecimal(buscado);
    const int n = std::min(g.muestra, static_cast<int>(g.periodos.size()));
    for (int i = 0; i < n; ++i) {
        const auto fila = static_cast<std::size_t>(i);
        if (g.periodos[fila] == buscado || g.numeros[fila] == numero) return i;
    }
    return -1;
}

// Rows between the user's periods. A period that is none of the sample's leaves the sample's end.
void AcotarFilas(Grafico &g) {
    LimitesGrafico &l = g.limites;
    const OpcionesGrafico &o = g.opciones;
    const int desde = o.minXDefecto == 0 ? FilaDelPeriodo(g, o.minXTexto) : -1;
    const int hasta = o.maxXDefecto == 0 ? FilaDelPeriodo(g, o.maxXTexto) : -1;
    if (desde >= 0) l.primera = desde;
    if (hasta >= 0) l.ultima = hasta;
    if (l.ultima >= l.primera) return;
    // One row more, even behind the sample, as long as the table of observations has it.
    const int filas = std::max(static_cast<int>(g.periodos.size()), 1);
    l.ultima = std::min(l.primera + 1, filas - 1);
}

void LimitesDeValoresEnX(Grafico &g) {
    Rango r;
    Abarcar(r, g.ejeX, g.muestra);
    if (g.opciones.minXDefecto == 0) r.minimo = Acotado(LeerDecimal(Recortado(g.opciones.minXTexto)));
    if (g.opciones.maxXDefecto == 0) r.maximo = Acotado(LeerDecimal(Recortado(g.opciones.maxXTexto)));
    Separar(r);
    g.limites.minX = r.minimo;
    g.limites.maxX = r.maximo;
}

void LimitesDeClasesEnX(Grafico &g) {
    Rango r = {Acotado(g.histograma.limites.front()), Acotado(g.histograma.limites.back())};
    Separar(r);
    g.limites.minX = r.minimo;
    g.limites.maxX = r.maximo;
}

// The greater of the two distances to zero stands on both sides.
void LimitesDeResiduos(Rango &r, const Grafico &g) {
    if (g.estandarizados != 0) r = {-5, 5};
    LimitesDelUsuarioEnY(r, g.opciones);
    if (r.minimo == r.maximo) r.maximo += 0.1;
    if (r.maximo < 0) r.maximo = -r.minimo;
    if (r.minimo > 0) r.minimo = -r.maximo;
    r.maximo = std::max(std::fabs(r.minimo), std::fabs(r.maximo));
    if (!(r.maximo > 0)) r.maximo = 1.0;
    r.minimo = -r.maximo;
}

void LimitesDePrediccion(Rango &r, const Grafico &g) {
    Abarcar(r, g.ejeX, g.muestra);
    LimitesDelUsuarioEnY(r, g.opciones);
    if (r.minimo == r.maximo) r.maximo += 0.0001;
    if (r.maximo < 0) r.maximo = -r.maximo;
    if (r.minimo > 0) r.minimo = -r.minimo;
    if (std::fabs(r.maximo) < std::fabs(r.minimo)) r.maximo = -r.minimo;
    if (std::fabs(r.minimo) < std::fabs(r.maximo)) r.minimo = -r.maximo;
}

} // namespace

double MaximoSeparado(double limite) {
    return limite + 1 != limite ? limite + 1 : limite + std::fabs(limite);
}

void CalcularLimites(Grafico &g) {
    g.limites = {};
    g.limites.ultima = std::max(g.muestra - 1, 0);
    Rango y;
    for (const SerieGrafico &s : g.series) Abarcar(y, s.valores, g.muestra);
    switch (g.clase) {
    case GraficoAutocorrelacion: return;
    case GraficoHistograma:
        LimitesDeClasesEnX(g);
        Abarcar(y, g.histograma.frecuencias, static_cast<int>(g.histograma.frecuencias.size()));
        LimitesDelUsuarioEnY(y, g.opciones);
        Separar(y);
        break;
    case GraficoResiduos:
        AcotarFilas(g);
        LimitesDeResiduos(y, g);
        break;
    case GraficoPrediccion:
        LimitesDePrediccion(y, g);
        g.limites.minX = y.minimo;
        g.limites.maxX = y.maximo;
        break;
    case GraficoDispersion: LimitesDeValoresEnX(g); [[fallthrough]];
    default:
        if (g.clase != GraficoDispersion) AcotarFilas(g);
        LimitesDelUsuarioEnY(y, g.opciones);
        Separar(y);
    }
    g.limites.minY = y.minimo;
    g.limites.maxY = y.maximo;
}
