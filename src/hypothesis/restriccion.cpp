// The parser of restrictions. It goes from sign to sign and asks little, so that much passes that is no equation: a bare
// number inside a sum has no effect, a beta that comes twice counts once, and terms may stand behind the right side.
#include "hypothesis/restriccion.h"

#include "platform/campos_texto.h"
#include "platform/numeros.h"
#include "platform/texto.h"
#include "store/archivo.h"

#include <algorithm>
#include <string_view>

namespace {

constexpr int Mal = 1;
constexpr int Bien = 0;

// What is read up to a sign; the sign is a blank at the end of the text.
struct Trozo {
    std::string_view texto;
    char signo;
};

struct Lectura {
    std::string_view resto;
    Ventana *ventana;
    double *fila; // of R
    int coeficientes;
    int &maximo;
    double &derecha; // element of r

    double coeficiente = 1.0; // of the next beta; one that no beta follows stands until the next one
    bool negativo = false;    // in force until the next plus or minus
    bool hayBeta = false;
    bool hayDerecha = false;
};

// The reading stays on the sign.
Trozo Leer(Lectura &l) {
    const std::size_t fin = std::min(l.resto.find_first_of(" ()+-*="), l.resto.size());
    const Trozo t = {l.resto.substr(0, fin), fin < l.resto.size() ? l.resto[fin] : ' '};
    l.resto.remove_prefix(fin);
    return t;
}

void PasarSigno(Lectura &l) {
    l.resto.remove_prefix(std::min<std::size_t>(1, l.resto.size()));
}

int Fallar(const Lectura &l, std::string_view texto) {
    MostrarMensaje(l.ventana, texto);
    return Mal;
}

// The index of a beta, the reading on its "(". An index beyond R is told at the end of the text.
int LeerBeta(Lectura &l) {
    PasarSigno(l);
    const Trozo indice = Leer(l);
    const int beta = LeerEntero(indice.texto);
    if (beta < 1) return Fallar(l, "Coeficiente menor de 1.P5");
    l.hayBeta = true;
    if (beta <= l.coeficientes) l.fila[beta - 1] = l.negativo ? -l.coeficiente : l.coeficiente;
    l.maximo = std::max(l.maximo, beta);
    l.coeficiente = 1.0;
    if (indice.signo != ')') return Fallar(l, "Falta parentesis");
    PasarSigno(l);
    return Bien;
}

// The right side, the reading on the "=". A minus may stand in front of its number.
void LeerDerecha(Lectura &l) {
    PasarSigno(l);
    Trozo numero = Leer(l);
    double signo = 1.0;
    if (numero.texto.empty() && numero.signo == '-') {
        PasarSigno(l);
        numero = Leer(l);
        signo = -1.0;
    }
    l.derecha = signo * LeerDecimal(numero.texto);
    l.hayDerecha = true;
}

int LeerTermino(Lectura &l) {
    const Trozo t = Leer(l);
    if (t.texto == "BETA" || t.texto == "beta")
        return t.signo == '(' ? LeerBeta(l) : Fallar(l, "Secuencia no válida.P4"_w);
    switch (t.signo) {
    case '*':
        l.coeficiente = LeerDecimal(t.texto);
        PasarSigno(l);
        return Bien;
    case '+':
    case '-':
        l.negativo = t.signo == '-';
        l.hayBeta = false;
        PasarSigno(l);
        return Bien;
    case '=': LeerDerecha(l); return Bien;
    default: return Fallar(l, Formatear("Sec. no válida[%c][%s]"_w, t.signo, std::string(t.texto).c_str()));
    }
}

} // namespace

int AnalizarRestriccion(std::string &texto, int fila, Ventana *ventana, int coeficientes, int &maximo,
                        double *r) {
    MatrizDeTrabajo &R = BufferMatriz;
    const int celdas = R.Filas * coeficientes;
    for (int i = 0; i < celdas; ++i) {
        if (R.presencia[i] == 1) continue;
        R.datos[i] = 0.0;
        R.presencia[i] = 1;
    }
    R.Columnas = static_cast<std::int16_t>(coeficientes);
    R.enUso = std::max(R.enUso, celdas);
    texto = SinBlancos(texto);
    Lectura l = {texto, ventana, R.datos + fila * coeficientes, coeficientes, maximo, r[fila]};
    while (!l.resto.empty())
        if (LeerTermino(l) == Mal) return Mal;
    if (!l.hayBeta || !l.hayDerecha) return Fallar(l, "Secuencia no válida.P9"_w);
    return maximo > coeficientes ? Fallar(l, "Nº de regresores no válido"_w) : Bien;
}
