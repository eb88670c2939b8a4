// Cross products and sums of squares over the observations.
//
// These sums are defined as chains of formulas, two for each observation ("_TMF5 + _TMF4"): with matrices of k by k they
// are within the limits of a matrix formula, which X'X over 4,000 rows is not. Here the first observation runs as its
// formulas, which brings every failure that the chain can have; the others are added in place, every element in the
// order of the chain, so that the results are the same to the last bit.
#include "estimation/momentos.h"

#include "language/traza.h"
#include "platform/primitivas_matriz.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <array>

namespace {

bool Guardar(std::string_view matriz, const double *datos, int filas, int columnas) {
    return GuardarMatriz(matriz, datos, filas, columnas) == MatrizGuardada;
}

// ----- The trace: x(t) are the regressors of an observation as a column, y(t) and e(t) its dependent and its residual,
// from the matrices `operandos`.

// The product of the first observation, which is in _TMF4.
void TrazarProducto(const char *formula, const char *operandos, const char *explicacion) {
    if (!Trazando()) return;
    const int primera = FilasDeRegresion().primera;
    TrazarMatriz("_TMF4", ConPeriodos(formula, {primera, primera}), explicacion, {primera, primera},
                 operandos);
}

void TrazarSuma(const char *destino, const char *formula, const char *operandos, const char *explicacion) {
    if (Trazando())
        TrazarMatriz(destino, ConPeriodos(formula, FilasDeRegresion()), explicacion, FilasDeRegresion(),
                     operandos);
}

// `nombre` is that of the number, which isn't stored; `retardo` that of the first observation that counts.
void TrazarNumero(const char *nombre, const std::string &formula, const char *operandos, double valor,
                  const char *explicacion, int retardo = 0) {
    if (!Trazando()) return;
    FilasTraza filas = FilasDeRegresion();
    filas.primera += retardo;
    TrazarEscalar(nombre, ConPeriodos(formula, filas), valor, explicacion, filas, operandos);
}

// Runs the formula "_TMF4" into the matrix where a sum begins.
int EmpezarSuma(Estimacion &e, std::string_view destino, int punto) {
    if (MatrizDeFormula(CadenaDe(e), destino, "_TMF4", "Primer término de la suma"_w) == FormulaGuardada)
        return 1;
    return MensajePunto(e.ventana, SecuenciaNoValida, punto);
}

// Adds the outer products of `filas` rows of k elements from `x` on to the upper half of `XX`, and their products with
// `y` to `Xy`: every element row after row, in registers.
template <int Filas>
void SumarBloque(const double *__restrict x, const double *__restrict y, int k, double *__restrict XX,
                 double *__restrict Xy) {
    for (int a = 0; a < k; ++a) {
        double *fila = XX + a * k;
        for (int b = a; b < k; ++b) {
            double suma = fila[b];
            for (int f = 0; f < Filas; ++f) suma += x[f * k + a] * x[f * k + b];
            fila[b] = suma;
        }
        for (int f = 0; f < Filas; ++f) Xy[a] += y[f] * x[f * k + a];
    }
}

// Adds rows 1 to n - 1. An outer product is symmetric to the last bit, so the lower half is a copy of the upper one.
void SumarFilas(const double *X, const double *y, int n, int k, double *XX, double *Xy) {
    constexpr int Bloque = 4;
    int i = 1;
    for (; i + Bloque <= n; i += Bloque) SumarBloque<Bloque>(X + i * k, y + i, k, XX, Xy);
    for (; i < n; ++i) SumarBloque<1>(X + i * k, y + i, k, XX, Xy);
    for (int a = 0; a < k; ++a)
        for (int b = 0; b < a; ++b) XX[a * k + b] = XX[b * k + a];
}

} // namespace

