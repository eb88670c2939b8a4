// The operators of series formulas, on whole columns: the result replaces the left one.
#include "language/evaluador_interno.h"

#include <cmath>

namespace {

constexpr std::string_view Operadores = "+-*/:=><?@|";

// Divisors up to this, on both sides of zero, give 0.0 and not a missing value.
constexpr double DivisorMinimo = 0.000001;

// One loop for each operator, with the switch outside, so that the compiler can work on several rows at once.
bool Operar(char operador, double *a, const double *b, int n) {
    switch (operador) {
    case '+':
        for (int i = 0; i < n; ++i) a[i] += b[i];
        return true;
    case '-':
        for (int i = 0; i < n; ++i) a[i] -= b[i];
        return true;
    case '*':
        for (int i = 0; i < n; ++i) a[i] *= b[i];
        return true;
    case '/':
        for (int i = 0; i < n; ++i) a[i] = b[i] > DivisorMinimo || b[i] < -DivisorMinimo ? a[i] / b[i] : 0.0;
        return true;
    case ':':
        for (int i = 0; i < n; ++i) a[i] = std::pow(a[i], b[i]);
        return true;
    case '=':
        for (int i = 0; i < n; ++i) a[i] = a[i] == b[i] ? 1.0 : 0.0;
        return true;
    case '>':
        for (int i = 0; i < n; ++i) a[i] = a[i] > b[i] ? 1.0 : 0.0;
        return true;
    case '<':
        for (int i = 0; i < n; ++i) a[i] = a[i] < b[i] ? 1.0 : 0.0;
        return true;
    case '?':
        for (int i = 0; i < n; ++i) a[i] = a[i] >= b[i] ? 1.0 : 0.0;
        return true;
    case '@':
        for (int i = 0; i < n; ++i) a[i] = a[i] <= b[i] ? 1.0 : 0.0;
        return true;
    case '|':
        for (int i = 0; i < n; ++i) a[i] = a[i] != b[i] ? 1.0 : 0.0;
        return true;
    default: return false;
    }
}

double Logico(char operador, double a, double b) {
    return (operador == 'A' ? a > 0.0 && b > 0.0 : a > 0.0 || b > 0.0) ? 1.0 : 0.0;
}

// Keeps what is about to be done to the two top columns, for who computes other rows by the same steps.
void AnotarPaso(char operador) {
    const EstadoEvaluador &e = Evaluador;
    if (e.pasos != nullptr && e.NivelLinea == 0 && e.profundidad == 2)
        e.pasos->push_back({operador, Columna(0).valor[e.PrimeraEval]});
}

} // namespace

bool OperarValor(char operador, double &izquierdo, double derecho) {
    if (operador != 'A' && operador != 'O') return Operar(operador, &izquierdo, &derecho, 1);
    izquierdo = Logico(operador, izquierdo, derecho);
    return true;
}

bool EsOperador(std::string_view token) {
    return token.size() == 1 && Operadores.find(token[0]) != std::string_view::npos;
}

bool AnotarOperador(char operador) {
    EstadoEvaluador &e = Evaluador;
    if (e.numOperadores >= MaxOperadoresPendientes) return false;
    e.OperadoresPendientes[static_cast<std::size_t>(e.numOperadores++)] = {operador, '\0', '\0'};
    return true;
}

void JuntarPresencia(ColumnaPila &a, const ColumnaPila &b) {
    const FilasEvaluacion f = FilasDeEvaluacion();
    for (int i = f.desde; i <= f.hasta; ++i) a.presente[i] &= b.presente[i];
}

bool AplicarOperador() {
    EstadoEvaluador &e = Evaluador;
    const char operador = e.OperadoresPendientes[static_cast<std::size_t>(--e.numOperadores)][0];
    AnotarPaso(operador);
    ColumnaPila &a = Columna(1);
    const ColumnaPila &b = Columna(0);
    const FilasEvaluacion f = FilasDeEvaluacion();
    if (!Operar(operador, a.valor + f.desde, b.valor + f.desde, f.hasta - f.desde + 1)) return false;
    JuntarPresencia(a, b);
    --e.profundidad;
    return true;
}

bool AplicarSigno() {
    // The zero on the left takes a place of the stack and has the flags of the operand, so that only the values change:
    // they can change in place once the room is there. 0 - x, and not -x: the sign of a zero is positive.
    if (Evaluador.profundidad >= MaxColumnasPila) return false;
    --Evaluador.numOperadores;
    ColumnaPila &c = Columna(0);
    const FilasEvaluacion f = FilasDeEvaluacion();
    for (int i = f.desde; i <= f.hasta; ++i) c.valor[i] = 0.0 - c.valor[i];
    return true;
}

bool AplicarLogico() {
    const std::string_view palabra = Evaluador.OperadorLogico;
    if (palabra != "AND" && palabra != "OR") return false;
    AnotarPaso(palabra[0]);
    ColumnaPila &a = Columna(1);
    const ColumnaPila &b = Columna(0);
    const FilasEvaluacion f = FilasDeEvaluacion();
    for (int i = f.desde; i <= f.hasta; ++i) a.valor[i] = Logico(palabra[0], a.valor[i], b.valor[i]);
    JuntarPresencia(a, b);
    --Evaluador.profundidad;
    return true;
}
