// A code ready to be compared with those of the tables.
#pragma once

#include "store/limites.h"

#include <algorithm>
#include <cstring>
#include <string_view>

// 12 characters, padded with blanks: what PonerCampo makes of a text for a field of AnchoCodigo bytes, without the
// terminator. A text ends at a terminator of its own.
struct CodigoBuscado {
    char texto[AnchoCodigo - 1];
};

inline CodigoBuscado PrepararCodigo(std::string_view codigo) {
    CodigoBuscado b;
    std::memset(b.texto, ' ', sizeof b.texto);
    const std::size_t largo = std::min(codigo.size(), sizeof b.texto);
    for (std::size_t i = 0; i < largo && codigo[i] != '\0'; ++i) b.texto[i] = codigo[i];
    return b;
}

// `codigo` is a field of a table. One that is empty, or shorter than its 12 characters, is no code.
inline bool EsCodigo(const char *codigo, const CodigoBuscado &buscado) {
    return std::memcmp(codigo, buscado.texto, sizeof buscado.texto) == 0;
}
