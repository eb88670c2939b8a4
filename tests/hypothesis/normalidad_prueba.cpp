// The test of Bera and Jarque.
#include "hypothesis/normalidad.h"

#include "apoyo/datos_csv.h"
#include "apoyo/plataforma_prueba.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace {

using Datos = std::vector<double>;
using Lineas = std::vector<std::pair<int, std::string>>;

// The definition over the moments about zero, in long double.
ContrasteNormalidad PorDefinicion(const Datos &x) {
    const long double n = static_cast<long double>(x.size());
    long double m2 = 0, m3 = 0, m4 = 0;
    for (const double v : x) {
        m2 += static_cast<long double>(v) * v / n;
        m3 += static_cast<long double>(v) * v * v / n;
        m4 += static_cast<long double>(v) * v * v * v / n;
    }
    const long double a = m3 / std::pow(m2, 1.5L), c = m4 / (m2 * m2);
    const long double b = n / 6 * a * a + n / 24 * (c - 3) * (c - 3);
    // The tail of the chi-square with two degrees of freedom is an exponential.
    return {static_cast<double>(a), static_cast<double>(c), static_cast<double>(b),
            static_cast<double>(std::exp(-b / 2))};
}

void Iguales(const ContrasteNormalidad &valor, const ContrasteNormalidad &esperado) {
    const auto cerca = [](double v, double e) { EXPECT_NEAR(v, e, std::fabs(e) * 1e-9); };
    cerca(valor.asimetria, esperado.asimetria);
    cerca(valor.curtosis, esperado.curtosis);
    cerca(valor.estadistico, esperado.estadistico);
    cerca(valor.probabilidad, esperado.probabilidad);
}

} // namespace

TEST(Normalidad, ValoresPorSuDefinicion) {
    Datos residuos, lejos;
    for (int i = 0; i < 400; ++i)
        residuos.push_back(std::sin(i * 1.3) * (1 + 0.2 * (i % 7)) - 0.02 * (i % 3));
    for (int i = 0; i < 50; ++i) lejos.push_back(1000 + std::sin(i));
    for (const Datos &x : {residuos, Datos{1, -1, 2}, Datos{-3}, Datos{0.5, -0.25, 0.125, -4},
                           Datos{0.01, -0.02, 0.005}, lejos})
        Iguales(ContrastarNormalidad(x), PorDefinicion(x));
    // The moments are not about the mean.
    EXPECT_NEAR(ContrastarNormalidad(lejos).curtosis, 1.0, 1e-5);
    EXPECT_GT(ContrastarNormalidad(lejos).estadistico, 15.0);
}

TEST(Normalidad, LoQueNoSePuedeDividirEsCero) {
    const ContrasteNormalidad ceros = ContrastarNormalidad(Datos(8, 0.0));
    EXPECT_EQ(ceros.asimetria, 0.0);
    EXPECT_EQ(ceros.curtosis, 0.0);
    EXPECT_EQ(ceros.estadistico, 3.0); // 9 n / 24
    EXPECT_NEAR(ceros.probabilidad, std::exp(-1.5), 1e-15);
    const ContrasteNormalidad nada = ContrastarNormalidad({});
    EXPECT_EQ(nada.estadistico, 0.0);
    EXPECT_EQ(nada.probabilidad, 1.0);
}

// Of (1, -1, 2, 0), the last one missing: squares 6, cubes 8, fourth powers 18, n 4. A = 2 / 1.5^1.5 = 1.088662, C = 18 / 9
// = 2, B = 4/6 A^2 + 4/24 = 0.790123 + 0.166667 = 0.956790, tail exp(-B/2) = 0.619777.
TEST(Normalidad, LaVentana) {
    EmpezarConDatos(TipoTrimestral, "1990.1#1995.4");
    PonerSerie("Z", {1, 2, 3, 4, 5, 6});
    PonerSerie("RESID", {1, -1, 2, std::numeric_limits<double>::quiet_NaN(), 100}, 1);
    ASSERT_TRUE(Procesar("MUEST 1990.2 1991.1"));
    ASSERT_EQ(AceptarNormalidad(nullptr, "RESID       "), 1);
    EXPECT_TRUE(Prueba.cajas.empty());
    ASSERT_EQ(Prueba.resultados.size(), 1u);
    EXPECT_EQ(Prueba.resultados[0].tipo, SalidaNormalidad);
    EXPECT_EQ(Prueba.resultados[0].titulo, "Contraste de normalidad  Bera y Jarque");
    EXPECT_EQ(Prueba.resultados[0].lineas, (Lineas{
                                               {1, "         Muestra: 1990.2 - 1991.1     NºObs.: 4"},
                                               {1, "         Serie......................: RESID"},
                                               {1, "         Coeficiente de asimetria...:     1.0887"},
                                               {1, "         Coeficiente de curtosis....:     2.0000"},
                                               {1, "         Estadístico................:     0.9568"},
                                               {1, "         Prob > Chi-cuadrado...... .:     0.6198"},
                                           }));
}

// A number too wide for its field of ten loses its right end.
TEST(Normalidad, UnNumeroAnchoPierdeSusDecimales) {
    EmpezarConDatos(TipoSinPeriodicidad, "");
    Datos x(4000, 0.0);
    x[0] = 1e3; // kurtosis n, statistic about n / 6 n + n / 24 n^2
    PonerSerie("X", x);
    ASSERT_TRUE(Procesar("MUEST 1 4000"));
    ASSERT_EQ(AceptarNormalidad(nullptr, "X"), 1);
    const Lineas &lineas = Prueba.resultados.at(0).lineas;
    EXPECT_EQ(lineas.at(3).second, "         Coeficiente de curtosis....:  4000.0000");
    // 4000/6 * 4000 + 4000/24 * 3997^2 = 2666666.67 + 2662668166.67
    EXPECT_EQ(lineas.at(4).second, "         Estadístico................: 2665334833");
}

TEST(Normalidad, SerieQueNoExiste) {
    for (const char *serie : {"", "            ", "OTRA", "_"}) {
        EmpezarConDatos(TipoSinPeriodicidad, "");
        PonerSerie("X", {1, 2, 3});
        EXPECT_EQ(AceptarNormalidad(nullptr, serie), 0);
        EXPECT_EQ(Prueba.cajas,
                  (std::vector<CajaVista>{{"Proceso cancelado", "No existe la serie escogida. Pto 1",
                                           IconoInformacion, BotonesAceptar}}));
        EXPECT_TRUE(Prueba.resultados.empty());
    }
}
