// Editing of panel data: the private copy of DescripcionPanel on which the dialogs of the panel work, the changes that
// they make in it with their checks, and what their lists show. Messages have the title "Aviso", but for the
// checks of periods; a routine that shows one leaves the copy as it was.
#pragma once

#include "store/intervalo.h"
#include "store/periodos.h"

#include <string>
#include <string_view>

struct EdicionDePanel {
    DescripcionDePanel panel;
    Intervalo intervalo; // constant panel: first and last period
    bool cambiada;       // since the copy was last equal to DescripcionPanel
};

extern EdicionDePanel EdicionPanel;

// An empty copy: constant, period first, blank labels.
void LimpiarEdicionPanel();

// The dialog opens: a copy that differs from DescripcionPanel in form or first concept is cleared, and takes these two
// from it. One that agrees is taken anew from it, unless changes wait in it from a dialog that was cancelled.
void AbrirEdicionPanel();

// The radio buttons. The three kinds of list share their place, so going from one to another empties it;
// the form that it has already changes nothing.
void ElegirFormaPanel(FormasPanel forma, ConceptosPanel primerConcepto);

// OK of the dialog of the constant panel, with the number of individuals, the periodicity (TipoAnual, TipoTrimestral or
// TipoMensual) and the fields of the first and last period, checked by ComprobarPeriodos: 1, or
// 0 after its message. The number of individuals is taken as it is: below 1 it counts as no data at the OK of the panel.
int AceptarPanelConstante(Ventana *ventana, std::string_view individuos, int tipoPeriodo,
                          std::string_view inicio, std::string_view fin);

// Variable panel, period first: adds a period with its number of individuals; the list stays sorted by the number that
// the period begins with. 0 after "Individuos ha de ser mayor de cero", "Período ha de ser mayor de mil" or, with 3,999
// entries, "No se pueden introducir más periodos".
int AnadirPeriodoPanel(Ventana *ventana, std::string_view periodo, std::string_view individuos);
// Takes an entry of the list out, from 0; any other number is passed over, here and below.
void QuitarPeriodoPanel(int entrada);

// Variable panel, individual first: the place of the individual with this order number in the sorted list, where it is
// added if it is new. -1 after "Individuos ha de ser mayor de cero" or, with 50 entries, "No se pueden introducir más
// periodos".
int AnadirIndividuoPanel(Ventana *ventana, std::string_view orden);
void QuitarIndividuoPanel(int entrada);

// A period of an individual, at most 25. 0 after "Período ha de ser mayor de 1000" or "No se pueden introducir más
// periodos".
int AnadirPeriodoIndividuo(Ventana *ventana, int entrada, std::string_view periodo);
void QuitarPeriodoIndividuo(int entrada, int periodo);

// Line of the list of labels, from 0 to 49: `%2d---"%s"`.
std::string LineaEtiqueta(int linea);
// Sets the label of an individual from 1 to 50, cut at 12 characters; any other: "Orden de individúo no correcto".
int PonerEtiquetaIndividuo(Ventana *ventana, std::string_view orden, std::string_view texto);
// Takes the label of a line out for editing: it is returned without the blanks at its sides, and cleared.
std::string SacarEtiquetaIndividuo(int linea);

// True when the panel has one row at least.
bool PanelConDatos(const DescripcionDePanel &panel);

// Writes the copy back when it was changed.
void EscribirEdicionPanel();
