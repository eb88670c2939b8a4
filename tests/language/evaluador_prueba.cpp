// The evaluator of series formulas: values, presence, the chains of boxes, and texts of any kind.
#include "formulas.h"

#include "language/evaluador_interno.h"

#include <chrono>
#include <cmath>
#include <random>

namespace {

// ---------------------------------------------------------------------------------------------------------------
// Values

struct Valores {
    const char *formula;
    double primera, ultima; // at rows 0 and 9
};

const Valores CasosDeValores[] = {
    // Numbers, with the ranks that the grouping writes and those that it doesn't know.
    {"2 + 3 * 4", 14, 14},
    {"2 * 3 + 4", 10, 10},
    {"2 * 3 : 2", 36, 36},
    {"2 : 3 * 2", 16, 16},
    {"1 + 2 * 3 : 2", 37, 37},
    {"10 - 4 - 3", 3, 3},
    {"5 / 0", 0, 0},
    {"5 / 0.000001", 0, 0},
    {"5 / -0.000001", 0, 0},
    {"5 / 0.00001", 5 / 0.00001, 5 / 0.00001},
    {"-2 : 2", -4, -4},
    {"2 : -1", 0.5, 0.5},
    {"(0 - 2) : 3", -8, -8},
    {"1.5", 1.5, 1.5},
    {".5", 0.5, 0.5},
    {"7.", 7, 7},
    {"1.2.3", 1.2, 1.2},
    {"- - 3", 3, 3},
    {"A - -3", 4, 13},
    {"A * -3", -3, -30},
    {"-A", -1, -10},
    {"-A * B", -10, -1000},
    // Series and scalars.
    {"A", 1, 10},
    {"A+B", 11, 110},
    {"A * T", 2, 20},
    {"T * A", 2, 20},
    {"B / A", 10, 10},
    {"A - N", 4, 13},
    {"(A + B) * 2", 22, 220},
    {"( ( A ) )", 1, 10},
    {"A)", 1, 10},
    {")A", 1, 10},
    {") A ) + B )", 11, 110},
    {"NOBS", 10, 10},
    {"A / NOBS", 0.1, 1},
    // Comparisons are of the rank of a sum.
    {"A = 10", 0, 1},
    {"A > 1", 0, 1},
    {"A < 10", 1, 0},
    {"A ? 10", 0, 1},
    {"A @  1", 1, 0},
    {"A | 1", 0, 1},
    {"A + B > 50", 0, 1},      // (A + B) > 50
    {"A > B + T", 2, 2},       // (A > B) + T
    {"A + B * T > 50", 1, 11}, // A + ((B * T) > 50)
    {"3 > 2 > 1", 0, 0},       // (3 > 2) > 1
    {"A>1", 0, 1},
    {"A=A", 1, 1},
    // Words of logic too.
    {"A > 1 AND (B > 1)", 0, 1},
    {"A > 1 AND B > 1", 0, 0}, // ((A > 1) AND B) > 1
    {"1 AND -1", 0, 0},
    {"1 OR -1", 1, 1},
    {"0 OR 0", 0, 0},
    {"2 AND 0.5", 1, 1},
    // The inner word rules the outer operation.
    {"0 AND (1 OR 0)", 1, 1},
    {"1 OR (1 AND 0)", 0, 0},
    // The text ends at what is no text of a formula.
    {"A ; comentario", 1, 10},
    {"A, B", 1, 10},
    {"A]", 1, 10},
    {"A}", 1, 10},
    {"A\tB", 1, 10},
    {"A\xF1", 1, 10},
    {"A'", 1, 10},
    // Element (1,2) is the one of row 2, column 1.
    {"M[1,1]", 1, 1},
    {"M[1,2]", 3, 3},
    {"M[2,1]", 2, 2},
    {"M [ 2 , 2 ]", 4, 4},
    {"R[2,2]", 5, 5},
    {"A * M[2,2]", 4, 40},
    {"M[1.9,1]", 1, 1},
};

TEST_F(Formulas, Valores) {
    for (const Valores &caso : CasosDeValores) {
        SCOPED_TRACE(caso.formula);
        const std::vector<double> r = Calcular(caso.formula);
        EXPECT_TRUE(Prueba.cajas.empty());
        ASSERT_EQ(r.size(), 10u);
        EXPECT_EQ(r[0], caso.primera);
        EXPECT_EQ(r[9], caso.ultima);
        EXPECT_EQ(Evaluador.NivelLinea, 0);
        EXPECT_EQ(Evaluador.numOperadores, 0);
        EXPECT_EQ(Evaluador.numFunciones, 0);
    }
}

struct Filas {
    const char *formula;
    int primera, ultima;
    std::vector<double> esperadas;
};

TEST_F(Formulas, RetardosPeriodosYPresencia) {
    const Filas casos[] = {
        // A lag moves the values and not the flags. What it shifts in from outside the table is 0.0.
        {"A(-1)", 0, 9, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9}},
        {"A(-2)", 0, 3, {0, 0, 1, 2}},
        {"A(3)", 0, 4, {4, 5, 6, 7, 8}},
        {"A(1)", 8, 9, {10, 0}},
        {"A(-1)", 5, 7, {5, 6, 7}}, // row 4 lies outside the sample
        {"A(-100)", 0, 3, {0, 0, 0, 0}},
        {"H(-1)", 3, 6, {3, Falta, 0, 6}},
        {"A( - 1 )", 2, 3, {2, 3}},
        {"A (-1)", 2, 3, {2, 3}},
        {"A(2.9)", 0, 1, {3, 4}},
        {"A(-1) + A(1)", 1, 2, {4, 6}},
        {"(A)(", 0, 0, {}},
        // A scalar brings its own sign.
        {"A(T)", 0, 1, {3, 4}},
        {"A(-T)", 0, 1, {3, 4}},
        {"A(N)", 3, 4, {1, 2}},
        {"A(K)", 0, 1, {1, 2}},
        {"A(Z)", 0, 1, {1, 2}},
        // Period access.
        {"A[3]", 0, 3, {3, 3, 3, 3}},
        {"A [ 3 ]", 1, 2, {3, 3}},
        {"A[T]", 0, 1, {2, 2}},
        {"A[3.0]", 0, 3, {3, 3, 3, 3}},
        {"A(-1)[3]", 0, 3, {2, 2, 2, 2}},
        {"A(1) [ 3 ] * 2", 0, 3, {8, 8, 8, 8}},
        {"H[3]", 3, 5, {}}, // row 2 exists, outside the sample
        {"H[4]", 3, 5, {4, Falta, 4}},
        {"H[5]", 3, 5, {0, Falta, 0}},
        // A missing operand makes the row missing, on either side and for good.
        {"A + H", 3, 5, {8, Falta, 12}},
        {"H + A", 3, 5, {8, Falta, 12}},
        {"H * 0 + 1", 3, 5, {1, Falta, 1}},
        {"-H", 3, 5, {-4, Falta, -6}},
        {"A AND H", 3, 5, {1, Falta, 1}},
        {"H = 0", 3, 5, {0, Falta, 0}},
        {"(H)", 3, 5, {4, Falta, 6}},
    };
    for (const Filas &caso : casos) {
        SCOPED_TRACE(caso.formula);
        EsperarFilas(Calcular(caso.formula, caso.primera, caso.ultima), caso.esperadas);
    }
}

