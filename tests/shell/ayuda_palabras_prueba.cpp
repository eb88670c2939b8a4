// The manual by its words: the page of each word, the place of the caret, the search.
#include "shell/ayuda_palabras.h"

#include "language/bloques.h"
#include "language/palabras.h"
#include "platform/literal.h"
#include "platform/texto.h"
#include "store/archivo.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <set>
#include <string>
#include <vector>

namespace {

// The word stands in the page, not as a part of another one.
bool Menciona(int id, std::string_view palabra) {
    const PaginaManual *pagina = BuscarPagina(id);
    if (pagina == nullptr) return false;
    const std::string texto = TextoDePagina(*pagina);
    std::string mayusculas = texto;
    std::transform(mayusculas.begin(), mayusculas.end(), mayusculas.begin(),
                   [](unsigned char c) { return static_cast<char>(c < 128 ? std::toupper(c) : c); });
    const auto deNombre = [&](std::size_t i) {
        return i < mayusculas.size() &&
               (std::isalnum(static_cast<unsigned char>(mayusculas[i])) != 0 || mayusculas[i] == '_');
    };
    for (std::size_t i = mayusculas.find(palabra); i != std::string::npos;
         i = mayusculas.find(palabra, i + 1))
        if ((i == 0 || !deNombre(i - 1)) && !deNombre(i + palabra.size())) return true;
    return false;
}

// Words that the program uses inside, and no page tells: the two regressions of CGQ, and a primitive of the inverse.
const std::set<std::string_view> DeDentro = {"MGN", "MGD", "MINC"};

constexpr const char *DeBloques[] = {"FINREPITE", "FINMIENTRAS", "FINSI", "SINO",  "ROMPE",
                                     "CONTINUA",  "DESDE",       "HASTA", "SALTA", "TRIMESTRAL",
                                     "MENSUAL",   "ENTONCES",    "ENUM"};
constexpr const char *Funciones[] = {"LOG",  "LN",    "RCUAD",  "EXP",    "ABS",    "NOT",    "POT",
                                     "TEND", "PROG",  "SUMSER", "MEDSER", "DESSER", "MAXSER", "MINSER",
                                     "RND",  "RNDN",  "PROBT",  "PROBF",  "PROBN",  "PROBC",  "SUMA",
                                     "DET",  "LNDET", "TRAZA",  "MIN",    "MAX",    "NFILA",  "NCOLU",
                                     "NREG", "ESCAL", "DIAG",   "VECT",   "LNMT",   "RCMT",   "MINC"};
constexpr const char *Opciones[] = {"FICTIC", "CN",   "CH",   "CA",   "RA",   "PC",  "INTERX",
                                    "INTERY", "MINX", "MAXX", "MINY", "MAXY", "AND", "OR",
                                    "NOBS",   "IR",   "MR",   "FR",   "BETA", "NO"};

void TieneSuPagina(std::string_view palabra, std::string_view primera = {}) {
    const int id = PaginaDePalabra(palabra, primera);
    ASSERT_NE(id, 0) << palabra;
    ASSERT_NE(BuscarPagina(id), nullptr) << palabra;
    EXPECT_EQ(Menciona(id, palabra), DeDentro.count(palabra) == 0) << palabra << " in " << id;
}

struct CasoDeLugar {
    const char *texto; // the caret is at "|"
    int pagina;
};

} // namespace

TEST(AyudaPalabras, CadaPalabraTieneSuPagina) {
    for (const Palabra &p : Palabras) TieneSuPagina(p.palabra);
    for (const char *p : DeBloques) {
        TieneSuPagina(p);
        EXPECT_TRUE(EsPalabraDeControl(p) || std::string_view(p).size() > 3) << p;
    }
    for (const char *p : Funciones) {
        TieneSuPagina(p);
        EXPECT_TRUE(EsFuncionSerie(p) || EsFuncionMatriz(p)) << p;
    }
    for (const char *p : Opciones) TieneSuPagina(p);
    for (const auto &[palabra, primera] :
         {std::pair{"SI", "VSR"}, {"RA", "CWH"}, {"LOG", "AES"}, {"LOG", "AED"}, {"ENTONCES", "SI"}})
        TieneSuPagina(palabra, primera);
}

TEST(AyudaPalabras, LoQueNoEsPalabra) {
    for (const char *p : {"", "CONSUMO", "1", "_BETA", "SERIE", "MC1"}) EXPECT_EQ(PaginaDePalabra(p), 0) << p;
    EXPECT_EQ(PaginaDePalabra("repite"), 1190);
}

