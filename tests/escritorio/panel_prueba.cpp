// The dialogs of panel data.
#include "apoyo_escritorio.h"

#include "platform/campos_texto.h"
#include "platform/texto.h"
#include "store/archivo.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QListWidget>

using Panel = Escritorio;
using Lineas = std::vector<std::string>;

namespace {

constexpr const char *Panel1 = "Datos Panel", *Constante = "Períodos/Individúos constante y secuencial",
                     *DePeriodos = "Períodos e Individúos", *DeIndividuos = "Individúos y Períodos",
                     *Etiquetas = "Introducción de Etiquetas";

const Paso ElegirPanel = {"Tipos de datos", [](QDialog &d) {
                              Pulsar(d, "tipo4");
                              Pulsar(d, "OK");
                          }};
const Paso Salir = Pulsando("Tipos de datos", "Cancela");

// The dialog of the panel: buttons pressed one behind another.
Paso EnPanel(const std::vector<const char *> &botones) {
    return {Panel1, [=](QDialog &d) {
                for (const char *b : botones) Pulsar(d, b);
            }};
}

// The dialog of the constant panel, filled and accepted.
Paso EnConstante(const char *individuos, const char *tipo, const char *inicio, const char *fin) {
    return {Constante, [=](QDialog &d) {
                Escribir(d, "individuos", individuos);
                Pulsar(d, tipo);
                Escribir(d, "inicio", inicio);
                Escribir(d, "fin", fin);
                Pulsar(d, "OK");
            }};
}

void Anadir(QDialog &d, const char *periodo, const char *individuos) {
    Escribir(d, "periodo", periodo);
    Escribir(d, "individuos", individuos);
    Pulsar(d, "anadir");
}

Lineas Filas() {
    Lineas r;
    for (int i = 0; i < ArchivoTrabajo.NumObs; ++i) r.emplace_back(Recortado(TextoPeriodo(i)));
    return r;
}

} // namespace

TEST_F(Panel, AlAbrirse) {
    ConGuion({ElegirPanel,
              {Panel1,
               [](QDialog &d) {
                   static constexpr struct {
                       const char *boton, *texto;
                       bool marcado;
                   } Botones[] = {
                       {"periodoPrimero", "Primer concepto: Período", true},
                       {"individuoPrimero", "Primer concepto: Individúos", false},
                       {"constante", "Períodos/Individúos constante y secuencial", true},
                       {"variable", "Períodos/Individúos variable y/o no secuencial", false},
                       {"etiquetas", "Se desea introducir una etiqueta para cada individúo", false},
                       {"introducirPeriodos", "Introducción Períodos e Individúos", false},
                       {"introducirEtiquetas", "Introducción de Etiquetas", false},
                   };
                   for (const auto &b : Botones) {
                       auto *boton = Hijo<QAbstractButton>(d, b.boton);
                       EXPECT_EQ(boton->text().remove(u'&').toStdString(), b.texto);
                       EXPECT_EQ(boton->isChecked(), b.marcado) << b.boton;
                   }
                   Pulsar(d, "Cancela");
               }},
              Salir},
             [&] { Ordenar(2020); });
}

TEST_F(Panel, SinDatos) {
    for (const char *forma : {"constante", "variable"})
        for (const char *primero : {"periodoPrimero", "individuoPrimero"})
            ConGuion({ElegirPanel, EnPanel({forma, primero, "OK"}), Caja("Aviso", "Introduzca datos"),
                      EnPanel({"Cancela"}), Salir},
                     [&] { Ordenar(2020); });
    EXPECT_EQ(ArchivoTrabajo.TipoDatos, SinTipoDatos);
}

namespace {

struct CasoConstante {
    const char *primero, *individuos, *tipo, *inicio, *fin;
    Lineas filas;
};

const CasoConstante Constantes[] = {
    {"periodoPrimero",
     "3",
     "anual",
     "1990",
     "1991",
     {"1990-1", "1990-2", "1990-3", "1991-1", "1991-2", "1991-3"}},
    {"individuoPrimero",
     "2",
     "anual",
     "1990",
     "1992",
     {"1-1990", "1-1991", "1-1992", "2-1990", "2-1991", "2-1992"}},
    {"periodoPrimero",
     "2",
     "trimestral",
     "1990.4",
     "1991.1",
     {"1990.4-1", "1990.4-2", "1991.1-1", "1991.1-2"}},
    {"individuoPrimero", "1", "trimestral", "1990.4", "1991.1", {"1-1990.4", "1-1991.1"}},
    {"periodoPrimero", "1", "mensual", "1990.9", "1990.11", {"1990.09-1", "1990.10-1", "1990.11-1"}},
    {"individuoPrimero", "1", "mensual", "1990.9", "1990.10", {"1-1990.09", "1-1990.10"}},
};

} // namespace

