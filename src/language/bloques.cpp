// Control flow. A block is read from its text line by line, the lines of a loop again for each turn; nothing is
// compiled. Exactly one SI can stand inside a loop.
#include "language/bloques.h"

#include "language/llamada_bloque.h"
#include "language/lugar.h"
#include "language/palabras.h"
#include "platform/campos_texto.h"
#include "platform/numeros.h"
#include "platform/texto.h"
#include "store/periodos.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <iterator>

EstadoDeBloques Bloques;

namespace {

// Loop, the SI inside it, and the SINO of that SI: no block nests deeper.
constexpr int MaxNivelesBloque = 3;
LlamadaBloque Llamadas[MaxNivelesBloque];

constexpr double PasoTRIMESTRAL = -101.0;
constexpr double PasoMENSUAL = -102.0;

constexpr const char *Adecuada = "Sintaxis no adecuada";
constexpr const char *Cierres[NumTiposDeBloque] = {"FINREPITE", "FINMIENTRAS", "FINSI", ""};

// ----- Lines and tokens

// The next line that isn't empty, as it stands; `inicio` receives its offset and `posicion` moves to its end. False
// when there is none.
bool LeerLineaCruda(std::string_view cuerpo, int &posicion, int &inicio, std::string_view &linea) {
    const auto finDeLinea = [](char c) { return c == '\r' || c == '\n'; };
    std::size_t desde = static_cast<std::size_t>(posicion);
    while (desde < cuerpo.size() &&
           (cuerpo[desde] == ' ' || cuerpo[desde] == '\t' || finDeLinea(cuerpo[desde])))
        ++desde;
    if (desde >= cuerpo.size()) return false;
    std::size_t hasta = desde;
    while (hasta < cuerpo.size() && !finDeLinea(cuerpo[hasta])) ++hasta;
    linea = cuerpo.substr(desde, hasta - desde);
    linea = linea.substr(0, linea.find_last_not_of(' ') + 1);
    inicio = static_cast<int>(desde);
    posicion = static_cast<int>(hasta);
    return true;
}

// True when the first token of a line, in either case, is this word in capitals.
bool EmpiezaPor(std::string_view cruda, std::string_view palabra) {
    int posicion = 0;
    const std::string_view token = LeerTokenBloque(cruda, posicion);
    return std::equal(token.begin(), token.end(), palabra.begin(), palabra.end(),
                      [](char c, char p) { return Mayuscula(c) == p; });
}

// Replaces every token `buscado` of the line. The search goes on behind the replacement: the tokens before it stay
// what they were, and starting again from the line's start, as one might, would never end where a list names ENUM.
void SustituirToken(LlamadaBloque &b, std::string_view buscado, std::string_view reemplazo) {
    if (b.linea.find(buscado) == std::string::npos) return;
    b.sustituida.clear();
    int hecho = 0;
    int posicion = 0;
    for (std::string_view token; !(token = LeerTokenBloque(b.linea, posicion)).empty();) {
        if (token != buscado) continue;
        const int inicio = posicion - static_cast<int>(token.size());
        b.sustituida.append(b.linea, static_cast<std::size_t>(hecho),
                            static_cast<std::size_t>(inicio - hecho));
        b.sustituida.append(reemplazo);
        hecho = posicion;
    }
    b.sustituida.append(b.linea, static_cast<std::size_t>(hecho));
    b.linea.swap(b.sustituida);
}

// The counter stands in a REPITE and in the SI of one; the code of the list in the loop itself, not in its SI.
void Sustituir(LlamadaBloque &b) {
    if (b.tipo == BloqueREPITE || b.tipoExterno == BloqueREPITE)
        SustituirToken(b, Bloques.NombreContador, b.textoContador);
    else if (b.tipo == BloqueMIENTRAS && b.conLista)
        SustituirToken(b, "ENUM", b.lista[b.indiceLista]);
}

void PonerContador(LlamadaBloque &b, double contador) {
    b.contador = contador;
    // The same as " %f "; a whole number needs no more than its figures.
    if (std::fabs(contador) < 1e15 && contador == std::trunc(contador) && !std::signbit(contador)) {
        char cifras[24];
        const auto fin = std::to_chars(cifras, std::end(cifras), static_cast<long long>(contador)).ptr;
        b.textoContador.assign(" ").append(cifras, fin).append(".000000 ");
        return;
    }
    b.textoContador = Formatear(" %f ", contador);
}

// ----- The words of a line

enum Marcha { Falla = 0, Sigue = 1, Termina = 2 };

struct Paso {
    EntornoBloque &e;
    LlamadaBloque &b;
    int nivel;
    int &posicion; // of the reading; at Termina, the offset at which the block was left
    int detras;    // in b.linea, behind the first token
};

bool SeOmite() {
    return std::find(std::begin(Bloques.Omitir), std::end(Bloques.Omitir), 1) != std::end(Bloques.Omitir);
}

bool LineaAcaba(const Paso &p, int punto) {
    if (NadaDetras(p.b.linea, p.detras)) return true;
    MensajePunto(p.e.ventana, Adecuada, punto);
    return false;
}

Marcha Correr(Paso &p, const Palabra &palabra) {
    if (palabra.lugar == DentroConMuestra) {
        Muestra.InicioRegresion = p.e.primera;
        Muestra.FinRegresion = p.e.ultima;
    }
    return SeOmite() || CorrerSentencia(p.e, p.b.linea) == 1 ? Sigue : Falla;
}

// Whole hundredths and less come out as the period texts read: 2000.3 + 0.1 is the number of the text 2000.4.
double SeisDecimales(double x) {
    return std::fabs(x) < 1e9 ? std::round(x * 1e6) / 1e6 : x;
}

// The counter of the next turn; false when there is none.
bool SiguienteContador(const LlamadaBloque &b, double &siguiente) {
    const bool trimestral = b.paso == PasoTRIMESTRAL;
    const bool deCalendario = trimestral || b.paso == PasoMENSUAL;
    if (!deCalendario) {
        siguiente = b.contador + b.paso;
    } else {
        siguiente = SeisDecimales(b.contador + (trimestral ? 0.1 : 0.01));
    }
    // A step that is lost in rounding would never reach the limit.
    if (!(siguiente <= b.limite && siguiente > b.contador)) return false;
    if (deCalendario) {
        const double entera = std::floor(siguiente);
        if (SeisDecimales(siguiente - entera) > (trimestral ? 0.4 : 0.12))
            siguiente = entera + (trimestral ? 1.1 : 1.01);
    }
    return true;
}

Marcha CerrarREPITE(Paso &p) {
    if (!LineaAcaba(p, 15)) return Falla;
    double siguiente = 0.0;
    if (!SiguienteContador(p.b, siguiente)) return Termina;
    PonerContador(p.b, siguiente);
    p.posicion = Bloques.InicioBloque[BloqueREPITE];
    return Sigue;
}

Marcha CerrarMIENTRAS(Paso &p) {
    if (!LineaAcaba(p, 16)) return Falla;
    bool otraVuelta = false;
    if (p.b.conLista) {
        otraVuelta = ++p.b.indiceLista < p.b.numLista;
    } else {
        if (RecalcularComparacion(p.e, p.b) == 0) {
            MensajePunto(p.e.ventana, Adecuada, 36);
            return Falla;
        }
        otraVuelta = CondicionCierta(p.b);
    }
    if (!otraVuelta || Bloques.Omitir[0] == 1) return Termina;
    p.posicion = Bloques.InicioBloque[BloqueMIENTRAS];
    return Sigue;
}

Marcha CerrarSI(Paso &p) {
    if (!LineaAcaba(p, 17)) return Falla;
    Bloques.Omitir[2] = Bloques.Omitir[3] = 0;
    return Termina;
}

// ROMPE and CONTINUA leave the block for the closing line of the loop: in a SI the loop reads it next, at the top
// level the driver does, and refuses it. A SI at the top level has no loop to leave: its own closing line takes that
// place, so that the driver refuses it in the same way.
Marcha Salir(Paso &p, int punto, bool rompe) {
    if (!LineaAcaba(p, punto)) return Falla;
    if (SeOmite()) return Sigue;
    const bool enSI = p.b.tipo == BloqueSI || p.b.tipo == BloqueSINO;
    const int bucle = !enSI ? p.b.tipo : p.b.tipoExterno >= 0 ? p.b.tipoExterno : BloqueSI;
    p.posicion = Bloques.FinBloque[bucle];
    if (rompe) Bloques.Omitir[0] = Bloques.Omitir[1] = 1;
    return Termina;
}

Marcha Romper(Paso &p) {
    return Salir(p, 18, true);
}
Marcha Continuar(Paso &p) {
    return Salir(p, 19, false);
}

Marcha EntrarSI(Paso &p);
Marcha EntrarSINO(Paso &p);

enum Lugares { EnREPITE = 1, EnMIENTRAS = 2, EnSI = 4, EnSINO = 8, EnTodos = 15 }; // 1 shifted by the kind

struct PalabraDeBloque {
    std::string_view palabra;
    int lugares;
    Marcha (*rutina)(Paso &);
};

// The words of control; the statements that a block can hold stand in the table of all words.
constexpr PalabraDeBloque PalabrasDeBloque[] = {
    {"SI", EnTodos, EntrarSI},
    {"FINREPITE", EnREPITE, CerrarREPITE},
    {"FINMIENTRAS", EnMIENTRAS, CerrarMIENTRAS},
    {"FINSI", EnSI | EnSINO, CerrarSI},
    {"SINO", EnSI, EntrarSINO},
    {"ROMPE", EnTodos, Romper},
    {"CONTINUA", EnTodos, Continuar},
};

// All other words are refused, the closing words of another block among them.
Marcha InterpretarLinea(Paso &p) {
    const std::string_view token = LeerTokenBloque(p.b.linea, p.detras);
    if (token.empty() || token[0] == ';') return Sigue;
    for (const Palabra &palabra : Palabras)
        if (palabra.palabra == token && palabra.lugar != FueraDeBloques) return Correr(p, palabra);
    for (const PalabraDeBloque &palabra : PalabrasDeBloque)
        if (palabra.palabra == token && (palabra.lugares & (1 << p.b.tipo)) != 0) return palabra.rutina(p);
    std::string texto = Adecuada;
    MensajePunto(p.e.ventana, texto.append(": [").append(token).append("]: ").append(p.b.linea), 6);
    return Falla;
}

// ----- A block

// Finds the closing line of a loop or SI: the first of its kind, without counting levels. 0 after a message.
int BuscarCierre(const EntornoBloque &e, const LlamadaBloque &b, int posicion) {
    std::string_view linea;
    for (int inicio = 0; LeerLineaCruda(e.cuerpo, posicion, inicio, linea);) {
        if (!EmpiezaPor(linea, Cierres[b.tipo])) continue;
        Bloques.FinBloque[b.tipo] = inicio;
        return 1;
    }
    std::string ultima(linea);
    PonerEnMayusculas(ultima);
    return MensajePunto(e.ventana, "No se ha cerrado el bucle: [" + ultima + "]", 7);
}

// Reads the lines of the block from `posicion` until it ends; `posicion` receives where it was left.
int RecorrerBloque(EntornoBloque &e, int nivel, int &posicion) {
    LlamadaBloque &b = Llamadas[nivel];
    Bloques.InicioBloque[b.tipo] = posicion;
    std::string_view cruda;
    for (int inicio = 0; LeerLineaCruda(e.cuerpo, posicion, inicio, cruda);) {
        PonerCursor(CursorEspera);
        PonerLugarEnBloque(inicio);
        b.linea = cruda;
        PonerEnMayusculas(b.linea);
        Sustituir(b);
        Paso paso{e, b, nivel, posicion, 0};
        const Marcha marcha = InterpretarLinea(paso);
        if (marcha != Sigue) return marcha == Termina ? 1 : 0;
    }
    return 1;
}

// From behind the word SI of the first line, in the line of the block.
int CorrerSI(EntornoBloque &e, int nivel, int detras, int &posicion) {
    LlamadaBloque &b = Llamadas[nivel];
    if (LeerCondicion(e, b, detras) == 0) return 0;
    Bloques.Omitir[2] = CondicionCierta(b) ? 0 : 1;
    return BuscarCierre(e, b, posicion) == 1 ? RecorrerBloque(e, nivel, posicion) : 0;
}

// A SI inside a loop sees the counter and the limit as whole numbers, and the loop goes on with the whole counter.
Marcha EntrarSI(Paso &p) {
    if (p.b.tipo == BloqueSI || p.b.tipo == BloqueSINO) return Sigue;
    LlamadaBloque &dentro = Llamadas[p.nivel + 1];
    dentro.tipo = BloqueSI;
    dentro.tipoExterno = p.b.tipo;
    dentro.linea = p.b.linea;
    const double entero = std::trunc(p.b.contador);
    if (entero != p.b.contador) PonerContador(p.b, entero);
    dentro.contador = entero;
    dentro.textoContador = p.b.textoContador;
    dentro.limite = std::trunc(p.b.limite);
    return CorrerSI(p.e, p.nivel + 1, p.detras, p.posicion) == 1 ? Sigue : Falla;
}

// Whatever ended the branch, the SI goes on at its FINSI: behind it the lines run on after a CONTINUA too.
Marcha EntrarSINO(Paso &p) {
    if (!LineaAcaba(p, 35)) return Falla;
    LlamadaBloque &dentro = Llamadas[p.nivel + 1];
    dentro.tipo = BloqueSINO;
    dentro.tipoExterno = p.b.tipoExterno;
    dentro.contador = p.b.contador;
    dentro.textoContador = p.b.textoContador;
    dentro.limite = p.b.limite;
    Bloques.Omitir[2] = 1 - Bloques.Omitir[2];
    if (RecorrerBloque(p.e, p.nivel + 1, p.posicion) == 0) return Falla;
    p.posicion = Bloques.FinBloque[BloqueSI];
    return Sigue;
}

// ----- First lines

// A number of the first line of REPITE. A sign is a token of its own, so that no negative number can be written.
bool LeerNumero(std::string_view token, double &numero) {
    if (!EsNumero(token)) return false;
    numero = LeerDecimal(token);
    return true;
}

// What stands behind the limit: nothing, or SALTA and a step. 0 after a message.
int LeerSalto(const EntornoBloque &e, LlamadaBloque &b, int posicion) {
    b.paso = 1.0;
    if (NadaDetras(b.linea, posicion)) return 1;
    if (LeerTokenBloque(b.linea, posicion) != "SALTA") return MensajePunto(e.ventana, Adecuada, 43);
    const std::string_view salto = LeerTokenBloque(b.linea, posicion);
    if (salto == "TRIMESTRAL") {
        b.paso = PasoTRIMESTRAL;
    } else if (salto == "MENSUAL") {
        b.paso = PasoMENSUAL;
    } else if (!LeerNumero(salto, b.paso)) {
        return MensajePunto(e.ventana, Adecuada, 44);
    }
    if (b.paso == 0.0) return MensajePunto(e.ventana, "Salto cero", 46);
    return NadaDetras(b.linea, posicion) ? 1 : MensajePunto(e.ventana, Adecuada, 45);
}

int CorrerREPITE(EntornoBloque &e, int nivel, int detras, int &posicion) {
    LlamadaBloque &b = Llamadas[nivel];
    double inicio = 0.0;
    const auto token = [&] { return LeerTokenBloque(b.linea, detras); };
    const auto falla = [&](int punto) { return MensajePunto(e.ventana, Adecuada, punto); };
    Bloques.NombreContador = token();
    if (token() != "DESDE") return falla(1);
    if (!LeerNumero(token(), inicio)) return falla(2);
    if (token() != "HASTA") return falla(3);
    if (!LeerNumero(token(), b.limite)) return falla(4);
    if (LeerSalto(e, b, detras) == 0) return 0;
    PonerContador(b, inicio);
    return BuscarCierre(e, b, posicion) == 1 ? RecorrerBloque(e, nivel, posicion) : 0;
}

// A MIENTRAS can't be skipped: a condition that is false from the start is an error.
int CorrerMIENTRAS(EntornoBloque &e, int nivel, int detras, int &posicion) {
    LlamadaBloque &b = Llamadas[nivel];
    if (LeerCondicion(e, b, detras) == 0) return 0;
    if (!b.conLista && !CondicionCierta(b))
        return MensajePunto(e.ventana, "No es una comparación válida"_w, 8);
    return BuscarCierre(e, b, posicion) == 1 ? RecorrerBloque(e, nivel, posicion) : 0;
}

struct PrimeraLinea {
    std::string_view palabra;
    TiposDeBloque tipo;
    int (*rutina)(EntornoBloque &, int nivel, int detras, int &posicion);
};

constexpr PrimeraLinea PrimerasLineas[] = {{"REPITE", BloqueREPITE, CorrerREPITE},
                                           {"MIENTRAS", BloqueMIENTRAS, CorrerMIENTRAS},
                                           {"SI", BloqueSI, CorrerSI}};

} // namespace

