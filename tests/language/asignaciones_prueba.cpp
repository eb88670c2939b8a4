// Assignment statements and the store operations behind them.
#include "apoyo/plataforma_prueba.h"
#include "language/lote_sentencias.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

using Textos = std::vector<std::string>;
using Valores = std::vector<double>;
constexpr double N = std::numeric_limits<double>::quiet_NaN(); // a missing value

void EsperarValores(const Valores &vistos, const Valores &esperados) {
    ASSERT_EQ(vistos.size(), esperados.size());
    for (std::size_t i = 0; i < vistos.size(); ++i) {
        EXPECT_EQ(std::isnan(vistos[i]), std::isnan(esperados[i])) << "row " << i << ": " << vistos[i];
        if (!std::isnan(vistos[i]) && !std::isnan(esperados[i])) {
            EXPECT_DOUBLE_EQ(vistos[i], esperados[i]) << "row " << i;
        }
    }
}

// Six years, 1990 to 1995: X is 1 to 6, H has no value in 1992; a scalar T, matrices of one and two columns.
void EmpezarAsignaciones() {
    EmpezarConDatos(TipoAnual, "1990#1995");
    PonerSerie("X", {1, 2, 3, 4, 5, 6});
    PonerSerie("H", {10, 20, N, 40, 50, 60});
    PonerEscalar(nullptr, "T", 1993);
    PonerMatriz("V", {7, 8, 9}, 3, 1);
    PonerMatriz("M", {1, 2, 3, 4}, 2, 2);
    ActualizarMuestra();
}

// ----- Statements that fail, with their boxes

struct CasoMensaje {
    const char *texto;
    Textos cajas;
    bool sigue;
};

const CasoMensaje Mensajes[] = {
    // The target.
    {"SER 3A = 1", {"Punto 36, Nombre no válido"}, false},
    {"SER LOG = 1", {"Punto 36, Nombre no válido"}, false},
    {"SER DET = 1", {"Punto 36, Nombre no válido"}, false},
    {"SER NUEVELETR = 1", {"Punto 36, Nombre no válido"}, false},
    {"SER A-1 = 1", {"Punto 36, Nombre no válido"}, false},
    {"SER A_1 = 1", {"Punto 36, Nombre no válido"}, false},
    {"ESC A.1 = 1", {"Punto 36, Nombre no válido"}, false},
    {"MAT A[1] = M", {"Punto 36, Nombre no válido"}, false},
    {"SER = 1", {"Punto 36, Nombre no válido"}, false},
    {"ESC = 1", {"Punto 36, Nombre no válido"}, false},
    {"MAT = M", {"Punto 36, Nombre no válido"}, false},
    {"OBS [1990] = 1", {"Punto 36, Nombre no válido"}, false},
    {"SER", {"Punto 36, Nombre no válido"}, false},
    {"OBS 3X[1990] = 1", {"Punto 36, Nombre no válido"}, false},
    {"SER FICTIC", {"Punto 36, Nombre no válido"}, false},
    {"SER FICTIC = 3", {"Punto 36, Nombre no válido"}, false},
    // The "=".
    {"SER Z 3", {"Caracter no válido. Punto 32, caracter: [3]"}, false},
    {"SER Z X = 3", {"Caracter no válido. Punto 32, caracter: [X]"}, false},
    {"ESC Z + 3", {"Caracter no válido. Punto 32, caracter: [+]"}, false},
    {"MAT Z {X}", {"Caracter no válido. Punto 32, caracter: [{]"}, false},
    {"OBS X[1990] 3", {"Caracter no válido. Punto 32, caracter: [3]"}, false},
    {"SER Z", {"Caracter no válido. Punto 32, caracter: []"}, false},
    {"OBS X", {"Caracter no válido. Punto 32, caracter: []"}, false},
    {"OBS X = 3", {"Caracter no válido. Punto 32, caracter: []"}, false}, // the period runs to the end
    // The formula.
    {"SER Z =", {"Punto 40, Faltan datos"}, false},
    {"ESC Z =   ", {"Punto 40, Faltan datos"}, false},
    {"OBS X[1990] =", {"Punto 40, Faltan datos"}, false},
    {"MAT Z =", {"Punto 40, Faltan datos"}, false},
    {"SER Z = NADA", {"Función desconocida [NADA]", "SER Z = NADA. Pto 199"}, false},
    {"ESC Z = X X", {"ESC Z = X X. Pto 7"}, false},
    {"OBS X[1990] = (X X)", {"X X. Pto 7", "OBS X[1990] = (X X). Pto 22"}, false},
    {"CAL X X", {"CAL X X. Pto 7"}, false},
    // Refusals without a word.
    {"SER T = 2", {}, false},
    {"SER V = 2", {}, false},
    {"OBS Z[1] = 3", {}, false},
    {"OBS T[1990] = 3", {}, false},
    {"OBS M[1990] = 3", {}, false},
    // Scalars.
    {"ESC X = 1", {"Error en la generación de escalares"}, false},
    {"ESC V = 1", {"Error en la generación de escalares"}, false},
    // From a matrix.
    {"SER V = {V}", {"Nombre Serie no Válido. Pto 4"}, false},
    {"SER T = {V}", {"Nombre Serie no Válido. Pto 5"}, false},
    {"SER Z = {V", {"V. Pto 309"}, false},
    {"SER Z = {V X}", {"V. Pto 309"}, false},
    {"SER Z = {V + V}", {"V. Pto 309"}, false},
    {"SER Z = { -V}", {". Pto 309"}, false},
    {"SER Z = {NADA}", {"Nombre Matriz no Válido. Pto 30"}, false},
    {"SER Z = {}", {"Nombre Matriz no Válido. Pto 30"}, false},
    {"SER Z = {X}", {"Nombre Matriz no Válido. Pto 30"}, false},
    {"SER Z = {M}", {"Dimensiones de Matriz no Válidas. Pto 30"}, false},
    // Recursive form: the batch goes on.
    {"SER Z = Z(-1) * 0.7", {"Error en las asignaciones"}, true},
    {"SER T = T(-1) * 0.7", {"Error en las asignaciones"}, true},
    {"SER X = X(-1) NADA",
     {"Función desconocida [NADA]", "OBS X[1991] = X[1990]  NADA. Pto 199", "Error en el cálculo"},
     true},
    // Dummies: the batch goes on. The code stands in its whole width.
    {"SER FICTIC NADA", {"(NADA        )"}, true},
};

