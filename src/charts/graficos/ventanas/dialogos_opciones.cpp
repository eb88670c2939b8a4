// The option dialogs of charts.
#include "charts/graficos/ventanas/dialogos_opciones.h"

#include "charts/graficos/opciones_dialogos.h"
#include "platform/qt/formulario.h"
#include "platform/qt/texto_qt.h"

#include "ui_formas.h"
#include "ui_intervalos.h"
#include "ui_otras_opciones.h"

#include <QPainter>
#include <QPixmap>

namespace {

// The colours of the buttons, behind "Por defecto", as indices of the table.
constexpr int ColorDeBoton[] = {ColorPorDefecto, 3, 0, 1, 2, 4, 5, 6, 7};

void Marcar(QRadioButton &porDefecto, QRadioButton &otros, bool valor) {
    (valor ? porDefecto : otros).setChecked(true);
}

// A field that is written in is meant: its "Otros" is checked.
void EscribirEsElegir(QLineEdit &campo, QRadioButton &otros) {
    QObject::connect(&campo, &QLineEdit::textEdited, &otros, [&otros] { otros.setChecked(true); });
}

void Mostrar(Ui::IntervalosYTitulos &ui, const ValoresIntervalos &v) {
    ui.titulo->setText(QDe1252(v.titulo));
    ui.tituloY->setText(QDe1252(v.tituloY));
    ui.tituloX->setText(QDe1252(v.tituloX));
    ui.intervalosX->setText(QDe1252(v.intervalosX));
    ui.intervalosY->setText(QDe1252(v.intervalosY));
    Marcar(*ui.minYDefecto, *ui.minYOtros, v.minYDefecto);
    Marcar(*ui.maxYDefecto, *ui.maxYOtros, v.maxYDefecto);
    Marcar(*ui.minXDefecto, *ui.minXOtros, v.minXDefecto);
    Marcar(*ui.maxXDefecto, *ui.maxXOtros, v.maxXDefecto);
    ui.minY->setText(QDe1252(v.minY));
    ui.maxY->setText(QDe1252(v.maxY));
    ui.minX->setText(QDe1252(v.minX));
    ui.maxX->setText(QDe1252(v.maxX));
    ui.verLeyenda->setChecked(v.verLeyenda);
    ui.leyendaConMarco->setChecked(v.leyendaConMarco);
}

ValoresIntervalos Leer(const Ui::IntervalosYTitulos &ui) {
    return {.titulo = De1252Q(ui.titulo->text()),
            .tituloY = De1252Q(ui.tituloY->text()),
            .tituloX = De1252Q(ui.tituloX->text()),
            .intervalosX = De1252Q(ui.intervalosX->text()),
            .intervalosY = De1252Q(ui.intervalosY->text()),
            .minYDefecto = ui.minYDefecto->isChecked(),
            .maxYDefecto = ui.maxYDefecto->isChecked(),
            .minXDefecto = ui.minXDefecto->isChecked(),
            .maxXDefecto = ui.maxXDefecto->isChecked(),
            .minY = De1252Q(ui.minY->text()),
            .maxY = De1252Q(ui.maxY->text()),
            .minX = De1252Q(ui.minX->text()),
            .maxX = De1252Q(ui.maxX->text()),
            .verLeyenda = ui.verLeyenda->isChecked(),
            .leyendaConMarco = ui.leyendaConMarco->isChecked()};
}

// The style of a line as its button shows it.
QIcon Muestra(Qt::PenStyle estilo, const QWidget &boton) {
    QPixmap imagen(QSize(48, 12) * boton.devicePixelRatio());
    imagen.setDevicePixelRatio(boton.devicePixelRatio());
    imagen.fill(Qt::transparent);
    QPainter pintor(&imagen);
    pintor.setPen(QPen(boton.palette().color(QPalette::WindowText), 1, estilo));
    pintor.drawLine(0, 6, 48, 6);
    return QIcon(imagen);
}

} // namespace

