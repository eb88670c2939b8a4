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

void MostrarAcerca(Ventana *ventana) {
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
}

void MostrarUnaPagina(Ventana *ventana, const PaginaManual &pagina) {
    if (pagina.id == PaginaAcerca) return MostrarAcerca(ventana);
    if (pagina.id == PaginaNoEnsamblada) return DialogoNoEnsamblada(ventana, {});
    DialogoConFormulario<Ui::DialogoDePagina> d(ventana);
    d.dialogo.setWindowTitle(QDe1252(pagina.titulo));
    d.dialogo.setObjectName(QStringLiteral("P%1").arg(pagina.id));
    d.ui.texto->setFont(FuenteFijaDePantalla()); // the pages are set out in columns
    d.ui.texto->setText(QDe1252(TextoDePagina(pagina)));
    d.ui.texto->setFocusPolicy(Qt::StrongFocus); // the keyboard copies examples too
    for (QPushButton *b : {d.ui.OK, d.ui.Anterior, d.ui.Siguiente, d.ui.Cancelar}) b->hide();
    const BotonesPagina puestos = BotonesDePagina(pagina);
    QPushButton *conEnter = nullptr;
    for (int i = 0; i < puestos.numero; ++i) {
        const int id = puestos.boton[i].id;
        QPushButton *b = id == BotonAyudaOK         ? d.ui.OK
                         : id == BotonAyudaAnterior ? d.ui.Anterior
                         : id == BotonAyudaCancelar ? d.ui.Cancelar
                                                    : d.ui.Siguiente;
        b->show();
        QObject::connect(b, &QPushButton::clicked, &d.dialogo, [&d, &pagina, id] {
            if (PulsarBotonAyuda(d.ventana(), pagina, id, MostrarUnaPagina) != 0) d.dialogo.accept();
        });
        // Enter goes on through the chain; where it ends, it closes.
        if (conEnter != d.ui.Siguiente) conEnter = b;
    }
    QObject::connect(&d.dialogo, &QDialog::rejected, &d.dialogo, [&d, &pagina] {
        PulsarBotonAyuda(d.ventana(), pagina, BotonAyudaCancelar, MostrarUnaPagina);
    });
    if (conEnter != nullptr) {
        conEnter->setDefault(true);
        conEnter->setFocus();
    }
    d.Ejecutar();
}

} // namespace

void DialogoAyuda(Ventana *ventana, const DatosDialogo &datos) {
    PaginaAyuda(ventana, datos.modo, MostrarUnaPagina);
}
