// The surface on which charts, result windows and print pages are drawn: a fixed-pitch font, pens, lines,
// rectangles and text in device units. An adapter stands behind the table of operations: the desktop's paints, the
// recording one of this file keeps the list of what was drawn, for the batch runner and the tests.
#pragma once

#include <string>
#include <string_view>
#include <vector>

struct Color {
    unsigned char r, g, b;
};

enum EstiloPluma { PlumaContinua = 0, PlumaPunteada = 1, PlumaRayas = 2, PlumaRayaPunto = 3 };

struct Pluma {
    Color color;
    int ancho;
    EstiloPluma estilo;
};

struct PuntoDibujo {
    int x, y;
};

struct Superficie {
    void *propio;      // what the adapter needs
    int ancho, alto;   // client area or page, in device units
    int anchoCaracter; // of the fixed-pitch font
    int altoLinea;     // height of a character plus external leading
    void (*linea)(void *propio, int x1, int y1, int x2, int y2, const Pluma &pluma);
    // Lines from each point to the next, as `linea` draws them.
    void (*camino)(void *propio, const PuntoDibujo *puntos, int n, const Pluma &pluma);
    // `relleno` null leaves the inside as it is.
    void (*rectangulo)(void *propio, int x1, int y1, int x2, int y2, const Pluma &pluma,
                       const Color *relleno);
    // (x, y) is the left upper corner of the first character's cell.
    void (*texto)(void *propio, int x, int y, std::string_view texto);
};

inline void Linea(Superficie &s, int x1, int y1, int x2, int y2, const Pluma &pluma) {
    s.linea(s.propio, x1, y1, x2, y2, pluma);
}
inline void Camino(Superficie &s, const std::vector<PuntoDibujo> &puntos, const Pluma &pluma) {
    s.camino(s.propio, puntos.data(), static_cast<int>(puntos.size()), pluma);
}
inline void Rectangulo(Superficie &s, int x1, int y1, int x2, int y2, const Pluma &pluma,
                       const Color *relleno) {
    s.rectangulo(s.propio, x1, y1, x2, y2, pluma, relleno);
}
inline void Texto(Superficie &s, int x, int y, std::string_view texto) {
    s.texto(s.propio, x, y, texto);
}

enum ClaseOrden { OrdenLinea, OrdenRectangulo, OrdenTexto };

// One drawing operation, kept.
struct OrdenDibujo {
    ClaseOrden clase;
    int x1, y1, x2, y2; // a text uses x1, y1
    Pluma pluma;
    bool conRelleno;
    Color relleno;
    std::string texto;
};

// Draws on `s` what was kept, in the same order.
void Reproducir(const std::vector<OrdenDibujo> &ordenes, Superficie &s);

// A surface of the given size and cell that appends what is drawn to `ordenes`, which must outlive it.
Superficie SuperficieGrabadora(std::vector<OrdenDibujo> &ordenes, int ancho, int alto, int anchoCaracter,
                               int altoLinea);
