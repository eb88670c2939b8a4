// The store operations: the top column of the stack becomes a series, a scalar or one observation.
#include "language/asignaciones.h"
#include "language/notas.h"
#include "platform/numeros.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <algorithm>

namespace {

constexpr int UltimaFila = MaxObservaciones - 1;

// With such a work file or such bounds every step of a formula does nothing and reports success.
bool SinEfecto() {
    return ArchivoTrabajo.NumObs > MaxObservaciones || Evaluador.PrimeraEval < 0 || Evaluador.UltimaEval < 0;
}

// A series can't bear the name of a matrix or a scalar. With nothing on the stack there is nothing to store.
bool Rechazada(const char *serie) {
    return BuscarMatriz(serie) >= 0 || BuscarEscalar(serie) >= 0 || Evaluador.profundidad < 1;
}

// Rows of the sample with their value and flag where there is one; all else of the 4,000 rows is cleared, values without
// a flag included, which a lag would read.
void CopiarColumna(int serie, int primera, int ultima) {
    const ColumnaPila &columna = ColumnaSuperior();
    CabeceraArchivo &a = ArchivoTrabajo;
    LimpiarFilas(serie, 0, primera);
    LimpiarFilas(serie, ultima + 1, MaxObservaciones);
    for (int i = primera; i <= ultima; ++i) {
        const bool hay = columna.presente[i] == 1;
        a.ValoresObs[i][serie] = hay ? columna.valor[i] : 0.0;
        a.PresenciaObs[i][serie] = hay ? 1 : 0;
    }
    a.FilasEscritas[serie] = std::max(ultima + 1, 0);
}

// A lag leaves the first rows of the work file without a value, whatever the sample; a lead the last rows of the
// sample. With several lags in the formula the last one read rules.
void LimpiarRetardo(int serie, int primera, int ultima) {
    const std::int64_t n = Evaluador.ValorRetardo;
    std::int64_t desde = 0;
    std::int64_t hasta = std::min<std::int64_t>(-n - 1, UltimaFila);
    if (n > 0) {
        desde = std::max<std::int64_t>(ultima - n + 1, primera);
        hasta = ultima;
    }
    LimpiarFilas(serie, static_cast<int>(desde), static_cast<int>(hasta) + 1);
}

int GuardarEnPeriodo(std::string_view periodo, bool fueraDeMuestra) {
    if (SinEfecto()) return 1;
    if (Rechazada(Evaluador.CodigoSerieDestino)) return 0;
    const int serie = BuscarSerie(Evaluador.CodigoSerieDestino);
    if (serie < 0) return 0;
    const int primera = std::min(Evaluador.PrimeraEval, UltimaFila);
    const int ultima = std::min(Evaluador.UltimaEval, UltimaFila);
    const double numero = LeerDecimal(periodo);
    int fila = FilaDeValorPeriodo(numero, primera, ultima);
    const int escalar = fila < 0 ? BuscarEscalar(periodo) : -1;
    if (escalar >= 0) fila = FilaDeValorPeriodo(TablaEscalares.registro[escalar].Valor, primera, ultima);
    if (fila < 0 && fueraDeMuestra) fila = FilaDeValorPeriodo(numero, 0, ArchivoTrabajo.NumObs - 1);
    if (fila < 0) {
        Anotar("El período no está en el archivo de trabajo: no ha cambiado ninguna observación"_w);
        return 1;
    }
    // The value is that of the first row of the bounds, for every row, and it is stored as present even where the
    // formula had it missing.
    PonerObservacion(fila, serie, ValorSuperior(), 1);
    RefrescarEditor();
    --Evaluador.profundidad;
    return 1;
}

} // namespace

int GuardarSerie() {
    if (SinEfecto()) return 1;
    if (Rechazada(Evaluador.CodigoSerieDestino)) return 0;
    const int serie = TomarSerie(Evaluador.CodigoSerieDestino);
    if (serie < 0) return 0;
    const int primera = std::min(Evaluador.PrimeraEval, UltimaFila);
    const int ultima = std::min(Evaluador.UltimaEval, UltimaFila);
    CopiarColumna(serie, primera, ultima);
    if (Evaluador.MarcaRetardo == 1) LimpiarRetardo(serie, primera, ultima);
    ArchivoTrabajo.PrimeraObs[serie] = static_cast<std::int16_t>(primera);
    ArchivoTrabajo.UltimaObs[serie] = static_cast<std::int16_t>(ultima);
    PonerCodigoSerie(serie, Evaluador.CodigoSerieDestino);
    RefrescarEditor();
    return 1;
}

int GuardarEscalar() {
    if (SinEfecto()) return 0;
    return PonerEscalar(Evaluador.ventana, Evaluador.CodigoEscalarDestino, ValorSuperior());
}

int GuardarObservacion(std::string_view periodo, Ventana *) {
    return GuardarEnPeriodo(periodo, true);
}

int GuardarObservacionMuestra(std::string_view periodo, Ventana *) {
    return GuardarEnPeriodo(periodo, false);
}
