// The steps of a regression as rows: destination, formula and the points of their failures. Values that go through a
// text have six decimals, and later formulas see them so. What the placeholders hold stands in pasos.cpp.
#pragma once

#include "language/cadena.h"

// Only to have the matrices.
inline constexpr PasoCadena PasosPrevios[] = {
    {PasoMatriz, PrimeraFila, "_TMF2", "{0 0 0 0}", 6524},
    {PasoMatriz, PrimeraFila, "_TMF3", "{0 0 0 0}", 6524},
    {PasoMatriz, PrimeraFila, "_TMF4", "{0 0 0 0}", 6524},
};

inline constexpr PasoCadena PasosAjuste[] = {
    {PasoMatriz, PrimeraFila, "%(BETA)s", "_TMF5$ * _TMF6", 6535},
    {PasoMatriz, PrimeraFila, "_YAJU1", "_XIND * %(BETA)s", 653},
    {PasoSerieDeMatriz, TodasLasFilas, "_YAJUS", "_YAJU1"},
    {PasoMatriz, PrimeraFila, "_RESM", "_YDEP - (_XIND * %(BETA)s)", 653},
    {PasoSerieDeMatriz, TodasLasFilas, "%(RES)s", "_RESM"},
};

inline constexpr PasoCadena PasosSumaResidual[] = {
    {PasoEscalar, PrimeraFila, "%(SCR)s", "ESCAL(_SCR1)", 655, 656},
};

// The standard error, with degrees of freedom and without.
inline constexpr PasoCadena PasosErrorTipico[] = {
    {PasoEscalar, PrimeraFila, "%(DTR)s", "RCUAD(%(SCR)s/%(gl)d)", 955, 956},
};
inline constexpr PasoCadena PasosErrorNulo[] = {
    {PasoEscalar, PrimeraFila, "%(DTR)s", " 0.0", 955, 956},
};

inline constexpr PasoCadena PasosVarianza[] = {
    {PasoEscalar, PrimeraFila, "%(MTR)s", "%(DTR)s * %(DTR)s", 655, 656},
};

inline constexpr PasoCadena PasosCovarianza[] = {
    {PasoMatriz, PrimeraFila, "%(COV)s", "%(MTR)s * _TMF5$", 657},
};

inline constexpr PasoCadena PasosMedidas[] = {
    {PasoMatriz, PrimeraFila, "%(DTE)s", "RCMT(VECT(%(COV)s))", 658},
    {PasoEscalar, PrimeraFila, "%(MVD)s", "%(media)10.6f", 659, 6661},
    {PasoEscalar, PrimeraFila, "%(STVD)s", "%(suma)10.6f", 6662, 6636},
    {PasoEscalar, PrimeraFila, "%(LV)s", "(%(constante)f + (%(mitad)f * LN(%(SCR)s/%(n)d)))* -1.00", 6664,
     6665},
    {PasoEscalar, PrimeraFila, "%(AIC)s", "(-2 * (%(LV)s - %(k)d))/%(n)d", 6667, 6668},
    {PasoEscalar, PrimeraFila, "%(SCVD)s", "%(variacion)10.6f", 6669, 70},
    {PasoEscalar, PrimeraFila, "%(DTVD)s", "RCUAD(%(SCVD)s/%(menosUna)f)", 71, 72},
    {PasoEscalar, PrimeraFila, "%(DCR)s", "ESCAL(_SCR1)", 73, 74},
    {PasoEscalar, PrimeraFila, "%(RC)s", "1.00 - (ESCAL(_SCR1)/%(SCVD)s)", 75, 76},
};

// From here on the coefficient of determination is known. _NORE, _ANREG and _NREG have no numbers of their own and take
// those of their neighbour, as the standard errors as a column do.
inline constexpr PasoCadena PasosFinales[] = {
    {PasoEscalar, PrimeraFila, "%(FORLA)s", "%(estadisticoF)s", 77, 78},
    {PasoEscalar, PrimeraFila, "%(NORE)s", "%(gl)d", 77, 78},
    {PasoEscalar, PrimeraFila, "%(ANREG)s", "%(series)d", 77, 78},
    {PasoEscalar, PrimeraFila, "%(NREG)s", "%(k)d", 77, 78},
    {PasoEscalar, PrimeraFila, "%(DW)s", "(1.00/(ESCAL(_SCR1))) * %(saltos)10.6f", 79, 80},
    {PasoEscalar, PrimeraFila, "%(RCC)s", "%(corregido)s", 81, 82},
    {PasoEscalar, PrimeraFila, "%(ESTF)s", "PROBF(%(FORLA)s,%(ANREG)s,%(NORE)s)", 831, 880, GuardarCausa},
    {PasoEscalar, PrimeraFila, "%(EA1)s", "1.00-(%(DW)s/2.00)", 85, 861, GuardarSinPunto},
    {PasoMatriz, PrimeraFila, "%(DTE)s1", "%(DTE)s'", 658},
    {PasoSerieDeMatriz, TodasLasFilas, "%(DTE)s2", "%(DTE)s1"},
    {PasoSerieDeMatriz, TodasLasFilas, "_BETA2", "%(BETA)s"},
    {PasoSerie, TodasLasFilas, "%(DIV)s", "_BETA2/%(DTE)s2", 831, 8622, GuardarSeries},
    {PasoSerie, TodasLasFilas, "%(PROBT)s", "PROBT(%(DIV)s,%(NORE)s)", 852, 863, GuardarSeries},
};