TEST_F(Panel, ConstanteYSecuencial) {
    for (const CasoConstante &c : Constantes) {
        SCOPED_TRACE(c.filas.front());
        ConGuion({ElegirPanel, EnPanel({"constante", c.primero, "introducirPeriodos"}),
                  EnConstante(c.individuos, c.tipo, c.inicio, c.fin), EnPanel({"OK"})},
                 [&] { Ordenar(2020); });
        EXPECT_EQ(ArchivoTrabajo.TipoDatos, TipoPanel);
        EXPECT_EQ(Filas(), c.filas);
    }
}

TEST_F(Panel, ConstanteRechaza) {
    static constexpr struct {
        const char *tipo, *inicio, *fin, *mensaje;
    } Casos[] = {
        {"anual", "1800", "1990", "Año mínimo no válido"},
        {"trimestral", "1990.5", "1991.1", "Trimestre mínimo no válido"},
        {"mensual", "1990.1", "1991.13", "Mes máximo no válido"},
    };
    for (const auto &c : Casos) {
        SCOPED_TRACE(c.mensaje);
        ConGuion({ElegirPanel,
                  EnPanel({"introducirPeriodos"}),
                  EnConstante("2", c.tipo, c.inicio, c.fin),
                  Caja("Proceso cancelado", c.mensaje),
                  {Constante,
                   [&](QDialog &d) {
                       EXPECT_EQ(TextoDe(d, "inicio"), c.inicio);
                       EXPECT_EQ(TextoDe(d, "fin"), c.fin);
                       Pulsar(d, "Cancela");
                   }},
                  EnPanel({"OK"}),
                  Caja("Aviso", "Introduzca datos"),
                  EnPanel({"Cancela"}),
                  Salir},
                 [&] { Ordenar(2020); });
    }
    EXPECT_EQ(ArchivoTrabajo.TipoDatos, SinTipoDatos);
}

// Opened again, the dialog shows what was accepted in it, in the same visit and in a later one, which takes it from the
// work file: its OK then changes nothing.
TEST_F(Panel, ConstanteAbiertoOtraVez) {
    static constexpr struct {
        const char *tipo, *inicio, *fin, *primera;
        int filas;
    } Casos[] = {{"anual", "1990", "1995", "1990-1", 12},
                 {"trimestral", "1990.2", "1995.3", "1990.2-1", 44},
                 {"mensual", "1990.02", "1995.11", "1990.02-1", 140}};
    for (const auto &c : Casos) {
        SCOPED_TRACE(c.tipo);
        const Paso otraVez = {Constante, [&](QDialog &d) {
                                  EXPECT_EQ(TextoDe(d, "individuos"), "2");
                                  EXPECT_TRUE(Hijo<QLineEdit>(d, "individuos")->hasSelectedText());
                                  EXPECT_TRUE(Hijo<QAbstractButton>(d, c.tipo)->isChecked());
                                  EXPECT_EQ(TextoDe(d, "inicio"), c.inicio);
                                  EXPECT_EQ(TextoDe(d, "fin"), c.fin);
                                  Pulsar(d, "OK");
                              }};
        const Paso introducir = EnPanel({"introducirPeriodos"}), aceptar = EnPanel({"OK"});
        for (const Guion &guion : {Guion{ElegirPanel, introducir, EnConstante("2", c.tipo, c.inicio, c.fin),
                                         introducir, otraVez, aceptar},
                                   Guion{ElegirPanel, introducir, otraVez, aceptar}}) {
            ConGuion(guion, [&] { Ordenar(2020); });
            EXPECT_EQ(ArchivoTrabajo.NumObs, c.filas);
            EXPECT_EQ(Filas().front(), c.primera);
        }
    }
}

