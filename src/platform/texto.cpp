// Conversion of text between Windows-1252 and UTF-8, and formatting.
#include "platform/texto.h"

#include "platform/literal.h"

#include <cstdarg>
#include <cstdint>
#include <cstdio>

namespace {

std::uint32_t PuntoDeByte(unsigned char b) {
    if (b < 0x80 || b >= 0xA0) return b;
    return PuntosDeCodigo1252[b - 0x80] != 0 ? PuntosDeCodigo1252[b - 0x80] : b;
}

// Reads one character at `i`; returns its length in bytes and its code point, or 0 when no UTF-8 stands there
// (overlong forms, surrogates and what lies beyond Unicode included).
int LeerUtf8(std::string_view t, std::size_t i, std::uint32_t &punto) {
    const auto byte = [&](std::size_t k) -> std::uint32_t { return static_cast<unsigned char>(t[k]); };
    const std::uint32_t primero = byte(i);
    int largo = 0;
    if (primero < 0x80) {
        punto = primero;
        return 1;
    }
    if (primero >= 0xC2 && primero <= 0xDF) {
        largo = 2;
        punto = primero & 0x1Fu;
    } else if (primero >= 0xE0 && primero <= 0xEF) {
        largo = 3;
        punto = primero & 0x0Fu;
    } else if (primero >= 0xF0 && primero <= 0xF4) {
        largo = 4;
        punto = primero & 0x07u;
    } else {
        return 0;
    }
    if (i + static_cast<std::size_t>(largo) > t.size()) return 0;
    for (int k = 1; k < largo; ++k) {
        const std::uint32_t b = byte(i + static_cast<std::size_t>(k));
        if ((b & 0xC0u) != 0x80u) return 0;
        punto = (punto << 6) | (b & 0x3Fu);
    }
    static constexpr std::uint32_t Minimo[5] = {0, 0, 0x80, 0x800, 0x10000};
    const bool sustituto = punto >= 0xD800 && punto <= 0xDFFF;
    return punto < Minimo[largo] || punto > 0x10FFFF || sustituto ? 0 : largo;
}

} // namespace

std::string Utf8De1252(std::string_view texto) {
    std::string r;
    r.reserve(texto.size() + texto.size() / 8);
    for (const char c : texto) {
        const std::uint32_t p = PuntoDeByte(static_cast<unsigned char>(c));
        if (p < 0x80) {
            r += static_cast<char>(p);
        } else if (p < 0x800) {
            r += static_cast<char>(0xC0u | (p >> 6));
            r += static_cast<char>(0x80u | (p & 0x3Fu));
        } else {
            r += static_cast<char>(0xE0u | (p >> 12));
            r += static_cast<char>(0x80u | ((p >> 6) & 0x3Fu));
            r += static_cast<char>(0x80u | (p & 0x3Fu));
        }
    }
    return r;
}

std::string Texto1252DeUtf8(std::string_view utf8, bool *valido) {
    std::string r;
    r.reserve(utf8.size());
    bool bien = true;
    for (std::size_t i = 0; i < utf8.size();) {
        std::uint32_t punto = 0;
        const int largo = LeerUtf8(utf8, i, punto);
        const int b = largo > 0 ? Byte1252(punto) : -1;
        r += b >= 0 ? static_cast<char>(static_cast<unsigned char>(b)) : '?';
        if (largo == 0) bien = false;
        i += static_cast<std::size_t>(largo > 0 ? largo : 1);
    }
    if (valido != nullptr) *valido = bien;
    return r;
}

std::string Texto1252DeArchivo(std::string_view bytes) {
    if (bytes.substr(0, 3) == "\xEF\xBB\xBF") bytes.remove_prefix(3);
    bool valido = false;
    std::string r = Texto1252DeUtf8(bytes, &valido);
    if (!valido) r = bytes;
    for (char &c : r)
        if (c == '\0') c = '?';
    return r;
}

std::string Formatear(const char *formato, ...) {
    char corto[256];
    va_list argumentos;
    va_start(argumentos, formato);
    const int largo = std::vsnprintf(corto, sizeof corto, formato, argumentos);
    va_end(argumentos);
    if (largo <= 0) return {};
    if (static_cast<std::size_t>(largo) < sizeof corto) return {corto, static_cast<std::size_t>(largo)};
    std::string r(static_cast<std::size_t>(largo), '\0');
    va_start(argumentos, formato);
    std::vsnprintf(r.data(), r.size() + 1, formato, argumentos);
    va_end(argumentos);
    return r;
}
