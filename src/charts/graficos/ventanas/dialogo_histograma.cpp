// The dialog "HISTOGRAMA".
#include "charts/graficos/ventanas/dialogo_histograma.h"

#include "charts/graficos/histograma.h"
#include "charts/resultados/seleccion.h"
#include "language/lote_sentencias.h"
#include "platform/qt/formulario.h"
#include "platform/qt/texto_qt.h"
#include "store/periodos.h"

#include "ui_histograma.h"

namespace {

using CamposLimites = std::array<QLineEdit *, CamposDeLimites>;

CamposLimites Limites(const Ui::DialogoDeHistograma &ui) {
    return {ui.limite0, ui.limite1, ui.limite2, ui.limite3, ui.limite4,
            ui.limite5, ui.limite6, ui.limite7, ui.limite8, ui.limite9};
}

ValoresHistograma Leer(const Ui::DialogoDeHistograma &ui) {
    ValoresHistograma v;
    const int fila = FilaElegida(*ui.series);
    if (fila >= 0) v.serie = De1252Q(ui.series->item(fila)->text());
    v.modo = static_cast<ModosDeClases>(std::max(BotonElegido({ui.modo0, ui.modo1, ui.modo2}), 0));
    v.minimo = De1252Q(ui.minimo->text());
    v.maximo = De1252Q(ui.maximo->text());
    v.intervalos = De1252Q(ui.intervalos->text());
    const CamposLimites campos = Limites(ui);
    for (std::size_t i = 0; i < campos.size(); ++i) v.limites[i] = De1252Q(campos[i]->text());
    v.divisiones = De1252Q(ui.divisiones->text());
    v.minYDefecto = ui.minYDefecto->isChecked();
    v.maxYDefecto = ui.maxYDefecto->isChecked();
    v.minY = De1252Q(ui.minY->text());
    v.maxY = De1252Q(ui.maxY->text());
    v.conTitulo = ui.conTitulo->isChecked();
    v.tituloArriba = ui.tituloArriba->isChecked();
    v.titulo = De1252Q(ui.titulo->text());
    return v;
}

// Fields that belong to a button are for use while it is checked.
void SoloCon(QRadioButton &boton, const std::vector<QWidget *> &campos) {
    for (QWidget *campo : campos) {
        campo->setEnabled(boton.isChecked());
        QObject::connect(&boton, &QRadioButton::toggled, campo, &QWidget::setEnabled);
    }
}

} // namespace

void DialogoHistograma(Ventana *ventana, const DatosDialogo &) {
    DialogoConFormulario<Ui::DialogoDeHistograma> d(ventana);
    const ValoresHistograma inicial;
    for (const std::string &codigo : IniciarSeleccion(SeleccionDeSeries).disponibles)
        d.ui.series->addItem(QDe1252(codigo));
    d.ui.divisiones->setText(QDe1252(inicial.divisiones));
    d.ui.titulo->setText(QDe1252(inicial.titulo));
    SoloCon(*d.ui.modo1, {d.ui.minimo, d.ui.maximo, d.ui.intervalos});
    const CamposLimites campos = Limites(d.ui);
    SoloCon(*d.ui.modo2, {campos.begin(), campos.end()});
    SoloCon(*d.ui.minYOtros, {d.ui.minY});
    SoloCon(*d.ui.maxYOtros, {d.ui.maxY});
    MenuDecimales(d.dialogo, Lote.DecimalesSalida);
    MenuAyuda(d.dialogo, PaginaHistograma);
    d.AlAceptar([&] {
        AceptarHistograma(d.ventana(), Leer(d.ui), Muestra.InicioMuestra, Muestra.FinMuestra);
        return false;
    });
    d.Ejecutar();
}
