// What every dialog of the desktop does with its form.
#pragma once

#include "platform/qt/ventana_qt.h"

#include <QDialog>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

#include <algorithm>

// The line of a list that the user has chosen, -1 for none. The current line may be another one, which
// nobody chose: after a deletion, say.
inline int FilaElegida(const QListWidget &lista) {
    const QList<QListWidgetItem *> elegidas = lista.selectedItems();
    return elegidas.isEmpty() ? -1 : lista.row(elegidas.constFirst());
}

// Keeps Alt with a letter out of the fields of a dialog.
class CampoSinAlt : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject *, QEvent *suceso) override {
        return suceso->type() == QEvent::KeyPress && EsLetraConAlt(*static_cast<QKeyEvent *>(suceso));
    }
};

// A dialog with its generated form. The button Cancela, where the form has it, rejects; OK does what AlAceptar says.
template <class Formulario> struct DialogoConFormulario {
    QDialog dialogo;
    Formulario ui;

    explicit DialogoConFormulario(Ventana *ventana) : dialogo(DeVentana(ventana)) {
        ui.setupUi(&dialogo);
        // A least size of its own would stand in the place of the one that the texts ask for, and cut large letters:
        // it is only the size to begin with.
        ladoInicial = dialogo.minimumSize();
        dialogo.setMinimumSize(0, 0);
        dialogo.setWindowFlag(Qt::WindowContextHelpButtonHint, false);
        // What the user gave as a period or a code is shown as it is, whatever marks it holds.
        for (auto *texto : dialogo.findChildren<QLabel *>()) texto->setTextFormat(Qt::PlainText);
        // Without this a list would take its first line for the current one, though nobody chose it, and the first key
        // Down would leave that line behind.
        for (auto *lista : dialogo.findChildren<QListWidget *>()) lista->setCurrentIndex({});
        auto *filtro = new CampoSinAlt(&dialogo);
        for (auto *campo : dialogo.findChildren<QLineEdit *>()) campo->installEventFilter(filtro);
        if (auto *cancela = dialogo.template findChild<QPushButton *>(QStringLiteral("Cancela")))
            QObject::connect(cancela, &QPushButton::clicked, &dialogo, &QDialog::reject);
    }

    // OK accepts when `acepta` says so; a message keeps the dialog open with what was typed.
    template <class Prueba> void AlAceptar(Prueba acepta) {
        QObject::connect(ui.OK, &QPushButton::clicked, &dialogo, [this, acepta] {
            if (acepta()) dialogo.accept();
        });
    }

    void AlAceptar() {
        AlAceptar([] { return true; });
    }

    Ventana *ventana() { return AVentana(&dialogo); }

    // The texts are in their places by now, and the dialog takes the room that they ask for.
    bool Ejecutar() {
        QSize lado = dialogo.sizeHint().expandedTo(ladoInicial).expandedTo({AnchoConTitulo(dialogo), 0});
        const QLayout &l = *dialogo.layout();
        if (l.hasHeightForWidth())
            lado.setHeight(std::max(lado.height(), l.totalHeightForWidth(lado.width())));
        dialogo.resize(lado);
        return Modal(dialogo) == QDialog::Accepted;
    }

private:
    QSize ladoInicial;
};
