// Tail probabilities.
#include "matrix/probabilidad.h"

#include "platform/distribuciones.h"

#include <cmath>

int Probabilidad(char tipo, double x, double gl1, double gl2, double &resultado) {
    // The beta function at gl / v is handed both parts of its quotient: formed first, a value near 1 would have lost
    // the digits that the tail hangs on. The wider product is exact.
    const auto beta = [&](double v, double gl, double otro, long double parte) {
        resultado = 0.0;
        if (!(v > 0.0)) return 0;
        resultado = BetaIncompletaDePartes(gl / 2.0, otro / 2.0, gl, parte);
        return 1;
    };
    switch (tipo) {
    case 't': return beta(x * x + gl1, gl1, 1.0, static_cast<long double>(x) * x);
    case 'f': return beta(gl1 * x + gl2, gl2, gl1, static_cast<long double>(gl1) * x);
    case 'n':
        // 1.0 less the distribution function, without the difference.
        resultado = NormalAcumulada(-std::fabs(x)) * 2.0;
        return 1;
    case 'c': resultado = GammaIncompleta(gl1 / 2.0, x / 2.0); return 1;
    default: return 1;
    }
}
