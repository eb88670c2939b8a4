// The charts of series: the statement GRAF, and the dialogs in which the series are chosen.
#pragma once

#include "charts/graficos/grafico.h"
#include "charts/resultados/seleccion.h"

#include <string>
#include <string_view>

// The one set of options of the charts of series. Each door resets it.
extern OpcionesGrafico OpcionesDeSeries;

// Words of GRAF and HIST.
struct LectorDePalabras {
    std::string_view texto;
    std::size_t posicion = 0;
};

// The next word, from a character other than a blank to a blank or ")"; empty at the end of the text.
std::string_view SiguientePalabra(LectorDePalabras &lector);

// INTERX, INTERY, MINY, MAXY, MINX, MAXX: takes the next word as the value. False when the word is none of them. With
// nothing behind it the word sets nothing.
bool TomarPalabraClave(std::string_view palabra, LectorDePalabras &lector, OpcionesGrafico &opciones);

// Opens the chart of the series and the X series that `opciones` name, over rows `primera` to `ultima`. 1; or 0 after
// "Excesivo número de datos para generar el gráfico" or "Serie no existe [%s]", title "Aviso".
int AbrirGraficoDeSeries(Ventana *ventana, const OpcionesGrafico &opciones, int primera, int ultima);

// GRAF: `resto` is the line behind the word. Always 1, so that a refused chart doesn't stop the batch. Messages: "No se ha
// cerrado el paréntesis", "No se ha introducido ninguna serie válida", title "Aviso", and those of the chart.
int EjecutarGRAF(Ventana *ventana, std::string_view resto, int primera, int ultima);

// ----- The dialogs "Gráficos temporales" and "Gráficos de dispersión"

enum ModosDeGraficos { GraficosTemporales = 0, GraficosDeDispersion = 1 };

// Opening: the options of the program are reset. False after "Excesivo número de datos para generar el gráfico".
bool IniciarEleccionDeSeries(Ventana *ventana, ModosDeGraficos modo, int primera, int ultima);

// The chart of what stands in the right list of the dialog, with the options of the program; a code of the X series that
// no series has gives "Serie no existe [%s]". 1 to go on and open it or print it, else 0 after a message.
int TomarEleccionDeSeries(Ventana *ventana, ModosDeGraficos modo, const EstadoSeleccion &eleccion,
                          std::string_view codigoX);

// OK, and the command "I&mprimir", of the dialog.
int AceptarEleccionDeSeries(Ventana *ventana, ModosDeGraficos modo, const EstadoSeleccion &eleccion,
                            std::string_view codigoX, int primera, int ultima);
int ImprimirEleccionDeSeries(Ventana *ventana, ModosDeGraficos modo, const EstadoSeleccion &eleccion,
                             std::string_view codigoX, int primera, int ultima);
