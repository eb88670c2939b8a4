// The routines of the words that the language knows by itself.
#include "language/palabras.h"

#include "language/asignaciones.h"
#include "language/bloques.h"
#include "language/lugar.h"
#include "language/notas.h"
#include "platform/campos_texto.h"
#include "platform/numeros.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <algorithm>
#include <cmath>

int EjecutarNada(Orden &) {
    return 1;
}

int EjecutarControl(Orden &o) {
    const std::size_t desde = static_cast<std::size_t>(o.posicion);
    const std::size_t largo = static_cast<std::size_t>(std::max(o.fin - o.posicion, 0));
    int avance = 0;
    PonerBaseDeBloque(o.posicion);
    const int r = EjecutarBloque(std::string_view(o.texto).substr(desde, largo), o.lineas, avance, o.ventana,
                                 o.primera, o.ultima);
    o.posicion += avance;
    for (const char *temporal : {"_TMP01", "_TMP02"}) {
        const int e = BuscarEscalar(temporal);
        if (e >= 0) BorrarEscalar(e);
    }
    if (r == 0) MostrarMensaje(o.ventana, "Secuencia no válida. Punto 89"_w);
    return r;
}

namespace {

// A year, or number of an observation, that a limit names and the work file doesn't have. Panels go by more than one number.
bool FueraDelArchivo(int ano) {
    const int ultima = FilasEnUso() - 1;
    return ano != 0 && ultima >= 0 && ArchivoTrabajo.TipoDatos < TipoPanel &&
           (ano < std::trunc(ArchivoTrabajo.ValoresPeriodo[0]) ||
            ano > std::trunc(ArchivoTrabajo.ValoresPeriodo[ultima]));
}

} // namespace

int EjecutarMUEST(Orden &o) {
    MuestraDeSentencia(o.lineas[0]);
    if (FueraDelArchivo(Muestra.AnoInicial) || FueraDelArchivo(Muestra.AnoFinal))
        Anotar("La muestra nombra un período que no está en el archivo de trabajo"_w);
    o.primera = Muestra.InicioMuestra;
    o.ultima = FinDeCalculo(Muestra.FinMuestra);
    return 1;
}

// The number is read from the start of the line, where the word itself stands, so that any figure behind it sets 0
// decimals. The word with no blank behind keeps the old number.
int EjecutarDECI(Orden &o) {
    const std::size_t blanco = o.lineas[0].find(' ');
    if (blanco == std::string::npos) return 1;
    const int n = LeerEntero(std::string_view(o.lineas[0]).substr(0, blanco));
    Lote.DecimalesSalida = n < 0 || n > 6 ? 2 : n;
    return 1;
}

int EjecutarVSR(Orden &o) {
    const std::string_view resto =
        Recortado(std::string_view(o.lineas[0]).substr(static_cast<std::size_t>(o.detras)));
    if (resto.empty()) return MensajeNumerado(o.ventana, 39, " : Faltan datos");
    Lote.VerRegresion = resto == "SI" ? 1 : 0;
    return 1;
}

int EjecutarFormula(Orden &o) {
    return EjecutarAsignacion(o.lineas, o.detras, o.ventana, o.primera, o.ultima, o.codigo);
}
