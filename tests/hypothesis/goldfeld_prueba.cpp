// CGQ: the statement, the order, the parts and their checks.
#include "hypothesis/apoyo_contrastes.h"
#include "hypothesis/goldfeld.h"
#include "hypothesis/orden.h"

#include <gtest/gtest.h>

namespace {

// ----- Checks

struct CasoPartes {
    const char *caja; // empty: they can be estimated
    PartesGoldfeld p;
};

// primera, ultima; those of the last regression; denominator; numerator. Rows.
const CasoPartes Partes[] = {
    {"", {0, 19, 0, 19, 0, 9, 10, 19}},
    {"", {0, 19, 0, 19, 0, 6, 13, 19}}, // a gap
    {"", {0, 19, 0, 19, 10, 19, 0, 9}},
    {"", {0, 19, 0, 19, 13, 19, 0, 6}},
    {"", {2, 19, 2, 19, 2, 3, 18, 19}},
    {"La muestra ha variado. Pto 866", {1, 19, 0, 19, 0, 9, 10, 19}},
    {"La muestra ha variado. Pto 866", {1, 18, 0, 19, 0, 9, 10, 19}},
    {"La muestra ha variado: [18][19]. Pto 867", {0, 18, 0, 19, 0, 9, 10, 18}},
    {"Mínimo numerador >= Máximo numerador,19 19. Pto 872", {0, 19, 0, 19, 0, 9, 19, 19}},
    {"Mínimo numerador >= Máximo numerador,0 -1. Pto 872", {0, 19, 0, 19, -1, 19, 0, -1}},
    {"Mínimo numerador >= Máximo numerador,21 19. Pto 872", {0, 19, 0, 19, 0, 9, 21, 19}},
    {"No coinciden máximos y mínimos. Pto 873", {0, 19, 0, 19, 0, 0, 10, 19}},
    {"No coinciden máximos y mínimos. Pto 873", {0, 19, 0, 19, 19, 19, 0, 9}},
    {"Mayor que la muestra: [21][20]. Pto 874", {0, 19, 0, 19, 10, 19, 0, 20}},
    {"Mayor que la muestra: [21][20]. Pto 874", {0, 19, 0, 19, 0, 20, 10, 19}},
    {"Menor que la muestra: [2][3]. Pto 874", {2, 19, 2, 19, 12, 19, 1, 9}},
    {"Menor que la muestra: [2][3]. Pto 874", {2, 19, 2, 19, 1, 9, 12, 19}},
    // The numerator in front.
    {"La muestra ha variado. Pto 868", {0, 19, 0, 19, 10, 12, 0, 12}},
    {"No coinciden máximos y mínimos. Pto 869", {0, 19, 0, 19, 10, 19, 0, 10}},
    {"La muestra ha variado. Pto 870", {0, 19, 0, 19, 10, 18, 0, 9}},
    {"La muestra ha variado. Pto 871", {0, 19, 0, 19, 10, 19, 1, 9}},
    // The denominator in front; so also where both begin in the same row.
    {"Máximo denominador > Máximo numerador. Pto 872", {0, 19, 0, 19, 0, 13, 10, 12}},
    {"No coinciden máximos y mínimos: [9][8]. Pto 873", {0, 19, 0, 19, 0, 9, 9, 19}},
    {"No coinciden máximos y mínimos: [9][-1]. Pto 873", {0, 19, 0, 19, 0, 9, 0, 19}},
    {"No coinciden máximos y mínimos: [18][19]. Pto 874", {0, 19, 0, 19, 0, 9, 10, 18}},
    {"No coinciden máximos y mínimos: [1][0]. Pto 875", {0, 19, 0, 19, 1, 9, 10, 19}},
};

class PartesDeLaMuestra : public testing::TestWithParam<CasoPartes> {};

} // namespace

TEST_P(PartesDeLaMuestra, SeComprueban) {
    EmpezarPrueba();
    const std::string caja = GetParam().caja;
    EXPECT_EQ(ComprobarPartes(GetParam().p, nullptr), caja.empty());
    EXPECT_EQ(TextosDeCajas(), caja.empty() ? Textos{} : Textos{caja});
    for (const CajaVista &c : Prueba.cajas) EXPECT_EQ(c.titulo, "Proceso cancelado");
}

