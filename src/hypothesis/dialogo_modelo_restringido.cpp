// The statement of the restricted model, from the field of its dialog.
#include "hypothesis/dialogo_modelo_restringido.h"

#include "estimation/regresion.h"
#include "language/lote_sentencias.h"
#include "store/periodos.h"

std::string SentenciaModeloRestringido(const ValoresModeloRestringido &valores) {
    return "CR  " + valores.texto;
}

int AceptarModeloRestringido(Ventana *ventana, const ValoresModeloRestringido &valores) {
    if (UltimaRegresion.DesdeDialogo == 0) return MensajeAviso(ventana, "Realize primero una regresión"_w);
    if (ProcesarSentencia(ventana, SentenciaModeloRestringido(valores), Muestra.InicioMuestra,
                          Muestra.FinMuestra) == 1)
        return 1;
    return MensajeAviso(ventana, "Secuencia de series no válida"_w);
}
