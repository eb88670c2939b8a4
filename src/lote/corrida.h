// The state of one run of tabira-lote: how events are printed and how questions are answered.
#pragma once

#include "lote/formato.h"

#include <cstdint>
#include <string>

enum RespuestasDeCorrida { ResponderSi, ResponderNo, ResponderCancelar };

struct EstadoDeCorrida {
    bool json;                     // events as JSON objects, one a line
    bool seguir;                   // go on after an action that failed
    bool imprimirSalidas;          // print every result window, too
    RespuestasDeCorrida respuesta; // to the questions that follow
    FormatoAscii formato;          // of the imports and exports that follow
    std::string archivo;           // what the action at hand answers when a file is asked for
    bool conSemilla;               // the clock of the random numbers begins at a number of the command line
    std::int32_t semilla;          // what it shows next
};

extern EstadoDeCorrida Corrida;
