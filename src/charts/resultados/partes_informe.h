// What the reports are put together from: number fields, the head with its names and sample, lines of scalars.
#pragma once

#include "charts/resultados/resultado.h"
#include "store/temporales.h"

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// ----- Number fields. Each at the right of `ancho` characters; they differ in which end a number too long for it loses.

// `decimales` from 0 to 7, any other count means 10. A longer number is cut to its first `ancho` - 1 characters.
std::string NumeroCampo(int decimales, double valor, int ancho);

// The last `ancho` characters: a number too wide loses its leading digits.
std::string NumeroFijo(double valor, int decimales, int ancho);

// The number is printed with `impresos` decimals and copied from its left through the first `decimales` of them, at most
// `ancho` characters: what isn't copied is dropped, not rounded.
std::string NumeroCopiado(int impresos, int decimales, double valor, int ancho);

// The shortest text that is read back as the same number, for a spreadsheet.
std::string NumeroExacto(double valor);

// A text in the middle of `ancho` characters, cut at them; the odd blank stands behind it.
std::string Centrado(std::string_view texto, int ancho);

// ----- Head

// Names joined by `separador`. Once the text is longer than `largo` no name is added; `alCortar` goes behind a list that not
// all found room in.
std::string UnirNombres(std::span<const std::string> nombres, char separador, std::size_t largo,
                        const char *alCortar = "");

// "first - last": the periods of two rows, blanks at their right removed.
std::string TextoDeFilas(int primera, int ultima);

// How the head of a report is written.
struct FormatoCabecera {
    const char *dependiente, *regresores;
    std::size_t largoLista; // a longer list of names takes no further one
    const char *alCortar;   // stands behind a list that was cut
    int blancos;            // width of the empty line that closes the head
};

// Above the block of a regression, and above a test.
inline constexpr FormatoCabecera CabeceraDeRegresion = {"Variable Dep.: %-10s   ", "Regresores   : %-44s", 45,
                                                        "", 70};
inline constexpr FormatoCabecera CabeceraDeContraste = {
    "Variable Dep.: %-10s                                            ", "Regresores   : %-54s", 45, "", 70};

inline constexpr const char *FormatoMuestra = "Muestra      : %-20s Nº Observaciones     : %-10d"_w;
inline constexpr const char *FormatoMuestraOrdenada = "Muestra Orde.: %-20s Nº Observaciones     : %-10d"_w;

struct DatosCabecera {
    std::string dependiente;
    std::span<const std::string> nombres;
    std::string muestra;
    int observaciones = 0;
    const char *formatoMuestra = FormatoMuestra;
    std::string mas = {}; // a line below that of the sample; empty for none
};

// Appends the lines of a head, all of kind 0.
void AnadirCabecera(TextoSalida &texto, const FormatoCabecera &formato, const DatosCabecera &datos);

// ----- Lines of scalars

// A field of a line: a result of the regression of a code, a scalar by its own name, or, with neither, a number that is
// handed in.
struct CampoDeInforme {
    Familias familia; // NumFamilias for none
    const char *escalar;
    const char *rotulo; // in the table for a spreadsheet
    int decimales, ancho;
    const char *explicacion = nullptr; // how that of the step begins that gave a number handed in
};

constexpr CampoDeInforme DeFamilia(Familias familia, const char *rotulo, int decimales = 4, int ancho = 10) {
    return {familia, nullptr, rotulo, decimales, ancho};
}
constexpr CampoDeInforme DeEscalar(const char *escalar, const char *rotulo, int decimales = 4,
                                   int ancho = 10) {
    return {NumFamilias, escalar, rotulo, decimales, ancho};
}
constexpr CampoDeInforme NumeroDado(const char *rotulo, int decimales = 4, int ancho = 10,
                                    const char *explicacion = nullptr) {
    return {NumFamilias, nullptr, rotulo, decimales, ancho, explicacion};
}

// The format takes a "%s" for each field. Fields without a label end the line.
struct LineaDeInforme {
    int grupo;
    const char *formato;
    std::array<CampoDeInforme, 4> campos;
};

// Appends the lines, the results read under the names of `codigo`, their fields as NumeroCampo writes them; `dados` are the
// numbers handed in, in order. False when a scalar is gone.
bool AnadirLineas(TextoSalida &texto, std::span<const LineaDeInforme> lineas, int codigo,
                  std::span<const double> dados = {});

// Appends the sources of the same fields: these lines are the last ones of `texto`.
void AnadirFuentes(FuentesDeSalida &fuentes, const TextoSalida &texto, std::span<const LineaDeInforme> lineas,
                   int codigo);

// The values of the same fields under their labels. A scalar that is gone is left out.
std::vector<RegresionMostrada::Estadistico> ValoresDeLineas(std::span<const LineaDeInforme> lineas,
                                                            int codigo, std::span<const double> dados = {});

// The same fields for a spreadsheet: label, tabulator, number with all its digits. A scalar that is gone is left out.
std::string TablaDeLineas(std::span<const LineaDeInforme> lineas, int codigo,
                          std::span<const double> dados = {});
