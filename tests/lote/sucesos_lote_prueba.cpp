// What the events say beside the boxes and the windows: where a batch stopped, notes, the numbers of a regression; and the
// actions that explain, count seconds and tell the version.
#include "lote/corrida.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

using nlohmann::json;

ResultadoCorrida ConSentencias(const std::string &sentencias, std::vector<std::string> antes = {}) {
    antes.insert(antes.begin(), {"--json", "--tipo", "anual:1920:1941", "--importar", "klein.csv"});
    antes.insert(antes.end(), {"--procesar", "-"});
    return Correr(antes, {.carpeta = "", .entrada = sentencias});
}

} // namespace

TEST(SucesosDeLote, DondeSeDetuvo) {
    const auto r = ConSentencias("SER A = CONSUMO\n\nser lb = ln(beneff)\nSER B = A\n");
    EXPECT_EQ(r.estado, 1);
    const auto paradas = SucesosDe(r, "parada");
    ASSERT_EQ(paradas.size(), 1u);
    EXPECT_EQ(paradas[0], json({{"suceso", "parada"}, {"linea", 3}, {"sentencia", "ser lb = ln(beneff)"}}));
    const auto cajas = SucesosDe(r, "caja");
    ASSERT_FALSE(cajas.empty());
    for (const json &c : cajas) {
        EXPECT_EQ(c["linea"], 3);
        EXPECT_EQ(c["sentencia"], "ser lb = ln(beneff)");
    }
    // A stop without a box: the name is a matrix's.
    const auto callada = ConSentencias("SER A = 1\nESC CONSUMO = 2\nESC A = 1\n");
    const auto otra = SucesosDe(callada, "parada");
    ASSERT_EQ(otra.size(), 1u);
    EXPECT_EQ(otra[0]["linea"], 2);
}

TEST(SucesosDeLote, SinParada) {
    EXPECT_TRUE(SucesosDe(ConSentencias("SER A = CONSUMO\n"), "parada").empty());
    // Refused before its first statement.
    const auto r = Correr({"--json", "--procesar", "-"}, {.carpeta = "", .entrada = "SER A = 1\n"});
    EXPECT_EQ(r.estado, 1);
    EXPECT_TRUE(SucesosDe(r, "parada").empty());
    // A box outside a batch has no line.
    EXPECT_FALSE(SucesosDe(r, "caja").at(0).contains("linea"));
}

TEST(SucesosDeLote, ParadaParaPersonas) {
    const auto r = Correr({"--tipo", "anual", "--sentencia", "NADA"});
    EXPECT_NE(r.salida.find("Detenido en la línea 1: NADA\n"), std::string::npos) << r.salida;
}

TEST(SucesosDeLote, Notas) {
    const auto r = ConSentencias("SER A = 1\nESC A1 = 3,5\n");
    EXPECT_EQ(r.estado, 0);
    const auto notas = SucesosDe(r, "nota");
    ASSERT_EQ(notas.size(), 1u);
    EXPECT_EQ(notas[0],
              json({{"suceso", "nota"},
                    {"texto", "La fórmula se lee hasta la coma; los decimales se escriben con punto"},
                    {"linea", 2}}));
    EXPECT_EQ(r.errores,
              "tabira-lote: nota, línea 2: La fórmula se lee hasta la coma; los decimales se escriben con "
              "punto\n");
}

