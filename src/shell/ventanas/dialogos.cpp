// The small dialogs of the shell.
#include "shell/ventanas/dialogos.h"

#include "platform/qt/formulario.h"
#include "platform/qt/superficie_qt.h"
#include "platform/qt/texto_qt.h"
#include "shell/ayuda.h"
#include "shell/ultima_regresion.h"
#include "store/periodos.h"

#include "ui_decimales.h"
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

void DialogoMuestra(Ventana *ventana) {
    DialogoConFormulario<Ui::DialogoDeMuestra> d(ventana);
    PrepararDialogoMuestra();
    d.ui.TextoInicial->setText(QDe1252(::Muestra.TextoInicial));
    d.ui.TextoFinal->setText(QDe1252(::Muestra.TextoFinal));
    d.ui.TextoInicial->selectAll(); // typing replaces it, as it does in a field reached by Tab
    d.AlAceptar([&] {
        AceptarDialogoMuestra(De1252Q(d.ui.TextoInicial->text()), De1252Q(d.ui.TextoFinal->text()));
        return true;
    });
    QObject::connect(d.ui.Ayuda, &QPushButton::clicked, &d.dialogo,
                     [&] { DialogoAyuda(d.ventana(), PaginaMuestra); });
    d.Ejecutar();
}

void DialogoMuestraActual(Ventana *ventana) {
    DialogoConFormulario<Ui::MuestraActual> d(ventana);
    PonerLineas({d.ui.linea0, d.ui.linea1, d.ui.linea2, d.ui.linea3}, LineasMuestraActual());
    d.AlAceptar();
    d.Ejecutar();
}

void DialogoLista(Ventana *ventana, ListasDeElementos lista) {
    DialogoConFormulario<Ui::ListadoElementos> d(ventana);
    d.dialogo.setWindowTitle(QDe1252(TituloLista(lista)));
    d.ui.lista->setFont(FuenteFijaDePantalla());
    for (const std::string &linea : LineasLista(lista)) d.ui.lista->addItem(QDe1252(linea));
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

void DialogoUltimaRegresion(Ventana *ventana) {
    DialogoConFormulario<Ui::UltimaRegresionDialogo> d(ventana);
    PonerLineas({d.ui.linea0, d.ui.linea1, d.ui.linea2}, LineasUltimaRegresion());
    d.AlAceptar();
    d.Ejecutar();
}

void DialogoNoEnsamblada(Ventana *ventana) {
    DialogoConFormulario<Ui::OpcionDelMenu> d(ventana);
    d.AlAceptar();
    d.Ejecutar();
}

void DialogoDecimales(int &decimales, Ventana *ventana) {
    DialogoConFormulario<Ui::FormatoDecimal> d(ventana);
    QRadioButton *const botones[] = {d.ui.decimales0, d.ui.decimales1, d.ui.decimales2, d.ui.decimales3,
                                     d.ui.decimales4, d.ui.decimales5, d.ui.decimales6};
    // Two decimals are checked whatever the present value is.
    d.ui.decimales2->setChecked(true);
    d.ui.decimales2->setFocus(); // the arrows go on from there
    d.AlAceptar([&] {
        for (std::size_t i = 0; i < std::size(botones); ++i)
            if (botones[i]->isChecked()) decimales = static_cast<int>(i);
        return true;
    });
    d.Ejecutar();
}
