// The record of the trace: steps, levels, values, operands, reductions of typed formulas, failures, and its limits.
#include "language/traza.h"

#include "apoyo/plataforma_prueba.h"
#include "estimation/tabla_pasos.h"
#include "language/cadena.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <set>

namespace {

using Textos = std::vector<std::string>;

constexpr double Falta = __builtin_nan("");

std::string Numero(double x) {
    char texto[40];
    std::snprintf(texto, sizeof texto, "%.10g", x);
    return texto;
}

// "1 serie S = A*2 -> 2 4 6 8 10 (1990 a 1994)": level, class, what was computed, values; " ! " and a failure. The size
// of a matrix stands before its values.
std::string Linea(const PasoTraza &p) {
    static const char *const Clases[] = {"sentencia", "grupo", "escalar", "matriz", "serie"};
    std::string l = std::to_string(p.nivel) + " " + Clases[p.clase] + " ";
    if (!p.destino.empty()) l += p.destino + " = ";
    l += Utf8De1252(p.formula);
    const ValorTraza &v = p.resultado;
    if (v.filas > 0) l += " ->";
    if (p.clase == TrazaMatriz && v.filas > 0)
        l += " " + std::to_string(v.filas) + "x" + std::to_string(v.columnas);
    for (const double x : v.valores) l += " " + Numero(x);
    if (!v.primerPeriodo.empty()) l += " (" + v.primerPeriodo + " a " + v.ultimoPeriodo + ")";
    if (!p.fallo.empty()) l += " ! " + Utf8De1252(p.fallo);
    return l;
}

Textos Lineas() {
    Textos lineas;
    for (const PasoTraza &p : Traza.pasos) lineas.push_back(Linea(p));
    return lineas;
}

// Five years, a series with a missing value, scalars and matrices; the trace is on.
void Empezar() {
    EmpezarConDatos(TipoAnual, "1990#1994");
    PonerSerie("A", {1, 2, 3, 4, 5});
    PonerSerie("B", {10, 20, Falta, 40, 50});
    PonerSerie("C", {2, 1, 4, 3, 6});
    PonerEscalar(nullptr, "E", 7.0);
    PonerEscalar(nullptr, "T", 1992.0);
    PonerMatriz("M", {1, 2, 3, 4}, 2, 2);
    PonerMatriz("V", {5, 6}, 2, 1);
    Procesar("MUEST 1990 1994");
    PonerTraza(true);
}

struct CasoDePasos {
    const char *sentencias;
    Textos pasos; // without the statements themselves
};

void ComprobarCasos(const std::vector<CasoDePasos> &casos) {
    for (const CasoDePasos &c : casos) {
        SCOPED_TRACE(c.sentencias);
        Empezar();
        Procesar(c.sentencias);
        Textos pasos;
        for (const PasoTraza &p : Traza.pasos)
            if (p.clase != TrazaSentencia) pasos.push_back(Linea(p));
        EXPECT_EQ(pasos, c.pasos);
    }
    PonerTraza(false);
}

// ----- Typed formulas, as they are reduced

TEST(TrazaDeFormulas, Escalares) {
    ComprobarCasos({
        {"ESC K = 5", {"1 escalar K = 5 -> 5"}},
        {"ESC K = 2*3+4", {"1 escalar K = 2*3+4 -> 10", "2 escalar 2*3 -> 6", "2 escalar 2*3+4 -> 10"}},
        // The priorities are written as parentheses.
        {"ESC K = 2+3*4", {"1 escalar K = 2+(3*4) -> 14", "2 escalar 3*4 -> 12", "2 escalar 2+(3*4) -> 14"}},
        {"ESC K = 2-3*4-1",
         {"1 escalar K = 2-(3*4)-1 -> -11", "2 escalar 3*4 -> 12", "2 escalar 2-(3*4) -> -10",
          "2 escalar 2-(3*4)-1 -> -11"}},
        {"ESC K = -3+5", {"1 escalar K = -3+5 -> 2", "2 escalar -3 -> -3", "2 escalar -3+5 -> 2"}},
        {"ESC K = ((1+2)*2)-1",
         {"1 escalar K = ((1+2)*2)-1 -> 5", "2 escalar 1+2 -> 3", "2 escalar (1+2)*2 -> 6",
          "2 escalar ((1+2)*2)-1 -> 5"}},
        {"ESC K = E**2", {"1 escalar K = E**2 -> 49", "2 escalar E**2 -> 49"}},
        // An element is read with its column in front.
        {"ESC K = DET(M)+M[1,2]",
         {"1 escalar K = DET(M)+M[1,2] -> 1", "2 escalar DET(M) -> -2", "2 escalar DET(M)+M[1,2] -> 1"}},
        // The first row of the sample.
        {"ESC K = A*B", {"1 escalar K = A*B -> 10", "2 escalar A*B -> 10"}},
        {"CAL 1+1", {"1 escalar 1+1 -> 2", "2 escalar 1+1 -> 2"}},
    });
}

TEST(TrazaDeFormulas, Series) {
    ComprobarCasos({
        {"SER S = A", {"1 serie S = A -> 1 2 3 4 5 (1990 a 1994)"}},
        {"SER S = B", {"1 serie S = B -> 10 20 40 50 (1990 a 1994)"}},
        {"SER S = A*2",
         {"1 serie S = A*2 -> 2 4 6 8 10 (1990 a 1994)", "2 serie A*2 -> 2 4 6 8 10 (1990 a 1994)"}},
        // From left to right: the comparison with 5 is that of a 0 or 1.
        {"SER S = A > 2 AND A < 5",
         {"1 serie S = A > 2 AND A < 5 -> 1 1 1 1 1 (1990 a 1994)",
          "2 serie A > 2 -> 0 0 1 1 1 (1990 a 1994)", "2 serie A > 2 AND A -> 0 0 1 1 1 (1990 a 1994)",
          "2 serie A > 2 AND A < 5 -> 1 1 1 1 1 (1990 a 1994)"}},
        {"SER S = (A>4) OR (A<2)",
         {"1 serie S = (A>4) OR (A<2) -> 1 0 0 0 1 (1990 a 1994)", "2 serie A>4 -> 0 0 0 0 1 (1990 a 1994)",
          "2 serie A<2 -> 1 0 0 0 0 (1990 a 1994)", "2 serie (A>4) OR (A<2) -> 1 0 0 0 1 (1990 a 1994)"}},
        {"SER S = A >= 4",
         {"1 serie S = A >= 4 -> 0 0 0 1 1 (1990 a 1994)", "2 serie A >= 4 -> 0 0 0 1 1 (1990 a 1994)"}},
        {"SER S = A+B",
         {"1 serie S = A+B -> 11 22 44 55 (1990 a 1994)", "2 serie A+B -> 11 22 44 55 (1990 a 1994)"}},
        {"SER S = ABS(A-3)",
         {"1 serie S = ABS(A-3) -> 2 1 0 1 2 (1990 a 1994)", "2 serie A-3 -> -2 -1 0 1 2 (1990 a 1994)",
          "2 serie ABS(A-3) -> 2 1 0 1 2 (1990 a 1994)"}},
        // A function ends with its parenthesis, wherever it stands.
        {"SER S = POT(A,2)+SUMSER(A)",
         {"1 serie S = POT(A,2)+SUMSER(A) -> 16 19 24 31 40 (1990 a 1994)",
          "2 serie POT(A,2) -> 1 4 9 16 25 (1990 a 1994)",
          "2 serie SUMSER(A) -> 15 15 15 15 15 (1990 a 1994)",
          "2 serie POT(A,2)+SUMSER(A) -> 16 19 24 31 40 (1990 a 1994)"}},
        // The rows that a lag or a lead leaves without a value.
        {"SER S = A(-1)", {"1 serie S = A(-1) -> 1 2 3 4 (1991 a 1994)"}},
        {"SER S = A(-1)+1",
         {"1 serie S = A(-1)+1 -> 2 3 4 5 (1991 a 1994)", "2 serie A(-1)+1 -> 2 3 4 5 (1991 a 1994)"}},
        {"SER S = A(2)*2",
         {"1 serie S = A(2)*2 -> 6 8 10 (1990 a 1992)", "2 serie A(2)*2 -> 6 8 10 (1990 a 1992)"}},
        {"SER S = A[1992]*A",
         {"1 serie S = A[1992]*A -> 3 6 9 12 15 (1990 a 1994)",
          "2 serie A[1992]*A -> 3 6 9 12 15 (1990 a 1994)"}},
        {"OBS A[1992] = E+1",
         {"1 serie A = E+1 -> 1 2 8 4 5 (1990 a 1994)", "2 escalar E+1 -> 8", "2 escalar A[1992] -> 8"}},
        {"MUEST 1991 1993\nSER S = A*2",
         {"1 serie S = A*2 -> 4 6 8 (1991 a 1993)", "2 serie A*2 -> 4 6 8 (1991 a 1993)"}},
        {"SER F = A > 3\nSER FICTIC F",
         {"1 serie F = A > 3 -> 0 0 0 1 1 (1990 a 1994)", "2 serie A > 3 -> 0 0 0 1 1 (1990 a 1994)",
          "1 serie F0 = F = 0 -> 1 1 1 0 0 (1990 a 1994)", "1 serie F1 = F = 1 -> 0 0 0 1 1 (1990 a 1994)"}},
    });
}

TEST(TrazaDeFormulas, Matrices) {
    ComprobarCasos({
        {"MAT N = M", {"1 matriz N = M -> 2x2 1 2 3 4"}},
        {"MAT N = M*M+M",
         {"1 matriz N = M*M+M -> 2x2 8 12 18 26", "2 matriz M*M -> 2x2 7 10 15 22",
          "2 matriz M*M+M -> 2x2 8 12 18 26"}},
        {"MAT N = M+M*M",
         {"1 matriz N = M+(M*M) -> 2x2 8 12 18 26", "2 matriz M*M -> 2x2 7 10 15 22",
          "2 matriz M+(M*M) -> 2x2 8 12 18 26"}},
        {"MAT N = M V", {"1 matriz N = M V -> 2x1 17 39", "2 matriz M V -> 2x1 17 39"}},
        {"MAT N = M'", {"1 matriz N = M' -> 2x2 1 3 2 4"}},
        {"MAT N = M$", {"1 matriz N = M$ -> 2x2 -2 1 1.5 -0.5"}},
        {"MAT N = M*M'", {"1 matriz N = M*M' -> 2x2 5 11 11 25", "2 matriz M*M' -> 2x2 5 11 11 25"}},
        {"MAT N = 2*M/4",
         {"1 matriz N = 2*M/4 -> 2x2 0.5 1 1.5 2", "2 matriz 2*M -> 2x2 2 4 6 8",
          "2 matriz 2*M/4 -> 2x2 0.5 1 1.5 2"}},
        {"MAT N = E*V", {"1 matriz N = E*V -> 2x1 35 42", "2 matriz E*V -> 2x1 35 42"}},
        {"MAT N = (M+M)'*V",
         {"1 matriz N = (M+M)'*V -> 2x1 46 68", "2 matriz M+M -> 2x2 2 4 6 8",
          "2 matriz (M+M)'*V -> 2x1 46 68"}},
        {"MAT N = {A 1}", {"1 matriz N = {A 1} -> 5x2 1 1 2 1 3 1 4 1 5 1"}},
        {"MAT N = {A}", {"1 matriz N = {A} -> 5x1 1 2 3 4 5"}},
    });
}

// What a reduction says of its place.
TEST(TrazaDeFormulas, NivelesDeParentesis) {
    Empezar();
    Procesar("ESC K = ((1+2)*2)-1");
    PonerTraza(false);
    Textos explicaciones;
    for (const PasoTraza &p : Traza.pasos)
        if (p.destino.empty() && p.clase != TrazaSentencia)
            explicaciones.push_back(Utf8De1252(p.explicacion));
    EXPECT_EQ(explicaciones, (Textos{"Dentro del paréntesis, nivel 2", "Dentro del paréntesis, nivel 1",
                                     "De izquierda a derecha"}));
}

// ----- Statements and blocks

TEST(TrazaDeLotes, SentenciasYBloques) {
    Empezar();
    ASSERT_TRUE(Procesar("; un comentario\nESC K = 1\nREPITE J DESDE 1 HASTA 2\nESC L = J\nFINREPITE\n"
                         "SI (K = 2) ENTONCES\nESC K = 3\nSINO\nESC K = 4\nFINSI\n"
                         "MIENTRAS (K < 5) ENTONCES\nESC K = K + 1\nFINMIENTRAS"));
    PonerTraza(false);
    EXPECT_EQ(Lineas(), (Textos{
                            "0 sentencia ESC K = 1",
                            "1 escalar K = 1 -> 1",
                            // The counter stands in the statements with its value.
                            "0 sentencia REPITE J DESDE 1 HASTA 2",
                            "1 sentencia ESC L =  1.000000",
                            "2 escalar L = 1.000000 -> 1",
                            "1 sentencia ESC L =  2.000000",
                            "2 escalar L = 2.000000 -> 2",
                            // A condition: its two sides, and whether it holds.
                            "0 sentencia SI (K = 2) ENTONCES",
                            "1 sentencia ESC _TMP01 =  (K )",
                            "2 escalar _TMP01 = (K ) -> 1",
                            "1 sentencia ESC _TMP02 = (   2)",
                            "2 escalar _TMP02 = (   2) -> 2",
                            "1 escalar _TMP01 = _TMP02 -> 0",
                            "1 sentencia ESC K = 4",
                            "2 escalar K = 4 -> 4",
                            "0 sentencia MIENTRAS (K < 5) ENTONCES",
                            "1 sentencia ESC _TMP01 =  (K )",
                            "2 escalar _TMP01 = (K ) -> 4",
                            "1 sentencia ESC _TMP02 = (   5)",
                            "2 escalar _TMP02 = (   5) -> 5",
                            "1 escalar _TMP01 < _TMP02 -> 1",
                            "1 sentencia ESC K = K + 1",
                            "2 escalar K = K + 1 -> 5",
                            "3 escalar K + 1 -> 5",
                            "1 sentencia ESC _TMP01 =  (K )",
                            "2 escalar _TMP01 = (K ) -> 5",
                            "1 sentencia ESC _TMP02 = (   5)",
                            "2 escalar _TMP02 = (   5) -> 5",
                            "1 escalar _TMP01 < _TMP02 -> 0",
                        }));
}

TEST(TrazaDeLotes, CadaPasoTieneSuSentencia) {
    Empezar();
    Procesar("ESC K = 1+1\nSER S = A*2\nMC A 1 C");
    PonerTraza(false);
    int sentencia = -1;
    for (int i = 0; i < static_cast<int>(Traza.pasos.size()); ++i) {
        const PasoTraza &p = Traza.pasos[static_cast<std::size_t>(i)];
        if (p.clase == TrazaSentencia) sentencia = i;
        EXPECT_EQ(p.sentencia, sentencia) << Linea(p);
        EXPECT_EQ(p.nivel == 0, p.clase == TrazaSentencia) << Linea(p);
        EXPECT_NE(p.explicacion, "") << Linea(p);
    }
}

// ----- Values

TEST(TrazaDeValores, BordesDeLasMatricesGrandes) {
    const struct {
        int total;
        std::vector<int> lugares;
    } Casos[] = {
        {0, {}},
        {1, {0}},
        {10, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9}},
        {11, {0, 1, 2, 3, 4, 6, 7, 8, 9, 10}},
        {4000, {0, 1, 2, 3, 4, 3995, 3996, 3997, 3998, 3999}},
    };
    for (const auto &c : Casos) EXPECT_EQ(LugaresMostrados(c.total), c.lugares) << c.total;

