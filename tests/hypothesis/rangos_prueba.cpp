// CRA: ranks, their correlation, and what the test refuses.
#include "hypothesis/apoyo_contrastes.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

const std::vector<double> O = {7, 3, 9, 3, 5, 1, 8, 3, 2, 6, 5, 4, 9, 0, 7, 5, 2, 8, 1, 6};

void EmpezarRangos(const char *regresion = "MC Y 1 X") {
    EmpezarRegresion();
    PonerSerie("O", O);
    EXPECT_TRUE(Procesar(regresion));
    Prueba.cajas.clear();
    Prueba.resultados.clear();
}

// Each value's rank is the number of those that are smaller, and one more: ties take the lowest.
std::vector<double> Rangos(const std::vector<double> &valores) {
    std::vector<double> r;
    for (const double v : valores)
        r.push_back(static_cast<double>(
                        std::count_if(valores.begin(), valores.end(), [&](double w) { return w < v; })) +
                    1);
    return r;
}

double Correlacion(const std::vector<double> &a, const std::vector<double> &b) {
    long double ma = 0, mb = 0, ab = 0, aa = 0, bb = 0;
    for (std::size_t i = 0; i < a.size(); ++i) {
        ma += a[i] / static_cast<long double>(a.size());
        mb += b[i] / static_cast<long double>(a.size());
    }
    for (std::size_t i = 0; i < a.size(); ++i) {
        ab += (a[i] - ma) * (b[i] - mb);
        aa += (a[i] - ma) * (a[i] - ma);
        bb += (b[i] - mb) * (b[i] - mb);
    }
    return static_cast<double>(ab / std::sqrt(aa * bb));
}

// What the store holds when the report is shown.
struct Vistos {
    double r = NAN, t = NAN, gl = NAN, p = NAN;
    std::vector<double> rangos; // deviations of the ranks of the ordering variable from their mean, all rows
};

Vistos Contrastar(const std::string &texto) {
    Vistos v;
    MirarAlMostrar([&] {
        v.r = EscalarDe("_TMP9");
        v.t = EscalarDe("_TMP10");
        v.gl = EscalarDe("_TMP11");
        v.p = EscalarDe("_TMP12");
        v.rangos = ValoresDe("_TMP1", 20);
    });
    EXPECT_TRUE(Procesar(texto)) << texto;
    EXPECT_EQ(TextosDeCajas(), Textos{});
    return v;
}

std::vector<double> Absolutos(std::vector<double> v) {
    for (double &x : v) x = std::fabs(x);
    return v;
}

void EsperarCerca(double valor, double esperado) {
    EXPECT_NEAR(valor, esperado, 1e-9 * std::max(1.0, std::fabs(esperado)));
}

} // namespace

TEST(Rangos, CorrelacionDeSpearman) {
    EmpezarRangos();
    const std::vector<double> residuos = Minimos(ValoresDe("Y", 20), {Unos(20), ValoresDe("X", 20)}).residuos;
    const double r = Correlacion(Rangos(O), Rangos(Absolutos(residuos)));
    const Vistos v = Contrastar("CRA O");
    EsperarCerca(v.r, r);
    EsperarCerca(v.t, r * std::sqrt(18.0) / std::sqrt(1.0 - r * r));
    EXPECT_EQ(v.gl, 18.0);
    EXPECT_EQ(v.rangos, Rangos(O));
    PonerEscalar(nullptr, "TE", v.t);
    EXPECT_EQ(v.p, Formula("PROBT(TE,18)"));
    EXPECT_EQ(TemporalesQueQuedan(), Textos{});
}

// 0 1 1 2 2 3 3 3 4 5 5 5 ...: the three at 3 have the rank 6, and the 4 behind them 9.
TEST(Rangos, LosEmpatesTomanElMenor) {
    EmpezarRangos();
    const Vistos v = Contrastar("CRA O");
    EXPECT_EQ(v.rangos[13], 1.0);
    EXPECT_EQ(v.rangos[5], 2.0);
    EXPECT_EQ(v.rangos[18], 2.0);
    EXPECT_EQ(v.rangos[8], 4.0);
    EXPECT_EQ(v.rangos[1], 6.0);
    EXPECT_EQ(v.rangos[3], 6.0);
    EXPECT_EQ(v.rangos[7], 6.0);
    EXPECT_EQ(v.rangos[11], 9.0);
}

