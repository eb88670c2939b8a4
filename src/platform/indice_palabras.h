// A fixed set of words, grouped by their first character while compiling: a look at it, and at most a few comparisons, tell
// where in the set a text stands. Most texts that are looked up are none of the words.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

template <std::size_t N> struct IndicePalabras {
    std::array<std::string_view, N>
        palabras;                        // grouped by first character, in the order of the set inside a group
    std::array<std::uint8_t, N> lugares; // of each in the set
    std::array<std::uint8_t, 257>
        desde; // where the group of a character begins; that of the next one ends it
};

// The index of a set of words, none of them empty, at most 255. `palabra` gives the word of an element.
template <class Elemento, std::size_t N, class Palabra>
consteval IndicePalabras<N> IndexarPalabras(const Elemento (&conjunto)[N], Palabra palabra) {
    static_assert(N <= 255);
    IndicePalabras<N> indice{};
    std::size_t n = 0;
    for (std::size_t c = 0; c < 256; ++c) {
        indice.desde[c] = static_cast<std::uint8_t>(n);
        for (std::size_t k = 0; k < N; ++k) {
            const std::string_view p = palabra(conjunto[k]);
            if (static_cast<unsigned char>(p[0]) != c) continue;
            indice.palabras[n] = p;
            indice.lugares[n++] = static_cast<std::uint8_t>(k);
        }
    }
    indice.desde[256] = static_cast<std::uint8_t>(n);
    return indice;
}

// Place of the text in the set, from 0, or -1.
template <std::size_t N> int BuscarPalabra(const IndicePalabras<N> &indice, std::string_view texto) {
    if (texto.empty()) return -1;
    const std::size_t c = static_cast<unsigned char>(texto[0]);
    for (std::size_t k = indice.desde[c]; k < indice.desde[c + 1]; ++k)
        if (indice.palabras[k] == texto) return indice.lugares[k];
    return -1;
}
