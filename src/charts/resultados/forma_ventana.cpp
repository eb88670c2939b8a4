// The table of the kinds of result windows.
#include "charts/resultados/forma_ventana.h"

#include "charts/resultados/impresion.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr int AnchoBloque = 70;
constexpr int ColumnasFueraDelBloque = 7;
constexpr int MargenesDelBloque = 2; // a character on each side

constexpr FormaVentana FormaDeInforme = {SalidaRegresion,
                                         0,
                                         ImprimirInforme,
                                         AnchoBloque,
                                         4000,
                                         BloqueCentradoAncho,
                                         true,
                                         3,
                                         0,
                                         false,
                                         TitulosEncima,
                                         nullptr,
                                         0};

// The listings of a regression open the window of the report.
constexpr FormaVentana FormaDeListado(int contenido, int claseImpresion) {
    FormaVentana f = FormaDeInforme;
    f.Contenido = contenido;
    f.claseImpresion = claseImpresion;
    return f;
}

constexpr FormaVentana Formas[] = {
    FormaDeInforme,
    FormaDeListado(1, ImprimirCovarianza),
    FormaDeListado(2, ImprimirValores),
    FormaDeListado(3, ImprimirVarianza),
    {SalidaHipotesis, 0, ImprimirHipotesis, 85, 0, BloqueALaIzquierda, true, 3, 1, false, TitulosEntreReglas,
     "Contraste de significatividad: Hipótesis nula"_w, 0},
    {SalidaAutocorrelacion, 0, ImprimirTablaAutocorrelacion, AnchoBloque, 250, BloqueCentradoJusto, false, 2,
     0, true, SinTitulos, nullptr, 10},
    {SalidaNormalidad, 0, ImprimirNormalidad, AnchoBloque, 0, BloqueCentradoAncho, true, 3, 0, false,
     TitulosEntreReglas, "Contrastes de normalidad", 0},
    {SalidaPrediccion, 0, ImprimirPrediccion, AnchoBloque, 20, BloqueCentradoAncho, true, 3, 0, true,
     TitulosEntreReglas, "Evaluación de la capacidad predicitiva"_w, 0},
    {SalidaDescriptivos, 0, ImprimirDescriptivos, AnchoBloque, 100, BloqueCentradoAncho, true, 3, 0, false,
     TitulosEntreReglas, "Medidas descriptivas", 0},
    // Paper has a kind for the chart of a histogram; its table goes there as a report.
    {SalidaHistograma, 0, ImprimirInforme, AnchoBloque, 4000, BloqueCentradoAncho, true, 3, 0, true,
     TitulosEncima, nullptr, 0},
};

constexpr FormaVentana FormaDesconocida = FormaDeListado(0, SinImpresion);

} // namespace

const FormaVentana &FormaDe(const SalidaResultado &salida) {
    const int contenido = salida.tipo == SalidaRegresion ? salida.Contenido : 0;
    const auto *forma = std::find_if(std::begin(Formas), std::end(Formas), [&](const FormaVentana &f) {
        return f.tipo == salida.tipo && f.Contenido == contenido;
    });
    return forma != std::end(Formas) ? *forma : FormaDesconocida;
}

int ColumnasAlAbrir(const FormaVentana &forma) {
    return forma.columnas + ColumnasFueraDelBloque;
}

int ColumnasMinimas(const FormaVentana &forma) {
    return forma.columnas + MargenesDelBloque;
}
