// The lines of the reports of CR, CGQ and CWH.
#include "estimation/informes_contraste.h"

#include "estimation/estimacion.h"
#include "estimation/regresion.h"
#include "platform/campos_texto.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/ordenes.h"
#include "store/periodos.h"

namespace {

constexpr int PuntoDeEstadisticos = 871;
constexpr std::size_t LargoDeEcuacion = 45; // a longer line of the equation takes no further name

int SinResultado(Ventana *ventana) {
    return MensajePunto(ventana, SecuenciaNoValida, PuntoDeEstadisticos);
}

// Value of a scalar of the store, 0 when it is gone.
double ValorDe(std::string_view escalar) {
    const int e = BuscarEscalar(escalar);
    return e < 0 ? 0.0 : TablaEscalares.registro[e].Valor;
}

double Cociente(double dividendo, double divisor) {
    return divisor > 0.0 ? dividendo / divisor : 0.0;
}

// The block of a regression behind the lines of a test, in the report and in its table.
int AnadirRegresion(InformeProducido &informe, Ventana *ventana, int codigo, const ParteMuestra *parte) {
    if (BloqueRegresion(informe.lineas, informe.tablas, ventana, codigo, parte, &informe.fuentes) == 0)
        return 0;
    informe.regresiones.push_back(RegresionDe(codigo, parte));
    informe.tabla += "\n" + TablaRegresion(codigo, parte);
    return 1;
}

// ----- CR

constexpr LineaDeInforme LineasRestringido[] = {
    {1,
     "Estadístico F(%2$3s,%3$3s):%1$10s  Prob > F             :%4$10s "_w,
     {DeEscalar("_FORLAR", "Estadístico F"_w), DeEscalar("_EST5", "Grados de libertad 1", 0, 3),
      DeEscalar("_NORE", "Grados de libertad 2", 0, 3), DeEscalar("_ESTFR", "Prob > F")}},
};

// "MC Y 1 X1": the regression that is restricted.
std::string LineaDeEcuacion() {
    std::string linea = UltimaRegresion.MetodoRegresion == OrdenMCP ? "MCP " : "MC ";
    linea += Recortado(UltimaRegresion.CodigoDependiente);
    for (const std::string &nombre : UltimaRegresion.CodigosRegresores) {
        if (linea.size() > LargoDeEcuacion) break;
        linea += " " + nombre;
    }
    return linea;
}

// ----- CGQ

constexpr LineaDeInforme LineasSumas[] = {
    {1,
     "SCR denominador : %10s      Número de observaciones: %3s "_w,
     {DeFamilia(FamSCR, "SCR denominador"), NumeroDado("Observaciones denominador", 0, 4)}},
};
constexpr LineaDeInforme LineasSumasNumerador[] = {
    {1,
     "SCR numerador   : %10s      Número de observaciones: %3s "_w,
     {DeFamilia(FamSCR, "SCR numerador"), NumeroDado("Observaciones numerador", 0, 4)}},
};
constexpr LineaDeInforme LineasGoldfeld[] = {
    {2,
     "Estadístico F(%2$3s,%3$3s):%1$10s  Prob > F             :%4$10s "_w,
     {NumeroDado("Estadístico F"_w, 4, 10, "Estadístico de Goldfeld y Quandt"_w),
      NumeroDado("Grados de libertad 1", 0, 3), NumeroDado("Grados de libertad 2", 0, 3),
      DeEscalar("_ESTFG", "Prob > F")}},
};

// A part of the ordered sample by its positions, from its rows.
ParteMuestra Parte(int primera, int ultima) {
    const int inicio = UltimaRegresion.PrimeraObsRegresion;
    return {primera - inicio + 1, ultima - inicio + 1, primera};
}

double Observaciones(const ParteMuestra &p) {
    return p.ultima - p.primera + 1;
}

int AnadirGoldfeld(InformeProducido &informe, const ParteMuestra &denominador,
                   const ParteMuestra &numerador) {
    const double nDen = Observaciones(denominador), nNum = Observaciones(numerador), k = ValorDe("_NREG");
    const double medioDen = Cociente(ValorDe("_SCRGD"), nDen), medioNum = Cociente(ValorDe("_SCRGN"), nNum);
    // The degrees of freedom of the denominator stand first.
    const double dados[] = {Cociente(medioNum, medioDen), nDen - k, nNum - k};
    const std::span uno(&nDen, 1), otro(&nNum, 1);
    if (!AnadirLineas(informe.lineas, LineasSumas, OrdenMGD, uno)) return 0;
    AnadirFuentes(informe.fuentes, informe.lineas, LineasSumas, OrdenMGD);
    if (!AnadirLineas(informe.lineas, LineasSumasNumerador, OrdenMGN, otro)) return 0;
    AnadirFuentes(informe.fuentes, informe.lineas, LineasSumasNumerador, OrdenMGN);
    AnadirLinea(
        informe.lineas, 1,
        Formatear("Variable de ordenación : %-24s               "_w, UltimoContraste.ordenacion.c_str()));
    if (!AnadirLineas(informe.lineas, LineasGoldfeld, OrdenMGD, dados)) return 0;
    AnadirFuentes(informe.fuentes, informe.lineas, LineasGoldfeld, OrdenMGD);
    informe.tabla = TablaDeLineas(LineasSumas, OrdenMGD, uno) +
                    TablaDeLineas(LineasSumasNumerador, OrdenMGN, otro) + "Variable de ordenación\t"_w +
                    std::string(Recortado(UltimoContraste.ordenacion)) + "\n" +
                    TablaDeLineas(LineasGoldfeld, OrdenMGD, dados);
    return 1;
}

// ----- CWH

constexpr LineaDeInforme LineasWhite[] = {
    {2,
     "Estadístico Chi-cuadrado (%2$2s): %1$7s Prob > Chi-cuadrado :%3$7s"_w,
     {DeEscalar("_TM11", "Estadístico Chi-cuadrado"_w, 4, 7), DeEscalar("_TM12", "Grados de libertad", 0, 3),
      DeEscalar("_TM13", "Prob > Chi-cuadrado", 4, 7)}},
};

} // namespace

