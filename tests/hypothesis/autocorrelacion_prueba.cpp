// The autocorrelation functions: coefficients and bands against another computation, the listing character by character,
// every message.
#include "hypothesis/autocorrelacion.h"

#include "apoyo/datos_csv.h"
#include "apoyo/plataforma_prueba.h"
#include "language/lote_sentencias.h"
#include "platform/texto.h"
#include "store/periodos.h"

#include <Eigen/Dense>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace {

using Datos = std::vector<double>;
using Lineas = std::vector<std::pair<int, std::string>>;

constexpr double Falta = std::numeric_limits<double>::quiet_NaN();

// A work file of observations without periods, with these values in X.
void EmpezarConSerie(const Datos &x, int primera = 0) {
    EmpezarConDatos(TipoSinPeriodicidad, "");
    PonerSerie("X", x, primera);
    ActualizarMuestra();
}

int Aceptar(int funcion, const std::string &retardos, TiposDeBanda banda = BandaUniforme,
            const std::string &serie = "X") {
    ValoresAutocorrelacion v;
    v.serie = serie;
    v.retardos = retardos;
    v.banda = banda;
    return AceptarAutocorrelacion(nullptr, funcion, v);
}

CajaVista Aviso(const std::string &texto) {
    return {"Aviso", texto, IconoInformacion, BotonesAceptar};
}

// The definition, in long double; lag 0 first.
Datos PorDefinicion(const Datos &x, int lags) {
    const int n = static_cast<int>(x.size());
    long double suma = 0, denominador = 0;
    for (const double v : x) suma += v;
    const long double m = suma / n;
    for (const double v : x) denominador += (v - m) * (v - m);
    Datos r = {0};
    for (int k = 1; k <= lags; ++k) {
        long double numerador = 0;
        for (int i = 0; i + k < n; ++i)
            numerador += (x[static_cast<std::size_t>(i)] - m) * (x[static_cast<std::size_t>(i + k)] - m);
        r.push_back(static_cast<double>(numerador / denominador));
    }
    return r;
}

// Last coefficient of the autoregression of l lags, from the equations of Yule and Walker as they stand.
double ParcialDeYuleYWalker(const Datos &r, int l) {
    Eigen::MatrixXd m = Eigen::MatrixXd::Identity(l, l);
    Eigen::VectorXd b(l);
    for (int i = 0; i < l; ++i) {
        b(i) = r[static_cast<std::size_t>(i) + 1];
        for (int j = 0; j < l; ++j)
            if (i != j) m(i, j) = r[static_cast<std::size_t>(std::abs(i - j))];
    }
    return m.fullPivLu().solve(b)(l - 1);
}

Datos Oscilacion(int n) {
    Datos x;
    for (int i = 0; i < n; ++i) x.push_back(std::sin(i * 0.7) * (1 + i % 5) + 0.01 * i);
    return x;
}

void Cerca(double valor, double esperado, int k) {
    EXPECT_NEAR(valor, esperado, 1e-9 * std::max(std::fabs(esperado), 1e-3)) << "lag " << k;
}

} // namespace

// ----- Coefficients and bands

TEST(Autocorrelacion, NiloPorSuDefinicion) {
    EmpezarConDatos(TipoAnual, "1871#1970");
    ASSERT_TRUE(CargarCsv("nilo.csv"));
    ActualizarMuestra();
    const Datos x = LeerCsv("nilo.csv")[0].valores;
    ASSERT_EQ(x.size(), 100u);
    ASSERT_EQ(Aceptar(FuncionEstimada, "40", BandaArma, "CAUDAL"), 1);
    const Datos r = PorDefinicion(x, 40);
    EXPECT_EQ(Autocorrelacion.coeficientes[0], 0.0);
    EXPECT_EQ(Autocorrelacion.desviaciones[0], 0.0);
    EXPECT_DOUBLE_EQ(Autocorrelacion.bandaUniforme, 0.196);
    double S = 0.0;
    for (int k = 1; k <= 40; ++k) {
        Cerca(Autocorrelacion.coeficientes[k], r[static_cast<std::size_t>(k)], k);
        S += r[static_cast<std::size_t>(k)] * r[static_cast<std::size_t>(k)];
        Cerca(Autocorrelacion.desviaciones[k], 1.96 * std::sqrt((2 * S + 1) / 100), k);
    }
    EXPECT_EQ(Autocorrelacion.coeficientes[41], 0.0);
    EXPECT_EQ(Autocorrelacion.desviaciones[41], 0.0);

    ASSERT_EQ(Aceptar(FuncionParcial, "40", BandaUniforme, "CAUDAL"), 1);
    for (int k = 1; k <= 40; ++k) {
        Cerca(Autocorrelacion.coeficientes[k], ParcialDeYuleYWalker(r, k), k);
    }
    EXPECT_EQ(Autocorrelacion.coeficientes[0], 0.0);
    EXPECT_EQ(Autocorrelacion.coeficientes[41], 0.0);
    // The band stays that of the estimated function.
    Cerca(Autocorrelacion.desviaciones[40], 1.96 * std::sqrt((2 * S + 1) / 100), 40);
    EXPECT_EQ(TextosDeCajas(), std::vector<std::string>{});
}

