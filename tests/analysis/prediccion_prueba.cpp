// Prediction and evaluation: numbers against an estimation of the test's own, the report line by line, every message in the
// order of the checks.
#include "analysis/prediccion.h"

#include "analysis/informe_prediccion.h"
#include "apoyo/plataforma_prueba.h"
#include "estimation/regresion.h"
#include "language/lote_sentencias.h"
#include "platform/texto.h"
#include "store/periodos.h"

#include <Eigen/Dense>
#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <limits>

namespace {

using Datos = std::vector<double>;
using Lineas = std::vector<std::pair<int, std::string>>;

constexpr double Falta = std::numeric_limits<double>::quiet_NaN();
constexpr int Anos = 30;                  // 1981 to 2010
constexpr int PrimeraY = 2, UltimaY = 21; // rows in which the dependent variable has values

double Y(int i) {
    return 20 + 1.5 * i + 4 * std::sin(i * 1.9);
}
double X(int i) {
    return i + 3 * std::cos(i * 0.8);
}
double Z(int i) {
    return std::sin(i * 2.3) * 10;
}

Datos Valores(double (*f)(int), int desde, int hasta) {
    Datos d;
    for (int i = desde; i <= hasta; ++i) d.push_back(f(i));
    return d;
}

// MC Y 1 X Z over 1983 to 2002, the rows that all three have.
void EmpezarConRegresion() {
    EmpezarConDatos(TipoAnual, "1981#2010");
    PonerSerie("Y", Valores(Y, PrimeraY, UltimaY), PrimeraY);
    PonerSerie("X", Valores(X, 0, Anos - 1));
    PonerSerie("Z", Valores(Z, 0, Anos - 1));
    Lote.VerRegresion = 0;
    ASSERT_TRUE(Procesar("MC Y 1 X Z"));
    ASSERT_EQ(UltimaRegresion.PrimeraObsRegresion, PrimeraY);
    ASSERT_EQ(UltimaRegresion.UltimaObsRegresion, UltimaY);
    Prueba.cajas.clear();
    Prueba.resultados.clear();
}

ValoresPrediccion Rango(const std::string &inicio, const std::string &fin,
                        ModosEvaluacion modo = EvaluarOriginales) {
    ValoresPrediccion v;
    v.inicio = inicio;
    v.fin = fin;
    v.modo = modo;
    return v;
}

void Cerca(double valor, double esperado) {
    EXPECT_NEAR(valor, esperado, 1e-9 * std::fabs(esperado) + 1e-14);
}

// Coefficients, their covariances and the residuals' variance, by the normal equations in long double.
struct Estimacion {
    Eigen::Matrix<long double, 3, 1> beta;
    Eigen::Matrix<long double, 3, 3> covarianza;
    long double varianza;
};

Eigen::Matrix<long double, 3, 1> Fila(int i) {
    return {1.0L, X(i), Z(i)};
}

Estimacion Estimar() {
    Eigen::Matrix<long double, 3, 3> xx = Eigen::Matrix<long double, 3, 3>::Zero();
    Eigen::Matrix<long double, 3, 1> xy = Eigen::Matrix<long double, 3, 1>::Zero();
    for (int i = PrimeraY; i <= UltimaY; ++i) {
        xx += Fila(i) * Fila(i).transpose();
        xy += Fila(i) * static_cast<long double>(Y(i));
    }
    Estimacion e;
    e.beta = xx.fullPivLu().solve(xy);
    long double residuos = 0;
    for (int i = PrimeraY; i <= UltimaY; ++i) {
        const long double u = Y(i) - Fila(i).dot(e.beta);
        residuos += u * u;
    }
    e.varianza = residuos / (UltimaY - PrimeraY + 1 - 3);
    e.covarianza = e.varianza * xx.inverse();
    return e;
}

} // namespace

// ----- The three series

