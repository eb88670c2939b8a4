// Literals with accents. Sources are UTF-8, the core holds text in Windows-1252, one byte a character; "Nº"_w
// is the text in Windows-1252, converted while compiling. A character that 1252 lacks doesn't compile.
#pragma once

#include <cstddef>
#include <cstdint>

// Code points of the bytes 0x80 to 0x9F of Windows-1252; 0 where the byte stands for no character.
inline constexpr std::uint16_t PuntosDeCodigo1252[32] = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

// The byte of Windows-1252 for a code point, or -1 when there is none. The five bytes without a character
// (0x81, 0x8D, 0x8F, 0x90, 0x9D) stand for the control of the same number, so that any byte comes back as it went.
constexpr int Byte1252(std::uint32_t punto) {
    if (punto < 0x80 || (punto >= 0xA0 && punto <= 0xFF)) return static_cast<int>(punto);
    for (int i = 0; i < 32; ++i) {
        std::uint32_t propio =
            PuntosDeCodigo1252[i] != 0 ? PuntosDeCodigo1252[i] : 0x80u + static_cast<std::uint32_t>(i);
        if (propio == punto) return 0x80 + i;
    }
    return -1;
}

// Not usable while compiling: a literal with such a character therefore doesn't compile.
inline void CaracterQueFaltaEn1252() {}

// One literal, converted. `bytes` ends in NUL.
template <std::size_t N> struct Literal1252 {
    char bytes[N]{};

    consteval Literal1252(const char (&utf8)[N]) {
        std::size_t n = 0;
        for (std::size_t i = 0; i + 1 < N;) {
            const auto byte = [&](std::size_t k) -> std::uint32_t {
                return static_cast<unsigned char>(utf8[k]);
            };
            std::uint32_t punto = byte(i);
            if (punto < 0x80) {
                i += 1;
            } else if (punto < 0xE0) {
                punto = ((punto & 0x1Fu) << 6) | (byte(i + 1) & 0x3Fu);
                i += 2;
            } else {
                punto = ((punto & 0x0Fu) << 12) | ((byte(i + 1) & 0x3Fu) << 6) | (byte(i + 2) & 0x3Fu);
                i += 3;
            }
            const int b = Byte1252(punto);
            if (b < 0) CaracterQueFaltaEn1252();
            bytes[n++] = static_cast<char>(static_cast<unsigned char>(b));
        }
    }
};

// The pointer is valid for the whole run: it points into an object with static storage.
template <Literal1252 L> consteval const char *operator""_w() {
    return L.bytes;
}
