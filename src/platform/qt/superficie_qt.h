// The surface over QPainter: one adapter for screen, printer, PDF and images.
#pragma once

#include "platform/superficie.h"

#include <QFont>
#include <QPainter>

// The fixed-pitch font of the program, in the size whose cell is `anchoCaracter` pixels wide.
QFont FuenteFija(int anchoCaracter);

// The fixed-pitch font in the size that suits the screen's own text.
QFont FuenteFijaDePantalla();

// What a painter of ours needs behind the surface. Lives as long as the surface is drawn on.
struct PintorSuperficie {
    QPainter *pintor;
    int anchoCaracter;
    int ascenso;           // from the cell's top to the base line
    Pluma puesta = {};     // the pen that the painter has now
    bool conPluma = false; // it has one of ours
};

// A surface of the given size over an active painter, whose font is set. `propio` is filled by the call.
Superficie SuperficieDePintor(PintorSuperficie &propio, QPainter &pintor, const QFont &fuente, int ancho,
                              int alto);
