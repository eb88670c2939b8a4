// CWH from the statement to its window, against least squares from the definition.
#include "hypothesis/apoyo_contrastes.h"

#include <gtest/gtest.h>

namespace {

using Columnas = std::vector<std::vector<double>>;

// Upper tail of the chi-square distribution: exponential and error function, by the recurrence of the incomplete gamma.
double ColaChi(double x, int grados) {
    double a = grados % 2 == 0 ? 1.0 : 0.5;
    double cola = grados % 2 == 0 ? std::exp(-x / 2) : std::erfc(std::sqrt(x / 2));
    for (; 2 * a < grados; ++a) cola += std::exp(a * std::log(x / 2) - x / 2 - std::lgamma(a + 1));
    return cola;
}

struct CasoWhite {
    const char *regresion, *texto;
    Textos regresores; // of the last regression
    Textos auxiliares; // "1", a series or the product of two
    int primera, ultima;
    bool conRegresion;
};

const CasoWhite Casos[] = {
    {"MC Y 1 X Z", "CWH", {"1", "X", "Z"}, {"1", "X", "Z", "X*X", "Z*Z"}, 0, 19, false},
    {"MC Y 1 X Z", "CWH RA", {"1", "X", "Z"}, {"1", "X", "Z", "X*X", "Z*Z"}, 0, 19, true},
    {"MC Y 1 X Z", "CWH PC", {"1", "X", "Z"}, {"1", "X", "Z", "X*X", "Z*Z", "X*Z"}, 0, 19, false},
    {"MC Y 1 X Z", "cwh pc ra", {"1", "X", "Z"}, {"1", "X", "Z", "X*X", "Z*Z", "X*Z"}, 0, 19, true},
    {"MC Y X Z", "CWH RA", {"X", "Z"}, {"X", "Z", "1", "X*X", "Z*Z"}, 0, 19, true},
    {"MUEST 3 18\nMC Y 1 X\nMUEST 1 20", "CWH", {"1", "X"}, {"1", "X", "X*X"}, 2, 17, false},
};

std::vector<double> Columna(const std::string &texto, int primera, int ultima) {
    const std::size_t por = texto.find('*');
    std::vector<double> r;
    for (int t = primera; t <= ultima; ++t) {
        const auto valor = [&](const std::string &codigo) {
            return codigo == "1" ? 1.0 : ValoresDe(codigo, 20)[static_cast<std::size_t>(t)];
        };
        r.push_back(por == std::string::npos ? valor(texto)
                                             : valor(texto.substr(0, por)) * valor(texto.substr(por + 1)));
    }
    return r;
}

Columnas Reunir(const Textos &textos, int primera, int ultima) {
    Columnas c;
    for (const std::string &t : textos) c.push_back(Columna(t, primera, ultima));
    return c;
}

class White : public testing::TestWithParam<CasoWhite> {};

} // namespace

TEST_P(White, ElEstadisticoEsNPorRCuadrado) {
    const CasoWhite &c = GetParam();
    EmpezarRegresion();
    ASSERT_TRUE(Procesar(c.regresion));
    const int n = c.ultima - c.primera + 1, grados = static_cast<int>(c.auxiliares.size()) - 1;
    std::vector<double> cuadrados;
    for (const double e :
         Minimos(Columna("Y", c.primera, c.ultima), Reunir(c.regresores, c.primera, c.ultima)).residuos)
        cuadrados.push_back(e * e);
    const long double scr = Minimos(cuadrados, Reunir(c.auxiliares, c.primera, c.ultima)).scr;
    // The sum about the mean goes through a text of six decimals.
    const double variacion = static_cast<double>(Minimos(cuadrados, {Unos(cuadrados.size())}).scr);
    const double r2 = 1.0 - static_cast<double>(scr) / (std::round(variacion * 1e6) / 1e6);
    double scrVista = NAN, r2Visto = NAN, chi = NAN, gl = NAN, p = NAN;
    MirarAlMostrar([&] {
        scrVista = EscalarDe("_SCRW");
        r2Visto = EscalarDe("_RCW");
        chi = EscalarDe("_TM11");
        gl = EscalarDe("_TM12");
        p = EscalarDe("_TM13");
    });
    ASSERT_TRUE(Procesar(c.texto)) << TextosDeCajas().back();
    EXPECT_EQ(TextosDeCajas(), Textos{});
    EXPECT_NEAR(scrVista, static_cast<double>(scr), 1e-9 * static_cast<double>(scr));
    EXPECT_NEAR(r2Visto, r2, 1e-9 * r2);
    EXPECT_NEAR(chi, n * r2, 5.1e-7); // six decimals
    EXPECT_EQ(gl, grados);
    EXPECT_NEAR(p, ColaChi(chi, grados), 1e-9 * p);

    ASSERT_EQ(Prueba.resultados.size(), 1u);
    const ResultadoVisto &r = Prueba.resultados.back();
    EXPECT_EQ(r.titulo, "Contrastes de heteroscedasticidad: White");
    ASSERT_EQ(r.lineas.size() > 1, c.conRegresion);
    const std::pair<int, std::string> linea = {
        2, Utf8De1252(Formatear("Estadístico Chi-cuadrado (%3d): %7.4f Prob > Chi-cuadrado :%7.4f"_w, grados,
                                n * r2, ColaChi(n * r2, grados)))};
    EXPECT_EQ(r.lineas[0], linea);
    if (c.conRegresion) {
        EXPECT_EQ(r.lineas[1].second, "Variable Dep.: _RESCUAD");
        std::string lista;
        for (const std::string &t : c.auxiliares) lista += (lista.empty() ? "" : ",") + t;
        EXPECT_EQ(r.lineas[2].second, "Regresores   : " + lista);
        EXPECT_EQ(
            r.lineas[3].second,
            Utf8De1252(Formatear("Muestra      :    1 -   20          Nº Observaciones     : %d"_w, n)));
    }
    EXPECT_EQ(TemporalesQueQuedan(), Textos{});
}

INSTANTIATE_TEST_SUITE_P(Contraste, White, testing::ValuesIn(Casos));
