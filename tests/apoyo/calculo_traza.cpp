// Reading and computing the texts of a trace.
#include "apoyo/calculo_traza.h"

#include <boost/math/special_functions/beta.hpp>
#include <boost/math/special_functions/erf.hpp>
#include <boost/math/special_functions/gamma.hpp>
#include <boost/multiprecision/cpp_bin_float.hpp>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <stdexcept>

namespace {

using Valor = ValorCalculado;
using Numeros = std::vector<long double>;

constexpr long double Nada = std::numeric_limits<long double>::quiet_NaN();

struct NoSeEntiende : std::runtime_error {
    using std::runtime_error::runtime_error;
};

Valor DeNumero(long double x) {
    return {1, 1, {x}};
}

bool EsNumero(const Valor &v) {
    return v.filas == 1 && v.columnas == 1;
}

long double Numero(const Valor &v) {
    if (!EsNumero(v)) throw NoSeEntiende("una matriz donde va un número");
    return v.datos[0];
}

// ----- Matrices

template <class Operacion> Valor PorElementos(const Valor &a, const Valor &b, Operacion operacion) {
    const Valor &forma = EsNumero(a) ? b : a;
    if (!EsNumero(a) && !EsNumero(b) && (a.filas != b.filas || a.columnas != b.columnas))
        throw NoSeEntiende("dimensiones");
    Valor r = forma;
    for (std::size_t i = 0; i < r.datos.size(); ++i)
        r.datos[i] = operacion(a.datos[EsNumero(a) ? 0 : i], b.datos[EsNumero(b) ? 0 : i]);
    return r;
}

Valor Producto(const Valor &a, const Valor &b) {
    if (EsNumero(a) || EsNumero(b))
        return PorElementos(a, b, [](long double x, long double y) { return x * y; });
    if (a.columnas != b.filas) throw NoSeEntiende("dimensiones de un producto");
    Valor r{a.filas, b.columnas, Numeros(static_cast<std::size_t>(a.filas * b.columnas))};
    for (int i = 0; i < a.filas; ++i)
        for (int j = 0; j < b.columnas; ++j)
            for (int k = 0; k < a.columnas; ++k)
                r.datos[static_cast<std::size_t>(i * b.columnas + j)] +=
                    a.datos[static_cast<std::size_t>(i * a.columnas + k)] *
                    b.datos[static_cast<std::size_t>(k * b.columnas + j)];
    return r;
}

Valor Traspuesta(const Valor &a) {
    Valor r{a.columnas, a.filas, {}};
    for (int j = 0; j < a.columnas; ++j)
        for (int i = 0; i < a.filas; ++i)
            r.datos.push_back(a.datos[static_cast<std::size_t>(i * a.columnas + j)]);
    return r;
}

// Gauss and Jordan with pivots, in four times the digits: the products of White's test are close to singular.
Valor Inversa(const Valor &a) {
    using Largo = boost::multiprecision::cpp_bin_float_quad;
    if (a.filas != a.columnas) throw NoSeEntiende("la inversa de lo que no es cuadrado");
    const auto n = static_cast<std::size_t>(a.filas);
    std::vector<std::vector<Largo>> m(n, std::vector<Largo>(2 * n, Largo(0)));
    for (std::size_t i = 0; i < n; ++i) {
        for (std::size_t j = 0; j < n; ++j) m[i][j] = a.datos[i * n + j];
        m[i][n + i] = 1;
    }
    for (std::size_t i = 0; i < n; ++i) {
        std::size_t p = i;
        for (std::size_t f = i; f < n; ++f)
            if (abs(m[f][i]) > abs(m[p][i])) p = f;
        std::swap(m[i], m[p]);
        const Largo pivote = m[i][i];
        for (Largo &v : m[i]) v /= pivote;
        for (std::size_t f = 0; f < n; ++f) {
            const Largo factor = m[f][i];
            for (std::size_t c = 0; f != i && c < 2 * n; ++c) m[f][c] -= factor * m[i][c];
        }
    }
    Valor r{a.filas, a.columnas, {}};
    for (const auto &fila : m)
        for (std::size_t j = n; j < 2 * n; ++j) r.datos.push_back(static_cast<long double>(fila[j]));
    return r;
}

Valor Potencia(const Valor &a, long double exponente) {
    Valor r = a;
    for (long double &x : r.datos) x = std::pow(x, exponente);
    return r;
}

// ----- Probabilities of being exceeded; for t and the normal, in absolute value

long double ProbabilidadF(long double x, long double n, long double m) {
    return boost::math::ibeta(m / 2, n / 2, m / (n * x + m));
}

// ----- Reading

struct Lectura {
    const EntornoTraza &e;
    const std::string &texto;
    int t;
    FilasCalculo filas;
    bool lengua;
    std::set<std::string> &nombres;
    std::size_t i = 0;

