// The mouse in a chart: the legend is selected by a press, moved by a second one, and changed in size at the middle of its
// sides; a title follows the mouse from its press on. No window is needed: presses, moves and releases come in, and out comes
// what is to be done on the screen.
#pragma once

#include "charts/graficos/grafico.h"

struct EfectoDelRaton {
    bool repintar; // the whole chart; else what PintarContorno draws moves over it
    bool contorno; // the outline has changed
    Cursor cursor;
};

// The left button goes down at (x, y).
EfectoDelRaton PulsarEnGrafico(Grafico &g, int x, int y);
// The mouse moves, the button down or not.
EfectoDelRaton MoverEnGrafico(Grafico &g, int x, int y);
// The button goes up; and a double click, which ends what is being dragged in the same way.
EfectoDelRaton SoltarEnGrafico(Grafico &g);
