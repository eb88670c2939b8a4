// The lines of a text result.
#include "charts/resultados/resultado.h"

#include <algorithm>
#include <cstring>

bool AnadirLinea(TextoSalida &texto, int grupo, std::string_view linea) {
    if (texto.size() >= MaxLineasSalida) return false;
    LineaSalida &l = texto.emplace_back();
    l.Grupo = grupo;
    const std::size_t n = std::min<std::size_t>(linea.size(), AnchoLineaSalida);
    std::memcpy(l.texto, linea.data(), n);
    l.texto[n] = '\0';
    return true;
}
