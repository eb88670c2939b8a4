// What the tests of the matrix evaluator share: a store with known matrices, and one evaluation with what it showed.
#pragma once

#include "apoyo/plataforma_prueba.h"
#include "language/evaluador.h"
#include "matrix/formula_matriz.h"
#include "matrix/pilas_matriz.h"
#include "platform/campos_texto.h"
#include "platform/texto.h"
#include "store/archivo.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <string_view>
#include <vector>

struct MatrizVista {
    int filas = 0, columnas = 0;
    std::vector<double> datos;
};

inline LineasSentencia LineasDePrueba;

// The places of the temporaries as a fresh run of the program has them, and no scalar waiting to be transposed.
inline void ComoRecienArrancado() {
    VaciarPilasMatriz();
    for (TemporalMatriz &t : FormulaMatriz.PilaTemporales) FijarTamano(t, 0, 0);
    FormulaMatriz.EscalarTraspuesto = false;
}

// Evaluates a formula (UTF-8) into the matrix `destino`; the result is that of EvaluarFormulaMatriz. The boxes of this
// evaluation are the only ones that stay recorded.
inline int Evaluar(std::string_view formula, std::string_view destino = "RES", int primera = 0,
                   int ultima = 0) {
    Prueba.cajas.clear();
    LineasDePrueba[0] = Texto1252DeUtf8(formula);
    Evaluador.NivelLinea = 0;
    PonerCampo(Evaluador.CodigoMatrizDestino, destino, AnchoCodigo);
    int posicion = 0;
    const int r = EvaluarFormulaMatriz(LineasDePrueba, posicion, nullptr, primera, ultima);
    EXPECT_GE(posicion, 0);
    EXPECT_LE(posicion, static_cast<int>(LineasDePrueba[0].size())) << "position beyond the text";
    Evaluador.NivelLinea = 0;
    return r;
}

inline MatrizVista Matriz(std::string_view codigo) {
    MatrizVista m;
    m.datos = MatrizDe(codigo, m.filas, m.columnas);
    return m;
}

inline void EsperarMatriz(std::string_view codigo, const MatrizVista &esperada, double tolerancia = 1e-12) {
    const MatrizVista m = Matriz(codigo);
    EXPECT_EQ(m.filas, esperada.filas);
    EXPECT_EQ(m.columnas, esperada.columnas);
    ASSERT_EQ(m.datos.size(), esperada.datos.size());
    for (std::size_t i = 0; i < m.datos.size(); ++i)
        EXPECT_NEAR(m.datos[i], esperada.datos[i], tolerancia * (1.0 + std::fabs(esperada.datos[i])))
            << "element " << i;
}

inline MatrizVista Identidad(int n) {
    MatrizVista m{n, n, std::vector<double>(static_cast<std::size_t>(n) * static_cast<std::size_t>(n))};
    for (int i = 0; i < n; ++i) m.datos[static_cast<std::size_t>(i) * static_cast<std::size_t>(n + 1)] = 1.0;
    return m;
}

// A matrix whose elements count from 1, by rows.
inline MatrizVista Contada(int filas, int columnas) {
    MatrizVista m{filas, columnas, {}};
    for (int i = 1; i <= filas * columnas; ++i) m.datos.push_back(i);
    return m;
}

inline void PonerMatriz(std::string_view codigo, const MatrizVista &m) {
    PonerMatriz(codigo, m.datos, m.filas, m.columnas);
}

// The store of these tests. Matrices A and B 2 by 2, X 3 by 2, V 2 by 1, U 1 by 1, SING singular, UNOS18 the identity of
// 18; scalars E and CERO; series S and T, T with a missing value in row 2.
class ConMatrices : public ::testing::Test {
protected:
    void SetUp() override {
        EmpezarConDatos(TipoSinPeriodicidad, "");
        Evaluador.SeriesPermitidas = 1;
        ComoRecienArrancado();
        PonerMatriz("A", {2, 2, {1, 2, 3, 4}});
        PonerMatriz("B", {2, 2, {5, 6, 7, 8}});
        PonerMatriz("X", Contada(3, 2));
        PonerMatriz("V", {2, 1, {10, 20}});
        PonerMatriz("U", {1, 1, {7}});
        PonerMatriz("SING", {2, 2, {1, 2, 2, 4}});
        PonerMatriz("UNOS18", Identidad(18));
        PonerEscalar(nullptr, "E", 2.5);
        PonerEscalar(nullptr, "CERO", 0.0);
        PonerSerie("S", {11, 12, 13, 14, 15});
        PonerSerie("T", {21, 22, std::nan(""), 24, 25});
        Prueba.cajas.clear();
    }
};

// The boxes shown, all of them with the usual title and icon.
inline std::vector<std::string> Cajas() {
    for (const CajaVista &c : Prueba.cajas) {
        EXPECT_EQ(c.titulo, c.texto == "Demasiados regresores" ? "Proceso Cancelado" : "Proceso cancelado");
        EXPECT_EQ(c.icono, IconoInformacion);
        EXPECT_EQ(c.botones, BotonesAceptar);
    }
    return TextosDeCajas();
}
