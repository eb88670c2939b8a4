// The sample: from the limits that the user wrote, and from the data, to the rows that a command works on.
#include "platform/campos_texto.h"
#include "platform/numeros.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <algorithm>
#include <cmath>
#include <cstring>

EstadoDeMuestra Muestra;

namespace {

constexpr int FinSinDatos = 100000;           // where the search for the earliest last row begins
constexpr std::size_t AnchoCampoMuestra = 18; // characters of a field of the sample dialog

constexpr std::int32_t SinPresencia[MaxSeries] = {};

int SeriesEnUso() {
    return std::min<int>(ArchivoTrabajo.NumSeries, MaxSeries);
}

// First row with a value of each series in use, going `paso` by `paso` from row `desde` through `filas` rows; 0 where
// there is none. The table is walked by rows, as it lies in memory, and the walk ends with the last series found.
void BuscarExtremos(int desde, int paso, int filas, int series, std::int32_t *extremo) {
    std::fill_n(extremo, series, -1);
    int pendientes = series;
    for (int k = 0, i = desde; k < filas && pendientes > 0; ++k, i += paso) {
        const std::int32_t *presencia = ArchivoTrabajo.PresenciaObs[i];
        // Most rows of a short file in the long tables hold nothing.
        if (std::memcmp(presencia, SinPresencia, sizeof *presencia * static_cast<std::size_t>(series)) == 0)
            continue;
        for (int s = 0; s < series; ++s) {
            if (presencia[s] != 1 || extremo[s] >= 0) continue;
            extremo[s] = i;
            --pendientes;
        }
    }
    for (int s = 0; s < series; ++s) extremo[s] = std::max(extremo[s], 0);
}

// The bounds that the data give, for the limits that are missing.
void LimitesDeDatos(bool faltaInicio, bool faltaFin) {
    const int series = SeriesEnUso();
    if (series == 0) {
        if (faltaInicio) Muestra.InicioMuestra = 0;
        if (faltaFin) Muestra.FinMuestra = ArchivoTrabajo.NumObs - 1;
        return;
    }
    // Behind the rows that were ever written there is nothing to find.
    const std::int32_t *escritas = ArchivoTrabajo.FilasEscritas;
    const int filas = std::min<int>(FilasEnUso(), *std::max_element(escritas, escritas + series));
    std::int32_t primera[MaxSeries];
    std::int32_t ultima[MaxSeries];
    BuscarExtremos(0, 1, filas, series, primera);
    BuscarExtremos(filas - 1, -1, filas, series, ultima);
    int inicio = 0;
    int fin = FinSinDatos;
    for (int s = 0; s < series; ++s) {
        // A series whose only value stands in row 0 can't be told from one without values, and doesn't count.
        if (primera[s] == 0 && ultima[s] == 0) continue;
        inicio = std::max<int>(inicio, primera[s]);
        fin = std::min<int>(fin, ultima[s]);
    }
    if (faltaInicio) Muestra.InicioMuestra = inicio;
    if (faltaFin) Muestra.FinMuestra = fin;
}

// What the sub-period of a limit is divided by to stand behind the year; 1 for the types without one.
int EscalaDelTipo() {
    return ArchivoTrabajo.TipoDatos == TipoTrimestral ? 10
           : ArchivoTrabajo.TipoDatos == TipoMensual  ? 100
                                                      : 1;
}

// The row before the first one whose number is above that of the limit; -1 when no row is above it. `subPorDefecto`
// stands for a sub-period below 1. Year and sub-period are compared as one whole number: their sum as a fraction
// could differ in its last bit from the number read from the row's text, and move the bound by one row.
int FilaDeLimite(int ano, int sub, int subPorDefecto) {
    const int escala = EscalaDelTipo();
    const double limite =
        escala == 1 ? ano : static_cast<double>(ano) * escala + (sub < 1 ? subPorDefecto : sub);
    for (int i = 0; i < FilasEnUso(); ++i) {
        const double valor = ArchivoTrabajo.ValoresPeriodo[i];
        if ((escala == 1 ? valor : std::round(valor * escala)) > limite) return i - 1;
    }
    return -1;
}

// True when the text of the row, its blanks left out, is `limite`, which has none.
bool FilaSeLlama(int fila, std::string_view limite) {
    std::size_t n = 0;
    for (const char *c = ArchivoTrabajo.TextosPeriodo[fila]; *c != '\0'; ++c) {
        if (*c == ' ') continue;
        if (n >= limite.size() || limite[n] != *c) return false;
        ++n;
    }
    return n == limite.size();
}

void LimitesPeriodicos() {
    const int ultimoSub = ArchivoTrabajo.TipoDatos == TipoTrimestral ? 4 : 12;
    if (Muestra.AnoFinal != 0)
        Muestra.FinMuestra = FilaDeLimite(Muestra.AnoFinal, Muestra.SubFinal, ultimoSub);
    if (Muestra.FinMuestra < 0) Muestra.FinMuestra = ArchivoTrabajo.NumObs - 1;
    if (Muestra.AnoInicial != 0)
        Muestra.InicioMuestra = std::max(FilaDeLimite(Muestra.AnoInicial, Muestra.SubInicial, 1), 0);
}

void LimitesDePanel() {
    for (int i = FilasEnUso() - 1; i >= 0; --i) {
        if (Muestra.AnoInicial != 0 && FilaSeLlama(i, Muestra.LimiteInicial)) Muestra.InicioMuestra = i;
        if (Muestra.AnoFinal != 0 && Muestra.FinMuestra < 0 && FilaSeLlama(i, Muestra.LimiteFinal))
            Muestra.FinMuestra = i;
    }
}

bool DePeriodo(char c) {
    return c >= '-' && c <= '9';
}

// The next word of characters from "-" to "9", the position left behind it; empty when there is none.
std::string_view SiguientePeriodo(std::string_view texto, std::size_t &posicion) {
    while (posicion < texto.size() && !DePeriodo(texto[posicion])) ++posicion;
    const std::size_t inicio = posicion;
    while (posicion < texto.size() && DePeriodo(texto[posicion])) ++posicion;
    return texto.substr(inicio, posicion - inicio);
}

// The part of `texto` before the first of `hasta`; what is left begins with that character.
std::string_view Parte(std::string_view &texto, std::string_view hasta) {
    const std::size_t fin = std::min(texto.find_first_of(hasta), texto.size());
    const std::string_view parte = texto.substr(0, fin);
    texto.remove_prefix(fin);
    return parte;
}

// Takes the separator away when the text begins with it.
bool Tras(std::string_view &texto, char separador) {
    if (texto.empty() || texto.front() != separador) return false;
    texto.remove_prefix(1);
    return true;
}

struct LimiteEscrito {
    int ano, sub, individuo;
};

LimiteEscrito LeerLimite(std::string_view texto) {
    LimiteEscrito r{0, 0, 0};
    // The order of the panel means nothing to the other types, even when a panel was described before.
    const bool individuoPrimero =
        ArchivoTrabajo.TipoDatos == TipoPanel && DescripcionPanel.PrimerConcepto != PeriodoPrimero;
    if (individuoPrimero) {
        r.individuo = LeerEntero(Parte(texto, ".-"));
        Parte(texto, "-");
        if (!Tras(texto, '-')) return r;
        r.ano = LeerEntero(Parte(texto, "."));
        if (Tras(texto, '.')) r.sub = LeerEntero(texto);
        return r;
    }
    r.ano = LeerEntero(Parte(texto, ".-"));
    if (Tras(texto, '.')) r.sub = LeerEntero(Parte(texto, "-"));
    if (Tras(texto, '-')) r.individuo = LeerEntero(texto);
    return r;
}

void PonerLimites(std::string_view inicial, std::string_view final) {
    const LimiteEscrito a = LeerLimite(inicial);
    const LimiteEscrito b = LeerLimite(final);
    Muestra.AnoInicial = a.ano;
    Muestra.SubInicial = a.sub;
    Muestra.IndividuoInicial = a.individuo;
    Muestra.LimiteInicial = inicial;
    Muestra.AnoFinal = b.ano;
    Muestra.SubFinal = b.sub;
    Muestra.IndividuoFinal = b.individuo;
    Muestra.LimiteFinal = final;
}

std::string TextoDeLimite(int ano, int sub, const std::string &escrito) {
    switch (ArchivoTrabajo.TipoDatos) {
    case TipoPanel: return escrito;
    case TipoTrimestral: return sub > 0 ? Formatear("%d.%1d", ano, sub) : Formatear("%d", ano);
    case TipoMensual: return sub > 0 ? Formatear("%d.%02d", ano, sub) : Formatear("%d", ano);
    default: return Formatear("%d", ano);
    }
}

} // namespace

