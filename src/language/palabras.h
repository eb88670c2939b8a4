// The words of the language: what the driver knows of them. Their table stands above all folders (src/palabras.cpp),
// since its routines come from everywhere.
#pragma once

#include "language/lote_sentencias.h"

#include <span>
#include <string>
#include <string_view>

// What the routine of a word works with.
struct Orden {
    LineasSentencia &lineas;
    int detras;    // in buffer 0, behind the first word and its blanks
    int fin;       // end of the selection
    int &posicion; // in the text, at the end of the line
    const std::string &texto;
    Ventana *ventana;
    int &primera, &ultima;
    int &codigo;
};

// When a word is one.
enum CondicionesPalabra {
    Siempre,
    SinParentesis, // the next non-blank character isn't "("
    SoloSeleccion  // not in the statement of a dialog, nor inside a block
};

// Whether the lines of a block can begin with it.
enum LugaresPalabra {
    FueraDeBloques,
    DentroDeBloques,
    // The sample of the regression takes the bounds of the block, even where the line is passed over.
    DentroConMuestra
};

struct Palabra {
    std::string_view palabra;
    CodigosOrden codigo; // OrdenDesconocida for a word without a code of its own
    CondicionesPalabra condicion;
    LugaresPalabra lugar;
    int (*rutina)(Orden &); // 1 to go on, 0 to stop
};

// In the order in which they are tested: the words without a code stand first.
extern const std::span<const Palabra> Palabras;

// Start values of all that the words work with: the batch, and the last regression or test of every room.
void IniciarProcedimientos();

// ----- The routines of the words that the language knows by itself

// Nothing is done, the batch goes on.
int EjecutarNada(Orden &o);

// REPITE, MIENTRAS and SI with the lines behind them. _TMP01 and _TMP02 are deleted at the end; a failure ends with
// "Secuencia no válida. Punto 89".
int EjecutarControl(Orden &o);

// MUEST: the bounds of the batch become the new sample's. Always 1.
int EjecutarMUEST(Orden &o);

// DECI: the decimals of result windows. Always 1.
int EjecutarDECI(Orden &o);

// VSR: whether MC and MCP ask to be shown. "Punto 39,  : Faltan datos" with nothing behind.
int EjecutarVSR(Orden &o);

// SER, CAL, ESC, MAT and OBS.
int EjecutarFormula(Orden &o);
