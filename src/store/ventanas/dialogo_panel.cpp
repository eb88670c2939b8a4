// The dialogs of panel data: they carry values to the routines of store/panel.h and show its lists.
#include "store/ventanas/dialogo_panel.h"

#include "platform/qt/formulario.h"
#include "platform/qt/texto_qt.h"
#include "store/panel.h"

#include "ui_panel.h"
#include "ui_panel_constante.h"
#include "ui_panel_etiquetas.h"
#include "ui_panel_individuos.h"
#include "ui_panel_periodos.h"

#include <algorithm>

namespace {

void DialogoPanelConstante(Ventana *ventana) {
    DialogoConFormulario<Ui::PanelConstante> d(ventana);
    const DescripcionDePanel &panel = EdicionPanel.panel;
    QRadioButton *const botones[] = {d.ui.anual, d.ui.trimestral, d.ui.mensual};
    if (panel.NumEntradas > 0) d.ui.individuos->setText(QString::number(panel.NumEntradas));
    botones[std::clamp(panel.TipoPeriodoPanel, 1, 3) - 1]->setChecked(true);
    d.AlAceptar([&] {
        int tipo = TipoAnual;
        for (int t = 0; t < 3; ++t)
            if (botones[t]->isChecked()) tipo = t + 1;
        return AceptarPanelConstante(d.ventana(), De1252Q(d.ui.individuos->text()), tipo, De1252Q(d.ui.inicio->text()),
                                     De1252Q(d.ui.fin->text())) == 1;
    });
    d.Ejecutar();
}

void DialogoPanelPeriodos(Ventana *ventana) {
    DialogoConFormulario<Ui::PanelPeriodos> d(ventana);
    const auto mostrar = [&] {
        d.ui.lista->clear();
        for (int i = 0; i < EdicionPanel.panel.NumEntradas; ++i) {
            const EntradaPeriodoPanel &e = EdicionPanel.panel.periodos[i];
            d.ui.lista->addItem(QStringLiteral("%1   %2").arg(QDe1252(e.periodo)).arg(e.individuos));
        }
    };
    mostrar();
    QObject::connect(d.ui.anadir, &QPushButton::clicked, &d.dialogo, [&] {
        if (AnadirPeriodoPanel(d.ventana(), De1252Q(d.ui.periodo->text()), De1252Q(d.ui.individuos->text())) == 0) return;
        d.ui.periodo->clear();
        d.ui.individuos->clear();
        d.ui.periodo->setFocus();
        mostrar();
    });
    QObject::connect(d.ui.eliminar, &QPushButton::clicked, &d.dialogo, [&] {
        if (d.ui.lista->currentRow() < 0) return;
        QuitarPeriodoPanel(d.ui.lista->currentRow());
        mostrar();
    });
    d.AlAceptar();
    d.Ejecutar();
}

void DialogoPanelIndividuos(Ventana *ventana) {
    DialogoConFormulario<Ui::PanelIndividuos> d(ventana);
    const auto mostrarPeriodos = [&] {
        d.ui.periodos->clear();
        const int i = d.ui.individuos->currentRow();
        if (i < 0) return;
        const EntradaIndividuoPanel &e = EdicionPanel.panel.individuos[i];
        for (int p = 0; p < e.numPeriodos; ++p) d.ui.periodos->addItem(QDe1252(e.periodos[p]));
    };
    const auto mostrar = [&](int elegido) {
        d.ui.individuos->clear();
        for (int i = 0; i < EdicionPanel.panel.NumEntradas; ++i)
            d.ui.individuos->addItem(QString::number(EdicionPanel.panel.individuos[i].orden));
        d.ui.individuos->setCurrentRow(elegido);
        mostrarPeriodos();
    };
    mostrar(EdicionPanel.panel.NumEntradas > 0 ? 0 : -1);
    QObject::connect(d.ui.individuos, &QListWidget::currentRowChanged, &d.dialogo, [&] { mostrarPeriodos(); });
    QObject::connect(d.ui.anadirIndividuo, &QPushButton::clicked, &d.dialogo, [&] {
        const int i = AnadirIndividuoPanel(d.ventana(), De1252Q(d.ui.orden->text()));
        if (i < 0) return;
        d.ui.orden->clear();
        mostrar(i);
        d.ui.periodo->setFocus();
    });
    QObject::connect(d.ui.eliminarIndividuo, &QPushButton::clicked, &d.dialogo, [&] {
        if (d.ui.individuos->currentRow() < 0) return;
        QuitarIndividuoPanel(d.ui.individuos->currentRow());
        mostrar(-1);
    });
    QObject::connect(d.ui.anadirPeriodo, &QPushButton::clicked, &d.dialogo, [&] {
        const int i = d.ui.individuos->currentRow();
        if (i < 0 || AnadirPeriodoIndividuo(d.ventana(), i, De1252Q(d.ui.periodo->text())) == 0) return;
        d.ui.periodo->clear();
        d.ui.periodo->setFocus();
        mostrarPeriodos();
    });
    QObject::connect(d.ui.eliminarPeriodo, &QPushButton::clicked, &d.dialogo, [&] {
        const int i = d.ui.individuos->currentRow();
        if (i < 0 || d.ui.periodos->currentRow() < 0) return;
        QuitarPeriodoIndividuo(i, d.ui.periodos->currentRow());
        mostrarPeriodos();
    });
    d.AlAceptar();
    d.Ejecutar();
}

void DialogoPanelEtiquetas(Ventana *ventana) {
    DialogoConFormulario<Ui::PanelEtiquetas> d(ventana);
    for (int i = 0; i < MaxIndividuosEtiqueta; ++i) d.ui.lista->addItem(QDe1252(LineaEtiqueta(i)));
    QObject::connect(d.ui.anadir, &QPushButton::clicked, &d.dialogo, [&] {
        const std::string orden = De1252Q(d.ui.orden->text());
        if (PonerEtiquetaIndividuo(d.ventana(), orden, De1252Q(d.ui.etiqueta->text())) == 0) return;
        for (int i = 0; i < MaxIndividuosEtiqueta; ++i) d.ui.lista->item(i)->setText(QDe1252(LineaEtiqueta(i)));
        d.ui.orden->clear();
        d.ui.etiqueta->clear();
        d.ui.orden->setFocus();
    });
    // A line that is chosen gives its label out for editing. By a click or Enter, so that the keys can walk the list.
    QObject::connect(d.ui.lista, &QListWidget::itemActivated, &d.dialogo, [&](QListWidgetItem *linea) {
        const int i = d.ui.lista->row(linea);
        d.ui.orden->setText(QString::number(i + 1));
        d.ui.etiqueta->setText(QDe1252(SacarEtiquetaIndividuo(i)));
        linea->setText(QDe1252(LineaEtiqueta(i)));
        d.ui.etiqueta->setFocus();
    });
    QObject::connect(d.ui.lista, &QListWidget::itemClicked, d.ui.lista, &QListWidget::itemActivated);
    d.AlAceptar();
    d.Ejecutar();
}

} // namespace

