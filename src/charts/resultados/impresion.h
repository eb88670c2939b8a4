// Print jobs: the printer is found, a document opened, and the routine of the thing printed runs.
#pragma once

#include "charts/resultados/resultado.h"
#include "platform/impresora.h"
#include "platform/plataforma.h"

#include <span>
#include <string_view>

// What is printed. The text of a report has no number of its own in this row: the result window prints it.
enum ClasesImpresion {
    ImprimirInforme = 0,
    ImprimirMatrices = 2,
    ImprimirSeries = 3,
    ImprimirGraficoAutocorrelacion = 4,
    ImprimirTablaAutocorrelacion = 6,
    ImprimirHistograma = 8,
    ImprimirHipotesis = 9,
    ImprimirGraficoSeries = 11,
    ImprimirCovarianza = 12,
    ImprimirValores = 13,
    ImprimirGraficoValores = 14,
    ImprimirGraficoResiduos = 15,
    ImprimirDescriptivos = 18,
    ImprimirVarianza = 19,
    ImprimirPrediccion = 20,
    ImprimirNormalidad = 21,
    ImprimirGraficoPrediccion = 22,
    ImprimirPantalla = 23
};

// A routine that prints one kind of thing: draws on the page that is open on `dispositivo`, and asks for more pages with
// NuevaPaginaImpresion. `datos` is what the kind prints, of the type that its row names. False when a step failed; what
// was drawn so far is kept.
using RutinaDeImpresion = bool (*)(DispositivoImpresion *dispositivo, Ventana *ventana, const void *datos);

struct FilaDeImpresion {
    int clase;
    RutinaDeImpresion rutina;
};

// The kinds that can be printed, with their routines. It stands above all folders (src/impresiones.cpp), so that a room
// that this one doesn't know supplies a kind by a row.
extern const std::span<const FilaDeImpresion> TablaImpresion;

// A routine with data of its own type, as a row takes it.
template <class> struct DatosDeRutina;
template <class Datos> struct DatosDeRutina<bool (*)(DispositivoImpresion *, Ventana *, const Datos &)> {
    using Tipo = Datos;
};
template <auto Rutina>
bool ConSusDatos(DispositivoImpresion *dispositivo, Ventana *ventana, const void *datos) {
    using Datos = typename DatosDeRutina<decltype(Rutina)>::Tipo;
    return Rutina(dispositivo, ventana, *static_cast<const Datos *>(datos));
}

// The default printer; null when there is none. There is nothing to choose: neither printer, pages nor copies.
DispositivoImpresion *AbrirImpresora();

// The job: a document "Imprime1: Imprimiendo", a page, the routine of `clase`, the end of page and document. `titulo` names
// the job for the outside; it isn't drawn. `datos` is what the routine of the class takes. 0, or 1 when there is no printer, a
// step fails, nothing prints this class yet, or there are no data; nobody is told.
int ImprimirSalida(Ventana *ventana, std::string_view titulo, int clase, const void *datos);

// The same job from a result window. 1 also for the boxes of lines that no printer takes.
int ImprimirResultado(Ventana *ventana, const SalidaResultado &salida);

// Page change. Every new page is a document of its own, "Imprime: Imprimiendo": with `primera` 0 the document of the
// preceding call is ended. The first page of a job is that of ImprimirSalida, so the first call has `primera` 1, all
// later ones 0. The device on which to go on, or null after "Error imprimiedo. 1" (no device), "Error imprimiedo. 3"
// (document refused) or "Error imprimiedo. 2" (page refused), all in the title "Aviso".
DispositivoImpresion *NuevaPaginaImpresion(Ventana *ventana, int primera);

// Ends the page that a routine has drawn on. False when the printer refuses.
bool TerminarPaginaImpresion(DispositivoImpresion *dispositivo);