int FilasEnUso() {
    const int n = ArchivoTrabajo.NumObs;
    return n > MaxObservaciones ? MaxObservaciones : std::max(n, 0);
}

int FinDeCalculo(int ultima) {
    return ultima < MaxObservaciones ? ultima : FilasEnUso() - 1;
}

FilasDeMuestra FilasDelArchivo(int inicio, int fin) {
    return {std::clamp(inicio, 0, MaxObservaciones), std::clamp(fin, -1, FilasEnUso() - 1)};
}

void ActualizarMuestra() {
    const bool faltaInicio = Muestra.AnoInicial == 0;
    const bool faltaFin = Muestra.AnoFinal == 0;
    Muestra.InicioMuestra = -1;
    Muestra.FinMuestra = -1;
    if (faltaInicio || faltaFin) LimitesDeDatos(faltaInicio, faltaFin);
    const bool automatica = faltaInicio && faltaFin;
    if (!automatica) {
        if (ArchivoTrabajo.TipoDatos == TipoPanel) {
            LimitesDePanel();
        } else if (ArchivoTrabajo.TipoDatos < TipoPanel) {
            LimitesPeriodicos();
        }
    }
    if (Muestra.FinMuestra < 0) Muestra.FinMuestra = ArchivoTrabajo.NumObs - 1;
    if (Muestra.InicioMuestra < 0) Muestra.InicioMuestra = 0;
    // Between limits that the user wrote the end steps behind the start; the automatic sample shrinks to one row.
    if (Muestra.FinMuestra < Muestra.InicioMuestra)
        Muestra.FinMuestra = Muestra.InicioMuestra + (automatica ? 0 : 1);
}