TEST(Prediccion, ValoresYDesviaciones) {
    EmpezarConRegresion();
    ASSERT_EQ(AceptarPrediccion(nullptr, Rango("1981", "2010")), 1);
    EXPECT_TRUE(Prueba.cajas.empty());
    EXPECT_GT(Prueba.refrescos, 0);
    const Estimacion e = Estimar();
    const Datos pred = ValoresDe("_PRED", Anos + 1), dtm = ValoresDe("_DTPVM", Anos + 1),
                dti = ValoresDe("_DTPVI", Anos + 1);
    for (int i = 0; i < Anos; ++i) {
        const auto c = Fila(i);
        const long double s = c.dot(e.covarianza * c);
        Cerca(pred[static_cast<std::size_t>(i)], static_cast<double>(c.dot(e.beta)));
        Cerca(dtm[static_cast<std::size_t>(i)], static_cast<double>(std::sqrt(s)));
        Cerca(dti[static_cast<std::size_t>(i)], static_cast<double>(std::sqrt(e.varianza + s)));
    }
    EXPECT_TRUE(std::isnan(pred[Anos]) && std::isnan(dtm[Anos]) && std::isnan(dti[Anos]));
}

// The first row whose text or number is that of the field; what matches nothing leaves the bound of the regression.
TEST(Prediccion, ElRango) {
    const struct {
        const char *inicio, *fin;
        int primera, ultima;
    } Casos[] = {
        {"", "", 2, 21},           {"1981", "", 0, 21},       {"", "2010", 2, 29},
        {" 1990 ", "1995", 9, 14}, {"1990.0", "1995", 9, 14}, {"1990 o así", "1995", 9, 14},
        {"2050", "1970", 2, 21},   {"   ", "0", 2, 21},       {"fin", "1995", 2, 14},
        {"1.99e3", "1995", 9, 14},
    };
    for (const auto &c : Casos) {
        SCOPED_TRACE(std::string(c.inicio) + ":" + c.fin);
        EmpezarConRegresion();
        ASSERT_EQ(AceptarPrediccion(nullptr, Rango(Texto1252DeUtf8(c.inicio), c.fin)), 1);
        const Datos pred = ValoresDe("_PRED", MaxObservaciones);
        for (int i = 0; i < MaxObservaciones; ++i)
            ASSERT_EQ(!std::isnan(pred[static_cast<std::size_t>(i)]), i >= c.primera && i <= c.ultima) << i;
    }
}

TEST(Prediccion, SoloCincuentaCaracteresDeUnPeriodo) {
    EmpezarConRegresion();
    ASSERT_EQ(AceptarPrediccion(nullptr, Rango(std::string(46, ' ') + "1990", std::string(47, ' ') + "1995")),
              1);
    EXPECT_EQ(Prediccion.inicioPred, 9);
    EXPECT_EQ(Prediccion.finPred, 21) << "199 is no period";
}

// A name that is no series counts as 1, a lag too.
TEST(Prediccion, LoQueNoEsSerieValeUno) {
    EmpezarConRegresion();
    ASSERT_TRUE(Procesar("MUEST 1983 2002\nMC Y 1 X(-1) Z"));
    int filas = 0, columnas = 0;
    const Datos beta = MatrizDe("_BETA", filas, columnas);
    ASSERT_EQ(AceptarPrediccion(nullptr, Rango("1984", "2002")), 1);
    const Datos pred = ValoresDe("_PRED", 22);
    for (std::size_t i = 3; i < 22; ++i) Cerca(pred[i], beta[0] + beta[1] + beta[2] * Z(static_cast<int>(i)));
}

// What is missing in a regressor counts as its stored zero.
TEST(Prediccion, UnRegresorSinValor) {
    EmpezarConRegresion();
    Datos x = Valores(X, 0, Anos - 1);
    x[28] = Falta;
    PonerSerie("X", x);
    ASSERT_EQ(AceptarPrediccion(nullptr, Rango("1981", "2010")), 1);
    const Estimacion e = Estimar();
    Cerca(ValoresDe("_PRED", 29)[28], static_cast<double>(e.beta(0) + e.beta(2) * Z(28)));
}

