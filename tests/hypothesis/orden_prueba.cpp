// The exchange sort: the very order in which a plain double loop over rows leaves them.
#include "apoyo/plataforma_prueba.h"
#include "hypothesis/orden.h"
#include "store/archivo.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

namespace {

struct Fila {
    double clave;
    int original;
};

// As the tests are defined: rows change places one by one.
std::vector<Fila> DobleBucle(const std::vector<double> &claves) {
    std::vector<Fila> filas;
    for (const double c : claves) filas.push_back({c, static_cast<int>(filas.size())});
    for (std::size_t i = 0; i + 1 < filas.size(); ++i)
        for (std::size_t j = i + 1; j < filas.size(); ++j)
            if (filas[j].clave < filas[i].clave) std::swap(filas[i], filas[j]);
    return filas;
}

void Comparar(const std::vector<double> &claves) {
    const std::vector<Fila> filas = DobleBucle(claves);
    std::vector<double> ordenadas = claves;
    const std::vector<int> orden = OrdenarPorIntercambio(ordenadas);
    ASSERT_EQ(orden.size(), filas.size());
    for (std::size_t k = 0; k < filas.size(); ++k) {
        EXPECT_EQ(orden[k], filas[k].original) << k;
        EXPECT_EQ(ordenadas[k], filas[k].clave) << k;
    }
}

} // namespace

TEST(Orden, ComoElDobleBucle) {
    const std::vector<std::vector<double>> casos = {
        {},           {7},         {1, 2}, {2, 1}, {1, 1}, {3, 3, 1}, {2, 2, 1, 1}, {5, 1, 5, 1, 5, 0},
        {4, 3, 2, 1}, {1, 2, 3, 4}};
    for (const auto &claves : casos) Comparar(claves);
}

// The rows that several turns share, and those that are left over at the end.
TEST(Orden, ConCualquierNumero) {
    std::mt19937 azar(4);
    for (std::size_t n = 0; n <= 24; ++n) {
        std::vector<double> claves(n);
        for (double &c : claves) c = static_cast<double>(azar() % 9u) - 4;
        Comparar(claves);
        std::sort(claves.rbegin(), claves.rend());
        Comparar(claves);
    }
}

// Worked out by hand: the first 3 goes to the end of the ties when it changes places with the 1.
TEST(Orden, LosEmpatesQuedanComoLosDejaElIntercambio) {
    std::vector<double> claves = {3, 3, 1};
    EXPECT_EQ(OrdenarPorIntercambio(claves), (std::vector<int>{2, 1, 0}));
}

TEST(Orden, ConMuchosEmpates) {
    std::mt19937 azar(20);
    for (int vez = 0; vez < 30; ++vez) {
        std::vector<double> claves;
        const int valores = 1 + vez;
        for (int i = 0; i < 60; ++i)
            claves.push_back(static_cast<double>(azar() % static_cast<unsigned>(valores)));
        Comparar(claves);
    }
}

// Only the rows of the sample move, and a missing value stays missing.
TEST(Orden, ReordenaValoresYPresencias) {
    EmpezarConDatos(TipoSinPeriodicidad, "");
    PonerSerie("X", {10, 20, std::nan(""), 40, 50});
    const int s = BuscarSerie("X");
    ReordenarSerie(s, 1, {2, 0, 1});
    const std::vector<double> x = ValoresDe("X", 5);
    EXPECT_EQ(x[0], 10.0);
    EXPECT_EQ(x[1], 40.0);
    EXPECT_EQ(x[2], 20.0);
    EXPECT_TRUE(std::isnan(x[3]));
    EXPECT_EQ(x[4], 50.0);
    EXPECT_EQ(ValoresDeFilas(s, 1, 2), (std::vector<double>{40, 20}));
}
