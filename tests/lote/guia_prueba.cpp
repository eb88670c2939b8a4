// What stands beside the program: manual pages, completion, and the examples that read its events and files. They name every
// action that the program has, and no other.
#include "lote/corrida.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <regex>
#include <set>

namespace {

using Nombres = std::set<std::string>;

const std::string Fuentes = TABIRA_FUENTES;

Nombres Encontrados(const std::string &texto, const std::regex &forma) {
    Nombres n;
    for (std::sregex_iterator i(texto.begin(), texto.end(), forma), fin; i != fin; ++i) n.insert((*i)[1]);
    return n;
}

// The actions, as the usage lists them.
Nombres Acciones() {
    return Encontrados(Correr({"--ayuda"}).salida, std::regex("\n  (-[-a-z]+)"));
}

// Runs a command of the shell, "%s" the batch runner; its standard output.
std::string Orden(std::string orden) {
    if (const std::size_t i = orden.find("%s"); i != std::string::npos) orden.replace(i, 2, TABIRA_LOTE);
    const std::string carpeta = CarpetaNueva("orden");
    EXPECT_EQ(std::system((orden + " > '" + carpeta + "/salida' 2>&1").c_str()), 0)
        << LeerBytes(carpeta + "/salida");
    return LeerBytes(carpeta + "/salida");
}

bool Hay(const char *programa) {
    return std::system((std::string("command -v ") + programa + " >/dev/null 2>&1").c_str()) == 0;
}

} // namespace

TEST(Guia, ElManualTieneCadaAccion) {
    std::string manual = LeerBytes(Fuentes + "/docs/man/tabira-lote.1");
    manual = std::regex_replace(manual, std::regex(R"(\\-)"), "-");
    EXPECT_EQ(Encontrados(manual, std::regex("\n\\.TP\n\\.BI? (-[-a-z]+)")), Acciones());
}

TEST(Guia, ElManualSeLee) {
    if (!Hay("man") || !Hay("groff")) GTEST_SKIP() << "no man";
    for (const char *pagina : {"tabira.1", "tabira-lote.1"})
        EXPECT_EQ(Orden("(LC_ALL=C.UTF-8 MANWIDTH=100 man --warnings -E UTF-8 -l -Tutf8 -Z '" + Fuentes +
                        "/docs/man/" + pagina + "' 2>&1 >/dev/null)"),
                  "");
}

TEST(Guia, SeCompleta) {
    if (!Hay("bash")) GTEST_SKIP() << "no bash";
    const auto completar = [](const std::string &palabras, const char *cual) {
        return Orden("bash -c '. \"" + Fuentes +
                     "/src/lote/recursos/tabira-lote.bash\"; COMP_WORDS=(tabira-lote " + palabras +
                     "); COMP_CWORD=" + cual + "; _tabira_lote; echo \"${COMPREPLY[@]}\"'");
    };
    EXPECT_EQ(completar("--ti", "1"), "--tipo\n");
    EXPECT_EQ(completar("--respuesta c", "2"), "cancelar\n");
    EXPECT_EQ(completar("--ayuda for", "2"), "formato\n");
    EXPECT_EQ(completar("--json \"\"", "2").rfind("--ayuda ", 0), 0u);
    EXPECT_EQ(Encontrados(completar("-", "1"), std::regex("(-[-a-z]+)")), Acciones());
}

TEST(Guia, LosEjemplosDePython) {
    if (!Hay("python3")) GTEST_SKIP() << "no python3";
    const std::string salida = Orden("python3 '" + Fuentes + "/ejemplos/sucesos.py' %s");
    EXPECT_EQ(salida.substr(0, salida.find('\n')), "CONSUMO, 21 observaciones");
    EXPECT_NE(salida.find("BENEF(-1)      0.0899      0.0906"), std::string::npos) << salida;
    const std::string fichero = CarpetaNueva("python") + "/k.TR2";
    ASSERT_EQ(Correr({"--tipo", "anual:1920:1941", "--importar", "klein.csv", "--procesar", "klein.txt",
                      "--guardar", fichero})
                  .estado,
              0);
    const std::string trabajo = Orden("python3 '" + Fuentes + "/ejemplos/trabajo.py' '" + fichero + "'");
    EXPECT_NE(trabajo.find("Series: CONSUMO BENEF SALPRIV"), std::string::npos) << trabajo;
    EXPECT_NE(trabajo.find("Períodos: 1920 a 1941"), std::string::npos) << trabajo;
    EXPECT_NE(trabajo.find("_BETA: 4 x 1, primer elemento 16.2366"), std::string::npos) << trabajo;
}

TEST(Guia, ElEjemploDeR) {
    if (!Hay("Rscript") || std::system("Rscript -e 'library(jsonlite)' >/dev/null 2>&1") != 0)
        GTEST_SKIP() << "no R, or no jsonlite";
    const std::string salida = Orden("cd '" + Fuentes + "/ejemplos' && Rscript sucesos.R %s");
    EXPECT_NE(salida.find("BENEF(-1)      0.0899      0.0906"), std::string::npos) << salida;
}