// Both see the sample only; what is missing in it counts as 0.
TEST(Autocorrelacion, LaMuestraYLoQueFalta) {
    EmpezarConSerie({50, 1, 7, Falta, 2, 9, 4, 80});
    ASSERT_TRUE(Procesar("MUEST 2 7"));
    ASSERT_EQ(Aceptar(FuncionEstimada, "3"), 1);
    const Datos r = PorDefinicion({1, 7, 0, 2, 9, 4}, 3);
    for (int k = 1; k <= 3; ++k) Cerca(Autocorrelacion.coeficientes[k], r[static_cast<std::size_t>(k)], k);
    EXPECT_DOUBLE_EQ(Autocorrelacion.bandaUniforme, 1.96 / std::sqrt(6.0));
    ASSERT_EQ(Aceptar(FuncionParcial, "3"), 1);
    for (int k = 1; k <= 3; ++k) Cerca(Autocorrelacion.coeficientes[k], ParcialDeYuleYWalker(r, k), k);
}

// Of a long sample the partial function sees the first 499 values, the other one all of them.
TEST(Autocorrelacion, UnaMuestraMasLargaQueLosSitios) {
    Datos x = Oscilacion(700);
    for (std::size_t i = 499; i < 700; ++i) x[i] *= 3.0;
    EmpezarConSerie(x);
    ASSERT_EQ(Aceptar(FuncionEstimada, "20"), 1);
    const Datos todos = PorDefinicion(x, 20);
    for (int k = 1; k <= 20; ++k)
        Cerca(Autocorrelacion.coeficientes[k], todos[static_cast<std::size_t>(k)], k);
    ASSERT_EQ(Aceptar(FuncionParcial, "20"), 1);
    const Datos primeros = PorDefinicion(Datos(x.begin(), x.begin() + 499), 20);
    for (int k = 1; k <= 20; ++k)
        Cerca(Autocorrelacion.coeficientes[k], ParcialDeYuleYWalker(primeros, k), k);
    EXPECT_EQ(Autocorrelacion.coeficientes[21], 0.0);
    EXPECT_EQ(Autocorrelacion.coeficientes[499], 0.0);
}

// The lags stop at the sample, and at the arrays.
TEST(Autocorrelacion, HastaDondeLleganLosRetardos) {
    const struct {
        int valores;
        const char *retardos;
        int mostrados;
    } Casos[] = {
        {5, "0", 0},       {5, "-3", 0},      {5, "", 0},        {5, "dos", 0},     {5, "1", 1},
        {5, "4", 4},       {5, "5", 5},       {5, "6", 5},       {5, "3,9", 3},     {5, "9999999999999", 5},
        {600, "498", 498}, {600, "499", 499}, {600, "500", 499}, {600, "700", 499}, {499, "600", 499},
        {498, "600", 498},
    };
    for (const auto &c : Casos) {
        SCOPED_TRACE(testing::Message() << c.valores << " values, " << c.retardos);
        EmpezarConSerie(Oscilacion(c.valores));
        ASSERT_EQ(Aceptar(FuncionEstimada, c.retardos), 1);
        EXPECT_EQ(RetardosMostrados(), c.mostrados);
        EXPECT_EQ(Prueba.resultados.at(0).lineas.size(), 4u + static_cast<std::size_t>(c.mostrados + 2) / 3);
        for (int k = 1; k < SitiosRetardo; ++k) {
            EXPECT_EQ(Autocorrelacion.desviaciones[k] > 0.0, k <= c.mostrados) << k;
            EXPECT_TRUE(Autocorrelacion.coeficientes[k] == 0.0 || k <= c.mostrados) << k;
        }
        if (c.mostrados > 0) {
            EXPECT_NE(Autocorrelacion.coeficientes[1], 0.0);
        }
    }
}

