// The covariance matrices that are consistent under heteroscedasticity and autocorrelation.
#pragma once

#include "estimation/estimacion.h"

// _COV of the code by White's estimator or, with lags, Newey and West's form with weights that fall linearly, from
// _XIND, _TMF5 and the series _RES of the last MC; then the Wald statistic of its coefficients into _S3. 1, or 0 after a
// message: behind that of a formula nothing is shown and the temporaries are to stay (Estimacion::seQuedan).
int CovarianzaConsistente(Estimacion &e);
