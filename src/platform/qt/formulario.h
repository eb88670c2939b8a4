// What every dialog of the desktop does with its form.
#pragma once

#include "platform/qt/ventana_qt.h"

#include <QDialog>
#include <QPushButton>

// A dialog with its generated form. The buttons OK and Cancela, where the form has them, accept and reject unless
// the dialog connects OK itself to a check.
template <class Formulario> struct DialogoConFormulario {
    QDialog dialogo;
    Formulario ui;

    explicit DialogoConFormulario(Ventana *ventana) : dialogo(DeVentana(ventana)) {
        ui.setupUi(&dialogo);
        dialogo.setWindowFlag(Qt::WindowContextHelpButtonHint, false);
        if (auto *cancela = dialogo.template findChild<QPushButton *>(QStringLiteral("Cancela")))
            QObject::connect(cancela, &QPushButton::clicked, &dialogo, &QDialog::reject);
    }

    // OK accepts when `acepta` says so; a message keeps the dialog open with what was typed.
    template <class Prueba> void AlAceptar(Prueba acepta) {
        auto *ok = dialogo.template findChild<QPushButton *>(QStringLiteral("OK"));
        QObject::connect(ok, &QPushButton::clicked, &dialogo, [this, acepta] {
            if (acepta()) dialogo.accept();
        });
    }

    void AlAceptar() {
        AlAceptar([] { return true; });
    }

    Ventana *ventana() { return AVentana(&dialogo); }
    bool Ejecutar() { return dialogo.exec() == QDialog::Accepted; }
};
