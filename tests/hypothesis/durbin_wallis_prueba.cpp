// CDU and CWA: the statistics, the reports, what is refused.
#include "hypothesis/apoyo_contrastes.h"

#include <gtest/gtest.h>

namespace {

struct Vistos {
    double h = NAN, p = NAN, wallis = NAN;
};

Vistos Contrastar(const std::string &texto) {
    Vistos v;
    MirarAlMostrar([&] {
        v.h = EscalarDe("_TMDU");
        v.p = EscalarDe("_TMDN");
        v.wallis = EscalarDe("_DWWA");
    });
    EXPECT_TRUE(Procesar(texto)) << texto;
    EXPECT_EQ(TemporalesQueQuedan(), Textos{});
    return v;
}

void EmpezarRegresionDe(const char *regresion) {
    EmpezarRegresion();
    EXPECT_TRUE(Procesar(regresion));
    Prueba.cajas.clear();
    Prueba.resultados.clear();
}

double SeisDecimales(double x) {
    return std::round(x * 1e6) / 1e6;
}

// Puts the variance of the regressor with the shortest lag, which is the last one of MC Y 1 Y(-1), and the Durbin-Watson
// statistic in their places.
void PonerVarianza(double v, double dw) {
    PonerMatriz("_COV", {9, 9, 9, v}, 2, 2);
    PonerEscalar(nullptr, "_DW", dw);
}

} // namespace

// ----- Durbin's h

struct CasoDurbin {
    const char *nombre;
    double v, dw;
    double h;
    bool imaginario;
};

// 19 observations: the lag takes one.
const CasoDurbin Durbins[] = {
    {"comun", 0.01, 1.6, 0.2 * 4.843221, false}, // sqrt(19 / 0.81) = 4.8432210
    {"negativa", 0.01, 2.5, -0.25 * 4.843221, false},
    {"sin rho", 0.01, 2.0, 0.0, false},
    {"imaginaria", 0.1, 1.0, 0.0, true},
    {"exacta", 1.0 / 19.0, 1.0, 0.0, false},
};

class Durbin : public testing::TestWithParam<CasoDurbin> {};

TEST_P(Durbin, Estadistico) {
    const CasoDurbin &c = GetParam();
    EmpezarRegresionDe("MC Y 1 Y(-1)");
    PonerVarianza(c.v, c.dw);
    const Vistos v = Contrastar("CDU");
    EXPECT_NEAR(v.h, c.h, 1e-12);
    EXPECT_EQ(v.p, Formula(Formatear("PROBN(%f)", SeisDecimales(std::fabs(c.h)))));
    EXPECT_EQ(TextosDeCajas(), c.imaginario ? Textos{"El resultado es un número imaginario"} : Textos{});
    for (const CajaVista &caja : Prueba.cajas) EXPECT_EQ(caja.titulo, "Aviso");
    EXPECT_EQ(Prueba.resultados.size(), 1u);
}

INSTANTIATE_TEST_SUITE_P(DurbinWallis, Durbin, testing::ValuesIn(Durbins));

// From the regression's own numbers, the factors rounded to six decimals and the product not.
TEST(DurbinWallis, DurbinDeUnaRegresion) {
    EmpezarRegresionDe("MC Y 1 X(-2) Z(-1) Z(-3)");
    const int n = 17;
    int filas = 0, columnas = 0;
    const std::vector<double> cov = MatrizDe("_COV", filas, columnas);
    const double v = cov[2 * 4 + 2]; // the lag of Z is the shortest
    const double rho = 1 - EscalarDe("_DW") / 2, raiz = std::sqrt(n / (1 - n * v));
    ASSERT_GT(1 - n * v, 0);
    const Vistos visto = Contrastar("CDU");
    EXPECT_DOUBLE_EQ(visto.h, SeisDecimales(rho) * SeisDecimales(raiz));
    EXPECT_EQ(visto.p, Formula(Formatear("PROBN(%f)", std::fabs(rho) * raiz)));
}

