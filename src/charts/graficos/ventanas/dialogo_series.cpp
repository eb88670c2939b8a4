// The dialogs in which the series of a chart are chosen.
#include "charts/graficos/ventanas/dialogo_series.h"

#include "charts/graficos/series_grafico.h"
#include "charts/graficos/ventanas/dialogos_opciones.h"
#include "charts/resultados/ventanas/listas_seleccion.h"
#include "language/lote_sentencias.h"
#include "platform/qt/formulario.h"
#include "platform/qt/impresora_qt.h"
#include "platform/qt/texto_qt.h"
#include "store/periodos.h"

#include "ui_eleccion_series.h"

void DialogoGraficosSeries(Ventana *ventana, const DatosDialogo &datos) {
    const auto modo = static_cast<ModosDeGraficos>(datos.modo);
    const bool dispersion = modo == GraficosDeDispersion;
    const int primera = Muestra.InicioMuestra, ultima = Muestra.FinMuestra;
    if (!IniciarEleccionDeSeries(ventana, modo, primera, ultima)) return;
    DialogoConFormulario<Ui::EleccionSeries> d(ventana);
    d.ui.textoX->setVisible(dispersion);
    d.ui.codigoX->setVisible(dispersion);
    EstadoSeleccion estado = IniciarSeleccion(SeleccionDeSeries);
    UnirListas(d, estado);
    d.dialogo.setWindowTitle(QDe1252(dispersion ? "Gráficos de dispersión"_w : "Gráficos temporales"_w));
    const ClasesDeGrafico clase = dispersion ? GraficoDispersion : GraficoSeries;
    const auto codigoX = [&] { return De1252Q(d.ui.codigoX->text()); };
    EntradaDeMenu(d.dialogo, "&Intervalos y títulos"_w,
                  [&] { DialogoIntervalos(d.ventana(), clase, OpcionesDeSeries); });
    EntradaDeMenu(d.dialogo, "&Formas y colores", [&] {
        OpcionesDeSeries.series = estado.elegidas;
        DialogoFormas(d.ventana(), clase, OpcionesDeSeries, estado.elegidas);
    });
    MenuDecimales(d.dialogo, Lote.DecimalesSalida);
    EntradaDeMenu(d.dialogo, "I&mprimir",
                  [&] { ImprimirEleccionDeSeries(d.ventana(), modo, estado, codigoX(), primera, ultima); });
    MenuAyuda(d.dialogo, PaginaGraficos);
    d.AlAceptar([&] {
        AceptarEleccionDeSeries(d.ventana(), modo, estado, codigoX(), primera, ultima);
        return false; // another try
    });
    PonerNotaDeImpresion(d.dialogo);
    d.Ejecutar();
}