TEST(Autocorrelacion, UnaSerieQueVariaPoco) {
    EmpezarConSerie({0.001, 0.002, 0.003, 0.004, 0.005});
    ASSERT_EQ(Aceptar(FuncionEstimada, "4"), 1);
    const double esperados[] = {0, 0.4, -0.1, -0.4, -0.4};
    for (int k = 0; k <= 4; ++k) EXPECT_NEAR(Autocorrelacion.coeficientes[k], esperados[k], 1e-14) << k;
}

// A lag of the whole sample sums nothing.
TEST(Autocorrelacion, ElUltimoRetardoSumaNada) {
    EmpezarConSerie({1, 2, 3, 4, 5});
    ASSERT_EQ(Aceptar(FuncionEstimada, "9"), 1);
    const double esperados[] = {0, 0.4, -0.1, -0.4, -0.4, 0.0};
    for (int k = 0; k <= 5; ++k) EXPECT_DOUBLE_EQ(Autocorrelacion.coeficientes[k], esperados[k]) << k;
    EXPECT_DOUBLE_EQ(Autocorrelacion.desviaciones[5], Autocorrelacion.desviaciones[4]);
}

// ----- The listing. Numbers by hand: the mean of 1 to 5 is 3, the squares about it sum to 10, the products to 4, -1, -4, -4.

TEST(Autocorrelacion, Listado) {
    EmpezarConSerie({1, 2, 3, 4, 5});
    ASSERT_EQ(Aceptar(FuncionEstimada, "5"), 1);
    ASSERT_EQ(Prueba.resultados.size(), 1u);
    const ResultadoVisto &r = Prueba.resultados[0];
    EXPECT_EQ(r.tipo, SalidaAutocorrelacion);
    EXPECT_EQ(r.titulo, "Contrastes de autocorrelación estimada");
    EXPECT_EQ(r.lineas, (Lineas{
                            {2, " Coeficiente de Autocorrelación Estimada de la Serie:  X"},
                            {2, ""},
                            {2, ""},
                            {2, " Retardo  Coeficiente   Retardo  Coeficiente   Retardo  Coeficiente"},
                            {1, "    1            0.40       2           -0.10       3           -0.40"},
                            {1, "    4           -0.40       5            0.00       6"},
                        }));
}

// Of (1, 2, 4, 8): mean 3.75, squares 28.75, first products (-2.75 * -1.75) + (-1.75 * 0.25) + (0.25 * 4.25) = 5.4375,
// second (-2.75 * 0.25) + (-1.75 * 4.25) = -8.125, third -2.75 * 4.25 = -11.6875. The deviations are 1.96 times the root of
// (1 + 2 S) / 4, S the sum of the squared coefficients: 0.189130, -0.282609, -0.406522.
TEST(Autocorrelacion, ListadoConBandaArma) {
    EmpezarConSerie({1, 2, 4, 8});
    Lote.DecimalesSalida = 4;
    ASSERT_EQ(Aceptar(FuncionEstimada, "4", BandaArma), 1);
    EXPECT_EQ(Prueba.resultados.at(0).lineas,
              (Lineas{
                  {2, " Coeficiente de Autocorrelación Estimada de la Serie:  X"},
                  {2, ""},
                  {2, ""},
                  {2, " Ret.  Coefic.  Des.T.  Ret.  Coefic.  Des.T.  Ret.  Coefic.  Des.T."},
                  {1, "    1   0.1891   1.0144      2  -0.2826   1.0874      3  -0.4065   1.2247"},
                  {1, "    4   0.0000   1.2247      5                        6"},
              }));
}

