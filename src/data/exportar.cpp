// ASCII export: the text of each field, and the records of both formats.
#include "data/intercambio.h"

#include "platform/campos_texto.h"
#include "platform/numeros.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <iterator>

namespace {

constexpr std::size_t AnchoCampo = 19; // characters of every field of a file
constexpr int FilaDeNombres = -1;      // in place of an observation: the first record, with names and codes

// What a whole export has in common.
struct Exportacion {
    const OpcionesIntercambio &opciones;
    int decimales;
};

// Every field has the same width: a longer text is cut, be it a number or what stands behind the hyphen of a period.
std::string AlAncho(std::string texto) {
    texto.resize(AnchoCampo, ' ');
    return texto;
}

std::string ALaDerecha(std::string_view texto) {
    return AlAncho(Formatear("%18.*s", static_cast<int>(texto.size()), texto.data()));
}

std::string_view DeCampo(const char *campo, std::size_t ancho) {
    return {campo, strnlen(campo, ancho)};
}

std::string TextoDeValor(const Exportacion &e, int serie, int fila) {
    if (ArchivoTrabajo.PresenciaObs[fila][serie] != 1) return std::string(AnchoCampo, ' ');
    // The digits of "%18.*f" without its blanks, several times faster, and a file may hold 400,000 of them.
    char cifras[400]; // 309 digits, sign, point and decimals
    const auto r = std::to_chars(cifras, std::end(cifras), ArchivoTrabajo.ValoresObs[fila][serie],
                                 std::chars_format::fixed, e.decimales);
    std::string texto(cifras, r.ptr);
    if (e.opciones.DecimalesConComas != 0) std::replace(texto.begin(), texto.end(), '.', ',');
    return AlAncho(texto);
}

// One of the two parts of a period text. What stands behind the first hyphen runs to the end of the padded text, so
// that it comes out at the left of its field.
std::string TextoDePeriodo(int fila, bool detras) {
    const std::string_view texto = DeCampo(ArchivoTrabajo.TextosPeriodo[fila], AnchoPeriodo - 1);
    const std::size_t guion = texto.find('-');
    if (!detras) return ALaDerecha(texto.substr(0, guion));
    return ALaDerecha(guion == std::string_view::npos ? std::string_view() : texto.substr(guion + 1));
}

bool PeriodoEsPrimero() {
    return DescripcionPanel.PrimerConcepto == PeriodoPrimero;
}

// The field of 19 characters for a type ('A', 'P', 'I', 'N') in an observation, or in the record of names.
std::string TextoDeCampo(const Exportacion &e, char tipo, int serie, int fila) {
    const bool nombres = fila == FilaDeNombres;
    switch (tipo) {
    case 'A':
        return ALaDerecha(nombres ? "Denominacion\t"
                                  : DeCampo(ArchivoTrabajo.EtiquetasObs[fila], AnchoEtiqueta - 1));
    case 'P': return nombres ? ALaDerecha("Periodo\t") : TextoDePeriodo(fila, !PeriodoEsPrimero());
    case 'I': return nombres ? ALaDerecha("Individuo\t") : TextoDePeriodo(fila, PeriodoEsPrimero());
    default:
        if (nombres) return ALaDerecha(DeCampo(ArchivoTrabajo.Codigos[serie], AnchoCodigo - 1));
        return TextoDeValor(e, serie, fila);
    }
}

void AnadirDelimitado(std::string &registro, char delimitador, const std::string &texto) {
    if (delimitador != '\0') registro += delimitador;
    registro += texto;
    if (delimitador != '\0') registro += delimitador;
}

std::string RegistroVariable(const Exportacion &e, int fila) {
    const OpcionesIntercambio &o = e.opciones;
    std::string primeros; // types of the fields before the series
    if (o.CamposPanel != 0) primeros = PeriodoEsPrimero() ? "PI" : "IP";
    if (ArchivoTrabajo.ConEtiquetas != 0 && o.ModoEtiquetas > 0) primeros += 'A';

    std::string registro;
    for (const char tipo : primeros) {
        AnadirDelimitado(registro, o.Delimitador, TextoDeCampo(e, tipo, 0, fila));
        // Names without delimiter follow each other directly: the record of names has never parted them.
        if (fila != FilaDeNombres || o.Delimitador != '\0') registro += o.Separador;
    }
    const char delimitador = o.SoloEtiquetas != 0 ? '\0' : o.Delimitador;
    const int series = std::min<int>(ArchivoTrabajo.NumSeries, MaxSeries);
    for (int s = 0; s < series; ++s) {
        AnadirDelimitado(registro, delimitador, TextoDeCampo(e, 'N', s, fila));
        if (s + 1 < series) registro += o.Separador;
    }
    return registro;
}

// Copies a field to its place in the record; returns the position behind it.
std::size_t ColocarCampo(std::string &registro, const CampoFijo &campo, const std::string &texto) {
    const int inicio = LeerEntero(campo.Inicio) - 1;
    if (inicio < 0 || inicio >= AnchoRegistroAscii) return 0;
    const std::size_t desde = static_cast<std::size_t>(inicio);
    const std::size_t longitud = static_cast<std::size_t>(std::max(LeerEntero(campo.Longitud), 0));
    const std::size_t n = std::min({longitud, AnchoCampo, registro.size() - desde});
    registro.replace(desde, n, texto, 0, n);
    return n > 0 ? desde + n : 0;
}

std::string RegistroFijo(const Exportacion &e, int fila) {
    std::string registro(AnchoRegistroAscii, ' ');
    std::size_t fin = 0;
    for (int f = 0; f < TablaCampos.numero; ++f) {
        const CampoFijo &campo = TablaCampos.campo[f];
        const int serie = std::clamp(campo.IndiceSerie, 0, MaxSeries - 1);
        const std::string texto = TextoDeCampo(e, campo.Tipo, serie, fila);
        fin = std::max(fin, ColocarCampo(registro, campo, AlAncho(std::string(Recortado(texto)))));
    }
    registro.resize(fin);
    return registro;
}

} // namespace

std::string TextoDeExportacion(const OpcionesIntercambio &opciones, int inicio, int fin, int decimales) {
    const bool validos = decimales >= 0 && decimales <= MaxDecimales;
    const Exportacion e = {opciones, validos ? decimales : MaxDecimales};
    const auto registro = opciones.FormatoVariable != 0 ? RegistroVariable : RegistroFijo;
    const FilasDeMuestra muestra = FilasDelArchivo(inicio, fin);

    std::string texto;
    if (opciones.PrimerRegistroCodigos != 0) texto += registro(e, FilaDeNombres) + '\n';
    // As many records as the sample has observations, but from row 0: import and help begin at the sample instead, and
    // files that users hold were written so.
    for (int fila = 0; fila <= muestra.fin - muestra.inicio; ++fila) texto += registro(e, fila) + '\n';
    return texto;
}