// The value of a missing row goes on being computed; it is dropped at the store.
TEST_F(Formulas, ElValorDeUnaFilaQueFaltaEsCero) {
    ASSERT_EQ(Evaluar("H + 7", 4, 4), 1);
    EXPECT_EQ(ValoresSuperiores(), std::vector<double>{7});
    EXPECT_EQ(ColumnaSuperior().presente[4], 0);
    EXPECT_EQ(ValorSuperior(), 7);
}

TEST_F(Formulas, MarcasDelRetardo) {
    const struct {
        const char *formula;
        int marca, retardo;
    } casos[] = {
        {"A", 0, 0},          {"A(-2)", 1, -2},   {"A(3)", 1, 3},  {"A(-2) + A(1)", 1, 1},
        {"A(-1) * A", 1, -1}, {"(A(-1))", 1, -1}, {"A(N)", 1, -3}, {"A(Z)", 1, 0},
    };
    for (const auto &caso : casos) {
        SCOPED_TRACE(caso.formula);
        ASSERT_FALSE(Calcular(caso.formula).empty());
        EXPECT_EQ(Evaluador.MarcaRetardo, caso.marca);
        EXPECT_EQ(Evaluador.ValorRetardo, caso.retardo);
    }
}

TEST_F(Formulas, RetardosDeCualquierTamano) {
    const double infinito = std::numeric_limits<double>::infinity();
    for (const double valor : {1e300, -1e300, infinito, -infinito, Falta, 4000.0, -4000.0, 3999.0,
                               -2147483648.0, 2147483647.0, 1e9, 0.0, -0.5}) {
        SCOPED_TRACE(valor);
        PonerEscalar(nullptr, "L", valor);
        const std::vector<double> r = Calcular("A(L)");
        EsperarFilas(r, std::fabs(valor) < 1 || std::isnan(valor) ? Calcular("A") : Calcular("A * 0"));
    }
    for (const char *formula : {"A(3999)", "A(4000)", "A(99999999999999999999)", "A(-3999)", "A(-4000)",
                                "A(-99999999999999999999)", "A(2147483647)", "A(-2147483647)"}) {
        SCOPED_TRACE(formula);
        EsperarFilas(Calcular(formula), std::vector<double>(10, 0.0));
    }
}

