// Where the program finds what comes with it.
#include "platform/datos_programa.h"

#include "apoyo/plataforma_prueba.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

TEST(DatosPrograma, InstaladoYCompilado) {
    const fs::path raiz =
        fs::canonical(fs::temp_directory_path()) / ("tabira datos " + std::to_string(getpid()));
    struct {
        const char *hay, *programa;
        DatosDelPrograma cuales;
        const char *carpeta; // null: none
    } const casos[] = {
        {"usr/share/tabira/ejemplos", "usr/bin", DatosDelPrograma::Ejemplos, "usr/share/tabira/ejemplos"},
        {"usr/share/tabira/tutorial", "usr/bin", DatosDelPrograma::Tutorial, "usr/share/tabira/tutorial"},
        {"usr/share/tabira/tutorial", "usr/bin", DatosDelPrograma::Ejemplos, nullptr},
        {"ejemplos", "build/entrega/src/shell", DatosDelPrograma::Ejemplos, "ejemplos"},
        {"docs/tutorial", "build/entrega/src/shell", DatosDelPrograma::Tutorial, "docs/tutorial"},
        {"ejemplos", "build/entrega/src/shell", DatosDelPrograma::Tutorial, nullptr},
        {"ejemplos", "bin", DatosDelPrograma::Ejemplos, nullptr},
    };
    for (const auto &c : casos) {
        SCOPED_TRACE(std::string(c.hay) + " " + c.programa);
        fs::create_directories(raiz / c.hay);
        fs::create_directories(raiz / c.programa);
        PonerCarpetaDelPrograma((raiz / c.programa).string());
        EXPECT_EQ(CarpetaDeDatos(c.cuales), c.carpeta != nullptr ? (raiz / c.carpeta).string() : "");
        fs::remove_all(raiz);
    }
    PonerCarpetaDelPrograma("");
}

// Where the sources have what a program that was built finds.
TEST(DatosPrograma, LasFuentes) {
    BuscarEnLasFuentes();
    EXPECT_TRUE(fs::exists(fs::path(CarpetaDeDatos(DatosDelPrograma::Ejemplos)) / "klein.csv"));
    EXPECT_TRUE(fs::exists(fs::path(CarpetaDeDatos(DatosDelPrograma::Tutorial)) / "01_datos.md"));
}

} // namespace
