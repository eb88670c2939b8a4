// The steps of a regression: their order, and the values that their formulas take.
#include "estimation/pasos.h"

#include "estimation/covarianza.h"
#include "estimation/momentos.h"
#include "estimation/ponderacion.h"
#include "estimation/tabla_pasos.h"
#include "language/lote_sentencias.h"
#include "platform/campos_texto.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/periodos.h"
#include "store/temporales.h"

#include <cmath>

namespace {

// ----- The values of the formulas

int GradosDeLibertad(const Estimacion &e) {
    return e.observaciones - e.regresores;
}

double ValorDe(Familias familia, int codigo) {
    const int s = BuscarEscalar(NombreFamilia(familia, codigo));
    return s < 0 ? 0.0 : TablaEscalares.registro[s].Valor;
}

double RCuadrado(const Estimacion &e) {
    return ValorDe(FamRC, e.codigo);
}

std::string EstadisticoF(const Estimacion &e) {
    const double r2 = RCuadrado(e);
    const int k = e.regresores, gl = GradosDeLibertad(e);
    if (k - 1 <= 0 || 1.0 - r2 <= 0.0 || gl <= 0) return "0.00";
    const double f = (r2 / (k - 1)) / ((1.0 - r2) / gl);
    if (Trazando()) {
        const char *rc = NombreFamilia(FamRC, e.codigo);
        TrazarEscalar("estadisticoF", Formatear("(%s/%d) / ((1 - %s)/%d)", rc, k - 1, rc, gl), f,
                      "Estadístico F: R2 por regresor entre lo que falta a 1 por grado de libertad"_w);
    }
    return Formatear("%f", f);
}

// Without degrees of freedom the quotient is no number, and its text would be no formula: it counts as 0, as F does.
std::string RCuadradoCorregido(const Estimacion &e) {
    const double corregido = 1.0 - (1.0 - RCuadrado(e)) * (e.observaciones - 1) / GradosDeLibertad(e);
    if (Trazando())
        TrazarEscalar("corregido",
                      Formatear("1 - ((1 - %s) * %d / %d)", NombreFamilia(FamRC, e.codigo),
                                e.observaciones - 1, GradosDeLibertad(e)),
                      corregido, "R2 corregido por los grados de libertad");
    return GradosDeLibertad(e) == 0 || !std::isfinite(corregido) ? "0.00" : Formatear("%f", corregido);
}

int SeriesDe(int codigo) {
    return UltimaRegresion.SeriesRegresion[codigo];
}

// Up to the coefficient of determination.
int EjecutarConMedidas(const Estimacion &e, std::span<const PasoCadena> pasos) {
    const DatoCadena datos[] = {
        DatoNumero("n", e.observaciones),
        DatoNumero("k", e.regresores),
        DatoNumero("gl", GradosDeLibertad(e)),
        DatoNumero("menosUna", e.observaciones - 1.0),
        DatoNumero("mitad", e.observaciones / 2.0),
        DatoNumero("constante", (std::log(6.283185307179586) + 1.0) * e.observaciones / 2.0),
        DatoNumero("total", e.suma),
        DatoNumero("media", e.media),
        DatoNumero("variacion", e.variacion),
    };
    return EjecutarCadena(CadenaDe(e, datos), pasos);
}

// Behind the coefficient of determination.
int EjecutarFinales(const Estimacion &e) {
    const DatoCadena datos[] = {
        DatoNumero("k", e.regresores),
        DatoNumero("gl", GradosDeLibertad(e)),
        DatoNumero("series", SeriesDe(e.codigo)),
        DatoNumero("saltos", e.saltos),
        DatoTexto("estadisticoF", EstadisticoF(e)),
        DatoTexto("corregido", RCuadradoCorregido(e)),
    };
    return EjecutarCadena(CadenaDe(e, datos), PasosFinales);
}

// The range is that of CR, which its own lags may have shortened.
int EjecutarRestringido(const Estimacion &e) {
    const int observaciones = Muestra.FinRegresion - Muestra.InicioRegresion + 1;
    const DatoCadena datos[] = {
        DatoNumero("fuera", SeriesDe(OrdenMC) - SeriesDe(OrdenCR)),
        DatoNumero("glLargo", observaciones - UltimaRegresion.NumRegresores),
    };
    return EjecutarCadena(CadenaDe(e, datos), PasosRestringido);
}

int EjecutarWhite(const Estimacion &e) {
    if (Trazando())
        TrazarEscalar("chi", Formatear("%d * %s", e.observaciones, NombreFamilia(FamRC, e.codigo)),
                      e.observaciones * RCuadrado(e), "Estadístico de White: observaciones por R2"_w);
    const DatoCadena datos[] = {
        DatoNumero("chi", e.observaciones * RCuadrado(e)),
        DatoNumero("grados", SeriesDe(OrdenCWH)),
    };
    return EjecutarCadena(CadenaDe(e, datos), PasosWhite);
}

double Cociente(double a, double b) {
    return b > 0.0 ? a / b : 0.0;
}

// The sizes are those of the parts that the test cut, the number of regressors that of the last regression.
int EjecutarGoldfeld(const Estimacion &e) {
    const RegistroContraste &c = UltimoContraste;
    const double k = ValorDe(FamNREG, OrdenMC);
    const double glDenominador = c.ultimaDenominador - c.primeraDenominador + 1 - k;
    const double glNumerador = c.ultimaNumerador - c.primeraNumerador + 1 - k;
    const double denominador = Cociente(ValorDe(FamSCR, OrdenMGD), glDenominador);
    const double numerador = Cociente(ValorDe(FamSCR, OrdenMGN), glNumerador);
    if (Trazando()) {
        const char *arriba = NombreFamilia(FamSCR, OrdenMGN), *abajo = NombreFamilia(FamSCR, OrdenMGD);
        TrazarEscalar(
            "cociente", Formatear("(%s/%.0f) / (%s/%.0f)", arriba, glNumerador, abajo, glDenominador),
            Cociente(numerador, denominador),
            "Estadístico de Goldfeld y Quandt: cociente de las varianzas de los residuos de las dos partes"_w);
    }
    const DatoCadena datos[] = {
        DatoNumero("cociente", Cociente(numerador, denominador)),
        DatoNumero("glNumerador", glNumerador),
        DatoNumero("glDenominador", glDenominador),
    };
    return EjecutarCadena(CadenaDe(e, datos), PasosGoldfeld);
}

// ----- The order

int Preparar(Estimacion &e) {
    const int y = BuscarMatriz("_YDEP"), x = BuscarMatriz("_XIND");
    if (EjecutarCadena(CadenaDe(e), PasosPrevios) == 0) return 0;
    if (y < 0 || x < 0) return MensajePunto(e.ventana, SecuenciaNoValida, 6525);
    e.observaciones = TablaMatrices.registro[y].Filas;
    e.regresores = TablaMatrices.registro[x].Columnas;
    if (BuscarSerie(e.dependiente) < 0) return MensajePunto(e.ventana, SecuenciaNoValida, 6529);
    if (e.codigo != OrdenMCP && UltimaRegresion.Ponderada == 0) return 1;
    return PonderarDatos(e);
}

int EstimarCovarianza(Estimacion &e) {
    if (UltimaRegresion.TipoCovarianza == CovarianzaNormal) return EjecutarConMedidas(e, PasosCovarianza);
    return CovarianzaConsistente(e);
}

// The two regressions of Goldfeld and Quandt are reported with the count of the last MC.
void HeredarSeries(const Estimacion &e) {
    if (e.codigo == OrdenMGN || e.codigo == OrdenMGD)
        UltimaRegresion.SeriesRegresion[e.codigo] = UltimaRegresion.SeriesRegresion[OrdenMC];
}

void MostrarLista(const Estimacion &e) {
    UltimaRegresion.TextosRegresores = e.textos;
    UltimaRegresion.NumTextos = static_cast<int>(e.textos.size());
    PonerCampo(UltimaRegresion.DependienteMostrado, e.dependiente, AnchoCodigo);
}

void AnotarRegresion(const Estimacion &e) {
    RegistroRegresion &u = UltimaRegresion;
    PonerCampo(u.CodigoDependiente, e.dependiente, AnchoCodigo);
    u.CodigosRegresores.clear();
    for (const std::string &texto : e.textos) u.CodigosRegresores.push_back(texto.substr(0, AnchoCodigo - 1));
    u.NumRegresores = e.regresores;
    u.PrimeraObsRegresion = Muestra.InicioRegresion;
    u.UltimaObsRegresion = Muestra.FinRegresion;
    u.RegresionHecha = 1;
}

} // namespace