    EmpezarConDatos(TipoSinPeriodicidad, "");
    std::vector<double> datos;
    for (int i = 0; i < 12; ++i)
        for (int j = 0; j < 11; ++j) datos.push_back(100 * i + j);
    PonerMatriz("G", datos, 12, 11);
    PonerSerie("A", {1});
    PonerTraza(true);
    ASSERT_TRUE(Procesar("MAT H = G"));
    PonerTraza(false);
    const ValorTraza &v = Traza.pasos.at(1).resultado;
    EXPECT_EQ(v.filas, 12);
    EXPECT_EQ(v.columnas, 11);
    std::vector<double> bordes;
    for (const int i : {0, 1, 2, 3, 4, 7, 8, 9, 10, 11})
        for (const int j : {0, 1, 2, 3, 4, 6, 7, 8, 9, 10}) bordes.push_back(100 * i + j);
    EXPECT_EQ(v.valores, bordes);
    EXPECT_EQ(Traza.pasos.at(1).operandos.at(0).valor.valores, bordes);
}

TEST(TrazaDeValores, ExtremosDeLasSeries) {
    EmpezarConDatos(TipoAnual, "1981#1995");
    // Missing at both ends and in the middle: twelve values, 1982 to 1994 without 1988.
    PonerSerie("X", {Falta, 1, 2, 3, 4, 5, 6, Falta, 8, 9, 10, 11, 12, 13, Falta});
    PonerSerie("U", std::vector<double>(15, 1.0));
    Procesar("MUEST 1981 1995");
    PonerTraza(true);
    ASSERT_TRUE(Procesar("SER S = X"));
    PonerTraza(false);
    const ValorTraza &v = Traza.pasos.at(1).resultado;
    EXPECT_EQ(v.filas, 12);
    EXPECT_EQ(v.columnas, 1);
    EXPECT_EQ(v.valores, (std::vector<double>{1, 2, 3, 4, 5, 9, 10, 11, 12, 13}));
    EXPECT_EQ(v.primerPeriodo, "1982");
    EXPECT_EQ(v.ultimoPeriodo, "1994");
}

