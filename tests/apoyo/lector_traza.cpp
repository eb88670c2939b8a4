// Recomputing a record, step by step.
#include "apoyo/lector_traza.h"

#include "language/traza.h"
#include "platform/texto.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <regex>
#include <sstream>

namespace {

using Numeros = std::vector<long double>;
using Nombres = std::set<std::string>;

constexpr long double Nada = std::numeric_limits<long double>::quiet_NaN();
constexpr long double Cifras = 1e-8L;     // of a result, relative
constexpr long double DeLaMayor = 1e-11L; // of an element that is small beside the largest
constexpr int TodasLasFilasDelFichero = 4000;

struct Lector {
    EntornoTraza &e;
    int primerAno;
    std::map<std::string, std::vector<ValorCalculado>> sumas; // of the lags, by destination
};

// ----- Comparing

bool SonIguales(long double a, long double b, long double mayor) {
    if (std::isnan(a) || std::isnan(b)) return std::isnan(a) && std::isnan(b);
    if (std::isinf(a) || std::isinf(b)) return a == b;
    return std::fabs(a - b) <= Cifras * std::max(std::fabs(a), std::fabs(b)) + DeLaMayor * mayor;
}

// The places that are kept of `total`: all up to ten, else five at each end.
std::vector<std::size_t> Guardados(std::size_t total) {
    std::vector<std::size_t> lugares;
    for (std::size_t i = 0; i < total; ++i)
        if (total <= 10 || i < 5 || i + 5 >= total) lugares.push_back(i);
    return lugares;
}

void CompararLista(const std::vector<double> &dichos, const Numeros &propios, long double mayor) {
    ASSERT_EQ(dichos.size(), propios.size());
    for (std::size_t i = 0; i < propios.size(); ++i)
        EXPECT_TRUE(SonIguales(dichos[i], propios[i], mayor))
            << "elemento " << i << ": " << dichos[i] << ", y sale " << static_cast<double>(propios[i]);
}

void CompararMatriz(const ValorTraza &dicha, const ValorCalculado &propia) {
    ASSERT_EQ(dicha.filas, propia.filas);
    ASSERT_EQ(dicha.columnas, propia.columnas);
    Numeros guardados;
    long double mayor = 0;
    for (const long double x : propia.datos) mayor = std::max(mayor, std::fabs(x));
    for (const std::size_t i : Guardados(static_cast<std::size_t>(propia.filas)))
        for (const std::size_t j : Guardados(static_cast<std::size_t>(propia.columnas)))
            guardados.push_back(propia.datos[i * static_cast<std::size_t>(propia.columnas) + j]);
    CompararLista(dicha.valores, guardados, mayor);
}

// The values that are there; the count and the two ends.
void CompararSerie(const Lector &l, const ValorTraza &dicha, const Numeros &propia) {
    std::vector<std::size_t> filas;
    for (std::size_t i = 0; i < propia.size(); ++i)
        if (!std::isnan(propia[i])) filas.push_back(i);
    ASSERT_EQ(static_cast<std::size_t>(dicha.filas), filas.size());
    ASSERT_FALSE(filas.empty());
    Numeros guardados;
    long double mayor = 0;
    for (const std::size_t k : Guardados(filas.size())) guardados.push_back(propia[filas[k]]);
    for (const std::size_t f : filas) mayor = std::max(mayor, std::fabs(propia[f]));
    CompararLista(dicha.valores, guardados, mayor);
    EXPECT_EQ(dicha.primerPeriodo, std::to_string(l.primerAno + static_cast<int>(filas.front())));
    EXPECT_EQ(dicha.ultimoPeriodo, std::to_string(l.primerAno + static_cast<int>(filas.back())));
}

// ----- The texts

struct TextoDePaso {
    std::string formula;
    bool deLibro; // with "x(t)", and the periods behind
};

// Takes the periods off, which must be those of the rows.
TextoDePaso LeerTexto(const Lector &l, const PasoTraza &p) {
    static const std::regex conPeriodos(R"((.*), (\S+) a (\S+))");
    const std::string formula = Utf8De1252(p.formula);
    std::smatch partes;
    if (!std::regex_match(formula, partes, conPeriodos)) return {formula, false};
    EXPECT_EQ(partes.str(2), std::to_string(l.primerAno + p.filas.primera));
    EXPECT_EQ(partes.str(3), std::to_string(l.primerAno + p.filas.ultima));
    return {partes.str(1), true};
}

ValorCalculado Calcular(const Lector &l, const PasoTraza &p, const TextoDePaso &texto, int t,
                        Nombres &nombres) {
    return CalcularTexto(l.e, texto.formula, t, {p.filas.primera, p.filas.ultima}, !texto.deLibro, nombres);
}

std::vector<std::string> Palabras(const std::string &texto) {
    std::istringstream s(texto);
    std::vector<std::string> palabras;
    for (std::string x; s >> x;) palabras.push_back(x);
    return palabras;
}

// ----- Matrices

// "{1 BENEF _TMR1}": a column for each, a row for each observation.
ValorCalculado DeLlaves(const Lector &l, const PasoTraza &p, const std::string &texto, Nombres &nombres) {
    const std::vector<std::string> columnas = Palabras(texto.substr(1, texto.size() - 2));
    ValorCalculado m{p.filas.ultima - p.filas.primera + 1, static_cast<int>(columnas.size()), {}};
    for (int t = p.filas.primera; t <= p.filas.ultima; ++t)
        for (const std::string &c : columnas)
            m.datos.push_back(CalcularTexto(l.e, c, t, {t, t}, true, nombres).datos[0]);
    return m;
}

// A row for each observation, the transposed value of the text there.
ValorCalculado UnaFilaPorObservacion(const Lector &l, const PasoTraza &p, const TextoDePaso &texto,
                                     Nombres &nombres) {
    ValorCalculado m{0, 1, {}};
    for (int t = p.filas.primera; t <= p.filas.ultima; ++t, ++m.filas) {
        const ValorCalculado fila = Calcular(l, p, texto, t, nombres);
        m.columnas = fila.filas;
        m.datos.insert(m.datos.end(), fila.datos.begin(), fila.datos.end());
    }
    return m;
}

// "_S8 sin las constantes: 1, luego 3": one place behind the other out of the rows, and out of the columns of a square one.
ValorCalculado SinConstantes(const Lector &l, const std::smatch &partes, Nombres &nombres) {
    nombres.insert(partes.str(1));
    ValorCalculado m = l.e.matrices.at(partes.str(1));
    const bool cuadrada = m.filas == m.columnas;
    static const std::regex numero(R"(\d+)");
    const std::string lugares = partes.str(2);
    for (std::sregex_iterator i(lugares.begin(), lugares.end(), numero), fin; i != fin; ++i) {
        const int quitada = std::min(std::stoi(i->str()), m.filas) - 1;
        ValorCalculado resto{m.filas - 1, m.columnas - (cuadrada ? 1 : 0), {}};
        for (int f = 0; f < m.filas; ++f)
            for (int c = 0; c < m.columnas; ++c)
                if (f != quitada && !(cuadrada && c == quitada))
                    resto.datos.push_back(m.datos[static_cast<std::size_t>(f * m.columnas + c)]);
        m = resto;
    }
    return m;
}

// "BETA(2)-BETA(3)=0; BETA(4)=0.8": what each side is worth without coefficients and with each of them as 1.
ValorCalculado DeRestricciones(const Lector &l, const PasoTraza &p, const std::string &texto, Nombres &) {
    const int k = l.e.matrices.at("_BETA").filas;
    const bool derecha = p.destino == "_TMP2";
    ValorCalculado m{0, derecha ? 1 : k, {}};
    std::istringstream lineas(texto);
    EntornoTraza e;
    Nombres nombres;
    for (std::string r; std::getline(lineas, r, ';'); ++m.filas) {
        const std::string lados = r.substr(0, r.find('=')) + " - (" + r.substr(r.find('=') + 1) + ")";
        const auto con = [&](int j) {
            Numeros &beta = e.series["BETA"];
            beta.assign(static_cast<std::size_t>(k), 0);
            if (j >= 0) beta[static_cast<std::size_t>(j)] = 1;
            return CalcularTexto(e, lados, -1, {0, 0}, false, nombres).datos[0];
        };
        if (derecha) m.datos.push_back(-con(-1));
        for (int j = 0; !derecha && j < k; ++j) m.datos.push_back(con(j) - con(-1));
    }
    return m;
}

// "suma de _S8, retardos 1 a 2": a lag that no two observations have adds the last one once more.
ValorCalculado DeRetardos(Lector &l, const std::smatch &partes, Nombres &nombres) {
    nombres.insert(partes.str(1));
    std::vector<ValorCalculado> &sumas = l.sumas[partes.str(1)];
    ValorCalculado total = sumas.at(0);
    const std::size_t hasta = std::stoul(partes.str(2));
    for (std::size_t i = 1; i < hasta; ++i)
        for (std::size_t j = 0; j < total.datos.size(); ++j)
            total.datos[j] += sumas[std::min(i, sumas.size() - 1)].datos[j];
    sumas.clear();
    return total;
}

// The weights of a consistent covariance matrix have ten decimals: each is rounded before it is used.
ValorCalculado DeSumaPonderada(const Lector &l, const PasoTraza &p, const std::string &peso,
                               const std::string &producto, Nombres &nombres) {
    ValorCalculado suma;
    for (int t = p.filas.primera; t <= p.filas.ultima; ++t) {
        const long double w = CalcularTexto(l.e, peso, t, {t, t}, false, nombres).datos[0];
        const ValorCalculado termino = CalcularTexto(l.e, producto, t, {t, t}, false, nombres);
        if (t == p.filas.primera) suma = {termino.filas, termino.columnas, Numeros(termino.datos.size())};
        for (std::size_t i = 0; i < suma.datos.size(); ++i)
            suma.datos[i] += std::round(w * 1e10L) / 1e10L * termino.datos[i];
    }
    return suma;
}

ValorCalculado MatrizDelPaso(Lector &l, const PasoTraza &p, const TextoDePaso &texto, Nombres &nombres) {
    static const std::regex sinConstantes(R"((\w+) sin las constantes(.*))"),
        retardos(R"(suma de (\w+), retardos 1 a (\d+))"),
        ponderada(R"(suma de (.*e\(t\).*) (x\(t\) x\(t\)'|\(x\(t\) .*\)))");
    std::smatch partes;
    if (texto.formula.starts_with('{')) return DeLlaves(l, p, texto.formula, nombres);
    if (texto.formula.starts_with("BETA(") || texto.formula.find("*BETA(") != std::string::npos)
        return DeRestricciones(l, p, texto.formula, nombres);
    if (std::regex_match(texto.formula, partes, sinConstantes)) return SinConstantes(l, partes, nombres);
    const std::string sinRetardos = Utf8De1252(p.formula); // "retardos 1 a 2" looks like periods
    if (std::regex_match(sinRetardos, partes, retardos)) return DeRetardos(l, partes, nombres);
    if (std::regex_match(texto.formula, partes, ponderada))
        return DeSumaPonderada(l, p, partes.str(1), partes.str(2), nombres);
    const bool sumada = texto.formula.starts_with("suma de ");
    if (texto.deLibro && !sumada && p.filas.ultima > p.filas.primera)
        return UnaFilaPorObservacion(l, p, texto, nombres);
    return Calcular(l, p, texto, p.filas.primera, nombres);
}

// ----- Series

// "A por orden de B": for each place and each behind it, the two change places when the later key is smaller.
Numeros Ordenada(const Lector &l, const PasoTraza &p, const std::string &nombre, const std::string &clave,
                 Nombres &nombres) {
    Numeros serie = l.e.series.at(nombre);
    nombres.insert(nombre);
    Numeros claves = serie;
    if (clave == "|valor|")
        for (long double &x : claves) x = std::fabs(x);
    if (!clave.ends_with("valor") && clave != "|valor|") {
        claves = l.e.series.at(clave);
        nombres.insert(clave);
    }
    const auto hasta = static_cast<std::size_t>(p.filas.ultima);
    for (auto i = static_cast<std::size_t>(p.filas.primera); i < hasta; ++i)
        for (std::size_t j = i + 1; j <= hasta; ++j)
            if (claves[j] < claves[i]) {
                std::swap(claves[i], claves[j]);
                std::swap(serie[i], serie[j]);
            }
    return serie;
}

// "primera fila de A igual a B(t)", counted from 1 at the start of the series.
Numeros Rangos(const Lector &l, const PasoTraza &p, const std::string &donde, const std::string &de,
               Nombres &nombres) {
    nombres.insert(donde);
    nombres.insert(de);
    const Numeros &a = l.e.series.at(donde), &b = l.e.series.at(de);
    Numeros rangos(b.size(), Nada);
    for (auto t = static_cast<std::size_t>(p.filas.primera); t <= static_cast<std::size_t>(p.filas.ultima);
         ++t) {
        auto fila = static_cast<std::size_t>(p.filas.primera);
        while (a.at(fila) != b[t]) ++fila;
        rangos[t] = static_cast<long double>(fila + 1);
    }
    return rangos;
}

// "{_BETA}": its elements, from the first row on.
Numeros DeMatriz(const Lector &l, const PasoTraza &p, const std::string &nombre, Nombres &nombres) {
    nombres.insert(nombre);
    const Numeros &datos = l.e.matrices.at(nombre).datos;
    Numeros serie(static_cast<std::size_t>(p.filas.primera), Nada);
    serie.insert(serie.end(), datos.begin(), datos.end());
    return serie;
}

Numeros SerieDelPaso(const Lector &l, const PasoTraza &p, const TextoDePaso &texto, Nombres &nombres) {
    static const std::regex orden(R"((\w+) por orden de (\S+))"),
        rangos(R"(primera fila de (\w+) igual a (\w+)\(t\))"), llaves(R"(\{(\w+)\})");
    std::smatch partes;
    if (std::regex_match(texto.formula, partes, orden))
        return Ordenada(l, p, partes.str(1), partes.str(2), nombres);
    if (std::regex_match(texto.formula, partes, rangos))
        return Rangos(l, p, partes.str(1), partes.str(2), nombres);
    if (std::regex_match(texto.formula, partes, llaves)) return DeMatriz(l, p, partes.str(1), nombres);
    Numeros serie(static_cast<std::size_t>(p.filas.ultima) + 1, Nada);
    for (int t = p.filas.primera; t <= p.filas.ultima; ++t)
        serie[static_cast<std::size_t>(t)] = Calcular(l, p, texto, t, nombres).datos[0];
    return serie;
}

// "_RES^2, en todas las filas": of all rows that the store has; a missing value counts as zero.
bool EsCuadradoDeTodo(Lector &l, const PasoTraza &p) {
    static const std::regex cuadrado(R"((\w+)\^2, en todas las filas)");
    std::smatch partes;
    if (!std::regex_match(p.formula, partes, cuadrado)) return false;
    Numeros serie = l.e.series.at(partes.str(1));
    for (long double &x : serie) x = std::isnan(x) ? 0 : x * x;
    serie.resize(TodasLasFilasDelFichero);
    EXPECT_EQ(p.resultado.filas, TodasLasFilasDelFichero);
    Numeros guardados;
    for (const std::size_t k : Guardados(serie.size())) guardados.push_back(serie[k]);
    CompararLista(p.resultado.valores, guardados, 1);
    l.e.series[p.destino] = serie;
    return true;
}

// ----- A step

// What the operand is said to be worth, where no step gave it.
void CompararOperando(const Lector &l, const PasoTraza &p, const OperandoTraza &o) {
    if (o.clase == TrazaEscalar) return CompararLista(o.valor.valores, {l.e.escalares.at(o.nombre)}, 0);
    if (o.clase == TrazaMatriz) return CompararMatriz(o.valor, l.e.matrices.at(o.nombre));
    const Numeros &serie = l.e.series.at(o.nombre);
    Numeros guardados;
    for (const std::size_t k : Guardados(static_cast<std::size_t>(p.filas.ultima - p.filas.primera + 1))) {
        const std::size_t fila = static_cast<std::size_t>(p.filas.primera) + k;
        if (fila < serie.size() && !std::isnan(serie[fila])) guardados.push_back(serie[fila]);
    }
    CompararLista(o.valor.valores, guardados, 0);
}

// True for a number that an earlier step gave and that stands in the formula in digits, with six decimals.
bool EstaEnCifras(const Lector &l, const PasoTraza &p, const std::string &nombre) {
    const auto valor = l.e.escalares.find(nombre);
    if (valor == l.e.escalares.end() || p.formula.find(nombre) != std::string::npos) return false;
    static const std::regex cifra(R"(-?\d+\.\d+)");
    for (std::sregex_iterator i(p.formula.begin(), p.formula.end(), cifra), fin; i != fin; ++i)
        if (std::fabs(std::stold(i->str()) - valor->second) <= 5.1e-7L) return true;
    return false;
}

void CompararOperandos(const Lector &l, int lugar, const Nombres &nombres) {
    const PasoTraza &p = Traza.pasos[static_cast<std::size_t>(lugar)];
    Nombres dichos;
    for (const OperandoTraza &o : p.operandos)
        if (!EstaEnCifras(l, p, o.nombre)) dichos.insert(o.nombre);
    EXPECT_EQ(dichos, nombres) << "operandos";
    for (const OperandoTraza &o : p.operandos) {
        SCOPED_TRACE("operando " + o.nombre);
        int ultimo = -1; // the step that gave it its value
        for (int i = 0; i < lugar; ++i)
            if (Traza.pasos[static_cast<std::size_t>(i)].destino == o.nombre) ultimo = i;
        EXPECT_EQ(o.paso, ultimo);
        if (ultimo < 0) CompararOperando(l, p, o);
    }
}

void OlvidarNombre(EntornoTraza &e, const std::string &nombre) {
    e.series.erase(nombre);
    e.matrices.erase(nombre);
    e.escalares.erase(nombre);
}

void RecalcularMatriz(Lector &l, const PasoTraza &p, const TextoDePaso &texto, Nombres &nombres) {
    ValorCalculado m = MatrizDelPaso(l, p, texto, nombres);
    CompararMatriz(p.resultado, m);
    if (p.destino.empty()) return;
    if (m.datos.size() == p.resultado.valores.size())
        m.datos.assign(p.resultado.valores.begin(), p.resultado.valores.end());
    OlvidarNombre(l.e, p.destino);
    if (p.formula.starts_with("suma de (1 - ")) l.sumas[p.destino].push_back(m);
    l.e.matrices[p.destino] = m;
    l.e.primeraFila[p.destino] = p.filas.primera;
}

void RecalcularSerie(Lector &l, const PasoTraza &p, const TextoDePaso &texto, Nombres &nombres) {
    const Numeros serie = SerieDelPaso(l, p, texto, nombres);
    CompararSerie(l, p.resultado, serie);
    if (p.destino.empty()) return;
    OlvidarNombre(l.e, p.destino);
    l.e.series[p.destino] = serie;
}

void RecalcularEscalar(Lector &l, const PasoTraza &p, const TextoDePaso &texto, Nombres &nombres) {
    const ValorCalculado x = Calcular(l, p, texto, p.filas.primera, nombres);
    CompararMatriz(p.resultado, x);
    if (p.destino.empty()) return;
    OlvidarNombre(l.e, p.destino);
    l.e.escalares[p.destino] = p.resultado.valores.at(0);
}

// "x(t)' _BETA con x(t) = {1 BENEF}": what x(t) stands for in this step alone.
bool PonerRegresores(Lector &l, const PasoTraza &p, TextoDePaso &texto, Nombres &nombres) {
    static const std::regex con(R"((.*) con x\(t\) = (\{.*\}))");
    std::smatch partes;
    if (!std::regex_match(texto.formula, partes, con)) return false;
    l.e.matrices["regresores"] = DeLlaves(l, p, partes.str(2), nombres);
    l.e.primeraFila["regresores"] = p.filas.primera;
    l.e.llamadas["x"] = "regresores";
    texto.formula = partes.str(1);
    return true;
}

void RecalcularPaso(Lector &l, int lugar) {
    const PasoTraza &p = Traza.pasos[static_cast<std::size_t>(lugar)];
    EXPECT_EQ(p.fallo, "");
    EXPECT_NE(p.explicacion, "");
    if (p.clase == TrazaSentencia || p.clase == TrazaGrupo) return;
    Nombres nombres;
    TextoDePaso texto = LeerTexto(l, p);
    l.e.llamadas = {{"x", "_XIND"}, {"y", "_YDEP"}};
    const bool conRegresores = PonerRegresores(l, p, texto, nombres);
    for (const OperandoTraza &o : p.operandos)
        if (o.nombre.starts_with("_RES")) l.e.llamadas["e"] = o.nombre;
    if (EsCuadradoDeTodo(l, p)) return;
    switch (p.clase) {
    case TrazaMatriz: RecalcularMatriz(l, p, texto, nombres); break;
    case TrazaSerie: RecalcularSerie(l, p, texto, nombres); break;
    default: RecalcularEscalar(l, p, texto, nombres); break;
    }
    if (conRegresores) nombres.erase("regresores");
    // The operands of a reduction are those of the formula that it is a part of.
    const bool reduccion = p.explicacion.starts_with("De izquierda") || p.explicacion.starts_with("Dentro");
    if (!reduccion) CompararOperandos(l, lugar, nombres);
}

} // namespace

void RecalcularTraza(EntornoTraza &entorno, int primerAno) {
    Lector l{entorno, primerAno, {}};
    ASSERT_EQ(Traza.numero, static_cast<std::int64_t>(Traza.pasos.size()));
    for (int i = 0; i < static_cast<int>(Traza.pasos.size()); ++i) {
        const PasoTraza &p = Traza.pasos[static_cast<std::size_t>(i)];
        SCOPED_TRACE("paso " + std::to_string(i) + ": " + p.destino + " = " + Utf8De1252(p.formula));
        RecalcularPaso(l, i);
        if (testing::Test::HasFatalFailure()) return;
    }
}

std::vector<double> ResultadoTrazado(std::string_view nombre) {
    for (std::size_t i = Traza.pasos.size(); i-- > 0;)
        if (Traza.pasos[i].destino == nombre || Traza.pasos[i].formula == nombre)
            return Traza.pasos[i].resultado.valores;
    return {};
}
