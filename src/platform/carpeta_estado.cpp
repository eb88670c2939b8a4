// The folder of state, over the file system.
#include "platform/carpeta_estado.h"

#include <algorithm>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <sys/file.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace fs = std::filesystem;

std::string CarpetaDeEstado() {
    const char *estado = std::getenv("XDG_STATE_HOME");
    const char *casa = std::getenv("HOME");
    fs::path carpeta;
    // A relative path there counts as none.
    if (estado != nullptr && *estado == '/') {
        carpeta = estado;
    } else if (casa != nullptr && *casa == '/') {
        carpeta = fs::path(casa) / ".local" / "state";
    } else {
        return {};
    }
    carpeta /= "tabira";
    std::error_code error;
    fs::create_directories(carpeta, error);
    return fs::is_directory(carpeta, error) ? carpeta.string() : std::string();
}

std::vector<std::string> ArchivosConTerminacion(const std::string &carpeta, std::string_view terminacion,
                                                std::string_view otra) {
    std::vector<std::pair<fs::file_time_type, std::string>> hallados;
    std::error_code error;
    for (fs::directory_iterator i(carpeta, error), fin; !error && i != fin; i.increment(error)) {
        std::error_code deEste;
        const auto fecha = i->last_write_time(deEste);
        const std::string suya = i->path().extension().string();
        if ((suya == terminacion || (!otra.empty() && suya == otra)) && i->is_regular_file(deEste) && !deEste)
            hallados.emplace_back(fecha, i->path().string());
    }
    std::sort(hallados.rbegin(), hallados.rend());
    std::vector<std::string> rutas;
    for (auto &[fecha, ruta] : hallados) rutas.push_back(std::move(ruta));
    return rutas;
}

std::string RutaDeProceso(const std::string &carpeta, const std::string &nombre, int cual) {
    std::string propio = nombre + "-" + std::to_string(getpid());
    if (cual > 0) propio += "-" + std::to_string(cual);
    return (fs::path(carpeta) / propio).string();
}

int TomarCerrojo(const std::string &ruta) {
    const int cerrojo = open(ruta.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    if (cerrojo < 0) return -1;
    if (flock(cerrojo, LOCK_EX | LOCK_NB) == 0) return cerrojo;
    close(cerrojo);
    return -1;
}

void SoltarCerrojo(int cerrojo, const std::string &ruta) {
    if (cerrojo < 0) return;
    unlink(ruta.c_str());
    close(cerrojo);
}

bool MoverArchivo(const std::string &ruta, const std::string &destino) {
    std::error_code error;
    fs::rename(ruta, destino, error);
    return !error;
}

void BorrarArchivo(const std::string &ruta) {
    std::error_code error;
    fs::remove(ruta, error);
}
