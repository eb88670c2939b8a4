// Printing from the batch runner: its events, and the PDF documents read back with pdftotext and pdffonts.
#include "lote/corrida.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <filesystem>
#include <sstream>

namespace {

using nlohmann::json;
using Lineas = std::vector<std::string>;

const Lineas Klein = {"--tipo", "anual:1920:1941", "--importar", "klein.csv", "--procesar", "klein.txt"};

Lineas Mas(Lineas a, const Lineas &b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

// Output of a command of the shell.
std::string Orden(const std::string &orden) {
    std::string r;
    std::FILE *f = popen((orden + " 2>&1").c_str(), "r");
    std::array<char, 4096> trozo{};
    for (std::size_t n = 0; f != nullptr && (n = std::fread(trozo.data(), 1, trozo.size(), f)) > 0;)
        r.append(trozo.data(), n);
    if (f != nullptr) pclose(f);
    return r;
}

std::string SinBlancosAlFinal(std::string t) {
    t.erase(t.find_last_not_of(" \f\r") + 1);
    return t;
}

// The lines of a document, one vector a page. A character takes 31 of 300 points an inch: 7.44 of 72.
std::vector<Lineas> PaginasDePdf(const std::string &ruta) {
    std::istringstream texto(Orden("pdftotext -fixed 7.44 '" + ruta + "' -"));
    std::vector<Lineas> paginas(1);
    for (std::string linea; std::getline(texto, linea);) {
        if (!linea.empty() && linea[0] == '\f') {
            paginas.emplace_back();
            linea.erase(0, 1);
        }
        if (linea = SinBlancosAlFinal(linea); !linea.empty()) paginas.back().push_back(linea);
    }
    if (paginas.back().empty()) paginas.pop_back();
    return paginas;
}

// Every line that isn't blank, in order, without the margin that all have in common.
Lineas SinMargen(Lineas lineas) {
    std::erase_if(lineas, [](const std::string &l) { return l.find_first_not_of(' ') == std::string::npos; });
    std::size_t margen = std::string::npos;
    for (const std::string &l : lineas) margen = std::min(margen, l.find_first_not_of(' '));
    for (std::string &l : lineas) l.erase(0, margen);
    return lineas;
}

TEST(ImpresionLote, ElInformeEsTambienUnPdf) {
    const std::string pdf = CarpetaNueva("informe") + "/Informe de año.pdf";
    const auto r = Correr(Mas({"--json", "--imprimir", pdf, "--imprimir-salidas"}, Klein));
    EXPECT_EQ(r.estado, 0);
    EXPECT_EQ(r.errores, "");
    const auto sucesos = Sucesos(r);
    ASSERT_EQ(sucesos.size(), 5u) << r.salida;
    const json &salida = sucesos[1], &impresion = sucesos[3];
    EXPECT_EQ(salida["suceso"], "salida");
    EXPECT_EQ(impresion["suceso"], "impresion");
    EXPECT_EQ(impresion["documento"], "Imprime1: Imprimiendo");
    EXPECT_EQ(impresion["titulo"], "Mínimos cuadrados ordinarios");
    ASSERT_EQ(impresion["paginas"].size(), 1u);

    // On the page: the title, and the very lines of the window.
    Lineas impresas = {"Método: Mínimos cuadrados ordinarios"};
    for (const json &l : salida["lineas"]) impresas.push_back(l[1]);
    EXPECT_EQ(impresion["paginas"][0], json(impresas));

    // In the document: the same lines with their columns; the title is centred, so it is looked at by itself.
    const auto paginas = PaginasDePdf(pdf);
    ASSERT_EQ(paginas.size(), 1u);
    ASSERT_FALSE(paginas[0].empty());
    EXPECT_NE(paginas[0][0].find(impresas[0]), std::string::npos) << paginas[0][0];
    EXPECT_EQ(SinMargen({paginas[0].begin() + 1, paginas[0].end()}),
              SinMargen({impresas.begin() + 1, impresas.end()}));
    EXPECT_NE(Orden("pdftotext -layout '" + pdf + "' -").find("Nº Observaciones"), std::string::npos);

    // One font, and the document carries it.
    std::istringstream fuentes(Orden("pdffonts '" + pdf + "'"));
    Lineas filas;
    for (std::string l; std::getline(fuentes, l);) filas.push_back(l);
    ASSERT_EQ(filas.size(), 3u);
    EXPECT_NE(filas[2].find("Mono"), std::string::npos);
    EXPECT_NE(filas[2].find(" yes "), std::string::npos) << "embedded: " << filas[2];
    EXPECT_NE(Orden("pdfinfo '" + pdf + "'").find("(A4)"), std::string::npos);
    // Written beside and renamed: nothing else is left in the folder.
    const auto en = std::filesystem::directory_iterator(std::filesystem::path(pdf).parent_path());
    EXPECT_EQ(std::distance(begin(en), end(en)), 1);
}

TEST(ImpresionLote, SinDocumentoQuedanLosSucesos) {
    const std::string carpeta = CarpetaNueva("sin documento");
    const auto r = Correr(
        {"--json", "--tipo", "anual:1990:1991", "--sentencia", "SER X = TEND", "--listado", "series:X"},
        {.carpeta = carpeta, .entrada = {}, .variables = {}});
    EXPECT_EQ(r.estado, 0) << r.errores;
    ASSERT_EQ(SucesosDe(r, "impresion").size(), 1u) << r.salida;
    EXPECT_TRUE(std::filesystem::is_empty(carpeta));
}

TEST(ImpresionLote, ListadoDeSeries) {
    const auto r = Correr({"--json", "--tipo", "anual:1990:1992", "--sentencia", "SER X = TEND",
                           "--sentencia", "SER Y = X * 2", "--sentencia", "SER Z = X / 3", "--sentencia",
                           "SER V = X", "--decimales", "3", "--listado", "series:X,Y,Z,V"});
    EXPECT_EQ(r.estado, 0) << r.salida << r.errores;
    const auto impresiones = SucesosDe(r, "impresion");
    ASSERT_EQ(impresiones.size(), 1u);
    EXPECT_EQ(impresiones[0]["titulo"], "Listado de Series");
    EXPECT_EQ(impresiones[0]["paginas"],
              json::array({{"        Listado de Series                Página.:   1",
                            "  Período                   X               Y               Z",
                            "     1990                1.000           2.000           0.333",
                            "     1991                2.000           4.000           0.667",
                            "     1992                3.000           6.000           1.000",
                            "  Período                   V", "     1990                1.000",
                            "     1991                2.000", "     1992                3.000"}}));
}

TEST(ImpresionLote, ListadoDeMatricesYTexto) {
    const Lineas datos = {"--tipo",      "anual:1990:1991",     "--sentencia", "SER X = TEND",
                          "--sentencia", "MAT M = {X X X X X}", "--listado",   "matrices:M"};
    const auto r = Correr(Mas({"--json"}, datos));
    EXPECT_EQ(r.estado, 0) << r.salida << r.errores;
    const auto impresiones = SucesosDe(r, "impresion");
    ASSERT_EQ(impresiones.size(), 1u);
    const Lineas lineas = {"      Listado de Matrices                Página.:   1",
                           "  Nombre Matriz..: M                Nº Filas:   2 Nº Col.:   5",
                           "{           1.00            1.00            1.00            1.00",
                           "            1.00 }",
                           "{           2.00            2.00            2.00            2.00",
                           "            2.00 }"};
    EXPECT_EQ(impresiones[0]["paginas"], json::array({lineas}));
    // The same for people.
    std::string texto = "\nImpresión: Listado de Matrices, página 1\n";
    for (const std::string &l : lineas) texto += "  " + l + "\n";
    EXPECT_EQ(Correr(datos).salida, texto);
}

TEST(ImpresionLote, VariosTrabajosYDocumentos) {
    const std::string carpeta = CarpetaNueva("documentos");
    const auto r = Correr(Mas(Mas({"--json", "--imprimir", carpeta + "/a.pdf", "--imprimir-salidas"}, Klein),
                              {"--listado", "series:CONSUMO", "--imprimir", carpeta + "/b.pdf", "--listado",
                               "matrices:_BETA", "--imprimir", carpeta + "/c.pdf", "--imprimir",
                               carpeta + "/./a.pdf", "--listado", "matrices:_COV"}));
    EXPECT_EQ(r.estado, 0) << r.salida << r.errores;
    EXPECT_EQ(SucesosDe(r, "impresion").size(), 4u);
    const auto a = PaginasDePdf(carpeta + "/a.pdf"), b = PaginasDePdf(carpeta + "/b.pdf");
    ASSERT_EQ(a.size(), 3u) << "the jobs one behind the other, however the path is spelled";
    EXPECT_NE(a[0][0].find("Mínimos cuadrados ordinarios"), std::string::npos);
    EXPECT_NE(a[1][0].find("Listado de Series"), std::string::npos);
    EXPECT_NE(a[2][0].find("Listado de Matrices"), std::string::npos);
    ASSERT_EQ(b.size(), 1u);
    EXPECT_FALSE(std::filesystem::exists(carpeta + "/c.pdf")) << "nothing was printed to it";
}

TEST(ImpresionLote, MuchasPaginas) {
    const std::string pdf = CarpetaNueva("largo") + "/largo.pdf";
    const auto r = Correr({"--json", "--tipo", "sin", "--sentencia", "SER X = TEND", "--imprimir", pdf,
                           "--importar", "norris.csv", "--respuesta", "si", "--listado", "series:X,Y"});
    const auto impresiones = SucesosDe(r, "impresion");
    ASSERT_EQ(impresiones.size(), 1u) << r.salida << r.errores;
    const auto paginas = PaginasDePdf(pdf);
    ASSERT_EQ(paginas.size(), impresiones[0]["paginas"].size());
    for (std::size_t p = 0; p < paginas.size(); ++p)
        EXPECT_EQ(SinMargen(paginas[p]), SinMargen(impresiones[0]["paginas"][p].get<Lineas>()));
}

TEST(ImpresionLote, FallosYRechazos) {
    struct Caso {
        Lineas argumentos;
        Lineas cajas;
        std::string errores;
        std::size_t impresiones;
    };
    const Caso Casos[] = {
        {{"--listado", "series:X"}, {"Tipo de datos no válido"}, "", 0},
        {{"--tipo", "sin", "--listado", "series:"}, {"No existen series a listar"}, "", 1},
        {{"--tipo", "sin", "--listado", "matrices:"}, {"No existen matrices a listar"}, "", 1},
        {{"--tipo", "sin", "--listado", "series:PEÑA"},
         {"No existen series a listar"},
         "tabira-lote: no se puede listar 'PEÑA'\n",
         1},
        {{"--tipo", "anual:1990:1991", "--sentencia", "SER X = 1", "--listado", "series:X,Y"},
         {},
         "tabira-lote: no se puede listar 'Y'\n",
         1},
        {{"--tipo", "anual:1990:1991", "--sentencia", "SER X = 1", "--imprimir", "no_hay/x.pdf", "--listado",
          "series:X"},
         {},
         "tabira-lote: no se puede escribir 'no_hay/x.pdf'\n",
         1},
    };
    for (const Caso &caso : Casos) {
        SCOPED_TRACE(testing::PrintToString(caso.argumentos));
        const auto r = Correr(Mas({"--json"}, caso.argumentos));
        EXPECT_EQ(r.estado, 1) << r.salida;
        EXPECT_EQ(r.errores, caso.errores);
        Lineas cajas;
        for (const json &c : SucesosDe(r, "caja")) cajas.push_back(c["texto"]);
        EXPECT_EQ(cajas, caso.cajas);
        EXPECT_EQ(SucesosDe(r, "impresion").size(), caso.impresiones);
        EXPECT_EQ(Sucesos(r).back(), json({{"suceso", "fin"}, {"estado", 1}}));
    }
}

// What was printed before a failure reaches its document.
TEST(ImpresionLote, LoImpresoAntesDeUnFalloQueda) {
    const std::string pdf = CarpetaNueva("fallo") + "/x.pdf";
    const auto r = Correr({"--tipo", "anual:1990:1991", "--sentencia", "SER X = 1", "--imprimir", pdf,
                           "--listado", "series:X", "--sentencia", "SER X = (1"});
    EXPECT_EQ(r.estado, 1);
    EXPECT_EQ(PaginasDePdf(pdf).size(), 1u);
}

TEST(ImpresionLote, EnEspanolElPuntoDecimalQueda) {
    const std::string a = CarpetaNueva("c") + "/x.pdf", b = CarpetaNueva("es") + "/x.pdf";
    const auto correr = [](const std::string &pdf, const std::string &local) {
        return Correr(
            Mas(Mas({"--json", "--imprimir-salidas", "--imprimir", pdf}, Klein), {"--volcado"}),
            {.carpeta = {}, .entrada = {}, .variables = {{"LC_ALL", local}, {"LOCPATH", TABIRA_LOCPATH}}});
    };
    const auto enC = correr(a, "C"), enEspanol = correr(b, "es_ES.UTF-8");
    EXPECT_EQ(enC.errores, "");
    EXPECT_EQ(enEspanol.errores, "");
    EXPECT_EQ(enC.salida, enEspanol.salida);
    EXPECT_EQ(PaginasDePdf(a), PaginasDePdf(b));
}

struct CasoUltima {
    Lineas argumentos;
    Lineas lineas;
};

TEST(ImpresionLote, UltimaRegresion) {
    const Lineas callada = {"--json", "--respuesta", "no"};
    const CasoUltima Casos[] = {
        {{"--tipo", "anual:1990:1992"},
         {"Período inicial: 1990", "Período final  : 1990", "No se ha realizado ninguna regresión"}},
        {Klein, {"Período inicial: 1921", "Período final  : 1941", "CONSUMO  1  BENEF  BENEF(-1)  SALARIOS"}},
        // The dependent is no series any more.
        {Mas(Klein, {"--borrar", "serie:CONSUMO"}),
         {"Período inicial: 1921", "Período final  : 1941", "No se ha realizado ninguna regresión"}},
    };
    for (const CasoUltima &caso : Casos) {
        SCOPED_TRACE(testing::PrintToString(caso.argumentos));
        const auto r = Correr(Mas(Mas(callada, caso.argumentos), {"--ultima-regresion"}));
        EXPECT_EQ(r.estado, 0) << r.salida << r.errores;
        const auto salidas = SucesosDe(r, "salida");
        ASSERT_EQ(salidas.size(), 1u);
        json lineas = json::array();
        for (const std::string &l : caso.lineas) lineas.push_back({0, l});
        EXPECT_EQ(salidas[0], json({{"suceso", "salida"},
                                    {"ventana", "ultima-regresion"},
                                    {"titulo", "Última regresión"},
                                    {"lineas", lineas}}));
    }
}

} // namespace
