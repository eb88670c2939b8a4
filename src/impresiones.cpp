// The kinds of print jobs with their routines, whatever room they belong to.
#include "charts/graficos/impresion_grafico.h"
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
    {ImprimirGraficoAutocorrelacion, ConSusDatos<&ImprimirGrafico>},
    {ImprimirHistograma, ConSusDatos<&ImprimirGrafico>},
    {ImprimirGraficoSeries, ConSusDatos<&ImprimirGrafico>},
    {ImprimirGraficoValores, ConSusDatos<&ImprimirGrafico>},
    {ImprimirGraficoResiduos, ConSusDatos<&ImprimirGrafico>},
    {ImprimirGraficoPrediccion, ConSusDatos<&ImprimirGrafico>},
    {ImprimirPantalla, ConSusDatos<&ListarPantalla>},
};

} // namespace

constinit const std::span<const FilaDeImpresion> TablaImpresion = Filas;
