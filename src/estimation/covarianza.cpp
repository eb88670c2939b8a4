// Sandwiches: the sums of weighted cross products between two inverses, and the Wald statistic that follows.
//
// The sums are defined as chains of formulas, two for each observation, and each observation and lag: the weight goes
// into the text of "_S5 := w * (_S2*_S3)" with ten decimals, and "_S0 + _S5" follows. Here they are added in place, every
// element in the order of the chain and with the weight as its text reads, so that the results are the same to the last
// bit. What can fail in the chain, a weight that is no number, runs as its formula.
#include "estimation/covarianza.h"

#include "estimation/tabla_pasos.h"
#include "platform/numeros.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

// What the sums run over: N rows of k elements and the residuals of the same observations.
struct Datos {
    const double *X;
    std::vector<double> residuos;
    int n, k;
};

int EjecutarSinPuntos(Estimacion &e, std::span<const PasoCadena> pasos,
                      std::span<const DatoCadena> datos = {}) {
    Cadena c = CadenaDe(e, datos);
    c.mensajes = &MensajesDelEvaluador;
    if (EjecutarCadena(c, pasos) == 1) return 1;
    e.seQuedan = true;
    return 0;
}

int Guardar(Estimacion &e, std::string_view matriz, const double *datos, int filas, int columnas) {
    if (GuardarMatriz(matriz, datos, filas, columnas) == MatrizGuardada) return 1;
    return MensajePunto(e.ventana, SecuenciaNoValida, 6528);
}

// A row of the data as a column and as a row.
int GuardarFila(Estimacion &e, const char *columna, const char *fila, const double *x, int k) {
    return Guardar(e, columna, x, k, 1) == 1 ? Guardar(e, fila, x, 1, k) : 0;
}

// ----- The sums

// Element (a, b) of w x z' + w z x', or of w x x' where x and z are one row. A product is a sum that began with zero.
double Termino(const double *x, const double *z, double w, int a, int b) {
    if (x == z) return w * (0.0 + x[a] * x[b]);
    return w * ((0.0 + x[a] * z[b]) + (0.0 + z[a] * x[b]));
}

// Adds a term on to the upper half of `suma`; it is symmetric to the last bit.
void SumarTermino(const double *__restrict x, double w, int k, double *__restrict suma) {
    for (int a = 0; a < k; ++a)
        for (int b = a; b < k; ++b) suma[a * k + b] += w * (0.0 + x[a] * x[b]);
}
void SumarTermino(const double *__restrict x, const double *__restrict z, double w, int k,
                  double *__restrict suma) {
    for (int a = 0; a < k; ++a)
        for (int b = a; b < k; ++b) suma[a * k + b] += w * ((0.0 + x[a] * z[b]) + (0.0 + z[a] * x[b]));
}

void LlenarMitadInferior(double *m, int k) {
    for (int a = 0; a < k; ++a)
        for (int b = 0; b < a; ++b) m[a * k + b] = m[b * k + a];
}

std::vector<double> MatrizDeTermino(const Datos &d, int t, int retardo, double w) {
    std::vector<double> m;
    for (int a = 0; a < d.k; ++a)
        for (int b = 0; b < d.k; ++b) m.push_back(Termino(d.X + t * d.k, d.X + (t - retardo) * d.k, w, a, b));
    return m;
}

// Leaves the matrices of the observation t as the chain does when it comes to its formulas.
int PonerObservacionDelTermino(Estimacion &e, const Datos &d, int t, int retardo) {
    const double *x = d.X + t * d.k, *z = d.X + (t - retardo) * d.k;
    if (retardo == 0) return GuardarFila(e, "_S2", "_S3", x, d.k);
    return GuardarFila(e, "_S2", "_TMS3", x, d.k) == 1 ? GuardarFila(e, "_TMS2", "_S3", z, d.k) : 0;
}

// The trace of a sum. x(t) is a row of the data as a column, e(t) its residual; the weights have ten decimals, as told.
void TrazarCentro(int retardo, const char *destino) {
    if (!Trazando()) return;
    FilasTraza filas = FilasDeRegresion();
    filas.primera += retardo;
    const double n = UltimaRegresion.RetardosCovarianza + 1.0; // the lags can be as many as an int holds
    if (retardo == 0)
        TrazarMatriz(
            destino, ConPeriodos("suma de e(t)^2 x(t) x(t)'", filas),
            "Productos de los regresores, ponderados por los cuadrados de los residuos, con diez decimales",
            filas, "_XIND _RES");
    else
        TrazarMatriz(
            destino,
            ConPeriodos(Formatear("suma de (1 - %d/%.0f) e(t) e(t-%d) (x(t) x(t-%d)' + x(t-%d) x(t)')",
                                  retardo, n, retardo, retardo, retardo),
                        filas),
            Formatear("Productos cruzados a distancia %d, ponderados por los residuos, con diez decimales",
                      retardo),
            filas, "_XIND _RES");
}

