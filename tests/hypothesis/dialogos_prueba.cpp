// What the dialogs of the tests decide: the statements that they compose, and what OK does.
#include "hypothesis/apoyo_contrastes.h"
#include "hypothesis/dialogo_goldfeld.h"
#include "hypothesis/dialogo_hipotesis_nula.h"
#include "hypothesis/dialogo_modelo_restringido.h"
#include "hypothesis/dialogo_rangos.h"
#include "hypothesis/dialogo_white.h"
#include "hypothesis/hipotesis_nula.h"

#include <gtest/gtest.h>

namespace {

void EmpezarDialogo() {
    EmpezarRegresion();
    EXPECT_TRUE(Procesar("MUEST 2 19\nMC Y 1 X Z\nMUEST 1 20"));
    Prueba.cajas.clear();
    Prueba.resultados.clear();
}

Textos TitulosDeCajas() {
    Textos r;
    for (const CajaVista &c : Prueba.cajas) r.push_back(c.titulo);
    return r;
}

} // namespace

// ----- Goldfeld and Quandt

TEST(DialogoGoldfeld, Sentencia) {
    EXPECT_EQ(SentenciaGoldfeld({"X", "1", "10", "11", "20", false}), "CGQ ( X ) 1  10  11  20  ");
    EXPECT_EQ(SentenciaGoldfeld({"LN(X)/Z", "1", "10", "11", "20", true}),
              "CGQ ( LN(X)/Z )   RA 1  10  11  20  ");
    EXPECT_EQ(SentenciaGoldfeld({"X", "", "", "", "", false}), "CGQ ( X )         ");
}

TEST(DialogoGoldfeld, SinVariable) {
    for (const char *variable : {"", "   "}) {
        EmpezarDialogo();
        AceptarGoldfeld(nullptr, {variable, "1", "8", "11", "18", false});
        EXPECT_EQ(TextosDeCajas(), Textos{"Introduzca variable de ponderación"});
        EXPECT_EQ(TitulosDeCajas(), Textos{"Aviso"});
    }
}

// The statement leaves the sample at the denominator's, the dialog puts it back; so also where it failed half way.
TEST(DialogoGoldfeld, DejaLaMuestraComoEstaba) {
    const ValoresGoldfeld casos[] = {{"X", "1", "8", "11", "18", false},
                                     {"X", "1", "8", "17", "18", false},
                                     {"X", "1", "8", "3", "18", false},
                                     {"NADA", "1", "8", "11", "18", false}};
    for (const ValoresGoldfeld &v : casos) {
        EmpezarDialogo();
        AceptarGoldfeld(nullptr, v);
        EXPECT_EQ(Muestra.InicioRegresion, 1);
        EXPECT_EQ(Muestra.FinRegresion, 18);
        EXPECT_EQ(TemporalesQueQuedan(), Textos{});
        EXPECT_EQ(UltimoContraste.ordenacion, " " + v.variable + " ");
    }
}

// ----- White

TEST(DialogoWhite, Sentencia) {
    EXPECT_EQ(SentenciaWhite({false, false}), "CWH ");
    EXPECT_EQ(SentenciaWhite({true, false}), "CWH PC ");
    EXPECT_EQ(SentenciaWhite({false, true}), "CWH RA");
    EXPECT_EQ(SentenciaWhite({true, true}), "CWH PC RA ");
}

TEST(DialogoWhite, CuandoFalla) {
    EmpezarDialogo();
    EliminarSerie(BuscarSerie("_RES"));
    EXPECT_EQ(AceptarWhite(nullptr, {true, true}), 0);
    EXPECT_EQ(TextosDeCajas(),
              (Textos{"No existen los residuos. Pto 1634", "Problemas en la regresión. P17"}));
    EXPECT_EQ(TitulosDeCajas(), (Textos{"Proceso cancelado", "Proceso cancelado"}));
}

// ----- Ranks

TEST(DialogoRangos, Sentencia) {
    EXPECT_EQ(SentenciaRangos({" X  "}), "CRA  X");
    EXPECT_EQ(SentenciaRangos({""}), "CRA ");
}

TEST(DialogoRangos, Acepta) {
    EmpezarDialogo();
    EXPECT_EQ(AceptarRangos(nullptr, {" X"}), 1);
    EXPECT_EQ(Prueba.resultados.size(), 1u);
    EXPECT_EQ(AceptarRangos(nullptr, {""}), 0);
    EXPECT_EQ(TextosDeCajas().back(), "Problemas en los cálculos");
}

// ----- Restricted model

TEST(DialogoModeloRestringido, SoloTrasUnaRegresionDeDialogo) {
    EmpezarDialogo();
    EXPECT_EQ(AceptarModeloRestringido(nullptr, {"Y 1 X"}), 0);
    EXPECT_EQ(TextosDeCajas(), Textos{"Realize primero una regresión"});
    EXPECT_EQ(TitulosDeCajas(), Textos{"Aviso"});
}