TEST(AyudaPalabras, ElLugarDelCursor) {
    static constexpr CasoDeLugar Casos[] = {
        {"|", 1194},
        {"SER X = L|N(Y)", 1130},
        {"SER X = |LN(Y)", 1130},
        {"SER X = LN|(Y)", 1130},
        {"SER X = LN(|Y)", 1197}, // a series: the page of its statement
        {"|SER X = LN(Y)", 1197},
        {"ser fict|ic SEXO", 1218},
        {"  mc (C|A 2) Y 1 X", 1191},
        {"MC Y 1 X|", 1191},
        {"VSR S|I", 1190},
        {"SI| (A > 1) ENTONCES", 1136},
        {"SI (A > 1) ENTON|CES", 1136},
        {"MIENTRAS (A > 1) ENTON|CES", 1135},
        {"CWH PC R|A", 1134},
        {"CGQ (X) R|A 1 8 13 20", 1133},
        {"AES L|OG 0.3 X", 1195},
        {"MC Y 1 X\nCDU|\nCR Y 1", 1134},
        {"MC Y 1 X\r\n\r\n|", 1194},
        {"; un comentario|", 1194},
        {"DESCONOCIDA 1|", 1194},
        {"HIST X INTERX| 6", 1224},
        {"Ñ|", 1194},
    };
    for (const CasoDeLugar &c : Casos) {
        std::string texto = Texto1252DeUtf8(c.texto);
        const std::size_t cursor = texto.find('|');
        texto.erase(cursor, 1);
        EXPECT_EQ(PaginaDelLugar(texto, static_cast<int>(cursor)), c.pagina) << c.texto;
    }
    EXPECT_EQ(PaginaDelLugar("MC", -5), 1191);
    EXPECT_EQ(PaginaDelLugar("MC", 500), 1191);
}

// Every text once, none of those with a form of their own; each page that a word leads to is there.
TEST(AyudaPalabras, LasPaginasDelLector) {
    std::set<int> ids;
    std::set<const LineaAyuda *> textos;
    for (const PaginaManual *p : PaginasDelLector()) {
        ids.insert(p->id);
        EXPECT_TRUE(textos.insert(p->lineas).second) << p->id;
    }
    EXPECT_EQ(ids.size(), PaginasManual().size() - 5) << "three texts stand twice, two pages are forms";
    for (const int ausente : {1198, 1125, 1219, 1220, 1221}) EXPECT_EQ(ids.count(ausente), 0u) << ausente;
    for (const Palabra &p : Palabras) EXPECT_EQ(ids.count(PaginaDePalabra(p.palabra)), 1u) << p.palabra;
    for (const char *p : Funciones) EXPECT_EQ(ids.count(PaginaDePalabra(p)), 1u) << p;
}

TEST(AyudaPalabras, ElTituloDiceElLugar) {
    const auto titulo = [](int id) { return Utf8De1252(TituloConLugar(*BuscarPagina(id))); };
    EXPECT_EQ(titulo(1197), "Generación de series (1 de 7)");
    EXPECT_EQ(titulo(1127), "Generación de series (3 de 7)");
    EXPECT_EQ(titulo(1218), "Generación de series (7 de 7)");
    EXPECT_EQ(titulo(1138), "Reglas generales (2 de 3)");
    EXPECT_EQ(titulo(1193), "Generación de escalares");
}

// Whatever the case and the accents; the places are those of the text as it is shown.
TEST(AyudaPalabras, Buscar) {
    const PaginaManual &calculadora = *BuscarPagina(1196);
    const std::string texto = TextoDePagina(calculadora);
    for (const char *buscado : {"fórmula", "formula", "FÓRMULA"}) {
        const std::vector<int> lugares = LugaresEnPagina(calculadora, Texto1252DeUtf8(buscado));
        ASSERT_EQ(lugares.size(), 3u) << buscado;
        for (const int i : lugares)
            EXPECT_EQ(texto.substr(static_cast<std::size_t>(i), 7), std::string("fórmula"_w)) << buscado;
    }
    EXPECT_TRUE(LugaresEnPagina(calculadora, "").empty());
    EXPECT_TRUE(LugaresEnPagina(calculadora, "zzz").empty());
    int conGoldfeld = 0;
    for (const PaginaManual *p : PaginasDelLector()) conGoldfeld += !LugaresEnPagina(*p, "goldfeld").empty();
    EXPECT_GE(conGoldfeld, 1);
    EXPECT_LT(conGoldfeld, 6);
}
