// Matrix formulas: what they give, and what stops them.
#include "matrix/evaluacion.h"

#include <chrono>
#include <random>

namespace {

std::string Repetido(std::string_view texto, int veces) {
    std::string r;
    for (int i = 0; i < veces; ++i) r += texto;
    return r;
}

// A box, and behind it those of the functions that enclose the place.
std::vector<std::string> TrasCajas(const char *primera, std::size_t funciones) {
    std::vector<std::string> r(funciones + 1, "Dimensiones matrices no válidas. Pto 80");
    r[0] = primera;
    return r;
}

// ----- What formulas give

struct CasoValor {
    const char *formula;
    MatrizVista esperada;
};

const std::vector<CasoValor> Valores = {
    {"A", {2, 2, {1, 2, 3, 4}}},
    {"  A  ", {2, 2, {1, 2, 3, 4}}},
    {"A + B", {2, 2, {6, 8, 10, 12}}},
    {"A-B", {2, 2, {-4, -4, -4, -4}}},
    {"A * B", {2, 2, {19, 22, 43, 50}}},
    {"A*V", {2, 1, {50, 110}}},
    // Strictly from left to right: (A + B) * A.
    {"A + B * A", {2, 2, {30, 44, 46, 68}}},
    {"A + (B * A)", {2, 2, {24, 36, 34, 50}}},
    {"A * (B + A)", {2, 2, {26, 32, 58, 72}}},
    {"(A + B) - A", {2, 2, {5, 6, 7, 8}}},
    // A blank, or the sign that closes the left operand, multiplies.
    {"A B", {2, 2, {19, 22, 43, 50}}},
    {"A + B A", {2, 2, {30, 44, 46, 68}}},
    {"(A) B", {2, 2, {19, 22, 43, 50}}},
    {"X'X", {2, 2, {35, 44, 44, 56}}},
    {"X' X", {2, 2, {35, 44, 44, 56}}},
    {"X X'", {3, 3, {5, 11, 17, 11, 25, 39, 17, 39, 61}}},
    {"A$B", {2, 2, {-3, -4, 4, 5}}},
    {"(X'X)$ X'X", {2, 2, {1, 0, 0, 1}}},
    {"A B A", {2, 2, {85, 126, 193, 286}}},
    // Signs.
    {"X'", {2, 3, {1, 3, 5, 2, 4, 6}}},
    {"X''", {3, 2, {1, 2, 3, 4, 5, 6}}},
    {"X '", {2, 3, {1, 3, 5, 2, 4, 6}}},
    {"(X)'", {2, 3, {1, 3, 5, 2, 4, 6}}},
    {"A$", {2, 2, {-2, 1, 1.5, -0.5}}},
    {"A'$", {2, 2, {-2, 1.5, 1, -0.5}}},
    {"A * B'", {2, 2, {17, 23, 39, 53}}},
    {"A * (B)'", {2, 2, {17, 23, 39, 53}}},
    {"A * (A)$", {2, 2, {1, 0, 0, 1}}},
    // Scalars and numbers.
    {"2 * A", {2, 2, {2, 4, 6, 8}}},
    {"A * 2", {2, 2, {2, 4, 6, 8}}},
    {"E * A", {2, 2, {2.5, 5, 7.5, 10}}},
    {".5 * A", {2, 2, {0.5, 1, 1.5, 2}}},
    {"A / 2", {2, 2, {0.5, 1, 1.5, 2}}},
    {"2 / A", {2, 2, {0.5, 1, 1.5, 2}}}, // the scalar divides the matrix
    {"A / 0", {2, 2, {0, 0, 0, 0}}},
    {"0 / A", {2, 2, {0, 0, 0, 0}}},
    {"A / CERO", {2, 2, {0, 0, 0, 0}}},
    {"A - 3", {2, 2, {1, 2, 3, 4}}}, // the scalar changes its sign and is forgotten
    {"3 - A", {2, 2, {-1, -2, -3, -4}}},
    {"-3 * A", {2, 2, {-3, -6, -9, -12}}},
    {"A * (-3)", {2, 2, {-3, -6, -9, -12}}},
    {"A * 2 B", {2, 2, {38, 44, 86, 100}}},
    {"A * 2 * E", {2, 2, {5, 10, 15, 20}}},
    {"A * -(3)", {2, 2, {3, 6, 9, 12}}}, // a sign between an operator and a parenthesis is passed over
    // The end of a formula is silent.
    {"A, B", {2, 2, {1, 2, 3, 4}}},
    {"A; + B", {2, 2, {1, 2, 3, 4}}},
    {"A ] B", {2, 2, {1, 2, 3, 4}}},
    {"A } {", {2, 2, {1, 2, 3, 4}}},
    {"A + B # C", {2, 2, {6, 8, 10, 12}}},
    {"A ñ", {2, 2, {1, 2, 3, 4}}},
    {"A\t* B", {2, 2, {1, 2, 3, 4}}},
    {"(A, B) + A", {2, 2, {2, 4, 6, 8}}},
    // Parentheses, up to eleven levels below the first.
    {"(((((((((((A)))))))))))", {2, 2, {1, 2, 3, 4}}},
    {"A * (B * (A + B))", {2, 2, {334, 416, 758, 944}}},
};

TEST_F(ConMatrices, Valores) {
    for (const CasoValor &c : Valores) {
        SCOPED_TRACE(c.formula);
        BorrarMatriz(nullptr, std::max(BuscarMatriz("RES"), BuscarMatriz("UNOS18")));
        PonerMatriz("UNOS18", Identidad(18));
        EXPECT_EQ(Evaluar(c.formula), 1);
        EXPECT_EQ(Cajas(), std::vector<std::string>{});
        EsperarMatriz("RES", c.esperada);
    }
}

TEST_F(ConMatrices, OperandosQuedanComoEstaban) {
    ASSERT_EQ(Evaluar("A * B + A' - (X'X)$"), 1);
    EsperarMatriz("A", {2, 2, {1, 2, 3, 4}}, 0.0);
    EsperarMatriz("B", {2, 2, {5, 6, 7, 8}}, 0.0);
    EsperarMatriz("X", Contada(3, 2), 0.0);
    EXPECT_EQ(TablaMatrices.EstadoBloque[BuscarMatriz("A")], BloqueSuelto);
}

TEST_F(ConMatrices, ElDestinoPuedeSerOperando) {
    ASSERT_EQ(Evaluar("A + B", "A"), 1);
    ASSERT_EQ(Evaluar("A + B", "A"), 1);
    EsperarMatriz("A", {2, 2, {11, 14, 17, 20}}, 0.0);
}

TEST_F(ConMatrices, UnaMatrizFijadaSigueFijada) {
    const int a = BuscarMatriz("A");
    FijarMatriz(a);
    ASSERT_EQ(Evaluar("A + B"), 1);
    EXPECT_EQ(TablaMatrices.EstadoBloque[a], BloqueFijado);
    ASSERT_NE(TablaMatrices.registro[a].Datos, nullptr);
    EXPECT_EQ(TablaMatrices.registro[a].Datos[3], 4.0);
    SoltarMatriz(a);
}

// ----- What stops them: every message with its point, in the order of the boxes

struct CasoFallo {
    std::string formula;
    std::vector<std::string> cajas;
};

const std::vector<CasoFallo> Fallos = {
    // Nothing, or a scalar alone, is no matrix.
    {"", {"Secuencia no válida. Pto 67"}},
    {"   ", {"Secuencia no válida. Pto 67"}},
    {", A", {"Secuencia no válida. Pto 67"}},
    {"()", {"Secuencia no válida. Pto 67"}},
    {"3", {"Secuencia no válida. Pto 67"}},
    {"E", {"Secuencia no válida. Pto 67"}},
    {"-3", {"Secuencia no válida. Pto 67"}},
    {"DET(A)", {"Secuencia no válida. Pto 67"}},
    {"NOBS", {"Secuencia no válida. Pto 67"}},
    {"A - (B - 3)", {"Secuencia no válida. Pto 67"}}, // two matrices are left
    // The table of operators.
    {"* ()", {"Secuencia no correcta. Pto 13"}},
    {"A * ()", {"Secuencia no correcta. Pto 14"}},
    {"*A", {"Secuencia no correcta. Pto 14"}},
    {"2 * DIAG(V)", {"Secuencia no correcta. Pto 14"}}, // its spare kind makes the scalar look like a matrix
    {"TRAZA(DIAG(V)) * A", {"Secuencia no correcta. Pto 14"}},
    {"() * A", {"Secuencia no correcta. Pto 14"}},
    {"A * X", {"Dimensiones matrices no válidas. Pto 15"}},
    {"+A", {"Secuencia no correcta. Pto 16"}},
    {"A + (-B)", {"Secuencia no correcta. Pto 16"}}, // the sign in the parenthesis took A from the left
    {"A + X", {"Dimensiones matrices no válidas. Pto 17"}},
    {"V + V'", {"Dimensiones matrices no válidas. Pto 17"}},
    {"-A", {"Secuencia no correcta. Pto 18"}},
    {"A - X", {"Dimensiones matrices no válidas. Pto 19"}},
    {"*3", {"Secuencia no correcta. Pto 20"}},
    {"/3", {"Secuencia no correcta. Pto 20"}},
    {"A + 3", {"Secuencia no correcta: [+],1. Pto 21"}},
    {"3 + A", {"Secuencia no correcta: [+],0. Pto 21"}},
    {"3 * 4", {"Secuencia no correcta: [*],1. Pto 21"}},
    {"3 / 4", {"Secuencia no correcta: [/],1. Pto 21"}},
    {"A / B", {"Secuencia no correcta: [/],0. Pto 21"}},
    {"+3", {"Secuencia no correcta: [+],1. Pto 21"}},
    // The stacks.
    {Repetido("A-(", 10) + "A" + Repetido(")", 10), {"Excesivas combinaciones. Pto 34"}},
    {Repetido("A-(", 9) + "A'" + Repetido(")", 9), {"Excesivas combinaciones. Pto 39"}},
    {Repetido("A-(", 9) + "A$" + Repetido(")", 9), {"Excesivas combinaciones. Pto 41"}},
    {Repetido("-1", 10) + "-A", {"Error en secuencia. Pto 46"}},
    {Repetido("-1", 11), {"Error en secuencia. Pto 48"}},
    {Repetido("-E", 11), {"Error en secuencia. Pto 51"}},
    {Repetido("-1", 10) + "-DET(A)", {"Error en secuencia. Pto 71"}},
    {Repetido("-1", 10) + "-NOBS", {"Error en secuencia. Pto 71"}},
    {Repetido("-1", 10) + "-DIAG(V)", {"Error en secuencia. Pto 71"}},
    {Repetido("-1", 9) + "-DIAG(V)",
     {"Error en secuencia. Pto 46", "Dimensiones matrices no válidas. Pto 80"}},
    {Repetido("A-(", 9) + "DIAG(V)" + Repetido(")", 9),
     {"Excesivas combinaciones. Pto 34", "Dimensiones matrices no válidas. Pto 80"}},
    {Repetido("(", 12) + "A" + Repetido(")", 12), {"Excesivos paréntesis. Pto 12"}},
    {Repetido("(", 10000) + "A" + Repetido(")", 10000), {"Excesivos paréntesis. Pto 12"}},
    {Repetido("(", 10000), {"Excesivos paréntesis. Pto 12"}},
    // A function adds a box of its own to what its argument failed with.
    {Repetido("RCMT(", 12) + "A" + Repetido(")", 12), TrasCajas("Excesivos paréntesis. Pto 12", 12)},
    {Repetido("DET(", 12) + "A" + Repetido(")", 12), TrasCajas("Error en secuencia. Pto 71", 10)},
    // Signs.
    {"X$", {"Dimensiones matrices No válidas. Pto 40"}},
    {"UNOS18$", {"Demasiados regresores", "Error en inversa. Pto 401"}},
    {"SING$", {"Matriz singular. Pto 402"}},
    {"'A", {"Error en secuencia. Pto 55"}},
    {"2$", {"Error en secuencia. Pto 55"}},
    {"(2)'", {"Error en secuencia. Pto 55"}},
    // Sequence.
    {"A X", {"Dimensiones matrices no válidas. Pto 43"}},
    {"X'X X", {"Dimensiones matrices no válidas. Pto 43"}},
    {"2 A", {"Error en secuencia. Pto 44"}},
    {"E A", {"Error en secuencia. Pto 44"}},
    {"A * (2 A)", {"Error en secuencia. Pto 44"}},
    {"() A", {"Error en secuencia. Pto 45"}},
    {"SUMA(DIAG(V)) A", {"Error en secuencia. Pto 45"}}, // a kind without its matrix
    {"2 3", {"Error en secuencia. Pto 47"}},
    {"A 3", {"Error en secuencia. Pto 47"}},
    {"A E", {"Error en secuencia. Pto 50"}},
    {"2 E", {"Error en secuencia. Pto 50"}},
    {"A (B)", {"Error en secuencia. Pto 53"}},
    {"(A)(B)", {"Error en secuencia. Pto 53"}},
    {"A(1)", {"Error en secuencia. Pto 53"}},
    {"Q", {"Error en secuencia. Pto 55"}},
    {"S", {"Error en secuencia. Pto 55"}}, // a series is no operand
    {"A = B", {"Error en secuencia. Pto 55"}},
    {"A:2", {"Error en secuencia. Pto 55"}},
    {"A {S}", {"Error en secuencia. Pto 55"}},
    {"A )", {"Error en secuencia. Pto 55"}},
    {") A (", {"Error en secuencia. Pto 55"}},
    {"A * -3", {"A * -3. Pto 56"}},
    {"A *", {"A *. Pto 56"}},
    {"A * ", {"A * . Pto 56"}},
    {"A * * B", {"A * * B. Pto 56"}},
    {"A + Ñ", {"A + Ñ. Pto 56"}},
    {"A + Q + B", {"A + Q + B. Pto 56"}},
    {"A * )", {"A * ). Pto 56"}},
    {"A + (B * -3)", {"B * -3. Pto 56"}}, // the line of that level
    // Functions.
    {"A DET(A)", {"Error en secuencia. Pto 78"}},
    {"A NOBS", {"Error en secuencia. Pto 78"}},
    {"A DIAG(V)", {"Error en secuencia. Pto 78"}},
    {"DET", {"Error en secuencia. Pto 78"}},
    {"DET (A)", {"Error en secuencia. Pto 78"}},
    {"DET * A", {"Error en secuencia. Pto 78"}},
    {"DET(X)", {"Dimensiones matrices no válidas. Pto 80"}},
    {"LNDET(X)", {"Dimensiones matrices no válidas. Pto 80"}},
    {"TRAZA(X)", {"Dimensiones matrices no válidas. Pto 80"}},
    {"ESCAL(A)", {"Dimensiones matrices no válidas. Pto 80"}},
    {"DIAG(A)", {"Dimensiones matrices no válidas. Pto 80"}},
    {"VECT(X)", {"Dimensiones matrices no válidas. Pto 80"}},
    {"DET(3)", {"Dimensiones matrices no válidas. Pto 80"}},
    {"SUMA()", {"Dimensiones matrices no válidas. Pto 80"}},
    {"SUMA()'", {"Dimensiones matrices no válidas. Pto 80"}},
    {"DET(Q)", {"Error en secuencia. Pto 55", "Dimensiones matrices no válidas. Pto 80"}},
    {"A * DET(SING$)", {"Matriz singular. Pto 402", "Dimensiones matrices no válidas. Pto 80"}},
    {"DET(SING)$", {"Matriz singular. Pto 402", "Dimensiones matrices no válidas. Pto 80"}},
    {"B * MINC(A)", {"Secuencia no válida. Pto 67"}}, // the argument of MINC stays behind
    // Braces.
    {"{S", {"Número inadecuado de llaves. Pto 58"}},
    {"A }", {"Número inadecuado de llaves. Pto 58"}},
    {"{S} {T}", {"Número inadecuado de llaves. Pto 58"}},
    {"{{S}}", {"Número inadecuado de llaves. Pto 58"}},
};

TEST_F(ConMatrices, Fallos) {
    PonerMatriz("RES", {1, 1, {99}});
    for (const CasoFallo &c : Fallos) {
        SCOPED_TRACE(c.formula.substr(0, 60));
        EXPECT_EQ(Evaluar(c.formula), 0);
        EXPECT_EQ(Cajas(), c.cajas);
        EsperarMatriz("RES", {1, 1, {99}}, 0.0); // the target is as it was
        FormulaMatriz.EscalarTraspuesto = false;
    }
}

TEST_F(ConMatrices, UnEscalarSoloNoCreaMatriz) {
    EXPECT_EQ(Evaluar("3", "NUEVA"), 0);
    EXPECT_EQ(BuscarMatriz("NUEVA"), -1);
}

TEST_F(ConMatrices, ElNombreSeMiraAntesDeEvaluar) {
    EXPECT_EQ(Evaluar("Q", "S"), 0);
    EXPECT_EQ(Cajas(), std::vector<std::string>{"Nombre matriz no válido. Pto 28"});
    EXPECT_EQ(Evaluar("{S}", "S"), 0);
    EXPECT_EQ(Cajas(), std::vector<std::string>{"Nombre matriz no válido. Pto 28"});
    EXPECT_EQ(Evaluar("Q", "E"), 0);
    EXPECT_EQ(Cajas(), std::vector<std::string>{"Nombre matriz no válido. Pto 29"});
}

TEST_F(ConMatrices, TreintaMatrices) {
    for (int i = TablaMatrices.numero; i < 28; ++i) PonerMatriz(Formatear("M%d", i), {1, 1, {1}});
    EXPECT_EQ(Evaluar("A", "VEIN29"), 1);
    for (const char *formula : {"A", "{S}"}) {
        EXPECT_EQ(Evaluar(formula, "TREINTA"), 0);
        EXPECT_EQ(Cajas(), std::vector<std::string>{"Demasiadas Matrices. Borre algunas.: 29. Pto 31"});
        EXPECT_EQ(BuscarMatriz("TREINTA"), -1);
        EXPECT_EQ(Evaluar(formula, "VEIN29"), 1) << "one that exists is replaced";
    }
}

TEST_F(ConMatrices, BloqueQueNoSePuedeFijar) {
    std::int32_t &capacidad = TablaMatrices.capacidad[BuscarMatriz("A")];
    const std::int32_t era = capacidad;
    capacidad = 3;
    EXPECT_EQ(Evaluar("A + B"), 0);
    EXPECT_EQ(Cajas(), std::vector<std::string>{"Falta memoria. Pto 33"});
    capacidad = era;
}

// ----- Sizes

TEST_F(ConMatrices, TamanoDeLosProductos) {
    static constexpr struct {
        int filas, columnas;
        bool cabe;
    } casos[] = {{200, 200, true},  {201, 201, false}, {4000, 10, true}, {4000, 11, false},  {221, 181, true},
                 {221, 182, false}, {201, 199, true},  {10, 4000, true}, {4000, 4000, false}};
    for (const auto &c : casos) {
        SCOPED_TRACE(Formatear("%d x %d", c.filas, c.columnas));
        PonerMatriz("COLU", Contada(c.filas, 1));
        PonerMatriz("FILA", Contada(1, c.columnas));
        for (const char *formula : {"COLU * FILA", "COLU FILA"}) {
            EXPECT_EQ(Evaluar(formula), c.cabe ? 1 : 0);
            if (!c.cabe) {
                EXPECT_EQ(Cajas(),
                          std::vector<std::string>{"Matrices demasiado grandes para multiplicar. Pto 15"});
                continue;
            }
            const MatrizVista m = Matriz("RES");
            ASSERT_EQ(m.filas, c.filas);
            ASSERT_EQ(m.columnas, c.columnas);
            EXPECT_EQ(m.datos.back(), static_cast<double>(c.filas) * c.columnas);
        }
    }
}

TEST_F(ConMatrices, LaTraspuestaGuardaCienFilas) {
    PonerMatriz("LARGA", Contada(150, 2));
    ASSERT_EQ(Evaluar("LARGA'"), 1);
    const MatrizVista m = Matriz("RES");
    EXPECT_EQ(m.filas, 2);
    EXPECT_EQ(m.columnas, 100);
    EXPECT_EQ(m.datos[99], 199.0);
    EXPECT_EQ(m.datos[100], 2.0);
    EXPECT_EQ(m.datos[199], 200.0);
    EXPECT_EQ(Evaluar("LARGA'LARGA"), 0);
    EXPECT_EQ(Cajas(), std::vector<std::string>{"Dimensiones matrices no válidas. Pto 43"});
}

TEST_F(ConMatrices, DiagonalQueNoCabe) {
    PonerMatriz("COLU", Contada(200, 1));
    ASSERT_EQ(Evaluar("DIAG(COLU)"), 1);
    EXPECT_EQ(Matriz("RES").datos.back(), 200.0);
    for (const int n : {201, 4000}) {
        PonerMatriz("COLU", Contada(n, 1));
        EXPECT_EQ(Evaluar("DIAG(COLU)"), 0);
        EXPECT_EQ(Cajas(), std::vector<std::string>{"Dimensiones matrices no válidas. Pto 80"});
    }
}

// ----- A scalar transposed

TEST_F(ConMatrices, EscalarTraspuestoEnUnaEjecucionNueva) {
    EXPECT_EQ(Evaluar("2' X"), 0); // the vector finds no size in its place
    EXPECT_EQ(Cajas(), std::vector<std::string>{"Dimensiones matrices no válidas. Pto 43"});
    EXPECT_FALSE(FormulaMatriz.EscalarTraspuesto);
}

TEST_F(ConMatrices, EscalarTraspuestoTomaElTamanoDelAnterior) {
    PonerMatriz("FILA3", {1, 3, {7, 7, 7}});
    ASSERT_EQ(Evaluar("FILA3"), 1);
    ASSERT_EQ(Evaluar("2' X"), 1); // sums of the columns, 9 and 12, times 2
    EsperarMatriz("RES", {1, 2, {18, 24}}, 0.0);
    EXPECT_EQ(Evaluar("2' X"), 0); // the product left 1 by 2 there
    EXPECT_EQ(Cajas(), std::vector<std::string>{"Dimensiones matrices no válidas. Pto 43"});
    ASSERT_EQ(Evaluar("X'"), 1);
    ASSERT_EQ(Evaluar("E'X"), 1);
    EsperarMatriz("RES", {2, 2, {22.5, 30, 22.5, 30}}, 0.0);
    // The sign of the matrix comes before the product; X' has 3 columns.
    ASSERT_EQ(Evaluar("A"), 1);
    ASSERT_EQ(Evaluar("1'X'"), 1);
    EsperarMatriz("RES", {2, 3, {3, 7, 11, 3, 7, 11}}, 0.0);
}

TEST_F(ConMatrices, EscalarTraspuestoEscribeSuTamanoDebajo) {
    PonerMatriz("FILA5", {1, 5, {7, 7, 7, 7, 7}});
    PonerMatriz("UNOS5", Identidad(5));
    PonerMatriz("GRANDE", Contada(200, 200));
    ASSERT_EQ(Evaluar("GRANDE"), 1);
    ASSERT_EQ(Evaluar("FILA5 - FILA5"), 1); // 1 by 5 in the second place
    ASSERT_EQ(Evaluar("A - (2' UNOS5)"), 1);
    // A became 1 by 5: its four elements, and the zero that stands behind them.
    EsperarMatriz("RES", {1, 5, {-1, 0, 1, 2, -2}}, 0.0);
}

TEST_F(ConMatrices, EscalarTraspuestoDemasiadoGrande) {
    PonerMatriz("COLU", Contada(4000, 1));
    PonerMatriz("FILA", Contada(1, 11));
    ASSERT_EQ(Evaluar("COLU"), 1);
    EXPECT_EQ(Evaluar("2' FILA"), 0);
    EXPECT_EQ(Cajas(), std::vector<std::string>{"Matrices demasiado grandes para multiplicar. Pto 15"});
}

TEST_F(ConMatrices, EscalarTraspuestoEsperaASuUso) {
    PonerMatriz("FILA3", {1, 3, {7, 7, 7}});
    ASSERT_EQ(Evaluar("2' * A"), 1);
    EsperarMatriz("RES", {2, 2, {2, 4, 6, 8}}, 0.0);
    EXPECT_TRUE(FormulaMatriz.EscalarTraspuesto);
    ASSERT_EQ(Evaluar("FILA3"), 1);
    ASSERT_EQ(Evaluar("3 X"), 1); // the sign of the other formula is used here
    EsperarMatriz("RES", {1, 2, {27, 36}}, 0.0);
    EXPECT_EQ(Evaluar("3 X"), 0);
    EXPECT_EQ(Cajas(), std::vector<std::string>{"Error en secuencia. Pto 44"});
    EXPECT_EQ(Evaluar("2 3'"), 0); // set before the sequence is looked at
    EXPECT_EQ(Cajas(), std::vector<std::string>{"Error en secuencia. Pto 47"});
    EXPECT_TRUE(FormulaMatriz.EscalarTraspuesto);
}

// ----- Long and senseless texts

TEST_F(ConMatrices, CadenasLargas) {
    const auto inicio = std::chrono::steady_clock::now();
    ASSERT_EQ(Evaluar("A" + Repetido("+A", 50000)), 1);
    EsperarMatriz("RES", {2, 2, {50001, 100002, 150003, 200004}}, 0.0);
    ASSERT_EQ(Evaluar("X" + Repetido("'", 100000)), 1);
    EsperarMatriz("RES", Contada(3, 2), 0.0);
    ASSERT_EQ(Evaluar("A" + Repetido(" ", 100000)), 1);
    ASSERT_EQ(Evaluar("A" + Repetido("+(A)", 25000)), 1);
    EXPECT_EQ(Evaluar(Repetido("Q", 100000)), 0);
    EXPECT_EQ(Evaluar(Repetido("9", 100000) + "*A"), 1);
    EXPECT_EQ(Evaluar("A" + Repetido("-3", 50000)), 0);
    EXPECT_EQ(Cajas(), std::vector<std::string>{"Error en secuencia. Pto 48"});
    EXPECT_LT(std::chrono::steady_clock::now() - inicio, std::chrono::seconds(5));
}

TEST_F(ConMatrices, TextosSinSentido) {
    static constexpr const char *Piezas[] = {
        "A",     "B",     "X",     "V",     "U",     "S",    "E",      "2",     "3.5",  "+",
        "-",     "*",     "/",     "'",     "$",     "(",    ")",      "()",    " ",    "DET(",
        "DIAG(", "VECT(", "MINC(", "RCMT(", "SUMA(", "NOBS", "LNDET(", "2'",    "{",    "}",
        ",",     "Q",     "_",     "\x01",  "ñ",     "[",    "ESCAL(", "LNMT(", "MIN(", "UNOS18"};
    std::mt19937 azar(20240607);
    int validas = 0;
    for (int i = 0; i < 30000; ++i) {
        std::string formula;
        for (auto n = azar() % 14; n > 0; --n) formula += Piezas[azar() % std::size(Piezas)];
        const int r = Evaluar(formula, "RES", static_cast<int>(azar() % 8) - 2, static_cast<int>(azar() % 8));
        // A failure says so, and says it once at least; a success says nothing.
        EXPECT_EQ(r == 0, !Prueba.cajas.empty()) << formula;
        validas += r;
    }
    EXPECT_GT(validas, 100);
}

TEST_F(ConMatrices, CualquierByte) {
    std::mt19937 azar(7);
    for (int i = 0; i < 5000; ++i) {
        std::string formula;
        for (auto n = azar() % 30; n > 0; --n) formula += static_cast<char>(azar() % 256);
        Prueba.cajas.clear();
        LineasDePrueba[0] = formula;
        int posicion = static_cast<int>(azar() % 40) - 5;
        EvaluarFormulaMatriz(LineasDePrueba, posicion, nullptr, 0, 3);
        Evaluador.NivelLinea = 0;
        EXPECT_LE(posicion, static_cast<int>(formula.size()));
    }
}

} // namespace
