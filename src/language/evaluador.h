// The evaluator of series formulas: one pass over the text, left to right, on a stack of whole columns.
#pragma once

#include "platform/plataforma.h"
#include "store/limites.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// The text buffers of a statement: 0 holds the statement, 1 to 11 the pieces in parentheses while a formula is
// evaluated. They belong to a batch, so that no statement allocates.
using LineasSentencia = std::array<std::string, MaxNiveles>;

// One column of the evaluation stack. Only the rows PrimeraEval to UltimaCalculada are written and read.
struct ColumnaPila {
    double valor[MaxObservaciones];
    std::uint8_t presente[MaxObservaciones];
};

enum EstadosElemento { ElementoInicio = 0, ElementoOperando = 1, ElementoOperador = 2 };

// An operator of the outermost level as it was applied: what stood on its right, in the row PrimeraEval.
struct PasoNivel {
    char operador; // 'A' for AND, 'O' for OR
    double derecho;
};

struct EstadoEvaluador {
    ColumnaPila *PilaColumnas; // MaxColumnasPila columns, allocated for a batch; null outside one
    std::int32_t profundidad;  // columns in use; the top one is profundidad - 1
    std::int32_t NivelLinea;   // current buffer of LineasSentencia
    std::array<std::array<char, 3>, MaxOperadoresPendientes> OperadoresPendientes;
    std::int32_t numOperadores;
    std::array<std::array<char, 7>, MaxFuncionesPendientes> FuncionesPendientes;
    std::int32_t numFunciones;
    std::int32_t EstadoElemento;
    char OperadorLogico[4];               // the last AND or OR seen; one for the whole statement
    std::int32_t MarcaRetardo;            // 1 once a lag was applied in this statement
    std::int32_t ValorRetardo;            // the last lag applied, negative for past values
    std::int32_t PrimeraEval, UltimaEval; // observation bounds of this evaluation
    std::int32_t UltimaCalculada;         // last row that is computed: UltimaEval, or PrimeraEval alone
    // The names that the running assignment writes to: set by the parse of the statement, or by the procedures that
    // compute with formulas, before the store operation is called.
    char CodigoSerieDestino[AnchoCodigo];
    char CodigoEscalarDestino[AnchoCodigo];
    char CodigoMatrizDestino[AnchoCodigo];
    std::int32_t
        SeriesPermitidas; // 0 makes the evaluator blind to the codes of series; set at every statement
    Ventana *ventana;     // owner of the messages
    std::vector<PasoNivel> *
        pasos; // receives the steps of the outermost level that begin at the bottom of the stack; null for none
};

extern EstadoEvaluador Evaluador;

// Clears the state of a statement (everything but the stack's memory, the bounds, the targets and the window) and sets
// SeriesPermitidas. Whoever evaluates several formulas in one statement calls it before each.
void LimpiarEvaluador();

// Allocates PilaColumnas, or frees it. False when there is no memory.
bool AbrirPilaColumnas();
void CerrarPilaColumnas();

// Evaluates buffer NivelLinea of `lineas` from `posicion` to where the text stops, over the rows `primera` to
// `ultima`. 1 with the value in the top column and `posicion` advanced, or 0 after a message "%s. Pto %d" for each
// level. With a negative bound or NumObs above 4,000 nothing is computed and the result is 1. A bound beyond the
// tables, or a formula that leaves nothing on the stack, fails with point 88 or 1119.
int EvaluarFormula(LineasSentencia &lineas, int &posicion, int primera, int ultima);

// The same for who takes the value of the row `primera` alone (ValorSuperior): a formula whose rows don't depend on each
// other is computed on that row only. Result, messages and bounds are those of EvaluarFormula.
int EvaluarPrimeraFila(LineasSentencia &lineas, int &posicion, int primera, int ultima);

// The top column. Only after an EvaluarFormula that gave 1 and left something (profundidad above 0).
ColumnaPila &ColumnaSuperior();

// Value of the top column at row PrimeraEval: what a scalar takes. 0.0 with an empty stack or a bound outside.
double ValorSuperior();

// Writes the parentheses that give multiplicative operators behind a plus or minus their priority, in `texto` from
// `desde` up to `hasta` (not included) and not beyond the end.
void AgruparPrioridades(std::string &texto, int desde, int hasta);

// Pushes a constant column, or the values and flags of a series, in the rows PrimeraEval to UltimaCalculada.
// False when the stack is full (50 columns) or not open.
bool ApilarNumero(double valor);
bool ApilarSerie(int serie);

// ----- Levels

// The buffer of the present level, or of one `encima` of it, which exists.
inline std::string &LineaDelNivel(LineasSentencia &lineas, int encima = 0) {
    return lineas[static_cast<std::size_t>(Evaluador.NivelLinea) + static_cast<std::size_t>(encima)];
}

inline const std::string &LineaDelNivel(const LineasSentencia &lineas) {
    return lineas[static_cast<std::size_t>(Evaluador.NivelLinea)];
}

// True when no further level exists.
inline bool UltimoNivel() {
    return Evaluador.NivelLinea >= MaxNiveles - 1;
}

// ----- Characters and tokens, shared with the matrix evaluator and the regression statements

// The character at a position, NUL at or behind the end.
inline char CaracterEn(const std::string &texto, int posicion) {
    return posicion >= 0 && posicion < static_cast<int>(texto.size())
               ? texto[static_cast<std::size_t>(posicion)]
               : '\0';
}

inline void SaltarBlancos(const std::string &texto, int &posicion) {
    while (CaracterEn(texto, posicion) == ' ') ++posicion;
}

// True for a blank and what stands from "(" to "|", without , ; [ \ ] _ and the backquote. Bytes above 127 are not.
bool EsCaracterFormula(char c);

// Index of the ")" that closes the "(" at `abre`, or the text's length when none does.
int ParentesisCierre(const std::string &texto, int abre);

// What parts the tokens of blocks and of regressions: the signs ( ) [ ] ' $ + * / - are tokens by themselves where they
// come first, and the blank is none. "=", "<", ">" and "," are parts of tokens.
bool EsSigno(char c);
bool EsDelimitador(char c);