TEST(Asignaciones, Mensajes) {
    for (const CasoMensaje &c : Mensajes) {
        SCOPED_TRACE(c.texto);
        EmpezarAsignaciones();
        EXPECT_EQ(Procesar(c.texto), c.sigue);
        EXPECT_EQ(TextosDeCajas(), c.cajas);
        for (const CajaVista &caja : Prueba.cajas)
            EXPECT_TRUE(caja.titulo == "Proceso cancelado" || caja.titulo == "Serie no existe")
                << caja.titulo;
        // Nothing is created and nothing stays locked.
        EXPECT_EQ(ArchivoTrabajo.NumSeries, 2);
        EXPECT_EQ(TablaEscalares.numero, 1);
        EXPECT_EQ(TablaMatrices.EstadoBloque[0], BloqueSuelto);
        EXPECT_EQ(TablaMatrices.EstadoBloque[1], BloqueSuelto);
    }
}

// ----- Series

struct CasoSerie {
    const char *texto;
    const char *serie;
    Valores valores;
};

const CasoSerie Series[] = {
    {"SER Z = 2 + 3 * 4", "Z", {14, 14, 14, 14, 14, 14}},
    {"SER Z=X", "Z", {1, 2, 3, 4, 5, 6}},
    {"ser z = x * 2 + 1", "Z", {3, 5, 7, 9, 11, 13}},
    {"SER Z = X + H", "Z", {11, 22, N, 44, 55, 66}},
    {"SER X = X + 1", "X", {2, 3, 4, 5, 6, 7}},
    {"SER Z = 5 / 0", "Z", {0, 0, 0, 0, 0, 0}},
    {"SER FICTIC=X", "FICTIC", {1, 2, 3, 4, 5, 6}},
    {"SER FICTICA = X", "FICTICA", {1, 2, 3, 4, 5, 6}},
    // What stands behind a character that is no text of a formula is ignored.
    {"SER Z = X ; comment", "Z", {1, 2, 3, 4, 5, 6}},
    {"SER Z = X, H", "Z", {1, 2, 3, 4, 5, 6}},
    // Lags clear the first rows of the work file, leads the last rows of the sample; the last one read decides.
    {"SER Z = X(-2)", "Z", {N, N, 1, 2, 3, 4}},
    {"SER Z = X(2)", "Z", {3, 4, 5, 6, N, N}},
    {"SER Z = X(-2) + X(-1)", "Z", {N, 1, 3, 5, 7, 9}},
    {"SER Z = X(-1) + X(-2)", "Z", {N, N, 3, 5, 7, 9}},
    {"SER Z = X(-1) + X(1)", "Z", {2, 4, 6, 8, 10, N}},
    {"SER Z = X(-5000)", "Z", {N, N, N, N, N, N}},
    {"SER Z = X(5000)", "Z", {N, N, N, N, N, N}},
    {"SER Z = LOG(100)", "Z", {2, 2, 2, 2, 2, 2}},
    {"SER Z = X[1993]", "Z", {4, 4, 4, 4, 4, 4}},
    // Recursive.
    {"SER X = X(-1) * 2", "X", {1, 2, 4, 8, 16, 32}},
    {"SER X = X(1) * 2", "X", {1, 2, 4, 8, 16, 32}},
    {"SER X = X( -1 ) * 2", "X", {1, 2, 4, 8, 16, 32}},
    {"SER X = X(-2) + 10", "X", {1, 2, 11, 12, 21, 22}},
    {"SER X = X(-10) * 2", "X", {1, 2, 4, 8, 16, 32}}, // "0" isn't read: a lag of 1
    // What stands behind counts with the value of the first row of the sample, 10 here and the 0.0 of a lag there.
    {"SER X = X(-1) + H", "X", {1, 11, 21, 31, 41, 51}},
    {"SER X = X(-1) + X(-1)", "X", {1, 1, 1, 1, 1, 1}},
    {"SER X = X(-T) + 1", "X", {2, 3, 4, 5, 6, 7}}, // a scalar gives a lag of 0
    // Not recursive: a blank in front of the parenthesis, or another term first.
    {"SER X = X (-1) * 2", "X", {N, 2, 4, 6, 8, 10}},
    {"SER X = 2 * X(-1)", "X", {N, 2, 4, 6, 8, 10}},
    {"SER X = H(-1)", "X", {N, 10, N, 0, 40, 50}}, // flags don't move with the values
};

