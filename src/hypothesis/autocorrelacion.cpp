// The autocorrelation functions of a series.
#include "hypothesis/autocorrelacion.h"

#include "charts/graficos/grafico.h"
#include "charts/resultados/partes_informe.h"
#include "language/lote_sentencias.h"
#include "language/traza.h"
#include "platform/campos_texto.h"
#include "platform/diferencias_autocorrelacion.h"
#include "platform/numeros.h"
#include "platform/texto.h"
#include "store/periodos.h"

#include <algorithm>
#include <cmath>
#include <vector>

EstadoAutocorrelacion Autocorrelacion;

namespace {

enum GruposListado { GrupoCoeficientes = 1, GrupoCabecera = 2 };

constexpr double CuantilBanda = 1.96; // of the normal distribution, for a band of 95 %

// ----- The texts of the two functions

struct TextosDeFuncion {
    const char *dialogo, *rotulo, *titulo, *cabecera;
};

constexpr TextosDeFuncion Estimada = {
    "Función de autocorrelación estimada"_w,
    "Número de retardos.....:"_w,
    "Contrastes de autocorrelación estimada"_w,
    " Coeficiente de Autocorrelación Estimada de la Serie:  %s"_w,
};

constexpr TextosDeFuncion Parcial = {
    "Función de autocorrelación parcial estimada"_w,
    "Número de coeficientes.....:"_w,
    "Contrastes de autocorrelación parcial estimada"_w,
    " Coeficiente de Autocorrelación Par. Estimada de la Serie: %s"_w,
};

const TextosDeFuncion &TextosDe(int funcion) {
    return funcion == FuncionEstimada ? Estimada : Parcial;
}

// ----- Computation

void GuardarOpciones(int funcion, const ValoresAutocorrelacion &valores) {
    EstadoAutocorrelacion &a = Autocorrelacion;
    a.funcion = funcion;
    a.retardos = LeerEntero(valores.retardos);
    PonerCampo(a.serie, valores.serie, AnchoCodigo);
    a.tipoBanda = valores.banda;
    a.conTitulo = valores.conTitulo ? 1 : 0;
    a.tituloAbajo = valores.tituloArriba ? 0 : 1;
    a.marcas = valores.marcas;
    a.titulo = valores.titulo.substr(0, AnchoTituloAutocorrelacion);
}

std::vector<double> ValoresDeMuestra(int serie) {
    const FilasDeMuestra filas = FilasDelArchivo(Muestra.InicioMuestra, Muestra.FinMuestra);
    std::vector<double> x;
    for (int i = filas.inicio; i <= filas.fin; ++i) x.push_back(ArchivoTrabajo.ValoresObs[i][serie]);
    return x;
}

// Coefficients and bands of the estimated function. False after its message.
bool CalcularEstimada(Ventana *ventana, const std::vector<double> &x) {
    EstadoAutocorrelacion &a = Autocorrelacion;
    const std::size_t n = x.size();
    const double tamano = static_cast<double>(n);
    a.bandaUniforme = CuantilBanda / std::sqrt(tamano);
    std::fill(std::begin(a.coeficientes), std::end(a.coeficientes), 0.0);
    double suma = 0.0, denominador = 0.0;
    for (const double v : x) suma += v;
    const double media = suma / tamano;
    for (const double v : x) denominador += (v - media) * (v - media);
    if (!(denominador > 0.0)) return MensajeAviso(ventana, "No se puede calcular el coeficiente.") != 0;
    const int ultimo = RetardosMostrados();
    for (int k = 1; k <= ultimo; ++k) {
        double numerador = 0.0;
        for (std::size_t i = static_cast<std::size_t>(k); i < n; ++i)
            numerador += (x[i - static_cast<std::size_t>(k)] - media) * (x[i] - media);
        a.coeficientes[k] = numerador / denominador;
        if (!(std::fabs(a.coeficientes[k]) <= 1.0)) {
            MensajeAviso(ventana, Formatear("Serie no válida: Serie[%d]: %12.6f; Media : %12.6f; "
                                            "Denominador : %12.6f; Numerador : %12.6f"_w,
                                            k, a.coeficientes[k], media, denominador, numerador));
            return false;
        }
    }
    std::fill(std::begin(a.desviaciones), std::end(a.desviaciones), 0.0);
    // The sum reaches the lag itself, one further than the usual formula for this band.
    double cuadrados = 0.0;
    for (int k = 1; k <= ultimo; ++k) {
        cuadrados += a.coeficientes[k] * a.coeficientes[k];
        a.desviaciones[k] = CuantilBanda * std::sqrt((2.0 * cuadrados + 1.0) / tamano);
    }
    return true;
}

// Puts the partial coefficients in the place of the others; the band stays as it is. Only the first values of a long
// sample are seen.
void CalcularParcial(Ventana *ventana, const std::vector<double> &x) {
    EstadoAutocorrelacion &a = Autocorrelacion;
    const int n = static_cast<int>(x.size());
    const int copiados = std::min(n, SitiosRetardo);
    std::fill(std::copy_n(x.begin(), copiados, a.coeficientes), std::end(a.coeficientes), 0.0);
    double R[SitiosRetardo] = {}, P[SitiosRetardo] = {}, V[SitiosRetardo] = {}, AR[SitiosRetardo] = {};
    double XM = 0.0, XV = 0.0, STAT = 0.0;
    int NVL = 0, IFAIL = 0;
    G13ABF(a.coeficientes, std::min(n, MaxRetardo), a.retardos, XM, XV, R, STAT, IFAIL);
    if (IFAIL != 0) MensajeAviso(ventana, "Se ha producido un error en los cálculos"_w);
    // More coefficients than R has room for are refused as more than there are autocorrelations.
    G13ACF(R, std::min(a.retardos, MaxRetardo), a.retardos, P, V, AR, NVL, IFAIL);
    if (IFAIL != 0) MensajeAviso(ventana, "Se ha producido un error en los cálculos"_w);
    a.coeficientes[0] = 0.0;
    std::copy_n(P, copiados - 1, a.coeficientes + 1);
}

// ----- The trace

// The steps of both computations; x(t) is the series.
void TrazarEstimada() {
    const EstadoAutocorrelacion &a = Autocorrelacion;
    const FilasDeMuestra f = FilasDelArchivo(Muestra.InicioMuestra, Muestra.FinMuestra);
    const FilasTraza filas = {f.inicio, f.fin};
    const int n = a.observaciones;
    const std::string codigo(Recortado(a.serie));
    const char *x = codigo.c_str();
    for (int k = 1; k <= RetardosMostrados(); ++k)
        TrazarEscalar(
            Formatear("r%d", k),
            ConPeriodos(Formatear("suma de (%s(t-%d) - media) (%s(t) - media) / suma de (%s(t) - media)^2", x,
                                  k, x, x),
                        filas),
            a.coeficientes[k], Formatear("Coeficiente de autocorrelación, retardo %d"_w, k), filas);
    for (int k = 1; k <= RetardosMostrados() && a.tipoBanda == BandaArma; ++k)
        TrazarEscalar(Formatear("banda%d", k),
                      Formatear("1.96 * RCUAD((1 + 2 * suma de r(j)^2, j de 1 a %d) / %d)", k, n),
                      a.desviaciones[k], "Banda de confianza del 95 %: la suma llega al propio retardo");
}

void TrazarParcial() {
    for (int k = 1; k <= RetardosMostrados(); ++k)
        TrazarEscalar(
            Formatear("p%d", k),
            Formatear("(r(%d) - suma de a(j) r(%d-j)) / (1 - suma de a(j) r(j)), j de 1 a %d", k, k, k - 1),
            Autocorrelacion.coeficientes[k],
            Formatear("Coeficiente de autocorrelación parcial, retardo %d; a(j), los de la "
                      "autorregresión de orden anterior"_w,
                      k));
}

// ----- Listing

// The part of a record that one lag takes, behind its number.
std::string Celda(int k) {
    const EstadoAutocorrelacion &a = Autocorrelacion;
    const bool arma = a.tipoBanda == BandaArma;
    if (k > RetardosMostrados()) return std::string(arma ? 18 : 16, ' ');
    const auto numero = [](double v) {
        return Formatear("%11.*f", std::clamp(Lote.DecimalesSalida, 0, 6), v);
    };
    const std::string coeficiente = numero(a.coeficientes[k]);
    if (!arma) return Formatear("%16s", coeficiente.c_str());
    const std::string desviacion = numero(a.desviaciones[k]);
    return Formatear("%9s%9s", std::string(Recortado(coeficiente)).c_str(),
                     std::string(Recortado(desviacion)).c_str());
}

// Behind the four lines of the head, three lags to a line: the number of each, its coefficient and, with that band, its
// deviation.
FuentesDeSalida FuentesDeCoeficientes() {
    const EstadoAutocorrelacion &a = Autocorrelacion;
    constexpr int LineasDeCabecera = 4, RetardosPorLinea = 3;
    FuentesDeSalida fuentes;
    for (int k = 1; k <= RetardosMostrados(); ++k) {
        if (k % RetardosPorLinea == 1) fuentes.push_back({LineasDeCabecera + k / RetardosPorLinea, {}});
        std::vector<FuenteDeNumero> &numeros = fuentes.back().numeros;
        numeros.push_back({});
        numeros.push_back({Formatear(a.funcion == FuncionEstimada ? "r%d" : "p%d", k)});
        if (a.tipoBanda == BandaArma) numeros.push_back({Formatear("banda%d", k)});
    }
    // The last line has the numbers of the lags that it doesn't show, too.
    for (int k = RetardosMostrados(); k % RetardosPorLinea != 0; ++k) fuentes.back().numeros.push_back({});
    return fuentes;
}

void Mostrar(Ventana *ventana) {
    const TextoSalida lineas = LineasAutocorrelacion();
    const std::string tabla = TablaAutocorrelacion();
    SalidaResultado salida = {};
    salida.tipo = SalidaAutocorrelacion;
    salida.titulo = TituloAutocorrelacion(Autocorrelacion.funcion);
    salida.lineas = &lineas;
    salida.tabla = tabla;
    salida.graficos = AbrirGraficoAutocorrelacion;
    const FuentesDeSalida fuentes = FuentesDeCoeficientes();
    salida.fuentes = &fuentes;
    MostrarVentanaResultado(ventana, salida);
}

} // namespace

