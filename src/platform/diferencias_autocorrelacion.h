// Differences of a series, and its autocorrelations: sample and partial. None of the routines checks the room of its
// arrays: sizes are the caller's. IFAIL is 0 on return, or the number of what was wrong; the arrays are then left as
// far as the contract of the routine says.
#pragma once

// Seasonal and non-seasonal differences: XD = (1 - B)^ND (1 - B^NS)^NDS X, with B the lag of one observation. X has NX
// values, XD room for NX; the NXD = NX - ND - NDS NS results stand from XD[0] on, and XD[0] belongs to the observation
// X[ND + NDS NS]. X and XD may be the same array.
// IFAIL 1: an order or the period is negative, or there are seasonal differences of a period below 1. IFAIL 2: the
// differences leave nothing. XD is then untouched and NXD is 0.
void G13AAF(const double *X, int NX, int ND, int NDS, int NS, double *XD, int &NXD, int &IFAIL);

// Sample autocorrelation at lags 1 to NK, in R[0] to R[NK - 1]:
//     r(k) = sum of (x(i) - m)(x(i + k) - m) over i = 0 to NX - 1 - k, divided by the sum of (x(i) - m)^2 over all i
// (Box and Jenkins 1970, 2.1.5). XM is the mean m, XV the sum of squares divided by NX - 1, STAT the sum of the r(k)^2 times
// NX, by which Box and Pierce judge whether there is any autocorrelation.
// IFAIL 1: fewer than one lag, or not more values than lags. IFAIL 2: all values are equal. R, XM, XV and STAT are then
// untouched.
void G13ABF(const double *X, int NX, int NK, double &XM, double &XV, double *R, double &STAT, int &IFAIL);

// Partial autocorrelation at lags 1 to NL, in P[0] to P[NL - 1], from the autocorrelations R[0] to R[NK - 1] at lags 1 to
// NK, by the recursion of Durbin and Levinson (J. Durbin 1960, Review of the International Statistical Institute 28):
//     p(l) = (r(l) - sum of a(l-1, j) r(l - j) over j = 1 to l - 1) / v(l - 1)
//     a(l, l) = p(l),  a(l, j) = a(l - 1, j) - p(l) a(l - 1, l - j),  v(l) = v(l - 1)(1 - p(l)^2),  v(0) = 1
// V[l - 1] receives v(l), the share of the variance that l lags leave, AR[j - 1] the coefficients a(NVL, j) of the longest
// autoregression reached, NVL the number of valid lags. P, V and AR have room for NL each.
// IFAIL 1: fewer than one lag wanted, or more than NK; nothing is touched, NVL is 0. IFAIL 2: the recursion breaks down
// at lag NVL + 1, whose coefficient isn't below 1 in absolute value, as no stationary series has it; what is valid stands.
void G13ACF(const double *R, int NK, int NL, double *P, double *V, double *AR, int &NVL, int &IFAIL);
