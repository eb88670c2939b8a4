// The folder of state, its files and locks.
#include "platform/carpeta_estado.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <sys/wait.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

class CarpetaEstado : public testing::Test {
protected:
    void SetUp() override {
        carpeta = fs::temp_directory_path() / ("tabira estado " + std::to_string(getpid()));
        fs::remove_all(carpeta);
        fs::create_directories(carpeta);
    }
    void TearDown() override {
        fs::remove_all(carpeta);
        if (casa.empty())
            unsetenv("HOME");
        else
            setenv("HOME", casa.c_str(), 1);
        unsetenv("XDG_STATE_HOME");
    }
    std::string Ruta(const std::string &nombre) const { return (carpeta / nombre).string(); }
    void Poner(const std::string &nombre) const {
        std::FILE *f = std::fopen(Ruta(nombre).c_str(), "w");
        ASSERT_NE(f, nullptr);
        std::fclose(f);
    }
    fs::path carpeta;
    const std::string casa = std::getenv("HOME") != nullptr ? std::getenv("HOME") : "";
};

TEST_F(CarpetaEstado, DondeEsta) {
    setenv("HOME", Ruta("casa").c_str(), 1);
    setenv("XDG_STATE_HOME", Ruta("estado").c_str(), 1);
    EXPECT_EQ(CarpetaDeEstado(), Ruta("estado/tabira"));
    EXPECT_TRUE(fs::is_directory(Ruta("estado/tabira"))); // it was made
    for (const char *otra : {"", "relativa"}) {
        setenv("XDG_STATE_HOME", otra, 1);
        EXPECT_EQ(CarpetaDeEstado(), Ruta("casa/.local/state/tabira"));
    }
    unsetenv("XDG_STATE_HOME");
    EXPECT_EQ(CarpetaDeEstado(), Ruta("casa/.local/state/tabira"));
    unsetenv("HOME");
    EXPECT_EQ(CarpetaDeEstado(), "");
    Poner("fichero");
    setenv("HOME", Ruta("fichero").c_str(), 1);
    EXPECT_EQ(CarpetaDeEstado(), "");
}

TEST_F(CarpetaEstado, LosDeUnaTerminacionElMasRecientePrimero) {
    for (const char *nombre : {"a.TR2", "b.TR2", "c.tr2", "TR2", "d.TR2.otro"}) Poner(nombre);
    fs::create_directory(Ruta("e.TR2"));
    const auto ahora = fs::last_write_time(Ruta("a.TR2"));
    fs::last_write_time(Ruta("b.TR2"), ahora + std::chrono::seconds(5));
    EXPECT_EQ(ArchivosConTerminacion(carpeta.string(), ".TR2"),
              (std::vector<std::string>{Ruta("b.TR2"), Ruta("a.TR2")}));
    fs::last_write_time(Ruta("a.TR2"), ahora + std::chrono::seconds(9));
    EXPECT_EQ(ArchivosConTerminacion(carpeta.string(), ".TR2"),
              (std::vector<std::string>{Ruta("a.TR2"), Ruta("b.TR2")}));
    EXPECT_TRUE(ArchivosConTerminacion(Ruta("no hay"), ".TR2").empty());
}

TEST_F(CarpetaEstado, RutasDelProceso) {
    const std::string numero = std::to_string(getpid());
    EXPECT_EQ(RutaDeProceso("/x", "copia", 0), "/x/copia-" + numero);
    EXPECT_EQ(RutaDeProceso("/x", "copia", 2), "/x/copia-" + numero + "-2");
}

TEST_F(CarpetaEstado, UnCerrojoEsDeUnoSolo) {
    const std::string ruta = Ruta("a.cerrojo");
    const int primero = TomarCerrojo(ruta);
    ASSERT_GE(primero, 0);
    EXPECT_EQ(TomarCerrojo(ruta), -1);
    SoltarCerrojo(primero, ruta);
    EXPECT_FALSE(fs::exists(ruta));
    const int segundo = TomarCerrojo(ruta);
    EXPECT_GE(segundo, 0);
    SoltarCerrojo(segundo, ruta);
    SoltarCerrojo(-1, ruta);
    EXPECT_EQ(TomarCerrojo(Ruta("no hay/a")), -1);
}

TEST_F(CarpetaEstado, ElCerrojoAcabaConSuProceso) {
    const std::string ruta = Ruta("a.cerrojo");
    const pid_t hijo = fork();
    if (hijo == 0) _exit(TomarCerrojo(ruta) >= 0 ? 0 : 1);
    int estado = 0;
    waitpid(hijo, &estado, 0);
    EXPECT_TRUE(WIFEXITED(estado) && WEXITSTATUS(estado) == 0);
    EXPECT_TRUE(fs::exists(ruta));
    const int propio = TomarCerrojo(ruta);
    EXPECT_GE(propio, 0);
    SoltarCerrojo(propio, ruta);
}

TEST_F(CarpetaEstado, MoverYBorrar) {
    Poner("a");
    EXPECT_TRUE(MoverArchivo(Ruta("a"), Ruta("b")));
    EXPECT_TRUE(fs::exists(Ruta("b")));
    EXPECT_FALSE(MoverArchivo(Ruta("a"), Ruta("c")));
    BorrarArchivo(Ruta("b"));
    BorrarArchivo(Ruta("b")); // that it isn't there is no failure
    EXPECT_TRUE(fs::is_empty(carpeta));
}

} // namespace
