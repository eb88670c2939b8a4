// The lines of the tests' reports, as tables of their statistics under the common head.
#include "hypothesis/informe_contrastes.h"

#include "charts/resultados/partes_informe.h"
#include "estimation/regresion.h"
#include "hypothesis/hipotesis_nula.h"
#include "language/cadena.h"
#include "platform/campos_texto.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/periodos.h"

namespace {

// ----- CRA, CDU, CWA

constexpr LineaDeInforme LineasRangos[] = {
    {1,
     "      Estadístico t(%3s) :%10s    Prob > |t| :%10s "_w,
     {DeEscalar("_TMP11", "Grados de libertad", 0, 3), DeEscalar("_TMP10", "Estadístico t"_w),
      DeEscalar("_TMP12", "Prob > |t|")}},
};

constexpr LineaDeInforme LineasDurbin[] = {
    {2,
     "    h de Durbin %10s         Prob > |N| :%10s ",
     {DeEscalar("_TMDU", "h de Durbin"), DeEscalar("_TMDN", "Prob > |N|")}},
};

constexpr LineaDeInforme LineasWallis[] = {
    {2, "                     Wallis    :    %10s", {DeEscalar("_DWWA", "Wallis")}},
};

std::span<const LineaDeInforme> LineasDe(int codigo) {
    if (codigo == OrdenCRA) return LineasRangos;
    if (codigo == OrdenCDU) return LineasDurbin;
    return LineasWallis;
}

DatosCabecera CabeceraDeRegistro() {
    return {.dependiente = std::string(Recortado(UltimaRegresion.CodigoDependiente)),
            .nombres = UltimaRegresion.CodigosRegresores,
            .muestra = TextoDeFilas(Muestra.InicioRegresion, Muestra.FinRegresion),
            .observaciones = Muestra.FinRegresion - Muestra.InicioRegresion + 1};
}

int ProducirContraste(InformeProducido &informe, Ventana *ventana, int codigo) {
    DatosCabecera cabecera = CabeceraDeRegistro();
    if (codigo == OrdenCRA)
        cabecera.mas = Formatear("Variable de ordenación : %-24s                   "_w,
                                 UltimoContraste.ordenacion.c_str());
    AnadirCabecera(informe.lineas, CabeceraDeContraste, cabecera);
    if (!AnadirLineas(informe.lineas, LineasDe(codigo), codigo))
        return MensajePunto(ventana, SecuenciaNoValida, 871);
    AnadirFuentes(informe.fuentes, informe.lineas, LineasDe(codigo), codigo);
    informe.tabla = TablaDeLineas(LineasDe(codigo), codigo);
    return 1;
}

// ----- CHN

enum GruposHipotesis { GrupoCabecera, GrupoRestriccion, GrupoEstadistico };

constexpr FormatoCabecera CabeceraDeHipotesis = {
    CabeceraDeContraste.dependiente, CabeceraDeContraste.regresores, CabeceraDeContraste.largoLista, "", 85};

// The line is written with fields of its own rule; this is what the spreadsheet gets.
constexpr LineaDeInforme LineaHipotesis[] = {
    {GrupoEstadistico,
     " Estadístico F(%3s,%3s) :%10s    Prob > F :%10s"_w,
     {NumeroDado("Grados de libertad 1", 0, 3), DeEscalar("_NORE", "Grados de libertad 2", 0, 3),
      DeEscalar("_FORLARH", "Estadístico F"_w), DeEscalar("_ESTFH", "Prob > F")}},
};

double ValorDe(const char *escalar) {
    const int e = BuscarEscalar(escalar);
    return e < 0 ? 0.0 : TablaEscalares.registro[e].Valor;
}

} // namespace

void MostrarInformeContraste(Ventana *ventana, int codigo) {
    MostrarSalida(ventana, codigo, ProducirContraste);
}

void VentanaHipotesisNula(Ventana *ventana) {
    TextoSalida lineas;
    AnadirCabecera(lineas, CabeceraDeHipotesis, CabeceraDeRegistro());
    for (int i = 0; i < HipotesisNula.q; ++i)
        AnadirLinea(lineas, GrupoRestriccion,
                    "  " + HipotesisNula.textosGuardados[static_cast<std::size_t>(i)]);
    AnadirLinea(lineas, GrupoEstadistico,
                Formatear(LineaHipotesis[0].formato, NumeroFijo(HipotesisNula.q, 0, 3).c_str(),
                          NumeroFijo(ValorDe("_NORE"), 0, 3).c_str(),
                          NumeroFijo(ValorDe("_FORLARH"), 4, 10).c_str(),
                          NumeroFijo(ValorDe("_ESTFH"), 4, 10).c_str()));
    FuentesDeSalida fuentes;
    AnadirFuentes(fuentes, lineas, LineaHipotesis, OrdenCHN);
    const double q[] = {static_cast<double>(HipotesisNula.q)};
    const std::string tabla = TablaDeLineas(LineaHipotesis, OrdenCHN, q);
    const std::string titulo = "Contraste de significatividad: Hipótesis nula"_w;
    SalidaResultado salida = {};
    salida.tipo = SalidaHipotesis;
    salida.titulo = titulo;
    salida.Clase = OrdenCHN;
    salida.lineas = &lineas;
    salida.tabla = tabla;
    salida.fuentes = &fuentes;
    MostrarVentanaResultado(ventana, salida);
}
