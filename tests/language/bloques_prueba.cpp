// Control flow: which lines of a block run, with which counter, and what stops it.
#include "apoyo/plataforma_prueba.h"
#include "language/lote_sentencias.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

using Textos = std::vector<std::string>;

const std::string Punto89 = "Secuencia no válida. Punto 89";

// Ten rows, the series X (1 to 10) and the scalars A = 1, B = 5, S = 0, T = 1990.
void EmpezarBloques() {
    EmpezarConDatos(TipoAnual, "1990#1999");
    PonerSerie("X", {1, 2, 3, 4, 5, 6, 7, 8, 9, 10});
    PonerEscalar(nullptr, "A", 1);
    PonerEscalar(nullptr, "B", 5);
    PonerEscalar(nullptr, "S", 0);
    PonerEscalar(nullptr, "T", 1990);
    ActualizarMuestra();
}

// What every case checks: boxes, whether the batch ran to its end, that the temporaries are gone.
void EsperarLote(const char *texto, const Textos &cajas, bool sigue) {
    SCOPED_TRACE(texto);
    EmpezarBloques();
    EXPECT_EQ(Procesar(texto), sigue);
    EXPECT_EQ(TextosDeCajas(), cajas);
    for (const CajaVista &caja : Prueba.cajas)
        if (caja.texto.find(". Pto ") != std::string::npos || caja.texto == Punto89) {
            EXPECT_EQ(caja.titulo, "Proceso cancelado");
        }
    EXPECT_EQ(BuscarEscalarEnTabla("_TMP01"), -1);
    EXPECT_EQ(BuscarEscalarEnTabla("_TMP02"), -1);
}

// ----- Blocks that work: S tells which lines ran, and with what

struct CasoBloque {
    const char *texto;
    double s;
};

