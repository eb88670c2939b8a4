// Whole observations: deletion of one, and sorting of the sample by a series. Two commands of the series editor, for data
// without periodicity only: there the order of the rows has no meaning of its own.
#pragma once

#include "platform/plataforma.h"

#include <string>
#include <string_view>
#include <vector>

// True when the editor offers the two commands; it greys them otherwise.
bool ConObservacionesLibres();

// How both commands begin: the codes are checked and the series compacted. False after the message of the check, title
// "Proceso cancelado": the command ends. The question or the dialog that follows finds that done, also when it is cancelled.
bool EmpezarObservaciones(Ventana *ventana);

// The question "¿Está seguro de desear eliminar la presente observación?" and, on OK, the deletion of the observation,
// counted from 0: those below move up by one with their labels and the last row of the tables becomes empty. NumObs and
// the texts of the periods stay, PrimeraObs and UltimaObs are corrected when the editor is left. True when it was deleted.
// A number outside the tables (the cursor stands on the head row) does nothing and asks nothing.
bool EliminarObservacion(Ventana *ventana, int observacion);

// The list of the dialog "Ordenación de series": the codes in slot order.
std::vector<std::string> SeriesParaOrdenar();

enum FinesDeOrdenacion {
    OrdenacionHecha,
    OrdenacionSigue,    // the dialog stays open after its message
    OrdenacionRechazada // it closes after its message
};

// OK of that dialog, with the selected line (empty for none): refreshes the bounds of the series and the sample, and sorts
// the rows of the sample by the values of the series. Values and labels move, the flags of presence stay at their rows, and
// a missing value counts as what is stored for it, 0.0: so the flags stand beside values of other observations afterwards.
// Messages, title "Aviso": "Serie desconocida", "Elija una muestra más pequeña".
FinesDeOrdenacion AceptarOrdenacion(Ventana *ventana, std::string_view serie, bool descendente);
