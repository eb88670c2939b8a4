// A regression formula by formula.
#include "apoyo/cadena_formulas.h"

#include "apoyo/plataforma_prueba.h"
#include "language/asignaciones.h"
#include "matrix/formula_matriz.h"
#include "platform/campos_texto.h"
#include "platform/primitivas_matriz.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace {

LineasSentencia Lineas;

void Poner(const std::string &texto) {
    LimpiarEvaluador();
    Evaluador.NivelLinea = 1;
    Lineas[1] = texto;
}

bool Matriz(std::string_view destino, const std::string &texto, int filas = 0) {
    Poner(texto);
    PonerCampo(Evaluador.CodigoMatrizDestino, destino, AnchoCodigo);
    int posicion = 0;
    const int ultima = filas > 0 ? Muestra.InicioRegresion + filas - 1 : Muestra.FinRegresion;
    const int bien = EvaluarFormulaMatriz(Lineas, posicion, nullptr, Muestra.InicioRegresion, ultima);
    Evaluador.NivelLinea = 0;
    return bien == 1;
}

bool Evaluar(const std::string &texto) {
    Poner(texto);
    int posicion = 0;
    const int bien = EvaluarFormula(Lineas, posicion, Muestra.InicioRegresion, Muestra.FinRegresion);
    Evaluador.NivelLinea = 0;
    return bien == 1;
}

bool Escalar(std::string_view destino, const std::string &texto) {
    PonerCampo(Evaluador.CodigoEscalarDestino, destino, AnchoCodigo);
    return Evaluar(texto) && GuardarEscalar() == 0;
}

bool Serie(std::string_view destino, const std::string &texto) {
    PonerCampo(Evaluador.CodigoSerieDestino, destino, AnchoCodigo);
    return Evaluar(texto) && GuardarSerie() == 1;
}

bool SerieDe(std::string_view serie, std::string_view matriz) {
    return SerieDesdeMatriz(serie, "{" + std::string(matriz) + "}", 1, nullptr) == 1;
}

bool Guardar(std::string_view codigo, const std::vector<double> &datos, int filas, int columnas) {
    return GuardarMatriz(codigo, datos.data(), filas, columnas) == MatrizGuardada;
}

double Valor(std::string_view escalar) {
    return TablaEscalares.registro[BuscarEscalar(escalar)].Valor;
}

// The value of a series at row i of the range.
double EnSerie(std::string_view serie, int i) {
    return ArchivoTrabajo.ValoresObs[Muestra.InicioRegresion + i][BuscarSerie(serie)];
}

std::vector<double> Fila(const std::vector<double> &X, int k, int t) {
    return {X.begin() + t * k, X.begin() + (t + 1) * k};
}

bool Momentos(std::string_view dependiente, const std::vector<double> &X, int n, int k, bool ponderada) {
    std::vector<double> fila(static_cast<std::size_t>(k)),
        producto(static_cast<std::size_t>(k) * fila.size());
    std::vector<double> porY(fila.size());
    for (int i = 0; i < n; ++i) {
        fila.assign(X.begin() + i * k, X.begin() + (i + 1) * k);
        MultiplicarMatrices(fila.data(), fila.data(), k, 1, k, producto.data());
        if (!Guardar("_TMF2", fila, k, 1) || !Guardar("_TMF3", fila, 1, k) ||
            !Guardar("_TMF4", producto, k, k))
            return false;
        if (!Matriz("_TMF5", i == 0 ? "_TMF4" : "_TMF5 + _TMF4")) return false;
        double y = EnSerie(dependiente, i);
        if (ponderada) y *= EnSerie("_VORD", i);
        EscalarPorMatriz(fila.data(), y, k, 1, porY.data());
        if (!Guardar("_TMF4", porY, k, 1)) return false;
        if (!Matriz("_TMF6", i == 0 ? "_TMF4" : "_TMF6 + _TMF4")) return false;
    }
    return true;
}

bool Residuos(const std::vector<double> &residuos) {
    for (std::size_t i = 0; i < residuos.size(); ++i) {
        if (!Guardar("_TMF4", {residuos[i] * residuos[i]}, 1, 1)) return false;
        if (!Matriz("_SCR1", i == 0 ? "_TMF4" : "_SCR1 + _TMF4")) return false;
    }
    return true;
}

bool Ponderar(std::vector<double> &X, int n, int k) {
    int filas = 0, columnas = 0;
    std::vector<double> y = MatrizDe("_YDEP", filas, columnas);
    if (!Matriz("_S2", "{0 0 0 0}", 1)) return false;
    for (int i = 0; i < n; ++i) {
        for (int j = 0; j < k; ++j) X[static_cast<std::size_t>(i * k + j)] *= EnSerie("_VORD", i);
        y[static_cast<std::size_t>(i)] *= EnSerie("_VORD", i);
    }
    return Guardar("_S2", X, n, k) && Guardar("_YDEP", y, n, 1) && Matriz("_XIND", "_S2");
}

