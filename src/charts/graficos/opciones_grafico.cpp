// Defaults and tables of the options of a chart.
#include "charts/graficos/opciones_grafico.h"

#include <algorithm>
#include <cstddef>

namespace {

constexpr int AnchoFino = 1, AnchoGrueso = 3;

} // namespace

// What "Cyan" bears is a dark blue, and users know it so.
constinit const std::array<ColorGrafico, NumColoresGrafico> ColoresGrafico = {{
    {"Rojo", {255, 0, 0}},
    {"Verde", {0, 255, 0}},
    {"Azul", {0, 0, 255}},
    {"Negro", {0, 0, 0}},
    {"Cyan", {0, 0, 127}},
    {"Magenta", {127, 0, 127}},
    {"Amarillo", {255, 255, 0}},
    {"Gris", {191, 191, 191}},
    {nullptr, {255, 255, 255}},
}};

OpcionesGrafico OpcionesPorDefecto(int muestra) {
    OpcionesGrafico o{};
    o.intervalosX = std::min(IntervalosPorDefecto, muestra);
    o.intervalosY = IntervalosPorDefecto;
    o.minYDefecto = o.maxYDefecto = o.minXDefecto = o.maxXDefecto = 1;
    o.minXTexto = o.maxXTexto = "0";
    o.verLeyenda = o.leyendaConMarco = 1;
    // The cycle takes in the last colour: the ninth series is white on the white page until the user picks another.
    for (std::size_t i = 0; i < o.color.size(); ++i) o.color[i] = static_cast<int>(i) % NumColoresGrafico;
    return o;
}

Pluma PlumaDeSerie(const OpcionesGrafico &opciones, int lugar) {
    const auto i = static_cast<std::size_t>(lugar >= 0 && lugar < MaxSeriesGrafico ? lugar : 0);
    const auto dentro = [](int valor, int numero) { return valor >= 0 && valor < numero ? valor : 0; };
    return {ColoresGrafico[static_cast<std::size_t>(dentro(opciones.color[i], NumColoresGrafico))].color,
            opciones.grosor[i] == 1 ? AnchoGrueso : AnchoFino,
            static_cast<EstiloPluma>(dentro(opciones.trazo[i], NumTrazosGrafico))};
}
