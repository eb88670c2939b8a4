// Descriptive measures: numbers against another computation, the table character by character, every message.
#include "analysis/descriptivos.h"

#include "apoyo/plataforma_prueba.h"
#include "language/lote_sentencias.h"
#include "platform/texto.h"
#include "store/archivo.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace {

using Datos = std::vector<double>;
using Lineas = std::vector<std::pair<int, std::string>>;

constexpr double Falta = std::numeric_limits<double>::quiet_NaN();

void Empezar() {
    EmpezarConDatos(TipoSinPeriodicidad, "");
}

MedidasDescriptivas Medir(const Datos &x) {
    Empezar();
    PonerSerie("X", x);
    return MedirSerie(BuscarSerie("X"), {0, static_cast<int>(x.size()) - 1});
}

} // namespace

TEST(Descriptivos, Medidas) {
    const struct {
        Datos x;
        double media, desviacion, minimo, maximo;
    } Casos[] = {
        {{5}, 5, 0, 5, 5},
        {{2, 4, 4, 4, 5, 5, 7, 9}, 5, 2, 2, 9},
        {{-1, -3}, -2, 1, -3, -1},
        {{4, Falta, 8}, 6, 2, 4, 8}, // the stored zero of what is missing doesn't count
        {{Falta, 4, 8}, 6, 2, 4, 8},
        {{4, 8, Falta}, 6, 2, 4, 8},
        {{Falta, -4, -8}, -6, 2, -8, -4},
        // Without a first value the extremes begin at these.
        {{Falta, 10000000, 10000002}, 10000001, 1, 9999999, 10000002},
        {{Falta, -10000000, -10000002}, -10000001, 1, -10000002, -9999999},
        {{10000000, 10000002}, 10000001, 1, 10000000, 10000002},
        {{-10000000, -10000002}, -10000001, 1, -10000002, -10000000},
        {{Falta, Falta}, 0, 0, 9999999, -9999999},
    };
    for (const auto &c : Casos) {
        SCOPED_TRACE(testing::Message() << c.x.size() << " values, mean " << c.media);
        const MedidasDescriptivas m = Medir(c.x);
        EXPECT_DOUBLE_EQ(m.media, c.media);
        EXPECT_DOUBLE_EQ(m.desviacion, c.desviacion);
        EXPECT_EQ(m.minimo, c.minimo);
        EXPECT_EQ(m.maximo, c.maximo);
    }
    EXPECT_EQ(MedirSerie(0, {3, 2}).maximo, -9999999) << "no rows";
}

TEST(Descriptivos, CorrelacionPorSuDefinicion) {
    Empezar();
    Datos x, y;
    for (int i = 0; i < 300; ++i) {
        x.push_back(i % 11 == 3 ? Falta : 100 + std::sin(i * 0.9) * (i % 13));
        y.push_back(50 - 0.3 * (i % 13) + std::cos(i * 1.7));
    }
    PonerSerie("X", x);
    PonerSerie("Y", y);
    const FilasDeMuestra filas = {10, 289};
    const MedidasDescriptivas mx = MedirSerie(0, filas), my = MedirSerie(1, filas);
    long double n = 0, suma = 0, cuadrados = 0, sxy = 0, sxx = 0, syy = 0, sumaY = 0;
    for (std::size_t i = 10; i < 290; ++i) {
        if (!std::isnan(x[i])) {
            suma += x[i];
            cuadrados += static_cast<long double>(x[i]) * x[i];
            ++n;
        }
        sumaY += y[i];
    }
    const long double mediaX = suma / n, mediaY = sumaY / 280;
    for (std::size_t i = 10; i < 290; ++i) {
        // What is missing counts as the zero that stands in its place.
        const long double dx = (std::isnan(x[i]) ? 0.0L : x[i]) - mediaX, dy = y[i] - mediaY;
        sxy += dx * dy;
        sxx += dx * dx;
        syy += dy * dy;
    }
    EXPECT_NEAR(mx.media, static_cast<double>(mediaX), 1e-10);
    const long double desviacion = std::sqrt(cuadrados / n - mediaX * mediaX);
    EXPECT_NEAR(mx.desviacion, static_cast<double>(desviacion), 1e-9 * static_cast<double>(desviacion));
    EXPECT_NEAR(CorrelacionDeSeries(0, mx.media, 1, my.media, filas),
                static_cast<double>(sxy / std::sqrt(sxx * syy)), 1e-10);
}

TEST(Descriptivos, UnaSerieConstanteNoTieneCorrelacion) {
    Empezar();
    PonerSerie("X", {3, 3, 3});
    PonerSerie("Y", {1, 2, 3});
    EXPECT_EQ(CorrelacionDeSeries(0, 3, 1, 2, {0, 2}), 0.0);
    EXPECT_EQ(CorrelacionDeSeries(0, 3, 0, 3, {0, 2}), 0.0);
    EXPECT_DOUBLE_EQ(CorrelacionDeSeries(1, 2, 1, 2, {0, 2}), 1.0);
    PonerSerie("Z", {0.001, 0.002, 0.003});
    EXPECT_DOUBLE_EQ(CorrelacionDeSeries(2, 0.002, 2, 0.002, {0, 2}), 1.0) << "however little it varies";
}

