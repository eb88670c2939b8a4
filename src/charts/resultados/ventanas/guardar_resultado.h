// A result as text, as a table and as a file.
#pragma once

#include "charts/resultados/resultado.h"

#include <QString>
#include <QWidget>

#include <string>

// The lines of the result, fixed ones first, trailing blanks removed.
std::string TextoDeResultado(const SalidaResultado &salida);

// Fields parted by tabulators, numbers with all their digits, so that a spreadsheet takes them apart.
std::string TablaDeResultado(const SalidaResultado &salida);

// Writes the result to a file: plain text (UTF-8), table, PDF or PNG by the ending of the name. False when it can't
// be written, or is too long for a picture.
bool GuardarResultado(const SalidaResultado &salida, const QString &ruta);

// Asks for a name and saves. A name without an ending of ours gets that of the chosen format; a file that is there already
// is replaced only after a question; a failure is told.
void DialogoGuardarResultado(QWidget *padre, const SalidaResultado &salida);
