// The steps of a regression as rows: destination, formula and the points of their failures. Values that go through a
// text have six decimals, and later formulas see them so. What the placeholders hold stands in pasos.cpp.
#pragma once

#include "language/cadena.h"

// Only to have the matrices.
inline constexpr PasoCadena PasosPrevios[] = {
    {PasoMatriz, PrimeraFila, "_TMF2", "{0 0 0 0}",
     "Sitio para los regresores de una observación, en columna"_w, 6524},
    {PasoMatriz, PrimeraFila, "_TMF3", "{0 0 0 0}", "Sitio para los regresores de una observación, en fila"_w,
     6524},
    {PasoMatriz, PrimeraFila, "_TMF4", "{0 0 0 0}", "Sitio para el producto de una observación"_w, 6524},
};

inline constexpr PasoCadena PasosAjuste[] = {
    {PasoMatriz, PrimeraFila, "%(BETA)s", "_TMF5$ * _TMF6", "Coeficientes: inversa de X'X por X'y", 6535},
    {PasoMatriz, PrimeraFila, "_YAJU1", "_XIND * %(BETA)s", "Valores ajustados: regresores por coeficientes",
     653},
    {PasoSerieDeMatriz, TodasLasFilas, "_YAJUS", "_YAJU1", "Valores ajustados, como serie"},
    {PasoMatriz, PrimeraFila, "_RESM", "_YDEP - (_XIND * %(BETA)s)",
     "Residuos: variable dependiente menos valores ajustados", 653},
    {PasoSerieDeMatriz, TodasLasFilas, "%(RES)s", "_RESM", "Residuos, como serie"},
};

inline constexpr PasoCadena PasosSumaResidual[] = {
    {PasoEscalar, PrimeraFila, "%(SCR)s", "ESCAL(_SCR1)", "Suma de cuadrados de los residuos", 655, 656},
};

// The standard error, with degrees of freedom and without.
inline constexpr PasoCadena PasosErrorTipico[] = {
    {PasoEscalar, PrimeraFila, "%(DTR)s", "RCUAD(%(SCR)s/%(gl)d)",
     "Desviación típica de los residuos: raíz de la suma de cuadrados entre los grados de libertad"_w, 955,
     956},
};
inline constexpr PasoCadena PasosErrorNulo[] = {
    {PasoEscalar, PrimeraFila, "%(DTR)s", " 0.0",
     "Desviación típica de los residuos: 0, porque no quedan grados de libertad"_w, 955, 956},
};

inline constexpr PasoCadena PasosVarianza[] = {
    {PasoEscalar, PrimeraFila, "%(MTR)s", "%(DTR)s * %(DTR)s", "Varianza de los residuos", 655, 656},
};

inline constexpr PasoCadena PasosCovarianza[] = {
    {PasoMatriz, PrimeraFila, "%(COV)s", "%(MTR)s * _TMF5$",
     "Matriz de covarianzas de los coeficientes: varianza de los residuos por inversa de X'X", 657},
};

inline constexpr PasoCadena PasosMedidas[] = {
    {PasoMatriz, PrimeraFila, "%(DTE)s", "RCMT(VECT(%(COV)s))",
     "Desviaciones típicas de los coeficientes: raíces de las varianzas, la diagonal de la matriz de covarianzas; 0 si una es negativa"_w,
     658},
    {PasoEscalar, PrimeraFila, "%(MVD)s", "%(media)10.6f", "Media de la variable dependiente", 659, 6661},
    {PasoEscalar, PrimeraFila, "%(STVD)s", "%(total)10.6f", "Suma de la variable dependiente", 6662, 6636},
    {PasoEscalar, PrimeraFila, "%(LV)s", "(%(constante)f + (%(mitad)f * LN(%(SCR)s/%(n)d)))* -1.00",
     "Logaritmo de la función de verosimilitud"_w, 6664, 6665},
    {PasoEscalar, PrimeraFila, "%(AIC)s", "(-2 * (%(LV)s - %(k)d))/%(n)d",
     "Criterio de información de Akaike"_w, 6667, 6668},
    {PasoEscalar, PrimeraFila, "%(SCVD)s", "%(variacion)10.6f",
     "Suma de cuadrados de la variable dependiente respecto a su media", 6669, 70},
    {PasoEscalar, PrimeraFila, "%(DTVD)s", "RCUAD(%(SCVD)s/%(menosUna)f)",
     "Desviación típica de la variable dependiente"_w, 71, 72},
    {PasoEscalar, PrimeraFila, "%(DCR)s", "ESCAL(_SCR1)",
     "Suma de cuadrados de los residuos, para el coeficiente de determinación"_w, 73, 74},
    {PasoEscalar, PrimeraFila, "%(RC)s", "1.00 - (ESCAL(_SCR1)/%(SCVD)s)",
     "Coeficiente de determinación R2: 1 menos la suma de cuadrados de los residuos entre la de la variable dependiente"_w,
     75, 76},
};

