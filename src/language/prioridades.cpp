// The pass that writes the priorities of a formula into its text, as parentheses.
#include "language/evaluador.h"

#include <algorithm>
#include <cstring>

namespace {

// The text with a gap of free characters that moves to where something is inserted. Insertions follow each other
// closely, so that a text of any length costs little more than one walk over it.
struct TextoConHueco {
    std::string &datos;
    int hueco; // first free character
    int libres;
};

int Largo(const TextoConHueco &t) {
    return static_cast<int>(t.datos.size()) - t.libres;
}

char Caracter(const TextoConHueco &t, int i) {
    return t.datos[static_cast<std::size_t>(i < t.hueco ? i : i + t.libres)];
}

void MoverHueco(TextoConHueco &t, int i) {
    char *p = t.datos.data();
    if (i < t.hueco) {
        std::memmove(p + i + t.libres, p + i, static_cast<std::size_t>(t.hueco - i));
    } else {
        std::memmove(p + t.hueco, p + t.hueco + t.libres, static_cast<std::size_t>(i - t.hueco));
    }
    t.hueco = i;
}

void Insertar(TextoConHueco &t, int i, char c) {
    if (t.libres == 0) {
        t.hueco = Largo(t);
        t.libres = t.hueco / 2 + 16;
        t.datos.append(static_cast<std::size_t>(t.libres), ' ');
    }
    MoverHueco(t, i);
    t.datos[static_cast<std::size_t>(t.hueco++)] = c;
    --t.libres;
}

// Index of the ")" that closes the "(" at `abre`, or the text's length.
int Cierre(const TextoConHueco &t, int abre) {
    const int largo = Largo(t);
    int abiertos = 0;
    for (int i = abre; i < largo; ++i) {
        const char c = Caracter(t, i);
        if (c == '(') ++abiertos;
        if (c == ')' && --abiertos == 0) return i;
    }
    return largo;
}

bool EsSigno(char c) {
    return c == '+' || c == '-';
}

bool EsMultiplicativo(char c) {
    return c == '*' || c == '/' || c == ':' || c == '\'' || c == '$';
}

// "(" directly behind the character at `inicio`, ")" directly in front of the one at `fin`.
void InsertarGrupo(TextoConHueco &t, int inicio, int fin) {
    Insertar(t, inicio + 1, '(');
    Insertar(t, std::min(fin + 1, Largo(t)), ')');
}

// One pass over [desde, hasta). `inicio` and `fin` are the places of the sign in front of a group and of the one
// behind it, 0 for none. Two things look odd and are how the language behaves: behind a parenthesis the pass goes on
// at the old place of its ")", and `hasta` stays where it was, whatever was inserted inside. So a group that closes
// at the end of a text after a parenthesis with a group of its own is closed too early.
void AgruparNivel(TextoConHueco &t, int desde, int hasta, int nivel) {
    int inicio = 0;
    int fin = 0;
    bool alta = false;
    for (int i = desde; i < hasta && i < Largo(t); ++i) {
        const char c = Caracter(t, i);
        if (EsSigno(c)) {
            (alta ? fin : inicio) = i;
        } else if (EsMultiplicativo(c) && inicio > 0) {
            alta = true;
        } else if (c == '(') {
            const int cierre = Cierre(t, i);
            // No formula gets deeper than its text buffers: what is inside fails before it is looked at, and the
            // recursion needs no more levels than they are.
            if (nivel + 1 < MaxNiveles) AgruparNivel(t, i + 1, cierre, nivel + 1);
            i = cierre;
        }
        if (inicio > 0 && fin > 0) {
            InsertarGrupo(t, inicio, fin);
            // The scan meets the sign behind the group again, two places on, as the start of the next group.
            inicio = fin;
            fin = 0;
            alta = false;
            hasta += 2;
        }
    }
    if (inicio > 0 && alta) InsertarGrupo(t, inicio, hasta);
}

} // namespace

void AgruparPrioridades(std::string &texto, int desde, int hasta) {
    TextoConHueco t{texto, static_cast<int>(texto.size()), 0};
    AgruparNivel(t, std::max(desde, 0), hasta, 0);
    MoverHueco(t, Largo(t));
    texto.resize(static_cast<std::size_t>(t.hueco));
}
