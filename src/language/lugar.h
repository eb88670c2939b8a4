// Where a batch is in its text: for whoever shows a box, and for whoever marks the line at which it stopped.
#pragma once

#include <string>
#include <string_view>

// A statement in the text of its batch.
struct LugarDeSentencia {
    int linea = 0;           // from 1; 0 for none
    int inicio = 0, fin = 0; // offsets of the line in the text, without the blanks around it
    std::string sentencia;   // as it was written
};

// A batch begins: its statements are told by their offsets in `texto`, which stays where it is until TerminarLugares. Returns
// what the batch before it was at, since a window that a statement opens may run another one.
struct TextoEnCurso {
    const std::string *texto = nullptr;
    int inicio = 0; // offset of the statement at hand
    int base = 0;   // offset of the block around it
    int desde = 0;  // what runs of the text: [desde, hasta)
    int hasta = 0;
};
TextoEnCurso EmpezarLugares(const std::string &texto, int desde, int hasta);
void TerminarLugares(const TextoEnCurso &anterior);

// The batch at hand; without one, its text is null.
const TextoEnCurso &LoteEnCurso();

// The statement at hand begins at `inicio` of the text; the lines of the block at hand begin at `base` of it.
void PonerLugar(int inicio);
void PonerBaseDeBloque(int base);

// The same for a line of the block at hand: `inicio` counts from its first character.
void PonerLugarEnBloque(int inicio);

// True while a batch runs.
bool EnLote();

// The statement at hand; without a batch, none.
LugarDeSentencia LugarActual();

// The line of the text at this offset.
LugarDeSentencia LugarEn(const std::string &texto, int posicion);
