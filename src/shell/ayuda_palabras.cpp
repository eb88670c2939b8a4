// The manual by its words.
#include "shell/ayuda_palabras.h"

#include "platform/campos_texto.h"

#include <algorithm>
#include <array>

namespace {

struct FilaDePalabra {
    std::string_view palabra;
    int pagina;
    std::string_view primera = {}; // only in a statement that begins with this word
};

// What holds in one statement only stands before what holds everywhere.
constexpr FilaDePalabra Filas[] = {
    {"SI", 1190, "VSR"},
    {"RA", 1134, "CWH"},
    {"LOG", 1195, "AES"},
    {"LOG", 1195, "AED"},
    {"ENTONCES", 1136, "SI"},

    {"SER", 1197},
    {"FICTIC", 1218},
    {"OBS", 1131},
    {"ESC", 1193},
    {"CAL", 1196},
    {"MAT", 1192},
    {"MUEST", PaginaMuestra},

    {"LN", 1130},
    {"LOG", 1130},
    {"RCUAD", 1130},
    {"EXP", 1130},
    {"ABS", 1130},
    {"POT", 1130},
    {"TEND", 1130},
    {"PROG", 1130},
    {"SUMSER", 1127},
    {"MEDSER", 1127},
    {"DESSER", 1127},
    {"MAXSER", 1127},
    {"MINSER", 1127},
    {"RND", 1127},
    {"RNDN", 1127},
    {"PROBT", 1132},
    {"PROBF", 1132},
    {"PROBN", 1132},
    {"PROBC", 1132},
    {"AND", 1217},
    {"OR", 1217},
    {"NOT", 1217},

    {"NOBS", 1131},
    {"NREG", 1131},
    {"NFILA", 1131},
    {"NCOLU", 1131},
    {"SUMA", 1131},
    {"MAX", 1131},
    {"MIN", 1131},
    {"DET", 1131},
    {"LNDET", 1131},
    {"TRAZA", 1131},
    {"ESCAL", 1131},
    {"DIAG", 1129},
    {"VECT", 1129},
    {"LNMT", 1129},
    {"RCMT", 1129},
    {"MINC", 1129},

    {"MC", 1191},
    {"MCP", 1191},
    {"CN", 1191},
    {"CH", 1191},
    {"CA", 1191},
    {"VSR", 1190},
    {"NO", 1190},
    {"CR", 1133},
    {"CHN", 1133},
    {"IR", 1133},
    {"MR", 1133},
    {"FR", 1133},
    {"BETA", 1133},
    {"CGQ", 1133},
    {"RA", 1133},
    {"MGN", 1133}, // the two regressions of CGQ
    {"MGD", 1133},
    {"CDU", 1134},
    {"CWA", 1134},
    {"CRA", 1134},
    {"CWH", 1134},
    {"PC", 1134},
    {"AES", 1195},
    {"AED", 1195},

    {"REPITE", 1190},
    {"DESDE", 1190},
    {"HASTA", 1190},
    {"SALTA", 1190},
    {"TRIMESTRAL", 1190},
    {"MENSUAL", 1190},
    {"FINREPITE", 1190},
    {"MIENTRAS", 1135},
    {"ENTONCES", 1135},
    {"ENUM", 1135},
    {"FINMIENTRAS", 1135},
    {"SI", 1136},
    {"SINO", 1136},
    {"FINSI", 1136},
    {"ROMPE", 1136},
    {"CONTINUA", 1136},

    {"GRAF", 1224},
    {"HIST", 1224},
    {"INTERX", 1224},
    {"INTERY", 1224},
    {"MINX", 1224},
    {"MAXX", 1224},
    {"MINY", 1224},
    {"MAXY", 1224},
    {"DECI", 1224},
};

bool EsDePalabra(char c) {
    const char m = Mayuscula(c);
    return (m >= 'A' && m <= 'Z') || (m >= '0' && m <= '9') || m == '_' || m == '.';
}

// The word around a place, or right before it.
std::string_view PalabraEn(std::string_view texto, std::size_t lugar) {
    std::size_t inicio = lugar, fin = lugar;
    while (inicio > 0 && EsDePalabra(texto[inicio - 1])) --inicio;
    while (fin < texto.size() && EsDePalabra(texto[fin])) ++fin;
    return texto.substr(inicio, fin - inicio);
}

// The first word of the line around a place.
std::string_view PrimeraPalabra(std::string_view texto, std::size_t lugar) {
    std::size_t inicio = lugar;
    while (inicio > 0 && texto[inicio - 1] != '\n' && texto[inicio - 1] != '\r') --inicio;
    while (inicio < texto.size() && (texto[inicio] == ' ' || texto[inicio] == '\t')) ++inicio;
    return PalabraEn(texto, inicio);
}

// Letters without their accents, in lower case: one byte for each.
char SinAcento(char c) {
    struct Grupo {
        std::string_view con;
        char sin;
    };
    static constexpr Grupo Grupos[] = {
        {"\xC1\xC0\xC2\xC4\xE1\xE0\xE2\xE4", 'a'},
        {"\xC9\xC8\xCA\xCB\xE9\xE8\xEA\xEB", 'e'},
        {"\xCD\xCC\xCE\xCF\xED\xEC\xEE\xEF", 'i'},
        {"\xD3\xD2\xD4\xD6\xF3\xF2\xF4\xF6", 'o'},
        {"\xDA\xD9\xDB\xDC\xFA\xF9\xFB\xFC", 'u'},
        {"\xD1\xF1", 'n'},
        {"\xC7\xE7", 'c'},
    };
    if (c >= 'A' && c <= 'Z') return static_cast<char>(c - 'A' + 'a');
    for (const Grupo &g : Grupos)
        if (g.con.find(c) != std::string_view::npos) return g.sin;
    return c;
}

std::string Llano(std::string_view texto) {
    std::string r(texto);
    std::transform(r.begin(), r.end(), r.begin(), SinAcento);
    return r;
}

} // namespace

