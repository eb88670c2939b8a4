// The loop that runs a batch of statements: the selection of a text control, or the one statement of a dialog.
#include "language/lote_sentencias.h"

#include "language/notas.h"
#include "language/traza.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <algorithm>

EstadoLote Lote;
void (*AntesDeCadaLote)() = nullptr;
void (*DespuesDeCadaLote)() = nullptr;

namespace {

constexpr std::size_t MinimoLinea = 60;   // characters of a line buffer, however short the selection is
constexpr std::size_t LineaDialogo = 600; // of a line buffer for the statement of a dialog

// The text of a batch and the stretch of it that runs: [desde, hasta).
struct TextoDeLote {
    std::string completo;
    int desde, hasta;
};

// False after its message when nothing is selected: the whole text isn't taken then, the user must select.
bool TomarSeleccion(Ventana *ventana, ControlTexto *control, TextoDeLote &texto) {
    texto.completo = TextoDeControl(control);
    SeleccionDeControl(control, texto.desde, texto.hasta);
    const int largo = static_cast<int>(texto.completo.size());
    texto.desde = std::clamp(texto.desde, 0, largo);
    texto.hasta = std::clamp(texto.hasta, texto.desde, largo);
    if (texto.hasta - texto.desde + 2 >= 3) return true;
    MostrarMensaje(ventana, "No hay datos a procesar. Punto 3.");
    return false;
}

// What passes for a statement in a count: neither a comment nor the lone letter that the driver passes over.
bool SeCuenta(const std::string &texto, int posicion) {
    const std::size_t inicio = texto.find_first_not_of(" \t\r\n", static_cast<std::size_t>(posicion));
    return inicio != std::string::npos && texto[inicio] != ';' && inicio + 1 < texto.size() &&
           texto[inicio + 1] != '\r' && texto[inicio + 1] != '\n';
}

// Runs the statements. True when none of them stopped the batch.
bool RecorrerLote(Ventana *ventana, int origen, std::string_view sentencia, const TextoDeLote &texto,
                  int primera, int ultima) {
    LineasSentencia lineas;
    const std::size_t seleccion = static_cast<std::size_t>(texto.hasta - texto.desde);
    for (std::string &linea : lineas)
        linea.reserve(origen == 0 ? std::max(2 * seleccion + 4, MinimoLinea) : LineaDialogo);
    PonerCursor(CursorEspera);
    int codigo = OrdenDesconocida;
    for (int posicion = texto.desde; posicion < texto.hasta;) {
        const bool cuenta = SeCuenta(texto.completo, posicion);
        if (EjecutarSentencia(origen, lineas, texto.hasta, posicion, sentencia, texto.completo, ventana,
                              primera, ultima, codigo) == 0)
            return false;
        Lote.NingunaSentenciaHecha = 0;
        if (cuenta) ++Lote.sentencias;
    }
    return true;
}

// The same with the places of the statements told.
void CorrerConLugares(Ventana *ventana, int origen, std::string_view sentencia, const TextoDeLote &texto,
                      int primera, int ultima) {
    const int hasta = origen == OrigenSeleccion ? texto.hasta : static_cast<int>(texto.completo.size());
    const TextoEnCurso anterior = EmpezarLugares(texto.completo, texto.desde, hasta);
    if (RecorrerLote(ventana, origen, sentencia, texto, primera, ultima)) {
        Lote.detenido = 0;
    } else {
        Lote.parada = LugarActual();
    }
    TerminarLugares(anterior);
}

} // namespace

void IniciarLote() {
    Lote = {};
}

int MensajeNumerado(Ventana *ventana, int punto, std::string_view texto) {
    MostrarMensaje(ventana, Formatear("Punto %d, ", punto).append(texto));
    return 0;
}

namespace {

void CorrerLote(Ventana *ventana, ControlTexto *control, int origen, std::string_view texto, int primera,
                int ultima) {
    ultima = FinDeCalculo(ultima);
    Evaluador.ventana = ventana;
    LimpiarEvaluador();
    Lote.NingunaSentenciaHecha = 1;
    Evaluador.PrimeraEval = primera;
    Evaluador.UltimaEval = ultima;
    Evaluador.UltimaCalculada = ultima;
    if (ArchivoTrabajo.TipoDatos >= SinTipoDatos)
        return MostrarMensaje(ventana, "Tipo de datos no válidos"_w);
    if (!AbrirPilaColumnas()) return MensajeSinMemoria(2001, 2002, ventana);
    TextoDeLote deLote{origen != 0 ? std::string(texto) : std::string(), 0, 1};
    if (origen != 0 || TomarSeleccion(ventana, control, deLote)) {
        CorrerConLugares(ventana, origen, texto, deLote, primera, ultima);
        PonerCursor(CursorFlecha);
    }
    CerrarPilaColumnas();
}

} // namespace

int ProcesarLote(Ventana *ventana, ControlTexto *control, int origen, std::string_view texto, int primera,
                 int ultima) {
    if (AntesDeCadaLote != nullptr) AntesDeCadaLote();
    Lote.detenido = 1;
    Lote.sentencias = 0;
    Lote.parada = {};
    Lote.finPorRegla = false;
    Lote.deDialogo = origen != OrigenSeleccion;
    OlvidarNotas();
    EmpezarTraza();
    CorrerLote(ventana, control, origen, texto, primera, ultima);
    TerminarTraza();
    if (DespuesDeCadaLote != nullptr) DespuesDeCadaLote();
    return 0;
}

int ProcesarSentencia(Ventana *ventana, std::string_view texto, int primera, int ultima) {
    ProcesarLote(ventana, nullptr, OrigenDialogo, texto, primera, ultima);
    return 1 - Lote.detenido;
}
