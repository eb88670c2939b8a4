// The weight of MCP, any series formula in parentheses, and what is done with it.
#include "estimation/ponderacion.h"

#include "estimation/tabla_pasos.h"
#include "platform/campos_texto.h"
#include "platform/numeros.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <algorithm>
#include <vector>

int LeerPonderacion(Estimacion &e, const std::string &texto, int &posicion) {
    SaltarBlancos(texto, posicion);
    if (CaracterEn(texto, posicion) != '(') return MensajePunto(e.ventana, "Indroduzca ponderación"_w, 1633);
    const int cierre = ParentesisCierre(texto, posicion);
    const std::size_t desde = static_cast<std::size_t>(posicion) + 1;
    const std::string formula = texto.substr(desde, static_cast<std::size_t>(cierre) - desde);
    posicion = std::min(cierre + 1, static_cast<int>(texto.size()));
    if (UltimoNivel()) return MensajePunto(e.ventana, FaltanSeries, 8621);
    UltimaRegresion.TextoPonderacion = formula;
    switch (SerieDeFormulaEscrita(CadenaDe(e), "_VORD", formula, "Ponderación de cada observación"_w)) {
    case FormulaErronea: return MensajePunto(e.ventana, formula, 8511);
    case FormulaSinGuardar: return MensajePunto(e.ventana, FaltanSeries, 8628);
    default: UltimaRegresion.Ponderada = 1; return 1;
    }
}

int PonderarDatos(Estimacion &e) {
    const int pesos = BuscarSerie("_VORD");
    if (pesos < 0) return MensajePunto(e.ventana, SecuenciaNoValida, 6528);
    if (EjecutarCadena(CadenaDe(e), PasosPonderar) == 0) return 0;
    const double *X = ElementosDe("_XIND");
    double *y = ElementosDe("_YDEP");
    if (X == nullptr || y == nullptr) {
        const char *falta = X == nullptr ? "_XIND" : "_YDEP";
        return MensajePunto(e.ventana, Formatear("%s: [%s]", SecuenciaNoValida, falta), 6523);
    }
    const int n = e.observaciones, k = e.regresores;
    std::vector<double> ponderados(static_cast<std::size_t>(n) * static_cast<std::size_t>(k));
    for (int i = 0; i < n; ++i) {
        const double peso = ArchivoTrabajo.ValoresObs[Muestra.InicioRegresion + i][pesos];
        double *fila = ponderados.data() + i * k;
        for (int j = 0; j < k; ++j) fila[j] = X[i * k + j] * peso;
        y[i] *= peso;
    }
    if (GuardarMatriz("_S2", ponderados.data(), n, k) != MatrizGuardada)
        return MensajePunto(e.ventana, SecuenciaNoValida, 6529);
    if (Trazando()) {
        const FilasTraza filas = FilasDeRegresion();
        TrazarMatriz("_S2", ConPeriodos("x(t) _VORD(t)", filas),
                     "Regresores por la ponderación de su observación"_w, filas, "_XIND");
        TrazarMatriz("_YDEP", ConPeriodos("y(t) _VORD(t)", filas),
                     "Variable dependiente por la ponderación de su observación"_w, filas, "_YDEP");
    }
    return EjecutarCadena(CadenaDe(e), PasosPonderada);
}

namespace {

// A regressor as the fitted values see it: a series, or the number that its text begins with.
struct Regresor {
    int serie;
    double numero;
};

std::vector<Regresor> RegresoresOriginales() {
    std::vector<Regresor> r;
    for (const std::string &codigo : UltimaRegresion.CodigosRegresores) {
        const std::string nombre = codigo.substr(0, AnchoCodigo - 1);
        r.push_back({BuscarSerie(nombre), LeerDecimal(nombre)});
    }
    return r;
}

// What GuardarResiduosOriginales computes, for the trace.
std::string FormulaDeResiduos(std::size_t regresores) {
    std::string texto = std::string(Recortado(UltimaRegresion.CodigoDependiente)) + " - (";
    for (std::size_t j = 0; j < regresores; ++j) {
        const std::string nombre = UltimaRegresion.CodigosRegresores[j].substr(0, AnchoCodigo - 1);
        texto += Formatear(j == 0 ? "(_BETA[%d,1] * " : " + (_BETA[%d,1] * ", static_cast<int>(j) + 1);
        texto += BuscarSerie(nombre) >= 0 ? nombre : Formatear("%g", LeerDecimal(nombre));
        texto += ')';
    }
    return texto + ")";
}

// The values from the row `desde` on; all other rows are missing. Without room nothing is stored.
void GuardarEnSerie(std::string_view codigo, const std::vector<double> &valores, int desde) {
    if (BuscarMatriz(codigo) >= 0 || BuscarEscalar(codigo) >= 0) return;
    const int s = TomarSerie(codigo);
    if (s < 0) return;
    PonerCodigoSerie(s, codigo);
    LimpiarColumna(s);
    int fila = desde;
    for (const double valor : valores) PonerObservacion(fila++, s, valor, 1);
    ArchivoTrabajo.PrimeraObs[s] = static_cast<std::int16_t>(desde);
    ArchivoTrabajo.UltimaObs[s] = static_cast<std::int16_t>(fila - 1);
    RefrescarEditor();
}

} // namespace

int GuardarResiduosOriginales(const Estimacion &e) {
    const int y = BuscarSerie(UltimaRegresion.CodigoDependiente);
    if (y < 0) return MensajePunto(e.ventana, "No existe la variable dependiente", 1);
    const int m = BuscarMatriz("_BETA");
    const double *beta = ElementosDe("_BETA");
    if (beta == nullptr) return MensajePunto(e.ventana, "No existe la matriz beta", 1);
    const std::vector<Regresor> regresores = RegresoresOriginales();
    const std::size_t numero =
        std::min(regresores.size(), static_cast<std::size_t>(TablaMatrices.registro[m].Filas));
    const int desde = Muestra.InicioRegresion;
    std::vector<double> residuos;
    for (int i = desde; i <= Muestra.FinRegresion; ++i) {
        const double *fila = ArchivoTrabajo.ValoresObs[i];
        double ajustado = 0.0;
        for (std::size_t j = 0; j < numero; ++j) {
            const Regresor &r = regresores[j];
            ajustado += beta[j] * (r.serie >= 0 ? fila[r.serie] : r.numero);
        }
        residuos.push_back(fila[y] - ajustado);
    }
    GuardarEnSerie("_RESN", residuos, desde);
    if (Trazando())
        TrazarSerie("_RESN", ConPeriodos(FormulaDeResiduos(numero), FilasDeRegresion()),
                    "Residuos de los datos originales con los coeficientes ponderados; un regresor retardado "
                    "cuenta 0",
                    FilasDeRegresion());
    return 1;
}
