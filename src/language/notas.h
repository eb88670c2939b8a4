// Notes: what the language accepted though a person hardly meant it. They change nothing and stop nothing.
#pragma once

#include <string_view>

// Tells the outside (PonerNota of the platform) with the line of the batch at hand, 0 outside one. A note that the same line of
// the same batch has made already, as a loop would at each turn, is not told again.
void Anotar(std::string_view texto);

// A batch begins: its notes are new.
void OlvidarNotas();
