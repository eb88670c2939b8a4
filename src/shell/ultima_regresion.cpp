// The dialog of the last regression.
#include "shell/ultima_regresion.h"

#include "estimation/regresion.h"
#include "platform/campos_texto.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/periodos.h"

namespace {

std::string LineaDeVariables() {
    if (UltimaRegresion.RegresionHecha == 0 || BuscarSerie(UltimaRegresion.CodigoDependiente) < 0)
        return "No se ha realizado ninguna regresión"_w;
    std::string linea(Recortado(UltimaRegresion.CodigoDependiente));
    for (const std::string &codigo : UltimaRegresion.CodigosRegresores) {
        linea += "  ";
        linea += Recortado(codigo);
    }
    return linea;
}

} // namespace

std::vector<std::string> LineasUltimaRegresion() {
    return {Formatear("Período inicial: %s  "_w, std::string(TextoPeriodo(Muestra.InicioRegresion)).c_str()),
            Formatear("Período final  : %s  "_w, std::string(TextoPeriodo(Muestra.FinRegresion)).c_str()),
            LineaDeVariables()};
}
