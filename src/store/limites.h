// Every limit of the program, with its name. The tables have these sizes; the tests that refuse a new entry often
// refuse one short of them, on purpose: the last slot stays unused on the statement path.
#pragma once

inline constexpr int MaxObservaciones = 4000; // rows of every table of observations
inline constexpr int MaxSeries = 100;         // slots of TablaSeries
inline constexpr int MaxMatrices = 30;        // slots of TablaMatrices
inline constexpr int MaxEscalares = 60;       // slots of TablaEscalares
inline constexpr int MaxEcuaciones = 20;      // slots of TablaEcuaciones

inline constexpr int TopeSeries = 98; // a statement refuses a new series when NumSeries is above this
inline constexpr int TopeSeriesFicticias = 97; // SER FICTIC does when NumSeries is above this
inline constexpr int TopeMatrices = 28;        // a new matrix is refused when the count is above this
inline constexpr int TopeEscalares = 58;       // a new scalar is refused when the count is above this
inline constexpr int TopeEcuaciones = 18;      // a new equation is refused when the count is above this

inline constexpr int ElementosBloque = 40001; // doubles of a fresh matrix block and of a temporary
inline constexpr int MaxElementos = 40000;    // rows times columns of a matrix built from series

inline constexpr int AnchoCodigo = 13;         // bytes of a Codigo: 12 characters and the terminator
inline constexpr int SignificativosCodigo = 8; // characters of a Codigo that may be other than blank
inline constexpr int AnchoPeriodo = 30;        // bytes of the text of a period
inline constexpr int AnchoEtiqueta = 13;       // bytes of the label of an observation or of an individual
inline constexpr int AnchoIntervalo = 31;      // bytes of TextoIntervalo
inline constexpr int AnchoProyecto = 10;       // bytes of NombreProyecto
inline constexpr int AnchoEcuacion = 100;      // bytes of the text of an equation

inline constexpr int MaxIndividuosEtiqueta =
    50; // individuals that can bear a label; entries with the individual first
inline constexpr int MaxPeriodosIndividuo = 25; // periods of one individual of a variable panel
inline constexpr int MaxPeriodosPanel = 3999;   // entries of a variable panel with the period first
inline constexpr int SinTipoDatos = 6;          // TipoDatos while none was chosen

inline constexpr int MaxNiveles = 12;              // text buffers of a statement: level 11 is the last
inline constexpr int MaxColumnasPila = 50;         // columns of PilaColumnas
inline constexpr int MaxFuncionesPendientes = 12;  // functions whose arguments are being evaluated
inline constexpr int MaxOperadoresPendientes = 50; // operators waiting for their right operand
inline constexpr int MaxTemporalesMatriz = 10;     // entries of the stacks of the matrix evaluator
inline constexpr int MaxListaENUM = 100;           // codes of MIENTRAS (ENUM = ...)
inline constexpr int MaxFilasTraspuestas = 100;    // rows of a matrix that its transpose keeps
inline constexpr int MaxInversa = 300;         // n times n above this can't be inverted: 17 is the largest n
inline constexpr int MaxValoresFicticios = 99; // distinct values of SER FICTIC

inline constexpr int MaxRestricciones = 11; // of a null hypothesis
inline constexpr int AnchoRestriccion = 80; // characters of the text of one

inline constexpr int MaxLineasSalida = 4000;    // lines of TextoSalida
inline constexpr int AnchoLineaSalida = 100;    // characters of a line
inline constexpr int MaxDecimales = 6;          // of a number that is shown; DecimalesSalida is at most this
inline constexpr int AnchoRegistroAscii = 3071; // characters of a record of an ASCII file that are handled
inline constexpr int MaxCamposFijos = 103;      // rows of the table of the fixed format

inline constexpr int SitiosRetardo = 500; // elements of the arrays of autocorrelations; lag 0 has one
inline constexpr int MaxRetardo =
    SitiosRetardo - 1;                    // the longest lag, and the values that a partial function sees
inline constexpr int MaxDescriptivos = 9; // series of one table of descriptive measures
inline constexpr int MaxMuestraTransformada = 998; // values of a series that a transformation takes
inline constexpr int AnchoCodigoTransformada = 9;  // characters of its code that the dialog reads
