// The text of a result window on paper.
#include "charts/resultados/informe_impreso.h"

#include "charts/resultados/ventana_resultado.h"
#include "platform/texto.h"

#include <algorithm>
#include <string>

namespace {

constexpr int PrimeraFila = 2;    // of the titles above a block
constexpr int MargenInferior = 4; // lines below it
constexpr int MargenSinTitulos = 4;

// The titles of a page, those of the result before those of its kind, with the page's number where it has one.
std::vector<std::string> TitulosDePagina(const SalidaResultado &salida, const FormaVentana &forma,
                                         int pagina) {
    if (forma.titulos == SinTitulos) return {};
    std::vector<std::string> titulos(salida.papel.titulos.begin(), salida.papel.titulos.end());
    if (titulos.empty())
        titulos.emplace_back(forma.tituloImpreso != nullptr ? forma.tituloImpreso : salida.titulo);
    if (salida.papel.pagina != nullptr) titulos.front() += Formatear(salida.papel.pagina, pagina);
    return titulos;
}

void PonerCentrado(Superficie &s, int fila, std::string_view texto) {
    const int ancho = static_cast<int>(texto.size()) * s.anchoCaracter;
    Texto(s, std::max((s.ancho - ancho) / 2, 0), fila * s.altoLinea, texto);
}

// What a page shows: the result with the lines of the paper instead of the window's.
struct PaginaDeSalida {
    SalidaResultado salida;
    TextoSalida fijas, lineas; // where they are the page's own
};

void PrepararPagina(PaginaDeSalida &pagina, const SalidaResultado &salida, int desde) {
    pagina.salida = salida;
    pagina.salida.fijas = salida.papel.fijas;
    if (salida.papel.alAbrir == nullptr || desde == 0) return;
    pagina.lineas = *salida.lineas;
    const auto i = static_cast<std::size_t>(desde);
    pagina.lineas[i] = (*salida.papel.alAbrir)[i];
    pagina.salida.lineas = &pagina.lineas;
}

// Draws one page from the line `desde` on. Returns the line behind the last one drawn.
int PintarPagina(Superficie &s, const SalidaResultado &salida, int desde, int numero) {
    const FormaVentana &forma = FormaDe(salida);
    const std::vector<std::string> titulos = TitulosDePagina(salida, forma, numero);
    PaginaDeSalida pagina;
    PrepararPagina(pagina, salida, desde);
    int superior = MargenSinTitulos * s.altoLinea;
    if (forma.titulos == TitulosEncima) {
        int fila = PrimeraFila;
        for (const std::string &titulo : titulos) PonerCentrado(s, fila++, titulo);
        superior = (fila + 1) * s.altoLinea;
    } else if (forma.titulos == TitulosEntreReglas) {
        superior = s.alto / 10;
        for (const std::string &titulo : titulos) AnadirLinea(pagina.fijas, 0, titulo);
        pagina.salida.fijas = &pagina.fijas;
    }
    FormaVentana enPapel = forma;
    if (forma.lugar == BloqueALaIzquierda) enPapel.lugar = BloqueCentradoJusto;
    BloqueTexto bloque = BloqueDe(enPapel, s, superior, s.alto - MargenInferior * s.altoLinea);
    bloque.titulosDentro = forma.titulos == TitulosEntreReglas;
    if (forma.margenImpreso > 0) bloque.maximo = std::max(s.alto / s.altoLinea - forma.margenImpreso, 1);
    int filas = 0;
    return PintarBloque(s, bloque, pagina.salida, desde, filas);
}

} // namespace

bool ImprimirTextoInforme(DispositivoImpresion *dispositivo, Ventana *ventana,
                          const SalidaResultado &salida) {
    const int numLineas = static_cast<int>(salida.lineas->size());
    for (int desde = 0, pagina = 1;; ++pagina) {
        const int hasta =
            PintarPagina(*ImpresoraEnUso().superficieDePagina(dispositivo), salida, desde, pagina);
        if (hasta >= numLineas || hasta == desde) return true;
        desde = hasta;
        if (!TerminarPaginaImpresion(dispositivo)) return false;
        dispositivo = NuevaPaginaImpresion(ventana, pagina == 1 ? 1 : 0);
        if (dispositivo == nullptr) return false;
    }
}