TEST(Asignaciones, Series) {
    for (const CasoSerie &c : Series) {
        SCOPED_TRACE(c.texto);
        EmpezarAsignaciones();
        EXPECT_TRUE(Procesar(c.texto));
        EXPECT_EQ(TextosDeCajas(), Textos{});
        EsperarValores(ValoresDe(c.serie, 6), c.valores);
        EXPECT_GT(Prueba.refrescos, 0);
    }
}

TEST(Asignaciones, UnaSerieNuevaPierdeLoDeFueraDeLaMuestra) {
    EmpezarAsignaciones();
    EXPECT_TRUE(Procesar("MUEST 1991 1993\nSER X = X * 10\nSER Z = X(-1)"));
    EsperarValores(ValoresDe("X", 6), {N, 20, 30, 40, N, N});
    // Z reads the cleared row outside the sample; only row 0 is cleared for the lag.
    EsperarValores(ValoresDe("Z", 6), {N, 0, 20, 30, N, N});
    const int x = BuscarSerie("X");
    EXPECT_EQ(ArchivoTrabajo.PrimeraObs[x], 1);
    EXPECT_EQ(ArchivoTrabajo.UltimaObs[x], 3);
    EXPECT_EQ(ArchivoTrabajo.ValoresObs[5][x], 0.0);
}

