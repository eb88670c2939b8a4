// The work file in memory: the one ArchivoTrabajo with its tables of series, matrices, scalars and equations, their
// lookups, creation and deletion. All tables are fixed arrays that live as long as the program.
#pragma once

#include "platform/plataforma.h"
#include "store/limites.h"

#include <cstdint>
#include <string>
#include <string_view>

// The name of a series, matrix or scalar: 12 characters, upper case, padded with blanks, and the terminator.
using Codigo = char[AnchoCodigo];

// ---------------------------------------------------------------------------------------------------------------
// Header and series

enum TiposDeDatos {
    TipoSinPeriodicidad = 0,
    TipoAnual = 1,
    TipoTrimestral = 2,
    TipoMensual = 3,
    TipoPanel = 4
};

// A series is one column of ValoresObs and PresenciaObs: observation i (0 to 3,999) of the series in slot s (0 to 99)
// stands at [i][s]. Presence is 1, or 0 for a missing value, whose value is 0.0.
struct CabeceraArchivo {
    char NombreProyecto[AnchoProyecto]; // blank filled
    std::uint16_t NumSeries;            // series in use, slots 0 to NumSeries - 1
    std::int16_t TipoDatos;             // TiposDeDatos, or SinTipoDatos
    char TextoIntervalo[AnchoIntervalo];
    char TextosPeriodo[MaxObservaciones][AnchoPeriodo]; // written by PonerTextoPeriodo only
    Codigo Codigos[MaxSeries]; // 12 blanks, or empty until the first reset: no series
    double ValoresObs[MaxObservaciones][MaxSeries];
    std::int32_t PresenciaObs[MaxObservaciones][MaxSeries];
    char EtiquetasObs[MaxObservaciones][AnchoEtiqueta]; // used while ConEtiquetas is set
    std::int32_t NumObs;                                // 1 to 4,000 once a data type is chosen
    std::int16_t PrimeraObs[MaxSeries];
    std::int16_t UltimaObs[MaxSeries];
    std::int32_t ConEtiquetas;
    double ValoresPeriodo[MaxObservaciones]; // the number that each text of TextosPeriodo begins with
    std::int32_t PeriodosCrecientes;         // rows from 0 on whose numbers rise strictly
    // Rows of each slot that may hold something: from this one on value and flag are 0. Whoever writes an observation keeps
    // it (PonerObservacion, MarcarFilas), so that clearing and copying a short series doesn't touch all 4,000 rows.
    std::int32_t FilasEscritas[MaxSeries];
};

extern CabeceraArchivo ArchivoTrabajo;

// Notes that the first `filas` rows of a slot may hold something.
inline void MarcarFilas(int serie, int filas) {
    std::int32_t &marca = ArchivoTrabajo.FilasEscritas[serie];
    if (filas > marca) marca = filas;
}

// Writes one observation, row 0 to 3,999, slot 0 to 99: every writer of single observations comes here.
inline void PonerObservacion(int fila, int serie, double valor, std::int32_t presencia) {
    ArchivoTrabajo.ValoresObs[fila][serie] = valor;
    ArchivoTrabajo.PresenciaObs[fila][serie] = presencia;
    MarcarFilas(serie, fila + 1);
}

// The row texts. PonerTextoPeriodo cuts and pads to 30 bytes and keeps ValoresPeriodo in step; TextoPeriodo gives the
// text without blanks at its sides, empty for a row outside 0 to 3,999.
void PonerTextoPeriodo(int fila, std::string_view texto);
std::string_view TextoPeriodo(int fila);

// First row from `desde` to `hasta` whose text reads as this number, or -1. Two equal texts read as equal numbers, so this
// is also the first row that bears a text of this number. Bounds outside the table count as its ends.
int FilaDeValorPeriodo(double valor, int desde, int hasta);

// Slot of the series (among the NumSeries in use), or -1. The text is padded before it is compared, here and below.
int BuscarSerie(std::string_view codigo);
// The same over all 100 slots.
int BuscarSerieEnTabla(std::string_view codigo);

// True while a series can be created by a statement.
bool CabeOtraSerie();

// Slot for the series of this code: its own or a new one, with NumSeries raised; -1 when no more fit. The code is
// not written yet. Codes that are taken by a matrix or a scalar are the caller's to refuse.
int TomarSerie(std::string_view codigo);

// Clears value and flag of the rows `desde` to `hasta` (not included), which may lie outside the table; the mark of the rows that
// may hold something stays.
void LimpiarFilas(int serie, int desde, int hasta);

// Clears value and flag of all 4,000 rows.
void LimpiarColumna(int serie);

void PonerCodigoSerie(int serie, std::string_view codigo);

// Blanks the code of the slot; the values stay until the next compaction.
void BorrarSerie(int serie);

// Moves every series with a code down to the first free slots and sets NumSeries to their number.
void CompactarSeries();

// Values, flags and codes of all series go, and with `etiquetas` the labels of the observations.
void BorrarTodasLasSeries(bool etiquetas);

// Deletion from the list of series: code, values and flags go, the table is compacted, the editor refreshed.
void EliminarSerie(int serie);

// Checks the whole table of codes after an edit. 1, or 0 with the message in `textoError`, for the caller to show.
// With `compactar` the table is compacted at the end.
int ValidarCodigosSeries(bool compactar, std::string &textoError);

