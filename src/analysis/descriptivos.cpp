// Descriptive measures.
#include "analysis/descriptivos.h"

#include "charts/resultados/partes_informe.h"
#include "language/lote_sentencias.h"
#include "language/traza.h"
#include "platform/campos_texto.h"
#include "platform/texto.h"
#include "store/archivo.h"

#include <algorithm>
#include <cmath>

namespace {

enum GruposDescriptivos { GrupoMedidas = 0, GrupoCorrelaciones = 1 };

constexpr double ExtremoInicial = 9999999.0; // where the search for an extreme begins without a first value

struct SerieElegida {
    std::string codigo;
    int serie;
    MedidasDescriptivas medidas;
};

struct Correlacion {
    std::size_t primera, segunda;
    double r;
};

// ----- The table

// Ten decimals are printed, and those of the work copied from their left: the last one isn't rounded.
std::string Medida(double valor) {
    return NumeroCopiado(10, std::clamp(Lote.DecimalesSalida, 0, 6), valor, 10);
}

std::vector<Correlacion> Correlaciones(const std::vector<SerieElegida> &series, const FilasDeMuestra &filas) {
    std::vector<Correlacion> r;
    for (std::size_t i = 0; i < series.size(); ++i)
        for (std::size_t j = i + 1; j < series.size(); ++j)
            r.push_back({i, j,
                         CorrelacionDeSeries(series[i].serie, series[i].medidas.media, series[j].serie,
                                             series[j].medidas.media, filas)});
    return r;
}

TextoSalida Lineas(const std::vector<SerieElegida> &series, const std::vector<Correlacion> &correlaciones) {
    TextoSalida t;
    AnadirLinea(t, GrupoMedidas, " Serie            Media     Desviación    Mínimo      Máximo"_w);
    for (const SerieElegida &s : series)
        AnadirLinea(t, GrupoMedidas,
                    Formatear(" %10s  %10s  %10s  %10s  %10s", s.codigo.c_str(),
                              Medida(s.medidas.media).c_str(), Medida(s.medidas.desviacion).c_str(),
                              Medida(s.medidas.minimo).c_str(), Medida(s.medidas.maximo).c_str()));
    if (correlaciones.empty()) return t;
    AnadirLinea(t, GrupoMedidas, "                     Coeficientes de correlación"_w);
    for (const Correlacion &c : correlaciones) {
        const bool encabeza = c.segunda == c.primera + 1;
        AnadirLinea(t, GrupoCorrelaciones,
                    Formatear("            %14s%10s%6s  ", encabeza ? series[c.primera].codigo.c_str() : " ",
                              series[c.segunda].codigo.c_str(), NumeroCopiado(10, 3, c.r, 6).c_str()));
    }
    return t;
}

// The title stands above the series, another one above the correlations.
FuentesDeSalida Fuentes(const std::vector<SerieElegida> &series,
                        const std::vector<Correlacion> &correlaciones) {
    FuentesDeSalida fuentes;
    int linea = 1;
    for (const SerieElegida &s : series) {
        FuentesDeLinea &f = fuentes.emplace_back(FuentesDeLinea{linea++, {}});
        for (const char *medida : {"media", "desviacion", "minimo", "maximo"})
            f.numeros.push_back({Formatear("%s.%s", medida, s.codigo.c_str())});
    }
    ++linea;
    for (const Correlacion &c : correlaciones)
        fuentes.push_back(
            {linea++,
             {{Formatear("r.%s.%s", series[c.primera].codigo.c_str(), series[c.segunda].codigo.c_str())}}});
    return fuentes;
}

std::string Tabla(const std::vector<SerieElegida> &series, const std::vector<Correlacion> &correlaciones) {
    std::string t = "Serie\tMedia\tDesviación\tMínimo\tMáximo\n"_w;
    for (const SerieElegida &s : series)
        t += s.codigo + "\t" + NumeroExacto(s.medidas.media) + "\t" + NumeroExacto(s.medidas.desviacion) +
             "\t" + NumeroExacto(s.medidas.minimo) + "\t" + NumeroExacto(s.medidas.maximo) + "\n";
    if (!correlaciones.empty()) t += "\nCoeficientes de correlación\n"_w;
    for (const Correlacion &c : correlaciones)
        t += series[c.primera].codigo + "\t" + series[c.segunda].codigo + "\t" + NumeroExacto(c.r) + "\n";
    return t;
}

} // namespace

MedidasDescriptivas MedirSerie(int serie, const FilasDeMuestra &filas) {
    const CabeceraArchivo &a = ArchivoTrabajo;
    const auto hay = [&](int i) { return a.PresenciaObs[i][serie] == 1; };
    MedidasDescriptivas m = {0.0, 0.0, ExtremoInicial, -ExtremoInicial};
    if (filas.fin < filas.inicio) return m;
    if (hay(filas.inicio)) m.minimo = m.maximo = a.ValoresObs[filas.inicio][serie];
    double cuenta = 0.0, suma = 0.0, cuadrados = 0.0;
    for (int i = filas.inicio; i <= filas.fin; ++i) {
        if (!hay(i)) continue;
        const double x = a.ValoresObs[i][serie];
        cuenta += 1.0;
        suma += x;
        m.minimo = std::min(m.minimo, x);
        m.maximo = std::max(m.maximo, x);
    }
    if (cuenta == 0.0) return m;
    m.media = suma / cuenta;
    for (int i = filas.inicio; i <= filas.fin; ++i) {
        const double desvio = a.ValoresObs[i][serie] - m.media;
        if (hay(i)) cuadrados += desvio * desvio;
    }
    m.desviacion = std::sqrt(cuadrados / cuenta);
    return m;
}

