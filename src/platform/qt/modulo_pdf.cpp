// The writer of PDF documents as a module, for a program that loads the toolkit only when it must.
#include "platform/qt/pdf.h"

extern "C" __attribute__((visibility("default"))) bool
TabiraEscribirPdf(const std::string &ruta, std::string_view titulo,
                  const std::deque<PaginaImpresa> &paginas) {
    return EscribirPdf(ruta, titulo, paginas);
}
