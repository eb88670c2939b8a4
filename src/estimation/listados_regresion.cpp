// The lines of the listings of a regression, and the way to their windows.
#include "estimation/listados_regresion.h"

#include "charts/resultados/partes_informe.h"
#include "estimation/regresion.h"
#include "language/lote_sentencias.h"
#include "language/traza.h"
#include "platform/campos_texto.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <algorithm>

namespace {

enum GruposListado { GrupoTitulo = 0, GrupoFila = 1 };

// What a listing shows.
struct ListadoProducido {
    TextoSalida lineas, fijas, fijasImpresas, alAbrir;
    std::vector<TablaCoeficientes> tablas;
    std::string tituloImpreso, tabla;
    FuentesDeSalida fuentes;
    const char *pagina = nullptr; // how the number of the page is written
};

std::string NumeroListado(const PeticionListado &p, double valor) {
    return Formatear("%15.*f", std::clamp(p.decimales, 0, 6), valor);
}

double ValorDe(const char *escalar) {
    const int e = BuscarEscalar(escalar);
    return e < 0 ? 0.0 : TablaEscalares.registro[e].Valor;
}

// The rows of the range that the tables have.
struct Rango {
    int primera, ultima;
};

Rango FilasDe(const PeticionListado &p) {
    return {std::max(p.primera, 0), std::min(p.ultima, MaxObservaciones - 1)};
}

// ----- Covariance matrix

std::string NombreDeFila(const std::string &nombre) {
    return Formatear("%-13.13s", nombre.c_str());
}

// The lower triangle, an element a line. The first line of a row names it; the others begin a character further to the left
// than its first one's column, so that the first column is one place wider. On paper a page begins with the name of its row.
void ProducirCovarianza(ListadoProducido &l, const PeticionListado &p, Ventana *ventana) {
    l.tituloImpreso = "Matriz de covarianza de los estimadores";
    l.pagina = "      Página.: %3d"_w;
    AnadirLinea(l.fijasImpresas, GrupoTitulo, Formatear(" %-50s       ", p.sentencia.c_str()));
    const int m = BuscarMatriz("_COV");
    if (m < 0 || !FijarMatriz(m)) {
        MensajePunto(ventana, "No existe la matriz de covarianza", 1);
        return;
    }
    const RegistroMatriz &r = TablaMatrices.registro[m];
    const std::size_t k =
        std::min({p.nombres.size(), static_cast<std::size_t>(r.Filas), static_cast<std::size_t>(r.Columnas)});
    for (std::size_t j = 0; j < k; ++j) l.tabla += "\t" + p.nombres[j];
    l.tabla += "\n";
    for (std::size_t i = 0; i < k; ++i) {
        const std::string deFila = std::string(13, ' ') + NombreDeFila(p.nombres[i]);
        l.tabla += p.nombres[i];
        for (std::size_t j = 0; j <= i; ++j) {
            const double valor = r.Datos[i * static_cast<std::size_t>(r.Columnas) + j];
            const std::string elemento = NombreDeFila(p.nombres[j]) + NumeroListado(p, valor);
            AnadirLinea(l.lineas, GrupoFila, (j == 0 ? deFila : std::string(25, ' ')) + elemento);
            l.fuentes.push_back({static_cast<int>(l.lineas.size()) - 1,
                                 {{"_COV", static_cast<int>(i) * r.Columnas + static_cast<int>(j)}}});
            AnadirLinea(l.alAbrir, GrupoFila, deFila + elemento);
            l.tabla += "\t" + NumeroExacto(valor);
        }
        l.tabla += "\n";
    }
    SoltarMatriz(m);
}

// ----- Observed values, estimated values and residuals

struct FormatoValores {
    const char *titulos;
    int anchoPeriodo;
    const char *separador;
};
constexpr FormatoValores SinEtiquetas = {" Período    Valores observados    Valores estimados    Residuos"_w,
                                         13, "  "};
// Two blanks would not leave room in 70 characters.
constexpr FormatoValores ConEtiquetas = {
    " Período  Etiquetas     Valores observ.   Valores estim.  Residuos"_w, 9, " "};

void ProducirValores(ListadoProducido &l, const PeticionListado &p, Ventana *ventana) {
    const FormatoValores &f = p.conEtiquetas ? ConEtiquetas : SinEtiquetas;
    l.tituloImpreso = Formatear("%-50s", p.sentencia.c_str());
    l.pagina = " Página.:%3d"_w;
    AnadirLinea(l.fijas, GrupoTitulo, p.sentencia);
    AnadirLinea(l.fijas, GrupoTitulo, f.titulos);
    AnadirLinea(l.fijasImpresas, GrupoTitulo, std::string(f.titulos) + "    ");
    const int y = BuscarSerie(p.dependiente);
    if (y < 0) {
        MensajePunto(ventana, "No existe la variable dependiente", 1);
        return;
    }
    const char *residuos = p.codigo == OrdenMCP ? "_RESN" : "_RES";
    const int e = BuscarSerie(residuos);
    if (e < 0) {
        MensajePunto(ventana, "No existe la serie de residuos", 1);
        return;
    }
    l.tabla = p.conEtiquetas ? "Período\tEtiquetas\tValores observados\tValores estimados\tResiduos\n"_w
                             : "Período\tValores observados\tValores estimados\tResiduos\n"_w;
    const Rango rango = FilasDe(p);
    for (int t = rango.primera; t <= rango.ultima; ++t) {
        // The estimated value isn't read from the fitted series: it is what the residual leaves of the observed one.
        const double observado = ArchivoTrabajo.ValoresObs[t][y], residuo = ArchivoTrabajo.ValoresObs[t][e];
        const double estimado = observado - residuo;
        std::string linea = Centrado(TextoPeriodo(t), f.anchoPeriodo);
        if (p.conEtiquetas) linea += Formatear("%-13.13s", ArchivoTrabajo.EtiquetasObs[t]);
        AnadirLinea(l.lineas, GrupoFila,
                    linea + NumeroListado(p, observado) + f.separador + NumeroListado(p, estimado) +
                        f.separador + NumeroListado(p, residuo) + f.separador);
        l.fuentes.push_back({static_cast<int>(l.lineas.size()) - 1, {{residuos, t - rango.primera}}});
        l.tabla += std::string(TextoPeriodo(t)) + "\t";
        if (p.conEtiquetas) l.tabla += std::string(Recortado(ArchivoTrabajo.EtiquetasObs[t])) + "\t";
        l.tabla +=
            NumeroExacto(observado) + "\t" + NumeroExacto(estimado) + "\t" + NumeroExacto(residuo) + "\n";
    }
}

// ----- Analysis of variance

// Sum of the squares of a series about its mean over the rows.
double VariacionTotal(int serie, const Rango &rango) {
    double suma = 0.0, variacion = 0.0;
    for (int t = rango.primera; t <= rango.ultima; ++t) suma += ArchivoTrabajo.ValoresObs[t][serie];
    const double media = suma / (rango.ultima - rango.primera + 1);
    for (int t = rango.primera; t <= rango.ultima; ++t) {
        const double d = ArchivoTrabajo.ValoresObs[t][serie] - media;
        variacion += d * d;
    }
    return variacion;
}

struct FilaDeVarianza {
    const char *formato, *rotulo;
    double suma, grados;
    const char *pasoSuma, *pasoMedia; // of the trace
};

void AnadirFuente(ListadoProducido &l, const FilaDeVarianza &f, bool conF) {
    const double media = f.grados > 0.0 ? f.suma / f.grados : 0.0;
    const double estadistico = ValorDe("_FORLA"), probabilidad = ValorDe("_ESTF");
    AnadirLinea(l.lineas, GrupoFila,
                Formatear(f.formato, NumeroCampo(4, f.suma, 10).c_str(), NumeroCampo(0, f.grados, 8).c_str(),
                          NumeroCampo(4, media, 10).c_str(), NumeroCampo(4, estadistico, 6).c_str(),
                          NumeroCampo(4, probabilidad, 10).c_str()));
    FuentesDeLinea fuentes = {static_cast<int>(l.lineas.size()) - 1, {{f.pasoSuma}, {}, {f.pasoMedia}}};
    if (conF) fuentes.numeros.insert(fuentes.numeros.end(), {{"_FORLA"}, {"_ESTF"}});
    l.fuentes.push_back(fuentes);
    l.tabla += std::string(f.rotulo) + "\t" + NumeroExacto(f.suma) + "\t" + NumeroExacto(f.grados) + "\t" +
               NumeroExacto(media);
    if (conF) l.tabla += "\t" + NumeroExacto(estadistico) + "\t" + NumeroExacto(probabilidad);
    l.tabla += "\n";
}

// The steps of the table; y(t) is the dependent.
void TrazarVarianza(double total, double residual, double k, int n, const FilasTraza &filas) {
    if (!Trazando()) return;
    const int grupo =
        AbrirGrupo(UltimaRegresion.SentenciaRegresion, "Análisis de la varianza de la regresión"_w);
    const auto fila = [&](const char *nombre, const std::string &formula, double valor,
                          const char *explicacion) {
        TrazarEscalar(nombre, formula, valor, explicacion, filas);
    };
    const auto media = [](double suma, double grados) { return grados > 0.0 ? suma / grados : 0.0; };
    fila("sct", ConPeriodos("suma de (y(t) - media)^2", filas), total,
         "Suma total de cuadrados de la variable dependiente respecto a su media");
    fila("sce", "sct - _SCR", total - residual, "Suma de cuadrados explicada por la regresión"_w);
    fila("mce", Formatear("sce / %.0f", k - 1.0), media(total - residual, k - 1.0),
         "Media cuadrática de la regresión"_w);
    fila("mcr", Formatear("_SCR / %.0f", n - k), media(residual, n - k),
         "Media cuadrática de los residuos"_w);
    fila("mct", Formatear("sct / %d", n - 1), media(total, n - 1.0), "Media cuadrática total"_w);
    CerrarGrupo(grupo);
}

// Its sums are those of the last MC or MCP, whatever a test left beside them.
void ProducirVarianza(ListadoProducido &l, const PeticionListado &p, Ventana *ventana) {
    l.tituloImpreso = "Análisis de la varianza de la regresión"_w;
    const int y = BuscarSerie(p.dependiente);
    if (y < 0) {
        MensajePunto(ventana, "No existe la variable dependiente", 1);
        return;
    }
    const Rango rango = FilasDe(p);
    const double total = VariacionTotal(y, rango), residual = ValorDe("_SCR"), k = ValorDe("_NREG");
    const int n = rango.ultima - rango.primera + 1;
    TrazarVarianza(total, residual, k, n, {rango.primera, rango.ultima});
    AnadirLinea(l.lineas, GrupoTitulo,
                "Fuente de       Suma de    Grados de     Media        F     Prob>F   ");
    AnadirLinea(l.lineas, GrupoTitulo, "variación      cuadrados   libertad    cuadrática"_w);
    l.tabla = "Fuente de variación\tSuma de cuadrados\tGrados de libertad\tMedia cuadrática\tF\tProb>F\n"_w;
    AnadirFuente(l,
                 {"Regresión      %10s%8s      %10s  %6s%10s"_w, "Regresión"_w, total - residual, k - 1.0,
                  "sce", "mce"},
                 true);
    AnadirFuente(l, {"Residual       %10s%8s      %10s ", "Residual", residual, n - k, "_SCR", "mcr"}, false);
    AnadirFuente(l, {"Total          %10s%8s      %10s ", "Total", total, n - 1.0, "sct", "mct"}, false);
    l.tablas.push_back({1, 2, 4, &ReglasDeVarianza});
}

// ----- The three

struct FilaDeListado {
    int contenido;
    const char *titulo;
    void (*producir)(ListadoProducido &listado, const PeticionListado &peticion, Ventana *ventana);
};

// By ListadosRegresion.
constexpr FilaDeListado Listados[] = {
    {1, "Matriz de covarianza", ProducirCovarianza},
    {2, "Valores observados", ProducirValores},
    {3, "Análisis de la varianza"_w, ProducirVarianza},
};

} // namespace

