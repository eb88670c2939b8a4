// Editing of panel data.
#include "store/panel.h"

#include "platform/campos_texto.h"
#include "platform/numeros.h"
#include "platform/texto.h"
#include "store/archivo.h"

#include <algorithm>
#include <cstring>

EdicionDePanel EdicionPanel;

namespace {

constexpr double PeriodoMinimo = 1000.0;

int RechazarPorLleno(Ventana *ventana) {
    return MensajeAviso(ventana, "No se pueden introducir más periodos"_w);
}

// A text in a field that ends in NUL, without blanks at its sides.
template <std::size_t N> void PonerTexto(char (&campo)[N], std::string_view texto) {
    texto = Recortado(texto).substr(0, N - 1);
    std::fill_n(campo, N, '\0');
    texto.copy(campo, texto.size());
}

double Numero(const char *periodo) {
    return LeerDecimal(periodo);
}
double Numero(const EntradaPeriodoPanel &e) {
    return LeerDecimal(e.periodo);
}
double Numero(const EntradaIndividuoPanel &e) {
    return e.orden;
}

// Brings the last of `n` entries to its place by exchanges with those above it; returns the place.
template <typename Entrada> int Colocar(Entrada *lista, int n) {
    int i = n - 1;
    for (; i > 0 && Numero(lista[i - 1]) > Numero(lista[i]); --i) std::swap(lista[i - 1], lista[i]);
    return i;
}

template <typename Entrada> void Quitar(Entrada *lista, int &n, int entrada) {
    if (entrada < 0 || entrada >= n) return;
    std::move(lista + entrada + 1, lista + n, lista + entrada);
    lista[--n] = {};
    EdicionPanel.cambiada = true;
}

void VaciarListas() {
    DescripcionDePanel &p = EdicionPanel.panel;
    p.NumEntradas = 0;
    p.TipoPeriodoPanel = TipoAnual;
    std::fill(std::begin(p.periodos), std::end(p.periodos), EntradaPeriodoPanel{});
    std::fill(std::begin(p.individuos), std::end(p.individuos), EntradaIndividuoPanel{});
    EdicionPanel.intervalo = {};
}

// What a damaged work file can bring must not lead outside the lists.
void SanearListas(DescripcionDePanel &p) {
    if (p.FormaPanel != PanelConstante) {
        const int tope = p.PrimerConcepto == PeriodoPrimero ? MaxPeriodosPanel : MaxIndividuosEtiqueta;
        p.NumEntradas = std::clamp(p.NumEntradas, 0, tope);
    }
    for (EntradaPeriodoPanel &e : p.periodos) e.periodo[sizeof e.periodo - 1] = '\0';
    for (EntradaIndividuoPanel &e : p.individuos) {
        e.numPeriodos = std::clamp(e.numPeriodos, 0, MaxPeriodosIndividuo);
        for (auto &periodo : e.periodos) periodo[sizeof periodo - 1] = '\0';
    }
    for (auto &etiqueta : p.EtiquetasIndividuo) AjustarAncho(etiqueta, AnchoEtiqueta);
}

bool Edita(FormasPanel forma, ConceptosPanel primero) {
    return EdicionPanel.panel.FormaPanel == forma && EdicionPanel.panel.PrimerConcepto == primero;
}

} // namespace

void LimpiarEdicionPanel() {
    VaciarListas();
    DescripcionDePanel &p = EdicionPanel.panel;
    p.FormaPanel = PanelConstante;
    p.PrimerConcepto = PeriodoPrimero;
    for (auto &etiqueta : p.EtiquetasIndividuo) RellenarCadena(etiqueta, ' ', AnchoEtiqueta - 1);
    EdicionPanel.cambiada = false;
}

void AbrirEdicionPanel() {
    DescripcionDePanel &p = EdicionPanel.panel;
    if (p.FormaPanel != DescripcionPanel.FormaPanel || p.PrimerConcepto != DescripcionPanel.PrimerConcepto) {
        LimpiarEdicionPanel();
        p.FormaPanel = DescripcionPanel.FormaPanel;
        p.PrimerConcepto = DescripcionPanel.PrimerConcepto;
        return;
    }
    if (EdicionPanel.cambiada) return;
    p = DescripcionPanel;
    SanearListas(p);
    if (ArchivoTrabajo.TipoDatos == TipoPanel && p.FormaPanel == PanelConstante)
        EdicionPanel.intervalo =
            LeerIntervalo(ArchivoTrabajo.TextoIntervalo, PeriodosPorAno(p.TipoPeriodoPanel));
}

void ElegirFormaPanel(FormasPanel forma, ConceptosPanel primerConcepto) {
    DescripcionDePanel &p = EdicionPanel.panel;
    if (Edita(forma, primerConcepto)) return;
    if (forma == PanelVariable || p.FormaPanel != forma) VaciarListas();
    p.FormaPanel = forma;
    p.PrimerConcepto = primerConcepto;
    EdicionPanel.cambiada = true;
}

int AceptarPanelConstante(Ventana *ventana, std::string_view individuos, int tipoPeriodo,
                          std::string_view inicio, std::string_view fin) {
    Intervalo intervalo{};
    if (ComprobarPeriodos(ventana, tipoPeriodo, inicio, fin, true, intervalo) == 0) return 0;
    EdicionPanel.panel.NumEntradas = LeerEntero(individuos);
    EdicionPanel.panel.TipoPeriodoPanel = tipoPeriodo;
    EdicionPanel.intervalo = intervalo;
    EdicionPanel.cambiada = true;
    return 1;
}