// Without degrees of freedom the two deviations are the same; a variance below 0 is none.
TEST(Prediccion, SinGradosDeLibertad) {
    EmpezarConRegresion();
    UltimaRegresion.PrimeraObsRegresion = 10;
    UltimaRegresion.UltimaObsRegresion = 12;
    PonerMatriz("_COV", {4, 0, 0, 0, 0, 0, 0, 0, 0}, 3, 3);
    ASSERT_EQ(AceptarPrediccion(nullptr, Rango("", "")), 1);
    EXPECT_EQ(ValoresDe("_DTPVM", 11)[10], 2.0);
    EXPECT_EQ(ValoresDe("_DTPVI", 11)[10], 2.0);
    UltimaRegresion.UltimaObsRegresion = 13;
    PonerEscalar(nullptr, "_SCR", 5);
    ASSERT_EQ(AceptarPrediccion(nullptr, Rango("", "")), 1);
    EXPECT_EQ(ValoresDe("_DTPVM", 11)[10], 2.0);
    EXPECT_EQ(ValoresDe("_DTPVI", 11)[10], 3.0);
    PonerMatriz("_COV", {-4, 0, 0, 0, 0, 0, 0, 0, 0}, 3, 3);
    ASSERT_EQ(AceptarPrediccion(nullptr, Rango("", "")), 1);
    EXPECT_EQ(ValoresDe("_DTPVM", 11)[10], 0.0);
    EXPECT_EQ(ValoresDe("_DTPVI", 11)[10], 1.0);
}

TEST(Prediccion, LosCodigos) {
    EmpezarConRegresion();
    PonerSerie("VIEJA", Datos(Anos, 7.0));
    ValoresPrediccion v = Rango("1990", "1995");
    v.codigoPred = "vieja";
    v.codigoDtm = "CODIGODE13LET";
    v.codigoDti = "  ";
    const int antes = ArchivoTrabajo.NumSeries;
    ASSERT_EQ(AceptarPrediccion(nullptr, v), 1);
    EXPECT_EQ(ArchivoTrabajo.NumSeries, antes + 2);
    EXPECT_STREQ(Prediccion.codigoPred, "VIEJA       ");
    EXPECT_STREQ(Prediccion.codigoDtm, "CODIGODE13LE");
    EXPECT_STREQ(Prediccion.codigoDti, "_DTPVI      ");
    const Datos vieja = ValoresDe("VIEJA", Anos);
    EXPECT_TRUE(std::isnan(vieja[8]) && std::isnan(vieja[15]));
    EXPECT_FALSE(std::isnan(vieja[9]) || std::isnan(vieja[14]));
    EXPECT_FALSE(std::isnan(ValoresDe("CODIGODE13LE", 10)[9]));
    // Once more under the same codes: no series more.
    ASSERT_EQ(AceptarPrediccion(nullptr, v), 1);
    EXPECT_EQ(ArchivoTrabajo.NumSeries, antes + 2);
}

// Regressor and target may be the first series of the table. A target that is a regressor is emptied before it is
// read.
TEST(Prediccion, LaPrimeraSerieDeLaTabla) {
    EmpezarConDatos(TipoAnual, "1981#2010");
    PonerSerie("X", Valores(X, 0, Anos - 1));
    PonerSerie("Y", Valores(Y, 0, Anos - 1));
    Lote.VerRegresion = 0;
    ASSERT_TRUE(Procesar("MC Y 1 X"));
    int filas = 0, columnas = 0;
    const Datos beta = MatrizDe("_BETA", filas, columnas);
    ASSERT_EQ(AceptarPrediccion(nullptr, Rango("1985", "1990")), 1);
    const int pred = BuscarSerie("_PRED");
    EXPECT_EQ(ArchivoTrabajo.PrimeraObs[pred], 4);
    EXPECT_EQ(ArchivoTrabajo.UltimaObs[pred], 9);
    for (int i = 4; i <= 9; ++i) Cerca(ArchivoTrabajo.ValoresObs[i][pred], beta[0] + beta[1] * X(i));
    ValoresPrediccion v = Rango("1985", "1990");
    v.codigoPred = "X";
    ASSERT_EQ(AceptarPrediccion(nullptr, v), 1);
    EXPECT_EQ(BuscarSerie("X"), 0);
    for (std::size_t i = 4; i <= 9; ++i) Cerca(ValoresDe("X", 10)[i], beta[0]);
    EXPECT_TRUE(std::isnan(ValoresDe("X", 4)[3]));
}

