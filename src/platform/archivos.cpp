// Reading and writing whole files.
#include "platform/archivos.h"

#include "platform/texto.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <memory>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace {

struct CerrarAlSalir {
    void operator()(std::FILE *f) const { std::fclose(f); }
};
using Flujo = std::unique_ptr<std::FILE, CerrarAlSalir>;

bool LeerTodo(std::FILE *f, std::string &contenido, std::size_t maximo) {
    contenido.clear();
    // A hint only: a pipe has no size, and a file may grow.
    struct stat estado {};
    if (fstat(fileno(f), &estado) == 0 && estado.st_size > 0)
        contenido.reserve(std::min(static_cast<std::size_t>(estado.st_size), maximo));
    char trozo[65536];
    std::size_t n = 0;
    while ((n = std::fread(trozo, 1, sizeof trozo, f)) > 0) {
        if (contenido.size() + n > maximo) return false;
        contenido.append(trozo, n);
    }
    return std::ferror(f) == 0;
}

} // namespace

bool LeerArchivo(const std::string &ruta, std::string &contenido, std::size_t maximo) {
    const Flujo f(std::fopen(ruta.c_str(), "rb"));
    return f != nullptr && LeerTodo(f.get(), contenido, maximo);
}

bool LeerEntradaEstandar(std::string &contenido) {
    return LeerTodo(stdin, contenido, MaxBytesArchivo);
}

namespace {

// A new file beside `destino`, under a short name that nobody has: one made from its own might be too long for the
// folder. Null when none can be made there.
std::FILE *AbrirJunto(const std::filesystem::path &destino, std::string &nombre) {
    constexpr int Intentos = 100;
    std::FILE *f = nullptr;
    for (int i = 0; i < Intentos && f == nullptr; ++i) {
        nombre = destino.parent_path() /
                 (".tabira" + std::to_string(getpid()) + "." + std::to_string(i) + ".nuevo");
        f = std::fopen(nombre.c_str(), "wbx");
        if (f == nullptr && errno != EEXIST) break;
    }
    return f;
}

// Makes a rename in the folder outlive a loss of power. Where folders can't be synced the file is as safe as it gets.
void SincronizarCarpeta(const std::filesystem::path &carpeta) {
    const int f = open(carpeta.empty() ? "." : carpeta.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (f < 0) return;
    fsync(f);
    close(f);
}

} // namespace

bool EscribirArchivo(const std::string &ruta, std::string_view contenido) {
    std::error_code error;
    // What stands under the name keeps its name: a link is followed, and a device or a pipe is written in place.
    std::filesystem::path destino = std::filesystem::weakly_canonical(ruta, error);
    if (error) destino = ruta;
    const bool especial =
        std::filesystem::exists(destino, error) && !std::filesystem::is_regular_file(destino, error);
    // A rename would replace a file that is protected against writing, too.
    if (std::filesystem::exists(destino, error) && access(destino.c_str(), W_OK) != 0) return false;
    std::string nuevo;
    std::FILE *f = especial ? std::fopen(destino.c_str(), "wb") : AbrirJunto(destino, nuevo);
    if (f == nullptr) return false;
    bool bien = std::fwrite(contenido.data(), 1, contenido.size(), f) == contenido.size();
    if (!especial) bien = std::fflush(f) == 0 && fsync(fileno(f)) == 0 && bien;
    bien = std::fclose(f) == 0 && bien;
    if (especial) return bien;
    if (bien) {
        const auto permisos = std::filesystem::status(destino, error).permissions();
        if (!error && permisos != std::filesystem::perms::unknown)
            std::filesystem::permissions(nuevo, permisos, error);
        std::filesystem::rename(nuevo, destino, error);
        bien = !error;
        if (bien) SincronizarCarpeta(destino.parent_path());
    }
    if (!bien) std::filesystem::remove(nuevo, error);
    return bien;
}

bool ExisteArchivo(const std::string &ruta) {
    std::error_code error;
    return std::filesystem::exists(ruta, error);
}

std::string NombreDeRuta(const std::string &ruta) {
    return Texto1252DeUtf8(std::filesystem::path(ruta).stem().string());
}

std::string CarpetaDeRuta(const std::string &ruta) {
    return std::filesystem::path(ruta).parent_path().string();
}

std::string RutaJunto(const std::string &ruta, std::string_view nombre) {
    if (nombre.empty() || nombre == "." || nombre == ".." || nombre.find('/') != std::string_view::npos)
        return {};
    return (std::filesystem::path(ruta).parent_path() / Utf8De1252(nombre)).string();
}
