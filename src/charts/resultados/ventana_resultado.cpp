// Painting and scrolling of the result window.
#include "charts/resultados/ventana_resultado.h"

#include <algorithm>
#include <array>

namespace {

constexpr Pluma PlumaFina = {{0, 0, 0}, 1, PlumaContinua};

constexpr int MargenInferior = 50; // units above the bottom limit at which drawing stops
constexpr int LineasDePaginado = 5;
constexpr int LineasDeMuesca = 3;
constexpr int AnchoFuenteBase = 8, AltoFuenteBase = 16, BordeConFuenteBase = 32;

Pluma PlumaGruesa(const FormaVentana &forma) {
    return {{0, 0, 0}, forma.grosor, PlumaContinua};
}

int NumeroDeLineas(const SalidaResultado &salida) {
    return static_cast<int>(salida.lineas->size());
}

// A line of text and the half row above and below it: rules stand in the middle of a row of their own.
struct Pintado {
    Superficie &s;
    const BloqueTexto &bloque;
    const FormaVentana &forma;
    int filas = 0;
    int fondo = 0;      // where the last rule is, or where one belongs when a line was drawn last
    bool regla = false; // a rule is there already
};

int AlturaDeFila(const Pintado &p) {
    return p.bloque.superior + p.s.altoLinea / 2 + p.filas * p.s.altoLinea;
}

void ReglaEnElFondo(Pintado &p) {
    if (!p.regla) Linea(p.s, p.bloque.izquierda, p.fondo, p.bloque.derecha, p.fondo, PlumaGruesa(p.forma));
    p.regla = true;
}

bool CabeOtraLinea(const Pintado &p) {
    return AlturaDeFila(p) <= p.bloque.limite;
}

void PonerTexto(Pintado &p, int x, std::string_view texto) {
    Texto(p.s, x, AlturaDeFila(p), texto);
    ++p.filas;
    p.fondo = AlturaDeFila(p) + p.s.altoLinea / 2;
    p.regla = false;
}

void PonerLinea(Pintado &p, const LineaSalida &linea) {
    const std::string_view texto(linea.texto);
    PonerTexto(p, p.bloque.izquierda + p.s.anchoCaracter,
               texto.substr(0, static_cast<std::size_t>(p.forma.columnas)));
}

void PonerLineaFija(Pintado &p, const LineaSalida &linea) {
    if (!p.bloque.titulosDentro) return PonerLinea(p, linea);
    const std::string_view texto(linea.texto);
    const int ancho = static_cast<int>(texto.size()) * p.s.anchoCaracter;
    PonerTexto(p, std::max((p.bloque.izquierda + p.bloque.derecha - ancho) / 2, p.bloque.izquierda), texto);
}

void DejarFilas(Pintado &p, int filas) {
    p.filas += filas;
    p.fondo += filas * p.s.altoLinea;
    if (filas > 0) p.regla = false;
}

void PonerRegla(Pintado &p) {
    ReglaEnElFondo(p);
    ++p.filas;
}

// The rules of the table between the one above its first row and the one below its last, as far as they are in sight:
// `reglas` has the height of the rule or edge below each line from `desde` - 1 on.
void PonerReglasDeTabla(const Pintado &p, const TablaCoeficientes &tabla, int desde,
                        const std::vector<int> &reglas) {
    const int hasta = desde + static_cast<int>(reglas.size()) - 2; // last line drawn
    const int primera = std::max(tabla.primera, desde);
    const int ultima = std::min(tabla.ultima, hasta);
    if (primera > ultima) return;
    const int arriba = reglas[static_cast<std::size_t>(primera - desde)];
    const int abajo = reglas[static_cast<std::size_t>(ultima - desde) + 1];
    const int c = p.s.anchoCaracter;
    const bool base = c == AnchoFuenteBase && p.s.altoLinea == AltoFuenteBase;
    const ReglasVerticales &r = *tabla.reglas;
    for (std::size_t i = 0; i < r.blancos.size(); ++i) {
        const int x = p.bloque.izquierda + (base ? r.conFuenteBase[i] - BordeConFuenteBase
                                                 : (static_cast<int>(r.blancos[i]) + 1) * c + c / 2);
        Linea(p.s, x, arriba, x, abajo, PlumaFina);
    }
}

} // namespace

bool ReglaDetras(const SalidaResultado &salida, int linea) {
    const int ultima = NumeroDeLineas(salida) - 1;
    if (linea < 0 || linea >= ultima) return false;
    if (linea > ultima - salida.finalesSinRegla) return false;
    const auto i = static_cast<std::size_t>(linea);
    return (*salida.lineas)[i].Grupo != (*salida.lineas)[i + 1].Grupo;
}

BloqueTexto BloqueDe(const FormaVentana &forma, const Superficie &s, int superior, int limite) {
    const int c = s.anchoCaracter, ancho = forma.columnas * c;
    switch (forma.lugar) {
    case BloqueALaIzquierda: return {c, std::min(c + ancho, s.ancho - c), superior, limite};
    case BloqueCentradoJusto: {
        const int izquierda = std::max((s.ancho - ancho) / 2, 0);
        return {izquierda, std::min(izquierda + ancho, s.ancho), superior, limite};
    }
    case BloqueCentradoAncho: break;
    }
    // One character less than the block is wide: text begins a character behind the left rule.
    const int izquierda = (s.ancho - (ancho - c)) / 2;
    return {izquierda, std::min(izquierda + ancho, s.ancho), superior, limite};
}

