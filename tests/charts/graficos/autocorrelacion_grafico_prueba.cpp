// The chart of autocorrelations. On 1024 x 768 with cells of 8 x 16 the plot is (40, 96) to (984, 672) before it narrows; bars
// are 4 wide, and 288 units stand for 1.
#include "charts/graficos/graficos.h"

#include "charts/graficos/clases.h"
#include "charts/graficos/disposicion.h"

#include <algorithm>

namespace {

using Ordenes = std::vector<std::string>;

Grafico Autocorrelaciones(std::vector<double> coeficientes, int observaciones) {
    Grafico g = GraficoNuevo(GraficoAutocorrelacion, observaciones);
    DatosAutocorrelacion &a = g.autocorrelacion;
    a.retardos = static_cast<int>(coeficientes.size());
    coeficientes.insert(coeficientes.begin(), 0);
    a.coeficientes = std::move(coeficientes);
    a.observaciones = observaciones;
    a.bandaUniforme = 0.25;
    a.tipoBanda = GraficoConBandaUniforme;
    a.marcas = GraficoMarcasAlMedio;
    return g;
}

TEST(GraficoAutocorrelaciones, Entero) {
    EmpezarPrueba();
    Grafico g = Autocorrelaciones({0.5, -0.25}, 10);
    g.autocorrelacion.conTitulo = 1;
    g.autocorrelacion.titulo = "FAC"; // (1024 - 24) / 2
    AbrirVentanaGrafico(nullptr, g);
    EXPECT_EQ(Prueba.graficos.at(0).titulo, "Representación gráfica");
    // Two bars: (944 - 8) / 2 = 468 apart is too much; 32 is left, and (944 - 2 * 2 * 36) / 2 = 400 go from each side.
    const Ordenes esperado = {
        "linea 440,384 584,384 0,0,0",
        "linea 440,96 440,672 0,0,0",
        "texto 400,80    1",
        "texto 400,240  0.5",
        "texto 400,384    0",
        "texto 400,528 -0.5",
        "texto 400,656   -1",
        "linea 432,96 440,96 0,0,0",
        "linea 432,240 440,240 0,0,0",
        "linea 432,528 440,528 0,0,0",
        "linea 432,672 440,672 0,0,0",
        "linea 440,312 584,312 0,0,0 p",
        "linea 440,456 584,456 0,0,0 p",
        "caja 448,240 452,384 0,0,0 relleno 0,0,0",
        "caja 484,384 488,456 0,0,0 relleno 0,0,0",
        "texto 500,48 FAC",
    };
    EXPECT_EQ(Dibujo(), esperado);
    g.autocorrelacion.tituloAbajo = 1;
    EXPECT_EQ(Redibujado(g).back(), "texto 500,720 FAC");
    g.autocorrelacion.conTitulo = 0;
    EXPECT_EQ(Redibujado(g).size(), esperado.size() - 1);
    EXPECT_EQ(Utf8De1252(TablaDeGrafico(g)), "Retardo\tCoeficiente\n1\t0.5\n2\t-0.25\n");
}

TEST(GraficoAutocorrelaciones, GraficoConBandaArma) {
    EmpezarPrueba();
    Grafico g = Autocorrelaciones({0.5, -0.25, 0}, 10);
    g.autocorrelacion.tipoBanda = GraficoConBandaArma;
    g.autocorrelacion.desviaciones = {0, 0.2, 0.3, 0.3};
    // Three bars: (944 - 6 * 36) / 2 = 364 from each side. 0.2 is 57.6 units, 0.3 is 86.4.
    EXPECT_EQ(Solo(Redibujado(g), "linea", " p"),
              (Ordenes{"linea 412,441 448,470 0,0,0 p", "linea 412,326 448,297 0,0,0 p",
                       "linea 448,470 484,470 0,0,0 p", "linea 448,297 484,297 0,0,0 p"}));
    EXPECT_EQ(Utf8De1252(TablaDeGrafico(g)),
              "Retardo\tCoeficiente\tBanda\n1\t0.5\t0.20000000000000001\n2\t-0.25\t0.29999999999999999\n"
              "3\t0\t0.29999999999999999\n");
    g.autocorrelacion.tipoBanda = GraficoSinBanda;
    EXPECT_TRUE(Solo(Redibujado(g), "linea", " p").empty());
}

struct Numeracion {
    MarcasDeGrafico marcas;
    Ordenes numeros;
};
class GraficoNumeros : public testing::TestWithParam<Numeracion> {};
TEST_P(GraficoNumeros, CadaCinco) {
    EmpezarPrueba();
    // Twelve bars: (944 - 24 * 36) / 2 = 40 from each side, the first at 88, 36 from one to the next.
    Grafico g = Autocorrelaciones(std::vector<double>(12, 0.1), 100);
    g.autocorrelacion.marcas = GetParam().marcas;
    Ordenes numeros = Solo(Redibujado(g), "texto 232,");
    for (const std::string &n : Solo(Redibujado(g), "texto 412,")) numeros.push_back(n);
    EXPECT_EQ(numeros, GetParam().numeros);
}
INSTANTIATE_TEST_SUITE_P(
    Casos, GraficoNumeros,
    testing::Values(Numeracion{GraficoMarcasAlMedio, {"texto 232,384 5", "texto 412,384 10"}},
                    Numeracion{GraficoMarcasAbajo, {"texto 232,672 5", "texto 412,672 10"}},
                    Numeracion{GraficoSinMarcas, {}}));

// Lags, rows, and the bars that are drawn: how many, and where the first and the last begin.
struct Barras {
    int retardos, observaciones;
    std::size_t numero;
    const char *primera, *ultima;
};
class GraficoBarras : public testing::TestWithParam<Barras> {};
TEST_P(GraficoBarras, Caben) {
    EmpezarPrueba();
    Grafico g = Autocorrelaciones(
        std::vector<double>(static_cast<std::size_t>(std::max(GetParam().retardos, 0)), 0.5),
        GetParam().observaciones);
    g.autocorrelacion.retardos = GetParam().retardos;
    const Ordenes cajas = Solo(Redibujado(g), "caja");
    ASSERT_EQ(cajas.size(), GetParam().numero);
    if (cajas.empty()) return;
    EXPECT_EQ(cajas.front().substr(0, cajas.front().find(',')), GetParam().primera);
    EXPECT_EQ(cajas.back().substr(0, cajas.back().find(',')), GetParam().ultima);
}
INSTANTIATE_TEST_SUITE_P(
    Casos, GraficoBarras,
    testing::Values(
        Barras{0, 10, 0, "", ""}, Barras{-3, 10, 0, "", ""},
        // Room for one bar a lag, up to the size of the sample: (944 - 1 * 2 * 36) / 2 = 436 from each side, or with five
        // (944 - 5 * 2 * 36) / 2 = 292.
        Barras{5, 1, 1, "caja 484", "caja 484"}, Barras{9, 5, 5, "caja 340", "caja 484"},
        Barras{5, 5, 5, "caja 340", "caja 484"},
        // (944 - 40 * 4) / 40 = 19 and 4 of the bar.
        Barras{40, 100, 40, "caja 48", "caja 945"},
        // 16 is the least, and the 47th bar would stand at 48 + 46 * 20 = 968, the 48th behind the plot.
        Barras{90, 100, 47, "caja 48", "caja 968"}, Barras{900, 2000, 47, "caja 48", "caja 968"}));

TEST(GraficoAutocorrelaciones, LoQueNoEsNumero) {
    EmpezarPrueba();
    Grafico g = Autocorrelaciones({Nada, 0.5, std::numeric_limits<double>::infinity()}, 10);
    EXPECT_EQ(Solo(Redibujado(g), "caja").size(), 1U);
    EXPECT_NE(g.errorInterno, "");
    g.autocorrelacion.tipoBanda = GraficoConBandaArma; // without its deviations
    Redibujado(g);
    Redibujado(g, 0, 0);
}

// Two bars, one of them above the plot: 96 + 288 - 1.5 * 288 = -48. It is left out.
TEST(GraficoAutocorrelaciones, UnaBarraFueraDelGrafico) {
    EmpezarPrueba();
    Grafico g = Autocorrelaciones({1.5, -0.25, -2}, 10);
    AbrirVentanaGrafico(nullptr, g);
    const std::vector<CajaVista> cajas = {{"Aviso de error interno",
                                           "sup 96 alto 288.000000 filaini 384 serie[n] 1.500000 n 1 yy -48",
                                           IconoInformacion, BotonesAceptar}};
    EXPECT_EQ(Prueba.cajas, cajas);
    EXPECT_EQ(Solo(Dibujo(), "caja"), (Ordenes{"caja 448,384 452,456 0,0,0 relleno 0,0,0"}));
    g.autocorrelacion.coeficientes = {0, -1, 1, 0};
    Redibujado(g);
    EXPECT_EQ(g.errorInterno, "") << "the edges belong to the plot";
    // On paper the plot is (0, 350) to (2480, 2510).
    Prueba.cajas.clear();
    g.autocorrelacion.coeficientes = {0, 0.5, -1.001, 0};
    ImprimirVentanaGrafico(nullptr, g);
    ASSERT_EQ(Prueba.cajas.size(), 1U);
    EXPECT_EQ(Prueba.cajas[0].texto, "sup 350 alto 1080.000000 filaini 1430 serie[n] -1.001000 n 2 yy 2511");
}

// No layout of the program's own brings a bar there: these step to the left.
TEST(GraficoAutocorrelaciones, UnaBarraAlLadoDelGrafico) {
    EmpezarPrueba();
    const Grafico g = Autocorrelaciones({0.5, 0.5, 0.5}, 2);
    std::vector<OrdenDibujo> ordenes;
    Superficie s = SuperficieGrabadora(ordenes, 1024, 768, 8, 16);
    DisposicionGrafico d = DisponerEnVentana(g, s);
    d.area = {40, 96, 984, 672};
    d.separa = -20;
    std::string error;
    DibujarGraficoAutocorrelacion({s, g, d, error});
    EXPECT_EQ(error, "coluini 32 izq 40 n 2 minimo 2 separa -20 ancho 4 inipon 48");
    EXPECT_EQ(Solo(EnLetra(ordenes), "caja"), (Ordenes{"caja 48,240 52,384 0,0,0 relleno 0,0,0"}));
}

// In a window lower than the margins the edges of the plot change places; no bar is wrong for that.
TEST(GraficoAutocorrelaciones, UnaVentanaMuyBaja) {
    EmpezarPrueba();
    Grafico g = Autocorrelaciones({1, -1, 0.5}, 10);
    for (const int alto : {0, 50, 150, 191, 192, 193, 200}) {
        Redibujado(g, 400, alto);
        EXPECT_EQ(g.errorInterno, "") << alto;
    }
}

TEST(GraficoAutocorrelaciones, LaTablaLlegaHastaLaMuestra) {
    Grafico g = Autocorrelaciones({0.5, -0.25, 0, 0}, 2);
    EXPECT_EQ(Utf8De1252(TablaDeGrafico(g)), "Retardo\tCoeficiente\n1\t0.5\n2\t-0.25\n");
}

} // namespace