const CasoBloque Bloques[] = {
    // The counter. S gathers its values as figures.
    {"REPITE J DESDE 1 HASTA 3\nESC S = S * 10 + J\nFINREPITE", 123},
    {"repite j desde 1 hasta 3\nesc s = s * 10 + j\nfinrepite", 123},
    {"REPITE J DESDE 3 HASTA 1\nESC S = S * 10 + J\nFINREPITE", 3},
    {"REPITE J DESDE 1 HASTA 9 SALTA 3\nESC S = S * 10 + J\nFINREPITE", 147},
    {"REPITE J DESDE 0.5 HASTA 1.5 SALTA 0.5\nESC S = S + J\nFINREPITE", 3},
    {"REPITE J DESDE 1 HASTA 3\n\n  \t ESC S = S * 10 + J\n; a comment (\n;another\n\nFINREPITE\n", 123},
    {"REPITE J DESDE 1 HASTA 3\r\nESC S = S * 10 + J\r\nFINREPITE\r\nESC S = S + 1", 124},
    {"REPITE J DESDE 1 HASTA 3\nFINREPITE", 0},
    // A token joined to "=" or "," isn't the counter.
    {"REPITE J DESDE 2 HASTA 2\nESC S = POT(J ,2)\nFINREPITE", 4},
    {"REPITE J DESDE 2 HASTA 2\nESC S = X[J]+X[ 1990 ]\nFINREPITE\nQ", 0},
    {"REPITE J DESDE 1991 HASTA 1992\nESC S = S * 10 + X[J]\nFINREPITE", 23},
    {"REPITE J DESDE 1991 HASTA 1992\nOBS X[J] = J - 1900\nFINREPITE\nESC S = X[1991] + X[1992]", 183},
    {"REPITE X DESDE 4 HASTA 4\nESC S = LN(1)-X*X+(X)\nFINREPITE", -12}, // ((0 - 4) * 4) + 4
    // Conditions, with all signs inside a loop, three at the top level.
    {"SI (A > 0) ENTONCES\nESC S = 1\nFINSI", 1},
    {"SI(A < 2)ENTONCES\nESC S = 1\nFINSI", 1},
    {"SI (A = 1) ENTONCES\nESC S = 1\nFINSI\nESC S = S + 1", 2},
    {"SI (A > 1) ENTONCES\nESC S = 1\nFINSI\nESC S = S + 2", 2},
    {"SI (A > 1) ENTONCES\nESC S = 1\nSINO\nESC S = 2\nFINSI", 2},
    {"SI (A < 2) ENTONCES\nESC S = 1\nSINO\nESC S = 2\nFINSI", 1},
    {"SI (A + B * 2 > 10) ENTONCES\nESC S = 1\nFINSI", 1},
    {"SI ((A + B) * 2 > 10) ENTONCES\nESC S = 1\nFINSI\nESC S = S + 1", 2},
    {"REPITE J DESDE 1 HASTA 5\nSI (J >= 4) ENTONCES\nESC S = S * 10 + J\nFINSI\nFINREPITE", 45},
    {"REPITE J DESDE 1 HASTA 5\nSI (J <= 2) ENTONCES\nESC S = S * 10 + J\nFINSI\nFINREPITE", 12},
    {"REPITE J DESDE 1 HASTA 5\nSI (J <> 2) ENTONCES\nESC S = S * 10 + J\nFINSI\nFINREPITE", 1345},
    {"REPITE J DESDE 1 HASTA 5\nSI (J < 3) ENTONCES\nESC S = S * 10 + J\nSINO\nESC S = S * "
     "10\nFINSI\nFINREPITE",
     12000},
    {"REPITE J DESDE 1 HASTA 3\nSI (J = 2) ENTONCES\nESC S = S + 10\nFINSI\nSI (J > 1) ENTONCES\nESC S = S + "
     "J\n"
     "FINSI\nFINREPITE",
     15},
    // A SI inside a SI is passed over; its FINSI closes the outer one.
    {"SI (A = 1) ENTONCES\nSI (A = 7) ENTONCES\nESC S = 1\nFINSI\nESC S = S + 1", 2},
    {"SI (A = 2) ENTONCES\nSI nonsense\nESC S = 1\nFINSI\nESC S = S + 2", 2},
    // MIENTRAS.
    {"MIENTRAS (A < 4) ENTONCES\nESC A = A + 1\nESC S = S * 10 + A\nFINMIENTRAS", 234},
    {"MIENTRAS(A<4)ENTONCES\nESC A = A + 1\nESC S = S * 10 + A\nFINMIENTRAS", 234},
    {"MIENTRAS (ENUM = A B) ENTONCES\nESC S = S * 10 + ENUM\nFINMIENTRAS", 15},
    {"MIENTRAS (ENUM =A B ) ENTONCES\nESC S = S * 10 + ENUM\nFINMIENTRAS", 15},
    {"MIENTRAS (ENUM=A) ENTONCES\nESC S = S * 10 + ENUM\nFINMIENTRAS", 1},
    {"MIENTRAS ( ENUM = A B A) ENTONCES\nESC S = S * 10 +ENUM\nFINMIENTRAS", 151},
    {"MIENTRAS (ENUM = A  B) ENTONCES\nESC S = S * 10 + 1 ENUM\nFINMIENTRAS", 0}, // see the messages
    {"MIENTRAS (ENUM = ) ENTONCES\nESC S = S + 1 ENUM\nFINMIENTRAS", 1},
    // Leaving a loop from its SI: CONTINUA to the next turn, ROMPE through the rest without a statement.
    {"REPITE J DESDE 1 HASTA 5\nSI (J = 3) ENTONCES\nCONTINUA\nFINSI\nESC S = S * 10 + J\nFINREPITE", 1245},
    {"REPITE J DESDE 1 HASTA 5\nSI (J = 3) ENTONCES\nROMPE\nFINSI\nESC S = S * 10 + J\nFINREPITE\nESC S = S "
     "+ 1",
     13},
    {"REPITE J DESDE 1 HASTA 5\nSI (J < 3) ENTONCES\nESC S = S + J\nSINO\nROMPE\nFINSI\nESC S = S * "
     "10\nFINREPITE",
     120},
    {"MIENTRAS (A < 9) ENTONCES\nESC A = A + 1\nSI (A = 4) ENTONCES\nROMPE\nFINSI\nESC S = S * 10 + "
     "A\nFINMIENTRAS",
     23},
    {"MIENTRAS (A < 5) ENTONCES\nESC A = A + 1\nSI (A = 3) ENTONCES\nCONTINUA\nFINSI\nESC S = S * 10 + A\n"
     "FINMIENTRAS",
     245},
    {"MIENTRAS (ENUM = A B A) ENTONCES\nSI (ENUM > 1) ENTONCES\nROMPE\nFINSI\nESC S = S * 10 + "
     "ENUM\nFINMIENTRAS",
     1},
    // Behind a SINO the SI goes on at its FINSI, also after CONTINUA: the lines behind it run.
    {"REPITE J DESDE 1 HASTA 3\nSI (J = 9) ENTONCES\nSINO\nCONTINUA\nESC S = 100\nFINSI\nESC S = S * 10 + "
     "J\nFINREPITE",
     123},
    // The counter inside a SI is whole, and so it is behind it; its first line still has the fraction.
    {"REPITE J DESDE 1.5 HASTA 1.9\nSI (J = 1.5) ENTONCES\nESC S = S * 10 + J\nFINSI\nESC S = S * 10 + "
     "J\nFINREPITE",
     11},
    // ROMPE and CONTINUA that are passed over.
    {"SI (A = 2) ENTONCES\nROMPE\nCONTINUA\nFINSI\nESC S = S + 1", 1},
    // The comparison reads what the body leaves; the temporaries can be seen there.
    {"SI (A + 6 > B) ENTONCES\nESC S = _TMP01 * 10 + _TMP02\nFINSI", 75},
    // A list that names itself ends.
    {"MIENTRAS (ENUM = ENUM) ENTONCES\nESC S = 1\nFINMIENTRAS", 1},
    // Turns whose step is lost in rounding end.
    {"REPITE J DESDE 100000000000000000000 HASTA 900000000000000000000\nESC S = S + 1\nFINREPITE", 1},
    {"REPITE J DESDE 1 HASTA 3\nESC S = S + 1\nFINREPITE\nREPITE J DESDE 1 HASTA 3\nESC S = S + 1\nFINREPITE",
     6},
};

