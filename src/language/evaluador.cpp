// The walk over the text of a series formula: tokens, elements, levels.
#include "language/evaluador_interno.h"

#include "language/notas.h"
#include "language/traza.h"
#include "matrix/formula_matriz.h"
#include "platform/numeros.h"
#include "platform/texto.h"
#include "store/archivo.h"

#include <algorithm>
#include <array>

EstadoEvaluador Evaluador;

void LimpiarEvaluador() {
    EstadoEvaluador &e = Evaluador;
    e.profundidad = 0;
    e.NivelLinea = 0;
    e.numOperadores = 0;
    e.numFunciones = 0;
    e.EstadoElemento = ElementoInicio;
    e.OperadorLogico[0] = '\0';
    e.MarcaRetardo = 0;
    e.ValorRetardo = 0;
    e.SeriesPermitidas = 1;
}

// ---------------------------------------------------------------------------------------------------------------
// Tokens

namespace {

// What each character can be; 1 shifted by the kind.
enum ClasesDeCaracter : std::uint8_t { DeFormula = 1, DeToken = 2, DeOperador = 4, DeSigno = 8 };

// From "(" to "|" without , ; [ \\ ] _ and the backquote, and the blank: bytes above 127 are no text of a formula. A code can
// begin with "_", which is no text of a formula otherwise. An operator is a token by itself: "@" isn't among them, so it
// needs blanks; the byte 191 has no operator behind it and ends as an unknown word.
consteval std::array<std::uint8_t, 256> ClasificarCaracteres() {
    constexpr std::string_view FueraDeFormula = ",;[\\]_`", Operadores = "+-/*:=><?|\xBF",
                               Signos = "()[]'$+*/-";
    std::array<std::uint8_t, 256> clases{};
    for (int i = 0; i < 256; ++i) {
        const char c = static_cast<char>(i);
        const auto esta = [c](std::string_view conjunto) {
            return conjunto.find(c) != std::string_view::npos;
        };
        std::uint8_t &clase = clases[static_cast<std::size_t>(i)];
        if (c == ' ' || (i >= '(' && i <= '|' && !esta(FueraDeFormula))) clase |= DeFormula | DeToken;
        if (c == '_') clase |= DeToken;
        if (esta(Operadores)) clase |= DeOperador;
        if (esta(Signos)) clase |= DeSigno;
    }
    return clases;
}

constexpr std::array<std::uint8_t, 256> Clases = ClasificarCaracteres();

bool EsDe(char c, ClasesDeCaracter clase) {
    return (Clases[static_cast<unsigned char>(c)] & clase) != 0;
}

} // namespace

bool EsCaracterFormula(char c) {
    return EsDe(c, DeFormula);
}

int ParentesisCierre(const std::string &texto, int abre) {
    const int largo = static_cast<int>(texto.size());
    int abiertos = 0;
    for (int i = abre; i < largo; ++i) {
        const char c = texto[static_cast<std::size_t>(i)];
        if (c == '(') ++abiertos;
        if (c == ')' && --abiertos == 0) return i;
    }
    return largo;
}

bool EsDelimitador(char c) {
    return c == ' ' || EsSigno(c);
}

bool EsSigno(char c) {
    return EsDe(c, DeSigno);
}

namespace {

constexpr int Bien = 1; // result of an element that was dealt with; any other is the number of a failure

bool EsDeToken(char c) {
    return EsDe(c, DeToken);
}

} // namespace

std::string_view SiguienteToken(const std::string &texto, int &posicion) {
    SaltarBlancos(texto, posicion);
    const int inicio = posicion;
    const char primero = CaracterEn(texto, inicio);
    if (primero == '(') return "(";
    if (EsDe(primero, DeOperador)) {
        ++posicion;
    } else {
        for (char c = primero; EsDeToken(c) && c != ' ' && c != '(' && c != ')' && !EsDe(c, DeOperador);)
            c = CaracterEn(texto, ++posicion);
    }
    const std::string_view token = std::string_view(texto).substr(
        static_cast<std::size_t>(inicio), static_cast<std::size_t>(posicion - inicio));
    SaltarBlancos(texto, posicion);
    return token;
}

