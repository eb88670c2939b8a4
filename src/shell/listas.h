// The list dialogs of series, matrices and scalars: what they show and what their delete button does.
#pragma once

#include "platform/plataforma.h"

#include <string>
#include <string_view>
#include <vector>

enum ListasDeElementos { ListaSeries, ListaMatrices, ListaEscalares };

// Title of the dialog: "Relación de series" and the like.
const char *TituloLista(ListasDeElementos lista);

// The lines of the list, in slot order. Of scalars the first line is NOBS, the observations of the sample.
std::vector<std::string> LineasLista(ListasDeElementos lista);

// Deletes the element of the selected line: the line's first 12 characters are its Codigo, because a Codigo always has
// 12; the line of NOBS gives a text that matches nothing. False when there is no such element, or when the deletion of a
// matrix failed, after its message.
bool BorrarElemento(Ventana *ventana, ListasDeElementos lista, std::string_view linea);
