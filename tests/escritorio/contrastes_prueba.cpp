// The dialogs of the tests: how they open, what their lists compose, what OK runs, and whether they stay.
#include "apoyo_escritorio.h"

#include "estimation/regresion.h"
#include "hypothesis/hipotesis_nula.h"
#include "language/lote_sentencias.h"
#include "platform/qt/ventana_qt.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QRadioButton>

namespace {

constexpr const char *CHN = "Contrastes de significatividad: Hipótesis nula";
constexpr const char *CR = "Contrastes de significatividad: Modelo restringido";
constexpr const char *CGQ = "Contrastes de heteroscedasticidad: Goldfeld y Quandt";
constexpr const char *CWH = "Contrastes de heteroscedasticidad: White";
constexpr const char *CRA = "Contrastes de heteroscedasticidad: Rangos";

using Lineas = std::vector<std::string>;

class Contrastes : public Escritorio {
protected:
    void SetUp() override {
        Escritorio::SetUp();
        IniciarRegresion();
        IniciarHipotesisNula();
        PonerDatos(TipoAnual, "1980#1999");
        PonerSerie("Y", {3, 5, 4, 8, 7, 9, 12, 11, 15, 13, 17, 16, 18, 22, 21, 20, 25, 24, 27, 30});
        PonerSerie("X", {1, 3, 2, 4, 6, 5, 7, 9, 11, 8, 12, 10, 13, 17, 14, 16, 19, 15, 20, 22});
        PonerSerie("Z", {2, 7, 1, 8, 2, 8, 1, 8, 2, 8, 4, 5, 9, 0, 4, 5, 2, 3, 5, 3});
        Lote.VerRegresion = 0;
        Muestra.InicioMuestra = 0;
        Muestra.FinMuestra = 19;
    }

    static void Estimar() { EXPECT_EQ(ProcesarSentencia(nullptr, "MC Y 1 X Z", 0, 19), 1); }
};

// The fields of restrictions that are shown, and the one that is marked; 0 for none.
int Visibles(QDialog &d) {
    int n = 0;
    for (int i = 1; i <= 11; ++i) {
        const std::string numero = std::to_string(i);
        const bool campo = Hijo<QLineEdit>(d, ("restriccion" + numero).c_str())->isVisible();
        EXPECT_EQ(campo, Hijo<QRadioButton>(d, ("elige" + numero).c_str())->isVisible());
        EXPECT_EQ(campo, n + 1 == i && campo); // from the first on
        if (campo) ++n;
    }
    return n;
}

int Marcado(QDialog &d) {
    for (int i = 1; i <= 11; ++i)
        if (Hijo<QRadioButton>(d, ("elige" + std::to_string(i)).c_str())->isChecked()) return i;
    return 0;
}

void Ayudarse(QDialog &d) {
    auto *barra = Hijo<QMenuBar>(d, "menuDialogo");
    ASSERT_NE(barra, nullptr);
    ASSERT_EQ(barra->actions().size(), 1);
    EXPECT_EQ(barra->actions()[0]->text().toStdString(), "&Ayuda");
    barra->actions()[0]->trigger();
}

// A result window: closed as it comes.
Paso Ver(const char *titulo) {
    return {titulo, [](QDialog &d) {
                EXPECT_EQ(d.objectName().toStdString(), "ventanaResultado");
                d.accept();
            }};
}

} // namespace

// ----- Null hypothesis

TEST_F(Contrastes, HipotesisNulaComoSeAbre) {
    ConGuion({{CHN,
               [](QDialog &d) {
                   EXPECT_EQ(LineasDe(d, "simbolos"),
                             (Lineas{"BETA(1) ", "BETA(2) ", "BETA(3) ", "BETA(4) ", "BETA(5) ", "BETA(6) ",
                                     "BETA(7) ", "BETA(8) ", " = ", " * ", "BETA", " (", " )", "0", "1", "2",
                                     "3"}));
                   EXPECT_EQ(TextoDe(d, "numero"), "1");
                   EXPECT_EQ(TextoDe(d, "etiquetaNumero"), "&Número de restricciones:");
                   EXPECT_EQ(Visibles(d), 0);
                   EXPECT_EQ(Marcado(d), 0);
                   EXPECT_EQ(Hijo<QLineEdit>(d, "restriccion11")->maxLength(), 80);
                   Elegir(d, "simbolos", 0);
                   Pulsar(d, "Anadir"); // no field to put it in
                   EXPECT_EQ(TextoDe(d, "restriccion1"), "");
                   Ayudarse(d);
                   Pulsar(d, "Cancela");
               }},
              Pulsando(CHN, "OK")},
             [&] { Ordenar(2012); });
}

