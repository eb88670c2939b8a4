// The chapters of the tutorial.
#include "shell/tutorial.h"

#include "platform/archivos.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <system_error>

namespace fs = std::filesystem;

namespace {

constexpr std::string_view MarcaDeTitulo = "# ";

bool EsCapitulo(const std::string &nombre) {
    return nombre.size() > 6 && std::isdigit(static_cast<unsigned char>(nombre[0])) != 0 &&
           std::isdigit(static_cast<unsigned char>(nombre[1])) != 0 && nombre[2] == '_' &&
           nombre.ends_with(".md");
}

std::vector<std::string> Ficheros(const std::string &carpeta) {
    std::vector<std::string> rutas;
    std::error_code error;
    for (fs::directory_iterator i(carpeta, error), fin; !error && i != fin; i.increment(error))
        if (EsCapitulo(i->path().filename().string())) rutas.push_back(i->path().string());
    std::sort(rutas.begin(), rutas.end());
    return rutas;
}

// The heading of the first level that the text begins with.
std::string Titulo(const std::string &texto) {
    if (!texto.starts_with(MarcaDeTitulo)) return {};
    return texto.substr(MarcaDeTitulo.size(), texto.find_first_of("\r\n") - MarcaDeTitulo.size());
}

std::string EnlaceDeTitulo(std::string_view titulo) {
    std::string r = "#";
    for (const char c : titulo) {
        if (c == ',') continue;
        r += c == ' ' ? '-' : c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    }
    return r;
}

} // namespace

std::vector<CapituloTutorial> LeerTutorial(const std::string &carpeta) {
    std::vector<CapituloTutorial> capitulos;
    for (const std::string &ruta : Ficheros(carpeta)) {
        CapituloTutorial c;
        if (!LeerArchivo(ruta, c.texto)) continue;
        c.titulo = Titulo(c.texto);
        if (!c.titulo.empty()) capitulos.push_back(std::move(c));
    }
    return capitulos;
}

int CapituloDeEnlace(const std::vector<CapituloTutorial> &capitulos, std::string_view enlace) {
    const auto c = std::find_if(capitulos.begin(), capitulos.end(), [&](const CapituloTutorial &capitulo) {
        return EnlaceDeTitulo(capitulo.titulo) == enlace;
    });
    return c != capitulos.end() ? static_cast<int>(c - capitulos.begin()) : -1;
}
