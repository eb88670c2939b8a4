// Numbers read from text. Always with the decimal point, whatever the desktop's locale is.
#pragma once

#include <string_view>

// The number that the text begins with: blanks, a sign, digits with an optional point, an optional exponent, as
// the standard text-to-double conversion reads it, and 0.0 when there is none. Unlike the standard one it knows no
// hexadecimal numbers, infinities or names for what is no number: in a work file these are plain text.
double LeerDecimal(std::string_view texto);

// The whole number that the text begins with, in the same way; beyond the range of int it stays at the bound.
int LeerEntero(std::string_view texto);

// True when the text has one character or more and all are digits or points, an optional "-" in front, with at
// least one more character behind the sign. This is what the language calls a number; "." and "1.2.3" pass too.
bool EsNumero(std::string_view texto);

// What LeerDecimal reads from the text that "%.10f" makes of a finite number, without the text in nearly every case.
double EnDiezDecimales(double valor);