int AnadirPeriodoPanel(Ventana *ventana, std::string_view periodo, std::string_view individuos) {
    DescripcionDePanel &p = EdicionPanel.panel;
    const int numIndividuos = LeerEntero(individuos);
    if (numIndividuos < 1) return MensajeAviso(ventana, "Individuos ha de ser mayor de cero");
    if (LeerDecimal(periodo) < PeriodoMinimo)
        return MensajeAviso(ventana, "Período ha de ser mayor de mil"_w);
    if (p.NumEntradas >= MaxPeriodosPanel) return RechazarPorLleno(ventana);
    EntradaPeriodoPanel &nueva = p.periodos[p.NumEntradas++];
    nueva.individuos = numIndividuos;
    PonerTexto(nueva.periodo, periodo);
    Colocar(p.periodos, p.NumEntradas);
    EdicionPanel.cambiada = true;
    return 1;
}

void QuitarPeriodoPanel(int entrada) {
    Quitar(EdicionPanel.panel.periodos, EdicionPanel.panel.NumEntradas, entrada);
}

int AnadirIndividuoPanel(Ventana *ventana, std::string_view orden) {
    DescripcionDePanel &p = EdicionPanel.panel;
    const int numero = LeerEntero(orden);
    if (numero < 1) {
        MensajeAviso(ventana, "Individuos ha de ser mayor de cero");
        return -1;
    }
    for (int e = 0; e < p.NumEntradas; ++e)
        if (p.individuos[e].orden == numero) return e;
    if (p.NumEntradas >= MaxIndividuosEtiqueta) {
        RechazarPorLleno(ventana);
        return -1;
    }
    p.individuos[p.NumEntradas++].orden = numero;
    EdicionPanel.cambiada = true;
    return Colocar(p.individuos, p.NumEntradas);
}

void QuitarIndividuoPanel(int entrada) {
    Quitar(EdicionPanel.panel.individuos, EdicionPanel.panel.NumEntradas, entrada);
}

int AnadirPeriodoIndividuo(Ventana *ventana, int entrada, std::string_view periodo) {
    DescripcionDePanel &p = EdicionPanel.panel;
    if (entrada < 0 || entrada >= p.NumEntradas) return 0;
    EntradaIndividuoPanel &individuo = p.individuos[entrada];
    if (LeerDecimal(periodo) < PeriodoMinimo)
        return MensajeAviso(ventana, "Período ha de ser mayor de 1000"_w);
    if (individuo.numPeriodos >= MaxPeriodosIndividuo) return RechazarPorLleno(ventana);
    PonerTexto(individuo.periodos[individuo.numPeriodos++], periodo);
    Colocar(individuo.periodos, individuo.numPeriodos);
    EdicionPanel.cambiada = true;
    return 1;
}

void QuitarPeriodoIndividuo(int entrada, int periodo) {
    DescripcionDePanel &p = EdicionPanel.panel;
    if (entrada < 0 || entrada >= p.NumEntradas) return;
    EntradaIndividuoPanel &individuo = p.individuos[entrada];
    if (periodo < 0 || periodo >= individuo.numPeriodos) return;
    for (int i = periodo; i + 1 < individuo.numPeriodos; ++i)
        std::swap(individuo.periodos[i], individuo.periodos[i + 1]);
    PonerTexto(individuo.periodos[--individuo.numPeriodos], "");
    EdicionPanel.cambiada = true;
}

std::string LineaEtiqueta(int linea) {
    if (linea < 0 || linea >= MaxIndividuosEtiqueta) return {};
    return Formatear("%2d---\"%s\"", linea + 1, EdicionPanel.panel.EtiquetasIndividuo[linea]);
}

int PonerEtiquetaIndividuo(Ventana *ventana, std::string_view orden, std::string_view texto) {
    const int numero = LeerEntero(orden);
    if (numero < 1 || numero > MaxIndividuosEtiqueta)
        return MensajeAviso(ventana, "Orden de individúo no correcto"_w);
    PonerCampo(EdicionPanel.panel.EtiquetasIndividuo[numero - 1], texto, AnchoEtiqueta);
    EdicionPanel.cambiada = true;
    return 1;
}

std::string SacarEtiquetaIndividuo(int linea) {
    if (linea < 0 || linea >= MaxIndividuosEtiqueta) return {};
    char *etiqueta = EdicionPanel.panel.EtiquetasIndividuo[linea];
    std::string r(Recortado(etiqueta));
    RellenarCadena(etiqueta, ' ', AnchoEtiqueta - 1);
    EdicionPanel.cambiada = true;
    return r;
}

bool PanelConDatos(const DescripcionDePanel &p) {
    if (p.NumEntradas < 1) return false;
    if (p.FormaPanel == PanelConstante || p.PrimerConcepto == PeriodoPrimero) return true;
    const int entradas = std::min<int>(p.NumEntradas, MaxIndividuosEtiqueta);
    return std::any_of(p.individuos, p.individuos + entradas,
                       [](const auto &e) { return e.numPeriodos > 0; });
}

void EscribirEdicionPanel() {
    if (!EdicionPanel.cambiada) return;
    DescripcionPanel = EdicionPanel.panel;
    EdicionPanel.cambiada = false;
}
