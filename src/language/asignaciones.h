// The statements that give a name a value: SER, ESC, OBS, CAL and SER FICTIC, and the store operations behind them.
#pragma once

#include "language/evaluador.h"

// SER, ESC, OBS, CAL, SER FICTIC and MAT from behind the first word: parses target and "=", groups priorities,
// evaluates and stores. `codigo` is the CodigoOrden of the first word and becomes OrdenFICTIC for a SER FICTIC.
// 1 to go on, 0 to stop.
int EjecutarAsignacion(LineasSentencia &lineas, int &posicion, Ventana *ventana, int primera, int ultima,
                       int &codigo);

// Stores the top column as the series CodigoSerieDestino, over PrimeraEval to UltimaEval. 1, or 0 without a message when
// the name is taken by another table or no more series fit.
int GuardarSerie();

// Stores the top column's first row as the scalar CodigoEscalarDestino. 0 when stored, else above 0 (PonerEscalar).
int GuardarEscalar();

// Stores the top column's first row at the row of CodigoSerieDestino that `periodo` names; the second form doesn't look
// outside the sample. 1 (also when no row has this name), or 0 when the series doesn't exist or its name is taken.
int GuardarObservacion(std::string_view periodo, Ventana *ventana);
int GuardarObservacionMuestra(std::string_view periodo, Ventana *ventana);

// Fills the series with the one column of a matrix from row InicioRegresion on, up to FinRegresion: the form
// SER serie = {matriz}, `texto` from behind the "{" on. 1, or 0 after a message.
int SerieDesdeMatriz(std::string_view serie, const std::string &texto, int posicion, Ventana *ventana);

// SER codigo = codigo(-n) resto, with `posicion` of the statement's line behind the "=": stores row after row, each
// from the row just stored n places before it, for the rows i with primera + n <= i < ultima - primera + 1. 1 when
// the statement had this form, whether or not it failed ("Error en el cálculo", "Error en las asignaciones": the
// batch goes on), else 0.
int SerieRecursiva(int posicion, Ventana *ventana, LineasSentencia &lineas, int primera, int ultima);

// Makes a series of ones and zeros for each distinct whole value, at most 99, that CodigoSerieDestino has in the rows
// primera <= i < ultima - primera + 1. An unknown series gives the box "(%s)", title "Serie no existe"; a full table
// ends it in silence, with the series made so far.
void SeriesFicticias(Ventana *ventana, int primera, int ultima);
