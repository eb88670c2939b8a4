// The printer of a run.
#include "lote/impresora.h"

#include "lote/modulo_pdf.h"
#include "lote/sucesos.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <iterator>
#include <system_error>
#include <utility>

namespace {

struct DocumentoDeCorrida {
    std::string ruta;             // as it was given
    std::filesystem::path entera; // without links and detours
    std::string titulo;
    std::deque<PaginaImpresa> paginas;
};

struct EstadoImpresora {
    std::deque<DocumentoDeCorrida> documentos;
    DocumentoDeCorrida *enUso = nullptr;
};

EstadoImpresora Impresora;

} // namespace

void ElegirDocumento(const std::string &ruta) {
    // The same file under another spelling of its path is the same document, which gets the pages of both.
    std::error_code error;
    auto entera = std::filesystem::weakly_canonical(ruta, error);
    if (error) entera = ruta;
    if (entera.is_relative()) entera = std::filesystem::absolute(entera, error);
    const auto p = std::find_if(Impresora.documentos.begin(), Impresora.documentos.end(),
                                [&](const DocumentoDeCorrida &d) { return d.entera == entera; });
    if (p != Impresora.documentos.end()) {
        Impresora.enUso = &*p;
    } else {
        Impresora.enUso = &Impresora.documentos.emplace_back(DocumentoDeCorrida{ruta, entera, {}, {}});
    }
}

void TerminarTrabajoDeCorrida() {
    TrabajoImpreso trabajo = TerminarTrabajoGrabado();
    SucesoImpresion(trabajo);
    if (Impresora.enUso == nullptr) return;
    DocumentoDeCorrida &d = *Impresora.enUso;
    if (d.paginas.empty()) d.titulo = trabajo.titulo;
    std::move(trabajo.paginas.begin(), trabajo.paginas.end(), std::back_inserter(d.paginas));
}

bool EscribirDocumentos() {
    bool bien = true;
    for (const DocumentoDeCorrida &d : Impresora.documentos) {
        if (d.paginas.empty() || EscribirPdfConModulo(d.ruta, d.titulo, d.paginas)) continue;
        Quejarse("no se puede escribir '" + d.ruta + "'");
        bien = false;
    }
    return bien;
}

void OlvidarDocumentos() {
    Impresora = {};
}
