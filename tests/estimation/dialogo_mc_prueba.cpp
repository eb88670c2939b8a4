// What the dialogs of MC and MCP decide, without their windows.
#include "estimation/dialogo_mc.h"

#include "apoyo/datos_regresion.h"

#include <gtest/gtest.h>

namespace {

using Cajas = std::vector<CajaVista>;
using Textos = std::vector<std::string>;

CajaVista Aviso(const char *texto) {
    return {"Aviso", texto, IconoInformacion, BotonesAceptar};
}

ValoresMC Con(int metodo, const char *ecuacion, const char *ponderacion = "") {
    ValoresMC v;
    v.metodo = metodo;
    v.ecuacion = ecuacion;
    v.ponderacion = ponderacion;
    return v;
}

ValoresMC Pidiendo(std::initializer_list<OpcionesEstimacion> opciones, int metodo = OrdenMC) {
    ValoresMC v;
    v.metodo = metodo;
    v.opciones = {};
    for (const OpcionesEstimacion o : opciones) v.opciones[o] = true;
    return v;
}

class DialogoDeMC : public testing::Test {
protected:
    void SetUp() override {
        IniciarRegresion();
        DialogosEstimacion = {};
        EmpezarRegresion();
        Prueba = {};
    }
};

} // namespace

TEST_F(DialogoDeMC, LasListas) {
    EXPECT_EQ(ListaRetardos(), (Textos{"(-1)  ", "(-2)  ", "(-3)  ", "(-4)  ", "(-5)  ", "(-6)  "}));
    EXPECT_EQ(ListaRegresores(), (Textos{"Y", "X", "Z", "FALTA", "1 "}));
}

TEST_F(DialogoDeMC, LaEcuacionCreceHasta240) {
    std::string texto;
    for (const char *elemento : {"Y", "1 ", "X"}) texto = TextoConElemento(texto, elemento, AnadirRegresorMC);
    texto = TextoConElemento(texto, "(-1)  ", AnadirRetardoMC);
    EXPECT_EQ(texto, " Y 1 X(-1)  ");
    EXPECT_EQ(TextoConElemento(std::string(239, 'A'), "CODIGO78", AnadirRegresorMC).size(), 248u);
    EXPECT_EQ(TextoConElemento(std::string(240, 'A'), "X", AnadirRegresorMC).size(), 240u);
    EXPECT_EQ(TextoConElemento(std::string(239, 'A'), "(-1)  ", AnadirRetardoMC).size(), 245u);
    EXPECT_EQ(TextoConElemento(std::string(240, 'A'), "(-1)  ", AnadirRetardoMC).size(), 240u);
}

TEST_F(DialogoDeMC, LaSentencia) {
    ValoresMC v = Con(OrdenMC, "  Y 1 X ");
    EXPECT_EQ(SentenciaDeEstimacion(v), "MC Y 1 X");
    v.covarianza = CovarianzaHeterocedasticidad;
    EXPECT_EQ(SentenciaDeEstimacion(v), "MC (CH) Y 1 X");
    v.covarianza = CovarianzaAutocorrelacion;
    v.retardos = 3;
    EXPECT_EQ(SentenciaDeEstimacion(v), "MC (CA 3) Y 1 X");
    EXPECT_EQ(SentenciaDeEstimacion(Con(OrdenMC, "")), "MC ");
    EXPECT_EQ(SentenciaDeEstimacion(Con(OrdenMCP, "Y 1 X", " LN(X)/2 ")), "MCP ( LN(X)/2 ) Y 1 X");
}

TEST_F(DialogoDeMC, ComoSeAbre) {
    const ValoresMC primera = AbrirMC(OrdenMC);
    EXPECT_EQ(primera.metodo, OrdenMC);
    EXPECT_EQ(primera.ecuacion, "");
    EXPECT_EQ(primera.ponderacion, "");
    EXPECT_EQ(primera.covarianza, CovarianzaNormal);
    EXPECT_EQ(primera.opciones, (std::array<bool, NumOpcionesEstimacion>{true}));
    // The equation of a regression that was typed, too.
    ASSERT_TRUE(Procesar("MC Y 1 X"));
    EXPECT_EQ(AbrirMC(OrdenMC).ecuacion, "Y 1 X");
    EXPECT_EQ(AbrirMC(OrdenMC).covarianza, CovarianzaNormal);
    const ValoresMC otra = AbrirMC(OrdenMCP);
    EXPECT_EQ(otra.metodo, OrdenMCP);
    EXPECT_EQ(otra.ecuacion, "Y 1 X");
    UltimaRegresion.RegresionHecha = 0;
    EXPECT_EQ(AbrirMC(OrdenMC).ecuacion, "");
}

