// What the option dialogs of charts decide: "Intervalos y títulos", "Formas y colores", "Otras opciones".
#pragma once

#include "charts/graficos/grafico.h"

#include <string>

// ----- "Intervalos y títulos"

struct ValoresIntervalos {
    std::string titulo, tituloY, tituloX;
    std::string intervalosX, intervalosY;
    bool minYDefecto, maxYDefecto, minXDefecto, maxXDefecto;
    std::string minY, maxY, minX, maxX;
    bool verLeyenda, leyendaConMarco;
};

// What the dialog shows when it opens.
ValoresIntervalos ValoresDeIntervalos(const OpcionesGrafico &opciones);

// OK: stores them.
void AceptarIntervalos(OpcionesGrafico &opciones, const ValoresIntervalos &valores);

// Title of an option dialog of a kind of chart: "Gráficos temporales: Formas y colores".
std::string TituloDeOpciones(ClasesDeGrafico clase, const char *dialogo);

// ----- "Formas y colores"

inline constexpr int ColorPorDefecto = -1; // leaves the colour of the series as it stands

// The buttons "Si": each gives its choice at once to the series at `lugar` of the list. False after "Error al Crear La Lista
// de Series", title "Aviso", when none is chosen.
bool AplicarColor(Ventana *ventana, OpcionesGrafico &opciones, int lugar, int color);
bool AplicarGrosor(Ventana *ventana, OpcionesGrafico &opciones, int lugar, int grosor);
bool AplicarTrazo(Ventana *ventana, OpcionesGrafico &opciones, int lugar, int trazo);
