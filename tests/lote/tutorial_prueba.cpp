// The tutorial teaches what the program does: the statements of each chapter run in the order in which they stand, in one
// run of tabira-lote, and what the chapter quotes is what the program says.
#include "lote/capitulo.h"
#include "lote/corrida.h"

#include "lote/tipo.h"
#include "platform/texto.h"
#include "shell/comandos.h"
#include "shell/ejemplos.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <regex>
#include <set>
#include <sstream>

namespace {

using nlohmann::json;

// What a chapter does at least, so that a file without its blocks is no chapter that passes.
struct CapituloEsperado {
    const char *fichero;
    std::size_t ejecutados, citados;
};

constexpr CapituloEsperado Capitulos[] = {
    {"01_datos.md", 11, 7},
    {"02_series.md", 13, 10},
    {"03_muestra.md", 12, 11},
    {"04_descriptiva.md", 14, 9},
    {"05_regresion.md", 13, 10},
    {"06_restricciones.md", 12, 10},
    {"07_heteroscedasticidad.md", 10, 6},
    {"08_autocorrelacion.md", 13, 9},
    {"09_ponderada.md", 10, 8},
    {"10_programas.md", 11, 6},
    {"11_respuestas.md", 43, 25},
};

void ComprobarBloque(const Bloque &b) {
    static const std::set<std::string> clases = {"tabira", "menu", "resultado"};
    static const std::set<std::string> atributos = {"tipo", "datos", "lote", "semilla", "falla"};
    EXPECT_TRUE(clases.contains(b.clase)) << "línea " << b.linea << ": " << b.clase;
    EXPECT_FALSE(b.lineas.empty()) << "línea " << b.linea;
    for (const auto &[nombre, valor] : b.atributos) {
        EXPECT_TRUE(atributos.contains(nombre) && b.SeEjecuta()) << "línea " << b.linea << ": " << nombre;
        EXPECT_FALSE(valor.empty()) << "línea " << b.linea << ": " << nombre;
    }
}

// ---------------------------------------------------------------------------------------------------------------
// The run

// A regression's rule lines, blanks and bars don't count: neither when quoting nor when comparing.
std::vector<std::string> Palabras(const std::string &linea) {
    std::string limpia = linea;
    std::replace(limpia.begin(), limpia.end(), '|', ' ');
    if (limpia.find_first_not_of(" +-") == limpia.npos) return {};
    std::istringstream s(limpia);
    std::vector<std::string> r;
    for (std::string p; s >> p;) r.push_back(p);
    return r;
}

void AnadirLineas(const std::string &texto, std::vector<std::string> &lineas) {
    std::istringstream s(texto);
    for (std::string l; std::getline(s, l);)
        if (!Palabras(l).empty()) lineas.push_back(l);
}

// What an event shows to the user, line by line.
void AnadirSuceso(const json &s, std::vector<std::string> &lineas) {
    if (s["suceso"] == "caja") AnadirLineas(s["texto"].get<std::string>(), lineas);
    if (s["suceso"] == "paso") {
        AnadirLineas(s["explicacion"].get<std::string>(), lineas);
        std::string valores;
        for (const json &v : s["valores"]) valores += v.dump() + " ";
        AnadirLineas(valores, lineas);
    }
    if (s["suceso"] != "salida" && s["suceso"] != "grafico") return;
    AnadirLineas(s["titulo"].get<std::string>(), lineas);
    for (const char *campo : {"fijas", "lineas"})
        if (s.contains(campo))
            for (const json &l : s[campo])
                AnadirLineas(l.is_array() ? l[1].get<std::string>() : l.get<std::string>(), lineas);
}

struct LoDicho {
    std::vector<std::string> lineas;
    bool falla = false; // a box that refuses something
};

// What the program says in answer to each block that is run. A dump of the store stands behind each, as a mark.
std::vector<LoDicho> EjecutarCapitulo(const Capitulo &capitulo) {
    const ResultadoCorrida corrida = Correr(AccionesDeCapitulo(capitulo));
    EXPECT_NE(corrida.estado, 2) << corrida.errores;
    EXPECT_NE(corrida.estado, -1);
    std::vector<LoDicho> r(1);
    for (const json &s : Sucesos(corrida)) {
        if (s["suceso"] == "volcado") r.emplace_back();
        AnadirSuceso(s, r.back().lineas);
        if (s["suceso"] == "parada" || (s["suceso"] == "caja" && s["titulo"] == "Proceso cancelado"))
            r.back().falla = true;
    }
    r.pop_back(); // behind the last mark
    return r;
}

// ---------------------------------------------------------------------------------------------------------------
// Quotations

// A number with its decimals; none when the whole word isn't one. 0.31E-14 has sixteen.
struct Cifra {
    double valor;
    int decimales;
};

std::optional<Cifra> LeerCifra(const std::string &palabra) {
    static const std::regex cifra(R"([+-]?\d*\.?(\d*)(E([+-]\d+))?)");
    std::smatch partes;
    if (!std::regex_match(palabra, partes, cifra) || palabra.find_first_of("0123456789") == palabra.npos)
        return {};
    const bool conPunto = palabra.find('.') != palabra.npos;
    return Cifra{std::strtod(palabra.c_str(), nullptr),
                 (conPunto ? static_cast<int>(partes.length(1)) : 0) - std::atoi(partes.str(3).c_str())};
}

// Both say the same number, to the decimals of the one that has fewer.
bool SonIguales(const Cifra &a, const Cifra &b) {
    const double paso = std::pow(10.0, -std::min(a.decimales, b.decimales));
    return std::fabs(a.valor - b.valor) <= paso * (a.decimales == b.decimales ? 1e-3 : 0.501);
}

bool SonIguales(const std::string &citada, const std::string &dicha) {
    if (citada == dicha) return true;
    const auto a = LeerCifra(citada), b = LeerCifra(dicha);
    return a && b && SonIguales(*a, *b);
}

bool SonIguales(const std::vector<std::string> &citada, const std::vector<std::string> &dicha) {
    return citada.size() == dicha.size() &&
           std::equal(citada.begin(), citada.end(), dicha.begin(),
                      [](const std::string &a, const std::string &b) { return SonIguales(a, b); });
}

// Each line of the quotation is one of what was said, in its order; "..." only tells that lines are left out.
void ComprobarCita(const Bloque &cita, const LoDicho &dicho) {
    std::size_t desde = 0, comparadas = 0;
    for (const std::string &l : cita.lineas) {
        const std::vector<std::string> palabras = Palabras(l);
        if (palabras.empty() || l == "...") continue;
        while (desde < dicho.lineas.size() && !SonIguales(palabras, Palabras(dicho.lineas[desde]))) ++desde;
        if (desde == dicho.lineas.size()) {
            std::string todo;
            for (const std::string &d : dicho.lineas) todo += d + "\n";
            ADD_FAILURE() << "línea " << cita.linea << ", no se dijo: " << l << "\nSe dijo:\n" << todo;
            return;
        }
        ++desde, ++comparadas;
    }
    EXPECT_GT(comparadas, 0u) << "línea " << cita.linea;
}

// The numbers of a text with three decimals or more.
std::vector<std::string> CifrasLargas(const std::string &texto) {
    static const std::regex larga(R"(-?\d+\.\d{3,}(E[+-]\d+)?)");
    std::vector<std::string> r;
    for (std::sregex_iterator i(texto.begin(), texto.end(), larga), fin; i != fin; ++i) r.push_back(i->str());
    return r;
}

// A coefficient that the text repeats, or that it compares with a publication, is one that the program gave.
void ComprobarProsa(const Capitulo &capitulo, const std::vector<LoDicho> &dicho) {
    std::vector<Cifra> dichas;
    for (const LoDicho &d : dicho)
        for (const std::string &l : d.lineas)
            for (const std::string &p : Palabras(l))
                if (const auto cifra = LeerCifra(p)) dichas.push_back(*cifra);
    for (const auto &[n, texto] : capitulo.prosa)
        for (const std::string &citada : CifrasLargas(texto)) {
            const Cifra c = *LeerCifra(citada);
            EXPECT_TRUE(std::any_of(dichas.begin(), dichas.end(),
                                    [&](const Cifra &d) {
                                        return d.decimales >= std::min(3, c.decimales) &&
                                               (SonIguales(c, d) || SonIguales({-c.valor, c.decimales}, d));
                                    }))
                << "línea " << n << ": " << citada;
        }
}

// The entries of the menus, as a chapter writes them: "Util. > Importar de ASCII".
std::string SinMnemonicos(std::string s) {
    s.erase(std::remove(s.begin(), s.end(), '&'), s.end());
    while (s.ends_with('.') || s.ends_with(' ')) s.pop_back();
    return s;
}

std::set<std::string> EntradasDeMenu() {
    std::set<std::string> r = {"F9"}; // the key of the steps of a computation, which no menu has
    for (int i = 0; i < NumComandos; ++i) {
        const Comando &c = TablaComandos[i];
        if (c.menu == nullptr) continue;
        std::string ruta = Utf8De1252(c.menu);
        for (std::size_t p; (p = ruta.find('/')) != ruta.npos;) ruta.replace(p, 1, " > ");
        // The point of a menu's name stays: only that of the entry's "..." goes.
        ruta.erase(std::remove(ruta.begin(), ruta.end(), '&'), ruta.end());
        r.insert(ruta + " > " + SinMnemonicos(Utf8De1252(c.entrada)));
    }
    return r;
}

// "(o bien, con el botón derecho: Ejemplos > Klein)": that example brings what the block does.
void ComprobarEjemplo(const Bloque &b, const std::string &linea) {
    static const std::regex atajo(R"(Ejemplos > (\w+)\))");
    std::smatch partes;
    if (!std::regex_search(linea, partes, atajo)) return;
    SCOPED_TRACE("línea " + std::to_string(b.linea) + ": " + linea);
    const auto e = std::find_if(TablaEjemplos, TablaEjemplos + NumEjemplos, [&](const Ejemplo &fila) {
        return SinMnemonicos(fila.entrada).starts_with(partes.str(1));
    });
    ASSERT_NE(e, TablaEjemplos + NumEjemplos);
    EXPECT_EQ(b.Atributo("datos"), e->fichero);
    PropuestaTipoDatos tipo;
    ASSERT_TRUE(LeerTipo(b.Atributo("tipo"), tipo));
    EXPECT_EQ(tipo.tipo, e->tipo);
    EXPECT_EQ(tipo.inicio, e->inicio);
    EXPECT_EQ(tipo.fin, e->fin);
}

// Every line of a block "menu" begins with an entry of the menus; what to write there stands behind a colon.
void ComprobarMenu(const Bloque &b) {
    static const std::set<std::string> entradas = EntradasDeMenu();
    for (const std::string &l : b.lineas) {
        ComprobarEjemplo(b, l);
        if (l.starts_with(" ")) continue; // goes on with the line before
        EXPECT_TRUE(entradas.contains(l.substr(0, l.find(':')))) << "línea " << b.linea << ": " << l;
    }
}

class Tutorial : public testing::TestWithParam<CapituloEsperado> {};

TEST_P(Tutorial, LoQueDiceElCapituloEsCierto) {
    const CapituloEsperado &esperado = GetParam();
    SCOPED_TRACE(esperado.fichero);
    const Capitulo capitulo = LeerCapitulo(esperado.fichero);
    const auto citados = static_cast<std::size_t>(std::count_if(
        capitulo.bloques.begin(), capitulo.bloques.end(), [](const Bloque &b) { return !b.SeEjecuta(); }));
    for (const Bloque &b : capitulo.bloques) ComprobarBloque(b);
    ASSERT_GE(capitulo.bloques.size() - citados, esperado.ejecutados);
    ASSERT_GE(citados, esperado.citados);
    ASSERT_NE(capitulo.bloques[0].Atributo("tipo"), "") << "no empieza por el tipo de datos";

    const std::vector<LoDicho> dicho = EjecutarCapitulo(capitulo);
    ASSERT_EQ(dicho.size(), capitulo.bloques.size() - citados);
    std::size_t ejecutados = 0;
    for (const Bloque &b : capitulo.bloques) {
        if (b.clase == "menu") ComprobarMenu(b);
        if (!b.SeEjecuta()) {
            ComprobarCita(b, dicho[ejecutados - 1]);
            continue;
        }
        const LoDicho &d = dicho[ejecutados++];
        EXPECT_EQ(d.falla, b.Atributo("falla") == "si")
            << "línea " << b.linea << ": " << (d.lineas.empty() ? "" : d.lineas.back());
    }
    ComprobarProsa(capitulo, dicho);
}

INSTANTIATE_TEST_SUITE_P(Capitulos, Tutorial, testing::ValuesIn(Capitulos), [](const auto &caso) {
    const std::string fichero = caso.param.fichero;
    return fichero.substr(0, fichero.find('.'));
});

// No chapter stands beside the list, so none is left untried.
TEST(TutorialEntero, TodosLosCapitulosSePrueban) {
    std::set<std::string> enLaCarpeta, enLaLista;
    for (const auto &f : std::filesystem::directory_iterator(RutaDeCapitulo("")))
        if (f.path().extension() == ".md") enLaCarpeta.insert(f.path().filename().string());
    for (const CapituloEsperado &c : Capitulos) enLaLista.insert(c.fichero);
    EXPECT_EQ(enLaCarpeta, enLaLista);
}

// What a link to a chapter says behind "#": its title in small letters, with hyphens.
std::string Ancla(std::string titulo) {
    for (char &c : titulo) c = c == ' ' ? '-' : static_cast<char>(c >= 'A' && c <= 'Z' ? c + 'a' - 'A' : c);
    titulo.erase(std::remove(titulo.begin(), titulo.end(), ','), titulo.end());
    return "#" + titulo;
}

// The pictures that the chapters show are there, and the chapters that they name.
TEST(TutorialEntero, LoEnlazadoExiste) {
    std::set<std::string> anclas;
    for (const CapituloEsperado &c : Capitulos)
        for (const auto &[n, texto] : LeerCapitulo(c.fichero).prosa)
            if (texto.starts_with("# ")) anclas.insert(Ancla(texto.substr(2)));
    EXPECT_EQ(anclas.size(), std::size(Capitulos));
    for (const CapituloEsperado &c : Capitulos)
        for (const auto &[n, texto] : LeerCapitulo(c.fichero).prosa)
            for (std::size_t i = 0; (i = texto.find("](", i)) != texto.npos; ++i) {
                const std::string destino = texto.substr(i + 2, texto.find(')', i) - i - 2);
                EXPECT_TRUE(anclas.contains(destino) || std::filesystem::exists(RutaDeCapitulo(destino)))
                    << c.fichero << ", línea " << n << ": " << destino;
            }
}

// What compares the quotations tells a right one from a wrong one.
TEST(TutorialEntero, LasCitasFalsasSeConocen) {
    struct {
        const char *citada, *dicha;
        bool iguales;
    } const casos[] = {
        {"BENEF | 0.192934 | 0.091210 |", "          BENEF       0.192934       0.091210", true},
        {"BENEF | 0.193 | 0.091 |", "          BENEF       0.192934       0.091210", true},
        {"BENEF | 0.192 | 0.091 |", "          BENEF       0.192934       0.091210", false},
        {"BENEF | 0.192935 | 0.091210 |", "          BENEF       0.192934       0.091210", false},
        {"BENEF | 0.192934", "          BENEF       0.192934       0.091210", false},
        {"SALARIOS | 0.192934 | 0.091210 |", "          BENEF       0.192934       0.091210", false},
        {"14", "  14.0000 ", true},
        {"15", "  14.0000 ", false},
    };
    for (const auto &c : casos) {
        SCOPED_TRACE(c.citada);
        EXPECT_EQ(SonIguales(Palabras(c.citada), Palabras(c.dicha)), c.iguales);
    }
    EXPECT_EQ(CifrasLargas("vale -0.1929, no 2.50 ni 1.2345."),
              (std::vector<std::string>{"-0.1929", "1.2345"}));
}

} // namespace
