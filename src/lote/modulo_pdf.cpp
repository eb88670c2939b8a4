// The writer of PDF documents, loaded when it is needed.
#include "lote/modulo_pdf.h"

#include <dlfcn.h>
#include <filesystem>
#include <system_error>

namespace {

using RutinaEscribirPdf = bool (*)(const std::string &, std::string_view, const std::deque<PaginaImpresa> &);
using RutinaEscribirPng = bool (*)(const std::string &, const std::vector<OrdenDibujo> &, int, int, int);

// The module, or null. It stays loaded: what the toolkit has begun can't be taken back.
void *CargarModulo() {
    std::error_code error;
    const auto carpeta = std::filesystem::read_symlink("/proc/self/exe", error).parent_path();
    for (const char *lugar : {"tabira_pdf.so", "../" TABIRA_MODULOS "/tabira_pdf.so"}) {
        void *modulo = dlopen((carpeta / lugar).c_str(), RTLD_NOW | RTLD_LOCAL);
        if (modulo != nullptr) return modulo;
    }
    return nullptr;
}

// A routine of the module, or null.
template <class Rutina> Rutina DelModulo(const char *nombre) {
    static void *const Modulo = CargarModulo();
    return Modulo != nullptr ? reinterpret_cast<Rutina>(dlsym(Modulo, nombre)) : nullptr;
}

} // namespace

bool EscribirPdfConModulo(const std::string &ruta, std::string_view titulo,
                          const std::deque<PaginaImpresa> &paginas) {
    const auto escribir = DelModulo<RutinaEscribirPdf>("TabiraEscribirPdf");
    return escribir != nullptr && escribir(ruta, titulo, paginas);
}

bool EscribirPngConModulo(const std::string &ruta, const std::vector<OrdenDibujo> &ordenes, int ancho,
                          int alto, int anchoCaracter) {
    const auto escribir = DelModulo<RutinaEscribirPng>("TabiraEscribirPng");
    return escribir != nullptr && escribir(ruta, ordenes, ancho, alto, anchoCaracter);
}
