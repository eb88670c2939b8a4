// The desktop's printer: jobs are recorded, and when one is over its pages go to the default printer or, where there is
// none, to a PDF document in the user's documents folder.
#pragma once

#include <functional>
#include <string>

class QDialog;
class QPrinter;
struct TrabajoImpreso;

// Gives a window that prints a note at its foot, which tells where a document went, with a button that opens its folder;
// until then it takes no room. The main window tells the same in its status line.
void PonerNotaDeImpresion(QDialog &dialogo);

// The next command begins: where the last document went is told no longer.
void BorrarNotasDeImpresion();

// The pages of a job on a printer, in portrait, under the name of its document. False when the printer refuses.
bool ImprimirEnPapel(QPrinter &papel, const TrabajoImpreso &trabajo);

// Installs the desktop's printer.
void InstalarImpresoraQt();

// Runs `imprimir`, and what it prints goes to the PDF document `ruta` instead. False when it prints nothing or the
// document can't be written.
bool ImprimirEnDocumento(const std::string &ruta, const std::function<bool()> &imprimir);
