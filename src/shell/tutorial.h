// The tutorial that comes with the program: its chapters, and the links between them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

// Texts are UTF-8: the chapters have signs that Windows-1252 lacks.
struct CapituloTutorial {
    std::string titulo; // of its first heading
    std::string texto;  // Markdown, as its file has it
};

// The chapters of a folder (NN_name.md), in the order of their names. None for a folder that isn't there or holds none; a file
// that can't be read, or has no heading of the first level, is none.
std::vector<CapituloTutorial> LeerTutorial(const std::string &carpeta);

// The chapter, from 0, to which a link of the text goes: "#" and the title in lower case without its commas, the blanks
// written as hyphens. -1 for any other link.
int CapituloDeEnlace(const std::vector<CapituloTutorial> &capitulos, std::string_view enlace);
