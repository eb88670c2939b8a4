// The main window: its text control, its menu and its closing.
#pragma once

#include <QMainWindow>
#include <QPlainTextEdit>

#include "platform/plataforma.h"

#include <functional>

class VentanaEditor;

class VentanaPrincipal : public QMainWindow {
    Q_OBJECT
public:
    VentanaPrincipal();

    VentanaEditor *EditorDatos; // of the series and the matrices; hidden but while one of them is edited
    QPlainTextEdit *PantallaEdicion;
    bool Destruida = false;              // the closing sequence ended: the window goes without asking again
    std::function<void()> TrasLaPortada; // once, when the window stands on the screen; may be empty

protected:
    void closeEvent(QCloseEvent *suceso) override;
    bool event(QEvent *suceso) override;
    void paintEvent(QPaintEvent *suceso) override;

private:
    void CrearMenus();
    void MostrarPortada();

    bool PortadaMostrada = false;
};

// The desktop's main window for the commands.
void InstalarOperacionesEscritorio();
