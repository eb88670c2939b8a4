// Every failure of a regression, with its boxes in order.
#include "apoyo/datos_regresion.h"

#include <gtest/gtest.h>

namespace {

using Textos = std::vector<std::string>;

std::string Veces(const char *texto, int n) {
    std::string r;
    for (int i = 0; i < n; ++i) r += texto;
    return r;
}

} // namespace

struct Fallo {
    const char *antes; // statements that run well before
    std::string sentencia;
    Textos cajas;
};

class FallosRegresion : public testing::TestWithParam<Fallo> {};

TEST_P(FallosRegresion, Cajas) {
    const Fallo &c = GetParam();
    EmpezarRegresion();
    ASSERT_TRUE(*c.antes == '\0' || Procesar(c.antes));
    EXPECT_FALSE(Procesar(c.sentencia)) << c.sentencia;
    EXPECT_EQ(TextosDeCajas(), c.cajas) << c.sentencia;
    for (const CajaVista &caja : Prueba.cajas) {
        const bool deOtro = caja.texto == "Demasiados regresores";
        EXPECT_TRUE(deOtro || caja.titulo == "Proceso cancelado") << caja.texto;
    }
    for (const char *temporal : {"_YDEP", "_XIND", "_TMF2", "_TMF5", "_RESM", "_SCR1"})
        EXPECT_EQ(BuscarMatriz(temporal), -1) << temporal;
    EXPECT_TRUE(Prueba.resultados.empty());
}

INSTANTIATE_TEST_SUITE_P(
    Ecuacion, FallosRegresion,
    testing::Values(
        Fallo{"", "MC QQ 1 X", {"Serie desconocida:[QQ]. Pto 2663"}},
        Fallo{"", "MC", {"Serie desconocida:[]. Pto 2663"}},
        Fallo{"", "MC 1 X", {"Serie desconocida:[1]. Pto 2663"}},
        Fallo{"", "MC ALFA X", {"Serie desconocida:[ALFA]. Pto 2663"}},
        Fallo{
            "", "MC FALTA 1 X", {"Existen valores missing. Pto 62", "Secuencia no válida: [FALTA]. Pto 363"}},
        Fallo{"",
              "MC Y 1 FALTA",
              {"Existen valores missing. Pto 62", "Secuencia no válida: [{ 1 FALTA } ]. Pto 651"}},
        Fallo{"", "MC Y", {"Indroduzca regresores. Pto 869"}}, Fallo{"", "MC Y QQ X", {"QQ. Pto 66"}},
        Fallo{"", "MC Y -1 X", {"-. Pto 66"}}, Fallo{"", "MC Y (X)", {"(. Pto 66"}},
        Fallo{"", "MC Y X QQ", {"Serie no válida: [QQ][MC Y X QQ]. Pto 664"}},
        Fallo{"", "MC Y X +", {"Serie no válida: [+][MC Y X +]. Pto 664"}},
        Fallo{"", "MC Y 1 X(Z)", {"Introduzca un número. Pto 661"}},
        Fallo{"", "MC Y 1 X(-Z)", {"Introduzca un número. Pto 661"}},
        Fallo{"", "MC Y 1 X()", {"Introduzca un número. Pto 661"}},
        Fallo{"", "MC Y 1 X(-1 2)", {"Secuencia no válida. Pto 662"}},
        Fallo{"", "MC Y 1 X(1-)", {"Secuencia no válida. Pto 662"}},
        Fallo{"", "MC Y 1 X(0)", {"X(0). Pto 8", "Secuencia no válida. Pto 851"}},
        Fallo{"", "MC Y 1 X[99]", {"X[99]. Pto 88", "Secuencia no válida. Pto 851"}},
        Fallo{"", "MC Y 1 X[5 6]", {"Secuencia no válida. Pto 664"}},
        Fallo{"", "MC Y 1 X[5", {"Número inadecuado de corchetes"}},
        Fallo{"", "MC Y 1 ABCDEFGHIJKLM", {"Nombre demasiado largo. Pto 121"}},
        Fallo{"", "MC Y 1, X", {"Caracter no válido. Pto 121"}},
        Fallo{"", "MC Y 1 X'", {"Caracter no válido. Pto 121"}},
        Fallo{"", "MC Ñ 1 X", {"Caracter no válido. Pto 121"}},
        Fallo{"", "MC Y 1 X(-20)", {"Existen valores missing. Pto 62", "Secuencia no válida: [Y]. Pto 363"}},
        Fallo{"MUEST 1 2", "MC Y 1 X", {"La muestra es muy pequeña. Pto 293"}},
        Fallo{"MUEST 1 2", "MCP Y 1 X", {"La muestra es muy pequeña. Pto 293"}},
        Fallo{"", "CR Y 1 X", {"Calcule mínimo cuadrado. Pto 263"}},
        Fallo{"", "MGN Y 1 X", {"La muestra es muy pequeña. Pto 293"}},
        Fallo{"", "CWH", {"La muestra es muy pequeña. Pto 293"}},
        Fallo{"", "MCP Y 1 X", {"Indroduzca ponderación. Pto 1633"}},
        Fallo{"", "MCP", {"Indroduzca ponderación. Pto 1633"}},
        Fallo{"", "MCP (QQ) Y 1 X", {"Función desconocida [QQ]", "QQ. Pto 199", "QQ. Pto 8511"}},
        Fallo{"", "MCP (X) QQ 1", {"Serie desconocida:[QQ]. Pto 2663"}},
        Fallo{"MC Y 1 X Z", "CR Y 1 QQ", {"Serie no válida: [QQ][CR Y 1 QQ]. Pto 664"}},
        Fallo{"MC Y 1 X Z", "CWH RA PC", {"Secuencia no válida: [PC]. Pto 1634"}},
        Fallo{"MC Y 1 X Z", "CWH RA RA", {"Secuencia no válida: [RA]. Pto 1634"}},
        Fallo{"MC Y 1 X Z", "CWH PC PC", {"Secuencia no válida: [PC]. Pto 1634"}},
        Fallo{"MC Y 1 X Z", "CWH XX", {"Secuencia no válida: [XX]. Pto 1635"}},
        Fallo{"MC Y 1 X Z", "CWH PC XX", {"Secuencia no válida: [XX]. Pto 1634"}}));