// ----- Evaluation

namespace {

// The same measures by other formulas, in long double: the random part as what the correlation leaves.
void CompararMedidas(const MedidasPrediccion &m, const Datos &p, const Datos &a) {
    const long double n = static_cast<long double>(p.size());
    long double eam = 0, ecm = 0, sp = 0, sa = 0, spp = 0, saa = 0, spa = 0;
    for (std::size_t i = 0; i < p.size(); ++i) {
        const long double x = p[i], y = a[i];
        eam += std::fabs(x - y) / n;
        ecm += (x - y) * (x - y) / n;
        sp += x / n;
        sa += y / n;
        spp += x * x / n;
        saa += y * y / n;
        spa += x * y / n;
    }
    const long double dp = std::sqrt(spp - sp * sp), da = std::sqrt(saa - sa * sa),
                      r = (spa - sp * sa) / (dp * da);
    Cerca(m.EAM, static_cast<double>(eam));
    Cerca(m.ECM, static_cast<double>(ecm));
    Cerca(m.COP, static_cast<double>(r));
    Cerca(m.Theil, static_cast<double>(std::sqrt(ecm / saa)));
    Cerca(m.sesgo, static_cast<double>((sp - sa) * (sp - sa) / ecm));
    Cerca(m.varianza, static_cast<double>((dp - da) * (dp - da) / ecm));
    Cerca(m.aleatorio, static_cast<double>(2 * (1 - r) * dp * da / ecm));
}

} // namespace

TEST(Prediccion, MedidasPorOtrasFormulas) {
    EmpezarConRegresion();
    for (const ModosEvaluacion modo : {EvaluarOriginales, EvaluarTasas, EvaluarIncrementos}) {
        SCOPED_TRACE(modo);
        ASSERT_EQ(AceptarPrediccion(nullptr, Rango("1981", "2010", modo)), 1);
        const Datos pred = ValoresDe("_PRED", Anos);
        // Rates and increments are over the observation before; of the first one it is missing, and counts as 0.
        EXPECT_EQ(Prediccion.inicioPred, PrimeraY);
        EXPECT_EQ(Prediccion.finPred, UltimaY);
        Datos p, a;
        for (int i = PrimeraY; i <= UltimaY; ++i) {
            const double antes = i == PrimeraY ? 0.0 : Y(i - 1);
            const double x = pred[static_cast<std::size_t>(i)];
            const double divisor = modo == EvaluarTasas ? antes : 1.0;
            p.push_back(modo == EvaluarOriginales ? x : divisor == 0.0 ? 0.0 : (x - antes) / divisor);
            a.push_back(modo == EvaluarOriginales ? Y(i) : divisor == 0.0 ? 0.0 : (Y(i) - antes) / divisor);
            EXPECT_DOUBLE_EQ(Prediccion.prediccionEval[i], p.back()) << i;
            EXPECT_DOUBLE_EQ(Prediccion.observacionEval[i], a.back()) << i;
        }
        CompararMedidas(Prediccion.medidas, p, a);
        EXPECT_TRUE(Prediccion.evaluada);
        EXPECT_EQ(Prediccion.modoEvaluacion, modo);
    }
}

