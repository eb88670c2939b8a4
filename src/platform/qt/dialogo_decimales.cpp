// The dialog "Formato decimal".
#include "platform/qt/dialogo_decimales.h"

#include "platform/qt/formulario.h"

#include "ui_decimales.h"

void DialogoDecimales(int &decimales, Ventana *ventana) {
    DialogoConFormulario<Ui::FormatoDecimal> d(ventana);
    d.ui.decimales2->setChecked(true);
    d.ui.decimales2->setFocus(); // the arrows go on from there
    d.AlAceptar([&] {
        decimales = BotonElegido({d.ui.decimales0, d.ui.decimales1, d.ui.decimales2, d.ui.decimales3,
                                  d.ui.decimales4, d.ui.decimales5, d.ui.decimales6});
        return true;
    });
    d.Ejecutar();
}
