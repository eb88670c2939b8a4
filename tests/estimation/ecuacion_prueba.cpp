// The statements of least squares: forms of the equation, options, range, and the record of the last regression.
#include "apoyo/datos_regresion.h"

#include <cmath>
#include <gtest/gtest.h>

namespace {

using Textos = std::vector<std::string>;

std::string Nombres(const std::vector<std::string> &nombres) {
    std::string r;
    for (const std::string &n : nombres) r += n + "|";
    return r;
}

} // namespace

// ----- What a statement estimates

struct Estimada {
    const char *sentencia;
    const char *regresores; // as they are noted, joined
    int series, n;
    int primera, ultima;
    int retardado;
};

class Ecuacion : public testing::TestWithParam<Estimada> {};

TEST_P(Ecuacion, Anota) {
    const Estimada &c = GetParam();
    EmpezarRegresion();
    ASSERT_TRUE(Procesar(c.sentencia)) << c.sentencia << " " << Nombres(TextosDeCajas());
    const RegistroRegresion &u = UltimaRegresion;
    EXPECT_EQ(Nombres(u.CodigosRegresores), c.regresores);
    EXPECT_EQ(u.NumRegresores, static_cast<int>(u.CodigosRegresores.size()));
    EXPECT_EQ(u.SeriesRegresion[OrdenMC], c.series);
    EXPECT_EQ(EscalarDe("_NORE") + EscalarDe("_NREG"), c.n);
    EXPECT_EQ(u.PrimeraObsRegresion, c.primera);
    EXPECT_EQ(u.UltimaObsRegresion, c.ultima);
    EXPECT_EQ(u.RegresorRetardado, c.retardado);
    EXPECT_EQ(u.RegresionHecha, 1);
    EXPECT_EQ(u.MetodoRegresion, 8);
    EXPECT_EQ(std::string(u.CodigoDependiente), "Y           ");
    EXPECT_TRUE(Prueba.cajas.empty());
}

INSTANTIATE_TEST_SUITE_P(Formas, Ecuacion,
                         testing::Values(Estimada{"MC Y X", "X|", 1, 20, 0, 19, -1},
                                         Estimada{"MC Y 1", "1|", 0, 20, 0, 19, -1},
                                         Estimada{"MC Y 1 X", "1|X|", 1, 20, 0, 19, -1},
                                         Estimada{"mc y   1   x  z ", "1|X|Z|", 2, 20, 0, 19, -1},
                                         Estimada{"MC Y ALFA X", "ALFA|X|", 1, 20, 0, 19, -1},
                                         Estimada{"MC Y X ALFA", "X|ALFA|", 1, 20, 0, 19, -1},
                                         Estimada{"MC Y X 1", "X|1|", 1, 20, 0, 19, -1},
                                         Estimada{"MC Y 2.5 X", "2.5|X|", 1, 20, 0, 19, -1},
                                         Estimada{"MC (CN) Y 1 X", "1|X|", 1, 20, 0, 19, -1},
                                         Estimada{"MC (ZZ) Y 1 X", "1|X|", 1, 20, 0, 19, -1},
                                         Estimada{"MC ( CN ) Y 1 X", "1|X|", 1, 20, 0, 19, -1},
                                         Estimada{"MC Y 1 X(-2) X(1)", "1|X(-2)|X(1)|", 2, 17, 2, 18, 2},
                                         Estimada{"MC Y 1 X(-2) Z(-1)", "1|X(-2)|Z(-1)|", 2, 18, 2, 19, 2},
                                         Estimada{"MC Y 1 X(-1) Z(1)", "1|X(-1)|Z(1)|", 2, 18, 1, 18, 1},
                                         Estimada{"MC Y 1 X ( - 3 ) Z", "1|X(-3)|Z|", 2, 17, 3, 19, 1},
                                         Estimada{"MC Y 1 X Z(2.9)", "1|X|Z(2)|", 2, 18, 0, 17, 2},
                                         Estimada{"MC Y X Z[3]", "X|Z[3]|", 2, 20, 0, 19, -1},
                                         Estimada{"MC Y Z[ 3 ] X", "Z[3]|X|", 2, 20, 0, 19, -1}));

