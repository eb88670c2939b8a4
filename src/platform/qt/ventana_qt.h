// The opaque handles of the core are widgets of the toolkit.
#pragma once

#include "platform/plataforma.h"

#include <QDialog>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QScreen>
#include <QWidget>

inline Ventana *AVentana(QWidget *w) {
    return reinterpret_cast<Ventana *>(w);
}
inline QWidget *DeVentana(Ventana *v) {
    return reinterpret_cast<QWidget *>(v);
}
inline ControlTexto *AControl(QPlainTextEdit *e) {
    return reinterpret_cast<ControlTexto *>(e);
}
inline QPlainTextEdit *DeControl(ControlTexto *c) {
    return reinterpret_cast<QPlainTextEdit *>(c);
}

// Alt with a letter is for menus and labels. One that none bears would be written by a text control, and would put that
// letter in the place of what is selected. Together with Control it is the third level of some keyboards.
inline bool EsLetraConAlt(const QKeyEvent &tecla) {
    const QString texto = tecla.text();
    return (tecla.modifiers() & (Qt::AltModifier | Qt::ControlModifier)) == Qt::AltModifier &&
           !texto.isEmpty() && texto.front().isPrint();
}

// Room in which the title of a window is read whole, beside the icon and the buttons that the desktop puts there.
inline int AnchoConTitulo(const QWidget &w) {
    QFont fuente = w.font();
    fuente.setBold(true);
    const QFontMetrics m(fuente);
    return m.horizontalAdvance(w.windowTitle()) + 8 * m.height();
}

// A size for a window, with its title bar inside the screen.
inline QSize DentroDeLaPantalla(const QWidget &w, QSize lado) {
    constexpr int AltoDelTitulo = 40;
    return lado.boundedTo(w.screen()->availableSize() - QSize(0, AltoDelTitulo));
}

// Runs a modal window; its result. Its owner gets the keyboard back: when a window and the one below it close together,
// some window managers give it to the second, which is about to go, and then to none.
inline int Modal(QDialog &d) {
    const int resultado = d.exec();
    if (QWidget *duena = d.parentWidget(); duena != nullptr && duena->isVisible()) duena->activateWindow();
    return resultado;
}
