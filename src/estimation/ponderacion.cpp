// The weight of MCP: any series formula in parentheses.
#include "estimation/ponderacion.h"

#include <algorithm>

int LeerPonderacion(Estimacion &e, const std::string &texto, int &posicion) {
    SaltarBlancos(texto, posicion);
    if (CaracterEn(texto, posicion) != '(') return MensajePunto(e.ventana, "Indroduzca ponderación"_w, 1633);
    const int cierre = ParentesisCierre(texto, posicion);
    const std::size_t desde = static_cast<std::size_t>(posicion) + 1;
    const std::string formula = texto.substr(desde, static_cast<std::size_t>(cierre) - desde);
    posicion = std::min(cierre + 1, static_cast<int>(texto.size()));
    if (UltimoNivel()) return MensajePunto(e.ventana, FaltanSeries, 8621);
    UltimaRegresion.TextoPonderacion = formula;
    switch (SerieDeFormula(CadenaDe(e), "_VORD", formula)) {
    case FormulaErronea: return MensajePunto(e.ventana, formula, 8511);
    case FormulaSinGuardar: return MensajePunto(e.ventana, FaltanSeries, 8628);
    default: UltimaRegresion.Ponderada = 1; return 1;
    }
}
