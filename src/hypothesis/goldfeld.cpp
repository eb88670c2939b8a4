// CGQ: the statement, the ordered copies of the regression's series, the two parts and their checks.
#include "hypothesis/goldfeld.h"

#include "estimation/lector.h"
#include "estimation/regresion.h"
#include "hypothesis/orden.h"
#include "language/cadena.h"
#include "language/lote_sentencias.h"
#include "language/traza.h"
#include "platform/campos_texto.h"
#include "platform/numeros.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <algorithm>
#include <iterator>
#include <vector>

// ----- Checks

namespace {

using P = const PartesGoldfeld &;

// Numbers of rows are shown as rows in some messages and as positions, one more, in others.
struct Comprobacion {
    bool (*falla)(P);
    const char *texto; // takes the two numbers
    int punto;
    std::pair<int, int> (*numeros)(P);
};

using Par = std::pair<int, int>;

Par SinNumeros(P) {
    return {0, 0};
}

constexpr const char *HaVariado = "La muestra ha variado";
constexpr const char *NoCoinciden = "No coinciden máximos y mínimos"_w;
constexpr const char *NoCoincidenNumeros = "No coinciden máximos y mínimos: [%d][%d]"_w;
constexpr const char *MayorQueMuestra = "Mayor que la muestra: [%d][%d]";
constexpr const char *MenorQueMuestra = "Menor que la muestra: [%d][%d]";

constexpr Comprobacion Comunes[] = {
    {[](P p) { return p.primera != p.primeraRegresion; }, HaVariado, 866, SinNumeros},
    {[](P p) { return p.ultima != p.ultimaRegresion; }, "La muestra ha variado: [%d][%d]", 867,
     [](P p) { return Par(p.ultima, p.ultimaRegresion); }},
    {[](P p) { return p.primeraNumerador >= p.ultimaNumerador; },
     "Mínimo numerador >= Máximo numerador,%d %d"_w, 872,
     [](P p) { return Par(p.primeraNumerador, p.ultimaNumerador); }},
    {[](P p) { return p.primeraDenominador >= p.ultimaDenominador; }, NoCoinciden, 873, SinNumeros},
    {[](P p) { return p.ultimaNumerador > p.ultima; }, MayorQueMuestra, 874,
     [](P p) { return Par(p.ultimaNumerador + 1, p.ultima + 1); }},
    {[](P p) { return p.ultimaDenominador > p.ultima; }, MayorQueMuestra, 874,
     [](P p) { return Par(p.ultimaDenominador + 1, p.ultima + 1); }},
    {[](P p) { return p.primeraNumerador < p.primera; }, MenorQueMuestra, 874,
     [](P p) { return Par(p.primeraNumerador + 1, p.primera + 1); }},
    {[](P p) { return p.primeraDenominador < p.primera; }, MenorQueMuestra, 874,
     [](P p) { return Par(p.primeraDenominador + 1, p.primera + 1); }},
};

// Gaps between the parts are allowed, as the test asks for.
constexpr Comprobacion NumeradorDelante[] = {
    {[](P p) { return p.ultimaDenominador <= p.ultimaNumerador; }, HaVariado, 868, SinNumeros},
    {[](P p) { return p.primeraDenominador - 1 < p.ultimaNumerador; }, NoCoinciden, 869, SinNumeros},
    {[](P p) { return p.ultimaDenominador != p.ultima; }, HaVariado, 870, SinNumeros},
    {[](P p) { return p.primeraNumerador != p.primera; }, HaVariado, 871, SinNumeros},
};

constexpr Comprobacion DenominadorDelante[] = {
    {[](P p) { return p.ultimaNumerador < p.ultimaDenominador; }, "Máximo denominador > Máximo numerador"_w,
     872, SinNumeros},
    {[](P p) { return p.primeraNumerador - 1 < p.ultimaDenominador; }, NoCoincidenNumeros, 873,
     [](P p) { return Par(p.ultimaDenominador, p.primeraNumerador - 1); }},
    {[](P p) { return p.ultimaNumerador != p.ultima; }, NoCoincidenNumeros, 874,
     [](P p) { return Par(p.ultimaNumerador, p.ultima); }},
    {[](P p) { return p.primeraDenominador != p.primera; }, NoCoincidenNumeros, 875,
     [](P p) { return Par(p.primeraDenominador, p.primera); }},
};

// The last look before the two regressions.
constexpr Comprobacion Finales[] = {
    {[](P p) {
         return p.primeraDenominador >= p.ultimaDenominador || p.primeraNumerador >= p.ultimaNumerador;
     },
     HaVariado, 876, SinNumeros},
};

bool Pasa(std::span<const Comprobacion> lista, P p, Ventana *ventana) {
    for (const Comprobacion &c : lista) {
        if (!c.falla(p)) continue;
        const Par numeros = c.numeros(p);
        MensajePunto(ventana, Formatear(c.texto, numeros.first, numeros.second), c.punto);
        return false;
    }
    return true;
}

} // namespace

