// The chooser of what to list: two lists of codes between which entries move.
#pragma once

#include "platform/plataforma.h"

#include <string>
#include <vector>

enum ModosSeleccion { SeleccionDeSeries, SeleccionDeMatrices };

// Texts of the dialog.
struct TextosSeleccion {
    const char *titulo, *disponibles, *elegidas;
};

struct EstadoSeleccion {
    ModosSeleccion modo;
    std::vector<std::string> disponibles; // left list: codes without padding
    std::vector<std::string> elegidas;    // right list
};

const TextosSeleccion &TextosDe(ModosSeleccion modo);

// Everything of the work file to the left, nothing to the right.
EstadoSeleccion IniciarSeleccion(ModosSeleccion modo);

// "Añadir >>>>" and "<<<< Eliminar": the entry at `indice` of one list goes to the end of the other. False after "Error al
// crear la lista", title "Aviso", when there is no such entry.
bool AnadirASeleccion(EstadoSeleccion &estado, int indice, Ventana *ventana);
bool EliminarDeSeleccion(EstadoSeleccion &estado, int indice, Ventana *ventana);

// OK: prints what the right list holds, numbers with so many decimals. The dialog stays. Result of ImprimirSalida.
int ImprimirElegidas(const EstadoSeleccion &estado, int decimales, Ventana *ventana);
