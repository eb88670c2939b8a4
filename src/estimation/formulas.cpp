// The protocol by which a regression runs its formula texts.
#include "estimation/estimacion.h"

#include "language/asignaciones.h"
#include "language/lote_sentencias.h"
#include "matrix/formula_matriz.h"
#include "platform/campos_texto.h"
#include "store/archivo.h"
#include "store/periodos.h"

namespace {

// Writes the text into the next level and raises it. The evaluator starts as it does with a statement: what an earlier
// formula left on the stack would fill it, and its lag would clear rows of the next series stored. False at the last
// level. `nivel` receives the level to go back to.
bool SubirNivel(Estimacion &e, const std::string &texto, int &nivel) {
    nivel = Evaluador.NivelLinea;
    if (nivel >= MaxNiveles - 1) return false;
    (*e.lineas)[static_cast<std::size_t>(nivel) + 1] = texto;
    LimpiarEvaluador();
    Evaluador.NivelLinea = nivel + 1;
    return true;
}

bool Evaluar(Estimacion &e, const std::string &texto, int primera, int ultima) {
    int nivel = 0;
    if (!SubirNivel(e, texto, nivel)) return false;
    int posicion = 0;
    const int bien = EvaluarFormula(*e.lineas, posicion, primera, ultima);
    Evaluador.NivelLinea = nivel;
    return bien == 1;
}

} // namespace

int MatrizDeFormula(Estimacion &e, std::string_view destino, const std::string &texto, int primera,
                    int ultima) {
    int nivel = 0;
    if (!SubirNivel(e, texto, nivel)) return 0;
    PonerCampo(Evaluador.CodigoMatrizDestino, destino, AnchoCodigo);
    int posicion = 0;
    const int bien = EvaluarFormulaMatriz(*e.lineas, posicion, e.ventana, primera, ultima);
    Evaluador.NivelLinea = nivel; // the brace form leaves it raised
    return bien;
}

FinesDeFormula EscalarDeFormula(Estimacion &e, std::string_view destino, const std::string &texto,
                                int &causa) {
    PonerCampo(Evaluador.CodigoEscalarDestino, destino, AnchoCodigo);
    causa = 0;
    if (!Evaluar(e, texto, Muestra.InicioRegresion, Muestra.InicioRegresion)) return FormulaErronea;
    causa = GuardarEscalar();
    return causa == 0 ? FormulaGuardada : FormulaSinGuardar;
}

FinesDeFormula SerieDeFormula(Estimacion &e, std::string_view destino, const std::string &texto) {
    PonerCampo(Evaluador.CodigoSerieDestino, destino, AnchoCodigo);
    if (!Evaluar(e, texto, Muestra.InicioRegresion, Muestra.FinRegresion)) return FormulaErronea;
    return GuardarSerie() == 1 ? FormulaGuardada : FormulaSinGuardar;
}

double *ElementosDe(std::string_view matriz) {
    const int m = BuscarMatriz(matriz);
    if (m < 0 || !FijarMatriz(m)) return nullptr;
    return TablaMatrices.registro[m].Datos;
}

int ParteSinEnsamblar(Estimacion &e) {
    return NoEnsamblada(e.ventana);
}
