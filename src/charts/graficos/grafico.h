// A chart: the data it was opened with, what the user chose of it, where its parts stand, and what is being dragged. It
// keeps copies of what it draws, so nothing that happens to the work file reaches an open chart.
#pragma once

#include "charts/graficos/opciones_grafico.h"
#include "platform/plataforma.h"
#include "platform/superficie.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

enum ClasesDeGrafico {
    GraficoSeries,
    GraficoDispersion,
    GraficoResiduos,
    GraficoValores,
    GraficoPrediccion,
    GraficoAutocorrelacion,
    GraficoHistograma,
    NumClasesDeGrafico
};

struct SerieGrafico {
    std::string nombre;          // in the legend
    std::vector<double> valores; // one a row; a missing value is its stored 0
};

// The ends of the axes. Rows count from the first of the chart.
struct LimitesGrafico {
    double minX, maxX; // of a chart whose X axis shows values
    double minY, maxY;
    int primera, ultima; // rows charted, both included
};

struct CajaGrafico {
    int izquierda, superior, derecha, inferior;
    bool operator==(const CajaGrafico &) const = default;
};

// The parts that the mouse moves.
enum PartesDeGrafico { ParteLeyenda, ParteTitulo, ParteTituloY, ParteTituloX, NumPartesDeGrafico };

// Where the parts of a chart stand on a surface. A title stands at the corner of its box.
struct DisposicionGrafico {
    int ancho, alto, c, h; // the surface and its cell
    CajaGrafico area;
    std::array<CajaGrafico, NumPartesDeGrafico> parte;
    int separa; // between bars of autocorrelations, else 0
    bool enPapel;
};

enum EstadosDeLeyenda { LeyendaQuieta, LeyendaElegida, LeyendaMoviendose, LeyendaCambiandose };
enum LadosDeLeyenda { SinLado, LadoIzquierdo, LadoDerecho, LadoSuperior, LadoInferior };

struct ArrastreGrafico {
    int estadoLeyenda;                           // EstadosDeLeyenda
    LadosDeLeyenda lado;                         // that follows the mouse
    int titulo;                                  // part that follows the mouse, or ParteLeyenda for none
    std::array<bool, NumPartesDeGrafico> movida; // parts that no longer stand where the chart puts them
};

enum BandasDeGrafico { GraficoConBandaUniforme = 0, GraficoConBandaArma = 1, GraficoSinBanda = 2 };
enum MarcasDeGrafico { GraficoMarcasAlMedio = 1, GraficoMarcasAbajo = 2, GraficoSinMarcas = 3 };

// What the chart of an autocorrelation function shows.
struct DatosAutocorrelacion {
    std::vector<double> coeficientes, desviaciones; // index: lag; element 0 unused
    int retardos;                                   // asked for
    int observaciones;                              // size of the sample
    double bandaUniforme;
    int tipoBanda; // BandasDeGrafico
    int marcas;    // MarcasDeGrafico
    int conTitulo, tituloAbajo;
    int parcial; // 1: the partial function, as a print job says
    std::string titulo;
};

// What a histogram shows: one limit more than classes, rising.
struct DatosHistograma {
    std::vector<double> limites, frecuencias;
    int conTitulo, tituloArriba;
    std::string titulo;
};

struct Grafico {
    ClasesDeGrafico clase;
    std::string tituloVentana;
    OpcionesGrafico opciones;
    int muestra;                       // rows of the sample
    std::vector<std::string> periodos; // of each row, as the user writes it
    std::vector<double> numeros;       // that each of these texts begins with
    bool recortaPeriodos;              // labels of the X axis lose their first two characters
    std::vector<double> ejeX;          // values of the X axis where it shows values
    std::vector<SerieGrafico> series;
    // Charts of a regression.
    double desviacion; // standard error of the residuals
    int estandarizados, conBanda;
    int marcasAlMedio;  // labels of the X axis at the zero line, else at the bottom
    int marcasYAlMedio; // labels of the Y axis at the zero line, else at the left
    DatosAutocorrelacion autocorrelacion;
    DatosHistograma histograma;

    LimitesGrafico limites;
    DisposicionGrafico disposicion; // of the last painting in a window
    std::string errorInterno;       // of the same painting; empty when all of it was right
    ArrastreGrafico arrastre;
};

// What is told of a kind by a table.
struct ClaseDeGrafico {
    const char *titulo;        // of its window; that of an autocorrelation is its listing's
    const char *tituloImpreso; // of its print job
    int impresion;             // ClasesImpresion
    bool conOpciones;          // its window offers the option dialogs
    bool conOtras;             // and "Otras opciones"
    bool conPartes;            // legend and titles that the mouse moves
    bool conValoresEnX;        // the X axis shows values, not periods
    bool limitesIguales;       // both axes have the same limits
};
const ClaseDeGrafico &DescripcionDe(ClasesDeGrafico clase);

// A chart of the kind with default options over a sample of so many rows, nothing in it yet.
Grafico GraficoNuevo(ClasesDeGrafico clase, int muestra);

// Copies rows `primera` to `ultima` of the work file's periods, and one row more where there is one.
void TomarPeriodos(Grafico &g, int primera, int ultima);

// Copies the same rows of a series of the work file. False when no series has this code.
bool AnadirSerie(Grafico &g, std::string_view codigo, int primera, int ultima);

// The values of these rows of a series; empty when no series has this code.
std::vector<double> ValoresDeSerie(std::string_view codigo, int primera, int ultima);

// Finds the limits from data and options; whoever changes options calls it before the chart is drawn again.
void CalcularLimites(Grafico &g);

// Equal limits have no scale. The maximum that stands for an equal one: 1 more, or its own size more where 1 is lost among
// its digits.
double MaximoSeparado(double limite);

// Limits found, then the window of the chart; returns when it is closed.
void AbrirVentanaGrafico(Ventana *ventana, Grafico &g);

// Draws the chart on a window's client area, and notes in it where its parts stand and whether the drawing went wrong.
void PintarGrafico(Superficie &s, Grafico &g);

// The box of an error of the drawing itself, title "Aviso de error interno"; nothing when the last painting was right. A
// window shows it behind its painting, once.
void AvisarErrorInterno(Ventana *ventana, const Grafico &g);

// Draws what is selected or being dragged over the chart: outline and handles.
void PintarContorno(Superficie &s, const Grafico &g);

// A print job of the chart; result of ImprimirSalida. Plot, legend and titles keep the character cells that they have in
// the window. The diagram of predictions tells a failure: "Ha habido un error en la impresión", title "Aviso".
int ImprimirVentanaGrafico(Ventana *ventana, const Grafico &g);

// The numbers behind the chart for a spreadsheet: tabulators, all digits, a head line.
std::string TablaDeGrafico(const Grafico &g);
