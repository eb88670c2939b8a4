// The histogram: classes, frequencies, table window and chart.
#include "charts/graficos/graficos.h"

#include "charts/graficos/histograma.h"
#include "language/lote_sentencias.h"
#include "platform/frecuencias.h"
#include "store/archivo.h"

namespace {

using Ordenes = std::vector<std::string>;
using Numeros = std::vector<double>;

struct Hist : testing::Test {
    void SetUp() override {
        EmpezarConDatos(TipoSinPeriodicidad, "");
        PonerSerie("X", {1, 2, 2, 3, 5});
    }
};

TEST_F(Hist, TablaYGrafico) {
    ASSERT_TRUE(Sentencia("HIST X INTERX 2"));
    EXPECT_TRUE(Prueba.cajas.empty());
    ASSERT_EQ(Prueba.resultados.size(), 1U);
    EXPECT_EQ(Prueba.resultados[0].tipo, SalidaHistograma);
    EXPECT_EQ(Prueba.resultados[0].titulo, "Representación gráfica");
    // 1, 2 and 2 reach the first class; 3, and 5 as the last limit, the second.
    const std::vector<std::pair<int, std::string>> lineas = {
        {2, " Histograma de la serie: X"},
        {2, "   Límite inferior   Límite superior        Frecuencia"},
        {1, "              1.00              3.00                 3"},
        {1, "              3.00              5.00                 2"}};
    EXPECT_EQ(Prueba.resultados[0].lineas, lineas);
    EXPECT_EQ(Prueba.graficos.at(0).titulo, "Representación gráfica");
    const Ordenes d = Dibujo();
    EXPECT_EQ(Ordenes(d.begin(), d.begin() + 10),
              (Ordenes{"caja 120,80 508,704 0,0,0 relleno 200,200,200",
                       "caja 508,704 896,704 0,0,0 relleno 225,225,225", "linea 120,704 904,704 0,0,0 2",
                       "linea 120,64 120,704 0,0,0 2", "texto 120,712 1.00", "linea 120,700 120,708 0,0,0",
                       "texto 508,712 3.00", "linea 508,700 508,708 0,0,0", "texto 896,712 5.00",
                       "linea 896,700 896,708 0,0,0"}));
    // From 2 to 3 in ten divisions; no title from the statement.
    EXPECT_EQ(Solo(d, "linea 112,").size(), 11U);
    EXPECT_EQ(Solo(d, "texto").size(), 14U);
    EXPECT_EQ(d.back(), "linea 112,80 120,80 0,0,0");
}

TEST_F(Hist, LosGrisesSeTurnan) {
    ASSERT_TRUE(Sentencia("HIST X INTERX 4"));
    Ordenes rellenos;
    for (const std::string &o : Solo(Dibujo(), "caja")) rellenos.push_back(o.substr(o.find("relleno")));
    EXPECT_EQ(rellenos, (Ordenes{"relleno 200,200,200", "relleno 225,225,225", "relleno 250,250,250",
                                 "relleno 200,200,200"}));
}

struct Conteo {
    Numeros valores, limites, frecuencias;
};
class Frecuencias : public testing::TestWithParam<Conteo> {};
TEST_P(Frecuencias, Cuenta) {
    const Conteo &p = GetParam();
    Numeros resultado(p.limites.size() - 1, 77);
    ContarFrecuencias(p.valores.data(), p.limites.data(), resultado.data(),
                      static_cast<int>(p.valores.size()), static_cast<int>(p.limites.size()), 0, 0);
    EXPECT_EQ(resultado, p.frecuencias);
}
INSTANTIATE_TEST_SUITE_P(Casos, Frecuencias,
                         testing::Values(Conteo{{1, 2, 3}, {1, 2, 3}, {1, 2}},
                                         Conteo{{0.9, 3.1}, {1, 2, 3}, {0, 0}},
                                         Conteo{{1.999, 2}, {1, 2, 3}, {1, 1}}, Conteo{{}, {1, 2}, {0}},
                                         Conteo{{Nada, 1}, {1, 2}, {1}}, Conteo{{5, 5, 5}, {5, 6}, {3}},
                                         Conteo{{1, 2, 3}, {3, 1}, {0}}));

// The classes that a statement or a dialog asks for.
struct ClasesPedidas {
    const char *sentencia;
    std::size_t numero;
    double minimo, maximo;
};
class HistClases : public Hist, public testing::WithParamInterface<ClasesPedidas> {};
TEST_P(HistClases, Limites) {
    PonerSerie("NEG", {-4, -2, -3, -1, -8});
    PonerSerie("FIJA", {5, 5, 5, 5, 5});
    PonerSerie("GRAN", {1e8, 2e8, 2e8, 2e8, 2e8});
    DatosHistograma h;
    Prueba.enGrafico = [&](Grafico &g) { h = g.histograma; };
    ASSERT_TRUE(Sentencia(GetParam().sentencia));
    ASSERT_EQ(h.frecuencias.size(), GetParam().numero);
    ASSERT_EQ(h.limites.size(), GetParam().numero + 1);
    EXPECT_DOUBLE_EQ(h.limites.front(), GetParam().minimo);
    EXPECT_DOUBLE_EQ(h.limites.back(), GetParam().maximo);
    for (std::size_t i = 1; i < h.limites.size(); ++i)
        EXPECT_NEAR(h.limites[i] - h.limites[i - 1],
                    (GetParam().maximo - GetParam().minimo) / static_cast<double>(GetParam().numero), 1e-6);
}
INSTANTIATE_TEST_SUITE_P(
    Casos, HistClases,
    testing::Values(
        ClasesPedidas{"HIST X", 10, 1, 5}, ClasesPedidas{"HIST INTERX 5 X", 5, 1, 5},
        ClasesPedidas{"HIST X NEG", 10, 1, 5}, ClasesPedidas{"HIST X INTERX 1", 2, 1, 5},
        ClasesPedidas{"HIST X INTERX 25", 18, 1, 5}, ClasesPedidas{"HIST X INTERX 18", 18, 1, 5},
        ClasesPedidas{"HIST X INTERVALOX 5", 10, 1, 5}, ClasesPedidas{"HIST X MINX 0 MAXX 10", 10, 0, 10},
        ClasesPedidas{"HIST X MAXX 10 INTERX 3", 3, 1, 10}, ClasesPedidas{"HIST X MINX -1.5", 10, -1.5, 5},
        // The search for the maximum begins at 0, that for the minimum at 9999999.
        ClasesPedidas{"HIST NEG", 10, -8, 0}, ClasesPedidas{"HIST GRAN", 10, 9999999, 2e8},
        // Equal limits grow.
        ClasesPedidas{"HIST FIJA", 10, 5, 6}, ClasesPedidas{"HIST X MINX 0.5 MAXX 0.5", 10, 0.5, 1.5}));

TEST_F(Hist, ValorAusenteCuentaComoCero) {
    PonerSerie("F", {1, Nada, 4, 4, 4});
    DatosHistograma h;
    Prueba.enGrafico = [&](Grafico &g) { h = g.histograma; };
    ASSERT_TRUE(Sentencia("HIST F INTERX 2"));
    EXPECT_EQ(h.limites, (Numeros{0, 2, 4}));
    EXPECT_EQ(h.frecuencias, (Numeros{2, 3}));
}

// Ten tenths of the distance from 0.8 to 2.6 don't reach it; the greatest value counts all the same.
TEST_F(Hist, ElMayorValorCuenta) {
    PonerSerie("F", {0.8, 2.6, 6.7 / 4, 1, 2.6});
    DatosHistograma h;
    Prueba.enGrafico = [&](Grafico &g) { h = g.histograma; };
    ASSERT_TRUE(Sentencia("HIST F"));
    EXPECT_EQ(h.limites.back(), 2.6);
    EXPECT_EQ(h.frecuencias, (Numeros{1, 1, 0, 0, 1, 0, 0, 0, 0, 2}));
}

struct Divisiones {
    const char *sentencia;
    std::size_t marcas;
    const char *maximo;
};
class HistDivisiones : public Hist, public testing::WithParamInterface<Divisiones> {};
TEST_P(HistDivisiones, EjeY) {
    ASSERT_TRUE(Sentencia(GetParam().sentencia));
    EXPECT_EQ(Solo(Dibujo(), "linea 112,").size(), GetParam().marcas);
    EXPECT_EQ(Rotulos(80), (Ordenes{GetParam().maximo}));
}
INSTANTIATE_TEST_SUITE_P(Casos, HistDivisiones,
                         testing::Values(Divisiones{"HIST X INTERX 2 INTERY 2", 5, "3.00"},
                                         Divisiones{"HIST X INTERX 2 INTERY 4", 5, "3.00"},
                                         Divisiones{"HIST X INTERX 2 INTERY 20", 21, "3.00"},
                                         Divisiones{"HIST X INTERX 2 INTERY 30", 21, "3.00"},
                                         Divisiones{"HIST X INTERX 2 MAXY 8 MINY 0", 11, "8.00"}));

TEST_F(Hist, SinSerie) {
    for (const char *sentencia : {"HIST", "HIST NADA", "HIST INTERX 5", "HIST INTERX X"}) {
        Prueba = {};
        EXPECT_TRUE(Sentencia(sentencia)) << sentencia;
        EXPECT_EQ(Prueba.cajas, (std::vector<CajaVista>{
                                    {"Aviso", "Variable no encontrada", IconoInformacion, BotonesAceptar}}));
        EXPECT_TRUE(Prueba.resultados.empty());
    }
}

TEST_F(Hist, FilasDetrasDelArchivo) {
    // Bounds may lie far behind the last row.
    EXPECT_EQ(EjecutarHIST(nullptr, "X", 0, 100000), 1);
    EXPECT_EQ(Prueba.resultados.size(), 1U);
    EXPECT_EQ(EjecutarHIST(nullptr, "X", 100000, 5), 1);
    EXPECT_EQ(Prueba.resultados.size(), 2U);
}

TEST_F(Hist, LoQueNoEsNumero) {
    for (const double malo : {std::numeric_limits<double>::infinity(), Nada}) {
        ArchivoTrabajo.ValoresObs[1][BuscarSerie("X")] = malo;
        EXPECT_TRUE(Sentencia("HIST X INTERX 2"));
        EXPECT_EQ(Prueba.resultados.back().lineas.at(2).second,
                  "              1.00              3.00                 2");
    }
}

// ----- The dialog

struct ClasesDelDialogo {
    ModosDeClases modo;
    const char *minimo, *maximo, *intervalos;
    std::vector<const char *> dados;
    Numeros limites;
};
class HistDialogo : public Hist, public testing::WithParamInterface<ClasesDelDialogo> {};
TEST_P(HistDialogo, Clases) {
    const ClasesDelDialogo &p = GetParam();
    ValoresHistograma v;
    v.serie = "X";
    v.modo = p.modo;
    v.minimo = p.minimo;
    v.maximo = p.maximo;
    v.intervalos = p.intervalos;
    for (std::size_t i = 0; i < p.dados.size(); ++i) v.limites[i] = p.dados[i];
    DatosHistograma h;
    Prueba.enGrafico = [&](Grafico &g) { h = g.histograma; };
    EXPECT_EQ(AceptarHistograma(nullptr, v, 0, 4), 1);
    ASSERT_EQ(h.limites.size(), p.limites.size());
    for (std::size_t i = 0; i < p.limites.size(); ++i) EXPECT_DOUBLE_EQ(h.limites[i], p.limites[i]);
}
INSTANTIATE_TEST_SUITE_P(
    Casos, HistDialogo,
    testing::Values(
        ClasesDelDialogo{
            ClasesDeLosDatos, "7", "8", "3", {}, {1, 1.4, 1.8, 2.2, 2.6, 3, 3.4, 3.8, 4.2, 4.6, 5}},
        ClasesDelDialogo{ClasesEntreLimites, "0", "6", "3", {"9"}, {0, 2, 4, 6}},
        ClasesDelDialogo{ClasesEntreLimites, "0", "6", "1", {}, {0, 3, 6}},
        ClasesDelDialogo{ClasesEntreLimites, "", "6", "", {}, {0, 3, 6}},
        ClasesDelDialogo{ClasesEntreLimites,
                         "0",
                         "36",
                         "25",
                         {},
                         {0, 2, 4, 6, 8, 10, 12, 14, 16, 18, 20, 22, 24, 26, 28, 30, 32, 34, 36}},
        ClasesDelDialogo{ClasesDadas, "", "", "", {"1", "2", "4.5"}, {1, 2, 4.5}},
        ClasesDelDialogo{ClasesDadas, "", "", "", {"1", "2", "2", "7"}, {1, 2}},
        ClasesDelDialogo{ClasesDadas, "", "", "", {"1", "2", "1.5", "7"}, {1, 2}},
        ClasesDelDialogo{ClasesDadas, "", "", "", {"3", "2", "7"}, {3, 2, 7}},
        ClasesDelDialogo{ClasesDadas, "", "", "", {}, {0, 0}},
        ClasesDelDialogo{ClasesDadas,
                         "",
                         "",
                         "",
                         {"1", "2", "3", "4", "5", "6", "7", "8", "9", "10"},
                         {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}}));

TEST_F(Hist, TituloDelDialogo) {
    ValoresHistograma v;
    v.serie = "X";
    v.titulo = "Edades"; // 6 letters: 120 + (784 - 48) / 2
    AceptarHistograma(nullptr, v, 0, 4);
    EXPECT_EQ(Dibujo().back(), "texto 488,16 Edades");
    Prueba = {};
    v.tituloArriba = false;
    AceptarHistograma(nullptr, v, 0, 4);
    EXPECT_EQ(Dibujo().back(), "texto 488,736 Edades");
    Prueba = {};
    v.conTitulo = false;
    AceptarHistograma(nullptr, v, 0, 4);
    EXPECT_EQ(Solo(Dibujo(), "texto", "Edades").size(), 0U);
    Prueba = {};
    v = ValoresHistograma{};
    v.serie = "X"; // the blank title that the dialog begins with isn't drawn
    AceptarHistograma(nullptr, v, 0, 4);
    EXPECT_EQ(Solo(Dibujo(), "texto 5", ",16 ").size(), 0U);
}

TEST_F(Hist, EjeYDelDialogo) {
    ValoresHistograma v;
    v.serie = "X";
    v.minYDefecto = v.maxYDefecto = false;
    v.minY = "-2.9";
    v.maxY = "7.9"; // whole numbers
    v.divisiones = "30";
    Prueba.enGrafico = [](Grafico &g) {
        EXPECT_EQ(g.limites.minY, -2);
        EXPECT_EQ(g.limites.maxY, 7);
        EXPECT_EQ(g.opciones.intervalosY, 20);
    };
    EXPECT_EQ(AceptarHistograma(nullptr, v, 0, 4), 1);
    EXPECT_EQ(Prueba.graficos.size(), 1U);
}

TEST_F(Hist, SerieNoValida) {
    for (const char *serie : {"", "NADA"}) {
        Prueba = {};
        ValoresHistograma v;
        v.serie = serie;
        EXPECT_EQ(AceptarHistograma(nullptr, v, 0, 4), 0);
        EXPECT_EQ(Prueba.cajas,
                  (std::vector<CajaVista>{{"Aviso", "Serie no válida.", IconoInformacion, BotonesAceptar}}));
    }
}

TEST_F(Hist, TablaParaHojas) {
    std::string tabla;
    Prueba.enGrafico = [&](Grafico &g) { tabla = Utf8De1252(TablaDeGrafico(g)); };
    ASSERT_TRUE(Sentencia("HIST X INTERX 2"));
    EXPECT_EQ(tabla, "Límite inferior\tLímite superior\tFrecuencia\n1\t3\t3\n3\t5\t2\n");
}

} // namespace
