// Inverse of a small matrix by Crout's LU decomposition. Its sums and divisions carry twice the digits of a double and the
// result is rounded once: moment matrices of real data leave a plain elimination half of their digits, or none. What is
// compared (scales, pivots, the tolerance) is the value rounded to a double.
#include "matrix/inversa.h"

#include "matrix/doble_doble.h"
#include "store/limites.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int MayorOrden = 17;
static_assert(MayorOrden * MayorOrden <= MaxInversa && (MayorOrden + 1) * (MayorOrden + 1) > MaxInversa);

// What counts as zero. It is absolute, so that the scale of the data decides about what is singular.
constexpr double Tolerancia = 1e-05;

// Rows, columns and indices count from 1.
using TablaLU = DobleDoble[MayorOrden + 1][MayorOrden + 1];

enum ResultadoLU { FilaNula = 1, PivoteNulo = 2, Descompuesta = 3 };

// a[i][j] without what the rows above and the columns before it explain, up to k = hasta.
DobleDoble Resto(const TablaLU &a, int i, int j, int hasta) {
    DobleDoble suma = a[i][j];
    for (int k = 1; k <= hasta; ++k) suma = RestarProducto(suma, a[i][k], a[k][j]);
    return suma;
}

// Crout's decomposition in place, with implicit scaled partial pivoting. `signo` becomes -1.0 for an odd number of
// swaps.
ResultadoLU DescomponerLU(TablaLU &a, int n, int *indices, double &signo) {
    double escala[MayorOrden + 1];
    signo = 1.0;
    for (int i = 1; i <= n; ++i) {
        double mayor = 0.0;
        for (int j = 1; j <= n; ++j) mayor = std::max(mayor, std::fabs(a[i][j].alto));
        if (mayor < Tolerancia) return FilaNula;
        escala[i] = 1.0 / mayor;
    }
    for (int j = 1; j <= n; ++j) {
        for (int i = 1; i < j; ++i) a[i][j] = Resto(a, i, j, i - 1);
        double mayor = 0.0;
        int pivote = j; // what stays when no size can be compared, as with what is no number
        for (int i = j; i <= n; ++i) {
            a[i][j] = Resto(a, i, j, j - 1);
            const double talla = escala[i] * std::fabs(a[i][j].alto);
            if (mayor <= talla) { // the last row of a tie
                mayor = talla;
                pivote = i;
            }
        }
        if (pivote != j) {
            std::swap(a[pivote], a[j]);
            signo = -signo;
            escala[pivote] = escala[j];
        }
        indices[j] = pivote;
        if (std::fabs(a[j][j].alto) < Tolerancia) return PivoteNulo;
        if (j == n) break;
        const DobleDoble reciproco = Cociente({1.0, 0.0}, a[j][j]);
        for (int i = j + 1; i <= n; ++i) a[i][j] = Producto(a[i][j], reciproco);
    }
    return Descompuesta;
}

// Solves for the right-hand side b, in place. 1, or 0 before a division by what counts as zero.
int ResolverLU(const TablaLU &a, int n, const int *indices, DobleDoble *b) {
    int primero = 0; // index of the first right-hand side that isn't zero
    for (int i = 1; i <= n; ++i) {
        DobleDoble suma = b[indices[i]];
        b[indices[i]] = b[i];
        if (primero != 0) {
            for (int k = primero; k < i; ++k) suma = RestarProducto(suma, a[i][k], b[k]);
        } else if (suma.alto != 0.0) {
            primero = i;
        }
        b[i] = suma;
    }
    for (int i = n; i >= 1; --i) {
        DobleDoble suma = b[i];
        for (int k = i + 1; k <= n; ++k) suma = RestarProducto(suma, a[i][k], b[k]);
        if (std::fabs(a[i][i].alto) < Tolerancia) return 0;
        b[i] = Cociente(suma, a[i][i]);
    }
    return 1;
}

} // namespace

int InvertirMatriz(const double *A, int n, double *Ainv, Ventana *ventana) {
    if (n < 1) return 0;
    if (n > MayorOrden) { // n * n above MaxInversa
        MostrarMensaje(ventana, "Demasiados regresores", "Proceso Cancelado");
        return 0;
    }
    TablaLU a;
    int indices[MayorOrden + 1];
    double signo = 0.0;
    for (int i = 1; i <= n; ++i)
        for (int j = 1; j <= n; ++j) a[i][j] = {A[(i - 1) * n + j - 1], 0.0};
    if (DescomponerLU(a, n, indices, signo) != Descompuesta) return 2;
    for (int j = 1; j <= n; ++j) {
        DobleDoble b[MayorOrden + 1] = {};
        b[j].alto = 1.0;
        if (ResolverLU(a, n, indices, b) == 0) return 0;
        for (int i = 1; i <= n; ++i) Ainv[(i - 1) * n + j - 1] = b[i].alto;
    }
    return 1;
}
