// Transformations of a series.
#include "analysis/transformaciones.h"

#include "analysis/serie_destino.h"
#include "language/traza.h"
#include "platform/campos_texto.h"
#include "platform/diferencias_autocorrelacion.h"
#include "platform/numeros.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

constexpr int MinimoObservaciones = 3;

// What is to be done, read from the fields. What isn't checked is 0.
struct Transformacion {
    bool boxCox;
    int lambda;
    int ordenEstacional, ordenNoEstacional;
    int periodo; // observations of a year
};

// ----- Reading the dialog

// An order of differences: 0 unless it is checked. False after its message.
bool LeerOrden(Ventana *ventana, bool marcada, const std::string &campo, int &orden) {
    orden = marcada ? LeerEntero(campo) : 0;
    return !marcada || orden >= 1 || MensajeAviso(ventana, "Elija un valor mayor de cero") != 0;
}

int LeerTransformacion(Ventana *ventana, const ValoresTransformacion &v, Transformacion &t) {
    if (v.serie.empty()) return MensajeAviso(ventana, "Escoja una serie");
    if (!v.boxCox && !v.estacionales && !v.noEstacionales)
        return MensajeAviso(ventana, "Seleccione una transformación"_w);
    const int tipo = ArchivoTrabajo.TipoDatos;
    if (v.estacionales && (tipo == TipoSinPeriodicidad || tipo == TipoAnual))
        return MensajeAviso(ventana, "Tipos de datos no estacionales");
    t.periodo = tipo == TipoTrimestral ? 4 : 12;
    t.boxCox = v.boxCox;
    // Two characters hold whole exponents only; 0 stands for the logarithm.
    t.lambda = v.boxCox ? LeerEntero(v.lambda.substr(0, AnchoLambda)) : 0;
    if (t.lambda == 1 || t.lambda == -1) return MensajeAviso(ventana, "Elija valor");
    return LeerOrden(ventana, v.estacionales, v.ordenEstacional, t.ordenEstacional) &&
                   LeerOrden(ventana, v.noEstacionales, v.ordenNoEstacional, t.ordenNoEstacional)
               ? 1
               : 0;
}

// ----- The steps, on the values of the sample

// Values that the differences take.
long long Perdidas(const Transformacion &t) {
    return static_cast<long long>(t.ordenEstacional) * t.periodo + t.ordenNoEstacional;
}

void Diferenciar(std::vector<double> &x, int noEstacional, int estacional, int periodo) {
    int quedan = 0, fallo = 0;
    G13AAF(x.data(), static_cast<int>(x.size()), noEstacional, estacional, periodo, x.data(), quedan, fallo);
    x.resize(static_cast<std::size_t>(quedan));
}

// The exponent is one less than the textbooks', on purpose: results of this program are compared with each other.
double BoxCox(double x, int lambda) {
    const double y = lambda == 0 ? std::log(x) : std::pow(x, lambda - 1) / lambda;
    return std::isfinite(y) ? y : 0.0;
}

// Value i is judged by row i of the file, though it is that of the i-th row of the sample: where the sample doesn't begin
// with the file, it is another value whose sign decides.
void AplicarBoxCox(std::vector<double> &x, int lambda, const std::vector<double> &desdeElPrincipio) {
    for (std::size_t i = 0; i < x.size(); ++i) x[i] = desdeElPrincipio[i] < 0.0 ? 0.0 : BoxCox(x[i], lambda);
}

std::vector<double> Valores(int serie, int primera, std::size_t cuantos) {
    std::vector<double> x;
    for (int i = primera; x.size() < cuantos; ++i) x.push_back(ArchivoTrabajo.ValoresObs[i][serie]);
    return x;
}

void Guardar(int serie, int primera, const std::vector<double> &x) {
    VaciarSerieDestino(serie, primera, primera + static_cast<int>(x.size()) - 1);
    for (std::size_t i = 0; i < x.size(); ++i)
        PonerObservacion(primera + static_cast<int>(i), serie, x[i], 1);
}

} // namespace

namespace {

// What was done to the series, in its order, as one step.
void TrazarTransformacion(const Transformacion &t, std::string_view serie, int destino) {
    std::string x(Recortado(serie));
    x += "(t)";
    if (t.ordenEstacional > 0) x = Formatear("(1 - B^%d)^%d ", t.periodo, t.ordenEstacional) + x;
    if (t.ordenNoEstacional > 0) x = Formatear("(1 - B)^%d ", t.ordenNoEstacional) + x;
    if (t.boxCox && t.lambda == 0) x = "LN(" + x + ")";
    if (t.boxCox && t.lambda != 0) x = "(" + x + Formatear(")^(%d-1) / %d", t.lambda, t.lambda);
    TrazarSerie(Recortado(ArchivoTrabajo.Codigos[destino]), x,
                "Serie transformada; B es el retardo de un período"_w);
}

int Transformar(Ventana *ventana, const ValoresTransformacion &valores) {
    Transformacion t = {};
    if (LeerTransformacion(ventana, valores, t) == 0) return 0;
    const FilasDeMuestra filas = FilasDelArchivo(Muestra.InicioMuestra, Muestra.FinMuestra);
    const int n = std::clamp(filas.fin - filas.inicio + 1, 0, MaxMuestraTransformada);
    const int origen = BuscarSerie(valores.serie);
    if (origen < 0) return MensajeAviso(ventana, "Seleccione una serie");
    const std::size_t cuantos = static_cast<std::size_t>(n);
    std::vector<double> x = Valores(origen, filas.inicio, cuantos);
    // Read before the target is emptied, which may be the series itself.
    const std::vector<double> desdeElPrincipio = Valores(origen, 0, cuantos);
    std::string motivo;
    const int destino =
        SerieDestino(CodigoDestino(valores.codigo, AnchoCodigoTransformada, "_TRANS"), motivo);
    if (destino < 0) return MensajeAviso(ventana, motivo);
    const long long perdidas = Perdidas(t);
    // The message names the seasonal order twice, whichever differences are too many.
    if (n < MinimoObservaciones || perdidas >= n)
        return MensajeAviso(ventana, Formatear("Las diferencias deben ser mas pequeñas: %d %d"_w,
                                               t.ordenEstacional, t.ordenEstacional));
    if (t.ordenEstacional > 0) Diferenciar(x, 0, t.ordenEstacional, t.periodo);
    if (t.ordenNoEstacional > 0) Diferenciar(x, t.ordenNoEstacional, 0, 0);
    if (t.boxCox) AplicarBoxCox(x, t.lambda, desdeElPrincipio);
    Guardar(destino, filas.inicio + static_cast<int>(perdidas), x);
    if (Trazando()) TrazarTransformacion(t, valores.serie, destino);
    RefrescarEditor();
    return 1;
}

} // namespace

int AceptarTransformacion(Ventana *ventana, const ValoresTransformacion &valores) {
    const int grupo = EmpezarComando(Recortado(valores.serie), "Transformación de una serie"_w);
    return TerminarComando(grupo, Transformar(ventana, valores));
}
