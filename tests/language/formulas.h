// A small work file for the tests of formulas, and their evaluation without the driver around them.
#pragma once

#include "apoyo/plataforma_prueba.h"
#include "language/evaluador.h"
#include "platform/numeros.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

inline constexpr double Falta = std::numeric_limits<double>::quiet_NaN();

// Ten rows, with periods 1 to 10 and the whole of them as sample.
//   A  1 2 3 4 5 6 7 8 9 10                B  ten times A
//   H  as A, rows 4 and 9 missing          G  as A, row 0 missing
//   T = 2, K = 0.5, N = -3, Z = 0          M = 1 2 / 3 4, R = 1 2 3 / 4 5 6
class Formulas : public testing::Test {
protected:
    void SetUp() override {
        EmpezarPrueba();
        ArchivoTrabajo.TipoDatos = TipoSinPeriodicidad;
        PonerFilas(10);
        PonerSerie("A", {1, 2, 3, 4, 5, 6, 7, 8, 9, 10});
        PonerSerie("B", {10, 20, 30, 40, 50, 60, 70, 80, 90, 100});
        PonerSerie("H", {1, 2, 3, 4, Falta, 6, 7, 8, 9, Falta});
        PonerSerie("G", {Falta, 2, 3, 4, 5, 6, 7, 8, 9, 10});
        PonerEscalar(nullptr, "T", 2);
        PonerEscalar(nullptr, "K", 0.5);
        PonerEscalar(nullptr, "N", -3);
        PonerEscalar(nullptr, "Z", 0);
        PonerMatriz("M", {1, 2, 3, 4}, 2, 2);
        PonerMatriz("R", {1, 2, 3, 4, 5, 6}, 2, 3);
        ASSERT_TRUE(AbrirPilaColumnas());
        LimpiarEvaluador();
    }

    void TearDown() override { CerrarPilaColumnas(); }

    static void PonerFilas(int n) {
        ArchivoTrabajo.NumObs = n;
        for (int i = 0; i < n && i < MaxObservaciones; ++i) PonerTextoPeriodo(i, std::to_string(i + 1));
        Muestra.InicioMuestra = 0;
        Muestra.FinMuestra = n - 1;
    }

    // Evaluates the text as it stands, with the state as it is. The operators are those of one character.
    static int Evaluar(std::string_view formula, int primera = 0, int ultima = 9) {
        Prueba.cajas.clear();
        lineas[0] = Texto1252DeUtf8(formula);
        int posicion = 0;
        return EvaluarFormula(lineas, posicion, primera, ultima);
    }

    // A statement of its own, priorities grouped as behind an "=". The rows of the sample, NaN where they are missing;
    // nothing after a failure.
    static std::vector<double> Calcular(std::string_view formula, int primera = 0, int ultima = 9) {
        LimpiarEvaluador();
        Prueba.cajas.clear();
        lineas[0] = "SER X = " + std::string(formula);
        int posicion = 8;
        AgruparPrioridades(lineas[0], posicion, static_cast<int>(lineas[0].size()));
        if (EvaluarFormula(lineas, posicion, primera, ultima) == 0) return {};
        return FilasSuperiores();
    }

    static std::vector<double> FilasSuperiores() {
        std::vector<double> r;
        const ColumnaPila &c = ColumnaSuperior();
        for (int i = Evaluador.PrimeraEval; i <= Evaluador.UltimaEval; ++i)
            r.push_back(c.presente[i] != 0 ? c.valor[i] : Falta);
        return r;
    }

    // Values of the top column whatever their flags.
    static std::vector<double> ValoresSuperiores() {
        const ColumnaPila &c = ColumnaSuperior();
        return {c.valor + Evaluador.PrimeraEval, c.valor + Evaluador.UltimaEval + 1};
    }

    static LineasSentencia lineas;
};

inline LineasSentencia Formulas::lineas;

// Equal to the last bit, a missing value equal to a missing value.
inline void EsperarFilas(const std::vector<double> &vistas, const std::vector<double> &esperadas) {
    ASSERT_EQ(vistas.size(), esperadas.size());
    for (std::size_t i = 0; i < vistas.size(); ++i) {
        SCOPED_TRACE(i);
        EXPECT_EQ(vistas[i] != vistas[i], esperadas[i] != esperadas[i]);
        EXPECT_TRUE(esperadas[i] != esperadas[i] || vistas[i] == esperadas[i])
            << vistas[i] << ", not " << esperadas[i];
    }
}
