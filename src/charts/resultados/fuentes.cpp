// From a number of a result to its step.
#include "charts/resultados/fuentes.h"

#include <algorithm>

namespace {

// A run of characters, [primera, detras).
struct Tramo {
    int primera, detras;
};

constexpr std::string_view Separadores = " (),:|=<>";

bool EsNumero(std::string_view texto) {
    constexpr std::string_view DeNumeros = "0123456789.eE+-";
    if (!texto.empty() && texto.front() == '-') texto.remove_prefix(1);
    if (texto == "nan" || texto == "inf") return true;
    return texto.find_first_not_of(DeNumeros) == std::string_view::npos &&
           texto.find_first_of("0123456789") != std::string_view::npos;
}

std::vector<Tramo> NumerosDe(std::string_view texto) {
    std::vector<Tramo> numeros;
    for (std::size_t i = 0; i < texto.size();) {
        const std::size_t fin = std::min(texto.find_first_of(Separadores, i), texto.size());
        if (EsNumero(texto.substr(i, fin - i)))
            numeros.push_back({static_cast<int>(i), static_cast<int>(fin)});
        i = fin + 1;
    }
    return numeros;
}

} // namespace

bool SigueAnotado(const MomentoDeTraza &momento) {
    return momento.corrida > 0 && momento.corrida == Traza.corrida &&
           momento.pasos <= static_cast<int>(Traza.pasos.size());
}

int PasoDeFuente(const FuenteDeNumero &fuente, const MomentoDeTraza &momento) {
    // Behind steps that weren't kept, an earlier one of the same name isn't the one that gave the number.
    if (!SigueAnotado(momento) || momento.faltan || fuente.paso.empty()) return -1;
    if (fuente.paso.front() != '=') return PasoQueDio(fuente.paso, momento.pasos);
    const std::string_view explicacion = std::string_view(fuente.paso).substr(1);
    for (int i = momento.pasos; i-- > 0;)
        if (Traza.pasos[static_cast<std::size_t>(i)].explicacion.starts_with(explicacion)) return i;
    return -1;
}

const FuenteDeNumero *FuenteEnColumna(std::string_view texto, const std::vector<FuenteDeNumero> &fuentes,
                                      int columna, int &primera, int &detras) {
    const std::vector<Tramo> numeros = NumerosDe(texto);
    for (std::size_t i = 0; i < numeros.size(); ++i) {
        if (columna < numeros[i].primera || columna >= numeros[i].detras) continue;
        const std::size_t detrasDeEl = numeros.size() - i; // itself counted
        if (detrasDeEl > fuentes.size()) return nullptr;
        const FuenteDeNumero &fuente = fuentes[fuentes.size() - detrasDeEl];
        if (fuente.paso.empty()) return nullptr;
        primera = numeros[i].primera;
        detras = numeros[i].detras;
        return &fuente;
    }
    return nullptr;
}
