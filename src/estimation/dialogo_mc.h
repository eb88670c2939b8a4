// What the dialogs of MC and MCP decide: they compose a statement and run it, and lead to the listings and charts of the
// last regression.
#pragma once

#include "estimation/regresion.h"
#include "language/lote_sentencias.h"
#include "platform/composicion.h"

#include <array>
#include <string>
#include <vector>

// What OK does, the first one that is checked in this order.
enum OpcionesEstimacion {
    OpcionResultados, // the regression
    OpcionCovarianza,
    OpcionValores,
    OpcionGraficoValores,
    OpcionGraficoResiduos,
    OpcionVarianza,
    NumOpcionesEstimacion
};

struct ValoresMC {
    int metodo = OrdenMC; // or OrdenMCP
    std::string ecuacion;
    std::string ponderacion;           // MCP
    int covarianza = CovarianzaNormal; // MC; no control of the dialog gives the third kind
    int retardos = 1;                  // of the third kind
    std::array<bool, NumOpcionesEstimacion> opciones = {true};
};

struct EstadoDialogosEstimacion {
    // The statement that each dialog has composed since it was opened: the heading of the listings.
    std::string SentenciaMC, SentenciaMCP;
};

extern EstadoDialogosEstimacion DialogosEstimacion;

// How the items of the lists join the equation: a series behind a blank, a lag right behind its series.
inline constexpr ReglaDeAnadir AnadirRegresorMC = {" ", 240, 260};
inline constexpr ReglaDeAnadir AnadirRetardoMC = {"", 240, 260};

// The items of the lists that these dialogs and that of the restricted model share: the six lags; the codes of the series
// and the constant behind them.
std::vector<std::string> ListaRetardos();
std::vector<std::string> ListaRegresores();

// The dialog of OrdenMC or OrdenMCP as it opens: the equation of the last regression, if there is one; the report is
// asked for.
ValoresMC AbrirMC(int metodo);

// The statement, its fields without the blanks at their sides.
std::string SentenciaDeEstimacion(const ValoresMC &valores);

// OK; the dialog stays open. Boxes with the title "Aviso": "Introduzca variable ponderación", and nothing runs;
// "Introduzca ecuación", and the statement runs without one; "Secuencia de series no válida" behind a statement that
// stopped; "Efectue primero una regresión" before a chart, and those of PedirListado.
void AceptarMC(Ventana *ventana, const ValoresMC &valores);
