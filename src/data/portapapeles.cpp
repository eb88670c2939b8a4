// Blocks between the grid and a spreadsheet.
#include "data/portapapeles.h"

#include "data/rejilla.h"
#include "platform/campos_texto.h"
#include "platform/numeros.h"
#include "platform/texto.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <iterator>

namespace {

bool SoloCifras(std::string_view texto) {
    return texto.find_first_not_of("0123456789") == std::string_view::npos;
}

// Takes what stands before the first `marca` off the text; all of it when there is none, and then false.
bool Partir(std::string_view &texto, char marca, std::string_view &parte) {
    const std::size_t fin = std::min(texto.find(marca), texto.size());
    const bool habia = fin < texto.size();
    parte = texto.substr(0, fin);
    texto.remove_prefix(habia ? fin + 1 : fin);
    return habia;
}

// The digits of a whole number whose groups of three `marca` parts; false when they aren't groups of three.
bool QuitarMillares(std::string_view texto, char marca, std::string &cifras) {
    bool primero = true, sigue = true;
    while (sigue) {
        std::string_view grupo;
        sigue = Partir(texto, marca, grupo);
        if (!SoloCifras(grupo) || grupo.size() > 3 || grupo.empty() || (!primero && grupo.size() < 3))
            return false;
        cifras += grupo;
        primero = false;
    }
    return true;
}

// The mark before the decimals: of two the one that comes last, and one alone unless it comes more than once, when it
// parts thousands; 0 for none.
char MarcaDecimal(std::string_view mantisa) {
    const std::size_t ultima = mantisa.find_last_of(".,");
    if (ultima == std::string_view::npos) return '\0';
    const char marca = mantisa[ultima];
    return std::count(mantisa.begin(), mantisa.end(), marca) == 1 ? marca : '\0';
}

bool LeerMantisa(std::string_view mantisa, std::string &numero) {
    const char marca = MarcaDecimal(mantisa);
    std::string_view entera = mantisa, decimales;
    if (marca != '\0') {
        const std::size_t donde = mantisa.find(marca);
        entera = mantisa.substr(0, donde);
        decimales = mantisa.substr(donde + 1);
    }
    if (!SoloCifras(decimales) || entera.size() + decimales.size() == 0) return false;
    if (SoloCifras(entera)) {
        numero += entera;
    } else if (!QuitarMillares(entera, entera.find(',') != std::string_view::npos ? ',' : '.', numero)) {
        return false;
    }
    if (!decimales.empty()) numero.append(".").append(decimales);
    return true;
}

bool LeerExponente(std::string_view exponente, std::string &numero) {
    if (!exponente.empty() && (exponente[0] == '-' || exponente[0] == '+')) {
        numero += exponente[0];
        exponente.remove_prefix(1);
    }
    numero += exponente;
    return !exponente.empty() && SoloCifras(exponente);
}

// The next line, without its end; false when there is none.
bool SiguienteLinea(std::string_view &bloque, std::string_view &linea) {
    if (bloque.empty()) return false;
    const std::size_t fin = std::min(bloque.find_first_of("\r\n"), bloque.size());
    linea = bloque.substr(0, fin);
    bloque.remove_prefix(bloque.substr(fin, 2) == "\r\n" ? fin + 2 : std::min(fin + 1, bloque.size()));
    return true;
}

bool PegarCampo(int columna, int fila, std::string_view texto) {
    if (Editor.CeldaActual != CeldaCodigoMatriz) return RejillaActual().pegar(columna, fila, texto);
    // The code of the matrix has room for one field.
    const bool primero = columna == ColumnaDeCelda(CeldaCodigoMatriz) && fila == 0;
    if (primero && !texto.empty()) RejillaActual().confirmar(CeldaCodigoMatriz, texto);
    return primero || texto.empty();
}

} // namespace

bool NumeroPegado(std::string_view texto, std::string &numero) {
    numero.clear();
    if (!texto.empty() && (texto[0] == '-' || texto[0] == '+')) {
        if (texto[0] == '-') numero = "-";
        texto.remove_prefix(1);
    }
    const std::size_t e = texto.find_first_of("eE");
    if (!LeerMantisa(texto.substr(0, e), numero)) return false;
    if (e != std::string_view::npos) {
        numero += 'e';
        if (!LeerExponente(texto.substr(e + 1), numero)) return false;
    }
    return std::isfinite(LeerDecimal(numero));
}

std::string NumeroParaHoja(double valor, char marcaDecimal) {
    char cifras[32];
    const auto r = std::to_chars(cifras, std::end(cifras), valor);
    std::replace(cifras, r.ptr, '.', marcaDecimal);
    return {cifras, r.ptr};
}

std::string LineaDeHoja(const std::vector<std::string> &campos) {
    std::string linea;
    for (const std::string &campo : campos) {
        if (&campo != &campos.front()) linea += '\t';
        const std::size_t desde = linea.size();
        linea += campo;
        std::replace_if(
            linea.begin() + static_cast<std::ptrdiff_t>(desde), linea.end(),
            [](char c) { return c == '\t' || c == '\n' || c == '\r'; }, ' ');
    }
    return linea + '\n';
}

void PegarEnEditor(Ventana *ventana, std::string_view bloque) {
    const int columna = ColumnaDeCelda(Editor.CeldaActual), fila = FilaDeCelda(Editor.CeldaActual);
    int sinSitio = 0;
    std::string_view linea;
    for (int k = 0; SiguienteLinea(bloque, linea); ++k) {
        std::string_view campo;
        bool sigue = true;
        for (int j = 0; sigue; ++j) {
            sigue = Partir(linea, '\t', campo);
            if (!PegarCampo(columna + j, fila + k, Recortado(campo))) ++sinSitio;
        }
    }
    RefrescarRejilla();
    IrACelda(Editor.CeldaActual);
    if (sinSitio > 0)
        MostrarMensaje(
            ventana, Formatear("Datos sin pegar: %d. Les falta código o fila, o no son números."_w, sinSitio),
            TituloAviso);
}

std::string CopiarDelEditor(char marcaDecimal) {
    return RejillaActual().copiar(marcaDecimal);
}