const char *TituloAutocorrelacion(int funcion) {
    return TextosDe(funcion).titulo;
}

const char *TituloDialogoAutocorrelacion(int funcion) {
    return TextosDe(funcion).dialogo;
}

const char *RotuloRetardos(int funcion) {
    return TextosDe(funcion).rotulo;
}

int RetardosMostrados() {
    return std::max(std::min({Autocorrelacion.retardos, Autocorrelacion.observaciones, MaxRetardo}), 0);
}

namespace {

int Calcular(Ventana *ventana, int funcion) {
    const int serie = BuscarSerieEnTabla(Autocorrelacion.serie);
    if (serie < 0) return MensajeAviso(ventana, "Serie no válida."_w);
    const std::vector<double> x = ValoresDeMuestra(serie);
    Autocorrelacion.observaciones = static_cast<int>(x.size());
    if (!CalcularEstimada(ventana, x)) return 0;
    if (Trazando()) TrazarEstimada();
    if (funcion != FuncionEstimada) CalcularParcial(ventana, x);
    if (Trazando() && funcion != FuncionEstimada) TrazarParcial();
    Mostrar(ventana);
    return 1;
}

} // namespace

int AceptarAutocorrelacion(Ventana *ventana, int funcion, const ValoresAutocorrelacion &valores) {
    GuardarOpciones(funcion, valores);
    const int grupo = EmpezarComando(Recortado(Autocorrelacion.serie), TextosDe(funcion).dialogo);
    return TerminarComando(grupo, Calcular(ventana, funcion));
}

