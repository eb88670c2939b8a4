// What the files of the series evaluator share with each other and with nobody else.
#pragma once

#include "language/evaluador.h"

#include <algorithm>
#include <string_view>

// ----- Tokens

// The token at `posicion`, which moves behind it, the blanks on both sides skipped. "(" is a token that stays unread,
// ")" and whatever is no text of a formula give the empty token and stay unread too. The view is into `texto`.
std::string_view SiguienteToken(const std::string &texto, int &posicion);

// ----- Levels

// Evaluates the characters from `desde` up to `hasta` (not included) of the present level, in the buffer of the next
// one, which exists. 1, or 0 after the boxes of the levels below.
int EvaluarTrozo(LineasSentencia &lineas, int desde, int hasta);

// True when a run of capital letters in the text fulfils `condicion`(std::string_view).
template <class Condicion> bool AlgunaPalabra(std::string_view texto, Condicion condicion) {
    const std::size_t largo = texto.size();
    for (std::size_t i = 0; i < largo;) {
        const std::size_t inicio = i;
        while (i < largo && texto[i] >= 'A' && texto[i] <= 'Z') ++i;
        if (i == inicio) {
            ++i;
        } else if (condicion(texto.substr(inicio, i - inicio))) {
            return true;
        }
    }
    return false;
}

// ----- The stack

// The rows that an evaluation works on; empty when `hasta` is below `desde`.
struct FilasEvaluacion {
    int desde, hasta;
};

inline FilasEvaluacion FilasDeEvaluacion() {
    return {std::max(Evaluador.PrimeraEval, 0), std::min(Evaluador.UltimaCalculada, MaxObservaciones - 1)};
}

// The rows of the sample, in which periods are looked up, computed or not.
inline FilasEvaluacion FilasDePeriodos() {
    return {std::max(Evaluador.PrimeraEval, 0), std::min(Evaluador.UltimaEval, MaxObservaciones - 1)};
}

// The rows that a push fills: the row PrimeraEval even when the evaluation has no rows, since a scalar reads it.
inline FilasEvaluacion FilasDeCarga() {
    const FilasEvaluacion f = FilasDeEvaluacion();
    return {f.desde, std::max(f.hasta, std::min(f.desde, MaxObservaciones - 1))};
}

// Column `k` places below the top one.
inline ColumnaPila &Columna(int k) {
    return Evaluador.PilaColumnas[Evaluador.profundidad - 1 - k];
}

// Makes one column the whole stack, with this value where ValorSuperior takes it. The bounds are those of the last evaluation.
void PonerValorUnico(double valor);

// ----- Operands

// The lag of a series that was pushed just now; `posicion` is on the "(". False when it is no lag.
bool AplicarRetardo(int serie, const std::string &texto, int &posicion);

// The row of the sample that the period in front of a "]" names, by its number or by a scalar; `posicion` moves behind it. -1 when
// there is none.
int LeerPeriodo(const std::string &texto, int &posicion);

// The period of the series on top, pushed with the lag `retardo` (0 for none); `posicion` is on the "[". False when there
// is no such row in the sample.
bool AplicarPeriodo(int serie, int retardo, const std::string &texto, int &posicion);

// Element of a matrix, `posicion` where its "[" should be. 1, or the number of the failure.
int ApilarElementoMatriz(int matriz, const std::string &texto, int &posicion);

// ----- Operators

// True for the one-character texts that are operators.
bool EsOperador(std::string_view token);

// Takes an operator into OperadoresPendientes. False when it is full.
bool AnotarOperador(char operador);

// Applies the last pending operator, which is taken off, to the two top columns. False when it is none.
bool AplicarOperador();

// The same operators, and 'A' and 'O' for AND and OR, on one value. False when it is none of them.
bool OperarValor(char operador, double &izquierdo, double derecho);

// Applies the pending "-" as a sign to the top column. False when the zero on its left finds no room.
bool AplicarSigno();

// Applies OperadorLogico to the two top columns. False when it is neither AND nor OR.
bool AplicarLogico();

// A row of the left column is missing where the right one is. Nothing ever makes it present again.
void JuntarPresencia(ColumnaPila &a, const ColumnaPila &b);

// ----- Functions

struct FuncionSerie;

// The function of this name, or null.
const FuncionSerie *BuscarFuncionSerie(std::string_view nombre);

// True when a row of its result depends on other rows: totals, and what goes on from row to row.
bool MezclaFilas(const FuncionSerie &funcion);

// Reads the arguments of a function from `posicion`, where its "(" stands if it has one, and applies it. 0, with
// `posicion` on the closing ")" of the call, or the number of the failure.
int AplicarFuncionSerie(const FuncionSerie &funcion, LineasSentencia &lineas, int &posicion);