// What lies under a missing flag can be other than 0.0. A store clears it with the rest of the column, so that no lag
// reads it afterwards.
TEST(Asignaciones, UnaSerieGuardadaNoConservaValoresSinMarca) {
    EmpezarAsignaciones();
    const int h = BuscarSerie("H");
    ArchivoTrabajo.ValoresObs[2][h] = 99;
    EXPECT_TRUE(Procesar("SER H = H\nSER Z = H(-1)"));
    EXPECT_EQ(ArchivoTrabajo.ValoresObs[2][h], 0.0);
    EsperarValores(ValoresDe("Z", 6), {N, 10, N, 0, 40, 50});
    ArchivoTrabajo.ValoresObs[2][h] = 99;
    EXPECT_TRUE(Procesar("MUEST 1993 1995\nSER H = 1"));
    EXPECT_EQ(ArchivoTrabajo.ValoresObs[2][h], 0.0);
}

TEST(Asignaciones, UnAdelantoLargoSeCortaALaMuestra) {
    EmpezarAsignaciones();
    EXPECT_TRUE(Procesar("MUEST 1991 1993\nSER Z = X(2)"));
    EsperarValores(ValoresDe("Z", 6), {N, 4, N, N, N, N});
    EXPECT_TRUE(Procesar("SER Z = X(9)"));
    EsperarValores(ValoresDe("Z", 6), {N, N, N, N, N, N});
}

TEST(Asignaciones, ElUltimoSitioDeLaTablaQuedaLibre) {
    EmpezarAsignaciones();
    for (int i = ArchivoTrabajo.NumSeries; i < 98; ++i)
        PonerSerie("S" + std::to_string(i), {1, 2, 3, 4, 5, 6});
    EXPECT_TRUE(Procesar("SER S98 = 1"));
    EXPECT_EQ(ArchivoTrabajo.NumSeries, 99);
    EXPECT_FALSE(Procesar("SER S99 = 1")); // in silence
    EXPECT_TRUE(Procesar("SER X = 1"));
    EXPECT_TRUE(Prueba.cajas.empty());
    EXPECT_FALSE(Procesar("SER S99 = {V}"));
    EXPECT_EQ(TextosDeCajas(), Textos{"Falta memoria. Pto 6"});
    EXPECT_EQ(ArchivoTrabajo.NumSeries, 99);
}

// The rule of the range: with a sample that starts beyond row 0 the end falls short by as many rows.
TEST(Asignaciones, LaRecursivaYLaMuestra) {
    EmpezarConDatos(TipoSinPeriodicidad, "");
    PonerSerie("TRE", Valores(100, 1.0));
    ActualizarMuestra();
    EXPECT_TRUE(Procesar("SER TRE = TRE(-1) + 1"));
    Valores v = ValoresDe("TRE", 100);
    for (int i = 0; i < 100; ++i) EXPECT_EQ(v[static_cast<std::size_t>(i)], i + 1.0);
    PonerSerie("TRE", Valores(100, 1.0));
    ProcesarLote(nullptr, nullptr, 246, "SER TRE = TRE(-1) + 1", 10, 99);
    EXPECT_TRUE(Prueba.cajas.empty());
    v = ValoresDe("TRE", 100);
    for (int i = 0; i < 100; ++i)
        EXPECT_EQ(v[static_cast<std::size_t>(i)], i >= 11 && i < 90 ? i - 9.0 : 1.0) << i;
}

// ----- SER x = {matriz}

TEST(Asignaciones, DesdeMatrizEnLaMuestraDeLaRegresion) {
    const struct {
        int inicio, fin;
        Valores valores;
    } casos[] = {{0, 5, {7, 8, 9, N, N, N}},  {2, 5, {N, N, 7, 8, 9, N}},
                 {4, 5, {N, N, N, N, 7, 8}},  {2, 3, {N, N, 7, 8, N, N}},
                 {3, 2, {N, N, N, N, N, N}},  {1, 100000, {N, 7, 8, 9, N, N}},
                 {-1, 5, {8, 9, N, N, N, N}}, {100000, 100005, {N, N, N, N, N, N}}};
    for (const auto &c : casos) {
        SCOPED_TRACE(std::to_string(c.inicio) + " " + std::to_string(c.fin));
        EmpezarAsignaciones();
        Muestra.InicioRegresion = c.inicio;
        Muestra.FinRegresion = c.fin;
        EXPECT_TRUE(Procesar("SER Z = { V } ; what follows is ignored"));
        EsperarValores(ValoresDe("Z", 6), c.valores);
        EXPECT_TRUE(Procesar("SER X = {V}"));
        EsperarValores(ValoresDe("X", 6), c.valores);
        EXPECT_EQ(TablaMatrices.EstadoBloque[0], BloqueSuelto);
    }
}