// The edge of the table: a lead of n empties rows 3,999 - n to 3,999, one more than nothing was shifted into.
TEST_F(Formulas, AdelantoAlFinalDeLaTabla) {
    PonerFilas(MaxObservaciones);
    std::vector<double> larga(MaxObservaciones);
    for (std::size_t i = 0; i < larga.size(); ++i) larga[i] = static_cast<double>(i);
    PonerSerie("L", larga);
    EsperarFilas(Calcular("L(2)", 3994, 3999), {3996, 3997, 3998, 0, 0, 0});
    EsperarFilas(Calcular("L(-2)", 3997, 3999), {3995, 3996, 3997});
    EsperarFilas(Calcular("L(3998)", 0, 2), {3998, 0, 0});
    EsperarFilas(Calcular("L(-3998)", 3997, 3999), {0, 0, 1});
    EXPECT_EQ(Calcular("L + L", 0, 3999).back(), 2 * 3999);
}

// Periods are found by their number, so that every writing of it will do.
TEST_F(Formulas, PeriodosPorSuNumero) {
    const char *mensuales[] = {"1998.01", "1998.09", "1998.10", "1998.11"};
    for (int i = 0; i < 4; ++i) PonerTextoPeriodo(i, mensuales[i]);
    EsperarFilas(Calcular("A[1998.1]", 0, 3), std::vector<double>(4, 3));
    EsperarFilas(Calcular("A[1998.10]", 0, 3), std::vector<double>(4, 3));
    EsperarFilas(Calcular("A[1998.100000]", 0, 3), std::vector<double>(4, 3));
    PonerEscalar(nullptr, "P", 1998.09);
    EsperarFilas(Calcular("A[P]", 0, 3), std::vector<double>(4, 2));
    // In a panel the number in front of the "-" is what counts; what is behind it can't be written.
    const char *panel[] = {"1-1990", "1-1991", "2-1990", "2-1991"};
    for (int i = 0; i < 4; ++i) PonerTextoPeriodo(i, panel[i]);
    EsperarFilas(Calcular("A[2]", 0, 3), std::vector<double>(4, 3));
    EsperarFilas(Calcular("A[2-1991]", 0, 3), {});
}

