// Numbers of twice the digits of a double: the unevaluated sum of two doubles, of which the second is at most half a unit
// in the last place of the first. About 32 decimal digits, the range of a double, and the same bits on every machine
// that rounds as IEEE 754 asks, which the wider types of the machines don't promise.
//
// T. J. Dekker (1971), "A floating-point technique for extending the available precision", Numerische Mathematik 18. The
// error of a sum or product that overflows is no number: it is dropped, so that infinities spread as those of doubles do.
#pragma once

struct DobleDoble {
    double alto, bajo;
};

// `error` where it is a number; 0.0 where the value beside it has none.
inline double ErrorFinito(double error) {
    return error - error == 0.0 ? error : 0.0;
}

// a + b, exact.
inline DobleDoble SumaExacta(double a, double b) {
    const double suma = a + b;
    const double deB = suma - a;
    return {suma, ErrorFinito((a - (suma - deB)) + (b - deB))};
}

// a * b, exact but for products near the ends of the range, each factor parted in two halves of 26 bits.
inline DobleDoble ProductoExacto(double a, double b) {
    constexpr double Partidor = 134217729.0; // 2 to the power 27, plus 1
    const double ca = Partidor * a, cb = Partidor * b;
    const double aAlto = ca - (ca - a), bAlto = cb - (cb - b);
    const double aBajo = a - aAlto, bBajo = b - bAlto;
    const double producto = a * b;
    return {producto,
            ErrorFinito(((aAlto * bAlto - producto) + aAlto * bBajo + aBajo * bAlto) + aBajo * bBajo)};
}

// Product of two, rounded once more.
inline DobleDoble Producto(const DobleDoble &x, const DobleDoble &y) {
    const DobleDoble p = ProductoExacto(x.alto, y.alto);
    return SumaExacta(p.alto, ErrorFinito(p.bajo + (x.alto * y.bajo + x.bajo * y.alto)));
}

// suma - x * y
inline DobleDoble RestarProducto(const DobleDoble &suma, const DobleDoble &x, const DobleDoble &y) {
    const DobleDoble p = Producto(x, y);
    const DobleDoble s = SumaExacta(suma.alto, -p.alto);
    return SumaExacta(s.alto, ErrorFinito(s.bajo + (suma.bajo - p.bajo)));
}

// x / y: the quotient of the first parts, then that of what it leaves.
inline DobleDoble Cociente(const DobleDoble &x, const DobleDoble &y) {
    const double primero = x.alto / y.alto;
    const DobleDoble resto = RestarProducto(x, {primero, 0.0}, y);
    return SumaExacta(primero, ErrorFinito(resto.alto / y.alto));
}