bool FilaYColumna(const char *columna, const char *fila, const std::vector<double> &x) {
    const int k = static_cast<int>(x.size());
    return Guardar(columna, x, k, 1) && Guardar(fila, x, 1, k);
}

// The sum over the observations for one lag, and their sum over the lags.
bool Retardos(const std::vector<double> &X, int n, int k, int retardos) {
    for (int L = 1; L <= retardos; ++L) {
        for (int t = L; t < n; ++t) {
            const double w = EnSerie("_RES", t) * EnSerie("_RES", t - L) * (1.0 - L / (retardos + 1.0));
            if (!FilaYColumna("_S2", "_TMS3", Fila(X, k, t)) ||
                !FilaYColumna("_TMS2", "_S3", Fila(X, k, t - L)))
                return false;
            if (!Matriz("_S5", Formatear(" %30.10f * ((_S2 * _S3)+(_TMS2 * _TMS3))", w))) return false;
            if (!Matriz("_S8", t == L ? "_S5" : "_S8 + _S5")) return false;
        }
        if (!Matriz("_S7", L == 1 ? "_S8" : "_S7 + _S8")) return false;
    }
    return true;
}

// The coefficients but the constants against zero; `columnas` are the regressors as typed.
bool Wald(const std::vector<std::string> &columnas, int k) {
    if (!Matriz("_S0", "_BETA") || !Matriz("_S8", "_COV")) return false;
    for (std::size_t p = 0; p < columnas.size(); ++p) {
        if (std::atof(columnas[p].c_str()) <= 0.0) continue;
        int filas = 0, una = 0;
        std::vector<double> b = MatrizDe("_S0", filas, una), v = MatrizDe("_S8", filas, filas), menor;
        const int quitada = static_cast<int>(p);
        for (int i = 0; i < filas; ++i)
            for (int j = 0; j < filas; ++j)
                if (i != quitada && j != quitada) menor.push_back(v[static_cast<std::size_t>(i * filas + j)]);
        b.erase(b.begin() + quitada);
        if (!Guardar("_S0", b, filas - 1, 1) || !Guardar("_S8", menor, filas - 1, filas - 1)) return false;
    }
    int filas = 0, una = 0;
    const std::vector<double> b = MatrizDe("_S0", filas, una);
    if (filas == 0) return Guardar("_S3", {0.0}, 1, 1);
    return Guardar("_S2", b, 1, filas) &&
           Matriz("_S3", Formatear("(_S2 * _S8$ * _S0)/%d", std::max(k - 1, 1)));
}

bool Consistente(const std::vector<double> &X, int n, int k, const std::vector<std::string> &columnas,
                 const OpcionesCadena &o) {
    for (const char *nombre : {"_S2", "_S3", "_TMS2", "_TMS3", "_S5", "_S0", "_S9", "_S8", "_S7"})
        if (!Matriz(nombre, "{0 0 0 0}", 1)) return false;
    for (int t = 0; t < n; ++t) {
        const double e = EnSerie("_RES", t);
        if (!FilaYColumna("_S2", "_S3", Fila(X, k, t))) return false;
        if (!Matriz("_S5", Formatear(" %30.10f * (_S2*_S3)", e * e))) return false;
        if (!Matriz("_S0", t == 0 ? "_S5" : "_S0 + _S5")) return false;
    }
    for (int t = 0; t < n; ++t) {
        if (!FilaYColumna("_TMS2", "_TMS3", Fila(X, k, t))) return false;
        if (!Matriz("_S9", t == 0 ? "_TMS2 * _TMS3" : "_S9 + (_TMS2 * _TMS3)")) return false;
    }
    if (o.covarianza == 3 && !Retardos(X, n, k, o.retardos)) return false;
    std::string formula = " _S9$ * _S0 * _S9$ ";
    if (o.covarianza == 3)
        formula = o.retardos < 1 ? " _S9$ * _S0  * _S9$ "
                                 : Formatear(" %d * _S9$ * ((_S0/%d) +  _S7) * _S9$ ", n, n);
    return Matriz("_COV", formula) && Wald(columnas, k);
}

bool Error(int n, int k) {
    if (!Escalar("_SCR", "ESCAL(_SCR1)")) return false;
    if (!Escalar("_DTR", n <= k ? " 0.0" : Formatear("RCUAD(_SCR/%d)", n - k))) return false;
    return Escalar("_MTR", "_DTR * _DTR");
}

