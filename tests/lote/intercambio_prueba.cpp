// ASCII files that nobody meant to be read, and places that nobody can write, through the whole program.
#include "lote/corrida.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace {

using nlohmann::json;
namespace fs = std::filesystem;

const std::vector<std::string> SinCajas;
const std::vector<std::string> ErrorAlAbrir = {"Error al abrir el archivo"};

// The series of the dump: "X: 1 2.5 . | Y: 3", "." for a missing value; from the eighth on only how many there are.
std::string SeriesDe(const ResultadoCorrida &corrida) {
    std::string r;
    const auto volcados = SucesosDe(corrida, "volcado");
    if (volcados.empty()) return "no dump";
    const json &series = volcados[0]["series"];
    for (std::size_t s = 0; s < series.size() && s < 8; ++s) {
        r += (s > 0 ? " | " : "") + series[s]["codigo"].get<std::string>() + ":";
        for (const json &v : series[s]["valores"])
            r += " " + (v.is_null() ? "." : v.is_string() ? v.get<std::string>() : v.dump());
    }
    return series.size() > 8 ? r + " | " + std::to_string(series.size()) + " series" : r;
}

std::vector<std::string> CajasDe(const ResultadoCorrida &corrida) {
    std::vector<std::string> r;
    for (const json &c : SucesosDe(corrida, "caja")) r.push_back(c["texto"]);
    return r;
}

std::string Codigos(int n) {
    std::string r;
    for (int i = 1; i <= n; ++i) r += (i > 1 ? ",S" : "S") + std::to_string(i);
    return r + "\n";
}

std::string Numeros(int n, const char *separador) {
    std::string r;
    for (int i = 1; i <= n; ++i) r += (i > 1 ? separador : "") + std::to_string(i);
    return r + "\n";
}

struct CasoArchivo {
    const char *nombre;
    std::string contenido;
    std::string series;
    const char *tipo = "anual:1990:1993"; // four observations
    const char *formato = "variable:codigos";
};

const CasoArchivo Archivos[] = {
    {"empty", "", ""},
    {"line ends alone", "\n\r\n\r\r\n\n", ""},
    {"no line end", "X,Y\n1,2\n3,4", "X: 1 3 | Y: 2 4"},
    {"one line without its end", "X,Y", "X: | Y:"},
    {"CR", "X,Y\r1,2\r3,4\r", "X: 1 3 | Y: 2 4"},
    {"CR LF", "X,Y\r\n1,2\r\n3,4\r\n", "X: 1 3 | Y: 2 4"},
    {"NUL bytes", std::string("X,Y\n1\0,2\n\0,4\n", 13), "X: 1 0 | Y: 2 4"},
    {"nothing but NUL bytes", std::string(5000, '\0'), "????????:"},
    {"byte order mark", "\xEF\xBB\xBFX,Y\n1,2\n", "X: 1 | Y: 2"},
    {"byte order mark alone", "\xEF\xBB\xBF", ""},
    {"neither of the encodings", "A\xF1o,\xC3\n1,2\n", "Año: 1 | Ã: 2"},
    {"a line of a megabyte", "X,Y\n1," + std::string(1 << 20, '2') + "\n3,4\n", "X: 1 3 | Y: inf 4"},
    {"a megabyte of separators", "X,Y\n" + std::string(1 << 20, ',') + "\n3,4\n", "X: . 3 | Y: . 4"},
    {"a megabyte of delimiters", "\"X\"\n" + std::string(1 << 20, '"') + "\n\"3\"\n", "X: 0 3",
     "anual:1990:1993", "variable:codigos,delimitados=todo"},
    {"a megabyte without a line end", std::string(1 << 20, '1'), "11111111:"},
    {"101 columns", Codigos(101) + Numeros(101, ","),
     "S1: 1 | S2: 2 | S3: 3 | S4: 4 | S5: 5 | S6: 6 | S7: 7 | S8: 8 | 99 series"},
    {"more records than observations", "X\n" + Numeros(5, "\n"), "X: 1 2 3 4"},
    {"numbers too large and too small", "A,B,C,D\n1e999,-1e999,1e-999,1e308\n",
     "A: inf | B: -inf | C: 0 | D: 1e+308"},
    {"names of numbers", "A,B,C,D\nnan,inf,-inf,0x1F\n", "A: 0 | B: 0 | C: 0 | D: 0"},
    {"two points", "A,B\n1.5.2,..5\n", "A: 1.5 | B: 0"},
    {"decimal commas", "A;B\n1,5;1,5,2\n", "A: 1.5 | B: 1.5", "anual:1990:1993",
     "variable:separador=;,codigos,comas"},
    {"decimal commas without being told", "A;B\n1,5;-1,5\n", "A: 1 | B: -1", "anual:1990:1993",
     "variable:separador=;,codigos"},
    {"quotes", "\"A\",\"B\",\"\"C\"\n\"1\",\"\"2\"\n", "A: 1 | B: 0 | \"C:", "anual:1990:1993",
     "variable:codigos,delimitados=todo"},
    {"quotes that nobody expects", "\"A\",B\n\"1\",2\n", "\"A\": 0 | B: 2"},
    {"fixed, nothing as wide as its fields", "1\n22\n\n333\n", "", "anual:1990:1993", "fijo:N/1/9/X"},
    {"fixed, a line of a megabyte", std::string(1 << 20, '7') + "\n8\n", "X: 7 8", "anual:1990:1993",
     "fijo:N/1/1/X"},
};