INSTANTIATE_TEST_SUITE_P(Goldfeld, PartesDeLaMuestra, testing::ValuesIn(Partes));

// ----- The statement

namespace {

// Y on 1, X, Z over 20 observations, to be ordered by O, which has ties.
void EmpezarGoldfeld(const char *regresion = "MC Y 1 X Z") {
    EmpezarRegresion();
    PonerSerie("O", {7, 3, 9, 3, 5, 1, 8, 3, 2, 6, 5, 4, 9, 0, 7, 5, 2, 8, 1, 6});
    EXPECT_TRUE(Procesar(regresion));
    Prueba.cajas.clear();
    Prueba.resultados.clear();
}

struct CasoSentencia {
    const char *texto;
    Textos cajas; // of a statement that is refused
};

const CasoSentencia Rechazadas[] = {
    {"CGQ", {"Indroduzca ponderación. Pto 1633"}},
    {"CGQ O 1 10 11 20", {"Indroduzca ponderación. Pto 1633"}},
    {"CGQ (O) 1 10 11 20 ñ", {"Caracter no válido. Pto 121"}},
    {"CGQ (O) RA 1234567890123", {"Nombre demasiado largo. Pto 121"}},
    // Numbers that aren't there count as 0: the numerator comes first, and it is empty.
    {"CGQ (O)", {"Mínimo numerador >= Máximo numerador,0 -1. Pto 872"}},
    {"CGQ (O) RA", {"Mínimo numerador >= Máximo numerador,0 -1. Pto 872"}},
    {"CGQ (O) 11 20 1 1", {"Mínimo numerador >= Máximo numerador,0 0. Pto 872"}},
    {"CGQ (O) 1 10 20 20", {"Mínimo numerador >= Máximo numerador,19 19. Pto 872"}},
    {"CGQ (O) 1 1 11 20", {"No coinciden máximos y mínimos. Pto 873"}},
    {"CGQ (O) 1 21 11 20", {"Mayor que la muestra: [21][20]. Pto 874"}},
    {"CGQ (O) 12 20 1 21", {"Mayor que la muestra: [21][20]. Pto 874"}},
    {"CGQ (O) 1 10 0 20", {"No coinciden máximos y mínimos: [19][-1]. Pto 873"}},
    {"CGQ (O) 0 10 0 20", {"Menor que la muestra: [0][1]. Pto 874"}},
    {"CGQ (O) 10 20 1 10", {"No coinciden máximos y mínimos. Pto 869"}},
    {"CGQ (O) 1 10 10 20", {"No coinciden máximos y mínimos: [9][8]. Pto 873"}},
    {"CGQ (O) 11 20 11 15", {"No coinciden máximos y mínimos. Pto 869"}},
    {"CGQ (O) 1 2 11 20", {"La muestra es muy pequeña. Pto 293"}},
    {"CGQ (O) 1 10 19 20", {"La muestra es muy pequeña. Pto 293"}},
    {"CGQ (O) 99999999999 1 99999999999 1", {"Mínimo numerador >= Máximo numerador,0 0. Pto 872"}},
};

class SentenciaCGQ : public testing::TestWithParam<CasoSentencia> {};

} // namespace

TEST_P(SentenciaCGQ, SeRechaza) {
    EmpezarGoldfeld();
    EXPECT_FALSE(Procesar(GetParam().texto));
    EXPECT_EQ(TextosDeCajas(), GetParam().cajas);
    EXPECT_EQ(TemporalesQueQuedan(), Textos{});
    EXPECT_TRUE(Prueba.resultados.empty());
}

INSTANTIATE_TEST_SUITE_P(Goldfeld, SentenciaCGQ, testing::ValuesIn(Rechazadas));

// ----- The statistic