TEST_F(Contrastes, HipotesisNulaNumeroDeRestricciones) {
    ConGuion({{CHN,
               [](QDialog &d) {
                   Pulsar(d, "SI");
                   EXPECT_EQ(Visibles(d), 0);
                   Pulsar(d, "Cancela");
               }},
              Caja("Proceso cancelado", "No existe la matriz _BETA")},
             [&] { Ordenar(2012); });
    Estimar();
    ConGuion({{CHN,
               [](QDialog &d) {
                   for (const auto &[numero, visibles] :
                        {std::pair{"1", 1}, std::pair{"3", 3}, std::pair{"0", 1}, std::pair{"-2", 1},
                         std::pair{"", 1}, std::pair{"2", 2}}) {
                       Escribir(d, "numero", numero);
                       Pulsar(d, "SI");
                       EXPECT_EQ(Visibles(d), visibles) << numero;
                       EXPECT_EQ(Marcado(d), 1);
                       EXPECT_EQ(d.focusWidget(), Hijo<QWidget>(d, "restriccion1")) << numero;
                   }
                   Escribir(d, "numero", "4");
                   Pulsar(d, "SI");
                   EXPECT_EQ(Visibles(d), 0);
                   Pulsar(d, "Cancela");
               }},
              Caja("Proceso cancelado", "Número de restricciones no válidas")},
             [&] { Ordenar(2012); });
}

// Eleven fields at most; twelve become ten.
TEST_F(Contrastes, HipotesisNulaHastaOnce) {
    PonerMatriz("_BETA", std::vector<double>(12, 1.0), 12, 1);
    PonerMatriz("_COV", std::vector<double>(144, 1.0), 12, 12);
    ConGuion({{CHN,
               [](QDialog &d) {
                   for (const auto &[numero, visibles] :
                        {std::pair{"11", 11}, std::pair{"12", 10}, std::pair{"99", 10}}) {
                       Escribir(d, "numero", numero);
                       Pulsar(d, "SI");
                       EXPECT_EQ(Visibles(d), visibles) << numero;
                   }
                   EXPECT_LE(d.height(), 500);
                   Pulsar(d, "Cancela");
               }}},
             [&] { Ordenar(2012); });
}

TEST_F(Contrastes, HipotesisNulaSeComponeYSeContrasta) {
    Estimar();
    ConGuion({{CHN,
               [](QDialog &d) {
                   Activar(d);
                   auto *numero = Hijo<QLineEdit>(d, "numero");
                   QTest::keyClicks(numero, QStringLiteral("2"));
                   QTest::keyClick(numero, Qt::Key_Return); // means SI while no field is there
                   EXPECT_EQ(Visibles(d), 2);
                   for (const int simbolo : {1, 8, 13}) { // BETA(2) = 0
                       Elegir(d, "simbolos", simbolo);
                       Pulsar(d, "Anadir");
                   }
                   EXPECT_EQ(TextoDe(d, "restriccion1"), "BETA(2) =0");
                   Pulsar(d, "elige2");
                   Elegir(d, "simbolos", 10);
                   Pulsar(d, "Anadir");
                   EXPECT_EQ(TextoDe(d, "restriccion2"), "BETA");
                   Escribir(d, "restriccion2", "BETA(3) = 1");
                   Hijo<QLineEdit>(d, "restriccion1")->setText(QString(80, u'1'));
                   Pulsar(d, "elige1");
                   Pulsar(d, "Anadir"); // no room
                   EXPECT_EQ(TextoDe(d, "restriccion1"), std::string(80, '1'));
                   Escribir(d, "restriccion1", "BETA(2) = 0");
                   Pulsar(d, "OK");
                   EXPECT_FALSE(d.isVisible());
               }},
              Ver("Contraste de significatividad: Hipótesis nula")},
             [&] { Ordenar(2012); });
    EXPECT_EQ(HipotesisNula.q, 2);
    // What was tested is there again.
    ConGuion({{CHN,
               [](QDialog &d) {
                   Escribir(d, "numero", "2");
                   Pulsar(d, "SI");
                   EXPECT_EQ(TextoDe(d, "restriccion1"), "BETA(2)=0");
                   EXPECT_EQ(TextoDe(d, "restriccion2"), "BETA(3)=1");
                   Escribir(d, "restriccion2", "BETA(9) = 1");
                   Pulsar(d, "OK");
                   EXPECT_TRUE(d.isVisible()); // refused: what was typed stays
                   EXPECT_EQ(TextoDe(d, "restriccion2"), "BETA(9) = 1");
                   Pulsar(d, "Cancela");
               }},
              Caja("Proceso cancelado", "Nº de regresores no válido"),
              Caja("Proceso cancelado", "Error en cálculos. P1")},
             [&] { Ordenar(2012); });
}