TEST(Asignaciones, DesdeMatrizAlFinalDeLaTabla) {
    EmpezarAsignaciones();
    Muestra.InicioRegresion = 3998;
    Muestra.FinRegresion = 100000;
    EXPECT_TRUE(Procesar("SER Z = {V}"));
    const int z = BuscarSerie("Z");
    EXPECT_EQ(ArchivoTrabajo.ValoresObs[3998][z], 7.0);
    EXPECT_EQ(ArchivoTrabajo.ValoresObs[3999][z], 8.0);
}

// The rows that the block of the matrix holds, whatever its record claims.
TEST(Asignaciones, DesdeMatrizDanada) {
    EmpezarAsignaciones();
    ASSERT_EQ(BuscarMatriz("V"), 0);
    TablaMatrices.capacidad[0] = 2;
    TablaMatrices.registro[0].Filas = 30000;
    Muestra.InicioRegresion = 0;
    Muestra.FinRegresion = 100000;
    EXPECT_TRUE(Procesar("SER Z = {V}"));
    EsperarValores(ValoresDe("Z", 6), {7, 8, N, N, N, N});
}

// ----- OBS

struct CasoObservacion {
    const char *texto;
    Valores valores; // of X
};

const CasoObservacion Observaciones[] = {
    {"OBS X[1992] = 30", {1, 2, 30, 4, 5, 6}},
    {"obs x[ 1992 ]=30", {1, 2, 30, 4, 5, 6}},
    {"OBS X[1992.0] = 30", {1, 2, 30, 4, 5, 6}}, // by its number
    {"OBS X[19 92] = 30", {1, 2, 30, 4, 5, 6}},  // blanks are left out
    {"OBS X[1992]more = 30", {1, 2, 30, 4, 5, 6}},
    {"OBS X[T] = 30", {1, 2, 3, 30, 5, 6}}, // by a scalar
    {"OBS X[2050] = 30", {1, 2, 3, 4, 5, 6}},
    {"OBS X[NADA] = 30", {1, 2, 3, 4, 5, 6}},
    {"OBS X[] = 30", {1, 2, 3, 4, 5, 6}},
    {"OBS X[1992-and-much-more-than-sixteen-characters] = 30", {1, 2, 30, 4, 5, 6}},
    {"OBS X [1992] = 30", {1, 2, 3, 4, 5, 6}}, // the blank is stepped over, the "[" belongs to the period
    // The value is always that of the first row of the sample.
    {"OBS X[1992] = X * 7", {1, 2, 7, 4, 5, 6}},
    {"OBS X[1992] = X[1995]", {1, 2, 6, 4, 5, 6}},
};

TEST(Asignaciones, Observaciones) {
    for (const CasoObservacion &c : Observaciones) {
        SCOPED_TRACE(c.texto);
        EmpezarAsignaciones();
        EXPECT_TRUE(Procesar(c.texto));
        EXPECT_EQ(TextosDeCajas(), Textos{});
        EsperarValores(ValoresDe("X", 6), c.valores);
    }
}

TEST(Asignaciones, UnaObservacionFueraDeLaMuestra) {
    EmpezarAsignaciones();
    EXPECT_TRUE(Procesar("MUEST 1992 1993\nOBS X[1990] = X\nOBS H[1995] = 1\nOBS X[1989] = 5"));
    EsperarValores(ValoresDe("X", 6), {3, 2, 3, 4, 5, 6});
    EsperarValores(ValoresDe("H", 6), {10, 20, N, 40, 50, 1});
    // A scalar names rows of the sample only.
    EXPECT_TRUE(Procesar("ESC T = 1995\nOBS X[T] = 99"));
    EsperarValores(ValoresDe("X", 6), {3, 2, 3, 4, 5, 6});
}

