// The table of matrices, their blocks and their states.
#include "apoyo/plataforma_prueba.h"
#include "platform/texto.h"
#include "store/archivo.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>

namespace {

std::vector<double> Contar(int n, double desde = 1.0) {
    std::vector<double> r(static_cast<std::size_t>(n));
    std::iota(r.begin(), r.end(), desde);
    return r;
}

void EsperarMatriz(const char *codigo, int filas, int columnas, const std::vector<double> &datos) {
    SCOPED_TRACE(codigo);
    int f = 0;
    int c = 0;
    EXPECT_EQ(MatrizDe(codigo, f, c), datos);
    EXPECT_EQ(f, filas);
    EXPECT_EQ(c, columnas);
}

TEST(Matrices, La29CabeYLa30No) {
    EmpezarConDatos(TipoSinPeriodicidad, "");
    const double dato = 1.0;
    for (int k = 1; k <= 29; ++k)
        ASSERT_EQ(GuardarMatriz(Formatear("M%d", k), &dato, 1, 1), MatrizGuardada) << k;
    EXPECT_EQ(TablaMatrices.numero, 29);
    EXPECT_EQ(GuardarMatriz("M30", &dato, 1, 1), MatrizSinSitio);
    EXPECT_EQ(TablaMatrices.numero, 29);
    EXPECT_EQ(TablaMatrices.EstadoBloque[29], SinBloque);
    EXPECT_EQ(GuardarMatriz("M7", &dato, 1, 1), MatrizGuardada);
    EXPECT_TRUE(Prueba.cajas.empty()); // the caller shows the message
}

TEST(Matrices, GuardarPorFilasYSoltar) {
    EmpezarConDatos(TipoSinPeriodicidad, "");
    PonerMatriz("M", {1, 2, 3, 4, 5, 6}, 2, 3);
    EXPECT_EQ(TablaMatrices.EstadoBloque[0], BloqueSuelto);
    EXPECT_EQ(TablaMatrices.registro[0].Datos, nullptr);
    EXPECT_STREQ(TablaMatrices.registro[0].Codigo, "M           ");
    ASSERT_TRUE(FijarMatriz(0));
    EXPECT_EQ(TablaMatrices.EstadoBloque[0], BloqueFijado);
    EXPECT_EQ(TablaMatrices.registro[0].Datos[1 * 3 + 2], 6.0);
    SoltarMatriz(0);
    EXPECT_EQ(TablaMatrices.EstadoBloque[0], BloqueSuelto);
    SoltarMatriz(0);
    EXPECT_EQ(TablaMatrices.EstadoBloque[0], BloqueSuelto);
    EXPECT_FALSE(FijarMatriz(1));
    EXPECT_EQ(TablaMatrices.EstadoBloque[1], SinBloque);
    PonerMatriz("M", Contar(MaxElementos), 200, 200);
    EsperarMatriz("M", 200, 200, Contar(MaxElementos));
    EXPECT_EQ(TablaMatrices.numero, 1);
    EXPECT_EQ(BuscarMatriz("M"), 0);
    EXPECT_EQ(BuscarMatriz("m"), -1);
}

TEST(Matrices, SoltarTodas) {
    EmpezarConDatos(TipoSinPeriodicidad, "");
    PonerMatriz("A", {1}, 1, 1);
    PonerMatriz("B", {2}, 1, 1);
    FijarMatriz(0);
    FijarMatriz(1);
    SoltarTodasMatrices();
    EXPECT_EQ(TablaMatrices.EstadoBloque[0], BloqueSuelto);
    EXPECT_EQ(TablaMatrices.EstadoBloque[1], BloqueSuelto);
    EXPECT_EQ(TablaMatrices.EstadoBloque[2], SinBloque);
}

TEST(Matrices, BorrarBajaLasSiguientes) {
    EmpezarConDatos(TipoSinPeriodicidad, "");
    PonerMatriz("A", {1}, 1, 1);
    PonerMatriz("B", Contar(6), 2, 3);
    PonerMatriz("C", Contar(9, 100), 9, 1);
    PonerMatriz("D", Contar(4, -2), 1, 4);
    FijarMatriz(1); // as a command may have left it
    EXPECT_EQ(BorrarMatriz(nullptr, 0), 1);
    EXPECT_EQ(TablaMatrices.numero, 3);
    EXPECT_EQ(BuscarMatriz("B"), 0);
    EXPECT_EQ(BuscarMatriz("C"), 1);
    EXPECT_EQ(BuscarMatriz("D"), 2);
    for (int m = 0; m < 3; ++m) EXPECT_EQ(TablaMatrices.EstadoBloque[m], BloqueSuelto);
    EXPECT_EQ(TablaMatrices.EstadoBloque[3], SinBloque);
    // A moved matrix lives in a block of its own size.
    EXPECT_EQ(TablaMatrices.capacidad[0], 6);
    EXPECT_EQ(TablaMatrices.capacidad[1], 9);
    EXPECT_EQ(TablaMatrices.capacidad[2], 4);
    EsperarMatriz("B", 2, 3, Contar(6));
    EsperarMatriz("C", 9, 1, Contar(9, 100));
    EsperarMatriz("D", 1, 4, Contar(4, -2)); // its zero too
    // Created again under its name it takes a full block.
    PonerMatriz("C", {1, 2}, 1, 2);
    EXPECT_EQ(TablaMatrices.capacidad[1], ElementosBloque);
    EXPECT_EQ(BorrarMatriz(nullptr, 2), 1); // the last one: nothing moves
    EXPECT_EQ(TablaMatrices.numero, 2);
    EXPECT_EQ(TablaMatrices.EstadoBloque[2], SinBloque);
    EXPECT_TRUE(Prueba.cajas.empty());
}

TEST(Matrices, BorrarPasaPorElBuffer) {
    EmpezarConDatos(TipoSinPeriodicidad, "");
    PonerMatriz("A", {1}, 1, 1);
    PonerMatriz("B", {5, 6}, 2, 1);
    BorrarMatriz(nullptr, 0);
    EXPECT_EQ(BufferMatriz.Filas, 2);
    EXPECT_EQ(BufferMatriz.Columnas, 1);
    EXPECT_STREQ(BufferMatriz.Codigo, "B           ");
    EXPECT_EQ(BufferMatriz.datos[1], 6.0);
    EXPECT_EQ(BufferMatriz.presencia[1], 1);
    EXPECT_EQ(BufferMatriz.presencia[2], 0);
    LimpiarBufferMatriz();
    EXPECT_EQ(BufferMatriz.datos[1], 0.0);
    EXPECT_EQ(BufferMatriz.presencia[1], 0);
    EXPECT_EQ(BufferMatriz.Filas, 0);
}

struct CasoFallo {
    bool sinEstado; // the state says that there is no block; else only the handle is missing
    const char *mensaje;
};

constexpr CasoFallo Fallos[] = {
    {true, "No hay suficiente Memoria. P21"},
    {false, "No hay suficiente Memoria. P26"},
};

TEST(Matrices, BorrarSeDetieneEnUnaTablaDanada) {
    for (const CasoFallo &c : Fallos) {
        SCOPED_TRACE(c.mensaje);
        EmpezarConDatos(TipoSinPeriodicidad, "");
        for (const char *m : {"A", "B", "C"}) PonerMatriz(m, {1}, 1, 1);
        delete[] TablaMatrices.bloque[2];
        TablaMatrices.bloque[2] = nullptr;
        if (c.sinEstado) TablaMatrices.EstadoBloque[2] = SinBloque;
        EXPECT_EQ(BorrarMatriz(nullptr, 0), 0);
        const CajaVista caja{"Proceso cancelado", c.mensaje, IconoInformacion, BotonesAceptar};
        EXPECT_EQ(Prueba.cajas, std::vector<CajaVista>{caja});
        EXPECT_EQ(TablaMatrices.numero, 3); // as far as it got: B has moved
        EXPECT_EQ(BuscarMatriz("B"), 0);
        TablaMatrices.EstadoBloque[2] = SinBloque;
    }
}

// A record that claims more than its block holds, or less than nothing, moves with what there is.
TEST(Matrices, UnRegistroDanadoNoDesborda) {
    static const struct {
        std::int16_t filas, columnas;
        int elementos;
    } Casos[] = {{30000, 1, 2}, {32767, 32767, 2}, {-5, 1, 0}, {0, 7, 0}, {1, 1, 1}};
    for (const auto &c : Casos) {
        SCOPED_TRACE(c.filas);
        EmpezarConDatos(TipoSinPeriodicidad, "");
        for (const char *m : {"A", "B", "C"}) PonerMatriz(m, {5, 6}, 2, 1);
        ASSERT_EQ(BorrarMatriz(nullptr, 0), 1); // the blocks of the others hold two elements now
        ASSERT_EQ(TablaMatrices.capacidad[1], 2);
        TablaMatrices.registro[1].Filas = c.filas;
        TablaMatrices.registro[1].Columnas = c.columnas;
        EXPECT_EQ(BorrarMatriz(nullptr, 0), 1);
        EXPECT_EQ(BufferMatriz.enUso, c.elementos);
        EXPECT_EQ(TablaMatrices.capacidad[0], std::max(c.elementos, 1));
        EXPECT_EQ(BuscarMatriz("C"), 0);
    }
}

TEST(Matrices, TrasVaciarSeReutilizaElBloque) {
    EmpezarConDatos(TipoSinPeriodicidad, "");
    PonerMatriz("A", {1}, 1, 1);
    FijarMatriz(0);
    PonerMatriz("B", {2}, 1, 1);
    const double *bloque = TablaMatrices.bloque[0];
    VaciarArchivoTrabajo();
    EXPECT_EQ(TablaMatrices.numero, 0);
    EXPECT_EQ(TablaMatrices.EstadoBloque[0], BloqueFijado);
    EXPECT_EQ(TablaMatrices.EstadoBloque[1], BloqueSuelto);
    EXPECT_EQ(BuscarMatriz("A"), -1);
    PonerMatriz("N", Contar(20), 4, 5);
    EXPECT_EQ(TablaMatrices.bloque[0], bloque);
    EsperarMatriz("N", 4, 5, Contar(20));
}

TEST(Matrices, UnBloquePequenoQueQuedoNoSeDesborda) {
    EmpezarConDatos(TipoSinPeriodicidad, "");
    PonerMatriz("A", {1}, 1, 1);
    PonerMatriz("B", {2}, 1, 1);
    BorrarMatriz(nullptr, 0); // slot 0 now has a block of one double
    VaciarArchivoTrabajo();
    EXPECT_EQ(TablaMatrices.capacidad[0], 1);
    PonerMatriz("N", Contar(400), 20, 20);
    EsperarMatriz("N", 20, 20, Contar(400));
}

} // namespace
