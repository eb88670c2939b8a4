// The texts of the rows: what each observation of the work file is called, by its data type.
#include "store/periodos.h"

#include "platform/campos_texto.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/intervalo.h"

#include <algorithm>
#include <cstring>

DescripcionDePanel DescripcionPanel;

namespace {

// Years from the first to the last one where this was left blank. The quarterly and the monthly range are a little
// longer than the tables; the steps back from their end make them fit.
int AnosPorDefecto(int porAno) {
    return porAno == 1 ? 3999 : porAno == 4 ? 1000 : 334;
}

void PonerIntervalo(std::string_view texto) {
    PonerCampo(ArchivoTrabajo.TextoIntervalo, texto, AnchoIntervalo);
}

std::string_view CampoIntervalo() {
    return {ArchivoTrabajo.TextoIntervalo, strnlen(ArchivoTrabajo.TextoIntervalo, AnchoIntervalo)};
}

// Sub-periods outside a year come from a blank field or a damaged file.
void CompletarSubperiodos(Intervalo &v, int porAno) {
    v.primerSub = std::clamp(v.primerSub, 1, porAno);
    v.ultimoSub = v.ultimoSub < 1 ? porAno : std::min(v.ultimoSub, porAno);
}

void ConstruirSinPeriodicidad() {
    CabeceraArchivo &a = ArchivoTrabajo;
    if (a.NumObs < 1 || a.NumObs > MaxObservaciones) a.NumObs = MaxObservaciones;
    for (int i = 0; i < a.NumObs; ++i) PonerTextoPeriodo(i, Formatear("%4d", i + 1));
    PonerIntervalo(Formatear(" 1 # %d", a.NumObs));
}

void ConstruirPeriodico(int porAno) {
    Intervalo v = LeerIntervalo(CampoIntervalo(), porAno);
    if (v.primerAno == 0) v.primerAno = AnoPorDefecto;
    if (v.ultimoAno == 0) v.ultimoAno = v.primerAno + AnosPorDefecto(porAno);
    CompletarSubperiodos(v, porAno);
    // A work file has two periods or more.
    if (v.ultimoAno == v.primerAno && v.ultimoSub <= v.primerSub) ++v.ultimoAno;
    if (v.ultimoAno < v.primerAno) v.ultimoAno = v.primerAno + 1;
    const int primero = IndicePeriodo(v.primerAno, v.primerSub, porAno);
    const int ultimo =
        std::min(IndicePeriodo(v.ultimoAno, v.ultimoSub, porAno), primero + MaxObservaciones - 1);
    PeriodoDeIndice(ultimo, porAno, v.ultimoAno, v.ultimoSub);
    ArchivoTrabajo.NumObs = ultimo - primero + 1;
    for (int i = 0; i < ArchivoTrabajo.NumObs; ++i) PonerTextoPeriodo(i, TextoDeIndice(primero + i, porAno));
    PonerIntervalo(TextoDeIntervalo(v, porAno));
}

// The next row: false when the tables are full.
bool AnadirFilaPanel(std::string_view periodo, int individuo) {
    CabeceraArchivo &a = ArchivoTrabajo;
    if (a.NumObs >= MaxObservaciones) return false;
    const std::string texto(periodo);
    const int fila = a.NumObs++;
    PonerTextoPeriodo(fila, DescripcionPanel.PrimerConcepto == PeriodoPrimero
                                ? Formatear("%s-%d", texto.c_str(), individuo)
                                : Formatear("%d-%s", individuo, texto.c_str()));
    if (a.ConEtiquetas != 0 && individuo >= 1 && individuo <= MaxIndividuosEtiqueta)
        PonerCampo(a.EtiquetasObs[fila], DescripcionPanel.EtiquetasIndividuo[individuo - 1], AnchoEtiqueta);
    return true;
}

void ConstruirPanelConstante() {
    const int porAno = PeriodosPorAno(DescripcionPanel.TipoPeriodoPanel);
    const long long individuos = DescripcionPanel.NumEntradas;
    Intervalo v = LeerIntervalo(CampoIntervalo(), porAno);
    if (v.primerAno == 0) v.primerAno = AnoPorDefecto;
    if (v.ultimoAno == 0 && individuos > 0) {
        // Years are counted from 3,999, quarters and months from 4,000.
        const long long filas = porAno == 1 ? MaxObservaciones - 1 : MaxObservaciones;
        v.ultimoAno = v.primerAno - 1 + static_cast<int>(filas / (individuos * porAno));
    }
    CompletarSubperiodos(v, porAno);
    if (v.ultimoAno < v.primerAno || (v.ultimoAno == v.primerAno && v.ultimoSub < v.primerSub))
        v.ultimoAno = v.primerAno + 1;
    const int primero = IndicePeriodo(v.primerAno, v.primerSub, porAno);
    const int ultimo = IndicePeriodo(v.ultimoAno, v.ultimoSub, porAno);
    const int numIndividuos = DescripcionPanel.NumEntradas;
    bool caben = true;
    if (DescripcionPanel.PrimerConcepto == PeriodoPrimero) {
        for (int t = primero; t <= ultimo && caben; ++t) {
            const std::string periodo = TextoDeIndice(t, porAno);
            for (int i = 1; i <= numIndividuos && caben; ++i) caben = AnadirFilaPanel(periodo, i);
        }
    } else {
        for (int i = 1; i <= numIndividuos && caben; ++i)
            for (int t = primero; t <= ultimo && caben; ++t)
                caben = AnadirFilaPanel(TextoDeIndice(t, porAno), i);
    }
    PonerIntervalo(TextoDeIntervalo(v, porAno));
}

template <std::size_t N> std::string TextoDeCampo(const char (&campo)[N]) {
    return std::string(Recortado({campo, strnlen(campo, N)}));
}

void ConstruirPanelPorPeriodos() {
    const int entradas = std::clamp(DescripcionPanel.NumEntradas, 0, MaxObservaciones);
    if (entradas == 0) return;
    bool caben = true;
    for (int e = 0; e < entradas && caben; ++e) {
        const EntradaPeriodoPanel &entrada = DescripcionPanel.periodos[e];
        const std::string periodo = TextoDeCampo(entrada.periodo);
        for (int i = 1; i <= entrada.individuos && caben; ++i) caben = AnadirFilaPanel(periodo, i);
    }
    PonerIntervalo(TextoDeCampo(DescripcionPanel.periodos[0].periodo) + "#" +
                   TextoDeCampo(DescripcionPanel.periodos[entradas - 1].periodo));
}

void ConstruirPanelPorIndividuos() {
    const int entradas = std::clamp(DescripcionPanel.NumEntradas, 0, MaxIndividuosEtiqueta);
    if (entradas == 0) return;
    for (int e = 0; e < entradas; ++e) {
        const EntradaIndividuoPanel &entrada = DescripcionPanel.individuos[e];
        const int periodos = std::clamp(entrada.numPeriodos, 0, MaxPeriodosIndividuo);
        for (int p = 0; p < periodos; ++p) AnadirFilaPanel(TextoDeCampo(entrada.periodos[p]), entrada.orden);
    }
    PonerIntervalo(Formatear("%d#%d", DescripcionPanel.individuos[0].orden,
                             DescripcionPanel.individuos[entradas - 1].orden));
}

void ConstruirPanel() {
    ArchivoTrabajo.NumObs = 0;
    if (DescripcionPanel.FormaPanel == PanelConstante) {
        ConstruirPanelConstante();
    } else if (DescripcionPanel.PrimerConcepto == PeriodoPrimero) {
        ConstruirPanelPorPeriodos();
    } else {
        ConstruirPanelPorIndividuos();
    }
}

} // namespace

void ConstruirPeriodos() {
    switch (ArchivoTrabajo.TipoDatos) {
    case TipoSinPeriodicidad: ConstruirSinPeriodicidad(); break;
    case TipoAnual:
    case TipoTrimestral:
    case TipoMensual: ConstruirPeriodico(PeriodosPorAno(ArchivoTrabajo.TipoDatos)); break;
    case TipoPanel: ConstruirPanel(); break;
    default: break; // none chosen, or a value that no dialog sets: no row has a text
    }
}
