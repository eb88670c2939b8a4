// A regression as a table for spreadsheets.
#include "estimation/tabla_informe.h"

#include "estimation/regresion.h"
#include "platform/campos_texto.h"
#include "platform/literal.h"
#include "store/archivo.h"
#include "store/periodos.h"
#include "store/temporales.h"

#include <charconv>
#include <iterator>
#include <utility>

namespace {

constexpr std::pair<const char *, Familias> Estadisticos[] = {
    {"Media Var. Dependiente", FamMVD},
    {"Des. Típ. Var. Depen."_w, FamDTVD},
    {"Error Típico Regresión"_w, FamDTR},
    {"Suma Cuadrados Resid.", FamDCR},
    {"R Cuadrado", FamRC},
    {"R Cuadrado Corregido", FamRCC},
    {"Logaritmo de Verosim.", FamLV},
    {"Criterio AIC", FamAIC},
    {"Estadístico F"_w, FamFORLA},
    {"Grados de libertad 1", FamANREG},
    {"Grados de libertad 2", FamNORE},
    {"Prob > F", FamESTF},
    {"Estadís. Durbin-Watson"_w, FamDW},
    {"Est. Autocorrelación"_w, FamEA1},
};

// The shortest text that is read back as the same number.
std::string Numero(double valor) {
    char texto[32];
    const auto fin = std::to_chars(std::begin(texto), std::end(texto), valor).ptr;
    return {texto, fin};
}

// Element i of a matrix of the results, empty when there is none.
std::string DeMatriz(Familias familia, int codigo, int i) {
    const int m = BuscarMatriz(NombreFamilia(familia, codigo));
    if (m < 0 || !FijarMatriz(m)) return {};
    const RegistroMatriz &r = TablaMatrices.registro[m];
    return i < r.Filas * r.Columnas ? Numero(r.Datos[i]) : std::string();
}

// Value i of a series of the results, which begins at the first observation of the range.
std::string DeSerie(Familias familia, int codigo, int i) {
    const int s = BuscarSerie(NombreFamilia(familia, codigo));
    const int fila = Muestra.InicioRegresion + i;
    const bool hay =
        s >= 0 && fila >= 0 && fila < MaxObservaciones && ArchivoTrabajo.PresenciaObs[fila][s] == 1;
    return hay ? Numero(ArchivoTrabajo.ValoresObs[fila][s]) : std::string();
}

} // namespace

std::string TablaRegresion(int codigo) {
    const RegistroRegresion &u = UltimaRegresion;
    std::string t = "Variable Dep.\t" + std::string(Recortado(u.CodigoDependiente)) + "\n";
    t += "Muestra\t" + std::string(TextoPeriodo(Muestra.InicioRegresion)) + "\t" +
         std::string(TextoPeriodo(Muestra.FinRegresion)) + "\n";
    if (const int y = BuscarMatriz("_YDEP"); y >= 0)
        t += "Nº Observaciones\t"_w + std::to_string(TablaMatrices.registro[y].Filas) + "\n";
    t += "\n";
    t += "Regresores\tCoeficiente\tDesv. Típica\tEstadís. t\tProb>|t|\n"_w;
    for (std::size_t n = 0; n < u.CodigosRegresores.size(); ++n) {
        const int i = static_cast<int>(n);
        t += u.CodigosRegresores[n] + "\t" + DeMatriz(FamBETA, codigo, i) + "\t" +
             DeMatriz(FamDTE, codigo, i) + "\t" + DeSerie(FamDIV, codigo, i) + "\t" +
             DeSerie(FamPROBT, codigo, i) + "\n";
    }
    t += "\n";
    for (const auto &[nombre, familia] : Estadisticos) {
        const int e = BuscarEscalar(NombreFamilia(familia, codigo));
        if (e >= 0) t += std::string(nombre) + "\t" + Numero(TablaEscalares.registro[e].Valor) + "\n";
    }
    return t;
}
