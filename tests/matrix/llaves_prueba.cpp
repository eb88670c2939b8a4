// The brace form: from series to matrices.
#include "matrix/evaluacion.h"

#include <chrono>
#include <climits>

namespace {

constexpr const char *Faltan = "Existen valores missing. Pto 62";

std::string Veces(const char *texto, int veces) {
    std::string r;
    for (int i = 0; i < veces; ++i) r += texto;
    return r;
}

struct CasoLlaves {
    std::string formula;
    int primera, ultima;
    MatrizVista esperada; // what is stored; 0 by 0 for nothing
    std::vector<std::string> cajas;
};

const std::vector<CasoLlaves> Casos = {
    {"{S}", 0, 2, {3, 1, {11, 12, 13}}, {}},
    {"  { S T }", 0, 1, {2, 2, {11, 21, 12, 22}}, {}},
    {"{S T}", 3, 4, {2, 2, {14, 24, 15, 25}}, {}},
    {"{ 1 S }", 1, 3, {3, 2, {1, 12, 1, 13, 1, 14}}, {}},
    {"{E S 0.5}", 0, 0, {1, 3, {2.5, 11, 0.5}}, {}},
    {"{0 0 0 0}", 0, 1, {2, 4, {0, 0, 0, 0, 0, 0, 0, 0}}, {}},
    {"{S S}", 0, 1, {2, 2, {11, 11, 12, 12}}, {}},
    {"{S} + A rest, of no interest", 0, 0, {1, 1, {11}}, {}},
    // A missing value is stored as 0.0, and then the statement fails.
    {"{T}", 1, 3, {3, 1, {22, 0, 24}}, {Faltan}},
    {"{S T}", 2, 2, {1, 2, {13, 0}}, {Faltan}},
    {"{S 1}", 4, 5, {2, 2, {15, 1, 0, 1}}, {Faltan}},
    // Rows outside the tables have no values, not even those of a constant.
    {"{1}", 3999, 4000, {2, 1, {1, 0}}, {Faltan}},
    {"{1 S}", -1, 0, {2, 2, {0, 0, 1, 11}}, {Faltan}},
    {"{S}", INT_MAX, INT_MAX, {1, 1, {0}}, {Faltan}},
    {"{S}", 3, 2, {}, {Faltan}},
    {"{S}", INT_MAX, INT_MIN, {}, {Faltan}},
    // What can't stand in braces.
    {"{ -1 S }", 0, 1, {}, {"Secuencia desconocida: [-]. Pto 23"}},
    {"{S+T}", 0, 1, {}, {"Secuencia desconocida: [+]. Pto 23"}},
    {"{S'}", 0, 1, {}, {"Secuencia desconocida: [']. Pto 23"}},
    {"{A}", 0, 1, {}, {"Secuencia desconocida: [A]. Pto 23"}},
    {"{DET(A)}", 0, 1, {}, {"Secuencia desconocida: [DET]. Pto 23"}},
    {"{S, T}", 0, 1, {}, {"Secuencia desconocida: [,]. Pto 24"}},
    {"{S [1]}", 0, 1, {}, {"Secuencia desconocida: [[]. Pto 24"}},
    {"{S ñ}", 0, 1, {}, {"Secuencia desconocida: [ñ]. Pto 24"}},
    {"{(S)}", 0, 1, {}, {"Secuencia desconocida: [(]. Pto 24"}},
    {"{S )}", 0, 1, {}, {"Secuencia desconocida: [)]. Pto 24"}},
    {"{}", 0, 1, {}, {"Secuencia no válida. Pto 67"}},
    {"{   }", 0, 1, {}, {"Secuencia no válida. Pto 67"}},
    // Fifty columns.
    {"{" + Veces("1 ", 50) + "}", 0, 0, {1, 50, std::vector<double>(50, 1.0)}, {}},
    {"{" + Veces("1 ", 51) + "}", 0, 0, {}, {"Error en número. Pto 22"}},
    {"{" + Veces("1 ", 50) + "E}", 0, 0, {}, {"Error en escalar. Pto 38"}},
    {"{" + Veces("S ", 51) + "}", 0, 0, {}, {"Excesivos datos temporales. Pto 391"}},
    // 40,000 elements.
    {"{" + Veces("1 ", 10) + "}", 0, 3999, {4000, 10, std::vector<double>(40000, 1.0)}, {}},
    {"{" + Veces("1 ", 11) + "}", 0, 3999, {}, {"Escoja matrices mas pequeñas o quite regresores. Pto 62"}},
    {"{" + Veces("1 ", 50) + "}", 0, 799, {800, 50, std::vector<double>(40000, 1.0)}, {}},
    {"{" + Veces("1 ", 50) + "}", 0, 800, {}, {"Escoja matrices mas pequeñas o quite regresores. Pto 62"}},
    {"{" + Veces("1 ", 11) + "}", 0, 100000, {}, {"Escoja matrices mas pequeñas o quite regresores. Pto 62"}},
};

TEST_F(ConMatrices, Llaves) {
    for (const CasoLlaves &c : Casos) {
        SCOPED_TRACE(c.formula.substr(0, 40));
        const int vieja = BuscarMatriz("RES");
        if (vieja >= 0) BorrarMatriz(nullptr, vieja);
        EXPECT_EQ(Evaluar(c.formula, "RES", c.primera, c.ultima), c.cajas.empty() ? 1 : 0);
        EXPECT_EQ(Cajas(), c.cajas);
        EsperarMatriz("RES", c.esperada, 0.0);
        EXPECT_EQ(Evaluador.profundidad, 0) << "no column was written";
    }
}

// The end of a sample without data is 100,000.
TEST_F(ConMatrices, LlavesConMuestraSinDatos) {
    EXPECT_EQ(Evaluar("{S}", "RES", 0, 100000), 0);
    EXPECT_EQ(Cajas(), std::vector<std::string>{Faltan});
    const MatrizVista m = Matriz("RES");
    EXPECT_EQ(m.filas, 4000);
    EXPECT_EQ(m.datos[4], 15.0);
    EXPECT_EQ(m.datos[5], 0.0);
}

TEST_F(ConMatrices, LlavesDejanElNivelUnoMasArriba) {
    LineasDePrueba[3] = "{S}";
    Evaluador.NivelLinea = 3;
    PonerCampo(Evaluador.CodigoMatrizDestino, "RES", AnchoCodigo);
    int posicion = 0;
    EXPECT_EQ(EvaluarFormulaMatriz(LineasDePrueba, posicion, nullptr, 0, 0), 1);
    EXPECT_EQ(Evaluador.NivelLinea, 4);
    EXPECT_EQ(posicion, 3);
    Evaluador.NivelLinea = 0;
}

TEST_F(ConMatrices, LlavesEnElUltimoNivel) {
    LineasDePrueba[11] = "{S}";
    Evaluador.NivelLinea = 11;
    PonerCampo(Evaluador.CodigoMatrizDestino, "RES", AnchoCodigo);
    int posicion = 0;
    EXPECT_EQ(EvaluarFormulaMatriz(LineasDePrueba, posicion, nullptr, 0, 0), 0);
    EXPECT_EQ(Cajas(), std::vector<std::string>{"Excesivos paréntesis. Pto 63"});
    EXPECT_EQ(Evaluador.NivelLinea, 11);
    Evaluador.NivelLinea = 0;
}

} // namespace
