// The exchange sort, on keys and an index that lie close together: the series are carried once, at the end.
#include "hypothesis/orden.h"

#include "store/archivo.h"

#include <cstddef>
#include <cstdint>
#include <numeric>
#include <utility>

std::vector<double> ValoresDeFilas(int serie, int primera, int ultima) {
    std::vector<double> valores;
    for (int i = primera; i <= ultima; ++i) valores.push_back(ArchivoTrabajo.ValoresObs[i][serie]);
    return valores;
}

std::vector<int> OrdenarPorIntercambio(std::vector<double> &claves) {
    std::vector<int> orden(claves.size());
    std::iota(orden.begin(), orden.end(), 0);
    for (std::size_t i = 0; i + 1 < claves.size(); ++i) {
        for (std::size_t j = i + 1; j < claves.size(); ++j) {
            if (!(claves[j] < claves[i])) continue;
            std::swap(claves[i], claves[j]);
            std::swap(orden[i], orden[j]);
        }
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