TEST(Asignaciones, UnaObservacionSinValorSeGuardaComoCero) {
    EmpezarAsignaciones();
    EXPECT_TRUE(Procesar("MUEST 1992 1995\nOBS X[1994] = H"));
    EsperarValores(ValoresDe("X", 6), {1, 2, 3, 4, 0, 6});
}

TEST(Asignaciones, PeriodosTrimestralesPorSuNumero) {
    EmpezarConDatos(TipoTrimestral, "1990 1#1991 4");
    PonerSerie("X", {1, 2, 3, 4, 5, 6, 7, 8});
    EXPECT_TRUE(Procesar("OBS X[1990.20] = 20\nOBS X[1991.4] = 80"));
    EsperarValores(ValoresDe("X", 8), {1, 20, 3, 4, 5, 6, 7, 80});
}

// ----- ESC

TEST(Asignaciones, Escalares) {
    EmpezarAsignaciones();
    EXPECT_TRUE(
        Procesar("ESC A = X\nESC B = SUMSER(X) / 2\nESC C = A + B\nMUEST 1992 1995\nESC D = H\nESC A = X"));
    EXPECT_EQ(EscalarDe("B"), 10.5);
    EXPECT_EQ(EscalarDe("C"), 11.5);
    EXPECT_EQ(EscalarDe("D"), 0.0); // missing at the first row of the sample
    EXPECT_EQ(EscalarDe("A"), 3.0);
    EXPECT_FALSE(Procesar("ESC Q = 1\nSER Q = 2"));
    EXPECT_TRUE(Prueba.cajas.empty());
}

TEST(Asignaciones, ElUltimoEscalarQuedaLibre) {
    EmpezarAsignaciones();
    for (int i = TablaEscalares.numero; i < 58; ++i) PonerEscalar(nullptr, "E" + std::to_string(i), i);
    EXPECT_TRUE(Procesar("ESC E58 = 1"));
    EXPECT_EQ(TablaEscalares.numero, 59);
    EXPECT_TRUE(Procesar("ESC E58 = 2"));
    EXPECT_FALSE(Procesar("ESC E59 = 1"));
    EXPECT_EQ(TextosDeCajas(), (Textos{"Borre algunos escalares", "Error en la generación de escalares"}));
}

// ----- MAT

TEST(Asignaciones, Matrices) {
    EmpezarAsignaciones();
    // The priorities are grouped for matrices too: M + M * M is M + (M * M).
    EXPECT_TRUE(Procesar("MAT P = M + M * M\nMAT Q = {X 1}\nESC D = DET(M)"));
    int filas = 0, columnas = 0;
    EXPECT_EQ(MatrizDe("P", filas, columnas), (Valores{8, 12, 18, 26}));
    EXPECT_EQ(MatrizDe("Q", filas, columnas), (Valores{1, 1, 2, 1, 3, 1, 4, 1, 5, 1, 6, 1}));
    EXPECT_EQ(EscalarDe("D"), -2.0);
    // The brace form leaves nothing behind for the next statement.
    EXPECT_TRUE(Procesar("MAT Q = {X}\nMAT P = Q' * Q\nSER Z = {P}"));
    EXPECT_EQ(MatrizDe("P", filas, columnas), Valores{91});
    EXPECT_EQ(BufferMatriz.enUso, 0);
    EXPECT_FALSE(Procesar("MAT X = M"));
    EXPECT_FALSE(Procesar("MAT T = M"));
    EXPECT_EQ(TextosDeCajas(),
              (Textos{"Nombre matriz no válido. Pto 28", "Nombre matriz no válido. Pto 29"}));
}

// ----- SER FICTIC

