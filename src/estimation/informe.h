// The reports of regressions and tests: which window shows them, under which titles, and whether.
#pragma once

#include "charts/resultados/partes_informe.h"
#include "estimation/bloque_regresion.h"

#include <string>
#include <vector>

// Title of the result window of a code; empty for a code that has none.
std::string TituloRegresion(int codigo);

// What a result window shows: its lines, where its coefficient tables stand, and the same for a spreadsheet.
struct InformeProducido {
    TextoSalida lineas;
    std::vector<TablaCoeficientes> tablas;
    std::vector<RegresionMostrada> regresiones;
    std::string tabla; // may stay empty
    FuentesDeSalida fuentes = {};
};

// Puts the code and what its kind of report asks of window and paper into a result.
void PonerClase(SalidaResultado &salida, int codigo);

// Fills the report of a code. 1, or 0 after a message.
using ProductorDeInforme = int (*)(InformeProducido &informe, Ventana *ventana, int clase);

// Opens the result window of a code of a regression or of a test, and returns when it is closed. For 10, 11 and 104
// after a weighted regression: the box "Utilice MC ordinarios" and nothing else. For 8 and 13 only when VerRegresion is
// set and the user answers yes to "¿Desea ver la regresion?". A report that can't be filled opens no window.
void MostrarSalida(Ventana *ventana, int clase, ProductorDeInforme producir);

// MostrarSalida of what has just run: the block of a regression, or the report of the test that it belongs to (9 CR, 11
// CGQ with both regressions, 12 CWH).
void MostrarRegresion(Ventana *ventana, int codigo);
