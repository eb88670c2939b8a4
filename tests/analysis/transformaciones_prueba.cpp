// Transformations of a series.
#include "analysis/transformaciones.h"

#include "apoyo/datos_csv.h"
#include "apoyo/plataforma_prueba.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <limits>

namespace {

using Datos = std::vector<double>;

constexpr double Falta = std::numeric_limits<double>::quiet_NaN();

// Twelve quarters from 1990.1 on in X.
const Datos Trimestres = {3, 1, 4, 1, 5, 9, 2, 6, 5, 3, 5, 8};

void EmpezarTrimestral() {
    EmpezarConDatos(TipoTrimestral, "1990.1#1995.4");
    PonerSerie("X", Trimestres);
    ActualizarMuestra();
}

ValoresTransformacion De(const std::string &serie) {
    ValoresTransformacion v;
    v.serie = serie;
    return v;
}

void Iguales(const Datos &valores, const Datos &esperados) {
    ASSERT_EQ(valores.size(), esperados.size());
    for (std::size_t i = 0; i < valores.size(); ++i) {
        if (std::isnan(esperados[i])) {
            EXPECT_TRUE(std::isnan(valores[i])) << i;
        } else {
            EXPECT_NEAR(valores[i], esperados[i], 1e-12 * std::max(1.0, std::fabs(esperados[i]))) << i;
        }
    }
}

Datos Con(std::size_t faltan, Datos valores) {
    valores.insert(valores.begin(), faltan, Falta);
    valores.push_back(Falta);
    return valores;
}

} // namespace

TEST(Transformaciones, ComoSeAbreElDialogo) {
    const ValoresTransformacion v;
    EXPECT_FALSE(v.boxCox || v.estacionales || v.noEstacionales);
    EXPECT_EQ(v.codigo, "_TRANS");
    EXPECT_EQ(v.lambda + v.ordenEstacional + v.ordenNoEstacional, "111");
}

// The differences lose values, and the result starts so much later: seasonal ones four a time on quarters.
TEST(Transformaciones, Diferencias) {
    const struct {
        const char *estacional, *noEstacional; // empty: not checked
        Datos esperados;
    } Casos[] = {
        {"1", "", Con(4, {2, 8, -2, 5, 0, -6, 3, 2})},
        {"2", "", Con(8, {-2, -14, 5, -3})},
        {"", "1", Con(1, {-2, 3, -3, 4, 4, -7, 4, -1, -2, 2, 3})},
        {"", "2", Con(2, {5, -6, 7, 0, -11, 11, -5, -1, 4, 1})},
        {"1", "1", Con(5, {6, -10, 7, -5, -6, 9, -1})},
        {"2", "3", Con(11, {-58})}, // of -2 -14 5 -3: -12 19 -8, then 31 -27
    };
    for (const auto &c : Casos) {
        SCOPED_TRACE(std::string(c.estacional) + " " + c.noEstacional);
        EmpezarTrimestral();
        ValoresTransformacion v = De("X");
        v.estacionales = *c.estacional != '\0';
        v.noEstacionales = *c.noEstacional != '\0';
        if (v.estacionales) v.ordenEstacional = c.estacional;
        if (v.noEstacionales) v.ordenNoEstacional = c.noEstacional;
        ASSERT_EQ(AceptarTransformacion(nullptr, v), 1);
        EXPECT_TRUE(Prueba.cajas.empty());
        EXPECT_GT(Prueba.refrescos, 0);
        Iguales(ValoresDe("_TRANS", 13), c.esperados);
        const auto primera =
            std::find_if_not(c.esperados.begin(), c.esperados.end(), [](double d) { return std::isnan(d); });
        EXPECT_EQ(ArchivoTrabajo.PrimeraObs[1], primera - c.esperados.begin());
        EXPECT_EQ(ArchivoTrabajo.UltimaObs[1], 11);
    }
}

// The period is four for quarters and twelve for everything else that has seasons.
TEST(Transformaciones, ElPeriodoEsElDelTipoDeDatos) {
    Datos x;
    for (int i = 0; i < 30; ++i) x.push_back(i * i);
    const struct {
        int tipo;
        const char *intervalo;
        int periodo;
    } Casos[] = {
        {TipoTrimestral, "1990.1#2000.4", 4}, {TipoMensual, "1990.01#1999.12", 12}, {TipoPanel, "", 12}};
    for (const auto &c : Casos) {
        EmpezarConDatos(c.tipo == TipoPanel ? TipoMensual : c.tipo,
                        c.tipo == TipoPanel ? "1990.01#1999.12" : c.intervalo);
        ArchivoTrabajo.TipoDatos = static_cast<std::int16_t>(c.tipo);
        PonerSerie("X", x);
        Muestra.InicioMuestra = 0;
        Muestra.FinMuestra = 29;
        ValoresTransformacion v = De("X");
        v.estacionales = true;
        ASSERT_EQ(AceptarTransformacion(nullptr, v), 1);
        const Datos r = ValoresDe("_TRANS", 31);
        for (int i = 0; i < 31; ++i) {
            const double valor = r[static_cast<std::size_t>(i)];
            if (i < c.periodo || i == 30)
                EXPECT_TRUE(std::isnan(valor)) << i;
            else
                EXPECT_EQ(valor, i * i - (i - c.periodo) * (i - c.periodo)) << i;
        }
    }
}

