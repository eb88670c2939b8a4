// The histogram of a series.
#include "charts/graficos/histograma.h"

#include "charts/graficos/series_grafico.h"
#include "language/lote_sentencias.h"
#include "language/traza.h"
#include "platform/campos_texto.h"
#include "platform/frecuencias.h"
#include "platform/numeros.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/limites.h"

#include <algorithm>
#include <cmath>

namespace {

// With these the search for minimum and maximum begins, so that a series of negative values has a maximum of 0.
constexpr double SemillaMinimo = 9999999, SemillaMaximo = 0;

constexpr int AnchoNumero = 15; // of a column of the table

enum GruposDeTabla { GrupoClases = 1, GrupoCabecera = 2 };

// What the table window shows; its command "&Gráficos" draws it.
Histograma UltimoHistograma;

int AbrirGraficoDelHistograma(Ventana *ventana) {
    MostrarVentanaGrafico(ventana, UltimoHistograma.grafico);
    return 1;
}

std::vector<double> PartesIguales(double minimo, double maximo, int clases) {
    if (maximo == minimo) maximo = MaximoSeparado(minimo);
    std::vector<double> limites;
    limites.reserve(static_cast<std::size_t>(std::max(clases, 0)) + 1);
    for (int i = 0; i < clases; ++i) limites.push_back(minimo + i * ((maximo - minimo) / clases));
    limites.push_back(maximo); // the steps may add up to less, and the greatest value would count nowhere
    return limites;
}

// The given limits up to the first that does not rise; the first two are taken as they are.
std::vector<double> LimitesQueSuben(const std::vector<double> &dados) {
    std::vector<double> limites;
    for (const double v : dados) {
        if (limites.size() >= 2 && v <= limites.back()) break;
        limites.push_back(v);
        if (limites.size() == MaxLimitesHistograma) break;
    }
    limites.resize(std::max<std::size_t>(limites.size(), 2));
    return limites;
}

std::string Numero(double v, int decimales) {
    return Formatear("%*.*f", AnchoNumero, std::clamp(decimales, 0, 6), v);
}

constexpr int LineasDeCabecera = 2;

void ComponerTabla(const DatosHistograma &h, std::string_view codigo, Histograma &histograma) {
    TextoSalida &t = histograma.lineas;
    AnadirLinea(t, GrupoCabecera, " Histograma de la serie: " + std::string(codigo));
    AnadirLinea(t, GrupoCabecera,
                Formatear("   %*s   %*s   %*s", AnchoNumero, "Límite inferior"_w, AnchoNumero,
                          "Límite superior"_w, AnchoNumero, "Frecuencia"));
    for (std::size_t i = 0; i < h.frecuencias.size(); ++i)
        AnadirLinea(t, GrupoClases,
                    "   " + Numero(h.limites[i], Lote.DecimalesSalida) + "   " +
                        Numero(h.limites[i + 1], Lote.DecimalesSalida) + "   " + Numero(h.frecuencias[i], 0));
    histograma.tabla = TablaDeHistograma(h);
}

// A step a class; x(t) is the series.
void TrazarFrecuencias(const DatosHistograma &h, std::string_view codigo, const FilasTraza &filas) {
    const std::string x(Recortado(codigo));
    for (std::size_t i = 0; i < h.frecuencias.size(); ++i) {
        const char *hasta = i + 1 < h.frecuencias.size() ? "<" : "<=";
        TrazarEscalar(Formatear("clase%d", static_cast<int>(i) + 1),
                      ConPeriodos(Formatear("cuántos %.10g <= %s(t) %s %.10g"_w, h.limites[i], x.c_str(),
                                            hasta, h.limites[i + 1]),
                                  filas),
                      h.frecuencias[i], "Frecuencia de la clase", filas);
    }
}

// The rows of the work file between the bounds: these may lie far behind the last one.
void AcotarFilas(int &primera, int &ultima) {
    const int tope = std::clamp(static_cast<int>(ArchivoTrabajo.NumObs), 1, MaxObservaciones) - 1;
    primera = std::clamp(primera, 0, tope);
    ultima = std::clamp(ultima, primera, tope);
}

} // namespace

