// The log of the session in the main window.
#pragma once

#include <QMainWindow>

// Puts the log in a dock, closed at the start, and a button that opens and closes it at the right of the status line.
void PonerRegistro(QMainWindow &principal);
