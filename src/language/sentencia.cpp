// One statement: cut out of the text, checked, normalised, and handed to the routine of its first word.
#include "estimation/regresion.h"
#include "language/asignaciones.h"
#include "language/bloques.h"
#include "language/lote_sentencias.h"
#include "platform/campos_texto.h"
#include "platform/numeros.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <algorithm>

namespace {

// What the routine of a word works with.
struct Orden {
    LineasSentencia &lineas;
    int detras;    // in buffer 0, behind the first word and its blanks
    int fin;       // end of the selection
    int &posicion; // in the text, at the end of the line
    const std::string &texto;
    Ventana *ventana;
    int &primera, &ultima;
    int &codigo;
};

// ----- The routines of the words; 1 to go on, 0 to stop

int Nada(Orden &) {
    return 1;
}

int Bloque(Orden &o) {
    const std::size_t desde = static_cast<std::size_t>(o.posicion);
    const std::size_t largo = static_cast<std::size_t>(std::max(o.fin - o.posicion, 0));
    int avance = 0;
    const int r = EjecutarBloque(std::string_view(o.texto).substr(desde, largo), o.lineas, avance, o.ventana,
                                 o.primera, o.ultima);
    o.posicion += avance;
    for (const char *temporal : {"_TMP01", "_TMP02"}) {
        const int e = BuscarEscalar(temporal);
        if (e >= 0) BorrarEscalar(e);
    }
    if (r == 0) MostrarMensaje(o.ventana, "Secuencia no válida. Punto 89"_w);
    return r;
}

int Muestreo(Orden &o) {
    MuestraDeSentencia(o.lineas[0]);
    o.primera = Muestra.InicioMuestra;
    o.ultima = Muestra.FinMuestra;
    return 1;
}

// The number is read from the start of the line, where the word itself stands, so that any figure behind it sets 0
// decimals. The word with no blank behind keeps the old number.
int Decimales(Orden &o) {
    const std::size_t blanco = o.lineas[0].find(' ');
    if (blanco == std::string::npos) return 1;
    const int n = LeerEntero(std::string_view(o.lineas[0]).substr(0, blanco));
    Lote.DecimalesSalida = n < 0 || n > 6 ? 2 : n;
    return 1;
}

int PreguntaRegresion(Orden &o) {
    const std::string_view resto =
        Recortado(std::string_view(o.lineas[0]).substr(static_cast<std::size_t>(o.detras)));
    if (resto.empty()) return MensajeNumerado(o.ventana, 39, " : Faltan datos");
    Lote.VerRegresion = resto == "SI" ? 1 : 0;
    return 1;
}

int Asignacion(Orden &o) {
    return EjecutarAsignacion(o.lineas, o.detras, o.ventana, o.primera, o.ultima, o.codigo);
}

int Regresion(Orden &o) {
    return EstimarRegresion(o.lineas, o.detras, o.ventana, o.codigo);
}

// MC and MCP work on the bounds of the batch; the other regressions on those of the last MC or MCP.
int RegresionPrincipal(Orden &o) {
    Muestra.InicioRegresion = o.primera;
    Muestra.FinRegresion = o.ultima;
    return Regresion(o);
}

int PorEnsamblar(Orden &o) {
    return NoEnsamblada(o.ventana);
}

// ----- The words

enum Condiciones { Siempre, SinParentesis, SoloSeleccion };

struct Palabra {
    std::string_view palabra;
    CodigosOrden codigo;
    Condiciones condicion; // SinParentesis: the next non-blank character isn't "("
    int (*rutina)(Orden &);
};

// The words without a code of their own stand first: they are tested first. FICTIC is found behind SER.
constexpr Palabra Palabras[] = {
    {"REPITE", OrdenDesconocida, SoloSeleccion, Bloque},
    {"MIENTRAS", OrdenDesconocida, SoloSeleccion, Bloque},
    {"SI", OrdenDesconocida, SoloSeleccion, Bloque},
    {"MUEST", OrdenDesconocida, Siempre, Muestreo},
    {"GRAF", OrdenDesconocida, Siempre, PorEnsamblar},
    {"HIST", OrdenDesconocida, Siempre, PorEnsamblar},
    {"DECI", OrdenDesconocida, Siempre, Decimales},
    {"AES", OrdenAES, Siempre, Nada},
    {"AED", OrdenAED, Siempre, Nada},
    {"SER", OrdenSER, SinParentesis, Asignacion},
    {"CAL", OrdenCAL, Siempre, Asignacion},
    {"ESC", OrdenESC, Siempre, Asignacion},
    {"MAT", OrdenMAT, SinParentesis, Asignacion},
    {"MC", OrdenMC, Siempre, RegresionPrincipal},
    {"CR", OrdenCR, Siempre, Regresion},
    {"MGN", OrdenMGN, Siempre, Regresion},
    {"MGD", OrdenMGD, Siempre, Regresion},
    {"CWH", OrdenCWH, Siempre, Regresion},
    {"MCP", OrdenMCP, Siempre, RegresionPrincipal},
    {"OBS", OrdenOBS, Siempre, Asignacion},
    {"CWA", OrdenCWA, Siempre, PorEnsamblar},
    {"CHN", OrdenCHN, Siempre, PorEnsamblar},
    {"CGQ", OrdenCGQ, Siempre, PorEnsamblar},
    {"CRA", OrdenCRA, Siempre, PorEnsamblar},
    {"CDU", OrdenCDU, Siempre, PorEnsamblar},
    {"VSR", OrdenVSR, Siempre, PreguntaRegresion},
};

const Palabra *BuscarPalabra(std::string_view palabra, int origen, char siguiente) {
    for (const Palabra &p : Palabras) {
        if (p.palabra != palabra) continue;
        if (p.condicion == SinParentesis && siguiente == '(') return nullptr;
        if (p.condicion == SoloSeleccion && origen != 0) return nullptr;
        return &p;
    }
    return nullptr;
}

// ----- The line

bool EsFinDeLinea(char c) {
    return c == '\r' || c == '\n';
}

// Cuts the line at `posicion` out of the text. The character at the end offset is taken too: a selection that ends
// inside a line brings one character more than was selected.
void CortarLinea(const std::string &texto, int fin, int &posicion, std::string &linea) {
    const int tope = std::min(fin, static_cast<int>(texto.size()) - 1);
    const auto en = [&](int i) { return texto[static_cast<std::size_t>(i)]; };
    while (posicion <= tope && (EsFinDeLinea(en(posicion)) || en(posicion) == ' ' || en(posicion) == '\t'))
        ++posicion;
    const int inicio = posicion;
    while (posicion <= tope && !EsFinDeLinea(en(posicion))) ++posicion;
    linea.assign(texto, static_cast<std::size_t>(inicio), static_cast<std::size_t>(posicion - inicio));
    linea.erase(linea.find_last_not_of(' ') + 1);
}

// Only the totals count, not the order: ")(" passes.
bool Equilibrado(const std::string &linea, char abre, char cierra) {
    return std::count(linea.begin(), linea.end(), abre) == std::count(linea.begin(), linea.end(), cierra);
}

// Makes each operator of two characters one character and a blank, for both formula evaluators, and capitals of a
// to z. The order of the passes decides what "<>=" becomes.
void NormalizarLinea(std::string &linea) {
    struct Reescritura {
        const char *operador;
        char caracter;
    };
    static constexpr Reescritura Reescrituras[] = {{"**", ':'}, {">=", '?'}, {"<=", '@'}, {"<>", '|'}};
    if (linea.size() > 2) {
        for (const Reescritura &r : Reescrituras) {
            for (std::size_t i = linea.find(r.operador); i != std::string::npos;
                 i = linea.find(r.operador, i)) {
                linea[i] = r.caracter;
                linea[i + 1] = ' ';
            }
        }
    }
    for (char &c : linea)
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
}

int Desconocida(Ventana *ventana, std::string_view palabra) {
    // Comments, and lines of one letter, which a selection that ends at a line's end leaves behind.
    if (palabra.size() <= 1 || palabra[0] == ';') return 1;
    MostrarMensaje(ventana,
                   std::string("Funciones o parámetros no válidos: \n ("_w).append(palabra).append(")"),
                   "Proceso Cancelado");
    return 0;
}

int RevisarYRepartir(int origen, Orden &o) {
    std::string &linea = o.lineas[0];
    if (!Equilibrado(linea, '(', ')')) {
        MostrarMensaje(o.ventana, "Número inadecuado de paréntesis"_w);
        return 0;
    }
    if (!Equilibrado(linea, '[', ']')) {
        MostrarMensaje(o.ventana, "Número inadecuado de corchetes"_w);
        return 0;
    }
    NormalizarLinea(linea);
    const std::size_t fin = std::min(linea.find_first_of(" ("), linea.size());
    const std::string_view palabra = std::string_view(linea).substr(0, fin);
    o.detras = static_cast<int>(fin);
    SaltarBlancos(linea, o.detras);
    const Palabra *p = BuscarPalabra(palabra, origen, CaracterEn(linea, o.detras));
    if (p == nullptr) return Desconocida(o.ventana, palabra);
    o.codigo = p->codigo;
    return p->rutina(o);
}

} // namespace

int EjecutarSentencia(int origen, LineasSentencia &lineas, int fin, int &posicion, std::string_view texto,
                      const std::string &textoCompleto, Ventana *ventana, int &primera, int &ultima,
                      int &codigo) {
    PonerCursor(CursorEspera);
    LimpiarEvaluador();
    codigo = OrdenDesconocida;
    if (origen == 0) {
        CortarLinea(textoCompleto, fin, posicion, lineas[0]);
    } else {
        lineas[0].assign(texto);
        posicion = 1;
    }
    Orden orden{lineas, 0, fin, posicion, textoCompleto, ventana, primera, ultima, codigo};
    const int r = RevisarYRepartir(origen, orden);
    SoltarTodasMatrices();
    return r;
}
