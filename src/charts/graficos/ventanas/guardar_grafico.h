// A chart as a picture and as a file.
#pragma once

#include "charts/graficos/grafico.h"

#include <QImage>
#include <QWidget>

// The chart as its window shows it, at twice the screen's points.
QImage ImagenDeGrafico(const Grafico &g);

// Writes the chart to a file: PNG, SVG or PDF by the ending of the name; a PDF document holds the page that the printer
// would get. False when it can't be written.
bool GuardarGrafico(const Grafico &g, const std::string &ruta);

// Asks for a name and saves; a failure is told.
void DialogoGuardarGrafico(QWidget *padre, const Grafico &g);