// Deviations by hand: of 1, 2, 3, 4 the root of 5/4 = 1.11803, of 9, 4, 1, 2 that of 38/4 = 3.08220; products about the means
// (-1.5 * 5) + (-0.5 * 0) + (0.5 * -3) + (1.5 * -2) = -12, r = -12 / root(5 * 38) = -0.87057. All are cut, not rounded.
TEST(Descriptivos, LaTablaDeDosSeries) {
    Empezar();
    PonerSerie("A", {1, 2, 3, 4});
    PonerSerie("LARGA123", {9, 4, 1, 2});
    ASSERT_TRUE(Procesar("MUEST 1 4"));
    ASSERT_EQ(AceptarDescriptivos(nullptr, {"A", "LARGA123    "}), 1);
    ASSERT_EQ(Prueba.resultados.size(), 1u);
    EXPECT_EQ(Prueba.resultados[0].tipo, SalidaDescriptivos);
    EXPECT_EQ(Prueba.resultados[0].titulo, "Medidas descriptivas");
    EXPECT_EQ(Prueba.resultados[0].lineas,
              (Lineas{
                  {0, " Serie            Media     Desviación    Mínimo      Máximo"},
                  {0, "          A        2.50        1.11        1.00        4.00"},
                  {0, "   LARGA123        4.00        3.08        1.00        9.00"},
                  {0, "                     Coeficientes de correlación"},
                  {1, "                         A  LARGA123-0.870"},
              }));
}

// The first code stands on the first pair of its group only.
TEST(Descriptivos, LosParesDeTres) {
    Empezar();
    PonerSerie("A", {1, 2, 3});
    PonerSerie("B", {2, 4, 6});
    PonerSerie("C", {5, 5, 5});
    ASSERT_TRUE(Procesar("MUEST 1 3"));
    ASSERT_EQ(AceptarDescriptivos(nullptr, {"C", "A", "B"}), 1);
    const Lineas &l = Prueba.resultados.at(0).lineas;
    ASSERT_EQ(l.size(), 8u);
    EXPECT_EQ(l[1].second.substr(0, 11), "          C"); // in the order of the list
    EXPECT_EQ(l[5], std::pair(1, std::string("                         C         A 0.000")));
    EXPECT_EQ(l[6], std::pair(1, std::string("                                   B 0.000")));
    EXPECT_EQ(l[7], std::pair(1, std::string("                         A         B 1.000")));
}

TEST(Descriptivos, UnaSolaSerieSinCorrelaciones) {
    Empezar();
    PonerSerie("A", {1, 2, 3});
    PonerSerie("B", {1, 2, 3});
    ASSERT_EQ(AceptarDescriptivos(nullptr, {"A"}), 1);
    EXPECT_EQ(Prueba.resultados.at(0).lineas.size(), 2u);
}

TEST(Descriptivos, LosDecimalesDelTrabajoYElAnchoDeDiez) {
    const struct {
        int decimales;
        double valor;
        const char *campo; // ten characters
    } Casos[] = {
        {0, 2.75, "         2"},          {1, 2.75, "       2.7"},         {6, 2.0 / 3, "  0.666666"},
        {2, -0.001, "     -0.00"},        {4, 123456.78915, "123456.789"}, {2, 12345678901.5, "1234567890"},
        {6, -1234.5678905, "-1234.5678"},
    };
    for (const auto &c : Casos) {
        Empezar();
        PonerSerie("A", {c.valor, c.valor});
        ASSERT_TRUE(Procesar("MUEST 1 2"));
        Lote.DecimalesSalida = c.decimales;
        ASSERT_EQ(AceptarDescriptivos(nullptr, {"A"}), 1);
        EXPECT_EQ(Prueba.resultados.at(0).lineas.at(1).second.substr(13, 10), c.campo);
        EXPECT_EQ(Prueba.resultados.at(0).lineas.at(1).second.substr(37, 10), c.campo);
    }
}

TEST(Descriptivos, Mensajes) {
    Empezar();
    std::vector<std::string> nueve;
    for (int i = 0; i < 10; ++i) {
        const std::string codigo = "S" + std::to_string(i);
        PonerSerie(codigo, {1, 2.0 + i, 3});
        if (i < 9) nueve.push_back(codigo);
    }
    std::vector<std::string> diez = nueve;
    diez.push_back("S9");
    const struct {
        std::vector<std::string> elegidas;
        const char *titulo, *texto;
    } Casos[] = {
        {diez, "Aviso", "Demasiadas series escogidas"},
        {{}, "Aviso", "Escoja una serie"},
        {{"S1", "OTRA"}, "Proceso cancelado", "Serie no Encontrada. Pto 86"},
        {{""}, "Proceso cancelado", "Serie no Encontrada. Pto 86"},
    };
    for (const auto &c : Casos) {
        Prueba.cajas.clear();
        EXPECT_EQ(AceptarDescriptivos(nullptr, c.elegidas), 0);
        EXPECT_EQ(Prueba.cajas,
                  (std::vector<CajaVista>{{c.titulo, c.texto, IconoInformacion, BotonesAceptar}}));
        EXPECT_TRUE(Prueba.resultados.empty());
    }
    EXPECT_EQ(AceptarDescriptivos(nullptr, nueve), 1);
    // Heading, nine series, heading, 36 pairs.
    EXPECT_EQ(Prueba.resultados.at(0).lineas.size(), 47u);
}
