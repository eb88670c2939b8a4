// The chooser of listings as a dialog: it shows the two lists of charts/resultados/seleccion.h and carries its buttons
// there.
#include "charts/resultados/ventanas/dialogo_seleccion.h"

#include "language/lote_sentencias.h"
#include "platform/qt/dialogo_decimales.h"
#include "platform/qt/formulario.h"
#include "platform/qt/impresora_qt.h"
#include "platform/qt/texto_qt.h"

#include "ui_seleccion.h"

#include <algorithm>

namespace {

void Mostrar(QListWidget &lista, const std::vector<std::string> &codigos) {
    lista.clear();
    PonerLineas(lista, codigos);
}

using DialogoDeListas = DialogoConFormulario<Ui::Seleccion>;

// The texts of the form, its lists and the buttons between them. `estado` lives as long as the dialog.
void ConectarListas(DialogoDeListas &d, EstadoSeleccion &estado) {
    const TextosSeleccion &textos = TextosDe(estado.modo);
    d.dialogo.setWindowTitle(QDe1252(textos.titulo));
    d.ui.textoDisponibles->setText(QDe1252(textos.disponibles));
    d.ui.textoElegidas->setText(QDe1252(textos.elegidas));
    d.ui.disponibles->setAccessibleName(QDe1252(textos.disponibles));
    d.ui.elegidas->setAccessibleName(QDe1252(textos.elegidas));
    Mostrar(*d.ui.disponibles, estado.disponibles);
    // An entry goes over, and the next one takes its place under the choice: so Enter or clicks in a row move many.
    const auto mover = [&](QListWidget &de, bool (*rutina)(EstadoSeleccion &, int, Ventana *)) {
        const int elegida = FilaElegida(de);
        if (!rutina(estado, elegida, d.ventana())) return;
        Mostrar(*d.ui.disponibles, estado.disponibles);
        Mostrar(*d.ui.elegidas, estado.elegidas);
        de.setCurrentRow(std::min(elegida, de.count() - 1));
    };
    const auto anadir = [=, &d] { mover(*d.ui.disponibles, AnadirASeleccion); };
    const auto eliminar = [=, &d] { mover(*d.ui.elegidas, EliminarDeSeleccion); };
    QObject::connect(d.ui.Anadir, &QPushButton::clicked, &d.dialogo, anadir);
    QObject::connect(d.ui.Eliminar, &QPushButton::clicked, &d.dialogo, eliminar);
    QObject::connect(d.ui.disponibles, &QListWidget::itemDoubleClicked, &d.dialogo, anadir);
    QObject::connect(d.ui.elegidas, &QListWidget::itemDoubleClicked, &d.dialogo, eliminar);
}

} // namespace

void DialogoSeleccion(Ventana *ventana, ModosSeleccion modo) {
    DialogoDeListas d(ventana);
    EstadoSeleccion estado = IniciarSeleccion(modo);
    ConectarListas(d, estado);
    QObject::connect(d.ui.Decimales, &QPushButton::clicked, &d.dialogo,
                     [&] { DialogoDecimales(Lote.DecimalesSalida, d.ventana()); });
    d.AlAceptar([&] {
        ImprimirElegidas(estado, Lote.DecimalesSalida, d.ventana());
        return false; // more can be printed
    });
    PonerNotaDeImpresion(d.dialogo);
    d.Ejecutar();
}

void ElegirSeries(Ventana *ventana, const std::function<void(const EstadoSeleccion &, Ventana *)> &aceptar) {
    DialogoDeListas d(ventana);
    EstadoSeleccion estado = IniciarSeleccion(SeleccionDeSeries);
    ConectarListas(d, estado);
    d.ui.Decimales->hide();
    MenuDecimales(d.dialogo, Lote.DecimalesSalida);
    d.AlAceptar([&] {
        aceptar(estado, d.ventana());
        return false; // another choice can follow
    });
    d.Ejecutar();
}
