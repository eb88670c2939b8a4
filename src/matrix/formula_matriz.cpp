// The evaluator of matrix formulas: strictly from left to right, every operator as soon as its right operand is there.
#include "matrix/formula_matriz.h"

#include "language/traza.h"
#include "matrix/evaluador_matriz.h"
#include "platform/campos_texto.h"
#include "platform/texto.h"
#include "store/archivo.h"

#include <algorithm>
#include <array>

namespace {

bool EsUnoDe(char c, std::string_view caracteres) {
    return caracteres.find(c) != std::string_view::npos;
}

// Where the text of each level begins to be read.
std::array<int, MaxNiveles> InicioNivel;

// The text of the level was worked out up to `hasta`, and its value is on top. Always 1.
int ReduccionHecha(const std::string &texto, int hasta) {
    if (!TrazandoReducciones()) return 1;
    const int nivel = Evaluador.NivelLinea, desde = InicioNivel[static_cast<std::size_t>(nivel)];
    const std::string_view hecho = std::string_view(texto).substr(static_cast<std::size_t>(desde),
                                                                  static_cast<std::size_t>(hasta - desde));
    if (TipoSuperior() == OperandoEsEscalar && FormulaMatriz.numEscalares > 0) {
        TrazarReduccion(hecho, nivel, FormulaMatriz.PilaEscalares[FormulaMatriz.numEscalares - 1]);
    } else if (FormulaMatriz.tope >= 0) {
        const TemporalMatriz &t = TemporalSuperior();
        TrazarReduccion(hecho, nivel, t.datos, t.filas, t.columnas);
    }
    return 1;
}

int ParentesisComoOperando(LineasSentencia &lineas, int &posicion, Ventana *ventana) {
    if (FormulaMatriz.UltimoElemento == ElementoOperando) return ErrorEnSecuencia(53, ventana);
    if (EvaluarParentesisMatriz(lineas, posicion, ventana) == 0) return 0;
    FormulaMatriz.UltimoElemento = ElementoOperando;
    return AplicarSignoDirecto(lineas, posicion, ventana);
}

// An operator, its right operand and the operation.
int AplicarOperador(std::string_view operador, LineasSentencia &lineas, int &posicion, Ventana *ventana) {
    if (FormulaMatriz.UltimoElemento == ElementoOperador) return ErrorEnSecuencia(54, ventana);
    FormulaMatriz.UltimoElemento = ElementoOperador;
    if (ApilarOperacion(operador, ventana) == 0) return MensajePunto(ventana, "Error en operación"_w, 55);
    const std::string &texto = LineaDelNivel(lineas);
    const std::string_view token = LeerElementoMatriz(texto, posicion);
    switch (OperandoMatriz(token, lineas, posicion, ventana)) {
    case OperandoFallido: return 0;
    case OperandoTratado: break;
    case NoEsOperando:
        // Only what follows the token counts here: a word or sign before a parenthesis is passed over.
        if (CaracterEn(texto, posicion) != '(') return MensajePunto(ventana, texto, 56);
        if (ParentesisComoOperando(lineas, posicion, ventana) == 0) return 0;
    }
    return ReducirOperacion(ventana) == 1 ? ReduccionHecha(texto, posicion) : 0;
}

// A token that is no operand.
int AplicarElemento(std::string_view token, LineasSentencia &lineas, int &posicion, Ventana *ventana) {
    const char c = token.empty() ? '\0' : token[0];
    if (EsUnoDe(c, "*+-/")) return AplicarOperador(token, lineas, posicion, ventana);
    if (EsUnoDe(c, "'$"))
        return AplicarSigno(c, ventana) == 1 ? ReduccionHecha(LineaDelNivel(lineas), posicion) : 0;
    if (!token.empty()) return ErrorEnSecuencia(55, ventana);
    const char siguiente = CaracterEn(LineaDelNivel(lineas), posicion);
    if (siguiente == '(') return ParentesisComoOperando(lineas, posicion, ventana);
    // The reading would stand still at a ")" that closes nothing.
    if (siguiente == ')') return ErrorEnSecuencia(55, ventana);
    return 1;
}

// From the reset stacks to the stored result.
int EvaluarYGuardar(LineasSentencia &lineas, int &posicion, Ventana *ventana) {
    if (EvaluarExpresionMatriz(lineas, posicion, ventana) == 0) return 0;
    if (FormulaMatriz.tope != 0) return MensajePunto(ventana, "Secuencia no válida"_w, 67);
    const TemporalMatriz &resultado = TemporalSuperior();
    return GuardarMatrizDestino(resultado.datos, resultado.filas, resultado.columnas, ventana);
}

} // namespace