// From here on the coefficient of determination is known. _NORE, _ANREG and _NREG have no numbers of their own and take
// those of their neighbour, as the standard errors as a column do.
inline constexpr PasoCadena PasosFinales[] = {
    {PasoEscalar, PrimeraFila, "%(FORLA)s", "%(estadisticoF)s",
     "Estadístico F de significación conjunta, desde el coeficiente de determinación"_w, 77, 78},
    {PasoEscalar, PrimeraFila, "%(NORE)s", "%(gl)d",
     "Grados de libertad del denominador: observaciones menos coeficientes", 77, 78},
    {PasoEscalar, PrimeraFila, "%(ANREG)s", "%(series)d",
     "Grados de libertad del numerador: regresores que son series", 77, 78},
    {PasoEscalar, PrimeraFila, "%(NREG)s", "%(k)d", "Número de coeficientes"_w, 77, 78},
    {PasoEscalar, PrimeraFila, "%(DW)s", "(1.00/(ESCAL(_SCR1))) * %(saltos)10.6f",
     "Estadístico de Durbin y Watson: suma de cuadrados de las diferencias de los residuos entre la de los residuos"_w,
     79, 80},
    {PasoEscalar, PrimeraFila, "%(RCC)s", "%(corregido)s",
     "Coeficiente de determinación corregido por los grados de libertad"_w, 81, 82},
    {PasoEscalar, PrimeraFila, "%(ESTF)s", "PROBF(%(FORLA)s,%(ANREG)s,%(NORE)s)",
     "Probabilidad del estadístico F que da el coeficiente de determinación"_w, 831, 880, GuardarCausa},
    {PasoEscalar, PrimeraFila, "%(EA1)s", "1.00-(%(DW)s/2.00)",
     "Coeficiente de autocorrelación de primer orden, desde el de Durbin y Watson"_w, 85, 861,
     GuardarSinPunto},
    {PasoMatriz, PrimeraFila, "%(DTE)s1", "%(DTE)s'",
     "Desviaciones típicas de los coeficientes, en columna"_w, 658},
    {PasoSerieDeMatriz, TodasLasFilas, "%(DTE)s2", "%(DTE)s1",
     "Desviaciones típicas de los coeficientes, como serie"_w},
    {PasoSerieDeMatriz, TodasLasFilas, "_BETA2", "%(BETA)s", "Coeficientes, como serie"},
    {PasoSerie, TodasLasFilas, "%(DIV)s", "_BETA2/%(DTE)s2",
     "Estadísticos t: coeficientes entre sus desviaciones típicas"_w, 831, 8622, GuardarSeries},
    {PasoSerie, TodasLasFilas, "%(PROBT)s", "PROBT(%(DIV)s,%(NORE)s)",
     "Probabilidades de los estadísticos t"_w, 852, 863, GuardarSeries},
};

// CR compares its residuals with those of the last MC, on as many degrees of freedom as regressors were left out.
inline constexpr PasoCadena PasosRestringido[] = {
    {PasoEscalar, PrimeraFila, "_EST5", "%(fuera)d",
     "Número de restricciones: regresores que no están en el modelo restringido"_w, 655, 656},
    {PasoEscalar, PrimeraFila, "%(FORLA)s", "((_SCRR - _SCR)/%(fuera)d)/(_SCR/%(glLargo)d)",
     "Estadístico F de las restricciones: aumento de la suma de cuadrados por restricción entre la varianza del modelo completo"_w,
     655, 656},
    {PasoEscalar, PrimeraFila, "%(ESTF)s", "PROBF(%(FORLA)s,_EST5,_NORE)",
     "Probabilidad del estadístico F de las restricciones"_w, 832, 780, GuardarCausa},
};

// The F of a consistent covariance matrix is the Wald statistic that its steps left.
inline constexpr PasoCadena PasosWald[] = {
    {PasoEscalar, PrimeraFila, "%(FORLA)s", "ESCAL(_S3)",
     "Estadístico F del informe: el de Wald de la significación conjunta, en lugar del que da R2"_w, 832,
     832},
};

inline constexpr PasoCadena PasosWhite[] = {
    {PasoEscalar, PrimeraFila, "_TM11", "%(chi)f",
     "Estadístico de White: observaciones por R2 de la regresión auxiliar"_w, 7551, 756},
    {PasoEscalar, PrimeraFila, "_TM12", "%(grados)d",
     "Grados de libertad: regresores de la regresión auxiliar sin la constante"_w, 7552, 756},
    {PasoEscalar, PrimeraFila, "_TM13", "PROBC(%(chi)f,%(grados)d)",
     "Probabilidad del estadístico de White, ji cuadrado"_w, 7553, 756},
};

// The probability of the quotient of the variances of Goldfeld and Quandt's two parts.
inline constexpr PasoCadena PasosGoldfeld[] = {
    {PasoEscalar, PrimeraFila, "_ESTFG", "PROBF(%(cociente)f,%(glNumerador)f,%(glDenominador)f)",
     "Probabilidad del cociente de varianzas de Goldfeld y Quandt, F", 755, 756},
};

