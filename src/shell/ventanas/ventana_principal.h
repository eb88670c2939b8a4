// The main window: its text control, its menu and its closing.
#pragma once

#include <QMainWindow>

#include "platform/plataforma.h"
#include "shell/ventanas/control_sentencias.h"

#include <functional>

class BarraBuscar;
class BarraDeEstado;
class VentanaEditor;

class VentanaPrincipal : public QMainWindow {
    Q_OBJECT
public:
    VentanaPrincipal();
    ~VentanaPrincipal() override;

    VentanaEditor *EditorDatos; // of the series and the matrices; hidden but while one of them is edited
    ControlSentencias *PantallaEdicion;
    BarraBuscar *buscar;
    BarraDeEstado *barra;

    // A command, with the status line around it.
    void Ordenar(int id);

    // Procesar over the selection or, where there is none, the line of the caret; and over the whole text. The
    // selection is then as it was, unless the batch stopped.
    void ProcesarLinea();
    void ProcesarTodo();

    // The window of the steps, at the statement of the caret or, where that one isn't recorded, at the last.
    void ComoSeCalcula();

    // A batch has ended: its mark, the colours, the status line.
    void TrasElLote();

    bool Destruida = false;              // the closing sequence ended: the window goes without asking again
    std::function<void()> TrasLaPortada; // once, when the window stands on the screen; may be empty

protected:
    void closeEvent(QCloseEvent *suceso) override;
    bool event(QEvent *suceso) override;
    void paintEvent(QPaintEvent *suceso) override;

private:
    void ConLaBarra(const std::function<void()> &hacer);
    void CrearMenus();
    void CrearTeclas();
    void MostrarPortada();
    void ProcesarTramo(int desde, int hasta);
    void Refrescar();

    bool PortadaMostrada = false;
};

// A note, in the status line of the main window.
void NotaEnPantalla(std::string_view texto, int linea);

// The desktop's main window for the commands.
void InstalarOperacionesEscritorio();
