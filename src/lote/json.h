// JSON text, written piece by piece. A library would print a number in its shortest form; the events promise all
// digits (%.17g), and the non-finite ones as strings, so the few lines that this takes are here.
#pragma once

#include <string>
#include <string_view>

// Appends a text of the core as a JSON string in UTF-8.
void PonerTextoJson(std::string &json, std::string_view texto1252);

// Appends a number: %.17g, or "nan", "inf", "-inf" as strings.
void PonerNumeroJson(std::string &json, double valor);

// Appends `"clave":`, with a comma in front unless the object or array has just been opened.
void PonerClaveJson(std::string &json, const char *clave);

// Appends a comma unless the object or array has just been opened.
void PonerComaJson(std::string &json);

// A whole pair.
void PonerParJson(std::string &json, const char *clave, std::string_view texto1252);
void PonerParJson(std::string &json, const char *clave, int valor);
void PonerParJson(std::string &json, const char *clave, double valor);
