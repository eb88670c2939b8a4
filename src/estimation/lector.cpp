// The tokens of a regression statement.
#include "estimation/lector.h"

#include "language/evaluador.h"
#include "platform/literal.h"

#include <algorithm>
#include <string_view>

namespace {

bool EsCaracterEcuacion(char c) {
    return EsCaracterFormula(c) || std::string_view("_[]").find(c) != std::string_view::npos;
}

int Largo(const Lector &lector) {
    return static_cast<int>(lector.texto->size());
}

} // namespace

bool AlFinal(Lector &lector) {
    SaltarBlancos(*lector.texto, lector.posicion);
    return lector.posicion >= Largo(lector);
}

bool ExtraerToken(Lector &lector, std::string &token) {
    token.clear();
    if (AlFinal(lector)) return true;
    const auto desde = lector.texto->begin() + lector.posicion;
    // The rest of a text that was found good is good.
    if (!lector.comprobado && !std::all_of(desde, lector.texto->end(), EsCaracterEcuacion)) {
        MensajePunto(lector.ventana, "Caracter no válido"_w, 121);
        return false;
    }
    lector.comprobado = true;
    auto hasta = std::find_if(desde, lector.texto->end(), EsDelimitador);
    if (hasta == desde) ++hasta;
    token.assign(desde, hasta);
    lector.posicion += static_cast<int>(token.size());
    if (token.size() < AnchoCodigo) return true;
    MensajePunto(lector.ventana, "Nombre demasiado largo", 121);
    return false;
}
