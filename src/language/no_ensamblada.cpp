// The one answer to what the program announces and doesn't have yet.
#include "language/lote_sentencias.h"

int NoEnsamblada(Ventana *ventana) {
    MostrarMensaje(ventana, "No ensamblada", "Opción del menú"_w);
    return 0;
}
