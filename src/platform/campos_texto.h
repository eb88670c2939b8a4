// The six operations on blank-padded text on which fixed fields rest, and capitals.
#pragma once

#include <string>
#include <string_view>

// Writes `caracter` n times from the start of `texto` and a terminator behind: n + 1 bytes.
void RellenarCadena(char *texto, char caracter, int n);

// Extends `texto` with blanks to n - 1 characters and terminates it there, so that it occupies a field of n
// bytes; a text of n - 1 characters or more is cut there. `texto` has room for n bytes.
void AjustarAncho(char *texto, int n);

enum Recorte { RecorteDerecha = 1, RecorteAmbos = 2, RecorteIzquierda = 3 };

// Copies `origen` to `destino` without blanks at the sides that `modo` names. `destino` may be `origen`.
void RecortarCadena(char *destino, const char *origen, Recorte modo);

// The part of `texto` that RecortarCadena would keep.
std::string_view Recortado(std::string_view texto, Recorte modo = RecorteAmbos);

// The text without any of its blanks.
std::string SinBlancos(std::string_view texto);

// 1 when every character of the text equals `caracter` (so also for the empty text), else 0.
int CadenaDeCaracter(std::string_view texto, char caracter);

// Copies the characters from index `desde` to index `hasta`, both included, and terminates `destino`. Indices
// outside the text bring nothing.
void SubCadena(std::string_view origen, char *destino, int desde, int hasta);

enum Justificacion { JustificarDerecha = 1, JustificarIzquierda = 3 };

// Aligns `texto` within `ancho` characters and terminates: `destino` has room for ancho + 1 bytes. A longer
// text is cut to its first `ancho` characters.
void JustificarCadena(char *destino, std::string_view texto, int ancho, Justificacion modo);

// Copies `texto` into a field of n bytes, cut at n - 1, and pads it with blanks (AjustarAncho).
void PonerCampo(char *campo, std::string_view texto, int n);

// The capital of a to z; any other character, accented letters among them, as it is.
inline char Mayuscula(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

void PonerEnMayusculas(std::string &texto);