int EjecutarPasos(Estimacion &e) {
    if (Preparar(e) == 0 || AcumularMomentos(e) == 0) return 0;
    if (EjecutarCadena(CadenaDe(e), PasosAjuste) == 0 || AcumularResiduos(e) == 0) return 0;
    if (SumarDirecto(e) == 0 || EjecutarConMedidas(e, PasosSumaResidual) == 0) return 0;
    const bool conGrados = GradosDeLibertad(e) > 0;
    if ((conGrados ? EjecutarConMedidas(e, PasosErrorTipico) : EjecutarConMedidas(e, PasosErrorNulo)) == 0)
        return 0;
    if (EjecutarConMedidas(e, PasosVarianza) == 0 || EstimarCovarianza(e) == 0) return 0;
    if (EjecutarConMedidas(e, PasosMedidas) == 0) return 0;
    HeredarSeries(e);
    return EjecutarFinales(e);
}

int CompletarRegresion(Estimacion &e) {
    if (e.codigo == OrdenMCP) UltimaRegresion.SeriesRegresion[OrdenMC] = SeriesDe(OrdenMCP);
    if (e.codigo == OrdenCR || e.codigo == OrdenCWH || e.codigo == OrdenMCP) MostrarLista(e);
    if (e.codigo == OrdenCR && EjecutarRestringido(e) == 0) return 0;
    if (UltimaRegresion.TipoCovarianza == CovarianzaHeterocedasticidad &&
        EjecutarCadena(CadenaDe(e), PasosWald) == 0)
        return 0;
    if (e.codigo == OrdenMC || e.codigo == OrdenMCP) AnotarRegresion(e);
    if (e.codigo == OrdenMGD && EjecutarGoldfeld(e) == 0) return 0;
    if (e.codigo == OrdenCWH && EjecutarWhite(e) == 0) return 0;
    return 1;
}
