// The statement of a regression from the fields of its dialog, and the way to the listings and charts of the last one.
#include "estimation/dialogo_mc.h"

#include "estimation/listados_regresion.h"
#include "platform/campos_texto.h"
#include "platform/dialogos.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <algorithm>

EstadoDialogosEstimacion DialogosEstimacion;

namespace {

std::string &SentenciaPropia(int metodo) {
    return metodo == OrdenMCP ? DialogosEstimacion.SentenciaMCP : DialogosEstimacion.SentenciaMC;
}

// What stands before the equation.
std::string Principio(const ValoresMC &valores) {
    if (valores.metodo == OrdenMCP)
        return std::string("MCP ( ").append(Recortado(valores.ponderacion)).append(" ) ");
    switch (valores.covarianza) {
    case CovarianzaHeterocedasticidad: return "MC (CH) ";
    case CovarianzaAutocorrelacion: return Formatear("MC (CA %d) ", valores.retardos);
    default: return "MC ";
    }
}

void Estimar(Ventana *ventana, const ValoresMC &valores) {
    if (valores.metodo == OrdenMCP && Recortado(valores.ponderacion).empty())
        return MostrarMensaje(ventana, "Introduzca variable ponderación"_w, TituloAviso);
    UltimaRegresion.RegresionHecha = 1;
    UltimaRegresion.DesdeDialogo = 1;
    if (Recortado(valores.ecuacion).empty()) MostrarMensaje(ventana, "Introduzca ecuación"_w, TituloAviso);
    std::string &sentencia = SentenciaPropia(valores.metodo);
    sentencia = SentenciaDeEstimacion(valores);
    if (ProcesarSentencia(ventana, sentencia, Muestra.InicioMuestra, Muestra.FinMuestra) == 0)
        MostrarMensaje(ventana, "Secuencia de series no válida"_w, TituloAviso);
}

// Under the statement of this dialog, or of the regression itself when it wasn't made here.
template <ListadosRegresion cual> void VerListado(Ventana *ventana, const ValoresMC &valores) {
    const std::string &propia = SentenciaPropia(valores.metodo);
    PedirListado(ventana, cual, propia.empty() ? UltimaRegresion.SentenciaRegresion : propia, valores.metodo);
}

// The charts are drawn above this folder.
template <Dialogo cual> void VerGrafico(Ventana *ventana, const ValoresMC &) {
    if (HayRegresion(ventana)) AbrirDialogo(ventana, cual);
}

// By OpcionesEstimacion.
constexpr void (*Rutinas[NumOpcionesEstimacion])(Ventana *ventana, const ValoresMC &valores) = {
    Estimar,
    VerListado<ListadoCovarianza>,
    VerListado<ListadoValores>,
    VerGrafico<Dialogo::GraficoValores>,
    VerGrafico<Dialogo::GraficoResiduos>,
    VerListado<ListadoVarianza>,
};

} // namespace

std::vector<std::string> ListaRetardos() {
    std::vector<std::string> lista;
    for (int n = 1; n <= 6; ++n) lista.push_back(Formatear("(-%d)  ", n));
    return lista;
}

std::vector<std::string> ListaRegresores() {
    std::vector<std::string> lista;
    for (int s = 0; s < ArchivoTrabajo.NumSeries; ++s)
        lista.emplace_back(Recortado(ArchivoTrabajo.Codigos[s]));
    lista.emplace_back("1 ");
    return lista;
}

ValoresMC AbrirMC(int metodo) {
    UltimaRegresion.DesdeDialogo = 0;
    SentenciaPropia(metodo).clear();
    ValoresMC valores;
    valores.metodo = metodo;
    if (UltimaRegresion.RegresionHecha != 0) valores.ecuacion = Recortado(UltimaRegresion.TextoEcuacion);
    return valores;
}

std::string SentenciaDeEstimacion(const ValoresMC &valores) {
    return Principio(valores).append(Recortado(valores.ecuacion));
}

void AceptarMC(Ventana *ventana, const ValoresMC &valores) {
    const auto p = std::find(valores.opciones.begin(), valores.opciones.end(), true);
    if (p != valores.opciones.end()) Rutinas[p - valores.opciones.begin()](ventana, valores);
}