TEST(Intercambio, ArchivosDisparatados) {
    const std::string carpeta = CarpetaNueva("hostil");
    for (const CasoArchivo &caso : Archivos) {
        SCOPED_TRACE(caso.nombre);
        EscribirBytes(carpeta + "/a.csv", caso.contenido);
        const auto r = Correr(
            {"--json", "--tipo", caso.tipo, "--formato", caso.formato, "--importar", "a.csv", "--volcado"},
            {.carpeta = carpeta, .entrada = {}});
        EXPECT_EQ(r.estado, 0) << r.errores;
        EXPECT_EQ(CajasDe(r), SinCajas);
        EXPECT_EQ(SeriesDe(r), caso.series);
    }
}

// The table has 4,000 rows: the last record of 4,001 is dropped, and those of a second import, too.
TEST(Intercambio, CuatroMilUnRegistros) {
    const std::string carpeta = CarpetaNueva("filas");
    EscribirBytes(carpeta + "/a.csv", "X\n" + Numeros(4001, "\n"));
    const auto r = Correr({"--json", "--tipo", "sin", "--importar", "a.csv", "--respuesta", "no",
                           "--importar", "a.csv", "--volcado"},
                          {.carpeta = carpeta, .entrada = {}});
    ASSERT_EQ(r.estado, 0) << r.errores;
    const json volcado = SucesosDe(r, "volcado").at(0);
    ASSERT_EQ(volcado["series"].size(), 2u);
    for (const json &s : volcado["series"]) {
        EXPECT_EQ(s["valores"].size(), 4000u);
        EXPECT_EQ(s["valores"].back(), 4000.0);
    }
}

struct CasoSitio {
    const char *ruta;
    std::vector<std::string> alImportar, alExportar;
};

const CasoSitio Sitios[] = {
    {"carpeta.d", ErrorAlAbrir, {"El archivo ya existe ¿Sobreescribir?", "Error al abrir el archivo"}},
    {"no/hay.csv", ErrorAlAbrir, ErrorAlAbrir},
    {"a.csv/b.csv", ErrorAlAbrir, ErrorAlAbrir},
    // No room: the same message. Read, the device has no end.
    {"/dev/./full", ErrorAlAbrir, {"El archivo ya existe ¿Sobreescribir?", "Error al abrir el archivo"}},
};

TEST(Intercambio, SitiosImposibles) {
    const std::string carpeta = CarpetaNueva("sitios");
    fs::create_directory(carpeta + "/carpeta.d");
    EscribirBytes(carpeta + "/a.csv", "X\n1\n2\n");
    for (const CasoSitio &caso : Sitios) {
        SCOPED_TRACE(caso.ruta);
        const std::vector<std::string> antes = {"--json",     "--tipo", "anual:1990:1991",
                                                "--importar", "a.csv",  "--seguir"};
        auto linea = antes;
        // The question whether the series are replaced is answered with yes: they are not yet touched.
        linea.insert(linea.end(), {"--importar", caso.ruta, "--volcado"});
        const auto importar = Correr(linea, {.carpeta = carpeta, .entrada = {}});
        EXPECT_EQ(importar.estado, 1);
        auto cajas = caso.alImportar;
        cajas.insert(cajas.begin(), "Existen Series ¿Desea sustituirlas?");
        EXPECT_EQ(CajasDe(importar), cajas);
        EXPECT_EQ(SeriesDe(importar), "X: 1 2");

        linea = antes;
        linea.insert(linea.end(), {"--exportar", caso.ruta, "--volcado"});
        const auto exportar = Correr(linea, {.carpeta = carpeta, .entrada = {}});
        EXPECT_EQ(exportar.estado, 1);
        EXPECT_EQ(CajasDe(exportar), caso.alExportar);
        EXPECT_EQ(LeerBytes(carpeta + "/a.csv"), "X\n1\n2\n");
        EXPECT_EQ(std::distance(fs::directory_iterator(carpeta), fs::directory_iterator()), 2)
            << "nothing is left behind";
    }
}

} // namespace
