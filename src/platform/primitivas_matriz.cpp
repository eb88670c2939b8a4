// Matrix primitives on Eigen.
#include "platform/primitivas_matriz.h"

#include <Eigen/Dense>

namespace {

using Tabla = Eigen::Matrix<double, Eigen::Dynamic, Eigen::Dynamic, Eigen::RowMajor>;

Eigen::Map<const Eigen::ArrayXd> Elementos(const double *A, int filas, int columnas) {
    return {A, filas * columnas};
}

// One column on the right: the sum stays in a register. Four rows go side by side, since each sum must wait for its
// own previous step; their order of summation is untouched.
void MultiplicarPorColumna(const double *A, const double *b, int filas, int n, double *c) {
    int i = 0;
    for (; i + 4 <= filas; i += 4) {
        const double *f = A + i * n;
        double s0 = 0.0, s1 = 0.0, s2 = 0.0, s3 = 0.0;
        for (int k = 0; k < n; ++k) {
            s0 += f[k] * b[k];
            s1 += f[n + k] * b[k];
            s2 += f[2 * n + k] * b[k];
            s3 += f[3 * n + k] * b[k];
        }
        c[i] = s0;
        c[i + 1] = s1;
        c[i + 2] = s2;
        c[i + 3] = s3;
    }
    for (; i < filas; ++i) {
        double s = 0.0;
        for (int k = 0; k < n; ++k) s += A[i * n + k] * b[k];
        c[i] = s;
    }
}

} // namespace

// Not Eigen's product: its blocks regroup the sums of an element, and by how much depends on the sizes and on the
// machine. Here the columns go four at a time, in one vector of sums; the sum of each keeps its order.
void MultiplicarMatrices(const double *A, const double *B, int filasA, int columnasA, int columnasB,
                         double *C) {
    if (columnasB == 1) {
        MultiplicarPorColumna(A, B, filasA, columnasA, C);
        return;
    }
    using Cuatro = Eigen::Array4d;
    for (int i = 0; i < filasA; ++i) {
        const double *a = A + i * columnasA;
        double *c = C + i * columnasB;
        int j = 0;
        for (; j + 4 <= columnasB; j += 4) {
            Cuatro suma = Cuatro::Zero();
            for (int k = 0; k < columnasA; ++k)
                suma += a[k] * Eigen::Map<const Cuatro>(B + k * columnasB + j);
            Eigen::Map<Cuatro>(c + j, 4) = suma;
        }
        for (; j < columnasB; ++j) {
            double suma = 0.0;
            for (int k = 0; k < columnasA; ++k) suma += a[k] * B[k * columnasB + j];
            c[j] = suma;
        }
    }
}

void EscalarPorMatriz(const double *A, double escalar, int filas, int columnas, double *C) {
    Eigen::Map<Eigen::ArrayXd>(C, filas * columnas) = escalar * Elementos(A, filas, columnas);
}

void SumarMatrices(const double *A, const double *B, int filas, int columnas, double *C) {
    Eigen::Map<Eigen::ArrayXd>(C, filas * columnas) =
        Elementos(A, filas, columnas) + Elementos(B, filas, columnas);
}

void TrasponerMatriz(const double *A, int filas, int columnas, double *C) {
    Eigen::Map<Tabla>(C, columnas, filas) = Eigen::Map<const Tabla>(A, filas, columnas).transpose();
}

double Determinante(const double *A, int orden) {
    if (orden < 1) return 0.0;
    return Eigen::PartialPivLU<Tabla>(Eigen::Map<const Tabla>(A, orden, orden)).determinant();
}
