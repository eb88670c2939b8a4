// The desktop's printer: jobs are recorded, and when one is over its pages go to the default printer or, where there is
// none, to a PDF document in the user's documents folder.
#pragma once

#include <functional>
#include <string>
#include <string_view>

class QDialog;
class QPrinter;
class QWidget;
struct TrabajoImpreso;

// Gives a window that prints, or a part of it, a note at the foot of its layout: where a document went, whole, with a
// button that opens its folder. Until then it takes no room.
void PonerNotaDeImpresion(QWidget &ventana);

// Makes a dialog of what is shown and printed, a result or a chart: `area` fills it down to its note, and has the keyboard.
// `nombre` is what the window is known by, `titulo` its title in Windows-1252.
void PrepararVentanaQueImprime(QDialog &dialogo, QWidget &area, const char *nombre, std::string_view titulo);

// The next command begins: where the last document went is told no longer.
void BorrarNotasDeImpresion();

// The pages of a job on a printer, in portrait, under the name of its document. False when the printer refuses.
bool ImprimirEnPapel(QPrinter &papel, const TrabajoImpreso &trabajo);

// Installs the desktop's printer.
void InstalarImpresoraQt();

// Runs `imprimir`, and what it prints goes to the PDF document `ruta` instead. False when it prints nothing or the
// document can't be written.
bool ImprimirEnDocumento(const std::string &ruta, const std::function<bool()> &imprimir);
