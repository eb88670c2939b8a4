// The parser of restrictions: what goes into R and r, and what is refused.
#include "apoyo/plataforma_prueba.h"
#include "hypothesis/restriccion.h"
#include "store/archivo.h"

#include <gtest/gtest.h>

namespace {

struct Caso {
    const char *texto;
    std::vector<double> fila; // of R, as many as there are coefficients
    double r;
};

const Caso Correctos[] = {
    {"2*BETA(1)-BETA(2)=0", {2, -1}, 0},
    {"-BETA(1)=-3", {-1}, -3},
    {"BETA(1)+BETA(1)=1", {1}, 1}, // the second one overwrites the first
    {"BETA(1)-2*BETA(1)=1", {-2}, 1},
    {"BETA(1)=1+BETA(2)", {1, 1}, 1}, // a term behind the right side
    {"BETA(1)=1-BETA(2)", {1, -1}, 1},
    {"3*BETA(1)+4+BETA(2) = 8", {3, 1}, 8}, // a bare number has no effect
    {"BETA (1) = 2", {1, 0}, 2},
    {" BETA(2) =  .5 ", {0, 1}, 0.5},
    {"beta(2)=2.25", {0, 1}, 2.25},
    {"2*3*BETA(1)=1", {3}, 1},          // the last number before the beta counts
    {"2*BETA(1)+BETA(2)=1", {2, 1}, 1}, // a coefficient serves once
    {"2*4-BETA(1)=1", {-2}, 1},         // one that no beta follows waits for the next
    {"-BETA(1)+BETA(2)=0", {-1, 1}, 0},
    {"-BETA(1)*BETA(2)=0", {-1, 0}, 0}, // between the two stands no number, which is 0
    {"-2*BETA(1)=0", {-2}, 0},
    {"BETA(3)=1", {0, 0, 1}, 1},
    {"BETA(1)=1=2", {1}, 2},
    {"BETA(1)=2X", {1}, 2},
    {"BETA(1)=", {1}, 0},
    {"X+BETA(1)=7", {1}, 7},
    {"1.5*BETA(1)=1E3", {1.5}, 1000},
};

struct CasoMalo {
    const char *texto;
    const char *caja;
};

const CasoMalo Incorrectos[] = {
    {"BETA(0)=1", "Coeficiente menor de 1.P5"},
    {"BETA(-1)=1", "Coeficiente menor de 1.P5"},
    {"BETA()=1", "Coeficiente menor de 1.P5"},
    {"BETA(X)=1", "Coeficiente menor de 1.P5"},
    {"BETA(0", "Coeficiente menor de 1.P5"},
    {"BETA(9)=1", "Nº de regresores no válido"},
    {"BETA(4)=1", "Nº de regresores no válido"},
    {"BETA(1)+BETA(4)=1", "Nº de regresores no válido"},
    {"BETA(99999999999)=1", "Nº de regresores no válido"},
    {"BETA(1)+=1", "Secuencia no válida.P9"}, // the plus takes the beta back
    {"BETA(1)-=1", "Secuencia no válida.P9"},
    {"BETA(1)", "Secuencia no válida.P9"},
    {"BETA(4)", "Secuencia no válida.P9"},
    {"=3", "Secuencia no válida.P9"},
    {"2*", "Secuencia no válida.P9"},
    {"BETA(1)=1+", "Secuencia no válida.P9"},
    {"BETA=1", "Secuencia no válida.P4"},
    {"BETA", "Secuencia no válida.P4"},
    {"BETA*2=1", "Secuencia no válida.P4"},
    {"BETA)=1", "Secuencia no válida.P4"},
    {"BETA(1=3", "Falta parentesis"},
    {"BETA(1+1)=3", "Falta parentesis"},
    {"BETA(1", "Falta parentesis"},
    {"BETA(4", "Falta parentesis"},
    {"Beta(1)=1", "Sec. no válida[(][Beta]"},
    {"3=BETA(1)", "Sec. no válida[(][]"},
    {"BETA(1)=5)", "Sec. no válida[)][]"},
    {"X", "Sec. no válida[ ][X]"},
    {"(BETA(1)=1)", "Sec. no válida[(][]"},
    {"BETA(1)=3-2", "Sec. no válida[ ][2]"},
    {"BETA(1)BETA(2)=1 +3", "Sec. no válida[ ][3]"},
};

class RestriccionCorrecta : public testing::TestWithParam<Caso> {};
class RestriccionIncorrecta : public testing::TestWithParam<CasoMalo> {};

// R with two rows, of which the second one is read.
int Leer(std::string &texto, int coeficientes, int &maximo, double *r) {
    EmpezarPrueba();
    LimpiarBufferMatriz();
    BufferMatriz.Filas = 2;
    BufferMatriz.Columnas = 0;
    BufferMatriz.datos[0] = 77.0; // what an unmarked cell holds doesn't count
    return AnalizarRestriccion(texto, 1, nullptr, coeficientes, maximo, r);
}

} // namespace

