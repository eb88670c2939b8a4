// What the reader of blocks and the reader of their conditions share; nothing of this is used outside the two.
#pragma once

#include "language/evaluador.h"

#include <string>
#include <string_view>

enum TiposDeBloque {
    BloqueREPITE = 0,
    BloqueMIENTRAS = 1,
    BloqueSI = 2,
    BloqueSINO = 3,
    NumTiposDeBloque = 4
};

// The state of the blocks. There is one set by kind and not by call: that is why a loop can't stand inside another,
// nor a SI inside a SI. It is left as it is when the block ends.
struct EstadoDeBloques {
    std::string NombreContador;                  // of the running REPITE
    std::int32_t InicioBloque[NumTiposDeBloque]; // offset of the first line of the block in its text
    std::int32_t FinBloque[NumTiposDeBloque];    // offset of its closing line
    std::int32_t Omitir[NumTiposDeBloque]; // while any is 1, statements are passed over: entries 0 and 1 by
                                           // ROMPE, entry 2 while the branch of the SI isn't to run
};

extern EstadoDeBloques Bloques;

// What is local to the reading of one block. Its texts keep their room from one turn to the next.
struct LlamadaBloque {
    TiposDeBloque tipo;
    int tipoExterno;   // kind of the loop around, or -1 at the top level
    std::string linea; // the line being interpreted, in capitals, counter and ENUM replaced
    std::string sustituida;
    double contador, limite, paso;
    std::string textoContador;      // the counter as lines receive it, a blank on each side
    std::string izquierda, derecha; // the two statements of the comparison
    int comparacion;                // TiposDeComparacion
    bool conLista;                  // MIENTRAS (ENUM = ...)
    char lista[MaxListaENUM][AnchoCodigo];
    int numLista, indiceLista;
};

// What all levels of a block work with.
struct EntornoBloque {
    std::string_view cuerpo;
    LineasSentencia &lineas;
    Ventana *ventana;
    int &primera, &ultima;
};

// Reads a token of a block's lines, blanks skipped: a blank, ( ) [ ] ' $ + * / - end it, and all but the blank are
// tokens of their own when they come first. So "=", "<", ">" and "," are parts of tokens. Empty at the end.
std::string_view LeerTokenBloque(std::string_view linea, int &posicion);

// True when nothing but blanks follows.
bool NadaDetras(std::string_view linea, int posicion);

// Runs one statement of the block through the driver. 1 to go on, 0 after its message.
int CorrerSentencia(EntornoBloque &e, std::string_view texto);

// Reads condition, or list, and ENTONCES of a MIENTRAS or SI from `posicion` of its line, and runs the statements of
// the comparison. 1, or 0 after a message: "Error:[%c][%s]" with 7; "Sintaxis no adecuada" with 2 to 6 for MIENTRAS,
// "Sintaxis no idónea" with 102 to 106 for SI.
int LeerCondicion(EntornoBloque &e, LlamadaBloque &b, int posicion);

// Runs the statements of the comparison again. 1, or 0 when one failed after its message.
int RecalcularComparacion(EntornoBloque &e, const LlamadaBloque &b);

// True when the comparison holds between the scalars _TMP01 and _TMP02 as they stand; a missing one counts as 0.0.
bool CondicionCierta(const LlamadaBloque &b);
