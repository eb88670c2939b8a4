// Files. A path is text of the outside: bytes as the user or the desktop gave them, never converted.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// What is longer is not read: ten times what the widest file of data takes, and the end of a device that has none.
inline constexpr std::size_t MaxBytesArchivo = std::size_t{128} << 20;

// Reads a whole file ("-" is no special name here). False when it can't be opened or read, or is longer than `maximo`
// bytes.
bool LeerArchivo(const std::string &ruta, std::string &contenido, std::size_t maximo = MaxBytesArchivo);

// Reads standard input to its end, in the same way.
bool LeerEntradaEstandar(std::string &contenido);

// Writes a file beside the old one and renames it over it, so that a failure leaves the old one whole. False when
// it can't be written, or is protected against it.
bool EscribirArchivo(const std::string &ruta, std::string_view contenido);

bool ExisteArchivo(const std::string &ruta);

// ---------------------------------------------------------------------------------------------------------------
// Parts of paths

// The last name of a path without its ending, as text of the core: characters that Windows-1252 lacks become "?".
std::string NombreDeRuta(const std::string &ruta);

// The folder of a path, empty where it names none.
std::string CarpetaDeRuta(const std::string &ruta);

// The path of the file of this name, text of the core, in the folder of `ruta`. Empty for a name that can't be one.
std::string RutaJunto(const std::string &ruta, std::string_view nombre);
