// The diagram of predictions against observations.
#include "analysis/diagrama_prediccion.h"

#include "analysis/prediccion.h"
#include "charts/graficos/regresion_grafico.h"
#include "estimation/regresion.h"
#include "platform/campos_texto.h"

int AbrirDiagramaPrediccion(Ventana *ventana) {
    const EstadoPrediccion &p = Prediccion;
    if (!p.evaluada || p.modoEvaluacion == EvaluarOriginales) return 0;
    const DatosPrediccion datos = {{p.prediccionEval + p.inicioPred, p.prediccionEval + p.finPred + 1},
                                   {p.observacionEval + p.inicioPred, p.observacionEval + p.finPred + 1},
                                   p.inicioPred,
                                   std::string(Recortado(UltimaRegresion.CodigoDependiente))};
    return AbrirGraficoDePrediccion(ventana, datos);
}