// ----- Operands

std::string LineaDeOperando(const OperandoTraza &o) {
    static const char *const Clases[] = {"?", "?", "escalar", "matriz", "serie"};
    std::string l = o.nombre + " " + Clases[o.clase];
    if (o.paso >= 0) return l + " del paso " + std::to_string(o.paso);
    for (const double x : o.valor.valores) l += " " + Numero(x);
    return l;
}

TEST(TrazaDeOperandos, DeLasTablasODeUnPaso) {
    const struct {
        const char *sentencias;
        std::size_t paso;
        Textos operandos;
    } Casos[] = {
        {"ESC K = 1+2", 1, {}},
        {"ESC K = E*2", 1, {"E escalar 7"}},
        {"ESC K = E*E", 1, {"E escalar 7"}},
        {"SER S = A + B - E", 1, {"A serie 1 2 3 4 5", "B serie 10 20 40 50", "E escalar 7"}},
        {"SER S = A(-1)*A[T]", 1, {"A serie 1 2 3 4 5", "T escalar 1992"}},
        {"MUEST 1991 1993\nSER S = LN(A)", 2, {"A serie 2 3 4"}},
        {"MAT N = V'*M", 1, {"V matriz 5 6", "M matriz 1 2 3 4"}},
        {"MAT N = {A 1}", 1, {"A serie 1 2 3 4 5"}},
        // The value is that before the statement.
        {"ESC E = E+1", 1, {"E escalar 7"}},
        // A reduction takes its own.
        {"SER S = (A + B) * E", 2, {"A serie 1 2 3 4 5", "B serie 10 20 40 50"}},
        // From the step that gave it, the last one.
        {"ESC K = 3\nESC K = 4\nESC L = K*E", 5, {"K escalar del paso 3", "E escalar 7"}},
        {"ESC K = 3\nESC K = K+1", 3, {"K escalar del paso 1"}},
        {"SER S = A\nSER U = S*2", 3, {"S serie del paso 1"}},
        {"OBS A[1992] = 8\nSER U = A*2", 4, {"A serie del paso 1"}},
    };
    for (const auto &c : Casos) {
        SCOPED_TRACE(c.sentencias);
        Empezar();
        ASSERT_TRUE(Procesar(c.sentencias));
        PonerTraza(false);
        Textos operandos;
        for (const OperandoTraza &o : Traza.pasos.at(c.paso).operandos)
            operandos.push_back(LineaDeOperando(o));
        EXPECT_EQ(operandos, c.operandos);
    }
}

