// A file that the user names outside the menus, on the command line or by dropping it on the window: the command of the menu
// opens it, with its boxes and questions but the one for the file.
#pragma once

#include <string>

// The id of the command that opens a file of this name, in either case: work files (.TR2), statements (.TXT), and data to import.
int ComandoDeFichero(const std::string &ruta);
