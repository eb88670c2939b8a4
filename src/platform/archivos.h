// Files. A path is text of the outside: bytes as the user or the desktop gave them, never converted.
#pragma once

#include <string>
#include <string_view>

// Reads a whole file ("-" is no special name here). False when it can't be opened or read.
bool LeerArchivo(const std::string &ruta, std::string &contenido);

// Reads standard input to its end.
bool LeerEntradaEstandar(std::string &contenido);

// Writes a file beside the old one and renames it over it, so that a failure leaves the old one whole. False when
// it can't be written.
bool EscribirArchivo(const std::string &ruta, std::string_view contenido);

bool ExisteArchivo(const std::string &ruta);
