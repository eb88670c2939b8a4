// The lines of a result for screen readers: the toolkit knows what is painted only as a picture.
#pragma once

#include <QString>

class QWidget;

// From here on a reader finds this text in the widget, line by line. The caret is where reading begins: the first line
// shown.
void HacerLegible(QWidget &pintado, const QString &texto);

// The first line shown is another one (from 0); a reader that follows the caret reads it.
void LeerDesdeLinea(QWidget &pintado, int linea);
