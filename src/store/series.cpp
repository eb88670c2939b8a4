// The table of series: lookups, slots, deletion and compaction.
#include "platform/campos_texto.h"
#include "store/archivo.h"
#include "store/codigo_buscado.h"

#include <algorithm>
#include <cstring>

CabeceraArchivo ArchivoTrabajo;
namespace {

bool EnBlanco(const Codigo &codigo) {
    return CadenaDeCaracter(codigo, ' ') == 1;
}

int BuscarEntre(std::string_view codigo, int cuantas) {
    static const CodigoBuscado Blanco = PrepararCodigo("");
    const CodigoBuscado buscado = PrepararCodigo(codigo);
    if (EsCodigo(Blanco.texto, buscado)) return -1; // a blank code is an empty slot, never a series
    for (int s = 0; s < cuantas; ++s)
        if (EsCodigo(ArchivoTrabajo.Codigos[s], buscado)) return s;
    return -1;
}

} // namespace

int BuscarSerie(std::string_view codigo) {
    return BuscarEntre(codigo, ArchivoTrabajo.NumSeries);
}

int BuscarSerieEnTabla(std::string_view codigo) {
    return BuscarEntre(codigo, MaxSeries);
}

bool CabeOtraSerie() {
    return ArchivoTrabajo.NumSeries <= TopeSeries;
}

int TomarSerie(std::string_view codigo) {
    const int propia = BuscarSerieEnTabla(codigo);
    if (propia >= 0) return propia;
    if (!CabeOtraSerie()) return -1;
    return ArchivoTrabajo.NumSeries++;
}

void LimpiarFilas(int serie, int desde, int hasta) {
    const int fin = std::min(hasta, ArchivoTrabajo.FilasEscritas[serie]); // behind it all is clear
    // Two loops: g++ 12 at -O1 writes the address in one table by that in the other when both are in one, then takes a routine
    // that does nothing else for one without effect, and drops its calls.
    for (int i = std::max(desde, 0); i < fin; ++i) ArchivoTrabajo.ValoresObs[i][serie] = 0.0;
    for (int i = std::max(desde, 0); i < fin; ++i) ArchivoTrabajo.PresenciaObs[i][serie] = 0;
}

void LimpiarColumna(int serie) {
    LimpiarFilas(serie, 0, MaxObservaciones);
    ArchivoTrabajo.FilasEscritas[serie] = 0;
}

void PonerCodigoSerie(int serie, std::string_view codigo) {
    PonerCampo(ArchivoTrabajo.Codigos[serie], codigo, AnchoCodigo);
}

void BorrarSerie(int serie) {
    PonerCodigoSerie(serie, "");
}

namespace {

// All 4,000 rows of a column go to another one, which loses what it had; the first is left empty.
void MoverColumna(int origen, int destino) {
    LimpiarColumna(destino);
    for (int i = 0; i < ArchivoTrabajo.FilasEscritas[origen]; ++i)
        PonerObservacion(i, destino, ArchivoTrabajo.ValoresObs[i][origen],
                         ArchivoTrabajo.PresenciaObs[i][origen]);
    LimpiarColumna(origen);
}

} // namespace

void CompactarSeries() {
    int destino = 0;
    for (int s = 0; s < MaxSeries; ++s) {
        if (EnBlanco(ArchivoTrabajo.Codigos[s])) continue;
        if (s != destino) {
            MoverColumna(s, destino);
            std::memcpy(ArchivoTrabajo.Codigos[destino], ArchivoTrabajo.Codigos[s], AnchoCodigo);
            ArchivoTrabajo.PrimeraObs[destino] = ArchivoTrabajo.PrimeraObs[s];
            ArchivoTrabajo.UltimaObs[destino] = ArchivoTrabajo.UltimaObs[s];
            BorrarSerie(s);
        }
        ++destino;
    }
    ArchivoTrabajo.NumSeries = static_cast<std::uint16_t>(destino);
}

void BorrarTodasLasSeries(bool etiquetas) {
    CabeceraArchivo &a = ArchivoTrabajo;
    const auto filas =
        static_cast<std::size_t>(*std::max_element(a.FilasEscritas, a.FilasEscritas + MaxSeries));
    std::memset(a.ValoresObs, 0, filas * sizeof a.ValoresObs[0]);
    std::memset(a.PresenciaObs, 0, filas * sizeof a.PresenciaObs[0]);
    std::memset(a.FilasEscritas, 0, sizeof a.FilasEscritas);
    for (int s = 0; s < MaxSeries; ++s) BorrarSerie(s);
    a.NumSeries = 0;
    for (int i = 0; etiquetas && i < MaxObservaciones; ++i) PonerCampo(a.EtiquetasObs[i], "", AnchoEtiqueta);
}

void EliminarSerie(int serie) {
    BorrarSerie(serie);
    LimpiarColumna(serie);
    CompactarSeries();
    RefrescarEditor();
}