int InformeModeloRestringido(InformeProducido &informe, Ventana *ventana, int codigo) {
    const int y = BuscarMatriz("_YDEP");
    if (y < 0) return MensajePunto(ventana, "Secuencia no Válida"_w, 86);
    const std::string ecuacion = LineaDeEcuacion();
    AnadirLinea(informe.lineas, 1, ecuacion);
    AnadirCabecera(informe.lineas, CabeceraDeContraste,
                   {.dependiente = std::string(Recortado(UltimaRegresion.CodigoDependiente)),
                    .nombres = UltimaRegresion.TextosRegresores,
                    .muestra = TextoDeFilas(Muestra.InicioRegresion, Muestra.FinRegresion),
                    .observaciones = TablaMatrices.registro[y].Filas});
    if (!AnadirLineas(informe.lineas, LineasRestringido, codigo)) return SinResultado(ventana);
    AnadirFuentes(informe.fuentes, informe.lineas, LineasRestringido, codigo);
    informe.tabla = ecuacion + "\n" + TablaDeLineas(LineasRestringido, codigo);
    return 1;
}

int InformeGoldfeldQuandt(InformeProducido &informe, Ventana *ventana, int) {
    const RegistroContraste &c = UltimoContraste;
    const ParteMuestra denominador = Parte(c.primeraDenominador, c.ultimaDenominador);
    const ParteMuestra numerador = Parte(c.primeraNumerador, c.ultimaNumerador);
    if (AnadirGoldfeld(informe, denominador, numerador) == 0) return SinResultado(ventana);
    if (c.verRegresion == 0) return 1;
    return AnadirRegresion(informe, ventana, OrdenMGD, &denominador) != 0 &&
                   AnadirRegresion(informe, ventana, OrdenMGN, &numerador) != 0
               ? 1
               : 0;
}

int InformeWhite(InformeProducido &informe, Ventana *ventana, int codigo) {
    if (!AnadirLineas(informe.lineas, LineasWhite, codigo)) return SinResultado(ventana);
    AnadirFuentes(informe.fuentes, informe.lineas, LineasWhite, codigo);
    informe.tabla = TablaDeLineas(LineasWhite, codigo);
    return UltimoContraste.verRegresion != 0 ? AnadirRegresion(informe, ventana, codigo, nullptr) : 1;
}