bool Medidas(const std::vector<double> &y, const std::vector<double> &residuos, int k, int seriesRegresoras) {
    const int n = static_cast<int>(y.size());
    double suma = 0.0, variacion = 0.0, saltos = 0.0;
    for (const double v : y) suma += v;
    const double media = suma / n;
    if (!Matriz("_DTE", "RCMT(VECT(_COV))")) return false;
    if (!Escalar("_MVD", Formatear("%10.6f", media)) || !Escalar("_STVD", Formatear("%10.6f", suma)))
        return false;
    const double mitad = n / 2.0, constante = (std::log(6.283185307179586) + 1.0) * n / 2.0;
    if (!Escalar("_LV", Formatear("(%f + (%f * LN(_SCR/%d)))* -1.00", constante, mitad, n))) return false;
    if (!Escalar("_AIC", Formatear("(-2 * (_LV - %d))/%d", k, n))) return false;
    for (const double v : y) variacion += (v - media) * (v - media);
    if (!Escalar("_SCVD", Formatear("%10.6f", variacion))) return false;
    if (!Escalar("_DTVD", Formatear("RCUAD(_SCVD/%f)", n - 1.0)) || !Escalar("_DCR", "ESCAL(_SCR1)"))
        return false;
    if (!Escalar("_RC", "1.00 - (ESCAL(_SCR1)/_SCVD)")) return false;
    const double r2 = Valor("_RC");
    const bool sinF = k - 1 <= 0 || 1 - r2 <= 0 || n - k <= 0;
    if (!Escalar("_FORLA", sinF ? "0.00" : Formatear("%f", (r2 / (k - 1)) / ((1 - r2) / (n - k)))))
        return false;
    if (!Escalar("_NORE", Formatear("%d", n - k)) || !Escalar("_ANREG", Formatear("%d", seriesRegresoras)) ||
        !Escalar("_NREG", Formatear("%d", k)))
        return false;
    for (std::size_t i = 1; i < residuos.size(); ++i)
        saltos += (residuos[i] - residuos[i - 1]) * (residuos[i] - residuos[i - 1]);
    if (!Escalar("_DW", Formatear("(1.00/(ESCAL(_SCR1))) * %10.6f", saltos))) return false;
    const double rcc = 1 - (1 - r2) * (n - 1) / (n - k);
    if (!Escalar("_RCC", n == k ? "0.00" : Formatear("%f", rcc))) return false;
    return Escalar("_ESTF", "PROBF(_FORLA,_ANREG,_NORE)") && Escalar("_EA1", "1.00-(_DW/2.00)");
}

} // namespace

bool EstimarPorFormulas(std::string_view dependiente, const std::vector<std::string> &columnas,
                        int seriesRegresoras, const OpcionesCadena &opciones) {
    std::string llaves = "{ ";
    for (const std::string &c : columnas) llaves += c + " ";
    if (!Matriz("_YDEP", "{" + std::string(dependiente) + "} ") || !Matriz("_XIND", llaves + "} "))
        return false;
    for (const char *nombre : {"_TMF2", "_TMF3", "_TMF4"})
        if (!Matriz(nombre, "{0 0 0 0}")) return false;
    int n = 0, k = 0, una = 0;
    std::vector<double> X = MatrizDe("_XIND", n, k);
    if (opciones.ponderada && !Ponderar(X, n, k)) return false;
    if (!Momentos(dependiente, X, n, k, opciones.ponderada) || !Matriz("_BETA", "_TMF5$ * _TMF6"))
        return false;
    if (!Matriz("_YAJU1", "_XIND * _BETA") || !SerieDe("_YAJUS", "_YAJU1")) return false;
    if (!Matriz("_RESM", "_YDEP - (_XIND * _BETA)") || !SerieDe("_RES", "_RESM")) return false;
    const std::vector<double> residuos = MatrizDe("_RESM", n, una);
    if (!Residuos(residuos) || !Error(n, k)) return false;
    const bool covarianza =
        opciones.covarianza == 1 ? Matriz("_COV", "_MTR * _TMF5$") : Consistente(X, n, k, columnas, opciones);
    if (!covarianza || !Medidas(MatrizDe("_YDEP", n, una), residuos, k, seriesRegresoras)) return false;
    if (!Matriz("_DTE1", "_DTE'") || !SerieDe("_DTE2", "_DTE1") || !SerieDe("_BETA2", "_BETA")) return false;
    return Serie("_DIV", "_BETA2/_DTE2") && Serie("_PROBT", "PROBT(_DIV,_NORE)");
}