// A lagged regressor in front of the lagged dependent: it has the shortest lag.
TEST(DurbinWallis, DurbinTomaElRetardoMasCorto) {
    EmpezarRegresionDe("MC Y 1 X(-1) Y(-2)");
    PonerMatriz("_COV", {9, 9, 9, 9, 0.02, 9, 9, 9, 9}, 3, 3);
    PonerEscalar(nullptr, "_DW", 1.0);
    EXPECT_NEAR(Contrastar("CDU").h, 0.5 * SeisDecimales(std::sqrt(18 / (1 - 18 * 0.02))), 1e-12);
}

TEST(DurbinWallis, DurbinSinDW) {
    EmpezarRegresionDe("MC Y 1 Y(-1)");
    PonerVarianza(0.0, 0.0);
    BorrarEscalar(BuscarEscalar("_DW"));
    EXPECT_NEAR(Contrastar("CDU").h, SeisDecimales(std::sqrt(19.0)), 1e-12);
}

TEST(DurbinWallis, InformeDeDurbin) {
    EmpezarRegresionDe("MC Y 1 Y(-1)");
    PonerVarianza(0.01, 1.6);
    const Vistos v = Contrastar("CDU");
    ASSERT_EQ(Prueba.resultados.size(), 1u);
    const ResultadoVisto &r = Prueba.resultados.back();
    EXPECT_EQ(r.titulo, "Contrastes de autocorrelación: h de Durbin");
    EXPECT_EQ(r.clase, OrdenCDU);
    const std::vector<std::pair<int, std::string>> lineas = {
        {0, "Variable Dep.: Y"},
        {0, "Regresores   : 1,Y(-1)"},
        {0, "Muestra      :    2 -   20          Nº Observaciones     : 19"},
        {0, ""},
        {2, Formatear("    h de Durbin     0.9686         Prob > |N| :%10.4f", v.p)},
    };
    EXPECT_EQ(r.lineas, lineas);
    EXPECT_TRUE(TablaMostrada.starts_with("h de Durbin\t0.9686")) << TablaMostrada;
    EXPECT_NE(TablaMostrada.find("\nProb > |N|\t"), std::string::npos) << TablaMostrada;
}

TEST(DurbinWallis, RechazosDeDurbin) {
    const struct {
        const char *regresion;
        std::function<void()> preparar;
        const char *caja;
    } casos[] = {
        {"MC Y 1 X", [] {}, "No existen retardos en la regresión"},
        {"MC Y 1 Y(-1)", [] { BorrarMatriz(nullptr, BuscarMatriz("_COV")); },
         "No se encuentra la matriz de covarianza"},
        {"MC Y 1 X", [] { BorrarMatriz(nullptr, BuscarMatriz("_COV")); },
         "No se encuentra la matriz de covarianza"},
        {"MC Y 1 Y(-1)", [] { PonerMatriz("_COV", {1}, 1, 1); }, "No se encuentra la matriz de covarianza"},
        {"MC Y 1 Y(-1)",
         [] {
             PonerMatriz("_COV", {1, 1}, 2, 1);
         },
         "No se encuentra la matriz de covarianza"},
        {"MC Y 1 Y(-1)", [] { PonerMatriz("_TMDU", {1}, 1, 1); }, "Secuencia no válida"},
        {"MC Y 1 Y(-1)", [] { PonerMatriz("_TMDN", {1}, 1, 1); }, "Secuencia no válida"},
    };
    for (const auto &c : casos) {
        SCOPED_TRACE(c.caja);
        EmpezarRegresionDe(c.regresion);
        c.preparar();
        PonerEscalar(nullptr, "_TMDU", 5);
        PonerEscalar(nullptr, "_TMDN", 5);
        EXPECT_FALSE(Procesar("CDU"));
        EXPECT_EQ(TextosDeCajas(), Textos{c.caja});
        EXPECT_EQ(Prueba.cajas[0].titulo, "Aviso");
        EXPECT_TRUE(std::isnan(EscalarDe("_TMDU")));
        EXPECT_TRUE(std::isnan(EscalarDe("_TMDN")));
        EXPECT_TRUE(Prueba.resultados.empty());
    }
}

