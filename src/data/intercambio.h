// ASCII exchange: series from a text file and to a text file, in variable or fixed records. The dialogs only carry
// values to and fro; what they decide stands here.
#pragma once

#include "platform/plataforma.h"
#include "store/limites.h"

#include <string>
#include <string_view>
#include <vector>

// ---------------------------------------------------------------------------------------------------------------
// Options and the first dialog

enum ModosDeEtiquetas { SinEtiquetas = 0, EtiquetasPrimerCampo = 1, EtiquetasTercerCampo = 2 };

// Kept from the moment the first dialog opens until the transfer ends. The options of the two format dialogs are not
// separated: what the variable one set stays in force when the fixed one is accepted behind it.
struct OpcionesIntercambio {
    int Importando = 0;            // 1 import, 0 export
    int Aceptado = 0;              // the first dialog was closed with OK
    int FormatoElegido = 0;        // one of the two format dialogs was closed with OK
    int FormatoVariable = 0;       // 1 variable, 0 fixed; the dialog last accepted decides
    char Separador = ',';          // parts the fields
    char Delimitador = '"';        // encloses fields; 0 none
    int SoloEtiquetas = 1;         // 1 only labels and panel fields are delimited, 0 series too
    int PrimerRegistroCodigos = 0; // the first record holds the series codes
    int ModoEtiquetas = 0;         // ModosDeEtiquetas
    int DecimalesConComas = 0;     // "," is the decimal mark in the file
    int CamposPanel = 0;           // period and individual fields are present
    int SustituirSeries = 0;       // "Existen Series ¿Desea sustituirlas?" was answered with yes
};

// What the dialogs of a transfer work on, from the moment the first one opens until the transfer ends.
struct EstadoIntercambio {
    OpcionesIntercambio opciones;
    std::string archivo;
    int decimales; // copy of DecimalesSalida, which takes it when the transfer begins
};

extern EstadoIntercambio Intercambio;

// The whole command: what comes before the first dialog, that dialog, and the transfer when it was closed with OK.
void IntercambiarAscii(Ventana *ventana, bool importando);

// "Importación de Series" or "Exportación de Series", with which the titles of the dialogs begin.
const char *TituloIntercambio(bool importando);

// "Seleccionar archivo": the name of the file goes back to ArchivoSinElegir, and the user chooses another. False when he
// cancels, which closes the first dialog too.
bool ElegirArchivoDeIntercambio(Ventana *ventana);

// Name of a file that was not chosen yet; AjustarNombreArchivo refuses it.
inline constexpr const char *ArchivoSinElegir = "*.txt";

// What comes before the first dialog: the guard ("Tipo de datos no válidos"), on import with series the question
// whether they are replaced, and every option at its start value. False when nothing is to follow.
bool EmpezarIntercambio(Ventana *ventana, bool importando, OpcionesIntercambio &opciones);

// The test of a file name, over the whole path as it was given. False for a name with "*", "?" or "-", and for an
// empty one. A name without "." gets ".TXT".
bool AjustarNombreArchivo(std::string &archivo);

// OK of the first dialog: the checks of format and name, then the transfer over the rows of Muestra, which must be up
// to date (ActualizarMuestra). `decimales` is what the decimals dialog left; Lote.DecimalesSalida takes it as soon as
// the transfer begins, also when the file then can't be opened. True when the file was read or written. Messages:
// "Opciones no válidas", "Nombre archivo incorrecto", "Error al abrir el archivo", and on export to an existing file
// the question "El archivo ya existe ¿Sobreescribir?". The editor is the caller's to refresh.
bool IntercambioAscii(Ventana *ventana, OpcionesIntercambio &opciones, std::string archivo, int decimales);

// ---------------------------------------------------------------------------------------------------------------
// Variable format

enum EleccionesSeparador { SeparadorComas, SeparadorTabuladores, SeparadorOtros };
enum EleccionesDelimitador { DelimitadorComillas, DelimitadorNada, DelimitadorOtros };

