// The statement of White's test, put together from the checks of its dialog.
#include "hypothesis/dialogo_white.h"

#include "estimation/regresion.h"
#include "language/lote_sentencias.h"
#include "store/periodos.h"

std::string SentenciaWhite(const ValoresWhite &valores) {
    if (!valores.productosCruzados) return valores.verRegresion ? "CWH RA" : "CWH ";
    return valores.verRegresion ? "CWH PC RA " : "CWH PC ";
}

int AceptarWhite(Ventana *ventana, const ValoresWhite &valores) {
    if (ProcesarSentencia(ventana, SentenciaWhite(valores), Muestra.InicioRegresion, Muestra.FinRegresion) ==
        1)
        return 1;
    MostrarMensaje(ventana, "Problemas en la regresión. P17"_w);
    BorrarTemporales(ventana, OrdenCWH);
    return 0;
}
