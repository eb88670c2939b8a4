// The window of the editor: its menu over the grid.
#pragma once

#include "data/rejilla.h"

#include <QMenuBar>
#include <QWidget>

#include <functional>

class RejillaQt;

class VentanaEditor : public QWidget {
public:
    explicit VentanaEditor(QWidget *duena);
    ~VentanaEditor() override;

    // Shows the window maximised on what AbrirEditor has opened. `alSalir` runs once the editor was left, and the window is
    // hidden then.
    void Mostrar(const std::function<void()> &alSalir);

protected:
    void closeEvent(QCloseEvent *suceso) override;
    void changeEvent(QEvent *suceso) override;

private:
    void PonerMenu();
    void HabilitarEntradas();
    void Ordenar(int id);

    QMenuBar *menu;
    RejillaQt *rejilla;
    std::function<void()> alSalir;
};

// The desktop's RefrescarEditor.
void RefrescarEditorQt();
