// The charts of the last regression and of its predictions. On 1024 x 768 with cells of 8 x 16 the middle of the plot is (512,
// 384); 392 units to both sides, 320 up and down.
#include "charts/graficos/graficos.h"

#include "charts/graficos/lienzo.h"
#include "charts/graficos/regresion_grafico.h"
#include "estimation/regresion.h"
#include "language/lote_sentencias.h"
#include "platform/campos_texto.h"
#include "store/archivo.h"

namespace {

using Ordenes = std::vector<std::string>;

struct Regresion : testing::Test {
    void SetUp() override {
        EmpezarConDatos(TipoAnual, "1989#1995");
        PonerSerie("Y", {0, 10, 20, 40, 30});
        PonerSerie("_RES", {0, 1, -2, 0.5, 0});
        PonerSerie("_RESN", {0, 5, 5, 5, 5});
        PonerEscalar(nullptr, "_DTR", 0.75);
        UltimaRegresion.RegresionHecha = 1;
        UltimaRegresion.MetodoRegresion = OrdenMC;
        UltimaRegresion.PrimeraObsRegresion = 1;
        UltimaRegresion.UltimaObsRegresion = 4;
        PonerCampo(UltimaRegresion.CodigoDependiente, "Y", AnchoCodigo);
    }
};

TEST_F(Regresion, ResiduosEnteros) {
    Prueba.enGrafico = [](Grafico &g) { EXPECT_EQ(g.clase, GraficoResiduos); };
    ASSERT_EQ(AbrirGraficoDeRegresion(nullptr, GraficoResiduos, ResiduosOrdinarios), 1);
    EXPECT_TRUE(Prueba.cajas.empty());
    EXPECT_EQ(Prueba.graficos.at(0).titulo, "Gráfico de los residuos");
    // From -2 to 2: 160 units for 1, a mark each 0.4; three times 0.4 is a hair above 1.2. The band of two deviations stands at 1.5. A step of (784 - 4 * 8) / 4 + 8.
    const Ordenes esperado = {
        "linea 120,384 904,384 0,0,0",
        "linea 120,64 120,704 0,0,0",
        "texto 128,392 90",
        "linea 128,380 128,388 0,0,0",
        "texto 324,392 91",
        "linea 324,380 324,388 0,0,0",
        "texto 520,392 92",
        "linea 520,380 520,388 0,0,0",
        "texto 716,392 93",
        "linea 716,380 716,388 0,0,0",
        "texto 80,384 0.00",
        "linea 112,384 120,384 0,0,0",
        "texto 80,320 0.40",
        "linea 112,320 120,320 0,0,0",
        "texto 72,448 -0.40",
        "linea 112,448 120,448 0,0,0",
        "texto 80,256 0.80",
        "linea 112,256 120,256 0,0,0",
        "texto 72,512 -0.80",
        "linea 112,512 120,512 0,0,0",
        "texto 80,191 1.20",
        "linea 112,191 120,191 0,0,0",
        "texto 72,576 -1.20",
        "linea 112,576 120,576 0,0,0",
        "texto 80,128 1.60",
        "linea 112,128 120,128 0,0,0",
        "texto 72,640 -1.60",
        "linea 112,640 120,640 0,0,0",
        "texto 80,64 2.00",
        "linea 112,64 120,64 0,0,0",
        "texto 72,704 -2.00",
        "linea 112,704 120,704 0,0,0",
        "linea 120,144 904,144 0,0,0 p",
        "linea 120,624 904,624 0,0,0 p",
        "linea 128,224 324,704 255,0,0",
        "linea 324,704 520,304 255,0,0",
        "linea 520,304 716,384 255,0,0",
        "caja 760,96 928,160 0,0,0",
        "linea 768,120 808,120 255,0,0",
        "texto 816,112 _RES",
    };
    EXPECT_EQ(Dibujo(), esperado);
}

TEST_F(Regresion, ResiduosEstandarizados) {
    ASSERT_EQ(AbrirGraficoDeRegresion(nullptr, GraficoResiduos, ResiduosEstandarizados), 1);
    // From -5 to 5: 64 units for 1. 1 / 0.75 = 1.33 stands at 298.7, -2.67 at 554.7, 0.67 at 341.3; the band at 2.
    EXPECT_EQ(Solo(Dibujo(), "linea", "255,0,0"),
              (Ordenes{"linea 128,298 324,554 255,0,0", "linea 324,554 520,341 255,0,0",
                       "linea 520,341 716,384 255,0,0", "linea 768,120 808,120 255,0,0"}));
    EXPECT_EQ(Solo(Dibujo(), "linea", " p"),
              (Ordenes{"linea 120,256 904,256 0,0,0 p", "linea 120,512 904,512 0,0,0 p"}));
}

struct PreguntaDeResiduos {
    Respuesta respuesta;
    int resultado, estandarizados;
};
class GraficoPregunta : public Regresion, public testing::WithParamInterface<PreguntaDeResiduos> {};
TEST_P(GraficoPregunta, Responde) {
    Prueba.respuestas = {GetParam().respuesta};
    Prueba.enGrafico = [](Grafico &g) { EXPECT_EQ(g.estandarizados, GetParam().estandarizados); };
    EXPECT_EQ(AbrirGraficoDeRegresion(nullptr, GraficoResiduos), GetParam().resultado);
    EXPECT_EQ(Prueba.cajas,
              (std::vector<CajaVista>{{"Gráfico de los residuos", "¿Desea ver los residuos estandarizados?",
                                       IconoPregunta, BotonesSiNoCancelar}}));
    EXPECT_EQ(Prueba.graficos.size(), static_cast<std::size_t>(GetParam().resultado));
}
INSTANTIATE_TEST_SUITE_P(Casos, GraficoPregunta,
                         testing::Values(PreguntaDeResiduos{RespuestaSi, 1, 1},
                                         PreguntaDeResiduos{RespuestaNo, 1, 0},
                                         PreguntaDeResiduos{RespuestaCancelar, 0, 0}));

// The limits of the axis of residuals: what they and the user give, and where the axis ends.
struct LimitesResiduos {
    std::vector<double> residuos; // the last of four
    ResiduosDelGrafico modo;
    bool conMinimo, conMaximo;
    double minimo, maximo;
    double extremo;
};
class GraficoLimites : public Regresion, public testing::WithParamInterface<LimitesResiduos> {};
TEST_P(GraficoLimites, Simetricos) {
    const LimitesResiduos &p = GetParam();
    PonerSerie("_RES", p.residuos, 1);
    Prueba.enGrafico = [&](Grafico &g) {
        g.opciones.minYDefecto = p.conMinimo ? 0 : 1;
        g.opciones.maxYDefecto = p.conMaximo ? 0 : 1;
        g.opciones.minY = p.minimo;
        g.opciones.maxY = p.maximo;
        CalcularLimites(g);
        EXPECT_DOUBLE_EQ(g.limites.maxY, p.extremo);
        EXPECT_DOUBLE_EQ(g.limites.minY, -p.extremo);
    };
    EXPECT_EQ(AbrirGraficoDeResiduos(nullptr, 1, p.modo), 1);
}
INSTANTIATE_TEST_SUITE_P(
    Casos, GraficoLimites,
    testing::Values(LimitesResiduos{{0, 0, 0, 0}, ResiduosOrdinarios, false, false, 0, 0, 0.1},
                    LimitesResiduos{{3, 3, 3, 3}, ResiduosOrdinarios, false, false, 0, 0, 3.1},
                    LimitesResiduos{{-3, -3, -3, -3}, ResiduosOrdinarios, false, false, 0, 0, 3},
                    LimitesResiduos{{-5, -2, -3, -4}, ResiduosOrdinarios, false, false, 0, 0, 5},
                    LimitesResiduos{{5, 2, 3, 4}, ResiduosOrdinarios, false, false, 0, 0, 5},
                    LimitesResiduos{{5, 2, -6, 4}, ResiduosOrdinarios, false, false, 0, 0, 6},
                    LimitesResiduos{{50, 2, -6, 4}, ResiduosEstandarizados, false, false, 0, 0, 5},
                    LimitesResiduos{{5, 2, -6, 4}, ResiduosEstandarizados, true, true, -2, 6, 6},
                    LimitesResiduos{{5, 2, -6, 4}, ResiduosEstandarizados, true, false, -7, 0, 7},
                    LimitesResiduos{{5, 2, -6, 4}, ResiduosOrdinarios, false, true, 0, 9, 9},
                    LimitesResiduos{{5, 2, -6, 4}, ResiduosOrdinarios, true, true, -0.1, -0.1, 0.1},
                    LimitesResiduos{{Nada, Nada, Nada, Nada}, ResiduosOrdinarios, false, false, 0, 0, 0.1}));

TEST_F(Regresion, SinDesviacionNoSeDividen) {
    for (const double desviacion : {0.0, -1.0}) {
        Prueba = {};
        Prueba.enGrafico = [](Grafico &g) {
            EXPECT_EQ(g.series.at(0).valores, (std::vector<double>{1, -2, 0.5, 0, 0}));
            EXPECT_EQ(g.limites.maxY, 5);
        };
        EXPECT_EQ(AbrirGraficoDeResiduos(nullptr, desviacion, ResiduosEstandarizados), 1);
        EXPECT_EQ(Prueba.graficos.size(), 1U);
    }
}

TEST_F(Regresion, OpcionesDeLosResiduos) {
    Prueba.enGrafico = [](Grafico &g) {
        g.marcasAlMedio = 0;
        EXPECT_EQ(Solo(Redibujado(g), "texto 128,"), (Ordenes{"texto 128,712 90"}));
        EXPECT_EQ(Solo(Redibujado(g), "linea 128,7"), (Ordenes{"linea 128,700 128,708 0,0,0"}));
        g.conBanda = 0;
        EXPECT_TRUE(Solo(Redibujado(g), "linea", " p").empty());
        // The bars hang from the zero line, and what lies outside the plot isn't drawn.
        g.opciones.forma = FormaBarras;
        EXPECT_EQ(Solo(Redibujado(g), "caja", "255,0,0"),
                  (Ordenes{"caja 128,224 136,384 255,0,0", "caja 324,704 332,384 255,0,0",
                           "caja 520,304 528,384 255,0,0", "caja 716,384 724,384 255,0,0"}));
        g.opciones.minYDefecto = g.opciones.maxYDefecto = 0;
        g.opciones.minY = -1.25;
        g.opciones.maxY = 1.25; // 256 units for 1
        EXPECT_EQ(Solo(Redibujado(g), "caja", "255,0,0"),
                  (Ordenes{"caja 128,128 136,384 255,0,0", "caja 520,256 528,384 255,0,0",
                           "caja 716,384 724,384 255,0,0"}));
        g.opciones.forma = FormaLineas;
        EXPECT_EQ(Solo(Redibujado(g), "linea", "255,0,0"),
                  (Ordenes{"linea 520,256 716,384 255,0,0", "linea 768,120 808,120 255,0,0"}));
        g.conBanda = 1; // at 1.5, above the plot
        EXPECT_TRUE(Solo(Redibujado(g), "linea", " p").empty());
        g.opciones.minY = -1.5;
        g.opciones.maxY = 1.5; // at its very edge
        EXPECT_EQ(Solo(Redibujado(g), "linea", " p").size(), 2U);
    };
    ASSERT_EQ(AbrirGraficoDeRegresion(nullptr, GraficoResiduos, ResiduosOrdinarios), 1);
}

struct IntervalosResiduos {
    int intervalos;
    std::size_t marcas;
};
class GraficoMarcas : public Regresion, public testing::WithParamInterface<IntervalosResiduos> {};
TEST_P(GraficoMarcas, Simetricas) {
    Prueba.enGrafico = [](Grafico &g) {
        g.opciones.intervalosY = GetParam().intervalos;
        EXPECT_EQ(Solo(Redibujado(g), "linea 112,").size(), GetParam().marcas);
    };
    ASSERT_EQ(AbrirGraficoDeRegresion(nullptr, GraficoResiduos, ResiduosOrdinarios), 1);
}
INSTANTIATE_TEST_SUITE_P(Casos, GraficoMarcas,
                         testing::Values(IntervalosResiduos{0, 0}, IntervalosResiduos{1, 3},
                                         IntervalosResiduos{2, 3}, IntervalosResiduos{3, 3},
                                         IntervalosResiduos{4, 5}, IntervalosResiduos{-4, 0}));

// The axis of the observations always has two intervals, as that of the series has not.
struct IntervalosEnX {
    int intervalos;
    Ordenes rotulos;
};
class GraficoPeriodos : public Regresion, public testing::WithParamInterface<IntervalosEnX> {};
TEST_P(GraficoPeriodos, AlMenosDosIntervalos) {
    Prueba.enGrafico = [](Grafico &g) {
        g.opciones.intervalosX = GetParam().intervalos;
        EXPECT_EQ(Solo(Redibujado(g), "texto", ",392 "), GetParam().rotulos);
    };
    ASSERT_EQ(AbrirGraficoDeRegresion(nullptr, GraficoResiduos, ResiduosOrdinarios), 1);
}
const Ordenes DosPeriodos = {"texto 128,392 90", "texto 520,392 92"};
const Ordenes CuatroPeriodos = {"texto 128,392 90", "texto 324,392 91", "texto 520,392 92",
                                "texto 716,392 93"};
INSTANTIATE_TEST_SUITE_P(Casos, GraficoPeriodos,
                         testing::Values(IntervalosEnX{-3, DosPeriodos}, IntervalosEnX{0, DosPeriodos},
                                         IntervalosEnX{1, DosPeriodos}, IntervalosEnX{2, DosPeriodos},
                                         IntervalosEnX{4, CuatroPeriodos},
                                         IntervalosEnX{99, CuatroPeriodos}));

TEST_F(Regresion, UnaObservacion) {
    UltimaRegresion.UltimaObsRegresion = 1;
    Prueba.enGrafico = [](Grafico &g) { EXPECT_EQ(IntervalosX(g), 2); };
    ASSERT_EQ(AbrirGraficoDeRegresion(nullptr, GraficoResiduos, ResiduosOrdinarios), 1);
    EXPECT_EQ(Rotulos(392), (Ordenes{"90"}));
}

TEST_F(Regresion, ValoresObservadosYEstimados) {
    std::vector<SerieGrafico> series;
    Prueba.enGrafico = [&](Grafico &g) { series = g.series; };
    ASSERT_EQ(AbrirGraficoDeRegresion(nullptr, GraficoValores), 1);
    EXPECT_EQ(Prueba.graficos.at(0).titulo, "Gráfico de valores observados y estimados");
    ASSERT_EQ(series.size(), 2U);
    EXPECT_EQ(series[0].nombre, "Y");
    EXPECT_EQ(series[1].nombre, "V. ESTIM.");
    EXPECT_EQ(series[1].valores, (std::vector<double>{9, 22, 39.5, 30, 0}));
    // Both from 9 to 40: 624 / 31 units for 1.
    EXPECT_EQ(Solo(Dibujo(), "linea", " 0,255,0"),
              (Ordenes{"linea 128,704 322,442 0,255,0", "linea 322,442 516,90 0,255,0",
                       "linea 516,90 710,281 0,255,0", "linea 768,136 808,136 0,255,0"}));
    EXPECT_EQ(Rotulos(712), (Ordenes{"90", "91", "92", "93"}));
    Prueba.graficos.clear();
    UltimaRegresion.MetodoRegresion = OrdenMCP;
    ASSERT_EQ(AbrirGraficoDeRegresion(nullptr, GraficoValores), 1);
    EXPECT_EQ(series[1].valores, (std::vector<double>{5, 15, 35, 25, 0}));
}

struct Negativa {
    const char *nombre;
    void (*antes)();
    ClasesDeGrafico clase;
    const char *titulo, *texto;
};
class GraficoNegado : public Regresion, public testing::WithParamInterface<Negativa> {};
TEST_P(GraficoNegado, Caja) {
    GetParam().antes();
    EXPECT_EQ(AbrirGraficoDeRegresion(nullptr, GetParam().clase, ResiduosOrdinarios), 0);
    EXPECT_EQ(Prueba.cajas, (std::vector<CajaVista>{
                                {GetParam().titulo, GetParam().texto, IconoInformacion, BotonesAceptar}}));
    EXPECT_TRUE(Prueba.graficos.empty());
}
void Borrar(const char *codigo) {
    EliminarSerie(BuscarSerie(codigo));
}
INSTANTIATE_TEST_SUITE_P(
    Casos, GraficoNegado,
    testing::Values(Negativa{"SinRegresion", [] { UltimaRegresion.RegresionHecha = 0; }, GraficoResiduos,
                             "Aviso", "Efectue primero una regresión"},
                    Negativa{"SinRegresionNiValores", [] { UltimaRegresion.RegresionHecha = 0; },
                             GraficoValores, "Aviso", "Efectue primero una regresión"},
                    Negativa{"SinTipo", [] { ArchivoTrabajo.TipoDatos = SinTipoDatos; }, GraficoResiduos,
                             "Proceso cancelado", "Tipo de datos no válido"},
                    Negativa{"SinResiduos", [] { Borrar("_RES"); }, GraficoResiduos, "Aviso",
                             "No existe la serie de residuos"},
                    Negativa{"ValoresSinResiduos", [] { Borrar("_RES"); }, GraficoValores, "Aviso",
                             "No existe la serie de residuos"},
                    Negativa{"SinDependiente", [] { Borrar("Y"); }, GraficoValores, "Aviso",
                             "No existe la variable dependiente"}),
    [](const auto &i) { return std::string(i.param.nombre); });

TEST_F(Regresion, PrediccionEntera) {
    ASSERT_EQ(AbrirGraficoDePrediccion(nullptr, {{-1, 2}, {1, 4}, 1, "Y"}), 1);
    EXPECT_EQ(Prueba.graficos.at(0).titulo, "Diagrama predicción-observación");
    // Both axes from -4 to 4: 98 units across for 1, 80 up.
    const Ordenes d = Dibujo();
    EXPECT_EQ(Ordenes(d.begin(), d.begin() + 12),
              (Ordenes{"linea 120,384 904,384 0,0,0", "linea 512,64 512,704 0,0,0", "texto 512,392 0.00",
                       "linea 512,380 512,388 0,0,0", "texto 708,392 2.00", "linea 708,380 708,388 0,0,0",
                       "texto 316,392 -2.00", "linea 316,380 316,388 0,0,0", "texto 472,384 0.00",
                       "linea 504,384 512,384 0,0,0", "texto 472,352 0.40", "linea 504,352 512,352 0,0,0"}));
    EXPECT_EQ(Solo(d, "linea 504,").size(), 21U);
    EXPECT_EQ(
        Ordenes(d.end() - 6, d.end()),
        (Ordenes{"linea 120,704 904,64 0,0,0", "caja 414,304 418,308 255,0,0", "caja 708,64 712,68 255,0,0",
                 "caja 760,96 928,160 0,0,0", "linea 768,120 808,120 255,0,0", "texto 816,112 Y"}));
}

TEST_F(Regresion, MarcasDeLaPrediccion) {
    Prueba.enGrafico = [](Grafico &g) {
        g.marcasAlMedio = 0;
        EXPECT_EQ(Solo(Redibujado(g), "texto 708"), (Ordenes{"texto 708,712 2.00"}));
        g.marcasYAlMedio = 0;
        EXPECT_EQ(Solo(Redibujado(g), "linea 112,").size(), 21U);
        // With 33 intervals the label at -32 stands 11.9 units from the edge, that at -31 23.8; at -30 it is 35.
        g.muestra = 33;
        g.opciones.intervalosX = 33;
        Ordenes izquierda = Solo(Redibujado(g), "linea 1", ",700");
        EXPECT_EQ(izquierda.front(), "linea 191,700 191,708 0,0,0"); // -27: 512 - 392 * 27 / 33 = 191.3
        EXPECT_EQ(izquierda.back(), "linea 155,700 155,708 0,0,0");
    };
    ASSERT_EQ(AbrirGraficoDePrediccion(nullptr, {{-1, 2}, {1, 4}, 1, "Y"}), 1);
}

TEST_F(Regresion, LaPrediccionTieneDosIntervalosAlMenos) {
    for (const int intervalos : {-4, 0, 1, 2}) {
        SCOPED_TRACE(intervalos);
        Prueba.enGrafico = [&](Grafico &g) {
            g.opciones.intervalosX = g.opciones.intervalosY = intervalos;
            const Ordenes d = Redibujado(g);
            // Steps of 2 from -4 to 4; at the ends of the X axis nothing is drawn.
            EXPECT_EQ(Solo(d, "texto", ",392 "),
                      (Ordenes{"texto 512,392 0.00", "texto 708,392 2.00", "texto 316,392 -2.00"}));
            EXPECT_EQ(Solo(d, "texto 4"),
                      (Ordenes{"texto 472,384 0.00", "texto 472,224 2.00", "texto 464,544 -2.00",
                               "texto 472,64 4.00", "texto 464,704 -4.00"}));
        };
        ASSERT_EQ(AbrirGraficoDePrediccion(nullptr, {{-1, 2}, {1, 4}, 1, "Y"}), 1);
    }
}

struct LimitesPrediccion {
    std::vector<double> prediccion, observacion;
    double extremo;
};
class GraficoPareja : public Regresion, public testing::WithParamInterface<LimitesPrediccion> {};
TEST_P(GraficoPareja, Simetrica) {
    Prueba.enGrafico = [](Grafico &g) {
        for (const double m : {g.limites.maxY, g.limites.maxX}) EXPECT_DOUBLE_EQ(m, GetParam().extremo);
        for (const double m : {g.limites.minY, g.limites.minX}) EXPECT_DOUBLE_EQ(m, -GetParam().extremo);
    };
    EXPECT_EQ(AbrirGraficoDePrediccion(nullptr, {GetParam().prediccion, GetParam().observacion, 0, "Y"}), 1);
}
INSTANTIATE_TEST_SUITE_P(
    Casos, GraficoPareja,
    testing::Values(LimitesPrediccion{{0, 0}, {0, 0}, 0.0001}, LimitesPrediccion{{3, 3}, {3, 3}, 3.0001},
                    LimitesPrediccion{{-3, -3}, {-3, -3}, 3}, LimitesPrediccion{{-5, -2}, {-3, -4}, 5},
                    LimitesPrediccion{{5, 2}, {3, 4}, 5}, LimitesPrediccion{{-5, 2}, {3, 4}, 5},
                    LimitesPrediccion{{-2, 2}, {3, 6}, 6}));

TEST_F(Regresion, PrediccionSinValores) {
    EXPECT_EQ(AbrirGraficoDePrediccion(nullptr, {{}, {}, 0, "Y"}), 0);
    EXPECT_EQ(AbrirGraficoDePrediccion(nullptr, {{1}, {1}, -1, "Y"}), 0);
    EXPECT_EQ(AbrirGraficoDePrediccion(nullptr, {{1}, {1}, 4000, "Y"}), 0);
    EXPECT_EQ(AbrirGraficoDePrediccion(nullptr, {{1}, {1}, 3999, "Y"}), 1);
}

TEST_F(Regresion, FilasFueraDeLaTabla) {
    UltimaRegresion.PrimeraObsRegresion = -5;
    UltimaRegresion.UltimaObsRegresion = 100000;
    EXPECT_EQ(AbrirGraficoDeRegresion(nullptr, GraficoResiduos, ResiduosOrdinarios), 1);
    EXPECT_EQ(AbrirGraficoDeRegresion(nullptr, GraficoValores), 1);
}

} // namespace