// Codes: a name is a function before a series, a series before a scalar; a code can begin with "_".
TEST_F(Formulas, OrdenDeLosNombres) {
    PonerSerie("LOG", {8});
    PonerSerie("AND", {8});
    PonerSerie("_Y", {8});
    PonerSerie("A^1", {9});
    EXPECT_EQ(Evaluar("LOG", 0, 0), 0);
    LimpiarEvaluador();
    EXPECT_EQ(Evaluar("AND", 0, 0), 0);
    EsperarFilas(Calcular("_Y + A^1", 0, 0), {17});
    EsperarFilas(Calcular("_Y+_Y*_Y", 0, 0), {72});
}

// One name of two or three kinds, as a damaged work file may have: a series before a number, both before a scalar, that
// before a function of matrices, and a matrix last.
TEST_F(Formulas, OrdenDeLosOperandos) {
    PonerEscalar(nullptr, "TRES", 3);
    PonerEscalar(nullptr, "DOS", 2);
    PonerEscalar(nullptr, "DET", 5);
    PonerMatriz("NFILA", {6}, 1, 1);
    PonerMatriz("DOS", {7}, 1, 1);
    PonerMatriz("TRES", {7}, 1, 1);
    PonerSerie("TRES", {33});
    PonerSerie("8", {88});
    const struct {
        const char *formula;
        std::vector<double> esperada;
    } casos[] = {
        {"TRES", {33}}, {"8", {88}},       {"9", {9}},         {"DOS", {2}},
        {"DET", {5}},   {"NFILA(M)", {2}}, {"NFILA[1,1]", {}}, {"DOS[1,1]", {2}},
    };
    for (const auto &caso : casos) {
        SCOPED_TRACE(caso.formula);
        EsperarFilas(Calcular(caso.formula, 0, 0), caso.esperada);
    }
}

// A record that says more than its block holds: nothing behind the block is read.
TEST_F(Formulas, ElementoDeUnaMatrizDanada) {
    std::int32_t &capacidad = TablaMatrices.capacidad[BuscarMatriz("M")];
    const std::int32_t era = capacidad;
    capacidad = 3;
    EsperarFilas(Calcular("M[1,2]", 0, 0), {3});
    EsperarFilas(Calcular("M[2,2]", 0, 0), {});
    EXPECT_EQ(TextosDeCajas(), std::vector<std::string>{"SER X = M[2,2]. Pto 884"});
    capacidad = era;
}

// Codes made of blanks exist, and no empty token calls them up.
TEST_F(Formulas, CodigosEnBlanco) {
    PonerEscalar(nullptr, "", 8);
    PonerMatriz("", {7}, 1, 1);
    EsperarFilas(Calcular("A)", 0, 0), {1});
    EXPECT_EQ(Evaluar("A()", 0, 0), 0);
    LimpiarEvaluador();
    EXPECT_EQ(Evaluar("A[]", 0, 0), 0);
}

TEST_F(Formulas, SinPermisoParaSeries) {
    Evaluador.SeriesPermitidas = 0;
    EXPECT_EQ(Evaluar("A"), 0);
    EXPECT_EQ(TextosDeCajas(), (std::vector<std::string>{"Función desconocida [A]", "A. Pto 199"}));
    LimpiarEvaluador();
    EXPECT_EQ(Evaluar("A"), 1);
}

// ---------------------------------------------------------------------------------------------------------------
// Bounds