int PaginaDePalabra(std::string_view palabra, std::string_view primera) {
    std::string buscada(palabra), enCabeza(primera);
    PonerEnMayusculas(buscada);
    PonerEnMayusculas(enCabeza);
    for (const FilaDePalabra &f : Filas)
        if (f.palabra == buscada && (f.primera.empty() || f.primera == enCabeza)) return f.pagina;
    return 0;
}

int PaginaDelLugar(std::string_view texto, int posicion) {
    const std::size_t lugar = std::min(static_cast<std::size_t>(std::max(posicion, 0)), texto.size());
    const std::string_view palabra = PalabraEn(texto, lugar), primera = PrimeraPalabra(texto, lugar);
    // The word at the head of a line is that of its statement, never an option of itself.
    if (const int id = PaginaDePalabra(palabra, palabra.data() == primera.data() ? "" : primera); id != 0)
        return id;
    if (const int id = PaginaDePalabra(primera); id != 0) return id;
    return PaginasManual().front().id;
}

std::vector<const PaginaManual *> PaginasDelLector() {
    std::vector<const PaginaManual *> paginas;
    for (const PaginaManual &p : PaginasManual()) {
        if (p.id == PaginaAcerca || p.id == PaginaNoEnsamblada) continue;
        if (std::none_of(paginas.begin(), paginas.end(),
                         [&](const PaginaManual *otra) { return otra->lineas == p.lineas; }))
            paginas.push_back(&p);
    }
    return paginas;
}

std::string TituloConLugar(const PaginaManual &pagina) {
    const auto anterior = [](int id) -> const PaginaManual * {
        for (const PaginaManual &p : PaginasManual())
            if (p.botonSiguiente != 0 && PaginaDeBoton(p.botonSiguiente) == id) return &p;
        return nullptr;
    };
    int lugar = 1;
    for (const PaginaManual *p = anterior(pagina.id); p != nullptr; p = anterior(p->id)) ++lugar;
    int todas = lugar;
    for (const PaginaManual *p = &pagina; p != nullptr && p->botonSiguiente != 0;
         p = BuscarPagina(PaginaDeBoton(p->botonSiguiente)))
        ++todas;
    const std::string titulo = pagina.titulo;
    return todas == 1 ? titulo : titulo + " (" + std::to_string(lugar) + " de " + std::to_string(todas) + ")";
}

std::vector<int> LugaresEnTexto(std::string_view texto, std::string_view buscado) {
    std::vector<int> lugares;
    const std::string donde = Llano(texto), que = Llano(buscado);
    if (que.empty()) return lugares;
    for (std::size_t i = donde.find(que); i != std::string::npos; i = donde.find(que, i + que.size()))
        lugares.push_back(static_cast<int>(i));
    return lugares;
}

std::vector<int> LugaresEnPagina(const PaginaManual &pagina, std::string_view buscado) {
    return LugaresEnTexto(TextoDePagina(pagina), buscado);
}
