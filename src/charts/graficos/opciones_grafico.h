// What the user may choose of a chart, and the tables of colours, widths and styles behind it.
#pragma once

#include "platform/superficie.h"

#include <array>
#include <string>
#include <vector>

enum FormasDeGrafico { FormaLineas = 0, FormaSimbolos = 1, FormaBarras = 2, FormaLineasYSimbolos = 3 };

inline constexpr int MaxSeriesGrafico = 100;
inline constexpr int IntervalosPorDefecto = 10;
inline constexpr int AnchoTitulo = 50;      // characters of the main title and of that of the X axis
inline constexpr int AnchoTituloY = 20;     // of that of the Y axis
inline constexpr int AnchoLimiteX = 30;     // of a limit of the X axis
inline constexpr int AnchoCampoLimite = 15; // that the dialog reads of any limit
inline constexpr int NumColoresGrafico = 9; // the last is white and no button bears it
inline constexpr int NumTrazosGrafico = 4;

struct OpcionesGrafico {
    int intervalosX, intervalosY;
    int minYDefecto, maxYDefecto; // 1: the limit comes from the data
    int minXDefecto, maxXDefecto;
    double minY, maxY;                // the user's limits
    std::string minXTexto, maxXTexto; // a period as the user writes it; a value for a scatter chart
    int verLeyenda, leyendaConMarco;
    int forma; // FormasDeGrafico
    std::string titulo, tituloX, tituloY;
    std::array<int, MaxSeriesGrafico> color;  // by place of the series in the chart: index of ColoresGrafico
    std::array<int, MaxSeriesGrafico> grosor; // 0 thin, 1 thick
    std::array<int, MaxSeriesGrafico> trazo;  // EstiloPluma
    std::vector<std::string> series;          // codes without padding, at most MaxSeriesGrafico
    std::string ejeX;                         // code of the X series of a scatter chart
    int dispersion;                           // 1: scatter chart
};

// The options as a chart opens, over a sample of so many rows.
OpcionesGrafico OpcionesPorDefecto(int muestra);

struct ColorGrafico {
    const char *nombre; // of its button, null without one
    Color color;
};
extern const std::array<ColorGrafico, NumColoresGrafico> ColoresGrafico;

// The pen of the series in a place; a place or a choice outside its table is taken for the first.
Pluma PlumaDeSerie(const OpcionesGrafico &opciones, int lugar);

inline constexpr Pluma PlumaEjes = {{0, 0, 0}, 1, PlumaContinua};
inline constexpr Pluma PlumaContorno = {{0, 0, 0}, 1, PlumaPunteada}; // of what is being moved
inline constexpr Pluma PlumaDeBorrar = {{255, 255, 255}, 1, PlumaContinua};
inline constexpr Pluma PlumaSinMarco = {{255, 255, 255}, 3, PlumaContinua}; // of the legend without a frame
