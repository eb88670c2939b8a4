// Whole files: read, and written beside the old one and renamed over it.
#include "platform/archivos.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdio>
#include <filesystem>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

// A folder of its own for each test, with accents and a blank in its name.
class Archivos : public testing::Test {
protected:
    void SetUp() override {
        carpeta = fs::temp_directory_path() / ("tabira año " + std::to_string(getpid()));
        fs::remove_all(carpeta);
        fs::create_directories(carpeta);
    }
    void TearDown() override { fs::remove_all(carpeta); }
    std::string Ruta(const char *nombre) const { return (carpeta / nombre).string(); }
    long Ficheros() const { return std::distance(fs::directory_iterator(carpeta), fs::directory_iterator()); }
    fs::path carpeta;
};

TEST_F(Archivos, SeLeeLoQueSeEscribe) {
    for (const std::string &contenido :
         {std::string(), std::string("a\0b\r\n\xF1", 6), std::string(200000, 'x')}) {
        ASSERT_TRUE(EscribirArchivo(Ruta("peñón.txt"), contenido));
        std::string leido = "antes";
        ASSERT_TRUE(LeerArchivo(Ruta("peñón.txt"), leido));
        EXPECT_EQ(leido, contenido);
        EXPECT_TRUE(ExisteArchivo(Ruta("peñón.txt")));
        EXPECT_EQ(Ficheros(), 1); // nothing is left beside it
    }
}

TEST_F(Archivos, LoQueNoSePuedeLeer) {
    std::string leido;
    EXPECT_FALSE(LeerArchivo(Ruta("no hay"), leido));
    EXPECT_FALSE(ExisteArchivo(Ruta("no hay")));
    EXPECT_FALSE(LeerArchivo(carpeta.string(), leido)); // a folder
    EXPECT_FALSE(LeerArchivo("", leido));
}

TEST_F(Archivos, LoQueNoSePuedeEscribirDejaLoQueHabia) {
    EXPECT_FALSE(EscribirArchivo(Ruta("no hay/x"), "a"));
    EXPECT_FALSE(EscribirArchivo(carpeta.string(), "a")); // a folder stands under the name
    EXPECT_EQ(Ficheros(), 0);
    EXPECT_FALSE(EscribirArchivo("", "a"));
}

// As long as a name can be: nothing is put behind it on the way.
TEST_F(Archivos, NombreMuyLargo) {
    for (const std::size_t largo : {245u, 255u}) {
        const std::string nombre(largo, 'x');
        EXPECT_TRUE(EscribirArchivo(Ruta(nombre.c_str()), "a")) << largo;
        EXPECT_TRUE(ExisteArchivo(Ruta(nombre.c_str())));
    }
    EXPECT_FALSE(EscribirArchivo(Ruta(std::string(256, 'x').c_str()), "a"));
    EXPECT_EQ(Ficheros(), 2);
}

// What a run that died left behind is neither used nor in the way.
TEST_F(Archivos, RestosDeOtraVez) {
    const std::string resto = Ruta((".tabira" + std::to_string(getpid()) + ".0.nuevo").c_str());
    std::FILE *f = std::fopen(resto.c_str(), "wb");
    ASSERT_NE(f, nullptr);
    std::fclose(f);
    EXPECT_TRUE(EscribirArchivo(Ruta("a"), "1"));
    EXPECT_TRUE(ExisteArchivo(resto));
    EXPECT_EQ(Ficheros(), 2);
}

