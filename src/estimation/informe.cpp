// The kinds of report, and the way of each to its window.
#include "estimation/informe.h"

#include "estimation/informes_contraste.h"
#include "estimation/regresion.h"
#include "language/lote_sentencias.h"
#include "platform/texto.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr int CualquierCovarianza = 0;
constexpr int LineasDeEstadisticosSinRegla = 3; // at the end of the block of a regression

// A kind of report: what its window and its paper are called, and what is asked before it is shown.
struct ClaseDeInforme {
    int codigo;
    int covarianza;          // of the last regression, where the title depends on it
    const char *titulo;      // takes RetardosCovarianza
    const char *impresos[2]; // centred on paper, a row each; none: the title of the window
    int finalesSinRegla = 0;
    bool soloOrdinarios = false; // has no sense on weighted data
    bool pregunta = false;       // shown only if the user wants to see it
};

constexpr const char *ImpresoMC = "Método: Mínimos cuadrados ordinarios"_w;
constexpr const char *ImpresoMCP = "Método: Mínimos cuadrados ponderados"_w;
constexpr int Tres = LineasDeEstadisticosSinRegla;

constexpr ClaseDeInforme ClasesDeInforme[] = {
    {OrdenMC,
     CovarianzaHeterocedasticidad,
     "Mínimos C.: Matriz de covarianzas consistente bajo heterocedasticidad"_w,
     {ImpresoMC, "Matriz de covarianzas consistente bajo heterocedasticidad"},
     Tres,
     false,
     true},
    // Only the window's title names this covariance.
    {OrdenMC,
     CovarianzaAutocorrelacion,
     "Mínimos C.: Matriz de covarianzas consistente bajo autocorrelacion (%d r.)"_w,
     {ImpresoMC},
     Tres,
     false,
     true},
    {OrdenMC, CualquierCovarianza, "Mínimos cuadrados ordinarios"_w, {ImpresoMC}, Tres, false, true},
    {OrdenCR, CualquierCovarianza, "Contrastes de significatividad: Modelo restringido", {}},
    {OrdenMGN, CualquierCovarianza, "", {}, 0, true},
    {OrdenMGD, CualquierCovarianza, "Contrastes de heteroscedasticidad: Goldfeld y Quandt", {}, Tres, true},
    {OrdenCWH, CualquierCovarianza, "Contrastes de heteroscedasticidad: White", {}},
    {OrdenMCP, CualquierCovarianza, "Mínimos cuadrados ponderados"_w, {ImpresoMCP}, Tres, false, true},
    {OrdenCWA, CualquierCovarianza, "Contrastes de autocorrelación: Wallis"_w, {}},
    {OrdenCRA, CualquierCovarianza, "Contrastes de heteroscedasticidad: Rangos", {}, 0, true},
    {OrdenCDU, CualquierCovarianza, "Contrastes de autocorrelación: h de Durbin"_w, {}},
};

// The row of a code under the covariance of the last regression; of a code without one, a row with nothing in it.
const ClaseDeInforme &ClaseDe(int codigo) {
    static constexpr ClaseDeInforme Ninguna = {OrdenDesconocida, CualquierCovarianza, "", {}};
    const auto *fila =
        std::find_if(std::begin(ClasesDeInforme), std::end(ClasesDeInforme), [&](const ClaseDeInforme &c) {
            return c.codigo == codigo &&
                   (c.covarianza == CualquierCovarianza || c.covarianza == UltimaRegresion.TipoCovarianza);
        });
    return fila != std::end(ClasesDeInforme) ? *fila : Ninguna;
}

bool QuiereVer(Ventana *ventana) {
    return Lote.VerRegresion != 0 && MostrarCaja(ventana, "¿Desea ver la regresion?"_w, TituloAviso,
                                                 IconoPregunta, BotonesSiNo) == RespuestaSi;
}

} // namespace

std::string TituloRegresion(int codigo) {
    return Formatear(ClaseDe(codigo).titulo, UltimaRegresion.RetardosCovarianza);
}

void PonerClase(SalidaResultado &salida, int codigo) {
    const ClaseDeInforme &clase = ClaseDe(codigo);
    salida.Clase = codigo;
    salida.finalesSinRegla = clase.finalesSinRegla;
    salida.papel.titulos.clear();
    for (const char *titulo : clase.impresos)
        if (titulo != nullptr) salida.papel.titulos.emplace_back(titulo);
}

void MostrarSalida(Ventana *ventana, int clase, ProductorDeInforme producir) {
    const ClaseDeInforme &fila = ClaseDe(clase);
    if (fila.soloOrdinarios && UltimaRegresion.MetodoRegresion == OrdenMCP)
        return MostrarMensaje(ventana, "Utilice MC ordinarios");
    if (fila.pregunta && !QuiereVer(ventana)) return;
    InformeProducido informe;
    if (producir(informe, ventana, clase) == 0) return;
    const std::string titulo = TituloRegresion(clase);
    SalidaResultado salida = {.tipo = SalidaRegresion,
                              .titulo = titulo,
                              .Clase = clase,
                              .Contenido = 0,
                              .lineas = &informe.lineas,
                              .fijas = nullptr,
                              .tablas = &informe.tablas,
                              .tabla = informe.tabla,
                              .regresiones = &informe.regresiones,
                              .fuentes = &informe.fuentes};
    PonerClase(salida, clase);
    MostrarVentanaResultado(ventana, salida);
}

namespace {

int InformeDeRegresion(InformeProducido &informe, Ventana *ventana, int codigo) {
    if (BloqueRegresion(informe.lineas, informe.tablas, ventana, codigo, nullptr, &informe.fuentes) == 0)
        return 0;
    informe.regresiones.push_back(RegresionDe(codigo, nullptr));
    informe.tabla = TablaRegresion(codigo);
    return 1;
}

constexpr struct {
    int codigo;
    ProductorDeInforme producir;
} InformesDeContraste[] = {
    {OrdenCR, InformeModeloRestringido},
    {OrdenMGD, InformeGoldfeldQuandt},
    {OrdenCWH, InformeWhite},
};

} // namespace

void MostrarRegresion(Ventana *ventana, int codigo) {
    for (const auto &i : InformesDeContraste)
        if (i.codigo == codigo) return MostrarSalida(ventana, codigo, i.producir);
    MostrarSalida(ventana, codigo, InformeDeRegresion);
}
