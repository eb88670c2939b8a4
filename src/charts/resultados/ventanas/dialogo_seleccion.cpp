// The chooser of listings as a dialog: it shows the two lists of charts/resultados/seleccion.h and carries its buttons
// there.
#include "charts/resultados/ventanas/dialogo_seleccion.h"

#include "charts/resultados/ventanas/listas_seleccion.h"
#include "language/lote_sentencias.h"
#include "platform/qt/dialogo_decimales.h"
#include "platform/qt/formulario.h"
#include "platform/qt/impresora_qt.h"
#include "platform/qt/texto_qt.h"

#include "ui_seleccion.h"

void DialogoSeleccion(Ventana *ventana, ModosSeleccion modo) {
    DialogoConFormulario<Ui::Seleccion> d(ventana);
    EstadoSeleccion estado = IniciarSeleccion(modo);
    UnirListas(d, estado);
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
    DialogoConFormulario<Ui::Seleccion> d(ventana);
    EstadoSeleccion estado = IniciarSeleccion(SeleccionDeSeries);
    UnirListas(d, estado);
    d.ui.Decimales->hide();
    MenuDecimales(d.dialogo, Lote.DecimalesSalida);
    d.AlAceptar([&] {
        aceptar(estado, d.ventana());
        return false; // another choice can follow
    });
    d.Ejecutar();
}
