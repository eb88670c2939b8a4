// The actions that compute with series, from outside: events, exit status, values that can't be read.
#include "lote/corrida.h"

#include <gtest/gtest.h>

namespace {

using nlohmann::json;
using Textos = std::vector<std::string>;

const Textos Nilo = {"--json", "--tipo", "sin", "--importar", "nilo.csv"};

Textos Mas(Textos a, const Textos &b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

// The one result window of a run that ends well.
json UnaSalida(const ResultadoCorrida &r) {
    EXPECT_EQ(r.estado, 0) << r.salida << r.errores;
    const auto salidas = SucesosDe(r, "salida");
    EXPECT_EQ(salidas.size(), 1u) << r.salida;
    EXPECT_TRUE(SucesosDe(r, "caja").empty()) << r.salida;
    return salidas.empty() ? json() : salidas[0];
}

json SerieDe(const ResultadoCorrida &r, const std::string &codigo) {
    const json volcado = SucesosDe(r, "volcado").at(0);
    for (const json &s : volcado["series"])
        if (s["codigo"] == codigo) return s;
    return nullptr;
}

// Three lines a file: the quarters of X.
std::string CarpetaTrimestral() {
    const std::string carpeta = CarpetaNueva("analisis");
    EscribirBytes(carpeta + "/x.csv",
                  "X,Y\n3,7\n1,2\n4,8\n1,1\n5,9\n9,17\n2,5\n6,13\n5,10\n3,7\n5,9\n8,18\n");
    return carpeta;
}

const Textos Trimestres = {"--json", "--tipo", "trimestral:1990.1:1992.4", "--importar", "x.csv"};

ResultadoCorrida CorrerTrimestres(const Textos &mas) {
    return Correr(Mas(Trimestres, mas), {CarpetaTrimestral(), ""});
}

} // namespace

// Autocorrelations of the flow of the Nile, worked out apart: 0.4984, 0.3846, 0.3279, 0.2392; partial 0.4984, 0.1812, 0.1109,
// 0.0062. Deviations 1.96 root((1 + 2 S) / 100).
TEST(AnalisisLote, Autocorrelaciones) {
    const json fac = UnaSalida(Correr(Mas(Nilo, {"--decimales", "4", "--fac", "CAUDAL:4"})));
    EXPECT_EQ(fac["ventana"], "autocorrelacion");
    EXPECT_EQ(fac["titulo"], "Contrastes de autocorrelación estimada");
    EXPECT_EQ(fac["lineas"],
              json({{2, " Coeficiente de Autocorrelación Estimada de la Serie:  CAUDAL"},
                    {2, ""},
                    {2, ""},
                    {2, " Retardo  Coeficiente   Retardo  Coeficiente   Retardo  Coeficiente"},
                    {1, "    1          0.4984       2          0.3846       3          0.3279"},
                    {1, "    4          0.2392       5                       6"}}));
    EXPECT_EQ(UnaSalida(Correr(Mas(Nilo, {"--decimales", "4", "--fac", "CAUDAL:4:uniforme"}))), fac);
    EXPECT_EQ(UnaSalida(Correr(Mas(Nilo, {"--decimales", "4", "--fac", "CAUDAL:4:sin"}))), fac);
    const json arma = UnaSalida(Correr(Mas(Nilo, {"--fac", "CAUDAL:1:arma"})));
    EXPECT_EQ(arma["lineas"][4], json({1, "    1     0.50     0.24      2                        3"}));
    const json facp = UnaSalida(Correr(Mas(Nilo, {"--decimales", "4", "--facp", "CAUDAL:4:sin"})));
    EXPECT_EQ(facp["titulo"], "Contrastes de autocorrelación parcial estimada");
    EXPECT_EQ(facp["lineas"][4],
              json({1, "    1          0.4984       2          0.1812       3          0.1109"}));
    EXPECT_EQ(facp["lineas"][5], json({1, "    4          0.0062       5                       6"}));
}

TEST(AnalisisLote, ParcialesQueNoSePuedenCalcular) {
    const auto r = Correr(Mas(Nilo, {"--facp", "CAUDAL:100"}));
    EXPECT_EQ(r.estado, 0) << "the work goes on";
    ASSERT_EQ(SucesosDe(r, "caja").size(), 1u);
    EXPECT_EQ(SucesosDe(r, "caja")[0]["texto"], "Se ha producido un error en los cálculos");
    EXPECT_EQ(SucesosDe(r, "salida").size(), 1u);
}

TEST(AnalisisLote, Normalidad) {
    const json salida = UnaSalida(CorrerTrimestres({"--normalidad", "X"}));
    EXPECT_EQ(salida["ventana"], "normalidad");
    EXPECT_EQ(salida["titulo"], "Contraste de normalidad  Bera y Jarque");
    EXPECT_EQ(salida["lineas"][0], json({1, "         Muestra: 1990.1 - 1992.4     NºObs.: 12"}));
    EXPECT_EQ(salida["lineas"][1], json({1, "         Serie......................: X"}));
}

TEST(AnalisisLote, Estadisticos) {
    const json salida = UnaSalida(CorrerTrimestres({"--estadisticos", "Y, X"}));
    EXPECT_EQ(salida["ventana"], "descriptivos");
    EXPECT_EQ(salida["titulo"], "Medidas descriptivas");
    ASSERT_EQ(salida["lineas"].size(), 5u);
    // Of X: mean 52 / 12, squares about it 296 - 52^2 / 12, divided by 12.
    EXPECT_EQ(salida["lineas"][2], json({0, "          X        4.33        2.42        1.00        9.00"}));
    EXPECT_EQ(salida["lineas"][4].at(1).get<std::string>().substr(0, 36),
              "                         Y         X");
}

TEST(AnalisisLote, Prediccion) {
    const Textos regresion = {"--sentencia", "VSR NO", "--sentencia", "MC Y 1 X"};
    const struct {
        const char *valor, *modo, *inicio, *fin, *serie;
    } Casos[] = {
        {":", " Valores originales", "1990.1", "1992.4", "_PRED"},
        {"1990.3:", " Valores originales", "1990.3", "1992.4", "_PRED"},
        {":1991.4", " Valores originales", "1990.1", "1991.4", "_PRED"},
        {"1990.3:1991.4:tasas", " Tasas de variación", "1990.3", "1991.4", "_PRED"},
        {"1990.3:1991.4:incrementos:P:M:I", " Incrementos absolutos", "1990.3", "1991.4", "P"},
        {"1990.3:1991.4:originales:p:m:i", " Valores originales", "1990.3", "1991.4", "P"},
    };
    for (const auto &c : Casos) {
        SCOPED_TRACE(c.valor);
        const auto r = CorrerTrimestres(Mas(regresion, {"--prediccion", c.valor, "--volcado"}));
        const json salida = UnaSalida(r);
        EXPECT_EQ(salida["ventana"], "prediccion");
        EXPECT_EQ(salida["titulo"], "Predicción y evaluación de la capacidad predictiva");
        EXPECT_EQ(salida["lineas"][0], json({0, " Modelo: Minimos cuadrados"}));
        EXPECT_EQ(salida["lineas"][3], json({0, std::string(" Período inicial pred.:   ") + c.inicio +
                                                    " Período final pred.:   " + c.fin}));
        EXPECT_EQ(salida["lineas"][4], json({0, c.modo}));
        EXPECT_FALSE(SerieDe(r, c.serie).is_null());
    }
}

TEST(AnalisisLote, Transformacion) {
    const struct {
        const char *valor, *serie;
        json valores;
    } Casos[] = {
        {"X:D:regular=2", "D", {nullptr, nullptr, 5, -6, 7, 0, -11, 11, -5, -1, 4, 1}},
        {"X:D:estacional=2",
         "D",
         {nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, -2, -14, 5, -3}},
        {"X::boxcox=2", "_TRANS", {1.5, 0.5, 2, 0.5, 2.5, 4.5, 1, 3, 2.5, 1.5, 2.5, 4}},
        {"X:x:estacional=1,regular=1,boxcox=2",
         "X",
         {nullptr, nullptr, nullptr, nullptr, nullptr, 3, -5, 3.5, -2.5, -3, 4.5, -0.5}},
    };
    for (const auto &c : Casos) {
        SCOPED_TRACE(c.valor);
        const auto r = CorrerTrimestres({"--transformar", c.valor, "--volcado"});
        EXPECT_EQ(r.estado, 0) << r.salida;
        EXPECT_EQ(SerieDe(r, c.serie)["valores"], c.valores);
    }
}

// Refused: the box, status 1, and nothing behind it is carried out.
TEST(AnalisisLote, Rechazos) {
    const struct {
        const char *accion, *valor, *titulo, *texto;
    } Casos[] = {
        {"--fac", "NO:3", "Aviso", "Serie no válida."},
        {"--facp", ":3", "Aviso", "Serie no válida."},
        {"--normalidad", "NO", "Proceso cancelado", "No existe la serie escogida. Pto 1"},
        {"--normalidad", "", "Proceso cancelado", "No existe la serie escogida. Pto 1"},
        {"--estadisticos", "X,NO", "Proceso cancelado", "Serie no Encontrada. Pto 86"},
        {"--estadisticos", "", "Aviso", "Escoja una serie"},
        {"--estadisticos", "X,X,X,X,X,X,X,X,X,X", "Aviso", "Demasiadas series escogidas"},
        {"--prediccion", ":", "Proceso cancelado", "Realice una regresión"},
        {"--transformar", "X:D", "Aviso", "Seleccione una transformación"},
        {"--transformar", ":D:boxcox=2", "Aviso", "Escoja una serie"},
        {"--transformar", "NO:D:boxcox=2", "Aviso", "Seleccione una serie"},
        {"--transformar", "X:D:boxcox=1", "Aviso", "Elija valor"},
        {"--transformar", "X:D:regular=0", "Aviso", "Elija un valor mayor de cero"},
    };
    for (const auto &c : Casos) {
        SCOPED_TRACE(std::string(c.accion) + " " + c.valor);
        const auto r = CorrerTrimestres({c.accion, c.valor, "--volcado"});
        EXPECT_EQ(r.estado, 1);
        const auto cajas = SucesosDe(r, "caja");
        ASSERT_EQ(cajas.size(), 1u) << r.salida;
        EXPECT_EQ(cajas[0]["titulo"], c.titulo);
        EXPECT_EQ(cajas[0]["texto"], c.texto);
        EXPECT_TRUE(SucesosDe(r, "volcado").empty());
        EXPECT_TRUE(SucesosDe(r, "salida").empty());
    }
}

TEST(AnalisisLote, SinTipoDeDatos) {
    const struct {
        const char *accion, *valor, *texto;
    } Casos[] = {
        {"--fac", "X:3", "Tipo de datos no válido"},      {"--facp", "X:3", "Tipo de datos no válido"},
        {"--normalidad", "X", "Tipo de datos no válido"}, {"--estadisticos", "X", "Tipo de datos no válidos"},
        {"--prediccion", ":", "Tipo de datos no válido"},
    };
    for (const auto &c : Casos) {
        SCOPED_TRACE(c.accion);
        const auto r = Correr({"--json", c.accion, c.valor});
        EXPECT_EQ(r.estado, 1);
        ASSERT_EQ(SucesosDe(r, "caja").size(), 1u);
        EXPECT_EQ(SucesosDe(r, "caja")[0]["texto"], c.texto);
        EXPECT_EQ(SucesosDe(r, "caja")[0]["titulo"], "Proceso cancelado");
    }
}

TEST(AnalisisLote, ValoresQueNoSePuedenLeer) {
    const std::pair<const char *, const char *> Casos[] = {
        {"--fac", "X"},
        {"--fac", "X:"},
        {"--fac", "X:tres"},
        {"--fac", "X:3:ninguna"},
        {"--fac", "X:3:sin:mas"},
        {"--facp", "X:3:arma"},
        {"--facp", ""},
        {"--fac", "X:-"},
        {"--prediccion", ""},
        {"--prediccion", "1990"},
        {"--prediccion", "::otro"},
        {"--prediccion", "::"},
        {"--prediccion", "::tasas:P"},
        {"--prediccion", "::tasas:P:M"},
        {"--prediccion", "::tasas:P:M:I:X"},
        {"--transformar", "X"},
        {"--transformar", "X:D:"},
        {"--transformar", "X:D:raiz=2"},
        {"--transformar", "X:D:boxcox"},
        {"--transformar", "X:D:boxcox="},
        {"--transformar", "X:D:regular=uno"},
        {"--transformar", "X:D:regular=1,"},
        {"--transformar", "X:D:regular=1:2"},
    };
    for (const auto &[accion, valor] : Casos) {
        SCOPED_TRACE(std::string(accion) + " " + valor);
        const auto r = Correr({accion, valor});
        EXPECT_EQ(r.estado, 2);
        EXPECT_NE(r.errores.find(std::string("valor incorrecto de ") + accion + ": '" + valor + "'"),
                  std::string::npos)
            << r.errores;
    }
}
