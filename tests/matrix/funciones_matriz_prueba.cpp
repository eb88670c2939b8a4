// The reserved functions of matrices, in matrix formulas and as the series evaluator calls them.
#include "matrix/evaluacion.h"

#include "store/periodos.h"

namespace {

// The scalar functions, as the factor of a matrix of a one.
struct CasoEscalar {
    const char *funcion;
    double esperado;
};

const CasoEscalar Escalares[] = {
    {"SUMA(A)", 10},
    {"SUMA(X)", 21},
    {"SUMA(X * 2)", 42},
    {"DET(A)", -2},
    {"DET(U)", 7},
    {"DET(X'X)", 24},
    {"DET(SING)", 0},
    {"DET(UNOS18)", 1},
    {"LNDET(X'X)", 3.17805383034794561964694160129705540887399}, // ln 24
    {"LNDET(A)", 0},                                             // negative determinant
    {"LNDET(SING)", 0},
    {"LNDET(UNOS18)", 0},
    {"TRAZA(A)", 5},
    {"TRAZA(UNOS18)", 18},
    {"MIN(X)", 1},
    {"MIN(X * (-1))", -6},
    {"MAX(X)", 6},
    {"MAX(X * (-1))", -1},
    {"NFILA(X)", 3},
    {"NCOLU(X)", 2},
    {"NREG(X)", 2},
    {"ESCAL(U)", 7},
    {"ESCAL(V'V)", 500},
    {"NOBS", 8},
    // A sign behind the argument of a scalar function belongs to the argument.
    {"NFILA(X)'", 2},
    {"DET(A)$", -0.5},
    {"SUMA(V)'", 30},
    // One within the other.
    {"SUMA(RCMT(A * 4))", 2 * (1 + 1.41421356237309504880 + 1.73205080756887729353 + 2)},
};

TEST_F(ConMatrices, FuncionesEscalares) {
    PonerMatriz("UNO", {1, 1, {1}});
    Muestra.InicioMuestra = 3;
    Muestra.FinMuestra = 10;
    for (const CasoEscalar &c : Escalares) {
        SCOPED_TRACE(c.funcion);
        EXPECT_EQ(Evaluar(std::string(c.funcion) + " * UNO"), 1);
        EsperarMatriz("RES", {1, 1, {c.esperado}});
        EXPECT_EQ(Evaluar(std::string("UNO * ") + c.funcion), 1);
        EsperarMatriz("RES", {1, 1, {c.esperado}});
    }
    EXPECT_TRUE(Prueba.cajas.empty());
}

struct CasoMatriz {
    const char *formula;
    MatrizVista esperada;
};

const std::vector<CasoMatriz> Matrices = {
    {"DIAG(V)", {2, 2, {10, 0, 0, 20}}},
    {"DIAG(U)", {1, 1, {7}}},
    {"DIAG(V) * 2", {2, 2, {20, 0, 0, 40}}},
    {"DIAG(V) / 2", {2, 2, {5, 0, 0, 10}}},
    {"A * DIAG(V)", {2, 2, {10, 40, 30, 80}}},
    {"DIAG(V) A", {2, 2, {10, 20, 60, 80}}},
    {"(DIAG(V)) + A", {2, 2, {11, 2, 3, 24}}},
    // A sign behind a function that gives a matrix is for that matrix.
    {"DIAG(V)'", {2, 2, {10, 0, 0, 20}}},
    {"DIAG(V)$", {2, 2, {0.1, 0, 0, 0.05}}},
    {"VECT(A)'", {2, 1, {1, 4}}},
    {"VECT(A)", {1, 2, {1, 4}}},
    {"VECT(UNOS18) * (UNOS18 * 3)", {1, 18, std::vector<double>(18, 3.0)}},
    {"RCMT(VECT(A))", {1, 2, {1, 2}}},
    {"RCMT(X - (X * 3))", {3, 2, {0, 0, 0, 0, 0, 0}}}, // below zero
    {"RCMT(A)$",
     {2,
      2,
      {-2 / 0.449489742783178098, 1.41421356237309504880 / 0.449489742783178098,
       1.73205080756887729353 / 0.449489742783178098, -1 / 0.449489742783178098}}},
    {"LNMT(DIAG(V))",
     {2, 2, {2.302585092994045684, 0, 0, 2.995732273553990993}}}, // 0.0 where there is a zero
    {"LNMT(A - (A + A))", {2, 2, {0, 0, 0, 0}}},
    {"LNMT(X) '",
     {2,
      3,
      {0, 1.098612288668109691, 1.609437912434100375, 0.693147180559945309, 1.386294361119890618,
       1.791759469228055001}}},
    {"MINC(A)", {2, 2, {1, 2, 3, 4}}}, // what stays on the stack is the result
    {"MINC(A) * B", {2, 2, {19, 22, 43, 50}}},
};

TEST_F(ConMatrices, FuncionesQueDanMatriz) {
    for (const CasoMatriz &c : Matrices) {
        SCOPED_TRACE(c.formula);
        EXPECT_EQ(Evaluar(c.formula), 1);
        EXPECT_EQ(Cajas(), std::vector<std::string>{});
        EsperarMatriz("RES", c.esperada);
    }
}

// ----- From a series formula

struct CasoValor {
    const char *nombre;
    const char *texto;
    int resultado;
    double valor;
    int posicion; // behind the argument
    std::vector<std::string> cajas;
};

const std::vector<CasoValor> DesdeSeries = {
    {"DET", "(A) + 1", 1, -2, 3, {}},
    {"DET", "(A)' + 1", 1, -2, 4, {}},
    {"DET", "(A)$", 1, -0.5, 4, {}},
    {"SUMA", "(A * B) / 2", 1, 134, 7, {}},
    {"NFILA", "((X)')", 1, 2, 6, {}},
    {"NOBS", " * 2", 1, 5, 0, {}},
    {"DIAG", "(V)", 1, 0, 3, {}},
    {"DIAG", "(V)'", 1, 0, 4, {}},
    {"VECT", "(A)", 1, 0, 3, {}},
    {"LNMT", "(X)", 1, 0, 3, {}},
    {"RCMT", "(X)", 1, 0, 3, {}},
    {"MINC", "(X)", 1, 0, 3, {}},
    // An unsuitable argument is the caller's to report.
    {"DET", "(X)", 0, 0, 3, {}},
    {"ESCAL", "(A)", 0, 0, 3, {}},
    {"DIAG", "(A)", 0, 0, 3, {}},
    {"SUMA", "(3)", 0, 0, 3, {}},
    {"SUMA", "()", 0, 0, 2, {}},
    {"SUMA", "", 0, 0, 0, {}},
    {"SUMA", " (A)", 0, 0, 0, {}},
    {"SUMA", "(Q)", 0, 0, 3, {"Error en secuencia. Pto 55"}},
    {"SUMA", "(S)", 0, 0, 3, {"Error en secuencia. Pto 55"}},
    {"SUMA", "(SING$)", 0, 0, 7, {"Matriz singular. Pto 402"}},
    {"SUMA", "(A", 1, 10, 2, {}},
};

TEST_F(ConMatrices, ValorDesdeUnaFormulaDeSeries) {
    Muestra.InicioMuestra = 0;
    Muestra.FinMuestra = 4;
    Evaluador.profundidad = 3;
    for (const CasoValor &c : DesdeSeries) {
        SCOPED_TRACE(std::string(c.nombre) + c.texto);
        Prueba.cajas.clear();
        LineasDePrueba[2] = c.texto;
        Evaluador.NivelLinea = 2;
        int posicion = 0;
        double valor = -1.0;
        EXPECT_EQ(ValorFuncionMatriz(c.nombre, valor, posicion, LineasDePrueba, nullptr), c.resultado);
        EXPECT_NEAR(valor, c.valor, 1e-12);
        EXPECT_EQ(posicion, c.posicion);
        EXPECT_EQ(Cajas(), c.cajas);
        EXPECT_EQ(Evaluador.NivelLinea, 2);
    }
    EXPECT_EQ(Evaluador.profundidad, 3) << "the columns are the series formula's";
    Evaluador.profundidad = 0;
    Evaluador.NivelLinea = 0;
}

TEST_F(ConMatrices, ValorEnElUltimoNivel) {
    LineasDePrueba[11] = "(A)";
    Evaluador.NivelLinea = 11;
    int posicion = 0;
    double valor = -1.0;
    EXPECT_EQ(ValorFuncionMatriz("SUMA", valor, posicion, LineasDePrueba, nullptr), 0);
    EXPECT_EQ(Cajas(), std::vector<std::string>{"Excesivos paréntesis. Pto 12"});
    Evaluador.NivelLinea = 0;
}

} // namespace
