// The small dialogs of the shell.
#include "shell/ventanas/dialogos.h"

#include "platform/qt/formulario.h"
#include "platform/qt/superficie_qt.h"
#include "platform/qt/texto_qt.h"
#include "shell/listas.h"
#include "shell/ultima_regresion.h"
#include "store/periodos.h"

#include "ui_lista.h"
#include "ui_muestra.h"
#include "ui_muestra_actual.h"
#include "ui_no_ensamblada.h"
#include "ui_ultima_regresion.h"

#include <initializer_list>

namespace {

void PonerLineas(std::initializer_list<QLabel *> etiquetas, const std::vector<std::string> &textos) {
    auto texto = textos.begin();
    for (QLabel *etiqueta : etiquetas) {
        if (texto == textos.end()) return;
        etiqueta->setText(QDe1252(*texto++));
    }
}

} // namespace

void DialogoMuestra(Ventana *ventana, const DatosDialogo &) {
    DialogoConFormulario<Ui::DialogoDeMuestra> d(ventana);
    PrepararDialogoMuestra();
    d.ui.TextoInicial->setText(QDe1252(::Muestra.TextoInicial));
    d.ui.TextoFinal->setText(QDe1252(::Muestra.TextoFinal));
    d.ui.TextoInicial->selectAll(); // typing replaces it, as it does in a field reached by Tab
    d.AlAceptar([&] {
        AceptarDialogoMuestra(De1252Q(d.ui.TextoInicial->text()), De1252Q(d.ui.TextoFinal->text()));
        return true;
    });
    AbreAyuda(d.dialogo, *d.ui.Ayuda, PaginaMuestra);
    d.Ejecutar();
}

void DialogoMuestraActual(Ventana *ventana, const DatosDialogo &) {
    DialogoConFormulario<Ui::MuestraActual> d(ventana);
    PonerLineas({d.ui.linea0, d.ui.linea1, d.ui.linea2, d.ui.linea3}, LineasMuestraActual());
    d.AlAceptar();
    d.Ejecutar();
}

void DialogoLista(Ventana *ventana, const DatosDialogo &datos) {
    const auto lista = static_cast<ListasDeElementos>(datos.modo);
    DialogoConFormulario<Ui::ListadoElementos> d(ventana);
    d.dialogo.setWindowTitle(QDe1252(TituloLista(lista)));
    d.ui.lista->setFont(FuenteFijaDePantalla());
    PonerLineas(*d.ui.lista, LineasLista(lista));
    QObject::connect(d.ui.Borrar, &QPushButton::clicked, &d.dialogo, [&] {
        const int elegida = FilaElegida(*d.ui.lista);
        if (elegida < 0) return;
        if (!BorrarElemento(d.ventana(), lista, De1252Q(d.ui.lista->item(elegida)->text()))) return;
        delete d.ui.lista->takeItem(elegida);
        // The toolkit would choose the next line, and a second click delete it.
        d.ui.lista->clearSelection();
    });
    d.AlAceptar();
    d.Ejecutar();
}

void DialogoUltimaRegresion(Ventana *ventana, const DatosDialogo &) {
    DialogoConFormulario<Ui::UltimaRegresionDialogo> d(ventana);
    PonerLineas({d.ui.linea0, d.ui.linea1, d.ui.linea2}, LineasUltimaRegresion());
    d.AlAceptar();
    d.Ejecutar();
}

void DialogoNoEnsamblada(Ventana *ventana, const DatosDialogo &) {
    DialogoConFormulario<Ui::OpcionDelMenu> d(ventana);
    d.AlAceptar();
    d.Ejecutar();
}
