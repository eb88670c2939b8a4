// The printer that records.
#include "platform/impresora_grabadora.h"

#include "platform/campos_texto.h"

#include <algorithm>

struct DispositivoImpresion {
    Superficie superficie; // of the page, while one is begun
    bool conDocumento, conPagina;
};

namespace {
TrabajoImpreso Trabajo;
}

void EmpezarTrabajoGrabado(std::string_view titulo) {
    Trabajo = {};
    Trabajo.titulo = titulo;
}

TrabajoImpreso TerminarTrabajoGrabado() {
    while (!Trabajo.paginas.empty() && Trabajo.paginas.back().ordenes.empty()) Trabajo.paginas.pop_back();
    TrabajoImpreso hecho = std::move(Trabajo);
    Trabajo = {};
    return hecho;
}

void OlvidarTrabajoGrabado() {
    Trabajo = {};
}

DispositivoImpresion *AbrirImpresoraGrabadora() {
    return new DispositivoImpresion{};
}

bool IniciarDocumentoGrabado(DispositivoImpresion *dispositivo, const char *nombre) {
    if (dispositivo->conDocumento) return false;
    if (Trabajo.documento.empty()) Trabajo.documento = nombre;
    dispositivo->conDocumento = true;
    return true;
}

bool IniciarPaginaGrabada(DispositivoImpresion *dispositivo) {
    if (!dispositivo->conDocumento || dispositivo->conPagina) return false;
    PaginaImpresa &pagina = Trabajo.paginas.emplace_back();
    dispositivo->superficie =
        SuperficieGrabadora(pagina.ordenes, AnchoPagina, AltoPagina, AnchoCaracterPagina, AltoLineaPagina);
    dispositivo->conPagina = true;
    return true;
}

Superficie *SuperficieGrabada(DispositivoImpresion *dispositivo) {
    return dispositivo->conPagina ? &dispositivo->superficie : nullptr;
}

bool TerminarPaginaGrabada(DispositivoImpresion *dispositivo) {
    const bool habia = dispositivo->conPagina;
    dispositivo->conPagina = false;
    return habia;
}

bool TerminarDocumentoGrabado(DispositivoImpresion *dispositivo) {
    const bool habia = dispositivo->conDocumento;
    dispositivo->conDocumento = dispositivo->conPagina = false;
    return habia;
}

void CerrarImpresoraGrabadora(DispositivoImpresion *dispositivo) {
    delete dispositivo;
}

std::vector<std::string> LineasDePagina(const PaginaImpresa &pagina) {
    std::vector<const OrdenDibujo *> textos;
    for (const OrdenDibujo &o : pagina.ordenes)
        if (o.clase == OrdenTexto) textos.push_back(&o);
    std::stable_sort(textos.begin(), textos.end(), [](const OrdenDibujo *a, const OrdenDibujo *b) {
        return a->y1 != b->y1 ? a->y1 < b->y1 : a->x1 < b->x1;
    });
    std::vector<std::string> lineas;
    const OrdenDibujo *primero = nullptr; // text with which the line begins
    for (const OrdenDibujo *t : textos) {
        if (primero == nullptr || t->y1 != primero->y1) {
            primero = t;
            lineas.emplace_back();
        }
        std::string &linea = lineas.back();
        linea.resize(
            std::max(linea.size(), static_cast<std::size_t>((t->x1 - primero->x1) / AnchoCaracterPagina)),
            ' ');
        linea += t->texto;
    }
    for (std::string &l : lineas) l = Recortado(l, RecorteDerecha);
    return lineas;
}
