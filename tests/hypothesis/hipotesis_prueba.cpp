// CHN: its lines over a batch, the statistic, what it leaves and what it refuses.
#include "hypothesis/apoyo_contrastes.h"
#include "hypothesis/hipotesis_nula.h"

#include <gtest/gtest.h>

namespace {

// The regression Y on 1, X, Z of the small work file, without boxes or windows so far.
void EmpezarHipotesis() {
    EmpezarRegresion();
    EXPECT_TRUE(Procesar("MC Y 1 X Z"));
    Prueba.cajas.clear();
    Prueba.resultados.clear();
}

Ajuste Completo() {
    return Minimos(ValoresDe("Y", 20), {Unos(20), ValoresDe("X", 20), ValoresDe("Z", 20)});
}

// ----- The statistic

struct Vistos {
    double f = NAN, p = NAN;
    std::vector<double> R, r;
    int filas = 0, columnas = 0;
};

Vistos Contrastar(const std::string &texto) {
    Vistos v;
    MirarAlMostrar([&] {
        v.f = EscalarDe("_FORLARH");
        v.p = EscalarDe("_ESTFH");
        int uno = 0, filas = 0;
        v.r = MatrizDe("_TMP2", filas, uno);
        EXPECT_EQ(uno, 1);
        v.R = MatrizDe("_TMP1", v.filas, v.columnas);
        EXPECT_EQ(filas, v.filas);
    });
    EXPECT_TRUE(Procesar(texto)) << texto;
    EXPECT_EQ(TextosDeCajas(), Textos{});
    return v;
}

void EsperarCerca(double valor, long double esperado) {
    EXPECT_NEAR(valor, static_cast<double>(esperado), 1e-9 * std::fabs(static_cast<double>(esperado)));
}

} // namespace

TEST(HipotesisNula, UnaRestriccionEsElCuadradoDeLaT) {
    EmpezarHipotesis();
    const Ajuste m = Completo();
    const Vistos v = Contrastar("CHN IR 1\nCHN MR 1 BETA(3) = 0\nCHN FR 1");
    const long double varianza = m.scr / 17 * m.inversa[2][2];
    EsperarCerca(v.f, m.beta[2] * m.beta[2] / varianza);
    EXPECT_EQ(v.R, (std::vector<double>{0, 0, 1}));
    EXPECT_EQ(v.r, std::vector<double>{0});
    EXPECT_EQ(v.filas, 1);
    EXPECT_EQ(v.columnas, 3);
}

// The F of the regression under the restrictions: Y - X on the constant, since BETA(2) = 1 and BETA(3) = 0.
TEST(HipotesisNula, EsLaFDeLaRegresionRestringida) {
    EmpezarHipotesis();
    std::vector<double> resto = ValoresDe("Y", 20);
    const std::vector<double> x = ValoresDe("X", 20);
    for (std::size_t t = 0; t < resto.size(); ++t) resto[t] -= x[t];
    const long double restringida = Minimos(resto, {Unos(20)}).scr, completa = Completo().scr;
    const Vistos v = Contrastar("CHN IR 2\nchn mr 1 2*beta(2) = 2\nCHN MR 2  BETA(3) = 0\nCHN FR 2");
    EsperarCerca(v.f, ((restringida - completa) / 2) / (completa / 17));
    EXPECT_EQ(v.R, (std::vector<double>{0, 2, 0, 0, 0, 1}));
    EXPECT_EQ(v.r, (std::vector<double>{2, 0}));
    EXPECT_EQ(HipotesisNula.q, 2);
    EXPECT_EQ(HipotesisNula.K, 3);
    EXPECT_EQ(HipotesisNula.textosGuardados[0], "2*BETA(2)=2");
    EXPECT_EQ(HipotesisNula.textosGuardados[1], "BETA(3)=0");
    // The probability is that of the store's own numbers.
    EXPECT_EQ(v.p, [&] {
        PonerEscalar(nullptr, "EFE", v.f);
        return Formula("PROBF(EFE,2,_NORE)");
    }());
}