TEST(Autocorrelacion, ListadoDeLaParcial) {
    EmpezarConSerie({1, 2, 3, 4, 5});
    Lote.DecimalesSalida = 6;
    ASSERT_EQ(Aceptar(FuncionParcial, "2", SinBanda), 1);
    EXPECT_EQ(Prueba.resultados.at(0).titulo, "Contrastes de autocorrelación parcial estimada");
    // (-0.1 - 0.4^2) / (1 - 0.4^2) = -0.26 / 0.84
    EXPECT_EQ(Prueba.resultados.at(0).lineas,
              (Lineas{
                  {2, " Coeficiente de Autocorrelación Par. Estimada de la Serie: X"},
                  {2, ""},
                  {2, ""},
                  {2, " Retardo  Coeficiente   Retardo  Coeficiente   Retardo  Coeficiente"},
                  {1, "    1        0.400000       2       -0.309524       3"},
              }));
}

TEST(Autocorrelacion, SinRetardosSoloLaCabecera) {
    EmpezarConSerie({1, 2, 3, 4, 5});
    for (const TiposDeBanda banda : {BandaUniforme, BandaArma, SinBanda}) {
        Prueba.resultados.clear();
        ASSERT_EQ(Aceptar(FuncionEstimada, "0", banda), 1);
        EXPECT_EQ(Prueba.resultados.at(0).lineas.size(), 4u);
    }
}

TEST(Autocorrelacion, DecimalesDelTrabajo) {
    EmpezarConSerie({1, 2, 3, 4, 5});
    const char *const esperadas[] = {"    1               0       2              -0       3              -0",
                                     "    1             0.4       2            -0.1       3            -0.4"};
    for (int d = 0; d < 2; ++d) {
        Lote.DecimalesSalida = d;
        Prueba.resultados.clear();
        ASSERT_EQ(Aceptar(FuncionEstimada, "3"), 1);
        EXPECT_EQ(Prueba.resultados.at(0).lineas.back().second, esperadas[d]);
    }
}

TEST(Autocorrelacion, TablaConTodasLasCifras) {
    EmpezarConSerie({1, 2, 3, 4, 5});
    ASSERT_EQ(Aceptar(FuncionEstimada, "2"), 1);
    EXPECT_EQ(Utf8De1252(TablaAutocorrelacion()), "Serie\tX\n\nRetardo\tCoeficiente\n1\t0.4\n2\t-0.1\n");
    ASSERT_EQ(Aceptar(FuncionEstimada, "1", BandaArma), 1);
    const std::string tabla = TablaAutocorrelacion();
    const std::string cabeza = "Serie\tX\n\nRetardo\tCoeficiente\tDes.T.\n1\t0.4\t";
    ASSERT_EQ(tabla.substr(0, cabeza.size()), cabeza);
    EXPECT_DOUBLE_EQ(std::stod(tabla.substr(cabeza.size())), 1.96 * std::sqrt(1.32 / 5));
}

// ----- What the dialog keeps for listing and chart

TEST(Autocorrelacion, LasOpciones) {
    EmpezarConSerie({1, 2, 3, 4, 5});
    const ValoresAutocorrelacion iniciales;
    EXPECT_TRUE(iniciales.conTitulo);
    EXPECT_EQ(iniciales.titulo, " ");
    EXPECT_TRUE(iniciales.tituloArriba);
    EXPECT_EQ(iniciales.marcas, MarcasAlMedio);
    EXPECT_EQ(iniciales.banda, BandaUniforme);
    ValoresAutocorrelacion v;
    v.serie = "X";
    v.retardos = "2";
    AceptarAutocorrelacion(nullptr, FuncionEstimada, v);
    EXPECT_EQ(Autocorrelacion.funcion, 2073);
    EXPECT_EQ(Autocorrelacion.conTitulo, 1);
    EXPECT_EQ(Autocorrelacion.tituloAbajo, 0);
    EXPECT_EQ(Autocorrelacion.marcas, 1);
    EXPECT_EQ(Autocorrelacion.tipoBanda, 0);
    EXPECT_EQ(Autocorrelacion.retardos, 2);
    EXPECT_EQ(Autocorrelacion.observaciones, 5);
    EXPECT_STREQ(Autocorrelacion.serie, "X           ");
    v.conTitulo = v.tituloArriba = false;
    v.marcas = SinMarcas;
    v.banda = SinBanda;
    v.titulo = std::string(60, 'T') + "U";
    AceptarAutocorrelacion(nullptr, FuncionParcial, v);
    EXPECT_EQ(Autocorrelacion.funcion, 2093);
    EXPECT_EQ(Autocorrelacion.conTitulo, 0);
    EXPECT_EQ(Autocorrelacion.tituloAbajo, 1);
    EXPECT_EQ(Autocorrelacion.marcas, 3);
    EXPECT_EQ(Autocorrelacion.tipoBanda, 2);
    EXPECT_EQ(Autocorrelacion.titulo, std::string(60, 'T'));
}