double CorrelacionDeSeries(int serie1, double media1, int serie2, double media2,
                           const FilasDeMuestra &filas) {
    double productos = 0.0, cuadrados1 = 0.0, cuadrados2 = 0.0;
    for (int i = filas.inicio; i <= filas.fin; ++i) {
        const double d1 = ArchivoTrabajo.ValoresObs[i][serie1] - media1;
        const double d2 = ArchivoTrabajo.ValoresObs[i][serie2] - media2;
        productos += d1 * d2;
        cuadrados1 += d1 * d1;
        cuadrados2 += d2 * d2;
    }
    const double denominador = std::sqrt(cuadrados1 * cuadrados2);
    return denominador > 0.0 ? productos / denominador : 0.0;
}

namespace {

// The steps of MedirSerie; x(t) are the values that aren't missing.
void TrazarMedidas(const SerieElegida &s, const FilasTraza &filas) {
    const char *x = s.codigo.c_str();
    int n = 0; // observations that aren't missing
    for (int i = filas.primera; i <= filas.ultima; ++i)
        n += ArchivoTrabajo.PresenciaObs[i][s.serie] == 1 ? 1 : 0;
    const auto medida = [&](const char *nombre, const std::string &formula, double valor,
                            const char *explicacion) {
        TrazarEscalar(Formatear("%s.%s", nombre, x), ConPeriodos(formula, filas), valor, explicacion, filas);
    };
    medida("media", Formatear("suma de %s(t) / %d", x, n), s.medidas.media,
           "Media de las observaciones que hay");
    medida("desviacion", Formatear("RCUAD(suma de (%s(t) - media.%s)^2 / %d)", x, x, n), s.medidas.desviacion,
           "Desviación típica, con el número de observaciones"_w);
    medida("minimo", Formatear("el menor %s(t)", x), s.medidas.minimo, "Mínimo"_w);
    medida("maximo", Formatear("el mayor %s(t)", x), s.medidas.maximo, "Máximo"_w);
}

void TrazarDescriptivos(const std::vector<SerieElegida> &series,
                        const std::vector<Correlacion> &correlaciones, const FilasTraza &filas) {
    if (!Trazando()) return;
    for (const SerieElegida &s : series) TrazarMedidas(s, filas);
    for (const Correlacion &c : correlaciones) {
        const char *x = series[c.primera].codigo.c_str(), *z = series[c.segunda].codigo.c_str();
        TrazarEscalar(
            Formatear("r.%s.%s", x, z),
            ConPeriodos(Formatear("suma de (%s(t) - media.%s) (%s(t) - media.%s) / "
                                  "RCUAD(suma de (%s(t) - media.%s)^2 * suma de (%s(t) - media.%s)^2)",
                                  x, x, z, z, x, x, z, z),
                        filas),
            c.r, "Coeficiente de correlación"_w, filas);
    }
}

int Describir(Ventana *ventana, const std::vector<std::string> &elegidas) {
    if (elegidas.size() > MaxDescriptivos) return MensajeAviso(ventana, "Demasiadas series escogidas");
    if (elegidas.empty()) return MensajeAviso(ventana, "Escoja una serie");
    const FilasDeMuestra filas = FilasDelArchivo(Muestra.InicioMuestra, Muestra.FinMuestra);
    std::vector<SerieElegida> series;
    for (const std::string &codigo : elegidas) {
        const int s = BuscarSerie(codigo);
        if (s < 0) return MensajePunto(ventana, "Serie no Encontrada", 86);
        series.push_back({std::string(Recortado(codigo)), s, MedirSerie(s, filas)});
    }
    const std::vector<Correlacion> correlaciones = Correlaciones(series, filas);
    TrazarDescriptivos(series, correlaciones, {filas.inicio, filas.fin});
    const TextoSalida lineas = Lineas(series, correlaciones);
    const std::string tabla = Tabla(series, correlaciones);
    SalidaResultado salida = {};
    salida.tipo = SalidaDescriptivos;
    salida.titulo = "Medidas descriptivas";
    salida.lineas = &lineas;
    salida.tabla = tabla;
    const FuentesDeSalida fuentes = Fuentes(series, correlaciones);
    salida.fuentes = &fuentes;
    MostrarVentanaResultado(ventana, salida);
    return 1;
}

} // namespace

int AceptarDescriptivos(Ventana *ventana, const std::vector<std::string> &elegidas) {
    std::string codigos;
    for (const std::string &codigo : elegidas) codigos.append(Recortado(codigo)).append(" ");
    const int grupo = EmpezarComando(codigos, "Medidas descriptivas y correlaciones");
    return TerminarComando(grupo, Describir(ventana, elegidas));
}
