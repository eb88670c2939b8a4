// The argument of --tipo.
#include "lote/tipo.h"

#include "store/archivo.h"

#include <algorithm>
#include <string>
#include <vector>

namespace {

using Trozos = std::vector<std::string_view>;

struct Palabra {
    std::string_view texto;
    int valor;
};

constexpr Palabra Periodicidades[] = {
    {"anual", TipoAnual}, {"trimestral", TipoTrimestral}, {"mensual", TipoMensual}};
constexpr Palabra Conceptos[] = {{"periodo", PeriodoPrimero}, {"individuo", IndividuoPrimero}};
constexpr std::string_view Etiquetas = ",etiquetas";

template <std::size_t N> bool Buscar(const Palabra (&tabla)[N], std::string_view texto, int &valor) {
    const auto *p =
        std::find_if(std::begin(tabla), std::end(tabla), [&](const Palabra &x) { return x.texto == texto; });
    if (p == std::end(tabla)) return false;
    valor = p->valor;
    return true;
}

Trozos Separar(std::string_view texto, char separador) {
    Trozos r;
    for (std::size_t desde = 0;;) {
        const std::size_t fin = texto.find(separador, desde);
        r.push_back(texto.substr(desde, fin - desde));
        if (fin == std::string_view::npos) return r;
        desde = fin + 1;
    }
}

// Digits with points and signs: whether they make a period is for the dialog to say.
bool EsCampoNumerico(std::string_view texto) {
    return texto.find_first_not_of("0123456789.-") == std::string_view::npos;
}

bool EsNumeroEscrito(std::string_view texto) {
    return !texto.empty() && EsCampoNumerico(texto);
}

// The fields of the first and the last period, from `desde` on; both may be missing.
bool LeerFechas(const Trozos &trozos, std::size_t desde, PropuestaTipoDatos &p) {
    if (trozos.size() > desde + 2) return false;
    if (trozos.size() > desde) p.inicio = trozos[desde];
    if (trozos.size() > desde + 1) p.fin = trozos[desde + 1];
    return EsCampoNumerico(p.inicio) && EsCampoNumerico(p.fin);
}

bool LeerPanelConstante(const Trozos &trozos, PropuestaTipoDatos &p) {
    if (trozos.size() < 5 || !EsNumeroEscrito(trozos[3]) || !Buscar(Periodicidades, trozos[4], p.tipoPeriodo))
        return false;
    p.individuos = trozos[3];
    return LeerFechas(trozos, 5, p);
}

bool LeerEntrada(std::string_view texto, ConceptosPanel primero, EntradaPropuesta &entrada) {
    const Trozos lados = Separar(texto, '=');
    if (lados.size() != 2 || !EsNumeroEscrito(lados[0])) return false;
    entrada.concepto = lados[0];
    if (primero == PeriodoPrimero) {
        entrada.individuos = lados[1];
        return EsNumeroEscrito(lados[1]);
    }
    const Trozos periodos = Separar(lados[1], '/');
    entrada.periodos.assign(periodos.begin(), periodos.end());
    return std::all_of(periodos.begin(), periodos.end(), EsNumeroEscrito);
}

bool LeerPanelVariable(const Trozos &trozos, PropuestaTipoDatos &p) {
    if (trozos.size() != 4) return false;
    if (trozos[3].empty()) return true; // no entries: the dialog asks for data
    for (const std::string_view texto : Separar(trozos[3], ',')) {
        EntradaPropuesta entrada;
        if (!LeerEntrada(texto, p.primerConcepto, entrada)) return false;
        p.entradas.push_back(std::move(entrada));
    }
    return true;
}

bool LeerPanel(const Trozos &trozos, PropuestaTipoDatos &p) {
    int primero = 0;
    if (trozos.size() < 3 || !Buscar(Conceptos, trozos[2], primero)) return false;
    p.tipo = TipoPanel;
    p.primerConcepto = static_cast<ConceptosPanel>(primero);
    p.forma = trozos[1] == "variable" ? PanelVariable : PanelConstante;
    if (p.forma == PanelVariable) return LeerPanelVariable(trozos, p);
    return trozos[1] == "constante" && LeerPanelConstante(trozos, p);
}

} // namespace

bool LeerTipo(std::string_view texto, PropuestaTipoDatos &p) {
    p = {};
    p.nombre = NombreDialogoTipo();
    p.etiquetas = texto.ends_with(Etiquetas);
    if (p.etiquetas) texto.remove_suffix(Etiquetas.size());
    const Trozos trozos = Separar(texto, ':');
    if (texto == "sin") {
        p.tipo = TipoSinPeriodicidad;
        return true;
    }
    if (trozos[0] == "panel") return LeerPanel(trozos, p);
    return !p.etiquetas && Buscar(Periodicidades, trozos[0], p.tipo) && LeerFechas(trozos, 1, p);
}
