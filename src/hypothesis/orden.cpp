// The exchange sort, on keys and an index that lie close together: the series are carried once, at the end.
#include "hypothesis/orden.h"

#include "store/archivo.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <numeric>
#include <utility>

std::vector<double> ValoresDeFilas(int serie, int primera, int ultima) {
    std::vector<double> valores;
    for (int i = primera; i <= ultima; ++i) valores.push_back(ArchivoTrabajo.ValoresObs[i][serie]);
    return valores;
}

namespace {

struct Elemento {
    double clave;
    int lugar; // where it stood
};

// Puts the smaller one first, without a branch that half of the time would be guessed wrong.
inline void Intercambiar(Elemento &a, Elemento &b) {
    const bool menor = b.clave < a.clave;
    const Elemento x = a, y = b;
    a.clave = menor ? y.clave : x.clave;
    b.clave = menor ? x.clave : y.clave;
    a.lugar = menor ? y.lugar : x.lugar;
    b.lugar = menor ? x.lugar : y.lugar;
}

constexpr std::size_t Juntos = 4; // values of i that run over the keys together

} // namespace

// The turn of i at j needs what the turn of i - 1 left there, and nothing behind it: so several run together, each one a
// place behind the other, to the same result.
std::vector<int> OrdenarPorIntercambio(std::vector<double> &claves) {
    const std::size_t n = claves.size();
    std::vector<int> orden(n);
    std::iota(orden.begin(), orden.end(), 0);
    const auto poner = [&](std::size_t j, const Elemento &e) {
        claves[j] = e.clave;
        orden[j] = e.lugar;
    };
    for (std::size_t i = 0; i < n; i += Juntos) {
        Elemento primeros[Juntos] = {};
        const std::size_t cuantos = std::min(Juntos, n - i);
        for (std::size_t j = 0; j < cuantos; ++j) {
            primeros[j] = {claves[i + j], orden[i + j]};
            for (std::size_t k = 0; k < j; ++k) Intercambiar(primeros[k], primeros[j]);
        }
        for (std::size_t j = i + cuantos; j < n; ++j) {
            Elemento e = {claves[j], orden[j]};
            for (Elemento &primero : primeros) Intercambiar(primero, e);
            poner(j, e);
        }
        for (std::size_t j = 0; j < cuantos; ++j) poner(i + j, primeros[j]);
    }
    return orden;
}

void ReordenarSerie(int serie, int primera, const std::vector<int> &orden) {
    struct Observacion {
        double valor;
        std::int32_t presente;
    };
    std::vector<Observacion> antes;
    for (std::size_t k = 0; k < orden.size(); ++k) {
        const int fila = primera + static_cast<int>(k);
        antes.push_back({ArchivoTrabajo.ValoresObs[fila][serie], ArchivoTrabajo.PresenciaObs[fila][serie]});
    }
    for (std::size_t k = 0; k < orden.size(); ++k) {
        const Observacion &o = antes[static_cast<std::size_t>(orden[k])];
        PonerObservacion(primera + static_cast<int>(k), serie, o.valor, o.presente);
    }
}
