// The words of the language with their routines, and the start of what they work with. This file stands above all
// folders: a room that brings a word is named here, and the language never hears of the room.
#include "language/palabras.h"

#include "charts/graficos/histograma.h"
#include "charts/graficos/series_grafico.h"
#include "estimation/regresion.h"
#include "hypothesis/durbin_wallis.h"
#include "hypothesis/goldfeld.h"
#include "hypothesis/hipotesis_nula.h"
#include "hypothesis/rangos.h"
#include "store/periodos.h"

namespace {

int Regresion(Orden &o) {
    return EstimarRegresion(o.lineas, o.detras, o.ventana, o.codigo);
}

// MC and MCP work on the bounds of the batch; the other regressions on those of the last MC or MCP.
int RegresionPrincipal(Orden &o) {
    Muestra.InicioRegresion = o.primera;
    Muestra.FinRegresion = o.ultima;
    return Regresion(o);
}

// The tests, from behind their word or without it.
template <int (*Contraste)(LineasSentencia &, int, Ventana *)> int Contrastar(Orden &o) {
    return Contraste(o.lineas, o.detras, o.ventana);
}

template <int (*Contraste)(LineasSentencia &, Ventana *)> int Contrastar(Orden &o) {
    return Contraste(o.lineas, o.ventana);
}

std::string_view RestoDeLinea(const Orden &o) {
    return std::string_view(o.lineas[0]).substr(static_cast<std::size_t>(o.detras));
}

int Grafica(Orden &o) {
    return EjecutarGRAF(o.ventana, RestoDeLinea(o), o.primera, o.ultima);
}

int Histogramas(Orden &o) {
    return EjecutarHIST(o.ventana, RestoDeLinea(o), o.primera, o.ultima);
}

// FICTIC has no row: it is found behind SER.
constexpr Palabra Tabla[] = {
    {"REPITE", OrdenDesconocida, SoloSeleccion, FueraDeBloques, EjecutarControl},
    {"MIENTRAS", OrdenDesconocida, SoloSeleccion, FueraDeBloques, EjecutarControl},
    {"SI", OrdenDesconocida, SoloSeleccion, FueraDeBloques, EjecutarControl},
    {"MUEST", OrdenDesconocida, Siempre, FueraDeBloques, EjecutarMUEST},
    {"GRAF", OrdenDesconocida, Siempre, FueraDeBloques, Grafica},
    {"HIST", OrdenDesconocida, Siempre, FueraDeBloques, Histogramas},
    {"DECI", OrdenDesconocida, Siempre, FueraDeBloques, EjecutarDECI},
    {"AES", OrdenAES, Siempre, FueraDeBloques, EjecutarNada},
    {"AED", OrdenAED, Siempre, FueraDeBloques, EjecutarNada},
    {"SER", OrdenSER, SinParentesis, DentroDeBloques, EjecutarFormula},
    {"CAL", OrdenCAL, Siempre, DentroDeBloques, EjecutarFormula},
    {"ESC", OrdenESC, Siempre, DentroDeBloques, EjecutarFormula},
    {"MAT", OrdenMAT, SinParentesis, DentroDeBloques, EjecutarFormula},
    {"MC", OrdenMC, Siempre, DentroConMuestra, RegresionPrincipal},
    {"CR", OrdenCR, Siempre, DentroDeBloques, Regresion},
    {"MGN", OrdenMGN, Siempre, DentroDeBloques, Regresion},
    {"MGD", OrdenMGD, Siempre, DentroDeBloques, Regresion},
    {"CWH", OrdenCWH, Siempre, DentroDeBloques, Regresion},
    {"MCP", OrdenMCP, Siempre, DentroDeBloques, RegresionPrincipal},
    {"OBS", OrdenOBS, Siempre, DentroDeBloques, EjecutarFormula},
    {"CWA", OrdenCWA, Siempre, DentroDeBloques, Contrastar<ContrasteWallis>},
    {"CHN", OrdenCHN, Siempre, DentroDeBloques, Contrastar<ContrasteHipotesisNula>},
    {"CGQ", OrdenCGQ, Siempre, DentroDeBloques, Contrastar<ContrasteGoldfeldQuandt>},
    {"CRA", OrdenCRA, Siempre, DentroDeBloques, Contrastar<ContrasteRangos>},
    {"CDU", OrdenCDU, Siempre, DentroDeBloques, Contrastar<ContrasteDurbin>},
    {"VSR", OrdenVSR, Siempre, FueraDeBloques, EjecutarVSR},
};

} // namespace

constinit const std::span<const Palabra> Palabras = Tabla;

void IniciarProcedimientos() {
    IniciarLote();
    IniciarRegresion();
    IniciarHipotesisNula();
}
