// Blocks between the grid and a spreadsheet: lines of fields that tabulators part.
#pragma once

#include "platform/plataforma.h"

#include <string>
#include <string_view>
#include <vector>

// Pastes a block (text of the core) from the current cell to the right and down, also beyond what is shown; on a head row
// its first line is codes. Fields that find no code, no row or no number change nothing, and are counted in one
// box, title "Aviso". A field without text is a missing value.
void PegarEnEditor(Ventana *ventana, std::string_view bloque);

// What Ctrl+C takes: all series of the sample with their codes, or the elements of the working area.
std::string CopiarDelEditor(char marcaDecimal);

// A number as spreadsheets write it, as text that LeerDecimal reads: a decimal point or comma, groups of three digits parted
// by the other one, an exponent. False when it is none. One mark alone is the decimal one: "1.234" and "1,234" are both
// a little more than one.
bool NumeroPegado(std::string_view texto, std::string &numero);

// The other way: all the digits that the value needs.
std::string NumeroParaHoja(double valor, char marcaDecimal);

// The fields parted by tabulators, with a line end; a tabulator or a line end inside a field becomes a blank.
std::string LineaDeHoja(const std::vector<std::string> &campos);
