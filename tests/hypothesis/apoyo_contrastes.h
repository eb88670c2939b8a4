// What the tests of the hypothesis tests share: least squares straight from the definition, and a look at the store in the
// moment a report is shown, when the objects of the test still exist.
#pragma once

#include "apoyo/datos_regresion.h"
#include "platform/plataforma.h"

#include <cmath>
#include <functional>
#include <string>
#include <vector>

using Textos = std::vector<std::string>;

// ----- Least squares

struct Ajuste {
    std::vector<long double> beta;
    std::vector<std::vector<long double>> inversa; // of X'X
    std::vector<double> residuos;
    long double scr; // sum of squared residuals
};

// `x` holds the columns.
inline Ajuste Minimos(const std::vector<double> &y, const std::vector<std::vector<double>> &x) {
    const std::size_t k = x.size(), n = y.size();
    // Gauss and Jordan on [X'X | I].
    std::vector<std::vector<long double>> a(k, std::vector<long double>(2 * k, 0.0L));
    for (std::size_t i = 0; i < k; ++i) {
        for (std::size_t j = 0; j < k; ++j)
            for (std::size_t t = 0; t < n; ++t) a[i][j] += static_cast<long double>(x[i][t]) * x[j][t];
        a[i][k + i] = 1.0L;
    }
    for (std::size_t i = 0; i < k; ++i) {
        std::size_t p = i;
        for (std::size_t r = i; r < k; ++r)
            if (std::fabs(a[r][i]) > std::fabs(a[p][i])) p = r;
        std::swap(a[i], a[p]);
        const long double pivote = a[i][i];
        for (long double &v : a[i]) v /= pivote;
        for (std::size_t r = 0; r < k; ++r) {
            if (r == i) continue;
            const long double f = a[r][i];
            for (std::size_t c = 0; c < 2 * k; ++c) a[r][c] -= f * a[i][c];
        }
    }
    Ajuste m;
    for (std::size_t i = 0; i < k; ++i)
        m.inversa.emplace_back(a[i].begin() + static_cast<long>(k), a[i].end());
    for (std::size_t i = 0; i < k; ++i) {
        long double b = 0.0L;
        for (std::size_t j = 0; j < k; ++j)
            for (std::size_t t = 0; t < n; ++t) b += m.inversa[i][j] * x[j][t] * y[t];
        m.beta.push_back(b);
    }
    m.scr = 0.0L;
    for (std::size_t t = 0; t < n; ++t) {
        long double e = y[t];
        for (std::size_t i = 0; i < k; ++i) e -= m.beta[i] * x[i][t];
        m.residuos.push_back(static_cast<double>(e));
        m.scr += e * e;
    }
    return m;
}

inline std::vector<double> Unos(std::size_t n) {
    return std::vector<double>(n, 1.0);
}

// ----- The moment of the report

inline std::function<void()> AlMostrar;
inline std::string TablaMostrada; // for a spreadsheet, in UTF-8

// From now on `mirar` runs when a result window is shown; the window is recorded as ever.
inline void MirarAlMostrar(std::function<void()> mirar) {
    static OperacionesPlataforma operaciones;
    static void (*mostrar)(Ventana *, const SalidaResultado &);
    AlMostrar = std::move(mirar);
    if (&Plataforma() == &operaciones) return;
    operaciones = Plataforma();
    mostrar = operaciones.mostrarResultado;
    operaciones.mostrarResultado = [](Ventana *v, const SalidaResultado &s) {
        AlMostrar();
        TablaMostrada = Utf8De1252(s.tabla);
        mostrar(v, s);
    };
    InstalarPlataforma(operaciones);
}

// ----- Tables that are nearly full: so many codes of a kind, whatever was there before

inline void LlenarSeries(int hasta) {
    while (ArchivoTrabajo.NumSeries < hasta) PonerSerie("S" + std::to_string(ArchivoTrabajo.NumSeries), {1});
}

inline void LlenarMatrices(int hasta) {
    while (TablaMatrices.numero < hasta) PonerMatriz("M" + std::to_string(TablaMatrices.numero), {1}, 1, 1);
}

inline void LlenarEscalares(int hasta) {
    while (TablaEscalares.numero < hasta)
        PonerEscalar(nullptr, "E" + std::to_string(TablaEscalares.numero), 1);
}

// The box of a step that fails where the store is as `preparar` leaves it, by its number; 0: none does.
struct CasoDePaso {
    std::function<void()> preparar;
    int punto;
};

// ----- Results

// Names in the tables that begin with "_", of the kinds that a test may leave behind.
inline Textos TemporalesQueQuedan() {
    Textos r;
    const auto anotar = [&](const char *codigo) {
        const std::string nombre = codigo;
        if (nombre.starts_with("_TM") || nombre.find("RH") != std::string::npos ||
            nombre.starts_with("_DWWA") || nombre.starts_with("_ESTF") ||
            nombre.find("GN") != std::string::npos || nombre.find("GD") != std::string::npos)
            r.push_back(nombre.substr(0, nombre.find(' ')));
    };
    for (int s = 0; s < MaxSeries; ++s) anotar(ArchivoTrabajo.Codigos[s]);
    for (int m = 0; m < TablaMatrices.numero; ++m) anotar(TablaMatrices.registro[m].Codigo);
    for (int e = 0; e < TablaEscalares.numero; ++e)
        if (std::string_view(TablaEscalares.registro[e].Codigo).substr(0, 6) != "_ESTF ")
            anotar(TablaEscalares.registro[e].Codigo);
    return r;
}

// Value of a formula as a statement gives it.
inline double Formula(const std::string &texto) {
    EXPECT_TRUE(Sentencia("ESC PROBADA = " + texto));
    return EscalarDe("PROBADA");
}