OpcionesHistograma HistogramaPorDefecto() {
    OpcionesHistograma o{};
    o.clases = ClasesPorDefecto;
    o.intervalosY = IntervalosPorDefecto;
    o.minXDefecto = o.maxXDefecto = o.minYDefecto = o.maxYDefecto = 1;
    o.conTitulo = o.tituloArriba = 1;
    o.titulo = " ";
    return o;
}

std::vector<double> LimitesDeClases(const OpcionesHistograma &opciones, const std::vector<double> &valores) {
    if (opciones.modo == ClasesDadas) return LimitesQueSuben(opciones.limites);
    double minimo = SemillaMinimo, maximo = SemillaMaximo;
    for (const double v : valores) {
        if (!std::isfinite(v)) continue;
        minimo = std::min(minimo, v);
        maximo = std::max(maximo, v);
    }
    if (opciones.modo == ClasesEntreLimites && opciones.minXDefecto == 0) minimo = opciones.minX;
    if (opciones.modo == ClasesEntreLimites && opciones.maxXDefecto == 0) maximo = opciones.maxX;
    return PartesIguales(minimo, maximo, std::clamp(opciones.clases, MinClases, MaxClases));
}

bool ContarHistograma(const OpcionesHistograma &opciones, std::string_view codigo, int primera, int ultima,
                      Histograma &histograma) {
    AcotarFilas(primera, ultima);
    std::vector<double> valores = ValoresDeSerie(codigo, primera, ultima);
    if (valores.empty()) return false;
    valores.resize(static_cast<std::size_t>(ultima - primera) + 1);
    histograma = {};
    Grafico &g = histograma.grafico;
    g = GraficoNuevo(GraficoHistograma, static_cast<int>(valores.size()));
    DatosHistograma &h = g.histograma;
    h.limites = LimitesDeClases(opciones, valores);
    h.frecuencias.resize(h.limites.size() - 1);
    ContarFrecuencias(valores.data(), h.limites.data(), h.frecuencias.data(), g.muestra,
                      static_cast<int>(h.limites.size()), 0, 0);
    if (Trazando()) TrazarFrecuencias(h, codigo, {primera, ultima});
    h.conTitulo = opciones.conTitulo;
    h.tituloArriba = opciones.tituloArriba;
    h.titulo = opciones.titulo.substr(0, AnchoTituloHistograma);
    g.opciones.intervalosY = std::clamp(opciones.intervalosY, MinDivisiones, MaxDivisiones);
    g.opciones.minYDefecto = opciones.minYDefecto;
    g.opciones.maxYDefecto = opciones.maxYDefecto;
    g.opciones.minY = opciones.minY;
    g.opciones.maxY = opciones.maxY;
    CalcularLimites(g);
    ComponerTabla(h, codigo, histograma);
    return true;
}

bool MostrarHistograma(Ventana *ventana, const OpcionesHistograma &opciones, std::string_view codigo,
                       int primera, int ultima) {
    Histograma &h = UltimoHistograma;
    if (!ContarHistograma(opciones, codigo, primera, ultima, h)) return false;
    SalidaResultado salida{};
    salida.tipo = SalidaHistograma;
    salida.titulo = h.grafico.tituloVentana;
    salida.lineas = &h.lineas;
    salida.tabla = h.tabla;
    salida.graficos = AbrirGraficoDelHistograma;
    FuentesDeSalida fuentes;
    for (int clase = 1; LineasDeCabecera + clase <= static_cast<int>(h.lineas.size()); ++clase)
        fuentes.push_back({LineasDeCabecera + clase - 1, {{Formatear("clase%d", clase)}}});
    salida.fuentes = &fuentes;
    MostrarVentanaResultado(ventana, salida);
    return true;
}

