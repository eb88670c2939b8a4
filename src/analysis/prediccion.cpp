// Predictions from the last regression.
#include "analysis/prediccion.h"

#include "analysis/informe_prediccion.h"
#include "analysis/serie_destino.h"
#include "estimation/regresion.h"
#include "language/traza.h"
#include "platform/campos_texto.h"
#include "platform/numeros.h"
#include "platform/primitivas_matriz.h"
#include "platform/texto.h"
#include "store/periodos.h"

#include <algorithm>
#include <cmath>
#include <vector>

EstadoPrediccion Prediccion;

namespace {

constexpr int UltimaFila = MaxObservaciones - 1;

// What one prediction works with.
struct Trabajo {
    Ventana *ventana;
    int pred, dtm, dti;          // slots of the three series
    std::vector<int> regresores; // slots; -1 stands for a term of value 1
    int dependiente;             // slot
};

double Valor(int fila, int serie) {
    return ArchivoTrabajo.ValoresObs[fila][serie];
}

// ----- Range and names

// The first row whose text is that of the field, or reads as the same number; -1 for none. A blank text of either side
// matches nothing.
int FilaDePeriodo(std::string_view campo) {
    const std::string_view buscado = Recortado(campo.substr(0, AnchoPeriodoPrediccion));
    if (buscado.empty()) return -1;
    const double numero = LeerDecimal(buscado);
    for (int i = 0; i < MaxObservaciones; ++i) {
        const std::string_view texto = TextoPeriodo(i);
        if (!texto.empty() && (texto == buscado || ArchivoTrabajo.ValoresPeriodo[i] == numero)) return i;
    }
    return -1;
}

void PonerRango(const ValoresPrediccion &valores) {
    Prediccion.inicioPred = std::clamp(UltimaRegresion.PrimeraObsRegresion, 0, UltimaFila);
    Prediccion.finPred = std::clamp(UltimaRegresion.UltimaObsRegresion, 0, UltimaFila);
    if (const int fila = FilaDePeriodo(valores.inicio); fila >= 0) Prediccion.inicioPred = fila;
    if (const int fila = FilaDePeriodo(valores.fin); fila >= 0) Prediccion.finPred = fila;
}

void PonerNombres(const ValoresPrediccion &valores) {
    const auto poner = [](Codigo codigo, const std::string &texto, const char *porDefecto) {
        PonerCampo(codigo, CodigoDestino(texto, AnchoCodigoPrediccion, porDefecto), AnchoCodigo);
    };
    const ValoresPrediccion iniciales;
    poner(Prediccion.codigoPred, valores.codigoPred, iniciales.codigoPred.c_str());
    poner(Prediccion.codigoDtm, valores.codigoDtm, iniciales.codigoDtm.c_str());
    poner(Prediccion.codigoDti, valores.codigoDti, iniciales.codigoDti.c_str());
    Prediccion.modoEvaluacion = valores.modo;
}

// The elements of a matrix of the last regression; null when it is gone, or another one bears its name.
const double *Matriz(const char *codigo, int elementos) {
    const int m = BuscarMatriz(codigo);
    if (m < 0 || TablaMatrices.registro[m].Filas * TablaMatrices.registro[m].Columnas != elementos)
        return nullptr;
    return FijarMatriz(m) ? TablaMatrices.registro[m].Datos : nullptr;
}

int TomarSeries(Trabajo &t) {
    const std::pair<int *, const char *> destinos[] = {
        {&t.pred, Prediccion.codigoPred}, {&t.dtm, Prediccion.codigoDtm}, {&t.dti, Prediccion.codigoDti}};
    for (const auto &[serie, codigo] : destinos) {
        std::string motivo;
        *serie = SerieDestino(Recortado(codigo), motivo);
        if (*serie < 0) return MensajePunto(t.ventana, motivo, 1);
        // The last slot of the table can be taken, but not used.
        if (ArchivoTrabajo.NumSeries > TopeSeries + 1)
            return MensajePunto(t.ventana, "Borre algunas series", 1);
    }
    return 1;
}

// A name that is no series is a term of value 1: the constant, and whatever the equation wrote as a lag or a formula.
void BuscarRegresores(Trabajo &t) {
    for (const std::string &codigo : UltimaRegresion.CodigosRegresores)
        t.regresores.push_back(BuscarSerie(codigo));
}

double Regresor(const Trabajo &t, std::size_t i, int fila) {
    return t.regresores[i] >= 0 ? Valor(fila, t.regresores[i]) : 1.0;
}

// ----- Prediction

void Predecir(const Trabajo &t, const double *beta) {
    for (int fila = Prediccion.inicioPred; fila <= Prediccion.finPred; ++fila) {
        double suma = 0.0;
        for (std::size_t i = 0; i < t.regresores.size(); ++i) suma += beta[i] * Regresor(t, i, fila);
        PonerObservacion(fila, t.pred, suma, 1);
    }
}

// Share of the residuals' variance in the deviation of an individual value; 0 without degrees of freedom.
int VarianzaResidual(const Trabajo &t, double &varianza) {
    const int e = BuscarEscalar("_SCR");
    if (e < 0) return MensajeCancelado(t.ventana, "Realice una regresión"_w);
    const int n = UltimaRegresion.UltimaObsRegresion - UltimaRegresion.PrimeraObsRegresion + 1;
    const int libertad = n - static_cast<int>(t.regresores.size());
    varianza = libertad != 0 ? TablaEscalares.registro[e].Valor / libertad : 0.0;
    return 1;
}

// A variance that rounding takes below zero counts as none.
double Desviacion(double varianza) {
    return varianza > 0.0 ? std::sqrt(varianza) : 0.0;
}

void CalcularDesviaciones(const Trabajo &t, const double *covarianza, double residual) {
    const std::size_t k = t.regresores.size();
    const int K = static_cast<int>(k);
    std::vector<double> c(k), producto(k);
    for (int fila = Prediccion.inicioPred; fila <= Prediccion.finPred; ++fila) {
        for (std::size_t i = 0; i < k; ++i) c[i] = Regresor(t, i, fila);
        double s = 0.0;
        MultiplicarMatrices(c.data(), covarianza, 1, K, K, producto.data());
        MultiplicarMatrices(producto.data(), c.data(), 1, K, 1, &s);
        PonerObservacion(fila, t.dtm, Desviacion(s), 1);
        PonerObservacion(fila, t.dti, Desviacion(residual + s), 1);
    }
}

// ----- The trace. x(t) are the regressors of a row as a column, a term that is no series with the value 1; pred and obs what
// was predicted and observed, as the mode compares them.

FilasTraza FilasDePrediccion() {
    return {Prediccion.inicioPred, Prediccion.finPred};
}

void TrazarPredicha(const Trabajo &t, const char *codigo, const std::string &formula,
                    const char *explicacion) {
    if (!Trazando()) return;
    std::string con = " con x(t) = {";
    for (std::size_t i = 0; i < t.regresores.size(); ++i)
        con.append(i > 0 ? " " : "")
            .append(t.regresores[i] >= 0 ? UltimaRegresion.CodigosRegresores[i] : "1");
    TrazarSerie(Recortado(codigo), ConPeriodos(formula + con + "}", FilasDePrediccion()), explicacion,
                FilasDePrediccion());
}

// The columns that are compared.
void TrazarColumnas() {
    if (!Trazando()) return;
    const FilasTraza filas = FilasDePrediccion();
    const std::string p(Recortado(Prediccion.codigoPred)), a(Recortado(UltimaRegresion.CodigoDependiente));
    const auto columna = [&](const char *nombre, const std::string &valor, const double *valores,
                             const char *originales, const char *tasas, const char *incrementos) {
        const std::string anterior = a + "(t-1)", incremento = valor + "(t) - " + anterior;
        switch (Prediccion.modoEvaluacion) {
        case EvaluarTasas:
            return TrazarColumna(nombre, ConPeriodos("(" + incremento + ") / " + anterior, filas), tasas,
                                 filas, valores);
        case EvaluarIncrementos:
            return TrazarColumna(nombre, ConPeriodos(incremento, filas), incrementos, filas, valores);
        default: return TrazarColumna(nombre, ConPeriodos(valor + "(t)", filas), originales, filas, valores);
        }
    };
    columna("pred", p, Prediccion.prediccionEval + filas.primera, "Lo predicho: los valores",
            "Lo predicho: la tasa sobre el valor anterior observado; 0 si este es 0",
            "Lo predicho: el incremento sobre el valor anterior observado");
    columna("obs", a, Prediccion.observacionEval + filas.primera, "Lo observado: los valores",
            "Lo observado: la tasa sobre el valor anterior; 0 si este es 0",
            "Lo observado: el incremento sobre el valor anterior");
}

void TrazarMedidas(const MedidasPrediccion &m) {
    if (!Trazando()) return;
    const FilasTraza filas = FilasDePrediccion();
    const int n = filas.ultima - filas.primera + 1;
    const auto medida = [&](const char *nombre, const std::string &formula, double valor,
                            const char *explicacion) {
        TrazarEscalar(nombre, formula, valor, explicacion, filas);
    };
    // The means and deviations that the measures are made of.
    const double *p = Prediccion.prediccionEval + filas.primera,
                 *a = Prediccion.observacionEval + filas.primera;
    const auto suma = [&](const double *x, double centro, int orden) {
        double s = 0.0;
        for (int i = 0; i < n; ++i) s += orden == 1 ? x[i] : (x[i] - centro) * (x[i] - centro);
        return s;
    };
    const double mp = suma(p, 0.0, 1) / n, ma = suma(a, 0.0, 1) / n;
    medida("mp", ConPeriodos(Formatear("suma de pred(t) / %d", n), filas), mp, "Media de lo predicho");
    medida("ma", ConPeriodos(Formatear("suma de obs(t) / %d", n), filas), ma, "Media de lo observado");
    medida("sp", ConPeriodos(Formatear("RCUAD(suma de (pred(t) - mp)^2 / %d)", n), filas),
           std::sqrt(suma(p, mp, 2) / n), "Desviación típica de lo predicho"_w);
    medida("sa", ConPeriodos(Formatear("RCUAD(suma de (obs(t) - ma)^2 / %d)", n), filas),
           std::sqrt(suma(a, ma, 2) / n), "Desviación típica de lo observado"_w);
    medida("eam", ConPeriodos(Formatear("suma de |pred(t) - obs(t)| / %d", n), filas), m.EAM,
           "Error absoluto medio");
    medida("ecm", ConPeriodos(Formatear("suma de (pred(t) - obs(t))^2 / %d", n), filas), m.ECM,
           "Error cuadrático medio"_w);
    medida("correlacion",
           ConPeriodos("suma de (obs(t) - ma) (pred(t) - mp) / RCUAD(suma de (pred(t) - mp)^2 * suma de "
                       "(obs(t) - ma)^2)",
                       filas),
           m.COP, "Coeficiente de correlación entre predicción y observación"_w);
    medida("theil", ConPeriodos(Formatear("RCUAD(ecm) / RCUAD(suma de obs(t)^2 / %d)", n), filas), m.Theil,
           "Índice de Theil"_w);
    medida("sesgo", "(mp - ma)^2 / ecm", m.sesgo, "Componente de sesgo del error");
    medida("varianza", "(sp - sa)^2 / ecm", m.varianza, "Componente de varianza del error");
    medida("aleatorio", "1 - sesgo - varianza", m.aleatorio, "Componente aleatorio del error");
}

// ----- The prediction

int PredecirTodo(Trabajo &t) {
    const int K = static_cast<int>(UltimaRegresion.CodigosRegresores.size());
    const double *beta = Matriz("_BETA", K);
    if (beta == nullptr) return MensajePunto(t.ventana, "No existe la matriz Beta", 1);
    if (TomarSeries(t) == 0) return 0;
    BuscarRegresores(t);
    for (const int serie : {t.pred, t.dtm, t.dti})
        VaciarSerieDestino(serie, Prediccion.inicioPred, Prediccion.finPred);
    Predecir(t, beta);
    TrazarPredicha(t, Prediccion.codigoPred, "x(t)' _BETA", "Predicción: regresores por coeficientes"_w);
    const double *covarianza = Matriz("_COV", K * K);
    if (covarianza == nullptr) return MensajePunto(t.ventana, "No existe la matriz de covarianza", 1);
    double residual = 0.0;
    if (VarianzaResidual(t, residual) == 0) return 0;
    CalcularDesviaciones(t, covarianza, residual);
    if (Trazando())
        TrazarEscalar("residual",
                      Formatear("_SCR / (%d - %d)",
                                UltimaRegresion.UltimaObsRegresion - UltimaRegresion.PrimeraObsRegresion + 1,
                                K),
                      residual, "Varianza de los residuos");
    TrazarPredicha(t, Prediccion.codigoDtm, "RCUAD(x(t)' _COV x(t))", "Desviación típica del valor medio"_w);
    TrazarPredicha(t, Prediccion.codigoDti, "RCUAD(residual + x(t)' _COV x(t))",
                   "Desviación típica del valor individual"_w);
    return 1;
}

// ----- Evaluation

// Both columns, all rows, and the range that the dependent variable has values in.
int PrepararColumnas(Trabajo &t) {
    EstadoPrediccion &p = Prediccion;
    t.dependiente = BuscarSerie(UltimaRegresion.CodigoDependiente);
    if (t.dependiente < 0) return MensajePunto(t.ventana, "Se ha borrado la variable dependiente", 1);
    // Room for two more series is asked for, though the columns don't stand in the table.
    if (ArchivoTrabajo.NumSeries + 2 > TopeSeries + 1)
        return MensajePunto(t.ventana, "Borre algunas series", 1);
    for (int i = 0; i < MaxObservaciones; ++i) {
        p.prediccionEval[i] = Valor(i, t.pred);
        p.observacionEval[i] = Valor(i, t.dependiente);
    }
    const auto falta = [&](int fila) { return ArchivoTrabajo.PresenciaObs[fila][t.dependiente] != 1; };
    while (p.inicioPred < p.finPred && falta(p.inicioPred)) ++p.inicioPred;
    while (p.inicioPred < p.finPred && falta(p.finPred)) --p.finPred;
    if (p.finPred <= p.inicioPred) return MensajePunto(t.ventana, "Muestra no válida"_w, 11);
    return 1;
}

// Rates or increments over the observation of the row before. A rate over nothing is 0.
int CompararConAnterior(const Trabajo &t) {
    EstadoPrediccion &p = Prediccion;
    const bool tasas = p.modoEvaluacion == EvaluarTasas;
    const int primera = std::clamp(UltimaRegresion.PrimeraObsRegresion, 0, UltimaFila);
    p.prediccionEval[primera] = p.observacionEval[primera] = 0.0;
    for (int i = 1; i < MaxObservaciones; ++i) {
        const double anterior = Valor(i - 1, t.dependiente);
        const double divisor = tasas ? anterior : 1.0;
        const auto variacion = [&](double valor) {
            return divisor != 0.0 ? (valor - anterior) / divisor : 0.0;
        };
        p.prediccionEval[i] = variacion(Valor(i, t.pred));
        p.observacionEval[i] = variacion(Valor(i, t.dependiente));
    }
    if (p.inicioPred > 0) return 1;
    p.inicioPred = 1;
    return p.finPred < 2 ? MensajePunto(t.ventana, "Muestra no válida"_w, 1) : 1;
}

int Evaluar(Trabajo &t) {
    EstadoPrediccion &p = Prediccion;
    if (PrepararColumnas(t) == 0) return 0;
    if (p.modoEvaluacion != EvaluarOriginales && CompararConAnterior(t) == 0) return 0;
    const std::size_t m = static_cast<std::size_t>(p.finPred - p.inicioPred) + 1;
    p.medidas = MedirPrediccion({p.prediccionEval + p.inicioPred, m}, {p.observacionEval + p.inicioPred, m});
    p.evaluada = true;
    TrazarColumnas();
    TrazarMedidas(p.medidas);
    return 1;
}

} // namespace

