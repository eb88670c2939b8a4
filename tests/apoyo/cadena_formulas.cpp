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

#include <cmath>

namespace {

LineasSentencia Lineas;

void Poner(const std::string &texto) {
    LimpiarEvaluador();
    Evaluador.NivelLinea = 1;
    Lineas[1] = texto;
}

bool Matriz(std::string_view destino, const std::string &texto) {
    Poner(texto);
    PonerCampo(Evaluador.CodigoMatrizDestino, destino, AnchoCodigo);
    int posicion = 0;
    const int bien =
        EvaluarFormulaMatriz(Lineas, posicion, nullptr, Muestra.InicioRegresion, Muestra.FinRegresion);
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

bool Momentos(std::string_view dependiente, const std::vector<double> &X, int n, int k) {
    const int serie = BuscarSerie(dependiente);
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
        EscalarPorMatriz(fila.data(), ArchivoTrabajo.ValoresObs[Muestra.InicioRegresion + i][serie], k, 1,
                         porY.data());
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

bool Medidas(const std::vector<double> &y, const std::vector<double> &residuos, int k, int seriesRegresoras) {
    const int n = static_cast<int>(y.size());
    double suma = 0.0, variacion = 0.0, saltos = 0.0;
    for (const double v : y) suma += v;
    const double media = suma / n;
    if (!Escalar("_SCR", "ESCAL(_SCR1)")) return false;
    if (!Escalar("_DTR", n <= k ? " 0.0" : Formatear("RCUAD(_SCR/%d)", n - k))) return false;
    if (!Escalar("_MTR", "_DTR * _DTR") || !Matriz("_COV", "_MTR * _TMF5$")) return false;
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
                        int seriesRegresoras) {
    std::string llaves = "{ ";
    for (const std::string &c : columnas) llaves += c + " ";
    if (!Matriz("_YDEP", "{" + std::string(dependiente) + "} ") || !Matriz("_XIND", llaves + "} "))
        return false;
    for (const char *nombre : {"_TMF2", "_TMF3", "_TMF4"})
        if (!Matriz(nombre, "{0 0 0 0}")) return false;
    int n = 0, k = 0, una = 0;
    const std::vector<double> X = MatrizDe("_XIND", n, k);
    if (!Momentos(dependiente, X, n, k) || !Matriz("_BETA", "_TMF5$ * _TMF6")) return false;
    if (!Matriz("_YAJU1", "_XIND * _BETA") || !SerieDe("_YAJUS", "_YAJU1")) return false;
    if (!Matriz("_RESM", "_YDEP - (_XIND * _BETA)") || !SerieDe("_RES", "_RESM")) return false;
    const std::vector<double> residuos = MatrizDe("_RESM", n, una);
    if (!Residuos(residuos) || !Medidas(MatrizDe("_YDEP", n, una), residuos, k, seriesRegresoras))
        return false;
    if (!Matriz("_DTE1", "_DTE'") || !SerieDe("_DTE2", "_DTE1") || !SerieDe("_BETA2", "_BETA")) return false;
    return Serie("_DIV", "_BETA2/_DTE2") && Serie("_PROBT", "PROBT(_DIV,_NORE)");
}
