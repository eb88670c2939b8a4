// The parser of the equation: dependent series, regressors, generated series, and the range that lags bring.
#include "estimation/ecuacion.h"

#include "estimation/lector.h"
#include "estimation/ponderacion.h"
#include "estimation/white.h"
#include "language/lote_sentencias.h"
#include "language/notas.h"
#include "platform/numeros.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <algorithm>
#include <cstdlib>

namespace {

constexpr int AnchoTextoEcuacion = 100;
constexpr int MinimoObservaciones = 3;

// ----- Columns

int &CuentaSeries(const Estimacion &e) {
    return UltimaRegresion.SeriesRegresion[e.codigo];
}

bool EsConstante(const std::string &token) {
    return EsNumero(token) || BuscarEscalar(token) >= 0;
}

void AnadirSerie(Estimacion &e, const std::string &columna, const std::string &texto) {
    AnadirRegresor(e, columna, texto);
    ++CuentaSeries(e);
}

// Evaluates the text over the sample into the next _TMRn, whose name goes to `nombre`.
int GenerarRegresor(Estimacion &e, const std::string &texto, std::string &nombre) {
    nombre = Formatear("_TMR%d", e.numeroGenerada++);
    switch (SerieDeFormula(CadenaDe(e), nombre, texto,
                           "Regresor retardado, adelantado o de un período, como serie"_w)) {
    case FormulaErronea: return MensajePunto(e.ventana, SecuenciaNoValida, 851);
    case FormulaSinGuardar: return MensajePunto(e.ventana, FaltanSeries, 862);
    default: return 1;
    }
}

// The tests need the lagged regressor closest to the present; the first one of equals.
void AnotarRetardo(const Estimacion &e, int retardo, int &menor) {
    if (e.codigo != OrdenMC && e.codigo != OrdenMCP) return;
    if (UltimaRegresion.RegresorRetardado >= 0 && std::abs(retardo) >= menor) return;
    menor = std::abs(retardo);
    UltimaRegresion.RegresorRetardado = static_cast<int>(e.textos.size());
}

// SALARIO(-1): reads on behind the "(" up to and with the ")".
int LeerRetardo(Estimacion &e, Lector &lector, const std::string &serie, int &menorRetardo) {
    std::string token;
    int signo = 1;
    if (AlFinal(lector)) return MensajePunto(e.ventana, SecuenciaNoValida, 6422);
    if (!ExtraerToken(lector, token)) return 0;
    if (token == "-") {
        signo = -1;
        if (AlFinal(lector)) return MensajePunto(e.ventana, SecuenciaNoValida, 6522);
        if (!ExtraerToken(lector, token)) return 0;
        if (AlFinal(lector)) return MensajePunto(e.ventana, SecuenciaNoValida, 6922);
    }
    if (!EsNumero(token)) return MensajePunto(e.ventana, "Introduzca un número"_w, 661);
    const int retardo = signo * LeerEntero(token);
    e.retardoMayor = std::min(e.retardoMayor, retardo);
    e.adelantoMayor = std::max(e.adelantoMayor, retardo);
    if (!ExtraerToken(lector, token)) return 0;
    if (token != ")") return MensajePunto(e.ventana, SecuenciaNoValida, 662);
    const std::string texto = Formatear("%s(%d)", serie.c_str(), retardo);
    std::string nombre;
    if (GenerarRegresor(e, texto, nombre) == 0) return 0;
    AnotarRetardo(e, retardo, menorRetardo);
    AnadirSerie(e, nombre, texto);
    return 1;
}

// TRIGO[1994]: the same for "[" and "]".
int LeerPeriodo(Estimacion &e, Lector &lector, const std::string &serie) {
    std::string token;
    if (AlFinal(lector)) return MensajePunto(e.ventana, SecuenciaNoValida, 6422);
    if (!ExtraerToken(lector, token)) return 0;
    const std::string texto = Formatear("%s[%s]", serie.c_str(), token.c_str());
    std::string nombre;
    if (GenerarRegresor(e, texto, nombre) == 0) return 0;
    if (!ExtraerToken(lector, token)) return 0;
    if (token != "]") return MensajePunto(e.ventana, SecuenciaNoValida, 664);
    AnadirSerie(e, nombre, texto);
    return 1;
}

// The token that ends the text. A ")" here was left behind by a form that is complete, and brings no column.
int LeerUltimoRegresor(Estimacion &e, const Lector &lector, const std::string &token) {
    if (token.empty() || token == ")") return 1;
    if (BuscarSerie(token) >= 0) {
        AnadirSerie(e, token, token);
    } else if (EsConstante(token)) {
        AnadirRegresor(e, token, token);
    } else {
        return MensajePunto(
            e.ventana, Formatear("Serie no válida: [%s][%s]"_w, token.c_str(), lector.texto->c_str()), 664);
    }
    return 1;
}

int LeerRegresores(Estimacion &e, Lector &lector) {
    int menorRetardo = 0;
    std::string token;
    if (!ExtraerToken(lector, token)) return 0;
    while (!AlFinal(lector)) {
        if (BuscarSerie(token) < 0) {
            if (!EsConstante(token)) return MensajePunto(e.ventana, token, 66);
            AnadirRegresor(e, token, token);
            if (!ExtraerToken(lector, token)) return 0;
            continue;
        }
        const std::string serie = token;
        if (!ExtraerToken(lector, token)) return 0;
        if (token != "(" && token != "[") {
            AnadirSerie(e, serie, serie);
            continue;
        }
        const int bien =
            token == "(" ? LeerRetardo(e, lector, serie, menorRetardo) : LeerPeriodo(e, lector, serie);
        if (bien == 0 || !ExtraerToken(lector, token)) return 0;
    }
    return LeerUltimoRegresor(e, lector, token);
}

// ----- The two matrices

// The matrix from the brace list over the range of the regression. False after the evaluator's message.
bool MatrizDelRango(const Estimacion &e, std::string_view destino, const std::string &llaves,
                    std::string_view explicacion) {
    return MatrizDeFormula(CadenaDe(e), destino, llaves, explicacion) == FormulaGuardada;
}

int ConstruirDependiente(Estimacion &e) {
    if (MatrizDelRango(e, "_YDEP", "{" + e.dependiente + "} ", "Variable dependiente y, en columna"))
        return 1;
    return MensajePunto(e.ventana, Formatear("%s: [%s]", SecuenciaNoValida, e.dependiente.c_str()), 363);
}

// Lags move the start of the range up, leads its end down. Far moves stop just outside the tables, where the matrix
// can't be built.
int AjustarMuestra(Estimacion &e) {
    if (e.retardoMayor == 0 && e.adelantoMayor == 0) return 1;
    const long long primera = static_cast<long long>(Muestra.InicioRegresion) - e.retardoMayor;
    const long long ultima = static_cast<long long>(Muestra.FinRegresion) - e.adelantoMayor;
    Muestra.InicioRegresion = static_cast<int>(std::min<long long>(primera, MaxObservaciones));
    Muestra.FinRegresion = static_cast<int>(std::max<long long>(ultima, -1));
    return ConstruirDependiente(e);
}

int ConstruirRegresores(Estimacion &e) {
    if (e.columnas.empty()) return MensajePunto(e.ventana, "Indroduzca regresores", 869);
    std::string llaves = "{ ";
    for (const std::string &columna : e.columnas) llaves += columna + " ";
    llaves += "} ";
    if (MatrizDelRango(e, "_XIND", llaves,
                       "Regresores X: una columna por regresor, una fila por observación"_w))
        return 1;
    return MensajePunto(e.ventana, Formatear("%s: [%s]", SecuenciaNoValida, llaves.c_str()), 651);
}

// ----- The head of the statement

// (CN), (CH) or (CA n) before the equation of MC. Other letters are no failure, nor is a missing ")".
void AnalizarOpciones(const std::string &texto, int &posicion) {
    RegistroRegresion &u = UltimaRegresion;
    u.TipoCovarianza = CovarianzaNormal;
    u.RetardosCovarianza = 1;
    SaltarBlancos(texto, posicion);
    if (CaracterEn(texto, posicion) != '(') return;
    ++posicion;
    SaltarBlancos(texto, posicion);
    const std::string_view resto =
        std::string_view(texto).substr(std::min<std::size_t>(posicion, texto.size()));
    const std::string_view opcion = resto.substr(0, 2);
    posicion += static_cast<int>(opcion.size());
    if (opcion != "CN" && opcion != "CH" && opcion != "CA")
        Anotar("La opción no es CN, CH ni CA n: las covarianzas son las habituales"_w);
    if (opcion == "CH") u.TipoCovarianza = CovarianzaHeterocedasticidad;
    if (opcion == "CA") {
        u.TipoCovarianza = CovarianzaAutocorrelacion;
        SaltarBlancos(texto, posicion);
        const std::string_view numero = std::string_view(texto).substr(static_cast<std::size_t>(posicion));
        const std::size_t fin = std::min(numero.find_first_of(" )"), numero.size());
        u.RetardosCovarianza = std::max(LeerEntero(numero.substr(0, fin)), 0);
        posicion += static_cast<int>(fin);
    }
    SaltarBlancos(texto, posicion);
    posicion = std::min(posicion + 1, static_cast<int>(texto.size()));
    SaltarBlancos(texto, posicion);
}

// What comes before the equation, by code.
int LeerCabecera(Estimacion &e, std::string &linea, int &posicion) {
    RegistroRegresion &u = UltimaRegresion;
    if (e.codigo == OrdenMC || e.codigo == OrdenMCP) {
        u.MetodoRegresion = e.codigo;
        u.RegresorRetardado = -1;
    }
    if (e.codigo == OrdenMCP) {
        if (LeerPonderacion(e, linea, posicion) == 0) return 0;
        u.TipoCovarianza = CovarianzaNormal;
    }
    if (e.codigo == OrdenMC) {
        u.Ponderada = 0;
        AnalizarOpciones(linea, posicion);
    }
    if (e.codigo == OrdenCWH && PrepararWhite(e, linea, posicion) == 0) return 0;
    if (e.codigo == OrdenMC || e.codigo == OrdenMCP) {
        u.TextoEcuacion = linea.substr(std::min<std::size_t>(posicion, linea.size()), AnchoTextoEcuacion);
        u.SentenciaRegresion = linea;
    }
    return 1;
}

} // namespace

