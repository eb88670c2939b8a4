// Notes of a batch.
#include "language/notas.h"

#include "language/lugar.h"
#include "platform/plataforma.h"

#include <set>
#include <string>
#include <utility>

namespace {

std::set<std::pair<int, std::string>> Hechas;

} // namespace

void Anotar(std::string_view texto) {
    const int linea = LugarActual().linea;
    if (EnLote() && !Hechas.emplace(linea, texto).second) return;
    PonerNota(texto, linea);
}

void OlvidarNotas() {
    Hechas.clear();
}