namespace {

struct CasoCGQ {
    const char *regresion;
    const char *texto;
    int primeraDenominador, ultimaDenominador, primeraNumerador, ultimaNumerador; // rows
    int ver;
};

const CasoCGQ Correctos[] = {
    {"MC Y 1 X Z", "CGQ (O) 1 10 11 20", 0, 9, 10, 19, 0},
    {"MC Y 1 X Z", "CGQ (O) RA 1 8 13 20", 0, 7, 12, 19, 1},
    {"MC Y 1 X Z", "CGQ (O) 1 7 12 15", 0, 6, 11, 19, 0}, // the numerator goes to the end
    {"MC Y 1 X Z", "cgq ( O ) 11 20 1 10", 10, 19, 0, 9, 0},
    {"MC Y 1 X Z", "CGQ (O) 13 1 1 8", 12, 19, 0, 7, 0}, // so does the denominator
    {"MC Y 1 X", "CGQ ((O*2)+1)  RA 1 5 16 20", 0, 4, 15, 19, 1},
    {"MUEST 3 19\nMC Y 1 X\nMUEST 1 20", "CGQ (O) 1 6 10 17", 2, 7, 11, 18, 0},
    {"MC Y X", "CGQ (O) 1 10 11 20", 0, 9, 10, 19, 0},
    {"MC Y 1 X", "CGQ (O) 1 10 11 20 1234567890123", 0, 9, 10, 19,
     0}, // what stands behind the four isn't read
};

class Goldfeld : public testing::TestWithParam<CasoCGQ> {};

// Rows of the sample as the described sort leaves them.
std::vector<int> FilasOrdenadas(const std::vector<double> &o, int primera, int ultima) {
    std::vector<int> filas;
    for (int i = primera; i <= ultima; ++i) filas.push_back(i);
    const auto clave = [&](int fila) { return o[static_cast<std::size_t>(fila)]; };
    for (std::size_t i = 0; i + 1 < filas.size(); ++i)
        for (std::size_t j = i + 1; j < filas.size(); ++j)
            if (clave(filas[j]) < clave(filas[i])) std::swap(filas[i], filas[j]);
    return filas;
}

long double ScrDeFilas(const std::vector<int> &ordenadas, int primera, int desde, int hasta) {
    const auto tomar = [&](std::string_view codigo) {
        const std::vector<double> todas = ValoresDe(codigo, 20);
        std::vector<double> r;
        for (int i = desde - primera; i <= hasta - primera; ++i)
            r.push_back(codigo == "1"
                            ? 1.0
                            : todas[static_cast<std::size_t>(ordenadas[static_cast<std::size_t>(i)])]);
        return r;
    };
    std::vector<std::vector<double>> x;
    for (const std::string &regresor : UltimaRegresion.CodigosRegresores) x.push_back(tomar(regresor));
    return Minimos(tomar("Y"), x).scr;
}

} // namespace

TEST_P(Goldfeld, Estadistico) {
    const CasoCGQ &c = GetParam();
    EmpezarGoldfeld(c.regresion);
    const int primera = Muestra.InicioRegresion, ultima = Muestra.FinRegresion;
    const std::vector<int> filas = FilasOrdenadas(ValoresDe("O", 20), primera, ultima);
    const long double denominador = ScrDeFilas(filas, primera, c.primeraDenominador, c.ultimaDenominador);
    const long double numerador = ScrDeFilas(filas, primera, c.primeraNumerador, c.ultimaNumerador);
    const double scr = EscalarDe("_SCR");
    double scrDenominador = NAN, scrNumerador = NAN, p = NAN;
    MirarAlMostrar([&] {
        scrDenominador = EscalarDe("_SCRGD");
        scrNumerador = EscalarDe("_SCRGN");
        p = EscalarDe("_ESTFG");
    });
    EXPECT_FALSE(Procesar(c.texto)); // the batch stops behind it
    EXPECT_EQ(Lote.NingunaSentenciaHecha, 1);
    EXPECT_EQ(TextosDeCajas(), Textos{});
    ASSERT_EQ(Prueba.resultados.size(), 1u);
    EXPECT_EQ(Prueba.resultados[0].clase, OrdenMGD);
    EXPECT_EQ(Prueba.resultados[0].titulo, "Contrastes de heteroscedasticidad: Goldfeld y Quandt");
    EXPECT_NEAR(scrDenominador, static_cast<double>(denominador), 1e-9 * static_cast<double>(denominador));
    EXPECT_NEAR(scrNumerador, static_cast<double>(numerador), 1e-9 * static_cast<double>(numerador));
    const int k = UltimaRegresion.NumRegresores;
    const int glDenominador = c.ultimaDenominador - c.primeraDenominador + 1 - k;
    const int glNumerador = c.ultimaNumerador - c.primeraNumerador + 1 - k;
    const double f = static_cast<double>((numerador / glNumerador) / (denominador / glDenominador));
    EXPECT_EQ(p, Formula(Formatear("PROBF(%f,%d.0,%d.0)", f, glNumerador, glDenominador)));
    EXPECT_EQ(EscalarDe("_SCR"), scr);
    EXPECT_EQ(UltimoContraste.verRegresion, c.ver);
    EXPECT_EQ(UltimoContraste.primeraDenominador, c.primeraDenominador);
    EXPECT_EQ(UltimoContraste.ultimaDenominador, c.ultimaDenominador);
    EXPECT_EQ(UltimoContraste.primeraNumerador, c.primeraNumerador);
    EXPECT_EQ(UltimoContraste.ultimaNumerador, c.ultimaNumerador);
    EXPECT_EQ(TemporalesQueQuedan(), Textos{});
    // The sample of the last regression stays at the denominator's.
    EXPECT_EQ(Muestra.InicioRegresion, c.primeraDenominador);
    EXPECT_EQ(Muestra.FinRegresion, c.ultimaDenominador);
}

