// The work file on disk (*.TR2): everything of ArchivoTrabajo that must persist, in the tables of an SQLite database.
// docs/fichero_trabajo.md describes them for other programs.
#pragma once

#include "platform/fichero_tablas.h"

#include <string>

// Writes the work file, whose data type is chosen. False when it couldn't be written; the old file is whole then.
bool EscribirFicheroTrabajo(const std::string &ruta);

// Replaces the work file in memory by the one in the file, its name too; the editor is refreshed. Unless the result is
// TablasLeidas nothing changes, whatever the file holds. Limits of the sample and the last regression are the caller's.
LecturasDeTablas LeerFicheroTrabajo(const std::string &ruta);
