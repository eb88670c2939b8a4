// The recording surface.
#include "platform/superficie.h"

namespace {

std::vector<OrdenDibujo> &Ordenes(void *propio) {
    return *static_cast<std::vector<OrdenDibujo> *>(propio);
}

void GrabarLinea(void *propio, int x1, int y1, int x2, int y2, const Pluma &pluma) {
    Ordenes(propio).push_back({OrdenLinea, x1, y1, x2, y2, pluma, false, {}, {}});
}

void GrabarCamino(void *propio, const PuntoDibujo *puntos, int n, const Pluma &pluma) {
    for (int i = 1; i < n; ++i)
        GrabarLinea(propio, puntos[i - 1].x, puntos[i - 1].y, puntos[i].x, puntos[i].y, pluma);
}

void GrabarRectangulo(void *propio, int x1, int y1, int x2, int y2, const Pluma &pluma,
                      const Color *relleno) {
    Ordenes(propio).push_back({OrdenRectangulo,
                               x1,
                               y1,
                               x2,
                               y2,
                               pluma,
                               relleno != nullptr,
                               relleno != nullptr ? *relleno : Color{},
                               {}});
}

void GrabarTexto(void *propio, int x, int y, std::string_view texto) {
    Ordenes(propio).push_back({OrdenTexto, x, y, x, y, {}, false, {}, std::string(texto)});
}

} // namespace

Superficie SuperficieGrabadora(std::vector<OrdenDibujo> &ordenes, int ancho, int alto, int anchoCaracter,
                               int altoLinea) {
    return {&ordenes,         ancho,      alto, anchoCaracter, altoLinea, GrabarLinea, GrabarCamino,
            GrabarRectangulo, GrabarTexto};
}

void Reproducir(const std::vector<OrdenDibujo> &ordenes, Superficie &s) {
    for (const OrdenDibujo &o : ordenes) {
        switch (o.clase) {
        case OrdenLinea: Linea(s, o.x1, o.y1, o.x2, o.y2, o.pluma); break;
        case OrdenRectangulo:
            Rectangulo(s, o.x1, o.y1, o.x2, o.y2, o.pluma, o.conRelleno ? &o.relleno : nullptr);
            break;
        case OrdenTexto: Texto(s, o.x1, o.y1, o.texto); break;
        }
    }
}
