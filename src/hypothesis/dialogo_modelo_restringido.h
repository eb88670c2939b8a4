// What the dialog "Contrastes de significatividad: Modelo restringido" decides.
#pragma once

#include "platform/plataforma.h"

#include <string>

struct ValoresModeloRestringido {
    std::string texto; // the field: dependent and regressors, at most 250 characters
};

// CR and the text.
std::string SentenciaModeloRestringido(const ValoresModeloRestringido &valores);

// OK: runs the statement. Without a regression made from the dialogs of MC or MCP, one typed as a statement not among
// them: the box "Realize primero una regresión". A statement that stops is followed by "Secuencia de series no válida". Both
// have the title "Aviso". 1 when the statement ran to its end, else 0.
int AceptarModeloRestringido(Ventana *ventana, const ValoresModeloRestringido &valores);
