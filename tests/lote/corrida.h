// Runs tabira-lote as its users do, in a process of its own.
#pragma once

#include <nlohmann/json.hpp>

#include <string>
#include <utility>
#include <vector>

struct ResultadoCorrida {
    int estado;          // exit status, or -1 when the process was killed
    std::string salida;  // standard output
    std::string errores; // standard error
};

struct EntornoCorrida {
    std::string carpeta; // working folder; empty: that of the example files
    std::string entrada; // standard input
    std::vector<std::pair<std::string, std::string>> variables = {}; // added to the environment
};

ResultadoCorrida Correr(const std::vector<std::string> &argumentos, const EntornoCorrida &entorno = {});

// The events of a run with --json, one a line.
std::vector<nlohmann::json> Sucesos(const ResultadoCorrida &corrida);

// The events of one kind.
std::vector<nlohmann::json> SucesosDe(const ResultadoCorrida &corrida, const std::string &suceso);

// A new folder for the files of a test, without hyphens in its path, which the ASCII exchange refuses. It is removed when
// the tests end.
std::string CarpetaNueva(const std::string &nombre);

void EscribirBytes(const std::string &ruta, const std::string &bytes);
std::string LeerBytes(const std::string &ruta);
