// CGQ: the statement, the order, the parts and their checks.
#include "hypothesis/apoyo_contrastes.h"
#include "hypothesis/goldfeld.h"
#include "hypothesis/orden.h"

#include <gtest/gtest.h>

namespace {

// ----- Checks

struct CasoPartes {
    const char *caja; // empty: they can be estimated
    PartesGoldfeld p;
};

// primera, ultima; those of the last regression; denominator; numerator. Rows.
const CasoPartes Partes[] = {
    {"", {0, 19, 0, 19, 0, 9, 10, 19}},
    {"", {0, 19, 0, 19, 0, 6, 13, 19}}, // a gap
    {"", {0, 19, 0, 19, 10, 19, 0, 9}},
    {"", {0, 19, 0, 19, 13, 19, 0, 6}},
    {"", {2, 19, 2, 19, 2, 3, 18, 19}},
    {"La muestra ha variado. Pto 866", {1, 19, 0, 19, 0, 9, 10, 19}},
    {"La muestra ha variado. Pto 866", {1, 18, 0, 19, 0, 9, 10, 19}},
    {"La muestra ha variado: [18][19]. Pto 867", {0, 18, 0, 19, 0, 9, 10, 18}},
    {"Mínimo numerador >= Máximo numerador,19 19. Pto 872", {0, 19, 0, 19, 0, 9, 19, 19}},
    {"Mínimo numerador >= Máximo numerador,0 -1. Pto 872", {0, 19, 0, 19, -1, 19, 0, -1}},
    {"Mínimo numerador >= Máximo numerador,21 19. Pto 872", {0, 19, 0, 19, 0, 9, 21, 19}},
    {"No coinciden máximos y mínimos. Pto 873", {0, 19, 0, 19, 0, 0, 10, 19}},
    {"No coinciden máximos y mínimos. Pto 873", {0, 19, 0, 19, 19, 19, 0, 9}},
    {"Mayor que la muestra: [21][20]. Pto 874", {0, 19, 0, 19, 10, 19, 0, 20}},
    {"Mayor que la muestra: [21][20]. Pto 874", {0, 19, 0, 19, 0, 20, 10, 19}},
    {"Menor que la muestra: [2][3]. Pto 874", {2, 19, 2, 19, 12, 19, 1, 9}},
    {"Menor que la muestra: [2][3]. Pto 874", {2, 19, 2, 19, 1, 9, 12, 19}},
    // The numerator in front.
    {"La muestra ha variado. Pto 868", {0, 19, 0, 19, 10, 12, 0, 12}},
    {"No coinciden máximos y mínimos. Pto 869", {0, 19, 0, 19, 10, 19, 0, 10}},
    {"La muestra ha variado. Pto 870", {0, 19, 0, 19, 10, 18, 0, 9}},
    {"La muestra ha variado. Pto 871", {0, 19, 0, 19, 10, 19, 1, 9}},
    // The denominator in front; so also where both begin in the same row.
    {"Máximo denominador > Máximo numerador. Pto 872", {0, 19, 0, 19, 0, 13, 10, 12}},
    {"No coinciden máximos y mínimos: [9][8]. Pto 873", {0, 19, 0, 19, 0, 9, 9, 19}},
    {"No coinciden máximos y mínimos: [9][-1]. Pto 873", {0, 19, 0, 19, 0, 9, 0, 19}},
    {"No coinciden máximos y mínimos: [18][19]. Pto 874", {0, 19, 0, 19, 0, 9, 10, 18}},
    {"No coinciden máximos y mínimos: [1][0]. Pto 875", {0, 19, 0, 19, 1, 9, 10, 19}},
};

class PartesDeLaMuestra : public testing::TestWithParam<CasoPartes> {};

} // namespace

