// The reserved functions of matrices.
#include "matrix/evaluador_matriz.h"

#include "platform/primitivas_matriz.h"
#include "store/periodos.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace {

// ----- Functions that give a scalar

int Elementos(const TemporalMatriz &m) {
    return m.filas * m.columnas;
}

double Suma(const TemporalMatriz &m) {
    return std::accumulate(m.datos, m.datos + Elementos(m), 0.0);
}

double Det(const TemporalMatriz &m) {
    return Determinante(m.datos, m.filas);
}

double LogaritmoDe(double x) {
    return x > 0.0 ? std::log(x) : 0.0;
}

double LogaritmoDet(const TemporalMatriz &m) {
    return LogaritmoDe(Det(m));
}

double Traza(const TemporalMatriz &m) {
    double suma = 0.0;
    for (int i = 0; i < m.filas; ++i) suma += m.datos[i * m.columnas + i];
    return suma;
}

double Minimo(const TemporalMatriz &m) {
    return *std::min_element(m.datos, m.datos + std::max(Elementos(m), 1));
}

double Maximo(const TemporalMatriz &m) {
    return *std::max_element(m.datos, m.datos + std::max(Elementos(m), 1));
}

double Filas(const TemporalMatriz &m) {
    return m.filas;
}

double Columnas(const TemporalMatriz &m) {
    return m.columnas;
}

double PrimerElemento(const TemporalMatriz &m) {
    return m.datos[0];
}

// ----- Functions that give a matrix. 1, or 0, after a message when a stack is full.

// The result in the temporary above the operand comes down to it. The argument has its kind on the stack already, and
// this second one stays behind as a spare: 2 * DIAG(X) fails by it, while DIAG(X) * 2 doesn't notice.
int BajarResultado(TemporalMatriz &resultado, int filas, int columnas, Ventana *ventana) {
    FijarTamano(resultado, filas, columnas);
    TomarResultado(FormulaMatriz.PilaTemporales[FormulaMatriz.tope - 1], resultado, filas, columnas);
    --FormulaMatriz.tope;
    return ApilarTipo(OperandoEsMatriz) ? 1 : ErrorEnSecuencia(46, ventana);
}

int Diagonal(Ventana *ventana) {
    const double *columna = TemporalSuperior().datos;
    const int n = TemporalSuperior().filas;
    if (n > ElementosBloque / n) return 0; // more elements than a temporary has
    TemporalMatriz *t = ApilarTemporal(34, ventana);
    if (t == nullptr) return 0;
    std::fill_n(t->datos, n * n, 0.0);
    for (int i = 0; i < n; ++i) t->datos[i * n + i] = columna[i];
    return BajarResultado(*t, n, n, ventana);
}

int VectorDiagonal(Ventana *ventana) {
    const double *m = TemporalSuperior().datos;
    const int n = TemporalSuperior().filas;
    TemporalMatriz *t = ApilarTemporal(34, ventana);
    if (t == nullptr) return 0;
    for (int i = 0; i < n; ++i) t->datos[i] = m[i * n + i];
    return BajarResultado(*t, 1, n, ventana);
}

int CambiarElementos(double (*funcion)(double)) {
    TemporalMatriz &m = TemporalSuperior();
    std::transform(m.datos, m.datos + Elementos(m), m.datos, funcion);
    FijarTamano(m, m.filas, m.columnas);
    return 1;
}

int LogaritmoMatriz(Ventana *) {
    return CambiarElementos(LogaritmoDe);
}

int RaizMatriz(Ventana *) {
    return CambiarElementos([](double x) { return x > 0.0 ? std::sqrt(x) : 0.0; });
}

// ----- The table

enum Argumentos { Cualquiera, Cuadrada, UnElemento, UnaColumna };

struct FuncionDeMatriz {
    std::string_view nombre;
    Argumentos argumento;
    double (*escalar)(const TemporalMatriz &);
    int (*matriz)(Ventana *);
};

constexpr FuncionDeMatriz Funciones[] = {
    {"SUMA", Cualquiera, Suma, nullptr},
    {"DET", Cuadrada, Det, nullptr},
    {"LNDET", Cuadrada, LogaritmoDet, nullptr},
    {"TRAZA", Cuadrada, Traza, nullptr},
    {"MIN", Cualquiera, Minimo, nullptr},
    {"MAX", Cualquiera, Maximo, nullptr},
    {"NFILA", Cualquiera, Filas, nullptr},
    {"NCOLU", Cualquiera, Columnas, nullptr},
    {"NREG", Cualquiera, Columnas, nullptr},
    {"ESCAL", UnElemento, PrimerElemento, nullptr},
    {"DIAG", UnaColumna, nullptr, Diagonal},
    {"VECT", Cuadrada, nullptr, VectorDiagonal},
    {"LNMT", Cualquiera, nullptr, LogaritmoMatriz},
    {"RCMT", Cualquiera, nullptr, RaizMatriz},
    {"MINC", Cualquiera, nullptr,
     nullptr}, // reserved, but nothing is computed: its argument stays on the stack
};

const FuncionDeMatriz *BuscarFuncion(std::string_view nombre) {
    const auto *f = std::find_if(std::begin(Funciones), std::end(Funciones),
                                 [&](const FuncionDeMatriz &g) { return g.nombre == nombre; });
    return f != std::end(Funciones) ? f : nullptr;
}

bool Conviene(Argumentos argumento, const TemporalMatriz &m) {
    switch (argumento) {
    case Cuadrada: return m.filas == m.columnas;
    case UnElemento: return m.filas == 1 && m.columnas == 1;
    case UnaColumna: return m.columnas == 1;
    case Cualquiera: break;
    }
    return true;
}

} // namespace

bool DaMatriz(std::string_view funcion) {
    const FuncionDeMatriz *f = BuscarFuncion(funcion);
    return f != nullptr && f->matriz != nullptr;
}

int AplicarFuncionMatriz(std::string_view nombre, double &resultado, int &posicion, LineasSentencia &lineas,
                         Ventana *ventana) {
    resultado = 0.0;
    if (nombre == "NOBS") {
        // The size of the whole sample, whatever rows the formula works on.
        resultado = static_cast<double>(FinDeCalculo(Muestra.FinMuestra)) - Muestra.InicioMuestra + 1.0;
        FormulaMatriz.UltimoElemento = ElementoOperando;
        return 1;
    }
    const FuncionDeMatriz *f = BuscarFuncion(nombre);
    if (f == nullptr) return 0;
    if (FormulaMatriz.UltimoElemento == ElementoOperando) return ErrorEnSecuencia(53, ventana);
    if (CaracterEn(LineaDelNivel(lineas), posicion) != '(') return 0;
    if (EvaluarParentesisMatriz(lineas, posicion, ventana) == 0) return 0;
    FormulaMatriz.UltimoElemento = ElementoOperando;
    if (FormulaMatriz.tope < 0) return 0;
    if (f->matriz == nullptr && AplicarSignoDirecto(lineas, posicion, ventana) == 0) return 0;
    if (!Conviene(f->argumento, TemporalSuperior())) return 0;
    if (f->matriz != nullptr) return f->matriz(ventana);
    if (f->escalar == nullptr) return 1;
    resultado = f->escalar(TemporalSuperior());
    --FormulaMatriz.tope;
    QuitarTipos(1);
    return 1;
}
