// The pages of the manual and the page "Acerca de..".
#include "platform/qt/formulario.h"
#include "platform/qt/superficie_qt.h"
#include "platform/qt/texto_qt.h"
#include "shell/ayuda.h"
#include "shell/ventanas/dialogos.h"

#include "ui_acerca_de.h"
#include "ui_pagina_ayuda.h"

#include <QIcon>

namespace {

int MostrarAcerca(Ventana *ventana, const PaginaManual &) {
    DialogoConFormulario<Ui::AcercaDe> d(ventana);
    QFont grande = d.ui.nombre->font();
    grande.setPointSizeF(grande.pointSizeF() * 1.8);
    grande.setBold(true);
    d.ui.nombre->setFont(grande);
    for (QLabel *l : {d.ui.iconoIzquierdo, d.ui.iconoDerecho})
        l->setPixmap(QIcon(QStringLiteral(":/tabira/icono128.png")).pixmap(48, 48));
    QLabel *const autores[] = {d.ui.autor0, d.ui.autor1, d.ui.autor2};
    const auto nombres = NombresAcercaDe();
    for (std::size_t i = 0; i < std::size(autores) && i < nombres.size(); ++i)
        autores[i]->setText(QDe1252(nombres[i]));
    d.AlAceptar();
    d.Ejecutar();
    return BotonAyudaOK;
}

// Examples stand out from the text by their indentation alone in the data; here they keep it in a fixed pitch, since
// the pages are set out in columns.
int MostrarUnaPagina(Ventana *ventana, const PaginaManual &pagina) {
    if (pagina.id == PaginaAcerca) return MostrarAcerca(ventana, pagina);
    DialogoConFormulario<Ui::DialogoDePagina> d(ventana);
    d.dialogo.setWindowTitle(QDe1252(pagina.titulo));
    d.dialogo.setObjectName(QStringLiteral("P%1").arg(pagina.id));
    QString texto;
    for (const LineaAyuda *l = pagina.lineas; l->texto != nullptr; ++l) {
        texto += (l->tipo == LineaDeEjemplo ? QStringLiteral("    ") : QString()) + QDe1252(l->texto) + u'\n';
    }
    texto.chop(1);
    d.ui.texto->setFont(FuenteFijaDePantalla());
    d.ui.texto->setText(texto);
    int pulsado = BotonAyudaCancelar;
    QPushButton *const botones[] = {d.ui.OK, d.ui.Anterior, d.ui.Siguiente, d.ui.Cancelar};
    for (QPushButton *b : botones) b->hide();
    const BotonesPagina puestos = BotonesDePagina(pagina);
    for (int i = 0; i < puestos.numero; ++i) {
        const int id = puestos.boton[i].id;
        QPushButton *b = id == BotonAyudaOK         ? d.ui.OK
                         : id == BotonAyudaAnterior ? d.ui.Anterior
                         : id == BotonAyudaCancelar ? d.ui.Cancelar
                                                    : d.ui.Siguiente;
        b->show();
        QObject::connect(b, &QPushButton::clicked, &d.dialogo, [&d, &pulsado, id] {
            pulsado = id;
            d.dialogo.accept();
        });
        // Enter goes on through the chain; where it ends, it closes.
        if (i == 0 || b == d.ui.Siguiente) {
            b->setDefault(true);
            b->setFocus();
        }
    }
    d.Ejecutar();
    return pulsado;
}

} // namespace

void DialogoAyuda(Ventana *ventana, int pagina) {
    PaginaAyuda(ventana, pagina, MostrarUnaPagina);
}
