// CRA: ranks by sorting, then a chain of formulas.
#include "hypothesis/rangos.h"

#include "estimation/regresion.h"
#include "hypothesis/informe_contrastes.h"
#include "hypothesis/orden.h"
#include "language/cadena.h"
#include "language/traza.h"
#include "platform/campos_texto.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

constexpr std::size_t InicioOrdenacion = 4; // the text stands behind the word and one character

constexpr PasoCadena PasosCopia[] = {
    {PasoSerie, TodasLasFilas, "_TMP2", "_TMP1", "Copia de la variable de ordenación, para ordenarla"_w, 11,
     12},
    {PasoSerie, TodasLasFilas, "_TMP3", " 0 ", "Sitio para los rangos", 13, 14},
};
constexpr PasoCadena PasosRangoOrdenacion[] = {
    {PasoSerie, TodasLasFilas, "_TMP1", "_TMP3", "Rangos de la variable de ordenación"_w, 15, 16},
    {PasoSerie, TodasLasFilas, "_TMP2", "_RES", "Residuos, para ordenar sus valores absolutos", 17, 18},
};
constexpr PasoCadena PasosCorrelacion[] = {
    {PasoSerie, TodasLasFilas, "_TMP2", "_TMP3", "Rangos de los valores absolutos de los residuos", 20, 21},
    {PasoSerie, TodasLasFilas, "_TMP3", "_TMP1 - MEDSER(_TMP1)",
     "Rangos de la ordenación en desviaciones a su media"_w, 22, 23},
    {PasoSerie, TodasLasFilas, "_TMP4", "_TMP2 - MEDSER(_TMP2)",
     "Rangos de los residuos en desviaciones a su media", 24, 25},
    {PasoSerie, TodasLasFilas, "_TMP5", "_TMP3 * _TMP4", "Productos de las desviaciones", 26, 27},
    {PasoSerie, TodasLasFilas, "_TMP6", "_TMP3 *_TMP3",
     "Cuadrados de las desviaciones de los rangos de la ordenación"_w, 28, 29},
    {PasoSerie, TodasLasFilas, "_TMP7", "_TMP4 *_TMP4",
     "Cuadrados de las desviaciones de los rangos de los residuos", 30, 31},
    {PasoEscalar, TodasLasFilas, "_TMP8", " RCUAD((SUMSER(_TMP6) * SUMSER(_TMP7)))",
     "Denominador de la correlación: raíz del producto de las sumas de cuadrados"_w, 32, 33},
    {PasoEscalar, TodasLasFilas, "_TMP9", " SUMSER(_TMP5)/_TMP8",
     "Coeficiente de correlación por rangos de Spearman"_w, 34, 35},
    {PasoEscalar, PrimeraFila, "_TMP10", "(_TMP9 * RCUAD(%(n)d-2))/(RCUAD(1.0 - POT(_TMP9,2)))",
     "Estadístico t de la correlación por rangos"_w, 36, 37},
    {PasoEscalar, PrimeraFila, "_TMP11", "%(n)d-2", "Grados de libertad: observaciones menos 2", 38, 39},
    {PasoEscalar, PrimeraFila, "_TMP12", "PROBT(_TMP10,_TMP11)", "Probabilidad del estadístico t"_w, 40, 41},
};

// The rows of the sample of the last regression that exist.
struct Filas {
    int primera, ultima;
};

int SinVariables(Ventana *ventana, int punto) {
    return MensajeCancelado(ventana, Formatear(MensajesVariables.alEvaluar, punto));
}

// The rank of each value is the first row where the sorted series holds it, counted from the start of the series: equal
// values take the lowest, and the start of the sample falls out with the mean.
void AnotarRangos(const std::vector<double> &valores, const std::vector<double> &ordenados, int destino,
                  Filas f) {
    for (std::size_t i = 0; i < valores.size(); ++i) {
        const auto lugar = std::find(ordenados.begin(), ordenados.end(), valores[i]);
        if (lugar == ordenados.end()) continue;
        const int rango = f.primera + static_cast<int>(lugar - ordenados.begin()) + 1;
        PonerObservacion(f.primera + static_cast<int>(i), destino, rango, 1);
    }
}