// ---------------------------------------------------------------------------------------------------------------
// Elements

namespace {

int Elemento(std::string_view token, LineasSentencia &lineas, int &posicion);

bool TrasOperando() {
    return Evaluador.EstadoElemento == ElementoOperando;
}

int OperandoHecho() {
    Evaluador.EstadoElemento = ElementoOperando;
    return Bien;
}

// Where the text of each level begins to be read.
std::array<int, MaxNiveles> InicioNivel;

int InicioDelNivel() {
    return InicioNivel[static_cast<std::size_t>(Evaluador.NivelLinea)];
}

// What stands between the two places of the present level was worked out, and its value is on top. The ")" that a function
// leaves behind belongs to it.
int ReduccionHecha(const std::string &texto, int desde, int hasta) {
    if (TrazandoReducciones()) {
        const auto inicio = texto.begin() + desde, fin = texto.begin() + hasta;
        const bool abierto = std::count(inicio, fin, '(') > std::count(inicio, fin, ')');
        if (abierto && CaracterEn(texto, hasta) == ')') ++hasta;
        TrazarReduccionDeColumna(std::string_view(texto).substr(static_cast<std::size_t>(desde),
                                                                static_cast<std::size_t>(hasta - desde)),
                                 Evaluador.NivelLinea);
    }
    return OperandoHecho();
}

// The element behind an operator.
int ElementoDerecho(LineasSentencia &lineas, int &posicion) {
    const std::string_view token = SiguienteToken(LineaDelNivel(lineas), posicion);
    return Elemento(token, lineas, posicion);
}

int ElementoFuncion(std::string_view token, const FuncionSerie &funcion, LineasSentencia &lineas,
                    int &posicion) {
    if (TrasOperando()) return 4444;
    const std::string &texto = LineaDelNivel(lineas);
    const int nombre = static_cast<int>(token.data() - texto.data());
    const int fallo = AplicarFuncionSerie(funcion, lineas, posicion);
    if (fallo != 0) return fallo;
    return ReduccionHecha(texto, nombre, posicion);
}

// AND and OR. The word is kept in one place for the whole statement, so that a right side with a logical operator of
// its own overwrites it: A AND (B OR C) computes OR twice.
int ElementoLogico(std::string_view palabra, LineasSentencia &lineas, int &posicion) {
    if (!TrasOperando()) return 44;
    Evaluador.OperadorLogico[palabra.copy(Evaluador.OperadorLogico, 3)] = '\0';
    Evaluador.EstadoElemento = ElementoOperador;
    const int r = ElementoDerecho(lineas, posicion);
    if (r != Bien) return r + 200;
    if (Evaluador.profundidad < 2) return 29;
    if (!AplicarLogico()) return 220;
    return ReduccionHecha(LineaDelNivel(lineas), InicioDelNivel(), posicion);
}

int ElementoSerie(int serie, const std::string &texto, int &posicion) {
    if (!ApilarSerie(serie)) return 6;
    if (TrasOperando()) return 7;
    int retardo = 0;
    if (CaracterEn(texto, posicion) == '(') {
        if (!AplicarRetardo(serie, texto, posicion)) return 8;
        retardo = Evaluador.ValorRetardo;
    }
    SaltarBlancos(texto, posicion);
    if (CaracterEn(texto, posicion) == '[' && !AplicarPeriodo(serie, retardo, texto, posicion)) return 88;
    return OperandoHecho();
}

int ElementoConstante(double valor, int pilaLlena, int trasOperando) {
    if (!ApilarNumero(valor)) return pilaLlena;
    if (TrasOperando()) return trasOperando;
    return OperandoHecho();
}

int ElementoFuncionMatriz(std::string_view nombre, LineasSentencia &lineas, int &posicion) {
    if (TrasOperando()) return 13;
    // NOBS alone has no argument.
    if (nombre != "NOBS" && CaracterEn(LineaDelNivel(lineas), posicion) != '(') return 14;
    double valor = 0.0;
    if (ValorFuncionMatriz(nombre, valor, posicion, lineas, Evaluador.ventana) != 1) return 14;
    if (!ApilarNumero(valor)) return 14;
    const std::string &texto = LineaDelNivel(lineas);
    return ReduccionHecha(texto, static_cast<int>(nombre.data() - texto.data()), posicion);
}

// An operator takes exactly one element as its right operand and is applied at once: all are of equal rank, from left
// to right. The ranks there are were written into the text as parentheses (AgruparPrioridades).
int ElementoConOperador(char operador, LineasSentencia &lineas, int &posicion) {
    const bool signo = operador == '-' && !TrasOperando();
    const int detras = posicion;
    if (!signo && Evaluador.EstadoElemento == ElementoOperador) return 15;
    Evaluador.EstadoElemento = ElementoOperador;
    if (!AnotarOperador(operador)) return 16;
    const int r = ElementoDerecho(lineas, posicion);
    if (r != Bien) return r + 100;
    if (Evaluador.profundidad < 1) return 1119;
    if (signo) {
        if (!AplicarSigno()) return 18;
        const std::string &texto = LineaDelNivel(lineas);
        return ReduccionHecha(texto, static_cast<int>(texto.rfind('-', static_cast<std::size_t>(detras))),
                              posicion);
    }
    if (Evaluador.profundidad < 2) return 1129;
    if (!AplicarOperador()) return 20;
    // All operators are of one rank: what was worked out begins where the level begins.
    return ReduccionHecha(LineaDelNivel(lineas), InicioDelNivel(), posicion);
}

int ElementoParentesis(LineasSentencia &lineas, int &posicion) {
    if (TrasOperando()) return 21;
    if (UltimoNivel()) return 22;
    const std::string &texto = LineaDelNivel(lineas);
    const int cierre = ParentesisCierre(texto, posicion);
    if (EvaluarTrozo(lineas, posicion + 1, cierre) == 0) return 22;
    posicion = std::min(cierre + 1, static_cast<int>(texto.size()));
    return OperandoHecho();
}

int ElementoMatriz(int matriz, const std::string &texto, int &posicion) {
    if (TrasOperando()) return 211;
    const int r = ApilarElementoMatriz(matriz, texto, posicion);
    return r != Bien ? r : OperandoHecho();
}

int PalabraDesconocida(std::string_view token) {
    MostrarMensaje(Evaluador.ventana, Formatear("Función desconocida [%s]"_w, std::string(token).c_str()));
    return 199;
}

// How the ")" that a function leaves behind is consumed, and why a stray one does no harm.
int ElementoVacio(const std::string &texto, int &posicion) {
    if (posicion < static_cast<int>(texto.size())) ++posicion;
    return Bien;
}

int SerieVisible(std::string_view token) {
    return Evaluador.SeriesPermitidas != 0 && token.size() < AnchoCodigo ? BuscarSerie(token) : -1;
}

// One element; `posicion` is behind its token and the blanks there. The first test that fits decides: a name is a
// function rather than a series, and a series rather than a scalar or a matrix.
int Elemento(std::string_view token, LineasSentencia &lineas, int &posicion) {
    const std::string &texto = LineaDelNivel(lineas);
    // In front of all, because a scalar or a matrix can have a code of blanks, which nothing should call up.
    if (token.empty()) return ElementoVacio(texto, posicion);

    if (const FuncionSerie *f = BuscarFuncionSerie(token); f != nullptr)
        return ElementoFuncion(token, *f, lineas, posicion);
    if (token == "AND" || token == "OR") return ElementoLogico(token, lineas, posicion);
    if (const int s = SerieVisible(token); s >= 0) return ElementoSerie(s, texto, posicion);
    if (EsNumero(token)) return ElementoConstante(LeerDecimal(token), 9, 10);
    if (const int e = BuscarEscalar(token); e >= 0)
        return ElementoConstante(TablaEscalares.registro[e].Valor, 11, 12);
    if (EsFuncionMatriz(token)) return ElementoFuncionMatriz(token, lineas, posicion);
    if (EsOperador(token)) return ElementoConOperador(token[0], lineas, posicion);
    if (token == "(") return ElementoParentesis(lineas, posicion);
    if (const int m = BuscarMatriz(token); m >= 0) return ElementoMatriz(m, texto, posicion);
    return PalabraDesconocida(token);
}

// ---------------------------------------------------------------------------------------------------------------
// Levels

// Evaluates the buffer of the present level from `posicion` to the first character that is no text of a formula:
// what stands behind a comma or a semicolon is ignored without a word.
int EvaluarNivel(LineasSentencia &lineas, int &posicion) {
    Evaluador.EstadoElemento = ElementoInicio;
    InicioNivel[static_cast<std::size_t>(Evaluador.NivelLinea)] = posicion;
    const std::string &texto = LineaDelNivel(lineas);
    while (EsDeToken(CaracterEn(texto, posicion))) {
        const std::string_view token = SiguienteToken(texto, posicion);
        const int r = Elemento(token, lineas, posicion);
        if (r != Bien) return MensajePunto(Evaluador.ventana, texto, r);
        SaltarBlancos(texto, posicion);
    }
    if (CaracterEn(texto, posicion) == ',')
        Anotar("La fórmula se lee hasta la coma; los decimales se escriben con punto"_w);
    return 1;
}

} // namespace

