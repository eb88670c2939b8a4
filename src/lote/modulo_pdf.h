// The writer of PDF documents, loaded when it is needed.
#pragma once

#include "platform/impresora_grabadora.h"

#include <string>
#include <string_view>

// Writes pages to a PDF document through the module tabira_pdf, which stands beside the program or in the folder of
// libraries of its installation. False when there are no pages, the module is missing or the file can't be written.
bool EscribirPdfConModulo(const std::string &ruta, std::string_view titulo,
                          const std::deque<PaginaImpresa> &paginas);

// Writes a drawing on a sheet of the given size, whose cells are `anchoCaracter` wide, to the PNG file `ruta`.
bool EscribirPngConModulo(const std::string &ruta, const std::vector<OrdenDibujo> &ordenes, int ancho,
                          int alto, int anchoCaracter);