bool ComprobarPartes(const PartesGoldfeld &p, Ventana *ventana) {
    if (!Pasa(Comunes, p, ventana)) return false;
    const bool delante = p.primeraNumerador < p.primeraDenominador;
    return (delante ? Pasa(NumeradorDelante, p, ventana) : Pasa(DenominadorDelante, p, ventana)) &&
           Pasa(Finales, p, ventana);
}

namespace {

// ----- The statement

struct Goldfeld {
    LineasSentencia &lineas;
    Ventana *ventana;
    int posicion;
    int numeros[4] = {};          // Di, Df, Ni, Nf
    std::vector<int> series = {}; // slots of _TMP1, _TMP2 and the copies of the regressors
};

Cadena EnLaMuestra(const Goldfeld &g) {
    return {&g.lineas, g.ventana, Muestra.InicioRegresion, Muestra.FinRegresion};
}

int LeerOrdenacion(Goldfeld &g) {
    const std::string &linea = LineaDelNivel(g.lineas);
    SaltarBlancos(linea, g.posicion);
    // The word is that of the weight of MCP.
    if (CaracterEn(linea, g.posicion) != '(')
        return MensajePunto(g.ventana, "Indroduzca ponderación"_w, 1633);
    const int cierre = ParentesisCierre(linea, g.posicion);
    const std::size_t desde = static_cast<std::size_t>(g.posicion) + 1;
    UltimoContraste.ordenacion = linea.substr(desde, static_cast<std::size_t>(cierre) - desde);
    g.posicion = std::min(cierre + 1, static_cast<int>(linea.size()));
    if (UltimoNivel()) return MensajePunto(g.ventana, FaltanSeries, 8622);
    switch (SerieDeFormulaEscrita(EnLaMuestra(g), "_TMP1", UltimoContraste.ordenacion,
                                  "Variable de ordenación"_w)) {
    case FormulaErronea: return MensajePunto(g.ventana, UltimoContraste.ordenacion, 8511);
    case FormulaSinGuardar: return MensajePunto(g.ventana, FaltanSeries, 8629);
    default: return 1;
    }
}

// A number that isn't there counts as 0.
int LeerNumeros(Goldfeld &g) {
    constexpr int Tope = 1000000; // far beyond any row, so that sums stay numbers
    Lector lector{&LineaDelNivel(g.lineas), g.posicion, g.ventana};
    std::string palabra;
    if (!ExtraerToken(lector, palabra)) return 0;
    UltimoContraste.verRegresion = palabra == "RA" ? 1 : 0;
    if (palabra == "RA" && !ExtraerToken(lector, palabra)) return 0;
    for (int k = 0; k < 4; ++k) {
        g.numeros[k] = std::clamp(LeerEntero(palabra), -Tope, Tope);
        if (k < 3 && !ExtraerToken(lector, palabra)) return 0;
    }
    return 1;
}

// Of the four numbers one decides only the order and another has no effect: the ends of the sample take their places.
void CortarPartes(const Goldfeld &g) {
    const int primera = Muestra.InicioRegresion, ultima = Muestra.FinRegresion;
    const auto [di, df, ni, nf] = g.numeros;
    RegistroContraste &c = UltimoContraste;
    if (di < ni) {
        c.primeraDenominador = primera;
        c.ultimaDenominador = primera + df - 1;
        c.primeraNumerador = primera + ni - 1;
        c.ultimaNumerador = ultima;
    } else {
        c.primeraNumerador = primera;
        c.ultimaDenominador = ultima;
        c.ultimaNumerador = primera + nf - 1;
        c.primeraDenominador = primera + di - 1;
    }
}

// ----- The ordered copies

std::string NombreCopia(std::size_t regresor) {
    return Formatear("_TMP%d", static_cast<int>(regresor) + 3);
}

// False when the copy couldn't be stored, after its message. A formula that fails shows the evaluator's and leaves no copy.
bool Copiar(const Goldfeld &g, const std::string &destino, const std::string &formula, int sinSitio) {
    if (SerieDeFormula(EnLaMuestra(g), destino, formula, "Copia para ordenarla") != FormulaSinGuardar)
        return true;
    MensajePunto(g.ventana, FaltanSeries, sinSitio);
    return false;
}

// Notes the slot of a copy. 0 after the message where there is none.
int Anotar(Goldfeld &g, const std::string &copia, const std::string &texto, int punto) {
    const int s = BuscarSerie(copia);
    if (s < 0) return MensajePunto(g.ventana, texto, punto);
    g.series.push_back(s);
    return 1;
}

int CopiarSeries(Goldfeld &g) {
    const std::vector<std::string> &regresores = UltimaRegresion.CodigosRegresores;
    if (BuscarSerie(UltimaRegresion.CodigoDependiente) < 0)
        return MensajePunto(g.ventana, "Realize una regresión"_w, 842);
    if (!Copiar(g, "_TMP2", UltimaRegresion.CodigoDependiente, 8679)) return 0;
    for (std::size_t i = 0; i < regresores.size(); ++i)
        if (!Copiar(g, NombreCopia(i), regresores[i], 8625)) return 0;
    if (Anotar(g, "_TMP1", "No se pueden generar temporales", 863) == 0) return 0;
    if (Anotar(g, "_TMP2", "No se pueden generar las variables temporales", 864) == 0) return 0;
    for (std::size_t i = 0; i < regresores.size(); ++i) {
        const std::string falta =
            Formatear("No existe la serie: [%s][%d]", NombreCopia(i).c_str(), static_cast<int>(i));
        if (Anotar(g, NombreCopia(i), falta, 865) == 0) return 0;
    }
    return 1;
}

void Ordenar(const Goldfeld &g) {
    const int primera = std::max(Muestra.InicioRegresion, 0);
    const int ultima = std::min(Muestra.FinRegresion, MaxObservaciones - 1);
    std::vector<double> claves = ValoresDeFilas(g.series.front(), primera, ultima);
    const std::vector<int> orden = OrdenarPorIntercambio(claves);
    for (const int serie : g.series) ReordenarSerie(serie, primera, orden);
    // The ordering variable comes last: the others are ordered by what it was.
    for (std::size_t i = 1; Trazando() && i <= g.series.size(); ++i) {
        const std::string codigo(Recortado(ArchivoTrabajo.Codigos[g.series[i % g.series.size()]]));
        TrazarSerie(codigo, ConPeriodos(codigo + " por orden de _TMP1", {primera, ultima}),
                    "Serie en el orden de la variable de ordenación"_w, {primera, ultima});
    }
}

// ----- The regressions

// One part of the ordered sample; the regression is that of the statement `palabra`.
int EstimarParte(const Goldfeld &g, const char *palabra, int codigo, int primera, int ultima) {
    std::string &linea = LineaDelNivel(g.lineas);
    linea = std::string(palabra) + "  _TMP2  ";
    for (std::size_t i = 0; i < UltimaRegresion.CodigosRegresores.size(); ++i) linea += NombreCopia(i) + "  ";
    Muestra.InicioRegresion = primera;
    Muestra.FinRegresion = ultima;
    int posicion = static_cast<int>(linea.find('_'));
    return EstimarRegresion(g.lineas, posicion, g.ventana, codigo);
}

int Contrastar(Goldfeld &g) {
    if (LeerOrdenacion(g) == 0 || LeerNumeros(g) == 0) return 0;
    CortarPartes(g);
    if (CopiarSeries(g) == 0) return 0;
    Ordenar(g);
    const RegistroContraste &c = UltimoContraste;
    const PartesGoldfeld partes = {Muestra.InicioRegresion,
                                   Muestra.FinRegresion,
                                   UltimaRegresion.PrimeraObsRegresion,
                                   UltimaRegresion.UltimaObsRegresion,
                                   c.primeraDenominador,
                                   c.ultimaDenominador,
                                   c.primeraNumerador,
                                   c.ultimaNumerador};
    if (!ComprobarPartes(partes, g.ventana)) return 0;
    if (EstimarParte(g, "MGN", OrdenMGN, c.primeraNumerador, c.ultimaNumerador) == 0) return 0;
    return EstimarParte(g, "MGD", OrdenMGD, c.primeraDenominador, c.ultimaDenominador);
}

} // namespace

// The regression of the denominator shows the report of both and deletes what the test left; a test that fails before does
// it here.
int ContrasteGoldfeldQuandt(LineasSentencia &lineas, int posicion, Ventana *ventana) {
    Goldfeld g{lineas, ventana, posicion};
    if (Contrastar(g) == 0) {
        BorrarTemporales(ventana, OrdenMGD);
    } else {
        Lote.finPorRegla = true;
    }
    return 0;
}