void DialogoIntervalos(Ventana *ventana, ClasesDeGrafico clase, OpcionesGrafico &opciones) {
    DialogoConFormulario<Ui::IntervalosYTitulos> d(ventana);
    d.dialogo.setWindowTitle(QDe1252(TituloDeOpciones(clase, "Intervalos y títulos"_w)));
    Mostrar(d.ui, ValoresDeIntervalos(opciones));
    EscribirEsElegir(*d.ui.minY, *d.ui.minYOtros);
    EscribirEsElegir(*d.ui.maxY, *d.ui.maxYOtros);
    EscribirEsElegir(*d.ui.minX, *d.ui.minXOtros);
    EscribirEsElegir(*d.ui.maxX, *d.ui.maxXOtros);
    if (DescripcionDe(clase).limitesIguales) {
        d.ui.ejeY->setTitle(QStringLiteral("Ejes Y - X"));
        d.ui.ejeX->hide();
        d.ui.ayudaLimites->hide();
    }
    d.AlAceptar([&] {
        AceptarIntervalos(opciones, Leer(d.ui));
        return true;
    });
    d.Ejecutar();
}

void DialogoFormas(Ventana *ventana, ClasesDeGrafico clase, OpcionesGrafico &opciones,
                   const std::vector<std::string> &nombres) {
    DialogoConFormulario<Ui::FormasYColores> d(ventana);
    d.dialogo.setWindowTitle(QDe1252(TituloDeOpciones(clase, "Formas y colores")));
    for (const std::string &nombre : nombres) d.ui.series->addItem(QDe1252(nombre));
    QRadioButton *const formas[] = {d.ui.forma0, d.ui.forma1, d.ui.forma2, d.ui.forma3};
    if (opciones.forma >= 0 && opciones.forma < 4) formas[opciones.forma]->setChecked(true);
    for (const auto &[boton, estilo] :
         {std::pair{d.ui.trazo1, Qt::DotLine}, {d.ui.trazo2, Qt::DashLine}, {d.ui.trazo3, Qt::DashDotLine}}) {
        boton->setIcon(Muestra(estilo, *boton));
        boton->setIconSize(QSize(48, 12));
    }
    const auto alPulsar = [&](QPushButton *si, const auto &aplicar) {
        QObject::connect(si, &QPushButton::clicked, &d.dialogo,
                         [&, aplicar] { aplicar(FilaElegida(*d.ui.series)); });
    };
    alPulsar(d.ui.SiColor, [&](int lugar) {
        const int boton = BotonElegido({d.ui.color0, d.ui.color1, d.ui.color2, d.ui.color3, d.ui.color4,
                                        d.ui.color5, d.ui.color6, d.ui.color7, d.ui.color8});
        AplicarColor(d.ventana(), opciones, lugar, ColorDeBoton[std::max(boton, 0)]);
    });
    alPulsar(d.ui.SiGrosor, [&](int lugar) {
        AplicarGrosor(d.ventana(), opciones, lugar, std::max(BotonElegido({d.ui.grosor0, d.ui.grosor1}), 0));
    });
    alPulsar(d.ui.SiTrazo, [&](int lugar) {
        AplicarTrazo(d.ventana(), opciones, lugar,
                     std::max(BotonElegido({d.ui.trazo0, d.ui.trazo1, d.ui.trazo2, d.ui.trazo3}), 0));
    });
    d.AlAceptar([&] {
        opciones.forma = std::max(BotonElegido({formas[0], formas[1], formas[2], formas[3]}), 0);
        return true;
    });
    d.Ejecutar();
}

void DialogoOtrasOpciones(Ventana *ventana, Grafico &g) {
    DialogoConFormulario<Ui::OtrasOpciones> d(ventana);
    d.dialogo.setWindowTitle(QDe1252(TituloDeOpciones(g.clase, "Otras opciones")));
    const bool residuos = g.clase == GraficoResiduos;
    d.ui.banda->setVisible(residuos);
    d.ui.marcasY->setVisible(!residuos);
    if (!residuos) d.ui.marcasX->setTitle(QStringLiteral("Eje X. Marcas intervalos"));
    Marcar(*d.ui.conBanda, *d.ui.sinBanda, g.conBanda != 0);
    Marcar(*d.ui.alMedioX, *d.ui.parteInferior, g.marcasAlMedio != 0);
    Marcar(*d.ui.alMedioY, *d.ui.izquierda, g.marcasYAlMedio != 0);
    d.AlAceptar([&] {
        g.conBanda = d.ui.conBanda->isChecked() ? 1 : 0;
        g.marcasAlMedio = d.ui.alMedioX->isChecked() ? 1 : 0;
        g.marcasYAlMedio = d.ui.alMedioY->isChecked() ? 1 : 0;
        return true;
    });
    d.Ejecutar();
}
