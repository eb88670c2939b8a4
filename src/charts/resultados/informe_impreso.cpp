// The text of a result window on paper.
#include "charts/resultados/informe_impreso.h"

#include "charts/resultados/ventana_resultado.h"

#include <algorithm>

namespace {

void PonerCentrado(Superficie &s, int fila, std::string_view texto) {
    const int ancho = static_cast<int>(texto.size()) * s.anchoCaracter;
    Texto(s, std::max((s.ancho - ancho) / 2, 0), fila * s.altoLinea, texto);
}

// Draws the titles; returns the row behind them.
int PonerTitulos(Superficie &s, const SalidaResultado &salida) {
    int fila = 2;
    if (salida.titulosImpresos.empty()) PonerCentrado(s, fila++, salida.titulo);
    for (const std::string_view titulo : salida.titulosImpresos) PonerCentrado(s, fila++, titulo);
    return fila;
}

} // namespace

bool ImprimirTextoInforme(DispositivoImpresion *dispositivo, Ventana *ventana,
                          const SalidaResultado &salida) {
    const int numLineas = static_cast<int>(salida.lineas->size());
    int primera = 1;
    for (int desde = 0;;) {
        Superficie &s = *ImpresoraEnUso().superficieDePagina(dispositivo);
        const int fila = PonerTitulos(s, salida);
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