TEST(EcuacionMC, ElDummyDeUnPeriodoSeGeneraYDesaparece) {
    EmpezarRegresion();
    // The value of Z in period 3 is 1, in every row: a constant by another name.
    ASSERT_TRUE(Procesar("MC Y 1 X"));
    int f = 0, c = 0;
    const std::vector<double> beta = MatrizDe("_BETA", f, c);
    ASSERT_TRUE(Procesar("MC Y Z[3] X"));
    EXPECT_EQ(MatrizDe("_BETA", f, c), beta);
    EXPECT_EQ(BuscarSerieEnTabla("_TMR1"), -1);
}

TEST(EcuacionMC, RetardosPorSusValores) {
    EmpezarRegresion();
    ASSERT_TRUE(Procesar("SER W = X(-2)\nSER V = Z(1)\nMUEST 3 19\nMC Y 1 W V"));
    int f = 0, c = 0;
    const std::vector<double> beta = MatrizDe("_BETA", f, c), res = ValoresDe("_RES", 20);
    ASSERT_TRUE(Procesar("MUEST 1 20\nMC Y 1 X(-2) Z(1)"));
    EXPECT_EQ(MatrizDe("_BETA", f, c), beta);
    const std::vector<double> otros = ValoresDe("_RES", 20);
    for (std::size_t i = 0; i < 20; ++i) {
        EXPECT_EQ(std::isnan(otros[i]), i < 2 || i > 18);
        if (!std::isnan(otros[i])) {
            EXPECT_EQ(otros[i], res[i]);
        }
    }
}

TEST(EcuacionMC, TextosGuardados) {
    EmpezarRegresion();
    ASSERT_TRUE(Procesar("mc (cn) y 1 x"));
    EXPECT_EQ(UltimaRegresion.TextoEcuacion, "Y 1 X");
    EXPECT_EQ(UltimaRegresion.SentenciaRegresion, "MC (CN) Y 1 X");
    ASSERT_TRUE(Procesar("MC Y 1 X" + std::string(200, ' ') + "Z"));
    EXPECT_EQ(UltimaRegresion.TextoEcuacion.size(), 100u);
    PonerSerie("EDUCACIO", {1, 4, 2, 9, 3, 3, 1, 7, 2, 2, 9, 1, 4, 5, 2, 6, 2, 8, 1, 3});
    ASSERT_TRUE(Procesar("MC Y 1 EDUCACIO(-10)"));
    EXPECT_EQ(UltimaRegresion.CodigosRegresores[1], "EDUCACIO(-10");
}

TEST(EcuacionMC, OpcionesDeCovarianza) {
    static constexpr struct {
        const char *sentencia;
        int tipo, retardos;
    } Casos[] = {
        {"MC (CN) Y 1 X", 1, 1},   {"MC (CH) Y 1 X", 2, 1},      {"MC (CA 3) Y 1 X", 3, 3},
        {"MC (CA3) Y 1 X", 3, 3},  {"MC (CA 2.7 ) Y 1 X", 3, 2}, {"MC (CA -4) Y 1 X", 3, 0},
        {"MC (CA) Y 1 X", 3, 0},   {"MC (CA 0) Y 1 X", 3, 0},    {"MC (CA 99999999999) Y 1 X", 3, 2147483647},
        {"MC ( CH ) Y 1 X", 2, 1}, {"MC Y 1 X", 1, 1},
    };
    for (const auto &c : Casos) {
        SCOPED_TRACE(c.sentencia);
        EmpezarRegresion();
        Procesar(c.sentencia);
        EXPECT_EQ(UltimaRegresion.TipoCovarianza, c.tipo);
        EXPECT_EQ(UltimaRegresion.RetardosCovarianza, c.retardos);
        EXPECT_EQ(TextosDeCajas(), Textos{});
    }
}

TEST(EcuacionMC, ElRangoQuedaMovidoHastaElSiguiente) {
    EmpezarRegresion();
    ASSERT_TRUE(Procesar("MC Y 1 X(-2)"));
    EXPECT_EQ(Muestra.InicioRegresion, 2);
    // CR goes on from there, and puts the range back whatever becomes of it.
    Procesar("CR Y 1 Z(-3)");
    EXPECT_EQ(Muestra.InicioRegresion, 2);
    EXPECT_EQ(Muestra.FinRegresion, 19);
    ASSERT_TRUE(Procesar("MC Y 1 X"));
    EXPECT_EQ(Muestra.InicioRegresion, 0);
}