    Valor Todo() {
        Valor v = Expresion();
        // The evaluator of the language stops at a ")" that closes nothing.
        if (Sigue() != '\0' && !(lengua && Sigue() == ')')) throw NoSeEntiende("sobra: " + texto.substr(i));
        return v;
    }

    char Sigue() {
        while (i < texto.size() && texto[i] == ' ') ++i;
        return i < texto.size() ? texto[i] : '\0';
    }
    bool Toma(const std::string &que) {
        Sigue();
        if (texto.compare(i, que.size(), que) != 0) return false;
        i += que.size();
        return true;
    }
    void Exige(const std::string &que) {
        if (!Toma(que)) throw NoSeEntiende("falta " + que + " en: " + texto.substr(i));
    }

    Valor Operar(char operador, const Valor &a, const Valor &b) {
        switch (operador) {
        case '+': return PorElementos(a, b, [](long double x, long double y) { return x + y; });
        case '-': return PorElementos(a, b, [](long double x, long double y) { return x - y; });
        // In the language, what can't be divided is 0.
        case '/':
            return PorElementos(
                a, b, [this](long double x, long double y) { return lengua && y == 0 ? 0 : x / y; });
        default: return Producto(a, b);
        }
    }

    bool EmpiezaFactor() {
        const char c = Sigue();
        return c == '(' || c == '_' || std::isalnum(static_cast<unsigned char>(c)) != 0;
    }

    Valor Expresion() {
        if (lengua) return DeIzquierdaADerecha();
        Valor v = Termino();
        for (char c = Sigue(); c == '+' || c == '-'; c = Sigue()) {
            ++i;
            v = Operar(c, v, Termino());
        }
        return v;
    }

    // All operators are of one rank.
    Valor DeIzquierdaADerecha() {
        Valor v = Factor();
        for (;;) {
            const char c = Sigue();
            if (c == '+' || c == '-' || c == '*' || c == '/') {
                ++i;
                v = Operar(c, v, Factor());
            } else if (EmpiezaFactor()) {
                v = Producto(v, Factor());
            } else {
                return v;
            }
        }
    }

    Valor Termino() {
        Valor v = Juntos();
        for (char c = Sigue(); c == '*' || c == '/'; c = Sigue()) {
            ++i;
            v = Operar(c, v, Juntos());
        }
        return v;
    }

    // Things side by side.
    Valor Juntos() {
        Valor v = Factor();
        while (EmpiezaFactor()) v = Producto(v, Factor());
        return v;
    }

    Valor Factor() {
        if (Toma("-"))
            return PorElementos(DeNumero(-1), Factor(), [](long double x, long double y) { return x * y; });
        Valor v = Primario();
        for (;;) {
            if (Toma("'"))
                v = Traspuesta(v);
            else if (Toma("$"))
                v = Inversa(v);
            else if (Toma("^"))
                v = Potencia(v, Numero(Primario()));
            else
                return v;
        }
    }

    Valor Primario() {
        if (Toma("(")) {
            Valor v = Expresion();
            Exige(")");
            return v;
        }
        if (Toma("|")) {
            Valor v = Expresion();
            Exige("|");
            return DeNumero(std::fabs(Numero(v)));
        }
        if (!lengua && Toma("suma de ")) return SobreLasFilas(false);
        if (!lengua && Toma("media de ")) return SobreLasFilas(true);
        const char c = Sigue();
        if (std::isdigit(static_cast<unsigned char>(c)) != 0 || c == '.') {
            char *fin = nullptr;
            const long double x = std::strtold(texto.c_str() + i, &fin);
            i = static_cast<std::size_t>(fin - texto.c_str());
            return DeNumero(x);
        }
        return DeNombre();
    }

    // The sum or the mean of what follows, over the rows of the step.
    Valor SobreLasFilas(bool media) {
        const int aqui = t;
        const std::size_t desde = i;
        Valor suma = DeNumero(0);
        for (t = filas.primera; t <= filas.ultima; ++t) {
            i = desde;
            const Valor termino = Juntos();
            suma = t == filas.primera ? termino : Operar('+', suma, termino);
        }
        t = aqui;
        return media ? Operar('/', suma, DeNumero(filas.ultima - filas.primera + 1)) : suma;
    }

    std::string Nombre() {
        const std::size_t desde = i;
        while (i < texto.size() &&
               (std::isalnum(static_cast<unsigned char>(texto[i])) != 0 || texto[i] == '_'))
            ++i;
        if (i == desde) throw NoSeEntiende("no es un nombre: " + texto.substr(i));
        return texto.substr(desde, i - desde);
    }

    int Entero() {
        Sigue();
        char *fin = nullptr;
        const long n = std::strtol(texto.c_str() + i, &fin, 10);
        i = static_cast<std::size_t>(fin - texto.c_str());
        return static_cast<int>(n);
    }

    std::vector<Valor> Argumentos() {
        Exige("(");
        std::vector<Valor> a = {Expresion()};
        while (Toma(",")) a.push_back(Expresion());
        Exige(")");
        return a;
    }

