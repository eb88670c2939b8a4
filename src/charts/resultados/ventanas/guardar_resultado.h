// A result as a file.
#pragma once

#include "charts/resultados/resultado.h"

#include <QString>
#include <QWidget>

// Writes the result to a file: plain text (UTF-8), table, CSV, HTML, LaTeX, PDF or PNG by the ending of the name, numbers
// with a decimal point. False when it can't be written, or is too long for a picture.
bool GuardarResultado(const SalidaResultado &salida, const QString &ruta);

// Asks for a name and saves. A name without an ending of ours gets that of the chosen format; a file that is there already
// is replaced only after a question; a failure is told.
void DialogoGuardarResultado(QWidget *padre, const SalidaResultado &salida);
