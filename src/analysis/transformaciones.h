// Transformations of a series: differences, and Box and Cox's.
#pragma once

#include "platform/plataforma.h"

#include <string>

// What the dialog holds, as it opens.
struct ValoresTransformacion {
    std::string serie; // the line of the list that is chosen, empty for none
    bool boxCox = false, estacionales = false, noEstacionales = false;
    std::string codigo = "_TRANS";
    std::string lambda = "1", ordenEstacional = "1", ordenNoEstacional = "1";
};

inline constexpr int AnchoLambda = 2; // characters of the exponent that are read

// OK: seasonal differences, then the others, then Box and Cox's transformation, those of them that are checked, of the
// series over the present sample into the series `codigo`. 1, and the dialog closes; 0 after a message, title "Aviso":
// "Escoja una serie", "Seleccione una transformación", "Tipos de datos no estacionales", "Elija valor", "Elija un valor mayor
// de cero", "Seleccione una serie", "Borre algunas series", "Las diferencias deben ser mas pequeñas: %d %d".
int AceptarTransformacion(Ventana *ventana, const ValoresTransformacion &valores);
