// The mouse in a chart.
#include "charts/graficos/interaccion.h"

#include <algorithm>
#include <cstdlib>

namespace {

constexpr int LadoDeAsa = 4;            // a handle is so many units wide and high
constexpr int AltoDeTituloXMovido = 22; // units, where it was two rows before

bool Dentro(const CajaGrafico &c, int x, int y) {
    return x >= c.izquierda && x <= c.derecha && y >= c.superior && y <= c.inferior;
}

int MitadX(const CajaGrafico &c) {
    return (c.izquierda + c.derecha) / 2;
}
int MitadY(const CajaGrafico &c) {
    return (c.superior + c.inferior) / 2;
}

// The side at whose handle (x, y) is: a character's width across the side, a row's height along it.
LadosDeLeyenda LadoEn(const DisposicionGrafico &d, int x, int y) {
    const CajaGrafico &c = d.parte[ParteLeyenda];
    const auto cerca = [&](int aTraves, int aLoLargo) {
        return std::abs(aTraves) <= d.c && std::abs(aLoLargo) <= d.h;
    };
    if (cerca(x - c.izquierda, y - MitadY(c))) return LadoIzquierdo;
    if (cerca(x - c.derecha, y - MitadY(c))) return LadoDerecho;
    if (cerca(y - c.superior, x - MitadX(c))) return LadoSuperior;
    if (cerca(y - c.inferior, x - MitadX(c))) return LadoInferior;
    return SinLado;
}

Cursor CursorDeLado(LadosDeLeyenda lado) {
    if (lado == SinLado) return CursorFlecha;
    return lado == LadoIzquierdo || lado == LadoDerecho ? CursorHorizontal : CursorVertical;
}

void MoverA(CajaGrafico &c, int x, int y) {
    c = {x, y, x + c.derecha - c.izquierda, y + c.inferior - c.superior};
}

// A side stops at the one opposite.
void MoverLado(CajaGrafico &c, LadosDeLeyenda lado, int x, int y) {
    switch (lado) {
    case LadoIzquierdo: c.izquierda = std::min(x, c.derecha); break;
    case LadoDerecho: c.derecha = std::max(x, c.izquierda); break;
    case LadoSuperior: c.superior = std::min(y, c.inferior); break;
    case LadoInferior: c.inferior = std::max(y, c.superior); break;
    case SinLado: break;
    }
}

EfectoDelRaton PulsarTitulo(Grafico &g, int x, int y) {
    for (const PartesDeGrafico parte : {ParteTitulo, ParteTituloY, ParteTituloX}) {
        const CajaGrafico &c = g.disposicion.parte[parte];
        const bool vacia = c.izquierda == c.derecha || c.superior == c.inferior; // there is no title
        if (vacia || !Dentro(c, x, y)) continue;
        g.arrastre.titulo = parte;
        return {false, true, CursorDesplazar};
    }
    return {false, false, CursorFlecha};
}

EfectoDelRaton MoverTitulo(Grafico &g, int x, int y) {
    const auto parte = static_cast<std::size_t>(g.arrastre.titulo);
    CajaGrafico &c = g.disposicion.parte[parte];
    MoverA(c, x, y);
    if (parte == ParteTituloX) c.inferior = y + AltoDeTituloXMovido;
    g.arrastre.movida[parte] = true;
    return {false, true, CursorDesplazar};
}

EfectoDelRaton MoverLeyenda(Grafico &g, int x, int y) {
    ArrastreGrafico &a = g.arrastre;
    CajaGrafico &leyenda = g.disposicion.parte[ParteLeyenda];
    // A side that has begun to follow the mouse goes on, however fast the mouse leaves it behind.
    if (a.lado == SinLado && a.estadoLeyenda == LeyendaMoviendose) a.lado = LadoEn(g.disposicion, x, y);
    if (a.lado != SinLado) {
        a.estadoLeyenda = LeyendaCambiandose;
        MoverLado(leyenda, a.lado, x, y);
    } else {
        MoverA(leyenda, x, y);
    }
    a.movida[ParteLeyenda] = true;
    return {false, true, a.lado != SinLado ? CursorDeLado(a.lado) : CursorDesplazar};
}

} // namespace

EfectoDelRaton PulsarEnGrafico(Grafico &g, int x, int y) {
    ArrastreGrafico &a = g.arrastre;
    if (!DescripcionDe(g.clase).conPartes) return {false, false, CursorFlecha};
    const bool habia = a.estadoLeyenda >= LeyendaMoviendose;
    if (habia) {
        a.estadoLeyenda = LeyendaQuieta;
        a.titulo = ParteLeyenda;
    }
    a.lado = SinLado;
    if (g.opciones.verLeyenda != 0 && Dentro(g.disposicion.parte[ParteLeyenda], x, y)) {
        ++a.estadoLeyenda;
        return {habia, true, CursorDesplazar};
    }
    if (a.estadoLeyenda != LeyendaQuieta) return {false, false, CursorFlecha};
    EfectoDelRaton e = PulsarTitulo(g, x, y);
    e.repintar = habia;
    return e;
}

EfectoDelRaton MoverEnGrafico(Grafico &g, int x, int y) {
    const ArrastreGrafico &a = g.arrastre;
    if (a.titulo != ParteLeyenda) return MoverTitulo(g, x, y);
    if (a.estadoLeyenda >= LeyendaMoviendose) return MoverLeyenda(g, x, y);
    if (a.estadoLeyenda == LeyendaElegida) return {false, false, CursorDeLado(LadoEn(g.disposicion, x, y))};
    return {false, false, CursorFlecha};
}

EfectoDelRaton SoltarEnGrafico(Grafico &g) {
    ArrastreGrafico &a = g.arrastre;
    if (a.estadoLeyenda >= LeyendaMoviendose) a.estadoLeyenda = LeyendaQuieta;
    a.titulo = ParteLeyenda;
    a.lado = SinLado;
    return {true, true, CursorFlecha};
}

void PintarContorno(Superficie &s, const Grafico &g) {
    const ArrastreGrafico &a = g.arrastre;
    const auto borde = [&](const CajaGrafico &c, const Pluma &pluma = PlumaContorno) {
        Rectangulo(s, c.izquierda, c.superior, c.derecha, c.inferior, pluma, nullptr);
    };
    if (a.titulo != ParteLeyenda) borde(g.disposicion.parte[static_cast<std::size_t>(a.titulo)]);
    if (a.estadoLeyenda == LeyendaQuieta) return;
    const CajaGrafico &c = g.disposicion.parte[ParteLeyenda];
    // The dots wouldn't be seen on the frame.
    if (a.estadoLeyenda == LeyendaElegida) borde(c, PlumaDeBorrar);
    borde(c);
    const int asas[][2] = {
        {c.izquierda, MitadY(c)}, {c.derecha, MitadY(c)}, {MitadX(c), c.superior}, {MitadX(c), c.inferior}};
    for (const auto &asa : asas) {
        const int x = asa[0] - LadoDeAsa / 2, y = asa[1] - LadoDeAsa / 2;
        Rectangulo(s, x, y, x + LadoDeAsa, y + LadoDeAsa, PlumaEjes, &PlumaEjes.color);
    }
}