// ----- Restricted model

TEST_F(Contrastes, ModeloRestringido) {
    Estimar(); // a typed regression isn't enough
    UltimaRegresion.DesdeDialogo = 0;
    ConGuion({{CR,
               [](QDialog &d) {
                   EXPECT_EQ(TextoDe(d, "texto"), "");
                   EXPECT_EQ(Hijo<QLineEdit>(d, "texto")->maxLength(), 250);
                   const Lineas series = LineasDe(d, "series");
                   ASSERT_GE(series.size(), 4u);
                   EXPECT_EQ(series[0], "Y");
                   EXPECT_EQ(series.back(), "1 ");
                   EXPECT_EQ(LineasDe(d, "retardos"),
                             (Lineas{"(-1)  ", "(-2)  ", "(-3)  ", "(-4)  ", "(-5)  ", "(-6)  "}));
                   Elegir(d, "series", 0);
                   EXPECT_EQ(TextoDe(d, "texto"), " Y");
                   Elegir(d, "series", static_cast<int>(series.size()) - 1);
                   Elegir(d, "series", 1);
                   Elegir(d, "retardos", 1);
                   EXPECT_EQ(TextoDe(d, "texto"), " Y 1 X(-2)  ");
                   Hijo<QLineEdit>(d, "texto")->setText(QString(240, u'A'));
                   Elegir(d, "series", 1);
                   EXPECT_EQ(TextoDe(d, "texto"), std::string(240, 'A'));
                   Escribir(d, "texto", " Y 1 X");
                   Pulsar(d, "OK");
                   EXPECT_TRUE(d.isVisible());
                   UltimaRegresion.DesdeDialogo = 1;
                   Escribir(d, "texto", "NADA 1");
                   Pulsar(d, "OK");
                   EXPECT_TRUE(d.isVisible());
                   EXPECT_EQ(TextoDe(d, "texto"), "NADA 1");
                   Pulsar(d, "Cancela");
               }},
              Caja("Aviso", "Realize primero una regresión"),
              Caja("Proceso cancelado", "Serie desconocida:[NADA]. Pto 2663"),
              Caja("Aviso", "Secuencia de series no válida")},
             [&] { Ordenar(2075); });
    ConGuion({{CR,
               [](QDialog &d) {
                   Escribir(d, "texto", "Y 1 X");
                   Pulsar(d, "OK");
                   EXPECT_FALSE(d.isVisible());
               }},
              Ver(CR)},
             [&] { Ordenar(2075); });
}

// ----- Goldfeld and Quandt

