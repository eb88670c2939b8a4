// The tables of a work file on disk. Writing and reading share their texts: a file whose tables were made by any other
// statement is no work file. Rows, slots and entries count from 1 there.
#pragma once

#include "platform/fichero_tablas.h"
#include "store/limites.h"

#include <string>

// "TBRA". The fullest file takes some 15 million bytes; one that another program worked on may keep unused pages.
inline constexpr MarcaDeFichero MarcaTrabajo = {0x54425241, 1, std::size_t{64} << 20};

struct TablaDeFichero {
    const char *nombre;
    const char *columnas; // as the table is created with them
    int numColumnas;
};

enum TablasDeTrabajo {
    TablaCabecera, // one row
    TablaDeSeries,
    TablaMatricesFichero,
    TablaEscalaresFichero,
    TablaEcuacionesFichero,
    TablaPanel, // one row
    TablaPanelEtiquetas,
    TablaPanelPeriodos,
    TablaPanelIndividuos,
    NumTablasDeTrabajo
};

inline constexpr TablaDeFichero EsquemaTrabajo[NumTablasDeTrabajo] = {
    {"cabecera",
     "proyecto TEXT, tipo INTEGER, intervalo TEXT, observaciones INTEGER, series INTEGER, etiquetas INTEGER, "
     "filas INTEGER, lugares INTEGER",
     8},
    {"series", "lugar INTEGER PRIMARY KEY, codigo TEXT, primera INTEGER, ultima INTEGER", 4},
    {"matrices", "lugar INTEGER PRIMARY KEY, codigo TEXT, filas INTEGER, columnas INTEGER, datos BLOB", 5},
    {"escalares", "lugar INTEGER PRIMARY KEY, codigo TEXT, valor REAL", 3},
    {"ecuaciones", "lugar INTEGER PRIMARY KEY, codigo TEXT, texto TEXT", 3},
    {"panel", "forma INTEGER, primero INTEGER, entradas INTEGER, periodicidad INTEGER", 4},
    {"panel_etiquetas", "individuo INTEGER PRIMARY KEY, etiqueta TEXT", 2},
    {"panel_periodos", "entrada INTEGER PRIMARY KEY, periodo TEXT, individuos INTEGER", 3},
    // One row a period of an individual; an individual without periods has one row with an empty period.
    {"panel_individuos", "entrada INTEGER, orden INTEGER, periodo TEXT", 3},
};

// The table of the observations has one column a slot: fila, periodo, etiqueta, s1, s2, ...
inline constexpr const char *TablaObservaciones = "observaciones";
inline constexpr int ColumnasAntesDeSeries = 3;
std::string ColumnasObservaciones(int lugares);

std::string CrearTabla(const std::string &nombre, const std::string &columnas);