// ----- Weighted data

inline constexpr PasoCadena PasosPonderar[] = {
    {PasoMatriz, PrimeraFila, "_S2", "{0 0 0 0}", "Sitio para los regresores ponderados", 6527},
};
inline constexpr PasoCadena PasosPonderada[] = {
    {PasoMatriz, PrimeraFila, "_XIND", "_S2", "Regresores por la ponderación de cada observación"_w, 6529},
};

// ----- The consistent covariance matrices. Their formulas have no points: what the evaluator shows is all.

inline constexpr PasoCadena PasosConsistente[] = {
    {PasoMatriz, PrimeraFila, "_S2", "{0 0 0 0}",
     "Sitio para los regresores de una observación, en columna"_w},
    {PasoMatriz, PrimeraFila, "_S3", "{0 0 0 0}", "Sitio para los regresores de una observación, en fila"_w},
    {PasoMatriz, PrimeraFila, "_TMS2", "{0 0 0 0}",
     "Sitio para los regresores de la observación retardada, en columna"_w},
    {PasoMatriz, PrimeraFila, "_TMS3", "{0 0 0 0}",
     "Sitio para los regresores de la observación retardada, en fila"_w},
    {PasoMatriz, PrimeraFila, "_S5", "{0 0 0 0}", "Sitio para el término de una observación"_w},
    {PasoMatriz, PrimeraFila, "_S0", "{0 0 0 0}", "Sitio para la suma de los términos sin retardo"_w},
    {PasoMatriz, PrimeraFila, "_S9", "{0 0 0 0}", "Sitio para X'X"},
    {PasoMatriz, PrimeraFila, "_S8", "{0 0 0 0}", "Sitio para la suma de los términos de un retardo"_w},
    {PasoMatriz, PrimeraFila, "_S7", "{0 0 0 0}", "Sitio para la suma de todos los retardos"},
};

// The term of one observation, run as its formula where its weight is no number.
inline constexpr PasoCadena PasosTermino[] = {
    {PasoMatriz, PrimeraFila, "_S5", " %(peso)30.10f * (_S2*_S3)",
     "Término de la observación: cuadrado del residuo por x x'"_w},
};
inline constexpr PasoCadena PasosTerminoRetardado[] = {
    {PasoMatriz, PrimeraFila, "_S5", " %(peso)30.10f * ((_S2 * _S3)+(_TMS2 * _TMS3))",
     "Término de la observación y su retardo: producto de los residuos por x z' + z x'"_w},
};

// The sum over the lags where no two observations are one lag apart.
inline constexpr PasoCadena PasosSumaVacia[] = {
    {PasoMatriz, PrimeraFila, "_S7", "_S8",
     "Suma de los retardos: ninguna pareja de observaciones está a esa distancia"_w},
};

inline constexpr PasoCadena PasosHeterocedasticidad[] = {
    {PasoMatriz, PrimeraFila, "%(COV)s", " _S9$ * _S0 * _S9$ ",
     "Matriz de covarianzas consistente con heterocedasticidad: inversa de X'X por la suma ponderada por "
     "inversa de X'X"},
};
inline constexpr PasoCadena PasosSinRetardos[] = {
    {PasoMatriz, PrimeraFila, "%(COV)s", " _S9$ * _S0  * _S9$ ",
     "Matriz de covarianzas consistente sin retardos: inversa de X'X por la suma ponderada por inversa de "
     "X'X"},
};
// The sums over the lags stand undivided beside the divided one of the squares, and that is how it is meant.
inline constexpr PasoCadena PasosAutocorrelacion[] = {
    {PasoMatriz, PrimeraFila, "%(COV)s", " %(n)d * _S9$ * ((_S0/%(n)d) +  _S7) * _S9$ ",
     "Matriz de covarianzas consistente con autocorrelación y heterocedasticidad"_w},
};

// The Wald statistic, of the coefficients of the last MC or MCP whatever the code.
inline constexpr PasoCadena PasosCopiasWald[] = {
    {PasoMatriz, PrimeraFila, "_S0", "_BETA", "Coeficientes, para el estadístico de Wald"_w},
    {PasoMatriz, PrimeraFila, "_S8", "_COV", "Matriz de covarianzas, para el estadístico de Wald"_w},
};
inline constexpr PasoCadena PasosFilaWald[] = {
    {PasoMatriz, PrimeraFila, "_S2", "_S0", "Coeficientes que se contrastan, sin las constantes"},
};
inline constexpr PasoCadena PasosFormaWald[] = {
    {PasoMatriz, PrimeraFila, "_S3", "(_S2 * _S8$ * _S0)/%(d)d",
     "Estadístico de Wald de la significación conjunta: coeficientes por inversa de su matriz de covarianzas por coeficientes, entre su número"_w},
};