TEST_F(Archivos, SeConservanPermisosYEnlaces) {
    ASSERT_TRUE(EscribirArchivo(Ruta("a"), "1"));
    fs::permissions(Ruta("a"), fs::perms::owner_read | fs::perms::owner_write);
    fs::create_symlink("a", Ruta("enlace"));
    ASSERT_TRUE(EscribirArchivo(Ruta("enlace"), "2"));
    EXPECT_TRUE(fs::is_symlink(Ruta("enlace")));
    std::string leido;
    ASSERT_TRUE(LeerArchivo(Ruta("a"), leido));
    EXPECT_EQ(leido, "2");
    EXPECT_EQ(fs::status(Ruta("a")).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_EQ(Ficheros(), 2);
}

// Obstacles that only a process of its own can meet; each true when the process has met it.
bool SinPrivilegios() { // write permissions mean nothing to the superuser
    return geteuid() != 0 || setuid(65534) == 0;
}
bool SinSitio() { // a disk that fills up while the file is written
    const rlimit tope = {100, 100};
    return std::signal(SIGXFSZ, SIG_IGN) != SIG_ERR && setrlimit(RLIMIT_FSIZE, &tope) == 0;
}

struct CasoObstaculo {
    const char *nombre;
    bool (*poner)();
    fs::perms permisos; // of the file that stands there
};

constexpr CasoObstaculo Obstaculos[] = {
    {"protected", SinPrivilegios, fs::perms::owner_read | fs::perms::others_read},
    {"disk full", SinSitio, fs::perms::owner_read | fs::perms::owner_write},
};

TEST_F(Archivos, LoQueHabiaSeQuedaTrasUnFallo) {
    for (const CasoObstaculo &caso : Obstaculos) {
        SCOPED_TRACE(caso.nombre);
        ASSERT_TRUE(EscribirArchivo(Ruta("a"), "1"));
        fs::permissions(Ruta("a"), caso.permisos);
        fs::permissions(carpeta, fs::perms::all);
        const pid_t hijo = fork();
        if (hijo == 0) {
            if (!caso.poner()) _exit(2);
            _exit(EscribirArchivo(Ruta("a"), std::string(200000, '2')) ? 1 : 0);
        }
        int estado = -1;
        waitpid(hijo, &estado, 0);
        EXPECT_EQ(estado, 0);
        std::string leido;
        ASSERT_TRUE(LeerArchivo(Ruta("a"), leido));
        EXPECT_EQ(leido, "1");
        EXPECT_EQ(Ficheros(), 1) << "nothing is left beside it";
        fs::remove(Ruta("a"));
    }
}

TEST_F(Archivos, UnDispositivoLleno) {
    EXPECT_FALSE(EscribirArchivo("/dev/full", "a"));
    EXPECT_TRUE(fs::is_character_file("/dev/full"));
}

TEST_F(Archivos, UnDispositivoSinFin) {
    std::string leido;
    EXPECT_FALSE(LeerArchivo("/dev/zero", leido));
    EXPECT_LE(leido.size(), MaxBytesArchivo);
}

TEST_F(Archivos, UnDispositivoSeEscribeEnSuSitio) {
    EXPECT_TRUE(EscribirArchivo("/dev/null", "a"));
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
}

TEST_F(Archivos, HastaUnMaximoPropio) {
    ASSERT_TRUE(EscribirArchivo(Ruta("a"), std::string(1000, 'x')));
    std::string leido;
    EXPECT_TRUE(LeerArchivo(Ruta("a"), leido, 1000));
    EXPECT_EQ(leido.size(), 1000u);
    EXPECT_FALSE(LeerArchivo(Ruta("a"), leido, 999));
    EXPECT_FALSE(LeerArchivo("/dev/zero", leido, 100000));
}

TEST(Rutas, Partes) {
    struct {
        const char *ruta, *nombre, *carpeta;
    } const casos[] = {
        {"/casa/klein.TR2", "klein", "/casa"},
        {"klein", "klein", ""},
        {"a/b.c.TR2", "b.c", "a"},
        {"/klein.TR2", "klein", "/"},
        {"/a.b/c", "c", "/a.b"},
        {"/x/.TR2", ".TR2", "/x"},
        {"/x/pe\xC3\xB1\xC3\xB3n.tr2", "pe\xF1\xF3n", "/x"},
        {"/x/\xE6\x97\xA5.tr2", "?", "/x"},
        {"", "", ""},
    };
    for (const auto &c : casos) {
        EXPECT_EQ(NombreDeRuta(c.ruta), c.nombre);
        EXPECT_EQ(CarpetaDeRuta(c.ruta), c.carpeta);
    }
    EXPECT_EQ(RutaJunto("/casa/klein.TR2", "otro.TR2"), "/casa/otro.TR2");
    EXPECT_EQ(RutaJunto("klein.TR2", "otro.TR2"), "otro.TR2");
    EXPECT_EQ(RutaJunto("/x/klein.TR2", "a\xF1o"), "/x/a\xC3\xB1o");
    for (const char *nombre : {"", ".", "..", "a/b", "/etc"}) EXPECT_EQ(RutaJunto("/x/y", nombre), "");
}

} // namespace
