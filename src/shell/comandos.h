// The commands of the menu: one table says what each is called, what it needs first and which routine does it.
#pragma once

#include "platform/plataforma.h"
#include "shell/listas.h"

#include <string>
#include <string_view>

enum AccionesDeEdicion { EditarDeshacer, EditarCortar, EditarCopiar, EditarPegar };

// What the commands ask of the desktop beside the seam of platform/plataforma.h: its dialogs and its main window.
struct OperacionesEscritorio {
    ControlTexto *(*pantallaEdicion)(Ventana *ventana);
    void (*editar)(Ventana *ventana, AccionesDeEdicion accion);
    void (*ponerTitulo)(Ventana *ventana, std::string_view titulo);
    void (*destruir)(Ventana *ventana); // ends the program's message loop
    void (*dialogoTipoDatos)(Ventana *ventana);
    void (*dialogoMuestra)(Ventana *ventana);
    void (*dialogoMuestraActual)(Ventana *ventana);
    void (*dialogoLista)(Ventana *ventana, ListasDeElementos lista);
    void (*dialogoUltimaRegresion)(Ventana *ventana);
    void (*dialogoNoEnsamblada)(Ventana *ventana);
    void (*paginaAyuda)(Ventana *ventana, int pagina);
};

void InstalarEscritorio(const OperacionesEscritorio &operaciones);

using RutinaDeComando = void (*)(Ventana *ventana, int id);

struct Comando {
    int id;
    const char *menu;    // menu and, behind "/", submenu; null for an id that no entry bears
    const char *entrada; // with its mnemonic behind "&"
    // Block groups that the command works on: W BufferMatriz, V ValoresObs, P PresenciaObs, L EtiquetasObs,
    // T TextosPeriodo, E TextosEcuacion. They are plain arrays that live as long as the program; the table says who
    // touches what.
    const char *bloques;
    bool refrescaMuestra;   // ActualizarMuestra runs before the work
    const char *guardia;    // message while no data type was chosen, null for none
    RutinaDeComando rutina; // null: announced and not built
};

// The table, in the order of the menus.
extern const Comando TablaComandos[];
extern const int NumComandos;

// Carries out a command: guard, refresh of the sample, routine. An unknown id does nothing.
void EjecutarComando(Ventana *ventana, int id);

// The sequence of closing: asks "¿Desea guardar su trabajo?" when there is a series or a matrix, frees the blocks of
// the matrices and destroys the window. False when the program stays: after "Cancelar", and after "Sí" while saving isn't
// built.
bool CerrarPrograma(Ventana *ventana);

// Start of the work file and of the estimation state, after the windows exist.
void IniciarPrograma();
