// Drawing operations as a scalable picture.
#pragma once

#include "platform/superficie.h"

#include <string>

// An SVG document, in UTF-8, of a sheet of the given size and cell. Texts stay texts, each in its cells.
std::string SvgDeOrdenes(const std::vector<OrdenDibujo> &ordenes, int ancho, int alto, int anchoCaracter,
                         int altoLinea);
