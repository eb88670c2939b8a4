// The statement of Goldfeld and Quandt's test, put together from the fields of its dialog.
#include "hypothesis/dialogo_goldfeld.h"

#include "estimation/regresion.h"
#include "language/lote_sentencias.h"
#include "platform/campos_texto.h"
#include "store/periodos.h"

std::string SentenciaGoldfeld(const ValoresGoldfeld &valores) {
    std::string sentencia = "CGQ ( " + valores.variable + " ) ";
    if (valores.verRegresiones) sentencia += "  RA ";
    for (const std::string *numero : {&valores.primeraDenominador, &valores.ultimaDenominador,
                                      &valores.primeraNumerador, &valores.ultimaNumerador})
        sentencia += *numero + "  ";
    return sentencia;
}

// The statement ends as if it had failed even after a correct test, and leaves the sample of the last regression at one of
// its parts: the dialog mends both.
void AceptarGoldfeld(Ventana *ventana, const ValoresGoldfeld &valores) {
    if (Recortado(valores.variable).empty())
        return MostrarMensaje(ventana, "Introduzca variable de ponderación"_w, TituloAviso);
    const int bien =
        ProcesarSentencia(ventana, SentenciaGoldfeld(valores), Muestra.InicioRegresion, Muestra.FinRegresion);
    if (bien == 0) BorrarTemporales(ventana, OrdenMGD);
    Muestra.InicioRegresion = UltimaRegresion.PrimeraObsRegresion;
    Muestra.FinRegresion = UltimaRegresion.UltimaObsRegresion;
}