TEST_F(Panel, VariablePeriodoPrimero) {
    ConGuion({ElegirPanel,
              EnPanel({"variable", "periodoPrimero", "introducirPeriodos"}),
              {DePeriodos, [](QDialog &d) { Anadir(d, "1995", "0"); }},
              Caja("Aviso", "Individuos ha de ser mayor de cero"),
              {DePeriodos, [](QDialog &d) { Anadir(d, "999", "2"); }},
              Caja("Aviso", "Período ha de ser mayor de mil"),
              {DePeriodos,
               [](QDialog &d) {
                   EXPECT_EQ(TextoDe(d, "periodo"), "999"); // as typed
                   EXPECT_EQ(TextoDe(d, "individuos"), "2");
                   Anadir(d, "1995", "2");
                   EXPECT_EQ(TextoDe(d, "periodo"), "");
                   Anadir(d, "1993", "1");
                   Anadir(d, "1994", "3");
                   ASSERT_EQ(Hijo<QListWidget>(d, "lista")->count(), 3);
                   EXPECT_EQ(LineasDe(d, "lista").front().substr(0, 4), "1993"); // sorted
                   Elegir(d, "lista", 1);
                   Pulsar(d, "eliminar");
                   EXPECT_EQ(Hijo<QListWidget>(d, "lista")->count(), 2);
                   Pulsar(d, "OK");
               }},
              EnPanel({"OK"})},
             [&] { Ordenar(2020); });
    EXPECT_EQ(Filas(), (Lineas{"1993-1", "1995-1", "1995-2"}));
}

TEST_F(Panel, VariableIndividuoPrimero) {
    const auto individuo = [](QDialog &d, const char *orden) {
        Escribir(d, "orden", orden);
        Pulsar(d, "anadirIndividuo");
    };
    const auto periodo = [](QDialog &d, const char *texto) {
        Escribir(d, "periodo", texto);
        Pulsar(d, "anadirPeriodo");
    };
    ConGuion({ElegirPanel,
              EnPanel({"variable", "individuoPrimero", "introducirPeriodos"}),
              {DeIndividuos, [=](QDialog &d) { individuo(d, "0"); }},
              Caja("Aviso", "Individuos ha de ser mayor de cero"),
              {DeIndividuos,
               [=](QDialog &d) {
                   individuo(d, "7");
                   periodo(d, "999");
               }},
              Caja("Aviso", "Período ha de ser mayor de 1000"),
              {DeIndividuos,
               [=](QDialog &d) {
                   periodo(d, "1996");
                   periodo(d, "1995");
                   individuo(d, "3");
                   EXPECT_TRUE(LineasDe(d, "periodos").empty()); // those of the new one
                   periodo(d, "2001");
                   periodo(d, "2002");
                   EXPECT_EQ(LineasDe(d, "individuos"), (Lineas{"3", "7"}));
                   Elegir(d, "individuos", 1);
                   EXPECT_EQ(LineasDe(d, "periodos").size(), 2u);
                   Elegir(d, "individuos", 0);
                   EXPECT_EQ(LineasDe(d, "periodos"), (Lineas{"2001", "2002"}));
                   Elegir(d, "periodos", 0);
                   Pulsar(d, "eliminarPeriodo");
                   EXPECT_EQ(LineasDe(d, "periodos"), (Lineas{"2002"}));
                   Elegir(d, "individuos", 1);
                   Pulsar(d, "eliminarIndividuo");
                   EXPECT_EQ(LineasDe(d, "individuos"), (Lineas{"3"}));
                   Pulsar(d, "OK");
               }},
              EnPanel({"OK"})},
             [&] { Ordenar(2020); });
    EXPECT_EQ(Filas(), (Lineas{"3-2002"}));
}

// A line that nobody chose isn't deleted, even if the list has the keyboard.
TEST_F(Panel, EliminarSinElegirNada) {
    ConGuion({ElegirPanel,
              EnPanel({"variable", "periodoPrimero", "introducirPeriodos"}),
              {DePeriodos,
               [](QDialog &d) {
                   Anadir(d, "1995", "2");
                   Activar(d);
                   Hijo<QWidget>(d, "lista")->setFocus(Qt::TabFocusReason);
                   EXPECT_EQ(Hijo<QListWidget>(d, "lista")->currentRow(), 0); // current, and not chosen
                   Pulsar(d, "eliminar");
                   EXPECT_EQ(Hijo<QListWidget>(d, "lista")->count(), 1);
                   Pulsar(d, "OK");
               }},
              EnPanel({"OK"})},
             [&] { Ordenar(2020); });
    EXPECT_EQ(Filas(), (Lineas{"1995-1", "1995-2"}));
}

