// The dialogs of the analysis.
#include "analysis/ventanas/dialogos_analisis.h"

#include "analysis/descriptivos.h"
#include "analysis/prediccion.h"
#include "analysis/transformaciones.h"
#include "charts/resultados/ventanas/dialogo_seleccion.h"
#include "charts/resultados/ventanas/lista_series.h"
#include "language/lote_sentencias.h"
#include "platform/qt/formulario.h"
#include "platform/qt/texto_qt.h"

#include "ui_prediccion.h"
#include "ui_transformaciones.h"

void DialogoPrediccion(Ventana *ventana, const DatosDialogo &) {
    DialogoConFormulario<Ui::PrediccionEvaluacion> d(ventana);
    MenuDecimales(d.dialogo, Lote.DecimalesSalida);
    d.AlAceptar([&] {
        ValoresPrediccion v;
        v.inicio = De1252Q(d.ui.inicio->text());
        v.fin = De1252Q(d.ui.fin->text());
        v.codigoPred = De1252Q(d.ui.codigoPred->text());
        v.codigoDtm = De1252Q(d.ui.codigoDtm->text());
        v.codigoDti = De1252Q(d.ui.codigoDti->text());
        v.modo = static_cast<ModosEvaluacion>(BotonElegido({d.ui.originales, d.ui.tasas, d.ui.incrementos}));
        AceptarPrediccion(d.ventana(), v);
        return false;
    });
    d.Ejecutar();
}

void DialogoDescriptivos(Ventana *ventana, const DatosDialogo &) {
    ElegirSeries(ventana, [](const EstadoSeleccion &seleccion, Ventana *dialogo) {
        AceptarDescriptivos(dialogo, seleccion.elegidas);
    });
}

void DialogoTransformacion(Ventana *ventana, const DatosDialogo &) {
    DialogoConFormulario<Ui::Transformaciones> d(ventana);
    LlenarSeries(*d.ui.series);
    d.AlAceptar([&] {
        ValoresTransformacion v;
        v.serie = SerieElegida(*d.ui.series);
        v.boxCox = d.ui.boxCox->isChecked();
        v.estacionales = d.ui.estacionales->isChecked();
        v.noEstacionales = d.ui.noEstacionales->isChecked();
        v.codigo = De1252Q(d.ui.codigo->text());
        v.lambda = De1252Q(d.ui.lambda->text());
        v.ordenEstacional = De1252Q(d.ui.ordenEstacional->text());
        v.ordenNoEstacional = De1252Q(d.ui.ordenNoEstacional->text());
        return AceptarTransformacion(d.ventana(), v) == 1;
    });
    d.Ejecutar();
}