void MuestraDeSentencia(std::string_view linea) {
    std::size_t posicion = 0;
    const std::string_view inicial = SiguientePeriodo(linea, posicion);
    const std::string_view final = SiguientePeriodo(linea, posicion);
    PonerLimites(inicial, final);
    ActualizarMuestra();
}

void AceptarDialogoMuestra(std::string_view inicial, std::string_view final) {
    const std::string a = SinBlancos(inicial.substr(0, AnchoCampoMuestra));
    const std::string b = SinBlancos(final.substr(0, AnchoCampoMuestra));
    std::size_t enA = 0;
    std::size_t enB = 0;
    PonerLimites(SiguientePeriodo(a, enA), SiguientePeriodo(b, enB));
    ActualizarMuestra();
}

void PrepararDialogoMuestra() {
    Muestra.TextoInicial = TextoDeLimite(Muestra.AnoInicial, Muestra.SubInicial, Muestra.LimiteInicial);
    Muestra.TextoFinal = TextoDeLimite(Muestra.AnoFinal, Muestra.SubFinal, Muestra.LimiteFinal);
}

std::vector<std::string> LineasMuestraActual() {
    const bool conTextos = ArchivoTrabajo.NumObs <= MaxObservaciones;
    const auto texto = [&](int fila) { return conTextos ? std::string(TextoPeriodo(fila)) : std::string(); };
    const std::string_view intervalo = Recortado(ArchivoTrabajo.TextoIntervalo, RecorteDerecha);
    return {"Período inicial: "_w + texto(Muestra.InicioMuestra),
            "Período final: "_w + texto(Muestra.FinMuestra), "Muestra máxima: "_w + std::string(intervalo),
            "Número máximo datos: "_w + Formatear("%d", ArchivoTrabajo.NumObs)};
}

void LimpiarLimitesMuestra() {
    PonerLimites("", "");
    Muestra.TextoInicial.clear();
    Muestra.TextoFinal.clear();
}
