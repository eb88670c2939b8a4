// A result's table in the forms that documents take.
#include "charts/resultados/formatos_tabla.h"

#include "platform/campos_texto.h"
#include "platform/literal.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

namespace {

using Fila = std::vector<std::string>;

struct Seccion {
    bool conCabecera;
    std::vector<Fila> filas; // with the head in front
};

struct Tabla {
    std::vector<Seccion> secciones;
    std::size_t columnas = 0; // of the widest row
};

constexpr std::string_view RotuloDeMuestra = "Muestra";
constexpr std::string_view RotuloDePeriodos = "Período"_w;

// ----- Cutting

std::size_t Digitos(std::string_view texto, std::size_t desde) {
    const std::size_t fin = std::min(texto.find_first_not_of("0123456789", desde), texto.size());
    return fin - desde;
}

// A whole text of digits with an optional sign, point and exponent.
bool EsCifra(std::string_view texto) {
    std::size_t i = !texto.empty() && (texto[0] == '-' || texto[0] == '+') ? 1 : 0;
    const std::size_t enteras = Digitos(texto, i);
    i += enteras;
    if (i < texto.size() && texto[i] == '.') i += 1 + Digitos(texto, i + 1);
    if (enteras == 0) return false;
    if (i < texto.size() && (texto[i] == 'e' || texto[i] == 'E')) {
        ++i;
        if (i < texto.size() && (texto[i] == '-' || texto[i] == '+')) ++i;
        const std::size_t exponente = Digitos(texto, i);
        if (exponente == 0) return false;
        i += exponente;
    }
    return i == texto.size();
}

bool EsNumeroDelDocumento(std::string_view campo) {
    std::string conPunto(campo);
    std::replace(conPunto.begin(), conPunto.end(), ',', '.');
    return EsCifra(conPunto);
}

Fila CamposDe(std::string_view linea) {
    Fila campos;
    for (std::size_t desde = 0;;) {
        const std::size_t fin = std::min(linea.find('\t', desde), linea.size());
        campos.emplace_back(Recortado(linea.substr(desde, fin - desde)));
        if (fin == linea.size()) return campos;
        desde = fin + 1;
    }
}

// The head of a section names its columns: the first field may be empty, the others are words, and below them stand numbers.
// Two words above a word and a number are no head but a label and what it labels.
bool EsCabecera(const Fila &primera, const Fila &siguiente) {
    if (primera.size() < 2 || siguiente.size() < 2 || siguiente.size() > primera.size()) return false;
    if (primera.front().empty()) return true; // names above a matrix; the constant's is "1"
    if (std::any_of(primera.begin(), primera.end(),
                    [](const std::string &c) { return c.empty() || EsCifra(c); }))
        return false;
    const auto desde = siguiente.begin() + (primera.size() > 2 ? 1 : 0);
    return primera.size() > 2 ? std::any_of(desde, siguiente.end(), EsCifra)
                              : std::all_of(desde, siguiente.end(), EsCifra);
}

// Points of numbers become commas. Periods keep theirs: those of a sample, and the first column of a listing by periods.
void PonerComas(Seccion &s) {
    const bool porPeriodos = s.conCabecera && s.filas.front().front() == RotuloDePeriodos;
    for (Fila &fila : s.filas) {
        if (fila.front().starts_with(RotuloDeMuestra)) continue;
        for (std::size_t i = porPeriodos ? 1 : 0; i < fila.size(); ++i)
            if (EsCifra(fila[i])) std::replace(fila[i].begin(), fila[i].end(), '.', ',');
    }
}

Tabla Partir(std::string_view texto, SignoDecimal signo) {
    Tabla t;
    bool abierta = false;
    for (std::size_t desde = 0; desde < texto.size();) {
        const std::size_t fin = std::min(texto.find('\n', desde), texto.size());
        const std::string_view linea = texto.substr(desde, fin - desde);
        desde = fin + 1;
        if (linea.find_first_not_of(" \t\r") == std::string_view::npos) {
            abierta = false;
            continue;
        }
        if (!abierta) t.secciones.emplace_back();
        abierta = true;
        t.secciones.back().filas.push_back(CamposDe(linea));
        t.columnas = std::max(t.columnas, t.secciones.back().filas.back().size());
    }
    for (Seccion &s : t.secciones) {
        s.conCabecera = s.filas.size() > 1 && EsCabecera(s.filas[0], s.filas[1]);
        if (signo == ComaDecimal) PonerComas(s);
    }
    return t;
}

std::size_t NumeroDeFilas(const Tabla &t) {
    std::size_t n = 0;
    for (const Seccion &s : t.secciones) n += s.filas.size();
    return n;
}

std::string_view CampoDe(const Fila &fila, std::size_t columna) {
    return columna < fila.size() ? std::string_view(fila[columna]) : std::string_view();
}

// ----- Characters that a form keeps for itself

struct Cambio {
    char caracter;
    const char *texto;
};

template <std::size_t N> std::string Cambiado(std::string_view texto, const std::array<Cambio, N> &cambios) {
    std::string r;
    for (const char c : texto) {
        const auto *cambio = std::find_if(cambios.begin(), cambios.end(),
                                          [&](const Cambio &propio) { return propio.caracter == c; });
        if (cambio != cambios.end()) {
            r += cambio->texto;
        } else {
            r += c;
        }
    }
    return r;
}

constexpr std::array DeHtml = {Cambio{'&', "&amp;"}, Cambio{'<', "&lt;"}, Cambio{'>', "&gt;"},
                               Cambio{'"', "&quot;"}};
// The last three are other characters in the fonts that a document begins with.
constexpr std::array DeLatex = {Cambio{'\\', "\\textbackslash{}"},
                                Cambio{'{', "\\{"},
                                Cambio{'}', "\\}"},
                                Cambio{'$', "\\$"},
                                Cambio{'&', "\\&"},
                                Cambio{'#', "\\#"},
                                Cambio{'%', "\\%"},
                                Cambio{'_', "\\_"},
                                Cambio{'^', "\\textasciicircum{}"},
                                Cambio{'~', "\\textasciitilde{}"},
                                Cambio{'<', "\\textless{}"},
                                Cambio{'>', "\\textgreater{}"},
                                Cambio{'|', "\\textbar{}"}};
constexpr std::array DeMarkdown = {
    Cambio{'\\', "\\\\"}, Cambio{'|', "\\|"},   Cambio{'*', "\\*"}, Cambio{'_', "\\_"}, Cambio{'`', "\\`"},
    Cambio{'<', "&lt;"},  Cambio{'&', "&amp;"}, Cambio{'[', "\\["}, Cambio{']', "\\]"}, Cambio{'~', "\\~"}};

// A minus of a number is as long as a plus, not a hyphen.
std::string CampoDeLatex(std::string_view campo) {
    if (campo.starts_with('-') && EsNumeroDelDocumento(campo))
        return "$-$" + Cambiado(campo.substr(1), DeLatex);
    return Cambiado(campo, DeLatex);
}

std::string CampoDeCsv(std::string_view campo) {
    if (campo.find_first_of(",\"\r\n") == std::string_view::npos) return std::string(campo);
    std::string r = "\"";
    for (const char c : campo) {
        if (c == '"') r += '"';
        r += c;
    }
    return r + "\"";
}

// ----- Rows

void PonerFilaHtml(std::string &r, const Fila &fila, std::size_t columnas, bool cabecera) {
    const char *marca = cabecera ? "th" : "td";
    r += "<tr>";
    for (std::size_t i = 0; i < columnas; ++i) {
        const std::string_view campo = CampoDe(fila, i);
        const bool aLaDerecha = i > 0 && (cabecera || EsNumeroDelDocumento(campo));
        r += std::string("<") + marca + (aLaDerecha ? " align=\"right\">" : " align=\"left\">") +
             Cambiado(campo, DeHtml) + "</" + marca + ">";
    }
    r += "</tr>\n";
}

void PonerFilaLatex(std::string &r, const Fila &fila, std::size_t columnas) {
    r += "    ";
    for (std::size_t i = 0; i < columnas; ++i) r += (i > 0 ? " & " : "") + CampoDeLatex(CampoDe(fila, i));
    r += " \\\\\n";
}

void PonerFilaMarkdown(std::string &r, const Fila &fila, std::size_t columnas) {
    r += "|";
    for (std::size_t i = 0; i < columnas; ++i) r += " " + Cambiado(CampoDe(fila, i), DeMarkdown) + " |";
    r += "\n";
}

void PonerFilaCsv(std::string &r, const Fila &fila, std::size_t columnas) {
    for (std::size_t i = 0; i < columnas; ++i) r += (i > 0 ? "," : "") + CampoDeCsv(CampoDe(fila, i));
    r += "\r\n";
}

void PonerLineas(std::string &texto, const TextoSalida *lineas) {
    if (lineas == nullptr) return;
    for (const LineaSalida &l : *lineas) texto += std::string(Recortado(l.texto, RecorteDerecha)) + "\n";
}

} // namespace

