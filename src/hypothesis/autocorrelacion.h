// The autocorrelation functions of a series, estimated and partial: coefficients, bands and listing.
#pragma once

#include "charts/resultados/resultado.h"
#include "platform/plataforma.h"
#include "store/archivo.h"

#include <string>

// The functions, by the commands that ask for them.
enum FuncionesAutocorrelacion { FuncionEstimada = 2073, FuncionParcial = 2093 };

enum TiposDeBanda { BandaUniforme = 0, BandaArma = 1, SinBanda = 2 };
enum MarcasIntervalos { MarcasAlMedio = 1, MarcasParteInferior = 2, SinMarcas = 3 };

inline constexpr int AnchoTituloAutocorrelacion = 60; // characters of the title of the chart

// What listing and chart show: the last function computed.
struct EstadoAutocorrelacion {
    double coeficientes[SitiosRetardo]; // by lag; element 0 is 0
    double desviaciones[SitiosRetardo]; // half-width of the band "Arma" at each lag
    int funcion;                        // FuncionesAutocorrelacion
    int retardos;                       // as entered
    Codigo serie;
    double bandaUniforme; // 1.96 over the root of the sample size
    int tipoBanda;        // TiposDeBanda
    int conTitulo;        // 1: the chart has a title
    int tituloAbajo;      // 1: it stands below the chart
    int marcas;           // MarcasIntervalos
    std::string titulo;
    int observaciones; // of the sample
};

extern EstadoAutocorrelacion Autocorrelacion;

// What the dialog holds, as it opens.
struct ValoresAutocorrelacion {
    std::string serie;    // the line of the list that is chosen, empty for none
    std::string retardos; // field of the number of lags or coefficients
    bool conTitulo = true;
    std::string titulo = " ";
    bool tituloArriba = true;
    MarcasIntervalos marcas = MarcasAlMedio;
    TiposDeBanda banda = BandaUniforme;
};

// Title of the listing and of the chart, and what the dialog calls itself.
const char *TituloAutocorrelacion(int funcion);
const char *TituloDialogoAutocorrelacion(int funcion);
// The text in front of the field of lags.
const char *RotuloRetardos(int funcion);

// The lags that listing and chart show: those entered, as far as the sample and the arrays go.
int RetardosMostrados();

// OK: keeps the options, computes the function over the present sample and opens its listing. Missing values count as
// their stored zeros. 1, or 0 without a listing after a box "Aviso": "Serie no válida.", "No se puede calcular el
// coeficiente." for a series that doesn't vary, or the message of a coefficient that is none. The number of lags is taken as
// it comes. Where the partial coefficients can't be computed the box "Se ha producido un error en los cálculos" comes and the
// listing shows zeros in their places.
int AceptarAutocorrelacion(Ventana *ventana, int funcion, const ValoresAutocorrelacion &valores);

// The listing, and the same for a spreadsheet.
TextoSalida LineasAutocorrelacion();
std::string TablaAutocorrelacion();

// The chart of the function that the listing shows, under its title. Always 1.
int AbrirGraficoAutocorrelacion(Ventana *ventana);