    Valor DeNombre() {
        Sigue();
        std::string nombre = Nombre();
        if (const auto a = e.llamadas.find(nombre); !lengua && a != e.llamadas.end()) nombre = a->second;
        if (const auto s = e.series.find(nombre); s != e.series.end()) {
            nombres.insert(nombre);
            return DeNumero(DeSerie(s->second));
        }
        if (const auto x = e.escalares.find(nombre); x != e.escalares.end()) {
            nombres.insert(nombre);
            return DeNumero(x->second);
        }
        if (const auto m = e.matrices.find(nombre); m != e.matrices.end()) {
            nombres.insert(nombre);
            return DeMatriz(nombre, m->second);
        }
        return DeFuncion(nombre);
    }

    // At t, or at the row that a lag or "(t-1)" tells.
    long double DeSerie(const Numeros &s) {
        int fila = t;
        if (Toma("(")) {
            if (Toma("t")) {
                if (Sigue() != ')') fila += Entero();
            } else {
                fila += Entero();
            }
            Exige(")");
        }
        return fila >= 0 && fila < static_cast<int>(s.size()) ? s[static_cast<std::size_t>(fila)] : Nada;
    }

    // Whole; an element; or the row of an observation, as a column.
    Valor DeMatriz(const std::string &nombre, const Valor &m) {
        if (Toma("[")) {
            const int fila = Entero();
            Exige(",");
            const int columna = Entero();
            Exige("]");
            return DeNumero(m.datos.at(static_cast<std::size_t>((fila - 1) * m.columnas + columna - 1)));
        }
        if (lengua || !Toma("(t")) return m;
        int fila = t - e.primeraFila.at(nombre);
        if (Sigue() != ')') fila += Entero();
        Exige(")");
        if (fila < 0 || fila >= m.filas) throw NoSeEntiende("fuera de " + nombre);
        const auto desde = m.datos.begin() + static_cast<std::ptrdiff_t>(fila) * m.columnas;
        return {m.columnas, 1, Numeros(desde, desde + m.columnas)};
    }

    // The values of an argument over the rows of the step.
    Numeros Columna() {
        Exige("(");
        const int aqui = t;
        const std::size_t desde = i;
        Numeros valores;
        for (t = filas.primera; t <= filas.ultima; ++t) {
            i = desde;
            valores.push_back(Numero(Expresion()));
        }
        t = aqui;
        Exige(")");
        return valores;
    }

    Valor DeFuncion(const std::string &nombre) {
        if (nombre == "SUMSER" || nombre == "MEDSER") {
            long double suma = 0;
            const Numeros valores = Columna();
            for (const long double x : valores) suma += x;
            return DeNumero(nombre == "SUMSER" ? suma : suma / static_cast<long double>(valores.size()));
        }
        const std::vector<Valor> a = Argumentos();
        if (nombre == "ESCAL") return DeNumero(Numero(a.at(0)));
        if (nombre == "RCMT")
            return PorElementos(a.at(0), DeNumero(0),
                                [](long double x, long double cero) { return std::sqrt(std::max(x, cero)); });
        if (nombre == "VECT") {
            Valor r{1, a.at(0).filas, {}};
            for (int k = 0; k < r.columnas; ++k)
                r.datos.push_back(a[0].datos[static_cast<std::size_t>(k * r.columnas + k)]);
            return r;
        }
        Numeros x;
        for (const Valor &v : a) x.push_back(Numero(v));
        if (nombre == "RCUAD") return DeNumero(std::sqrt(std::max(x.at(0), 0.0L)));
        if (nombre == "LN") return DeNumero(std::log(x.at(0)));
        if (nombre == "EXP") return DeNumero(std::exp(x.at(0)));
        if (nombre == "ABS") return DeNumero(std::fabs(x.at(0)));
        if (nombre == "POT") return DeNumero(std::pow(x.at(0), x.at(1)));
        if (nombre == "PROBF") return DeNumero(ProbabilidadF(x.at(0), x.at(1), x.at(2)));
        if (nombre == "PROBT") return DeNumero(ProbabilidadF(x.at(0) * x.at(0), 1, x.at(1)));
        if (nombre == "PROBC") return DeNumero(boost::math::gamma_q(x.at(1) / 2, x.at(0) / 2));
        if (nombre == "PROBN") return DeNumero(boost::math::erfc(std::fabs(x.at(0)) / std::sqrt(2.0L)));
        throw NoSeEntiende("nombre desconocido: " + nombre);
    }
};

} // namespace

ValorCalculado CalcularTexto(const EntornoTraza &entorno, const std::string &texto, int t, FilasCalculo filas,
                             bool deIzquierdaADerecha, std::set<std::string> &nombres) {
    try {
        Lectura lectura{entorno, texto, t, filas, deIzquierdaADerecha, nombres};
        return lectura.Todo();
    } catch (const std::exception &fallo) {
        ADD_FAILURE() << texto << ": " << fallo.what();
        return DeNumero(Nada);
    }
}