std::string TextoDeResultado(const SalidaResultado &salida) {
    std::string texto;
    PonerLineas(texto, salida.fijas);
    PonerLineas(texto, salida.lineas);
    return texto;
}

std::string TablaDeResultado(const SalidaResultado &salida) {
    if (!salida.tabla.empty()) return std::string(salida.tabla);
    const std::string tabla = TextoDeResultado(salida);
    std::string partida;
    for (std::size_t i = 0; i < tabla.size();) {
        const std::size_t fin = std::min(tabla.find_first_not_of(' ', i), tabla.size());
        const bool alPrincipio = partida.empty() || partida.back() == '\n';
        if (fin - i >= 2) {
            if (!alPrincipio) partida += '\t';
        } else {
            partida.append(fin - i, ' ');
        }
        if (fin < tabla.size()) partida += tabla[fin];
        i = fin + 1;
    }
    return partida;
}

std::string TablaEnTexto(std::string_view tabla, SignoDecimal signo) {
    if (signo == PuntoDecimal) return std::string(tabla);
    std::string r;
    for (const Seccion &s : Partir(tabla, signo).secciones) {
        if (!r.empty()) r += '\n';
        for (const Fila &fila : s.filas) {
            for (std::size_t i = 0; i < fila.size(); ++i) r += (i > 0 ? "\t" : "") + fila[i];
            r += '\n';
        }
    }
    return r;
}

