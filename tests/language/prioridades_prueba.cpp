// The grouping of priorities: texts before and after the pass.
#include "language/evaluador.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <random>
#include <string>

namespace {

const std::string Delante = "SER X = ";

// Groups the text behind the "=" of a statement, as an assignment does.
std::string Agrupado(const std::string &formula) {
    std::string texto = Delante + formula;
    AgruparPrioridades(texto, static_cast<int>(Delante.size()), static_cast<int>(texto.size()));
    EXPECT_EQ(texto.substr(0, Delante.size()), Delante);
    return texto.substr(Delante.size());
}

struct Caso {
    const char *antes, *despues;
};

const Caso Casos[] = {
    {"A + B * C", "A +( B * C)"},
    {"A + B * C - D", "A +( B * C )- D"},
    {"A - B / C :  2 + D", "A -( B / C :  2 )+ D"},
    {"A * B + C", "A * B + C"},
    {"-A * B", "-(A * B)"},
    {"A + B * C + D * E", "A +( B * C )+( D * E)"},
    {"(A + B * C) * D", "(A +( B * C)) * D"},
    {"A + B * C > D", "A +( B * C > D)"},
    // A sign behind a multiplicative operator counts as the end of the group.
    {"A + 2 * -3", "A +( 2 * )-3"},
    // The limit of the outer pass is not moved by what the inner one inserts.
    {"X + (A + B * C) * D", "X +( (A +( B * C)) *) D"},
    // The signs of matrix formulas count too.
    {"A - B' + C", "A -( B' )+ C"},
    {"A - B$", "A -( B$)"},
    {"", ""},
    {"A", "A"},
    {"A - B - C", "A - B - C"},
    {"A*B*C", "A*B*C"},
    {"A+B*C+D*E-F/G", "A+(B*C)+(D*E)-(F/G)"},
    {"A+(B)*C", "A+((B)*C)"},
    {"LN(A + B * C)", "LN(A +( B * C))"},
    // A comma is a character like any other: here the group runs over it, and the call has one argument left.
    {"POT(A - 1, B * 2)", "POT(A -( 1, B * 2))"},
    {"A > B + C * D", "A > B +( C * D)"},
    // Only the product behind a sign makes a group, and a sign inside parentheses is none of the outer pass.
    {"(A + B) * C", "(A + B) * C"},
    // Parentheses that don't match are read up to the end.
    {"(A + B * C", "(A +( B * C)"},
    {"A + B) * C", "A +( B) * C)"},
    {")A + B * C(", ")A +( B * C()"},
};

TEST(Prioridades, Agrupa) {
    for (const Caso &caso : Casos) {
        SCOPED_TRACE(caso.antes);
        EXPECT_EQ(Agrupado(caso.antes), caso.despues);
    }
}

TEST(Prioridades, TrabajaEntreLosLimites) {
    std::string texto = "A + B * C , A + B * C";
    AgruparPrioridades(texto, 0, 9);
    EXPECT_EQ(texto, "A +( B * C) , A + B * C");
    texto = "A + B * C";
    AgruparPrioridades(texto, 4, 1000); // beyond the end
    EXPECT_EQ(texto, "A + B * C");
    AgruparPrioridades(texto, -5, 1000);
    EXPECT_EQ(texto, "A +( B * C)");
    AgruparPrioridades(texto, 1000, 2000);
    EXPECT_EQ(texto, "A +( B * C)");
}

// A sign at index 0 of the buffer can't be told from none.
TEST(Prioridades, ElSignoEnElIndiceCeroNoCuenta) {
    std::string texto = "-A * B";
    AgruparPrioridades(texto, 0, 6);
    EXPECT_EQ(texto, "-A * B");
}

// The pass as it reads, one insertion after the other into a plain string, to compare with.
void AgruparLlano(std::string &t, int desde, int hasta, int nivel) {
    int inicio = 0, fin = 0, siguiente = 0;
    bool alta = false;
    const auto insertar = [&](int d, int h) {
        t.insert(static_cast<std::size_t>(d) + 1, "(");
        t.insert(std::min(static_cast<std::size_t>(h) + 1, t.size()), ")");
    };
    for (int i = desde; i < hasta && i < static_cast<int>(t.size()); ++i) {
        const char c = t[static_cast<std::size_t>(i)];
        if ((c == '+' || c == '-') && !alta) {
            inicio = i;
        } else if (c == '+' || c == '-') {
            fin = siguiente = i;
        } else if (std::string("*/:'$").find(c) != std::string::npos && inicio > 0) {
            alta = true;
        } else if (c == '(') {
            int j = i, abiertos = 0;
            for (; j < static_cast<int>(t.size()); ++j) {
                if (t[static_cast<std::size_t>(j)] == '(') ++abiertos;
                if (t[static_cast<std::size_t>(j)] == ')' && --abiertos == 0) break;
            }
            if (nivel < 11) AgruparLlano(t, i + 1, j, nivel + 1);
            i = j;
        }
        if (inicio != 0 && fin != 0) {
            insertar(inicio, fin);
            fin = 0;
            inicio = siguiente;
            alta = false;
            hasta += 2;
        }
    }
    if (inicio != 0 && alta && fin == 0) fin = hasta;
    if (inicio != 0 && fin != 0) insertar(inicio, fin);
}

TEST(Prioridades, IgualQueElPasoLlano) {
    std::mt19937 azar(7);
    const std::string letras = "AB(+-*/)' ()+*";
    for (int k = 0; k < 20000; ++k) {
        std::string texto = Delante;
        for (auto n = azar() % 60; n > 0; --n) texto += letras[azar() % letras.size()];
        std::string llano = texto;
        AgruparLlano(llano, 8, static_cast<int>(llano.size()), 0);
        SCOPED_TRACE(texto);
        std::string visto = texto;
        AgruparPrioridades(visto, 8, static_cast<int>(visto.size()));
        ASSERT_EQ(visto, llano);
    }
}

TEST(Prioridades, TextosEnormes) {
    const auto repetido = [](const std::string &trozo, int veces) {
        std::string r;
        for (int i = 0; i < veces; ++i) r += trozo;
        return r;
    };
    const std::string textos[] = {
        repetido("(", 100000),
        repetido(")", 100000),
        repetido("(", 10000) + "A + B * C" + repetido(")", 10000),
        repetido("+*", 50000),
        repetido("A+B*C-", 20000),
        repetido("(A+B*C)", 15000),
        repetido("(A+B*C", 15000),
        repetido("+(A+B*C)*", 12000),
        repetido("+(A*", 12000) + repetido(")", 12000),
        repetido("((((((((((((A+B*C))))))))))))*D+", 3000),
        repetido("()", 50000),
    };
    for (const std::string &texto : textos) {
        SCOPED_TRACE(texto.substr(0, 40));
        const auto antes = std::chrono::steady_clock::now();
        const std::string r = Agrupado(texto);
        EXPECT_LT(std::chrono::steady_clock::now() - antes, std::chrono::seconds(1));
        EXPECT_LE(r.size(), 3 * texto.size());
    }
}

} // namespace
