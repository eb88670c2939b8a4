// The desktop: its windows, its printer, and every dialog of the program.
#include "shell/ventanas/escritorio.h"

#include "analysis/ventanas/dialogos_analisis.h"
#include "charts/graficos/regresion_grafico.h"
#include "charts/graficos/ventanas/dialogo_histograma.h"
#include "charts/graficos/ventanas/dialogo_series.h"
#include "charts/graficos/ventanas/ventana_grafico_qt.h"
#include "charts/resultados/ventanas/dialogo_seleccion.h"
#include "charts/resultados/ventanas/ventana_resultado_qt.h"
#include "charts/resultados/ventanas/ventana_traza.h"
#include "data/ventanas/dialogos_datos.h"
#include "data/ventanas/ventana_editor.h"
#include "estimation/ventanas/dialogo_estimacion.h"
#include "hypothesis/ventanas/dialogos_autocorrelacion.h"
#include "hypothesis/ventanas/dialogos_contrastes.h"
#include "language/lote_sentencias.h"
#include "platform/qt/dialogo_decimales.h"
#include "platform/qt/impresora_qt.h"
#include "shell/registro.h"
#include "shell/ventanas/dialogos.h"
#include "shell/ventanas/ventana_principal.h"
#include "store/ventanas/dialogo_tipo_datos.h"

namespace {

void DialogoDecimalesDeSalida(Ventana *ventana, const DatosDialogo &) {
    DialogoDecimales(Lote.DecimalesSalida, ventana);
}

void DialogoDeSeleccion(Ventana *ventana, const DatosDialogo &datos) {
    DialogoSeleccion(ventana, static_cast<ModosSeleccion>(datos.modo));
}

// The charts that the estimation dialogs ask for.
template <ClasesDeGrafico clase> void GraficoDeRegresion(Ventana *ventana, const DatosDialogo &) {
    AbrirGraficoDeRegresion(ventana, clase);
}

constexpr FilaDeDialogo Dialogos[] = {
    {Dialogo::TipoDatos, ElegirTipoDatos},
    {Dialogo::Muestra, DialogoMuestra},
    {Dialogo::MuestraActual, DialogoMuestraActual},
    {Dialogo::Lista, DialogoLista},
    {Dialogo::UltimaRegresion, DialogoUltimaRegresion},
    {Dialogo::NoEnsamblada, DialogoNoEnsamblada},
    {Dialogo::GraficosSeries, DialogoGraficosSeries},
    {Dialogo::Histograma, DialogoHistograma},
    {Dialogo::Ayuda, DialogoAyuda},
    {Dialogo::Decimales, DialogoDecimalesDeSalida},
    {Dialogo::Seleccion, DialogoDeSeleccion},
    {Dialogo::Intercambio, DialogoIntercambio},
    {Dialogo::OrdenarSeries, DialogoOrdenarSeries},
    {Dialogo::Autocorrelacion, DialogoAutocorrelacion},
    {Dialogo::Normalidad, DialogoNormalidad},
    {Dialogo::Prediccion, DialogoPrediccion},
    {Dialogo::Descriptivos, DialogoDescriptivos},
    {Dialogo::Transformacion, DialogoTransformacion},
    {Dialogo::MC, DialogoMC},
    {Dialogo::MCP, DialogoMCP},
    {Dialogo::GraficoValores, GraficoDeRegresion<GraficoValores>},
    {Dialogo::GraficoResiduos, GraficoDeRegresion<GraficoResiduos>},
    {Dialogo::HipotesisNula, DialogoHipotesisNula},
    {Dialogo::ModeloRestringido, DialogoModeloRestringido},
    {Dialogo::GoldfeldQuandt, DialogoGoldfeldQuandt},
    {Dialogo::White, DialogoWhite},
    {Dialogo::Rangos, DialogoRangos},
};

} // namespace

std::span<const FilaDeDialogo> TablaDeDialogos() {
    return Dialogos;
}

void InstalarVentanas() {
    InstalarPlataformaQt({MostrarResultadoQt, MostrarGraficoQt, Dialogos, RefrescarEditorQt, NotaEnPantalla});
    RegistrarPlataforma();
}

void PrepararEscritorio() {
    InstalarVentanas();
    InstalarImpresoraQt();
    InstalarOperacionesEscritorio();
    IniciarVentanaTraza();
}
