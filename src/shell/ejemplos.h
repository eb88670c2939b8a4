// The practice data that come with the program. An example is opened as a copy: the work has neither file nor saved name
// then, so that the first save asks where to.
#pragma once

#include "platform/plataforma.h"

struct Ejemplo {
    const char *entrada; // of the submenu "Ejemplos", with its mnemonic behind "&"
    const char *fichero; // in CarpetaDeDatos: series with their codes in the first record, or statements
    const char *nombre;  // of the work file; null for statements
    int tipo;            // TiposDeDatos, and the fields of its dialog
    const char *inicio, *fin;
};

extern const Ejemplo TablaEjemplos[];
extern const int NumEjemplos;

// Opens the example of this row of the table. Data take the place of the work file, as when one is opened: the last
// regression and the limits of the sample go, and a note says what has come. Work that no file holds is asked for before
// ("¿Desea guardar su trabajo?"); nothing changes after "Cancelar", or when that save comes to nothing. Statements take the
// place of the screen's, as those of a file.
// False when nothing was opened. Messages, title "Proceso cancelado": "No se encuentran los ejemplos del programa", "Error al
// abrir el archivo".
bool AbrirEjemplo(Ventana *ventana, ControlTexto *pantalla, int cual);
