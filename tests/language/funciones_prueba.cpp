// The functions of series formulas, and the random numbers of a formula.
#include "formulas.h"

#include "platform/aleatorios.h"

#include <cmath>

namespace {

struct Caso {
    const char *formula;
    int primera, ultima;
    std::vector<double> esperadas;
};

TEST_F(Formulas, FuncionesDeFila) {
    PonerSerie("S", {-4, 0, 1, 4, 100, Falta});
    const Caso casos[] = {
        // At or below zero the value is 0.0, and present; so also for EXP, where the functions of positive numbers stand.
        {"LOG(S)", 0, 5, {0, 0, 0, std::log10(4.0), 2, Falta}},
        {"LN(S)", 0, 5, {0, 0, 0, std::log(4.0), std::log(100.0), Falta}},
        {"RCUAD(S)", 0, 5, {0, 0, 1, 2, 10, Falta}},
        {"EXP(S)", 0, 3, {0, 0, std::exp(1.0), std::exp(4.0)}},
        {"ABS(S)", 0, 5, {4, 0, 1, 4, 100, Falta}},
        {"NOT(S)", 0, 5, {1, 1, 0, 0, 0, Falta}},
        {"LN(0)", 0, 0, {0}},
        {"EXP(0)", 0, 0, {0}},
        {"EXP(-1)", 0, 0, {0}},
        {"RCUAD(-4)", 0, 0, {0}},
        {"NOT(A)", 0, 1, {0, 0}},
        // A sign in front is a sign; the reserved words with one are never reached.
        {"-LOG(S)", 3, 4, {0 - std::log10(4.0), -2}},
        {"-ABS(S)", 0, 1, {-4, 0}},
        {"2 * ABS(S) + 1", 0, 1, {9, 1}},
        {"ABS (S)", 0, 0, {4}},
        {"ABS( S )", 0, 0, {4}},
        {"RCUAD(RCUAD(16))", 0, 0, {2}},
        {"ABS((S))", 0, 0, {4}},
        {"POT(S,2)", 0, 5, {16, 0, 1, 16, 10000, Falta}},
        {"POT(A,S)", 0, 5, {1, 1, 3, 256, std::pow(5.0, 100.0), Falta}},
        {"POT(2, (1 + 2))", 0, 0, {8}},
        {"POT((M[1,2]),2)", 0, 0, {9}},
        {"POT(POT(2,2),3)", 0, 0, {64}},
        {"POT((0-8),(1/3))", 0, 0, {Falta}}, // no number, with no test of the domain,
        {"LN(A ; nada)", 0, 0, {0}},
    };
    for (const Caso &caso : casos) {
        SCOPED_TRACE(caso.formula);
        EsperarFilas(Calcular(caso.formula, caso.primera, caso.ultima), caso.esperadas);
        EXPECT_EQ(Evaluador.profundidad, 1);
    }
}

TEST_F(Formulas, TendenciasYProgresiones) {
    PonerSerie("S", {1, 2, Falta, 4, 5});
    const Caso casos[] = {
        {"TEND", 0, 4, {1, 2, 3, 4, 5}},
        {"TEND", 4, 6, {1, 2, 3}},
        {"-TEND", 0, 2, {-1, -2, -3}},
        {"TEND * 2", 0, 2, {2, 4, 6}},
        {"(TEND)", 0, 2, {1, 2, 3}},
        {"TEND(10,-2)", 0, 2, {10, 8, 6}},
        {"PROG(1,2)", 0, 3, {1, 2, 4, 8}},
        // The start is the first row of the first argument, the step that of each row. A missing step doesn't stop it.
        {"TEND(B,A)", 0, 3, {10, 12, 15, 19}},
        {"TEND(0,S)", 0, 4, {0, 2, Falta, 6, 11}},
        {"TEND(S,1)", 0, 4, {1, 2, Falta, 4, 5}},
        {"PROG(A,A)", 0, 4, {1, 2, 6, 24, 120}},
        {"PROG(3,S)", 0, 3, {3, 6, Falta, 0}},
    };
    for (const Caso &caso : casos) {
        SCOPED_TRACE(caso.formula);
        EsperarFilas(Calcular(caso.formula, caso.primera, caso.ultima), caso.esperadas);
    }
}

// Totals: one value in all rows of the sample, whatever their flags, which stay.
TEST_F(Formulas, Totales) {
    PonerSerie("NADA", {});
    PonerSerie("TRES", {1, 2, 3, Falta});
    PonerSerie("HUECO", {4, Falta, 1});
    const double nueves = 9999999;
    const struct {
        const char *formula;
        int primera, ultima;
        double valor;
    } casos[] = {
        {"SUMSER(A)", 0, 9, 55},
        {"SUMSER(A)", 2, 4, 12},
        {"SUMSER(H)", 0, 9, 40},
        {"SUMSER(G)", 0, 9, 54}, // the first row missing
        {"SUMSER(NADA)", 0, 9, 0},
        {"SUMSER(A) / 2", 0, 9, 27.5},
        {"SUMSER(A * 2)", 0, 9, 110},
        {"MEDSER(A)", 0, 9, 5.5},
        {"MEDSER(H)", 0, 9, 5},
        {"MEDSER(G)", 0, 9, 6},
        {"MEDSER(A)", 3, 3, 4},
        {"MAXSER(A)", 0, 9, 10},
        {"MAXSER(H)", 0, 9, 9},
        {"MAXSER(-G)", 0, 9, -2},
        {"MAXSER(NADA)", 0, 9, -nueves},
        {"MINSER(A)", 0, 9, 1},
        {"MINSER(G)", 0, 9, 2},
        {"MINSER(NADA)", 0, 9, nueves},
        {"MINSER(G * 10000000)", 0, 9, nueves}, // the start value, smaller than all
        {"DESSER(A)", 0, 2, std::sqrt(2.0 / 3.0)},
        {"DESSER(A)", 4, 4, 0},
        // The flag of the last row rules all of them.
        {"DESSER(TRES)", 0, 3, 0},
        {"DESSER(H)", 0, 9, 0},
        // Mean 2.5 of the two present; the missing row enters with its 0.0.
        {"DESSER(HUECO)", 0, 2, std::sqrt((2.25 + 6.25 + 2.25) / 2)},
        {"DESSER(NADA)", 0, 9, 0},
    };
    for (const auto &caso : casos) {
        SCOPED_TRACE(caso.formula);
        Calcular(caso.formula, caso.primera, caso.ultima);
        ASSERT_TRUE(Prueba.cajas.empty());
        for (const double v : ValoresSuperiores()) EXPECT_DOUBLE_EQ(v, caso.valor);
        EXPECT_DOUBLE_EQ(ValorSuperior(), caso.valor);
    }
    EsperarFilas(Calcular("MEDSER(H)", 3, 5), {5, Falta, 5});
    // No row present: zero over zero.
    Calcular("MEDSER(NADA)");
    EXPECT_TRUE(std::isnan(ValorSuperior()));
}

// The totals see series where a caller has switched them off, from then on to the end of the statement.
TEST_F(Formulas, LosTotalesVenSeries) {
    Evaluador.SeriesPermitidas = 0;
    EXPECT_EQ(Evaluar("LN(A)"), 0);
    LimpiarEvaluador();
    Evaluador.SeriesPermitidas = 0;
    EXPECT_EQ(Evaluar("SUMSER(A) + A"), 1);
    EXPECT_EQ(ValorSuperior(), 56);
    EXPECT_EQ(Evaluador.SeriesPermitidas, 1);
}

// ---------------------------------------------------------------------------------------------------------------
// Failures

TEST_F(Formulas, CajasDeFunciones) {
    const struct {
        const char *formula;
        std::vector<std::string> cajas;
    } casos[] = {
        {"LN", {"LN. Pto 31"}},
        {"LN A", {"LN A. Pto 31"}},
        {"PROG", {"PROG. Pto 31"}},
        {"PROBN", {"PROBN. Pto 31"}},
        {"RND(1)", {"RND(1). Pto 131"}},
        {"RNDN ()", {"RNDN (). Pto 131"}},
        {"POT(A)", {"POT(A). Pto 36"}},
        {"POT(A", {"POT(A. Pto 36"}},
        {"POT(A;2)", {"POT(A;2). Pto 36"}},
        {"LN(A,2)", {"LN(A,2). Pto 37"}},
        {"LN(A", {"LN(A. Pto 37"}},
        {"POT(A,2,3)", {"POT(A,2,3). Pto 37"}},
        {"PROBF(A,2)", {"PROBF(A,2). Pto 36"}},
        {"LN()", {"LN(). Pto 33"}},
        {"NOT()", {"NOT(). Pto 33"}},
        {"SUMSER( )", {"SUMSER( ). Pto 33"}},
        {"POT(A,)", {"POT(A,). Pto 33"}},
        {"POT(,A)", {"POT(,A). Pto 33"}},
        {"TEND(,)", {"TEND(,). Pto 33"}},
        {"PROBN()", {"PROBN(). Pto 32"}},
        {"PROBT(A,)", {"PROBT(A,). Pto 32"}},
        {"PROBF(A,,)", {"PROBF(A,,). Pto 32"}},
        {"A + LN()", {"A + LN(). Pto 1129"}}, // LN takes A, and the "+" finds nothing left
        {"LN(A B)", {"A B. Pto 7", "Error en los calculos", "LN(A B). Pto 78"}},
        {"POT(A B,2)", {"A B. Pto 7", "Error en los calculos", "POT(A B,2). Pto 34"}},
        {"POT(A,A B)", {"A B. Pto 7", "Error en los calculos", "POT(A,A B). Pto 78"}},
        {"A + LN((A B))", {"A B. Pto 7", "(A B). Pto 22", "Error en los calculos", "A + LN((A B)). Pto 178"}},
        {"LN(POT(QQ,2))",
         {"Función desconocida [QQ]", "QQ. Pto 199", "Error en los calculos", "POT(QQ,2). Pto 34",
          "Error en los calculos", "LN(POT(QQ,2)). Pto 78"}},
        // The "," of an element ends the argument: only parentheses hide one.
        {"LN(M[1,2])", {"M[1. Pto 882", "Error en los calculos", "LN(M[1,2]). Pto 78"}},
        {"POT(M[1,2],2)", {"M[1. Pto 882", "Error en los calculos", "POT(M[1,2],2). Pto 34"}},
        {"LN(A) LN(A)", {"LN(A) LN(A). Pto 4444"}},
        {"LN(A)(1)", {"LN(A)(1). Pto 21"}},
    };
    for (const auto &caso : casos) {
        SCOPED_TRACE(caso.formula);
        LimpiarEvaluador();
        EXPECT_EQ(Evaluar(caso.formula), 0);
        EXPECT_EQ(TextosDeCajas(), caso.cajas);
        for (const CajaVista &caja : Prueba.cajas)
            EXPECT_EQ(caja.titulo,
                      caja.texto == "Error en los calculos" ? "Proceso Cancelado" : "Proceso cancelado");
    }
}

// Functions nest as deep as there are text buffers.
TEST_F(Formulas, NivelesDeFunciones) {
    const auto anidada = [](int veces) {
        std::string r;
        for (int i = 0; i < veces; ++i) r += "ABS(";
        return r + "A" + std::string(static_cast<std::size_t>(veces), ')');
    };
    EXPECT_EQ(Evaluar(anidada(11)), 1);
    LimpiarEvaluador();
    EXPECT_EQ(Evaluar(anidada(12)), 0);
    std::vector<CajaVista> cajas = {
        {"Proceso Cancelado", "Demasiados parentesis", IconoInformacion, BotonesAceptar},
        {"Proceso cancelado", "ABS(A). Pto 78", IconoInformacion, BotonesAceptar}};
    for (int k = 2; k <= 12; ++k) {
        cajas.push_back({"Proceso Cancelado", "Error en los calculos", IconoInformacion, BotonesAceptar});
        cajas.push_back({"Proceso cancelado", anidada(k) + ". Pto 78", IconoInformacion, BotonesAceptar});
    }
    EXPECT_EQ(Prueba.cajas, cajas);
    LimpiarEvaluador();
    EXPECT_EQ(Evaluar(std::string(11, '(') + "POT(A,2)" + std::string(11, ')')), 0);
    ASSERT_GE(Prueba.cajas.size(), 2u);
    EXPECT_EQ(Prueba.cajas[0].texto, "Demasiados parentesis");
    EXPECT_EQ(Prueba.cajas[1].texto, "POT(A,2). Pto 34");
}

// The text buffers give out before the table of pending functions does.
TEST_F(Formulas, FuncionesPendientesLlenas) {
    Evaluador.numFunciones = MaxFuncionesPendientes;
    EXPECT_EQ(Evaluar("LN(A)"), 0);
    EXPECT_EQ(TextosDeCajas(), std::vector<std::string>{"LN(A). Pto 303"});
}

// ---------------------------------------------------------------------------------------------------------------
// Random numbers

TEST_F(Formulas, NumerosAleatorios) {
    const struct {
        const char *formula;
        double (*generador)(std::int32_t *);
    } casos[] = {{"RND", AleatorioUniforme}, {"RNDN", AleatorioNormal}};
    for (const auto &caso : casos) {
        SCOPED_TRACE(caso.formula);
        Prueba.segundos = 77;
        std::vector<double> esperadas;
        std::int32_t semilla = 77;
        for (int i = 3; i <= 8; ++i) esperadas.push_back(caso.generador(&semilla));
        EsperarFilas(Calcular(caso.formula, 3, 8), esperadas);
        // Within the same second the same numbers; in the next one others.
        EsperarFilas(Calcular(caso.formula, 3, 8), esperadas);
        Prueba.segundos = 78;
        EXPECT_NE(Calcular(caso.formula, 3, 8), esperadas);
    }
    Prueba.segundos = 0;
    const std::vector<double> dos = Calcular("RND - RND");
    EsperarFilas(dos, std::vector<double>(10, 0.0));
    Prueba.segundos = -5;
    for (const double v : Calcular("RND * (0 - 1)")) EXPECT_TRUE(v > -1 && v < 0);
}

} // namespace
