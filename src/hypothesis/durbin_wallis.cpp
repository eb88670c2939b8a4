// CDU and CWA: sums over the residuals, and short chains of formulas.
#include "hypothesis/durbin_wallis.h"

#include "estimation/regresion.h"
#include "hypothesis/informe_contrastes.h"
#include "language/cadena.h"
#include "language/traza.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/periodos.h"
#include "store/temporales.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>

namespace {

constexpr int OrdenWallis = 4; // quarters of a year

// h is that of the rounded factors; its probability that of the product at full precision. The bracket belongs to the text,
// and the evaluator stops there.
constexpr PasoCadena PasosDurbin[] = {
    {PasoEscalar, PrimeraFila, "_TMDU", "%(rho)f * %(raiz)f)",
     "Estadístico h de Durbin: autocorrelación por la raíz de n entre 1 - n por la varianza del coeficiente del retardo"_w},
    {PasoEscalar, PrimeraFila, "_TMDN", "PROBN(%(h)f)", "Probabilidad del estadístico h de Durbin, normal"_w},
};

constexpr PasoCadena PasosWallis[] = {
    {PasoEscalar, PrimeraFila, "_DWWA", "%(wallis)f",
     "Estadístico de Wallis; sus dos sumas empiezan en el quinto residuo, cuando la de abajo es en los manuales la de todos"_w}};

Cadena CadenaDeContraste(LineasSentencia &lineas, Ventana *ventana, const MensajesCadena &mensajes) {
    return {&lineas, ventana, Muestra.InicioRegresion, Muestra.FinRegresion, &mensajes};
}

void BorrarEscalares(std::initializer_list<const char *> codigos) {
    for (const char *codigo : codigos)
        if (const int e = BuscarEscalar(codigo); e >= 0) BorrarEscalar(e);
}

// Variance of the coefficient at `lugar`. False when _COV isn't there, or was replaced by a smaller matrix.
bool VarianzaDe(int lugar, double &varianza) {
    const int m = BuscarMatriz(NombreFamilia(FamCOV, OrdenMC));
    if (m < 0 || lugar >= std::min(TablaMatrices.registro[m].Filas, TablaMatrices.registro[m].Columnas))
        return false;
    if (!FijarMatriz(m)) return false;
    const RegistroMatriz &r = TablaMatrices.registro[m];
    varianza = lugar < 0 ? 0.0 : r.Datos[lugar * r.Columnas + lugar];
    SoltarMatriz(m);
    return true;
}

double CuadradoDeLaRaiz(double varianza) {
    const int n = Muestra.FinRegresion - Muestra.InicioRegresion + 1;
    const double d = 1.0 - n * varianza;
    return d != 0.0 ? n / d : 0.0;
}

int CalcularDurbin(LineasSentencia &lineas, Ventana *ventana) {
    const int dw = BuscarEscalar(NombreFamilia(FamDW, OrdenMC));
    const double rho = 1.0 - (dw < 0 ? 0.0 : TablaEscalares.registro[dw].Valor) / 2.0;
    double varianza = 0.0;
    if (!VarianzaDe(UltimaRegresion.RegresorRetardado, varianza))
        return MensajeAviso(ventana, "No se encuentra la matriz de covarianza");
    if (UltimaRegresion.RegresorRetardado < 0)
        return MensajeAviso(ventana, "No existen retardos en la regresión"_w);
    const double s = CuadradoDeLaRaiz(varianza);
    if (s < 0.0) MensajeAviso(ventana, "El resultado es un número imaginario"_w);
    const double raiz = s < 0.0 ? 0.0 : std::sqrt(s);
    const DatoCadena datos[] = {DatoNumero("rho", rho), DatoNumero("raiz", raiz),
                                DatoNumero("h", std::fabs(rho) * raiz)};
    if (Trazando()) {
        TrazarEscalar("rho", Formatear("1 - (%s/2)", NombreFamilia(FamDW, OrdenMC)), rho,
                      "Coeficiente de autocorrelación de primer orden"_w);
        const int lugar = UltimaRegresion.RegresorRetardado + 1;
        TrazarEscalar("varianza", Formatear("%s[%d,%d]", NombreFamilia(FamCOV, OrdenMC), lugar, lugar),
                      varianza, "Varianza del coeficiente de la variable retardada");
        const int n = Muestra.FinRegresion - Muestra.InicioRegresion + 1;
        TrazarEscalar("raiz", Formatear("RCUAD(%d/(1 - (%d * varianza)))", n, n), raiz,
                      "Raíz de n entre 1 menos n por la varianza; 0 si no existe"_w);
        TrazarEscalar("h", "ABS(rho) * raiz", std::fabs(rho) * raiz,
                      "Estadístico h con todas sus cifras, sin signo, para su probabilidad"_w);
    }
    Cadena c = CadenaDeContraste(lineas, ventana, MensajesAvisoSecuencia);
    c.datos = datos;
    if (EjecutarCadena(c, PasosDurbin) == 0) return 0;
    MostrarInformeContraste(ventana, OrdenCDU);
    return 1;
}

// Both sums begin at the fifth residual of the sample, unlike those of the textbooks.
double EstadisticoWallis(int residuos) {
    const int primera = std::max(Muestra.InicioRegresion, 0);
    const int ultima = std::min(Muestra.FinRegresion, MaxObservaciones - 1);
    const auto e = [&](int t) { return ArchivoTrabajo.ValoresObs[t][residuos]; };
    double diferencias = 0.0, cuadrados = 0.0;
    for (int t = primera + OrdenWallis; t <= ultima; ++t) {
        const double diferencia = e(t) - e(t - OrdenWallis);
        diferencias += diferencia * diferencia;
        cuadrados += e(t) * e(t);
    }
    return cuadrados > 0.0 ? diferencias / cuadrados : 0.0;
}

} // namespace

int ContrasteDurbin(LineasSentencia &lineas, Ventana *ventana) {
    const int bien = CalcularDurbin(lineas, ventana);
    BorrarEscalares({"_TMDU", "_TMDN"});
    return bien;
}

int ContrasteWallis(LineasSentencia &lineas, Ventana *ventana) {
    const int residuos = BuscarSerie(NombreFamilia(FamRES, OrdenMC));
    if (residuos < 0) return MensajeAviso(ventana, "Realize previamente una regresión"_w);
    const double d = EstadisticoWallis(residuos);
    if (Trazando()) {
        const FilasTraza filas = {Muestra.InicioRegresion + OrdenWallis, Muestra.FinRegresion};
        TrazarEscalar(
            "wallis", ConPeriodos("suma de (e(t) - e(t-4))^2 / suma de e(t)^2", filas), d,
            "Estadístico de Wallis: diferencias a cuatro períodos entre residuos, desde el quinto residuo"_w,
            filas, NombreFamilia(FamRES, OrdenMC));
    }
    const DatoCadena datos[] = {DatoNumero("wallis", d)};
    Cadena c = CadenaDeContraste(lineas, ventana, MensajesAvisoCalculos);
    c.datos = datos;
    const int bien = EjecutarCadena(c, PasosWallis);
    if (bien == 1) {
        MostrarInformeContraste(ventana, OrdenCWA);
        PonerTitulo(ventana, "Tabira");
    }
    BorrarEscalares({"_DWWA"});
    return bien;
}