INSTANTIATE_TEST_SUITE_P(
    Calculo, FallosRegresion,
    testing::Values(
        Fallo{"", "MC Y X X", {"Matriz singular. Pto 402", "Secuencia no válida. Pto 6535"}},
        // White's test squares what isn't a number from one on: two constants.
        Fallo{"MC Y 0.5 X", "CWH", {"Matriz singular. Pto 402", "Secuencia no válida. Pto 6535"}},
        Fallo{"MUEST 1 3", "MC Y 1 X Z X(-1)", {"Matriz singular. Pto 402", "Secuencia no válida. Pto 6535"}},
        // Data of so small a scale that a row of the moment matrix is below the tolerance.
        Fallo{"SER CHICA = X / 100000",
              "MC Y CHICA",
              {"Matriz singular. Pto 402", "Secuencia no válida. Pto 6535"}},
        Fallo{"",
              "MC Y" + Veces(" 1", 18),
              {"Demasiados regresores", "Error en inversa. Pto 401", "Secuencia no válida. Pto 6535"}},
        Fallo{"",
              "MC Y" + Veces(" 1", 51),
              {"Error en número. Pto 22", "Secuencia no válida: [{ " + Veces("1 ", 51) + "} ]. Pto 651"}},
        Fallo{
            "",
            "MC Y" + Veces(" ALFA", 51),
            {"Error en escalar. Pto 38", "Secuencia no válida: [{ " + Veces("ALFA ", 51) + "} ]. Pto 651"}}));

// ----- Names that are taken

struct NombreOcupado {
    const char *nombre;
    Textos comoSerie, comoEscalar, comoMatriz; // empty: no failure
};

class NombresOcupados : public testing::TestWithParam<NombreOcupado> {};

TEST_P(NombresOcupados, Cajas) {
    const NombreOcupado &c = GetParam();
    const struct {
        const char *clase;
        const Textos &cajas;
    } Clases[] = {{"serie", c.comoSerie}, {"escalar", c.comoEscalar}, {"matriz", c.comoMatriz}};
    for (const auto &clase : Clases) {
        SCOPED_TRACE(clase.clase);
        EmpezarRegresion();
        if (&clase.cajas == &c.comoSerie) PonerSerie(c.nombre, {1.0});
        if (&clase.cajas == &c.comoEscalar) PonerEscalar(nullptr, c.nombre, 1.0);
        if (&clase.cajas == &c.comoMatriz) PonerMatriz(c.nombre, {1.0}, 1, 1);
        EXPECT_EQ(Procesar("MC Y 1 X(-1)"), clase.cajas.empty());
        EXPECT_EQ(TextosDeCajas(), clase.cajas);
    }
}