TEST(TrazaDeOperandos, ElPasoQueDioUnNombre) {
    Empezar();
    Procesar("ESC K = 3\nSER S = A\nESC K = 4");
    PonerTraza(false);
    EXPECT_EQ(PasoQueDio("K"), 5);
    EXPECT_EQ(PasoQueDio("K", 5), 1);
    EXPECT_EQ(PasoQueDio("K", 1), -1);
    EXPECT_EQ(PasoQueDio("S"), 3);
    EXPECT_EQ(PasoQueDio("A"), -1);
}

// ----- Failures

TEST(TrazaDeFallos, ElPasoQueFallaLoDice) {
    ComprobarCasos({
        {"MAT N = V*V", {"1 matriz N = V*V ! Dimensiones matrices no válidas. Pto 15"}},
        {"ESC K = NADIE", {"1 escalar K = NADIE ! Función desconocida [NADIE]; ESC K = NADIE. Pto 199"}},
        {"SER S = A*2+",
         {"1 serie S = A*2+ ! SER S = A*2+. Pto 1129", "2 serie A*2 -> 2 4 6 8 10 (1990 a 1994)"}},
        {"MAT N = {B}", {"1 matriz N = {B} ! Existen valores missing. Pto 62"}},
        // Where no formula failed, a step of its own says why.
        {"MC A 1 NADIE",
         {"1 grupo MC A 1 NADIE", "2 matriz _YDEP = {A} -> 5x1 1 2 3 4 5",
          "2 grupo  ! Serie no válida: [NADIE][MC A 1 NADIE]. Pto 664"}},
        {"CHN XX", {"1 grupo  ! Introduzca factor restricciones: [XX]. Pto 2663"}},
    });
}