bool DialogoPanel(Ventana *ventana, PropuestaTipoDatos &propuesta) {
    DialogoConFormulario<Ui::DialogoDePanel> d(ventana);
    AbrirEdicionPanel();
    const DescripcionDePanel &panel = EdicionPanel.panel;
    (panel.PrimerConcepto == PeriodoPrimero ? d.ui.periodoPrimero : d.ui.individuoPrimero)->setChecked(true);
    (panel.FormaPanel == PanelConstante ? d.ui.constante : d.ui.variable)->setChecked(true);
    d.ui.etiquetas->setChecked(propuesta.etiquetas);
    const auto elegir = [&] {
        ElegirFormaPanel(d.ui.constante->isChecked() ? PanelConstante : PanelVariable,
                         d.ui.periodoPrimero->isChecked() ? PeriodoPrimero : IndividuoPrimero);
    };
    for (QRadioButton *b : {d.ui.periodoPrimero, d.ui.constante})
        QObject::connect(b, &QRadioButton::toggled, &d.dialogo, elegir);
    QObject::connect(d.ui.introducirPeriodos, &QPushButton::clicked, &d.dialogo, [&] {
        if (panel.FormaPanel == PanelConstante) {
            DialogoPanelConstante(d.ventana());
        } else if (panel.PrimerConcepto == PeriodoPrimero) {
            DialogoPanelPeriodos(d.ventana());
        } else {
            DialogoPanelIndividuos(d.ventana());
        }
    });
    QObject::connect(d.ui.introducirEtiquetas, &QPushButton::clicked, &d.dialogo,
                     [&] { DialogoPanelEtiquetas(d.ventana()); });
    d.AlAceptar([&] {
        propuesta.etiquetas = d.ui.etiquetas->isChecked();
        return AceptarDialogoDelTipo(d.ventana(), propuesta) == 1;
    });
    return d.Ejecutar();
}
