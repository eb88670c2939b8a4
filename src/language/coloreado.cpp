// The parts of a statement's text.
#include "language/coloreado.h"

#include "language/bloques.h"
#include "language/palabras.h"
#include "platform/campos_texto.h"
#include "platform/numeros.h"
#include "platform/texto.h"
#include "store/archivo.h"

#include <algorithm>
#include <array>
#include <string>

namespace {

// The words that belong to a statement beside its first one.
struct OpcionesDePalabra {
    std::string_view palabra;
    std::array<std::string_view, 6> opciones;
};

constexpr OpcionesDePalabra Opciones[] = {
    {"SER", {"FICTIC"}},
    {"REPITE", {"DESDE", "HASTA", "SALTA", "TRIMESTRAL", "MENSUAL"}},
    {"MIENTRAS", {"ENTONCES", "ENUM"}},
    {"SI", {"ENTONCES"}},
    {"VSR", {"SI", "NO"}},
    {"MC", {"CN", "CH", "CA"}},
    {"CGQ", {"RA"}},
    {"CHN", {"IR", "MR", "FR", "BETA"}},
    {"CWH", {"RA", "PC"}},
    {"GRAF", {"INTERX", "INTERY", "MINX", "MAXX", "MINY", "MAXY"}},
};

constexpr std::string_view Objetivos[] = {"SER", "ESC", "MAT", "REPITE"};
constexpr std::string_view Logicos[] = {"AND", "OR",
                                        "ENUM"}; // ENUM stands for a code of the list of its loop

bool EsDeNombre(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' || c == '.' || c == '^';
}

template <class Lista> bool Esta(const Lista &lista, std::string_view palabra) {
    return std::find(std::begin(lista), std::end(lista), palabra) != std::end(lista);
}

bool EsPalabra(std::string_view palabra) {
    return EsPalabraDeControl(palabra) || std::any_of(Palabras.begin(), Palabras.end(),
                                                      [=](const Palabra &p) { return p.palabra == palabra; });
}

bool EsOpcion(std::string_view primera, std::string_view palabra) {
    return std::any_of(std::begin(Opciones), std::end(Opciones), [=](const OpcionesDePalabra &o) {
        return o.palabra == primera && Esta(o.opciones, palabra);
    });
}

bool Existe(std::string_view nombre) {
    return BuscarSerie(nombre) >= 0 || BuscarMatriz(nombre) >= 0 || BuscarEscalar(nombre) >= 0;
}

// A name behind the first word; `segunda` when it is the one next to it.
ClasesDeTrozo ClaseDeNombre(std::string_view nombre, std::string_view primera, bool segunda) {
    if (EsOpcion(primera, nombre) || Esta(Logicos, nombre)) return TrozoPalabra;
    if (EsNumero(nombre)) return TrozoNumero;
    if (EsFuncionSerie(nombre) || EsFuncionMatriz(nombre)) return TrozoFuncion;
    if (Existe(nombre)) return TrozoCodigo;
    return segunda && Esta(Objetivos, primera) ? TrozoObjetivo : TrozoSinCodigo;
}

} // namespace

std::vector<Trozo> TrozosDeLinea(std::string_view linea) {
    std::vector<Trozo> trozos;
    std::string texto(linea);
    PonerEnMayusculas(texto);
    std::string_view primera;
    int nombres = 0;
    const std::size_t fin = std::min(texto.find(';'), texto.size());
    for (std::size_t i = 0; i < fin;) {
        if (!EsDeNombre(texto[i])) {
            ++i;
            continue;
        }
        const std::size_t inicio = i;
        while (i < fin && EsDeNombre(texto[i])) ++i;
        const std::string_view nombre = std::string_view(texto).substr(inicio, i - inicio);
        ClasesDeTrozo clase = TrozoAjeno;
        if (++nombres == 1) {
            primera = nombre;
            if (EsPalabra(nombre)) clase = TrozoPalabra;
        } else {
            clase = ClaseDeNombre(nombre, primera, nombres == 2);
        }
        trozos.push_back({static_cast<int>(inicio), static_cast<int>(i - inicio), clase});
    }
    if (fin < texto.size())
        trozos.push_back({static_cast<int>(fin), static_cast<int>(texto.size() - fin), TrozoComentario});
    return trozos;
}

int Pareja(std::string_view linea, int posicion) {
    constexpr std::string_view Abren = "([{", Cierran = ")]}";
    linea = linea.substr(0, linea.find(';'));
    if (posicion < 0 || posicion >= static_cast<int>(linea.size())) return -1;
    const char c = linea[static_cast<std::size_t>(posicion)];
    const std::size_t abre = Abren.find(c), cierra = Cierran.find(c);
    if (abre == std::string_view::npos && cierra == std::string_view::npos) return -1;
    const bool adelante = abre != std::string_view::npos;
    const char otra = adelante ? Cierran[abre] : Abren[cierra];
    const int paso = adelante ? 1 : -1;
    int abiertos = 0;
    for (int i = posicion; i >= 0 && i < static_cast<int>(linea.size()); i += paso) {
        const char d = linea[static_cast<std::size_t>(i)];
        if (d == c) ++abiertos;
        if (d == otra && --abiertos == 0) return i;
    }
    return -1;
}