// The sample is that of the main window, and the statement is kept for the listings.
TEST_F(DialogoDeMC, OKEstima) {
    AbrirMC(OrdenMC);
    Muestra.InicioMuestra = 2;
    Muestra.FinMuestra = 17;
    AceptarMC(nullptr, Con(OrdenMC, " Y 1 X(-1)  "));
    EXPECT_EQ(Prueba.cajas, Cajas{});
    EXPECT_EQ(DialogosEstimacion.SentenciaMC, "MC Y 1 X(-1)");
    EXPECT_EQ(DialogosEstimacion.SentenciaMCP, "");
    EXPECT_EQ(UltimaRegresion.MetodoRegresion, OrdenMC);
    EXPECT_EQ(UltimaRegresion.PrimeraObsRegresion, 3);
    EXPECT_EQ(UltimaRegresion.UltimaObsRegresion, 17);
    AbrirMC(OrdenMC);
    EXPECT_EQ(DialogosEstimacion.SentenciaMC, "");

    Muestra.InicioMuestra = 0;
    Muestra.FinMuestra = 19;
    AceptarMC(nullptr, Con(OrdenMCP, "Y 1 X", "1 / X"));
    EXPECT_EQ(DialogosEstimacion.SentenciaMCP, "MCP ( 1 / X ) Y 1 X");
    EXPECT_EQ(UltimaRegresion.MetodoRegresion, OrdenMCP);
    AbrirMC(OrdenMC); // each dialog forgets its own
    EXPECT_EQ(DialogosEstimacion.SentenciaMCP, "MCP ( 1 / X ) Y 1 X");
    AbrirMC(OrdenMCP);
    EXPECT_EQ(DialogosEstimacion.SentenciaMCP, "");
}

TEST_F(DialogoDeMC, OKConFaltas) {
    // The engine has its say first.
    AceptarMC(nullptr, Con(OrdenMC, "NADA 1"));
    ASSERT_EQ(Prueba.cajas.size(), 2u);
    EXPECT_EQ(Prueba.cajas[0].texto, "Serie desconocida:[NADA]. Pto 2663");
    EXPECT_EQ(Prueba.cajas[1], Aviso("Secuencia de series no válida"));
    Prueba.cajas.clear();

    AceptarMC(nullptr, Con(OrdenMC, "   "));
    ASSERT_GE(Prueba.cajas.size(), 2u);
    EXPECT_EQ(Prueba.cajas.front(), Aviso("Introduzca ecuación"));
    EXPECT_EQ(Prueba.cajas.back(), Aviso("Secuencia de series no válida"));
    EXPECT_EQ(DialogosEstimacion.SentenciaMC, "MC ");
    Prueba.cajas.clear();

    UltimaRegresion.RegresionHecha = UltimaRegresion.DesdeDialogo = 0;
    for (const char *peso : {"", "   "}) {
        AceptarMC(nullptr, Con(OrdenMCP, "Y 1 X", peso));
        EXPECT_EQ(Prueba.cajas, Cajas{Aviso("Introduzca variable ponderación")});
        EXPECT_EQ(UltimaRegresion.RegresionHecha, 0);
        EXPECT_EQ(UltimaRegresion.DesdeDialogo, 0);
        EXPECT_EQ(DialogosEstimacion.SentenciaMCP, "");
        Prueba.cajas.clear();
    }
}

// A regression is noted before it runs, so that one that fails is noted too.
TEST_F(DialogoDeMC, LaRegresionSeAnota) {
    AbrirMC(OrdenMC);
    AceptarMC(nullptr, Con(OrdenMC, "NADA 1"));
    EXPECT_EQ(UltimaRegresion.RegresionHecha, 1);
    EXPECT_EQ(UltimaRegresion.DesdeDialogo, 1);
    AbrirMC(OrdenMCP);
    EXPECT_EQ(UltimaRegresion.DesdeDialogo, 0);
    EXPECT_EQ(UltimaRegresion.RegresionHecha, 1);
    ASSERT_TRUE(Procesar("MC Y 1 X"));
    EXPECT_EQ(UltimaRegresion.DesdeDialogo, 0);
}