INSTANTIATE_TEST_SUITE_P(Contraste, Goldfeld, testing::ValuesIn(Correctos));

// The report divides the sums by the sizes, not by the degrees of freedom, and shows those of the denominator first.
TEST(GoldfeldQuandt, ElInformeDividePorLasObservaciones) {
    EmpezarGoldfeld();
    const std::vector<int> filas = FilasOrdenadas(ValoresDe("O", 20), 0, 19);
    const double denominador = static_cast<double>(ScrDeFilas(filas, 0, 0, 6));
    const double numerador = static_cast<double>(ScrDeFilas(filas, 0, 11, 19));
    double p = NAN;
    MirarAlMostrar([&] { p = EscalarDe("_ESTFG"); });
    Procesar("CGQ (O) 1 7 12 20");
    ASSERT_EQ(Prueba.resultados.size(), 1u);
    const std::vector<std::pair<int, std::string>> lineas = {
        {1,
         Utf8De1252(Formatear("SCR denominador : %10.4f      Número de observaciones:    7"_w, denominador))},
        {1,
         Utf8De1252(Formatear("SCR numerador   : %10.4f      Número de observaciones:    9"_w, numerador))},
        {1, "Variable de ordenación : O"},
        {2, Utf8De1252(Formatear("Estadístico F(  4,  6):%10.4f  Prob > F             :%10.4f"_w,
                                 (numerador / 9) / (denominador / 7), p))},
    };
    EXPECT_EQ(Prueba.resultados[0].lineas, lineas);
}

TEST(GoldfeldQuandt, TrasMCPNoSeMuestra) {
    EmpezarGoldfeld("MCP (1) Y 1 X");
    EXPECT_FALSE(Procesar("CGQ (O) 1 10 11 20"));
    EXPECT_EQ(TextosDeCajas(), Textos{"Utilice MC ordinarios"});
    EXPECT_TRUE(Prueba.resultados.empty());
    EXPECT_EQ(TemporalesQueQuedan(), Textos{});
}

// Until the next MC.
TEST(GoldfeldQuandt, DosVecesSeguidas) {
    EmpezarGoldfeld();
    Procesar("CGQ (O) 1 10 11 20");
    Prueba.cajas.clear();
    EXPECT_FALSE(Procesar("CGQ (O) 1 4 6 10"));
    EXPECT_EQ(TextosDeCajas(), Textos{"La muestra ha variado: [9][19]. Pto 867"});
    EmpezarGoldfeld();
    Procesar("CGQ (O) 11 20 1 10");
    Prueba.cajas.clear();
    EXPECT_FALSE(Procesar("CGQ (O) 1 4 6 10"));
    EXPECT_EQ(TextosDeCajas(), Textos{"La muestra ha variado. Pto 866"});
}

