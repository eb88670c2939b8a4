// The operators of the matrix evaluator.
#include "matrix/operaciones_matriz.h"

#include "matrix/inversa.h"
#include "platform/primitivas_matriz.h"
#include "platform/texto.h"

#include <algorithm>
#include <utility>

namespace {

int DimensionesNoValidas(int punto, Ventana *ventana) {
    return MensajePunto(ventana, "Dimensiones matrices no válidas"_w, punto);
}

int SecuenciaNoCorrecta(int punto, Ventana *ventana) {
    return MensajePunto(ventana, "Secuencia no correcta", punto);
}

int SumarSuperiores(double signo, int punto, Ventana *ventana) {
    TemporalMatriz &derecha = TemporalSuperior();
    TemporalMatriz &izquierda = FormulaMatriz.PilaTemporales[FormulaMatriz.tope - 1];
    const int filas = izquierda.filas, columnas = izquierda.columnas;
    if (derecha.filas != filas || derecha.columnas != columnas) return DimensionesNoValidas(punto, ventana);
    if (signo < 0.0) {
        EscalarPorMatriz(derecha.datos, -1.0, filas, columnas, FormulaMatriz.trabajo.datos);
        TomarResultado(derecha, FormulaMatriz.trabajo, filas, columnas);
    }
    SumarMatrices(izquierda.datos, derecha.datos, filas, columnas, FormulaMatriz.trabajo.datos);
    TomarResultado(izquierda, FormulaMatriz.trabajo, filas, columnas);
    --FormulaMatriz.tope;
    return 1;
}

int EscalarPorSuperior(double escalar, Ventana *ventana) {
    if (FormulaMatriz.tope < 0) return SecuenciaNoCorrecta(20, ventana);
    TemporalMatriz &m = TemporalSuperior();
    EscalarPorMatriz(m.datos, escalar, m.filas, m.columnas, FormulaMatriz.trabajo.datos);
    TomarResultado(m, FormulaMatriz.trabajo, m.filas, m.columnas);
    return 1;
}

// The operators between two matrices: point of what fails with fewer than two temporaries, and of the sizes.
struct OperadorDeMatrices {
    char operador;
    int puntoFaltan, puntoTamano;
};
constexpr OperadorDeMatrices OperadoresDeMatrices[] = {{'*', 14, 15}, {'+', 16, 17}, {'-', 18, 19}};

int OperarMatrices(const OperadorDeMatrices &o, Ventana *ventana) {
    if (FormulaMatriz.tope < 1) return SecuenciaNoCorrecta(o.puntoFaltan, ventana);
    if (o.operador == '*') return MultiplicarSuperiores(o.puntoTamano, ventana);
    return SumarSuperiores(o.operador == '-' ? -1.0 : 1.0, o.puntoTamano, ventana);
}

// A scalar divides the matrix on whichever side it stands, and 0.0 makes it a zero matrix.
int OperarConEscalar(char operador, Ventana *ventana) {
    if (FormulaMatriz.numEscalares < 1) return SecuenciaNoCorrecta(20, ventana);
    double factor = FormulaMatriz.PilaEscalares[FormulaMatriz.numEscalares - 1];
    if (operador == '/') factor = factor == 0.0 ? 0.0 : 1.0 / factor;
    if (EscalarPorSuperior(factor, ventana) == 0) return 0;
    QuitarEscalar();
    return 1;
}

int TrasponerSuperior(Ventana *ventana) {
    TemporalMatriz *resultado = ApilarTemporal(39, ventana);
    if (resultado == nullptr) return 0;
    TemporalMatriz &operando = FormulaMatriz.PilaTemporales[FormulaMatriz.tope - 1];
    // The rows beyond the hundredth are lost, silently: users know it, and no cross product of more observations is
    // to be made by a formula.
    const int filas = std::min(operando.filas, MaxFilasTraspuestas);
    TrasponerMatriz(operando.datos, filas, operando.columnas, resultado->datos);
    FijarTamano(*resultado, operando.columnas, filas);
    TomarResultado(operando, *resultado, resultado->filas, resultado->columnas);
    --FormulaMatriz.tope;
    return 1;
}

int InvertirSuperior(Ventana *ventana) {
    const int orden = TemporalSuperior().filas;
    if (orden != TemporalSuperior().columnas)
        return MensajePunto(ventana, "Dimensiones matrices No válidas"_w, 40);
    TemporalMatriz *resultado = ApilarTemporal(41, ventana);
    if (resultado == nullptr) return 0;
    TemporalMatriz &operando = FormulaMatriz.PilaTemporales[FormulaMatriz.tope - 1];
    FijarTamano(*resultado, orden, orden);
    const int r = InvertirMatriz(operando.datos, orden, resultado->datos, ventana);
    if (r == 0) return MensajePunto(ventana, "Error en inversa", 401);
    if (r == 2) return MensajePunto(ventana, "Matriz singular", 402);
    TomarResultado(operando, *resultado, orden, orden);
    --FormulaMatriz.tope;
    return 1;
}

} // namespace

