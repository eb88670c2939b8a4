// The dialog "Tipos de datos" and the dialogs of each type.
#include "store/ventanas/dialogo_tipo_datos.h"

#include "platform/qt/formulario.h"
#include "platform/qt/texto_qt.h"
#include "store/tipos_datos.h"
#include "store/ventanas/dialogo_panel.h"

#include "ui_observaciones.h"
#include "ui_periodos.h"
#include "ui_tipos_datos.h"

namespace {

struct TextosDePeriodo {
    const char *titulo, *forma; // Windows-1252
    int longitud;               // characters that a field takes
};

// By TiposDeDatos.
constexpr TextosDePeriodo TextosDeTipo[] = {
    {"", "", 0},
    {"Datos anuales", "Año, de cuatro cifras. En blanco: 2001 y 4.000 observaciones."_w, 18},
    {"Datos trimestrales", "Año y trimestre, con un punto: 1995.1"_w, 18},
    {"Datos mensuales", "Año y mes, con un punto: 1995.01"_w, 8},
};

bool DialogoObservaciones(Ventana *ventana, PropuestaTipoDatos &propuesta) {
    DialogoConFormulario<Ui::Observaciones> d(ventana);
    d.ui.etiquetas->setChecked(propuesta.etiquetas);
    d.AlAceptar([&] {
        propuesta.etiquetas = d.ui.etiquetas->isChecked();
        return AceptarDialogoDelTipo(d.ventana(), propuesta) == 1;
    });
    return d.Ejecutar();
}

bool DialogoPeriodos(Ventana *ventana, PropuestaTipoDatos &propuesta) {
    DialogoConFormulario<Ui::Periodos> d(ventana);
    const TextosDePeriodo &textos = TextosDeTipo[propuesta.tipo];
    d.dialogo.setWindowTitle(QDe1252(textos.titulo));
    d.ui.forma->setText(QDe1252(textos.forma));
    d.ui.inicio->setMaxLength(textos.longitud);
    d.ui.fin->setMaxLength(textos.longitud);
    d.AlAceptar([&] {
        propuesta.inicio = De1252Q(d.ui.inicio->text());
        propuesta.fin = De1252Q(d.ui.fin->text());
        return AceptarDialogoDelTipo(d.ventana(), propuesta) == 1;
    });
    return d.Ejecutar();
}

} // namespace

void ElegirTipoDatos(Ventana *ventana, const DatosDialogo &) {
    DialogoConFormulario<Ui::TiposDatos> d(ventana);
    d.ui.NombreProyecto->setText(QDe1252(NombreDialogoTipo()));
    d.ui.NombreProyecto->selectAll();
    PropuestaTipoDatos propuesta;
    // The dialog of the type comes back here when it is cancelled.
    d.AlAceptar([&] {
        propuesta.nombre = De1252Q(d.ui.NombreProyecto->text());
        const int tipo = BotonElegido({d.ui.tipo0, d.ui.tipo1, d.ui.tipo2, d.ui.tipo3, d.ui.tipo4});
        propuesta.tipo = tipo < 0 ? SinTipoDatos : tipo;
        if (AceptarNombreYTipo(d.ventana(), propuesta) == 0) return false;
        if (propuesta.tipo == TipoSinPeriodicidad) return DialogoObservaciones(d.ventana(), propuesta);
        if (propuesta.tipo == TipoPanel) return DialogoPanel(d.ventana(), propuesta);
        return DialogoPeriodos(d.ventana(), propuesta);
    });
    AbreAyuda(d.dialogo, *d.ui.Ayuda, PaginaMuestra);
    d.Ejecutar();
}
