// "Cómo se calcula": the window of the trace, one for all the desktop. It stays open beside the others, those that show a
// result and hold the rest of the program among them, and follows the record while it grows.
#pragma once

#include "charts/resultados/resultado.h"

#include <QPoint>
#include <QRect>
#include <QSize>
#include <QString>
#include <QWidget>

// From here on the steps are recorded, unless the user has switched that off, and the window follows them.
void IniciarVentanaTraza();

// Where a window of this size, its frame included, covers the least of another one: to the right of it or below it if the
// screen has room there, else in the right bottom corner of the screen. All in the coordinates of the desktop.
QPoint LugarQueMenosTapa(const QRect &otra, const QSize &lado, const QRect &pantalla);

// Each of these opens the window, in front of `duena`, or brings it there.
// At the last statement of this text, else at the last of all.
void AbrirTrazaEnSentencia(QWidget *duena, const QString &sentencia);
// At the statement that made a result.
void AbrirTrazaDeResultado(QWidget *duena, const SalidaResultado &salida);
// At the step that a number of the result came from; of a matrix or a series the number is marked.
void AbrirTrazaEnFuente(QWidget *duena, const SalidaResultado &salida, const FuenteDeNumero &fuente);
