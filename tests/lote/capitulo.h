// The chapters of the tutorial, as files and as actions of tabira-lote.
#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

// A fenced block: ```{.clase nombre="valor" ...}
struct Bloque {
    std::string clase; // tabira: statements; menu: what to choose; resultado: what the program says
    std::map<std::string, std::string> atributos;
    std::vector<std::string> lineas;
    int linea = 0; // of the fence, from 1

    std::string Atributo(const std::string &nombre) const {
        const auto i = atributos.find(nombre);
        return i == atributos.end() ? "" : i->second;
    }
    bool SeEjecuta() const { return clase != "resultado"; }
};

struct Capitulo {
    std::vector<Bloque> bloques;
    std::vector<std::pair<int, std::string>> prosa; // number of the line and text, outside the blocks
};

std::string RutaDeCapitulo(const std::string &fichero);

Capitulo LeerCapitulo(const std::string &fichero);

// What runs the blocks of a chapter, one behind the other: events as JSON, and a dump of the store behind each block.
std::vector<std::string> AccionesDeCapitulo(const Capitulo &capitulo);
