// The names of a regression's results, and the deletion of what a command computed with.
#include "store/temporales.h"

#include "platform/texto.h"
#include "store/archivo.h"
#include "store/ordenes.h"

#include <string>

namespace {

// ----- Names

enum Sufijos { SinSufijo, SufijoR, SufijoGN, SufijoGD, SufijoW, NumSufijos };

constexpr const char *TextosSufijo[NumSufijos] = {"", "R", "GN", "GD", "W"};

Sufijos SufijoDe(int codigo) {
    switch (codigo) {
    case OrdenCR: return SufijoR;
    case OrdenMGN: return SufijoGN;
    case OrdenMGD: return SufijoGD;
    case OrdenCWH: return SufijoW;
    default: return SinSufijo;
    }
}

#define CON_SUFIJOS(base)                                                                                    \
    { base, base "R", base "GN", base "GD", base "W" }

constexpr const char *NombresFamilia[NumFamilias][NumSufijos] = {
    CON_SUFIJOS("_BETA"),  CON_SUFIJOS("_NREG"), CON_SUFIJOS("_ANREG"), CON_SUFIJOS("_SCR"),
    CON_SUFIJOS("_DTR"),   CON_SUFIJOS("_DIV"),  CON_SUFIJOS("_MTR"),   CON_SUFIJOS("_COV"),
    CON_SUFIJOS("_DTE"),   CON_SUFIJOS("_MVD"),  CON_SUFIJOS("_STVD"),  CON_SUFIJOS("_LV"),
    CON_SUFIJOS("_AIC"),   CON_SUFIJOS("_SCVD"), CON_SUFIJOS("_DTVD"),  CON_SUFIJOS("_DCR"),
    CON_SUFIJOS("_RC"),    CON_SUFIJOS("_DW"),   CON_SUFIJOS("_RCC"),   CON_SUFIJOS("_EA1"),
    CON_SUFIJOS("_PROBT"), CON_SUFIJOS("_NORE"), CON_SUFIJOS("_FORLA"), CON_SUFIJOS("_ESTF"),
    CON_SUFIJOS("_RES"),
};

#undef CON_SUFIJOS

// ----- What is deleted, in order

enum ClasesTemporal { TemporalMatriz, TemporalEscalar, TemporalSerie };

// Codes that a row of the table applies to: one CodigoOrden, or a group of the regressions.
constexpr int Todos = -1;
constexpr int Auxiliares = -2; // those of a test, of which nothing stays

bool Corresponde(int codigos, int codigo) {
    if (codigos == Auxiliares) return codigo != OrdenMC && codigo != OrdenMCP;
    return codigos == Todos || codigos == codigo;
}

// base + (suffix of the code) + cola
struct Temporal {
    ClasesTemporal clase;
    int codigos;
    const char *base;
    bool conSufijo;
    const char *cola = "";
};

constexpr Temporal MatricesYEscalares[] = {
    {TemporalMatriz, Todos, "_YDEP", false},       {TemporalMatriz, Todos, "_XIND", false},
    {TemporalMatriz, Todos, "_YAJU1", false},      {TemporalMatriz, Todos, "_DTE", true},
    {TemporalMatriz, Todos, "_DTE", true, "1"},    {TemporalMatriz, Todos, "_RESM", false},
    {TemporalMatriz, Todos, "_SCR1", false},       {TemporalMatriz, Auxiliares, "_BETA", true},
    {TemporalMatriz, Auxiliares, "_COV", true},    {TemporalMatriz, OrdenMCP, "_TMP2", false},
    {TemporalMatriz, OrdenMCP, "_TMP3", false},    {TemporalMatriz, OrdenMCP, "_TMP4", false},
    {TemporalMatriz, OrdenMCP, "_TMP5", false},    {TemporalMatriz, OrdenMCP, "_TMP6", false},
    {TemporalEscalar, Todos, "_MTR", true},        {TemporalEscalar, Todos, "_MVD", true},
    {TemporalEscalar, Todos, "_STVD", true},       {TemporalEscalar, Todos, "_LV", true},
    {TemporalEscalar, Todos, "_AIC", true},        {TemporalEscalar, Todos, "_SCVD", true},
    {TemporalEscalar, Todos, "_DTVD", true},       {TemporalEscalar, Todos, "_DCR", true},
    {TemporalEscalar, Todos, "_RC", true},         {TemporalEscalar, Todos, "_RCC", true},
    {TemporalEscalar, Todos, "_EA1", true},        {TemporalEscalar, Todos, "_ANREG", true},
    {TemporalEscalar, Todos, "_TMF7", false},      {TemporalEscalar, Auxiliares, "_NREG", true},
    {TemporalEscalar, Auxiliares, "_SCR", true},   {TemporalEscalar, Auxiliares, "_NORE", true},
    {TemporalEscalar, Auxiliares, "_FORLA", true}, {TemporalEscalar, Auxiliares, "_DTR", true},
    {TemporalEscalar, Auxiliares, "_ESTF", true},  {TemporalEscalar, Auxiliares, "_DW", true},
    {TemporalEscalar, OrdenCWH, "_TM11", false},   {TemporalEscalar, OrdenCWH, "_TM12", false},
    {TemporalEscalar, OrdenCWH, "_TM13", false},   {TemporalEscalar, OrdenCR, "_EST5", false},
    {TemporalEscalar, OrdenMGD, "_ESTFG", false},  {TemporalEscalar, OrdenMGD, "_TMPD", false},
    {TemporalEscalar, OrdenMGD, "_TMPN", false},   {TemporalEscalar, OrdenMCP, "_TMP7", false},
};

// Of an auxiliary regression nothing stays, the standard errors as a series (_DTER2) included.
constexpr Temporal SeriesDeResultados[] = {
    {TemporalSerie, Auxiliares, "_RES", true},      {TemporalSerie, Auxiliares, "_DTE", true},
    {TemporalSerie, Auxiliares, "_DIV", true},      {TemporalSerie, Auxiliares, "_PROBT", true},
    {TemporalSerie, Auxiliares, "_YAJUS", false},   {TemporalSerie, Auxiliares, "_BETA2", false},
    {TemporalSerie, Auxiliares, "_DTE", true, "2"},
};

constexpr Temporal MatricesDelCalculo[] = {
    {TemporalMatriz, Todos, "_TMF2", false}, {TemporalMatriz, Todos, "_TMF3", false},
    {TemporalMatriz, Todos, "_TMF4", false}, {TemporalMatriz, Todos, "_TMF5", false},
    {TemporalMatriz, Todos, "_TMF6", false}, {TemporalMatriz, Todos, "_S0", false},
    {TemporalMatriz, Todos, "_S2", false},   {TemporalMatriz, Todos, "_S3", false},
    {TemporalMatriz, Todos, "_S8", false},   {TemporalMatriz, Todos, "_S5", false},
    {TemporalMatriz, Todos, "_S9", false},   {TemporalMatriz, Todos, "_S7", false},
    {TemporalMatriz, Todos, "_S6", false},   {TemporalMatriz, Todos, "_TMS2", false},
    {TemporalMatriz, Todos, "_TMS3", false}, {TemporalMatriz, Todos, "_TMS4", false},
};

// ----- The deletion

bool BorrarSiExisteMatriz(Ventana *ventana, const std::string &nombre) {
    const int m = BuscarMatriz(nombre);
    return m < 0 || BorrarMatriz(ventana, m) == 1;
}

void BorrarSiExisteEscalar(const std::string &nombre) {
    const int e = BuscarEscalar(nombre);
    if (e >= 0) BorrarEscalar(e);
}

void BorrarSiExisteSerie(const std::string &nombre, bool &borradas) {
    const int s = BuscarSerie(nombre);
    if (s < 0) return;
    BorrarSerie(s);
    borradas = true;
}

void BorrarNumeradas(const char *base, int hasta, bool &borradas) {
    for (int i = 1; i <= hasta; ++i) BorrarSiExisteSerie(Formatear("%s%d", base, i), borradas);
}

// False when a matrix couldn't be deleted; its message was shown.
bool BorrarLista(std::span<const Temporal> lista, Ventana *ventana, int codigo, bool &borradas) {
    for (const Temporal &t : lista) {
        if (!Corresponde(t.codigos, codigo)) continue;
        const std::string nombre =
            std::string(t.base) + (t.conSufijo ? TextosSufijo[SufijoDe(codigo)] : "") + t.cola;
        if (t.clase == TemporalMatriz && !BorrarSiExisteMatriz(ventana, nombre)) return false;
        if (t.clase == TemporalEscalar) BorrarSiExisteEscalar(nombre);
        if (t.clase == TemporalSerie) BorrarSiExisteSerie(nombre, borradas);
    }
    return true;
}

int SeriesDe(const CuentasTemporales &cuentas, int codigo) {
    const std::size_t i = static_cast<std::size_t>(codigo);
    return i < cuentas.series.size() ? cuentas.series[i] : 0;
}

bool BorrarPasada(Ventana *ventana, int codigo, const CuentasTemporales &cuentas) {
    bool borradas = false;
    if (!BorrarLista(MatricesYEscalares, ventana, codigo, borradas)) return false;
    if (codigo == OrdenMGN) BorrarNumeradas("_TMP", cuentas.regresores + 2, borradas);
    if (codigo == OrdenCWH) BorrarNumeradas("_TMP", 3 * SeriesDe(cuentas, OrdenCWH), borradas);
    BorrarSiExisteSerie("_RESCUAD", borradas);
    BorrarNumeradas("_TMR", SeriesDe(cuentas, codigo), borradas);
    if (!BorrarLista(SeriesDeResultados, ventana, codigo, borradas)) return false;
    if (borradas) {
        CompactarSeries();
        RefrescarEditor();
    }
    return true;
}

// The rank test makes its series at the end of the table, so the count falls with them and nothing is moved: behind
// a slot that was not the last one a hole stays. All slots are searched, as the count falls before the list ends.
void BorrarContrasteRangos() {
    for (int i = 1; i <= 7; ++i) {
        const int s = BuscarSerieEnTabla(Formatear("_TMP%d", i));
        if (s < 0) continue;
        BorrarSerie(s);
        if (ArchivoTrabajo.NumSeries > 0) --ArchivoTrabajo.NumSeries;
    }
    RefrescarEditor();
    for (int i = 8; i <= 12; ++i) BorrarSiExisteEscalar(Formatear("_TMP%d", i));
}

} // namespace

const char *NombreFamilia(Familias familia, int codigo) {
    return NombresFamilia[familia][SufijoDe(codigo)];
}

Familias FamiliaDeNombre(std::string_view nombre) {
    int f = 0;
    while (f < NumFamilias && nombre != NombresFamilia[f][SinSufijo] + 1) ++f;
    return static_cast<Familias>(f);
}

int BorrarTemporales(Ventana *ventana, int codigo, const CuentasTemporales &cuentas) {
    if (codigo == OrdenCRA) {
        BorrarContrasteRangos();
        return 0;
    }
    if (codigo < OrdenMC || codigo > OrdenMCP) return 0;
    if (codigo == OrdenMGD && !BorrarPasada(ventana, OrdenMGN, cuentas)) return 0;
    if (!BorrarPasada(ventana, codigo, cuentas)) return 0;
    bool ninguna = false;
    BorrarLista(MatricesDelCalculo, ventana, codigo, ninguna);
    return 0;
}