int EvaluarTrozo(LineasSentencia &lineas, int desde, int hasta) {
    const std::string &texto = LineaDelNivel(lineas);
    const std::size_t inicio = std::min(static_cast<std::size_t>(desde), texto.size());
    LineaDelNivel(lineas, 1).assign(texto, inicio, static_cast<std::size_t>(hasta) - inicio);
    ++Evaluador.NivelLinea;
    int posicion = 0;
    const int r = EvaluarNivel(lineas, posicion);
    --Evaluador.NivelLinea;
    return r;
}

namespace {

// True when no word of the formula is a function that mixes rows. The words are taken as loosely as can be: a name of a
// function inside a text that is no formula costs time and nothing else.
bool FilasIndependientes(const std::string &texto, int posicion) {
    const std::string_view formula = texto;
    return !AlgunaPalabra(formula.substr(static_cast<std::size_t>(std::max(posicion, 0))),
                          [](std::string_view palabra) {
                              const FuncionSerie *f = BuscarFuncionSerie(palabra);
                              return f != nullptr && MezclaFilas(*f);
                          });
}

int EvaluarFilas(LineasSentencia &lineas, int &posicion, int primera, int ultima, bool soloPrimera) {
    Evaluador.PrimeraEval = primera;
    Evaluador.UltimaEval = ultima;
    Evaluador.UltimaCalculada = ultima;
    if (primera < 0 || ultima < 0 || ArchivoTrabajo.NumObs > MaxObservaciones) return 1;
    const std::string &texto = LineaDelNivel(lineas);
    // A sample without data ends at row 100,000.
    if (primera >= MaxObservaciones || ultima >= MaxObservaciones)
        return MensajePunto(Evaluador.ventana, texto, 88);
    if (soloPrimera && primera < ultima && FilasIndependientes(texto, posicion))
        Evaluador.UltimaCalculada = primera;
    if (EvaluarNivel(lineas, posicion) == 0) return 0;
    // An empty parenthesis counts as an operand and leaves none.
    return Evaluador.profundidad > 0 ? 1 : MensajePunto(Evaluador.ventana, texto, 1119);
}

} // namespace

int EvaluarFormula(LineasSentencia &lineas, int &posicion, int primera, int ultima) {
    return EvaluarFilas(lineas, posicion, primera, ultima, false);
}

int EvaluarPrimeraFila(LineasSentencia &lineas, int &posicion, int primera, int ultima) {
    return EvaluarFilas(lineas, posicion, primera, ultima, true);
}