TEST_P(RestriccionCorrecta, LlenaSuFila) {
    const Caso &c = GetParam();
    const int k = static_cast<int>(c.fila.size());
    std::string texto = c.texto;
    double r[3] = {-9, -9, -9};
    int maximo = 0;
    EXPECT_EQ(Leer(texto, k, maximo, r), 0);
    EXPECT_EQ(TextosDeCajas(), std::vector<std::string>{});
    EXPECT_EQ(BufferMatriz.Columnas, k);
    for (int j = 0; j < k; ++j) {
        EXPECT_EQ(BufferMatriz.datos[j], 0.0) << j;
        EXPECT_EQ(BufferMatriz.presencia[j], 1) << j;
        EXPECT_EQ(BufferMatriz.datos[k + j], c.fila[static_cast<std::size_t>(j)]) << j;
    }
    EXPECT_EQ(r[0], -9.0);
    EXPECT_EQ(r[1], c.r);
    EXPECT_EQ(r[2], -9.0);
    EXPECT_EQ(texto.find(' '), std::string::npos);
    LimpiarBufferMatriz();
    for (int j = 0; j < 2 * k; ++j) EXPECT_EQ(BufferMatriz.presencia[j], 0) << j;
}

TEST_P(RestriccionIncorrecta, SeRechaza) {
    std::string texto = GetParam().texto;
    double r[3] = {};
    int maximo = 0;
    EXPECT_EQ(Leer(texto, 3, maximo, r), 1);
    EXPECT_EQ(TextosDeCajas(), std::vector<std::string>{GetParam().caja});
    EXPECT_EQ(Prueba.cajas.front().titulo, "Proceso cancelado");
    for (int j = 3; j < 6; ++j) EXPECT_LE(std::abs(BufferMatriz.datos[j]), 1.0) << j;
    EXPECT_EQ(BufferMatriz.datos[6], 0.0); // an index beyond R is stored nowhere
}

INSTANTIATE_TEST_SUITE_P(Restriccion, RestriccionCorrecta, testing::ValuesIn(Correctos));
INSTANTIATE_TEST_SUITE_P(Restriccion, RestriccionIncorrecta, testing::ValuesIn(Incorrectos));

TEST(Restriccion, ElMayorIndiceCreceDeTextoEnTexto) {
    std::string primero = "BETA(2)=1", segundo = "BETA(1)=1";
    double r[3] = {};
    int maximo = 0;
    EXPECT_EQ(Leer(primero, 3, maximo, r), 0);
    EXPECT_EQ(maximo, 2);
    EXPECT_EQ(AnalizarRestriccion(segundo, 0, nullptr, 3, maximo, r), 0);
    EXPECT_EQ(maximo, 2);
    EXPECT_EQ(BufferMatriz.datos[0], 1.0);
    EXPECT_EQ(BufferMatriz.datos[4], 1.0); // what the first text wrote stands
}