std::string TablaEnHtml(std::string_view titulo, std::string_view tabla, SignoDecimal signo) {
    const Tabla t = Partir(tabla, signo);
    const std::string conMarcas = Cambiado(titulo, DeHtml);
    std::string r = "<!DOCTYPE html>\n<html lang=\"es\">\n<head>\n"
                    "<meta http-equiv=\"Content-Type\" content=\"text/html; charset=utf-8\">\n<title>" +
                    conMarcas + "</title>\n</head>\n<body>\n" +
                    "<table border=\"1\" cellspacing=\"0\" cellpadding=\"4\">\n<caption>" + conMarcas +
                    "</caption>\n";
    for (const Seccion &s : t.secciones)
        for (const Fila &fila : s.filas)
            PonerFilaHtml(r, fila, t.columnas, s.conCabecera && &fila == &s.filas.front());
    return r + "</table>\n</body>\n</html>\n";
}

std::string TablaEnLatex(std::string_view titulo, std::string_view tabla, SignoDecimal signo) {
    constexpr std::size_t FilasDeUnaPagina = 45;
    const Tabla t = Partir(tabla, signo);
    const bool larga = NumeroDeFilas(t) > FilasDeUnaPagina;
    const std::string columnas = "{l" + std::string(t.columnas > 0 ? t.columnas - 1 : 0, 'r') + "}\n";
    const std::string rotulo = "\\caption{" + Cambiado(titulo, DeLatex) + "}";
    std::string r = larga ? "% \\usepackage{booktabs,longtable}\n\\begin{longtable}" + columnas + "    " +
                                rotulo + " \\\\\n"
                          : "% \\usepackage{booktabs}\n\\begin{table}[htbp]\n  \\centering\n  " + rotulo +
                                "\n  \\begin{tabular}" + columnas;
    r += "    \\toprule\n";
    for (const Seccion &s : t.secciones) {
        if (&s != &t.secciones.front()) r += "    \\midrule\n";
        for (const Fila &fila : s.filas) {
            PonerFilaLatex(r, fila, t.columnas);
            if (s.conCabecera && &fila == &s.filas.front()) r += "    \\midrule\n";
        }
    }
    return r + "    \\bottomrule\n" + (larga ? "\\end{longtable}\n" : "  \\end{tabular}\n\\end{table}\n");
}

std::string TablaEnMarkdown(std::string_view titulo, std::string_view tabla, SignoDecimal signo) {
    std::string r = "**" + Cambiado(titulo, DeMarkdown) + "**\n";
    for (const Seccion &s : Partir(tabla, signo).secciones) {
        std::size_t columnas = 0;
        for (const Fila &fila : s.filas) columnas = std::max(columnas, fila.size());
        r += '\n';
        PonerFilaMarkdown(r, s.conCabecera ? s.filas.front() : Fila{}, columnas);
        r += "|:---|";
        for (std::size_t i = 1; i < columnas; ++i) r += "---:|";
        r += '\n';
        for (std::size_t i = s.conCabecera ? 1 : 0; i < s.filas.size(); ++i)
            PonerFilaMarkdown(r, s.filas[i], columnas);
    }
    return r;
}

std::string TablaEnCsv(std::string_view tabla, SignoDecimal signo) {
    const Tabla t = Partir(tabla, signo);
    std::string r;
    for (const Seccion &s : t.secciones) {
        if (!r.empty()) PonerFilaCsv(r, {}, t.columnas);
        for (const Fila &fila : s.filas) PonerFilaCsv(r, fila, t.columnas);
    }
    return r;
}