TEST_F(DialogoDeMC, SinRegresionNadaQueVer) {
    for (const OpcionesEstimacion o :
         {OpcionCovarianza, OpcionValores, OpcionGraficoValores, OpcionGraficoResiduos, OpcionVarianza}) {
        SCOPED_TRACE(o);
        Prueba.cajas.clear();
        AceptarMC(nullptr, Pidiendo({o}));
        EXPECT_EQ(Prueba.cajas, Cajas{Aviso("Efectue primero una regresión")});
    }
    EXPECT_TRUE(Prueba.dialogos.empty());
    Prueba.cajas.clear();
    AceptarMC(nullptr, Pidiendo({}));
    EXPECT_TRUE(Prueba.cajas.empty());
}

TEST_F(DialogoDeMC, LosGraficos) {
    ASSERT_TRUE(Procesar("MC Y 1 X"));
    AceptarMC(nullptr, Pidiendo({OpcionGraficoValores}));
    AceptarMC(nullptr, Pidiendo({OpcionGraficoResiduos}));
    // Of several only the first runs.
    AceptarMC(nullptr, Pidiendo({OpcionGraficoValores, OpcionGraficoResiduos, OpcionVarianza}));
    AceptarMC(nullptr, Pidiendo({OpcionGraficoResiduos, OpcionVarianza}));
    const Dialogo pedidos[] = {Dialogo::GraficoValores, Dialogo::GraficoResiduos, Dialogo::GraficoValores,
                               Dialogo::GraficoResiduos};
    ASSERT_EQ(Prueba.dialogos.size(), std::size(pedidos));
    for (std::size_t i = 0; i < std::size(pedidos); ++i) EXPECT_EQ(Prueba.dialogos[i].cual, pedidos[i]) << i;
    EXPECT_TRUE(Prueba.cajas.empty());
    EXPECT_TRUE(Prueba.resultados.empty());
}

TEST_F(DialogoDeMC, LaVarianzaPideTerminoIndependiente) {
    for (const char *sentencia : {"MC Y X Z", "MC Y X(-1)"}) {
        SCOPED_TRACE(sentencia);
        ASSERT_TRUE(Procesar(sentencia));
        Prueba.cajas.clear();
        AceptarMC(nullptr, Pidiendo({OpcionVarianza}));
        EXPECT_EQ(Prueba.cajas, Cajas{Aviso("Introduzca el término independiente")});
    }
    EXPECT_TRUE(Prueba.resultados.empty());
}

// One after the other: the window is told by its content, the residuals by the code, the heading by the dialog's statement.
TEST_F(DialogoDeMC, LosListados) {
    static constexpr OpcionesEstimacion Pedidos[] = {OpcionCovarianza, OpcionValores, OpcionVarianza};
    AbrirMC(OrdenMC);
    AceptarMC(nullptr, Con(OrdenMC, "Y 1 X Z"));
    for (std::size_t i = 0; i < std::size(Pedidos); ++i) {
        Prueba.resultados.clear();
        AceptarMC(nullptr, Pidiendo({Pedidos[i], OpcionVarianza}));
        ASSERT_EQ(Prueba.resultados.size(), 1u);
        EXPECT_EQ(Prueba.resultados[0].contenido, static_cast<int>(i) + 1);
        EXPECT_EQ(Prueba.resultados[0].clase, OrdenMC);
    }
    EXPECT_TRUE(Prueba.cajas.empty());

    // The heading of the values: this dialog's statement, else that of the regression.
    const auto encabezamiento = [](int metodo) {
        Prueba.resultados.clear();
        AceptarMC(nullptr, Pidiendo({OpcionValores}, metodo));
        return Prueba.resultados.empty() ? "" : Prueba.resultados[0].fijas.at(0).second;
    };
    EXPECT_EQ(encabezamiento(OrdenMC), "MC Y 1 X Z");
    ASSERT_TRUE(Procesar("mc y 1 z"));
    EXPECT_EQ(encabezamiento(OrdenMC), "MC Y 1 X Z");
    AbrirMC(OrdenMC);
    EXPECT_EQ(encabezamiento(OrdenMC), "MC Y 1 Z");
    // The other dialog lists the residuals of a weighted regression, which there are none of.
    Prueba.cajas.clear();
    encabezamiento(OrdenMCP);
    EXPECT_EQ(TextosDeCajas(), Textos{"No existe la serie de residuos. Pto 1"});
}
