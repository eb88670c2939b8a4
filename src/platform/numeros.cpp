// Numbers read from text, free of locale.
#include "platform/numeros.h"

#include "platform/texto.h"

#include <algorithm>
#include <charconv>
#include <cmath>
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

// The text holds the whole number nearest to valor * 1e10, and a whole number below 2^53 divided by 1e10 is rounded as the
// text is when it is read. `resto` is what the product lost by that rounding and by its own; where it is close to a half,
// the text decides.
double EnDiezDecimales(double valor) {
    constexpr double Escala = 1e10;
    constexpr double SinPerdida = 524288.0; // 2^19: from here on doubles lie further apart than 1e-10
    if (std::fabs(valor) >= SinPerdida) return valor;
    const double producto = valor * Escala;
    const double entero = std::nearbyint(producto);
    const double resto = (producto - entero) + std::fma(valor, Escala, -producto);
    if (std::fabs(std::fabs(resto) - 0.5) < 1e-3) return LeerDecimal(Formatear("%.10f", valor));
    if (std::fabs(resto) < 0.5) return entero / Escala;
    return (entero + std::copysign(1.0, resto)) / Escala;
}