TEST(Autocorrelacion, LosTextosDelDialogo) {
    EXPECT_EQ(Utf8De1252(TituloDialogoAutocorrelacion(2073)), "Función de autocorrelación estimada");
    EXPECT_EQ(Utf8De1252(TituloDialogoAutocorrelacion(2093)), "Función de autocorrelación parcial estimada");
    EXPECT_EQ(Utf8De1252(RotuloRetardos(2073)), "Número de retardos.....:");
    EXPECT_EQ(Utf8De1252(RotuloRetardos(2093)), "Número de coeficientes.....:");
}

// ----- Messages

TEST(Autocorrelacion, SinSerieOSinVariacion) {
    const struct {
        Datos x;
        const char *serie, *texto;
    } Casos[] = {
        {{1, 2, 3}, "", "Serie no válida."},
        {{1, 2, 3}, "OTRA", "Serie no válida."},
        {{4, 4, 4, 4}, "X", "No se puede calcular el coeficiente."},
        {{0, 0, 0}, "X", "No se puede calcular el coeficiente."},
    };
    for (const auto &c : Casos)
        for (const int funcion : {FuncionEstimada, FuncionParcial}) {
            EmpezarConSerie(c.x);
            EXPECT_EQ(Aceptar(funcion, "2", BandaUniforme, c.serie), 0);
            EXPECT_EQ(Prueba.cajas, std::vector<CajaVista>{Aviso(c.texto)});
            EXPECT_TRUE(Prueba.resultados.empty());
        }
}

TEST(Autocorrelacion, UnCoeficienteQueNoLoEs) {
    // The squares pass the largest number: infinite over infinite is no coefficient.
    EmpezarConSerie({1e200, -1e200, 1e200, -1e200});
    EXPECT_EQ(Aceptar(FuncionEstimada, "2"), 0);
    ASSERT_EQ(Prueba.cajas.size(), 1u);
    const std::string esperado = "Serie no válida: Serie[1]:";
    EXPECT_EQ(Prueba.cajas[0].texto.substr(0, esperado.size()), esperado);
    EXPECT_EQ(Prueba.cajas[0].titulo, "Aviso");
    for (const char *parte :
         {"nan; Media :     0.000000; Denominador :          inf; Numerador :         -inf"})
        EXPECT_NE(Prueba.cajas[0].texto.find(parte), std::string::npos) << Prueba.cajas[0].texto;
    EXPECT_TRUE(Prueba.resultados.empty());
}

// The partial coefficients of more lags than the sample allows can't be had: the box comes, and the listing with zeros.
TEST(Autocorrelacion, ParcialesQueNoSePuedenCalcular) {
    const std::string error = "Se ha producido un error en los cálculos";
    const struct {
        int valores;
        const char *retardos;
        std::size_t cajas;
    } Casos[] = {
        {5, "4", 0},  {5, "5", 1},     {5, "499", 1},   {5, "500", 2},   {5, "0", 2},
        {5, "-1", 2}, {600, "498", 0}, {600, "499", 1}, {600, "500", 2},
    };
    for (const auto &c : Casos) {
        SCOPED_TRACE(testing::Message() << c.valores << " values, " << c.retardos);
        EmpezarConSerie(Oscilacion(c.valores));
        EXPECT_EQ(Aceptar(FuncionParcial, c.retardos), 1);
        EXPECT_EQ(Prueba.cajas, std::vector<CajaVista>(c.cajas, Aviso(error)));
        ASSERT_EQ(Prueba.resultados.size(), 1u);
        if (c.cajas > 0) {
            EXPECT_EQ(Autocorrelacion.coeficientes[1], 0.0);
        }
        EXPECT_EQ(Prueba.resultados[0].lineas.size(),
                  4u + static_cast<std::size_t>(RetardosMostrados() + 2) / 3);
    }
}
