// The operands of a matrix formula.
#include "matrix/evaluador_matriz.h"

#include "platform/numeros.h"
#include "store/archivo.h"

#include <algorithm>

namespace {

// The points of a number and of a scalar: behind an operand, and with either stack full.
struct PuntosEscalar {
    int trasOperando, tiposLlenos, escalaresLlenos;
};
constexpr PuntosEscalar PuntosDeNumero = {47, 48, 49};
constexpr PuntosEscalar PuntosDeEscalar = {50, 51, 52};

int ApilarOperandoEscalar(double valor, const PuntosEscalar &puntos, const LineasSentencia &lineas,
                          int &posicion, Ventana *ventana) {
    if (CaracterEn(LineaDelNivel(lineas), posicion) == '\'') {
        FormulaMatriz.EscalarTraspuesto = true;
        ++posicion;
    }
    if (FormulaMatriz.UltimoElemento == ElementoOperando)
        return ErrorEnSecuencia(puntos.trasOperando, ventana);
    FormulaMatriz.UltimoElemento = ElementoOperando;
    if (!ApilarTipo(OperandoEsEscalar)) return ErrorEnSecuencia(puntos.tiposLlenos, ventana);
    if (!ApilarEscalar(valor)) return ErrorEnSecuencia(puntos.escalaresLlenos, ventana);
    return 1;
}

int ApilarFuncion(std::string_view nombre, LineasSentencia &lineas, int &posicion, Ventana *ventana) {
    const bool daMatriz = DaMatriz(nombre);
    const bool cabe = daMatriz ? FormulaMatriz.numTipos < MaxTemporalesMatriz : ApilarTipo(OperandoEsEscalar);
    if (FormulaMatriz.UltimoElemento == ElementoOperando) return ErrorEnSecuencia(78, ventana);
    if (!cabe) return ErrorEnSecuencia(71, ventana);
    if (FormulaMatriz.numEscalares >= MaxTemporalesMatriz) return ErrorEnSecuencia(72, ventana);
    const char siguiente = CaracterEn(LineaDelNivel(lineas), posicion);
    if (nombre != "NOBS" && siguiente != '(') return ErrorEnSecuencia(78, ventana);
    double valor = 0.0;
    if (AplicarFuncionMatriz(nombre, valor, posicion, lineas, ventana) == 0)
        return MensajePunto(ventana, "Dimensiones matrices no válidas"_w, 80);
    if (!daMatriz && !ApilarEscalar(valor)) return ErrorEnSecuencia(72, ventana);
    return 1;
}

// Copies a matrix of the store to a new temporary and applies the sign directly behind its code. A block that the
// caller holds fixed stays so.
int ApilarMatriz(int matriz, const LineasSentencia &lineas, int &posicion, Ventana *ventana) {
    TemporalMatriz *t = ApilarTemporal(34, ventana);
    if (t == nullptr) return 0;
    const RegistroMatriz &r = TablaMatrices.registro[matriz];
    const bool fijada = TablaMatrices.EstadoBloque[matriz] == BloqueFijado;
    if (!FijarMatriz(matriz)) return MensajePunto(ventana, "Falta memoria", 33);
    std::copy_n(r.Datos, r.Filas * r.Columnas, t->datos);
    FijarTamano(*t, r.Filas, r.Columnas);
    if (!fijada) SoltarMatriz(matriz);
    return AplicarSignoDirecto(lineas, posicion, ventana);
}

// A row vector of the scalar on top, in its place. Its size, 1 by `filas`, goes to the place below the new one, where
// it does no good; the vector itself has the size that the last user of the new place left there.
int ApilarVectorDeEscalar(int filas, Ventana *ventana) {
    FormulaMatriz.EscalarTraspuesto = false;
    const double valor =
        FormulaMatriz.numEscalares > 0 ? FormulaMatriz.PilaEscalares[FormulaMatriz.numEscalares - 1] : 0.0;
    QuitarEscalar();
    TemporalMatriz *vector = ApilarTemporal(34, ventana);
    if (vector == nullptr) return 0;
    if (FormulaMatriz.tope > 0) {
        TemporalMatriz &debajo = FormulaMatriz.PilaTemporales[FormulaMatriz.tope - 1];
        debajo.filas = 1;
        debajo.columnas = filas;
    }
    std::fill_n(vector->datos, vector->filas * vector->columnas, valor);
    FijarTamano(*vector, vector->filas, vector->columnas);
    return 1;
}

// A matrix directly behind an operand: the product without a sign.
int MultiplicarPorMatriz(int matriz, const LineasSentencia &lineas, int &posicion, Ventana *ventana) {
    if (FormulaMatriz.numTipos < 1) return ErrorEnSecuencia(45, ventana);
    const bool trasEscalar = TipoSuperior() == OperandoEsEscalar;
    if (trasEscalar && !FormulaMatriz.EscalarTraspuesto) return ErrorEnSecuencia(44, ventana);
    // A kind without its matrix, such as the spare one of DIAG, is no left operand either.
    if (!trasEscalar && FormulaMatriz.tope < 0) return ErrorEnSecuencia(45, ventana);
    QuitarTipos(1);
    if (trasEscalar && ApilarVectorDeEscalar(TablaMatrices.registro[matriz].Filas, ventana) == 0) return 0;
    if (ApilarMatriz(matriz, lineas, posicion, ventana) == 0) return 0;
    ApilarTipo(OperandoEsMatriz);
    return MultiplicarSuperiores(43, ventana);
}

int ApilarOperandoMatriz(int matriz, const LineasSentencia &lineas, int &posicion, Ventana *ventana) {
    const RegistroMatriz &r = TablaMatrices.registro[matriz];
    // A damaged record, whose block can't hold what it says.
    if (r.Filas < 1 || r.Columnas < 1 ||
        r.Filas * r.Columnas > std::min(TablaMatrices.capacidad[matriz], ElementosBloque))
        return MensajePunto(ventana, "Falta memoria", 33);
    if (FormulaMatriz.UltimoElemento == ElementoOperando)
        return MultiplicarPorMatriz(matriz, lineas, posicion, ventana);
    if (ApilarMatriz(matriz, lineas, posicion, ventana) == 0) return 0;
    FormulaMatriz.UltimoElemento = ElementoOperando;
    return ApilarTipo(OperandoEsMatriz) ? 1 : ErrorEnSecuencia(46, ventana);
}

} // namespace

ResultadosOperando OperandoMatriz(std::string_view token, LineasSentencia &lineas, int &posicion,
                                  Ventana *ventana) {
    const auto resultado = [](int r) { return r == 1 ? OperandoTratado : OperandoFallido; };
    if (token.empty()) return NoEsOperando;
    if (const int matriz = BuscarMatriz(token); matriz >= 0)
        return resultado(ApilarOperandoMatriz(matriz, lineas, posicion, ventana));
    if (EsNumero(token))
        return resultado(
            ApilarOperandoEscalar(LeerDecimal(token), PuntosDeNumero, lineas, posicion, ventana));
    if (const int escalar = BuscarEscalar(token); escalar >= 0)
        return resultado(ApilarOperandoEscalar(TablaEscalares.registro[escalar].Valor, PuntosDeEscalar,
                                               lineas, posicion, ventana));
    if (EsFuncionMatriz(token)) return resultado(ApilarFuncion(token, lineas, posicion, ventana));
    return NoEsOperando;
}
