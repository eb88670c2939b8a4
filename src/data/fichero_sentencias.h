// Statement files (*.TXT): the text of the edit screen, one statement a line.
#pragma once

#include "platform/plataforma.h"

#include <string>

enum ComandosDeSentencias { AbrirSentencias, GuardarSentencias, AnadirSentencias };

// Characters of the text of a statement file with which the commands work.
inline constexpr int LimiteSentencias = 4000;

// Opens a statement file in the place of the screen's text, saves the text, or puts a file behind it. A text of more than
// LimiteSentencias characters (a line end counts as two) is cut: saving writes its first 4,000, putting a file behind it
// leaves 3,999 of it. Nothing changes when no file is chosen or it can't be used. Messages, title "Proceso cancelado":
// "Nombre archivo incorrecto" (a name or folder with "*", "?" or "-"), "Error al abrir el archivo", "No se puede leer el
// fichero completo" (what was read goes on to the screen).
void ComandoSentencias(Ventana *ventana, ControlTexto *pantalla, ComandosDeSentencias comando);

// Opens the statement file of this path, whatever its name, in the same way. False after its message, with the screen as it
// was.
bool AbrirFicheroSentencias(Ventana *ventana, ControlTexto *pantalla, const std::string &ruta);
