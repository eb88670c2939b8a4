// The dialogs of the autocorrelation functions and of the normality test.
#include "hypothesis/ventanas/dialogos_autocorrelacion.h"

#include "charts/resultados/ventanas/lista_series.h"
#include "hypothesis/autocorrelacion.h"
#include "hypothesis/normalidad.h"
#include "language/lote_sentencias.h"
#include "platform/qt/formulario.h"
#include "platform/qt/texto_qt.h"

#include "ui_autocorrelacion.h"
#include "ui_normalidad.h"

namespace {

struct EntradaDeBanda {
    const char *texto;
    TiposDeBanda banda;
    bool deLaParcial;
};

// The band that grows with the lag is that of the estimated function alone.
constexpr EntradaDeBanda Bandas[] = {
    {"Uniforme", BandaUniforme, true}, {"Arma", BandaArma, false}, {"Sin banda", SinBanda, true}};

void LlenarBandas(QComboBox &bandas, int funcion) {
    for (const EntradaDeBanda &b : Bandas)
        if (funcion == FuncionEstimada || b.deLaParcial)
            bandas.addItem(QDe1252(b.texto), static_cast<int>(b.banda));
}

} // namespace

void DialogoAutocorrelacion(Ventana *ventana, const DatosDialogo &datos) {
    DialogoConFormulario<Ui::FuncionAutocorrelacion> d(ventana);
    const int funcion = datos.modo;
    d.dialogo.setWindowTitle(QDe1252(TituloDialogoAutocorrelacion(funcion)));
    d.ui.rotuloRetardos->setText(QDe1252(RotuloRetardos(funcion)));
    d.ui.retardos->setAccessibleName(d.ui.rotuloRetardos->text());
    d.ui.titulo->setText(QDe1252(ValoresAutocorrelacion().titulo)); // a form would lose the blank
    LlenarSeries(*d.ui.series);
    LlenarBandas(*d.ui.bandas, funcion);
    MenuDecimales(d.dialogo, Lote.DecimalesSalida);
    MenuAyuda(d.dialogo, PaginaAutocorrelacion);
    d.AlAceptar([&] {
        ValoresAutocorrelacion v;
        v.serie = SerieElegida(*d.ui.series);
        v.retardos = De1252Q(d.ui.retardos->text());
        v.conTitulo = d.ui.conTitulo->isChecked();
        v.titulo = De1252Q(d.ui.titulo->text());
        v.tituloArriba = d.ui.tituloArriba->isChecked();
        v.marcas = static_cast<MarcasIntervalos>(
            MarcasAlMedio + BotonElegido({d.ui.alMedio, d.ui.parteInferior, d.ui.sinMarca}));
        v.banda = static_cast<TiposDeBanda>(d.ui.bandas->currentData().toInt());
        AceptarAutocorrelacion(d.ventana(), funcion, v);
        return false;
    });
    d.Ejecutar();
}

void DialogoNormalidad(Ventana *ventana, const DatosDialogo &) {
    DialogoConFormulario<Ui::Normalidad> d(ventana);
    LlenarSeries(*d.ui.series);
    MenuDecimales(d.dialogo, Lote.DecimalesSalida);
    d.AlAceptar([&] {
        AceptarNormalidad(d.ventana(), SerieElegida(*d.ui.series));
        return false;
    });
    d.Ejecutar();
}
