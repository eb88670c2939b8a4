// The small work file of the regression tests.
#pragma once

#include "apoyo/plataforma_prueba.h"
#include "estimation/ecuacion.h"
#include "estimation/regresion.h"
#include "language/lote_sentencias.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

// 20 observations, no periodicity: Y, X, Z without a pattern, FALTA with a missing value in row 5, the scalar ALFA.
// The sample has limits, and no question is asked (VSR NO).
inline void EmpezarRegresion() {
    EmpezarConDatos(TipoSinPeriodicidad, "");
    const std::vector<double> y = {3, 5, 4, 8, 7, 9, 12, 11, 15, 13, 17, 16, 18, 22, 21, 20, 25, 24, 27, 30};
    const std::vector<double> x = {1, 3, 2, 4, 6, 5, 7, 9, 11, 8, 12, 10, 13, 17, 14, 16, 19, 15, 20, 22};
    const std::vector<double> z = {2, 7, 1, 8, 2, 8, 1, 8, 2, 8, 4, 5, 9, 0, 4, 5, 2, 3, 5, 3};
    std::vector<double> falta = x;
    falta[5] = __builtin_nan("");
    PonerSerie("Y", y);
    PonerSerie("X", x);
    PonerSerie("Z", z);
    PonerSerie("FALTA", falta);
    PonerEscalar(nullptr, "ALFA", 2.0);
    // Without limits the next statement would run on the rows that all series have: a regression leaves series with a
    // value for each regressor and no more.
    Procesar("MUEST 1 20");
    Lote.VerRegresion = 0;
}

// Reads the equation of an MC on all 20 rows into `e`, for the routines behind it; `lineas` holds its text meanwhile. The
// evaluation stack is opened, and the caller closes it.
inline void LeerEcuacionMC(Estimacion &e, LineasSentencia &lineas, const char *texto) {
    AbrirPilaColumnas();
    LimpiarEvaluador();
    lineas[0] = texto;
    e.lineas = &lineas;
    e.codigo = OrdenMC;
    Muestra.InicioRegresion = 0;
    Muestra.FinRegresion = 19;
    ASSERT_EQ(LeerEcuacion(e, 0), 1);
}

// Runs the engine on a text that the statement driver may not let through. The evaluation stack is opened for it.
inline int EstimarTexto(std::string_view texto, int codigo) {
    AbrirPilaColumnas();
    LimpiarEvaluador();
    Evaluador.ventana = nullptr;
    LineasSentencia lineas;
    lineas[0] = Texto1252DeUtf8(texto);
    int posicion = 0;
    if (codigo == OrdenMC || codigo == OrdenMCP) {
        Muestra.InicioRegresion = Muestra.InicioMuestra;
        Muestra.FinRegresion = Muestra.FinMuestra;
    }
    const int bien = EstimarRegresion(lineas, posicion, nullptr, codigo);
    CerrarPilaColumnas();
    return bien;
}