std::string_view LeerElementoMatriz(const std::string &texto, int &posicion) {
    SaltarBlancos(texto, posicion);
    const int inicio = posicion;
    for (char c = CaracterEn(texto, posicion); EsCaracterMatriz(c) && !EsUnoDe(c, " ()");
         c = CaracterEn(texto, posicion)) {
        const bool operador = EsUnoDe(c, "'$+*/-");
        if (operador && posicion > inicio) break;
        ++posicion;
        if (operador) break;
    }
    return std::string_view(texto).substr(static_cast<std::size_t>(inicio),
                                          static_cast<std::size_t>(posicion - inicio));
}

int EvaluarExpresionMatriz(LineasSentencia &lineas, int &posicion, Ventana *ventana) {
    const std::string &texto = LineaDelNivel(lineas);
    InicioNivel[static_cast<std::size_t>(Evaluador.NivelLinea)] = posicion;
    FormulaMatriz.UltimoElemento = ElementoInicio;
    while (EsCaracterMatriz(CaracterEn(texto, posicion))) {
        const std::string_view token = LeerElementoMatriz(texto, posicion);
        const bool producto = FormulaMatriz.UltimoElemento == ElementoOperando; // a matrix without a sign
        const ResultadosOperando r = OperandoMatriz(token, lineas, posicion, ventana);
        if (r == OperandoFallido) return 0;
        if (r == OperandoTratado && producto) ReduccionHecha(texto, posicion);
        if (r == NoEsOperando && AplicarElemento(token, lineas, posicion, ventana) == 0) return 0;
    }
    return 1;
}

int EvaluarParentesisMatriz(LineasSentencia &lineas, int &posicion, Ventana *ventana) {
    if (UltimoNivel()) return MensajePunto(ventana, "Excesivos paréntesis"_w, 12);
    const std::string &texto = LineaDelNivel(lineas);
    const int cierre = ParentesisCierre(texto, posicion);
    LineaDelNivel(lineas, 1).assign(texto, static_cast<std::size_t>(posicion) + 1,
                                    static_cast<std::size_t>(cierre - posicion - 1));
    posicion = std::min(cierre + 1, static_cast<int>(texto.size()));
    int dentro = 0;
    ++Evaluador.NivelLinea;
    const int r = EvaluarExpresionMatriz(lineas, dentro, ventana);
    --Evaluador.NivelLinea;
    return r;
}

int AplicarSignoDirecto(const LineasSentencia &lineas, int &posicion, Ventana *ventana) {
    const char c = CaracterEn(LineaDelNivel(lineas), posicion);
    if (c != '\'' && c != '$') return 1;
    ++posicion;
    return AplicarSigno(c, ventana);
}

int GuardarMatrizDestino(const double *datos, int filas, int columnas, Ventana *ventana) {
    switch (GuardarMatriz(Evaluador.CodigoMatrizDestino, datos, filas, columnas)) {
    case MatrizGuardada: return 1;
    case MatrizSinSitio: {
        const int cuantas = TablaMatrices.numero;
        return MensajePunto(ventana, Formatear("Demasiadas Matrices. Borre algunas.: %d", cuantas), 31);
    }
    case MatrizSinMemoria: break;
    }
    return MensajePunto(ventana, "Falta memoria", 25);
}

int EvaluarFormulaMatriz(LineasSentencia &lineas, int &posicion, Ventana *ventana, int primera, int ultima) {
    VaciarPilasMatriz();
    Evaluador.profundidad = 0;
    const std::string &texto = LineaDelNivel(lineas);
    posicion = std::clamp(posicion, 0, static_cast<int>(texto.size()));
    const auto abren = std::count(texto.begin() + posicion, texto.end(), '{');
    const auto cierran = std::count(texto.begin() + posicion, texto.end(), '}');
    if (abren != cierran || abren > 1) return MensajePunto(ventana, "Número inadecuado de llaves"_w, 58);
    AjustarAncho(Evaluador.CodigoMatrizDestino, AnchoCodigo);
    if (BuscarSerie(Evaluador.CodigoMatrizDestino) >= 0)
        return MensajePunto(ventana, "Nombre matriz no válido"_w, 28);
    if (BuscarEscalar(Evaluador.CodigoMatrizDestino) >= 0)
        return MensajePunto(ventana, "Nombre matriz no válido"_w, 29);
    SaltarBlancos(texto, posicion);
    if (CaracterEn(texto, posicion) == '{') return EvaluarLlaves(lineas, posicion, ventana, primera, ultima);
    const int r = EvaluarYGuardar(lineas, posicion, ventana);
    VaciarPilasMatriz();
    return r;
}

int ValorFuncionMatriz(std::string_view nombre, double &resultado, int &posicion, LineasSentencia &lineas,
                       Ventana *ventana) {
    VaciarPilasMatriz();
    FormulaMatriz.UltimoElemento = ElementoOperador;
    int r = AplicarFuncionMatriz(nombre, resultado, posicion, lineas, ventana);
    // What a matrix leaves here is dropped, but a sign behind it belongs to it and not to the series formula.
    if (r == 1 && DaMatriz(nombre)) r = AplicarSignoDirecto(lineas, posicion, ventana);
    VaciarPilasMatriz();
    return r;
}
