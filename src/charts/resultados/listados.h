// Listings of the program's own data on paper: series, matrices, and the text of the main screen.
#pragma once

#include "charts/resultados/impresion.h"

#include <string>
#include <vector>

// What the next listing prints.
struct EstadoListados {
    std::vector<std::string> codigos; // of the series or matrices, in their order
    std::string texto;                // of the main screen
};

extern EstadoListados Listados;

// Class 3: the series of Listados.codigos over the sample, in blocks of three series, or two beside the labels of the
// observations. "No existen series a listar", title "Aviso", when there is none.
bool ListarSeries(DispositivoImpresion *dispositivo, Ventana *ventana);

// Class 2: the matrices of Listados.codigos, four elements to a line. "No existen matrices a listar", title "Aviso",
// when there is none.
bool ListarMatrices(DispositivoImpresion *dispositivo, Ventana *ventana);

// Class 23: Listados.texto. It changes no page: lines beyond the paper's end are lost.
bool ListarPantalla(DispositivoImpresion *dispositivo, Ventana *ventana);

// "Imprimir selección": prints the selection of the control through its end position's own character. A selection of at
// most one character takes the whole text, up to position 32,000. "No hay datos a procesar. Punto 3.", title "Proceso
// cancelado", when there is none either. Result of ImprimirSalida, or 1 after the message.
int ImprimirSeleccion(Ventana *ventana, ControlTexto *control);
