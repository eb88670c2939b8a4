// What the dialog "Contrastes de significatividad: Hipótesis nula" decides.
#pragma once

#include "platform/plataforma.h"
#include "store/limites.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

struct ValoresHipotesisNula {
    std::array<std::string, MaxRestricciones> restricciones; // the edit fields: 80 characters each
    int visibles = 0;                                        // fields that are shown, from the first on
    int numero = 1;                                          // of restrictions, as SI took it
};

// The fields as the dialog opens with them: the texts of the last test, all hidden. What was tested before the first
// opening in a run of the program isn't shown.
ValoresHipotesisNula AbrirHipotesisNula();

// SI: `numero`, the text of its field, says how many fields are shown; above 11 it becomes 10, below 1 it becomes 1. None
// is shown after a message: "No existe la matriz _BETA", "Número de restricciones no válidas", "No existe la matriz _COV".
void MostrarRestricciones(Ventana *ventana, ValoresHipotesisNula &valores, std::string_view numero);

// CHN IR, a CHN MR for each field that is shown, CHN FR.
std::vector<std::string> SentenciasHipotesisNula(const ValoresHipotesisNula &valores);

// OK: runs each statement in the sample of the last regression.
void AceptarHipotesisNula(Ventana *ventana, const ValoresHipotesisNula &valores);