TEST(Asignaciones, Ficticias) {
    EmpezarAsignaciones();
    PonerSerie("EDUCACIO", {1, 2, 2, 1, 1, 2});
    PonerSerie("MISER", {1.7, 2, N, 3, 5, -1.2});
    EXPECT_TRUE(Procesar("SER FICTIC EDUCACIO\nser fictic miser"));
    EsperarValores(ValoresDe("EDUCA1", 6), {1, 0, 0, 1, 1, 0});
    EsperarValores(ValoresDe("EDUCA2", 6), {0, 1, 1, 0, 0, 1});
    // The sample ends where MISER does; the fraction is lost.
    EsperarValores(ValoresDe("MISER1", 6), {1, 0, N, 0, 0, 0});
    EsperarValores(ValoresDe("MISER2", 6), {0, 1, N, 0, 0, 0});
    EsperarValores(ValoresDe("MISER3", 6), {0, 0, N, 1, 0, 0});
    EsperarValores(ValoresDe("MISER5", 6), {0, 0, N, 0, 1, 0});
    EsperarValores(ValoresDe("MISER-1", 6), {0, 0, N, 0, 0, 1});
    EXPECT_EQ(ArchivoTrabajo.NumSeries, 4 + 2 + 5);
    EXPECT_EQ(Prueba.refrescos, 0); // the editor shows them at its next refresh
    EXPECT_TRUE(Prueba.cajas.empty());
}

TEST(Asignaciones, FicticiasConUnaBaseDeSeisOSiete) {
    EmpezarAsignaciones();
    PonerSerie("SEISLE", {1, 1, 1, 1, 1, 1});
    PonerSerie("SIETELE", {1, 1, 1, 1, 1, 1});
    EXPECT_TRUE(Procesar("SER FICTIC SEISLE\nSER FICTIC SIETELE"));
    EXPECT_GE(BuscarSerie("SEISLE1"), 0);
    EXPECT_GE(BuscarSerie("SIETE1"), 0);
}

TEST(Asignaciones, FicticiasYLaMuestra) {
    EmpezarAsignaciones();
    // Rows 1 to 4 as sample: 1 <= i < 4.
    EXPECT_TRUE(Procesar("MUEST 1991 1994\nSER FICTIC X"));
    EsperarValores(ValoresDe("X2", 6), {N, 1, 0, 0, N, N});
    EsperarValores(ValoresDe("X4", 6), {N, 0, 0, 1, N, N});
    EXPECT_LT(BuscarSerie("X5"), 0);
}

TEST(Asignaciones, FicticiasHastaLlenarLaTabla) {
    EmpezarAsignaciones();
    for (int i = ArchivoTrabajo.NumSeries; i < 96; ++i)
        PonerSerie("S" + std::to_string(i), {1, 2, 3, 4, 5, 6});
    EXPECT_TRUE(Procesar("SER FICTIC X"));
    EXPECT_TRUE(Prueba.cajas.empty());
    EXPECT_EQ(ArchivoTrabajo.NumSeries, 98); // X1 and X2
    EXPECT_GE(BuscarSerie("X2"), 0);
    EXPECT_LT(BuscarSerie("X3"), 0);
}

TEST(Asignaciones, FicticiasDeNumerosEnormes) {
    EmpezarConDatos(TipoSinPeriodicidad, "");
    Valores v;
    for (int i = 0; i < 200; ++i) v.push_back(i % 150);
    v[0] = 1e300;
    v[1] = -1e300;
    v[2] = std::numeric_limits<double>::infinity();
    PonerSerie("X", v);
    EXPECT_TRUE(Procesar("SER FICTIC X"));
    EXPECT_EQ(ArchivoTrabajo.NumSeries, 98);
    EsperarValores(ValoresDe("X3", 5), {0, 0, 0, 1, 0});
}

// ----- With a damaged number of observations everything reports success and does nothing

TEST(Asignaciones, DemasiadasObservaciones) {
    EmpezarAsignaciones();
    ArchivoTrabajo.NumObs = 4001;
    ProcesarLote(nullptr, nullptr, 246, "SER Z = X", 0, 5);
    EXPECT_EQ(Lote.detenido, 0);
    ProcesarLote(nullptr, nullptr, 246, "OBS X[1990] = 99", 0, 5);
    EXPECT_EQ(Lote.detenido, 0);
    ProcesarLote(nullptr, nullptr, 246, "ESC A = X", 0, 5);
    EXPECT_EQ(Lote.detenido, 0);
    EXPECT_TRUE(Prueba.cajas.empty());
    EXPECT_LT(BuscarSerie("Z"), 0);
    EXPECT_TRUE(std::isnan(EscalarDe("A")));
    EsperarValores(ValoresDe("X", 6), {1, 2, 3, 4, 5, 6});
}

} // namespace