// Cancel in a dialog of the lists takes back what was done in it.
TEST_F(Panel, CancelarUnaLista) {
    const auto con = [](const char *periodo, const char *boton) {
        return Paso{DePeriodos, [=](QDialog &d) {
                        Anadir(d, periodo, "1");
                        Pulsar(d, boton);
                    }};
    };
    ConGuion({ElegirPanel,
              EnPanel({"variable", "periodoPrimero", "introducirPeriodos"}),
              con("1995", "OK"),
              EnPanel({"introducirPeriodos"}),
              con("1996", "Cancela"),
              EnPanel({"introducirPeriodos"}),
              {DePeriodos,
               [](QDialog &d) {
                   EXPECT_EQ(Hijo<QListWidget>(d, "lista")->count(), 1);
                   QTest::keyClick(&d, Qt::Key_Escape);
               }},
              EnPanel({"OK"})},
             [&] { Ordenar(2020); });
    EXPECT_EQ(Filas(), (Lineas{"1995-1"}));
}

// The description changes only when the whole dialog is accepted.
TEST_F(Panel, CancelarTodo) {
    const int forma = DescripcionPanel.FormaPanel, entradas = DescripcionPanel.NumEntradas;
    const int observaciones = ArchivoTrabajo.NumObs;
    ConGuion({ElegirPanel,
              EnPanel({"variable", "introducirPeriodos"}),
              {DePeriodos,
               [](QDialog &d) {
                   Anadir(d, "1995", "2");
                   Pulsar(d, "OK");
               }},
              EnPanel({"Cancela"}),
              Salir},
             [&] { Ordenar(2020); });
    EXPECT_EQ(DescripcionPanel.FormaPanel, forma);
    EXPECT_EQ(DescripcionPanel.NumEntradas, entradas);
    EXPECT_EQ(ArchivoTrabajo.TipoDatos, SinTipoDatos);
    EXPECT_EQ(ArchivoTrabajo.NumObs, observaciones);
}

TEST_F(Panel, EtiquetasDeIndividuos) {
    const auto poner = [](QDialog &d, const char *orden, const char *texto) {
        Escribir(d, "orden", orden);
        Escribir(d, "etiqueta", texto);
        Pulsar(d, "anadir");
    };
    ConGuion({ElegirPanel,
              EnPanel({"etiquetas", "introducirEtiquetas"}),
              {Etiquetas,
               [=](QDialog &d) {
                   EXPECT_EQ(LineasDe(d, "lista").size(), 50u);
                   EXPECT_EQ(LineasDe(d, "lista").front(), " 1---\"            \"");
                   poner(d, "0", "NADA");
               }},
              Caja("Aviso", "Orden de individúo no correcto"),
              {Etiquetas, [=](QDialog &d) { poner(d, "51", "NADA"); }},
              Caja("Aviso", "Orden de individúo no correcto"),
              {Etiquetas,
               [=](QDialog &d) {
                   poner(d, "2", "DOS");
                   poner(d, "1", "UNOUNOUNOUNOUNO"); // twelve characters
                   EXPECT_EQ(LineasDe(d, "lista")[0], " 1---\"UNOUNOUNOUNO\"");
                   EXPECT_EQ(LineasDe(d, "lista")[1], " 2---\"DOS         \"");
                   // A chosen line gives its label out, and is blank until it is put back.
                   Elegir(d, "lista", 1);
                   EXPECT_EQ(TextoDe(d, "orden"), "2");
                   EXPECT_EQ(TextoDe(d, "etiqueta"), "DOS");
                   EXPECT_EQ(LineasDe(d, "lista")[1], " 2---\"            \"");
                   Pulsar(d, "anadir");
                   EXPECT_EQ(LineasDe(d, "lista")[1], " 2---\"DOS         \"");
                   // A double click is one choice: the second click must not lose the label.
                   auto *lista = Hijo<QListWidget>(d, "lista");
                   const QPoint sitio = lista->visualItemRect(lista->item(1)).center();
                   QTest::mouseClick(lista->viewport(), Qt::LeftButton, {}, sitio);
                   QTest::mouseDClick(lista->viewport(), Qt::LeftButton, {}, sitio);
                   EXPECT_EQ(TextoDe(d, "etiqueta"), "DOS");
                   Pulsar(d, "anadir");
                   Pulsar(d, "OK");
               }},
              EnPanel({"introducirPeriodos"}),
              EnConstante("3", "anual", "1990", "1991"),
              EnPanel({"OK"})},
             [&] { Ordenar(2020); });
    EXPECT_EQ(ArchivoTrabajo.ConEtiquetas, 1);
    EXPECT_EQ(Filas().front(), "1990-1");
    EXPECT_EQ(std::string(ArchivoTrabajo.EtiquetasObs[0], 12), "UNOUNOUNOUNO");
    EXPECT_EQ(std::string(ArchivoTrabajo.EtiquetasObs[1], 12), "DOS         ");
}

