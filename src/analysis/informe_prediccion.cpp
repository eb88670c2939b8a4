// The report of a prediction.
#include "analysis/informe_prediccion.h"

#include "analysis/diagrama_prediccion.h"
#include "analysis/prediccion.h"
#include "charts/resultados/partes_informe.h"
#include "estimation/regresion.h"
#include "language/lote_sentencias.h"
#include "platform/campos_texto.h"
#include "platform/texto.h"
#include "store/periodos.h"

#include <algorithm>
#include <iterator>

namespace {

enum GruposPrediccion { GrupoCabecera = 0, GrupoMedidas = 1 };

// By ModosEvaluacion.
constexpr const char *NombresModo[] = {"Valores originales", "Tasas de variación"_w, "Incrementos absolutos"};

constexpr std::size_t TopeRegresores =
    70; // a line that a name of 12 characters would bring there takes no further one

struct LineaDeMedida {
    const char *formato, *rotulo; // the second for a spreadsheet; null: a line without a number
    double MedidasPrediccion::*valor;
    const char *paso; // of the trace
};

constexpr LineaDeMedida Medidas[] = {
    {"         Error absoluto medio (EAM)...: %10s", "Error absoluto medio (EAM)", &MedidasPrediccion::EAM,
     "eam"},
    {"         Error cuadrático medio (ECM).: %10s"_w, "Error cuadrático medio (ECM)"_w,
     &MedidasPrediccion::ECM, "ecm"},
    {"         Corre. valores obs.-pre.(COP): %10s", "Corre. valores obs.-pre.(COP)", &MedidasPrediccion::COP,
     "correlacion"},
    {"  ", nullptr, nullptr, nullptr},
    {"         Ind. desig. de Theil.........: %10s", "Ind. desig. de Theil", &MedidasPrediccion::Theil,
     "theil"},
    {"                Componente de sesgo...: %10s", "Componente de sesgo", &MedidasPrediccion::sesgo,
     "sesgo"},
    {"                Componente varianza...: %10s", "Componente varianza", &MedidasPrediccion::varianza,
     "varianza"},
    {"                Componente aleatorio..: %10s", "Componente aleatorio", &MedidasPrediccion::aleatorio,
     "aleatorio"},
};

const char *Modelo() {
    return UltimaRegresion.MetodoRegresion == OrdenMC ? "Minimos cuadrados"
                                                      : "Mínimos cuadrados ponderados"_w;
}

std::string Dependiente() {
    return std::string(Recortado(UltimaRegresion.CodigoDependiente));
}

std::string LineaDeRegresores() {
    std::string linea = " Regresores: ";
    for (const std::string &codigo : UltimaRegresion.CodigosRegresores) {
        if (linea.size() + AnchoCodigo - 1 >= TopeRegresores) break;
        linea += std::string(Recortado(codigo)) + ",";
    }
    return linea;
}

// The measures are the last lines.
FuentesDeSalida FuentesDeMedidas(const TextoSalida &lineas) {
    FuentesDeSalida fuentes;
    int linea = static_cast<int>(lineas.size() - std::size(Medidas));
    for (const LineaDeMedida &l : Medidas) {
        if (l.paso != nullptr) fuentes.push_back({linea, {{l.paso}}});
        ++linea;
    }
    return fuentes;
}

} // namespace

TextoSalida LineasPrediccion() {
    const std::string inicio(TextoPeriodo(Prediccion.inicioPred)), fin(TextoPeriodo(Prediccion.finPred));
    TextoSalida t;
    AnadirLinea(t, GrupoCabecera, std::string(" Modelo: ") + Modelo());
    AnadirLinea(t, GrupoCabecera, Formatear(" Variable dependiente: %10s", Dependiente().c_str()));
    AnadirLinea(t, GrupoCabecera, LineaDeRegresores());
    AnadirLinea(
        t, GrupoCabecera,
        Formatear(" Período inicial pred.: %8s Período final pred.: %8s"_w, inicio.c_str(), fin.c_str()));
    AnadirLinea(t, GrupoCabecera, std::string(" ") + NombresModo[Prediccion.modoEvaluacion]);
    for (const LineaDeMedida &l : Medidas)
        AnadirLinea(t, GrupoMedidas,
                    l.rotulo == nullptr
                        ? std::string(l.formato)
                        : Formatear(l.formato, NumeroCopiado(4, 4, Prediccion.medidas.*l.valor, 10).c_str()));
    return t;
}

std::string TablaPrediccion() {
    std::string t =
        std::string("Modelo\t") + Modelo() + "\nVariable dependiente\t" + Dependiente() + "\nRegresores";
    for (const std::string &codigo : UltimaRegresion.CodigosRegresores)
        t += "\t" + std::string(Recortado(codigo));
    t += "\nMuestra\t" + std::string(TextoPeriodo(Prediccion.inicioPred)) + "\t" +
         std::string(TextoPeriodo(Prediccion.finPred)) + "\n";
    t += std::string(NombresModo[Prediccion.modoEvaluacion]) + "\n\n";
    for (const LineaDeMedida &l : Medidas)
        if (l.rotulo != nullptr)
            t += std::string(l.rotulo) + "\t" + NumeroExacto(Prediccion.medidas.*l.valor) + "\n";
    return t;
}

void MostrarPrediccion(Ventana *ventana) {
    const TextoSalida lineas = LineasPrediccion();
    const std::string tabla = TablaPrediccion();
    SalidaResultado salida = {};
    salida.tipo = SalidaPrediccion;
    salida.titulo = "Predicción y evaluación de la capacidad predictiva"_w;
    salida.lineas = &lineas;
    salida.tabla = tabla;
    const FuentesDeSalida fuentes = FuentesDeMedidas(lineas);
    salida.fuentes = &fuentes;
    // The diagram compares rates or increments.
    if (Prediccion.modoEvaluacion != EvaluarOriginales) salida.graficos = AbrirDiagramaPrediccion;
    MostrarVentanaResultado(ventana, salida);
}