TEST(Prediccion, MedidasDeCasosParticulares) {
    const struct {
        Datos p, a;
        MedidasPrediccion m;
    } Casos[] = {
        {{1, 2, 4}, {1, 2, 4}, {0, 0, 1, 0, 0, 0, 1}},                       // perfect
        {{3, 4, 5}, {1, 2, 3}, {2, 4, 1, 2 / std::sqrt(14.0 / 3), 1, 0, 0}}, // bias only
        {{2, 2}, {1, 3}, {1, 1, 0, 1 / std::sqrt(5.0), 0, 1, 0}},            // the predictions don't vary
        {{1, 3}, {0, 0}, {2, 5, 0, 0, 0.8, 0.2, 0}},                         // nothing observed
        {{0, 0}, {0, 0}, {0, 0, 0, 0, 0, 0, 1}},
        // Small numbers are divided like others.
        {{0.001, 0.003}, {0.001, 0.005}, {0.001, 2e-6, 1, 2 / std::sqrt(26.0), 0.5, 0.5, 0}},
    };
    for (const auto &c : Casos) {
        const MedidasPrediccion m = MedirPrediccion(c.p, c.a);
        Cerca(m.EAM, c.m.EAM);
        Cerca(m.ECM, c.m.ECM);
        Cerca(m.COP, c.m.COP);
        Cerca(m.Theil, c.m.Theil);
        Cerca(m.sesgo, c.m.sesgo);
        Cerca(m.varianza, c.m.varianza);
        Cerca(m.aleatorio, c.m.aleatorio);
    }
}

// ----- The report. A regression whose every prediction is 2.5, evaluated by increments over 1984 to 1987, where 4, 6, 5, 1 were
// observed behind a 3: predicted -0.5 -1.5 -3.5 -2.5, observed 1 2 -1 -4. EAM 9/4, ECM 23/4, COP 6 / root(5 * 21), Theil
// root(5.75 / 5.5), bias 1.5^2 / 5.75, variance part (root 1.25 - root 5.25)^2 / 5.75.

namespace {

void EmpezarConLaMedia() {
    EmpezarConDatos(TipoAnual, "1981#2010");
    PonerSerie("VENTAS", {1, 2, 3, 4, 6, 5, 1});
    PonerSerie("OTRA", {1, 2, 4, 8, 16, 32, 64});
    Lote.VerRegresion = 0;
    ASSERT_TRUE(Procesar("MUEST 1981 1987\nMC VENTAS 1 OTRA"));
    PonerMatriz("_BETA", {2.5, 0}, 2, 1);
    Prueba.cajas.clear();
}

} // namespace

TEST(Prediccion, ElInforme) {
    EmpezarConLaMedia();
    ASSERT_EQ(AceptarPrediccion(nullptr, Rango("1984", "1987", EvaluarIncrementos)), 1);
    ASSERT_EQ(Prueba.resultados.size(), 1u);
    EXPECT_EQ(Prueba.resultados[0].tipo, SalidaPrediccion);
    EXPECT_EQ(Prueba.resultados[0].titulo, "Predicción y evaluación de la capacidad predictiva");
    const Lineas esperadas = {
        {0, " Modelo: Minimos cuadrados"},
        {0, " Variable dependiente:     VENTAS"},
        {0, " Regresores: 1,OTRA,"},
        {0, " Período inicial pred.:     1984 Período final pred.:     1987"},
        {0, " Incrementos absolutos"},
        {1, "         Error absoluto medio (EAM)...:     2.2500"},
        {1, "         Error cuadrático medio (ECM).:     5.7500"},
        {1, "         Corre. valores obs.-pre.(COP):     0.5855"},
        {1, ""},
        {1, "         Ind. desig. de Theil.........:     1.0225"},
        {1, "                Componente de sesgo...:     0.3913"},
        {1, "                Componente varianza...:     0.2394"},
        {1, "                Componente aleatorio..:     0.3693"},
    };
    EXPECT_EQ(Prueba.resultados[0].lineas, esperadas);
}

// What is observed is what was predicted: no error, and its random part is all of it.
TEST(Prediccion, ElInformeDeUnaPrediccionPerfecta) {
    EmpezarConLaMedia();
    PonerMatriz("_BETA", {0, 1}, 2, 1);
    PonerSerie("VENTAS", {1, 2, 4, 8, 16, 32, 64});
    ASSERT_EQ(AceptarPrediccion(nullptr, Rango("1981", "1987")), 1);
    const char *const esperados[] = {"0.0000", "0.0000", "1.0000", "",
                                     "0.0000", "0.0000", "0.0000", "1.0000"};
    const Lineas &l = Prueba.resultados.at(0).lineas;
    ASSERT_EQ(l.size(), 13u);
    for (std::size_t i = 0; i < std::size(esperados); ++i) {
        const std::string &linea = l[i + 5].second;
        EXPECT_EQ(linea.substr(std::min(linea.size(), linea.rfind(' ') + 1)), esperados[i]) << linea;
    }
}

