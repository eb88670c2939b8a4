// A file that was named before anybody was asked for it: on the command line, or dropped on the window.
#pragma once

#include <string>

// The next file that ElegirArchivo is asked for, to be opened, is this one, and the user isn't asked. Empty: the user
// is, as always.
void DarArchivo(const std::string &ruta);

// True until it is taken.
bool HayArchivoDado();
