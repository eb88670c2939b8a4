// What the dialog "Contrastes de heteroscedasticidad: Rangos" decides.
#pragma once

#include "platform/plataforma.h"

#include <string>

struct ValoresRangos {
    std::string variable; // of ordering, as it stands in the field: at most 250 characters
};

// CRA and the variable without the blanks at its right.
std::string SentenciaRangos(const ValoresRangos &valores);

// OK: runs the statement in the sample of the last regression. 1 when it ran to its end, 0 after its messages.
int AceptarRangos(Ventana *ventana, const ValoresRangos &valores);
