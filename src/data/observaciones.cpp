// Deletion of an observation, and sorting of observations.
#include "data/observaciones.h"

#include "data/editor_series.h"
#include "data/intercambio.h"
#include "platform/campos_texto.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <algorithm>
#include <cstring>
#include <numeric>

namespace {

// A list line names the last series of its code; codes can't repeat once they were checked.
int BuscarUltimaSerie(std::string_view linea) {
    Codigo buscado;
    PonerCampo(buscado, Recortado(linea), AnchoCodigo);
    if (CadenaDeCaracter(buscado, ' ') == 1) return -1;
    for (int s = ArchivoTrabajo.NumSeries - 1; s >= 0; --s)
        if (std::memcmp(ArchivoTrabajo.Codigos[s], buscado, AnchoCodigo) == 0) return s;
    return -1;
}

// The order in which the exchange sort leaves the rows: for each i, each later j changes places with it when its value goes
// before. Which of equal values comes first hangs on the exchanges between them, so this is the very sequence of
// exchanges, over the keys and the numbers of the rows alone.
std::vector<int> OrdenPorIntercambios(int serie, FilasDeMuestra filas, bool descendente) {
    const auto n = static_cast<std::size_t>(filas.fin - filas.inicio) + 1;
    std::vector<int> orden(n);
    std::iota(orden.begin(), orden.end(), filas.inicio);
    std::vector<double> claves(n);
    for (std::size_t i = 0; i < n; ++i) claves[i] = ArchivoTrabajo.ValoresObs[orden[i]][serie];
    for (std::size_t i = 0; i + 1 < n; ++i) {
        for (std::size_t j = i + 1; j < n; ++j) {
            if (descendente ? !(claves[j] > claves[i]) : !(claves[j] < claves[i])) continue;
            std::swap(claves[i], claves[j]);
            std::swap(orden[i], orden[j]);
        }
    }
    return orden;
}

// Row `inicio` + i takes what row orden[i] held: the values of the series in use and, where they are on, the labels.
void ReordenarFilas(const std::vector<int> &orden, int inicio) {
    CabeceraArchivo &a = ArchivoTrabajo;
    const std::size_t series = a.NumSeries;
    std::vector<double> valores(orden.size() * series);
    std::vector<char> etiquetas(orden.size() * AnchoEtiqueta);
    for (std::size_t i = 0; i < orden.size(); ++i) {
        std::copy_n(a.ValoresObs[orden[i]], series, &valores[i * series]);
        std::copy_n(a.EtiquetasObs[orden[i]], AnchoEtiqueta, &etiquetas[i * AnchoEtiqueta]);
    }
    for (std::size_t i = 0; i < orden.size(); ++i) {
        const auto fila = static_cast<std::size_t>(inicio) + i;
        std::copy_n(&valores[i * series], series, a.ValoresObs[fila]);
        if (a.ConEtiquetas != 0)
            std::copy_n(&etiquetas[i * AnchoEtiqueta], AnchoEtiqueta, a.EtiquetasObs[fila]);
    } // A value from above can stand in any row of the sample now.
    for (int s = 0; s < a.NumSeries; ++s) MarcarFilas(s, inicio + static_cast<int>(orden.size()));
}

void QuitarFila(int observacion) {
    CabeceraArchivo &a = ArchivoTrabajo;
    constexpr int Ultima = MaxObservaciones - 1;
    const auto filas = static_cast<std::size_t>(Ultima - observacion);
    std::memmove(a.ValoresObs[observacion], a.ValoresObs[observacion + 1], filas * sizeof a.ValoresObs[0]);
    std::memmove(a.PresenciaObs[observacion], a.PresenciaObs[observacion + 1],
                 filas * sizeof a.PresenciaObs[0]);
    std::memmove(a.EtiquetasObs[observacion], a.EtiquetasObs[observacion + 1],
                 filas * sizeof a.EtiquetasObs[0]);
    std::memset(a.ValoresObs[Ultima], 0, sizeof a.ValoresObs[0]);
    std::memset(a.PresenciaObs[Ultima], 0, sizeof a.PresenciaObs[0]);
    RellenarCadena(a.EtiquetasObs[Ultima], ' ', AnchoEtiqueta - 1);
}

} // namespace

bool ConObservacionesLibres() {
    return ArchivoTrabajo.TipoDatos == TipoSinPeriodicidad;
}

bool EmpezarObservaciones(Ventana *ventana) {
    return ValidarYCompactar(ventana);
}

bool EliminarObservacion(Ventana *ventana, int observacion) {
    if (observacion < 0 || observacion >= MaxObservaciones) return false;
    if (MostrarCaja(ventana, "¿Está seguro de desear eliminar la presente observación?"_w, TituloAviso,
                    IconoAlto, BotonesAceptarCancelar) != RespuestaAceptar)
        return false;
    if (ArchivoTrabajo.NumObs > MaxObservaciones) return false;
    QuitarFila(observacion);
    return true;
}

std::vector<std::string> SeriesParaOrdenar() {
    std::vector<std::string> lineas;
    lineas.reserve(ArchivoTrabajo.NumSeries);
    for (int s = 0; s < ArchivoTrabajo.NumSeries; ++s) lineas.emplace_back(ArchivoTrabajo.Codigos[s]);
    return lineas;
}

FinesDeOrdenacion AceptarOrdenacion(Ventana *ventana, std::string_view serie, bool descendente) {
    const int clave = BuscarUltimaSerie(serie);
    if (clave < 0) {
        MensajeAviso(ventana, "Serie desconocida");
        return OrdenacionSigue;
    }
    PonerCursor(CursorEspera);
    ActualizarLimitesSeries();
    ActualizarMuestra();
    if (ArchivoTrabajo.NumObs > MaxObservaciones && Muestra.FinMuestra >= MaxObservaciones) {
        PonerCursor(CursorFlecha);
        MensajeAviso(ventana, "Elija una muestra más pequeña"_w);
        return OrdenacionRechazada;
    }
    // The end of the sample can lie behind the tables, where no series has a value beyond the first row.
    const FilasDeMuestra filas = FilasDelArchivo(Muestra.InicioMuestra, Muestra.FinMuestra);
    if (filas.inicio < filas.fin)
        ReordenarFilas(OrdenPorIntercambios(clave, filas, descendente), filas.inicio);
    PonerCursor(CursorFlecha);
    return OrdenacionHecha;
}
