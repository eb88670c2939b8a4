// Distribution functions on Boost.Math.
#include "platform/distribuciones.h"

#include <boost/math/special_functions/beta.hpp>
#include <boost/math/special_functions/erf.hpp>
#include <boost/math/special_functions/gamma.hpp>
#include <boost/math/special_functions/log1p.hpp>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

namespace bmp = boost::math::policies;

// Nothing is thrown: the library returns what it has, and the domains are checked here.
using SinExcepciones =
    bmp::policy<bmp::domain_error<bmp::ignore_error>, bmp::pole_error<bmp::ignore_error>,
                bmp::overflow_error<bmp::ignore_error>, bmp::underflow_error<bmp::ignore_error>,
                bmp::denorm_error<bmp::ignore_error>, bmp::evaluation_error<bmp::ignore_error>,
                bmp::rounding_error<bmp::ignore_error>, bmp::indeterminate_result_error<bmp::ignore_error>>;

bool EsParametro(double a) {
    return std::isfinite(a) && a > 0.0;
}

// From here on the library's fractions and series take too many steps near the middle of the distribution, up to
// minutes for parameters that no data can give, while the expansion below is exact to the last digits.
constexpr double ParametroGrande = 1e8;

long double NormalEnLargo(long double x) {
    return boost::math::erfc(-x / std::sqrt(2.0L), SinExcepciones()) / 2.0L;
}

// Upper tail by Lugannani and Rice's formula, in whose form the uniform expansions of both functions for large
// parameters begin (DLMF 8.12.3 and 8.18.9): r is the signed root of the likelihood ratio, w the standardised
// deviation, and `centro` what 1/w - 1/r becomes where both vanish.
double ColaDeSilla(long double r, long double w, long double centro) {
    constexpr long double UnoEntreRaizDeDosPi = 0.398942280401432677939946059934L;
    const long double densidad = UnoEntreRaizDeDosPi * std::exp(-r * r / 2.0L);
    if (densidad == 0.0L) return r > 0.0L ? 0.0 : 1.0;
    const long double correccion = std::fabs(r) < 1e-5L || w == 0.0L ? centro : 1.0L / w - 1.0L / r;
    return static_cast<double>(std::clamp(NormalEnLargo(-r) + densidad * correccion, 0.0L, 1.0L));
}

long double RaizConSigno(long double cuadrado, long double signo) {
    return std::copysign(std::sqrt(std::max(cuadrado, 0.0L)), signo);
}

double GammaDeParametroGrande(long double a, long double x) {
    const long double mu = (x - a) / a;
    const long double r = x > 0.0L ? RaizConSigno(-2.0L * a * boost::math::log1pmx(mu, SinExcepciones()), mu)
                                   : -std::numeric_limits<long double>::infinity();
    return ColaDeSilla(r, mu * std::sqrt(a), -1.0L / (3.0L * std::sqrt(a)));
}

double BetaDeParametrosGrandes(long double a, long double b, long double p, long double q) {
    if (p == 0.0L || q == 0.0L) return p == 0.0L ? 0.0 : 1.0;
    const long double n = a + b;
    const long double x0 = a / n, y0 = b / n;
    const long double d = (p / (p + q)) * y0 - (q / (p + q)) * x0; // x - x0
    const auto resto = [](long double z) { return boost::math::log1pmx(z, SinExcepciones()); };
    const long double r = RaizConSigno(-2.0L * (a * resto(d / x0) + b * resto(-d / y0)), d);
    const long double escala = std::sqrt(n * x0 * y0);
    // The lower tail at x is the upper one of the deviation with its sign turned.
    return ColaDeSilla(-r, -d * std::sqrt(n / (x0 * y0)), (y0 - x0) / (3.0L * escala));
}

} // namespace

double NormalAcumulada(double x) {
    if (std::isnan(x)) return 0.0;
    if (std::isinf(x)) return x > 0.0 ? 1.0 : 0.0;
    // In the far tail the result moves by x * x times an error of the argument, hence the wider type.
    return static_cast<double>(NormalEnLargo(x));
}

double BetaIncompleta(double a, double b, double x) {
    if (!(x >= 0.0 && x <= 1.0)) return 0.0;
    return BetaIncompletaDePartes(a, b, x, 1.0L - x);
}

double BetaIncompletaDePartes(double a, double b, long double p, long double q) {
    if (!EsParametro(a) || !EsParametro(b) || !(p >= 0.0L && q >= 0.0L)) return 0.0;
    const long double suma = p + q;
    if (!(suma > 0.0L) || std::isinf(suma)) return 0.0;
    if (a > ParametroGrande && b > ParametroGrande) return BetaDeParametrosGrandes(a, b, p, q);
    const long double la = a, lb = b;
    if (p < q) return static_cast<double>(boost::math::ibeta(la, lb, p / suma, SinExcepciones()));
    // Near 1 the complement of the complement: the library's own way loses digits for a = b = 1/2.
    const long double resto = boost::math::ibeta(lb, la, q / suma, SinExcepciones());
    return static_cast<double>(resto <= 0.5L ? 1.0L - resto
                                             : boost::math::ibetac(lb, la, q / suma, SinExcepciones()));
}

double GammaIncompleta(double a, double x) {
    if (!EsParametro(a) || !std::isfinite(x) || x < 0.0) return 0.0;
    if (a > ParametroGrande) return GammaDeParametroGrande(a, x);
    return boost::math::gamma_q(a, x, SinExcepciones());
}
