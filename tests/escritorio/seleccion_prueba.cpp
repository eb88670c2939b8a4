// The chooser of listings: two lists, the buttons between them, decimals, and what OK prints.
#include "apoyo_escritorio.h"

#include "charts/resultados/ventanas/dialogo_seleccion.h"
#include "language/lote_sentencias.h"
#include "platform/qt/ventana_qt.h"
#include "shell/ventanas/escritorio.h"
#include "store/archivo.h"

#include <QApplication>
#include <QLabel>
#include <QListWidget>

using Seleccion = Escritorio;
using Codigos = std::vector<std::string>;

namespace {

constexpr const char *DeSeries = "Selección de series", *DeMatrices = "Selección de matrices";

void Abrir(VentanaPrincipal &v, ModosSeleccion modo, const Guion &guion) {
    EmpezarConDatos(TipoAnual, "1990#1991");
    for (const char *c : {"A", "B", "C"}) PonerSerie(c, {1, 2});
    PonerMatriz("M", {1, 2}, 1, 2);
    PonerMatriz("N", {3}, 1, 1);
    InstalarVentanas(); // the printer stays the one that keeps what it prints
    ConGuion(guion, [&] { DialogoSeleccion(AVentana(&v), modo); });
}

void EnListas(QDialog &d, const Codigos &disponibles, const Codigos &elegidas) {
    EXPECT_EQ(LineasDe(d, "disponibles"), disponibles);
    EXPECT_EQ(LineasDe(d, "elegidas"), elegidas);
}

} // namespace

TEST_F(Seleccion, Textos) {
    static constexpr struct {
        ModosSeleccion modo;
        const char *titulo, *disponibles, *elegidas;
        std::size_t codigos;
    } Casos[] = {
        {SeleccionDeSeries, DeSeries, "Series en el archivo de trabajo", "Series seleccionadas", 3},
        {SeleccionDeMatrices, DeMatrices, "Matrices en el archivo de trabajo", "Matrices seleccionadas", 2},
    };
    for (const auto &c : Casos)
        Abrir(*ventana, c.modo, {{c.titulo, [&](QDialog &d) {
                                      EXPECT_EQ(TextoDe(d, "textoDisponibles"), c.disponibles);
                                      EXPECT_EQ(TextoDe(d, "textoElegidas"), c.elegidas);
                                      EXPECT_EQ(TextoDe(d, "Anadir"), "Añadi&r >>>>");
                                      EXPECT_EQ(TextoDe(d, "Eliminar"), "<<<< &Eliminar");
                                      EXPECT_EQ(TextoDe(d, "Decimales"), "&Decimales");
                                      EXPECT_EQ(TextoDe(d, "OK"), "OK");
                                      EXPECT_EQ(LineasDe(d, "disponibles").size(), c.codigos);
                                      EXPECT_EQ(LineasDe(d, "elegidas").size(), 0u);
                                      Pulsar(d, "Cancela");
                                  }}});
    EXPECT_TRUE(Prueba.trabajos.empty());
}

TEST_F(Seleccion, DeUnaListaALaOtra) {
    Abrir(*ventana, SeleccionDeSeries, {{DeSeries, [](QDialog &d) {
                                             Elegir(d, "disponibles", 1);
                                             Pulsar(d, "Anadir");
                                             EnListas(d, {"A", "C"}, {"B"});
                                             Pulsar(d, "Anadir"); // the next one has taken its place
                                             EnListas(d, {"A"}, {"B", "C"});
                                             Pulsar(d, "Anadir");
                                             EnListas(d, {}, {"B", "C", "A"});
                                             Elegir(d, "elegidas", 0);
                                             Pulsar(d, "Eliminar");
                                             EnListas(d, {"B"}, {"C", "A"});
                                             Pulsar(d, "Cancela");
                                         }}});
}

TEST_F(Seleccion, SinEntradaElegida) {
    const Paso error = Caja("Aviso", "Error al crear la lista");
    for (const char *boton : {"Anadir", "Eliminar"})
        Abrir(*ventana, SeleccionDeSeries,
              {{DeSeries,
                [&](QDialog &d) {
                    Pulsar(d, boton);
                    EnListas(d, {"A", "B", "C"}, {});
                    Pulsar(d, "Cancela");
                }},
               error});
}

// OK prints and stays, so that more can be printed.
TEST_F(Seleccion, ImprimeYQuedaAbierta) {
    Abrir(*ventana, SeleccionDeMatrices,
          {{DeMatrices,
            [](QDialog &d) {
                Pulsar(d, "OK");
                EXPECT_TRUE(d.isVisible());
                Elegir(d, "disponibles", 1);
                Pulsar(d, "Anadir");
                Pulsar(d, "OK");
                EXPECT_TRUE(d.isVisible());
                EnListas(d, {"M"}, {"N"});
                Pulsar(d, "Anadir");
                Pulsar(d, "OK");
                Pulsar(d, "Cancela");
            }},
           Caja("Aviso", "No existen matrices a listar")});
    ASSERT_EQ(Prueba.trabajos.size(), 3u);
    EXPECT_TRUE(Prueba.trabajos[0].paginas.empty());
    EXPECT_EQ(Prueba.trabajos[1].titulo, "Listado de Matrices");
    EXPECT_EQ(Prueba.trabajos[1].paginas.at(0).back(), "{           3.00 }");
    EXPECT_EQ(Prueba.trabajos[2].paginas.at(0).back(), "{           1.00            2.00 }");
}

TEST_F(Seleccion, DecimalesDeLoImpreso) {
    Abrir(*ventana, SeleccionDeSeries,
          {{DeSeries,
            [](QDialog &d) {
                Pulsar(d, "Decimales");
                EXPECT_EQ(Lote.DecimalesSalida, 4);
                Elegir(d, "disponibles", 0);
                Pulsar(d, "Anadir");
                Pulsar(d, "OK");
                Pulsar(d, "Cancela");
            }},
           {"Formato decimal", [](QDialog &d) {
                Pulsar(d, "decimales4");
                Pulsar(d, "OK");
            }}});
    ASSERT_EQ(Prueba.trabajos.size(), 1u);
    EXPECT_EQ(Prueba.trabajos[0].titulo, "Listado de Series");
    EXPECT_NE(Prueba.trabajos[0].paginas.at(0).back().find("2.0000"), std::string::npos);
}

// With the keys alone: down to the entry, Tab to the button, Space as often as there are entries.
TEST_F(Seleccion, ConElTeclado) {
    Abrir(*ventana, SeleccionDeSeries,
          {{DeSeries, [](QDialog &d) {
                Activar(d);
                const auto tecla = [](Qt::Key k) { QTest::keyClick(QApplication::focusWidget(), k); };
                for (const Qt::Key k : {Qt::Key_Down, Qt::Key_Tab, Qt::Key_Space, Qt::Key_Space}) tecla(k);
                EnListas(d, {"C"}, {"A", "B"});
                tecla(Qt::Key_Escape);
                EXPECT_FALSE(d.isVisible());
            }}});
}