TEST(SucesosDeLote, NotasDeUnaImportacion) {
    const std::string carpeta = CarpetaNueva("notas");
    const struct {
        const char *formato, *bytes;
        std::vector<std::string> notas;
    } casos[] = {
        {"variable:codigos", "A,B\n1,2\n3,4\n", {}},
        {"variable:codigos", "A,B\n1,x\n3,4\n", {"Hay valores que no son números: se han leído como 0"}},
        {"variable:codigos", "A,B\n1,0.0\n3,-\n", {}},
        {"variable:codigos", "A\n1\n3\n", {"Se ha leído una sola serie"}},
        {"variable:codigos", "A;B\n1;2\n3;4\n", {"Se ha leído una sola serie: el separador parece ser otro"}},
        {"variable:separador=;,codigos",
         "A;B\n1,5;2\n3;4\n",
         {"Hay valores con coma, leídos hasta ella: ¿son comas decimales?"}},
        {"variable:separador=;,codigos,comas", "A;B\n1,5;2\n3;4\n", {}},
    };
    for (const auto &c : casos) {
        SCOPED_TRACE(c.bytes);
        EscribirBytes(carpeta + "/d.csv", c.bytes);
        const auto r = Correr({"--json", "--tipo", "anual:1990:1995", "--formato", c.formato, "--importar",
                               carpeta + "/d.csv"});
        std::vector<std::string> vistas;
        for (const json &n : SucesosDe(r, "nota")) {
            vistas.push_back(n["texto"]);
            EXPECT_EQ(n["linea"], 0);
        }
        EXPECT_EQ(vistas, c.notas) << r.salida << r.errores;
    }
}

// ----- regresion

// Every number of the event is one of the store, which the dump shows under its own name.
TEST(SucesosDeLote, Regresion) {
    const auto r = ConSentencias("SER SALARIOS = SALPRIV + SALPUB\nMC CONSUMO 1 BENEF BENEF(-1) SALARIOS\n",
                                 {"--respuesta", "si"});
    ASSERT_EQ(r.estado, 0) << r.errores;
    const auto sucesos = Sucesos(r);
    std::size_t i = 0;
    while (i < sucesos.size() && sucesos[i]["suceso"] != "salida") ++i;
    ASSERT_LT(i + 1, sucesos.size());
    const json &e = sucesos[i + 1];
    ASSERT_EQ(e["suceso"], "regresion");
    EXPECT_EQ(e["metodo"], "MC");
    EXPECT_EQ(e["dependiente"], "CONSUMO");
    EXPECT_EQ(e["muestra"], json({1, 21}));
    EXPECT_EQ(e["observaciones"], 21);
    const char *const codigos[] = {"1", "BENEF", "BENEF(-1)", "SALARIOS"};
    const double publicados[] = {16.237, 0.193, 0.090, 0.796};
    ASSERT_EQ(e["regresores"].size(), 4u);
    for (std::size_t k = 0; k < 4; ++k) {
        const json &x = e["regresores"][k];
        EXPECT_EQ(x["codigo"], codigos[k]);
        const double b = x["coeficiente"], d = x["desviacion"], t = x["t"], p = x["probabilidad"];
        EXPECT_NEAR(b, publicados[k], 0.0005);
        EXPECT_NEAR(t, b / d, 1e-12 * std::fabs(t));
        EXPECT_TRUE(p >= 0 && p <= 1);
    }
    const json &s = e["estadisticos"];
    // The F statistic is that of R squared, with 3 and 17 degrees of freedom.
    const double r2 = s["R Cuadrado"], f = s["Estadístico F"];
    EXPECT_EQ(s["Grados de libertad 1"], 3);
    EXPECT_EQ(s["Grados de libertad 2"], 17);
    EXPECT_NEAR(f, (r2 / 3) / ((1 - r2) / 17), 1e-9 * f);
    // Published sum of squared residuals.
    EXPECT_NEAR(s["Suma Cuadrados Resid."].get<double>(), 17.8794, 0.0001);
    EXPECT_EQ(s.size(), 14u);
}