int ApilarOperacion(std::string_view operador, Ventana *ventana) {
    if (FormulaMatriz.numOperaciones >= MaxOperadoresPendientes || operador.size() > 2)
        return MensajePunto(ventana, "Demasiadas operaciones", 11);
    char *sitio = FormulaMatriz.PilaOperaciones[FormulaMatriz.numOperaciones++];
    sitio[operador.copy(sitio, operador.size())] = '\0';
    return 1;
}

int ReducirOperacion(Ventana *ventana) {
    if (FormulaMatriz.numTipos < 1 || FormulaMatriz.numOperaciones < 1)
        return SecuenciaNoCorrecta(13, ventana);
    const char *texto = FormulaMatriz.PilaOperaciones[FormulaMatriz.numOperaciones - 1];
    const char operador = texto[0];
    const bool izquierda = TipoSuperior(1) == OperandoEsMatriz, derecha = TipoSuperior() == OperandoEsMatriz;
    const auto deMatrices = std::find_if(std::begin(OperadoresDeMatrices), std::end(OperadoresDeMatrices),
                                         [&](const OperadorDeMatrices &o) { return o.operador == operador; });
    bool quedaUno = true; // the operands give one matrix
    if (izquierda && derecha && deMatrices != std::end(OperadoresDeMatrices)) {
        if (OperarMatrices(*deMatrices, ventana) == 0) return 0;
    } else if (izquierda != derecha && (operador == '*' || operador == '/')) {
        if (OperarConEscalar(operador, ventana) == 0) return 0;
    } else if (operador == '-' && !derecha) {
        // The scalar only changes its sign, and waits for an operator that it never meets: A - 3 is A.
        if (FormulaMatriz.numEscalares > 0)
            FormulaMatriz.PilaEscalares[FormulaMatriz.numEscalares - 1] *= -1.0;
        quedaUno = false;
    } else if (operador == '-') {
        if (EscalarPorSuperior(-1.0, ventana) == 0) return 0;
        quedaUno = false; // the kind on top is a matrix before and after
    } else {
        return MensajePunto(ventana, Formatear("Secuencia no correcta: [%s],%d", texto, TipoSuperior()), 21);
    }
    if (quedaUno) {
        QuitarTipos(2);
        ApilarTipo(OperandoEsMatriz);
    }
    --FormulaMatriz.numOperaciones;
    return 1;
}

int MultiplicarSuperiores(int punto, Ventana *ventana) {
    const TemporalMatriz &derecha = TemporalSuperior();
    TemporalMatriz &izquierda = FormulaMatriz.PilaTemporales[FormulaMatriz.tope - 1];
    if (izquierda.columnas != derecha.filas) return DimensionesNoValidas(punto, ventana);
    // Rows and columns of the product that are both above the square root of 40,001 are refused, and with them
    // every other product that has more elements than a temporary.
    if (izquierda.filas * derecha.columnas > ElementosBloque)
        return MensajePunto(ventana, "Matrices demasiado grandes para multiplicar", 15);
    MultiplicarMatrices(izquierda.datos, derecha.datos, izquierda.filas, izquierda.columnas, derecha.columnas,
                        FormulaMatriz.trabajo.datos);
    TomarResultado(izquierda, FormulaMatriz.trabajo, izquierda.filas, derecha.columnas);
    --FormulaMatriz.tope;
    return 1;
}

int AplicarSigno(char signo, Ventana *ventana) {
    if (FormulaMatriz.tope < 0) return ErrorEnSecuencia(55, ventana);
    return signo == '\'' ? TrasponerSuperior(ventana) : InvertirSuperior(ventana);
}
