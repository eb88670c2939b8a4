// Conditions of the blocks. A comparison becomes two scalar statements, _TMP01 and _TMP02, which the ordinary driver
// runs; the two numbers are compared.
#include "language/llamada_bloque.h"
#include "language/lote_sentencias.h"
#include "language/traza.h"
#include "platform/campos_texto.h"
#include "store/archivo.h"

#include <algorithm>

namespace {

enum TiposDeComparacion { Mayor = 1, Menor, MayorOIgual, MenorOIgual, Distinto, Igual };

struct Comparacion {
    std::string_view texto;
    TiposDeComparacion codigo;
};

constexpr Comparacion Comparaciones[] = {{">", Mayor},        {"<", Menor},     {">=", MayorOIgual},
                                         {"<=", MenorOIgual}, {"<>", Distinto}, {"=", Igual}};

constexpr const char *SignosDeComparacion = "<>=";

int FallaCondicion(const EntornoBloque &e, const LlamadaBloque &b, int punto) {
    if (b.tipo == BloqueMIENTRAS) return MensajePunto(e.ventana, "Sintaxis no adecuada", punto);
    return MensajePunto(e.ventana, "Sintaxis no idónea"_w, punto + 100);
}

double ValorTemporal(const char *codigo) {
    const int e = BuscarEscalarEnTabla(codigo);
    return e >= 0 ? TablaEscalares.registro[e].Valor : 0.0;
}

// True when the left side is the word ENUM, parentheses opened and blanks apart.
bool EsLista(std::string_view lado) {
    std::string palabra;
    for (const char c : lado)
        if (c != '(' && c != ' ') palabra += c;
    return palabra == "ENUM";
}

// Reads the codes up to ")". Single blanks part them, so that two blanks make an empty entry; the blank behind the
// "=" and one before the ")" part nothing. False when they are too many for the table.
bool LeerLista(LlamadaBloque &b, int &posicion) {
    b.numLista = b.indiceLista = 0;
    PonerCampo(b.lista[0], "", AnchoCodigo); // what ENUM stands for in an empty list
    while (CaracterEn(b.linea, posicion) != '=' && CaracterEn(b.linea, posicion) != '\0') ++posicion;
    ++posicion;
    if (CaracterEn(b.linea, posicion) == ' ') ++posicion;
    while (CaracterEn(b.linea, posicion) != '\0' && CaracterEn(b.linea, posicion) != ')') {
        const std::size_t desde = static_cast<std::size_t>(posicion);
        const std::size_t hasta = std::min(b.linea.find_first_of(" )", desde), b.linea.size());
        if (b.numLista == MaxListaENUM) return false;
        PonerCampo(b.lista[b.numLista++], std::string_view(b.linea).substr(desde, hasta - desde),
                   AnchoCodigo);
        posicion = static_cast<int>(hasta);
        if (CaracterEn(b.linea, posicion) == ' ') ++posicion;
    }
    ++posicion;
    return true;
}

// Copies the left side up to the comparison into its statement; `posicion` stops at the comparison. A first line at
// the top level has been rewritten by the driver, so that its ">=" is no sign here: the whole rest is taken then, and
// the statement fails on its parentheses.
void TomarIzquierda(LlamadaBloque &b, int &posicion) {
    const std::size_t desde = static_cast<std::size_t>(posicion);
    const std::size_t hasta = std::min(b.linea.find_first_of(SignosDeComparacion, desde), b.linea.size());
    b.izquierda.assign("ESC _TMP01 =  ").append(b.linea, desde, hasta - desde).append(")");
    posicion = static_cast<int>(hasta);
}

// False when what stands there is no comparison.
bool TomarComparacion(LlamadaBloque &b, int &posicion) {
    const std::size_t desde = static_cast<std::size_t>(posicion);
    const std::size_t hasta = std::min(b.linea.find_first_not_of(SignosDeComparacion, desde), b.linea.size());
    const std::string_view signo = std::string_view(b.linea).substr(desde, hasta - desde);
    for (const Comparacion &c : Comparaciones) {
        if (c.texto != signo) continue;
        b.comparacion = c.codigo;
        posicion = static_cast<int>(hasta);
        return true;
    }
    return false;
}

// Copies the right side through the first ")": it can't hold parentheses.
void TomarDerecha(LlamadaBloque &b, int &posicion) {
    const std::size_t desde = static_cast<std::size_t>(posicion);
    const std::size_t cierra = b.linea.find(')', desde);
    const std::size_t hasta = cierra == std::string::npos ? b.linea.size() : cierra + 1;
    b.derecha.assign("ESC _TMP02 = (  ").append(b.linea, desde, hasta - desde);
    posicion = static_cast<int>(hasta);
}

int LeerENTONCES(const EntornoBloque &e, const LlamadaBloque &b, int posicion) {
    if (LeerTokenBloque(b.linea, posicion) != "ENTONCES") return FallaCondicion(e, b, 5);
    if (!NadaDetras(b.linea, posicion)) return FallaCondicion(e, b, 6);
    return 1;
}

} // namespace

