// The names of series, matrices and scalars: which texts can be one, and the reserved words.
#include "platform/campos_texto.h"
#include "platform/indice_palabras.h"
#include "platform/texto.h"
#include "store/archivo.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace {

constexpr std::string_view FuncionesMatriz[] = {"DET",   "LNDET", "TRAZA", "MIN",   "MAX",  "SUMA",
                                                "NFILA", "NCOLU", "DIAG",  "ESCAL", "VECT", "NOBS",
                                                "NREG",  "MINC",  "LNMT",  "RCMT"};

// A formula can't reach the signed forms, since a token never begins with a sign; the words are reserved all the same.
constexpr std::string_view FuncionesSerie[] = {
    "LOG",   "RCUAD",  "LN",     "ABS",    "EXP",    "POT",    "TEND",   "PROG", "PROBT", "PROBF",
    "PROBN", "PROBC",  "SUMSER", "MEDSER", "DESSER", "MAXSER", "MINSER", "RND",  "RNDN",  "NOT",
    "-LOG",  "-RCUAD", "-LN",    "-ABS",   "-EXP",   "-POT",   "-TEND",  "-PROG"};

constexpr auto LaPalabra = [](std::string_view p) { return p; };
constexpr auto IndiceMatriz = IndexarPalabras(FuncionesMatriz, LaPalabra);
constexpr auto IndiceSerie = IndexarPalabras(FuncionesSerie, LaPalabra);

bool EsLetra(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

// One of the first nine characters of a code without its leading blanks. Letters, digits, an inner blank and "^" pass;
// "_" at the first place only. The terminator and bytes above 127 don't.
bool CaracterDeCodigo(char c, bool primero) {
    if (c == ' ') return true;
    if (c < '0' || c > 'z') return false;
    if (c == '_') return primero;
    return std::strchr(":;<=>?@[\\]`", c) == nullptr;
}

} // namespace

bool EsFuncionSerie(std::string_view palabra) {
    return BuscarPalabra(IndiceSerie, palabra) >= 0;
}

bool EsFuncionMatriz(std::string_view palabra) {
    return BuscarPalabra(IndiceMatriz, palabra) >= 0;
}

int CodigoValido(std::string_view texto, Codigo codigo) {
    PonerCampo(codigo, texto, AnchoCodigo);
    if (EsFuncionMatriz(texto) || EsFuncionSerie(texto)) return 0;
    if (!EsLetra(codigo[0]) && codigo[0] != ' ' && codigo[0] != '_') return 0;
    if (CadenaDeCaracter(codigo + SignificativosCodigo, ' ') == 0) return 0;
    Codigo copia;
    RecortarCadena(copia, codigo, RecorteIzquierda);
    for (int i = 0; i <= SignificativosCodigo; ++i)
        if (!CaracterDeCodigo(copia[i], i == 0)) return 0;
    for (char *c = codigo; *c != '\0'; ++c) *c = Mayuscula(*c);
    return 1;
}

int ValidarCodigosSeries(bool compactar, std::string &textoError) {
    auto &codigos = ArchivoTrabajo.Codigos;
    const auto enBlanco = [&](int s) { return CadenaDeCaracter(codigos[s], ' ') == 1; };
    for (int s = 0; s < MaxSeries; ++s)
        if (enBlanco(s)) LimpiarColumna(s);
    for (int i = 0; i < MaxSeries; ++i) {
        for (int j = i + 1; j < MaxSeries && !enBlanco(i); ++j) {
            if (std::strcmp(codigos[i], codigos[j]) == 0) {
                textoError = std::string("Códigos repetidos : "_w) + codigos[i];
                return 0;
            }
            const char c = codigos[i][0];
            if (!EsLetra(c) && c != ' ' && c != '_') {
                textoError = std::string("Primer caracter código no válido"_w) + codigos[i];
                return 0;
            }
        }
    }
    for (int s = 0; s < MaxSeries; ++s) {
        if (enBlanco(s)) continue;
        const char *causa = nullptr;
        if (CodigoValido(std::string(codigos[s]), codigos[s]) == 0) {
            causa = "Código de serie no válido:"_w;
        } else if (BuscarMatriz(codigos[s]) >= 0) {
            causa = "Código de serie no válido, igual a matriz:"_w;
        } else if (BuscarEscalar(codigos[s]) >= 0) {
            causa = "Código de serie no válido, igual a escalar:"_w;
        }
        if (causa != nullptr) {
            textoError = std::string(causa) + codigos[s];
            return 0;
        }
    }
    if (compactar) CompactarSeries();
    return 1;
}
