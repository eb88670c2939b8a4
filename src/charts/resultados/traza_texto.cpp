// Steps as text, as tables and as pages.
#include "charts/resultados/traza_texto.h"

#include "language/traza.h"
#include "platform/campos_texto.h"
#include "platform/texto.h"
#include "store/archivo.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <iterator>
#include <string_view>

namespace {

constexpr const char *Corte = "…"_w;   // where values are left out
constexpr int MaxPasosEnlazados = 200; // that a statement or a group lists in its part of a page

const PasoTraza &Paso(int paso) {
    return Traza.pasos[static_cast<std::size_t>(paso)];
}

bool EsGrupo(const PasoTraza &p) {
    return p.clase == TrazaSentencia || p.clase == TrazaGrupo;
}

std::string Plural(int n, const char *uno, const char *varios) {
    return std::to_string(n) + " " + (n == 1 ? uno : varios);
}

// ----- Values

// The shortest digits that read back, without an exponent for numbers of a usual size.
std::string NumeroDePaso(double valor) {
    const double tamano = std::fabs(valor);
    const bool usual = tamano == 0.0 || (tamano >= 1e-5 && tamano < 1e15);
    char texto[40];
    const auto fin = std::to_chars(std::begin(texto), std::end(texto), valor,
                                   usual ? std::chars_format::fixed : std::chars_format::scientific)
                         .ptr;
    return {texto, fin};
}

// The row of the first value when there are as many rows as values up to the last one, so that every value has its period; -1
// for a series with missing values among them.
int FilaDelPrimero(const ValorTraza &v) {
    if (v.primerPeriodo.empty()) return -1;
    for (int fila = 0; fila + v.filas <= MaxObservaciones; ++fila)
        if (TextoPeriodo(fila) == v.primerPeriodo)
            return TextoPeriodo(fila + v.filas - 1) == v.ultimoPeriodo ? fila : -1;
    return -1;
}

FilasDeTexto FilasDeSerie(const ValorTraza &v) {
    FilasDeTexto filas;
    const int fila = FilaDelPrimero(v), guardados = static_cast<int>(v.valores.size());
    for (int i = 0; i < guardados; ++i) {
        const bool delFinal = v.filas > guardados && i >= ExtremosDeSerie;
        if (delFinal && i == ExtremosDeSerie) filas.push_back({Corte, Corte});
        const int lugar = delFinal ? v.filas - guardados + i : i;
        std::string periodo;
        if (fila >= 0) periodo = TextoPeriodo(fila + lugar);
        if (i == 0) periodo = v.primerPeriodo;
        if (i > 0 && i == guardados - 1) periodo = v.ultimoPeriodo;
        filas.push_back({periodo, NumeroDePaso(v.valores[static_cast<std::size_t>(i)])});
    }
    return filas;
}

FilasDeTexto FilasDeMatriz(const ValorTraza &v) {
    FilasDeTexto filas;
    const std::vector<int> deFila = LugaresMostrados(v.filas), deColumna = LugaresMostrados(v.columnas);
    if (v.valores.size() != deFila.size() * deColumna.size()) return filas;
    const auto hayCorte = [](const std::vector<int> &lugares, std::size_t i) {
        return i > 0 && lugares[i] != lugares[i - 1] + 1;
    };
    std::size_t siguiente = 0;
    for (std::size_t i = 0; i < deFila.size(); ++i) {
        std::vector<std::string> fila;
        for (std::size_t j = 0; j < deColumna.size(); ++j) {
            if (hayCorte(deColumna, j)) fila.emplace_back(Corte);
            fila.push_back(NumeroDePaso(v.valores[siguiente++]));
        }
        if (hayCorte(deFila, i)) filas.emplace_back(fila.size(), Corte);
        filas.push_back(std::move(fila));
    }
    return filas;
}

FilasDeTexto FilasDe(ClasesTraza clase, const ValorTraza &v) {
    if (clase == TrazaSerie) return FilasDeSerie(v);
    return FilasDeMatriz(v);
}

// "Matriz de 4 x 4", "Serie de 21 valores, de 1921 a 1941"; empty for a scalar.
std::string TamanoDe(ClasesTraza clase, const ValorTraza &v) {
    if (clase == TrazaMatriz) return Formatear("Matriz de %d x %d", v.filas, v.columnas);
    if (clase != TrazaSerie) return {};
    std::string texto = "Serie de " + Plural(v.filas, "valor", "valores");
    if (!v.primerPeriodo.empty()) texto += ", de " + v.primerPeriodo + " a " + v.ultimoPeriodo;
    return texto;
}

// A number whole, or a size, in a line.
std::string Breve(ClasesTraza clase, const ValorTraza &v) {
    if (v.valores.empty()) return {};
    if (clase == TrazaEscalar || (clase == TrazaMatriz && v.valores.size() == 1))
        return NumeroDePaso(v.valores.front());
    if (clase == TrazaMatriz) return Formatear("%d x %d", v.filas, v.columnas);
    return Plural(v.filas, "valor", "valores");
}

// The row and column of cells in which an element stands; a cut takes a cell of its own. False for one that isn't shown.
bool CeldaDe(ClasesTraza clase, const ValorTraza &v, int elemento, int &fila, int &columna) {
    const auto lugar = [](const std::vector<int> &lugares, int i) {
        const auto en = std::find(lugares.begin(), lugares.end(), i);
        if (en == lugares.end()) return -1;
        const bool trasElCorte = *en != static_cast<int>(en - lugares.begin());
        return static_cast<int>(en - lugares.begin()) + (trasElCorte ? 1 : 0);
    };
    if (elemento < 0 || v.columnas <= 0) return false;
    fila = lugar(LugaresMostrados(v.filas), elemento / v.columnas);
    columna = clase == TrazaSerie ? 1 : lugar(LugaresMostrados(v.columnas), elemento % v.columnas);
    return fila >= 0 && columna >= 0;
}

// ----- Pages

std::string Html(std::string_view texto) {
    std::string r;
    for (const char c : texto) switch (c) {
        case '&': r += "&amp;"; break;
        case '<': r += "&lt;"; break;
        case '>': r += "&gt;"; break;
        case '"': r += "&quot;"; break;
        default: r += c;
        }
    return r;
}

std::string TablaHtml(const FilasDeTexto &filas, int filaElegida = -1, int columnaElegida = -1) {
    std::string r = "<table class=\"numeros\" cellspacing=\"0\" cellpadding=\"3\">\n";
    for (std::size_t i = 0; i < filas.size(); ++i) {
        r += "<tr>";
        for (std::size_t j = 0; j < filas[i].size(); ++j) {
            const bool elegida = static_cast<int>(i) == filaElegida && static_cast<int>(j) == columnaElegida;
            r += std::string("<td align=\"right\"") + (elegida ? " class=\"elegido\">" : ">") +
                 Html(filas[i][j]) + "</td>";
        }
        r += "</tr>\n";
    }
    return r + "</table>\n";
}

std::string ValorHtml(ClasesTraza clase, const ValorTraza &v, int elemento = -1) {
    if (clase == TrazaEscalar) return "<p class=\"formula\">" + Html(Breve(clase, v)) + "</p>\n";
    int fila = -1, columna = -1;
    if (!CeldaDe(clase, v, elemento, fila, columna)) fila = columna = -1;
    return "<p>" + Html(TamanoDe(clase, v)) + "</p>\n" + TablaHtml(FilasDe(clase, v), fila, columna);
}

// Of an operand: the values of a series in a line.
std::string OperandoHtml(const OperandoTraza &o) {
    if (o.clase != TrazaSerie) return ValorHtml(o.clase, o.valor);
    std::string valores;
    for (const auto &fila : FilasDeSerie(o.valor)) valores += (valores.empty() ? "" : "  ") + fila.back();
    return "<p>" + Html(TamanoDe(o.clase, o.valor)) + "</p>\n<p class=\"formula\">" + Html(valores) +
           "</p>\n";
}

std::string Enlace(const char *enlace, int paso, std::string_view texto) {
    return std::string("<a href=\"") + enlace + std::to_string(paso) + "\">" + Html(texto) + "</a>";
}

std::string OperandosHtml(const PasoTraza &p, const char *enlace) {
    std::string r = "<h3>Operandos</h3>\n<table cellspacing=\"0\" cellpadding=\"3\">\n";
    for (const OperandoTraza &o : p.operandos) {
        const bool deUnPaso = o.paso >= 0 && o.paso < static_cast<int>(Traza.pasos.size());
        r += "<tr><td valign=\"top\">" +
             (deUnPaso ? Enlace(enlace, o.paso, o.nombre) : "<b>" + Html(o.nombre) + "</b>") +
             "</td><td valign=\"top\">";
        if (deUnPaso) {
            const PasoTraza &dador = Paso(o.paso);
            r += Html(dador.explicacion) + "</td><td valign=\"top\">" +
                 Html(Breve(dador.clase, dador.resultado));
        } else {
            r += OperandoHtml(o) + "</td><td>";
        }
        r += "</td></tr>\n";
    }
    return r + "</table>\n";
}

// The steps below it, with links; those of a formula that was typed stand on its own page.
std::string ListaHtml(int paso, const char *enlace) {
    std::string r = "<h3>Pasos</h3>\n<table cellspacing=\"0\" cellpadding=\"3\">\n";
    const int detras = DetrasDelPaso(paso), nivel = Paso(paso).nivel;
    int n = 0;
    for (int i = paso + 1; i < detras;) {
        if (++n > MaxPasosEnlazados) {
            r += std::string("<tr><td>") + Corte + "</td></tr>\n";
            break;
        }
        const PasoTraza &p = Paso(i);
        r += "<tr><td>";
        for (int sangria = nivel + 1; sangria < p.nivel; ++sangria) r += "&nbsp;&nbsp;&nbsp;";
        r += Enlace(enlace, i, EsGrupo(p) ? RotuloDePaso(i) : p.explicacion) + "</td><td align=\"right\">" +
             Html(ResumenDePaso(i)) + "</td></tr>\n";
        i = EsGrupo(p) ? i + 1 : DetrasDelPaso(i);
    }
    return r + "</table>\n";
}

constexpr const char *Estilo =
    R"(body { font-family: sans-serif; max-width: 60em; margin: 1em auto; padding: 0 1em; }
section { border-top: 1px solid #888; }
.formula, .numeros { font-family: monospace; }
.numeros td { padding: 0 0.6em; text-align: right; white-space: nowrap; }
.fallo { color: #b00020; font-weight: bold; }
@media (prefers-color-scheme: dark) { body { background: #202020; color: #e8e8e8; } a { color: #8ab4f8; }
  .fallo { color: #ff8a80; } }
)";

// ----- Lines

void AnadirLineas(std::string &texto, int paso) {
    const PasoTraza &p = Paso(paso);
    const std::string sangria(2 * static_cast<std::size_t>(p.nivel), ' ');
    texto += sangria + RotuloDePaso(paso) + "\n";
    if (!EsGrupo(p)) texto += sangria + "  " + p.explicacion + "\n";
    if (!p.fallo.empty()) texto += sangria + "  Fallo: " + p.fallo + "\n";
    if (EsGrupo(p) || !p.fallo.empty()) return;
    if (const std::string tamano = TamanoDe(p.clase, p.resultado); !tamano.empty())
        texto += sangria + "  " + tamano + "\n";
    for (const auto &fila : FilasDelResultado(paso)) {
        texto += sangria + "   ";
        for (const std::string &celda : fila)
            if (!celda.empty()) texto += " " + celda;
        texto += "\n";
    }
}

// ----- Tables

std::string SinTabuladores(std::string texto) {
    std::replace_if(
        texto.begin(), texto.end(), [](char c) { return c == '\t' || c == '\n' || c == '\r'; }, ' ');
    return texto;
}

std::string ListaDePasos(int paso) {
    std::string t = "Nivel\tDestino\tFórmula\tExplicación\tResultado\n"_w;
    for (int i = paso; i < DetrasDelPaso(paso); ++i) {
        const PasoTraza &p = Paso(i);
        std::string resultado = p.fallo;
        if (p.fallo.empty() && !EsGrupo(p)) resultado = Breve(p.clase, p.resultado);
        t += std::to_string(p.nivel) + "\t" + p.destino + "\t" + SinTabuladores(p.formula) + "\t" +
             SinTabuladores(p.explicacion) + "\t" + SinTabuladores(resultado) + "\n";
    }
    // Those left out come behind the last one of the record.
    const std::string demas = PasosSinGuardar();
    if (!demas.empty() && DetrasDelPaso(paso) == static_cast<int>(Traza.pasos.size()))
        t += "\t\t\t" + demas + "\t\n";
    return t;
}

} // namespace

int DetrasDelPaso(int paso) {
    const int nivel = Paso(paso).nivel, total = static_cast<int>(Traza.pasos.size());
    int i = paso + 1;
    while (i < total && Paso(i).nivel > nivel) ++i;
    return i;
}

int PasoDeEncima(int paso) {
    const int nivel = Paso(paso).nivel;
    int i = paso - 1;
    while (i >= 0 && Paso(i).nivel >= nivel) --i;
    return i;
}

int SentenciaEnTraza(const std::string &texto) {
    const std::string_view buscada = Recortado(texto);
    int ultima = -1;
    for (int i = static_cast<int>(Traza.pasos.size()); i-- > 0;) {
        const PasoTraza &p = Paso(i);
        if (ultima < 0 && p.nivel == 0) ultima = i;
        if (p.clase == TrazaSentencia && !buscada.empty() && Recortado(p.formula) == buscada) return i;
    }
    return ultima;
}

std::string RotuloDePaso(int paso) {
    const PasoTraza &p = Paso(paso);
    if (p.clase == TrazaGrupo) return p.explicacion;
    return p.destino.empty() ? p.formula : p.destino + " = " + p.formula;
}

std::string ResumenDePaso(int paso) {
    const PasoTraza &p = Paso(paso);
    if (!p.fallo.empty()) return "Fallo";
    if (EsGrupo(p)) return {};
    if (p.clase != TrazaSerie && p.resultado.valores.size() == 1) {
        const double valor = p.resultado.valores.front();
        const std::string corto = Formatear("%.6g", valor);
        return std::strtod(corto.c_str(), nullptr) == valor ? NumeroDePaso(valor) : corto;
    }
    return Breve(p.clase, p.resultado);
}

FilasDeTexto FilasDelResultado(int paso) {
    const PasoTraza &p = Paso(paso);
    if (EsGrupo(p)) return {};
    return FilasDe(p.clase, p.resultado);
}

namespace {

// Capitals of all letters, those with an accent among them.
std::string EnMayusculas(std::string_view texto) {
    std::string r(texto);
    for (char &c : r) {
        const auto u = static_cast<unsigned char>(c);
        c = u >= 0xE0 && u != 0xF7 && u != 0xFF ? static_cast<char>(u - 0x20) : Mayuscula(c);
    }
    return r;
}

} // namespace

int BuscarEnTraza(const std::string &texto, int desde, bool haciaDelante) {
    const int total = static_cast<int>(Traza.pasos.size());
    const std::string buscado = EnMayusculas(Recortado(texto));
    if (buscado.empty() || total == 0) return -1;
    int i = desde < 0 && !haciaDelante ? 0 : desde;
    for (int n = 0; n < total; ++n) {
        i = (i + (haciaDelante ? 1 : total - 1)) % total;
        const PasoTraza &p = Paso(i);
        const std::string rotulo = RotuloDePaso(i);
        for (const std::string *campo : {&rotulo, &p.formula, &p.explicacion})
            if (EnMayusculas(*campo).find(buscado) != std::string::npos) return i;
    }
    return -1;
}

std::string TablaDePaso(int paso) {
    const PasoTraza &p = Paso(paso);
    if (EsGrupo(p)) return ListaDePasos(paso);
    std::string t = "Paso\t" + (p.destino.empty() ? "" : p.destino + " = ") + SinTabuladores(p.formula) +
                    "\n" + "Explicación\t"_w + SinTabuladores(p.explicacion) + "\n";
    if (!p.fallo.empty()) return t + "Fallo\t" + SinTabuladores(p.fallo) + "\n";
    t += "\n";
    for (const auto &fila : FilasDelResultado(paso)) {
        for (std::size_t j = 0; j < fila.size(); ++j) t += (j > 0 ? "\t" : "") + fila[j];
        t += "\n";
    }
    return t;
}

std::string HtmlDePaso(int paso, const char *enlace, int elemento) {
    const PasoTraza &p = Paso(paso);
    std::string r = "<h2>" + Html(p.explicacion) + "</h2>\n";
    if (!p.formula.empty()) {
        const std::string rotulo = p.destino.empty() ? p.formula : p.destino + " = " + p.formula;
        r += "<p class=\"formula\">" + Html(rotulo) + "</p>\n";
    }
    if (!p.fallo.empty()) r += "<p class=\"fallo\">Fallo: " + Html(p.fallo) + "</p>\n";
    if (!p.operandos.empty()) r += OperandosHtml(p, enlace);
    if (!EsGrupo(p) && p.fallo.empty()) {
        r += "<h3>Resultado</h3>\n";
        r += ValorHtml(p.clase, p.resultado, elemento);
    }
    if (DetrasDelPaso(paso) > paso + 1) r += ListaHtml(paso, enlace);
    return r;
}

std::string PasosSinGuardar() {
    const std::int64_t demas = Traza.numero - static_cast<std::int64_t>(Traza.pasos.size());
    if (demas <= 0) return {};
    if (demas == 1) return "Se ha hecho otro paso, que no se guarda";
    return "Se han hecho otros " + std::to_string(demas) + " pasos, que no se guardan";
}

std::string TextoDeTraza() {
    std::string texto = PasosSinGuardar();
    if (!texto.empty()) texto += "\n";
    for (int i = 0; i < static_cast<int>(Traza.pasos.size()); ++i) AnadirLineas(texto, i);
    return texto;
}

std::string PaginaDeTraza() {
    std::string r = "<!DOCTYPE html>\n<html lang=\"es\">\n<head>\n<meta charset=\"utf-8\">\n"
                    "<title>Cómo se calcula</title>\n<style>\n"_w +
                    std::string(Estilo) + "</style>\n</head>\n<body>\n<h1>Cómo se calcula</h1>\n"_w;
    if (const std::string demas = PasosSinGuardar(); !demas.empty()) r += "<p>" + Html(demas) + "</p>\n";
    for (int i = 0; i < static_cast<int>(Traza.pasos.size()); ++i)
        r += "<section id=\"p" + std::to_string(i) + "\">\n" + HtmlDePaso(i, "#p") + "</section>\n";
    return r + "</body>\n</html>\n";
}