// ----- Wallis

namespace {

double Wallis(const std::vector<double> &e) {
    double a = 0, b = 0;
    for (std::size_t t = 4; t < e.size(); ++t) {
        a += (e[t] - e[t - 4]) * (e[t] - e[t - 4]);
        b += e[t] * e[t];
    }
    return SeisDecimales(a / b);
}

} // namespace

TEST(DurbinWallis, WallisDeUnaRegresion) {
    EmpezarRegresionDe("MC Y 1 X");
    const std::vector<double> e = Minimos(ValoresDe("Y", 20), {Unos(20), ValoresDe("X", 20)}).residuos;
    EXPECT_EQ(Contrastar("CWA").wallis, Wallis(e));
}

// Only the sample of the regression counts.
TEST(DurbinWallis, WallisEnParteDeLaMuestra) {
    EmpezarRegresionDe("MUEST 3 15\nMC Y 1 X\nMUEST 1 20");
    const int s = BuscarSerie("_RES");
    std::vector<double> e;
    for (int t = 0; t < 20; ++t) {
        PonerObservacion(t, s, 1.0 + t * t % 7, 1);
        if (t >= 2 && t <= 14) e.push_back(1.0 + t * t % 7);
    }
    EXPECT_EQ(Contrastar("CWA").wallis, Wallis(e));
}

TEST(DurbinWallis, WallisSinSumas) {
    EmpezarRegresionDe("MUEST 1 4\nMC Y 1\nMUEST 1 20");
    EXPECT_EQ(Contrastar("CWA").wallis, 0.0); // four observations have no difference of fourth order
    EmpezarRegresionDe("MC Y 1 X");
    LimpiarColumna(BuscarSerie("_RES"));
    EXPECT_EQ(Contrastar("CWA").wallis, 0.0);
}

TEST(DurbinWallis, InformeDeWallis) {
    EmpezarRegresionDe("MC Y 1 X");
    const double d = Contrastar("CWA").wallis;
    ASSERT_EQ(Prueba.resultados.size(), 1u);
    const ResultadoVisto &r = Prueba.resultados.back();
    EXPECT_EQ(r.titulo, "Contrastes de autocorrelación: Wallis");
    EXPECT_EQ(r.clase, OrdenCWA);
    const std::vector<std::pair<int, std::string>> lineas = {
        {0, "Variable Dep.: Y"},
        {0, "Regresores   : 1,X"},
        {0, "Muestra      :    1 -   20          Nº Observaciones     : 20"},
        {0, ""},
        {2, Formatear("                     Wallis    :    %10.4f", d)},
    };
    EXPECT_EQ(r.lineas, lineas);
    EXPECT_TRUE(TablaMostrada.starts_with("Wallis\t")) << TablaMostrada;
    EXPECT_EQ(Prueba.titulo, "Tabira");
}

TEST(DurbinWallis, RechazosDeWallis) {
    const struct {
        std::function<void()> preparar;
        const char *caja;
    } casos[] = {
        {[] { EliminarSerie(BuscarSerie("_RES")); }, "Realize previamente una regresión"},
        {[] { PonerMatriz("_DWWA", {1}, 1, 1); }, "Borre algunos escalares"},
        {[] { PonerSerie("_DWWA", {1}); }, "Borre algunos escalares"},
        {[] {
             PonerObservacion(7, BuscarSerie("_RES"), 1e200, 1);
             PonerObservacion(11, BuscarSerie("_RES"), 1e200, 1);
         },
         "Problemas en los cálculos"},
    };
    for (const auto &c : casos) {
        SCOPED_TRACE(c.caja);
        EmpezarRegresionDe("MC Y 1 X");
        c.preparar();
        EXPECT_FALSE(Procesar("CWA"));
        EXPECT_EQ(TextosDeCajas().back(), c.caja);
        EXPECT_EQ(Prueba.cajas.back().titulo, "Aviso");
        EXPECT_TRUE(Prueba.resultados.empty());
        EXPECT_TRUE(std::isnan(EscalarDe("_DWWA")));
    }
}