// Box and Cox's with the exponent of this program, one less than the textbooks'.
TEST(Transformaciones, BoxCox) {
    const Datos x = {1, 2, 4, 0.5, 10};
    const struct {
        const char *lambda;
        std::function<double(double)> valor;
    } Casos[] = {
        {"0", [](double v) { return std::log(v); }},
        {"2", [](double v) { return v / 2; }},
        {"3", [](double v) { return v * v / 3; }},
        {"-2", [](double v) { return 1 / (v * v * v) / -2; }},
        {"10", [](double v) { return std::pow(v, 9) / 10; }},
        {"25", [](double v) { return std::pow(v, 24) / 25; }},
        {"256", [](double v) { return std::pow(v, 24) / 25; }}, // two characters are read
        {"-9", [](double v) { return std::pow(v, -10) / -9; }},
        {"", [](double v) { return std::log(v); }},
        {"a", [](double v) { return std::log(v); }},
        {".5", [](double v) { return std::log(v); }},
        {"2.5", [](double v) { return v / 2; }},
    };
    for (const auto &c : Casos) {
        SCOPED_TRACE(c.lambda);
        EmpezarConDatos(TipoSinPeriodicidad, "");
        PonerSerie("X", x);
        ActualizarMuestra();
        ValoresTransformacion v = De("X");
        v.boxCox = true;
        v.lambda = c.lambda;
        ASSERT_EQ(AceptarTransformacion(nullptr, v), 1);
        Datos esperados;
        for (const double e : x) esperados.push_back(c.valor(e));
        Iguales(ValoresDe("_TRANS", 6), Con(0, esperados));
    }
}

// The sign that is looked at is that of the value so many rows from the start of the file, not of the sample.
TEST(Transformaciones, ElSignoSeMiraDesdeElPrincipioDelArchivo) {
    const struct {
        const char *lambda;
        int primera; // of the sample, counted from 1
        Datos esperados;
    } Casos[] = {
        {"2", 1, {-0.0, 2, 0, 4, 0, 5}},
        {"0", 1, {0, std::log(4.0), 0, std::log(8.0), 0, std::log(10.0)}},
        {"2", 2, {0, -3, 0, -4.5, 0}},                   // of 4 -6 8 -9 10: rows 1, 3, 5 hold -2, -6, -9
        {"0", 3, {0, std::log(8.0), 0, std::log(10.0)}}, // of -6 8 -9 10
        {"0", 2, {0, 0, 0, 0, 0}}, // no logarithm of what is below 0: nothing stands for it
    };
    for (const auto &c : Casos) {
        SCOPED_TRACE(testing::Message() << c.lambda << " from " << c.primera);
        EmpezarConDatos(TipoSinPeriodicidad, "");
        PonerSerie("X", {-2, 4, -6, 8, -9, 10});
        ASSERT_TRUE(Procesar("MUEST " + std::to_string(c.primera) + " 6"));
        ValoresTransformacion v = De("X");
        v.boxCox = true;
        v.lambda = c.lambda;
        ASSERT_EQ(AceptarTransformacion(nullptr, v), 1);
        Iguales(ValoresDe("_TRANS", 7), Con(static_cast<std::size_t>(c.primera) - 1, c.esperados));
        // Onto itself it is the same.
        v.codigo = "X";
        ASSERT_EQ(AceptarTransformacion(nullptr, v), 1);
        Iguales(ValoresDe("X", 7), Con(static_cast<std::size_t>(c.primera) - 1, c.esperados));
    }
}

// Seasonal, then the others, then Box and Cox's on what they leave, whose signs are still read in the series.
TEST(Transformaciones, LosTresPasosEnSuOrden) {
    EmpezarTrimestral();
    ValoresTransformacion v = De("X");
    v.boxCox = v.estacionales = v.noEstacionales = true;
    v.lambda = "3";
    ASSERT_EQ(AceptarTransformacion(nullptr, v), 1);
    Iguales(ValoresDe("_TRANS", 13),
            Con(5, {36.0 / 3, 100.0 / 3, 49.0 / 3, 25.0 / 3, 36.0 / 3, 81.0 / 3, 1.0 / 3}));
}