TEST(Prediccion, LasCabecerasDelInforme) {
    EmpezarConLaMedia();
    ASSERT_EQ(AceptarPrediccion(nullptr, Rango("1984", "1987")), 1);
    EXPECT_EQ(Prueba.resultados.at(0).lineas[4].second, " Valores originales");
    UltimaRegresion.MetodoRegresion = OrdenMCP;
    ASSERT_EQ(AceptarPrediccion(nullptr, Rango("1984", "1987", EvaluarTasas)), 1);
    EXPECT_EQ(Prueba.resultados.at(1).lineas[0].second, " Modelo: Mínimos cuadrados ponderados");
    EXPECT_EQ(Prueba.resultados.at(1).lineas[4].second, " Tasas de variación");
}

// A name is added while the line and twelve characters stay below 70.
TEST(Prediccion, LaLineaDeRegresores) {
    const struct {
        std::vector<std::string> nombres;
        std::string linea;
    } Casos[] = {
        {{"AAAAAAAA", "BBBBBBBB", "CCCCCCCC", "DDDDDDDD", "EEEEEEEE", "FFFFFFFF"},
         " Regresores: AAAAAAAA,BBBBBBBB,CCCCCCCC,DDDDDDDD,EEEEEEEE,"}, // 58 characters: full
        {{"AAAAAAAA", "BBBBBBBB", "CCCCCCCC", "DDDDDDDD", "EEEEEEE", "FFFFFFFF", "G"},
         " Regresores: AAAAAAAA,BBBBBBBB,CCCCCCCC,DDDDDDDD,EEEEEEE,FFFFFFFF,"}, // 57: one more
    };
    for (const auto &c : Casos) {
        EmpezarConLaMedia();
        ASSERT_EQ(AceptarPrediccion(nullptr, Rango("", "")), 1);
        UltimaRegresion.CodigosRegresores = c.nombres;
        EXPECT_EQ(LineasPrediccion()[2].texto, c.linea);
    }
}

// ----- The range of the evaluation

TEST(Prediccion, ElRangoSeEstrechaALoObservado) {
    const struct {
        const char *inicio, *fin;
        ModosEvaluacion modo;
        int primera, ultima; // -1 with the point of "Muestra no válida" behind
    } Casos[] = {
        {"1981", "2010", EvaluarOriginales, 2, 21},  {"1982", "1984", EvaluarOriginales, 2, 3},
        {"1983", "1984", EvaluarOriginales, 2, 3},   {"1983", "1983", EvaluarOriginales, -1, 11},
        {"1981", "1983", EvaluarOriginales, -1, 11}, {"1981", "1982", EvaluarOriginales, -1, 11},
        {"2003", "2010", EvaluarOriginales, -1, 11}, {"2002", "2010", EvaluarOriginales, -1, 11},
        {"2001", "2010", EvaluarOriginales, 20, 21}, {"1995", "1990", EvaluarOriginales, -1, 11},
        {"1983", "1984", EvaluarTasas, 2, 3},
    };
    for (const auto &c : Casos) {
        SCOPED_TRACE(std::string(c.inicio) + " " + c.fin);
        EmpezarConRegresion();
        EXPECT_EQ(AceptarPrediccion(nullptr, Rango(c.inicio, c.fin, c.modo)), c.primera < 0 ? 0 : 1);
        EXPECT_EQ(Prediccion.evaluada, c.primera >= 0);
        if (c.primera < 0) {
            EXPECT_EQ(TextosDeCajas(), std::vector<std::string>{"Muestra no válida. Pto 11"});
            EXPECT_TRUE(Prueba.resultados.empty());
            continue;
        }
        EXPECT_EQ(Prediccion.inicioPred, c.primera);
        EXPECT_EQ(Prediccion.finPred, c.ultima);
    }
    EXPECT_FALSE(std::isnan(ValoresDe("_PRED", 4)[3])) << "the series were written before";
}

