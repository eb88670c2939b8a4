// The writers of PDF documents and pictures as a module, for a program that loads the toolkit only when it must.
#include "platform/qt/imagen.h"
#include "platform/qt/pdf.h"

extern "C" __attribute__((visibility("default"))) bool
TabiraEscribirPdf(const std::string &ruta, std::string_view titulo,
                  const std::deque<PaginaImpresa> &paginas) {
    return EscribirPdf(ruta, titulo, paginas);
}

extern "C" __attribute__((visibility("default"))) bool
TabiraEscribirPng(const std::string &ruta, const std::vector<OrdenDibujo> &ordenes, int ancho, int alto,
                  int anchoCaracter) {
    return EscribirPng(ruta, ordenes, ancho, alto, anchoCaracter, 1);
}
