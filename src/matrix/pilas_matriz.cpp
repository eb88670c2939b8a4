// The stacks of the matrix evaluator.
#include "matrix/pilas_matriz.h"

#include <algorithm>
#include <utility>

namespace {

// The memory of all temporaries, one more than the stack has places. It is part of the program's own, which the
// system provides page by page as it is first used: no evaluation can lack memory, and none asks for it.
double Memoria[MaxTemporalesMatriz + 1][ElementosBloque];

constexpr EstadoFormulaMatriz EstadoInicial() {
    EstadoFormulaMatriz e{};
    for (int i = 0; i < MaxTemporalesMatriz; ++i) e.PilaTemporales[i].datos = Memoria[i];
    e.trabajo.datos = Memoria[MaxTemporalesMatriz];
    e.tope = -1;
    return e;
}

} // namespace

constinit EstadoFormulaMatriz FormulaMatriz = EstadoInicial();

void VaciarPilasMatriz() {
    FormulaMatriz.tope = -1;
    FormulaMatriz.numTipos = 0;
    FormulaMatriz.numEscalares = 0;
    FormulaMatriz.numOperaciones = 0;
    FormulaMatriz.UltimoElemento = 0;
}

TemporalMatriz *ApilarTemporal(int punto, Ventana *ventana) {
    if (FormulaMatriz.tope >= MaxTemporalesMatriz - 1) {
        MensajePunto(ventana, "Excesivas combinaciones", punto);
        return nullptr;
    }
    ++FormulaMatriz.tope;
    return &TemporalSuperior();
}

void FijarTamano(TemporalMatriz &temporal, int filas, int columnas) {
    const int n = filas * columnas;
    if (temporal.usados > n) std::fill(temporal.datos + n, temporal.datos + temporal.usados, 0.0);
    temporal.usados = n;
    temporal.filas = filas;
    temporal.columnas = columnas;
}

void TomarResultado(TemporalMatriz &destino, TemporalMatriz &origen, int filas, int columnas) {
    std::swap(destino.datos, origen.datos);
    std::swap(destino.usados, origen.usados);
    FijarTamano(destino, filas, columnas);
}

bool ApilarTipo(TiposDeOperandoMatriz tipo) {
    if (FormulaMatriz.numTipos >= MaxTemporalesMatriz) return false;
    FormulaMatriz.PilaTipos[FormulaMatriz.numTipos++] = tipo;
    return true;
}

bool ApilarEscalar(double valor) {
    if (FormulaMatriz.numEscalares >= MaxTemporalesMatriz) return false;
    FormulaMatriz.PilaEscalares[FormulaMatriz.numEscalares++] = valor;
    return true;
}

void QuitarTipos(int cuantos) {
    FormulaMatriz.numTipos = std::max(FormulaMatriz.numTipos - cuantos, 0);
}

void QuitarEscalar() {
    FormulaMatriz.numEscalares = std::max(FormulaMatriz.numEscalares - 1, 0);
}

std::int32_t TipoSuperior(int debajo) {
    const int i = FormulaMatriz.numTipos - 1 - debajo;
    return i >= 0 ? FormulaMatriz.PilaTipos[i] : static_cast<std::int32_t>(OperandoEsMatriz);
}
