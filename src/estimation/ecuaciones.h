// The named equations of the work file, as the dialogs of estimation keep them.
#pragma once

#include <string>
#include <string_view>

// Adds an equation at the end of the table. Code and text lose the blanks at their sides and what their places can't hold
// (12 and 99 characters). Nothing happens, and nobody is told, when the code or the text is blank, when there is an
// equation of this code, which keeps its text, and when the table is full. True when it was added.
bool AltaEcuacion(std::string_view codigo, std::string_view texto);

// Removes the equation of this code, blanks at its sides apart; the later ones move up. False when there is none.
bool BajaEcuacion(std::string_view codigo);

// Slot of the equation of this code, or -1.
int BuscarEcuacion(std::string_view codigo);

// What stands in a slot in use, without the blanks of its padding.
std::string CodigoDeEcuacion(int ecuacion);
std::string TextoDeEcuacion(int ecuacion);
