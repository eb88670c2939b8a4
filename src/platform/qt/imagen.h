// Drawing operations as a picture.
#pragma once

#include "platform/superficie.h"

#include <QImage>

#include <string>
#include <vector>

// The picture of a sheet of the given size whose cells are `anchoCaracter` wide, `escala` pixels for a unit of it. Needs a
// QGuiApplication.
QImage ImagenDeOrdenes(const std::vector<OrdenDibujo> &ordenes, int ancho, int alto, int anchoCaracter,
                       double escala);

// Writes that picture to the PNG file `ruta`; the old file stays whole until the new one is complete. A program without a
// QGuiApplication gets one without a display. False when the file can't be written.
bool EscribirPng(const std::string &ruta, const std::vector<OrdenDibujo> &ordenes, int ancho, int alto,
                 int anchoCaracter, double escala);
