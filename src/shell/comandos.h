// The commands of the menu: one table says what each is called, what it needs first and which routine does it.
#pragma once

#include "platform/plataforma.h"
#include "shell/ids_comandos.h"

enum AccionesDeEdicion { EditarDeshacer, EditarCortar, EditarCopiar, EditarPegar };

// What the commands ask of the main window beside the seam of platform/plataforma.h.
struct OperacionesEscritorio {
    ControlTexto *(*pantallaEdicion)(Ventana *ventana);
    void (*editar)(Ventana *ventana, AccionesDeEdicion accion);
    void (*mostrarEditor)(Ventana *ventana); // in place of the statements, until it is left
    void (*destruir)(Ventana *ventana);      // ends the program's message loop
    void (*empiezaLote)() = nullptr;         // a batch, of the text or of a dialog, begins or has ended: the
    void (*terminaLote)() = nullptr;         // messages of shell/barra_estado.h are those of the moment
};

// From here on a copy of the work is written before each batch, since it may never end.
void InstalarEscritorio(const OperacionesEscritorio &operaciones);

using RutinaDeComando = void (*)(Ventana *ventana, int id);

struct Comando {
    int id;
    const char *menu;       // menu and, behind "/", submenu; null for an id that no entry bears
    const char *entrada;    // with its mnemonic behind "&"
    bool refrescaMuestra;   // ActualizarMuestra runs before the work
    const char *guardia;    // message while no data type was chosen, null for none
    RutinaDeComando rutina; // null: announced and not built
};

// The table, in the order of the menus.
extern const Comando TablaComandos[];
extern const int NumComandos;

// Carries out a command: guard, refresh of the sample, routine. An unknown id does nothing.
void EjecutarComando(Ventana *ventana, int id);

// The sequence of closing: asks "¿Desea guardar su trabajo?" when there is a series or a matrix, saves on "Sí", frees
// the blocks of the matrices and destroys the window. It goes on when the save is cancelled or fails, and leaves what
// isn't saved as a copy for the next start. False when the program stays: after "Cancelar", and where such a copy
// can't be written.
bool CerrarPrograma(Ventana *ventana);

// Start of the work file and of the estimation state, after the windows exist.
void IniciarPrograma();

// Behind that: copies of the work are kept from here on (EmpezarCopias), and the one that an earlier run left is
// offered.
void IniciarCopias(Ventana *ventana);
