// What the dialog "Contrastes de heteroscedasticidad: White" decides.
#pragma once

#include "platform/plataforma.h"

#include <string>

struct ValoresWhite {
    bool productosCruzados = false;
    bool verRegresion = false;
};

// CWH with PC, RA, both or none.
std::string SentenciaWhite(const ValoresWhite &valores);

// OK: runs the statement in the sample of the last regression. One that stops is followed by the box "Problemas en la
// regresión. P17", and what it left is deleted. 1 when the statement ran to its end, else 0.
int AceptarWhite(Ventana *ventana, const ValoresWhite &valores);
