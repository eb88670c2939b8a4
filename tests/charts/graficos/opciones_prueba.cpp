// What the dialogs of charts decide.
#include "charts/graficos/graficos.h"

#include "charts/graficos/opciones_dialogos.h"
#include "charts/graficos/series_grafico.h"
#include "store/archivo.h"

namespace {

using Ordenes = std::vector<std::string>;

TEST(IntervalosYTitulos, LoQueMuestraAlAbrir) {
    OpcionesGrafico o = OpcionesPorDefecto(7);
    ValoresIntervalos v = ValoresDeIntervalos(o);
    EXPECT_EQ(v.intervalosX, "7");
    EXPECT_EQ(v.intervalosY, "10");
    EXPECT_TRUE(v.minYDefecto && v.maxYDefecto && v.minXDefecto && v.maxXDefecto);
    EXPECT_EQ(v.minY, " 0");
    EXPECT_EQ(v.maxY, " 0");
    EXPECT_EQ(v.minX, "0");
    EXPECT_EQ(v.maxX, "0");
    EXPECT_TRUE(v.verLeyenda && v.leyendaConMarco);
    EXPECT_EQ(v.titulo + v.tituloX + v.tituloY, "");
    o.maxY = 123.6;
    o.minY = -1.2;
    o.minYDefecto = o.maxXDefecto = o.leyendaConMarco = 0;
    o.titulo = "T";
    o.tituloX = "X";
    o.tituloY = "Y";
    v = ValoresDeIntervalos(o);
    EXPECT_EQ(v.maxY, "124");
    EXPECT_EQ(v.minY, "-1");
    EXPECT_FALSE(v.minYDefecto || v.maxXDefecto || v.leyendaConMarco);
    EXPECT_EQ(v.titulo + v.tituloX + v.tituloY, "TXY");
}

TEST(IntervalosYTitulos, LoQueGuarda) {
    OpcionesGrafico o = OpcionesPorDefecto(20);
    ValoresIntervalos v = ValoresDeIntervalos(o);
    v.titulo = std::string(60, 'T');
    v.tituloX = "Eje X   ";
    v.tituloY = std::string(30, 'Y');
    v.intervalosX = "5";
    v.intervalosY = " 7x";
    v.minYDefecto = v.maxXDefecto = v.verLeyenda = false;
    v.minY = "-1.5";
    v.maxY = "1234567890123456789"; // fifteen characters of it
    v.minX = "1973.01";
    v.maxX = "2000";
    AceptarIntervalos(o, v);
    EXPECT_EQ(o.titulo, std::string(50, 'T'));
    EXPECT_EQ(o.tituloX, "Eje X");
    EXPECT_EQ(o.tituloY, std::string(20, 'Y'));
    EXPECT_EQ(o.intervalosX, 5);
    EXPECT_EQ(o.intervalosY, 7);
    EXPECT_EQ(o.minYDefecto, 0);
    EXPECT_EQ(o.maxYDefecto, 1);
    EXPECT_EQ(o.minXDefecto, 1);
    EXPECT_EQ(o.maxXDefecto, 0);
    EXPECT_EQ(o.verLeyenda, 0);
    EXPECT_EQ(o.leyendaConMarco, 1);
    EXPECT_EQ(o.minY, -1.5);
    EXPECT_EQ(o.maxY, 123456789012345);
    EXPECT_EQ(o.minXTexto, "1973.01" + std::string(23, ' '));
    EXPECT_EQ(o.maxXTexto, "2000" + std::string(26, ' '));
}

struct TituloDeDialogo {
    ClasesDeGrafico clase;
    const char *titulo;
};
class OpcionesTitulo : public testing::TestWithParam<TituloDeDialogo> {};
TEST_P(OpcionesTitulo, DeCadaClase) {
    EXPECT_EQ(Utf8De1252(TituloDeOpciones(GetParam().clase, "Formas y colores")), GetParam().titulo);
}
INSTANTIATE_TEST_SUITE_P(
    Casos, OpcionesTitulo,
    testing::Values(TituloDeDialogo{GraficoSeries, "Gráficos temporales: Formas y colores"},
                    TituloDeDialogo{GraficoDispersion, "Gráficos de dispersión: Formas y colores"},
                    TituloDeDialogo{GraficoResiduos, "Gráfico de los residuos: Formas y colores"},
                    TituloDeDialogo{GraficoPrediccion, "Diagrama predicción-observación: Formas y colores"}));

TEST(FormasYColores, LosBotonesSi) {
    EmpezarPrueba();
    OpcionesGrafico o = OpcionesPorDefecto(20);
    EXPECT_TRUE(AplicarColor(nullptr, o, 3, 7));
    EXPECT_TRUE(AplicarGrosor(nullptr, o, 99, 1));
    EXPECT_TRUE(AplicarTrazo(nullptr, o, 0, 2));
    EXPECT_EQ(o.color[3], 7);
    EXPECT_EQ(o.color[2], 2);
    EXPECT_EQ(o.grosor[99], 1);
    EXPECT_EQ(o.trazo[0], 2);
    EXPECT_TRUE(AplicarColor(nullptr, o, 3, ColorPorDefecto)); // stays as it stands
    EXPECT_EQ(o.color[3], 7);
    EXPECT_TRUE(Prueba.cajas.empty());
    for (const int lugar : {-1, 100}) {
        EXPECT_FALSE(AplicarColor(nullptr, o, lugar, 1));
        EXPECT_FALSE(AplicarColor(nullptr, o, lugar, ColorPorDefecto));
        EXPECT_FALSE(AplicarGrosor(nullptr, o, lugar, 1));
        EXPECT_FALSE(AplicarTrazo(nullptr, o, lugar, 1));
    }
    ASSERT_EQ(Prueba.cajas.size(), 8U);
    for (const CajaVista &c : Prueba.cajas)
        EXPECT_EQ(
            c, (CajaVista{"Aviso", "Error al Crear La Lista de Series", IconoInformacion, BotonesAceptar}));
}

// ----- The choosers

struct Eleccion : testing::Test {
    void SetUp() override {
        EmpezarConDatos(TipoAnual, "1990#1993");
        PonerSerie("X", {1, 2, 4, 3});
        PonerSerie("Y", {10, 20, 40, 30});
    }
    EstadoSeleccion elegidas = {SeleccionDeSeries, {}, {"Y", "X"}};
};

TEST_F(Eleccion, Temporales) {
    OpcionesDeSeries.titulo = "de antes";
    ASSERT_TRUE(IniciarEleccionDeSeries(nullptr, GraficosTemporales, 0, 3));
    EXPECT_EQ(OpcionesDeSeries.titulo, ""); // each door resets the options
    EXPECT_EQ(OpcionesDeSeries.intervalosX, 4);
    EXPECT_EQ(OpcionesDeSeries.forma, FormaLineas);
    OpcionesDeSeries.forma = FormaBarras; // what the option dialogs set lives on to the chart
    Prueba.enGrafico = [](Grafico &g) {
        EXPECT_EQ(g.clase, GraficoSeries);
        EXPECT_EQ(g.opciones.forma, FormaBarras);
        EXPECT_EQ(g.series.at(0).nombre + g.series.at(1).nombre, "YX");
    };
    EXPECT_EQ(AceptarEleccionDeSeries(nullptr, GraficosTemporales, elegidas, "NADA", 0, 3), 1);
    EXPECT_EQ(AceptarEleccionDeSeries(nullptr, GraficosTemporales, elegidas, "", 0, 3), 1);
    EXPECT_EQ(Prueba.graficos.size(), 2U);
}

TEST_F(Eleccion, Dispersion) {
    ASSERT_TRUE(IniciarEleccionDeSeries(nullptr, GraficosDeDispersion, 0, 3));
    EXPECT_EQ(OpcionesDeSeries.forma, FormaSimbolos);
    Prueba.enGrafico = [](Grafico &g) {
        EXPECT_EQ(g.clase, GraficoDispersion);
        EXPECT_EQ(g.ejeX, (std::vector<double>{1, 2, 4, 3, 0}));
    };
    EXPECT_EQ(AceptarEleccionDeSeries(nullptr, GraficosDeDispersion, elegidas, " x ", 0, 3), 1);
    EXPECT_EQ(Prueba.graficos.size(), 1U);
}

struct EleccionNegada {
    std::vector<std::string> series;
    const char *codigoX, *texto;
};
class EleccionAviso : public Eleccion, public testing::WithParamInterface<EleccionNegada> {};
TEST_P(EleccionAviso, Caja) {
    elegidas.elegidas = GetParam().series;
    ASSERT_TRUE(IniciarEleccionDeSeries(nullptr, GraficosDeDispersion, 0, 3));
    EXPECT_EQ(AceptarEleccionDeSeries(nullptr, GraficosDeDispersion, elegidas, GetParam().codigoX, 0, 3), 0);
    EXPECT_EQ(ImprimirEleccionDeSeries(nullptr, GraficosDeDispersion, elegidas, GetParam().codigoX, 0, 3), 0);
    EXPECT_EQ(TextosDeCajas(), (Ordenes{GetParam().texto, GetParam().texto}));
    EXPECT_EQ(Prueba.cajas.front().titulo, "Aviso");
    EXPECT_TRUE(Prueba.graficos.empty() && Prueba.trabajos.empty());
}
INSTANTIATE_TEST_SUITE_P(Casos, EleccionAviso,
                         testing::Values(EleccionNegada{{"X"}, "NADA", "Serie no existe [NADA]"},
                                         EleccionNegada{{"X"}, "", "Serie no existe []"},
                                         EleccionNegada{{"X"}, "   ", "Serie no existe []"},
                                         // A series that was deleted after it was chosen.
                                         EleccionNegada{{"X", "IDA"}, "X", "Serie no existe [IDA]"},
                                         EleccionNegada{
                                             {}, "X", "No se ha introducido ninguna serie válida"}));

TEST_F(Eleccion, MuestraDemasiadoLarga) {
    EXPECT_FALSE(IniciarEleccionDeSeries(nullptr, GraficosTemporales, 0, 100000));
    EXPECT_EQ(TextosDeCajas(), Ordenes{"Excesivo número de datos para generar el gráfico"});
    EXPECT_TRUE(IniciarEleccionDeSeries(nullptr, GraficosTemporales, 0, 3999));
}

} // namespace
