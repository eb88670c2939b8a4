// The charts of series: statement and dialogs.
#include "charts/graficos/series_grafico.h"

#include "platform/campos_texto.h"
#include "platform/numeros.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/limites.h"

#include <algorithm>

OpcionesGrafico OpcionesDeSeries;

namespace {

// A keyword with what its value sets.
struct PalabraClave {
    std::string_view palabra;
    void (*poner)(OpcionesGrafico &o, std::string_view valor);
};

constexpr PalabraClave PalabrasClave[] = {
    {"INTERX", [](OpcionesGrafico &o, std::string_view v) { o.intervalosX = LeerEntero(v); }},
    {"INTERY", [](OpcionesGrafico &o, std::string_view v) { o.intervalosY = LeerEntero(v); }},
    {"MINY",
     [](OpcionesGrafico &o, std::string_view v) {
         o.minY = LeerDecimal(v);
         o.minYDefecto = 0;
     }},
    {"MAXY",
     [](OpcionesGrafico &o, std::string_view v) {
         o.maxY = LeerDecimal(v);
         o.maxYDefecto = 0;
     }},
    {"MINX",
     [](OpcionesGrafico &o, std::string_view v) {
         o.minXTexto = v.substr(0, AnchoLimiteX);
         o.minXDefecto = 0;
     }},
    {"MAXX",
     [](OpcionesGrafico &o, std::string_view v) {
         o.maxXTexto = v.substr(0, AnchoLimiteX);
         o.maxXDefecto = 0;
     }},
};

int Filas(int primera, int ultima) {
    return std::max(ultima - primera + 1, 1);
}

// A chart of so many rows has room in the tables of the work file.
bool CabeLaMuestra(Ventana *ventana, int primera, int ultima) {
    if (Filas(primera, ultima) <= MaxObservaciones) return true;
    return MensajeAviso(ventana, "Excesivo número de datos para generar el gráfico"_w) != 0;
}

int SerieNoExiste(Ventana *ventana, std::string_view codigo) {
    return MensajeAviso(ventana, Formatear("Serie no existe [%s]", std::string(codigo).c_str()));
}

// The chart with its data, not opened yet. False after a message.
bool Componer(Ventana *ventana, const OpcionesGrafico &o, int primera, int ultima, Grafico &g) {
    if (!CabeLaMuestra(ventana, primera, ultima)) return false;
    primera = std::clamp(primera, 0, MaxObservaciones - 1);
    ultima = std::clamp(ultima, primera, MaxObservaciones - 1);
    g = GraficoNuevo(o.dispersion != 0 ? GraficoDispersion : GraficoSeries, Filas(primera, ultima));
    g.opciones = o;
    TomarPeriodos(g, primera, ultima);
    if (o.dispersion != 0) {
        if (BuscarSerie(o.ejeX) < 0) return SerieNoExiste(ventana, o.ejeX) != 0;
        g.ejeX = ValoresDeSerie(o.ejeX, primera, ultima);
    }
    for (const std::string &codigo : o.series)
        if (!AnadirSerie(g, codigo, primera, ultima)) return SerieNoExiste(ventana, codigo) != 0;
    return true;
}

void AnadirCodigo(OpcionesGrafico &o, std::string_view codigo) {
    if (o.series.size() < MaxSeriesGrafico) o.series.emplace_back(codigo);
}

// Takes the words of GRAF into `o`. True when a bracket was left open.
bool LeerGRAF(std::string_view texto, OpcionesGrafico &o) {
    LectorDePalabras lector = {texto};
    bool abierto = false;
    while (lector.posicion < texto.size()) {
        const char c = texto[lector.posicion];
        if (c == ' ' || c == '(' || c == ')') {
            if (c != ' ') abierto = c == '(';
            ++lector.posicion;
            continue;
        }
        const std::string_view palabra = SiguientePalabra(lector);
        if (TomarPalabraClave(palabra, lector, o)) continue;
        // What is no series is passed over, the number behind a word that is no keyword with it.
        const int serie = BuscarSerie(palabra);
        if (serie < 0) continue;
        const std::string_view codigo = Recortado(ArchivoTrabajo.Codigos[serie]);
        if (abierto) {
            o.ejeX = codigo;
            o.dispersion = 1;
        } else {
            AnadirCodigo(o, codigo);
        }
    }
    return abierto;
}

} // namespace

