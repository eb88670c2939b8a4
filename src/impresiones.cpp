// The kinds of print jobs with their routines, whatever room they belong to.
#include "charts/resultados/informe_impreso.h"
#include "charts/resultados/listados.h"

namespace {

constexpr FilaDeImpresion Filas[] = {
    {ImprimirInforme, ConSusDatos<&ImprimirTextoInforme>},
    {ImprimirMatrices, ConSusDatos<&ListarMatrices>},
    {ImprimirSeries, ConSusDatos<&ListarSeries>},
    {ImprimirTablaAutocorrelacion, ConSusDatos<&ImprimirTextoInforme>},
    {ImprimirHipotesis, ConSusDatos<&ImprimirTextoInforme>},
    {ImprimirCovarianza, ConSusDatos<&ImprimirTextoInforme>},
    {ImprimirValores, ConSusDatos<&ImprimirTextoInforme>},
    {ImprimirDescriptivos, ConSusDatos<&ImprimirTextoInforme>},
    {ImprimirVarianza, ConSusDatos<&ImprimirTextoInforme>},
    {ImprimirPrediccion, ConSusDatos<&ImprimirTextoInforme>},
    {ImprimirNormalidad, ConSusDatos<&ImprimirTextoInforme>},
    {ImprimirPantalla, ConSusDatos<&ListarPantalla>},
};

} // namespace

constinit const std::span<const FilaDeImpresion> TablaImpresion = Filas;
