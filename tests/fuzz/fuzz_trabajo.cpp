// Any bytes as a work file. An input that begins with an even byte is a list of changes to a good file, four bytes each
// (three for the place, one that is mixed into the byte there), since bytes at random hardly ever pass the header; behind an
// odd byte stands a file of its own.
#include "data/fichero_trabajo.h"
#include "data/intercambio.h"
#include "platform/archivos.h"
#include "platform/campos_texto.h"
#include "platform/plataforma.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <string>
#include <sys/mman.h>
#include <unistd.h>

namespace {

const OperacionesPlataforma Muda = [] {
    OperacionesPlataforma o{};
    o.caja = [](Ventana *, std::string_view, std::string_view, Icono, Botones) { return RespuestaAceptar; };
    return o;
}();

void Comprobar(bool cierto) {
    if (!cierto) std::abort();
}

// A work file in which every table has rows.
std::string FicheroBueno() {
    IniciarArchivoTrabajo();
    CabeceraArchivo &a = ArchivoTrabajo;
    DescripcionDePanel &p = DescripcionPanel;
    p.FormaPanel = PanelVariable;
    p.PrimerConcepto = IndividuoPrimero;
    p.NumEntradas = 2;
    for (int e = 0; e < 2; ++e) {
        p.individuos[e].orden = e + 1;
        p.individuos[e].numPeriodos = 2;
        for (int t = 0; t < 2; ++t) PonerCampo(p.individuos[e].periodos[t], t == 0 ? "1990" : "1991", 10);
    }
    a.TipoDatos = TipoPanel;
    a.ConEtiquetas = 1;
    VaciarArchivoTrabajo();
    for (int s = 0; s < 3; ++s) {
        PonerCodigoSerie(s, std::string(1, static_cast<char>('A' + s)));
        for (int i = 0; i < a.NumObs; ++i) PonerObservacion(i, s, i == 2 ? -0.0 : i + 0.5, i == 1 ? 0 : 1);
    }
    a.NumSeries = 3;
    const double elementos[] = {1, 2, 3, 4, 5, 6};
    GuardarMatriz("M", elementos, 2, 3);
    GuardarMatriz("N", elementos, 1, 1);
    PonerEscalar(nullptr, "E", 0.1);
    TablaEcuaciones.numero = 1;
    std::strcpy(TablaEcuaciones.Codigos[0], "EC");
    std::strcpy(TablaEcuaciones.TextosEcuacion[0], "A 1 B");
    const std::string ruta =
        (std::filesystem::temp_directory_path() / ("fuzz_trabajo" + std::to_string(getpid()))).string();
    std::string bytes;
    Comprobar(EscribirFicheroTrabajo(ruta) && LeerArchivo(ruta, bytes));
    std::filesystem::remove(ruta);
    return bytes;
}

std::string ConCambios(std::string bytes, const std::uint8_t *datos, std::size_t n) {
    for (; n >= 4; datos += 4, n -= 4) {
        const std::size_t lugar =
            (std::size_t{datos[0]} << 16 | std::size_t{datos[1]} << 8 | datos[2]) % bytes.size();
        bytes[lugar] = static_cast<char>(bytes[lugar] ^ datos[3]);
    }
    return bytes;
}

// What everybody relies on who reads the tables.
void ComprobarTablas() {
    const CabeceraArchivo &a = ArchivoTrabajo;
    Comprobar(a.NumObs >= 1 && a.NumObs <= MaxObservaciones && a.NumSeries <= MaxSeries);
    Comprobar(a.TipoDatos >= TipoSinPeriodicidad && a.TipoDatos <= TipoPanel);
    for (int s = 0; s < MaxSeries; ++s) {
        Comprobar(strnlen(a.Codigos[s], AnchoCodigo) == AnchoCodigo - 1);
        Comprobar(a.PrimeraObs[s] >= 0 && a.PrimeraObs[s] < MaxObservaciones);
        Comprobar(a.UltimaObs[s] >= 0 && a.UltimaObs[s] < MaxObservaciones);
        Comprobar(a.FilasEscritas[s] >= 0 && a.FilasEscritas[s] <= MaxObservaciones);
    }
    for (const auto &etiqueta : a.EtiquetasObs) Comprobar(etiqueta[AnchoEtiqueta - 1] == '\0');
    for (const auto &periodo : a.TextosPeriodo) Comprobar(periodo[AnchoPeriodo - 1] == '\0');
    Comprobar(TablaMatrices.numero <= MaxMatrices && TablaEscalares.numero <= MaxEscalares &&
              TablaEcuaciones.numero <= MaxEcuaciones);
    for (int m = 0; m < TablaMatrices.numero; ++m) {
        const RegistroMatriz &r = TablaMatrices.registro[m];
        Comprobar(r.Filas >= 0 && r.Columnas >= 0 && r.Filas * r.Columnas <= TablaMatrices.capacidad[m]);
    }
    const int entradas = DescripcionPanel.NumEntradas;
    Comprobar(DescripcionPanel.FormaPanel == PanelConstante || entradas <= MaxPeriodosPanel);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *datos, std::size_t n) {
    InstalarPlataforma(Muda);
    static const std::string Bueno = FicheroBueno();
    if (n == 0) return 0;
    const std::string bytes = datos[0] % 2 == 0
                                  ? ConCambios(Bueno, datos + 1, n - 1)
                                  : std::string(reinterpret_cast<const char *>(datos) + 1, n - 1);
    // A file that is never on a disk.
    const int f = memfd_create("trabajo", MFD_CLOEXEC);
    Comprobar(f >= 0 && write(f, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size()));
    const bool leido = LeerFicheroTrabajo("/proc/self/fd/" + std::to_string(f)) == TablasLeidas;
    close(f);
    Comprobar(bytes != Bueno || leido);
    ComprobarTablas(); // a file that was refused has left what was there
    if (leido) {
        ActualizarMuestra();
        ActualizarLimitesSeries();
        TextoDeExportacion(OpcionesIntercambio{}, Muestra.InicioMuestra, Muestra.FinMuestra, 6);
        VaciarArchivoTrabajo(); // the panel and the range of periods are read anew
    }
    return 0;
}
