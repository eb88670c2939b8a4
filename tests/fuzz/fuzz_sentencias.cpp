// Any bytes as the text of the edit screen, processed whole over a small work file that starts anew each time.
#include "charts/graficos/grafico.h"
#include "charts/resultados/resultado.h"
#include "estimation/regresion.h"
#include "language/palabras.h"
#include "language/traza.h"
#include "platform/campos_texto.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <algorithm>
#include <cctype>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

namespace {

constexpr std::size_t MaxTexto = 4096;
constexpr int Filas = 12; // years 1990 to 2001

std::string Pantalla;

// No to every question; nothing is shown, but the texts must not hold a NUL.
Respuesta Caja(Ventana *, std::string_view texto, std::string_view titulo, Icono, Botones botones) {
    if (texto.find('\0') != std::string_view::npos || titulo.find('\0') != std::string_view::npos)
        std::abort();
    return botones == BotonesAceptar           ? RespuestaAceptar
           : botones == BotonesAceptarCancelar ? RespuestaCancelar
                                               : RespuestaNo;
}

void PintarEnElAire(Ventana *, Grafico &g) {
    std::vector<OrdenDibujo> ordenes;
    Superficie s = SuperficieGrabadora(ordenes, 1024, 768, 8, 16);
    PintarGrafico(s, g);
    ImprimirVentanaGrafico(nullptr, g);
}

const OperacionesPlataforma Muda = [] {
    OperacionesPlataforma o{};
    o.caja = Caja;
    o.cursor = [](Cursor) {};
    o.textoDeControl = [](ControlTexto *) { return Pantalla; };
    o.seleccionDeControl = [](ControlTexto *, int &desde, int &hasta) {
        desde = 0;
        hasta = static_cast<int>(Pantalla.size());
    };
    o.mostrarGrafico = PintarEnElAire;
    o.mostrarResultado = [](Ventana *ventana, const SalidaResultado &salida) {
        if (salida.graficos != nullptr) salida.graficos(ventana);
    };
    o.refrescarEditor = [] {};
    o.segundos = [] { return std::int32_t{1}; };
    return o;
}();

// Emptying all tables takes longer than most texts do: only what a text can have written is emptied.
void EmpezarDeNuevo() {
    static const bool Iniciado = [] {
        InstalarPlataforma(Muda);
        IniciarArchivoTrabajo();
        ArchivoTrabajo.TipoDatos = TipoAnual;
        PonerCampo(ArchivoTrabajo.TextoIntervalo, "1990#2001", AnchoIntervalo);
        VaciarArchivoTrabajo();
        return true;
    }();
    if (!Iniciado) std::abort();
    for (int s = 0; s < MaxSeries; ++s) {
        if (CadenaDeCaracter(ArchivoTrabajo.Codigos[s], ' ') == 1) continue;
        LimpiarColumna(s);
        BorrarSerie(s);
    }
    ArchivoTrabajo.NumSeries = 0;
    TablaEscalares = {};
    LiberarMatrices();
    LimpiarBufferMatriz();
    LimpiarLimitesMuestra();
    Muestra = {};
    IniciarProcedimientos();
}

void PonerDatos() {
    const char *const codigos[] = {"X", "Y", "Z"};
    for (const char *codigo : codigos) {
        const int s = TomarSerie(codigo);
        PonerCodigoSerie(s, codigo);
        for (int i = 0; i < Filas; ++i) {
            if (codigo[0] == 'Z' && i == 4) continue; // a missing value
            PonerObservacion(i, s, (i * 7 + codigo[0]) % 11 - 3.5, 1);
        }
    }
    const double datos[] = {2, 1, 0, 1, 3, 1, 0, 1, 4};
    GuardarMatriz("M", datos, 3, 3);
    GuardarMatriz("V", datos, 3, 1);
    PonerEscalar(nullptr, "A", 2);
    PonerEscalar(nullptr, "T", 1995);
    ActualizarMuestra();
}

// True when a MIENTRAS of the text, in capitals, is not of the form with a list, which always ends.
bool TieneMIENTRASSinLista(const std::string &texto) {
    constexpr std::string_view Palabra = "MIENTRAS", Lista = "ENUM";
    for (std::size_t i = texto.find(Palabra); i != std::string::npos; i = texto.find(Palabra, i + 1)) {
        if (i >= 3 && texto.compare(i - 3, 3, "FIN") == 0) continue;
        const std::size_t lista = std::min(texto.find_first_not_of(" (", i + Palabra.size()), texto.size());
        if (texto.compare(lista, Lista.size(), Lista) != 0) return true;
        const std::size_t igual = texto.find_first_not_of(' ', lista + Lista.size());
        if (igual == std::string::npos || texto[igual] != '=') return true;
    }
    return false;
}

// True for texts with a loop that may run for very long or for good, as loops of this language may: a MIENTRAS with a
// comparison; a REPITE with numbers of more than two figures; and a REPITE with fractions and a SI, which sets the counter back.
bool PuedeNoAcabar(const std::string &texto) {
    std::string mayusculas = texto;
    std::transform(mayusculas.begin(), mayusculas.end(), mayusculas.begin(),
                   [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
    const auto tiene = [&](const char *palabra) { return mayusculas.find(palabra) != std::string::npos; };
    if (TieneMIENTRASSinLista(mayusculas)) return true;
    if (!tiene("REPITE")) return false;
    if (tiene("SI") && (tiene(".") || tiene("TRIMESTRAL") || tiene("MENSUAL"))) return true;
    std::size_t figuras = 0;
    for (const char c : mayusculas) {
        figuras = c >= '0' && c <= '9' ? figuras + 1 : 0;
        if (figuras > 2) return true;
    }
    return false;
}

// Steps point to earlier ones, have an explanation, and a result or a failure.
void ComprobarRegistro() {
    for (std::size_t i = 0; i < Traza.pasos.size(); ++i) {
        const PasoTraza &p = Traza.pasos[i];
        const int lugar = static_cast<int>(i);
        if (p.explicacion.empty() || p.sentencia > lugar || p.nivel < 0) std::abort();
        if (!p.fallo.empty() && !p.resultado.valores.empty()) std::abort();
        for (const OperandoTraza &o : p.operandos)
            if (o.paso >= lugar) std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *datos, std::size_t n) {
    if (n > MaxTexto) return 0;
    Pantalla.assign(reinterpret_cast<const char *>(datos), n);
    std::replace(Pantalla.begin(), Pantalla.end(), '\0', '?');
    if (PuedeNoAcabar(Pantalla)) return 0;
    EmpezarDeNuevo();
    PonerDatos();
    PonerTraza(n % 2 == 1);
    ProcesarLote(nullptr, nullptr, 0, {}, Muestra.InicioMuestra, Muestra.FinMuestra);
    if (ArchivoTrabajo.NumSeries > MaxSeries || TablaEscalares.numero > MaxEscalares ||
        TablaMatrices.numero > MaxMatrices || Lote.detenido < 0 || Lote.detenido > 1)
        std::abort();
    if (Trazando()) ComprobarRegistro();
    for (int m = 0; m < MaxMatrices; ++m)
        if (TablaMatrices.EstadoBloque[m] == BloqueFijado) std::abort();
    return 0;
}
