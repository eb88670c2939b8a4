// The kinds of charts, and what is done with an open one: painted, printed, copied as a table.
#include "charts/graficos/grafico.h"

#include "charts/graficos/clases.h"
#include "charts/graficos/disposicion.h"
#include "charts/graficos/histograma.h"
#include "charts/graficos/impresion_grafico.h"
#include "charts/resultados/impresion.h"
#include "platform/impresora.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/limites.h"

#include <algorithm>

namespace {

struct FilaDeClase {
    ClaseDeGrafico descripcion;
    void (*dibujar)(const Lienzo &l);
};

constexpr const char *TituloSeries = "Representación gráfica de series"_w;
constexpr const char *TituloResiduos = "Gráfico de los residuos"_w;
constexpr const char *TituloValores = "Gráfico de valores observados y estimados"_w;
constexpr const char *TituloPrediccion = "Diagrama predicción-observación"_w;

// In the order of ClasesDeGrafico.
constexpr FilaDeClase Clases[NumClasesDeGrafico] = {
    {{TituloSeries, "Gráfico de series"_w, ImprimirGraficoSeries, false, false, true, false, false},
     DibujarGraficoSeries},
    {{TituloSeries, "Gráfico de series"_w, ImprimirGraficoSeries, false, false, true, true, false},
     DibujarGraficoDispersion},
    {{TituloResiduos, TituloResiduos, ImprimirGraficoResiduos, true, true, true, false, false},
     DibujarGraficoResiduos},
    {{TituloValores, TituloValores, ImprimirGraficoValores, true, false, true, false, false},
     DibujarGraficoSeries},
    {{TituloPrediccion, TituloPrediccion, ImprimirGraficoPrediccion, true, true, true, true, true},
     DibujarGraficoPrediccion},
    {{"Representación gráfica"_w, "Coeficiente de Autocorrelación Estimada"_w, ImprimirGraficoAutocorrelacion,
      false, false, false, false, false},
     DibujarGraficoAutocorrelacion},
    {{"Representación gráfica"_w, "Histograma", ImprimirHistograma, false, false, false, true, false},
     DibujarGraficoHistograma},
};

// Returns the error of the drawing, empty for none.
std::string Dibujar(Superficie &s, const Grafico &g, const DisposicionGrafico &d) {
    std::string error;
    const Lienzo l = {s, g, d, error};
    Clases[g.clase].dibujar(l);
    if (!DescripcionDe(g.clase).conPartes) return error;
    DibujarLeyenda(l);
    DibujarTitulos(l);
    return error;
}

void MostrarErrorInterno(Ventana *ventana, const std::string &error) {
    if (!error.empty()) MostrarMensaje(ventana, error, "Aviso de error interno");
}

void PonerNumero(std::string &tabla, double v) {
    tabla += Formatear("\t%.17g", v);
}

double En(const std::vector<double> &v, std::size_t i) {
    return i < v.size() ? v[i] : 0;
}

std::string TablaDeSeries(const Grafico &g) {
    const bool conX = DescripcionDe(g.clase).conValoresEnX;
    std::string tabla = "Período"_w;
    if (conX) tabla += "\t" + g.opciones.ejeX;
    for (const SerieGrafico &s : g.series) tabla += "\t" + s.nombre;
    tabla += '\n';
    for (int t = g.limites.primera; t <= g.limites.ultima; ++t) {
        const auto fila = static_cast<std::size_t>(t);
        if (fila < g.periodos.size()) tabla += g.periodos[fila];
        if (conX) PonerNumero(tabla, En(g.ejeX, fila));
        for (const SerieGrafico &s : g.series) PonerNumero(tabla, En(s.valores, fila));
        tabla += '\n';
    }
    return tabla;
}

std::string TablaDeAutocorrelacion(const DatosAutocorrelacion &a) {
    std::string tabla = "Retardo\tCoeficiente";
    if (a.tipoBanda == GraficoConBandaArma) tabla += "\tBanda";
    tabla += '\n';
    for (std::size_t k = 1; k < a.coeficientes.size() && static_cast<int>(k) <= NumeroDeBarras(a); ++k) {
        tabla += std::to_string(k);
        PonerNumero(tabla, a.coeficientes[k]);
        if (a.tipoBanda == GraficoConBandaArma) PonerNumero(tabla, En(a.desviaciones, k));
        tabla += '\n';
    }
    return tabla;
}

} // namespace