// The restricted model asks the same of the regression by its sums of squares.
TEST(HipotesisNula, ElModeloRestringidoDaLaMismaF) {
    EmpezarHipotesis();
    const long double completa = Completo().scr;
    const long double restringida = Minimos(ValoresDe("Y", 20), {Unos(20), ValoresDe("X", 20)}).scr;
    const long double f = (restringida - completa) / (completa / 17);
    EsperarCerca(Contrastar("CHN IR 1\nCHN MR 1 BETA(3) = 0\nCHN FR 1").f, f);
    double delModelo = NAN;
    MirarAlMostrar([&] { delModelo = EscalarDe("_FORLAR"); });
    EXPECT_TRUE(Procesar("CR Y 1 X"));
    EsperarCerca(delModelo, f);
}

TEST(HipotesisNula, SuTabla) {
    EmpezarHipotesis();
    const Vistos v = Contrastar("CHN IR 1\nCHN MR 1 BETA(3) = 0\nCHN FR 1");
    double f = 0.0, p = 0.0;
    ASSERT_EQ(
        std::sscanf(TablaMostrada.c_str(),
                    "Grados de libertad 1\t1\nGrados de libertad 2\t17\nEstadístico F\t%lf\nProb > F\t%lf\n",
                    &f, &p),
        2)
        << TablaMostrada;
    EXPECT_EQ(f, v.f);
    EXPECT_EQ(p, v.p);
}

TEST(HipotesisNula, NadaQuedaDetras) {
    EmpezarHipotesis();
    const int matrices = TablaMatrices.numero, escalares = TablaEscalares.numero;
    const std::uint16_t series = ArchivoTrabajo.NumSeries;
    Contrastar("CHN IR 1\nCHN MR 1 BETA(3) = 0\nCHN FR 1");
    EXPECT_EQ(TemporalesQueQuedan(), Textos{});
    EXPECT_EQ(TablaMatrices.numero, matrices);
    EXPECT_EQ(TablaEscalares.numero, escalares);
    EXPECT_EQ(ArchivoTrabajo.NumSeries, series);
}

// ----- The window

TEST(HipotesisNula, SusLineas) {
    EmpezarHipotesis();
    ASSERT_TRUE(Procesar("CHN IR 2\nCHN MR 1 BETA ( 2 ) = 1\nCHN MR 2 BETA(3) = 0\nCHN FR 2"));
    ASSERT_EQ(Prueba.resultados.size(), 1u);
    const ResultadoVisto &v = Prueba.resultados.back();
    EXPECT_EQ(v.tipo, SalidaHipotesis);
    EXPECT_EQ(v.titulo, "Contraste de significatividad: Hipótesis nula");
    ASSERT_EQ(v.lineas.size(), 7u);
    EXPECT_EQ(v.lineas[0].second, "Variable Dep.: Y");
    EXPECT_EQ(v.lineas[1].second, "Regresores   : 1,X,Z");
    EXPECT_EQ(v.lineas[2].second, "Muestra      :    1 -   20          Nº Observaciones     : 20");
    EXPECT_EQ(v.lineas[3].second, "");
    EXPECT_EQ(v.lineas[4].second, "  BETA(2)=1");
    EXPECT_EQ(v.lineas[5].second, "  BETA(3)=0");
    std::vector<double> resto = ValoresDe("Y", 20);
    const std::vector<double> x = ValoresDe("X", 20);
    for (std::size_t t = 0; t < resto.size(); ++t) resto[t] -= x[t];
    const long double completa = Completo().scr;
    const double f = static_cast<double>((Minimos(resto, {Unos(20)}).scr - completa) / 2 / (completa / 17));
    const double p = Formula(Formatear("PROBF(%.12f,2,17)", f));
    EXPECT_EQ(v.lineas[6].second,
              Utf8De1252(Formatear(" Estadístico F(  2, 17) :%10.4f    Prob > F :%10.4f"_w, f, p)));
    // A rule stands where the kinds differ: behind the head and behind the restrictions.
    const int grupos[] = {v.lineas[0].first, v.lineas[4].first, v.lineas[6].first};
    EXPECT_NE(grupos[0], grupos[1]);
    EXPECT_NE(grupos[1], grupos[2]);
    for (std::size_t i = 1; i < 4; ++i) EXPECT_EQ(v.lineas[i].first, grupos[0]);
    EXPECT_EQ(v.lineas[5].first, grupos[1]);
}

