// The events of --traza, and that the trace changes nothing else.
#include "lote/capitulo.h"
#include "lote/corrida.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <random>
#include <set>
#include <sstream>

namespace {

using nlohmann::json;
using Acciones = std::vector<std::string>;

const Acciones Klein = {"--tipo", "anual:1920:1941", "--importar", "klein.csv"};

Acciones operator+(Acciones a, const Acciones &b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

std::vector<json> PasosDe(const ResultadoCorrida &corrida) {
    return SucesosDe(corrida, "paso");
}

const json *PasoCon(const std::vector<json> &pasos, const std::string &destino) {
    const json *paso = nullptr;
    for (const json &p : pasos)
        if (p["destino"] == destino) paso = &p;
    return paso;
}

// ----- The fields

void ComprobarCampos(const json &p) {
    static const std::set<std::string> campos = {"suceso",  "n",     "nivel",    "sentencia",
                                                 "formula", "clase", "destino",  "filas",
                                                 "valores", "fallo", "columnas", "explicacion"};
    static const std::set<std::string> clases = {"sentencia", "grupo", "escalar", "matriz", "serie"};
    std::set<std::string> propios;
    for (const auto &par : p.items()) propios.insert(par.key());
    EXPECT_EQ(propios, campos) << p;
    for (const char *entero : {"n", "nivel", "filas", "columnas"}) EXPECT_TRUE(p[entero].is_number_integer());
    for (const char *texto : {"sentencia", "formula", "destino", "explicacion", "fallo"})
        EXPECT_TRUE(p[texto].is_string()) << texto;
    EXPECT_TRUE(clases.contains(p["clase"])) << p;
    ASSERT_TRUE(p["valores"].is_array());
    for (const json &v : p["valores"])
        EXPECT_TRUE(v.is_number() || v == "nan" || v == "inf" || v == "-inf") << v;
    const bool conValores = p["clase"] != "sentencia" && p["clase"] != "grupo" && p["fallo"] == "";
    EXPECT_EQ(p["filas"] != 0, conValores) << p;
    EXPECT_EQ(p["valores"].empty(), !conValores) << p;
    EXPECT_NE(p["explicacion"], "") << p;
}

// A statement is the root of its steps, and no step is deeper than one below the one before it.
void ComprobarOrden(const std::vector<json> &pasos) {
    json sentencia = "";
    for (std::size_t i = 0; i < pasos.size(); ++i) {
        const json &p = pasos[i];
        EXPECT_EQ(p["n"], i + 1);
        if (p["nivel"] == 0) {
            EXPECT_EQ(p["clase"], "sentencia");
            sentencia = p["formula"];
        } else {
            EXPECT_LE(p["nivel"], pasos[i - 1]["nivel"].get<int>() + 1) << p;
        }
        EXPECT_EQ(p["sentencia"], sentencia) << p;
    }
}

TEST(TrazaDeLote, CamposDeCadaPaso) {
    const auto r = Correr(Acciones{"--json", "--seguir", "--traza"} + Klein +
                          Acciones{"--procesar", "klein.txt", "--sentencia", "MAT A = CONSUMO'",
                                   "--sentencia", "SER S = LN(BENEF - 15)", "--sentencia", "ESC E = 2+3*4",
                                   "--sentencia", "CAL 1/0", "--sentencia", "MC CONSUMO 1 BENEF NADIE",
                                   "--sentencia", "MUEST 1920 1941", "--procesar", "klein.txt"});
    EXPECT_EQ(r.estado, 1) << "two statements fail";
    const auto pasos = PasosDe(r);
    ASSERT_GT(pasos.size(), 100u);
    for (const json &p : pasos) ComprobarCampos(p);
    ComprobarOrden(pasos);
    EXPECT_EQ(std::count_if(pasos.begin(), pasos.end(), [](const json &p) { return p["fallo"] != ""; }), 2);
    for (const json &p : pasos)
        EXPECT_EQ(p["fallo"] != "", p["fallo"] != "" && p["filas"] == 0 && p["valores"].empty());
}

// One step, field by field.
TEST(TrazaDeLote, UnEscalarYUnaSerie) {
    const auto r =
        Correr(Acciones{"--json"} + Klein +
               Acciones{"--traza", "--sentencia", "ESC UNO = 1/3", "--sentencia", "SER B = BENEF(-1)"});
    const auto pasos = PasosDe(r);
    ASSERT_EQ(pasos.size(), 5u) << r.salida;
    EXPECT_EQ(pasos[0], json({{"suceso", "paso"},
                              {"n", 1},
                              {"nivel", 0},
                              {"sentencia", "ESC UNO = 1/3"},
                              {"formula", "ESC UNO = 1/3"},
                              {"destino", ""},
                              {"clase", "sentencia"},
                              {"filas", 0},
                              {"columnas", 0},
                              {"valores", json::array()},
                              {"explicacion", "Sentencia"},
                              {"fallo", ""}}));
    EXPECT_EQ(pasos[1],
              json({{"suceso", "paso"},
                    {"n", 2},
                    {"nivel", 1},
                    {"sentencia", "ESC UNO = 1/3"},
                    {"formula", "1/3"},
                    {"destino", "UNO"},
                    {"clase", "escalar"},
                    {"filas", 1},
                    {"columnas", 1},
                    {"valores", {1.0 / 3.0}},
                    {"explicacion", "Escalar: el valor de la fórmula en la primera fila de la muestra"},
                    {"fallo", ""}}));
    // All digits, as "%.17g" writes them.
    EXPECT_NE(r.salida.find("\"valores\":[0.33333333333333331]"), std::string::npos) << r.salida;
    EXPECT_EQ(pasos[4]["filas"], 21);
    EXPECT_EQ(pasos[4]["columnas"], 1);
    EXPECT_EQ(pasos[4]["clase"], "serie");
    EXPECT_EQ(pasos[4]["explicacion"], "Serie: la fórmula en todas las filas de la muestra (1921 a 1941)");
    EXPECT_EQ(pasos[4]["valores"], json({12.7, 12.4, 16.9, 18.4, 19.4, 17.6, 17.3, 15.3, 19.0, 21.1}));
}

TEST(TrazaDeLote, NumerosQueNoLoSon) {
    const auto r = Correr(Acciones{"--json", "--seguir", "--tipo", "sin", "--traza"} +
                          Acciones{"--sentencia", "ESC A = EXP(800)", "--sentencia", "ESC B = 0-EXP(800)",
                                   "--sentencia", "ESC C = EXP(800)-EXP(800)"});
    const auto pasos = PasosDe(r);
    const std::pair<const char *, const char *> Casos[] = {{"A", "inf"}, {"B", "-inf"}, {"C", "nan"}};
    for (const auto &[destino, valor] : Casos) {
        const json *p = PasoCon(pasos, destino);
        ASSERT_NE(p, nullptr) << r.salida;
        EXPECT_EQ((*p)["valores"], json({valor})) << *p;
    }
}

// What a step tells of a result is what the store has of it in the end, to the last digit.
TEST(TrazaDeLote, ValoresComoEnElVolcado) {
    const auto r =
        Correr(Acciones{"--json", "--traza"} + Klein + Acciones{"--procesar", "klein.txt", "--volcado"});
    const auto pasos = PasosDe(r);
    const json volcado = SucesosDe(r, "volcado").at(0);
    int comparados = 0;
    for (const json &e : volcado["escalares"])
        if (const json *p = PasoCon(pasos, e["codigo"]); p != nullptr) {
            EXPECT_EQ((*p)["valores"], json::array({e["valor"]})) << *p;
            ++comparados;
        }
    for (const json &m : volcado["matrices"])
        if (const json *p = PasoCon(pasos, m["codigo"]); p != nullptr && m["filas"] <= 10) {
            EXPECT_EQ((*p)["valores"], m["datos"]) << *p;
            ++comparados;
        }
    EXPECT_GT(comparados, 8);
}

// ----- From here on

TEST(TrazaDeLote, DesdeDondeEsta) {
    const Acciones sentencia = {"--sentencia", "ESC A = 1"}, otra = {"--sentencia", "ESC B = 2"};
    const Acciones Casos[] = {
        Acciones{"--json"} + Klein + sentencia + otra,
        Acciones{"--json"} + Klein + sentencia + Acciones{"--traza"} + otra,
        Acciones{"--json"} + Klein + Acciones{"--traza"} + sentencia + otra,
        Acciones{"--json", "--traza"} + Klein + sentencia + Acciones{"--traza"} + otra,
        Acciones{"--json"} + Klein + sentencia + otra + Acciones{"--traza"},
    };
    const std::vector<std::string> esperados[] = {{},
                                                  {"ESC B = 2", "2"},
                                                  {"ESC A = 1", "1", "ESC B = 2", "2"},
                                                  {"ESC A = 1", "1", "ESC B = 2", "2"},
                                                  {}};
    for (std::size_t i = 0; i < std::size(Casos); ++i) {
        std::vector<std::string> formulas;
        for (const json &p : PasosDe(Correr(Casos[i]))) formulas.push_back(p["formula"]);
        EXPECT_EQ(formulas, esperados[i]) << i;
    }
}

TEST(TrazaDeLote, ComoTexto) {
    const auto r = Correr(Klein + Acciones{"--traza", "--sentencia", "ESC A = 2+3*4", "--sentencia",
                                           "MAT M = {BENEF SALPRIV}", "--json", "--sentencia", "ESC B = 1"});
    EXPECT_TRUE(r.salida.starts_with(
        "ESC A = 2+3*4\n"
        "  A = 2+(3*4) = 14: Escalar: el valor de la fórmula en la primera fila de la muestra\n"
        "    3*4 = 12: Dentro del paréntesis, nivel 1\n"
        "    2+(3*4) = 14: De izquierda a derecha\n"
        "MAT M = {BENEF SALPRIV}\n"
        "  M = {BENEF SALPRIV} [22 x 2] = 12.7 28.8 12.4 25.5 16.9 29.3 18.4 34.1 19.4 33.9 "))
        << r.salida;
    EXPECT_NE(r.salida.find("\n{\"suceso\":\"paso\",\"n\":7,"), std::string::npos) << r.salida;
}

TEST(TrazaDeLote, LosPasosQueSobranSeCuentan) {
    const std::string bucle = "REPITE I DESDE 1 HASTA 12000\nESC A = I\nFINREPITE\n";
    const auto r =
        Correr({"--json", "--tipo", "sin", "--traza", "--procesar", "-", "--sentencia", "ESC B = 1"},
               {.carpeta = {}, .entrada = bucle});
    EXPECT_EQ(r.estado, 0) << r.salida.substr(0, 500);
    const auto pasos = PasosDe(r);
    ASSERT_EQ(pasos.size(), 20000u + 1 + 2);
    const json &resto = pasos[20000];
    EXPECT_EQ(resto["clase"], "grupo");
    const int total = resto["n"].get<int>();
    EXPECT_GT(total, 24000);
    EXPECT_EQ(resto["explicacion"], std::to_string(total - 20000) + " pasos más");
    EXPECT_EQ(pasos[20001]["n"], total + 1) << "the count goes on";
    EXPECT_EQ(pasos[20001]["formula"], "ESC B = 1");
}

// ----- Nothing else changes

std::string SinPasos(const std::string &salida) {
    std::string resto;
    std::istringstream lineas(salida);
    for (std::string l; std::getline(lineas, l);)
        if (!l.starts_with("{\"suceso\":\"paso\",")) resto += l + "\n";
    return resto;
}

// Every other event is the same, byte for byte, and a dump of the store stands at the end.
void CompararConYSinTraza(const Acciones &acciones, std::size_t pasosAlMenos) {
    const Acciones comun = Acciones{"--semilla", "7"} + acciones + Acciones{"--volcado"};
    const auto sin = Correr(Acciones{"--json"} + comun);
    const auto con = Correr(Acciones{"--json", "--traza"} + comun);
    EXPECT_NE(sin.estado, 2) << sin.errores;
    EXPECT_GE(sin.estado, 0);
    EXPECT_EQ(con.estado, sin.estado);
    EXPECT_EQ(con.errores, sin.errores);
    EXPECT_EQ(sin.salida.find("{\"suceso\":\"paso\""), std::string::npos);
    const std::string resto = SinPasos(con.salida);
    if (resto != sin.salida) {
        const auto distinto = std::mismatch(resto.begin(), resto.end(), sin.salida.begin(), sin.salida.end());
        const auto lugar = static_cast<std::size_t>(distinto.first - resto.begin());
        ADD_FAILURE() << "con: " << resto.substr(lugar > 60 ? lugar - 60 : 0, 160)
                      << "\nsin: " << sin.salida.substr(lugar > 60 ? lugar - 60 : 0, 160);
    }
    EXPECT_GE(static_cast<std::size_t>(std::count(con.salida.begin(), con.salida.end(), '\n')),
              static_cast<std::size_t>(std::count(resto.begin(), resto.end(), '\n')) + pasosAlMenos);
}

std::vector<std::filesystem::path> FicherosDe(const std::string &carpeta, const std::string &terminacion) {
    std::vector<std::filesystem::path> ficheros;
    for (const auto &f : std::filesystem::directory_iterator(std::string(TABIRA_FUENTES) + "/" + carpeta))
        if (f.path().extension() == terminacion) ficheros.push_back(f.path());
    std::sort(ficheros.begin(), ficheros.end());
    return ficheros;
}

TEST(TrazaNoCambiaNada, Tutorial) {
    const auto capitulos = FicherosDe("docs/tutorial", ".md");
    EXPECT_GE(capitulos.size(), 11u);
    for (const auto &f : capitulos) {
        SCOPED_TRACE(f.filename());
        Acciones acciones = AccionesDeCapitulo(LeerCapitulo(f.filename()));
        std::erase(acciones, "--traza"); // a chapter that shows the steps
        CompararConYSinTraza(acciones, 1);
    }
}

// A small work file of years, with a missing value, and matrices.
const Acciones Anual = {"--seguir",
                        "--tipo",
                        "anual:1990:2001",
                        "--sentencia",
                        "SER X = TEND + (RND*3)",
                        "--sentencia",
                        "SER Y = 2 + (3*X) + RNDN",
                        "--sentencia",
                        "SER Z = LN(TEND - 3)",
                        "--sentencia",
                        "ESC A = 2",
                        "--sentencia",
                        "ESC T = 1995",
                        "--sentencia",
                        "MUEST 1990 1992",
                        "--sentencia",
                        "MAT M = {X Y 1}",
                        "--sentencia",
                        "MAT V = {X}",
                        "--sentencia",
                        "MUEST 1990 2001"};

TEST(TrazaNoCambiaNada, BatchesDeLosEjemplosYDeLasSemillas) {
    CompararConYSinTraza(Klein + Acciones{"--procesar", "klein.txt"}, 50);
    const auto semillas = FicherosDe("tests/fuzz/semillas_sentencias", ".txt");
    EXPECT_GE(semillas.size(), 8u);
    for (const auto &f : semillas) {
        SCOPED_TRACE(f.filename());
        CompararConYSinTraza(Anual + Acciones{"--procesar", f.string(), "--decimales", "6"}, 10);
    }
}

// All that the menus compute behind a regression.
TEST(TrazaNoCambiaNada, Analisis) {
    CompararConYSinTraza(Acciones{"--seguir"} + Klein +
                             Acciones{"--procesar",
                                      "klein.txt",
                                      "--prediccion",
                                      "1930:1941",
                                      "--prediccion",
                                      "1922:1941:tasas:P:D:I",
                                      "--prediccion",
                                      "1922:1941:incrementos",
                                      "--normalidad",
                                      "BENEF",
                                      "--normalidad",
                                      "_RES",
                                      "--estadisticos",
                                      "CONSUMO,BENEF",
                                      "--fac",
                                      "BENEF:6",
                                      "--facp",
                                      "BENEF:6:uniforme",
                                      "--transformar",
                                      "BENEF:TB:boxcox=0,regular=1",
                                      "--histograma",
                                      "BENEF:clases=4",
                                      "--listado",
                                      "covarianza",
                                      "--listado",
                                      "varianza",
                                      "--listado",
                                      "valores",
                                      "--grafico",
                                      "residuos",
                                      "--ultima-regresion"},
                         50);
}

// ----- Statements at random

struct Azar {
    std::mt19937 motor;
    int Hasta(int n) { return static_cast<int>(motor() % static_cast<unsigned>(n)); }
    std::string Uno(const std::vector<std::string> &de) {
        return de[static_cast<std::size_t>(Hasta(static_cast<int>(de.size())))];
    }
};

std::string FormulaDeSerie(Azar &azar, int hondo) {
    static const std::vector<std::string> hojas = {"X", "Y", "Z",       "X(-1)", "Y(+1)", "2",    "0.5",
                                                   "A", "S", "X[1995]", "TEND",  "RND",   "RNDN", "NADA"};
    static const std::vector<std::string> operadores = {"+",   "-",   "*",     "/",   " > ",
                                                        " < ", " = ", " AND ", " OR "};
    static const std::vector<std::string> funciones = {"LN(",  "RCUAD(",  "ABS(",   "EXP(",
                                                       "NOT(", "SUMSER(", "MEDSER("};
    if (hondo <= 0) return azar.Uno(hojas);
    switch (azar.Hasta(6)) {
    case 0: return "(" + FormulaDeSerie(azar, hondo - 1) + ")";
    case 1: return azar.Uno(funciones) + FormulaDeSerie(azar, hondo - 1) + ")";
    case 2: return "-" + FormulaDeSerie(azar, hondo - 1);
    case 3: return "POT(" + FormulaDeSerie(azar, hondo - 1) + ",2)";
    default: return FormulaDeSerie(azar, hondo - 1) + azar.Uno(operadores) + FormulaDeSerie(azar, hondo - 1);
    }
}

std::string FormulaDeMatriz(Azar &azar, int hondo) {
    static const std::vector<std::string> hojas = {"M", "V", "M'",   "M$",   "V'",   "2",
                                                   "A", "C", "NADA", "_COV", "_BETA"};
    static const std::vector<std::string> operadores = {" * ", " + ", "-", "/", " "};
    static const std::vector<std::string> funciones = {"DET(",  "TRAZA(", "DIAG(", "VECT(",
                                                       "LNMT(", "ESCAL(", "SUMA("};
    if (hondo <= 0) return azar.Uno(hojas);
    switch (azar.Hasta(5)) {
    case 0: return "(" + FormulaDeMatriz(azar, hondo - 1) + ")" + azar.Uno({"", "'", "$"});
    case 1: return azar.Uno(funciones) + FormulaDeMatriz(azar, hondo - 1) + ")";
    default:
        return FormulaDeMatriz(azar, hondo - 1) + azar.Uno(operadores) + FormulaDeMatriz(azar, hondo - 1);
    }
}

std::string SentenciaAlAzar(Azar &azar) {
    static const std::vector<std::string> fijas = {"MC Y 1 X",
                                                   "MC Y 1 X(-1)",
                                                   "MC (CH) Y 1 X Z",
                                                   "MC (CA 2) Y 1 X",
                                                   "MCP (1/X) Y 1 X",
                                                   "CR Y 1",
                                                   "CWH",
                                                   "CWH PC",
                                                   "CWA",
                                                   "CDU",
                                                   "CRA X",
                                                   "CGQ (X) 1 5 7 12",
                                                   "MC Y 1 X Y(-1)",
                                                   "MUEST 1991 2000",
                                                   "MUEST 1990 2001",
                                                   "SER FICTIC",
                                                   "OBS X[1994] = 3",
                                                   "OBS Y[1999] = X*2",
                                                   "SER R = R(-1) + X",
                                                   "SER S = {_BETA}",
                                                   "MAT M = {X Y 1}",
                                                   "MAT C = M",
                                                   "CHN IR 1",
                                                   "CHN MR 1 BETA(2)=1",
                                                   "CHN FR 1"};
    switch (azar.Hasta(6)) {
    case 0: return azar.Uno(fijas);
    case 1: return "MAT " + azar.Uno({"C", "D", "V"}) + " = " + FormulaDeMatriz(azar, 2);
    case 2: return "ESC " + azar.Uno({"A", "E"}) + " = " + FormulaDeSerie(azar, 2);
    case 3: return "CAL " + FormulaDeSerie(azar, 2);
    default: return "SER " + azar.Uno({"S", "U", "R"}) + " = " + FormulaDeSerie(azar, 3);
    }
}

TEST(TrazaNoCambiaNada, SentenciasAlAzar) {
    constexpr int Corridas = 12, Sentencias = 150;
    for (unsigned semilla = 1; semilla <= Corridas; ++semilla) {
        SCOPED_TRACE(semilla);
        Azar azar{std::mt19937(semilla)};
        Acciones acciones = Anual;
        for (int i = 0; i < Sentencias; ++i)
            acciones = acciones + Acciones{"--sentencia", SentenciaAlAzar(azar)};
        CompararConYSinTraza(acciones, 300);
    }
}

} // namespace