// A word that is none begins no statement.
TEST(TrazaDeFallos, SentenciaDesconocida) {
    Empezar();
    EXPECT_FALSE(Procesar("ESC K = 1\nNADA X"));
    PonerTraza(false);
    EXPECT_EQ(Lineas(), (Textos{"0 sentencia ESC K = 1", "1 escalar K = 1 -> 1"}));
}

// ----- The record

TEST(RegistroDeTraza, ApagadaNoAnotaNada) {
    Empezar();
    Procesar("ESC K = 1");
    const std::size_t antes = Traza.pasos.size();
    const int corrida = Traza.corrida;
    PonerTraza(false);
    Procesar("ESC K = 2\nMC A 1 C");
    EXPECT_EQ(Traza.pasos.size(), antes) << "the record stays";
    EXPECT_EQ(Traza.corrida, corrida);
    EXPECT_EQ(AbrirPaso(TrazaEscalar, "K", "1", ""), SinTrazar);
    CerrarPaso(SinTrazar, true);
    EXPECT_EQ(AbrirGrupo("G", ""), SinTrazar);
    CerrarGrupo(SinTrazar, false);
    EXPECT_EQ(Traza.pasos.size(), antes);
}

TEST(RegistroDeTraza, OtraCorridaEmpiezaVacia) {
    Empezar();
    Procesar("ESC K = 1\nESC L = K");
    const int corrida = Traza.corrida;
    Procesar("ESC L = K");
    PonerTraza(false);
    EXPECT_EQ(Traza.corrida, corrida + 1);
    EXPECT_EQ(Traza.numero, 2);
    EXPECT_EQ(Lineas(), (Textos{"0 sentencia ESC L = K", "1 escalar L = K -> 1"}));
    // What gave K its value is of the run before.
    EXPECT_EQ(Traza.pasos.at(1).operandos.at(0).paso, -1);
}