TEST(Transformaciones, ElLogaritmoDeCero) {
    EmpezarConDatos(TipoSinPeriodicidad, "");
    PonerSerie("X", {0, 1, Falta, 4});
    ASSERT_TRUE(Procesar("MUEST 1 4"));
    ValoresTransformacion v = De("X");
    v.boxCox = true;
    v.lambda = "0";
    ASSERT_EQ(AceptarTransformacion(nullptr, v), 1);
    Iguales(ValoresDe("_TRANS", 5), Con(0, {0, 0, 0, std::log(4.0)}));
    v.lambda = "-2";
    ASSERT_EQ(AceptarTransformacion(nullptr, v), 1);
    Iguales(ValoresDe("_TRANS", 5), Con(0, {0, -0.5, 0, -1.0 / 128}));
}

TEST(Transformaciones, ElDestino) {
    const struct {
        const char *codigo, *serie;
    } Casos[] = {{"NUEVA", "NUEVA"},          {"azAZ_9", "AZAZ_9"}, {"nueva", "NUEVA"}, {" N ", "N"},
                 {"ABCDEFGHIJ", "ABCDEFGHI"}, {"", "_TRANS"},       {"VIEJA", "VIEJA"}};
    for (const auto &c : Casos) {
        SCOPED_TRACE(c.codigo);
        EmpezarTrimestral();
        PonerSerie("VIEJA", Datos(20, 7.0));
        ValoresTransformacion v = De("X");
        v.noEstacionales = true;
        v.codigo = c.codigo;
        // The sample has what both series have: the first twelve quarters.
        ActualizarMuestra();
        ASSERT_EQ(AceptarTransformacion(nullptr, v), 1);
        Iguales(ValoresDe(c.serie, 20), [] {
            Datos d = Con(1, {-2, 3, -3, 4, 4, -7, 4, -1, -2, 2, 3});
            d.resize(20, Falta);
            return d;
        }());
        EXPECT_EQ(ArchivoTrabajo.NumSeries, std::string(c.serie) == "VIEJA" ? 2 : 3);
    }
}

// Of a long sample 998 values are taken.
TEST(Transformaciones, UnaMuestraLarga) {
    for (const int n : {997, 998, 999, 1500}) {
        EmpezarConDatos(TipoSinPeriodicidad, "");
        Datos x;
        for (int i = 0; i < n; ++i) x.push_back(i * 0.5 + 1);
        PonerSerie("X", x, 10);
        ActualizarMuestra();
        ValoresTransformacion v = De("X");
        v.noEstacionales = true;
        ASSERT_EQ(AceptarTransformacion(nullptr, v), 1);
        const Datos r = ValoresDe("_TRANS", 2000);
        const int valores = std::min(n, 998) - 1;
        for (int i = 0; i < 2000; ++i)
            EXPECT_EQ(!std::isnan(r[static_cast<std::size_t>(i)]), i >= 11 && i < 11 + valores)
                << n << " " << i;
    }
}

// ----- Messages, in the order of the checks

namespace {

struct CasoMensaje {
    const char *nombre;
    std::function<void(ValoresTransformacion &)> cambiar; // from all three transformations of X checked
    const char *texto;
};

} // namespace