// A number too wide for its field loses its first figures: 1,002 degrees of freedom in three characters.
TEST(HipotesisNula, LosGradosDeLibertadPierdenSusPrimerasCifras) {
    EmpezarConDatos(TipoSinPeriodicidad, "");
    std::vector<double> y, x;
    for (int i = 0; i < 1004; ++i) {
        y.push_back(i * 7 % 13);
        x.push_back(i * 5 % 11);
    }
    PonerSerie("Y", y);
    PonerSerie("X", x);
    ASSERT_TRUE(Procesar("MUEST 1 1004\nVSR NO\nMC Y 1 X\nCHN IR 1\nCHN MR 1 BETA(2)=0\nCHN FR 1"));
    ASSERT_EQ(Prueba.resultados.size(), 1u);
    EXPECT_TRUE(Prueba.resultados[0].lineas.back().second.starts_with(" Estadístico F(  1,002) :"));
}

// ----- The lines

namespace {

struct CasoLineas {
    const char *texto;
    Textos cajas;
};

const CasoLineas Lineas[] = {
    {"CHN XX 1", {"Introduzca factor restricciones: [XX]. Pto 2663"}},
    {"CHN", {"Introduzca factor restricciones: []. Pto 2663"}},
    {"CHN (IR) 1", {"Introduzca factor restricciones: []. Pto 2663"}},
    {"CHN IR", {"Introduzca número restricciones: []. Pto 2664"}},
    {"CHN IR DOS", {"Introduzca número restricciones: [DOS]. Pto 2664"}},
    {"CHN IR -1", {"Introduzca número restricciones: []. Pto 2664"}},
    {"CHN MR (1) BETA(1)=1", {"Introduzca número restricciones: []. Pto 2664"}},
    {"CHN FR A", {"Introduzca número restricciones: [A]. Pto 2664"}},
    {"CHN IR 0", {"Número restricciones no válido: [0]. Pto 2668"}},
    {"CHN IR 0.9", {"Número restricciones no válido: [0.9]. Pto 2668"}},
    {"CHN IR 1", {}},
    {"CHN IR 99", {}},
    {"CHN IR 1\nCHN MR 2 BETA(1)=1", {"Secuencia de restricciones no válidas: [1][2]. Pto 2665"}},
    {"CHN IR 2\nCHN MR 1 BETA(1)=1\nCHN MR 1 BETA(1)=1",
     {"Secuencia de restricciones no válidas: [2][1]. Pto 2665"}},
    // Without IR the count is that of the first line of all.
    {"CHN MR 1 BETA(1)=1\nCHN FR 1", {"Secuencia de restricciones no válidas: [1][1][0]. Pto 2666"}},
    {"CHN FR 1", {"Secuencia de restricciones no válidas: [0][1][0]. Pto 2666"}},
    {"CHN IR 1\nCHN FR 1", {"Secuencia de restricciones no válidas: [0][1][1]. Pto 2666"}},
    // No equation is read when the counts differ, not even a wrong one.
    {"CHN IR 1\nCHN MR 1 NADA\nCHN FR 2", {"Secuencia de restricciones no válidas: [1][2][1]. Pto 2666"}},
    {"CHN IR 2\nCHN MR 1 BETA(1)=1\nCHN FR 1",
     {"Secuencia de restricciones no válidas: [1][1][2]. Pto 2666"}},
    {"CHN IR 1\nCHN MR 1 NADA\nCHN FR 1", {"Sec. no válida[ ][NADA]", "Error en cálculos. P1"}},
    {"CHN IR 1\nCHN MR 1 BETA(9)=1\nCHN FR 1", {"Nº de regresores no válido", "Error en cálculos. P1"}},
    {"CHN IR 2\nCHN MR 1 BETA(1)=1\nCHN MR 2\nCHN FR 2", {"Introduzca datos"}},
    {"CHN IR 4\nCHN MR 1 BETA(1)=1\nCHN MR 2 BETA(2)=1\nCHN MR 3 BETA(3)=1\nCHN MR 4 BETA(1)=2\nCHN FR 4",
     {"Número de restricciones no válidas"}},
    // The same restriction twice: R V R' has no inverse.
    {"CHN IR 2\nCHN MR 1 BETA(1)=1\nCHN MR 2 BETA(1)=1\nCHN FR 2",
     {"Matriz singular. Pto 402", "Error en cálculos. P13"}},
};

class LineasCHN : public testing::TestWithParam<CasoLineas> {};

// The boxes of a test of one restriction, after what `preparar` did to the store.
Textos CajasDe(const std::function<void()> &preparar) {
    EmpezarHipotesis();
    preparar();
    const bool bien = Procesar("CHN IR 1\nCHN MR 1 BETA(1)=1\nCHN FR 1");
    EXPECT_EQ(bien, TextosDeCajas().empty());
    EXPECT_EQ(Prueba.resultados.size(), bien ? 1u : 0u);
    // The boxes of the evaluators come first.
    for (const CajaVista &caja : Prueba.cajas)
        if (&caja == &Prueba.cajas.back()) {
            EXPECT_EQ(caja.titulo, "Proceso cancelado");
        }
    return TextosDeCajas();
}

void Quitar(const char *matriz) {
    BorrarMatriz(nullptr, BuscarMatriz(matriz));
}

} // namespace

