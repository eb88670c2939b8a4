// The loop that runs a batch of statements, and the routine that runs one of them.
#pragma once

#include "language/evaluador.h"
#include "language/lugar.h"
#include "store/ordenes.h"

#include <string_view>

// With the values of the program's start.
struct EstadoLote {
    int VerRegresion = 1;          // 0: MC and MCP show no window
    int DecimalesSalida = 2;       // decimals of result windows
    int NingunaSentenciaHecha = 0; // 1 from the start of a batch until a first statement ended well
    int detenido = 0;              // 1 when the last batch stopped before its end
    int sentencias = 0; // that the last batch ran to their end, blocks counted as one, comments not
    // At which the last batch stopped; none when it didn't, or before its first statement.
    LugarDeSentencia parada = {};
    bool finPorRegla = false; // it stopped at a statement that went well and ends its batch all the same
    bool deDialogo = false;   // it was one statement that a dialog or a command composed, no text of the user
};

extern EstadoLote Lote;

// Start values.
void IniciarLote();

// Called before each batch, where a program sets it: the desktop keeps a copy of the work, since a batch may never end.
extern void (*AntesDeCadaLote)();

// Called behind each batch, where a program sets it: what Lote tells is that batch's.
extern void (*DespuesDeCadaLote)();

// Runs a batch. `origen` 0 runs the selection of `control` and ignores `texto`; any other value runs `texto` as one
// statement. `primera` and `ultima` are the rows to work on. Result always 0; Lote.detenido tells how it ended.
int ProcesarLote(Ventana *ventana, ControlTexto *control, int origen, std::string_view texto, int primera,
                 int ultima);

// What `origen` says.
enum OrigenesSentencia { OrigenSeleccion = 0, OrigenDialogo = 246 };

// Runs one statement, as a dialog composes it, over the rows `primera` to `ultima`. 1, or 0 when it stopped after its
// message.
int ProcesarSentencia(Ventana *ventana, std::string_view texto, int primera, int ultima);

// Runs the one statement at `posicion` of `textoCompleto` (`origen` 0, up to `fin`, the end of the selection), or
// `texto` (`origen` not 0). 1 to go on, 0 to stop. MUEST changes `primera` and `ultima`; `codigo` receives the
// CodigoOrden.
int EjecutarSentencia(int origen, LineasSentencia &lineas, int fin, int &posicion, std::string_view texto,
                      const std::string &textoCompleto, Ventana *ventana, int &primera, int &ultima,
                      int &codigo);

// The box "Punto %d, %s", title "Proceso cancelado". Always returns 0, the result of a statement that stops.
int MensajeNumerado(Ventana *ventana, int punto, std::string_view texto);
