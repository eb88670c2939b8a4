// Predictions from the last regression, and how well they meet what was observed.
#pragma once

#include "platform/plataforma.h"
#include "store/archivo.h"

#include <span>
#include <string>

enum ModosEvaluacion { EvaluarOriginales = 0, EvaluarTasas = 1, EvaluarIncrementos = 2 };

// What the dialog holds, as it opens.
struct ValoresPrediccion {
    std::string inicio, fin; // periods of the range; a blank or unknown one means that of the regression
    std::string codigoPred = "_PRED", codigoDtm = "_DTPVM", codigoDti = "_DTPVI";
    ModosEvaluacion modo = EvaluarOriginales;
};

inline constexpr int AnchoPeriodoPrediccion = 50; // characters of the fields of the periods
inline constexpr int AnchoCodigoPrediccion = 13;  // characters of the fields of the codes

// Predictions p against observations a, m of each.
struct MedidasPrediccion {
    double EAM;                        // mean of the absolute errors
    double ECM;                        // mean of the squared errors
    double COP;                        // correlation
    double Theil;                      // U: root of ECM over the root of the mean of the squared observations
    double sesgo, varianza, aleatorio; // the parts of ECM; they add up to 1
};

// What can't be divided is 0, and the random part the rest of 1. (H. Theil 1966, Applied Economic Forecasting, ch. 2.)
MedidasPrediccion MedirPrediccion(std::span<const double> p, std::span<const double> a);

// The last prediction: what its window and its diagram show.
struct EstadoPrediccion {
    int inicioPred, finPred; // rows; the evaluation narrows them
    Codigo codigoPred;       // predicted values
    Codigo codigoDtm;        // standard deviation of the prediction of the mean value
    Codigo codigoDti;        // standard deviation of the prediction of an individual value
    int modoEvaluacion;      // ModosEvaluacion
    // The columns that are compared, by row. The mode says whether they hold values, rates or increments.
    double prediccionEval[MaxObservaciones], observacionEval[MaxObservaciones];
    MedidasPrediccion medidas;
    bool evaluada; // the prediction came to its report
};

extern EstadoPrediccion Prediccion;

// Before the dialog opens: 1, or 0 after "Realice una regresión", title "Proceso cancelado".
int EmpezarPrediccion(Ventana *ventana);

// OK: predicts over the range, keeps prediction and deviations as series, and opens the window of the evaluation. 1, or 0
// after a message "texto. Pto n", title "Proceso cancelado": "No existe la matriz Beta", 1; "Borre algunas series", 1; "No
// existe la matriz de covarianza", 1; "Se ha borrado la variable dependiente", 1; "Muestra no válida", 11 for a range with
// fewer than two observed values, 1 for one that rates and increments leave too short. What was stored before stays.
int AceptarPrediccion(Ventana *ventana, const ValoresPrediccion &valores);
