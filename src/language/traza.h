// "Cómo se calcula": the steps of a computation, recorded one by one while the trace is on.
//
// A record is one run: a batch of statements, or a command that computes. Its steps stand in the order in which they began.
// A step is a statement, a group of steps (a regression inside a test), or a formula with its result; `nivel` is its depth,
// 0 for a statement of the batch. Formulas run by the evaluators come here by themselves. Whoever computes without one tells
// the formula that its loop stands for:
//
//     if (Trazando())
//         TrazarMatriz("_TMF5", "suma de x(t) x(t)'", "Momentos de los regresores: X'X", FilasDe(e));
//
// and whoever works for several steps puts them in a group:
//
//     const int grupo = AbrirGrupo("MGN _TMP2 _TMP3 1", "Regresión del numerador"_w);
//     ...
//     CerrarGrupo(grupo);
//
// A run keeps at most MaxPasosTraza steps; the further ones are only counted. The trace reads the tables and changes nothing
// in them. Off, each of these calls costs one comparison.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// ----- Values

inline constexpr int MaxPasosTraza = 20000;
inline constexpr int LadoDeMatriz = 10;   // a matrix with more rows or columns shows its edges
inline constexpr int ExtremosDeSerie = 5; // values at the start and at the end of a series

enum ClasesTraza { TrazaSentencia, TrazaGrupo, TrazaEscalar, TrazaMatriz, TrazaSerie };

// A scalar, a matrix by rows, or a series. Of a matrix with more than LadoDeMatriz rows, the first and the last five; its
// columns in the same way. Of a series, the first and the last five of its values, all of them if they are ten or fewer:
// `filas` is their number, missing ones not counted, and the two periods are those of the first and of the last one; both
// are empty where one of the rows has no period.
struct ValorTraza {
    int filas = 0, columnas = 0;
    std::vector<double> valores;
    std::string primerPeriodo, ultimoPeriodo;
};

// The rows or columns, from 0, that stand in `valores` for `total` of them.
std::vector<int> LugaresMostrados(int total);

// ----- Steps

// Rows of the work file, both included; none when ultima < primera.
struct FilasTraza {
    int primera = 0, ultima = -1;
};

// A name that a formula takes a value from. The step that gave it that value, from 0; -1 when none of this record did, and
// then its value stands here: of a series, that in the rows of the step.
struct OperandoTraza {
    std::string nombre;
    ClasesTraza clase;
    int paso;
    ValorTraza valor;
};

// The texts are in Windows-1252. A `destino` in capitals is stored under that code; in small letters it is the name by which
// later formulas of the computation call a number that isn't stored. `formula` of a statement is its text; a reduction, the part of a typed formula that was
// worked out so far, is a step below that of its formula, without a destination.
struct PasoTraza {
    ClasesTraza clase;
    int nivel;
    int sentencia; // the step of the statement that it belongs to, from 0; its own place for a statement, -1 for none
    std::string formula, destino, explicacion;
    std::string fallo;    // why it failed; empty for a step that went well
    FilasTraza filas;     // that it ran over
    ValorTraza resultado; // empty for statements, groups and failures
    std::vector<OperandoTraza> operandos;
};

struct RegistroTraza {
    bool activa = false;
    bool reducciones = false; // the formula at hand was typed: its reductions are steps
    int corrida = 0;          // of the record, from 1
    std::int64_t numero = 0;  // of all steps of the run, those included that were not kept
    std::vector<PasoTraza> pasos;
};

extern RegistroTraza Traza;

inline bool Trazando() {
    return Traza.activa;
}

// Called with the steps [desde, hasta) of Traza.pasos once their results are known, and at the end of a run with an empty
// range; where a program sets it.
extern void (*AlTrazar)(int desde, int hasta);

// Switches the trace on or off. The record stays.
void PonerTraza(bool activa);

// A run begins: the record is emptied, if the trace is on. Inside another run it goes on.
void EmpezarTraza();
// The last run that was begun ends.
void TerminarTraza();

// The last step of the record that gave a value to this name, from 0; -1 for none. `hasta`: only steps before it.
int PasoQueDio(std::string_view nombre, int hasta = MaxPasosTraza);

// ----- Commands

// A command that computes is a run of its own with one group:
//
//     const int grupo = EmpezarComando("CONSUMO", "Contraste de normalidad");
//     return TerminarComando(grupo, Calcular(ventana, serie));
int EmpezarComando(std::string_view formula, std::string_view explicacion);
// Returns `bien`, 1 when it went well.
int TerminarComando(int grupo, int bien);

// ----- Who records

// What AbrirPaso and AbrirGrupo return, for CerrarPaso and CerrarGrupo: the place of the step, or one of these.
inline constexpr int SinTrazar = -2;   // the trace was off
inline constexpr int PasoContado = -1; // the step was only counted

// A statement begins, or a group.
int AbrirSentencia(std::string_view texto);
int AbrirGrupo(std::string_view formula, std::string_view explicacion);
// It ends. Where it failed and no step below it did, a step of its own says so.
void CerrarGrupo(int grupo, bool bien = true);

// A formula is about to be evaluated and stored as `destino`; its operands are looked up now. Behind it, the result is read
// from the tables.
// `modelo`: the formula before its numbers were written into it; a placeholder "%(name)" in it that is the name of a step of the
// same statement is an operand, too.
int AbrirPaso(ClasesTraza clase, std::string_view destino, std::string_view formula,
              std::string_view explicacion, const FilasTraza &filas = {}, std::string_view modelo = {});
void CerrarPaso(int paso, bool bien);
// The same for a value that isn't stored.
void CerrarPasoConValor(int paso, double valor);

// A result that was computed without a formula and is stored. `operandos`: the names, parted by blanks, that the formula
// takes values from without writing them, such as those of x(t) and e(t).
void TrazarMatriz(std::string_view destino, std::string_view formula, std::string_view explicacion,
                  const FilasTraza &filas = {}, std::string_view operandos = {});
void TrazarSerie(std::string_view destino, std::string_view formula, std::string_view explicacion,
                 const FilasTraza &filas = {}, std::string_view operandos = {});
// A value of each of the rows, from valores[0] on, that isn't stored.
void TrazarColumna(std::string_view destino, std::string_view formula, std::string_view explicacion,
                   const FilasTraza &filas, const double *valores);
// A number, stored or not. Its name, when it isn't stored, is no word of the formulas that are told, such as "suma" and "de".
void TrazarEscalar(std::string_view destino, std::string_view formula, double valor,
                   std::string_view explicacion, const FilasTraza &filas = {},
                   std::string_view operandos = {});

// From here on reductions are steps, if the trace is on: the formula that is evaluated next, at this level of the text buffers,
// was typed. Until DejarDeReducir.
void ReducirDesde(int nivelLinea);
void DejarDeReducir();

// A reduction of the typed formula at hand: `texto` was worked out in the buffer of this level.
void TrazarReduccion(std::string_view texto, int nivelLinea, double valor);
void TrazarReduccion(std::string_view texto, int nivelLinea, const double *datos, int filas, int columnas);
// The top column of the evaluation, over its rows.
void TrazarReduccionDeColumna(std::string_view texto, int nivelLinea);

inline bool TrazandoReducciones() {
    return Traza.activa && Traza.reducciones;
}

// ----- Texts

// A formula as it is typed: the operators of two characters, which the evaluators read as one and a blank.
std::string FormulaComoSeEscribe(std::string_view formula);

// "suma de e(t)^2, 1921 a 1941": a formula and its periods.
std::string ConPeriodos(std::string_view formula, const FilasTraza &filas);
