// The dialogs of MC and MCP: their lists, what is composed, the equations, and what OK asks for.
#include "apoyo_escritorio.h"

#include "estimation/dialogo_mc.h"
#include "estimation/ecuaciones.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>

namespace {

constexpr const char *MC = "Mínimos cuadrados ordinarios";
constexpr const char *MCP = "Método: Mínimos cuadrados ponderados";
constexpr const char *Opciones[] = {"resultados",     "covarianza",      "valores",
                                    "graficoValores", "graficoResiduos", "varianza"};

using Lineas = std::vector<std::string>;

class Estimaciones : public Escritorio {
protected:
    void SetUp() override {
        Escritorio::SetUp();
        IniciarRegresion();
        DialogosEstimacion = {};
        PonerDatos(TipoAnual, "1990#1999");
        PonerSerie("Y", {3, 5, 4, 8, 7, 9, 12, 11, 15, 13});
        PonerSerie("X", {1, 3, 2, 4, 6, 5, 7, 9, 11, 8});
    }
};

void DobleClic(QDialog &d, const char *lista, int linea) {
    auto *l = Hijo<QListWidget>(d, lista);
    ASSERT_NE(l, nullptr);
    ASSERT_LT(linea, l->count());
    const QPoint centro = l->visualItemRect(l->item(linea)).center();
    QTest::mouseClick(l->viewport(), Qt::LeftButton, {}, centro);
    QTest::mouseDClick(l->viewport(), Qt::LeftButton, {}, centro);
}

bool Marcado(QDialog &d, const char *boton) {
    auto *b = Hijo<QAbstractButton>(d, boton);
    return b != nullptr && b->isChecked();
}

void Marcar(QDialog &d, const char *boton, bool si) {
    if (auto *b = Hijo<QAbstractButton>(d, boton)) b->setChecked(si);
}

const Paso NoVer = {"Aviso", [](QDialog &d) { Pulsar(d, "No"); }};

} // namespace

TEST_F(Estimaciones, ComoSeAbren) {
    AltaEcuacion("UNA", "Y 1 X");
    for (const auto &[id, titulo] : {std::pair{2004, MC}, std::pair{2081, MCP}}) {
        SCOPED_TRACE(titulo);
        ConGuion({{titulo,
                   [&](QDialog &d) {
                       EXPECT_EQ(LineasDe(d, "retardos"),
                                 (Lineas{"(-1)  ", "(-2)  ", "(-3)  ", "(-4)  ", "(-5)  ", "(-6)  "}));
                       EXPECT_EQ(LineasDe(d, "regresores"), (Lineas{"Y", "X", "1 "}));
                       EXPECT_EQ(LineasDe(d, "codigosEcuacion"), Lineas{"UNA"});
                       EXPECT_EQ(LineasDe(d, "textosEcuacion"), Lineas{"Y 1 X"});
                       EXPECT_EQ(TextoDe(d, "ecuacion"), "");
                       EXPECT_EQ(TextoDe(d, "ponderacion"), "");
                       for (const char *o : Opciones)
                           EXPECT_EQ(Marcado(d, o), std::string(o) == "resultados") << o;
                       EXPECT_TRUE(Marcado(d, "estandard"));
                       EXPECT_EQ(Hijo<QWidget>(d, "grupoCovarianza")->isVisible(), id == 2004);
                       EXPECT_EQ(Hijo<QWidget>(d, "ponderacion")->isVisible(), id == 2081);
                       EXPECT_EQ(TextoDe(d, "etiquetaPonderacion"), "Variable de &ponderación:");
                       Pulsar(d, "Cancela");
                   }}},
                 [&] { Ordenar(id); });
    }
}

TEST_F(Estimaciones, SeComponeConListasYBotones) {
    ConGuion({{MC,
               [](QDialog &d) {
                   DobleClic(d, "regresores", 0);
                   EXPECT_EQ(TextoDe(d, "ecuacion"), " Y");
                   DobleClic(d, "regresores", 2);
                   EXPECT_EQ(TextoDe(d, "ecuacion"), " Y 1 ");
                   Elegir(d, "regresores", 1);
                   EXPECT_EQ(TextoDe(d, "ecuacion"), " Y 1 "); // one click only chooses
                   Pulsar(d, "anadirRegresor");
                   EXPECT_EQ(TextoDe(d, "ecuacion"), " Y 1 X");
                   DobleClic(d, "retardos", 0);
                   EXPECT_EQ(TextoDe(d, "ecuacion"), " Y 1 X(-1)  ");
                   Pulsar(d, "anadirRegresor");
                   Elegir(d, "retardos", 5);
                   Pulsar(d, "anadirRetardo");
                   EXPECT_EQ(TextoDe(d, "ecuacion"), " Y 1 X(-1) X(-6)  ");
                   Hijo<QLineEdit>(d, "ecuacion")->setText(QString(239, u'A'));
                   Pulsar(d, "anadirRegresor");
                   EXPECT_EQ(TextoDe(d, "ecuacion"), std::string(239, 'A') + " X");
                   Pulsar(d, "anadirRegresor");
                   EXPECT_EQ(TextoDe(d, "ecuacion"), std::string(239, 'A') + " X");
                   Pulsar(d, "Cancela");
               }}},
             [&] { Ordenar(2004); });
}

