// The chapters of the tutorial as the reader of the manual finds them.
#include "shell/tutorial.h"

#include "apoyo/plataforma_prueba.h"
#include "platform/datos_programa.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

struct Carpeta {
    fs::path ruta = fs::temp_directory_path() / ("tabira tutorial " + std::to_string(getpid()));
    Carpeta() { fs::create_directories(ruta); }
    ~Carpeta() { fs::remove_all(ruta); }
    void Poner(const char *nombre, const char *texto) const { std::ofstream(ruta / nombre) << texto; }
};

std::vector<std::string> Titulos(const std::string &carpeta) {
    std::vector<std::string> r;
    for (const CapituloTutorial &c : LeerTutorial(carpeta)) r.push_back(c.titulo);
    return r;
}

} // namespace

TEST(TutorialDelLector, LosCapitulosDeUnaCarpeta) {
    const Carpeta carpeta;
    EXPECT_TRUE(LeerTutorial(carpeta.ruta.string()).empty());
    EXPECT_TRUE(LeerTutorial((carpeta.ruta / "no hay").string()).empty());
    EXPECT_TRUE(LeerTutorial("").empty());
    carpeta.Poner("10_b.md", "# Décimo\n\nTexto.\n");
    carpeta.Poner("02_a.md", "# Una regresión, y más\r\n\r\nρ\r\n");
    carpeta.Poner("03_sin.md", "Sin título\n");
    carpeta.Poner("04_solo.md", "# Solo");
    carpeta.Poner("LEEME.md", "# Otro\n");
    carpeta.Poner("05_c.txt", "# Otro\n");
    EXPECT_EQ(Titulos(carpeta.ruta.string()),
              (std::vector<std::string>{"Una regresión, y más", "Solo", "Décimo"}));
    const auto capitulos = LeerTutorial(carpeta.ruta.string());
    EXPECT_EQ(capitulos[2].texto, "# Décimo\n\nTexto.\n");
    struct {
        const char *enlace;
        int cual;
    } const casos[] = {{"#una-regresión-y-más", 0},      {"#solo", 1}, {"#Solo", -1}, {"solo", -1}, {"", -1},
                       {"https://example.org/#solo", -1}};
    for (const auto &c : casos) EXPECT_EQ(CapituloDeEnlace(capitulos, c.enlace), c.cual) << c.enlace;
}

// All that the folder holds, and each link goes to a chapter.
TEST(TutorialDelLector, ElDelPrograma) {
    BuscarEnLasFuentes();
    const auto capitulos = LeerTutorial(CarpetaDeDatos(DatosDelPrograma::Tutorial));
    ASSERT_EQ(capitulos.size(), 11u);
    EXPECT_EQ(capitulos.front().titulo, "Los datos");
    EXPECT_EQ(capitulos.back().titulo, "Respuestas a los ejercicios");
    int enlaces = 0;
    for (const CapituloTutorial &c : capitulos)
        for (std::size_t i = 0; (i = c.texto.find("](#", i)) != std::string::npos; ++i, ++enlaces)
            EXPECT_GE(CapituloDeEnlace(capitulos, c.texto.substr(i + 2, c.texto.find(')', i) - i - 2)), 0)
                << c.titulo;
    EXPECT_GE(enlaces, 3);
}
