// Where a tool puts a series that it makes.
#pragma once

#include <string>
#include <string_view>

// The code as a user may type it: blanks at its sides removed, in capitals, cut at `caracteres`; `porDefecto` when nothing
// is left.
std::string CodigoDestino(std::string_view texto, std::size_t caracteres, const char *porDefecto);

// Slot of the series of this code, which is added at the end of the table, empty, when there is none; -1 with the reason
// when all slots are in use, or when a matrix or a scalar has the name.
int SerieDestino(std::string_view codigo, std::string &motivo);

// Clears value and flag of all rows and gives the series the bounds of what it will hold.
void VaciarSerieDestino(int serie, int primera, int ultima);
