// Text between the core (Windows-1252, one byte a character) and the outside (UTF-8), and text put together from
// a format. Only src/platform, src/lote and the ventanas/ folders meet UTF-8.
#pragma once

#include <string>
#include <string_view>

// UTF-8 of a text of the core.
std::string Utf8De1252(std::string_view texto);

// Text of the core from UTF-8; a character that Windows-1252 lacks becomes "?". `valido`, when given, receives
// whether the bytes were UTF-8; where they are not, each byte that fits nowhere becomes "?" too.
std::string Texto1252DeUtf8(std::string_view utf8, bool *valido = nullptr);

// Text of the core from the bytes of a file: UTF-8 (a byte order mark is dropped) when all of it is valid
// UTF-8, else Windows-1252 as it stands. NUL bytes, which no field of the core can hold, become "?".
std::string Texto1252DeArchivo(std::string_view bytes);

// printf into a string of the size that it takes. `formato` is a text of the core; numbers follow the "C" locale.
std::string Formatear(const char *formato, ...) __attribute__((format(printf, 1, 2)));