// The matrix `destino` := the sum over t from `retardo` on of w(t) = e(t) e(t - retardo) factor times the products of the
// two rows. Without such a t nothing is stored.
int SumarCentro(Estimacion &e, const Datos &d, int retardo, double factor, const char *destino) {
    if (retardo >= d.n) return 1;
    std::vector<double> suma;
    double w = 0.0;
    for (int t = retardo; t < d.n; ++t) {
        const std::size_t i = static_cast<std::size_t>(t);
        w = d.residuos[i] * d.residuos[i - static_cast<std::size_t>(retardo)] * factor;
        if (!std::isfinite(w)) {
            const DatoCadena datos[] = {DatoNumero("peso", w)};
            if (PonerObservacionDelTermino(e, d, t, retardo) == 0) return 0;
            return retardo == 0 ? EjecutarSinPuntos(e, PasosTermino, datos)
                                : EjecutarSinPuntos(e, PasosTerminoRetardado, datos);
        }
        w = EnDiezDecimales(w);
        if (t == retardo)
            suma = MatrizDeTermino(d, t, retardo, w);
        else if (retardo == 0)
            SumarTermino(d.X + t * d.k, w, d.k, suma.data());
        else
            SumarTermino(d.X + t * d.k, d.X + (t - retardo) * d.k, w, d.k, suma.data());
    }
    LlenarMitadInferior(suma.data(), d.k);
    const std::vector<double> ultimo = MatrizDeTermino(d, d.n - 1, retardo, w);
    if (PonerObservacionDelTermino(e, d, d.n - 1, retardo) == 0) return 0;
    if (Guardar(e, "_S5", ultimo.data(), d.k, d.k) == 0 || Guardar(e, destino, suma.data(), d.k, d.k) == 0)
        return 0;
    TrazarCentro(retardo, destino);
    return 1;
}

// _S0 and _S9. The second is X'X once more, which the regression has in the same order of its sums.
int SumarSinRetardo(Estimacion &e, const Datos &d) {
    if (SumarCentro(e, d, 0, 1.0, "_S0") == 0) return 0;
    const double *momentos = ElementosDe("_TMF5");
    const double *ultima = d.X + (d.n - 1) * d.k;
    if (momentos == nullptr) return MensajePunto(e.ventana, SecuenciaNoValida, 6528);
    if (GuardarFila(e, "_TMS2", "_TMS3", ultima, d.k) == 0 || Guardar(e, "_S9", momentos, d.k, d.k) == 0)
        return 0;
    if (Trazando())
        TrazarMatriz("_S9", ConPeriodos("suma de x(t) x(t)'", FilasDeRegresion()),
                     "Productos cruzados de los regresores: X'X", FilasDeRegresion(), "_XIND");
    return 1;
}

// `veces` additions of c to s, one after the other. From one power of two to the next every addition of the same number
// moves the sum by the same amount, once two in a row did: those are made at once, for a number of lags that nobody waits for.
double SumarVeces(double s, double c, int veces) {
    while (veces > 0) {
        const double una = s + c, otra = una + c;
        const double paso = una - s;
        if (paso == 0.0 || !std::isfinite(una)) return una;
        if (veces < 16 || otra - una != paso || std::ilogb(otra) != std::ilogb(s) ||
            (s < 0.0) != (otra < 0.0)) {
            s = una;
            --veces;
            continue;
        }
        // How many steps stay within the power of two.
        const double borde = std::ldexp(1.0, std::ilogb(s) + ((s < 0.0) == (c < 0.0) ? 1 : 0));
        const double quedan = std::floor(std::fabs(borde - std::fabs(s)) / std::fabs(paso)) - 1.0;
        const double saltos = std::clamp(quedan, 1.0, static_cast<double>(veces));
        s = std::fma(saltos, paso, s);
        veces -= static_cast<int>(saltos);
    }
    return s;
}

// _S7, the sum over the lags. A lag that no two observations have leaves _S8 as it was, and it is added once more.
int SumarRetardos(Estimacion &e, const Datos &d) {
    const int n = UltimaRegresion.RetardosCovarianza;
    const std::size_t elementos = static_cast<std::size_t>(d.k) * static_cast<std::size_t>(d.k);
    std::vector<double> suma;
    int retardo = 1;
    for (; retardo <= std::min(n, d.n - 1); ++retardo) {
        const double factor = 1.0 - retardo / (n + 1.0);
        if (SumarCentro(e, d, retardo, factor, "_S8") == 0) return 0;
        const double *termino = ElementosDe("_S8");
        if (retardo == 1) suma.assign(elementos, 0.0);
        for (std::size_t i = 0; i < elementos; ++i)
            suma[i] = retardo == 1 ? termino[i] : suma[i] + termino[i];
        SoltarMatriz(BuscarMatriz("_S8"));
    }
    if (suma.empty()) return EjecutarSinPuntos(e, PasosSumaVacia);
    const double *ultimo = ElementosDe("_S8");
    for (std::size_t i = 0; retardo <= n && i < elementos; ++i)
        suma[i] = SumarVeces(suma[i], ultimo[i], n - retardo + 1);
    if (Guardar(e, "_S7", suma.data(), d.k, d.k) == 0) return 0;
    if (Trazando())
        TrazarMatriz("_S7", Formatear("suma de _S8, retardos 1 a %d", n),
                     "Suma de los productos cruzados de todos los retardos");
    return 1;
}

