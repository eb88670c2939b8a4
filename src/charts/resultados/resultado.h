// What every text result shares: the lines with their kinds, and the result window.
#pragma once

#include "platform/plataforma.h"
#include "store/limites.h"

#include <cstdint>
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

// First and last line, from 0, of the coefficient rows of a regression block, with the title row in front.
struct TablaCoeficientes {
    int titulo, primera, ultima;
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
    int finalesSinRegla = 0;     // so many lines at the end have no rule between them, whatever their kinds
    std::vector<std::string_view> titulosImpresos = {}; // centred on paper, a row each; none: `titulo`
};
