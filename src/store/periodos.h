// Data types, the texts of the periods, and the sample: which rows exist, what they are called, and which of them
// the next command works on.
#pragma once

#include "platform/plataforma.h"
#include "store/limites.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// Panel data: who and when.
struct EntradaPeriodoPanel { // variable panel, period first
    std::int32_t individuos;
    char periodo[12];
};
struct EntradaIndividuoPanel { // variable panel, individual first
    std::int32_t orden;
    std::int32_t numPeriodos;
    char periodos[MaxPeriodosIndividuo][10];
};
enum FormasPanel { PanelConstante = 0, PanelVariable = 1 };
enum ConceptosPanel { PeriodoPrimero = 0, IndividuoPrimero = 1 };

struct DescripcionDePanel {
    std::int32_t FormaPanel;     // FormasPanel
    std::int32_t PrimerConcepto; // ConceptosPanel
    char EtiquetasIndividuo[MaxIndividuosEtiqueta][AnchoEtiqueta];
    std::int32_t NumEntradas;      // constant: individuals; variable: entries of the list
    std::int32_t TipoPeriodoPanel; // constant: 1 annual, 2 quarterly, 3 monthly
    EntradaPeriodoPanel periodos[MaxObservaciones];
    EntradaIndividuoPanel individuos[MaxIndividuosEtiqueta];
};

extern DescripcionDePanel DescripcionPanel;

// The sample. The bounds are row indices, both included; the limits are what the user wrote, 0 for none.
struct EstadoDeMuestra {
    std::int32_t InicioMuestra, FinMuestra;
    std::int32_t InicioRegresion, FinRegresion;
    std::int32_t AnoInicial, AnoFinal;
    std::int32_t SubInicial, SubFinal;
    std::int32_t IndividuoInicial, IndividuoFinal;
    std::string LimiteInicial, LimiteFinal; // as written, blanks removed
    std::string TextoInicial, TextoFinal;   // rebuilt for the sample dialog
};

extern EstadoDeMuestra Muestra;

// Recomputes InicioMuestra and FinMuestra from the limits and the series. When series exist and none has a value
// beyond row 0 the end is 100,000: whoever uses the bounds checks them.
void ActualizarMuestra();

// Rows of the tables that can have texts and data, 0 to 4,000, whatever a damaged file put into NumObs.
int FilasEnUso();

// The end of a sample for whoever computes: a bound behind the tables, as a sample without data has, counts as the last row
// of the work file. A series that was declared and holds nothing yet must not stop everything else.
int FinDeCalculo(int ultima);

// Rows of a sample that the work file has; none when fin < inicio.
struct FilasDeMuestra {
    int inicio, fin;
};

// Sample bounds cut to the observations of the work file, whatever they are (the end can be 100,000).
FilasDeMuestra FilasDelArchivo(int inicio, int fin);

// MUEST: reads two periods from the whole statement line, keeps them as limits, then ActualizarMuestra.
void MuestraDeSentencia(std::string_view linea);

// OK of the sample dialog: the two fields, at most 18 characters each, then ActualizarMuestra.
void AceptarDialogoMuestra(std::string_view inicial, std::string_view final);

// Builds TextoInicial and TextoFinal from the limits, as the sample dialog shows them when it opens.
void PrepararDialogoMuestra();

// The four lines of the dialog of the present sample.
std::vector<std::string> LineasMuestraActual();

// Clears the limits that the user wrote.
void LimpiarLimitesMuestra();

// Builds the period texts, labels of panel rows and NumObs for the present TipoDatos and TextoIntervalo, and rewrites
// TextoIntervalo; part of VaciarArchivoTrabajo.
void ConstruirPeriodos();
