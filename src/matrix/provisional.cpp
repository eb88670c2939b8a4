// PROVISIONAL: stand-ins until the folder's routines are written.
#include "matrix/formula_matriz.h"
#include "matrix/inversa.h"
#include "matrix/probabilidad.h"
char CodigoMatrizDestino[AnchoCodigo];
int EvaluarFormulaMatriz(LineasSentencia &, int &, Ventana *, int, int) { return 0; }
int ValorFuncionMatriz(std::string_view, double &, int &, LineasSentencia &, Ventana *) { return 0; }
int Probabilidad(char, double, double, double, double &) { return 0; }
int InvertirMatriz(const double *, int, double *, Ventana *) { return 0; }