std::string_view LeerTokenBloque(std::string_view linea, int &posicion) {
    std::size_t i = std::min(linea.find_first_not_of(' ', static_cast<std::size_t>(posicion)), linea.size());
    const std::size_t inicio = i;
    while (i < linea.size() && !EsDelimitador(linea[i])) ++i;
    if (i == inicio && i < linea.size()) ++i;
    posicion = static_cast<int>(i);
    return linea.substr(inicio, i - inicio);
}

bool NadaDetras(std::string_view linea, int posicion) {
    return LeerTokenBloque(linea, posicion).empty();
}

int CorrerSentencia(EntornoBloque &e, std::string_view texto) {
    static const std::string SinTexto;
    int posicion = 0;
    int codigo = 0;
    return EjecutarSentencia(1, e.lineas, 0, posicion, texto, SinTexto, e.ventana, e.primera, e.ultima,
                             codigo);
}

int EjecutarBloque(std::string_view cuerpo, LineasSentencia &lineas, int &avance, Ventana *ventana,
                   int &primera, int &ultima) {
    EntornoBloque e{cuerpo, lineas, ventana, primera, ultima};
    std::fill(std::begin(Bloques.InicioBloque), std::end(Bloques.InicioBloque), -1);
    std::fill(std::begin(Bloques.FinBloque), std::end(Bloques.FinBloque), -1);
    std::fill(std::begin(Bloques.Omitir), std::end(Bloques.Omitir), 0);
    LlamadaBloque &b = Llamadas[0];
    b.tipoExterno = -1;
    b.linea = lineas[0];
    b.conLista = false;
    PonerContador(b, 0.0);
    b.limite = 0.0;
    avance = 0;
    int detras = 0;
    const std::string_view palabra = LeerTokenBloque(b.linea, detras);
    for (const PrimeraLinea &primeraLinea : PrimerasLineas) {
        if (primeraLinea.palabra != palabra) continue;
        b.tipo = primeraLinea.tipo;
        return primeraLinea.rutina(e, 0, detras, avance);
    }
    return 0;
}

bool EsPalabraDeControl(std::string_view palabra) {
    return std::any_of(std::begin(PalabrasDeBloque), std::end(PalabrasDeBloque),
                       [=](const PalabraDeBloque &p) { return p.palabra == palabra; });
}