TEST(Bloques, QueLineasCorren) {
    for (const CasoBloque &c : Bloques) {
        SCOPED_TRACE(c.texto);
        EmpezarBloques();
        Procesar(c.texto);
        EXPECT_EQ(EscalarDe("S"), c.s);
        EXPECT_EQ(BuscarEscalarEnTabla("_TMP01"), -1);
        EXPECT_EQ(BuscarEscalarEnTabla("_TMP02"), -1);
    }
}

// ----- Calendar steps

TEST(Bloques, SaltosDeCalendario) {
    const struct {
        const char *linea;
        Textos valores;
    } casos[] = {
        {"REPITE J DESDE 2000.1 HASTA 2001.2 SALTA TRIMESTRAL",
         {" 2000.1000 ", " 2000.2000 ", " 2000.3000 ", " 2000.4000 ", " 2001.1000 ", " 2001.2000 "}},
        {"REPITE J DESDE 1998.3 HASTA 1999.1 SALTA trimestral",
         {" 1998.3000 ", " 1998.4000 ", " 1999.1000 "}},
        {"REPITE J DESDE 1998.4 HASTA 1998.4 SALTA TRIMESTRAL", {" 1998.4000 "}},
        {"REPITE J DESDE 1998.4 HASTA 1998.5 SALTA TRIMESTRAL", {" 1998.4000 ", " 1999.1000 "}},
        {"REPITE J DESDE 1998.11 HASTA 1999.02 SALTA MENSUAL",
         {" 1998.1100 ", " 1998.1200 ", " 1999.0100 ", " 1999.0200 "}},
        {"REPITE J DESDE 1999.12 HASTA 1999.13 SALTA MENSUAL", {" 1999.1200 ", " 2000.0100 "}},
    };
    for (const auto &c : casos)
        EsperarLote((std::string(c.linea) + "\nCAL J\nFINREPITE").c_str(), c.valores, true);
}

