// Chains of formulas: the steps by which estimators and tests are defined, as rows of a table, and their runner.
//
// A step is a row of a constexpr table; a chain is run by EjecutarCadena over a `Cadena`, which says where:
//
//     constexpr PasoCadena Pasos[] = {
//         {PasoSerie, TodasLasFilas, "_TMP6", "_TMP3 *_TMP3", "Cuadrados de las desviaciones", 28, 29},
//         {PasoEscalar, TodasLasFilas, "_TMP9", " SUMSER(_TMP5)/_TMP8", "Coeficiente de correlación"_w, 34, 35},
//         {PasoEscalar, PrimeraFila, "_TMP11", "%(n)d-2", "Grados de libertad", 38, 39},
//     };
//     const DatoCadena datos[] = {DatoNumero("n", n)};
//     Cadena c{&lineas, ventana, Muestra.InicioRegresion, Muestra.FinRegresion};
//     c.mensajes = &MensajesVariables;
//     c.datos = datos;
//     if (EjecutarCadena(c, Pasos) == 0) return Deshacer();
//
// The line behind the formula says what the step computes, in the words of a textbook, for whoever watches the computation.
//
// Placeholders stand in formulas and destinations: "%(name)" and the print format that the number or text takes, such as
// "%(media)10.6f", "%(gl)d", "%(ordenacion)s". A name is looked for in `datos` and then among the result families, with
// the suffix of `codigo`: "%(SCR)s" is _SCRGN for MGN. Formats are s, d and f with width and precision. Any other name
// stays as it is written, and its formula fails.
//
// Rows: a series gets its values in all rows of the chain. A scalar takes the first row; a formula that looks at other
// rows (SUMSER, MEDSER, lags) needs all of them evaluated, any other says PrimeraFila and costs one row.
//
// A step that fails shows one box behind those of the evaluators, and the chain ends there: what earlier steps stored is
// the caller's to delete. The evaluation stack is that of the batch, which is open while a statement runs.
#pragma once

#include "language/evaluador.h"
#include "platform/literal.h"

#include <span>
#include <string>
#include <string_view>

// ----- Steps

enum ClasesPaso {
    PasoMatriz, // its failures, of the store too, are those of the formula; rows matter to a text in braces only
    PasoEscalar,
    PasoSerie,
    PasoSerieDeMatriz // the formula is the name of a matrix; shows messages of its own, so that it has no points
};

enum FilasPaso { TodasLasFilas, PrimeraFila };

// What is shown when a result was computed and can't be stored.
enum FallosGuardar {
    GuardarPunto,    // the chain's message with puntoGuardar
    GuardarCausa,    // the same, the point raised by what GuardarEscalar answered
    GuardarSinPunto, // "Secuencia no válida. puntoGuardar. Pto cause"
    GuardarSeries    // "Borre algunas series. Pto puntoGuardar"
};

struct PasoCadena {
    ClasesPaso clase;
    FilasPaso filas;
    const char *destino;
    const char *formula;
    const char *explicacion;
    int puntoFormula = 0;
    int puntoGuardar = 0;
    FallosGuardar fallo = GuardarPunto;
};

// ----- Messages

inline constexpr const char *SecuenciaNoValida = "Secuencia no válida"_w;
inline constexpr const char *FaltanSeries = "Borre algunas series";

// The form of a chain's boxes. A text may hold one %d, the point; null shows no box.
struct MensajesCadena {
    const char *alEvaluar, *alGuardar;
    const char *titulo = TituloCancelado;
};

inline constexpr MensajesCadena MensajesSecuencia = {"Secuencia no válida. Pto %d"_w,
                                                     "Secuencia no válida. Pto %d"_w};
inline constexpr MensajesCadena MensajesCalculos = {"Error en cálculos. P%d"_w, "Error en cálculos. P%d"_w};
inline constexpr MensajesCadena MensajesVariables = {"No se pueden generar las variables temporales. P%d",
                                                     "No se pueden generar las variables temporales. P%d"};
inline constexpr MensajesCadena MensajesAvisoSecuencia = {SecuenciaNoValida, SecuenciaNoValida, TituloAviso};
inline constexpr MensajesCadena MensajesAvisoCalculos = {"Problemas en los cálculos"_w,
                                                         "Borre algunos escalares", TituloAviso};
inline constexpr MensajesCadena MensajesDelEvaluador = {nullptr, nullptr}; // those of the evaluators are all

// ----- Chains

// The value of a placeholder: `numero` for d and f, `texto` for s.
struct DatoCadena {
    std::string_view nombre;
    double numero;
    std::string texto;
};

inline DatoCadena DatoNumero(std::string_view nombre, double numero) {
    return {nombre, numero, {}};
}
inline DatoCadena DatoTexto(std::string_view nombre, std::string texto) {
    return {nombre, 0.0, std::move(texto)};
}

struct Cadena {
    LineasSentencia *lineas = nullptr;
    Ventana *ventana = nullptr;
    int primera = 0, ultima = 0; // rows, both included
    const MensajesCadena *mensajes = &MensajesSecuencia;
    int codigo = 0; // CodigoOrden whose result families the placeholders name
    std::span<const DatoCadena> datos = {};
    std::string_view modelo =
        {}; // of the formula at hand, for the trace: a number in it is known by its placeholder
};

// Runs the steps in order. 1, or 0 after the boxes of the step that failed.
int EjecutarCadena(const Cadena &c, std::span<const PasoCadena> pasos);

// The text with its placeholders replaced.
std::string TextoDePaso(const Cadena &c, const char *modelo);

// ----- One formula at a time, for a step whose failure is no row of a table

// How a formula that is to be stored ended. The evaluator has shown its message for FormulaErronea; for
// FormulaSinGuardar only a full table of scalars has shown one.
enum FinesDeFormula { FormulaErronea, FormulaSinGuardar, FormulaGuardada };

// Each runs `texto` one level above the present one with a clear evaluator, and puts the level back. At the last level:
// FormulaErronea and no box. A matrix that can't be stored is FormulaErronea, after a box. `explicacion` is that of a step.
FinesDeFormula MatrizDeFormula(const Cadena &c, std::string_view destino, const std::string &texto,
                               std::string_view explicacion);
// `causa` receives what GuardarEscalar answered.
FinesDeFormula EscalarDeFormula(const Cadena &c, std::string_view destino, const std::string &texto,
                                std::string_view explicacion, int &causa);
FinesDeFormula SerieDeFormula(const Cadena &c, std::string_view destino, const std::string &texto,
                              std::string_view explicacion);
// The same for a formula that the user typed: the trace shows how it is reduced.
FinesDeFormula SerieDeFormulaEscrita(const Cadena &c, std::string_view destino, const std::string &texto,
                                     std::string_view explicacion);
