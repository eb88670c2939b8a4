// The list dialogs of series, matrices and scalars: their lines and their delete button.
#include "shell/listas.h"

#include "apoyo/plataforma_prueba.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using Lineas = std::vector<std::string>;

void Llenar() {
    EmpezarConDatos(TipoAnual, "1990#1999");
    PonerSerie("B", {1, 2, 3});
    PonerSerie("A", {4, 5, 6});
    PonerSerie("_RES", {7, 8, 9});
    PonerMatriz("N", {1, 2, 3, 4, 5, 6}, 2, 3);
    PonerMatriz("M", std::vector<double>(120, 1.0), 120, 1);
    PonerEscalar(nullptr, "E", 1.0 / 3.0);
    PonerEscalar(nullptr, "D", -1234567.5);
    ActualizarMuestra();
    Prueba = {};
}

struct CasoLista {
    ListasDeElementos lista;
    const char *titulo;
    Lineas lineas;
};

const CasoLista Listas[] = {
    {ListaSeries, "Relación de series", {"B           ", "A           ", "_RES        "}},
    {ListaMatrices, "Relación de matrices", {"N              ( 2, 3)", "M              (120, 1)"}},
    {ListaEscalares,
     "Relación de escalares",
     {"NOBS    =   3", "E           =   0.3333", "D           = -1234567.5000"}},
};

TEST(Listas, TitulosYLineas) {
    Llenar();
    for (const CasoLista &c : Listas) {
        SCOPED_TRACE(c.titulo);
        EXPECT_EQ(Utf8De1252(TituloLista(c.lista)), c.titulo);
        EXPECT_EQ(LineasLista(c.lista), c.lineas);
    }
}

struct CasoBorrado {
    ListasDeElementos lista;
    const char *linea;
    bool borrado;
    int quedan; // lines
};

constexpr CasoBorrado Borrados[] = {
    {ListaSeries, "A           ", true, 2},
    {ListaSeries, "A", true, 2},
    {ListaSeries, "", false, 3}, // nothing selected
    {ListaSeries, "            ", false, 3},
    {ListaSeries, "a           ", false, 3},
    {ListaSeries, "E           ", false, 3}, // of another table
    {ListaMatrices, "N              ( 2, 3)", true, 1},
    {ListaMatrices, "M              (120, 1)", true, 1},
    {ListaMatrices, "", false, 2},
    {ListaEscalares, "E           =   0.3333", true, 2},
    {ListaEscalares, "NOBS    =   3", false, 3},
    {ListaEscalares, "", false, 3},
};

TEST(Listas, BorrarLaLineaElegida) {
    for (const CasoBorrado &c : Borrados) {
        SCOPED_TRACE(c.linea);
        Llenar();
        EXPECT_EQ(BorrarElemento(nullptr, c.lista, c.linea), c.borrado);
        const Lineas quedan = LineasLista(c.lista);
        EXPECT_EQ(static_cast<int>(quedan.size()), c.quedan);
        if (c.borrado) {
            EXPECT_EQ(std::count(quedan.begin(), quedan.end(), c.linea), 0);
        }
        EXPECT_TRUE(Prueba.cajas.empty()); // at once, without a question
        EXPECT_EQ(Prueba.refrescos > 0, c.lista == ListaSeries && c.borrado);
    }
}

TEST(Listas, BorrarTodasLasSeriesNoDejaDatos) {
    Llenar();
    while (ArchivoTrabajo.NumSeries > 0) {
        const int antes = ArchivoTrabajo.NumSeries;
        ASSERT_TRUE(BorrarElemento(nullptr, ListaSeries, LineasLista(ListaSeries)[0]));
        ASSERT_EQ(ArchivoTrabajo.NumSeries, antes - 1);
    }
    for (int i = 0; i < MaxObservaciones; ++i)
        for (int s = 0; s < 3; ++s) {
            ASSERT_EQ(ArchivoTrabajo.ValoresObs[i][s], 0.0);
            ASSERT_EQ(ArchivoTrabajo.PresenciaObs[i][s], 0);
        }
    EXPECT_EQ(TablaMatrices.numero, 2);
    EXPECT_EQ(TablaEscalares.numero, 2);
}

TEST(Listas, UnaMatrizQueNoSeMueveLoDice) {
    Llenar();
    TablaMatrices.EstadoBloque[1] = SinBloque;
    EXPECT_FALSE(BorrarElemento(nullptr, ListaMatrices, "N              ( 2, 3)"));
    EXPECT_EQ(TextosDeCajas(), Lineas{"No hay suficiente Memoria. P21"});
    TablaMatrices.EstadoBloque[1] = BloqueSuelto;
}

} // namespace
