// The place of a batch in its text. A statement costs one number; the line is counted when somebody asks.
#include "language/lugar.h"

#include <algorithm>

namespace {

TextoEnCurso EnCurso;

} // namespace

TextoEnCurso EmpezarLugares(const std::string &texto, int desde, int hasta) {
    const TextoEnCurso anterior = EnCurso;
    EnCurso = {&texto, 0, 0, desde, hasta};
    return anterior;
}

const TextoEnCurso &LoteEnCurso() {
    return EnCurso;
}

void TerminarLugares(const TextoEnCurso &anterior) {
    EnCurso = anterior;
}

void PonerLugar(int inicio) {
    EnCurso.inicio = inicio;
}

void PonerBaseDeBloque(int base) {
    EnCurso.base = base;
}

void PonerLugarEnBloque(int inicio) {
    EnCurso.inicio = EnCurso.base + inicio;
}

bool EnLote() {
    return EnCurso.texto != nullptr;
}

LugarDeSentencia LugarActual() {
    return EnLote() ? LugarEn(*EnCurso.texto, EnCurso.inicio) : LugarDeSentencia{};
}

LugarDeSentencia LugarEn(const std::string &texto, int posicion) {
    const std::size_t en = std::min(static_cast<std::size_t>(std::max(posicion, 0)), texto.size());
    const std::string_view antes = std::string_view(texto).substr(0, en);
    LugarDeSentencia l;
    // A line ends with "\r\n", "\n" or "\r".
    for (std::size_t i = 0; i < antes.size(); ++i)
        if (antes[i] == '\n' || (antes[i] == '\r' && (i + 1 == texto.size() || texto[i + 1] != '\n')))
            ++l.linea;
    ++l.linea;
    std::size_t inicio = antes.find_last_of("\r\n") + 1; // npos + 1 is the start of the text
    std::size_t fin = std::min(texto.find_first_of("\r\n", en), texto.size());
    while (inicio < fin && (texto[inicio] == ' ' || texto[inicio] == '\t')) ++inicio;
    while (fin > inicio && texto[fin - 1] == ' ') --fin;
    l.inicio = static_cast<int>(inicio);
    l.fin = static_cast<int>(fin);
    l.sentencia = texto.substr(inicio, fin - inicio);
    return l;
}
