// Assignment statements: the target, the "=", and the formula behind it.
#include "language/asignaciones.h"

#include "language/lote_sentencias.h"
#include "language/traza.h"
#include "matrix/formula_matriz.h"
#include "platform/campos_texto.h"
#include "platform/texto.h"
#include "store/archivo.h"

#include <algorithm>
#include <cstring>

namespace {

// The text from `posicion` up to the first of `fines`, or to the end; `posicion` is left there.
std::string_view LeerHasta(const std::string &linea, int &posicion, const char *fines) {
    const std::size_t desde = std::min(static_cast<std::size_t>(posicion), linea.size());
    const std::size_t hasta = std::min(linea.find_first_of(fines, desde), linea.size());
    posicion = static_cast<int>(hasta);
    return std::string_view(linea).substr(desde, hasta - desde);
}

int Tamano(const std::string &linea) {
    return static_cast<int>(linea.size());
}

// SER FICTIC, with FICTIC as a word of its own: "SER FICTIC=3" is a series of that name.
void ReconocerFICTIC(const std::string &linea, int &posicion, int &codigo) {
    int detras = posicion;
    if (LeerHasta(linea, detras, " ") == "FICTIC") {
        codigo = OrdenFICTIC;
        posicion = std::min(detras + 1, Tamano(linea));
    }
    SaltarBlancos(linea, posicion);
}

// The period of OBS, from behind the "[" to the "]", without blanks; then what stands before the "=" is passed over.
std::string LeerPeriodo(const std::string &linea, int &posicion) {
    posicion = std::min(posicion + 1, Tamano(linea));
    std::string periodo = SinBlancos(LeerHasta(linea, posicion, "]"));
    posicion = std::min(posicion + 1, Tamano(linea));
    LeerHasta(linea, posicion, " =");
    return periodo;
}

// Reads the target into the buffer of its kind. 1, or 0 after the message of a name that can't be one.
int LeerObjetivo(const std::string &linea, int &posicion, int codigo, std::string &periodo,
                 Ventana *ventana) {
    const char *fines = codigo == OrdenOBS ? " [" : codigo == OrdenFICTIC ? " " : " =";
    Codigo objetivo;
    const std::string_view nombre = LeerHasta(linea, posicion, fines);
    // A blank name would pass as a code. It is refused: nobody could reach what it names, but every empty token of a
    // later formula would find it.
    if (nombre.empty() || CodigoValido(nombre, objetivo) == 0)
        return MensajeNumerado(ventana, 36, "Nombre no válido"_w);
    if (codigo == OrdenOBS) periodo = LeerPeriodo(linea, posicion);
    char *destino = codigo == OrdenESC   ? Evaluador.CodigoEscalarDestino
                    : codigo == OrdenMAT ? Evaluador.CodigoMatrizDestino
                                         : Evaluador.CodigoSerieDestino;
    std::memcpy(destino, objetivo, AnchoCodigo);
    return 1;
}

// 1 with `posicion` on the formula, or 0 after a message.
int LeerIgual(const std::string &linea, int &posicion, Ventana *ventana) {
    SaltarBlancos(linea, posicion);
    if (CaracterEn(linea, posicion) != '=') {
        const std::string_view caracter =
            std::string_view(linea).substr(static_cast<std::size_t>(posicion), 1);
        std::string texto = "Caracter no válido. Punto 32, caracter: ["_w;
        MostrarMensaje(ventana, texto.append(caracter).append("]"));
        return 0;
    }
    ++posicion;
    SaltarBlancos(linea, posicion);
    return posicion < Tamano(linea) ? 1 : MensajeNumerado(ventana, 40, "Faltan datos");
}

int AsignarMatriz(LineasSentencia &lineas, int &posicion, Ventana *ventana, int primera, int ultima) {
    const int r = EvaluarFormulaMatriz(lineas, posicion, ventana, primera, ultima);
    Evaluador.NivelLinea = 0; // the brace form leaves it raised
    LimpiarBufferMatriz();
    return r;
}

int AsignarSerie(LineasSentencia &lineas, int &posicion, Ventana *ventana, int primera, int ultima) {
    if (CaracterEn(lineas[0], posicion) == '{')
        return SerieDesdeMatriz(Evaluador.CodigoSerieDestino, lineas[0], posicion + 1, ventana);
    if (SerieRecursiva(posicion, ventana, lineas, primera, ultima) == 1) return 1;
    return EvaluarFormula(lineas, posicion, primera, ultima) == 1 ? GuardarSerie() : 0;
}

int AsignarEscalar(LineasSentencia &lineas, int &posicion, Ventana *ventana, int primera, int ultima) {
    if (EvaluarPrimeraFila(lineas, posicion, primera, ultima) != 1) return 0;
    if (GuardarEscalar() == 0) return 1;
    MostrarMensaje(ventana, "Error en la generación de escalares"_w);
    return 0;
}

int Calcular(LineasSentencia &lineas, int &posicion, Ventana *ventana, int primera, int ultima) {
    if (EvaluarPrimeraFila(lineas, posicion, primera, ultima) != 1) return 0;
    MostrarMensaje(ventana, Formatear(" %8.4lf ", ValorSuperior()), "Resultado");
    return 1;
}

int AsignarObservacion(LineasSentencia &lineas, int &posicion, const std::string &periodo, Ventana *ventana,
                       int primera, int ultima) {
    if (EvaluarPrimeraFila(lineas, posicion, primera, ultima) != 1) return 0;
    if (Trazando())
        TrazarEscalar({}, std::string(Recortado(Evaluador.CodigoSerieDestino)) + "[" + periodo + "]",
                      ValorSuperior(), "Valor que toma la observación"_w);
    return GuardarObservacion(periodo, ventana);
}

int Asignar(LineasSentencia &lineas, int &posicion, const std::string &periodo, Ventana *ventana, int primera,
            int ultima, int codigo) {
    switch (codigo) {
    case OrdenMAT: return AsignarMatriz(lineas, posicion, ventana, primera, ultima);
    case OrdenSER: return AsignarSerie(lineas, posicion, ventana, primera, ultima);
    case OrdenESC: return AsignarEscalar(lineas, posicion, ventana, primera, ultima);
    case OrdenCAL: return Calcular(lineas, posicion, ventana, primera, ultima);
    default: return AsignarObservacion(lineas, posicion, periodo, ventana, primera, ultima);
    }
}

// ----- The trace

// A typed formula as a step. Its operands and its text are those before it is evaluated.
int AbrirPasoEscrito(const std::string &linea, int posicion, const std::string &periodo, int primera,
                     int ultima, int codigo) {
    if (!Trazando()) return SinTrazar;
    const std::string formula = FormulaComoSeEscribe(
        std::string_view(linea).substr(std::min(static_cast<std::size_t>(posicion), linea.size())));
    const FilasTraza filas = {primera, ultima};
    ReducirDesde(0);
    switch (codigo) {
    case OrdenMAT: {
        const bool llaves = formula.starts_with('{');
        const char *explicacion =
            llaves ? "Matriz: una columna por serie o número, una fila por observación"_w
                   : "Matriz: operaciones de izquierda a derecha, con los paréntesis que se ven"_w;
        return AbrirPaso(TrazaMatriz, Evaluador.CodigoMatrizDestino, formula, explicacion, filas);
    }
    case OrdenESC:
        return AbrirPaso(TrazaEscalar, Evaluador.CodigoEscalarDestino, formula,
                         "Escalar: el valor de la fórmula en la primera fila de la muestra"_w, filas);
    case OrdenCAL:
        return AbrirPaso(TrazaEscalar, {}, formula, "Valor de la fórmula en la primera fila de la muestra"_w,
                         filas);
    case OrdenSER: {
        const std::string_view destino = Recortado(Evaluador.CodigoSerieDestino);
        const bool recursiva =
            formula.starts_with(destino) && CaracterEn(formula, static_cast<int>(destino.size())) == '(';
        const char *explicacion =
            recursiva ? "Serie recursiva: cada fila desde una anterior ya calculada; aquí, la primera"_w
            : formula.starts_with('{') ? "Serie: los elementos de la matriz, en la muestra de la regresión"_w
                                       : "Serie: la fórmula en todas las filas de la muestra"_w;
        return AbrirPaso(TrazaSerie, destino, formula, explicacion, filas);
    }
    default:
        return AbrirPaso(TrazaSerie, Evaluador.CodigoSerieDestino, formula,
                         "Observación "_w + periodo + " de la serie: el valor en la primera fila"_w, filas);
    }
}

void CerrarPasoEscrito(int paso, bool bien, int codigo) {
    if (bien && codigo == OrdenCAL)
        CerrarPasoConValor(paso, ValorSuperior());
    else
        CerrarPaso(paso, bien);
    DejarDeReducir();
}

int EjecutarFormula(LineasSentencia &lineas, int &posicion, const std::string &periodo, Ventana *ventana,
                    int primera, int ultima, int codigo) {
    AgruparPrioridades(lineas[0], posicion, Tamano(lineas[0]));
    const int paso = AbrirPasoEscrito(lineas[0], posicion, periodo, primera, ultima, codigo);
    const int r = Asignar(lineas, posicion, periodo, ventana, primera, ultima, codigo);
    CerrarPasoEscrito(paso, r == 1, codigo);
    return r;
}

} // namespace

int EjecutarAsignacion(LineasSentencia &lineas, int &posicion, Ventana *ventana, int primera, int ultima,
                       int &codigo) {
    if (codigo == OrdenCAL) {
        SaltarBlancos(lineas[0], posicion);
        if (posicion >= Tamano(lineas[0])) return MensajeNumerado(ventana, 39, " : Faltan datos");
        return EjecutarFormula(lineas, posicion, {}, ventana, primera, ultima, codigo);
    }
    if (codigo == OrdenSER) ReconocerFICTIC(lineas[0], posicion, codigo);
    std::string periodo;
    if (LeerObjetivo(lineas[0], posicion, codigo, periodo, ventana) == 0) return 0;
    if (codigo == OrdenFICTIC) {
        SeriesFicticias(ventana, primera, ultima);
        return 1;
    }
    if (LeerIgual(lineas[0], posicion, ventana) == 0) return 0;
    return EjecutarFormula(lineas, posicion, periodo, ventana, primera, ultima, codigo);
}