// Rates and increments of the first row of the file can't be had: the evaluation begins at the second one.
TEST(Prediccion, DesdeElPrincipioDelArchivo) {
    const struct {
        const char *fin;
        ModosEvaluacion modo;
        int primera; // -1: "Muestra no válida", point 1
    } Casos[] = {
        {"1982", EvaluarTasas, -1}, {"1982", EvaluarIncrementos, -1}, {"1982", EvaluarOriginales, 0},
        {"1983", EvaluarTasas, 1},  {"1983", EvaluarIncrementos, 1},  {"1983", EvaluarOriginales, 0},
    };
    for (const auto &c : Casos) {
        SCOPED_TRACE(testing::Message() << c.fin << " " << c.modo);
        EmpezarConLaMedia();
        EXPECT_EQ(AceptarPrediccion(nullptr, Rango("1981", c.fin, c.modo)), c.primera < 0 ? 0 : 1);
        if (c.primera < 0)
            EXPECT_EQ(TextosDeCajas(), std::vector<std::string>{"Muestra no válida. Pto 1"});
        else
            EXPECT_EQ(Prediccion.inicioPred, c.primera);
        EXPECT_EQ(Prediccion.prediccionEval[0], c.modo == EvaluarOriginales ? 2.5 : 0.0);
        EXPECT_EQ(Prediccion.observacionEval[0], c.modo == EvaluarOriginales ? 1.0 : 0.0);
    }
}

// Over an observation of 0 a rate is 0, and an increment the value itself.
TEST(Prediccion, UnaObservacionDeCero) {
    EmpezarConLaMedia();
    PonerSerie("VENTAS", {1, 2, 0, 4, 6, 5, 1});
    ASSERT_EQ(AceptarPrediccion(nullptr, Rango("1982", "1987", EvaluarTasas)), 1);
    EXPECT_EQ(Prediccion.prediccionEval[3], 0.0);
    EXPECT_EQ(Prediccion.observacionEval[3], 0.0);
    EXPECT_EQ(Prediccion.observacionEval[4], 0.5);
    EXPECT_EQ(Prediccion.prediccionEval[4], -0.375);
    ASSERT_EQ(AceptarPrediccion(nullptr, Rango("1982", "1987", EvaluarIncrementos)), 1);
    EXPECT_EQ(Prediccion.prediccionEval[3], 2.5);
    EXPECT_EQ(Prediccion.observacionEval[3], 4.0);
}

// ----- Messages

namespace {

void Borrar(const char *matriz) {
    BorrarMatriz(nullptr, BuscarMatriz(matriz));
}

void LlenarSeries(int hasta) {
    while (ArchivoTrabajo.NumSeries < hasta)
        PonerSerie("S" + std::to_string(ArchivoTrabajo.NumSeries), Datos(Anos, 1.0));
}

struct CasoMensaje {
    const char *nombre;
    std::function<void(ValoresPrediccion &)> cambiar;
    const char *texto;
    bool predicho; // the predictions were written before
};

} // namespace

