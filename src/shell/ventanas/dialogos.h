// The small dialogs of the shell. Each sets up its form, fills it and runs it; what it decides is a routine of the core.
#pragma once

#include "platform/plataforma.h"
#include "shell/listas.h"

void DialogoMuestra(Ventana *ventana);
void DialogoMuestraActual(Ventana *ventana);
void DialogoLista(Ventana *ventana, ListasDeElementos lista);
void DialogoUltimaRegresion(Ventana *ventana);
void DialogoNoEnsamblada(Ventana *ventana);
// A page of the manual and the pages that its buttons open.
void DialogoAyuda(Ventana *ventana, int pagina);
// The dialog "Formato decimal": stores 0 to 6 in `decimales` on OK.
void DialogoDecimales(int &decimales, Ventana *ventana);
