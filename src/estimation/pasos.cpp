// The steps of a regression, as tables of formulas.
#include "estimation/pasos.h"

#include "estimation/momentos.h"
#include "language/asignaciones.h"
#include "language/lote_sentencias.h"
#include "platform/campos_texto.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/periodos.h"
#include "store/temporales.h"

#include <cmath>
#include <span>

namespace {

// ----- What a step is

enum ClasesPaso {
    PasoMatriz,
    PasoEscalar,
    PasoSerie,
    PasoSerieDeMatriz // the formula is the name of a matrix; its failures have a message of their own
};

// What is shown when a result was computed and can't be stored.
enum FallosGuardar {
    GuardarPunto,    // "Secuencia no válida" with puntoGuardar
    GuardarCausa,    // the same, the point raised by the cause
    GuardarSinPunto, // the text holds puntoGuardar, the cause is the point
    GuardarSeries    // "Borre algunas series" with puntoGuardar
};

using FormulaPaso = std::string (*)(const Estimacion &e);

constexpr Familias NombreFijo = NumFamilias;

// A step stores in a family with a tail behind its name, or under a name that is the same for every code (NombreFijo).
struct Paso {
    ClasesPaso clase;
    Familias familia;
    const char *cola;
    FormulaPaso formula;
    int puntoFormula; // of "Secuencia no válida" when the formula fails
    int puntoGuardar = 0;
    FallosGuardar fallo = GuardarPunto;
};

// Name of a family for the code of the run.
const char *N(const Estimacion &e, Familias familia) {
    return NombreFamilia(familia, e.codigo);
}

std::string NombreDestino(const Estimacion &e, const Paso &p) {
    return p.familia == NombreFijo ? p.cola : std::string(N(e, p.familia)) + p.cola;
}

int FallarAlGuardar(Estimacion &e, const Paso &p, int causa) {
    switch (p.fallo) {
    case GuardarCausa: return MensajePunto(e.ventana, SecuenciaNoValida, p.puntoGuardar + causa);
    case GuardarSinPunto:
        return MensajePunto(e.ventana, Formatear("%s. %d", SecuenciaNoValida, p.puntoGuardar), causa);
    case GuardarSeries: return MensajePunto(e.ventana, FaltanSeries, p.puntoGuardar);
    default: return MensajePunto(e.ventana, SecuenciaNoValida, p.puntoGuardar);
    }
}

int EjecutarPaso(Estimacion &e, const Paso &p) {
    const std::string destino = NombreDestino(e, p);
    const std::string formula = p.formula(e);
    int causa = 0;
    FinesDeFormula fin = FormulaErronea;
    switch (p.clase) {
    case PasoMatriz:
        if (MatrizDeFormula(e, destino, formula, Muestra.InicioRegresion, Muestra.InicioRegresion) == 1)
            fin = FormulaGuardada;
        break;
    case PasoEscalar: fin = EscalarDeFormula(e, destino, formula, causa); break;
    case PasoSerie: fin = SerieDeFormula(e, destino, formula); break;
    case PasoSerieDeMatriz: return SerieDesdeMatriz(destino, "{" + formula + "}", 1, e.ventana);
    }
    if (fin == FormulaErronea) return MensajePunto(e.ventana, SecuenciaNoValida, p.puntoFormula);
    return fin == FormulaGuardada ? 1 : FallarAlGuardar(e, p, causa);
}

int EjecutarLista(Estimacion &e, std::span<const Paso> lista) {
    for (const Paso &p : lista)
        if (EjecutarPaso(e, p) == 0) return 0;
    return 1;
}

// ----- Pieces of the formulas

int GradosDeLibertad(const Estimacion &e) {
    return e.observaciones - e.regresores;
}

double ValorDe(std::string_view escalar) {
    const int s = BuscarEscalar(escalar);
    return s < 0 ? 0.0 : TablaEscalares.registro[s].Valor;
}

std::string F(const Estimacion &e) {
    const double r2 = ValorDe(N(e, FamRC));
    const int k = e.regresores, gl = GradosDeLibertad(e);
    if (k - 1 <= 0 || 1.0 - r2 <= 0.0 || gl <= 0) return "0.00";
    return Formatear("%f", (r2 / (k - 1)) / ((1.0 - r2) / gl));
}

// Without degrees of freedom the quotient is no number, and its text would be no formula: it counts as 0, as F does.
std::string RCuadradoCorregido(const Estimacion &e) {
    const double r2 = ValorDe(N(e, FamRC));
    const double corregido = 1.0 - (1.0 - r2) * (e.observaciones - 1) / GradosDeLibertad(e);
    return GradosDeLibertad(e) == 0 || !std::isfinite(corregido) ? "0.00" : Formatear("%f", corregido);
}

std::string Verosimilitud(const Estimacion &e) {
    const double mitad = e.observaciones / 2.0;
    const double constante = (std::log(6.283185307179586) + 1.0) * e.observaciones / 2.0;
    return Formatear("(%f + (%f * LN(%s/%d)))* -1.00", constante, mitad, N(e, FamSCR), e.observaciones);
}

std::string Decimal6(double valor) {
    return Formatear("%10.6f", valor);
}

int SeriesDe(int codigo) {
    return UltimaRegresion.SeriesRegresion[codigo];
}

int ObservacionesDelRango() {
    return Muestra.FinRegresion - Muestra.InicioRegresion + 1;
}

// ----- The steps. Values that go through a text have six decimals, and later formulas see them so.

using E = const Estimacion &;

std::string CuatroCeros(E) {
    return "{0 0 0 0}"; // only to have the matrices
}

constexpr Paso PasosPrevios[] = {
    {PasoMatriz, NombreFijo, "_TMF2", CuatroCeros, 6524},
    {PasoMatriz, NombreFijo, "_TMF3", CuatroCeros, 6524},
    {PasoMatriz, NombreFijo, "_TMF4", CuatroCeros, 6524},
};

constexpr Paso PasosAjuste[] = {
    {PasoMatriz, FamBETA, "", [](E) -> std::string { return "_TMF5$ * _TMF6"; }, 6535},
    {PasoMatriz, NombreFijo, "_YAJU1", [](E e) { return Formatear("_XIND * %s", N(e, FamBETA)); }, 653},
    {PasoSerieDeMatriz, NombreFijo, "_YAJUS", [](E) -> std::string { return "_YAJU1"; }, 0},
    {PasoMatriz, NombreFijo, "_RESM", [](E e) { return Formatear("_YDEP - (_XIND * %s)", N(e, FamBETA)); },
     653},
    {PasoSerieDeMatriz, FamRES, "", [](E) -> std::string { return "_RESM"; }, 0},
};

constexpr Paso PasosError[] = {
    {PasoEscalar, FamSCR, "", [](E) -> std::string { return "ESCAL(_SCR1)"; }, 655, 656},
    {PasoEscalar, FamDTR, "",
     [](E e) -> std::string {
         return GradosDeLibertad(e) <= 0 ? " 0.0"
                                         : Formatear("RCUAD(%s/%d)", N(e, FamSCR), GradosDeLibertad(e));
     },
     955, 956},
    {PasoEscalar, FamMTR, "", [](E e) { return Formatear("%s * %s", N(e, FamDTR), N(e, FamDTR)); }, 655, 656},
};

constexpr Paso PasosCovarianza[] = {
    {PasoMatriz, FamCOV, "", [](E e) { return Formatear("%s * _TMF5$", N(e, FamMTR)); }, 657},
};

// The last one has no number of its own and takes that of its neighbour.
constexpr Paso PasosMedidas[] = {
    {PasoMatriz, FamDTE, "", [](E e) { return Formatear("RCMT(VECT(%s))", N(e, FamCOV)); }, 658},
    {PasoEscalar, FamMVD, "", [](E e) { return Decimal6(e.media); }, 659, 6661},
    {PasoEscalar, FamSTVD, "", [](E e) { return Decimal6(e.suma); }, 6662, 6636},
    {PasoEscalar, FamLV, "", Verosimilitud, 6664, 6665},
    {PasoEscalar, FamAIC, "",
     [](E e) { return Formatear("(-2 * (%s - %d))/%d", N(e, FamLV), e.regresores, e.observaciones); }, 6667,
     6668},
    {PasoEscalar, FamSCVD, "", [](E e) { return Decimal6(e.variacion); }, 6669, 70},
    {PasoEscalar, FamDTVD, "",
     [](E e) { return Formatear("RCUAD(%s/%f)", N(e, FamSCVD), e.observaciones - 1.0); }, 71, 72},
    {PasoEscalar, FamDCR, "", [](E) -> std::string { return "ESCAL(_SCR1)"; }, 73, 74},
    {PasoEscalar, FamRC, "", [](E e) { return Formatear("1.00 - (ESCAL(_SCR1)/%s)", N(e, FamSCVD)); }, 75,
     76},
    {PasoEscalar, FamFORLA, "", F, 77, 78},
    {PasoEscalar, FamNORE, "", [](E e) { return Formatear("%d", GradosDeLibertad(e)); }, 77, 78},
};

// The first two have no numbers of their own and take those of their neighbours.
constexpr Paso PasosFinales[] = {
    {PasoEscalar, FamANREG, "", [](E e) { return Formatear("%d", SeriesDe(e.codigo)); }, 77, 78},
    {PasoEscalar, FamNREG, "", [](E e) { return Formatear("%d", e.regresores); }, 77, 78},
    {PasoEscalar, FamDW, "", [](E e) { return Formatear("(1.00/(ESCAL(_SCR1))) * %10.6f", e.saltos); }, 79,
     80},
    {PasoEscalar, FamRCC, "", RCuadradoCorregido, 81, 82},
    {PasoEscalar, FamESTF, "",
     [](E e) { return Formatear("PROBF(%s,%s,%s)", N(e, FamFORLA), N(e, FamANREG), N(e, FamNORE)); }, 831,
     880, GuardarCausa},
    {PasoEscalar, FamEA1, "", [](E e) { return Formatear("1.00-(%s/2.00)", N(e, FamDW)); }, 85, 861,
     GuardarSinPunto},
    {PasoMatriz, FamDTE, "1", [](E e) { return Formatear("%s'", N(e, FamDTE)); }, 658},
    {PasoSerieDeMatriz, FamDTE, "2", [](E e) { return Formatear("%s1", N(e, FamDTE)); }, 0},
    {PasoSerieDeMatriz, NombreFijo, "_BETA2", [](E e) -> std::string { return N(e, FamBETA); }, 0},
    {PasoSerie, FamDIV, "", [](E e) { return Formatear("_BETA2/%s2", N(e, FamDTE)); }, 831, 8622,
     GuardarSeries},
    {PasoSerie, FamPROBT, "", [](E e) { return Formatear("PROBT(%s,%s)", N(e, FamDIV), N(e, FamNORE)); }, 852,
     863, GuardarSeries},
};

// CR compares its residuals with those of the last MC, on as many degrees of freedom as regressors were left out. The
// range is that of CR, which its own lags may have shortened.
int RegresoresFuera() {
    return SeriesDe(OrdenMC) - SeriesDe(OrdenCR);
}

constexpr Paso PasosRestringido[] = {
    {PasoEscalar, NombreFijo, "_EST5", [](E) { return Formatear("%d", RegresoresFuera()); }, 655, 656},
    {PasoEscalar, FamFORLA, "",
     [](E) {
         return Formatear("((_SCRR - _SCR)/%d)/(_SCR/%d)", RegresoresFuera(),
                          ObservacionesDelRango() - UltimaRegresion.NumRegresores);
     },
     655, 656},
    {PasoEscalar, FamESTF, "",
     [](E e) { return Formatear("PROBF(%s,_EST5,%s)", N(e, FamFORLA), NombreFamilia(FamNORE, OrdenMC)); },
     832, 780, GuardarCausa},
};

// The F of a consistent covariance matrix is the Wald statistic that its steps left.
constexpr Paso PasosWald[] = {
    {PasoEscalar, FamFORLA, "", [](E) -> std::string { return "ESCAL(_S3)"; }, 832, 832},
};

double EstadisticoWhite(E e) {
    return e.observaciones * ValorDe(N(e, FamRC));
}

constexpr Paso PasosWhite[] = {
    {PasoEscalar, NombreFijo, "_TM11", [](E e) { return Formatear("%f", EstadisticoWhite(e)); }, 7551, 756},
    {PasoEscalar, NombreFijo, "_TM12", [](E) { return Formatear("%d", SeriesDe(OrdenCWH)); }, 7552, 756},
    {PasoEscalar, NombreFijo, "_TM13",
     [](E e) { return Formatear("PROBC(%f,%d)", EstadisticoWhite(e), SeriesDe(OrdenCWH)); }, 7553, 756},
};

// ----- The order

int Preparar(Estimacion &e) {
    const int y = BuscarMatriz("_YDEP"), x = BuscarMatriz("_XIND");
    if (EjecutarLista(e, PasosPrevios) == 0) return 0;
    if (y < 0 || x < 0) return MensajePunto(e.ventana, SecuenciaNoValida, 6525);
    e.observaciones = TablaMatrices.registro[y].Filas;
    e.regresores = TablaMatrices.registro[x].Columnas;
    if (BuscarSerie(e.dependiente) < 0) return MensajePunto(e.ventana, SecuenciaNoValida, 6529);
    if (e.codigo != OrdenMCP && UltimaRegresion.Ponderada == 0) return 1;
    if (BuscarSerie("_VORD") < 0) return MensajePunto(e.ventana, SecuenciaNoValida, 6528);
    return ParteSinEnsamblar(e);
}

int EstimarCovarianza(Estimacion &e) {
    if (UltimaRegresion.TipoCovarianza == CovarianzaNormal) return EjecutarLista(e, PasosCovarianza);
    return ParteSinEnsamblar(e);
}

// The two regressions of Goldfeld and Quandt are reported with the count of the last MC.
void HeredarSeries(const Estimacion &e) {
    if (e.codigo == OrdenMGN || e.codigo == OrdenMGD)
        UltimaRegresion.SeriesRegresion[e.codigo] = UltimaRegresion.SeriesRegresion[OrdenMC];
}

void MostrarLista(const Estimacion &e) {
    UltimaRegresion.TextosRegresores = e.textos;
    UltimaRegresion.NumTextos = static_cast<int>(e.textos.size());
    PonerCampo(UltimaRegresion.DependienteMostrado, e.dependiente, AnchoCodigo);
}

void AnotarRegresion(const Estimacion &e) {
    RegistroRegresion &u = UltimaRegresion;
    PonerCampo(u.CodigoDependiente, e.dependiente, AnchoCodigo);
    u.CodigosRegresores.clear();
    for (const std::string &texto : e.textos) u.CodigosRegresores.push_back(texto.substr(0, AnchoCodigo - 1));
    u.NumRegresores = e.regresores;
    u.PrimeraObsRegresion = Muestra.InicioRegresion;
    u.UltimaObsRegresion = Muestra.FinRegresion;
    u.RegresionHecha = 1;
}

} // namespace

