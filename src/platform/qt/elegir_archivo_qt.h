// The desktop's chooser of files.
#pragma once

#include "platform/plataforma.h"

#include <string>

// Asks until a name is given that may be used, or nothing is wanted. A name to save under gets an ending of the formats
// offered, and replaces a file only after a question. False when the user cancels.
bool ElegirArchivoQt(Ventana *ventana, const PeticionArchivo &peticion, std::string &ruta);
