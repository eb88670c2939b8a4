// The histogram of a series: classes, frequencies, the table window and its chart; the statement HIST and the dialog.
#pragma once

#include "charts/graficos/grafico.h"
#include "charts/resultados/resultado.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

inline constexpr int ClasesPorDefecto = 10;
inline constexpr int MinClases = 2, MaxClases = 18;
inline constexpr int MinDivisiones = 4, MaxDivisiones = 20; // of the Y axis
inline constexpr int MaxLimitesHistograma = 20;
inline constexpr int CamposDeLimites = 10; // of the dialog
inline constexpr int AnchoTituloHistograma = 60;

// How the classes are given.
enum ModosDeClases {
    ClasesDeLosDatos,   // equal parts between minimum and maximum of the series
    ClasesEntreLimites, // equal parts between limits of the user
    ClasesDadas         // the limits one by one
};

struct OpcionesHistograma {
    ModosDeClases modo;
    int clases;
    int minXDefecto, maxXDefecto; // 1: limit of the classes from the data
    double minX, maxX;
    std::vector<double> limites; // of ClasesDadas, as they were written
    int intervalosY;
    int minYDefecto, maxYDefecto;
    double minY, maxY;
    int conTitulo, tituloArriba;
    std::string titulo;
};

// As the dialog opens.
OpcionesHistograma HistogramaPorDefecto();

// The limits of the classes of these values, rising, one more than classes.
std::vector<double> LimitesDeClases(const OpcionesHistograma &opciones, const std::vector<double> &valores);

// A histogram with its table window, from which the chart opens.
struct Histograma {
    Grafico grafico;
    TextoSalida lineas;
    std::string tabla; // for a spreadsheet
};

// Counts the series over rows `primera` to `ultima` and fills chart and table. False when no series has the code.
bool ContarHistograma(const OpcionesHistograma &opciones, std::string_view codigo, int primera, int ultima,
                      Histograma &histograma);

// Counts, and shows the table window. False when no series has the code; the caller says so.
bool MostrarHistograma(Ventana *ventana, const OpcionesHistograma &opciones, std::string_view codigo,
                       int primera, int ultima);

// Lower limit, upper limit and frequency of each class for a spreadsheet: tabulators, all digits, a head line.
std::string TablaDeHistograma(const DatosHistograma &h);

// HIST: `resto` is the line behind the word. Always 1. With no series found "Variable no encontrada", title "Aviso".
int EjecutarHIST(Ventana *ventana, std::string_view resto, int primera, int ultima);

// ----- The dialog "HISTOGRAMA"

// What its controls hold.
struct ValoresHistograma {
    std::string serie; // empty while none is chosen
    ModosDeClases modo = ClasesDeLosDatos;
    std::string minimo, maximo, intervalos;
    std::array<std::string, CamposDeLimites> limites;
    std::string divisiones = "10";
    bool minYDefecto = true, maxYDefecto = true;
    std::string minY, maxY;
    bool conTitulo = true, tituloArriba = true;
    std::string titulo = " ";
};

OpcionesHistograma OpcionesDeValores(const ValoresHistograma &valores);

// What the dialog does at OK. 1, or 0 after "Serie no válida.", title "Aviso".
int AceptarHistograma(Ventana *ventana, const OpcionesHistograma &opciones, std::string_view serie,
                      int primera, int ultima);

// OK.
int AceptarHistograma(Ventana *ventana, const ValoresHistograma &valores, int primera, int ultima);
