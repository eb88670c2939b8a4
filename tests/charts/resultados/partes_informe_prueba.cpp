// What the reports are put together from.
#include "apoyo/plataforma_prueba.h"
#include "charts/resultados/partes_informe.h"
#include "platform/texto.h"
#include "store/archivo.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

using Lineas = std::vector<std::pair<int, std::string>>;

Lineas Leer(const TextoSalida &texto) {
    Lineas r;
    for (const LineaSalida &l : texto) r.emplace_back(l.Grupo, Utf8De1252(l.texto));
    return r;
}

TEST(Campos, NumeroFijoPierdeLaIzquierda) {
    static constexpr struct {
        double valor;
        int decimales, ancho;
        const char *texto;
    } Casos[] = {
        {1.5, 4, 10, "    1.5000"},
        {12345.678, 4, 10, "12345.6780"},
        {123456.789, 4, 10, "23456.7890"},
        {-12345.678, 4, 10, "12345.6780"},
        {17.0, 0, 3, " 17"},
        {123.0, 0, 3, "123"},
        {1234.0, 0, 3, "234"},
        {0.00005, 4, 10, "    0.0001"},
        {2.5, 1, 0, "5"},
    };
    for (const auto &c : Casos) EXPECT_EQ(NumeroFijo(c.valor, c.decimales, c.ancho), c.texto) << c.valor;
}

TEST(Campos, NumeroCopiadoPierdeLaDerecha) {
    static constexpr struct {
        int impresos, decimales;
        double valor;
        int ancho;
        const char *texto;
    } Casos[] = {
        {4, 4, 1.5, 10, "    1.5000"},        {4, 4, 12345.678, 10, "12345.6780"},
        {4, 4, -12345.678, 10, "-12345.678"}, {4, 4, 12345678901.5, 10, "1234567890"},
        {10, 2, 1.999, 10, "      1.99"}, // copied, not rounded
        {10, 6, -0.25, 10, " -0.250000"},     {10, 3, 0.98765, 6, " 0.987"},
        {10, 3, -0.98765, 6, "-0.987"},       {10, 0, 7.9, 10, "         7"},
        {10, 1, 7.99, 10, "       7.9"},      {10, 2, HUGE_VAL, 10, "       inf"},
    };
    for (const auto &c : Casos)
        EXPECT_EQ(NumeroCopiado(c.impresos, c.decimales, c.valor, c.ancho), c.texto) << c.valor;
}

TEST(Campos, NumeroExacto) {
    for (const double v : {0.1, 1.0 / 3.0, -1e300, 5e-324, 12345678.125})
        EXPECT_EQ(std::strtod(NumeroExacto(v).c_str(), nullptr), v);
    EXPECT_EQ(NumeroExacto(0.1), "0.1");
    EXPECT_EQ(NumeroExacto(2.0), "2");
}

TEST(Cabecera, Nombres) {
    const std::vector<std::string> n = {"AB", "CD", "EF", "GH"};
    EXPECT_EQ(UnirNombres(n, ',', 45), "AB,CD,EF,GH");
    EXPECT_EQ(UnirNombres(n, ' ', 5), "AB CD EF") << "five characters take one more name";
    EXPECT_EQ(UnirNombres(n, ',', 4, ".."), "AB,CD..");
    EXPECT_EQ(UnirNombres(n, ',', 8, ".."), "AB,CD,EF,GH") << "nothing was left out";
    EXPECT_EQ(UnirNombres({}, ',', 45), "");
}

TEST(Cabecera, LineasDeUnContraste) {
    EmpezarConDatos(TipoAnual, "1990#2005");
    const std::vector<std::string> nombres = {"1", "X1", "X2(-1)"};
    TextoSalida texto;
    AnadirCabecera(
        texto, CabeceraDeContraste,
        {.dependiente = "Y", .nombres = nombres, .muestra = TextoDeFilas(2, 15), .observaciones = 14});
    const Lineas esperadas = {
        {0, "Variable Dep.: Y                                                     "},
        {0, "Regresores   : 1,X1,X2(-1)                                           "},
        {0, "Muestra      : 1992 - 2005          Nº Observaciones     : 14        "},
        {0, std::string(70, ' ')},
    };
    EXPECT_EQ(Leer(texto), esperadas);
    // A line of its own below the sample, and rows that don't exist.
    texto.clear();
    AnadirCabecera(texto, CabeceraDeRegresion,
                   {.dependiente = "Y",
                    .nombres = nombres,
                    .muestra = TextoDeFilas(-1, 4000),
                    .observaciones = 0,
                    .formatoMuestra = FormatoMuestraOrdenada,
                    .mas = "algo más"_w});
    EXPECT_EQ(Leer(texto),
              (Lineas{{0, "Variable Dep.: Y            "},
                      {0, "Regresores   : 1,X1,X2(-1)                                 "},
                      {0, "Muestra Orde.:  -                   Nº Observaciones     : 0         "},
                      {0, "algo más"},
                      {0, std::string(70, ' ')}}));
}

constexpr LineaDeInforme DosLineas[] = {
    {2,
     "uno %10s|%3s|%6s",
     {DeFamilia(FamSCR, "Suma"), NumeroDado("Dado", 0, 3), DeEscalar("_A", "A", 2, 6)}},
    {1, "dos %10s", {NumeroDado("Otro")}},
};
constexpr double Dados[] = {17.0, 0.5};

TEST(LineasDeEscalares, LeeDeSuCodigo) {
    EmpezarPrueba();
    PonerEscalar(nullptr, "_SCR", 1.0);
    PonerEscalar(nullptr, "_SCRW", 2.25);
    PonerEscalar(nullptr, "_A", -3.125);
    TextoSalida texto;
    EXPECT_TRUE(AnadirLineas(texto, DosLineas, 12, Dados));
    EXPECT_EQ(Leer(texto), (Lineas{{2, "uno     2.2500| 17| -3.12"}, {1, "dos     0.5000"}}));
    EXPECT_EQ(TablaDeLineas(DosLineas, 12, Dados), "Suma\t2.25\nDado\t17\nA\t-3.125\nOtro\t0.5\n");
    texto.clear();
    EXPECT_TRUE(AnadirLineas(texto, DosLineas, 8, Dados));
    EXPECT_EQ(Leer(texto).at(0).second, "uno     1.0000| 17| -3.12");
}

TEST(LineasDeEscalares, LoQueFalta) {
    EmpezarPrueba();
    PonerEscalar(nullptr, "_SCR", 1.0);
    TextoSalida texto;
    EXPECT_FALSE(AnadirLineas(texto, DosLineas, 8, Dados));
    EXPECT_TRUE(texto.empty()) << "the line is not written";
    EXPECT_EQ(TablaDeLineas(DosLineas, 8, Dados), "Suma\t1\nDado\t17\nOtro\t0.5\n");
    PonerEscalar(nullptr, "_A", 1.0);
    EXPECT_FALSE(AnadirLineas(texto, DosLineas, 8, std::span(Dados, 1))) << "a number too few was handed in";
    EXPECT_EQ(texto.size(), 1u);
}

} // namespace
