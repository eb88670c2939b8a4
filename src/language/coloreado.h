// The parts of a statement's text, for whoever shows it: words, comments, names that exist and names that don't.
#pragma once

#include <string_view>
#include <vector>

enum ClasesDeTrozo {
    TrozoPalabra, // the word of a statement or of control, or an option of it
    TrozoFuncion, // of series or matrices
    TrozoNumero,
    TrozoCodigo,     // a series, matrix, scalar or equation of the work file
    TrozoSinCodigo,  // a name that nothing bears
    TrozoObjetivo,   // the name that an assignment gives, or the counter of a loop: it need not exist
    TrozoComentario, // from ";" on
    TrozoAjeno       // a first word that the language doesn't know
};

// [desde, desde + largo) in the line.
struct Trozo {
    int desde, largo;
    ClasesDeTrozo clase;
};

// The parts of one line, in order; what is in none of them (blanks, operators, parentheses) has no colour. The line is in
// Windows-1252, in either case.
std::vector<Trozo> TrozosDeLinea(std::string_view linea);

// The place of the parenthesis, bracket or brace that belongs to the one at `posicion`; -1 when there is none there, or none that
// belongs to it. Comments hold none.
int Pareja(std::string_view linea, int posicion);