// All of it without the mouse, from the equation to the answer about the report.
TEST_F(Estimaciones, SinRaton) {
    // Without limits the coefficients as a series would leave the second estimation two rows.
    MuestraDeSentencia("MUEST " + std::string(TextoPeriodo(0)) + " " +
                       std::string(TextoPeriodo(ArchivoTrabajo.NumObs - 1)));
    ConGuion({{MC,
               [](QDialog &d) {
                   Activar(d);
                   QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("Y 1"));
                   auto *regresores = Hijo<QListWidget>(d, "regresores");
                   regresores->setFocus();
                   QTest::keyClick(regresores, Qt::Key_Down);
                   QTest::keyClick(regresores, Qt::Key_Down);
                   QTest::keyClick(regresores, Qt::Key_Return);
                   EXPECT_EQ(TextoDe(d, "ecuacion"), "Y 1 X");
                   auto *ecuacion = Hijo<QLineEdit>(d, "ecuacion");
                   ecuacion->setFocus();
                   QTest::keyClick(ecuacion, Qt::Key_Return);
                   EXPECT_TRUE(d.isVisible());
                   EXPECT_EQ(d.focusWidget(), ecuacion); // the keyboard comes back to where it was
                   QTest::keyClick(ecuacion, Qt::Key_Escape);
               }},
              NoVer},
             [&] { Ordenar(2004); });
    EXPECT_EQ(UltimaRegresion.TextoEcuacion, "Y 1 X");
    // The next opening begins with it.
    ConGuion({{MC,
               [](QDialog &d) {
                   EXPECT_EQ(TextoDe(d, "ecuacion"), "Y 1 X");
                   Pulsar(d, "heterocedasticidad");
                   Pulsar(d, "OK");
                   Pulsar(d, "Cancela");
               }},
              NoVer},
             [&] { Ordenar(2004); });
    EXPECT_EQ(UltimaRegresion.TipoCovarianza, CovarianzaHeterocedasticidad);
}

TEST_F(Estimaciones, Ponderados) {
    ConGuion({{MCP,
               [](QDialog &d) {
                   Escribir(d, "ecuacion", "Y 1 X");
                   Pulsar(d, "OK");
                   Escribir(d, "ponderacion", "1 / X");
                   Pulsar(d, "OK");
                   Pulsar(d, "Cancela");
               }},
              Caja("Aviso", "Introduzca variable ponderación"),
              NoVer},
             [&] { Ordenar(2081); });
    EXPECT_EQ(UltimaRegresion.MetodoRegresion, OrdenMCP);
    EXPECT_EQ(DialogosEstimacion.SentenciaMCP, "MCP ( 1 / X ) Y 1 X");
}

TEST_F(Estimaciones, Mensajes) {
    ConGuion({{MC,
               [](QDialog &d) {
                   Marcar(d, "resultados", false);
                   Pulsar(d, "OK"); // nothing is asked for
                   Marcar(d, "graficoResiduos", true);
                   Pulsar(d, "OK");
                   Marcar(d, "resultados", true);
                   Escribir(d, "ecuacion", "NADA 1");
                   Pulsar(d, "OK");
                   Marcar(d, "resultados", false);
                   Pulsar(d, "OK");
                   Pulsar(d, "Cancela");
               }},
              Caja("Aviso", "Efectue primero una regresión"),
              Caja("Proceso cancelado", "Serie desconocida:[NADA]. Pto 2663"),
              Caja("Aviso", "Secuencia de series no válida"),
              Caja("Gráfico de los residuos", "¿Desea ver los residuos estandarizados?", "Cancelar",
                   QMessageBox::Question)},
             [&] { Ordenar(2004); });
}

TEST_F(Estimaciones, Ecuaciones) {
    ConGuion({{MC,
               [](QDialog &d) {
                   Pulsar(d, "alta"); // without code and text
                   Escribir(d, "codigoEcuacion", "UNA");
                   Escribir(d, "ecuacion", " Y 1 X ");
                   Pulsar(d, "alta");
                   Escribir(d, "ecuacion", "Y X");
                   Pulsar(d, "alta"); // the code exists
                   Escribir(d, "codigoEcuacion", "DOS Y DOS SON CUATRO");
                   EXPECT_EQ(TextoDe(d, "codigoEcuacion"), "DOS Y DOS SO");
                   Pulsar(d, "alta");
                   EXPECT_EQ(LineasDe(d, "codigosEcuacion"), (Lineas{"UNA", "DOS Y DOS SO"}));
                   EXPECT_EQ(LineasDe(d, "textosEcuacion"), (Lineas{"Y 1 X", "Y X"}));
                   auto *codigos = Hijo<QListWidget>(d, "codigosEcuacion");
                   codigos->setFocus(Qt::TabFocusReason);
                   QTest::keyClick(codigos, Qt::Key_Down); // to the first, not behind it
                   EXPECT_EQ(codigos->currentRow(), 0);
                   DobleClic(d, "codigosEcuacion", 0);
                   EXPECT_EQ(TextoDe(d, "codigoEcuacion"), "UNA");
                   EXPECT_EQ(TextoDe(d, "ecuacion"), "Y 1 X");
                   DobleClic(d, "textosEcuacion", 1);
                   EXPECT_EQ(TextoDe(d, "codigoEcuacion"), "DOS Y DOS SO");
                   EXPECT_EQ(TextoDe(d, "ecuacion"), "Y X");
                   Escribir(d, "codigoEcuacion", "UNA");
                   Pulsar(d, "baja");
                   EXPECT_EQ(LineasDe(d, "codigosEcuacion"), Lineas{"DOS Y DOS SO"});
                   EXPECT_EQ(LineasDe(d, "textosEcuacion"), Lineas{"Y X"});
                   Pulsar(d, "Cancela");
               }}},
             [&] { Ordenar(2004); });
    // Both dialogs show the same table.
    ConGuion({{MCP,
               [](QDialog &d) {
                   EXPECT_EQ(LineasDe(d, "codigosEcuacion"), Lineas{"DOS Y DOS SO"});
                   Pulsar(d, "Cancela");
               }}},
             [&] { Ordenar(2081); });
}