std::string_view SiguientePalabra(LectorDePalabras &lector) {
    const std::size_t n = lector.texto.size();
    const std::size_t desde = std::min(lector.texto.find_first_not_of(' ', lector.posicion), n);
    lector.posicion = std::min(lector.texto.find_first_of(" )", desde), n);
    return lector.texto.substr(desde, lector.posicion - desde);
}

bool TomarPalabraClave(std::string_view palabra, LectorDePalabras &lector, OpcionesGrafico &opciones) {
    const auto *clave = std::find_if(std::begin(PalabrasClave), std::end(PalabrasClave),
                                     [&](const PalabraClave &p) { return p.palabra == palabra; });
    if (clave == std::end(PalabrasClave)) return false;
    const std::string_view valor = SiguientePalabra(lector);
    if (!valor.empty()) clave->poner(opciones, valor);
    return true;
}

int AbrirGraficoDeSeries(Ventana *ventana, const OpcionesGrafico &opciones, int primera, int ultima) {
    Grafico g;
    if (!Componer(ventana, opciones, primera, ultima, g)) return 0;
    AbrirVentanaGrafico(ventana, g);
    return 1;
}

int EjecutarGRAF(Ventana *ventana, std::string_view resto, int primera, int ultima) {
    OpcionesGrafico &o = OpcionesDeSeries;
    o = OpcionesPorDefecto(Filas(primera, ultima));
    const bool abierto = LeerGRAF(resto, o);
    if (abierto) {
        MensajeAviso(ventana, "No se ha cerrado el paréntesis"_w);
    } else if (o.series.empty()) {
        MensajeAviso(ventana, "No se ha introducido ninguna serie válida"_w);
    } else {
        if (o.dispersion != 0) o.forma = FormaSimbolos;
        AbrirGraficoDeSeries(ventana, o, primera, ultima);
    }
    return 1;
}

bool IniciarEleccionDeSeries(Ventana *ventana, ModosDeGraficos modo, int primera, int ultima) {
    if (!CabeLaMuestra(ventana, primera, ultima)) return false;
    OpcionesDeSeries = OpcionesPorDefecto(Filas(primera, ultima));
    OpcionesDeSeries.dispersion = modo == GraficosDeDispersion ? 1 : 0;
    OpcionesDeSeries.forma = modo == GraficosDeDispersion ? FormaSimbolos : FormaLineas;
    return true;
}

int TomarEleccionDeSeries(Ventana *ventana, ModosDeGraficos modo, const EstadoSeleccion &eleccion,
                          std::string_view codigoX) {
    OpcionesGrafico &o = OpcionesDeSeries;
    o.series.clear();
    for (const std::string &codigo : eleccion.elegidas) AnadirCodigo(o, codigo);
    if (modo == GraficosDeDispersion) {
        std::string codigo(Recortado(codigoX).substr(0, AnchoCodigo - 1));
        std::transform(codigo.begin(), codigo.end(), codigo.begin(),
                       [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; });
        o.ejeX = codigo;
        if (codigo.empty() || BuscarSerie(codigo) < 0) return SerieNoExiste(ventana, codigo);
    }
    // Nothing is told of an empty list elsewhere; a chart of nothing helps nobody.
    if (o.series.empty()) return MensajeAviso(ventana, "No se ha introducido ninguna serie válida"_w);
    return 1;
}

int AceptarEleccionDeSeries(Ventana *ventana, ModosDeGraficos modo, const EstadoSeleccion &eleccion,
                            std::string_view codigoX, int primera, int ultima) {
    if (TomarEleccionDeSeries(ventana, modo, eleccion, codigoX) == 0) return 0;
    return AbrirGraficoDeSeries(ventana, OpcionesDeSeries, primera, ultima);
}

int ImprimirEleccionDeSeries(Ventana *ventana, ModosDeGraficos modo, const EstadoSeleccion &eleccion,
                             std::string_view codigoX, int primera, int ultima) {
    Grafico g;
    if (TomarEleccionDeSeries(ventana, modo, eleccion, codigoX) == 0 ||
        !Componer(ventana, OpcionesDeSeries, primera, ultima, g))
        return 0;
    CalcularLimites(g);
    ImprimirVentanaGrafico(ventana, g);
    return 1;
}
