// ASCII import: records and fields of both formats, and where each goes. Everything here is met by any bytes at all.
#include "data/intercambio.h"

#include "language/notas.h"
#include "platform/campos_texto.h"
#include "platform/numeros.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <algorithm>

namespace {

constexpr std::size_t AnchoPartePeriodo = 7;   // characters of a period that are read
constexpr std::size_t AnchoParteIndividuo = 3; // of an individual

// The state of one import.
struct Importacion {
    const OpcionesIntercambio &opciones;
    FilasDeMuestra muestra;
    int seriesAntes;   // NumSeries before reading
    int cuenta;        // what NumSeries will be
    int registro;      // number of the record, from 1; blank lines don't count
    std::string campo; // the field at hand
    bool conLetras;    // a value that is no number was read as 0
    bool conComas;     // a value was read up to its comma
};

// What follows a field.
enum Seguimiento { SigueCampo, AcabaRegistro, AcabaTransferencia };

// ---------------------------------------------------------------------------------------------------------------
// Lines

struct LineaLeida {
    std::string_view texto; // without its end, at most AnchoRegistroAscii characters
    bool conFin;            // a line end stood behind it
};

// Reads a line; of a longer one, its first 3,071 characters. The rest is passed over: taken for the next record it would
// be an observation that the file doesn't have, and move all behind it. False at the end of the text.
bool LeerLinea(std::string_view texto, std::size_t &posicion, LineaLeida &linea) {
    if (posicion >= texto.size()) return false;
    const std::size_t fin = texto.find_first_of("\r\n", posicion);
    linea.conFin = fin != std::string_view::npos;
    const std::size_t largo = std::min(fin, texto.size()) - posicion;
    linea.texto = texto.substr(posicion, std::min(largo, static_cast<std::size_t>(AnchoRegistroAscii)));
    posicion += largo;
    if (linea.conFin) posicion += texto.substr(posicion, 2) == "\r\n" ? 2 : 1;
    return true;
}

// ---------------------------------------------------------------------------------------------------------------
// Where fields go

void TomarCampo(Importacion &m, std::string_view campo) {
    m.campo.assign(campo);
    if (m.opciones.DecimalesConComas != 0) std::replace(m.campo.begin(), m.campo.end(), ',', '.');
}

bool EsDeMuestra(const Importacion &m, int fila) {
    return fila >= m.muestra.inicio && fila <= m.muestra.fin;
}

void PonerValor(Importacion &m, int fila, int columna) {
    if (!EsDeMuestra(m, fila) || columna < 0 || columna >= MaxSeries) return;
    const bool falta = CadenaDeCaracter(m.campo, ' ') == 1 || CadenaDeCaracter(m.campo, '-') == 1;
    const double valor = falta ? 0.0 : LeerDecimal(m.campo);
    PonerObservacion(fila, columna, valor, falta ? 0 : 1);
    if (falta) return;
    m.conComas |= m.campo.find(',') != std::string::npos;
    m.conLetras |= valor == 0.0 && m.campo.find_first_not_of("0+-.,eE ") != std::string::npos;
}

void PonerEtiqueta(const Importacion &m, int fila, std::string_view etiqueta) {
    if (EsDeMuestra(m, fila)) PonerCampo(ArchivoTrabajo.EtiquetasObs[fila], etiqueta, AnchoEtiqueta);
}

// The code goes in as it comes, in lower case or twice: the editor finds fault with it when it checks all codes.
void PonerCodigo(int columna, std::string_view codigo) {
    if (columna >= 0 && columna < MaxSeries)
        PonerCodigoSerie(columna, codigo.substr(0, SignificativosCodigo));
}

// NumSeries may count slots of labels and panel fields, but never more slots than there are.
void SubirCuenta(Importacion &m, int cuenta) {
    m.cuenta = std::max(m.cuenta, std::min(cuenta, MaxSeries));
}

// ---------------------------------------------------------------------------------------------------------------
// Variable format

// The observation of a record; the one before the sample for the record of codes.
int FilaDeRegistro(const Importacion &m) {
    return m.muestra.inicio + m.registro - (m.opciones.PrimerRegistroCodigos != 0 ? 2 : 1);
}

// The next field of a record, from `posicion` on; false when there is none.
bool SiguienteCampo(const OpcionesIntercambio &o, std::string_view registro, std::size_t &posicion,
                    std::string_view &campo) {
    if (o.Delimitador != '\0' && o.SoloEtiquetas == 0) {
        const std::size_t abre = registro.find(o.Delimitador, posicion);
        if (abre == std::string_view::npos) return false;
        // The closing delimiter is looked for behind the first character of the field, whatever that is: two
        // delimiters in a row open a field that runs on to a third.
        const std::size_t cierra = registro.find(o.Delimitador, abre + 2);
        if (cierra == std::string_view::npos) return false;
        campo = registro.substr(abre + 1, cierra - abre - 1);
        posicion = cierra + 1;
        return true;
    }
    if (posicion >= registro.size()) return false; // a last field without characters is no field
    const std::size_t fin = std::min(registro.find(o.Separador, posicion), registro.size());
    campo = registro.substr(posicion, fin - posicion);
    posicion = fin + 1;
    return true;
}

// A label as it goes into the table. Where only labels are delimited its first character is taken for the delimiter
// and goes, whatever it is: without delimiters that is a letter.
std::string EtiquetaDeCampo(const OpcionesIntercambio &o, std::string etiqueta) {
    if (o.SoloEtiquetas != 0) {
        etiqueta.erase(0, 1);
        etiqueta.erase(0, etiqueta.find_first_not_of(' '));
        std::erase(etiqueta, o.Delimitador);
    }
    return etiqueta;
}

bool HayOtroCampo(const OpcionesIntercambio &o, std::string_view registro, std::size_t posicion) {
    std::string_view campo;
    return SiguienteCampo(o, registro, posicion, campo);
}

// Field F of a record; from `posicion` on stands what is behind it.
Seguimiento RecibirCampo(Importacion &m, int F, std::string_view registro, std::size_t posicion) {
    static constexpr int CamposPrevios[] = {0, 1, 3}; // before the first series, by ModoEtiquetas
    const OpcionesIntercambio &o = m.opciones;
    const int previos = CamposPrevios[o.ModoEtiquetas];
    const int columna = F - previos + m.seriesAntes;
    const bool conCodigos = o.PrimerRegistroCodigos != 0;
    const int fila = FilaDeRegistro(m);

    if (F < previos) {
        if (F < previos - 1 || (m.registro == 1 && conCodigos)) return SigueCampo;
        PonerEtiqueta(m, fila, EtiquetaDeCampo(o, m.campo));
        if (m.registro == 1) SubirCuenta(m, columna + 1); // the series that were there, and no more
        return SigueCampo;
    }
    if (m.registro == 1) {
        if (conCodigos) {
            const std::string_view codigo = Recortado(m.campo);
            if (codigo.empty())
                return HayOtroCampo(o, registro, posicion) ? AcabaRegistro : AcabaTransferencia;
            PonerCodigo(columna, codigo);
        } else {
            PonerCodigo(columna, Formatear("VAR0%d", columna + 1));
        }
        // The first record alone makes the count: what a longer record brings later stands in columns that stay unseen.
        SubirCuenta(m, columna + 1);
        if (conCodigos) return SigueCampo;
    }
    PonerValor(m, fila, columna);
    return SigueCampo;
}

bool LeerRegistroVariable(Importacion &m, const LineaLeida &linea) {
    // Nothing behind it can lie in the sample any more.
    if (m.registro > 1 && FilaDeRegistro(m) > m.muestra.fin) return false;
    std::size_t posicion = 0;
    std::string_view campo;
    // A field beyond the table is skipped, and so are all behind it.
    for (int F = 0; F + 1 + m.seriesAntes < MaxSeries; ++F) {
        if (!SiguienteCampo(m.opciones, linea.texto, posicion, campo)) break;
        TomarCampo(m, campo);
        const Seguimiento s = RecibirCampo(m, F, linea.texto, posicion);
        if (s == AcabaTransferencia) return false;
        if (s == AcabaRegistro) break;
    }
    return true;
}

// ---------------------------------------------------------------------------------------------------------------
// Fixed format

int ColumnaDeFila(const Importacion &m, int F) {
    const OpcionesIntercambio &o = m.opciones;
    int previos = 0;
    if (TablaCampos.campo[0].Tipo == 'A') {
        previos = 1;
    } else if (o.CamposPanel != 0 && o.ModoEtiquetas == EtiquetasTercerCampo) {
        previos = 3;
    } else if (o.CamposPanel != 0 && o.ModoEtiquetas == SinEtiquetas) {
        previos = 2;
    }
    return F - previos + m.seriesAntes;
}

// The concept that stands first replaces the text of the row, the other is added to it behind a hyphen.
void PonerConcepto(const Importacion &m, int fila, char tipo) {
    if (!EsDeMuestra(m, fila)) return;
    const bool periodo = tipo == 'P';
    const bool esPrimero = periodo == (DescripcionPanel.PrimerConcepto == PeriodoPrimero);
    std::string_view parte =
        std::string_view(m.campo).substr(0, periodo ? AnchoPartePeriodo : AnchoParteIndividuo);
    if (!periodo || esPrimero) parte = Recortado(parte); // a period in second place keeps its blanks
    if (esPrimero) {
        PonerTextoPeriodo(fila, parte);
    } else {
        PonerTextoPeriodo(fila, std::string(TextoPeriodo(fila)).append("-").append(parte));
    }
}

void RecibirCampoFijo(Importacion &m, const CampoFijo &campo, int fila, int columna) {
    switch (campo.Tipo) {
    case 'A': PonerEtiqueta(m, fila, m.campo); break;
    case 'P':
    case 'I': PonerConcepto(m, fila, campo.Tipo); break;
    case 'N':
        // The code is the table's; a first record of codes would be read as data.
        if (m.registro == 1) PonerCodigo(columna, campo.Codigo);
        PonerValor(m, fila, columna);
        break;
    default: break;
    }
}

bool LeerRegistroFijo(Importacion &m, const LineaLeida &linea) {
    const int fila = m.muestra.inicio + m.registro - 1;
    if (fila > m.muestra.fin) return false;
    // The line end counts, so that a field may reach up to it; a last line without one is a character short.
    const int largo = static_cast<int>(linea.texto.size()) + (linea.conFin ? 1 : 0);
    for (int F = 0; F < TablaCampos.numero; ++F) {
        const CampoFijo &campo = TablaCampos.campo[F];
        const int inicio = LeerEntero(campo.Inicio);
        const int longitud = LeerEntero(campo.Longitud);
        const int columna = ColumnaDeFila(m, F);
        if (inicio < 1 || longitud < 1 || largo < inicio + longitud || columna >= MaxSeries) break;
        TomarCampo(
            m, linea.texto.substr(static_cast<std::size_t>(inicio - 1), static_cast<std::size_t>(longitud)));
        RecibirCampoFijo(m, campo, fila, columna);
        // Labels and panel fields are counted as if they were series; the slots too many have no code and go at the
        // next compaction.
        SubirCuenta(m, F + 1 + m.seriesAntes);
    }
    return true;
}

// ---------------------------------------------------------------------------------------------------------------

// What makes a person look at the format again.
void AnotarLectura(const Importacion &m, std::string_view texto) {
    constexpr std::string_view Separadores = ";\t,";
    if (m.conLetras) Anotar("Hay valores que no son números: se han leído como 0"_w);
    if (m.conComas) Anotar("Hay valores con coma, leídos hasta ella: ¿son comas decimales?"_w);
    if (m.cuenta - m.seriesAntes != 1) return;
    const std::string_view linea = texto.substr(0, texto.find_first_of("\r\n"));
    const bool conOtro = m.opciones.FormatoVariable != 0 &&
                         linea.find(m.opciones.Separador) == std::string_view::npos &&
                         linea.find_first_of(Separadores) != std::string_view::npos;
    Anotar(conOtro ? "Se ha leído una sola serie: el separador parece ser otro"_w
                   : "Se ha leído una sola serie"_w);
}

} // namespace

void ImportarTexto(const OpcionesIntercambio &opciones, std::string_view texto, int inicio, int fin) {
    if (opciones.SustituirSeries != 0) BorrarTodasLasSeries(opciones.ModoEtiquetas > 0);
    // The count begins at zero, not at the series that are there: a file without fields leaves them uncounted.
    Importacion m = {opciones, FilasDelArchivo(inicio, fin), ArchivoTrabajo.NumSeries, 0, 0, {}, false,
                     false};
    const auto leerRegistro = opciones.FormatoVariable != 0 ? LeerRegistroVariable : LeerRegistroFijo;

    std::size_t posicion = 0;
    LineaLeida linea;
    while (LeerLinea(texto, posicion, linea)) {
        if (CadenaDeCaracter(linea.texto, ' ') == 1) continue;
        ++m.registro;
        if (!leerRegistro(m, linea)) break;
    }
    ArchivoTrabajo.NumSeries = static_cast<std::uint16_t>(m.cuenta);
    ActualizarLimitesSeries();
    AnotarLectura(m, texto);
}