TEST(Bloques, CadaTrimestreDeUnSigloTieneSuFila) {
    EmpezarConDatos(TipoTrimestral, "1950 1#2049 4");
    PonerSerie("X", std::vector<double>(400, 0.0));
    EXPECT_TRUE(Procesar("REPITE J DESDE 1950.1 HASTA 2049.4 SALTA TRIMESTRAL\nOBS X[J] = J\nFINREPITE"));
    EXPECT_TRUE(Prueba.cajas.empty());
    const std::vector<double> x = ValoresDe("X", 400);
    for (int i = 0; i < 400; ++i)
        EXPECT_NEAR(x[static_cast<std::size_t>(i)], 1950 + i / 4 + (i % 4 + 1) / 10.0, 1e-9) << i;
}

TEST(Bloques, CadaMesDeUnSigloTieneSuFila) {
    EmpezarConDatos(TipoMensual, "1950  1#2049 12");
    PonerSerie("X", std::vector<double>(1200, 0.0));
    EXPECT_TRUE(Procesar("REPITE J DESDE 1950.01 HASTA 2049.12 SALTA MENSUAL\nOBS X[J] = J\nFINREPITE"));
    EXPECT_TRUE(Prueba.cajas.empty());
    const std::vector<double> x = ValoresDe("X", 1200);
    for (int i = 0; i < 1200; ++i)
        EXPECT_NEAR(x[static_cast<std::size_t>(i)], 1950 + i / 12 + (i % 12 + 1) / 100.0, 1e-9) << i;
}

// ----- Messages

struct CasoMensaje {
    const char *texto;
    Textos cajas;
    bool sigue;
};

