// Listings of the program's own data on paper: series, matrices, and the text of the main screen.
#pragma once

#include "charts/resultados/impresion.h"

#include <string>
#include <vector>

// What a listing of series or matrices prints.
struct ListaDeCodigos {
    std::vector<std::string> codigos; // in their order; those that don't exist are left out
    int decimales;                    // 0 to 6
};

// Class 3: the series of the list over the sample, in blocks of three series, or two beside the labels of the
// observations. "No existen series a listar", title "Aviso", when there is none.
bool ListarSeries(DispositivoImpresion *dispositivo, Ventana *ventana, const ListaDeCodigos &lista);

// Class 2: the matrices of the list, four elements to a line. "No existen matrices a listar", title "Aviso", when
// there is none.
bool ListarMatrices(DispositivoImpresion *dispositivo, Ventana *ventana, const ListaDeCodigos &lista);

// Class 23: the text of the main screen. It changes no page: lines beyond the paper's end are lost.
bool ListarPantalla(DispositivoImpresion *dispositivo, Ventana *ventana, const std::string &texto);

// "Imprimir selección": prints the selection of the control through its end position's own character. A selection of at
// most one character takes the whole text, up to position 32,000. "No hay datos a procesar. Punto 3.", title "Proceso
// cancelado", when there is none either. Result of ImprimirSalida, or 1 after the message.
int ImprimirSeleccion(Ventana *ventana, ControlTexto *control);
