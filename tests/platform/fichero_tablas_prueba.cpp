// Tables in one file: cells of every kind come back as they went, and what isn't what it should be is refused.
#include "platform/fichero_tablas.h"

#include "platform/literal.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <filesystem>
#include <limits>
#include <unistd.h>
#include <vector>

namespace {

constexpr MarcaDeFichero Marca = {0x41424344, 3, 1 << 20};

class FicheroTablas : public testing::Test {
protected:
    void TearDown() override { std::filesystem::remove(ruta); }
    // Writes the rows of one column that `poner` sets, and opens the file.
    template <class Poner> TablasAbiertas IdaYVuelta(const char *columna, int filas, Poner poner) {
        TablasAbiertas t = CrearTablas(Marca);
        EXPECT_TRUE(EjecutarEnTablas(t.get(), std::string("CREATE TABLE t(") + columna + ")"));
        FilasAbiertas f = PrepararFilas(t.get(), "INSERT INTO t VALUES(?)");
        for (int i = 0; i < filas; ++i) {
            poner(f.get(), i);
            EXPECT_TRUE(AnadirFila(f.get()));
        }
        f.reset();
        EXPECT_TRUE(EscribirTablas(t.get(), ruta));
        LecturasDeTablas como{};
        t = LeerTablas(ruta, Marca, como);
        EXPECT_EQ(como, TablasLeidas);
        return t;
    }
    const std::string ruta =
        (std::filesystem::temp_directory_path() / ("tablas " + std::to_string(getpid()))).string();
};

TEST_F(FicheroTablas, ValoresHastaElUltimoBit) {
    using L = std::numeric_limits<double>;
    struct {
        double valor;
        bool presente;
    } const casos[] = {
        {0.0, true},
        {0.0, false},
        {-0.0, true},
        {-0.0, false},
        {1.0, true},
        {1.0, false},
        {-1e300, true},
        {0.1, true},
        {L::infinity(), true},
        {-L::infinity(), true},
        {L::infinity(), false},
        {L::denorm_min(), true},
        {-L::denorm_min(), true},
        {L::max(), true},
        {L::min(), true},
        {9007199254740992.0, true},
        {9.2233720368547758e18, true},
        {-9.2233720368547758e18, true},
        {1e18, true},
        {L::quiet_NaN(), true},
        {L::quiet_NaN(), false},
        {-L::quiet_NaN(), true},
        {std::bit_cast<double>(std::uint64_t{0x7FF0000000000001}), true},
        {std::bit_cast<double>(std::uint64_t{0xFFFFFFFFFFFFFFFF}), true},
    };
    const TablasAbiertas t =
        IdaYVuelta("v REAL", static_cast<int>(std::size(casos)),
                   [&](FilasDeTabla *f, int i) { PonerValor(f, 0, casos[i].valor, casos[i].presente); });
    const FilasAbiertas f = PrepararFilas(t.get(), "SELECT v FROM t");
    for (const auto &c : casos) {
        ASSERT_EQ(SiguienteFila(f.get()), HayFila);
        double valor = 7;
        bool presente = !c.presente;
        ASSERT_TRUE(LeerValorDeFila(f.get(), 0, valor, presente));
        EXPECT_EQ(presente, c.presente);
        EXPECT_EQ(std::bit_cast<std::uint64_t>(valor), std::bit_cast<std::uint64_t>(c.valor)) << c.valor;
    }
    EXPECT_EQ(SiguienteFila(f.get()), NoHayMasFilas);
}

TEST_F(FicheroTablas, TextosEnterosYDobles) {
    std::string todos; // every byte that a text of the core can hold
    for (int b = 1; b < 256; ++b) todos += static_cast<char>(b);
    const double dobles[] = {1.5, -0.0, std::numeric_limits<double>::quiet_NaN()};
    const TablasAbiertas t = IdaYVuelta("v", 3, [&](FilasDeTabla *f, int i) {
        if (i == 0) PonerTexto(f, 0, todos);
        if (i == 1) PonerEntero(f, 0, -5'000'000'000);
        if (i == 2) PonerDobles(f, 0, dobles, 3);
    });
    const FilasAbiertas f = PrepararFilas(t.get(), "SELECT v FROM t");
    std::string texto = "antes";
    std::int64_t entero = 7;
    double leidos[3] = {7, 7, 7};
    ASSERT_EQ(SiguienteFila(f.get()), HayFila);
    EXPECT_FALSE(LeerTextoDeFila(f.get(), 0, 254, texto));
    EXPECT_FALSE(LeerEnteroDeFila(f.get(), 0, -9, 9, entero));
    EXPECT_FALSE(LeerDoblesDeFila(f.get(), 0, leidos, 3));
    EXPECT_EQ(texto, "antes");
    EXPECT_TRUE(LeerTextoDeFila(f.get(), 0, 255, texto));
    EXPECT_EQ(texto, todos);
    ASSERT_EQ(SiguienteFila(f.get()), HayFila);
    EXPECT_FALSE(LeerEnteroDeFila(f.get(), 0, -4'999'999'999, 0, entero));
    EXPECT_FALSE(LeerEnteroDeFila(f.get(), 0, -6'000'000'000, -5'000'000'001, entero));
    EXPECT_FALSE(LeerTextoDeFila(f.get(), 0, 99, texto));
    EXPECT_EQ(entero, 7);
    EXPECT_TRUE(LeerEnteroDeFila(f.get(), 0, -5'000'000'000, -5'000'000'000, entero));
    EXPECT_EQ(entero, -5'000'000'000);
    ASSERT_EQ(SiguienteFila(f.get()), HayFila);
    EXPECT_FALSE(LeerDoblesDeFila(f.get(), 0, leidos, 2));
    EXPECT_FALSE(LeerEnteroDeFila(f.get(), 0, 0, 9, entero));
    bool presente = false;
    EXPECT_FALSE(LeerValorDeFila(f.get(), 0, leidos[0], presente)); // 24 bytes, not 9
    EXPECT_EQ(leidos[0], 7);
    EXPECT_TRUE(LeerDoblesDeFila(f.get(), 0, leidos, 3));
    EXPECT_EQ(leidos[0], 1.5);
    EXPECT_TRUE(leidos[1] == 0 && std::signbit(leidos[1]) && std::isnan(leidos[2]));
}

TEST_F(FicheroTablas, LaTablaQueSeCreo) {
    const TablasAbiertas t = IdaYVuelta("a, b REAL", 0, [](FilasDeTabla *, int) {});
    EXPECT_TRUE(EsTabla(t.get(), "t", "CREATE TABLE t(a, b REAL)"));
    EXPECT_FALSE(EsTabla(t.get(), "t", "CREATE TABLE t(a, b)"));
    EXPECT_FALSE(EsTabla(t.get(), "u", "CREATE TABLE u(a)"));
    EXPECT_EQ(PrepararFilas(t.get(), "SELECT * FROM u"), nullptr);
    EXPECT_EQ(PrepararFilas(t.get(), "no es nada"), nullptr);
}

// What was read is only looked at.
TEST_F(FicheroTablas, LoLeidoNoSeCambia) {
    const TablasAbiertas t = IdaYVuelta("a", 1, [](FilasDeTabla *f, int) { PonerEntero(f, 0, 1); });
    EXPECT_FALSE(EjecutarEnTablas(t.get(), "DELETE FROM t"));
    EXPECT_FALSE(EjecutarEnTablas(t.get(), "CREATE TABLE u(a)"));
    EXPECT_FALSE(EjecutarEnTablas(t.get(), "ATTACH ':memory:' AS otra"));
    EXPECT_FALSE(EjecutarEnTablas(t.get(), "SELECT load_extension('x')"));
}

TEST_F(FicheroTablas, LasMarcas) {
    IdaYVuelta("a", 0, [](FilasDeTabla *, int) {});
    struct {
        MarcaDeFichero marca;
        LecturasDeTablas resultado;
    } const casos[] = {
        {Marca, TablasLeidas},
        {{0x41424345, 3, 1 << 20}, TablasAjenas},
        {{0x41424344, 4, 1 << 20}, TablasLeidas}, // an older layout
        {{0x41424344, 2, 1 << 20}, TablasPosteriores},
        {{0x41424344, 3, 8191}, TablasSinAbrir},
        {{0x41424344, 3, 8192}, TablasLeidas}, // two pages
    };
    EXPECT_EQ(std::filesystem::file_size(ruta), 8192u);
    for (const auto &c : casos) {
        LecturasDeTablas resultado{};
        const TablasAbiertas t = LeerTablas(ruta, c.marca, resultado);
        EXPECT_EQ(resultado, c.resultado);
        EXPECT_EQ(t != nullptr, c.resultado == TablasLeidas);
    }
}

// A table of a hundred million rows that a file makes of nothing: reading it ends.
TEST_F(FicheroTablas, ElTrabajoTieneLimite) {
    const TablasAbiertas t = IdaYVuelta("a", 0, [](FilasDeTabla *, int) {});
    const FilasAbiertas f = PrepararFilas(
        t.get(), "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n) SELECT count(*) FROM n");
    ASSERT_NE(f, nullptr);
    EXPECT_EQ(SiguienteFila(f.get()), FilaDanada);
}

} // namespace