// CR compares its residuals with those of the last MC, on as many degrees of freedom as regressors were left out.
inline constexpr PasoCadena PasosRestringido[] = {
    {PasoEscalar, PrimeraFila, "_EST5", "%(fuera)d", 655, 656},
    {PasoEscalar, PrimeraFila, "%(FORLA)s", "((_SCRR - _SCR)/%(fuera)d)/(_SCR/%(glLargo)d)", 655, 656},
    {PasoEscalar, PrimeraFila, "%(ESTF)s", "PROBF(%(FORLA)s,_EST5,_NORE)", 832, 780, GuardarCausa},
};

// The F of a consistent covariance matrix is the Wald statistic that its steps left.
inline constexpr PasoCadena PasosWald[] = {
    {PasoEscalar, PrimeraFila, "%(FORLA)s", "ESCAL(_S3)", 832, 832},
};

inline constexpr PasoCadena PasosWhite[] = {
    {PasoEscalar, PrimeraFila, "_TM11", "%(chi)f", 7551, 756},
    {PasoEscalar, PrimeraFila, "_TM12", "%(grados)d", 7552, 756},
    {PasoEscalar, PrimeraFila, "_TM13", "PROBC(%(chi)f,%(grados)d)", 7553, 756},
};

// The probability of the quotient of the variances of Goldfeld and Quandt's two parts.
inline constexpr PasoCadena PasosGoldfeld[] = {
    {PasoEscalar, PrimeraFila, "_ESTFG", "PROBF(%(cociente)f,%(glNumerador)f,%(glDenominador)f)", 755, 756},
};

// ----- Weighted data

inline constexpr PasoCadena PasosPonderar[] = {
    {PasoMatriz, PrimeraFila, "_S2", "{0 0 0 0}", 6527},
};
inline constexpr PasoCadena PasosPonderada[] = {
    {PasoMatriz, PrimeraFila, "_XIND", "_S2", 6529},
};

// ----- The consistent covariance matrices. Their formulas have no points: what the evaluator shows is all.

inline constexpr PasoCadena PasosConsistente[] = {
    {PasoMatriz, PrimeraFila, "_S2", "{0 0 0 0}"},   {PasoMatriz, PrimeraFila, "_S3", "{0 0 0 0}"},
    {PasoMatriz, PrimeraFila, "_TMS2", "{0 0 0 0}"}, {PasoMatriz, PrimeraFila, "_TMS3", "{0 0 0 0}"},
    {PasoMatriz, PrimeraFila, "_S5", "{0 0 0 0}"},   {PasoMatriz, PrimeraFila, "_S0", "{0 0 0 0}"},
    {PasoMatriz, PrimeraFila, "_S9", "{0 0 0 0}"},   {PasoMatriz, PrimeraFila, "_S8", "{0 0 0 0}"},
    {PasoMatriz, PrimeraFila, "_S7", "{0 0 0 0}"},
};

// The term of one observation, run as its formula where its weight is no number.
inline constexpr PasoCadena PasosTermino[] = {
    {PasoMatriz, PrimeraFila, "_S5", " %(peso)30.10f * (_S2*_S3)"},
};
inline constexpr PasoCadena PasosTerminoRetardado[] = {
    {PasoMatriz, PrimeraFila, "_S5", " %(peso)30.10f * ((_S2 * _S3)+(_TMS2 * _TMS3))"},
};

// The sum over the lags where no two observations are one lag apart.
inline constexpr PasoCadena PasosSumaVacia[] = {
    {PasoMatriz, PrimeraFila, "_S7", "_S8"},
};

inline constexpr PasoCadena PasosHeterocedasticidad[] = {
    {PasoMatriz, PrimeraFila, "%(COV)s", " _S9$ * _S0 * _S9$ "},
};
inline constexpr PasoCadena PasosSinRetardos[] = {
    {PasoMatriz, PrimeraFila, "%(COV)s", " _S9$ * _S0  * _S9$ "},
};
// The sums over the lags stand undivided beside the divided one of the squares, and that is how it is meant.
inline constexpr PasoCadena PasosAutocorrelacion[] = {
    {PasoMatriz, PrimeraFila, "%(COV)s", " %(n)d * _S9$ * ((_S0/%(n)d) +  _S7) * _S9$ "},
};

// The Wald statistic, of the coefficients of the last MC or MCP whatever the code.
inline constexpr PasoCadena PasosCopiasWald[] = {
    {PasoMatriz, PrimeraFila, "_S0", "_BETA"},
    {PasoMatriz, PrimeraFila, "_S8", "_COV"},
};
inline constexpr PasoCadena PasosFilaWald[] = {
    {PasoMatriz, PrimeraFila, "_S2", "_S0"},
};
inline constexpr PasoCadena PasosFormaWald[] = {
    {PasoMatriz, PrimeraFila, "_S3", "(_S2 * _S8$ * _S0)/%(d)d"},
};
