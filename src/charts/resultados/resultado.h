// What every text result shares: the lines with their kinds, and the result window.
#pragma once

#include "charts/resultados/fuentes.h"
#include "platform/plataforma.h"
#include "store/limites.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// A line of a result. Between two neighbouring lines of different Grupo the window draws a rule.
struct LineaSalida {
    std::int32_t Grupo;
    char texto[AnchoLineaSalida + 1]; // at most 100 characters
};

// The lines of one result: at most 4,000; further ones are dropped.
using TextoSalida = std::vector<LineaSalida>;

// Appends a line, cut at 100 characters. False when the text is full.
bool AnadirLinea(TextoSalida &texto, int grupo, std::string_view linea);

enum TiposDeSalida {
    SalidaRegresion, // "resultado": the result window proper
    SalidaHipotesis,
    SalidaAutocorrelacion,
    SalidaNormalidad,
    SalidaPrediccion,
    SalidaDescriptivos,
    SalidaHistograma,
    SalidaUltimaRegresion,
    SalidaMuestra,
    SalidaRelacion
};

// Where thin vertical rules stand in a table. With the stock font of 8 by 16: units from the left edge of the window as
// it opens; in a wider window they move with the block. With any other font: the characters of a row, from 0, that
// its fields leave blank.
struct ReglasVerticales {
    std::array<int, 4> conFuenteBase;
    std::array<std::size_t, 4> blancos;
};
inline constexpr ReglasVerticales ReglasDeCoeficientes = {{160, 290, 410, 510}, {15, 30, 45, 54}};
// The third one runs through the mean squares, as the units are given.
inline constexpr ReglasVerticales ReglasDeVarianza = {{156, 250, 410, 510}, {14, 25, 35, 49}};

// First and last line, from 0, of the rows of a table, with the title row in front.
struct TablaCoeficientes {
    int titulo, primera, ultima;
    const ReglasVerticales *reglas = &ReglasDeCoeficientes;
};

// A regression that a result shows, with all its digits: for whoever reads results and not windows.
struct RegresionMostrada {
    struct Regresor {
        std::string codigo;
        double coeficiente, desviacion, t, probabilidad;
    };
    struct Estadistico {
        std::string_view rotulo; // as the report's table names it
        double valor;
    };
    int metodo; // code of the statement
    std::string dependiente;
    int primera, ultima; // rows of the work file, both included
    int observaciones;
    std::vector<Regresor> regresores;
    std::vector<Estadistico> estadisticos;
};

// What paper shows otherwise than the window. Each kind has its own titles; here stands what a result knows better.
struct PapelDeSalida {
    std::vector<std::string_view> titulos = {}; // a row each
    const char *pagina = nullptr;       // behind the first title, with the number of the page; null for none
    const TextoSalida *fijas = nullptr; // in the block above the lines of every page, instead of the window's
    const TextoSalida *alAbrir =
        nullptr; // as many as the lines: what a line reads when a new page begins with it
};

// A result window as it is handed to the outside.
struct SalidaResultado {
    TiposDeSalida tipo;
    std::string_view titulo;
    int Clase;     // code of the statement, for SalidaRegresion
    int Contenido; // 0 the report, 1 covariance matrix, 2 values and residuals, 3 analysis of variance
    const TextoSalida *lineas;                    // never null
    const TextoSalida *fijas;                     // lines that don't scroll, or null
    const std::vector<TablaCoeficientes> *tablas; // where thin vertical rules stand, or null
    std::string_view tabla = {}; // the result for a spreadsheet: tabulators, all digits; may be empty
    const std::vector<RegresionMostrada> *regresiones =
        nullptr;             // whose blocks stand in the lines, in their order, or null
    int finalesSinRegla = 0; // so many lines at the end have no rule between them, whatever their kinds
    PapelDeSalida papel = {};
    int (*graficos)(Ventana *ventana) =
        nullptr; // what "&Gráficos" opens; null: nothing. The result is not used
    const FuentesDeSalida *fuentes = nullptr; // of the numbers in the lines, or null
    MomentoDeTraza traza = {};                // when the result was made
};