const ClaseDeGrafico &DescripcionDe(ClasesDeGrafico clase) {
    return Clases[clase].descripcion;
}

Grafico GraficoNuevo(ClasesDeGrafico clase, int muestra) {
    Grafico g{};
    g.clase = clase;
    g.tituloVentana = DescripcionDe(clase).titulo;
    g.opciones = OpcionesPorDefecto(muestra);
    g.muestra = muestra;
    g.conBanda = g.marcasAlMedio = g.marcasYAlMedio = 1;
    return g;
}

void TomarPeriodos(Grafico &g, int primera, int ultima) {
    g.recortaPeriodos = ArchivoTrabajo.TipoDatos != TipoSinPeriodicidad;
    for (int t = primera; t <= std::min(ultima + 1, MaxObservaciones - 1); ++t) {
        g.periodos.emplace_back(TextoPeriodo(t));
        g.numeros.push_back(ArchivoTrabajo.ValoresPeriodo[t]);
    }
}

std::vector<double> ValoresDeSerie(std::string_view codigo, int primera, int ultima) {
    const int serie = BuscarSerie(codigo);
    std::vector<double> valores;
    if (serie < 0) return valores;
    for (int t = primera; t <= std::min(ultima + 1, MaxObservaciones - 1); ++t)
        valores.push_back(ArchivoTrabajo.ValoresObs[t][serie]);
    return valores;
}

bool AnadirSerie(Grafico &g, std::string_view codigo, int primera, int ultima) {
    if (BuscarSerie(codigo) < 0) return false;
    g.series.push_back({std::string(codigo), ValoresDeSerie(codigo, primera, ultima)});
    return true;
}

void AbrirVentanaGrafico(Ventana *ventana, Grafico &g) {
    CalcularLimites(g);
    MostrarVentanaGrafico(ventana, g);
}

void PintarGrafico(Superficie &s, Grafico &g) {
    g.disposicion = DisponerEnVentana(g, s);
    g.errorInterno = Dibujar(s, g, g.disposicion);
}

void AvisarErrorInterno(Ventana *ventana, const Grafico &g) {
    MostrarErrorInterno(ventana, g.errorInterno);
}

bool ImprimirGrafico(DispositivoImpresion *dispositivo, Ventana *ventana, const Grafico &g) {
    Superficie *papel = ImpresoraEnUso().superficieDePagina(dispositivo);
    if (papel == nullptr) return false;
    MostrarErrorInterno(ventana, Dibujar(*papel, g, DisponerEnPapel(g, *papel)));
    return true;
}

int ImprimirVentanaGrafico(Ventana *ventana, const Grafico &g) {
    const ClaseDeGrafico &clase = DescripcionDe(g.clase);
    const bool parcial = g.clase == GraficoAutocorrelacion && g.autocorrelacion.parcial != 0;
    const int fallo = ImprimirSalida(
        ventana, parcial ? "Coeficiente de Autocorrelación Parcial Estimada"_w : clase.tituloImpreso,
        clase.impresion, &g);
    // Only this kind tells it.
    if (fallo != 0 && g.clase == GraficoPrediccion)
        MensajeAviso(ventana, "Ha habido un error en la impresión"_w);
    return fallo;
}

std::string TablaDeGrafico(const Grafico &g) {
    if (g.clase == GraficoAutocorrelacion) return TablaDeAutocorrelacion(g.autocorrelacion);
    if (g.clase == GraficoHistograma) return TablaDeHistograma(g.histograma);
    return TablaDeSeries(g);
}