TEST_P(PartesDeLaMuestra, SeComprueban) {
    EmpezarPrueba();
    const std::string caja = GetParam().caja;
    EXPECT_EQ(ComprobarPartes(GetParam().p, nullptr), caja.empty());
    EXPECT_EQ(TextosDeCajas(), caja.empty() ? Textos{} : Textos{caja});
    for (const CajaVista &c : Prueba.cajas) EXPECT_EQ(c.titulo, "Proceso cancelado");
}

INSTANTIATE_TEST_SUITE_P(Goldfeld, PartesDeLaMuestra, testing::ValuesIn(Partes));

// ----- The statement

namespace {

// Y on 1, X, Z over 20 observations, to be ordered by O, which has ties.
void EmpezarGoldfeld(const char *regresion = "MC Y 1 X Z") {
    EmpezarRegresion();
    PonerSerie("O", {7, 3, 9, 3, 5, 1, 8, 3, 2, 6, 5, 4, 9, 0, 7, 5, 2, 8, 1, 6});
    EXPECT_TRUE(Procesar(regresion));
    Prueba.cajas.clear();
    Prueba.resultados.clear();
}

struct CasoSentencia {
    const char *texto;
    Textos cajas; // of a statement that is refused
};

const CasoSentencia Rechazadas[] = {
    {"CGQ", {"Indroduzca ponderación. Pto 1633"}},
    {"CGQ O 1 10 11 20", {"Indroduzca ponderación. Pto 1633"}},
    {"CGQ (O) 1 10 11 20 ñ", {"Caracter no válido. Pto 121"}},
    {"CGQ (O) RA 1234567890123", {"Nombre demasiado largo. Pto 121"}},
    // Numbers that aren't there count as 0: the numerator comes first, and it is empty.
    {"CGQ (O)", {"Mínimo numerador >= Máximo numerador,0 -1. Pto 872"}},
    {"CGQ (O) RA", {"Mínimo numerador >= Máximo numerador,0 -1. Pto 872"}},
    {"CGQ (O) 11 20 1 1", {"Mínimo numerador >= Máximo numerador,0 0. Pto 872"}},
    {"CGQ (O) 1 10 20 20", {"Mínimo numerador >= Máximo numerador,19 19. Pto 872"}},
    {"CGQ (O) 1 1 11 20", {"No coinciden máximos y mínimos. Pto 873"}},
    {"CGQ (O) 1 21 11 20", {"Mayor que la muestra: [21][20]. Pto 874"}},
    {"CGQ (O) 12 20 1 21", {"Mayor que la muestra: [21][20]. Pto 874"}},
    {"CGQ (O) 1 10 0 20", {"No coinciden máximos y mínimos: [19][-1]. Pto 873"}},
    {"CGQ (O) 0 10 0 20", {"Menor que la muestra: [0][1]. Pto 874"}},
    {"CGQ (O) 10 20 1 10", {"No coinciden máximos y mínimos. Pto 869"}},
    {"CGQ (O) 1 10 10 20", {"No coinciden máximos y mínimos: [9][8]. Pto 873"}},
    {"CGQ (O) 11 20 11 15", {"No coinciden máximos y mínimos. Pto 869"}},
    {"CGQ (O) 1 2 11 20", {"La muestra es muy pequeña. Pto 293"}},
    {"CGQ (O) 1 10 19 20", {"La muestra es muy pequeña. Pto 293"}},
    {"CGQ (O) 99999999999 1 99999999999 1", {"Mínimo numerador >= Máximo numerador,0 0. Pto 872"}},
};

class SentenciaCGQ : public testing::TestWithParam<CasoSentencia> {};

} // namespace

TEST_P(SentenciaCGQ, SeRechaza) {
    EmpezarGoldfeld();
    EXPECT_FALSE(Procesar(GetParam().texto));
    EXPECT_EQ(TextosDeCajas(), GetParam().cajas);
    EXPECT_EQ(TemporalesQueQuedan(), Textos{});
    EXPECT_TRUE(Prueba.resultados.empty());
}

INSTANTIATE_TEST_SUITE_P(Goldfeld, SentenciaCGQ, testing::ValuesIn(Rechazadas));
