// What the desktop remembers from one run to the next, in its own place: where windows stood, the files of late,
// choices of the user. None of it touches what the program computes.
#pragma once

#include <QSettings>
#include <QStringList>

class QApplication;

// The one place of all of it.
QSettings Ajustes();

// A choice of the user: `clave` is its name, `alPrincipio` what stands until it is made.
bool Eleccion(const char *clave, bool alPrincipio);
void PonerEleccion(const char *clave, bool elegido);

// From here on each dialog, result and chart opens where it was closed last, on the screen; and as large as the user
// made it, but never smaller than what it shows asks for. Boxes and the main window have places of their own.
void RecordarSitios(QApplication &aplicacion);

// The file was opened, or is going to be saved. The last 10 of each ending are remembered.
void AnotarReciente(const QString &ruta);

// Paths of those that are still there, that of the last one first, 10 at most; only those of these endings, in small
// letters, where there are any.
QStringList FicherosRecientes(const QStringList &terminaciones = {});

// The folders of the last 10, each once, that of the last one first.
QStringList CarpetasRecientes();
