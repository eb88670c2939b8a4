// Charts on paper: 2480 x 3508 units, cells of 31 x 60. What the window shows keeps its whole cells.
#include "charts/graficos/graficos.h"

#include "charts/graficos/regresion_grafico.h"
#include "charts/graficos/series_grafico.h"
#include "estimation/regresion.h"

namespace {

using Ordenes = std::vector<std::string>;

Ordenes EnPapel() {
    EXPECT_EQ(Prueba.trabajos.size(), 1U);
    if (Prueba.trabajos.empty() || Prueba.trabajos[0].dibujo.empty()) return {};
    EXPECT_EQ(Prueba.trabajos[0].documento, "Imprime1: Imprimiendo");
    return EnLetra(Prueba.trabajos[0].dibujo.front().ordenes);
}

struct Papel : testing::Test {
    void SetUp() override {
        EmpezarConDatos(TipoAnual, "1990#1993");
        PonerSerie("X", {1, 2, 4, 3});
    }
};

TEST_F(Papel, LoQueCabeSeCentra) {
    Prueba.enGrafico = [](Grafico &g) {
        g.opciones.titulo = "Titulo";
        // A window of 640 x 480: the plot is 50 cells wide and 22 high.
        Redibujado(g, 640, 480);
        EXPECT_EQ(ImprimirVentanaGrafico(nullptr, g), 0);
    };
    ASSERT_TRUE(Sentencia("GRAF X"));
    EXPECT_EQ(Prueba.trabajos.at(0).titulo, "Gráfico de series");
    const Ordenes d = EnPapel();
    // (2480 - 1550) / 2 = 465 is 15 cells; a tenth of 3508 is 350.
    EXPECT_EQ(d.at(0), "linea 465,1670 2015,1670 0,0,0");
    EXPECT_EQ(d.at(1), "linea 465,350 465,1670 0,0,0");
    // Steps of (1550 - 31) / 4 = 379.75 units.
    EXPECT_EQ(Solo(d, "texto", ",1700 "), (Ordenes{"texto 496,1700 90", "texto 875,1700 91",
                                                   "texto 1255,1700 92", "texto 1635,1700 93"}));
    EXPECT_EQ(Solo(d, "linea 496,1", "0,0,0"), (Ordenes{"linea 496,1655 496,1685 0,0,0"}));
    // The legend is 32 cells right of the plot's corner and 2 below it, 21 wide and 4 high. The title: 22 right, 3 above.
    EXPECT_EQ(Solo(d, "caja"), (Ordenes{"caja 1457,470 2108,710 0,0,0"}));
    EXPECT_EQ(d.back(), "texto 1147,170 Titulo");
}

TEST_F(Papel, LoQueNoCabeSeAcota) {
    Prueba.enGrafico = [](Grafico &g) { EXPECT_EQ(ImprimirVentanaGrafico(nullptr, g), 0); };
    ASSERT_TRUE(Sentencia("GRAF X"));
    const Ordenes d = EnPapel();
    // 98 cells don't fit: from the edge, as far as the paper goes. So would the legend lie behind it.
    EXPECT_EQ(d.at(0), "linea 0,2750 2480,2750 0,0,0");
    EXPECT_EQ(Solo(d, "caja"), (Ordenes{"caja 1829,470 2480,710 0,0,0"}));
    EXPECT_EQ(Solo(d, "texto 31,2750"), (Ordenes{"texto 31,2750 1.00"})); // held one cell from the edge
}

TEST_F(Papel, LaLeyendaMovidaGuardaSuLugar) {
    Prueba.enGrafico = [](Grafico &g) {
        g.arrastre.movida[ParteLeyenda] = true;
        g.disposicion.parte[ParteLeyenda] = {136, 112, 217, 180}; // 2 and 3 cells in, 10 wide and 4 high
        Redibujado(g, 640, 480);
        ImprimirVentanaGrafico(nullptr, g);
    };
    ASSERT_TRUE(Sentencia("GRAF X"));
    EXPECT_EQ(Solo(EnPapel(), "caja"), (Ordenes{"caja 527,530 837,770 0,0,0"}));
}

TEST_F(Papel, LoArrastradoFueraDelTrazadoGuardaSuLugar) {
    Prueba.enGrafico = [](Grafico &g) {
        g.opciones.titulo = "Titulo";
        g.opciones.tituloX = "Eje";
        g.opciones.tituloY = "Y";
        Redibujado(g, 640, 480); // the plot is (120, 64) to (520, 416)
        g.arrastre.movida.fill(true);
        g.disposicion.parte[ParteLeyenda] = {40, 432, 121, 500};  // 10 cells left of it, 23 rows down
        g.disposicion.parte[ParteTitulo] = {560, 32, 608, 64};    // 55 cells right, 2 up
        g.disposicion.parte[ParteTituloX] = {24, 440, 48, 462};   // 12 cells left, 23 down
        g.disposicion.parte[ParteTituloY] = {543, 200, 559, 216}; // 52 cells right, 8 down
        Redibujado(g, 640, 480);
        ImprimirVentanaGrafico(nullptr, g);
    };
    ASSERT_TRUE(Sentencia("GRAF X"));
    const Ordenes d = EnPapel();
    EXPECT_EQ(Solo(d, "caja"), (Ordenes{"caja 155,1730 465,1970 0,0,0"}));
    EXPECT_EQ(Ordenes(d.end() - 3, d.end()),
              (Ordenes{"texto 2170,230 Titulo", "texto 2077,830 Y", "texto 93,1730 Eje"}));
}

TEST_F(Papel, SinVentanaValeLaDe640Por480) {
    ASSERT_TRUE(IniciarEleccionDeSeries(nullptr, GraficosTemporales, 0, 3));
    EXPECT_EQ(ImprimirEleccionDeSeries(nullptr, GraficosTemporales, {SeleccionDeSeries, {}, {"X"}}, "", 0, 3),
              1);
    EXPECT_TRUE(Prueba.graficos.empty());
    EXPECT_EQ(EnPapel().at(0), "linea 465,1670 2015,1670 0,0,0");
}

TEST_F(Papel, SinImpresora) {
    Prueba.fallaPaso[PasoAbrir] = 1;
    Prueba.enGrafico = [](Grafico &g) { EXPECT_EQ(ImprimirVentanaGrafico(nullptr, g), 1); };
    ASSERT_TRUE(Sentencia("GRAF X"));
    EXPECT_TRUE(Prueba.cajas.empty());
}

struct TituloImpreso {
    ClasesDeGrafico clase;
    const char *titulo;
    int impresion;
};
class PapelTitulo : public Papel, public testing::WithParamInterface<TituloImpreso> {};
TEST_P(PapelTitulo, DeCadaClase) {
    Grafico g = GraficoNuevo(GetParam().clase, 4);
    g.histograma.limites = {1, 2};
    g.histograma.frecuencias = {1};
    CalcularLimites(g);
    EXPECT_EQ(DescripcionDe(g.clase).impresion, GetParam().impresion);
    EXPECT_EQ(ImprimirVentanaGrafico(nullptr, g), 0);
    EXPECT_EQ(Prueba.trabajos.at(0).titulo, GetParam().titulo);
}
INSTANTIATE_TEST_SUITE_P(
    Casos, PapelTitulo,
    testing::Values(TituloImpreso{GraficoSeries, "Gráfico de series", 11},
                    TituloImpreso{GraficoDispersion, "Gráfico de series", 11},
                    TituloImpreso{GraficoResiduos, "Gráfico de los residuos", 15},
                    TituloImpreso{GraficoValores, "Gráfico de valores observados y estimados", 14},
                    TituloImpreso{GraficoPrediccion, "Diagrama predicción-observación", 22},
                    TituloImpreso{GraficoAutocorrelacion, "Coeficiente de Autocorrelación Estimada", 4},
                    TituloImpreso{GraficoHistograma, "Histograma", 8}));

TEST_F(Papel, LaFuncionParcialTieneSuTitulo) {
    Grafico g = GraficoNuevo(GraficoAutocorrelacion, 4);
    g.autocorrelacion.parcial = 1;
    EXPECT_EQ(ImprimirVentanaGrafico(nullptr, g), 0);
    EXPECT_EQ(Prueba.trabajos.at(0).titulo, "Coeficiente de Autocorrelación Parcial Estimada");
}

// Of all kinds only the diagram of predictions tells that it couldn't be printed.
TEST_F(Papel, FalloQueSeDice) {
    for (const ClasesDeGrafico clase : {GraficoSeries, GraficoResiduos, GraficoValores, GraficoPrediccion}) {
        Prueba = {};
        Prueba.fallaPaso[PasoPagina] = 1;
        EXPECT_EQ(ImprimirVentanaGrafico(nullptr, GraficoNuevo(clase, 4)), 1);
        if (clase == GraficoPrediccion) {
            EXPECT_EQ(Prueba.cajas.at(0), (CajaVista{"Aviso", "Ha habido un error en la impresión",
                                                     IconoInformacion, BotonesAceptar}));
        } else {
            EXPECT_TRUE(Prueba.cajas.empty());
        }
    }
}

TEST_F(Papel, Autocorrelaciones) {
    Grafico g = GraficoNuevo(GraficoAutocorrelacion, 100);
    DatosAutocorrelacion &a = g.autocorrelacion;
    a.retardos = 12;
    a.coeficientes.assign(13, 0.5);
    a.observaciones = 100;
    a.marcas = GraficoSinMarcas;
    Redibujado(g); // plot (80, 96) to (944, 672): 108 cells wide, 36 high, bars 4 cells apart
    EXPECT_EQ(ImprimirVentanaGrafico(nullptr, g), 0);
    const Ordenes d = EnPapel();
    EXPECT_EQ(d.at(0), "linea 0,1430 2480,1430 0,0,0 2"); // 350 + 36 * 60 / 2
    // Bars 15 wide, 124 + 15 apart; the numbers one row below the axis whatever the marks are.
    EXPECT_EQ(Solo(d, "caja").front(), "caja 31,890 46,1430 0,0,0 relleno 0,0,0");
    EXPECT_EQ(Solo(d, "caja").at(1), "caja 170,890 185,1430 0,0,0 relleno 0,0,0");
    EXPECT_EQ(Solo(d, "texto", ",1490 "), (Ordenes{"texto 587,1490 5", "texto 1282,1490 10"}));
}

// The title keeps its cells from the corner of the plot, though it was centred in the window: (640 - 24) / 2 = 308 is 25 cells
// behind the plot's 104, and 3 rows above it; below, 21 rows under its top.
TEST_F(Papel, ElTituloDeLasAutocorrelaciones) {
    Grafico g = GraficoNuevo(GraficoAutocorrelacion, 100);
    DatosAutocorrelacion &a = g.autocorrelacion;
    a.retardos = 6; // (560 - 6 * 2 * 36) / 2 = 64 from each side: 54 cells
    a.coeficientes.assign(7, 0.5);
    a.observaciones = 100;
    a.conTitulo = 1;
    a.titulo = "FAC";
    Redibujado(g, 640, 480);
    EXPECT_EQ(ImprimirVentanaGrafico(nullptr, g), 0);
    // (2480 - 54 * 31) / 2 = 403: 13 cells.
    EXPECT_EQ(EnPapel().at(0), "linea 403,890 2077,890 0,0,0 2");
    EXPECT_EQ(EnPapel().back(), "texto 1178,170 FAC");
    Prueba.trabajos.clear();
    a.tituloAbajo = 1;
    Redibujado(g, 640, 480);
    EXPECT_EQ(ImprimirVentanaGrafico(nullptr, g), 0);
    EXPECT_EQ(EnPapel().back(), "texto 1178,1610 FAC");
}

} // namespace