namespace {

void Enter() {
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
}

void Teclas(const char *texto, bool tabulador = false) {
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    QTest::keyClicks(QApplication::focusWidget(), QString::fromUtf8(texto));
    if (tabulador) QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
}

} // namespace

// A list by keys alone: Enter behind an entry adds it, and behind nothing it is OK.
TEST_F(Panel, ListasSinRaton) {
    ConGuion({ElegirPanel,
              EnPanel({"variable", "periodoPrimero", "introducirPeriodos"}),
              {DePeriodos,
               [](QDialog &d) {
                   Activar(d);
                   for (const char *periodo : {"1995", "1996"}) {
                       Teclas(periodo, true);
                       Teclas("2");
                       Enter();
                       EXPECT_TRUE(d.isVisible());
                   }
                   EXPECT_EQ(Hijo<QListWidget>(d, "lista")->count(), 2);
                   Teclas("1997"); // its individuals are still to come
                   Enter();
               }},
              Caja("Aviso", "Individuos ha de ser mayor de cero"),
              {DePeriodos,
               [](QDialog &d) {
                   EXPECT_EQ(TextoDe(d, "periodo"), "1997");
                   Activar(d);
                   Escribir(d, "periodo", "");
                   Enter();
                   EXPECT_FALSE(d.isVisible());
               }},
              EnPanel({"OK"})},
             [&] { Ordenar(2020); });
    EXPECT_EQ(Filas(), (Lineas{"1995-1", "1995-2", "1996-1", "1996-2"}));
    ConGuion({ElegirPanel,
              EnPanel({"individuoPrimero", "introducirPeriodos"}),
              {DeIndividuos,
               [](QDialog &d) {
                   Activar(d);
                   Teclas("3");
                   for (const char *periodo : {"", "1995", "1996"}) {
                       Teclas(periodo);
                       Enter();
                       EXPECT_TRUE(d.isVisible());
                   }
                   Enter();
                   EXPECT_FALSE(d.isVisible());
               }},
              EnPanel({"OK"})},
             [&] { Ordenar(2020); });
    EXPECT_EQ(Filas(), (Lineas{"3-1995", "3-1996"}));
}

TEST_F(Panel, EtiquetasSinRaton) {
    ConGuion({ElegirPanel,
              EnPanel({"introducirEtiquetas"}),
              {Etiquetas,
               [](QDialog &d) {
                   Activar(d);
                   Teclas("2", true);
                   Teclas("DOS");
                   Enter();
                   EXPECT_EQ(LineasDe(d, "lista")[1], " 2---\"DOS         \"");
                   auto *lista = Hijo<QListWidget>(d, "lista");
                   lista->setFocus(Qt::TabFocusReason);
                   for (int i = 0; i < 2; ++i) QTest::keyClick(lista, Qt::Key_Down);
                   EXPECT_EQ(TextoDe(d, "etiqueta"), ""); // the arrows only walk
                   Enter();
                   EXPECT_EQ(TextoDe(d, "etiqueta"), "DOS");
                   EXPECT_EQ(LineasDe(d, "lista")[1], " 2---\"            \"");
                   Enter(); // put back
                   EXPECT_EQ(LineasDe(d, "lista")[1], " 2---\"DOS         \"");
                   Enter();
                   EXPECT_FALSE(d.isVisible());
               }},
              EnPanel({"introducirEtiquetas"}),
              {Etiquetas,
               [](QDialog &d) {
                   EXPECT_EQ(LineasDe(d, "lista")[1], " 2---\"DOS         \"");
                   Elegir(d, "lista", 1);
                   Pulsar(d, "Cancela"); // what was taken out comes back
               }},
              EnPanel({"introducirEtiquetas"}),
              {Etiquetas,
               [](QDialog &d) {
                   EXPECT_EQ(LineasDe(d, "lista")[1], " 2---\"DOS         \"");
                   Pulsar(d, "OK");
               }},
              EnPanel({"Cancela"}),
              Salir},
             [&] { Ordenar(2020); });
}

// With the second button of each pair checked the keyboard begins there.
TEST_F(Panel, EmpiezaEnElBotonMarcado) {
    DescripcionPanel.PrimerConcepto = IndividuoPrimero;
    ConGuion({ElegirPanel,
              {Panel1,
               [](QDialog &d) {
                   Activar(d);
                   EXPECT_TRUE(Hijo<QAbstractButton>(d, "individuoPrimero")->isChecked());
                   EXPECT_TRUE(Hijo<QAbstractButton>(d, "individuoPrimero")->hasFocus());
                   Pulsar(d, "Cancela");
               }},
              Salir},
             [&] { Ordenar(2020); });
}
