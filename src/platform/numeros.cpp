// Numbers read from text, free of locale.
#include "platform/numeros.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <limits>
#include <string>

namespace {

bool EsCifra(char c) {
    return c >= '0' && c <= '9';
}

bool EsEspacio(char c) {
    return c == ' ' || (c >= '\t' && c <= '\r');
}

std::size_t TrasEspacios(std::string_view t) {
    std::size_t i = 0;
    while (i < t.size() && EsEspacio(t[i])) ++i;
    return i;
}

// The power of ten of the first digit other than zero, for a number without sign that has one.
long long OrdenDecimal(std::string_view numero) {
    const std::size_t e = std::min(numero.find_first_of("eE"), numero.size());
    const std::string_view mantisa = numero.substr(0, e);
    const auto punto = static_cast<long long>(std::min(mantisa.find('.'), mantisa.size()));
    const auto cifra = static_cast<long long>(mantisa.find_first_not_of("0."));
    const long long orden = cifra < punto ? punto - cifra - 1 : punto - cifra;
    return e < numero.size() ? orden + LeerEntero(numero.substr(e + 1)) : orden;
}

} // namespace

double LeerDecimal(std::string_view texto) {
    std::size_t i = TrasEspacios(texto);
    bool negativo = false;
    if (i < texto.size() && (texto[i] == '-' || texto[i] == '+')) negativo = texto[i++] == '-';
    const std::size_t inicio = i;
    if (i < texto.size() && texto[i] == '.') ++i;
    if (i >= texto.size() || !EsCifra(texto[i])) return 0.0;
    double valor = 0.0;
    const auto r = std::from_chars(texto.data() + inicio, texto.data() + texto.size(), valor);
    if (r.ec == std::errc::result_out_of_range) {
        // from_chars leaves the value alone here; whether it is too large or too small, its order tells.
        const std::size_t leidos = static_cast<std::size_t>(r.ptr - texto.data()) - inicio;
        valor =
            OrdenDecimal(texto.substr(inicio, leidos)) < 0 ? 0.0 : std::numeric_limits<double>::infinity();
    }
    return negativo ? -valor : valor;
}

int LeerEntero(std::string_view texto) {
    std::size_t i = TrasEspacios(texto);
    bool negativo = false;
    if (i < texto.size() && (texto[i] == '-' || texto[i] == '+')) negativo = texto[i++] == '-';
    long long valor = 0;
    constexpr long long Tope = std::numeric_limits<int>::max();
    for (; i < texto.size() && EsCifra(texto[i]); ++i) {
        valor = valor * 10 + (texto[i] - '0');
        if (valor > Tope) valor = Tope + 1;
    }
    if (negativo) return static_cast<int>(-valor);
    return static_cast<int>(valor > Tope ? Tope : valor);
}

bool EsNumero(std::string_view texto) {
    if (!texto.empty() && texto[0] == '-') {
        texto.remove_prefix(1);
    }
    if (texto.empty()) return false;
    for (const char c : texto)
        if (!EsCifra(c) && c != '.') return false;
    return true;
}
