// The charts of the last regression and of its predictions.
#pragma once

#include "charts/graficos/grafico.h"

#include <string>
#include <vector>

// How the chart of residuals learns whether they are standardized.
enum ResiduosDelGrafico { PreguntarPorResiduos, ResiduosOrdinarios, ResiduosEstandarizados };

// The chart of residuals, over the sample of the last regression. `desviacion` is the standard error of the residuals. 1,
// or 0 after a message ("Tipo de datos no válido", title "Proceso cancelado"; "No existe la serie de residuos", title
// "Aviso") or after Cancel in the question.
int AbrirGraficoDeResiduos(Ventana *ventana, double desviacion, ResiduosDelGrafico residuos);

// The chart of observed and estimated values. 1, or 0 after "No existe la variable dependiente" or "No existe la serie de
// residuos", title "Aviso".
int AbrirGraficoDeValores(Ventana *ventana);

// What the diagram of predictions against observations shows: values of successive rows, from `primera` of the work
// file on.
struct DatosPrediccion {
    std::vector<double> prediccion, observacion;
    int primera;
    std::string nombre; // in the legend
};

// The diagram, ready for the command "&Gráficos" of a result window. False when there are no values.
bool ComponerGraficoDePrediccion(const DatosPrediccion &datos, Grafico &g);

// The same, opened. 1, or 0 when there are no values.
int AbrirGraficoDePrediccion(Ventana *ventana, const DatosPrediccion &datos);

// The chart that an option of an estimation dialog asks for: needs a regression ("Efectue primero una regresión", title
// "Aviso"), and for the residuals takes _DTR as their standard error.
int AbrirGraficoDeRegresion(Ventana *ventana, ClasesDeGrafico clase,
                            ResiduosDelGrafico residuos = PreguntarPorResiduos);
