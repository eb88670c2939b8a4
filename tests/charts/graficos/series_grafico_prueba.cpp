// GRAF: what it reads, and every operation of the charts that it opens. The client area is 1024 x 768, a cell 8 x 16: the
// plot runs from (120, 64) to (904, 704), the points over 776 x 624 of it.
#include "charts/graficos/graficos.h"

#include "charts/graficos/series_grafico.h"
#include "language/lote_sentencias.h"

namespace {

using Ordenes = std::vector<std::string>;

struct Graf : testing::Test {
    void SetUp() override {
        EmpezarConDatos(TipoAnual, "1990#1993");
        PonerSerie("X", {1, 2, 4, 3});
        PonerSerie("Y", {10, 20, 40, 30});
        PonerSerie("Z", {5, 5, 5, 5});
    }
};

TEST_F(Graf, LineasEnteras) {
    ASSERT_TRUE(Sentencia("GRAF X"));
    EXPECT_TRUE(Prueba.cajas.empty());
    EXPECT_EQ(Prueba.graficos.at(0).titulo, "Representación gráfica de series");
    // A step of 776 / 4 = 194 units; a tick each 0.3, 62.4 units apart.
    const Ordenes esperado = {
        "linea 120,704 904,704 0,0,0",
        "linea 120,64 120,704 0,0,0",
        "texto 128,712 90",
        "linea 128,700 128,708 0,0,0",
        "texto 322,712 91",
        "linea 322,700 322,708 0,0,0",
        "texto 516,712 92",
        "linea 516,700 516,708 0,0,0",
        "texto 710,712 93",
        "linea 710,700 710,708 0,0,0",
        "texto 80,704 1.00",
        "linea 112,704 120,704 0,0,0",
        "texto 80,641 1.30",
        "linea 112,641 120,641 0,0,0",
        "texto 80,579 1.60",
        "linea 112,579 120,579 0,0,0",
        "texto 80,516 1.90",
        "linea 112,516 120,516 0,0,0",
        "texto 80,454 2.20",
        "linea 112,454 120,454 0,0,0",
        "texto 80,392 2.50",
        "linea 112,392 120,392 0,0,0",
        "texto 80,329 2.80",
        "linea 112,329 120,329 0,0,0",
        "texto 80,267 3.10",
        "linea 112,267 120,267 0,0,0",
        "texto 80,204 3.40",
        "linea 112,204 120,204 0,0,0",
        "texto 80,142 3.70",
        "linea 112,142 120,142 0,0,0",
        "texto 80,80 4.00",
        "linea 112,80 120,80 0,0,0",
        "linea 128,704 322,496 255,0,0",
        "linea 322,496 516,80 255,0,0",
        "linea 516,80 710,288 255,0,0",
        "caja 760,96 928,160 0,0,0",
        "linea 768,120 808,120 255,0,0",
        "texto 816,112 X",
    };
    EXPECT_EQ(Dibujo(), esperado);
}

TEST_F(Graf, DispersionEntera) {
    ASSERT_TRUE(Sentencia("GRAF (X) Y INTERX 3 INTERY 2"));
    // X from 1 to 4 in 3 steps: the mark at 1 stands on the edge of the plot and isn't drawn. Y from 10 to 40. The symbol of
    // (1, 10) would touch the left edge.
    const Ordenes esperado = {
        "linea 120,704 904,704 0,0,0",
        "linea 120,64 120,704 0,0,0",
        "texto 378,712 2.00",
        "linea 378,700 378,708 0,0,0",
        "texto 637,712 3.00",
        "linea 637,700 637,708 0,0,0",
        "texto 896,712 4.00",
        "linea 896,700 896,708 0,0,0",
        "texto 72,704 10.00",
        "linea 112,704 120,704 0,0,0",
        "texto 72,392 25.00",
        "linea 112,392 120,392 0,0,0",
        "texto 72,80 40.00",
        "linea 112,80 120,80 0,0,0",
        "caja 378,496 382,500 255,0,0",
        "caja 896,80 900,84 255,0,0",
        "caja 637,288 641,292 255,0,0",
        "caja 760,96 928,160 0,0,0",
        "linea 768,120 808,120 255,0,0",
        "texto 816,112 Y",
    };
    EXPECT_EQ(Dibujo(), esperado);
}

struct Lectura {
    const char *sentencia;
    std::vector<std::string> series; // in the legend
    std::string ejeX;
    int forma;
};

class GrafLectura : public Graf, public testing::WithParamInterface<Lectura> {};

TEST_P(GrafLectura, Series) {
    std::vector<std::string> series;
    Prueba.enGrafico = [&](Grafico &g) {
        for (const SerieGrafico &s : g.series) series.push_back(s.nombre);
        EXPECT_EQ(g.opciones.ejeX, GetParam().ejeX);
        EXPECT_EQ(g.opciones.forma, GetParam().forma);
        EXPECT_EQ(g.clase, GetParam().ejeX.empty() ? GraficoSeries : GraficoDispersion);
    };
    EXPECT_TRUE(Sentencia(GetParam().sentencia));
    EXPECT_EQ(series, GetParam().series);
    EXPECT_EQ(Prueba.graficos.size(), 1U);
    EXPECT_TRUE(Prueba.cajas.empty());
}

INSTANTIATE_TEST_SUITE_P(Casos, GrafLectura,
                         testing::Values(Lectura{"GRAF X", {"X"}, "", FormaLineas},
                                         Lectura{"graf   y   x ", {"Y", "X"}, "", FormaLineas},
                                         Lectura{"GRAF (X) Y Z", {"Y", "Z"}, "X", FormaSimbolos},
                                         Lectura{"GRAF(X)Y", {"Y"}, "X", FormaSimbolos},
                                         Lectura{"GRAF X (Y) Z", {"X", "Z"}, "Y", FormaSimbolos},
                                         Lectura{"GRAF ( X ) Y", {"Y"}, "X", FormaSimbolos},
                                         Lectura{"GRAF (X Z) Y", {"Y"}, "Z", FormaSimbolos},
                                         Lectura{"GRAF (NADA) Y", {"Y"}, "", FormaLineas},
                                         Lectura{"GRAF () Y", {"Y"}, "", FormaLineas},
                                         Lectura{"GRAF X INTERVALOY 5 Y", {"X", "Y"}, "", FormaLineas},
                                         Lectura{"GRAF X NADA Y", {"X", "Y"}, "", FormaLineas},
                                         Lectura{"GRAF X X", {"X", "X"}, "", FormaLineas},
                                         // What stands against a word is part of it up to the closing sign.
                                         Lectura{"GRAF Y X(Z)", {"Y"}, "", FormaLineas},
                                         // The word behind a keyword is its value, whatever it names.
                                         Lectura{"GRAF X MINX Y Z", {"X", "Z"}, "", FormaLineas},
                                         Lectura{"GRAF X INTERY", {"X"}, "", FormaLineas}));

struct Aviso {
    const char *sentencia, *titulo, *texto;
    bool sigue; // the batch goes on
};

class GrafAviso : public Graf, public testing::WithParamInterface<Aviso> {};

TEST_P(GrafAviso, Caja) {
    EXPECT_EQ(Sentencia(GetParam().sentencia), GetParam().sigue);
    ASSERT_EQ(Prueba.cajas.size(), 1U);
    EXPECT_EQ(Prueba.cajas[0],
              (CajaVista{GetParam().titulo, GetParam().texto, IconoInformacion, BotonesAceptar}));
    EXPECT_TRUE(Prueba.graficos.empty());
}

INSTANTIATE_TEST_SUITE_P(
    Casos, GrafAviso,
    testing::Values(Aviso{"GRAF", "Aviso", "No se ha introducido ninguna serie válida", true},
                    Aviso{"GRAF NOSERIE", "Aviso", "No se ha introducido ninguna serie válida", true},
                    Aviso{"GRAF (X)", "Aviso", "No se ha introducido ninguna serie válida", true},
                    Aviso{"GRAF X(Y)", "Aviso", "No se ha introducido ninguna serie válida", true},
                    // The driver counts parentheses before any word is looked at.
                    Aviso{"GRAF (X Y", "Proceso cancelado", "Número inadecuado de paréntesis", false},
                    Aviso{"GRAF X )( Y", "Aviso", "No se ha cerrado el paréntesis", true},
                    Aviso{"GRAF )(", "Aviso", "No se ha cerrado el paréntesis", true}));

TEST_F(Graf, SinCerrarLlamadoDirectamente) {
    EXPECT_EQ(EjecutarGRAF(nullptr, "(X Y", 0, 3), 1);
    EXPECT_EQ(TextosDeCajas(), Ordenes{"No se ha cerrado el paréntesis"});
}

TEST_F(Graf, MuestraDemasiadoLarga) {
    EXPECT_EQ(EjecutarGRAF(nullptr, "X", 0, 4000), 1);
    EXPECT_EQ(Prueba.cajas.at(0), (CajaVista{"Aviso", "Excesivo número de datos para generar el gráfico",
                                             IconoInformacion, BotonesAceptar}));
    EXPECT_TRUE(Prueba.graficos.empty());
    Prueba = {};
    EXPECT_EQ(EjecutarGRAF(nullptr, "X", 0, 3999), 1);
    EXPECT_EQ(Prueba.graficos.size(), 1U);
}

TEST_F(Graf, SoloCienSeries) {
    std::string sentencia = "GRAF";
    for (int i = 0; i < 150; ++i) sentencia += " X";
    std::size_t numero = 0;
    Prueba.enGrafico = [&](Grafico &g) { numero = g.series.size(); };
    EXPECT_TRUE(Sentencia(sentencia));
    EXPECT_EQ(numero, 100U);
}

// ----- Keywords, limits and marks

// The limits that the Y axis shows, by its lowest and highest label, and how many labels it has.
struct EjeY {
    const char *sentencia;
    const char *minimo, *maximo;
    std::size_t marcas;
};

class GrafEjeY : public Graf, public testing::WithParamInterface<EjeY> {};

TEST_P(GrafEjeY, Marcas) {
    ASSERT_TRUE(Sentencia(GetParam().sentencia));
    Ordenes marcas;
    for (const OrdenDibujo &o : Prueba.graficos.at(0).ordenes)
        if (o.clase == OrdenTexto && o.x1 < 120) marcas.push_back(o.texto);
    ASSERT_EQ(marcas.size(), GetParam().marcas);
    if (marcas.empty()) return;
    EXPECT_EQ(marcas.front(), GetParam().minimo);
    EXPECT_EQ(marcas.back(), GetParam().maximo);
}

INSTANTIATE_TEST_SUITE_P(
    Casos, GrafEjeY,
    testing::Values(EjeY{"GRAF X", "1.00", "4.00", 11}, EjeY{"GRAF X Y", "1.00", "40.00", 11},
                    EjeY{"GRAF X INTERY 4 MAXY 100", "1.00", "100.00", 5},
                    EjeY{"GRAF MINY -5 X", "-5.00", "4.00", 11},
                    EjeY{"GRAF X MINY 2.5 MAXY 3", "2.50", "3.00", 11},
                    EjeY{"GRAF X INTERY 1", "1.00", "4.00", 3}, EjeY{"GRAF X INTERY 2", "1.00", "4.00", 3},
                    EjeY{"GRAF X INTERY -4", "", "", 0}, EjeY{"GRAF X INTERY -1", "", "", 0},
                    EjeY{"GRAF X INTERY 0", "", "", 0},
                    // A flat series, and limits that the user made equal, grow by 1.
                    EjeY{"GRAF Z", "5.00", "6.00", 11}, EjeY{"GRAF X MINY 7 MAXY 7", "7.00", "8.00", 11},
                    // Crossed limits have no marks.
                    EjeY{"GRAF X MINY 7 MAXY 6", "", "", 0}));

// Periods below the X axis.
struct EjeX {
    const char *sentencia;
    Ordenes rotulos;
};

class GrafEjeX : public Graf, public testing::WithParamInterface<EjeX> {};

TEST_P(GrafEjeX, Marcas) {
    ASSERT_TRUE(Sentencia(GetParam().sentencia));
    EXPECT_EQ(Rotulos(712), GetParam().rotulos);
}

INSTANTIATE_TEST_SUITE_P(
    Casos, GrafEjeX,
    testing::Values(EjeX{"GRAF X INTERX 4", {"90", "91", "92", "93"}},
                    EjeX{"GRAF X INTERX 3", {"90", "91", "92", "93"}}, // a stride of 4 / 3 = 1
                    EjeX{"GRAF X INTERX 2", {"90", "92"}}, EjeX{"GRAF X INTERX 1", {"90", "92"}},
                    EjeX{"GRAF X INTERX 0", {}}, EjeX{"GRAF X INTERX -3", {}},
                    EjeX{"GRAF X INTERX 2000000000", {"90", "91", "92", "93"}},
                    EjeX{"GRAF X MINX 1991", {"91", "92", "93"}},
                    EjeX{"GRAF X MAXX 1992", {"90", "91", "92"}},
                    EjeX{"GRAF X MINX 1991 MAXX 1992.0", {"91", "92"}}, // as a number, too
                    EjeX{"GRAF X MINX 1800 MAXX 2100", {"90", "91", "92", "93"}},
                    EjeX{"GRAF X MINX 1992 MAXX 1990", {"92", "93"}}));

TEST_F(Graf, LimitesDeLaY) {
    // They come from the whole sample, not from the periods charted: 2 stands a third of the way up from 1 to 4.
    Prueba.enGrafico = [](Grafico &g) {
        g.opciones.forma = FormaSimbolos;
        EXPECT_EQ(Solo(Redibujado(g), "caja", "255,0,0"), (Ordenes{"caja 128,496 132,500 255,0,0"}));
    };
    ASSERT_TRUE(Sentencia("GRAF X MINX 1991 MAXX 1991"));
    EXPECT_EQ(Rotulos(712), (Ordenes{"91"}));
}

TEST_F(Graf, ElUltimoDetrasDelPrimero) {
    // The last year of the sample is the first charted: the row behind it, which holds nothing, is the last.
    std::vector<double> vistos;
    Prueba.enGrafico = [&](Grafico &g) {
        EXPECT_EQ(g.limites.primera, 3);
        EXPECT_EQ(g.limites.ultima, 4);
        vistos = g.series.at(0).valores;
    };
    ASSERT_TRUE(Sentencia("GRAF X MINX 1993 MAXX 1990"));
    EXPECT_EQ(vistos, (std::vector<double>{1, 2, 4, 3, 0}));
}

TEST(GrafSinPeriodicidad, RotulosEnteros) {
    EmpezarConDatos(TipoSinPeriodicidad, "");
    PonerSerie("X", std::vector<double>(25, 1.5));
    ASSERT_TRUE(Sentencia("GRAF X"));
    // 10 intervals of 25 rows: a stride of 2.
    EXPECT_EQ(Rotulos(712),
              (Ordenes{"1", "3", "5", "7", "9", "11", "13", "15", "17", "19", "21", "23", "25"}));
}

TEST(GrafMensual, RotulosSinSiglo) {
    EmpezarConDatos(TipoMensual, "1973.01#1973.12");
    PonerSerie("X", std::vector<double>(12, 1));
    ASSERT_TRUE(Sentencia("GRAF X INTERX 3 MINX 1973.02"));
    EXPECT_EQ(Rotulos(712), (Ordenes{"73.02", "73.05", "73.08", "73.11"}));
}

// Of a file without a value beyond the first row the sample has no end: the chart goes to the last row.
TEST(GrafUnaFila, MuestraSinFin) {
    EmpezarConDatos(TipoAnual, "1990#1990");
    PonerSerie("X", {7});
    EXPECT_TRUE(Sentencia("GRAF X"));
    EXPECT_EQ(Rotulos(712), (Ordenes{"90", "91"}));
}

TEST(GrafUnaFila, DosIntervalos) {
    EmpezarConDatos(TipoAnual, "1990#1990");
    PonerSerie("X", {7});
    int intervalos = 0;
    Prueba.enGrafico = [&](Grafico &g) { intervalos = g.opciones.intervalosX; };
    EXPECT_EQ(EjecutarGRAF(nullptr, "X", 0, 0), 1);
    EXPECT_EQ(intervalos, 1);
    EXPECT_EQ(Rotulos(712), (Ordenes{"90"}));
    EXPECT_EQ(Solo(Dibujo(), "linea", "255,0,0"), (Ordenes{"linea 768,120 808,120 255,0,0"}));
}

TEST(GrafUnaFila, DosIntervalosDeLosValores) {
    EmpezarConDatos(TipoAnual, "1990#1990");
    PonerSerie("X", {7});
    PonerSerie("Y", {3});
    EXPECT_EQ(EjecutarGRAF(nullptr, "(X) Y", 0, 0), 1);
    // From 7, on the edge of the plot, to 8.
    EXPECT_EQ(Solo(Dibujo(), "texto", ",712 "), (Ordenes{"texto 508,712 7.50", "texto 896,712 8.00"}));
}

struct Decimales {
    int decimales;
    const char *maximo;
};
class GrafDecimales : public Graf, public testing::WithParamInterface<Decimales> {};
TEST_P(GrafDecimales, EnLosEjes) {
    Lote.DecimalesSalida = GetParam().decimales;
    ASSERT_TRUE(Sentencia("GRAF X"));
    EXPECT_EQ(Rotulos(80), (Ordenes{GetParam().maximo}));
}
INSTANTIATE_TEST_SUITE_P(Casos, GrafDecimales,
                         testing::Values(Decimales{0, "4"}, Decimales{1, "4.0"}, Decimales{4, "4.0000"},
                                         Decimales{6, "4.000000"}));

// ----- Forms and pens

TEST_F(Graf, Simbolos) {
    Prueba.enGrafico = [](Grafico &g) {
        g.opciones.forma = FormaSimbolos;
        // The symbol of the minimum would reach below the plot.
        EXPECT_EQ(Solo(Redibujado(g), "", "255,0,0"),
                  (Ordenes{"caja 322,496 326,500 255,0,0", "caja 516,80 520,84 255,0,0",
                           "caja 710,288 714,292 255,0,0", "linea 768,120 808,120 255,0,0"}));
    };
    ASSERT_TRUE(Sentencia("GRAF X"));
}

TEST_F(Graf, LineasYSimbolos) {
    Prueba.enGrafico = [](Grafico &g) {
        g.opciones.forma = FormaLineasYSimbolos;
        EXPECT_EQ(Solo(Redibujado(g), "", "255,0,0"),
                  (Ordenes{"linea 128,704 322,496 255,0,0", "linea 322,496 516,80 255,0,0",
                           "linea 516,80 710,288 255,0,0", "caja 322,496 326,500 255,0,0",
                           "caja 516,80 520,84 255,0,0", "caja 710,288 714,292 255,0,0",
                           "linea 768,120 808,120 255,0,0"}));
    };
    ASSERT_TRUE(Sentencia("GRAF X"));
}

TEST_F(Graf, Barras) {
    Prueba.enGrafico = [](Grafico &g) {
        g.opciones.forma = FormaBarras;
        EXPECT_EQ(Solo(Redibujado(g), "caja", "255,0,0"),
                  (Ordenes{"caja 128,704 136,704 255,0,0", "caja 322,496 330,704 255,0,0",
                           "caja 516,80 524,704 255,0,0", "caja 710,288 718,704 255,0,0"}));
    };
    ASSERT_TRUE(Sentencia("GRAF X"));
}

TEST(GrafBarrasEstrechas, ElPasoCuandoEsMenor) {
    EmpezarConDatos(TipoSinPeriodicidad, "");
    std::vector<double> valores(194, 0); // a step of 776 / 194 = 4 units
    valores[1] = 1;
    PonerSerie("X", valores);
    Prueba.enGrafico = [](Grafico &g) {
        g.opciones.forma = FormaBarras;
        EXPECT_EQ(Solo(Redibujado(g), "caja 132", "255,0,0"), (Ordenes{"caja 132,80 136,704 255,0,0"}));
    };
    ASSERT_TRUE(Sentencia("GRAF X"));
}

struct PlumaEsperada {
    int color, grosor, trazo;
    const char *pluma;
};
class GrafPluma : public Graf, public testing::WithParamInterface<PlumaEsperada> {};
TEST_P(GrafPluma, DeLaSerie) {
    Prueba.enGrafico = [](Grafico &g) {
        g.opciones.color[0] = GetParam().color;
        g.opciones.grosor[0] = GetParam().grosor;
        g.opciones.trazo[0] = GetParam().trazo;
        EXPECT_EQ(Solo(Redibujado(g), "linea 768,120"),
                  Ordenes{std::string("linea 768,120 808,120 ") + GetParam().pluma});
    };
    ASSERT_TRUE(Sentencia("GRAF X"));
}
INSTANTIATE_TEST_SUITE_P(
    Casos, GrafPluma,
    testing::Values(PlumaEsperada{0, 0, 0, "255,0,0"}, PlumaEsperada{1, 0, 0, "0,255,0"},
                    PlumaEsperada{2, 0, 0, "0,0,255"}, PlumaEsperada{3, 0, 0, "0,0,0"},
                    PlumaEsperada{4, 0, 0, "0,0,127"}, PlumaEsperada{5, 0, 0, "127,0,127"},
                    PlumaEsperada{6, 0, 0, "255,255,0"}, PlumaEsperada{7, 0, 0, "191,191,191"},
                    PlumaEsperada{8, 0, 0, "255,255,255"}, PlumaEsperada{0, 1, 0, "255,0,0 3"},
                    PlumaEsperada{0, 0, 1, "255,0,0 p"}, PlumaEsperada{0, 0, 2, "255,0,0 r"},
                    PlumaEsperada{0, 0, 3, "255,0,0 m"}, PlumaEsperada{0, 1, 3, "255,0,0 3 m"},
                    // What no table holds is its first entry.
                    PlumaEsperada{9, 2, 4, "255,0,0"}, PlumaEsperada{-1, -1, -1, "255,0,0"}));

TEST(GrafColores, LaNovenaEsBlancaYLaDecimaRoja) {
    const OpcionesGrafico o = OpcionesPorDefecto(20);
    EXPECT_EQ(Plumada(PlumaDeSerie(o, 8)), "255,255,255");
    EXPECT_EQ(Plumada(PlumaDeSerie(o, 9)), "255,0,0");
    EXPECT_EQ(Plumada(PlumaDeSerie(o, 99)), "255,0,0"); // 99 % 9
    EXPECT_EQ(Plumada(PlumaDeSerie(o, 98)), "255,255,255");
    EXPECT_EQ(Plumada(PlumaDeSerie(o, 100)), "255,0,0");
}

TEST(OpcionesDeGrafico, PorDefecto) {
    const OpcionesGrafico o = OpcionesPorDefecto(9);
    EXPECT_EQ(o.intervalosX, 9);
    EXPECT_EQ(OpcionesPorDefecto(10).intervalosX, 10);
    EXPECT_EQ(OpcionesPorDefecto(11).intervalosX, 10);
    EXPECT_EQ(o.intervalosY, 10);
    EXPECT_EQ(o.minYDefecto + o.maxYDefecto + o.minXDefecto + o.maxXDefecto, 4);
    EXPECT_EQ(o.minY, 0);
    EXPECT_EQ(o.maxY, 0);
    EXPECT_EQ(o.minXTexto, "0");
    EXPECT_EQ(o.maxXTexto, "0");
    EXPECT_EQ(o.verLeyenda, 1);
    EXPECT_EQ(o.leyendaConMarco, 1);
    EXPECT_EQ(o.forma, FormaLineas);
    EXPECT_EQ(o.titulo + o.tituloX + o.tituloY + o.ejeX, "");
    EXPECT_EQ(o.dispersion, 0);
    EXPECT_TRUE(o.series.empty());
    for (int i = 0; i < 100; ++i) {
        EXPECT_EQ(o.color[static_cast<std::size_t>(i)], i % 9);
        EXPECT_EQ(o.grosor[static_cast<std::size_t>(i)], 0);
        EXPECT_EQ(o.trazo[static_cast<std::size_t>(i)], 0);
    }
}

// ----- Legend and titles

TEST_F(Graf, LeyendaDeDosSeries) {
    ASSERT_TRUE(Sentencia("GRAF X Y"));
    const Ordenes d = Dibujo();
    EXPECT_EQ(Ordenes(d.end() - 5, d.end()),
              (Ordenes{"caja 760,96 928,176 0,0,0", "linea 768,120 808,120 255,0,0", "texto 816,112 X",
                       "linea 768,136 808,136 0,255,0", "texto 816,128 Y"}));
}

TEST_F(Graf, LeyendaSinMarcoYSinLeyenda) {
    Prueba.enGrafico = [](Grafico &g) {
        g.opciones.leyendaConMarco = 0;
        EXPECT_EQ(Solo(Redibujado(g), "caja"), (Ordenes{"caja 760,96 928,160 255,255,255 3"}));
        g.opciones.verLeyenda = 0;
        EXPECT_TRUE(Solo(Redibujado(g), "caja").empty());
        EXPECT_TRUE(Solo(Redibujado(g), "texto 816").empty());
    };
    ASSERT_TRUE(Sentencia("GRAF X"));
}

struct Estrecha {
    int derecha;
    const char *nombre;
};
class GrafLeyendaEstrecha : public Graf, public testing::WithParamInterface<Estrecha> {};
TEST_P(GrafLeyendaEstrecha, CortaElNombre) {
    PonerSerie("CONSUMO1", {1, 2, 3, 4});
    Prueba.enGrafico = [](Grafico &g) {
        g.arrastre.movida[ParteLeyenda] = true;
        g.disposicion.parte[ParteLeyenda] = {0, 0, GetParam().derecha, 100};
        EXPECT_EQ(Solo(Redibujado(g), "texto 56,16"),
                  Ordenes{std::string("texto 56,16 ") + GetParam().nombre});
    };
    ASSERT_TRUE(Sentencia("GRAF CONSUMO1"));
}
// Eight letters and seven cells are 120 units; below that (width - 32) / 8 letters stay.
INSTANTIATE_TEST_SUITE_P(Casos, GrafLeyendaEstrecha,
                         testing::Values(Estrecha{120, "CONSUMO1"}, Estrecha{119, "CONSUMO1"},
                                         Estrecha{95, "CONSUMO"}, Estrecha{40, "C"}, Estrecha{39, ""},
                                         Estrecha{0, ""}));

TEST_F(Graf, Titulos) {
    Prueba.enGrafico = [](Grafico &g) {
        g.opciones.titulo = "Consumo";  // 7 letters: 120 + (784 - 56) / 2
        g.opciones.tituloX = "A\xf1os"; // 120 + (784 - 32) / 2
        g.opciones.tituloY = "Ptas";
        const Ordenes d = Redibujado(g);
        EXPECT_EQ(Ordenes(d.end() - 6, d.end()),
                  (Ordenes{"texto 484,16 Consumo", "texto 16,64 P", "texto 16,80 t", "texto 16,96 a",
                           "texto 16,112 s", "texto 496,736 Años"}));
    };
    ASSERT_TRUE(Sentencia("GRAF X"));
}

// ----- What isn't a number, or isn't there

TEST_F(Graf, ValorAusente) {
    PonerSerie("F", {1, Nada, 3, 2}); // drawn as the 0 that is stored
    ASSERT_TRUE(Sentencia("GRAF F INTERY 3"));
    EXPECT_EQ(Solo(Dibujo(), "linea", "255,0,0"),
              (Ordenes{"linea 128,496 322,704 255,0,0", "linea 322,704 516,80 255,0,0",
                       "linea 516,80 710,288 255,0,0", "linea 768,120 808,120 255,0,0"}));
}

TEST_F(Graf, LoQueNoEsNumero) {
    const double infinito = std::numeric_limits<double>::infinity();
    for (const double malo : {infinito, -infinito, Nada}) {
        Prueba = {};
        PonerSerie("F", {1, 2, 4, 3});
        ArchivoTrabajo.ValoresObs[1][BuscarSerie("F")] = malo;
        ASSERT_TRUE(Sentencia("GRAF F"));
        // The segments at both sides of it are left out; the others keep their scale.
        EXPECT_EQ(Solo(Dibujo(), "linea", "255,0,0"),
                  (Ordenes{"linea 516,80 710,288 255,0,0", "linea 768,120 808,120 255,0,0"}));
        Prueba = {};
        ASSERT_TRUE(Sentencia("GRAF (F) X"));
        EXPECT_EQ(Prueba.graficos.size(), 1U);
    }
}

TEST_F(Graf, NingunNumero) {
    PonerSerie("F", {1, 1, 1, 1});
    for (int i = 0; i < 4; ++i) ArchivoTrabajo.ValoresObs[i][BuscarSerie("F")] = Nada;
    ASSERT_TRUE(Sentencia("GRAF F"));
    EXPECT_EQ(Solo(Dibujo(), "texto"), (Ordenes{"texto 128,712 90", "texto 322,712 91", "texto 516,712 92",
                                                "texto 710,712 93", "texto 816,112 F"}));
}

TEST_F(Graf, NumerosEnormes) {
    PonerSerie("F", {-1.7e308, 1.7e308, 0, 1});
    ASSERT_TRUE(Sentencia("GRAF F"));
    for (const OrdenDibujo &o : Prueba.graficos.at(0).ordenes) {
        EXPECT_LE(std::abs(o.x1), 32000);
        EXPECT_LE(std::abs(o.y1), 32000);
        EXPECT_EQ(o.texto.find("nan"), std::string::npos);
    }
    Prueba = {};
    PonerSerie("F", {1e20, 1e20, 1e20, 1e20}); // 1 more is the same number
    ASSERT_TRUE(Sentencia("GRAF F INTERY 2"));
    EXPECT_EQ(Rotulos(80), (Ordenes{"200000000000000000000.00"}));
}

TEST_F(Graf, VentanaMinuscula) {
    Prueba.enGrafico = [](Grafico &g) {
        for (const int lado : {0, 1, 100, 240, 248}) Redibujado(g, lado, lado);
    };
    ASSERT_TRUE(Sentencia("GRAF X Y"));
    ASSERT_TRUE(Sentencia("GRAF (X) Y"));
}

TEST_F(Graf, TablaDeValores) {
    std::string tabla;
    Prueba.enGrafico = [&](Grafico &g) { tabla = Utf8De1252(TablaDeGrafico(g)); };
    ASSERT_TRUE(Sentencia("GRAF X Y MINX 1991 MAXX 1992"));
    EXPECT_EQ(tabla, "Período\tX\tY\n1991\t2\t20\n1992\t4\t40\n");
    ASSERT_TRUE(Sentencia("GRAF (X) Y"));
    EXPECT_EQ(tabla, "Período\tX\tY\n1990\t1\t10\n1991\t2\t20\n1992\t4\t40\n1993\t3\t30\n");
}

} // namespace
