// The copy of the work in the user's state folder: what a crash, an endless loop or a save that came to nothing would
// lose. It is written before each batch and now and then in between, when the work changed; goes when the program
// ends in order; and the next start offers what was left. The text of the statements is kept with it, also where
// there is no work yet. Two programs that run at once keep one each.
#pragma once

#include "platform/plataforma.h"

#include <string>

// Begins to keep copies in this folder; before that, and with an empty name, none are kept.
// `pantalla` holds the statements, and lives until TerminarCopias; null where there are none.
void EmpezarCopias(const std::string &carpeta, ControlTexto *pantalla = nullptr);

// Offers the newest copy that no running program keeps, in one box: yes opens it as the work that wasn't saved yet, no
// deletes it, cancel leaves it for the next start. The statements come back in the place of those on the screen. A work
// that can't be read is put aside (*.danado) behind its message.
void OfrecerCopia(Ventana *ventana);

// Writes the copy anew if the work has changed since it was written, and deletes it if the work is as it was saved; the
// statements likewise while there are any.
void GuardarCopia();

// The work is as it stands in a file: of the user, or of an example.
void AnotarTrabajoGuardado();

// There is work that no file holds as it is.
bool HayTrabajoSinGuardar();

// The end of the program. With `conservar` the copy of work that isn't saved stays for the next start; else it goes.
// False when there is such work and no copy of it can be kept: the program must not end then.
bool TerminarCopias(bool conservar);
