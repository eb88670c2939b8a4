// The engine of least squares: equation, pipeline, record, report.
#include "estimation/regresion.h"

#include "estimation/ecuacion.h"
#include "estimation/informe.h"
#include "estimation/pasos.h"
#include "estimation/ponderacion.h"
#include "language/lote_sentencias.h"
#include "platform/campos_texto.h"
#include "store/archivo.h"
#include "store/periodos.h"
#include "store/temporales.h"

RegistroRegresion UltimaRegresion;
RegistroContraste UltimoContraste;

void IniciarRegresion() {
    UltimoContraste = {};
    UltimaRegresion = {};
    UltimaRegresion.MetodoRegresion = OrdenMC;
    UltimaRegresion.TipoCovarianza = CovarianzaNormal;
    UltimaRegresion.RetardosCovarianza = 1;
    UltimaRegresion.RegresorRetardado = -1;
    PonerCampo(UltimaRegresion.CodigoDependiente, "", AnchoCodigo);
    PonerCampo(UltimaRegresion.DependienteMostrado, "", AnchoCodigo);
}

namespace {

// The report reads the store with every block locked. A report that can't be built is no failure of the statement.
void Informar(Estimacion &e) {
    for (int m = 0; m < TablaMatrices.numero; ++m) FijarMatriz(m);
    MostrarRegresion(e.ventana, e.codigo);
    SoltarTodasMatrices();
}

// What the trace calls it.
const char *NombreDeRegresion(int codigo) {
    switch (codigo) {
    case OrdenMCP:
        return "Regresión por mínimos cuadrados ponderados: la dependiente, los regresores y los residuos llevan la ponderación"_w;
    case OrdenCR: return "Regresión del modelo restringido"_w;
    case OrdenMGN: return "Regresión del numerador del contraste"_w;
    case OrdenMGD: return "Regresión del denominador del contraste"_w;
    case OrdenCWH:
        return "Regresión auxiliar de White: cuadrados de los residuos sobre los regresores y sus términos de segundo grado"_w;
    default: return "Regresión por mínimos cuadrados ordinarios"_w;
    }
}

int Estimar(Estimacion &e, int posicion) {
    if (LeerEcuacion(e, posicion) == 0 || EjecutarPasos(e) == 0 || CompletarRegresion(e) == 0) return 0;
    SoltarTodasMatrices();
    if (UltimaRegresion.MetodoRegresion == OrdenMCP && GuardarResiduosOriginales(e) == 0) return 0;
    if (e.codigo != OrdenMGN) Informar(e); // MGD reports both
    return 1;
}

} // namespace

int EstimarRegresion(LineasSentencia &lineas, int &posicion, Ventana *ventana, int &codigo) {
    if (codigo < OrdenMC || codigo > OrdenMCP) return 0;
    const int primera = Muestra.InicioRegresion, ultima = Muestra.FinRegresion;
    Estimacion e;
    e.lineas = &lineas;
    e.ventana = ventana;
    e.codigo = codigo;
    const int grupo = AbrirGrupo(Recortado(LineaDelNivel(lineas)), NombreDeRegresion(codigo));
    const int bien = Estimar(e, posicion);
    CerrarGrupo(grupo, bien == 1);
    SoltarTodasMatrices();
    const bool paraMGD = bien == 1 && codigo == OrdenMGN;
    if (!paraMGD && !e.seQuedan) BorrarTemporales(ventana, codigo);
    if (codigo == OrdenCR) {
        // Its own lags may have moved the range, which the next test needs as MC left it.
        Muestra.InicioRegresion = primera;
        Muestra.FinRegresion = ultima;
    }
    return bien;
}

int BorrarTemporales(Ventana *ventana, int codigo) {
    return BorrarTemporales(ventana, codigo,
                            {UltimaRegresion.NumRegresores, UltimaRegresion.SeriesRegresion});
}