const CasoMensaje Mensajes[] = {
    // First line of REPITE.
    {"REPITE", {"Sintaxis no adecuada. Pto 1", Punto89}, false},
    {"REPITE J", {"Sintaxis no adecuada. Pto 1", Punto89}, false},
    {"REPITE DESDE 1 HASTA 3", {"Sintaxis no adecuada. Pto 1", Punto89}, false},
    {"REPITE J DESDE", {"Sintaxis no adecuada. Pto 2", Punto89}, false},
    {"REPITE J DESDE A HASTA 3", {"Sintaxis no adecuada. Pto 2", Punto89}, false},
    {"REPITE J DESDE -1 HASTA 3", {"Sintaxis no adecuada. Pto 2", Punto89}, false},
    {"REPITE J DESDE 1 A 3", {"Sintaxis no adecuada. Pto 3", Punto89}, false},
    {"REPITE J DESDE 1 HASTA", {"Sintaxis no adecuada. Pto 4", Punto89}, false},
    {"REPITE J DESDE 1 HASTA -3", {"Sintaxis no adecuada. Pto 4", Punto89}, false},
    {"REPITE J DESDE 1 HASTA 3 DE", {"Sintaxis no adecuada. Pto 43", Punto89}, false},
    {"REPITE J DESDE 1 HASTA 3 SALTA", {"Sintaxis no adecuada. Pto 44", Punto89}, false},
    {"REPITE J DESDE 1 HASTA 3 SALTA -1", {"Sintaxis no adecuada. Pto 44", Punto89}, false},
    {"REPITE J DESDE 1 HASTA 3 SALTA ANUAL", {"Sintaxis no adecuada. Pto 44", Punto89}, false},
    {"REPITE J DESDE 1 HASTA 2 SALTA 0", {"Salto cero. Pto 46", Punto89}, false},
    {"REPITE J DESDE 1 HASTA 2 SALTA 0 X", {"Salto cero. Pto 46", Punto89}, false},
    {"REPITE J DESDE 1 HASTA 2 SALTA 1 X", {"Sintaxis no adecuada. Pto 45", Punto89}, false},
    {"REPITE J DESDE 1 HASTA 2 SALTA MENSUAL X", {"Sintaxis no adecuada. Pto 45", Punto89}, false},
    // Blocks that aren't closed: the last line that isn't empty.
    {"REPITE J DESDE 1 HASTA 2", {"No se ha cerrado el bucle: []. Pto 7", Punto89}, false},
    {"REPITE J DESDE 1 HASTA 2\nesc s = 1\n\n  \n",
     {"No se ha cerrado el bucle: [ESC S = 1]. Pto 7", Punto89},
     false},
    {"REPITE J DESDE 1 HASTA 2\nFINSI\nFINMIENTRAS",
     {"No se ha cerrado el bucle: [FINMIENTRAS]. Pto 7", Punto89},
     false},
    {"MIENTRAS (A < 2) ENTONCES\nESC A = 2",
     {"No se ha cerrado el bucle: [ESC A = 2]. Pto 7", Punto89},
     false},
    {"SI (A < 2) ENTONCES\nSINO", {"No se ha cerrado el bucle: [SINO]. Pto 7", Punto89}, false},
    {"REPITE J DESDE 1 HASTA 2\nSI (J < 3) ENTONCES\nFINREPITE",
     {"No se ha cerrado el bucle: [FINREPITE]. Pto 7", Punto89},
     false},
    // Conditions.
    {"SI", {"Error:[][SI]. Pto 7", Punto89}, false},
    {"SI A > 1 ENTONCES", {"Error:[A][SI A > 1 ENTONCES]. Pto 7", Punto89}, false},
    {"MIENTRAS A > 1", {"Error:[A][MIENTRAS A > 1]. Pto 7", Punto89}, false},
    {"SI (A > 1) ENTONCES X", {"Sintaxis no idónea. Pto 106", Punto89}, false},
    {"SI (A > 1) HAZ", {"Sintaxis no idónea. Pto 105", Punto89}, false},
    {"SI (A > 1)", {"Sintaxis no idónea. Pto 105", Punto89}, false},
    {"MIENTRAS (A < 2) ENTONCES X", {"Sintaxis no adecuada. Pto 6", Punto89}, false},
    {"MIENTRAS (A < 2)", {"Sintaxis no adecuada. Pto 5", Punto89}, false},
    {"MIENTRAS (ENUM = X) HAZ", {"Sintaxis no adecuada. Pto 5", Punto89}, false},
    {"MIENTRAS (ENUM = X) ENTONCES X", {"Sintaxis no adecuada. Pto 6", Punto89}, false},
    {"SI (A == 1) ENTONCES", {"Sintaxis no idónea. Pto 103", Punto89}, false},
    {"MIENTRAS (A >< 1) ENTONCES", {"Sintaxis no adecuada. Pto 3", Punto89}, false},
    {"SI (NADA > 1) ENTONCES",
     {"Función desconocida [NADA]", "NADA . Pto 199", "ESC _TMP01 =  (NADA ). Pto 22",
      "Sintaxis no idónea. Pto 102", Punto89},
     false},
    {"MIENTRAS (A > (B + 1)) ENTONCES",
     {"Número inadecuado de paréntesis", "Sintaxis no adecuada. Pto 4", Punto89},
     false},
    {"SI (A > (B + 1)) ENTONCES",
     {"Número inadecuado de paréntesis", "Sintaxis no idónea. Pto 104", Punto89},
     false},
    {"SI ((A + B) > 1) ENTONCES\nFINSI", {}, true},
    {"SI (A) ENTONCES", {"Número inadecuado de paréntesis", "Sintaxis no idónea. Pto 102", Punto89}, false},
    // At the top level the driver has rewritten ">=" and the like.
    {"SI (A >= 1) ENTONCES",
     {"Número inadecuado de paréntesis", "Sintaxis no idónea. Pto 102", Punto89},
     false},
    {"MIENTRAS (A <= 1) ENTONCES",
     {"Número inadecuado de paréntesis", "Sintaxis no adecuada. Pto 2", Punto89},
     false},
    {"MIENTRAS (A <> 3) ENTONCES",
     {"Número inadecuado de paréntesis", "Sintaxis no adecuada. Pto 2", Punto89},
     false},
    {"MIENTRAS (A > 5) ENTONCES\nFINMIENTRAS", {"No es una comparación válida. Pto 8", Punto89}, false},
    {"MIENTRAS (A < 2) ENTONCES\nESC A = 9\nMAT A = 1\nFINMIENTRAS",
     {"Nombre matriz no válido. Pto 29", Punto89},
     false},
    // Text behind words that stand alone.
    {"REPITE J DESDE 1 HASTA 2\nFINREPITE J", {"Sintaxis no adecuada. Pto 15", Punto89}, false},
    {"MIENTRAS (A < 2) ENTONCES\nFINMIENTRAS A", {"Sintaxis no adecuada. Pto 16", Punto89}, false},
    {"SI (A < 2) ENTONCES\nFINSI A", {"Sintaxis no adecuada. Pto 17", Punto89}, false},
    {"SI (A > 2) ENTONCES\nSINO\nFINSI A", {"Sintaxis no adecuada. Pto 17", Punto89}, false},
    {"SI (A > 2) ENTONCES\nROMPE A\nFINSI", {"Sintaxis no adecuada. Pto 18", Punto89}, false},
    {"SI (A > 2) ENTONCES\nCONTINUA A\nFINSI", {"Sintaxis no adecuada. Pto 19", Punto89}, false},
    {"SI (A > 2) ENTONCES\nSINO A\nFINSI", {"Sintaxis no adecuada. Pto 35", Punto89}, false},
    // The comparison at the closing line.
    {"MIENTRAS (X[T] > 0) ENTONCES\nESC T = 3000\nFINMIENTRAS",
     {"X[T] . Pto 88", "ESC _TMP01 =  (X[T] ). Pto 22", "Sintaxis no adecuada. Pto 36", Punto89},
     false},
    {"MIENTRAS (A + B < 9) ENTONCES\nSER A = 3\nFINMIENTRAS", {Punto89}, false},
    // Words that can't stand inside.
    {"REPITE J DESDE 1 HASTA 2\nREPITE K DESDE 1 HASTA 2\nFINREPITE\nFINREPITE",
     {"Sintaxis no adecuada: [REPITE]: REPITE K DESDE 1 HASTA 2. Pto 6", Punto89},
     false},
    {"REPITE J DESDE 1 HASTA 2\nMIENTRAS (A < 2) ENTONCES\nFINREPITE",
     {"Sintaxis no adecuada: [MIENTRAS]: MIENTRAS (A < 2) ENTONCES. Pto 6", Punto89},
     false},
    {"REPITE J DESDE 1 HASTA 2\nvsr no\nFINREPITE",
     {"Sintaxis no adecuada: [VSR]: VSR NO. Pto 6", Punto89},
     false},
    {"REPITE J DESDE 1 HASTA 2\nMUEST 1 2\nFINREPITE",
     {"Sintaxis no adecuada: [MUEST]: MUEST 1 2. Pto 6", Punto89},
     false},
    {"REPITE J DESDE 1 HASTA 2\nGRAF X\nFINREPITE",
     {"Sintaxis no adecuada: [GRAF]: GRAF X. Pto 6", Punto89},
     false},
    {"REPITE J DESDE 1 HASTA 2\nHIST X\nFINREPITE",
     {"Sintaxis no adecuada: [HIST]: HIST X. Pto 6", Punto89},
     false},
    {"REPITE J DESDE 1 HASTA 2\nDECI 2\nFINREPITE",
     {"Sintaxis no adecuada: [DECI]: DECI 2. Pto 6", Punto89},
     false},
    {"REPITE J DESDE 1 HASTA 2\nAES X\nFINREPITE",
     {"Sintaxis no adecuada: [AES]: AES X. Pto 6", Punto89},
     false},
    {"REPITE J DESDE 1 HASTA 2\nAED X\nFINREPITE",
     {"Sintaxis no adecuada: [AED]: AED X. Pto 6", Punto89},
     false},
    {"REPITE J DESDE 1 HASTA 2\nQ\nFINREPITE", {"Sintaxis no adecuada: [Q]: Q. Pto 6", Punto89}, false},
    {"REPITE J DESDE 1 HASTA 2\n(A)\nFINREPITE", {"Sintaxis no adecuada: [(]: (A). Pto 6", Punto89}, false},
    {"REPITE J DESDE 1 HASTA 2\nFINSI\nFINREPITE",
     {"Sintaxis no adecuada: [FINSI]: FINSI. Pto 6", Punto89},
     false},
    {"REPITE J DESDE 1 HASTA 2\nSINO\nFINREPITE",
     {"Sintaxis no adecuada: [SINO]: SINO. Pto 6", Punto89},
     false},
    {"REPITE J DESDE 1 HASTA 2\nJ\nFINREPITE",
     {"Sintaxis no adecuada: [1.000000]:  1.000000 . Pto 6", Punto89},
     false},
    {"SI (A < 2) ENTONCES\nSINO\nSINO\nFINSI", {"Sintaxis no adecuada: [SINO]: SINO. Pto 6", Punto89}, false},
    // A wrong word is refused even in a branch that doesn't run; a comment passes.
    {"SI (A > 2) ENTONCES\nESC S = NADA\n; comment\nWRONG\nFINSI",
     {"Sintaxis no adecuada: [WRONG]: WRONG. Pto 6", Punto89},
     false},
    {"SI (A > 2) ENTONCES\nESC S = NADA\n; comment\nFINSI", {}, true},
    // A SI without its FINSI in the loop takes that of a later one, and meets the loop's closing line.
    {"REPITE J DESDE 1 HASTA 2\nSI (J < 9) ENTONCES\nFINREPITE\nSI (A < 2) ENTONCES\nFINSI",
     {"Sintaxis no adecuada: [FINREPITE]: FINREPITE. Pto 6", Punto89},
     false},
    // Failures of a line come first, then the block's.
    {"REPITE J DESDE 1 HASTA 2\nESC S = NADA\nFINREPITE\nCAL 1",
     {"Función desconocida [NADA]", "ESC S = NADA. Pto 199", Punto89},
     false},
    {"REPITE J DESDE 1 HASTA 2\nSER A = 1\nFINREPITE", {Punto89}, false},
    {"REPITE J DESDE 1 HASTA 2\nSI (J = 2) ENTONCES\nCDU\nFINSI\nFINREPITE",
     {"No se encuentra la matriz de covarianza", Punto89},
     false},
    {"REPITE J DESDE 3 HASTA 3\nESC S = POT(J,2)\nFINREPITE",
     {"Función desconocida [J]", "J. Pto 199", "Error en los calculos", "ESC S = POT(J,2). Pto 34", Punto89},
     false},
    {"REPITE J DESDE 3 HASTA 3\nSI (J>3) ENTONCES\nFINSI\nFINREPITE",
     {"Función desconocida [J]", "J. Pto 199", "ESC _TMP01 =  (J). Pto 22", "Sintaxis no idónea. Pto 102",
      Punto89},
     false},
    // Outside a SI the driver reads the closing line that ROMPE and CONTINUA leave it.
    {"REPITE J DESDE 1 HASTA 3\nCAL J\nROMPE\nCAL 99\nFINREPITE\nCAL 98",
     {"   1.0000 ", "Funciones o parámetros no válidos: \n (FINREPITE)"},
     false},
    {"REPITE J DESDE 1 HASTA 3\nCONTINUA\nFINREPITE",
     {"Funciones o parámetros no válidos: \n (FINREPITE)"},
     false},
    {"MIENTRAS (A < 2) ENTONCES\nROMPE\nFINMIENTRAS",
     {"Funciones o parámetros no válidos: \n (FINMIENTRAS)"},
     false},
    {"SI (A < 2) ENTONCES\nCAL 1\nROMPE\nCAL 2\nFINSI\nCAL 3",
     {"   1.0000 ", "Funciones o parámetros no válidos: \n (FINSI)"},
     false},
    // An empty entry of a list is blank where ENUM stood.
    {"MIENTRAS (ENUM = A  B) ENTONCES\nCAL 7 + ENUM\nFINMIENTRAS",
     {"   8.0000 ", "CAL 7 +             . Pto 1129", Punto89},
     false},
};

