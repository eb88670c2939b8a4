// The manual by its words: which page explains a word of the language, and where the pages mention a text.
#pragma once

#include "shell/ayuda.h"

#include <string>
#include <string_view>
#include <vector>

// Id of the page that explains a word of the language, in either case; 0 for any other. `primera` is the word that the
// statement begins with, where some options are explained.
int PaginaDePalabra(std::string_view palabra, std::string_view primera = {});

// The page for a place of the statement text (Windows-1252): that of the word around `posicion` or right before it, else that
// of the first word of its line, else the first page.
int PaginaDelLugar(std::string_view texto, int posicion);

// The pages to read one beside the other, in their order: those without a form of their own, each text once.
std::vector<const PaginaManual *> PaginasDelLector();

// The title of a page with its place in its chain: "Generación de series (2 de 7)". A page alone has its title.
std::string TituloConLugar(const PaginaManual &pagina);

// Offsets in a text (Windows-1252), or in TextoDePagina, of what is searched for, whatever its case and accents. None for an
// empty one.
std::vector<int> LugaresEnTexto(std::string_view texto, std::string_view buscado);
std::vector<int> LugaresEnPagina(const PaginaManual &pagina, std::string_view buscado);
