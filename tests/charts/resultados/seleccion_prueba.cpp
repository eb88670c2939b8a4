// The chooser of what to list.
#include "apoyo/plataforma_prueba.h"
#include "charts/resultados/seleccion.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <gtest/gtest.h>

namespace {

using Codigos = std::vector<std::string>;

TEST(Seleccion, Textos) {
    const auto textos = [](ModosSeleccion m) {
        const TextosSeleccion &t = TextosDe(m);
        return Codigos{Utf8De1252(t.titulo), Utf8De1252(t.disponibles), Utf8De1252(t.elegidas)};
    };
    EXPECT_EQ(textos(SeleccionDeSeries),
              (Codigos{"Selección de series", "Series en el archivo de trabajo", "Series seleccionadas"}));
    EXPECT_EQ(
        textos(SeleccionDeMatrices),
        (Codigos{"Selección de matrices", "Matrices en el archivo de trabajo", "Matrices seleccionadas"}));
}

TEST(Seleccion, MoverDeUnaListaALaOtra) {
    EmpezarConDatos(0, "");
    for (const char *c : {"A", "B", "C"}) PonerSerie(c, {1});
    EstadoSeleccion e = IniciarSeleccion(SeleccionDeSeries);
    EXPECT_EQ(e.disponibles, (Codigos{"A", "B", "C"}));
    EXPECT_TRUE(AnadirASeleccion(e, 1, nullptr));
    EXPECT_TRUE(AnadirASeleccion(e, 0, nullptr));
    EXPECT_EQ(e.disponibles, Codigos{"C"});
    EXPECT_EQ(e.elegidas, (Codigos{"B", "A"})) << "in the order of the choice";
    EXPECT_TRUE(EliminarDeSeleccion(e, 0, nullptr));
    EXPECT_EQ(e.disponibles, (Codigos{"C", "B"}));
    EXPECT_EQ(e.elegidas, Codigos{"A"});
    EXPECT_TRUE(Prueba.cajas.empty());
}

TEST(Seleccion, SinEntradaQueMover) {
    EmpezarConDatos(0, "");
    PonerSerie("A", {1});
    EstadoSeleccion e = IniciarSeleccion(SeleccionDeSeries);
    EXPECT_FALSE(AnadirASeleccion(e, -1, nullptr)) << "no entry is selected";
    EXPECT_FALSE(AnadirASeleccion(e, 1, nullptr));
    EXPECT_FALSE(EliminarDeSeleccion(e, 0, nullptr));
    ASSERT_EQ(Prueba.cajas.size(), 3u);
    for (const CajaVista &c : Prueba.cajas)
        EXPECT_EQ(c, (CajaVista{"Aviso", "Error al crear la lista", IconoInformacion, BotonesAceptar}));
    EXPECT_EQ(e.disponibles, Codigos{"A"});
}

TEST(Seleccion, ImprimeLoElegidoYQuedaAbierta) {
    EmpezarConDatos(0, "");
    PonerMatriz("M", {1, 2}, 1, 2);
    PonerMatriz("N", {3}, 1, 1);
    EstadoSeleccion e = IniciarSeleccion(SeleccionDeMatrices);
    EXPECT_EQ(e.disponibles, (Codigos{"M", "N"}));
    EXPECT_EQ(ImprimirElegidas(e, 2, nullptr), 1);
    EXPECT_EQ(TextosDeCajas(), Codigos{"No existen matrices a listar"});
    EXPECT_EQ(Prueba.cajas.at(0).titulo, "Aviso");
    AnadirASeleccion(e, 1, nullptr);
    EXPECT_EQ(ImprimirElegidas(e, 2, nullptr), 0);
    ASSERT_EQ(Prueba.trabajos.size(), 2u);
    EXPECT_TRUE(Prueba.trabajos[0].paginas.empty());
    EXPECT_EQ(Prueba.trabajos[1].titulo, "Listado de Matrices");
    EXPECT_EQ(Prueba.trabajos[1].paginas.at(0).back(), "{           3.00 }");
    AnadirASeleccion(e, 0, nullptr);
    EXPECT_EQ(ImprimirElegidas(e, 2, nullptr), 0);
    EXPECT_EQ(Prueba.trabajos.back().paginas.at(0).back(), "{           1.00            2.00 }");
    EXPECT_EQ(e.elegidas, (Codigos{"N", "M"}));
}

} // namespace