// Residuals of opposite sign have the same absolute value, and ranks of their own: they are looked for with their signs. In
// the last regression they are 1, -1, 1, -1, ...; the first in the sorted copy takes the first rank and the other sign the
// place where it first stands.
TEST(Rangos, LosResiduosSeBuscanConSuSigno) {
    EmpezarConDatos(TipoSinPeriodicidad, "");
    PonerSerie("Y", {1, -1, 1, -1, 1, -1});
    PonerSerie("O", {1, 2, 3, 4, 5, 6});
    ASSERT_TRUE(Procesar("MUEST 1 6\nVSR NO\nMC Y 1"));
    std::vector<double> rangos;
    MirarAlMostrar([&] {
        for (const double d : ValoresDe("_TMP2", 6)) rangos.push_back(d);
    });
    EXPECT_TRUE(Procesar("CRA O"));
    EXPECT_EQ(rangos, (std::vector<double>{1, 2, 1, 2, 1, 2}));
}

// Ties between residuals of both signs, in the order in which the plain double loop over rows leaves them.
TEST(Rangos, LosEmpatesDeResiduosComoElDobleBucle) {
    EmpezarConDatos(TipoSinPeriodicidad, "");
    const std::vector<double> e = {2, -1, 3, 1, -2, -3, 2, -1, 1, -2, 3, -3, -1, 1, 2, -2};
    std::vector<double> orden, ordenados = e, rangos, vistos;
    for (std::size_t i = 0; i < e.size(); ++i) orden.push_back(static_cast<double>(i));
    PonerSerie("Y", e);
    PonerSerie("O", orden);
    ASSERT_TRUE(Procesar("MUEST 1 16\nVSR NO\nMC Y 1"));
    ASSERT_EQ(ValoresDe("_RES", 16), e); // their mean is 0
    for (std::size_t i = 0; i + 1 < e.size(); ++i)
        for (std::size_t j = i + 1; j < e.size(); ++j)
            if (std::fabs(ordenados[j]) < std::fabs(ordenados[i])) std::swap(ordenados[i], ordenados[j]);
    for (const double x : e)
        rangos.push_back(
            1.0 + static_cast<double>(std::find(ordenados.begin(), ordenados.end(), x) - ordenados.begin()));
    MirarAlMostrar([&] { vistos = ValoresDe("_TMP2", 16); });
    EXPECT_TRUE(Procesar("CRA O"));
    EXPECT_EQ(vistos, rangos);
}

// Ranks count from the start of the series; the start of the sample falls out with the mean.
TEST(Rangos, EnParteDeLaMuestra) {
    EmpezarRangos();
    ASSERT_TRUE(Procesar("MUEST 4 18\nMC Y 1 X Z\nMUEST 1 20"));
    const auto parte = [](std::vector<double> v) {
        return std::vector<double>(v.begin() + 3, v.begin() + 18);
    };
    const std::vector<double> residuos =
        Minimos(parte(ValoresDe("Y", 20)), {Unos(15), parte(ValoresDe("X", 20)), parte(ValoresDe("Z", 20))})
            .residuos;
    const double r = Correlacion(Rangos(parte(O)), Rangos(Absolutos(residuos)));
    const Vistos v = Contrastar("CRA O");
    EsperarCerca(v.r, r);
    EXPECT_EQ(v.gl, 13.0);
    const double menor = *std::min_element(v.rangos.begin() + 3, v.rangos.begin() + 18);
    EXPECT_EQ(menor, 4.0);
}

// The text begins at the fifth character, whatever the fourth one is.
TEST(Rangos, ElTextoEmpiezaEnElQuintoCaracter) {
    EmpezarRangos();
    Contrastar("CRA  O * 2 ");
    EXPECT_EQ(UltimoContraste.ordenacion, " O * 2");
    Contrastar("CRA(O)");
    EXPECT_EQ(UltimoContraste.ordenacion, "O)");
}

// ----- The report

TEST(Rangos, SuInforme) {
    EmpezarRangos();
    const Vistos v = Contrastar("CRA O");
    ASSERT_EQ(Prueba.resultados.size(), 1u);
    const ResultadoVisto &r = Prueba.resultados.back();
    EXPECT_EQ(r.titulo, "Contrastes de heteroscedasticidad: Rangos");
    EXPECT_EQ(r.clase, OrdenCRA);
    const std::vector<std::pair<int, std::string>> lineas = {
        {0, "Variable Dep.: Y"},
        {0, "Regresores   : 1,X"},
        {0, "Muestra      :    1 -   20          Nº Observaciones     : 20"},
        {0, "Variable de ordenación : O"},
        {0, ""},
        {1, Utf8De1252(Formatear("      Estadístico t( 18) :%10.4f    Prob > |t| :%10.4f"_w, v.t, v.p))},
    };
    EXPECT_EQ(r.lineas, lineas);
    double t = 0.0, p = 0.0;
    ASSERT_EQ(std::sscanf(TablaMostrada.c_str(),
                          "Grados de libertad\t18\nEstadístico t\t%lf\nProb > |t|\t%lf\n", &t, &p),
              2)
        << TablaMostrada;
    EXPECT_EQ(t, v.t);
    EXPECT_EQ(p, v.p);
}

