// What the files of this folder share while one regression runs: its working set, and the one protocol by which a
// formula text becomes a matrix, a scalar or a series.
#pragma once

#include "estimation/regresion.h"
#include "language/evaluador.h"

#include <string>
#include <string_view>
#include <vector>

struct Estimacion {
    LineasSentencia *lineas = nullptr;
    Ventana *ventana = nullptr;
    int codigo = 0;

    // The equation. The two lists run in parallel, one entry a column.
    std::string dependiente;
    std::vector<std::string> columnas; // as the brace form names them: X1, _TMR1, 1
    std::vector<std::string> textos;   // as they are shown: X1, SALARIO(-1), 1; at most 25 characters
    int numeroGenerada = 1;            // of the next _TMRn
    int retardoMayor = 0;              // the most negative lag
    int adelantoMayor = 0;             // the largest lead
    bool productosCruzados = false;    // PC of White's test
    bool verAuxiliar = false;          // RA of White's test

    // The estimation.
    int observaciones = 0; // N, rows of _YDEP
    int regresores = 0;    // k, columns of _XIND
    double suma = 0.0;     // of the dependent
    double media = 0.0;
    double variacion = 0.0; // sum of squares of the dependent about its mean
    double saltos = 0.0;    // sum of squares of the differences of successive residuals
};

inline constexpr const char *SecuenciaNoValida = "Secuencia no válida"_w;
inline constexpr const char *FaltanSeries = "Borre algunas series";

// How a formula that is to be stored ended. The evaluator has shown its message for FormulaErronea; for
// FormulaSinGuardar only a full table of scalars has shown one.
enum FinesDeFormula { FormulaErronea, FormulaSinGuardar, FormulaGuardada };

// Each runs `texto` one level above the present one with a clear evaluator, and puts the level back. At the last
// level, or when the formula fails: FormulaErronea, 0 for the matrix.
//
// A matrix; the rows matter to a text in braces only. 1 or 0.
int MatrizDeFormula(Estimacion &e, std::string_view destino, const std::string &texto, int primera,
                    int ultima);
// A scalar. It takes the first row of the range and nothing else, so only that row is evaluated. `causa` receives what
// GuardarEscalar answered.
FinesDeFormula EscalarDeFormula(Estimacion &e, std::string_view destino, const std::string &texto,
                                int &causa);
// A series over the range of the regression.
FinesDeFormula SerieDeFormula(Estimacion &e, std::string_view destino, const std::string &texto);

// Elements of a matrix, by rows, with its block locked; null when there is no such matrix. The place is valid until the
// matrix is stored anew or deleted, locked or not.
double *ElementosDe(std::string_view matriz);

// The one answer where the estimation needs what is announced and not built yet: weighted data, the consistent
// covariance matrices and the reports of the tests. Shows "No ensamblada" and returns 0.
int ParteSinEnsamblar(Estimacion &e);
