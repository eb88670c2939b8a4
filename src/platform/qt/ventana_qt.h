// The opaque handles of the core are widgets of the toolkit.
#pragma once

#include "platform/plataforma.h"

#include <QPlainTextEdit>
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