namespace {

NombreOcupado DeMatriz(const char *nombre, int punto) {
    const std::string paso = Formatear("Secuencia no válida. Pto %d", punto);
    return {nombre, {"Nombre matriz no válido. Pto 28", paso}, {"Nombre matriz no válido. Pto 29", paso}, {}};
}

NombreOcupado DeEscalar(const char *nombre, int punto) {
    const std::string paso = Formatear("Secuencia no válida. Pto %d", punto);
    return {nombre, {paso}, {}, {paso}};
}

} // namespace

INSTANTIATE_TEST_SUITE_P(
    Familias, NombresOcupados,
    testing::Values(
        DeMatriz("_TMF2", 6524), DeMatriz("_TMF3", 6524), DeMatriz("_TMF4", 6524), DeMatriz("_TMF5", 6532),
        DeMatriz("_TMF6", 6534), DeMatriz("_BETA", 6535), DeMatriz("_YAJU1", 653), DeMatriz("_RESM", 653),
        DeMatriz("_SCR1", 6532), DeMatriz("_COV", 657), DeMatriz("_DTE", 658), DeMatriz("_DTE1", 658),
        DeEscalar("_SCR", 656), DeEscalar("_DTR", 956), DeEscalar("_MTR", 656), DeEscalar("_MVD", 6661),
        DeEscalar("_STVD", 6636), DeEscalar("_LV", 6665), DeEscalar("_AIC", 6668), DeEscalar("_SCVD", 70),
        DeEscalar("_DTVD", 72), DeEscalar("_DCR", 74), DeEscalar("_RC", 76), DeEscalar("_FORLA", 78),
        DeEscalar("_NORE", 78), DeEscalar("_ANREG", 78), DeEscalar("_NREG", 78), DeEscalar("_DW", 80),
        DeEscalar("_RCC", 82),
        NombreOcupado{"_ESTF", {"Secuencia no válida. Pto 881"}, {}, {"Secuencia no válida. Pto 882"}},
        NombreOcupado{"_EA1", {"Secuencia no válida. 861. Pto 1"}, {}, {"Secuencia no válida. 861. Pto 2"}},
        NombreOcupado{"_DIV", {}, {"Borre algunas series. Pto 8622"}, {"Borre algunas series. Pto 8622"}},
        NombreOcupado{"_PROBT", {}, {"Borre algunas series. Pto 863"}, {"Borre algunas series. Pto 863"}},
        NombreOcupado{"_TMR1", {}, {"Borre algunas series. Pto 862"}, {"Borre algunas series. Pto 862"}},
        NombreOcupado{"_YAJUS", {}, {"Nombre Serie no Válido. Pto 5"}, {"Nombre Serie no Válido. Pto 4"}},
        NombreOcupado{"_RES", {}, {"Nombre Serie no Válido. Pto 5"}, {"Nombre Serie no Válido. Pto 4"}},
        NombreOcupado{"_YDEP",
                      {"Nombre matriz no válido. Pto 28", "Secuencia no válida: [Y]. Pto 363"},
                      {"Nombre matriz no válido. Pto 29", "Secuencia no válida: [Y]. Pto 363"},
                      {}},
        NombreOcupado{"_XIND",
                      {"Nombre matriz no válido. Pto 28", "Secuencia no válida: [{ 1 _TMR1 } ]. Pto 651"},
                      {"Nombre matriz no válido. Pto 29", "Secuencia no válida: [{ 1 _TMR1 } ]. Pto 651"},
                      {}}));

// ----- Tables that are full

TEST(FallosRegresion, TablasLlenas) {
    EmpezarRegresion();
    while (CabeOtraSerie()) PonerSerie(Formatear("S%d", ArchivoTrabajo.NumSeries), {1.0});
    EXPECT_FALSE(Procesar("MC Y 1 X"));
    EXPECT_EQ(TextosDeCajas(), Textos{"Falta memoria. Pto 6"});
    EmpezarRegresion();
    for (int i = 0; i < 93; ++i) PonerSerie(Formatear("S%d", i), {1.0}); // room for _YAJUS and _RES only
    EXPECT_FALSE(Procesar("MC Y 1 X"));
    EXPECT_EQ(TextosDeCajas(), Textos{"Falta memoria. Pto 6"});
    EmpezarRegresion();
    for (int i = 0; i < 91; ++i) PonerSerie(Formatear("S%d", i), {1.0}); // and for _DTE2 and _BETA2
    EXPECT_FALSE(Procesar("MC Y 1 X"));
    EXPECT_EQ(TextosDeCajas(), Textos{"Borre algunas series. Pto 8622"});
    EmpezarRegresion();
    for (int i = 0; i < 90; ++i) PonerSerie(Formatear("S%d", i), {1.0});
    EXPECT_FALSE(Procesar("MC Y 1 X"));
    EXPECT_EQ(TextosDeCajas(), Textos{"Borre algunas series. Pto 863"});
    EmpezarRegresion();
    for (int i = 0; i < 58; ++i) PonerEscalar(nullptr, Formatear("E%d", i), 1.0); // ALFA is the 59th
    EXPECT_FALSE(Procesar("MC Y 1 X"));
    EXPECT_EQ(TextosDeCajas(), (Textos{"Borre algunos escalares", "Secuencia no válida. Pto 656"}));
    EmpezarRegresion();
    for (int i = 0; i < 29; ++i) PonerMatriz(Formatear("M%d", i), {1.0}, 1, 1);
    EXPECT_FALSE(Procesar("MC Y 1 X"));
    EXPECT_EQ(TextosDeCajas(), (Textos{"Demasiadas Matrices. Borre algunas.: 29. Pto 31",
                                       "Secuencia no válida: [Y]. Pto 363"}));
}