// In the middle of a run, switched by whoever sees its steps.
TEST(RegistroDeTraza, SeApagaEnMedio) {
    Empezar();
    AlTrazar = [](int, int) { PonerTraza(Traza.pasos.size() < 4); };
    Procesar("ESC K = 1\nESC L = 2\nESC N = 3\nMC A 1 C");
    AlTrazar = nullptr;
    EXPECT_EQ(Traza.pasos.size(), 4u);
    PonerTraza(true);
    ASSERT_TRUE(Procesar("ESC K = 5"));
    PonerTraza(false);
    EXPECT_EQ(Lineas(), (Textos{"0 sentencia ESC K = 5", "1 escalar K = 5 -> 5"}));
}

TEST(RegistroDeTraza, SeAvisaDeCadaPasoUnaVezYConSuResultado) {
    static int siguiente, finales;
    siguiente = finales = 0;
    Empezar();
    AlTrazar = [](int desde, int hasta) {
        EXPECT_EQ(desde, siguiente);
        finales += desde == hasta ? 1 : 0;
        for (int i = desde; i < hasta; ++i) {
            const PasoTraza &p = Traza.pasos[static_cast<std::size_t>(i)];
            const bool sinValor = p.clase == TrazaSentencia || p.clase == TrazaGrupo;
            EXPECT_EQ(p.resultado.filas == 0, sinValor) << Linea(p);
        }
        siguiente = hasta;
    };
    ASSERT_TRUE(Procesar("ESC K = (1+2)*3\nMC A 1 C\nCR A 1"));
    AlTrazar = nullptr;
    PonerTraza(false);
    EXPECT_EQ(siguiente, static_cast<int>(Traza.pasos.size()));
    EXPECT_EQ(finales, 1);
}