TextoSalida LineasAutocorrelacion() {
    const EstadoAutocorrelacion &a = Autocorrelacion;
    const bool arma = a.tipoBanda == BandaArma;
    TextoSalida texto;
    AnadirLinea(texto, GrupoCabecera, Formatear(TextosDe(a.funcion).cabecera, a.serie));
    AnadirLinea(texto, GrupoCabecera, "  ");
    AnadirLinea(texto, GrupoCabecera, "  ");
    AnadirLinea(texto, GrupoCabecera,
                arma ? " Ret.  Coefic.  Des.T.  Ret.  Coefic.  Des.T.  Ret.  Coefic.  Des.T."
                     : " Retardo  Coeficiente   Retardo  Coeficiente   Retardo  Coeficiente");
    // The record of three deviations is wider than its heading, and than the 70 characters that the window shows.
    const char *formato = arma ? "  %3d%s    %3d%s    %3d%s" : "  %3d%s     %3d%s     %3d%s";
    for (int k = 1; k <= RetardosMostrados(); k += 3)
        AnadirLinea(texto, GrupoCoeficientes,
                    Formatear(formato, k, Celda(k).c_str(), k + 1, Celda(k + 1).c_str(), k + 2,
                              Celda(k + 2).c_str()));
    return texto;
}

std::string TablaAutocorrelacion() {
    const EstadoAutocorrelacion &a = Autocorrelacion;
    const bool arma = a.tipoBanda == BandaArma;
    std::string t = "Serie\t" + std::string(Recortado(a.serie)) + "\n\n";
    t += arma ? "Retardo\tCoeficiente\tDes.T.\n" : "Retardo\tCoeficiente\n";
    for (int k = 1; k <= RetardosMostrados(); ++k) {
        t += std::to_string(k) + "\t" + NumeroExacto(a.coeficientes[k]);
        if (arma) t += "\t" + NumeroExacto(a.desviaciones[k]);
        t += "\n";
    }
    return t;
}

int AbrirGraficoAutocorrelacion(Ventana *ventana) {
    const EstadoAutocorrelacion &a = Autocorrelacion;
    Grafico g = GraficoNuevo(GraficoAutocorrelacion, a.observaciones);
    g.tituloVentana = TituloAutocorrelacion(a.funcion);
    DatosAutocorrelacion &d = g.autocorrelacion;
    d.coeficientes.assign(std::begin(a.coeficientes), std::end(a.coeficientes));
    d.desviaciones.assign(std::begin(a.desviaciones), std::end(a.desviaciones));
    d.retardos = a.retardos;
    d.observaciones = a.observaciones;
    d.bandaUniforme = a.bandaUniforme;
    d.tipoBanda = a.tipoBanda; // both enumerations have the numbers of the dialog
    d.marcas = a.marcas;
    d.conTitulo = a.conTitulo;
    d.tituloAbajo = a.tituloAbajo;
    d.titulo = a.titulo;
    d.parcial = a.funcion == FuncionEstimada ? 0 : 1;
    AbrirVentanaGrafico(ventana, g);
    return 1;
}
