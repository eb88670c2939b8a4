// The dialog "Ordenación de series".
#include "data/ventanas/dialogos_datos.h"

#include "data/observaciones.h"
#include "platform/qt/formulario.h"
#include "platform/qt/texto_qt.h"

#include "ui_ordenar.h"

void DialogoOrdenarSeries(Ventana *ventana, const DatosDialogo &) {
    DialogoConFormulario<Ui::OrdenarSeries> d(ventana);
    for (const std::string &codigo : SeriesParaOrdenar()) d.ui.lista->addItem(QDe1252(codigo));
    d.ui.lista->setCurrentIndex({});
    d.AlAceptar([&] {
        const int fila = FilaElegida(*d.ui.lista);
        const std::string serie = fila >= 0 ? De1252Q(d.ui.lista->item(fila)->text()) : std::string();
        const FinesDeOrdenacion fin = AceptarOrdenacion(d.ventana(), serie, d.ui.descendente->isChecked());
        return fin != OrdenacionSigue;
    });
    d.Ejecutar();
}
