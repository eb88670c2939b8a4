// Reading what was drawn on a recording surface.
#pragma once

#include "charts/resultados/resultado.h"
#include "estimation/informe.h"
#include "platform/superficie.h"
#include "platform/texto.h"

#include <ostream>
#include <string>
#include <vector>

// A straight line as it was drawn.
struct Trazo {
    int x1, y1, x2, y2, grosor;
    bool operator==(const Trazo &) const = default;
};

inline std::ostream &operator<<(std::ostream &o, const Trazo &t) {
    return o << "(" << t.x1 << "," << t.y1 << ")-(" << t.x2 << "," << t.y2 << ") " << t.grosor;
}

inline std::vector<Trazo> Trazos(const std::vector<OrdenDibujo> &ordenes, bool horizontales, int grosor) {
    std::vector<Trazo> r;
    for (const OrdenDibujo &o : ordenes)
        if (o.clase == OrdenLinea && (o.y1 == o.y2) == horizontales && o.pluma.ancho == grosor)
            r.push_back({o.x1, o.y1, o.x2, o.y2, o.pluma.ancho});
    return r;
}

// The texts in UTF-8, with the corner of each.
struct Letrero {
    int x, y;
    std::string texto;
    bool operator==(const Letrero &) const = default;
};

inline std::ostream &operator<<(std::ostream &o, const Letrero &l) {
    return o << "(" << l.x << "," << l.y << ") " << l.texto;
}

inline std::vector<Letrero> Letreros(const std::vector<OrdenDibujo> &ordenes) {
    std::vector<Letrero> r;
    for (const OrdenDibujo &o : ordenes)
        if (o.clase == OrdenTexto) r.push_back({o.x1, o.y1, Utf8De1252(o.texto)});
    return r;
}

// Lines of the kinds given, with the texts "linea 0", "linea 1", ...
inline TextoSalida LineasDeGrupos(const std::vector<int> &grupos) {
    TextoSalida t;
    for (const int g : grupos) AnadirLinea(t, g, "linea " + std::to_string(t.size()));
    return t;
}

// A report of a statement code, with the rules and printed titles of its kind.
inline SalidaResultado SalidaDePrueba(int clase, const TextoSalida &lineas,
                                      const std::vector<TablaCoeficientes> *tablas = nullptr) {
    SalidaResultado salida = {.tipo = SalidaRegresion,
                              .titulo = "Prueba",
                              .Clase = clase,
                              .Contenido = 0,
                              .lineas = &lineas,
                              .fijas = nullptr,
                              .tablas = tablas};
    PonerClase(salida, clase);
    return salida;
}