TEST(Transformaciones, Mensajes) {
    const CasoMensaje Casos[] = {
        {"no series",
         [](auto &v) {
             v.serie = "";
             v.boxCox = v.estacionales = v.noEstacionales = false;
         },
         "Escoja una serie"},
        {"no check",
         [](auto &v) {
             v.boxCox = v.estacionales = v.noEstacionales = false;
             v.serie = "OTRA";
         },
         "Seleccione una transformación"},
        {"no periods",
         [](auto &v) {
             ArchivoTrabajo.TipoDatos = 0;
             v.lambda = "1";
         },
         "Tipos de datos no estacionales"},
        {"annual",
         [](auto &v) {
             ArchivoTrabajo.TipoDatos = 1;
             v.lambda = "1";
         },
         "Tipos de datos no estacionales"},
        {"lambda 1",
         [](auto &v) {
             v.lambda = "1";
             v.ordenEstacional = "0";
         },
         "Elija valor"},
        {"lambda -1", [](auto &v) { v.lambda = "-1"; }, "Elija valor"},
        {"lambda -12", [](auto &v) { v.lambda = "-12"; }, "Elija valor"},
        {"seasonal order 0",
         [](auto &v) {
             v.ordenEstacional = "0";
             v.serie = "OTRA";
         },
         "Elija un valor mayor de cero"},
        {"seasonal order -1", [](auto &v) { v.ordenEstacional = "-1"; }, "Elija un valor mayor de cero"},
        {"seasonal order empty", [](auto &v) { v.ordenEstacional = ""; }, "Elija un valor mayor de cero"},
        {"order 0",
         [](auto &v) {
             v.ordenNoEstacional = "0";
             v.serie = "OTRA";
         },
         "Elija un valor mayor de cero"},
        {"no such series", [](auto &v) { v.serie = "OTRA"; }, "Seleccione una serie"},
        {"a matrix",
         [](auto &v) {
             PonerMatriz("M", {1}, 1, 1);
             v.codigo = "m";
         },
         "Código de serie no válido, igual a matriz:M"},
        {"a scalar",
         [](auto &v) {
             PonerEscalar(nullptr, "E", 1);
             v.codigo = "E";
         },
         "Código de serie no válido, igual a escalar:E"},
        {"two observations", [](auto &) { Muestra.FinMuestra = 1; },
         "Las diferencias deben ser mas pequeñas: 1 1"},
        {"all lost",
         [](auto &v) {
             v.ordenEstacional = "2";
             v.ordenNoEstacional = "4";
         },
         "Las diferencias deben ser mas pequeñas: 2 2"},
        {"far too many", [](auto &v) { v.ordenEstacional = "99999999999"; },
         "Las diferencias deben ser mas pequeñas: 2147483647 2147483647"},
    };
    for (const CasoMensaje &c : Casos) {
        SCOPED_TRACE(c.nombre);
        EmpezarTrimestral();
        ValoresTransformacion v = De("X");
        v.boxCox = v.estacionales = v.noEstacionales = true;
        v.lambda = "0";
        c.cambiar(v);
        const int series = ArchivoTrabajo.NumSeries;
        EXPECT_EQ(AceptarTransformacion(nullptr, v), 0);
        // Only the differences are counted after the new series has its place.
        const bool cuenta = std::string_view(c.texto).starts_with("Las diferencias");
        EXPECT_EQ(ArchivoTrabajo.NumSeries, series + (cuenta ? 1 : 0));
        EXPECT_EQ(Prueba.cajas,
                  (std::vector<CajaVista>{{"Aviso", c.texto, IconoInformacion, BotonesAceptar}}));
        // At most the new series stands in the table, without a value.
        for (const double valor : ValoresDe("_TRANS", 24)) EXPECT_TRUE(std::isnan(valor));
    }
}

TEST(Transformaciones, LoQueNoSePideNoSeLee) {
    EmpezarTrimestral();
    ArchivoTrabajo.TipoDatos = TipoAnual;
    ValoresTransformacion v = De("X");
    v.noEstacionales = true;
    v.ordenEstacional = "0";
    v.lambda = "1";
    EXPECT_EQ(AceptarTransformacion(nullptr, v), 1);
    v.noEstacionales = false;
    v.boxCox = true;
    v.lambda = "2";
    v.ordenNoEstacional = "0";
    EXPECT_EQ(AceptarTransformacion(nullptr, v), 1);
    EXPECT_TRUE(Prueba.cajas.empty());
}

TEST(Transformaciones, TresObservacionesBastan) {
    EmpezarTrimestral();
    Muestra.FinMuestra = 2;
    ValoresTransformacion v = De("X");
    v.noEstacionales = true;
    v.ordenNoEstacional = "2";
    EXPECT_EQ(AceptarTransformacion(nullptr, v), 1);
    Iguales(ValoresDe("_TRANS", 4), Con(2, {5}));
    v.ordenNoEstacional = "3";
    EXPECT_EQ(AceptarTransformacion(nullptr, v), 0);
    EXPECT_EQ(TextosDeCajas(), std::vector<std::string>{"Las diferencias deben ser mas pequeñas: 0 0"});
    Iguales(ValoresDe("_TRANS", 4), Con(2, {5})); // refused before anything changes
    Muestra.FinMuestra = 1;
    v.ordenNoEstacional = "1";
    EXPECT_EQ(AceptarTransformacion(nullptr, v), 0) << "two observations are too few for one difference, too";
}

TEST(Transformaciones, LaTablaLlena) {
    EmpezarTrimestral();
    while (ArchivoTrabajo.NumSeries < 99)
        PonerSerie("S" + std::to_string(ArchivoTrabajo.NumSeries), Trimestres);
    ActualizarMuestra();
    ValoresTransformacion v = De("X");
    v.noEstacionales = true;
    EXPECT_EQ(AceptarTransformacion(nullptr, v), 1) << "the last slot";
    v.codigo = "OTRA";
    EXPECT_EQ(AceptarTransformacion(nullptr, v), 0);
    EXPECT_EQ(TextosDeCajas(), std::vector<std::string>{"Borre algunas series"});
    v.codigo = "S5";
    EXPECT_EQ(AceptarTransformacion(nullptr, v), 1);
}
