// The status line of the main window.
#pragma once

#include <QLabel>
#include <QPlainTextEdit>
#include <QStatusBar>

#include "shell/barra_estado.h"

// At its left the message of the last batch, at its right the work file, the sample and the place of the caret.
class BarraDeEstado : public QStatusBar {
public:
    BarraDeEstado(QWidget *padre, const QPlainTextEdit &pantalla);

    // Shows what the core has to say now: of the work file, and the message.
    void Refrescar();
    void RefrescarMensaje();

    // A command begins: the message goes.
    void Olvidar();

private:
    void RefrescarEstado();

    const QPlainTextEdit &pantalla;
    QLabel *mensaje;
    QLabel *estado;
    EstadoDeBarra actual;
};
