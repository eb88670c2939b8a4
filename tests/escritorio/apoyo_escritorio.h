// What the tests of the windows share: the main window over an empty work file, and a script for the modal windows that
// a command opens.
#pragma once

#include "apoyo/plataforma_prueba.h"
#include "shell/ventanas/ventana_principal.h"
#include "store/periodos.h"

#include <QDialog>
#include <QMessageBox>
#include <QPalette>
#include <QTest>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

// The program as it stands after its start, the window not shown yet. No data type is chosen.
class Escritorio : public testing::Test {
protected:
    void SetUp() override;

    // The command of the menu, by its entry where it has one.
    void Ordenar(int id);

    std::unique_ptr<VentanaPrincipal> ventana;
};

// A work file with this data type over the desktop's platform: as EmpezarConDatos.
void PonerDatos(int tipo, std::string_view intervalo);

// One modal window of a script: the title that it must have, and what the user does in it.
struct Paso {
    const char *titulo;
    std::function<void(QDialog &)> hacer;
};
using Guion = std::vector<Paso>;

// Runs `llamada` while the script deals with the modal windows that open, in their order. A window that the script
// doesn't expect, or a step without a window, is a failure; the window is closed.
void ConGuion(const Guion &guion, const std::function<void()> &llamada);

// Steps. The texts are UTF-8.
Paso Caja(const char *titulo, const char *texto, const char *boton = "Aceptar",
          QMessageBox::Icon icono = QMessageBox::Information);
Paso Pulsando(const char *titulo, const char *boton);
Paso ConEscape(const char *titulo);

// The control of this name and kind; a failure, and null, when the window has none.
template <class Control> Control *Hijo(QWidget &w, const char *nombre) {
    auto *hijo = w.findChild<Control *>(QString::fromLatin1(nombre));
    if (hijo == nullptr) ADD_FAILURE() << "no control " << nombre << " in " << w.windowTitle().toStdString();
    return hijo;
}

// The ratio of two luminances, as the guidelines for accessible documents define it: from 1 to 21.
double Contraste(const QColor &a, const QColor &b);

// The colours of a light desktop, and of a dark one.
QPalette Paleta(bool oscura);

// Gives the window the keyboard, as a window manager does with a new one.
void Activar(QDialog &d);

void Pulsar(QWidget &w, const char *boton);                       // a click
void Escribir(QWidget &w, const char *campo, const char *texto);  // typed in place of what stands there
std::string TextoDe(QWidget &w, const char *control);             // of a label, a button or a field
std::vector<std::string> LineasDe(QWidget &w, const char *lista); // of a list
// The entries of a window's menu bar, with their "&".
std::vector<std::string> EntradasDelMenu(const QDialog &d);
// What the note of printing tells in the window, without the breaks that let it take several lines.
QString NotaDeImpresion(QWidget &w);
// Chooses a line of a list by a click.
void Elegir(QWidget &w, const char *lista, int linea);

// Chooses an entry (without its "&") of the context menu of `w`, once it is open; DelMenu opens it.
void ElegirDelMenu(QWidget &w, const char *entrada);
void DelMenu(QWidget &w, const char *entrada);

// Names of the codes of the store, without their blanks.
std::vector<std::string> CodigosDeSeries();
std::vector<std::string> CodigosDeEscalares();