// Degrees of freedom have room for three figures.
TEST(Rangos, InformeDeCienObservacionesYMas) {
    EmpezarConDatos(TipoSinPeriodicidad, "");
    std::vector<double> y, x;
    for (int i = 0; i < 120; ++i) {
        y.push_back(i * 7 % 13);
        x.push_back(i * 5 % 11);
    }
    PonerSerie("Y", y);
    PonerSerie("X", x);
    ASSERT_TRUE(Procesar("MUEST 1 120\nVSR NO\nMC Y 1 X\nCRA X"));
    ASSERT_EQ(Prueba.resultados.size(), 1u);
    EXPECT_TRUE(Prueba.resultados[0].lineas.back().second.starts_with("      Estadístico t(118) :"));
}

TEST(Rangos, TrasMCPNoSeMuestra) {
    EmpezarRangos("MCP (1) Y 1 X");
    EXPECT_TRUE(Procesar("CRA O"));
    EXPECT_EQ(TextosDeCajas(), Textos{"Utilice MC ordinarios"});
    EXPECT_TRUE(Prueba.resultados.empty());
    EXPECT_EQ(TemporalesQueQuedan(), Textos{});
}

// ----- What is refused

namespace {

struct Caso {
    const char *texto;
    std::function<void()> preparar;
    const char *titulo, *caja; // the last box
};

constexpr const char *Variables = "No se pueden generar las variables temporales. P";

Textos Correr(const Caso &c) {
    EmpezarRangos();
    c.preparar();
    EXPECT_FALSE(Procesar(c.texto)) << c.texto;
    EXPECT_TRUE(Prueba.resultados.empty());
    return {Prueba.cajas.back().titulo, Prueba.cajas.back().texto};
}

} // namespace

TEST(Rangos, Rechazos) {
    const auto nada = [] {};
    const Caso casos[] = {
        {"CRA", nada, "Aviso", "Problemas en los cálculos"},
        {"CRA ", nada, "Aviso", "Problemas en los cálculos"},
        {"CRA NADA", nada, "Aviso", "Problemas en los cálculos"},
        {"CRA O +", nada, "Aviso", "Problemas en los cálculos"},
        {"CRA O", [] { LlenarSeries(99); }, "Aviso", "Borre algunos escalares"},
        {"CRA O", [] { PonerEscalar(nullptr, "_TMP1", 1); }, "Aviso", "Borre algunos escalares"},
        {"CRA O", [] { EliminarSerie(BuscarSerie("_RES")); }, "Proceso cancelado",
         "Realize primero una regresión. P11"},
    };
    for (const Caso &c : casos) EXPECT_EQ(Correr(c), (Textos{c.titulo, c.caja})) << c.texto;
}

// Each step that makes a series or a scalar is refused once where its result finds no room, or its name is taken.
TEST(Rangos, CadaPasoConSuPunto) {
    const CasoDePaso casos[] = {
        {[] { LlenarSeries(98); }, 12},
        {[] { LlenarSeries(97); }, 14},
        {[] { LlenarSeries(96); }, 25},
        {[] { LlenarSeries(95); }, 27},
        {[] { LlenarSeries(94); }, 29},
        {[] { LlenarSeries(93); }, 31},
        {[] { LlenarEscalares(59); }, 33},
        {[] { LlenarEscalares(58); }, 35},
        {[] { LlenarEscalares(57); }, 37},
        {[] { LlenarEscalares(56); }, 39},
        {[] { LlenarEscalares(55); }, 41},
        {[] { PonerEscalar(nullptr, "_TMP2", 1); }, 12},
        {[] { PonerMatriz("_TMP3", {1}, 1, 1); }, 14},
        {[] { PonerSerie("_TMP8", {1}); }, 33},
        {[] { PonerSerie("_TMP11", {1}); }, 39},
    };
    for (const CasoDePaso &c : casos) {
        const Caso caso = {"CRA O", c.preparar, "", ""};
        EXPECT_EQ(Correr(caso), (Textos{"Proceso cancelado", Variables + std::to_string(c.punto)}))
            << c.punto;
    }
}