int AcumularMomentos(Estimacion &e) {
    const int n = e.observaciones, k = e.regresores;
    // Its elements are the values of the dependent's series at the observations of the range, weighted as it is.
    const double *y = ElementosDe("_YDEP");
    const double *X = ElementosDe("_XIND");
    std::array<double, static_cast<std::size_t>(MaxColumnasPila) * MaxColumnasPila> producto;

    MultiplicarMatrices(X, X, k, 1, k, producto.data());
    if (!Guardar("_TMF2", X, k, 1) || !Guardar("_TMF3", X, 1, k) || !Guardar("_TMF4", producto.data(), k, k))
        return MensajePunto(e.ventana, SecuenciaNoValida, 6532);
    TrazarProducto("x(t) x(t)'", "_XIND", "Producto de los regresores de la primera observación: x x'"_w);
    if (EmpezarSuma(e, "_TMF5", 6532) == 0) return 0;
    EscalarPorMatriz(X, y[0], k, 1, producto.data());
    if (!Guardar("_TMF4", producto.data(), k, 1)) return MensajePunto(e.ventana, SecuenciaNoValida, 6534);
    TrazarProducto("x(t) y(t)", "_XIND _YDEP",
                   "Producto de los regresores y la dependiente en la primera observación: x y"_w);
    if (EmpezarSuma(e, "_TMF6", 6534) == 0) return 0;

    SumarFilas(X, y, n, k, ElementosDe("_TMF5"), ElementosDe("_TMF6"));
    SoltarMatriz(BuscarMatriz("_TMF5"));
    SoltarMatriz(BuscarMatriz("_TMF6"));
    TrazarSuma("_TMF5", "suma de x(t) x(t)'", "_XIND", "Productos cruzados de los regresores: X'X");
    TrazarSuma("_TMF6", "suma de x(t) y(t)", "_XIND _YDEP",
               "Productos cruzados de los regresores y la dependiente: X'y");
    const double *ultima = X + (n - 1) * k;
    EscalarPorMatriz(ultima, y[n - 1], k, 1, producto.data());
    const bool bien = Guardar("_TMF2", ultima, k, 1) && Guardar("_TMF3", ultima, 1, k) &&
                      Guardar("_TMF4", producto.data(), k, 1);
    return bien ? 1 : MensajePunto(e.ventana, SecuenciaNoValida, 6534);
}

int AcumularResiduos(Estimacion &e) {
    const double *residuos = ElementosDe("_RESM");
    const auto cuadrado = [&](int i) { return residuos[i] * residuos[i]; };
    double termino = cuadrado(0);
    if (!Guardar("_TMF4", &termino, 1, 1)) return MensajePunto(e.ventana, SecuenciaNoValida, 6532);
    TrazarProducto("e(t) e(t)", "_RESM", "Cuadrado del primer residuo");
    if (EmpezarSuma(e, "_SCR1", 6532) == 0) return 0;
    double *suma = ElementosDe("_SCR1");
    for (int i = 1; i < e.observaciones; ++i) *suma += cuadrado(i);
    SoltarMatriz(BuscarMatriz("_SCR1"));
    TrazarSuma("_SCR1", "suma de e(t) e(t)", "_RESM", "Suma de cuadrados de los residuos");
    termino = cuadrado(e.observaciones - 1);
    return Guardar("_TMF4", &termino, 1, 1) ? 1 : MensajePunto(e.ventana, SecuenciaNoValida, 6532);
}

int SumarDirecto(Estimacion &e) {
    const double *y = ElementosDe("_YDEP");
    const double *residuos = ElementosDe("_RESM");
    if (y == nullptr || residuos == nullptr) return MensajePunto(e.ventana, SecuenciaNoValida, 86);
    const int n = e.observaciones;
    e.suma = e.variacion = e.saltos = 0.0;
    for (int i = 0; i < n; ++i) e.suma += y[i];
    e.media = e.suma / n;
    for (int i = 0; i < n; ++i) e.variacion += (y[i] - e.media) * (y[i] - e.media);
    for (int i = 1; i < n; ++i) e.saltos += (residuos[i] - residuos[i - 1]) * (residuos[i] - residuos[i - 1]);
    TrazarNumero("total", "suma de y(t)", "_YDEP", e.suma, "Suma de la variable dependiente");
    TrazarNumero("media", Formatear("total / %d", n), "", e.media, "Media de la variable dependiente");
    TrazarNumero("variacion", "suma de (y(t) - media)^2", "_YDEP", e.variacion,
                 "Suma de cuadrados de la variable dependiente respecto a su media");
    TrazarNumero("saltos", "suma de (e(t) - e(t-1))^2", "_RESM", e.saltos,
                 "Suma de cuadrados de las diferencias de residuos sucesivos", 1);
    return 1;
}