TEST(Bloques, Mensajes) {
    for (const CasoMensaje &c : Mensajes) EsperarLote(c.texto, c.cajas, c.sigue);
}

TEST(Bloques, LaListaTieneSitioParaCienCodigos) {
    std::string lista = "MIENTRAS (ENUM =";
    for (int i = 0; i < 100; ++i) lista += " A";
    EmpezarBloques();
    EXPECT_TRUE(Procesar(lista + ") ENTONCES\nESC S = S + ENUM\nFINMIENTRAS"));
    EXPECT_EQ(EscalarDe("S"), 100.0);
    EsperarLote((lista + " A) ENTONCES\nESC S = S + ENUM\nFINMIENTRAS").c_str(),
                {"Sintaxis no adecuada. Pto 4", Punto89}, false);
}

TEST(Bloques, LasTemporalesSeBorranTambienTrasUnFallo) {
    EmpezarBloques();
    EXPECT_FALSE(Procesar("SI (A = 1) ENTONCES\nESC S = _TMP01 + NADA\nFINSI"));
    EXPECT_LT(BuscarEscalar("_TMP01"), 0);
    EXPECT_LT(BuscarEscalar("_TMP02"), 0);
    EXPECT_EQ(TablaEscalares.numero, 4);
}

// The scalars of a comparison need two places of the table.
TEST(Bloques, LaComparacionNecesitaSitioParaDosEscalares) {
    const struct {
        int escalares;
        const char *texto;
        Textos cajas;
    } casos[] = {
        {57, "SI (A = 1) ENTONCES\nFINSI", {}},
        {58,
         "SI (A = 1) ENTONCES\nFINSI",
         {"Borre algunos escalares", "Error en la generación de escalares", "Sintaxis no idónea. Pto 104",
          Punto89}},
        {59,
         "SI (A = 1) ENTONCES\nFINSI",
         {"Borre algunos escalares", "Error en la generación de escalares", "Sintaxis no idónea. Pto 102",
          Punto89}},
        {59,
         "MIENTRAS (A = 1) ENTONCES\nFINMIENTRAS",
         {"Borre algunos escalares", "Error en la generación de escalares", "Sintaxis no adecuada. Pto 2",
          Punto89}},
    };
    for (const auto &c : casos) {
        SCOPED_TRACE(std::string(c.texto) + " " + std::to_string(c.escalares));
        EmpezarBloques();
        for (int i = TablaEscalares.numero; i < c.escalares; ++i)
            PonerEscalar(nullptr, "E" + std::to_string(i), i);
        EXPECT_EQ(Procesar(c.texto), c.cajas.empty());
        EXPECT_EQ(TextosDeCajas(), c.cajas);
        EXPECT_EQ(TablaEscalares.numero, c.escalares);
        EXPECT_EQ(BuscarEscalarEnTabla("_TMP01"), -1);
    }
}