// ----- The Wald statistic

// Takes the row p, and the column p of a square matrix, out of it. Behind its end only the size falls.
void QuitarPosicion(const char *nombre, int p, bool cuadrada) {
    double *datos = ElementosDe(nombre);
    RegistroMatriz &m = TablaMatrices.registro[BuscarMatriz(nombre)];
    if (m.Filas == 0) return;
    int destino = 0;
    const int fila = std::min<int>(p, m.Filas - 1);
    for (int i = 0; i < m.Filas; ++i)
        for (int j = 0; j < m.Columnas; ++j)
            if (i != fila && !(cuadrada && j == fila)) datos[destino++] = datos[i * m.Columnas + j];
    --m.Filas;
    if (cuadrada) --m.Columnas;
}

int EstadisticoWald(Estimacion &e) {
    if (EjecutarSinPuntos(e, PasosCopiasWald) == 0) return 0;
    // The places are those of the whole list while the matrices shrink: a second constant takes out the one behind it.
    std::string quitadas;
    for (int p = 0; p < static_cast<int>(e.textos.size()); ++p) {
        if (LeerDecimal(e.textos[static_cast<std::size_t>(p)]) <= 0.0) continue;
        quitadas += Formatear(quitadas.empty() ? ": %d" : ", luego %d", p + 1);
        QuitarPosicion("_S0", p, false);
        QuitarPosicion("_S8", p, true);
    }
    SoltarMatriz(BuscarMatriz("_S0"));
    SoltarMatriz(BuscarMatriz("_S8"));
    if (Trazando()) {
        TrazarMatriz("_S0", "_S0 sin las constantes" + quitadas,
                     "Coeficientes que se contrastan: sin la fila de cada constante");
        TrazarMatriz("_S8", "_S8 sin las constantes" + quitadas,
                     "Matriz de covarianzas de los coeficientes que se contrastan: sin la fila y la columna "
                     "de cada constante");
    }
    // With nothing but constants there is nothing to test, and no inverse.
    const double nada = 0.0;
    if (TablaMatrices.registro[BuscarMatriz("_S0")].Filas == 0) return Guardar(e, "_S3", &nada, 1, 1);
    if (EjecutarSinPuntos(e, PasosFilaWald) == 0) return 0;
    RegistroMatriz &fila = TablaMatrices.registro[BuscarMatriz("_S2")];
    std::swap(fila.Filas, fila.Columnas);
    if (Trazando()) TrazarMatriz("_S2", "_S2'", "Coeficientes que se contrastan, en fila");
    const DatoCadena datos[] = {DatoNumero("d", std::max(e.regresores - 1, 1))};
    return EjecutarSinPuntos(e, PasosFormaWald, datos);
}

} // namespace

int CovarianzaConsistente(Estimacion &e) {
    const int serie = BuscarSerie("_RES");
    if (serie < 0) return MensajePunto(e.ventana, SecuenciaNoValida, 6528);
    if (EjecutarSinPuntos(e, PasosConsistente) == 0) return 0;
    Datos d{ElementosDe("_XIND"), {}, e.observaciones, e.regresores};
    for (int t = 0; t < d.n; ++t)
        d.residuos.push_back(ArchivoTrabajo.ValoresObs[Muestra.InicioRegresion + t][serie]);
    if (SumarSinRetardo(e, d) == 0) return 0;
    const DatoCadena datos[] = {DatoNumero("n", d.n)};
    std::span<const PasoCadena> formula = PasosHeterocedasticidad;
    if (UltimaRegresion.TipoCovarianza == CovarianzaAutocorrelacion) {
        formula = UltimaRegresion.RetardosCovarianza < 1 ? std::span<const PasoCadena>(PasosSinRetardos)
                                                         : std::span<const PasoCadena>(PasosAutocorrelacion);
        if (UltimaRegresion.RetardosCovarianza >= 1 && SumarRetardos(e, d) == 0) return 0;
    }
    return EjecutarSinPuntos(e, formula, datos) == 1 ? EstadisticoWald(e) : 0;
}
