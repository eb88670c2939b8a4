// What the dialog "Contrastes de heteroscedasticidad: Goldfeld y Quandt" decides.
#pragma once

#include "platform/plataforma.h"

#include <string>

// As they stand in the fields: 50 characters the first, 20 the others.
struct ValoresGoldfeld {
    std::string variable; // of ordering: a series, or a formula that gives one
    std::string primeraDenominador, ultimaDenominador;
    std::string primeraNumerador, ultimaNumerador;
    bool verRegresiones = false;
};

// CGQ ( variable ) [RA] and the four numbers.
std::string SentenciaGoldfeld(const ValoresGoldfeld &valores);

// OK: runs the statement in the sample of the last regression, whose bounds are as before afterwards, deletes what the
// test left, and the dialog stays. A blank variable gives the box "Introduzca variable de ponderación", title "Aviso".
void AceptarGoldfeld(Ventana *ventana, const ValoresGoldfeld &valores);