int LeerEcuacion(Estimacion &e, int posicion) {
    CuentaSeries(e) = 0;
    // CR compares with an earlier regression. Before the first one there is no sample that could be too small.
    const bool sinRegresion = e.codigo == OrdenCR && BuscarMatriz("_BETA") < 0;
    const bool sinMuestra = sinRegresion && Muestra.FinRegresion == 0;
    if (!sinMuestra && Muestra.FinRegresion - Muestra.InicioRegresion + 1 < MinimoObservaciones)
        return MensajePunto(e.ventana, "La muestra es muy pequeña"_w, 293);
    if (sinRegresion) return MensajePunto(e.ventana, "Calcule mínimo cuadrado"_w, 263);
    std::string &linea = LineaDelNivel(*e.lineas);
    if (LeerCabecera(e, linea, posicion) == 0) return 0;
    Lector lector{&linea, posicion, e.ventana};
    if (!ExtraerToken(lector, e.dependiente)) return 0;
    if (BuscarSerie(e.dependiente) < 0)
        return MensajePunto(e.ventana, Formatear("Serie desconocida:[%s]", e.dependiente.c_str()), 2663);
    if (ConstruirDependiente(e) == 0 || LeerRegresores(e, lector) == 0) return 0;
    if (e.codigo == OrdenCWH && AmpliarRegresores(e) == 0) return 0;
    return AjustarMuestra(e) == 1 && ConstruirRegresores(e) == 1 ? 1 : 0;
}
