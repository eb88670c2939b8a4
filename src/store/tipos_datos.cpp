// The choice of the data type: checks of its dialogs, and the reset that an acceptance brings.
#include "store/tipos_datos.h"

#include "platform/campos_texto.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/panel.h"

namespace {

bool EnBlanco(std::string_view texto) {
    return CadenaDeCaracter(texto, ' ') == 1;
}

void Establecer(const PropuestaTipoDatos &p, std::string_view intervalo, bool etiquetas) {
    CabeceraArchivo &a = ArchivoTrabajo;
    PonerCampo(a.NombreProyecto, std::string_view(p.nombre).substr(0, AnchoNombreTipo), AnchoProyecto);
    a.TipoDatos = static_cast<std::int16_t>(p.tipo);
    PonerCampo(a.TextoIntervalo, intervalo, AnchoIntervalo);
    a.ConEtiquetas = etiquetas ? 1 : 0;
    VaciarArchivoTrabajo();
}

int AceptarSinPeriodicidad(const PropuestaTipoDatos &p) {
    ArchivoTrabajo.NumObs = MaxObservaciones;
    Establecer(p, "", p.etiquetas);
    return 1;
}

int AceptarPeriodico(Ventana *ventana, const PropuestaTipoDatos &p) {
    Intervalo intervalo{};
    if (ComprobarPeriodos(ventana, p.tipo, p.inicio, p.fin, false, intervalo) == 0) return 0;
    // Only types 0 and 4 offer labels.
    Establecer(p, ComponerIntervalo(intervalo, PeriodosPorAno(p.tipo)), false);
    return 1;
}

int AceptarDatosPanel(Ventana *ventana, const PropuestaTipoDatos &p) {
    if (!PanelConDatos(EdicionPanel.panel)) return MensajeAviso(ventana, "Introduzca datos");
    EscribirEdicionPanel();
    // A variable panel finds its periods in its list.
    const bool constante = DescripcionPanel.FormaPanel == PanelConstante;
    const int porAno = PeriodosPorAno(DescripcionPanel.TipoPeriodoPanel);
    Establecer(p, constante ? ComponerIntervalo(EdicionPanel.intervalo, porAno) : "", p.etiquetas);
    return 1;
}

// What a user does in the dialogs of the panel to enter the proposal.
int IntroducirPanel(Ventana *ventana, const PropuestaTipoDatos &p) {
    LimpiarEdicionPanel();
    ElegirFormaPanel(p.forma, p.primerConcepto);
    if (p.forma == PanelConstante)
        return AceptarPanelConstante(ventana, p.individuos, p.tipoPeriodo, p.inicio, p.fin);
    for (const EntradaPropuesta &e : p.entradas) {
        if (p.primerConcepto == PeriodoPrimero) {
            if (AnadirPeriodoPanel(ventana, e.concepto, e.individuos) == 0) return 0;
            continue;
        }
        const int individuo = AnadirIndividuoPanel(ventana, e.concepto);
        if (individuo < 0) return 0;
        for (const std::string &periodo : e.periodos)
            if (AnadirPeriodoIndividuo(ventana, individuo, periodo) == 0) return 0;
    }
    return 1;
}

} // namespace

std::string NombreDialogoTipo() {
    if (ArchivoTrabajo.TipoDatos == SinTipoDatos) return "PROYEC01";
    return std::string(Recortado(ArchivoTrabajo.NombreProyecto).substr(0, AnchoNombreTipo));
}

int AceptarNombreYTipo(Ventana *ventana, const PropuestaTipoDatos &p) {
    if (EnBlanco(std::string_view(p.nombre).substr(0, AnchoNombreTipo)))
        return MensajeCancelado(ventana, "Introduzca nombre fichero");
    if (p.tipo < TipoSinPeriodicidad || p.tipo > TipoPanel)
        return MensajeCancelado(ventana, "Introduzca tipo de datos");
    if (ArchivoTrabajo.NumSeries > 0)
        MostrarMensaje(ventana, "Guarde el fichero ó se perderán todos los datos"_w, TituloAviso);
    return 1;
}

int AceptarDialogoDelTipo(Ventana *ventana, const PropuestaTipoDatos &p) {
    switch (p.tipo) {
    case TipoSinPeriodicidad: return AceptarSinPeriodicidad(p);
    case TipoPanel: return AceptarDatosPanel(ventana, p);
    default: return AceptarPeriodico(ventana, p);
    }
}

int AceptarTipoDatos(Ventana *ventana, const PropuestaTipoDatos &p) {
    if (AceptarNombreYTipo(ventana, p) == 0) return 0;
    if (p.tipo == TipoPanel && IntroducirPanel(ventana, p) == 0) return 0;
    return AceptarDialogoDelTipo(ventana, p);
}
