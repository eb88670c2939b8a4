// Painting and scrolling of the result window.
#include "charts/resultados/ventana_resultado.h"

#include <algorithm>

namespace {

constexpr Pluma PlumaGruesa = {{0, 0, 0}, 3, PlumaContinua};
constexpr Pluma PlumaFina = {{0, 0, 0}, 1, PlumaContinua};

constexpr int MargenInferior = 50; // units above the bottom limit at which drawing stops
constexpr int LineasDePaginado = 5;
constexpr int LineasDeMuesca = 3;

// Thin rules of the coefficient table. With the stock font of 8 by 16: units from the left edge of the window as it
// opens, where the block begins at 32; in a wider window they move with the block. With any other font:
// BlancosEntreColumnas.
constexpr int AnchoFuenteBase = 8, AltoFuenteBase = 16, BordeConFuenteBase = 32;
constexpr std::array ReglasConFuenteBase = {160, 290, 410, 510};

int NumeroDeLineas(const SalidaResultado &salida) {
    return static_cast<int>(salida.lineas->size());
}

// A line of text and the half row above and below it: rules stand in the middle of a row of their own.
struct Pintado {
    Superficie &s;
    const BloqueTexto &bloque;
    int filas = 0;
    int fondo = 0;      // where the last rule is, or where one belongs when a line was drawn last
    bool regla = false; // a rule is there already
};

int AlturaDeFila(const Pintado &p) {
    return p.bloque.superior + p.s.altoLinea / 2 + p.filas * p.s.altoLinea;
}

void ReglaEnElFondo(Pintado &p) {
    if (!p.regla) Linea(p.s, p.bloque.izquierda, p.fondo, p.bloque.derecha, p.fondo, PlumaGruesa);
    p.regla = true;
}

bool CabeOtraLinea(const Pintado &p) {
    return AlturaDeFila(p) <= p.bloque.limite;
}

void PonerLinea(Pintado &p, const LineaSalida &linea) {
    const std::string_view texto(linea.texto);
    Texto(p.s, p.bloque.izquierda + p.s.anchoCaracter, AlturaDeFila(p), texto.substr(0, AnchoBloqueSalida));
    ++p.filas;
    p.fondo = AlturaDeFila(p) + p.s.altoLinea / 2;
    p.regla = false;
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
    for (std::size_t i = 0; i < ReglasConFuenteBase.size(); ++i) {
        const int x =
            p.bloque.izquierda + (base ? ReglasConFuenteBase[i] - BordeConFuenteBase
                                       : (static_cast<int>(BlancosEntreColumnas[i]) + 1) * c + c / 2);
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

BloqueTexto BloqueCentrado(const Superficie &s, int superior, int limite) {
    // One character less than the block is wide: text begins a character behind the left rule.
    const int izquierda = (s.ancho - (AnchoBloqueSalida - 1) * s.anchoCaracter) / 2;
    return {izquierda, std::min(izquierda + AnchoBloqueSalida * s.anchoCaracter, s.ancho), superior, limite};
}

int PintarBloque(Superficie &s, const BloqueTexto &bloque, const SalidaResultado &salida, int desde,
                 int &filas) {
    Pintado p{s, bloque};
    p.fondo = bloque.superior;
    ReglaEnElFondo(p);
    if (salida.fijas != nullptr && !salida.fijas->empty()) {
        for (const LineaSalida &l : *salida.fijas) PonerLinea(p, l);
        PonerRegla(p);
    }
    std::vector<int> reglas = {p.fondo};
    int i = std::max(desde, 0);
    const int primera = i;
    for (; i < NumeroDeLineas(salida) && CabeOtraLinea(p); ++i) {
        PonerLinea(p, (*salida.lineas)[static_cast<std::size_t>(i)]);
        reglas.push_back(p.fondo);
        if (ReglaDetras(salida, i)) PonerRegla(p);
    }
    if (p.filas == 0) { // nothing to show: an empty block, one row high
        p.fondo += s.altoLinea;
        p.regla = false;
    }
    ReglaEnElFondo(p);
    Linea(s, bloque.izquierda, bloque.superior, bloque.izquierda, p.fondo, PlumaGruesa);
    Linea(s, bloque.derecha, bloque.superior, bloque.derecha, p.fondo, PlumaGruesa);
    if (salida.tablas != nullptr)
        for (const TablaCoeficientes &t : *salida.tablas) PonerReglasDeTabla(p, t, primera, reglas);
    filas = p.filas;
    return i;
}

void PintarResultado(Superficie &s, EstadoVentanaResultado &estado, const SalidaResultado &salida) {
    estado.anchoCaracter = s.anchoCaracter;
    estado.altoLinea = s.altoLinea;
    Rectangulo(s, 0, 0, s.ancho - 1, s.alto - 1, PlumaGruesa, nullptr);
    const BloqueTexto bloque = BloqueCentrado(s, s.altoLinea, s.alto - s.altoLinea - MargenInferior);
    PintarBloque(s, bloque, salida, estado.LineaInicial, estado.Fila);
}

void DesplazarResultado(EstadoVentanaResultado &estado, const SalidaResultado &salida, Desplazamientos que,
                        int posicion) {
    static constexpr std::array Pasos = {-1, 1, -LineasDePaginado, LineasDePaginado};
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
                                             {DesplazarA, 0},   {DesplazarA, TopeBarraResultado}};
    DesplazarResultado(estado, salida, Teclas[tecla].que, Teclas[tecla].posicion);
}

void DesplazarConRueda(EstadoVentanaResultado &estado, const SalidaResultado &salida, int muescas) {
    const int lineas = std::clamp(muescas, -TopeBarraResultado, TopeBarraResultado) * LineasDeMuesca;
    DesplazarResultado(estado, salida, DesplazarA, estado.LineaInicial + lineas);
}
