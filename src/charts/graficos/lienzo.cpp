// Mappings, axes and their marks.
#include "charts/graficos/lienzo.h"

#include "language/lote_sentencias.h"
#include "platform/campos_texto.h"
#include "platform/texto.h"
#include "store/limites.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double CoordenadaExtrema = 32000;     // as far as every device reaches
constexpr double PasoMinimo = 0.000001;         // between marks of the X axis
constexpr std::size_t CifrasDelSiglo = 2;       // that the label of a period loses
constexpr int MaxIntervalos = MaxObservaciones; // more marks than units of any surface

int Proporcion(int origen, int recorrido, double v, double minimo, double maximo) {
    return Coordenada(origen + recorrido * (v - minimo) / (maximo - minimo));
}

int AlMenosDos(int intervalos) {
    if (intervalos < 1) return 0;
    return std::clamp(intervalos, MinIntervalos, MaxIntervalos);
}

std::string_view EtiquetaDeFila(const Grafico &g, int fila) {
    if (fila < 0 || fila >= static_cast<int>(g.periodos.size())) return {};
    const std::string_view texto = g.periodos[static_cast<std::size_t>(fila)];
    return g.recortaPeriodos ? texto.substr(std::min(CifrasDelSiglo, texto.size())) : texto;
}

} // namespace

int Coordenada(double v) {
    if (!(v > -CoordenadaExtrema)) return static_cast<int>(-CoordenadaExtrema);
    return static_cast<int>(std::min(v, CoordenadaExtrema));
}

int FilasTrazadas(const Grafico &g) {
    return std::max(g.limites.ultima - g.limites.primera + 1, 1);
}

double PasoDeSeries(const Lienzo &l) {
    const int recorrido = l.d.area.derecha - l.d.area.izquierda - l.d.c;
    return std::fabs(
        std::min(static_cast<double>(recorrido) / FilasTrazadas(l.g), static_cast<double>(l.d.ancho)));
}

double PasoDeResiduos(const Lienzo &l) {
    const int filas = FilasTrazadas(l.g), barra = l.d.c;
    const double libre = static_cast<double>(l.d.area.derecha - l.d.area.izquierda - filas * barra) / filas;
    return std::min(libre, static_cast<double>(l.d.ancho)) + barra;
}

int XDeFila(const Lienzo &l, int fila, double paso) {
    return Coordenada(l.d.area.izquierda + l.d.c + (fila - l.g.limites.primera) * paso);
}

int XDeValor(const Lienzo &l, double v) {
    const CajaGrafico &a = l.d.area;
    return Proporcion(a.izquierda, a.derecha - a.izquierda - l.d.c, v, l.g.limites.minX, l.g.limites.maxX);
}

int YDeValor(const Lienzo &l, double v) {
    const CajaGrafico &a = l.d.area;
    return Proporcion(a.inferior, -(a.inferior - a.superior - l.d.h), v, l.g.limites.minY, l.g.limites.maxY);
}

int XMedia(const Lienzo &l) {
    return l.d.area.izquierda + (l.d.area.derecha - l.d.area.izquierda) / 2;
}

int YMedia(const Lienzo &l) {
    return l.d.area.superior + (l.d.area.inferior - l.d.area.superior) / 2;
}

int XDesdeElMedio(const Lienzo &l, double v) {
    return Proporcion(XMedia(l), (l.d.area.derecha - l.d.area.izquierda) / 2, v, 0, l.g.limites.maxX);
}

int YDesdeElMedio(const Lienzo &l, double v) {
    return Proporcion(YMedia(l), -((l.d.area.inferior - l.d.area.superior) / 2), v, 0, l.g.limites.maxY);
}

void EjeHorizontal(const Lienzo &l, int y, const Pluma &pluma) {
    Linea(l.s, l.d.area.izquierda, y, l.d.area.derecha, y, pluma);
}

void EjeVertical(const Lienzo &l, int x, const Pluma &pluma) {
    Linea(l.s, x, l.d.area.superior, x, l.d.area.inferior, pluma);
}

std::string TextoDeEje(double v) {
    const int decimales = std::clamp(Lote.DecimalesSalida, 0, 6);
    return std::string(Recortado(Formatear(" %6.*f", decimales, v)));
}

void MarcaEnX(const Lienzo &l, int x, int eje, std::string_view texto) {
    if (x <= l.d.area.izquierda || x >= l.d.area.derecha) return;
    Texto(l.s, x, eje + l.d.h / 2, texto);
    Linea(l.s, x, eje - l.d.h / 4, x, eje + l.d.h / 4, PlumaEjes);
}

void MarcaEnY(const Lienzo &l, int eje, int y, std::string_view texto) {
    const int c = l.d.c;
    Texto(l.s, std::max(eje - (static_cast<int>(texto.size()) * c + c), c), y, texto);
    Linea(l.s, eje - c, y, eje, y, PlumaEjes);
}

int IntervalosX(const Grafico &g) {
    return AlMenosDos(std::min(g.opciones.intervalosX, g.muestra));
}

int IntervalosY(const Grafico &g) {
    return AlMenosDos(g.opciones.intervalosY);
}

void MarcasDePeriodos(const Lienzo &l, int eje, double paso, int intervalos) {
    if (intervalos == 0) return;
    const int salto = std::max(FilasTrazadas(l.g) / intervalos, 1);
    for (int t = l.g.limites.primera; t <= l.g.limites.ultima; t += salto)
        MarcaEnX(l, XDeFila(l, t, paso), eje, EtiquetaDeFila(l.g, t));
}

void MarcasDeValoresX(const Lienzo &l) {
    const int intervalos = IntervalosX(l.g);
    if (intervalos == 0) return;
    double salto = (l.g.limites.maxX - l.g.limites.minX) / intervalos;
    if (!(salto > 0)) salto = PasoMinimo;
    // The steps add up, so that the last mark may be lost to rounding. They are counted, too: a step may be lost among
    // the digits of a large value, which then never reaches the maximum.
    double v = l.g.limites.minX;
    for (int i = 0; i <= intervalos && v <= l.g.limites.maxX; ++i, v += salto)
        MarcaEnX(l, XDeValor(l, v), l.d.area.inferior, TextoDeEje(v));
}

void MarcasDeValoresY(const Lienzo &l) {
    const int intervalos = IntervalosY(l.g);
    if (intervalos == 0 || !(l.g.limites.minY < l.g.limites.maxY)) return;
    const double salto = (l.g.limites.maxY - l.g.limites.minY) / intervalos;
    for (int i = 0; i <= intervalos; ++i) {
        const double v = l.g.limites.minY + i * salto;
        MarcaEnY(l, l.d.area.izquierda, YDeValor(l, v), TextoDeEje(v));
    }
}