TEST_P(LineasCHN, SusMensajes) {
    EmpezarHipotesis();
    EXPECT_EQ(Procesar(GetParam().texto), GetParam().cajas.empty());
    EXPECT_EQ(TextosDeCajas(), GetParam().cajas);
    EXPECT_EQ(TemporalesQueQuedan(), Textos{});
    EXPECT_TRUE(Prueba.resultados.empty());
}

INSTANTIATE_TEST_SUITE_P(HipotesisNula, LineasCHN, testing::ValuesIn(Lineas));

TEST(HipotesisNula, SinLaUltimaRegresion) {
    EXPECT_EQ(CajasDe([] { Quitar("_BETA"); }), Textos{"No existe la matriz _BETA"});
    EXPECT_EQ(CajasDe([] { Quitar("_COV"); }), Textos{"No existe la matriz _COV"});
    EXPECT_EQ(CajasDe([] {}), Textos{});
}

// Each step of the chain fails once, when its formula is evaluated or when its result is stored.
TEST(HipotesisNula, CadaPasoConSuPunto) {
    const CasoDePaso casos[] = {
        {[] { LlenarMatrices(29); }, 10},  {[] { LlenarMatrices(28); }, 11},
        {[] { LlenarMatrices(27); }, 12},  {[] { LlenarMatrices(26); }, 13},
        {[] { LlenarMatrices(25); }, 14},  {[] { LlenarMatrices(24); }, 15},
        {[] { LlenarMatrices(23); }, 0},   {[] { PonerSerie("_FORLARH", {1}); }, 17},
        {[] { LlenarEscalares(59); }, 17}, {[] { BorrarEscalar(BuscarEscalar("_NORE")); }, 18},
        {[] { LlenarEscalares(58); }, 19}, {[] { LlenarEscalares(57); }, 0},
    };
    for (const CasoDePaso &c : casos) {
        const Textos cajas = CajasDe(c.preparar);
        EXPECT_EQ(cajas.empty() ? "" : cajas.back(),
                  c.punto == 0 ? "" : "Error en cálculos. P" + std::to_string(c.punto));
    }
}

// ----- The state between lines

TEST(HipotesisNula, LasLineasCuentanDeUnLoteAOtro) {
    EmpezarHipotesis();
    EXPECT_TRUE(Procesar("CHN IR 2\nCHN MR 1 BETA(1)=1"));
    EXPECT_FALSE(Procesar("NADA"));
    EXPECT_TRUE(Procesar("CHN MR 2 BETA(2)=1"));
    EXPECT_TRUE(Procesar("CHN FR 2"));
    EXPECT_EQ(Prueba.resultados.size(), 1u);
}

TEST(HipotesisNula, UnaLineaMalaEmpiezaDeNuevo) {
    EmpezarHipotesis();
    EXPECT_TRUE(Procesar("CHN IR 2\nCHN MR 1 BETA(1)=1"));
    EXPECT_FALSE(Procesar("CHN MR 7 BETA(1)=1"));
    Prueba.cajas.clear();
    EXPECT_TRUE(Procesar("CHN MR 1 BETA(1)=1")); // the count is back at the first one
    EXPECT_EQ(HipotesisNula.cuentaMR, 1);
    EXPECT_EQ(HipotesisNula.cuentaIR, 0);
}