int PintarBloque(Superficie &s, const BloqueTexto &bloque, const SalidaResultado &salida, int desde,
                 int &filas) {
    Pintado p{s, bloque, FormaDe(salida)};
    p.fondo = bloque.superior;
    ReglaEnElFondo(p);
    if (salida.fijas != nullptr && !salida.fijas->empty()) {
        for (const LineaSalida &l : *salida.fijas) PonerLineaFija(p, l);
        PonerRegla(p);
    }
    DejarFilas(p, bloque.filasVacias);
    std::vector<int> reglas = {p.fondo};
    int i = std::max(desde, 0);
    const int primera = i;
    const int tope = bloque.maximo > 0 ? std::min(NumeroDeLineas(salida), primera + bloque.maximo)
                                       : NumeroDeLineas(salida);
    for (; i < tope && CabeOtraLinea(p); ++i) {
        PonerLinea(p, (*salida.lineas)[static_cast<std::size_t>(i)]);
        reglas.push_back(p.fondo);
        if (ReglaDetras(salida, i)) PonerRegla(p);
    }
    if (p.filas == 0) { // nothing to show: an empty block, one row high
        p.fondo += s.altoLinea;
        p.regla = false;
    }
    DejarFilas(p, bloque.filasVacias);
    ReglaEnElFondo(p);
    Linea(s, bloque.izquierda, bloque.superior, bloque.izquierda, p.fondo, PlumaGruesa(p.forma));
    Linea(s, bloque.derecha, bloque.superior, bloque.derecha, p.fondo, PlumaGruesa(p.forma));
    if (salida.tablas != nullptr)
        for (const TablaCoeficientes &t : *salida.tablas) PonerReglasDeTabla(p, t, primera, reglas);
    filas = p.filas;
    return i;
}

void PintarResultado(Superficie &s, EstadoVentanaResultado &estado, const SalidaResultado &salida) {
    estado.anchoCaracter = s.anchoCaracter;
    estado.altoLinea = s.altoLinea;
    const FormaVentana &forma = FormaDe(salida);
    if (forma.marco) Rectangulo(s, 0, 0, s.ancho - 1, s.alto - 1, PlumaGruesa(forma), nullptr);
    // What can't be scrolled is drawn to the edge.
    const int limite = forma.topeBarra > 0 ? s.alto - s.altoLinea - MargenInferior : s.alto;
    BloqueTexto bloque = BloqueDe(forma, s, s.altoLinea, limite);
    bloque.filasVacias = forma.filasVacias;
    estado.LineaDetras = PintarBloque(s, bloque, salida, estado.LineaInicial, estado.Fila);
}

bool LineaEnPunto(const EstadoVentanaResultado &estado, const SalidaResultado &salida, int ancho, int alto,
                  PuntoDibujo punto, int &linea, int &columna) {
    if (estado.anchoCaracter <= 0) return false; // not painted yet
    std::vector<OrdenDibujo> ordenes;
    Superficie s = SuperficieGrabadora(ordenes, ancho, alto, estado.anchoCaracter, estado.altoLinea);
    EstadoVentanaResultado medido = estado;
    PintarResultado(s, medido, salida);
    int i = estado.LineaInicial - (salida.fijas != nullptr ? static_cast<int>(salida.fijas->size()) : 0);
    for (const OrdenDibujo &o : ordenes) {
        if (o.clase != OrdenTexto) continue;
        const int esta = i++;
        if (punto.y < o.y1 || punto.y >= o.y1 + s.altoLinea || punto.x < o.x1) continue;
        if (esta < estado.LineaInicial) return false; // one of the fixed ones
        linea = esta;
        columna = (punto.x - o.x1) / s.anchoCaracter;
        return true;
    }
    return false;
}

int LineasPorDebajo(const EstadoVentanaResultado &estado, const SalidaResultado &salida) {
    return std::max(NumeroDeLineas(salida) - estado.LineaDetras, 0);
}

void DesplazarResultado(EstadoVentanaResultado &estado, const SalidaResultado &salida, Desplazamientos que,
                        int posicion) {
    static constexpr std::array Pasos = {-1, 1, -LineasDePaginado, LineasDePaginado};
    if (FormaDe(salida).topeBarra == 0) return;
    const int nueva = que == DesplazarA ? posicion : estado.LineaInicial + Pasos[que];
    estado.LineaInicial = std::clamp(nueva, 0, std::max(NumeroDeLineas(salida) - 1, 0));
    estado.Fila = 0;
}

void DesplazarConTecla(EstadoVentanaResultado &estado, const SalidaResultado &salida, TeclasResultado tecla) {
    struct FilaDeTecla {
        Desplazamientos que;
        int posicion;
    };
    static constexpr FilaDeTecla Teclas[] = {{LineaArriba, 0},  {LineaAbajo, 0},
                                             {PaginaArriba, 0}, {PaginaAbajo, 0},
                                             {DesplazarA, 0},   {DesplazarA, MaxLineasSalida}};
    DesplazarResultado(estado, salida, Teclas[tecla].que, Teclas[tecla].posicion);
}

void DesplazarConRueda(EstadoVentanaResultado &estado, const SalidaResultado &salida, int muescas) {
    const int lineas = std::clamp(muescas, -MaxLineasSalida, MaxLineasSalida) * LineasDeMuesca;
    DesplazarResultado(estado, salida, DesplazarA, estado.LineaInicial + lineas);
}
