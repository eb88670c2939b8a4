// Running tabira-lote.
#include "lote/corrida.h"

#include <array>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <sys/wait.h>
#include <unistd.h>

ResultadoCorrida Correr(const std::vector<std::string> &argumentos, const EntornoCorrida &entorno) {
    const std::string carpeta = CarpetaNueva("corrida");
    EscribirBytes(carpeta + "/entrada", entorno.entrada);
    const pid_t hijo = fork();
    if (hijo == 0) {
        const auto abrir = [&](const char *nombre, int descriptor, int modo) {
            const int f = open((carpeta + "/" + nombre).c_str(), modo, 0600);
            if (f < 0 || dup2(f, descriptor) < 0) _exit(126);
        };
        abrir("entrada", STDIN_FILENO, O_RDONLY);
        abrir("salida", STDOUT_FILENO, O_WRONLY | O_CREAT);
        abrir("errores", STDERR_FILENO, O_WRONLY | O_CREAT);
        if (chdir((entorno.carpeta.empty() ? std::string(TABIRA_DATOS) : entorno.carpeta).c_str()) != 0)
            _exit(126);
        for (const auto &[nombre, valor] : entorno.variables) setenv(nombre.c_str(), valor.c_str(), 1);
        std::vector<char *> lista = {const_cast<char *>(TABIRA_LOTE)};
        for (const std::string &a : argumentos) lista.push_back(const_cast<char *>(a.c_str()));
        lista.push_back(nullptr);
        execv(TABIRA_LOTE, lista.data());
        _exit(127);
    }
    int estado = 0;
    waitpid(hijo, &estado, 0);
    ResultadoCorrida r;
    r.estado = WIFEXITED(estado) ? WEXITSTATUS(estado) : -1;
    r.salida = LeerBytes(carpeta + "/salida");
    r.errores = LeerBytes(carpeta + "/errores");
    std::filesystem::remove_all(std::filesystem::path(carpeta).parent_path());
    return r;
}

std::vector<nlohmann::json> Sucesos(const ResultadoCorrida &corrida) {
    std::vector<nlohmann::json> r;
    std::istringstream lineas(corrida.salida);
    for (std::string linea; std::getline(lineas, linea);) r.push_back(nlohmann::json::parse(linea));
    return r;
}

std::vector<nlohmann::json> SucesosDe(const ResultadoCorrida &corrida, const std::string &suceso) {
    std::vector<nlohmann::json> r;
    for (nlohmann::json &s : Sucesos(corrida))
        if (s["suceso"] == suceso) r.push_back(std::move(s));
    return r;
}

namespace {

// The folders of a run, which go with it.
struct Carpetas {
    std::vector<std::filesystem::path> rutas;
    ~Carpetas() {
        std::error_code error;
        for (const auto &r : rutas) std::filesystem::remove_all(r, error);
    }
};

} // namespace

std::string CarpetaNueva(const std::string &nombre) {
    static int cuenta = 0;
    static Carpetas carpetas;
    std::filesystem::path temporales = std::filesystem::temp_directory_path();
    if (temporales.string().find('-') != std::string::npos) temporales = "/tmp";
    const auto propia = temporales / ("tabira_" + std::to_string(getpid()) + "_" + std::to_string(++cuenta));
    std::filesystem::remove_all(propia); // of an earlier run that was cut off
    carpetas.rutas.push_back(propia);
    const auto ruta = propia / nombre;
    std::filesystem::create_directories(ruta);
    return ruta.string();
}

void EscribirBytes(const std::string &ruta, const std::string &bytes) {
    std::ofstream(ruta, std::ios::binary) << bytes;
}

std::string LeerBytes(const std::string &ruta) {
    std::ifstream f(ruta, std::ios::binary);
    return {std::istreambuf_iterator<char>(f), {}};
}