int LeerCondicion(EntornoBloque &e, LlamadaBloque &b, int posicion) {
    SaltarBlancos(b.linea, posicion);
    if (CaracterEn(b.linea, posicion) != '(') {
        std::string texto = "Error:[";
        texto.append(b.linea, static_cast<std::size_t>(posicion), 1).append("][").append(b.linea).append("]");
        return MensajePunto(e.ventana, texto, 7);
    }
    const std::size_t abre = static_cast<std::size_t>(posicion);
    TomarIzquierda(b, posicion);
    const std::string_view lado =
        std::string_view(b.linea).substr(abre, static_cast<std::size_t>(posicion) - abre);
    b.conLista = b.tipo == BloqueMIENTRAS && EsLista(lado);
    if (b.conLista) {
        if (!LeerLista(b, posicion)) return FallaCondicion(e, b, 4);
        return LeerENTONCES(e, b, posicion);
    }
    if (CorrerSentencia(e, b.izquierda) == 0) return FallaCondicion(e, b, 2);
    if (!TomarComparacion(b, posicion)) return FallaCondicion(e, b, 3);
    TomarDerecha(b, posicion);
    if (CorrerSentencia(e, b.derecha) == 0) return FallaCondicion(e, b, 4);
    return LeerENTONCES(e, b, posicion);
}

int RecalcularComparacion(EntornoBloque &e, const LlamadaBloque &b) {
    return CorrerSentencia(e, b.izquierda) == 1 && CorrerSentencia(e, b.derecha) == 1 ? 1 : 0;
}

namespace {

bool Comparar(TiposDeComparacion comparacion, double izquierda, double derecha) {
    switch (comparacion) {
    case Mayor: return izquierda > derecha;
    case Menor: return izquierda < derecha;
    case MayorOIgual: return izquierda >= derecha;
    case MenorOIgual: return izquierda <= derecha;
    case Distinto: return izquierda != derecha;
    default: return izquierda == derecha;
    }
}

} // namespace

bool CondicionCierta(const LlamadaBloque &b) {
    const double izquierda = ValorTemporal("_TMP01");
    const double derecha = ValorTemporal("_TMP02");
    const bool cierta = Comparar(static_cast<TiposDeComparacion>(b.comparacion), izquierda, derecha);
    if (Trazando()) {
        const auto *signo = std::find_if(std::begin(Comparaciones), std::end(Comparaciones),
                                         [&](const Comparacion &c) { return c.codigo == b.comparacion; });
        TrazarEscalar({}, "_TMP01 " + std::string(signo->texto) + " _TMP02", cierta ? 1.0 : 0.0,
                      "Condición del bloque, de sus dos lados: 1 si es cierta, 0 si no"_w);
    }
    return cierta;
}
