// What every dialog of the desktop does with its form, and what forms repeat: the chosen button of a group, "Ayuda" and
// "Decimales" as buttons or in a menu bar, lists that put what is chosen behind the text of a field.
#pragma once

#include "platform/composicion.h"
#include "platform/qt/ventana_qt.h"

#include <QAction>
#include <QDialog>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

#include <algorithm>
#include <functional>
#include <initializer_list>
#include <string>
#include <vector>

// The line of a list that the user has chosen, -1 for none. The current line may be another one, which
// nobody chose: after a deletion, say.
inline int FilaElegida(const QListWidget &lista) {
    const QList<QListWidgetItem *> elegidas = lista.selectedItems();
    return elegidas.isEmpty() ? -1 : lista.row(elegidas.constFirst());
}

// The number of the button that is checked, -1 for none.
int BotonElegido(std::initializer_list<const QAbstractButton *> botones);

// A click on the button opens a page of the manual above the dialog.
void AbreAyuda(QDialog &dialogo, QPushButton &boton, int pagina);

// Adds lines to a list; none is the current one until the user goes there. Windows-1252.
void PonerLineas(QListWidget &lista, const std::vector<std::string> &lineas);

// An entry of the menu bar of the dialog, behind those that stand there; the first one brings the bar. Windows-1252, with
// its mnemonic behind "&"; the name of the entry is its text without marks.
QAction *EntradaDeMenu(QDialog &dialogo, const char *texto, const std::function<void()> &hacer);

// The entries "&Ayuda" and "&Decimales" of many dialogs.
void MenuAyuda(QDialog &dialogo, int pagina);
void MenuDecimales(QDialog &dialogo, int &decimales);

// How a line of a list is chosen by the mouse. The keyboard chooses with Enter or the blank, so that the arrows can walk.
enum Eleccion { EligeUnClic, EligeDobleClic };

// Does `elegir` with each line that is chosen, once.
void AlElegir(QListWidget &lista, Eleccion eleccion, const std::function<void(QListWidgetItem &)> &elegir);

// Puts the line that stands chosen behind the text of the field, if there is one.
void AnadirElegido(const QListWidget &lista, QLineEdit &campo, const ReglaDeAnadir &regla);

// Each line that is chosen goes behind the text of the field. The field takes no more than the rule says.
void AnadeAlCampo(QListWidget &lista, Eleccion eleccion, QLineEdit &campo, const ReglaDeAnadir &regla);

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
    CampoSinAlt filtro;

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
        for (auto *campo : dialogo.findChildren<QLineEdit *>()) campo->installEventFilter(&filtro);
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

    // The dialog takes the room that its texts ask for, with those that were shown or changed while it is open.
    void Ajustar() {
        QSize lado = dialogo.sizeHint().expandedTo(ladoInicial).expandedTo({AnchoConTitulo(dialogo), 0});
        const QLayout &l = *dialogo.layout();
        if (l.hasHeightForWidth())
            lado.setHeight(std::max(lado.height(), l.totalHeightForWidth(lado.width())));
        dialogo.resize(lado);
    }

    // The texts are in their places by now.
    bool Ejecutar() {
        Ajustar();
        return Modal(dialogo) == QDialog::Accepted;
    }

private:
    QSize ladoInicial;
};