// From the copy in _TMP2 to the ranks of `original` in _TMP3. The keys are the values, or their absolute ones.
int Clasificar(Ventana *ventana, const char *original, int puntoOriginal, bool absolutos, Filas f) {
    const int serie = BuscarSerie(original), copia = BuscarSerie("_TMP2"), rangos = BuscarSerie("_TMP3");
    if (serie < 0) return SinVariables(ventana, puntoOriginal);
    if (copia < 0 || rangos < 0) return SinVariables(ventana, rangos < 0 ? 3 : 2);
    std::vector<double> claves = ValoresDeFilas(copia, f.primera, f.ultima);
    if (absolutos)
        for (double &clave : claves) clave = std::fabs(clave);
    ReordenarSerie(copia, f.primera, OrdenarPorIntercambio(claves));
    AnotarRangos(ValoresDeFilas(serie, f.primera, f.ultima), ValoresDeFilas(copia, f.primera, f.ultima),
                 rangos, f);
    if (Trazando()) {
        const FilasTraza filas = {f.primera, f.ultima};
        TrazarSerie(
            "_TMP2",
            ConPeriodos(std::string(original) + (absolutos ? " por orden de |valor|" : " por orden de valor"),
                        filas),
            "Valores ordenados de menor a mayor", filas);
        TrazarSerie("_TMP3",
                    ConPeriodos(std::string("primera fila de _TMP2 igual a ") + original + "(t)", filas),
                    "Rangos: filas desde el principio de las series; a valores iguales, la menor"_w, filas);
    }
    return 1;
}

// The ordering variable as _TMP1. Its failures are told in words of their own; those of a full table of series name the
// scalars.
int LeerOrdenacion(const Cadena &c) {
    const std::string_view linea = Recortado(LineaDelNivel(*c.lineas), RecorteDerecha);
    UltimoContraste.ordenacion = linea.substr(std::min(InicioOrdenacion, linea.size()));
    switch (SerieDeFormulaEscrita(c, "_TMP1", UltimoContraste.ordenacion, "Variable de ordenación"_w)) {
    case FormulaErronea: return MensajeAviso(c.ventana, MensajesAvisoCalculos.alEvaluar);
    case FormulaSinGuardar: return MensajeAviso(c.ventana, MensajesAvisoCalculos.alGuardar);
    default: break;
    }
    return BuscarSerie("_RES") >= 0 ? 1 : MensajeCancelado(c.ventana, "Realize primero una regresión. P11"_w);
}

int Contrastar(LineasSentencia &lineas, Ventana *ventana) {
    Cadena c{&lineas, ventana, Muestra.InicioRegresion, Muestra.FinRegresion, &MensajesVariables};
    const Filas f = {std::max(c.primera, 0), std::min(c.ultima, MaxObservaciones - 1)};
    const DatoCadena datos[] = {DatoNumero("n", c.ultima - c.primera + 1)};
    c.datos = datos;
    if (LeerOrdenacion(c) == 0 || EjecutarCadena(c, PasosCopia) == 0) return 0;
    if (Clasificar(ventana, "_TMP1", 2, false, f) == 0) return 0;
    if (EjecutarCadena(c, PasosRangoOrdenacion) == 0) return 0;
    if (Clasificar(ventana, "_RES", 19, true, f) == 0) return 0;
    if (EjecutarCadena(c, PasosCorrelacion) == 0) return 0;
    MostrarInformeContraste(ventana, OrdenCRA);
    return 1;
}

} // namespace

int ContrasteRangos(LineasSentencia &lineas, Ventana *ventana) {
    const int bien = Contrastar(lineas, ventana);
    BorrarTemporales(ventana, OrdenCRA);
    return bien;
}
