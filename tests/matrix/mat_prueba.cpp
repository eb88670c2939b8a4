// The statement MAT, through the driver: its priorities, and the matrix that it leaves or doesn't.
#include "matrix/evaluacion.h"

#include "store/periodos.h"

namespace {

struct CasoMat {
    const char *sentencia;
    MatrizVista esperada; // 0 by 0 for none
    std::vector<std::string> cajas;
};

const std::vector<CasoMat> Casos = {
    {"MAT RES = A + B * A", {2, 2, {24, 36, 34, 50}}, {}}, // typed, a product comes before a sum
    {"MAT RES = A + B A", {2, 2, {30, 44, 46, 68}}, {}},   // but not the one that is a blank
    {"MAT RES = A - B' + A", {2, 2, {-3, -3, 0, 0}}, {}},
    {"MAT RES = (X'X)$ * (X'X)", {2, 2, {1, 0, 0, 1}}, {}},
    {"mat res = a - 3", {2, 2, {1, 2, 3, 4}}, {}},
    {"MAT RES = A * (-3)", {2, 2, {-3, -6, -9, -12}}, {}},
    {"MAT RES = {1 S}", {5, 2, {1, 11, 1, 12, 1, 13, 1, 14, 1, 15}}, {}},
    {"MAT RES = A / 0", {2, 2, {0, 0, 0, 0}}, {}},
    {"MAT RES = 3", {}, {"Secuencia no válida. Pto 67"}},
    {"MAT RES = -A", {}, {"Secuencia no correcta. Pto 18"}},
    {"MAT RES = -3 * A", {}, {"Secuencia no correcta. Pto 18"}}, // becomes -(3 * A)
    {"MAT RES = A + 3", {}, {"Secuencia no correcta: [+],1. Pto 21"}},
    {"MAT RES = S", {}, {"Error en secuencia. Pto 55"}},
    {"MAT RES = A * -3", {}, {"MAT RES = A * -3. Pto 56"}},
    {"MAT RES = UNOS18$", {}, {"Demasiados regresores", "Error en inversa. Pto 401"}},
    {"MAT RES = {T}", {5, 1, {21, 22, 0, 24, 25}}, {"Existen valores missing. Pto 62"}},
    {"MAT S = A", {}, {"Nombre matriz no válido. Pto 28"}},
    {"MAT E = A", {}, {"Nombre matriz no válido. Pto 29"}},
};

TEST_F(ConMatrices, SentenciaMat) {
    for (const CasoMat &c : Casos) {
        SCOPED_TRACE(c.sentencia);
        const int vieja = BuscarMatriz("RES");
        if (vieja >= 0) BorrarMatriz(nullptr, vieja);
        Prueba.cajas.clear();
        Muestra.LimiteInicial = "1";
        Muestra.LimiteFinal = "5";
        EXPECT_EQ(Sentencia(c.sentencia), c.cajas.empty());
        EXPECT_EQ(Cajas(), c.cajas);
        EsperarMatriz("RES", c.esperada);
        EXPECT_EQ(BufferMatriz.enUso, 0);
    }
}

// A series formula reaches the functions of matrices.
TEST_F(ConMatrices, FuncionesDeMatricesEnUnEscalar) {
    EXPECT_TRUE(Sentencia("ESC D = DET(A) + 1"));
    EXPECT_EQ(EscalarDe("D"), -1.0);
    EXPECT_TRUE(Sentencia("ESC D = SUMA(A * B) / NFILA(X)"));
    EXPECT_NEAR(EscalarDe("D"), 134.0 / 3.0, 1e-12);
    EXPECT_TRUE(Sentencia("ESC D = DIAG(V)"));
    EXPECT_EQ(EscalarDe("D"), 0.0);
    EXPECT_FALSE(Sentencia("ESC D = DET(X)"));
}

} // namespace
