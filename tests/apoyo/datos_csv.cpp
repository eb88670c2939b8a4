// Example data for the tests.
#include "apoyo/datos_csv.h"

#include "apoyo/plataforma_prueba.h"

#include <fstream>
#include <limits>
#include <sstream>

std::vector<ColumnaCsv> LeerCsv(std::string_view archivo) {
    std::ifstream entrada(std::string(TABIRA_DATOS "/") + std::string(archivo));
    std::vector<ColumnaCsv> columnas;
    std::string linea, campo;
    if (!std::getline(entrada, linea)) return columnas;
    std::istringstream cabecera(linea);
    while (std::getline(cabecera, campo, ',')) columnas.push_back({campo, {}});
    while (std::getline(entrada, linea)) {
        std::istringstream registro(linea);
        for (ColumnaCsv &c : columnas) {
            if (!std::getline(registro, campo, ',')) break;
            c.valores.push_back(campo == "---" ? std::numeric_limits<double>::quiet_NaN() : std::stod(campo));
        }
    }
    return columnas;
}

bool CargarCsv(std::string_view archivo) {
    const std::vector<ColumnaCsv> columnas = LeerCsv(archivo);
    for (const ColumnaCsv &c : columnas) PonerSerie(c.codigo, c.valores);
    return !columnas.empty();
}
