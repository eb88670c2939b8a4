// The listings of the last regression: covariance matrix, values and residuals, analysis of variance.
#pragma once

#include "platform/plataforma.h"

#include <string>
#include <vector>

enum ListadosRegresion { ListadoCovarianza, ListadoValores, ListadoVarianza };

// What a listing is made from beside the store.
struct PeticionListado {
    int decimales;                    // 0 to 6
    std::string sentencia;            // stands above
    int primera, ultima;              // rows
    std::string dependiente;          // its code
    std::vector<std::string> nombres; // of the regressors
    bool conEtiquetas;
    int codigo; // 8, or 13 for the residuals of a weighted regression
};

// A listing of the last regression under a statement, with the decimals and labels of the present.
PeticionListado PeticionDeUltimaRegresion(std::string_view sentencia, int codigo);

// Fills the listing and opens its window. "Tipo de datos no válido" without a data type, and nothing else. What is missing
// is told ("No existe la matriz de covarianza", "No existe la variable dependiente", "No existe la serie de residuos", Pto 1,
// all in the title "Proceso cancelado"), and the window opens empty. True when a window was shown.
bool MostrarListado(Ventana *ventana, ListadosRegresion cual, const PeticionListado &peticion);

// True when there is a regression to list or to draw, else false after "Efectue primero una regresión", title "Aviso".
bool HayRegresion(Ventana *ventana);

// The same as the dialogs of the regressions ask for it, of the last regression: "Efectue primero una regresión" without
// one, "Introduzca el término independiente" for the analysis of variance of a regression without a constant, both in the
// title "Aviso". True when a window was shown.
bool PedirListado(Ventana *ventana, ListadosRegresion cual, std::string_view sentencia, int codigo);
