// Least squares: from the text of an equation to the results in the store and the report.
#pragma once

#include "language/evaluador.h"
#include "store/ordenes.h"

#include <string>
#include <vector>

enum TiposDeCovarianza {
    CovarianzaNormal = 1,
    CovarianzaHeterocedasticidad = 2,
    CovarianzaAutocorrelacion = 3
};

// The record of the last MC or MCP: what tests, predictions and charts read.
struct RegistroRegresion {
    int RegresionHecha;
    int DesdeDialogo; // set by OK of the dialogs of MC and MCP, cleared when one opens; a typed statement leaves it
    int MetodoRegresion; // 8 or 13
    char CodigoDependiente[AnchoCodigo];
    std::vector<std::string> CodigosRegresores; // as typed: 1, X1, SALARIO(-1); at most 12 characters each
    int NumRegresores;
    int PrimeraObsRegresion, UltimaObsRegresion; // after the shift by lags
    int TipoCovarianza;
    int RetardosCovarianza;
    int Ponderada;
    std::string TextoPonderacion;
    std::string TextoEcuacion;       // at most 100 characters
    std::string SentenciaRegresion;  // the whole line
    int RegresorRetardado;           // place of the regressor with the shortest lag, or -1
    int SeriesRegresion[NumOrdenes]; // series regressors by CodigoOrden
    // The list of the run being shown, for the report.
    std::vector<std::string> TextosRegresores;
    int NumTextos;
    char DependienteMostrado[AnchoCodigo];
};

extern RegistroRegresion UltimaRegresion;

// What a test notes for its report, beside what it leaves in the store.
struct RegistroContraste {
    int primeraDenominador,
        ultimaDenominador; // rows of the two parts of Goldfeld and Quandt's ordered sample
    int primeraNumerador, ultimaNumerador;
    std::string ordenacion; // the ordering variable as entered
    int verRegresion;       // RA was given
    int productosCruzados;  // PC was given
};

extern RegistroContraste UltimoContraste;

// No last regression, default kind 8, no regressors; no last test.
void IniciarRegresion();

// Runs the statement of code 8 to 13 from `posicion` of lineas[NivelLinea], behind the first word and its blanks. The
// range is Muestra.InicioRegresion to FinRegresion. 1, or 0 after a message. The temporaries of the code are deleted,
// but for those of an MGN that ended well: the MGD of the same test reads them, and deletes both.
int EstimarRegresion(LineasSentencia &lineas, int &posicion, Ventana *ventana, int &codigo);

// Deletes the temporaries of a command, with the counts of the last regression. Result 0.
int BorrarTemporales(Ventana *ventana, int codigo);
