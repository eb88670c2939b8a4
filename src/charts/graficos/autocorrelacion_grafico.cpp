// The chart of an autocorrelation function: a bar a lag, with a band of confidence. All its geometry is whole numbers.
#include "charts/graficos/clases.h"

#include "charts/graficos/disposicion.h"
#include "platform/texto.h"

#include <algorithm>
#include <string>

namespace {

constexpr Pluma PlumaFina = {{0, 0, 0}, 1, PlumaContinua};
constexpr Pluma PlumaEjeEnPapel = {{0, 0, 0}, 2, PlumaContinua};
constexpr Pluma PlumaBanda = {{0, 0, 0}, 1, PlumaPunteada};
constexpr Color Negro = {0, 0, 0};

constexpr int MaxRetardos = 500;  // lags with a bar stay below this
constexpr int SaltoDeNumeros = 5; // every fifth lag bears its number

int Mitad(const Lienzo &l) {
    return (l.d.area.inferior - l.d.area.superior) / 2;
}

int AlturaDe(const Lienzo &l, double v) {
    return Coordenada(l.d.area.superior + Mitad(l) - Mitad(l) * v);
}

double En(const std::vector<double> &v, int k) {
    return k >= 0 && k < static_cast<int>(v.size()) ? v[static_cast<std::size_t>(k)] : 0;
}

void DibujarEscala(const Lienzo &l) {
    const CajaGrafico &a = l.d.area;
    const int cuarto = (a.inferior - a.superior) / 4, tresCuartos = 3 * (a.inferior - a.superior) / 4;
    const int x = a.izquierda - 5 * l.d.c;
    Texto(l.s, x, a.superior - l.d.h, "   1");
    Texto(l.s, x, a.superior + cuarto, " 0.5");
    Texto(l.s, x, YMedia(l), "   0");
    Texto(l.s, x, a.superior + tresCuartos, "-0.5");
    Texto(l.s, x, a.inferior - l.d.h, "  -1");
    for (const int y : {a.superior, a.superior + cuarto, a.superior + tresCuartos, a.inferior})
        Linea(l.s, a.izquierda - l.d.c, y, a.izquierda, y, PlumaFina);
}

// The number of lag k, where its turn has come. On paper every choice of marks is one row below the axis: "Parte
// inferior" and "Sin marca" never reached it.
void PonerNumero(const Lienzo &l, int k, int x) {
    const std::string numero = std::to_string(k);
    if (l.d.enPapel) {
        Texto(l.s, x, YMedia(l) + l.d.h, numero);
    } else if (l.g.autocorrelacion.marcas != GraficoSinMarcas) {
        Texto(l.s, x, l.g.autocorrelacion.marcas == GraficoMarcasAlMedio ? YMedia(l) : l.d.area.inferior,
              numero);
    }
}

// Two pieces of the band, from the lag before to this one.
void DibujarBandaArma(const Lienzo &l, int k, int xAnterior, int x) {
    const std::vector<double> &d = l.g.autocorrelacion.desviaciones;
    for (const int lado : {-1, 1})
        Linea(l.s, xAnterior, AlturaDe(l, lado * En(d, k - 1)), x, AlturaDe(l, lado * En(d, k)), PlumaBanda);
}

// What the box says of a bar that doesn't stand in the plot; empty for one that does. In a window too low for its margins
// the edges of the plot have changed places.
std::string ErrorDeBarra(const Lienzo &l, int k, int x, int y, int limite) {
    const CajaGrafico &a = l.d.area;
    const double coeficiente = En(l.g.autocorrelacion.coeficientes, k);
    if (x < a.izquierda || x > a.derecha)
        return Formatear("coluini %d izq %d n %d minimo %d separa %d ancho %d inipon %d", x, a.izquierda, k,
                         NumeroDeBarras(l.g.autocorrelacion), l.d.separa, l.d.c / 2, limite);
    if (y < std::min(a.superior, a.inferior) || y > std::max(a.superior, a.inferior))
        return Formatear("sup %d alto %f filaini %d serie[n] %f n %d yy %d", a.superior,
                         static_cast<double>(Mitad(l)), YMedia(l), coeficiente, k, y);
    return {};
}

// A bar that has no place in the plot isn't drawn; the first such one is told.
void DibujarBarra(const Lienzo &l, int k, int x, int limite) {
    const int y = AlturaDe(l, En(l.g.autocorrelacion.coeficientes, k)), eje = YMedia(l);
    const std::string error = ErrorDeBarra(l, k, x, y, limite);
    if (error.empty())
        Rectangulo(l.s, x, std::min(y, eje), x + l.d.c / 2, std::max(y, eje), PlumaFina, &Negro);
    else if (l.errorInterno.empty())
        l.errorInterno = error;
}

void DibujarBarras(const Lienzo &l) {
    const DatosAutocorrelacion &a = l.g.autocorrelacion;
    const int paso = l.d.separa + l.d.c / 2;
    int limite = l.d.area.izquierda; // where the next number may begin
    for (int k = 1; k <= NumeroDeBarras(a) && k < MaxRetardos; ++k) {
        const int x = l.d.area.izquierda + l.d.c + (k - 1) * paso;
        if (x >= l.d.area.derecha) return;
        DibujarBarra(l, k, x, limite);
        if (x >= limite) {
            limite += static_cast<int>(std::to_string(k).size()) * l.d.c;
            if (k % SaltoDeNumeros == 0) PonerNumero(l, k, x);
        }
        if (a.tipoBanda == GraficoConBandaArma && k >= 2) DibujarBandaArma(l, k, x - paso, x);
    }
}

void DibujarTitulo(const Lienzo &l) {
    const CajaGrafico &sitio = l.d.parte[ParteTitulo];
    if (l.g.autocorrelacion.conTitulo != 0)
        Texto(l.s, sitio.izquierda, sitio.superior, l.g.autocorrelacion.titulo);
}

} // namespace

void DibujarGraficoAutocorrelacion(const Lienzo &l) {
    const Pluma &eje = l.d.enPapel ? PlumaEjeEnPapel : PlumaFina;
    EjeHorizontal(l, YMedia(l), eje);
    EjeVertical(l, l.d.area.izquierda, eje);
    DibujarEscala(l);
    if (l.g.autocorrelacion.tipoBanda == GraficoConBandaUniforme)
        for (const int lado : {1, -1})
            EjeHorizontal(l, AlturaDe(l, lado * l.g.autocorrelacion.bandaUniforme), PlumaBanda);
    DibujarBarras(l);
    DibujarTitulo(l);
}
