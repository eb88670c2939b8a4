// One statement: cut out of the text, checked, normalised, and handed to the routine of its first word.
#include "language/lote_sentencias.h"
#include "language/palabras.h"
#include "language/traza.h"
#include "platform/campos_texto.h"
#include "store/archivo.h"

#include <algorithm>

namespace {

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
    PonerLugar(inicio);
    while (posicion <= tope && !EsFinDeLinea(en(posicion))) ++posicion;
    linea.assign(texto, static_cast<std::size_t>(inicio), static_cast<std::size_t>(posicion - inicio));
    linea.erase(linea.find_last_not_of(' ') + 1);
}

// What one look at a line tells. Only the totals count, not the order: ")(" passes.
struct AspectoDeLinea {
    int parentesis, corchetes; // opened less closed
    bool conDobles;            // an operator of two characters may be there
};

AspectoDeLinea Mirar(std::string_view linea) {
    AspectoDeLinea a{};
    char anterior = '\0';
    for (const char c : linea) {
        switch (c) {
        case '(': ++a.parentesis; break;
        case ')': --a.parentesis; break;
        case '[': ++a.corchetes; break;
        case ']': --a.corchetes; break;
        case '*': a.conDobles |= anterior == '*'; break;
        case '=':
        case '>': a.conDobles |= anterior == '<' || anterior == '>'; break;
        default: break;
        }
        anterior = c;
    }
    return a;
}

// Makes each operator of two characters one character and a blank, for both formula evaluators, and capitals of a
// to z. The order of the passes decides what "<>=" becomes.
void NormalizarLinea(std::string &linea, bool conDobles) {
    struct Reescritura {
        const char *operador;
        char caracter;
    };
    static constexpr Reescritura Reescrituras[] = {{"**", ':'}, {">=", '?'}, {"<=", '@'}, {"<>", '|'}};
    if (conDobles && linea.size() > 2) {
        for (const Reescritura &r : Reescrituras) {
            for (std::size_t i = linea.find(r.operador); i != std::string::npos;
                 i = linea.find(r.operador, i)) {
                linea[i] = r.caracter;
                linea[i + 1] = ' ';
            }
        }
    }
    PonerEnMayusculas(linea);
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
    const AspectoDeLinea aspecto = Mirar(linea);
    if (aspecto.parentesis != 0) {
        MostrarMensaje(o.ventana, "Número inadecuado de paréntesis"_w);
        return 0;
    }
    if (aspecto.corchetes != 0) {
        MostrarMensaje(o.ventana, "Número inadecuado de corchetes"_w);
        return 0;
    }
    const std::string escrita = Trazando() ? linea : std::string();
    NormalizarLinea(linea, aspecto.conDobles);
    const std::size_t fin = std::min(linea.find_first_of(" ("), linea.size());
    const std::string_view palabra = std::string_view(linea).substr(0, fin);
    o.detras = static_cast<int>(fin);
    SaltarBlancos(linea, o.detras);
    const Palabra *p = BuscarPalabra(palabra, origen, CaracterEn(linea, o.detras));
    if (p == nullptr) return Desconocida(o.ventana, palabra);
    o.codigo = p->codigo;
    const int trazada = AbrirSentencia(escrita);
    const int r = p->rutina(o);
    CerrarGrupo(trazada, r == 1 || Lote.finPorRegla);
    return r;
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