TEST_F(Formulas, Limites) {
    // Negative: nothing is done, and that is no failure.
    EXPECT_EQ(Evaluar("A + QQ", -1, 5), 1);
    EXPECT_EQ(Evaluar("A + QQ", 0, -1), 1);
    EXPECT_EQ(Evaluador.profundidad, 0);
    EXPECT_EQ(ValorSuperior(), 0.0);
    EXPECT_TRUE(Prueba.cajas.empty());
    // Beyond the tables: a sample without data ends at 100,000.
    for (const auto &[primera, ultima] : {std::pair{0, 100000}, {0, 4000}, {100000, 100000}, {4000, 5}}) {
        SCOPED_TRACE(ultima);
        EXPECT_EQ(Evaluar("A + 1", primera, ultima), 0);
        EXPECT_EQ(TextosDeCajas(), std::vector<std::string>{"A + 1. Pto 88"});
        EXPECT_EQ(ValorSuperior(), 0.0);
    }
    // A work file with too many rows: success, and nothing on the stack.
    ArchivoTrabajo.NumObs = MaxObservaciones + 1;
    EXPECT_EQ(Evaluar("A + QQ"), 1);
    EXPECT_EQ(Evaluador.profundidad, 0);
    EXPECT_TRUE(Prueba.cajas.empty());
}

// A sample whose end is before its start: operands are loaded, operators and functions have no rows.
TEST_F(Formulas, MuestraVacia) {
    EXPECT_EQ(Evaluar("A", 5, 3), 1);
    EXPECT_EQ(ValorSuperior(), 6);
    LimpiarEvaluador();
    EXPECT_EQ(Evaluar("A + 1 > MEDSER(A) + DESSER(A) + MAXSER(A) + MINSER(A) + RND + TEND", 5, 3), 1);
    EXPECT_EQ(ValorSuperior(), 6);
    LimpiarEvaluador();
    EXPECT_EQ(Evaluar("A[6]", 5, 3), 0);
}

TEST_F(Formulas, SinPila) {
    CerrarPilaColumnas();
    EXPECT_EQ(Evaluar("A"), 0);
    EXPECT_EQ(TextosDeCajas(), std::vector<std::string>{"A. Pto 6"});
    EXPECT_FALSE(ApilarNumero(1));
    EXPECT_FALSE(ApilarSerie(0));
    EXPECT_TRUE(AbrirPilaColumnas());
    EXPECT_TRUE(AbrirPilaColumnas()); // once is enough
}

// ---------------------------------------------------------------------------------------------------------------
// Boxes

struct Fallo {
    const char *formula;
    std::vector<std::string> cajas;
};

