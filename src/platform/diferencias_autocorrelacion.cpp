// Differences and autocorrelations.
#include "platform/diferencias_autocorrelacion.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace {

enum Fallos { SinFallo = 0, TamanosMalos = 1, SinSolucion = 2 };

// One difference at `paso` observations, in place. Returns the number of values left.
int Diferenciar(double *x, int n, int paso) {
    for (int i = 0; i + paso < n; ++i) x[i] = x[i + paso] - x[i];
    return n - paso;
}

// The coefficients a(l, 1) to a(l, l) from those of l - 1 lags. The two that change together are handled together, so
// that they can stay in one array; the middle one of an even order is its own partner.
void AvanzarAutorregresion(double *ar, int l, double p) {
    for (int j = 1, k = l - 1; j <= k; ++j, --k) {
        const double izquierdo = ar[j - 1];
        const double derecho = ar[k - 1];
        ar[j - 1] = izquierdo - p * derecho;
        ar[k - 1] = derecho - p * izquierdo;
    }
    ar[l - 1] = p;
}

} // namespace

void G13AAF(const double *X, int NX, int ND, int NDS, int NS, double *XD, int &NXD, int &IFAIL) {
    NXD = 0;
    IFAIL = TamanosMalos;
    if (ND < 0 || NDS < 0 || NS < 0 || (NDS > 0 && NS < 1)) return;
    IFAIL = SinSolucion;
    if (static_cast<long long>(ND) + static_cast<long long>(NDS) * NS >= NX) return;
    IFAIL = SinFallo;
    std::copy(X, X + NX, XD);
    NXD = NX;
    for (int i = 0; i < NDS; ++i) NXD = Diferenciar(XD, NXD, NS);
    for (int i = 0; i < ND; ++i) NXD = Diferenciar(XD, NXD, 1);
}

void G13ABF(const double *X, int NX, int NK, double &XM, double &XV, double *R, double &STAT, int &IFAIL) {
    IFAIL = TamanosMalos;
    if (NK < 1 || NX <= NK) return;
    const double media = std::accumulate(X, X + NX, 0.0) / NX;
    double variacion = 0.0;
    for (int i = 0; i < NX; ++i) variacion += (X[i] - media) * (X[i] - media);
    IFAIL = SinSolucion;
    // Equal values can lie beside their mean by its rounding.
    if (!(variacion > 0.0) || std::all_of(X, X + NX, [&](double x) { return x == X[0]; })) return;
    IFAIL = SinFallo;
    XM = media;
    XV = variacion / (NX - 1);
    STAT = 0.0;
    for (int k = 1; k <= NK; ++k) {
        double suma = 0.0;
        for (int i = 0; i + k < NX; ++i) suma += (X[i] - media) * (X[i + k] - media);
        R[k - 1] = suma / variacion;
        STAT += R[k - 1] * R[k - 1];
    }
    STAT *= NX;
}

void G13ACF(const double *R, int NK, int NL, double *P, double *V, double *AR, int &NVL, int &IFAIL) {
    NVL = 0;
    IFAIL = TamanosMalos;
    if (NL < 1 || NL > NK) return;
    IFAIL = SinSolucion;
    double varianza = 1.0;
    for (int l = 1; l <= NL; ++l) {
        double p = R[l - 1];
        for (int j = 1; j < l; ++j) p -= AR[j - 1] * R[l - j - 1];
        p /= varianza;
        if (!(std::fabs(p) < 1.0)) return;
        varianza *= 1.0 - p * p;
        // A remainder that rounding took to nothing would divide the next lag.
        if (!(varianza > 0.0)) return;
        AvanzarAutorregresion(AR, l, p);
        P[l - 1] = p;
        V[l - 1] = varianza;
        NVL = l;
    }
    IFAIL = SinFallo;
}