TEST_F(Contrastes, GoldfeldQuandt) {
    Estimar();
    ConGuion(
        {{CGQ,
          [](QDialog &d) {
              EXPECT_EQ(LineasDe(d, "series")[1], "X");
              EXPECT_EQ(LineasDe(d, "series").size(), static_cast<std::size_t>(ArchivoTrabajo.NumSeries));
              EXPECT_EQ(TextoDe(d, "ayudaVariable"),
                        "Puede introducir una serie ó una transformación que origine una serie");
              EXPECT_EQ(TextoDe(d, "ejemplos"),
                        "Ejemplos:        SALARIO          ó     LN(SALARIO)/RND        ");
              EXPECT_EQ(TextoDe(d, "ayudaOrden"), "Indique número de orden de las observaciones ordenadas");
              EXPECT_EQ(Hijo<QLineEdit>(d, "variable")->maxLength(), 50);
              for (const char *campo :
                   {"primeraDenominador", "ultimaDenominador", "primeraNumerador", "ultimaNumerador"})
                  EXPECT_EQ(Hijo<QLineEdit>(d, campo)->maxLength(), 20) << campo;
              EXPECT_FALSE(Hijo<QAbstractButton>(d, "verRegresiones")->isChecked());
              Ayudarse(d);
              Pulsar(d, "OK");
              Elegir(d, "series", 1);
              EXPECT_EQ(TextoDe(d, "variable"), " X");
              for (int i = 0; i < 30; ++i) Elegir(d, "series", 1);
              EXPECT_EQ(TextoDe(d, "variable").size(), 40u); // begun while shorter than 40
              Escribir(d, "variable", "X");
              Escribir(d, "primeraDenominador", "1");
              Escribir(d, "ultimaDenominador", "8");
              Escribir(d, "primeraNumerador", "13");
              Escribir(d, "ultimaNumerador", "20");
              Pulsar(d, "OK");
              EXPECT_TRUE(d.isVisible());
              Pulsar(d, "Cancela");
          }},
         Pulsando(CGQ, "OK"),
         Caja("Aviso", "Introduzca variable de ponderación"),
         Ver(CGQ)},
        [&] { Ordenar(2078); });
    EXPECT_EQ(Muestra.InicioRegresion, 0);
    EXPECT_EQ(Muestra.FinRegresion, 19);
}

// ----- White, ranks

TEST_F(Contrastes, White) {
    Muestra.InicioRegresion = 0;
    Muestra.FinRegresion = 9; // rows enough, but no residuals
    ConGuion({{CWH,
               [](QDialog &d) {
                   EXPECT_EQ(TextoDe(d, "productosCruzados"), "¿Se incluyen &productos cruzados?");
                   EXPECT_EQ(TextoDe(d, "verRegresion"), "¿Desea ver la regresión &auxiliar?");
                   EXPECT_FALSE(Hijo<QAbstractButton>(d, "productosCruzados")->isChecked());
                   EXPECT_FALSE(Hijo<QAbstractButton>(d, "verRegresion")->isChecked());
                   Pulsar(d, "OK");
                   EXPECT_TRUE(d.isVisible());
                   Pulsar(d, "Cancela");
               }},
              Caja("Proceso cancelado", "No existen los residuos. Pto 1634"),
              Caja("Proceso cancelado", "Problemas en la regresión. P17")},
             [&] { Ordenar(2080); });
    Estimar();
    ConGuion({{CWH,
               [](QDialog &d) {
                   Pulsar(d, "productosCruzados");
                   Pulsar(d, "OK");
                   EXPECT_FALSE(d.isVisible());
               }},
              Ver(CWH)},
             [&] { Ordenar(2080); });
    EXPECT_EQ(UltimoContraste.productosCruzados, 1);
    EXPECT_EQ(UltimoContraste.verRegresion, 0);
}

TEST_F(Contrastes, Rangos) {
    Estimar();
    ConGuion({{CRA,
               [](QDialog &d) {
                   EXPECT_EQ(Hijo<QLineEdit>(d, "variable")->maxLength(), 250);
                   Elegir(d, "series", 2);
                   EXPECT_EQ(TextoDe(d, "variable"), " Z");
                   Hijo<QLineEdit>(d, "variable")->setText(QString(239, u'A'));
                   Elegir(d, "series", 1);
                   EXPECT_EQ(TextoDe(d, "variable").size(), 241u);
                   Elegir(d, "series", 1);
                   EXPECT_EQ(TextoDe(d, "variable").size(), 241u);
                   Escribir(d, "variable", "LN(X) ");
                   Pulsar(d, "OK");
                   EXPECT_FALSE(d.isVisible());
               }},
              Ver(CRA)},
             [&] { Ordenar(2079); });
    EXPECT_EQ(UltimoContraste.ordenacion, "LN(X)");
}

// ----- The tests without a dialog

TEST_F(Contrastes, DurbinYWallis) {
    EXPECT_EQ(ProcesarSentencia(nullptr, "MC Y 1 X Y(-1)", 0, 19), 1);
    ConGuion({Ver("Contrastes de autocorrelación: h de Durbin")}, [&] { Ordenar(2082); });
    ConGuion({Ver("Contrastes de autocorrelación: Wallis")}, [&] { Ordenar(2083); });
}