// ----- The copies

namespace {

Textos CajasTras(const std::function<void()> &preparar, const char *texto = "CGQ (O) 1 10 11 20") {
    EmpezarGoldfeld();
    preparar();
    EXPECT_FALSE(Procesar(texto));
    for (const CajaVista &caja : Prueba.cajas)
        if (caja.texto.find("Pto") != std::string::npos) {
            EXPECT_EQ(caja.titulo, "Proceso cancelado");
        }
    return TextosDeCajas();
}

} // namespace

TEST(GoldfeldQuandt, LasCopiasQueFaltan) {
    const auto nada = [] {};
    EXPECT_EQ(CajasTras(nada, "CGQ (NADA+1) 1 10 11 20").back(), "NADA+1. Pto 8511");
    EXPECT_EQ(CajasTras(nada, "CGQ ( ) 1 10 11 20").back(), " . Pto 8511");
    EXPECT_EQ(CajasTras([] { LlenarSeries(99); }), Textos{"Borre algunas series. Pto 8629"});
    EXPECT_EQ(CajasTras([] { LlenarSeries(98); }), Textos{"Borre algunas series. Pto 8679"});
    EXPECT_EQ(CajasTras([] { LlenarSeries(97); }), Textos{"Borre algunas series. Pto 8625"});
    EXPECT_EQ(CajasTras([] { LlenarSeries(95); }), Textos{"Borre algunas series. Pto 8625"});
    EXPECT_EQ(CajasTras([] { PonerMatriz("_TMP2", {1}, 1, 1); }), Textos{"Borre algunas series. Pto 8679"});
    EXPECT_EQ(CajasTras([] { EliminarSerie(BuscarSerie("Y")); }), Textos{"Realize una regresión. Pto 842"});
    EXPECT_EQ(CajasTras([] { EliminarSerie(BuscarSerie("X")); }).back(),
              "No existe la serie: [_TMP4][1]. Pto 865");
    EXPECT_EQ(CajasTras([] { EliminarSerie(BuscarSerie("Z")); }).back(),
              "No existe la serie: [_TMP5][2]. Pto 865");
}

TEST(GoldfeldQuandt, SinRegresion) {
    EmpezarRegresion();
    EXPECT_FALSE(Procesar("CGQ (X) 1 10 11 20"));
    EXPECT_EQ(TextosDeCajas(), Textos{"Realize una regresión. Pto 842"});
}

// At the last level there is no line for the formula in the parentheses.
TEST(GoldfeldQuandt, SinNiveles) {
    EmpezarGoldfeld();
    LineasSentencia lineas;
    lineas[MaxNiveles - 1] = "CGQ (O) 1 10 11 20";
    Evaluador.NivelLinea = MaxNiveles - 1;
    EXPECT_EQ(ContrasteGoldfeldQuandt(lineas, 4, nullptr), 0);
    EXPECT_EQ(TextosDeCajas(), Textos{"Borre algunas series. Pto 8622"});
    LimpiarEvaluador();
}

// A missing value goes with its observation: here to the middle, which neither part takes.
TEST(GoldfeldQuandt, UnValorQueFaltaVaConSuObservacion) {
    EmpezarGoldfeld();
    const int s = BuscarSerie("Z");
    PonerObservacion(4, s, 0.0, 0); // O is 5 there: one of the four in the middle
    Procesar("CGQ (O) 1 7 14 20");
    for (const std::string &caja : TextosDeCajas())
        EXPECT_EQ(caja.find("missing"), std::string::npos) << caja;
    EmpezarGoldfeld();
    PonerObservacion(13, BuscarSerie("Z"), 0.0, 0); // O is 0 there: the first of all
    Procesar("CGQ (O) 1 7 14 20");
    EXPECT_NE(std::find(Prueba.cajas.begin(), Prueba.cajas.end(),
                        CajaVista{"Proceso cancelado", "Existen valores missing. Pto 62", IconoInformacion,
                                  BotonesAceptar}),
              Prueba.cajas.end());
}
