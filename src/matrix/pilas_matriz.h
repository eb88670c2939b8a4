// The stacks of the matrix evaluator: temporaries, kinds of operands, scalars and operators.
#pragma once

#include "platform/plataforma.h"
#include "store/limites.h"

#include <cstdint>

enum TiposDeOperandoMatriz : std::int32_t { OperandoEsMatriz = 0, OperandoEsEscalar = 1 };

// A matrix by rows. `datos` has room for ElementosBloque doubles, all 0.0 from `usados` on: only what was used has to
// be cleared for the next user to find zeros.
struct TemporalMatriz {
    double *datos;
    std::int32_t usados;
    std::int32_t filas, columnas;
};

// The state of an evaluation. Buffers may change their places, as results do; the rows and columns belong to the place
// and keep, also from one evaluation to the next, what their last user wrote.
struct EstadoFormulaMatriz {
    TemporalMatriz PilaTemporales[MaxTemporalesMatriz];
    TemporalMatriz trabajo; // where an operation writes, since it may not write on what it reads
    std::int32_t tope;      // top of PilaTemporales, -1 when it is empty
    std::int32_t PilaTipos[MaxTemporalesMatriz];
    std::int32_t numTipos;
    double PilaEscalares[MaxTemporalesMatriz];
    std::int32_t numEscalares;
    char PilaOperaciones[MaxOperadoresPendientes][3];
    std::int32_t numOperaciones;
    std::int32_t UltimoElemento; // EstadosElemento
    bool EscalarTraspuesto;      // survives an evaluation that didn't use it
};

extern EstadoFormulaMatriz FormulaMatriz;

// Empties the stacks, at the start of an evaluation.
void VaciarPilasMatriz();

// A new temporary on top, of which the caller writes the first elements and then says how many (FijarTamano). Null
// after "Excesivas combinaciones" with the point when 10 are there.
TemporalMatriz *ApilarTemporal(int punto, Ventana *ventana);

// The temporary holds filas times columnas elements, at most ElementosBloque; what was behind them is cleared.
void FijarTamano(TemporalMatriz &temporal, int filas, int columnas);

// `destino` takes the buffer of `origen`, whose elements are filas by columnas, and gives its own for it.
void TomarResultado(TemporalMatriz &destino, TemporalMatriz &origen, int filas, int columnas);

inline TemporalMatriz &TemporalSuperior() {
    return FormulaMatriz.PilaTemporales[FormulaMatriz.tope];
}

// Kinds and scalars. Pushes are false on a full stack, and nothing is taken from an empty one.
bool ApilarTipo(TiposDeOperandoMatriz tipo);
bool ApilarEscalar(double valor);
void QuitarTipos(int cuantos);
void QuitarEscalar();

// The kind `debajo` places below the top; what is below the bottom reads as a matrix.
std::int32_t TipoSuperior(int debajo = 0);
