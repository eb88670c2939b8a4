// The files that come with the program, to be read: its examples and its tutorial.
#pragma once

#include <string>

enum class DatosDelPrograma { Ejemplos, Tutorial };

// Their folder, beside the program where it is installed, in the sources where it was built there. Empty when it is in
// neither place.
std::string CarpetaDeDatos(DatosDelPrograma cuales);

// From here on the places are those beside this folder, as if the program stood in it; an empty one is its own again.
void PonerCarpetaDelPrograma(const std::string &carpeta);
