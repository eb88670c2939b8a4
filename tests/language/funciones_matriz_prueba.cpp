// What a series formula takes from the matrices: their functions, and the probabilities.
#include "formulas.h"

#include "matrix/probabilidad.h"

#include <cmath>
#include <numbers>

namespace {

TEST_F(Formulas, FuncionesDeMatrices) {
    PonerMatriz("V", {3, 4}, 2, 1);
    const struct {
        const char *formula;
        double primera, ultima;
    } casos[] = {
        {"SUMA(M)", 10, 10},
        {"SUMA (M)", 10, 10},
        {"A * SUMA(M) + 1", 11, 101},
        {"((SUMA(M)))", 10, 10},
        {"SUMA(M * M) - A", 53, 44},
        {"DET(M)", -2, -2},
        {"DET(M)' + A", -1, 8},
        {"TRAZA(M)", 5, 5},
        {"NFILA(R)", 2, 2},
        {"NCOLU(R)", 3, 3},
        {"NREG(R)", 3, 3},
        {"MAX(R) + MIN(R)", 7, 7},
        {"ESCAL(V' * V)", 25, 25},
        {"LNDET(M)", 0, 0},
        {"ABS(DET(M))", 2, 2},
        // These leave no number.
        {"DIAG(V)", 0, 0},
        {"VECT(M) + 1", 1, 1},
        {"LNMT(M)", 0, 0},
        {"RCMT(M)", 0, 0},
        {"MINC(M)", 0, 0},
    };
    for (const auto &caso : casos) {
        SCOPED_TRACE(caso.formula);
        const std::vector<double> r = Calcular(caso.formula);
        EXPECT_EQ(TextosDeCajas(), std::vector<std::string>{});
        ASSERT_EQ(r.size(), 10u);
        EXPECT_DOUBLE_EQ(r[0], caso.primera);
        EXPECT_DOUBLE_EQ(r[9], caso.ultima);
    }
}

TEST_F(Formulas, FuncionesDeMatricesQueFallan) {
    const struct {
        const char *formula;
        std::vector<std::string> cajas;
    } casos[] = {
        {"DET(R)", {"DET(R). Pto 14"}},
        {"A + DET(R)", {"A + DET(R). Pto 114"}},
        {"SUMA(QQ)", {"Error en secuencia. Pto 55", "SUMA(QQ). Pto 14"}},
        {"(SUMA(A))", {"Error en secuencia. Pto 55", "SUMA(A). Pto 14", "(SUMA(A)). Pto 22"}},
    };
    for (const auto &caso : casos) {
        SCOPED_TRACE(caso.formula);
        LimpiarEvaluador();
        EXPECT_EQ(Evaluar(caso.formula), 0);
        EXPECT_EQ(TextosDeCajas(), caso.cajas);
        EXPECT_EQ(Evaluador.NivelLinea, 0);
    }
}

// Closed forms: two degrees of freedom, or one for t.
TEST_F(Formulas, Probabilidades) {
    PonerSerie("X", {0.5, 1, 1, 2, -3, 40});
    const struct {
        const char *formula;
        double (*valor)(double x);
    } casos[] = {
        {"PROBN(X)", [](double x) { return std::erfc(std::fabs(x) / std::sqrt(2.0)); }},
        {"PROBT(X,1)", [](double x) { return 2 / std::numbers::pi * std::atan(1 / std::fabs(x)); }},
        {"PROBT(X,2)",
         [](double x) { return 2 / ((2 + x * x) * (1 + std::fabs(x) / std::sqrt(2 + x * x))); }},
        {"PROBC(ABS(X),2)", [](double x) { return std::exp(-std::fabs(x) / 2); }},
        {"PROBF(ABS(X),2,2)", [](double x) { return 1 / (1 + std::fabs(x)); }},
    };
    for (const auto &caso : casos) {
        SCOPED_TRACE(caso.formula);
        const std::vector<double> r = Calcular(caso.formula, 0, 5);
        ASSERT_EQ(r.size(), 6u);
        EXPECT_EQ(Evaluador.profundidad, 1);
        for (std::size_t i = 0; i < r.size(); ++i) {
            const double esperado = caso.valor(ArchivoTrabajo.ValoresObs[i][BuscarSerie("X")]);
            EXPECT_NEAR(r[i], esperado, 1e-12 * esperado) << i;
        }
    }
}

TEST_F(Formulas, ProbabilidadesPorFila) {
    // Each row by its own arguments, also where only a later one changes.
    PonerSerie("GL", {3, 3, 4, 4, 5, 5, 3, 3, 3, 7});
    const std::vector<double> r = Calcular("PROBF(T,GL,A)");
    ASSERT_EQ(r.size(), 10u);
    for (std::size_t i = 0; i < r.size(); ++i) {
        double valor = 0.0;
        Probabilidad('f', 2, ArchivoTrabajo.ValoresObs[i][BuscarSerie("GL")], static_cast<double>(i) + 1,
                     valor);
        EXPECT_EQ(r[i], valor);
    }
    // What Probabilidad declines is 0.0.
    EsperarFilas(Calcular("PROBT(0,0)", 0, 1), {0, 0});
    EsperarFilas(Calcular("PROBF(0,0,0)", 0, 1), {0, 0});
    // The flags of the first argument alone.
    const std::vector<double> h = Calcular("PROBC(H,2)", 3, 5);
    ASSERT_EQ(h.size(), 3u);
    EXPECT_FALSE(std::isnan(h[0]) || std::isnan(h[2]));
    EXPECT_TRUE(std::isnan(h[1]));
    Calcular("PROBC(2,H)", 3, 5);
    for (int i = 3; i <= 5; ++i) EXPECT_EQ(ColumnaSuperior().presente[i], 1);
}

} // namespace