const Fallo Fallos[] = {
    // An operand directly behind an operand.
    {"A B", {"A B. Pto 7"}},
    {"A 5", {"A 5. Pto 10"}},
    {"A T", {"A T. Pto 12"}},
    {"A NOBS", {"A NOBS. Pto 13"}},
    {"A SUMA(M)", {"A SUMA(M). Pto 13"}},
    {"5 (B)", {"5 (B). Pto 21"}},
    {"A M[1,1]", {"A M[1,1]. Pto 211"}},
    {"A LN(B)", {"A LN(B). Pto 4444"}},
    {"A(-1)(-1)", {"A(-1)(-1). Pto 21"}},
    {"NOBS(M)", {"NOBS(M). Pto 21"}},
    // Lags.
    {"A (B)", {"A (B). Pto 8"}},
    {"A(0)", {"A(0). Pto 8"}},
    {"A(-0)", {"A(-0). Pto 8"}},
    {"A()", {"A(). Pto 8"}},
    {"A(", {"A(. Pto 8"}},
    {"A(1", {"A(1. Pto 8"}},
    {"A(-", {"A(-. Pto 8"}},
    {"A(+1)", {"A(+1). Pto 8"}},
    {"A(--1)", {"A(--1). Pto 8"}},
    {"A(1+1)", {"A(1+1). Pto 8"}},
    {"A((1))", {"A((1)). Pto 8"}},
    // Periods.
    {"A[1998]", {"A[1998]. Pto 88"}},
    {"A[QQ]", {"A[QQ]. Pto 88"}},
    {"A[N]", {"A[N]. Pto 88"}},
    {"A[]", {"A[]. Pto 88"}},
    {"A[", {"A[. Pto 88"}},
    {"A[3", {"A[3. Pto 88"}},
    {"A[3)", {"A[3). Pto 88"}},
    {"A[3 + 1]", {"A[3 + 1]. Pto 88"}},
    {"A + H[1998]", {"A + H[1998]. Pto 188"}},
    // Matrix functions.
    {"SUMA", {"SUMA. Pto 14"}},
    {"MINC", {"MINC. Pto 14"}},
    {"A + NREG", {"A + NREG. Pto 114"}},
    // Operators.
    {"+A", {"+A. Pto 1129"}},
    {"*A", {"*A. Pto 1129"}},
    {"+", {"+. Pto 1119"}},
    {"-", {"-. Pto 1119"}},
    {"A +", {"A +. Pto 1129"}},
    {"A + )", {"A + ). Pto 1129"}},
    {"A + + B", {"A + + B. Pto 115"}},
    {"A * +B", {"A * +B. Pto 115"}},
    {"A * / B", {"A * / B. Pto 115"}},
    {"A - - + B", {"A - - + B. Pto 215"}},
    {"A + ()", {"A + (). Pto 1129"}},
    {"()+A", {"()+A. Pto 1129"}},
    {"A + ,B", {"A + ,B. Pto 1129"}},
    // Words of logic.
    {"AND A", {"AND A. Pto 44"}},
    {"A + AND B", {"A + AND B. Pto 144"}},
    {"A AND OR B", {"A AND OR B. Pto 244"}},
    {"A AND", {"A AND. Pto 29"}},
    {"A AND ()", {"A AND (). Pto 29"}},
    {"A AND QQ", {"Función desconocida [QQ]", "A AND QQ. Pto 399"}},
    {"A AND + B", {"A AND + B. Pto 215"}},
    {"A AND (1 2)", {"1 2. Pto 10", "A AND (1 2). Pto 222"}},
    // Nothing on the stack.
    {"", {". Pto 1119"}},
    {"()", {"(). Pto 1119"}},
    {")", {"). Pto 1119"}},
    {"(", {"(. Pto 1119"}},
    {" ", {" . Pto 1119"}},
    {"; A", {"; A. Pto 1119"}},
    {"(((( ))))", {"(((( )))). Pto 1119"}},
    // Unknown words.
    {"QQ", {"Función desconocida [QQ]", "QQ. Pto 199"}},
    {"A<=B", {"A<=B. Pto 115"}},
    {"A@ B", {"Función desconocida [A@]", "A@ B. Pto 199"}},
    {"A + QQ", {"Función desconocida [QQ]", "A + QQ. Pto 299"}},
    {"A + -QQ", {"Función desconocida [QQ]", "A + -QQ. Pto 399"}},
    {"A + ¿", {"Función desconocida [¿]", "A + ¿. Pto 299"}},
    {"{M}", {"Función desconocida [{M]", "{M}. Pto 199"}},
    {"1E3", {"Función desconocida [1E3]", "1E3. Pto 199"}},
    {"1.5E-3", {"Función desconocida [1.5E]", "1.5E-3. Pto 199"}},
    {"ABCDEFGHIJKLM", {"Función desconocida [ABCDEFGHIJKLM]", "ABCDEFGHIJKLM. Pto 199"}},
    {"M[1,1", {"M[1,1. Pto 886"}},
    // Elements of a matrix.
    {"M", {"M. Pto 881"}},
    {"M(1,1)", {"M(1,1). Pto 881"}},
    {"M[0,1]", {"M[0,1]. Pto 887"}},
    {"M[-1,1]", {"M[-1,1]. Pto 887"}},
    {"M[T,1]", {"M[T,1]. Pto 887"}},
    {"M[1 1]", {"M[1 1]. Pto 882"}},
    {"M[1]", {"M[1]. Pto 882"}},
    {"M[1,0]", {"M[1,0]. Pto 883"}},
    {"M[1,]", {"M[1,]. Pto 883"}},
    {"M[3,1]", {"M[3,1]. Pto 884"}},
    {"M[1,3]", {"M[1,3]. Pto 884"}},
    {"M[99999999999,1]", {"M[99999999999,1]. Pto 884"}},
    {"R[1,3]", {"R[1,3]. Pto 884"}}, // inside by its sizes; the place is behind the elements
    {"M[1,1)", {"M[1,1). Pto 886"}},
    // One box for each level, from the inside outwards, each with its own text.
    {"(A B)", {"A B. Pto 7", "(A B). Pto 22"}},
    {"A + (B * (A B))", {"A B. Pto 7", "B * (A B). Pto 122", "A + (B * (A B)). Pto 122"}},
    {"((QQ))", {"Función desconocida [QQ]", "QQ. Pto 199", "(QQ). Pto 22", "((QQ)). Pto 22"}},
    {"(+A)*2", {"+A. Pto 1129", "(+A)*2. Pto 22"}},
};