std::string TablaDeHistograma(const DatosHistograma &h) {
    std::string tabla = "Límite inferior\tLímite superior\tFrecuencia\n"_w;
    for (std::size_t i = 0; i < h.frecuencias.size(); ++i)
        tabla += Formatear("%.17g\t%.17g\t%.17g\n", h.limites[i], h.limites[i + 1], h.frecuencias[i]);
    return tabla;
}

int EjecutarHIST(Ventana *ventana, std::string_view resto, int primera, int ultima) {
    // The keywords are those of GRAF: of the X axis they set the classes.
    OpcionesGrafico ejes = OpcionesPorDefecto(MaxObservaciones);
    LectorDePalabras lector = {resto};
    std::string codigo;
    while (lector.posicion < resto.size()) {
        const std::string_view palabra = SiguientePalabra(lector);
        if (palabra.empty()) ++lector.posicion; // a parenthesis
        if (palabra.empty() || TomarPalabraClave(palabra, lector, ejes)) continue;
        if (codigo.empty() && BuscarSerie(palabra) >= 0) codigo = palabra;
    }
    if (codigo.empty()) return MensajeAviso(ventana, "Variable no encontrada") + 1;
    OpcionesHistograma o = HistogramaPorDefecto();
    o.conTitulo = 0;
    o.clases = ejes.intervalosX;
    o.intervalosY = ejes.intervalosY;
    o.minYDefecto = ejes.minYDefecto;
    o.maxYDefecto = ejes.maxYDefecto;
    o.minY = ejes.minY;
    o.maxY = ejes.maxY;
    o.minXDefecto = ejes.minXDefecto;
    o.maxXDefecto = ejes.maxXDefecto;
    o.minX = LeerDecimal(ejes.minXTexto);
    o.maxX = LeerDecimal(ejes.maxXTexto);
    if (o.minXDefecto == 0 || o.maxXDefecto == 0) o.modo = ClasesEntreLimites;
    MostrarHistograma(ventana, o, codigo, primera, ultima);
    return 1;
}

OpcionesHistograma OpcionesDeValores(const ValoresHistograma &valores) {
    OpcionesHistograma o = HistogramaPorDefecto();
    o.modo = valores.modo;
    if (valores.modo == ClasesEntreLimites) {
        o.clases = LeerEntero(valores.intervalos);
        o.minX = LeerDecimal(valores.minimo);
        o.maxX = LeerDecimal(valores.maximo);
        o.minXDefecto = o.maxXDefecto = 0;
    }
    for (const std::string &limite : valores.limites) o.limites.push_back(LeerDecimal(limite));
    o.intervalosY = LeerEntero(valores.divisiones);
    o.minYDefecto = valores.minYDefecto ? 1 : 0;
    o.maxYDefecto = valores.maxYDefecto ? 1 : 0;
    // The fields of the Y axis hold whole numbers.
    o.minY = LeerEntero(valores.minY);
    o.maxY = LeerEntero(valores.maxY);
    o.conTitulo = valores.conTitulo ? 1 : 0;
    o.tituloArriba = valores.tituloArriba ? 1 : 0;
    o.titulo = valores.titulo;
    return o;
}

int AceptarHistograma(Ventana *ventana, const OpcionesHistograma &opciones, std::string_view serie,
                      int primera, int ultima) {
    const int grupo = EmpezarComando(Recortado(serie), "Histograma");
    const bool bien = !serie.empty() && MostrarHistograma(ventana, opciones, serie, primera, ultima);
    return TerminarComando(grupo, bien ? 1 : MensajeAviso(ventana, "Serie no válida."_w));
}

int AceptarHistograma(Ventana *ventana, const ValoresHistograma &valores, int primera, int ultima) {
    return AceptarHistograma(ventana, OpcionesDeValores(valores), valores.serie, primera, ultima);
}
