// The menus of the editor's window: what each entry is called, when it can be chosen and which routine does it.
#pragma once

#include "data/rejilla.h"

#include <span>

// In the editor some ids mean something else than in the main window.
enum IdsDelEditor {
    EditorImprimir = 2006,
    EditorDecimales = 2007,
    EditorBorrarSeries = 2008,
    EditorSalvarMatriz = 2009,
    EditorRestaurar = 2010,
    EditorMostrarMatriz = 2011,
    EditorSalir = 2021,
    EditorAyuda = 2046,
    EditorBorrarMatriz = 2064,
    EditorBlanquear = 2065,
    EditorSinEnsamblar = 2074, // no entry bears it
    EditorEliminarObservacion = 2076,
    EditorOrdenarSeries = 2077
};

struct ComandoDeEditor {
    int id;
    const char *entrada;              // with its mnemonic behind "&"; null for an id that no entry bears
    bool (*habilitado)();             // null: always
    bool (*rutina)(Ventana *ventana); // true when the editor is left
};

// The entries of a menu, in their order.
std::span<const ComandoDeEditor> ComandosDelEditor(ModosDeEditor modo);

// Carries out a command of the present menu. True when the editor was left: the window hides and the statements come
// back. An id that the menu doesn't know, or an entry that is greyed, does nothing.
bool EjecutarComandoEditor(Ventana *ventana, int id);

// Title of the window: "Editor de series", "Editor de matrices".
const char *TituloDelEditor();