TEST_F(Formulas, Cajas) {
    for (const Fallo &caso : Fallos) {
        SCOPED_TRACE(caso.formula);
        LimpiarEvaluador();
        EXPECT_EQ(Evaluar(caso.formula), 0);
        EXPECT_EQ(TextosDeCajas(), caso.cajas);
        for (const CajaVista &caja : Prueba.cajas) {
            EXPECT_EQ(caja.titulo, "Proceso cancelado");
            EXPECT_EQ(caja.icono, IconoInformacion);
            EXPECT_EQ(caja.botones, BotonesAceptar);
        }
        EXPECT_EQ(Evaluador.NivelLinea, 0);
        for (int m = 0; m < TablaMatrices.numero; ++m) EXPECT_EQ(TablaMatrices.EstadoBloque[m], BloqueSuelto);
    }
}

// What the grouping makes of a sign behind a product fails, with the grouped text in the box.
TEST_F(Formulas, AgrupacionesQueFallan) {
    EXPECT_TRUE(Calcular("A + 2 * -3").empty());
    EXPECT_EQ(TextosDeCajas(), std::vector<std::string>{"SER X = A +( 2 * )-3. Pto 1129"});
    EXPECT_TRUE(Calcular("A + (A + B * T) * B").empty());
    EXPECT_EQ(TextosDeCajas(), std::vector<std::string>{"SER X = A +( (A +( B * T)) *) B. Pto 1129"});
}

std::string Encerrado(const std::string &texto, int veces) {
    return std::string(static_cast<std::size_t>(veces), '(') + texto +
           std::string(static_cast<std::size_t>(veces), ')');
}

TEST_F(Formulas, NivelesDeParentesis) {
    EXPECT_EQ(Evaluar(Encerrado("A", 10)), 1);
    EXPECT_EQ(Evaluar(Encerrado("A", 11)), 1);
    LimpiarEvaluador();
    EXPECT_EQ(Evaluar(Encerrado("A", 12)), 0);
    std::vector<std::string> cajas;
    for (int k = 1; k <= 12; ++k) cajas.push_back(Encerrado("A", k) + ". Pto 22");
    EXPECT_EQ(TextosDeCajas(), cajas);
}

// A chain of signs is as long as the operator stack; each level adds its 100.
TEST_F(Formulas, CadenaDeSignos) {
    EXPECT_EQ(Evaluar(std::string(50, '-') + "A"), 1);
    EXPECT_EQ(ValorSuperior(), 1);
    LimpiarEvaluador();
    const std::string larga = std::string(51, '-') + "A";
    EXPECT_EQ(Evaluar(larga), 0);
    EXPECT_EQ(TextosDeCajas(), std::vector<std::string>{larga + ". Pto 5016"});
}