TEST(EcuacionMC, UnFalloDejaLaUltimaRegresion) {
    EmpezarRegresion();
    ASSERT_TRUE(Procesar("MC Y 1 X"));
    int f = 0, c = 0;
    const std::vector<double> beta = MatrizDe("_BETA", f, c);
    EXPECT_FALSE(Procesar("MC Z 1 FALTA"));
    EXPECT_EQ(MatrizDe("_BETA", f, c), beta);
    EXPECT_EQ(Nombres(UltimaRegresion.CodigosRegresores), "1|X|");
    EXPECT_EQ(std::string(UltimaRegresion.CodigoDependiente), "Y           ");
    EXPECT_EQ(BuscarMatriz("_YDEP"), -1);
    EXPECT_EQ(BuscarMatriz("_XIND"), -1);
}

TEST(EcuacionMC, VsrDecideSiSePregunta) {
    EmpezarRegresion();
    ASSERT_TRUE(Procesar("VSR SI\nMC Y 1 X"));
    ASSERT_EQ(Prueba.cajas.size(), 1u);
    EXPECT_EQ(Prueba.cajas[0], (CajaVista{"Aviso", "¿Desea ver la regresion?", IconoPregunta, BotonesSiNo}));
    EXPECT_EQ(Prueba.resultados.size(), 1u);
    Prueba.respuestas = {RespuestaNo};
    ASSERT_TRUE(Procesar("MC Y 1 X"));
    EXPECT_EQ(Prueba.resultados.size(), 1u);
    ASSERT_TRUE(Procesar("VSR NO\nMC Y 1 Z"));
    EXPECT_EQ(Prueba.cajas.size(), 2u);
    EXPECT_EQ(Prueba.resultados.size(), 1u);
    EXPECT_EQ(Nombres(UltimaRegresion.CodigosRegresores), "1|Z|");
}

// Before a loop it silences MC and MCP, and them only.
TEST(EcuacionMC, VsrNoAntesDeUnBucle) {
    EmpezarRegresion();
    Lote.VerRegresion = 1;
    ASSERT_TRUE(
        Procesar("VSR NO\nREPITE J DESDE 1 HASTA 2\nMC Y 1 X Z\nMCP (X) Y 1 X Z\nFINREPITE\nCR Y 1 X\nCWH"));
    EXPECT_EQ(UltimaRegresion.MetodoRegresion, OrdenMCP);
    EXPECT_EQ(TextosDeCajas(), Textos{});
    ASSERT_EQ(Prueba.resultados.size(), 2u);
    EXPECT_EQ(Prueba.resultados[0].clase, OrdenCR);
    EXPECT_EQ(Prueba.resultados[1].clase, OrdenCWH);
}

// ----- Texts of any length

TEST(EcuacionMC, TextosLargos) {
    EmpezarRegresion();
    std::string muchos = "MC Y";
    for (int i = 0; i < 33000; ++i) muchos += " X";
    EXPECT_FALSE(Procesar(muchos));
    EXPECT_EQ(TextosDeCajas().front(), "Excesivos datos temporales. Pto 391");
    EXPECT_EQ(TextosDeCajas().back().substr(0, 27), "Secuencia no válida: [{ X ");
    Prueba.cajas.clear();
    EXPECT_FALSE(Procesar("MC Y " + std::string(100000, 'A')));
    EXPECT_EQ(TextosDeCajas(), Textos{"Nombre demasiado largo. Pto 121"});
    Prueba.cajas.clear();
    EXPECT_FALSE(Procesar("MC Y 1 X(-" + std::string(12, '9') + ")"));
    EXPECT_FALSE(Procesar("MC Y 1 X(" + std::string(12, '9') + ")"));
    EXPECT_FALSE(Procesar("MC Y 1 X(" + std::string(5000, '(') + std::string(5000, ')') + ")"));
    std::string retardos = "MC Y";
    for (int i = 1; i <= 200; ++i) retardos += Formatear(" X(-%d)", i);
    Prueba.cajas.clear();
    EXPECT_FALSE(Procesar(retardos)); // 5 series in use by now, 99 can be
    EXPECT_EQ(TextosDeCajas().back(), "Borre algunas series. Pto 862");
}
