// The dialogs of panel data: they carry values to the routines of store/panel.h and show its lists.
#include "store/ventanas/dialogo_panel.h"

#include "platform/qt/formulario.h"
#include "platform/qt/superficie_qt.h"
#include "platform/qt/texto_qt.h"
#include "store/panel.h"

#include "ui_panel.h"
#include "ui_panel_constante.h"
#include "ui_panel_etiquetas.h"
#include "ui_panel_individuos.h"
#include "ui_panel_periodos.h"

#include <QLineEdit>

#include <algorithm>
#include <initializer_list>
#include <memory>

namespace {

// Runs a dialog that edits the copy as it goes: leaving it by another way than OK takes its changes back.
template <class Dialogo> void EjecutarSobreCopia(Dialogo &d) {
    const auto antes = std::make_unique<EdicionDePanel>(EdicionPanel);
    if (!d.Ejecutar()) EdicionPanel = *antes;
}

// Enter behind what was typed means the entry: as the OK of the dialog it would lose it. True when it was this.
bool AnadirLoEscrito(std::initializer_list<QLineEdit *> campos, QPushButton &anadir) {
    const bool aqui = std::any_of(campos.begin(), campos.end(), [](auto *c) { return c->hasFocus(); });
    const bool escrito =
        std::any_of(campos.begin(), campos.end(), [](auto *c) { return !c->text().isEmpty(); });
    if (aqui && escrito) anadir.click();
    return aqui && escrito;
}

void DialogoPanelConstante(Ventana *ventana) {
    DialogoConFormulario<Ui::PanelConstante> d(ventana);
    const DescripcionDePanel &panel = EdicionPanel.panel;
    QRadioButton *const botones[] = {d.ui.anual, d.ui.trimestral, d.ui.mensual};
    botones[std::clamp(panel.TipoPeriodoPanel, 1, 3) - 1]->setChecked(true);
    if (panel.NumEntradas > 0) {
        const Intervalo &i = EdicionPanel.intervalo;
        const int porAno = PeriodosPorAno(panel.TipoPeriodoPanel);
        const auto texto = [&](int ano, int sub) {
            // The columns of annual data hold no sub-period.
            const int indice = IndicePeriodo(ano, std::max(sub, 1), porAno);
            return ano > 0 ? QDe1252(TextoDeIndice(indice, porAno)) : QString();
        };
        d.ui.individuos->setText(QString::number(panel.NumEntradas));
        d.ui.individuos->selectAll();
        d.ui.inicio->setText(texto(i.primerAno, i.primerSub));
        d.ui.fin->setText(texto(i.ultimoAno, i.ultimoSub));
    }
    d.AlAceptar([&] {
        const int tipo = TipoAnual + BotonElegido({d.ui.anual, d.ui.trimestral, d.ui.mensual});
        return AceptarPanelConstante(d.ventana(), De1252Q(d.ui.individuos->text()), tipo,
                                     De1252Q(d.ui.inicio->text()), De1252Q(d.ui.fin->text())) == 1;
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
        if (AnadirPeriodoPanel(d.ventana(), De1252Q(d.ui.periodo->text()),
                               De1252Q(d.ui.individuos->text())) == 0)
            return;
        d.ui.periodo->clear();
        d.ui.individuos->clear();
        d.ui.periodo->setFocus();
        mostrar();
    });
    QObject::connect(d.ui.eliminar, &QPushButton::clicked, &d.dialogo, [&] {
        const int elegida = FilaElegida(*d.ui.lista);
        if (elegida < 0) return;
        QuitarPeriodoPanel(elegida);
        mostrar();
    });
    d.AlAceptar([&] { return !AnadirLoEscrito({d.ui.periodo, d.ui.individuos}, *d.ui.anadir); });
    EjecutarSobreCopia(d);
}

void DialogoPanelIndividuos(Ventana *ventana) {
    DialogoConFormulario<Ui::PanelIndividuos> d(ventana);
    const auto mostrarPeriodos = [&] {
        d.ui.periodos->clear();
        const int i = FilaElegida(*d.ui.individuos);
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
    QObject::connect(d.ui.individuos, &QListWidget::itemSelectionChanged, &d.dialogo,
                     [&] { mostrarPeriodos(); });
    QObject::connect(d.ui.anadirIndividuo, &QPushButton::clicked, &d.dialogo, [&] {
        const int i = AnadirIndividuoPanel(d.ventana(), De1252Q(d.ui.orden->text()));
        if (i < 0) return;
        d.ui.orden->clear();
        mostrar(i);
        d.ui.periodo->setFocus();
    });
    QObject::connect(d.ui.eliminarIndividuo, &QPushButton::clicked, &d.dialogo, [&] {
        const int elegido = FilaElegida(*d.ui.individuos);
        if (elegido < 0) return;
        QuitarIndividuoPanel(elegido);
        mostrar(-1);
    });
    QObject::connect(d.ui.anadirPeriodo, &QPushButton::clicked, &d.dialogo, [&] {
        const int i = FilaElegida(*d.ui.individuos);
        if (i < 0 || AnadirPeriodoIndividuo(d.ventana(), i, De1252Q(d.ui.periodo->text())) == 0) return;
        d.ui.periodo->clear();
        d.ui.periodo->setFocus();
        mostrarPeriodos();
    });
    QObject::connect(d.ui.eliminarPeriodo, &QPushButton::clicked, &d.dialogo, [&] {
        const int i = FilaElegida(*d.ui.individuos), p = FilaElegida(*d.ui.periodos);
        if (i < 0 || p < 0) return;
        QuitarPeriodoIndividuo(i, p);
        mostrarPeriodos();
    });
    d.AlAceptar([&] {
        return !AnadirLoEscrito({d.ui.orden}, *d.ui.anadirIndividuo) &&
               !AnadirLoEscrito({d.ui.periodo}, *d.ui.anadirPeriodo);
    });
    EjecutarSobreCopia(d);
}

void DialogoPanelEtiquetas(Ventana *ventana) {
    DialogoConFormulario<Ui::PanelEtiquetas> d(ventana);
    d.ui.lista->setFont(FuenteFijaDePantalla()); // the labels are padded with blanks
    for (int i = 0; i < MaxIndividuosEtiqueta; ++i) d.ui.lista->addItem(QDe1252(LineaEtiqueta(i)));
    QObject::connect(d.ui.anadir, &QPushButton::clicked, &d.dialogo, [&] {
        const std::string orden = De1252Q(d.ui.orden->text());
        if (PonerEtiquetaIndividuo(d.ventana(), orden, De1252Q(d.ui.etiqueta->text())) == 0) return;
        for (int i = 0; i < MaxIndividuosEtiqueta; ++i)
            d.ui.lista->item(i)->setText(QDe1252(LineaEtiqueta(i)));
        d.ui.orden->clear();
        d.ui.etiqueta->clear();
        d.ui.orden->setFocus();
    });
    // A line that is chosen gives its label out for editing. By a click or Enter, so that the keys can walk the list.
    const auto sacar = [&](QListWidgetItem *linea) {
        const int i = d.ui.lista->row(linea);
        const QString orden = QString::number(i + 1), etiqueta = QDe1252(SacarEtiquetaIndividuo(i));
        // A double click chooses twice: what the first click took out stays in the field.
        if (!etiqueta.isEmpty() || d.ui.orden->text() != orden) d.ui.etiqueta->setText(etiqueta);
        d.ui.orden->setText(orden);
        linea->setText(QDe1252(LineaEtiqueta(i)));
        d.ui.etiqueta->setFocus();
    };
    QObject::connect(d.ui.lista, &QListWidget::itemClicked, &d.dialogo, sacar);
    d.AlAceptar([&] {
        const int elegida = d.ui.lista->hasFocus() ? FilaElegida(*d.ui.lista) : -1;
        if (elegida >= 0) sacar(d.ui.lista->item(elegida));
        return elegida < 0 && !AnadirLoEscrito({d.ui.orden, d.ui.etiqueta}, *d.ui.anadir);
    });
    EjecutarSobreCopia(d);
}

} // namespace

bool DialogoPanel(Ventana *ventana, PropuestaTipoDatos &propuesta) {
    DialogoConFormulario<Ui::DialogoDePanel> d(ventana);
    AbrirEdicionPanel();
    const DescripcionDePanel &panel = EdicionPanel.panel;
    QRadioButton *primero =
        panel.PrimerConcepto == PeriodoPrimero ? d.ui.periodoPrimero : d.ui.individuoPrimero;
    primero->setChecked(true);
    primero->setFocus(); // the arrows go on from there
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