TEST(HipotesisNula, UnContrasteAcabadoNoEmpiezaDeNuevo) {
    EmpezarHipotesis();
    EXPECT_TRUE(Procesar("CHN IR 1\nCHN MR 1 BETA(1)=1\nCHN FR 1"));
    EXPECT_EQ(HipotesisNula.iniciada, 1);
    EXPECT_FALSE(Procesar("CHN MR 1 BETA(1)=1"));
    EXPECT_EQ(TextosDeCajas(), Textos{"Secuencia de restricciones no válidas: [2][1]. Pto 2665"});
    Prueba.cajas.clear();
    EXPECT_TRUE(Procesar("CHN IR 1\nCHN MR 1 BETA(2)=1\nCHN FR 1"));
    EXPECT_EQ(HipotesisNula.textosGuardados[0], "BETA(2)=1");
}

// IR begins anew wherever it comes.
TEST(HipotesisNula, IREmpiezaDeNuevo) {
    EmpezarHipotesis();
    EXPECT_TRUE(Procesar("CHN IR 2\nCHN MR 1 BETA(1)=1\nCHN IR 1\nCHN MR 1 BETA(3)=1\nCHN FR 1"));
    EXPECT_EQ(HipotesisNula.textosGuardados[0], "BETA(3)=1");
}

// A text has 80 characters, which the blanks in front of it don't take; the rest is dropped.
TEST(HipotesisNula, TextosLargos) {
    EmpezarHipotesis();
    const std::string texto = "BETA(1)=" + std::string(80 - 10, '0') + "15";
    EXPECT_TRUE(Procesar("CHN IR 1\nCHN MR 1   " + texto + "3"));
    EXPECT_EQ(HipotesisNula.textos[0], texto);
}

// More than eleven lines are counted, eleven are kept; a number above eleven is ten.
TEST(HipotesisNula, MasDeOnceRestricciones) {
    EmpezarHipotesis();
    std::string texto = "CHN IR 12\n";
    for (int i = 1; i <= 12; ++i)
        texto += "CHN MR " + std::to_string(i) + " BETA(1)=" + std::to_string(i) + "\n";
    EXPECT_FALSE(Procesar(texto + "CHN FR 12"));
    EXPECT_EQ(TextosDeCajas(), Textos{"Número de restricciones no válidas"});
    EXPECT_EQ(HipotesisNula.q, 10);
    EXPECT_EQ(HipotesisNula.cuentaMR, 12);
    EXPECT_EQ(HipotesisNula.textos[10], "BETA(1)=11");
}

struct CasoNumero {
    int numero, q;
};

class NumeroDeRestricciones : public testing::TestWithParam<CasoNumero> {};

TEST_P(NumeroDeRestricciones, EntraEnSuRango) {
    EmpezarHipotesis();
    PonerMatriz("_BETA", std::vector<double>(11, 1.0), 11, 1);
    HipotesisNula.q = GetParam().numero;
    EXPECT_EQ(PrepararRestricciones(nullptr), 1);
    EXPECT_EQ(HipotesisNula.q, GetParam().q);
    EXPECT_EQ(HipotesisNula.K, 11);
}

INSTANTIATE_TEST_SUITE_P(HipotesisNula, NumeroDeRestricciones,
                         testing::Values(CasoNumero{-3, 1}, CasoNumero{0, 1}, CasoNumero{1, 1},
                                         CasoNumero{2, 2}, CasoNumero{10, 10}, CasoNumero{11, 11},
                                         CasoNumero{12, 10}, CasoNumero{1000, 10}));

// A _BETA that the user made can be longer than R has room for.
TEST(HipotesisNula, UnaBETADemasiadoLarga) {
    EmpezarHipotesis();
    HipotesisNula.q = 2;
    PonerMatriz("_BETA", std::vector<double>(20001, 1.0), 20001, 1);
    EXPECT_EQ(PrepararRestricciones(nullptr), 0);
    PonerMatriz("_BETA", std::vector<double>(20000, 1.0), 20000, 1);
    EXPECT_EQ(PrepararRestricciones(nullptr), 1);
    EXPECT_EQ(TextosDeCajas(), Textos{"Número de restricciones no válidas"});
}
