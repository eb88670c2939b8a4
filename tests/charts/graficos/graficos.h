// What the tests of charts share: drawing operations as lines that a person can read, and how to get at them.
#pragma once

#include "apoyo/plataforma_prueba.h"
#include "charts/graficos/grafico.h"
#include "platform/texto.h"
#include "store/archivo.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <vector>

inline constexpr double Nada = std::numeric_limits<double>::quiet_NaN();

// A pen as "r,g,b", with " 3" behind it for its width and a letter for its style where these aren't thin and solid.
inline std::string Plumada(const Pluma &p) {
    static constexpr char Estilos[] = {'-', 'p', 'r', 'm'};
    std::string t =
        std::to_string(p.color.r) + "," + std::to_string(p.color.g) + "," + std::to_string(p.color.b);
    if (p.ancho != 1) t += " " + std::to_string(p.ancho);
    if (p.estilo != PlumaContinua) t += std::string(" ") + Estilos[p.estilo];
    return t;
}

// "linea x1,y1 x2,y2 PEN", "caja x1,y1 x2,y2 PEN [relleno r,g,b]", "texto x,y TEXT".
inline std::string EnLetra(const OrdenDibujo &o) {
    const auto punto = [](int x, int y) { return std::to_string(x) + "," + std::to_string(y); };
    if (o.clase == OrdenTexto) return "texto " + punto(o.x1, o.y1) + " " + Utf8De1252(o.texto);
    std::string t = o.clase == OrdenLinea ? "linea " : "caja ";
    t += punto(o.x1, o.y1) + " " + punto(o.x2, o.y2) + " " + Plumada(o.pluma);
    if (o.conRelleno)
        t += " relleno " + std::to_string(o.relleno.r) + "," + std::to_string(o.relleno.g) + "," +
             std::to_string(o.relleno.b);
    return t;
}

inline std::vector<std::string> EnLetra(const std::vector<OrdenDibujo> &ordenes) {
    std::vector<std::string> r;
    for (const OrdenDibujo &o : ordenes) r.push_back(EnLetra(o));
    return r;
}

// Every operation of the only chart that was opened; a failure when there was another number of them.
inline std::vector<std::string> Dibujo() {
    EXPECT_EQ(Prueba.graficos.size(), 1U);
    return Prueba.graficos.empty() ? std::vector<std::string>{} : EnLetra(Prueba.graficos.front().ordenes);
}

// Those that begin with these letters and hold those.
inline std::vector<std::string> Solo(const std::vector<std::string> &dibujo, const std::string &principio,
                                     const std::string &dentro = "") {
    std::vector<std::string> r;
    for (const std::string &o : dibujo)
        if (o.rfind(principio, 0) == 0 && o.find(dentro) != std::string::npos) r.push_back(o);
    return r;
}

// The texts at this height, or at any for -1, without their places.
inline std::vector<std::string> Rotulos(int y = -1) {
    std::vector<std::string> r;
    if (Prueba.graficos.empty()) return {"no chart"};
    for (const OrdenDibujo &o : Prueba.graficos.front().ordenes)
        if (o.clase == OrdenTexto && (y < 0 || o.y1 == y)) r.push_back(Utf8De1252(o.texto));
    return r;
}

// What the chart draws after a change of its options, on a client area of 1024 x 768.
inline std::vector<std::string> Redibujado(Grafico &g, int ancho = 1024, int alto = 768) {
    std::vector<OrdenDibujo> ordenes;
    Superficie s = SuperficieGrabadora(ordenes, ancho, alto, 8, 16);
    CalcularLimites(g);
    PintarGrafico(s, g);
    return EnLetra(ordenes);
}
