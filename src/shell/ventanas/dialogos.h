// The small dialogs of the shell. Each sets up its form, fills it and runs it; what it decides is a routine of the core.
#pragma once

#include "platform/dialogos.h"

void DialogoMuestra(Ventana *ventana, const DatosDialogo &);
void DialogoMuestraActual(Ventana *ventana, const DatosDialogo &);
void DialogoLista(Ventana *ventana, const DatosDialogo &datos); // modo: ListasDeElementos
void DialogoUltimaRegresion(Ventana *ventana, const DatosDialogo &);
void DialogoNoEnsamblada(Ventana *ventana, const DatosDialogo &);
// A page of the manual and the pages that its buttons open. modo: the id of the page.
void DialogoAyuda(Ventana *ventana, const DatosDialogo &datos);