TEST(RegistroDeTraza, LosPasosQueSobranSeCuentan) {
    Empezar();
    ASSERT_TRUE(Procesar("REPITE J DESDE 1 HASTA 11000\nESC K = J+1\nFINREPITE"));
    PonerTraza(false);
    EXPECT_EQ(Traza.pasos.size(), static_cast<std::size_t>(MaxPasosTraza));
    EXPECT_GT(Traza.numero, 33000);
    EXPECT_EQ(EscalarDe("K"), 11001);
}

// ----- Explanations

constexpr struct {
    const char *destino, *palabra;
} Cantidades[] = {
    {"%(BETA)s", "Coeficientes"},
    {"_YAJU1", "Valores ajustados"},
    {"_RESM", "Residuos"},
    {"%(RES)s", "Residuos"},
    {"%(SCR)s", "Suma de cuadrados de los residuos"},
    {"%(DTR)s", "Desviación típica de los residuos"},
    {"%(MTR)s", "Varianza de los residuos"},
    {"%(COV)s", "Matriz de covarianzas"},
    {"%(DTE)s", "Desviaciones típicas de los coeficientes"},
    {"%(MVD)s", "Media de la variable dependiente"},
    {"%(LV)s", "función de verosimilitud"},
    {"%(AIC)s", "Akaike"},
    {"%(DTVD)s", "Desviación típica de la variable dependiente"},
    {"%(RC)s", "Coeficiente de determinación"},
    {"%(FORLA)s", "Estadístico F"},
    {"%(NORE)s", "Grados de libertad"},
    {"%(DW)s", "Durbin y Watson"},
    {"%(RCC)s", "determinación corregido"},
    {"%(ESTF)s", "Probabilidad del estadístico F"},
    {"%(EA1)s", "autocorrelación"},
    {"%(DIV)s", "Estadísticos t"},
    {"%(PROBT)s", "Probabilidades de los estadísticos t"},
    {"_TM11", "White"},
    {"_TM13", "ji cuadrado"},
    {"_ESTFG", "Goldfeld y Quandt"},
};

TEST(ExplicacionesDeTraza, CadaFilaNombraSuCantidad) {
    const std::span<const PasoCadena> Tablas[] = {
        PasosPrevios,     PasosAjuste,           PasosSumaResidual, PasosErrorTipico,
        PasosErrorNulo,   PasosVarianza,         PasosCovarianza,   PasosMedidas,
        PasosFinales,     PasosRestringido,      PasosWald,         PasosWhite,
        PasosGoldfeld,    PasosPonderar,         PasosPonderada,    PasosConsistente,
        PasosTermino,     PasosTerminoRetardado, PasosSumaVacia,    PasosHeterocedasticidad,
        PasosSinRetardos, PasosAutocorrelacion,  PasosCopiasWald,   PasosFilaWald,
        PasosFormaWald};
    std::set<std::string> vistas;
    for (const auto &tabla : Tablas)
        for (const PasoCadena &p : tabla) {
            const std::string explicacion = Utf8De1252(p.explicacion);
            EXPECT_GE(explicacion.size(), 5u) << p.destino;
            EXPECT_TRUE(std::isupper(static_cast<unsigned char>(p.explicacion[0])) != 0) << explicacion;
            EXPECT_NE(explicacion.back(), '.') << explicacion;
            for (const auto &c : Cantidades) {
                if (std::string(p.destino) != c.destino) continue;
                vistas.insert(c.destino);
                EXPECT_NE(explicacion.find(c.palabra), std::string::npos) << p.destino << ": " << explicacion;
            }
        }
    EXPECT_EQ(vistas.size(), std::size(Cantidades));
}

} // namespace
