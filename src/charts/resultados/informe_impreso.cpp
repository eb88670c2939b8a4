// The text of a result window on paper.
#include "charts/resultados/informe_impreso.h"

#include "charts/resultados/ventana_resultado.h"
#include "estimation/regresion.h"
#include "language/lote_sentencias.h"

#include <algorithm>
#include <iterator>

EstadoInforme Informe;

namespace {

struct TituloDeClase {
    int clase;
    const char *titulo;
};

constexpr TituloDeClase TitulosImpresos[] = {
    {OrdenMC, "Método: Mínimos cuadrados ordinarios"_w},
    {OrdenMCP, "Método: Mínimos cuadrados ponderados"_w},
};

void PonerCentrado(Superficie &s, int fila, std::string_view texto) {
    const int ancho = static_cast<int>(texto.size()) * s.anchoCaracter;
    Texto(s, std::max((s.ancho - ancho) / 2, 0), fila * s.altoLinea, texto);
}

// Draws the title; returns the row behind it.
int PonerTitulo(Superficie &s, const SalidaResultado &salida) {
    const auto *propio = std::find_if(std::begin(TitulosImpresos), std::end(TitulosImpresos),
                                      [&](const TituloDeClase &t) { return t.clase == salida.Clase; });
    int fila = 2;
    PonerCentrado(s, fila++, propio != std::end(TitulosImpresos) ? propio->titulo : salida.titulo);
    // Of the two consistent covariances only this one is named on paper; the window names both in its title.
    if (salida.Clase == OrdenMC && UltimaRegresion.TipoCovarianza == CovarianzaHeterocedasticidad)
        PonerCentrado(s, fila++, "Matriz de covarianzas consistente bajo heterocedasticidad");
    return fila;
}

} // namespace

bool ImprimirTextoInforme(DispositivoImpresion *dispositivo, Ventana *ventana) {
    if (Informe.salida == nullptr) return false;
    const SalidaResultado &salida = *Informe.salida;
    const int numLineas = static_cast<int>(salida.lineas->size());
    int primera = 1;
    for (int desde = 0;;) {
        Superficie &s = *Plataforma().superficieDePagina(dispositivo);
        const int fila = PonerTitulo(s, salida);
        const BloqueTexto bloque = BloqueCentrado(s, (fila + 1) * s.altoLinea, s.alto - 4 * s.altoLinea);
        int filas = 0;
        const int hasta = PintarBloque(s, bloque, salida, desde, filas);
        if (hasta >= numLineas || hasta == desde) return true;
        desde = hasta;
        if (!TerminarPaginaImpresion(dispositivo)) return false;
        dispositivo = NuevaPaginaImpresion(ventana, primera);
        if (dispositivo == nullptr) return false;
        primera = 0;
    }
}
