// The writer of PDF documents, loaded when it is needed.
#include "lote/modulo_pdf.h"

#include <dlfcn.h>
#include <filesystem>
#include <system_error>

namespace {

using RutinaEscribirPdf = bool (*)(const std::string &, std::string_view, const std::deque<PaginaImpresa> &);

// The module, or null. It stays loaded: what the toolkit has begun can't be taken back.
RutinaEscribirPdf CargarModulo() {
    std::error_code error;
    const auto carpeta = std::filesystem::read_symlink("/proc/self/exe", error).parent_path();
    for (const char *lugar : {"tabira_pdf.so", "../" TABIRA_LIBDIR "/tabira/tabira_pdf.so"}) {
        void *modulo = dlopen((carpeta / lugar).c_str(), RTLD_NOW | RTLD_LOCAL);
        if (modulo != nullptr) return reinterpret_cast<RutinaEscribirPdf>(dlsym(modulo, "TabiraEscribirPdf"));
    }
    return nullptr;
}

} // namespace

bool EscribirPdfConModulo(const std::string &ruta, std::string_view titulo,
                          const std::deque<PaginaImpresa> &paginas) {
    static const RutinaEscribirPdf Escribir = CargarModulo();
    return Escribir != nullptr && Escribir(ruta, titulo, paginas);
}