// No formula fills the stack by itself: every operator gives back what it took.
TEST_F(Formulas, PilaLlena) {
    const struct {
        const char *formula;
        int profundidad, punto;
    } casos[] = {
        {"A", 50, 6},   {"5", 50, 9},     {"T", 50, 11},    {"NOBS", 50, 14}, {"M[1,1]", 50, 885},
        {"-A", 49, 18}, {"TEND", 50, 38}, {"TEND", 49, 39}, {"RND", 50, 138}, {"RNDN", 50, 138},
    };
    for (const auto &caso : casos) {
        SCOPED_TRACE(caso.formula);
        LimpiarEvaluador();
        Evaluador.profundidad = caso.profundidad;
        EXPECT_EQ(Evaluar(caso.formula), 0);
        EXPECT_EQ(TextosDeCajas(),
                  std::vector<std::string>{caso.formula + Formatear(". Pto %d", caso.punto)});
    }
}

// Texts that no formula brings to the application: the guards of the internal routines.
TEST_F(Formulas, OperadoresDesconocidos) {
    ASSERT_TRUE(ApilarNumero(1) && ApilarNumero(2));
    ASSERT_TRUE(AnotarOperador('&'));
    EXPECT_FALSE(AplicarOperador());
    EXPECT_FALSE(AplicarLogico());
}

// ---------------------------------------------------------------------------------------------------------------
// Text of any kind

TEST_F(Formulas, TextosAlAzar) {
    std::mt19937 azar(11);
    const char *trozos[] = {"A",    "B",    "H",   "T",    "M",       "QQ",     "(",    ")",    "[",
                            "]",    ",",    "+",   "-",    "*",       "/",      ":",    "=",    "@ ",
                            "|",    "?",    " ",   "1",    "0",       "3.5",    "AND",  "OR",   "LN(",
                            "POT(", "TEND", "RND", "NOBS", "SUMSER(", "PROBT(", "M[1,", "\xBF", "\xFF",
                            "_",    "{",    "A(-", "A[3]", ";",       "\t"};
    for (int k = 0; k < 20000; ++k) {
        std::string texto;
        for (auto n = azar() % 30; n > 0; --n) texto += trozos[azar() % std::size(trozos)];
        SCOPED_TRACE(texto);
        LimpiarEvaluador();
        Prueba.cajas.clear();
        lineas[0] = texto;
        AgruparPrioridades(lineas[0], 0, static_cast<int>(lineas[0].size()));
        int posicion = 0;
        const int r = EvaluarFormula(lineas, posicion, 0, 9);
        ASSERT_EQ(r == 0, !Prueba.cajas.empty());
        ASSERT_LE(posicion, static_cast<int>(lineas[0].size()));
        ASSERT_EQ(Evaluador.NivelLinea, 0);
        ASSERT_TRUE(r == 0 || Evaluador.profundidad >= 1);
    }
}

TEST_F(Formulas, TextosEnormes) {
    const auto repetido = [](const char *trozo, int veces) {
        std::string r;
        for (int i = 0; i < veces; ++i) r += trozo;
        return r;
    };
    const struct {
        std::string texto;
        int resultado;
    } casos[] = {
        {repetido("(", 100000), 0},           {repetido(")", 100000) + "A", 1},
        {Encerrado("A", 10000), 0},           {"A" + repetido("+A*A", 10000), 1},
        {repetido("(A)+", 25000) + "A", 1},   {repetido("-", 100000), 0},
        {repetido("A", 100000), 0},           {repetido("9", 100000), 1},
        {repetido(" ", 100000), 0},           {repetido("LN(", 30000), 0},
        {repetido("LN(A)+", 10000) + "A", 1}, {repetido("A+LN(", 20000), 0},
        {"A[" + repetido("1", 100000), 0},    {"A(" + repetido("1", 100000) + ")", 1},
    };
    for (const auto &caso : casos) {
        SCOPED_TRACE(caso.texto.substr(0, 20));
        const auto antes = std::chrono::steady_clock::now();
        EXPECT_EQ(!Calcular(caso.texto).empty(), caso.resultado == 1);
        EXPECT_LT(std::chrono::steady_clock::now() - antes, std::chrono::seconds(3));
    }
}

} // namespace