TEST(Prediccion, Mensajes) {
    const CasoMensaje Casos[] = {
        {"no beta",
         [](auto &) {
             Borrar("_COV");
             Borrar("_BETA");
             LlenarSeries(99);
         },
         "No existe la matriz Beta. Pto 1", false},
        {"another beta",
         [](auto &) {
             PonerMatriz("_BETA", {1, 2}, 2, 1);
         },
         "No existe la matriz Beta. Pto 1", false},
        {"99 series",
         [](auto &) {
             LlenarSeries(99);
             Borrar("_COV");
         },
         "Borre algunas series. Pto 1", false},
        {"97 series",
         [](auto &) {
             LlenarSeries(97);
             Borrar("_COV");
         },
         "Borre algunas series. Pto 1", false},
        {"a matrix", [](auto &v) { v.codigoDtm = "_beta"; },
         "Código de serie no válido, igual a matriz:_BETA. Pto 1", false},
        {"no cov",
         [](auto &) {
             Borrar("_COV");
             LlenarSeries(96);
         },
         "No existe la matriz de covarianza. Pto 1", true},
        {"another cov",
         [](auto &) {
             PonerMatriz("_COV", {1, 2, 3, 4}, 2, 2);
         },
         "No existe la matriz de covarianza. Pto 1", true},
        {"no scr",
         [](auto &) {
             BorrarEscalar(BuscarEscalar("_SCR"));
             BorrarSerie(BuscarSerie("Y"));
         },
         "Realice una regresión", true},
        {"no dependent",
         [](auto &) {
             BorrarSerie(BuscarSerie("Y"));
             LlenarSeries(96);
         },
         "Se ha borrado la variable dependiente. Pto 1", true},
        {"96 series",
         [](auto &v) {
             LlenarSeries(96);
             v.fin = "1983";
         },
         "Borre algunas series. Pto 1", true},
        {"95 series",
         [](auto &v) {
             LlenarSeries(95);
             v.fin = "1983";
         },
         "Borre algunas series. Pto 1", true},
        {"94 series",
         [](auto &v) {
             LlenarSeries(94);
             v.fin = "1983";
         },
         "Muestra no válida. Pto 11", true},
    };
    for (const CasoMensaje &c : Casos) {
        SCOPED_TRACE(c.nombre);
        EmpezarConRegresion();
        ValoresPrediccion v;
        c.cambiar(v);
        EXPECT_EQ(AceptarPrediccion(nullptr, v), 0);
        EXPECT_EQ(Prueba.cajas,
                  (std::vector<CajaVista>{{"Proceso cancelado", c.texto, IconoInformacion, BotonesAceptar}}));
        EXPECT_TRUE(Prueba.resultados.empty());
        EXPECT_FALSE(Prediccion.evaluada);
        EXPECT_EQ(!std::isnan(ValoresDe("_PRED", 3)[2]), c.predicho);
    }
}

TEST(Prediccion, LaTablaSeLlenaYNoSePasa) {
    EmpezarConRegresion();
    LlenarSeries(99);
    for (int vez = 0; vez < 3; ++vez) EXPECT_EQ(AceptarPrediccion(nullptr, {}), 0);
    EXPECT_EQ(ArchivoTrabajo.NumSeries, 100);
    EXPECT_EQ(TextosDeCajas(), std::vector<std::string>(3, "Borre algunas series. Pto 1"));
}

TEST(Prediccion, SinRegresion) {
    EmpezarPrueba();
    EXPECT_EQ(EmpezarPrediccion(nullptr), 0);
    EXPECT_EQ(Prueba.cajas, (std::vector<CajaVista>{{"Proceso cancelado", "Realice una regresión",
                                                     IconoInformacion, BotonesAceptar}}));
    EmpezarConRegresion();
    EXPECT_EQ(EmpezarPrediccion(nullptr), 1);
    EXPECT_TRUE(Prueba.cajas.empty());
}

TEST(Prediccion, LaTablaParaUnaHoja) {
    EmpezarConLaMedia();
    ASSERT_EQ(AceptarPrediccion(nullptr, Rango("1984", "1987", EvaluarIncrementos)), 1);
    const std::string tabla = Utf8De1252(TablaPrediccion());
    EXPECT_EQ(
        tabla.substr(0, tabla.find("Corre.")),
        "Modelo\tMinimos cuadrados\nVariable dependiente\tVENTAS\nRegresores\t1\tOTRA\nMuestra\t1984\t1987\n"
        "Incrementos absolutos\n\nError absoluto medio (EAM)\t2.25\nError cuadrático medio (ECM)\t5.75\n");
    const std::string rotulo = "\nComponente aleatorio\t";
    Cerca(std::stod(tabla.substr(tabla.find(rotulo) + rotulo.size())),
          1 - 2.25 / 5.75 - std::pow(std::sqrt(1.25) - std::sqrt(5.25), 2) / 5.75);
}
