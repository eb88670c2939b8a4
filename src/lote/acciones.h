// The actions of tabira-lote: the command line, its reading, and what each action calls.
#pragma once

#include <string>
#include <vector>

// Exit status of a run.
enum EstadosDeSalida { EstadoBien = 0, EstadoFallo = 1, EstadoMalaLinea = 2 };

// Reads the whole command line, then carries out its actions in order, printing their events. Returns the exit status.
// A command line that can't be read carries out nothing and prints one line on standard error.
int EjecutarLinea(const std::vector<std::string> &argumentos);