PeticionListado PeticionDeUltimaRegresion(std::string_view sentencia, int codigo) {
    const RegistroRegresion &u = UltimaRegresion;
    return {.decimales = Lote.DecimalesSalida,
            .sentencia = std::string(Recortado(sentencia)),
            .primera = u.PrimeraObsRegresion,
            .ultima = u.UltimaObsRegresion,
            .dependiente = u.CodigoDependiente,
            .nombres = u.CodigosRegresores,
            .conEtiquetas = ArchivoTrabajo.ConEtiquetas != 0,
            .codigo = codigo};
}

bool MostrarListado(Ventana *ventana, ListadosRegresion cual, const PeticionListado &peticion) {
    if (ArchivoTrabajo.TipoDatos >= SinTipoDatos)
        return MensajeCancelado(ventana, "Tipo de datos no válido"_w) != 0;
    const FilaDeListado &fila = Listados[cual];
    ListadoProducido l;
    fila.producir(l, peticion, ventana);
    SalidaResultado salida = {.tipo = SalidaRegresion,
                              .titulo = fila.titulo,
                              .Clase = peticion.codigo,
                              .Contenido = fila.contenido,
                              .lineas = &l.lineas,
                              .fijas = l.fijas.empty() ? nullptr : &l.fijas,
                              .tablas = &l.tablas,
                              .tabla = l.tabla};
    salida.fuentes = &l.fuentes;
    salida.papel.titulos = {l.tituloImpreso};
    salida.papel.pagina = l.pagina;
    salida.papel.fijas = l.fijasImpresas.empty() ? nullptr : &l.fijasImpresas;
    salida.papel.alAbrir = l.alAbrir.empty() ? nullptr : &l.alAbrir;
    MostrarVentanaResultado(ventana, salida);
    return true;
}

bool HayRegresion(Ventana *ventana) {
    return UltimaRegresion.RegresionHecha != 0 ||
           MensajeAviso(ventana, "Efectue primero una regresión"_w) != 0;
}

bool PedirListado(Ventana *ventana, ListadosRegresion cual, std::string_view sentencia, int codigo) {
    if (!HayRegresion(ventana)) return false;
    // The count of the regressors that are series is gone from the store when a regression has ended.
    if (cual == ListadoVarianza && ValorDe("_NREG") == UltimaRegresion.SeriesRegresion[OrdenMC]) {
        MensajeAviso(ventana, "Introduzca el término independiente"_w);
        return false;
    }
    return MostrarListado(ventana, cual, PeticionDeUltimaRegresion(sentencia, codigo));
}