TEST(DialogoModeloRestringido, Acepta) {
    EmpezarDialogo();
    UltimaRegresion.DesdeDialogo = 1;
    EXPECT_EQ(SentenciaModeloRestringido({" Y 1 X"}), "CR   Y 1 X");
    EXPECT_EQ(AceptarModeloRestringido(nullptr, {" Y 1 NADA"}), 0);
    EXPECT_EQ(TextosDeCajas().back(), "Secuencia de series no válida");
    EXPECT_EQ(Prueba.cajas.back().titulo, "Aviso");
}

// ----- Null hypothesis

TEST(DialogoHipotesisNula, Sentencias) {
    ValoresHipotesisNula v;
    EXPECT_EQ(SentenciasHipotesisNula(v), (Textos{"CHN IR 1", "CHN FR 1"}));
    v.visibles = v.numero = 2;
    v.restricciones[0] = " BETA(1) = 2  ";
    v.restricciones[1] = "BETA(2)=0";
    v.restricciones[2] = "no se ve";
    EXPECT_EQ(SentenciasHipotesisNula(v),
              (Textos{"CHN IR 2", "CHN MR 1   BETA(1) = 2", "CHN MR 2  BETA(2)=0", "CHN FR 2"}));
}

TEST(DialogoHipotesisNula, MuestraTantasComoPideSI) {
    const struct {
        const char *numero;
        int filas, visibles, queda;
        const char *caja;
    } casos[] = {
        {"1", 3, 1, 1, ""},     {"3", 3, 3, 3, ""},     {"4", 3, 0, 4, "Número de restricciones no válidas"},
        {"0", 3, 1, 1, ""},     {"-2", 3, 1, 1, ""},    {"", 3, 1, 1, ""},
        {"11", 11, 11, 11, ""}, {"12", 11, 10, 10, ""}, {"500", 30, 10, 10, ""},
        {"10", 10, 10, 10, ""}, {"dos", 3, 1, 1, ""},
    };
    for (const auto &c : casos) {
        SCOPED_TRACE(c.numero);
        EmpezarDialogo();
        PonerMatriz("_BETA", std::vector<double>(static_cast<std::size_t>(c.filas), 1.0), c.filas, 1);
        ValoresHipotesisNula v = AbrirHipotesisNula();
        v.visibles = 7;
        MostrarRestricciones(nullptr, v, c.numero);
        EXPECT_EQ(v.visibles, c.visibles);
        EXPECT_EQ(v.numero, c.queda);
        EXPECT_EQ(TextosDeCajas(), c.caja[0] == '\0' ? Textos{} : Textos{c.caja});
    }
}

TEST(DialogoHipotesisNula, SinMatrices) {
    for (const char *matriz : {"_BETA", "_COV"}) {
        EmpezarDialogo();
        BorrarMatriz(nullptr, BuscarMatriz(matriz));
        ValoresHipotesisNula v;
        MostrarRestricciones(nullptr, v, "1");
        EXPECT_EQ(v.visibles, 0);
        EXPECT_EQ(TextosDeCajas(), Textos{std::string("No existe la matriz ") + matriz});
        EXPECT_EQ(TitulosDeCajas(), Textos{"Proceso cancelado"});
    }
}

// The first opening in a run of the program shows nothing; later ones the texts of the last test.
TEST(DialogoHipotesisNula, VuelveConLosTextos) {
    EmpezarDialogo();
    EXPECT_TRUE(Procesar("CHN IR 1\nCHN MR 1 BETA(1) = 1\nCHN FR 1"));
    ValoresHipotesisNula v = AbrirHipotesisNula();
    EXPECT_EQ(v.numero, 1);
    EXPECT_EQ(v.visibles, 0);
    for (const std::string &texto : v.restricciones) EXPECT_EQ(texto, "");
    v.restricciones[0] = "beta (2) = 3";
    MostrarRestricciones(nullptr, v, "1");
    AceptarHipotesisNula(nullptr, v);
    EXPECT_EQ(Prueba.resultados.size(), 2u);
    EXPECT_EQ(AbrirHipotesisNula().restricciones[0], "BETA(2)=3");
    EXPECT_EQ(AbrirHipotesisNula().restricciones[1], "");
}

// Nothing of a field that is full is lost.
TEST(DialogoHipotesisNula, UnCampoLleno) {
    EmpezarDialogo();
    ValoresHipotesisNula v = AbrirHipotesisNula();
    MostrarRestricciones(nullptr, v, "1");
    v.restricciones[0] = "BETA(1)=" + std::string(80 - 10, '0') + "15";
    AceptarHipotesisNula(nullptr, v);
    EXPECT_EQ(TextosDeCajas(), Textos{});
    EXPECT_EQ(HipotesisNula.textosGuardados[0], v.restricciones[0]);
}

TEST(DialogoHipotesisNula, UnCampoEnBlanco) {
    EmpezarDialogo();
    ValoresHipotesisNula v = AbrirHipotesisNula();
    MostrarRestricciones(nullptr, v, "2");
    v.restricciones[0] = "BETA(1)=1";
    AceptarHipotesisNula(nullptr, v);
    EXPECT_EQ(TextosDeCajas(), Textos{"Introduzca datos"});
    EXPECT_TRUE(Prueba.resultados.empty());
}