// Only windows that show the block of a regression tell one: none without a window, two with the two of CGQ.
TEST(SucesosDeLote, CuantasRegresiones) {
    const struct {
        const char *sentencias;
        std::vector<std::string> metodos;
    } casos[] = {
        {"VSR NO\nMC CONSUMO 1 BENEF\n", {}},
        {"MC CONSUMO 1 BENEF\nCDU\n", {"MC"}},
        {"VSR NO\nMC CONSUMO 1 BENEF\nCGQ (BENEF) RA 1 8 14 22\n", {"MGD", "MGN"}},
        {"VSR NO\nMC CONSUMO 1 BENEF\nCWH RA\n", {"CWH"}},
        {"VSR NO\nMC CONSUMO 1 BENEF\nCWH\n", {}},
    };
    for (const auto &c : casos) {
        SCOPED_TRACE(c.sentencias);
        const auto r = ConSentencias(std::string("MUEST 1920 1941\n") + c.sentencias);
        std::vector<std::string> metodos;
        for (const json &e : SucesosDe(r, "regresion")) metodos.push_back(e["metodo"]);
        EXPECT_EQ(metodos, c.metodos) << r.salida;
    }
}

// ----- --semilla

namespace {

std::vector<double> Sorteo(std::vector<std::string> antes) {
    antes.insert(antes.begin(), {"--json", "--tipo", "anual:1990:1993"});
    antes.insert(antes.end(), {"--sentencia", "SER A = RNDN", "--sentencia", "SER B = RNDN", "--volcado"});
    const json volcado = SucesosDe(Correr(antes), "volcado").at(0);
    std::vector<double> v;
    for (const json &s : volcado["series"])
        for (const json &x : s["valores"]) v.push_back(x);
    return v;
}

} // namespace

TEST(Semilla, SeRepiteYAvanza) {
    const std::vector<double> a = Sorteo({"--semilla", "7"});
    ASSERT_EQ(a.size(), 8u);
    EXPECT_EQ(Sorteo({"--semilla", "7"}), a);
    EXPECT_NE(Sorteo({"--semilla", "6"}), a);
    // The second evaluation is a second later: what began at 8 begins with it.
    const std::vector<double> segunda(a.begin() + 4, a.end());
    EXPECT_NE(std::vector<double>(a.begin(), a.begin() + 4), segunda);
    const std::vector<double> b = Sorteo({"--semilla", "8"});
    EXPECT_EQ(std::vector<double>(b.begin(), b.begin() + 4), segunda);
    EXPECT_EQ(Sorteo({"--semilla", "2147483647"}).size(), 8u);
}

TEST(Semilla, ValoresMalos) {
    for (const char *valor : {"", "x", "-1", "1.5", "2147483648", "7 "}) {
        SCOPED_TRACE(valor);
        EXPECT_EQ(Correr({"--semilla", valor}).estado, 2);
    }
}

// ----- --version, -h, --ayuda

TEST(Ayuda, Formas) {
    const struct {
        std::vector<std::string> argumentos;
        int estado;
        const char *empieza;
    } casos[] = {
        {{"--version"}, 0, "tabira-lote "},
        {{"-h"}, 0, "Uso: tabira-lote"},
        {{"--ayuda"}, 0, "Uso: tabira-lote"},
        {{"--ayuda", "tipo"}, 0, "--tipo TIPO"},
        {{"--ayuda", "formato"}, 0, "--formato F"},
        {{"--ayuda", "sucesos"}, 0, "Con --json"},
        {{"--ayuda", "--version"}, 0, "Uso: tabira-lote"},
        {{"--ayuda", "nada"}, 2, ""},
        {{"--version", "--json"}, 0, "tabira-lote "},
    };
    for (const auto &c : casos) {
        SCOPED_TRACE(c.argumentos.back());
        const auto r = Correr(c.argumentos);
        EXPECT_EQ(r.estado, c.estado) << r.errores;
        EXPECT_EQ(r.salida.rfind(c.empieza, 0), 0u) << r.salida;
    }
    // Behind --json standard output is for events.
    const auto r = Correr({"--json", "--version", "--ayuda", "tipo"});
    EXPECT_EQ(r.salida, "{\"suceso\":\"fin\",\"estado\":0}\n");
    EXPECT_EQ(r.errores.rfind("tabira-lote ", 0), 0u);
}