MedidasPrediccion MedirPrediccion(std::span<const double> p, std::span<const double> a) {
    const double m = static_cast<double>(p.size());
    MedidasPrediccion r = {};
    double sumaP = 0.0, sumaA = 0.0, cuadradosA = 0.0;
    for (std::size_t i = 0; i < p.size(); ++i) {
        r.EAM += std::fabs(p[i] - a[i]);
        r.ECM += (p[i] - a[i]) * (p[i] - a[i]);
        sumaP += p[i];
        sumaA += a[i];
        cuadradosA += a[i] * a[i];
    }
    r.EAM /= m;
    r.ECM /= m;
    const double mediaP = sumaP / m, mediaA = sumaA / m;
    double Sap = 0.0, Sp = 0.0, Sa = 0.0;
    for (std::size_t i = 0; i < p.size(); ++i) {
        Sap += (a[i] - mediaA) * (p[i] - mediaP);
        Sp += (p[i] - mediaP) * (p[i] - mediaP);
        Sa += (a[i] - mediaA) * (a[i] - mediaA);
    }
    if (Sp * Sa > 0.0) r.COP = Sap / std::sqrt(Sp * Sa);
    if (cuadradosA / m > 0.0) r.Theil = std::sqrt(r.ECM) / std::sqrt(cuadradosA / m);
    if (r.ECM != 0.0) {
        const double sp = std::sqrt(Sp / m), sa = std::sqrt(Sa / m);
        r.sesgo = (mediaP - mediaA) * (mediaP - mediaA) / r.ECM;
        r.varianza = (sp - sa) * (sp - sa) / r.ECM;
    }
    r.aleatorio = 1.0 - r.sesgo - r.varianza;
    return r;
}

int EmpezarPrediccion(Ventana *ventana) {
    return UltimaRegresion.NumRegresores < 1 ? MensajeCancelado(ventana, "Realice una regresión"_w) : 1;
}

int AceptarPrediccion(Ventana *ventana, const ValoresPrediccion &valores) {
    Prediccion.evaluada = false;
    PonerRango(valores);
    PonerNombres(valores);
    Trabajo t = {ventana, -1, -1, -1, {}, -1};
    const int grupo = EmpezarComando(Recortado(UltimaRegresion.CodigoDependiente),
                                     "Predicción y evaluación de la capacidad predictiva"_w);
    const bool bien = PredecirTodo(t) != 0 && Evaluar(t) != 0;
    RefrescarEditor();
    if (bien) MostrarPrediccion(ventana);
    return TerminarComando(grupo, bien ? 1 : 0);
}
