// The choice of the data type: what the user proposes in the dialog "Tipos de datos" and in the one of the type, the
// checks of these dialogs in their order, and the acceptance, which resets the work file. A window and the batch
// runner call the same routines.
#pragma once

#include "platform/plataforma.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <string>
#include <string_view>
#include <vector>

// One entry of the list of a variable panel, as texts: a period with its number of individuals, or the order number of
// an individual with its periods.
struct EntradaPropuesta {
    std::string concepto;
    std::string individuos;
    std::vector<std::string> periodos;
};

struct PropuestaTipoDatos {
    std::string nombre;      // of the work file
    int tipo = SinTipoDatos; // TiposDeDatos; SinTipoDatos while no button is chosen
    std::string inicio, fin; // fields of the first and the last period
    bool etiquetas = false;  // the check box of types 0 and 4
    // Panel, where it is proposed as a whole instead of being edited (panel.h).
    FormasPanel forma = PanelConstante;
    ConceptosPanel primerConcepto = PeriodoPrimero;
    std::string individuos;      // constant: number of individuals
    int tipoPeriodo = TipoAnual; // constant: TipoAnual, TipoTrimestral or TipoMensual
    std::vector<EntradaPropuesta> entradas;
};

// Characters of the name of the work file.
inline constexpr int AnchoNombreTipo = 8;

// The name that the dialog shows when it opens: "PROYEC01" while no data type is chosen, then the work file's.
std::string NombreDialogoTipo();

// OK of the dialog "Tipos de datos". 1 to go on to the dialog of the type, with the warning that the data will be lost
// where there are series (title "Aviso"); 0 after "Introduzca nombre fichero" or "Introduzca tipo de datos", title
// "Proceso cancelado". A type that has no button counts as none.
int AceptarNombreYTipo(Ventana *ventana, const PropuestaTipoDatos &propuesta);

// OK of the dialog of the type: types 0 to 3 from the two fields, type 4 from EdicionPanel. 1 when the work file was
// reset for the new type; 0 after a message, the store as it was: title "Aviso" for "Introduzca datos" of a panel, "Proceso
// cancelado" for the checks of periods.
int AceptarDialogoDelTipo(Ventana *ventana, const PropuestaTipoDatos &propuesta);

// Both dialogs at once, and for type 4 those of the panel between them.
int AceptarTipoDatos(Ventana *ventana, const PropuestaTipoDatos &propuesta);
