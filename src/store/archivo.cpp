// Start and reset of the work file.
#include "store/archivo.h"

#include "platform/campos_texto.h"
#include "platform/numeros.h"
#include "store/panel.h"
#include "store/periodos.h"

#include <algorithm>
#include <cstring>

TablaDeEcuaciones TablaEcuaciones;

void PonerTextoPeriodo(int fila, std::string_view texto) {
    PonerCampo(ArchivoTrabajo.TextosPeriodo[fila], texto, AnchoPeriodo);
    CabeceraArchivo &a = ArchivoTrabajo;
    a.ValoresPeriodo[fila] = LeerDecimal(a.TextosPeriodo[fila]);
    if (fila > a.PeriodosCrecientes) return;
    const bool crece = fila == 0 || a.ValoresPeriodo[fila] > a.ValoresPeriodo[fila - 1];
    a.PeriodosCrecientes = crece ? fila + 1 : fila;
}

std::string_view TextoPeriodo(int fila) {
    if (fila < 0 || fila >= MaxObservaciones) return {};
    return Recortado(ArchivoTrabajo.TextosPeriodo[fila]);
}

int FilaDeValorPeriodo(double valor, int desde, int hasta) {
    const double *valores = ArchivoTrabajo.ValoresPeriodo;
    const int inicio = std::clamp(desde, 0, MaxObservaciones);
    const int fin = std::clamp(hasta + 1, inicio, MaxObservaciones);
    const int ordenadas = std::clamp<int>(ArchivoTrabajo.PeriodosCrecientes, inicio, fin);
    const double *primera = std::lower_bound(valores + inicio, valores + ordenadas, valor);
    if (primera == valores + ordenadas || *primera != valor)
        primera = std::find(valores + ordenadas, valores + fin, valor);
    return primera == valores + fin ? -1 : static_cast<int>(primera - valores);
}

namespace {

// Empties the tables of observations; codes, labels and period texts become blank.
void VaciarTablas() {
    BorrarTodasLasSeries(true);
    for (int i = 0; i < MaxObservaciones; ++i) PonerTextoPeriodo(i, "");
    TablaEscalares.numero = 0;
    TablaMatrices.numero = 0;
    LimpiarLimitesMuestra();
    LimpiarBufferMatriz();
}

} // namespace

void IniciarArchivoTrabajo() {
    VaciarTablas();
    LiberarMatrices();
    CabeceraArchivo &a = ArchivoTrabajo;
    PonerCampo(a.NombreProyecto, "Proyec01", AnchoProyecto);
    a.TipoDatos = SinTipoDatos;
    PonerCampo(a.TextoIntervalo, "", AnchoIntervalo);
    a.NumObs = 0;
    a.ConEtiquetas = 0;
    std::memset(a.PrimeraObs, 0, sizeof a.PrimeraObs);
    std::memset(a.UltimaObs, 0, sizeof a.UltimaObs);
    for (auto &codigo : a.Codigos) codigo[0] = '\0'; // empty until the first reset
    TablaEscalares = {};
    TablaEcuaciones = {};
    LimpiarEdicionPanel();
    DescripcionPanel = EdicionPanel.panel;
    Muestra = {};
}

void VaciarArchivoTrabajo() {
    VaciarTablas();
    ConstruirPeriodos();
    RefrescarEditor();
}