TEST(Bloques, LaMuestraDeLaRegresionSigueAlBloqueAunqueMCNoCorra) {
    EmpezarBloques();
    Muestra.InicioRegresion = Muestra.FinRegresion = -7;
    EXPECT_TRUE(Procesar("MUEST 1992 1995\nSI (A > 1) ENTONCES\nMC X 1\nFINSI"));
    EXPECT_EQ(Muestra.InicioRegresion, 2);
    EXPECT_EQ(Muestra.FinRegresion, 5);
}

// One regression for each code of the list.
TEST(Bloques, UnaRegresionPorCodigoDeLaLista) {
    EmpezarBloques();
    PonerSerie("Y", {1, 3, 2, 5, 4, 6, 8, 7, 9, 11});
    PonerSerie("X2", {2, 1, 4, 3, 6, 5, 8, 7, 10, 9});
    EXPECT_TRUE(
        Procesar("VSR NO\nMIENTRAS (ENUM = X X2) ENTONCES\nMC Y 1 ENUM\nESC S = S + _SCR\nFINMIENTRAS"));
    EXPECT_EQ(TextosDeCajas(), Textos{});
    const double s = EscalarDe("S");
    EXPECT_TRUE(Procesar("MUEST 1990 1999\nMC Y 1 X\nESC S = _SCR\nMC Y 1 X2\nESC S = S + _SCR"));
    EXPECT_EQ(s, EscalarDe("S"));
    EXPECT_GT(s, 0.0);
}

TEST(Bloques, UnaLineaMuyLargaYContadoresEnormes) {
    EmpezarBloques();
    const std::string nueves(300, '9');
    EXPECT_TRUE(Procesar("REPITE J DESDE " + nueves + " HASTA " + nueves + "\nESC S = J\nFINREPITE"));
    EXPECT_GT(EscalarDe("S"), 1e299);
    std::string muchas = "REPITE J DESDE 1 HASTA 2\nESC S = 0";
    for (int i = 0; i < 2000; ++i) muchas += " + J";
    EXPECT_TRUE(Procesar(muchas + "\nFINREPITE"));
    EXPECT_EQ(EscalarDe("S"), 4000.0);
}

} // namespace