// ----- Texts that the driver's checks hold back

TEST(FallosRegresion, TextosCortados) {
    static const struct {
        const char *texto;
        Textos cajas;
    } Casos[] = {
        {"Y 1 X(", {"Secuencia no válida. Pto 6422"}},
        {"Y 1 X( ", {"Secuencia no válida. Pto 6422"}},
        {"Y 1 X(-", {"Secuencia no válida. Pto 6522"}},
        {"Y 1 X(-1", {"Secuencia no válida. Pto 6922"}},
        {"Y 1 X(1", {"Secuencia no válida. Pto 662"}},
        {"Y 1 X[", {"Secuencia no válida. Pto 6422"}},
        {"Y 1 X[5", {"Secuencia no válida. Pto 664"}},
        {"Y 1 X]", {"Serie no válida: []][Y 1 X]]. Pto 664"}},
        {"Y 1 X)", {}},
        {"Y 1 X  ", {}},
        {"(", {"Serie desconocida:[]. Pto 2663"}},
        {"(CA", {"Serie desconocida:[]. Pto 2663"}},
        {"(C", {"Serie desconocida:[]. Pto 2663"}},
        {"", {"Serie desconocida:[]. Pto 2663"}},
        {"\x01", {"Caracter no válido. Pto 121"}},
    };
    for (const auto &c : Casos) {
        SCOPED_TRACE(c.texto);
        EmpezarRegresion();
        EXPECT_EQ(EstimarTexto(c.texto, OrdenMC), c.cajas.empty() ? 1 : 0);
        EXPECT_EQ(TextosDeCajas(), c.cajas);
    }
}

TEST(FallosRegresion, CodigosAjenos) {
    EmpezarRegresion();
    for (const int codigo : {0, 7, 14, 104, -1, 1000}) EXPECT_EQ(EstimarTexto("Y 1 X", codigo), 0);
    EXPECT_TRUE(Prueba.cajas.empty());
}

TEST(FallosRegresion, UltimoNivel) {
    EmpezarRegresion();
    AbrirPilaColumnas();
    for (const int codigo : {OrdenMC, OrdenMCP}) {
        LimpiarEvaluador();
        Evaluador.NivelLinea = MaxNiveles - 1;
        LineasSentencia lineas;
        lineas[MaxNiveles - 1] = codigo == OrdenMC ? "Y 1 X" : "(X) Y 1 X";
        Muestra.InicioRegresion = 0;
        Muestra.FinRegresion = 19;
        int posicion = 0, c = codigo;
        EXPECT_EQ(EstimarRegresion(lineas, posicion, nullptr, c), 0);
    }
    EXPECT_EQ(TextosDeCajas(),
              (Textos{"Secuencia no válida: [Y]. Pto 363", "Borre algunas series. Pto 8621"}));
    CerrarPilaColumnas();
}

// ----- Samples without data

TEST(FallosRegresion, MuestraFueraDeLasTablas) {
    EmpezarRegresion();
    for (const char *serie : {"Y", "X", "Z", "FALTA"}) LimpiarColumna(BuscarSerie(serie));
    LimpiarLimitesMuestra();
    ActualizarMuestra();
    ASSERT_EQ(Muestra.FinMuestra, 100000);
    EXPECT_FALSE(Procesar("MC Y 1 X"));
    EXPECT_EQ(TextosDeCajas(),
              (Textos{"Existen valores missing. Pto 62", "Secuencia no válida: [Y]. Pto 363"}));
    EXPECT_FALSE(Procesar("MC Y 1 X(-1) Z(3)"));
    EXPECT_FALSE(Procesar("MCP (X) Y 1 X"));
}