// The controls of the dialog, with their state when it opens.
struct ValoresFormatoVariable {
    EleccionesSeparador separador = SeparadorComas;
    std::string otroSeparador = {}; // edit field of "Otros"; 3 characters of it count
    EleccionesDelimitador delimitador = DelimitadorComillas;
    std::string otroDelimitador = {};
    bool delimitadasSoloEtiquetas = true; // false: "Etiquetas y series"
    bool primerRegistroCodigos = false;
    bool primerCampoEtiquetas = false;
    bool decimalesConComas = false;
    bool camposPanel = false;          // counts for panel data only
    bool tercerCampoEtiquetas = false; // the same
};

// OK of the dialog.
void AceptarFormatoVariable(const ValoresFormatoVariable &valores, OpcionesIntercambio &opciones);

// ---------------------------------------------------------------------------------------------------------------
// Fixed format

inline constexpr int AnchoCodigoCampo = 9; // bytes: 8 characters and the terminator
inline constexpr int AnchoPosicion = 4;    // bytes: 3 digits and the terminator
inline constexpr const char *CodigoEtiqueta = "DENO    ";
inline constexpr const char *CodigoPeriodo = "PERI    ";
inline constexpr const char *CodigoIndividuo = "INDI    ";

struct CampoFijo {
    char Codigo[AnchoCodigoCampo]; // blank padded
    char Tipo;                     // 'A' label, 'N' series, 'P' period, 'I' individual
    char Inicio[AnchoPosicion];    // first position in the record, from 1
    char Longitud[AnchoPosicion];
    int IndiceSerie; // slot of the series on export, 0 if none
};

struct TablaDeCampos {
    CampoFijo campo[MaxCamposFijos];
    int numero;
};

// Stays between transfers.
extern TablaDeCampos TablaCampos;

// The four edit fields of the dialog.
struct EdicionCampo {
    std::string codigo, tipo, inicio, longitud;
};

// Opening of the dialog. Export fills the table anew from the series, one field of 18 behind the other; import shows
// the table as it stood and proposes position 1.
void AbrirFormatoFijo(bool importando, EdicionCampo &edicion);

// "Añadir": appends the row of the edit fields and prepares them for the next one. False after a message with title
// "Aviso", with table and fields as they were.
bool AnadirCampo(Ventana *ventana, bool importando, EdicionCampo &edicion);

// "Eliminar": row `seleccionado` (from 0) goes from the table into the edit fields. False when there is no such row.
bool EliminarCampo(int seleccionado, EdicionCampo &edicion);

// The line of the list box for a row, and the row that a line holds, found by counting hyphens; IndiceSerie is 0.
std::string LineaDeCampo(const CampoFijo &campo);
CampoFijo CampoDeLinea(std::string_view linea);

// OK of the dialog. False after a message with title "Aviso"; the dialog stays open.
bool AceptarFormatoFijo(Ventana *ventana, bool decimalesConComas, OpcionesIntercambio &opciones);

// ---------------------------------------------------------------------------------------------------------------
// The transfer, without the file

// The records for the sample, in Windows-1252, each ended by a line feed. There are as many as the sample has
// observations, but they are the first observations of the work file: the program exports from row 0.
// `decimales` is 0 to 6, any other value counts as 6.
std::string TextoDeExportacion(const OpcionesIntercambio &opciones, int inicio, int fin, int decimales);

// Reads the records of `texto` (Windows-1252; lines end with LF, CR LF or CR) into rows `inicio` to `fin`, and
// recomputes NumSeries, PrimeraObs and UltimaObs. Of a line the first 3,071 characters count. Any bytes are safe.
void ImportarTexto(const OpcionesIntercambio &opciones, std::string_view texto, int inicio, int fin);

// PrimeraObs and UltimaObs of every series from PresenciaObs; 0 and 0 for a series without values.
void ActualizarLimitesSeries();