// Checks a candidate for a Codigo and normalises it to 12 capitals, padded. 1, or 0 when it can't be one; `codigo`
// then holds whatever the steps before the refusal left. `texto` is compared with the reserved words as it comes,
// so one that is padded already never equals them: in the editor a series can be called LOG.
int CodigoValido(std::string_view texto, Codigo codigo);

// The words that can't be a Codigo: functions of series (their signed forms among them) and functions of matrices.
bool EsFuncionSerie(std::string_view palabra);
bool EsFuncionMatriz(std::string_view palabra);

// ---------------------------------------------------------------------------------------------------------------
// Scalars

struct RegistroEscalar {
    ::Codigo Codigo;
    double Valor;
};

struct TablaDeEscalares {
    RegistroEscalar registro[MaxEscalares];
    std::int32_t numero;
};

extern TablaDeEscalares TablaEscalares;

// Slot of the scalar among those in use, or -1.
int BuscarEscalar(std::string_view codigo);

// The same over all 60 slots, as the comparisons of the blocks read _TMP01 and _TMP02.
int BuscarEscalarEnTabla(std::string_view codigo);

// Creates or overwrites a scalar. 0 when stored; 1 when the name is a series, 2 when it is a matrix, 3 when the table
// is full, after the box "Borre algunos escalares".
int PonerEscalar(Ventana *ventana, std::string_view codigo, double valor);

// Every later record moves down one place, the count falls by one.
void BorrarEscalar(int escalar);

// ---------------------------------------------------------------------------------------------------------------
// Matrices

// Elements stand by rows: (r, c), from 0, at r * Columnas + c. There are no missing values.
struct RegistroMatriz {
    double *Datos; // valid while EstadoBloque is BloqueFijado, else null
    char Codigo[AnchoCodigo + 1];
    std::int16_t Filas;
    std::int16_t Columnas;
};

enum EstadosDeBloque : std::uint8_t { SinBloque = 0, BloqueSuelto = 1, BloqueFijado = 2 };

struct TablaDeMatrices {
    RegistroMatriz registro[MaxMatrices];
    double *bloque[MaxMatrices];         // handle of the block, null without one
    std::int32_t capacidad[MaxMatrices]; // doubles of the block
    EstadosDeBloque EstadoBloque[MaxMatrices];
    std::int16_t numero;
};

extern TablaDeMatrices TablaMatrices;

// Slot of the matrix, or -1.
int BuscarMatriz(std::string_view codigo);

// Locks the block of a matrix, so that Datos can be used, and lets it go again. FijarMatriz is false when there is
// no block.
bool FijarMatriz(int matriz);
void SoltarMatriz(int matriz);
void SoltarTodasMatrices();

enum ResultadoGuardarMatriz { MatrizGuardada, MatrizSinSitio, MatrizSinMemoria };

// Creates the matrix, or replaces the one of this code, and copies filas * columnas doubles from `datos` (which may
// not point into the block of the matrix itself). MatrizSinSitio when it is new and 29 exist; the caller shows
// "Demasiadas Matrices. Borre algunas.: %d". The block is left unlocked. `filas` * `columnas` is at most 40,001.
ResultadoGuardarMatriz GuardarMatriz(std::string_view codigo, const double *datos, int filas, int columnas);

// Deletes a matrix; each later one moves down through BufferMatriz into a block of its own exact size. 1, or 0 after
// a message of its own ("No hay suficiente Memoria. P21" and the like), the table left as far as it got.
int BorrarMatriz(Ventana *ventana, int matriz);

// Appends a matrix to a table with fewer than 30, in an unlocked full block, and returns its filas * columnas elements
// (at most 40,001) to be filled; null without memory.
double *AnadirMatriz(TablaDeMatrices &tabla, std::string_view codigo, int filas, int columnas);

// Frees every block; at the end of the program.
void LiberarMatrices(TablaDeMatrices &tabla = TablaMatrices);

// One working matrix outside the tables: editing area of the matrix editor, and the carrier when matrices move.
struct MatrizDeTrabajo {
    double datos[ElementosBloque];
    std::int32_t presencia[ElementosBloque];
    ::Codigo Codigo;
    std::int16_t Filas;
    std::int16_t Columnas;
    std::int32_t enUso; // elements from the start that may be other than zero
};

extern MatrizDeTrabajo BufferMatriz;

// Zeroes all of it (only what was in use needs to be touched).
void LimpiarBufferMatriz();

// ---------------------------------------------------------------------------------------------------------------
// Equations

struct TablaDeEcuaciones {
    std::int16_t numero;
    char TextosEcuacion[MaxEcuaciones][AnchoEcuacion];
    Codigo Codigos[MaxEcuaciones];
};

extern TablaDeEcuaciones TablaEcuaciones;

// ---------------------------------------------------------------------------------------------------------------
// Life

// Empties every table and starts without a data type, as at the start of the program. Blocks of matrices are freed:
// a test can start anew as often as it likes.
void IniciarArchivoTrabajo();

// Resets the tables for the present TipoDatos (period texts, NumObs and labels are built anew, the sample limits
// cleared) and clears the grid of the editor. Equations and the description of the panel survive; matrix blocks stay
// in their slots and states, and the next matrices reuse them.
void VaciarArchivoTrabajo();
