// Charts from the batch runner: events, pictures, print jobs.
#include "lote/corrida.h"
#include "lote/graficos.h"

#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>

namespace {

using nlohmann::json;
using Lineas = std::vector<std::string>;

// Four years of X and Y.
const Lineas Datos = {"--json",      "--tipo",        "anual:1990:1993", "--sentencia",   "SER T = TEND",
                      "--sentencia", "SER X = T * T", "--sentencia",     "SER Y = 10 - T"};

Lineas Mas(Lineas a, const Lineas &b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

TEST(GraficosLote, GrafEsUnSuceso) {
    const auto r = Correr(Mas(Datos, {"--sentencia", "GRAF X INTERY 2"}));
    EXPECT_EQ(r.estado, 0) << r.errores;
    const auto graficos = SucesosDe(r, "grafico");
    ASSERT_EQ(graficos.size(), 1U) << r.salida;
    json g = graficos[0];
    const json ordenes = g["ordenes"];
    g.erase("ordenes");
    EXPECT_EQ(g, json({{"suceso", "grafico"},
                       {"ventana", "series"},
                       {"titulo", "Representación gráfica de series"},
                       {"ancho", 1024},
                       {"alto", 768},
                       {"c", 8},
                       {"h", 16}}));
    // X is 1, 4, 9, 16: 41.6 units for 1 above 704, a step of 194.
    const json esperado = json::parse(R"([
        ["linea",120,704,904,704,[0,0,0,1,0]], ["linea",120,64,120,704,[0,0,0,1,0]],
        ["texto",128,712,"90"], ["linea",128,700,128,708,[0,0,0,1,0]],
        ["texto",322,712,"91"], ["linea",322,700,322,708,[0,0,0,1,0]],
        ["texto",516,712,"92"], ["linea",516,700,516,708,[0,0,0,1,0]],
        ["texto",710,712,"93"], ["linea",710,700,710,708,[0,0,0,1,0]],
        ["texto",80,704,"1.00"], ["linea",112,704,120,704,[0,0,0,1,0]],
        ["texto",80,392,"8.50"], ["linea",112,392,120,392,[0,0,0,1,0]],
        ["texto",72,80,"16.00"], ["linea",112,80,120,80,[0,0,0,1,0]],
        ["linea",128,704,322,579,[255,0,0,1,0]], ["linea",322,579,516,371,[255,0,0,1,0]],
        ["linea",516,371,710,80,[255,0,0,1,0]],
        ["rectangulo",760,96,928,160,[0,0,0,1,0],null],
        ["linea",768,120,808,120,[255,0,0,1,0]], ["texto",816,112,"X"]])");
    EXPECT_EQ(ordenes, esperado);
}

TEST(GraficosLote, CadaVentanaConSuNombre) {
    const auto r =
        Correr(Mas(Datos, {"--sentencia", "GRAF X Y", "--sentencia", "GRAF (X) Y", "--sentencia", "MC Y 1 X",
                           "--grafico", "residuos", "--grafico", "residuos:estandarizados", "--grafico",
                           "valores", "--histograma", "X"}));
    EXPECT_EQ(r.estado, 0) << r.errores;
    Lineas ventanas;
    for (const json &g : SucesosDe(r, "grafico")) ventanas.push_back(g["ventana"]);
    EXPECT_EQ(ventanas, (Lineas{"series", "dispersion", "residuos", "residuos", "valores", "histograma"}));
    // The question of the residuals isn't shown.
    for (const json &c : SucesosDe(r, "caja")) EXPECT_EQ(c["texto"], "¿Desea ver la regresion?");
}

TEST(GraficosLote, ResiduosEstandarizadosDeMenosCincoACinco) {
    const auto r = Correr(Mas(Datos, {"--sentencia", "MC Y 1 X", "--grafico", "residuos:estandarizados"}));
    const auto graficos = SucesosDe(r, "grafico");
    ASSERT_EQ(graficos.size(), 1U);
    bool cinco = false;
    for (const json &o : graficos[0]["ordenes"]) cinco = cinco || o == json({"texto", 80, 64, "5.00"});
    EXPECT_TRUE(cinco);
}

TEST(GraficosLote, ElHistogramaEsTablaYGrafico) {
    const auto r = Correr(Mas(Datos, {"--histograma", "X:clases=3"}));
    EXPECT_EQ(r.estado, 0);
    const auto sucesos = Sucesos(r);
    ASSERT_GE(sucesos.size(), 3U);
    const json &salida = sucesos[sucesos.size() - 3];
    EXPECT_EQ(salida["ventana"], "histograma");
    EXPECT_EQ(salida["titulo"], "Representación gráfica");
    ASSERT_EQ(salida["lineas"].size(), 5U);
    // 1 and 4 below 6, 9 below 11, 16 at the end.
    EXPECT_EQ(salida["lineas"][2], json({1, "              1.00              6.00                 2"}));
    EXPECT_EQ(salida["lineas"][4], json({1, "             11.00             16.00                 1"}));
    const json &grafico = sucesos[sucesos.size() - 2];
    EXPECT_EQ(grafico["suceso"], "grafico");
    EXPECT_EQ(grafico["ordenes"][0],
              json::parse(R"(["rectangulo",120,80,378,704,[0,0,0,1,0],[200,200,200]])"));
}

TEST(GraficosLote, LasAutocorrelacionesConSuListado) {
    for (const char *accion : {"--fac", "--facp"}) {
        SCOPED_TRACE(accion);
        const auto r = Correr(Mas(Datos, {accion, "X:2"}));
        EXPECT_EQ(r.estado, 0) << r.errores;
        const auto sucesos = Sucesos(r);
        ASSERT_GE(sucesos.size(), 3U);
        const json &salida = sucesos[sucesos.size() - 3], &grafico = sucesos[sucesos.size() - 2];
        EXPECT_EQ(salida["ventana"], "autocorrelacion");
        EXPECT_EQ(grafico["ventana"], "autocorrelacion");
        EXPECT_EQ(grafico["titulo"], salida["titulo"]);
        // Two lags of four rows: as two bars of two always stand.
        EXPECT_EQ(grafico["ordenes"][0], json::parse(R"(["linea",440,384,584,384,[0,0,0,1,0]])"));
    }
}

TEST(GraficosLote, ElDiagramaDeLaUltimaPrediccion) {
    const Lineas regresion = {"--sentencia", "MC Y 1 X", "--prediccion"};
    const auto tasas = Correr(Mas(Datos, Mas(regresion, {"::tasas", "--grafico", "prediccion"})));
    EXPECT_EQ(tasas.estado, 0) << tasas.errores;
    ASSERT_EQ(SucesosDe(tasas, "grafico").size(), 1U);
    EXPECT_EQ(SucesosDe(tasas, "grafico")[0]["ventana"], "prediccion");
    EXPECT_EQ(SucesosDe(tasas, "grafico")[0]["titulo"], "Diagrama predicción-observación");
    const auto originales = Correr(Mas(Datos, Mas(regresion, {":", "--grafico", "prediccion"})));
    EXPECT_EQ(originales.estado, 0) << originales.errores;
    EXPECT_TRUE(SucesosDe(originales, "grafico").empty());
}

struct Rechazo {
    Lineas acciones;
    const char *texto;
};

TEST(GraficosLote, LoQueSeRechaza) {
    const Rechazo casos[] = {{{"--grafico", "residuos"}, "Efectue primero una regresión"},
                             {{"--grafico", "valores"}, "Efectue primero una regresión"},
                             {{"--histograma", "NADA"}, "Serie no válida."}};
    for (const Rechazo &c : casos) {
        SCOPED_TRACE(c.acciones[0] + " " + c.acciones[1]);
        const auto r = Correr(Mas(Datos, c.acciones));
        EXPECT_EQ(r.estado, 1);
        const auto cajas = SucesosDe(r, "caja");
        ASSERT_EQ(cajas.size(), 1U);
        EXPECT_EQ(cajas[0]["texto"], c.texto);
        EXPECT_EQ(cajas[0]["titulo"], "Aviso");
        EXPECT_TRUE(SucesosDe(r, "grafico").empty());
    }
    const auto sinTipo = Correr({"--json", "--histograma", "X"});
    EXPECT_EQ(sinTipo.estado, 1);
    EXPECT_EQ(SucesosDe(sinTipo, "caja").at(0)["texto"], "Tipo de datos no válido");
}

TEST(GraficosLote, UnaImagenPorGrafico) {
    const std::string carpeta = CarpetaNueva("imagenes") + "/dentro";
    const auto r = Correr(Mas(Datos, {"--sentencia", "GRAF Y", "--graficos", carpeta, "--sentencia", "GRAF X",
                                      "--sentencia", "GRAF (X) Y"}));
    EXPECT_EQ(r.estado, 0) << r.errores;
    for (const char *nombre : {"/grafico-01.png", "/grafico-02.png"}) {
        const std::string png = LeerBytes(carpeta + nombre);
        ASSERT_GT(png.size(), 24U) << nombre;
        EXPECT_EQ(png.substr(0, 8), "\x89PNG\r\n\x1a\n");
        EXPECT_EQ(png.substr(16, 8), std::string("\0\0\4\0\0\0\3\0", 8)); // 1024 x 768
    }
    EXPECT_FALSE(std::filesystem::exists(carpeta + "/grafico-03.png"));
}

TEST(GraficosLote, CarpetaQueNoSePuedeCrear) {
    const auto r = Correr(Mas(Datos, {"--graficos", "klein.csv/dentro", "--sentencia", "GRAF X"}));
    EXPECT_EQ(r.estado, 1);
    EXPECT_NE(r.errores.find("no se puede crear 'klein.csv/dentro'"), std::string::npos);
}

TEST(GraficosLote, ImprimirSalidasImprimeLosGraficos) {
    const auto r = Correr(Mas(Datos, {"--imprimir-salidas", "--sentencia", "GRAF X", "--histograma", "X"}));
    EXPECT_EQ(r.estado, 0);
    Lineas titulos;
    for (const json &i : SucesosDe(r, "impresion")) titulos.push_back(i["titulo"]);
    EXPECT_EQ(titulos, (Lineas{"Gráfico de series", "Representación gráfica", "Histograma"}));
    EXPECT_EQ(SucesosDe(r, "impresion")[0]["documento"], "Imprime1: Imprimiendo");
}

TEST(GraficosLote, ParaPersonas) {
    const auto r =
        Correr({"--tipo", "anual:1990:1993", "--sentencia", "SER T = TEND", "--sentencia", "GRAF T"});
    EXPECT_NE(r.salida.find("Gráfico: Representación gráfica de series"), std::string::npos);
}

// ----- The value of --histograma

struct Peticion {
    const char *valor;
    bool bien;
    const char *serie;
    ModosDeClases modo;
    int clases;
    std::vector<double> limites;
    double minX, maxX;
    int minXDefecto, maxXDefecto;
};

TEST(PeticionDeHistograma, Lectura) {
    const Peticion casos[] = {
        {"X", true, "X", ClasesDeLosDatos, 10, {}, 0, 0, 1, 1},
        {"X:clases=5", true, "X", ClasesDeLosDatos, 5, {}, 0, 0, 1, 1},
        {"X:limites=1/2.5/-3e1", true, "X", ClasesDadas, 10, {1, 2.5, -30}, 0, 0, 1, 1},
        {"X:min=-1,max=4.5,clases=3", true, "X", ClasesEntreLimites, 3, {}, -1, 4.5, 0, 0},
        {"X:max=7", true, "X", ClasesEntreLimites, 10, {}, 0, 7, 1, 0},
        {"", false, "", ClasesDeLosDatos, 10, {}, 0, 0, 1, 1},
        {"X:", false, "X", ClasesDeLosDatos, 10, {}, 0, 0, 1, 1},
        {"X:clases", false, "X", ClasesDeLosDatos, 10, {}, 0, 0, 1, 1},
        {"X:clases=", false, "X", ClasesDeLosDatos, 10, {}, 0, 0, 1, 1},
        {"X:clases=a", false, "X", ClasesDeLosDatos, 10, {}, 0, 0, 1, 1},
        {"X:clases=2.5", false, "X", ClasesDeLosDatos, 10, {}, 0, 0, 1, 1},
        {"X:min=-", false, "X", ClasesDeLosDatos, 10, {}, 0, 0, 1, 1},
        {"X:min=e", false, "X", ClasesDeLosDatos, 10, {}, 0, 0, 1, 1},
        {"X:max=1-2", false, "X", ClasesDeLosDatos, 10, {}, 0, 0, 1, 1},
        {"X:max=inf", false, "X", ClasesDeLosDatos, 10, {}, 0, 0, 1, 1},
        {"X:min=+1.5,max=2e1", true, "X", ClasesEntreLimites, 10, {}, 1.5, 20, 0, 0},
        {"X:nada=1", false, "X", ClasesDeLosDatos, 10, {}, 0, 0, 1, 1},
        {"X:clases=3,", false, "X", ClasesDeLosDatos, 3, {}, 0, 0, 1, 1},
    };
    for (const Peticion &c : casos) {
        SCOPED_TRACE(c.valor);
        PeticionHistograma p;
        EXPECT_EQ(LeerPeticionHistograma(c.valor, p), c.bien);
        if (!c.bien) continue;
        EXPECT_EQ(p.serie, c.serie);
        EXPECT_EQ(p.opciones.modo, c.modo);
        EXPECT_EQ(p.opciones.clases, c.clases);
        EXPECT_EQ(p.opciones.limites, c.limites);
        EXPECT_EQ(p.opciones.minX, c.minX);
        EXPECT_EQ(p.opciones.maxX, c.maxX);
        EXPECT_EQ(p.opciones.minXDefecto, c.minXDefecto);
        EXPECT_EQ(p.opciones.maxXDefecto, c.maxXDefecto);
    }
    PeticionHistograma p;
    EXPECT_FALSE(LeerPeticionHistograma("X:limites=1//2", p));
    EXPECT_FALSE(LeerPeticionHistograma("X:limites=1/", p));
}

} // namespace
