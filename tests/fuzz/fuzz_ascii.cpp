// Any bytes as an ASCII file: the first ones choose the options, the rest is the content.
#include "data/intercambio.h"
#include "platform/plataforma.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

namespace {

constexpr std::size_t BytesDeOpciones = 8;
constexpr std::size_t BytesDeFila = 4; // of the table of the fixed format

// Nobody answers and nothing is shown.
const OperacionesPlataforma Muda = [] {
    OperacionesPlataforma o{};
    o.caja = [](Ventana *, std::string_view, std::string_view, Icono, Botones) { return RespuestaAceptar; };
    o.cursor = [](Cursor) {};
    o.refrescarEditor = [] {};
    return o;
}();

void Comprobar(bool cierto) {
    if (!cierto) std::abort();
}

void PrepararArchivo(unsigned tipo, unsigned muestra) {
    // Emptying 400,000 values takes longer than most imports do, and they change no decision of the import.
    static const bool Iniciado = [] {
        IniciarArchivoTrabajo();
        return true;
    }();
    Comprobar(Iniciado);
    for (int s = 0; s < MaxSeries; ++s) BorrarSerie(s);
    ArchivoTrabajo.TipoDatos = static_cast<std::int16_t>(tipo);
    ArchivoTrabajo.ConEtiquetas = 1;
    ArchivoTrabajo.NumObs = muestra % 2 != 0 ? MaxObservaciones : 12;
    DescripcionPanel.PrimerConcepto = muestra % 4 < 2 ? PeriodoPrimero : IndividuoPrimero;
    for (int i = 0; i < 12; ++i) PonerTextoPeriodo(i, Formatear("%d-%d", 1990 + i, i % 3));
    static constexpr int Bordes[][2] = {{0, 11},      {3, 7},  {0, 100000}, {11, 12},
                                        {3999, 3999}, {-1, 2}, {5, 4},      {0, 3999}};
    Muestra.InicioMuestra = Bordes[muestra / 4 % 8][0];
    Muestra.FinMuestra = Bordes[muestra / 4 % 8][1];
}

// Rows from the content's first bytes, through the same door as the dialog's, then the table read back as its OK does.
void PrepararFijo(OpcionesIntercambio &opciones, std::string_view &resto, unsigned filas) {
    TablaCampos = {};
    for (unsigned f = 0; f < filas && resto.size() >= BytesDeFila; ++f, resto.remove_prefix(BytesDeFila)) {
        const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(resto[i]); };
        static constexpr const char *Codigos[] = {"DENO", "PERI", "INDI", "X", "A-B"};
        const unsigned cual = byte(1) % 8u;
        EdicionCampo fila = {cual < 5 ? Codigos[cual] : Formatear("S%u", f),
                             std::string(1, "ANPINNNn"[byte(0) % 8]), Formatear("%u", byte(2) * 4u),
                             std::string(resto.substr(3, 1))};
        fila.longitud = Formatear("%u", byte(3) % 40u);
        AnadirCampo(nullptr, true, fila);
    }
    AceptarFormatoFijo(nullptr, opciones.DecimalesConComas != 0, opciones);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *datos, std::size_t n) {
    if (n < BytesDeOpciones) return 0;
    InstalarPlataforma(Muda);
    const std::uint8_t *const o = datos;
    PrepararArchivo(o[0] % 5, o[1]);
    ArchivoTrabajo.NumSeries =
        static_cast<std::uint16_t>(o[2] % 16 == 15 ? o[2] % (MaxSeries + 1) : o[2] % 3);

    const ValoresFormatoVariable valores = {
        .separador = static_cast<EleccionesSeparador>(o[3] % 3),
        .otroSeparador = std::string(1, static_cast<char>(o[4])),
        .delimitador = static_cast<EleccionesDelimitador>(o[3] / 3 % 3),
        .otroDelimitador = std::string(1, static_cast<char>(o[5])),
        .delimitadasSoloEtiquetas = (o[6] & 1) != 0,
        .primerRegistroCodigos = (o[6] & 2) != 0,
        .primerCampoEtiquetas = (o[6] & 4) != 0,
        .decimalesConComas = (o[6] & 8) != 0,
        .camposPanel = (o[6] & 16) != 0,
        .tercerCampoEtiquetas = (o[6] & 32) != 0,
    };
    OpcionesIntercambio opciones;
    opciones.Importando = 1;
    opciones.SustituirSeries = (o[6] & 64) != 0 ? 1 : 0;
    AceptarFormatoVariable(valores, opciones);
    std::string_view resto(reinterpret_cast<const char *>(datos) + BytesDeOpciones, n - BytesDeOpciones);
    if ((o[6] & 128) != 0) PrepararFijo(opciones, resto, o[7] % (MaxCamposFijos + 4));

    ImportarTexto(opciones, Texto1252DeArchivo(resto), Muestra.InicioMuestra, Muestra.FinMuestra);

    // The store is sound, and what came in goes out again.
    Comprobar(ArchivoTrabajo.NumSeries <= MaxSeries);
    for (int s = 0; s < ArchivoTrabajo.NumSeries; ++s)
        Comprobar(ArchivoTrabajo.PrimeraObs[s] >= 0 && ArchivoTrabajo.UltimaObs[s] < MaxObservaciones &&
                  ArchivoTrabajo.PrimeraObs[s] <= ArchivoTrabajo.UltimaObs[s]);
    for (const auto &codigo : ArchivoTrabajo.Codigos) Comprobar(codigo[AnchoCodigo - 1] == '\0');
    for (const auto &etiqueta : ArchivoTrabajo.EtiquetasObs) Comprobar(etiqueta[AnchoEtiqueta - 1] == '\0');
    for (const auto &periodo : ArchivoTrabajo.TextosPeriodo) Comprobar(periodo[AnchoPeriodo - 1] == '\0');
    const int fin = Muestra.FinMuestra < 64 ? Muestra.FinMuestra : 64;
    TextoDeExportacion(opciones, Muestra.InicioMuestra, fin, static_cast<int>(o[7]) - 8);
    return 0;
}
