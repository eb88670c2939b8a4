// The statement of the rank test, put together from the field of its dialog.
#include "hypothesis/dialogo_rangos.h"

#include "language/lote_sentencias.h"
#include "platform/campos_texto.h"
#include "store/periodos.h"

std::string SentenciaRangos(const ValoresRangos &valores) {
    return std::string("CRA ").append(Recortado(valores.variable, RecorteDerecha));
}

int AceptarRangos(Ventana *ventana, const ValoresRangos &valores) {
    return ProcesarSentencia(ventana, SentenciaRangos(valores), Muestra.InicioRegresion,
                             Muestra.FinRegresion);
}