int EjecutarPasos(Estimacion &e) {
    if (Preparar(e) == 0 || AcumularMomentos(e) == 0) return 0;
    if (EjecutarLista(e, PasosAjuste) == 0 || AcumularResiduos(e) == 0) return 0;
    if (SumarDirecto(e) == 0 || EjecutarLista(e, PasosError) == 0 || EstimarCovarianza(e) == 0) return 0;
    if (EjecutarLista(e, PasosMedidas) == 0) return 0;
    HeredarSeries(e);
    return EjecutarLista(e, PasosFinales);
}

int CompletarRegresion(Estimacion &e) {
    if (e.codigo == OrdenMCP) UltimaRegresion.SeriesRegresion[OrdenMC] = SeriesDe(OrdenMCP);
    if (e.codigo == OrdenCR || e.codigo == OrdenCWH || e.codigo == OrdenMCP) MostrarLista(e);
    if (e.codigo == OrdenCR && EjecutarLista(e, PasosRestringido) == 0) return 0;
    if (UltimaRegresion.TipoCovarianza == CovarianzaHeterocedasticidad && EjecutarLista(e, PasosWald) == 0)
        return 0;
    if (e.codigo == OrdenMC || e.codigo == OrdenMCP) AnotarRegresion(e);
    if (e.codigo == OrdenMGD) return ParteSinEnsamblar(e);
    if (e.codigo == OrdenCWH && EjecutarLista(e, PasosWhite) == 0) return 0;
    return 1;
}
