// The commands of the work file: open, save, save as. They know under which path it was opened or saved last, and by which
// name the next save goes without asking.
#pragma once

#include "platform/plataforma.h"

#include <string>

struct EstadoDeTrabajo {
    std::string UltimoNombreGuardado = "PROYECT01"; // compared with NombreProyecto, without blanks behind
    std::string ruta;                               // of the file, empty while there is none
};

extern EstadoDeTrabajo Trabajo;

enum ComandosDeTrabajo { AbrirTrabajo, GuardarTrabajo, GuardarTrabajoComo };

// Runs one of the commands, with all that goes with it: asks for the file where it must, gives a work file without a data
// type the one without periodicity (and so empties it), forgets the limits of the sample, sets the window's title. Opening
// forgets the last regression, too. All this happens also when the user cancels; the tables of a work file that has a data
// type stay as they were then, and after a file that can't be read.
//
// Saving goes to the path that was opened or saved last while that file's name is the project's; to the project's name in
// the same folder, where such a file exists, after the question "El archivo ya existe ¿Sobreescribir?"; and asks for a
// file in any other case. A project called PROYEC01, or otherwise than at the last save, is saved as a new one.
//
// True when the file was read or written. Messages, title "Proceso cancelado": "Error al abrir el archivo", "El archivo no es
// un archivo de trabajo", "El archivo de trabajo es de una versión posterior del programa", "El archivo de trabajo está
// dañado", "Error al guardar el archivo de trabajo".
bool EjecutarTrabajo(Ventana *ventana, ComandosDeTrabajo comando);

// Reads a work file into the tables. False after its message, with the tables as they were.
bool LeerTrabajo(Ventana *ventana, const std::string &ruta);

// "Tabira: " and the name of the project, as the title of the window.
void PonerTituloTrabajo(Ventana *ventana);
