// The small dialogs: sample, present sample, decimals, lists, last regression, boxes.
#include "apoyo_escritorio.h"

#include "estimation/regresion.h"
#include "platform/qt/cajas_qt.h"
#include "platform/qt/dialogo_decimales.h"
#include "platform/qt/ventana_qt.h"
#include "platform/texto.h"
#include "shell/ventanas/escritorio.h"
#include "store/archivo.h"

#include <QApplication>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>

using Dialogos = Escritorio;
using Lineas = std::vector<std::string>;

namespace {

constexpr const char *Acotar = "Acotación de la muestra a utilizar";

Paso Limites(const char *inicial, const char *final, const char *boton) {
    return {Acotar, [=](QDialog &d) {
                Escribir(d, "TextoInicial", inicial);
                Escribir(d, "TextoFinal", final);
                Pulsar(d, boton);
            }};
}

Paso MuestraTextos(const char *inicial, const char *final) {
    return {Acotar, [=](QDialog &d) {
                EXPECT_EQ(TextoDe(d, "TextoInicial"), inicial);
                EXPECT_EQ(TextoDe(d, "TextoFinal"), final);
                Pulsar(d, "Cancela");
            }};
}

} // namespace

TEST_F(Dialogos, Muestra) {
    static constexpr struct {
        int tipo;
        const char *intervalo, *inicial, *final;
        int inicio, fin;
        const char *vuelveInicial, *vuelveFinal; // when the dialog opens again
    } Casos[] = {
        {TipoAnual, "1990#1999", "1992", "1995", 2, 5, "1992", "1995"},
        {TipoAnual, "1990#1999", "", "", 0, 9, "0", "0"}, // no limit is a year 0
        {TipoAnual, "1990#1999", "1999", "", 0, 9, "1999",
         "0"}, // a first limit on the last row finds none above
        {TipoTrimestral, "1995#1#1999#4", "1995.1", "1996.4", 0, 7, "1995.1", "1996.4"},
        {TipoTrimestral, "1995#1#1999#4", "1996", "1996", 4, 7, "1996", "1996"},
        {TipoMensual, "1995#01#1999#12", "1995.1", "1995.2", 0, 1, "1995.01", "1995.02"},
    };
    for (const auto &c : Casos) {
        SCOPED_TRACE(std::string(c.inicial) + " a " + c.final);
        PonerDatos(c.tipo, c.intervalo);
        ConGuion({Limites(c.inicial, c.final, "OK")}, [&] { Ordenar(2038); });
        EXPECT_EQ(::Muestra.InicioMuestra, c.inicio);
        EXPECT_EQ(::Muestra.FinMuestra, c.fin);
        ConGuion({MuestraTextos(c.vuelveInicial, c.vuelveFinal)}, [&] { Ordenar(2038); });
    }
}

// What is typed stands in the place of the limits shown.
TEST_F(Dialogos, MuestraConElTeclado) {
    PonerDatos(TipoAnual, "1990#1999");
    ConGuion({{Acotar,
               [](QDialog &d) {
                   Activar(d);
                   for (const char *limite : {"1992", "1994"}) {
                       QTest::keyClicks(QApplication::focusWidget(), QString::fromLatin1(limite));
                       QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
                   }
                   EXPECT_EQ(TextoDe(d, "TextoInicial"), "1992");
                   EXPECT_EQ(TextoDe(d, "TextoFinal"), "1994");
                   QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
               }}},
             [&] { Ordenar(2038); });
    EXPECT_EQ(::Muestra.InicioMuestra, 2);
    EXPECT_EQ(::Muestra.FinMuestra, 4);
}

TEST_F(Dialogos, MuestraCancelada) {
    PonerDatos(TipoAnual, "1990#1999");
    ConGuion({Limites("1992", "1993", "OK")}, [&] { Ordenar(2038); });
    ConGuion({Limites("1995", "1996", "Cancela")}, [&] { Ordenar(2038); });
    EXPECT_EQ(::Muestra.InicioMuestra, 2);
    EXPECT_EQ(::Muestra.FinMuestra, 3);
    ConGuion({{Acotar,
               [](QDialog &d) {
                   Escribir(d, "TextoInicial", "1994");
                   QTest::keyClick(&d, Qt::Key_Escape);
               }}},
             [&] { Ordenar(2038); });
    EXPECT_EQ(::Muestra.InicioMuestra, 2);
}

TEST_F(Dialogos, AyudaDeLaMuestra) {
    PonerDatos(TipoAnual, "1990#1999");
    ConGuion({{Acotar,
               [](QDialog &d) {
                   Escribir(d, "TextoInicial", "1991");
                   Pulsar(d, "Ayuda");
                   EXPECT_EQ(TextoDe(d, "TextoInicial"), "1991");
               }},
              Pulsando("Acotación intervalos muestra", "OK"),
              Pulsando(Acotar, "Cancela")},
             [&] { Ordenar(2038); });
}

TEST_F(Dialogos, MuestraActual) {
    PonerDatos(TipoAnual, "1990#1999");
    PonerSerie("A", {1, 2, 3}, 4);
    ConGuion({{"Muestra actual",
               [](QDialog &d) {
                   EXPECT_EQ(TextoDe(d, "linea0"), "Período inicial: 1994");
                   EXPECT_EQ(TextoDe(d, "linea1"), "Período final: 1996");
                   EXPECT_EQ(TextoDe(d, "linea2"), "Muestra máxima: 1990#1999");
                   EXPECT_EQ(TextoDe(d, "linea3"), "Número máximo datos: 10");
                   Pulsar(d, "OK");
               }}},
             [&] { Ordenar(2085); });
}

// The periods of a panel are what the user typed: no part of them is taken for a mark.
TEST_F(Dialogos, MuestraActualTalComoSeEscribio) {
    EmpezarPrueba();
    PrepararEscritorio();
    DescripcionPanel.FormaPanel = PanelVariable;
    DescripcionPanel.NumEntradas = 1;
    DescripcionPanel.periodos[0] = {2, "1995<b>&a"};
    ArchivoTrabajo.TipoDatos = TipoPanel;
    VaciarArchivoTrabajo();
    ConGuion({{"Muestra actual",
               [](QDialog &d) {
                   EXPECT_EQ(TextoDe(d, "linea0"), "Período inicial: 1995<b>&a-1");
                   for (auto *l : d.findChildren<QLabel *>()) EXPECT_EQ(l->textFormat(), Qt::PlainText);
                   Pulsar(d, "OK");
               }}},
             [&] { Ordenar(2085); });
}

TEST_F(Dialogos, Decimales) {
    static constexpr const char *Textos[] = {"Sin decimales",  "Un decimal",       "Dos decimales",
                                             "Tres decimales", "Cuatro decimales", "Cinco decimales",
                                             "Seis decimales"};
    static const auto boton = [](QDialog &d, int i) {
        return Hijo<QRadioButton>(d, QByteArray("decimales").append(QByteArray::number(i)));
    };
    // Two are checked whatever the present value is; a choice of -1 leaves that.
    static constexpr struct {
        int antes, elige;
        const char *con;
        int despues;
    } Casos[] = {
        {4, -1, "OK", 2}, {2, -1, "OK", 2}, {4, -1, "Cancela", 4}, {4, 6, "Cancela", 4},
        {2, 0, "OK", 0},  {2, 1, "OK", 1},  {2, 2, "OK", 2},       {2, 3, "OK", 3},
        {2, 4, "OK", 4},  {2, 5, "OK", 5},  {0, 6, "OK", 6},
    };
    for (const auto &c : Casos) {
        SCOPED_TRACE(testing::Message() << c.antes << " " << c.elige << " " << c.con);
        int decimales = c.antes;
        ConGuion({{"Formato decimal",
                   [&](QDialog &d) {
                       for (int i = 0; i <= 6; ++i) {
                           EXPECT_EQ(boton(d, i)->text().remove(u'&').toStdString(), Textos[i]);
                           EXPECT_EQ(boton(d, i)->isChecked(), i == 2);
                       }
                       if (c.elige >= 0) Pulsar(d, boton(d, c.elige)->objectName().toLatin1().constData());
                       Pulsar(d, c.con);
                   }}},
                 [&] { DialogoDecimales(decimales, AVentana(ventana.get())); });
        EXPECT_EQ(decimales, c.despues);
    }
}

namespace {

void Llenar() {
    PonerDatos(TipoAnual, "1990#1999");
    PonerSerie("B", {1, 2, 3});
    PonerSerie("A", {4, 5, 6});
    PonerSerie("C", {7, 8, 9});
    PonerMatriz("N", {1, 2, 3, 4, 5, 6}, 2, 3);
    PonerMatriz("M", {1, 2}, 1, 2);
    PonerEscalar(nullptr, "E", 1.0 / 3.0);
    PonerEscalar(nullptr, "D", -2.5);
}

struct CasoLista {
    int id;
    const char *titulo;
    Lineas lineas;
};

const CasoLista Listas[] = {
    {2065, "Relación de series", {"B           ", "A           ", "C           "}},
    {2064, "Relación de matrices", {"N              ( 2, 3)", "M              ( 1, 2)"}},
    {2066, "Relación de escalares", {"NOBS    =   3", "E           =   0.3333", "D           =  -2.5000"}},
};

} // namespace

TEST_F(Dialogos, Listas) {
    Llenar();
    for (const CasoLista &c : ::Listas)
        ConGuion({{c.titulo,
                   [&](QDialog &d) {
                       EXPECT_EQ(LineasDe(d, "lista"), c.lineas);
                       EXPECT_EQ(TextoDe(d, "explicacion"),
                                 "Para borrar un elemento selecciónelo y pulse el botón \"Borrar\".");
                       EXPECT_EQ(QString::fromStdString(TextoDe(d, "Borrar")).remove(u'&').toStdString(),
                                 "!!!!!  Borrar  !!!!!");
                       Pulsar(d, "OK");
                   }}},
                 [&] { Ordenar(c.id); });
}

// Nothing selected: nothing happens, wherever the keyboard is.
TEST_F(Dialogos, BorrarSinElegirNada) {
    Llenar();
    for (const CasoLista &c : ::Listas) {
        SCOPED_TRACE(c.titulo);
        ConGuion({{c.titulo,
                   [&](QDialog &d) {
                       Pulsar(d, "Borrar");
                       Activar(d);
                       Hijo<QWidget>(d, "lista")->setFocus(Qt::TabFocusReason);
                       Pulsar(d, "Borrar");
                       EXPECT_EQ(LineasDe(d, "lista"), c.lineas);
                       Pulsar(d, "OK");
                   }}},
                 [&] { Ordenar(c.id); });
    }
    EXPECT_EQ(ArchivoTrabajo.NumSeries, 3);
    EXPECT_EQ(TablaMatrices.numero, 2);
    EXPECT_EQ(TablaEscalares.numero, 2);
}

// At once, with no question; a second click has nothing selected any more, so it takes nothing else.
TEST_F(Dialogos, BorrarDeLasListas) {
    Llenar();
    static constexpr struct {
        int id;
        const char *titulo;
        int linea;
    } Casos[] = {{2065, "Relación de series", 1},
                 {2064, "Relación de matrices", 0},
                 {2066, "Relación de escalares", 1}};
    for (const auto &c : Casos) {
        SCOPED_TRACE(c.titulo);
        ConGuion({{c.titulo,
                   [&](QDialog &d) {
                       Lineas quedan = LineasDe(d, "lista");
                       quedan.erase(quedan.begin() + c.linea);
                       Elegir(d, "lista", c.linea);
                       Pulsar(d, "Borrar");
                       EXPECT_EQ(LineasDe(d, "lista"), quedan);
                       Pulsar(d, "Borrar");
                       EXPECT_EQ(LineasDe(d, "lista"), quedan);
                       Pulsar(d, "OK");
                   }}},
                 [&] { Ordenar(c.id); });
    }
    EXPECT_EQ(CodigosDeSeries(), (Lineas{"B", "C"}));
    EXPECT_EQ(TablaMatrices.numero, 1);
    EXPECT_EQ(CodigosDeEscalares(), (Lineas{"D"}));
}

TEST_F(Dialogos, NobsNoSeBorra) {
    Llenar();
    ConGuion({{"Relación de escalares",
               [](QDialog &d) {
                   Elegir(d, "lista", 0);
                   Pulsar(d, "Borrar");
                   EXPECT_EQ(LineasDe(d, "lista"), ::Listas[2].lineas);
                   Pulsar(d, "OK");
               }}},
             [&] { Ordenar(2066); });
    EXPECT_EQ(TablaEscalares.numero, 2);
}

TEST_F(Dialogos, BorrarTodasLasSeries) {
    Llenar();
    ConGuion({{"Relación de series",
               [](QDialog &d) {
                   for (int i = 0; i < 3; ++i) {
                       Elegir(d, "lista", 0);
                       Pulsar(d, "Borrar");
                   }
                   EXPECT_TRUE(LineasDe(d, "lista").empty());
                   Pulsar(d, "Borrar");
                   Pulsar(d, "OK");
               }}},
             [&] { Ordenar(2065); });
    EXPECT_EQ(ArchivoTrabajo.NumSeries, 0);
    for (int i = 0; i < 10; ++i)
        for (int s = 0; s < 3; ++s) EXPECT_EQ(ArchivoTrabajo.PresenciaObs[i][s], 0);
}

// The keyboard chooses too.
TEST_F(Dialogos, BorrarConElTeclado) {
    Llenar();
    ConGuion({{"Relación de series",
               [](QDialog &d) {
                   auto *lista = Hijo<QListWidget>(d, "lista");
                   Activar(d);
                   lista->setFocus(Qt::TabFocusReason);
                   QTest::keyClick(lista, Qt::Key_Down);
                   EXPECT_EQ(lista->selectedItems().size(), 1);
                   EXPECT_EQ(lista->currentRow(), 0); // the first key takes the first line
                   QTest::keyClick(lista, Qt::Key_Down);
                   EXPECT_EQ(lista->currentRow(), 1);
                   QTest::keyClick(Hijo<QPushButton>(d, "Borrar"), Qt::Key_Space);
                   EXPECT_EQ(lista->count(), 2);
                   Pulsar(d, "OK");
               }}},
             [&] { Ordenar(2065); });
    EXPECT_EQ(CodigosDeSeries(), (Lineas{"B", "C"}));
}

TEST_F(Dialogos, UltimaRegresion) {
    const auto ver = [&](const char *inicial, const char *final, const char *variables) {
        ConGuion({{"Última regresión",
                   [=](QDialog &d) {
                       EXPECT_EQ(TextoDe(d, "linea0"), inicial);
                       EXPECT_EQ(TextoDe(d, "linea1"), final);
                       EXPECT_EQ(TextoDe(d, "linea2"), variables);
                       Pulsar(d, "OK");
                   }}},
                 [&] { Ordenar(2086); });
    };
    PonerDatos(TipoAnual, "1990#1999");
    PonerSerie("Y", {3, 5, 4, 8, 7, 9, 12, 11, 15, 13});
    PonerSerie("X", {1, 3, 2, 4, 6, 5, 7, 9, 11, 8});
    ver("Período inicial: 1990  ", "Período final  : 1990  ", "No se ha realizado ninguna regresión");
    ventana->PantallaEdicion->setPlainText(QStringLiteral("VSR NO\nMUEST 1992 1998\nMC Y 1 X"));
    ventana->PantallaEdicion->selectAll();
    ConGuion({}, [&] { Ordenar(2006); });
    ver("Período inicial: 1992  ", "Período final  : 1998  ", "Y  1  X");
    BorrarSerie(BuscarSerie("Y"));
    ver("Período inicial: 1992  ", "Período final  : 1998  ", "No se ha realizado ninguna regresión");
}

// A new data type leaves the record as it is, as it lives until the next regression; without its dependent it isn't shown.
TEST_F(Dialogos, UltimaRegresionTrasOtroTipo) {
    PonerDatos(TipoAnual, "1990#1999");
    const auto ver = [&](const char *inicial, const char *variables) {
        ConGuion({{"Última regresión",
                   [=](QDialog &d) {
                       EXPECT_EQ(TextoDe(d, "linea0"), inicial);
                       EXPECT_EQ(TextoDe(d, "linea2"), variables);
                       Pulsar(d, "OK");
                   }}},
                 [&] { Ordenar(2086); });
    };
    const auto procesar = [&](const char *sentencias, const Guion &guion) {
        ventana->PantallaEdicion->setPlainText(QString::fromUtf8(sentencias));
        ventana->PantallaEdicion->selectAll();
        ConGuion(guion, [&] { Ordenar(2006); });
    };
    PonerSerie("Y", {3, 5, 4, 8, 7, 9, 12, 11, 15, 13});
    PonerSerie("X", {1, 3, 2, 4, 6, 5, 7, 9, 11, 8});
    procesar("VSR NO\nMUEST 1992 1998\nMC Y 1 X", {});
    ConGuion({{"Tipos de datos",
               [](QDialog &d) {
                   Pulsar(d, "tipo1");
                   Pulsar(d, "OK");
               }},
              Caja("Aviso", "Guarde el fichero ó se perderán todos los datos"),
              {"Datos anuales",
               [](QDialog &d) {
                   Escribir(d, "inicio", "2010");
                   Escribir(d, "fin", "2013");
                   Pulsar(d, "OK");
               }}},
             [&] { Ordenar(2020); });
    EXPECT_EQ(UltimaRegresion.RegresionHecha, 1);
    ver("Período inicial: 2012  ", "No se ha realizado ninguna regresión");
    PonerSerie("Y", {1, 2, 4, 3});
    ver("Período inicial: 2012  ", "Y  1  X");
    // Its results went with the data: what needs them says so.
    procesar("CR Y 1", {Caja("Proceso cancelado", "Calcule mínimo cuadrado. Pto 263")});
}

// The buttons of the boxes, which one Enter and Escape press, and what the caller hears.
TEST_F(Dialogos, Cajas) {
    static constexpr struct {
        Botones botones;
        const char *boton; // null: a key
        Qt::Key tecla;
        Respuesta respuesta;
    } Casos[] = {
        {BotonesAceptar, "Aceptar", {}, RespuestaAceptar},
        {BotonesAceptar, nullptr, Qt::Key_Escape, RespuestaAceptar},
        {BotonesAceptar, nullptr, Qt::Key_Return, RespuestaAceptar},
        {BotonesAceptarCancelar, "Aceptar", {}, RespuestaAceptar},
        {BotonesAceptarCancelar, "Cancelar", {}, RespuestaCancelar},
        {BotonesAceptarCancelar, nullptr, Qt::Key_Escape, RespuestaCancelar},
        {BotonesSiNo, "Si", {}, RespuestaSi},
        {BotonesSiNo, "No", {}, RespuestaNo},
        {BotonesSiNo, nullptr, Qt::Key_Return, RespuestaSi},
        {BotonesSiNo, nullptr, Qt::Key_Escape, RespuestaNo},
        {BotonesSiNoCancelar, "Si", {}, RespuestaSi},
        {BotonesSiNoCancelar, "No", {}, RespuestaNo},
        {BotonesSiNoCancelar, "Cancelar", {}, RespuestaCancelar},
        {BotonesSiNoCancelar, nullptr, Qt::Key_Escape, RespuestaCancelar},
    };
    for (const auto &c : Casos) {
        SCOPED_TRACE(testing::Message() << c.botones << " " << (c.boton != nullptr ? c.boton : "key"));
        Respuesta respuesta{};
        ConGuion({{"Aviso",
                   [&](QDialog &d) {
                       if (c.boton != nullptr) return Pulsar(d, c.boton);
                       QTest::keyClick(&d, c.tecla);
                   }}},
                 [&] {
                     respuesta =
                         CajaQt(AVentana(ventana.get()), "a & b <b>c</b>", "Aviso", IconoPregunta, c.botones);
                 });
        EXPECT_EQ(respuesta, c.respuesta);
    }
}

TEST_F(Dialogos, TextosDeLasCajas) {
    static constexpr struct {
        Icono icono;
        QMessageBox::Icon dibujo;
    } Iconos[] = {{IconoInformacion, QMessageBox::Information},
                  {IconoPregunta, QMessageBox::Question},
                  {IconoExclamacion, QMessageBox::Warning},
                  {IconoAlto, QMessageBox::Critical}};
    for (const auto &i : Iconos)
        ConGuion({{"¿Año?",
                   [&](QDialog &d) {
                       auto *caja = qobject_cast<QMessageBox *>(&d);
                       ASSERT_NE(caja, nullptr);
                       EXPECT_EQ(caja->icon(), i.dibujo);
                       // Nothing in the text is taken for a mark.
                       EXPECT_EQ(caja->text().toStdString(), "a & b <b>ñ</b>\n (QQ)");
                       EXPECT_EQ(caja->textFormat(), Qt::PlainText);
                       EXPECT_EQ(TextoDe(d, "Si"), "&Sí");
                       EXPECT_EQ(TextoDe(d, "No"), "&No");
                       EXPECT_EQ(TextoDe(d, "Cancelar"), "&Cancelar");
                       Pulsar(d, "Cancelar");
                   }}},
                 [&] {
                     CajaQt(AVentana(ventana.get()), Texto1252DeUtf8("a & b <b>ñ</b>\n (QQ)"),
                            Texto1252DeUtf8("¿Año?"), i.icono, BotonesSiNoCancelar);
                 });
}

// The title of a short message is read whole; a long word is broken, and the number of its message is there.
TEST_F(Dialogos, CajasAnchasYLargas) {
    const std::string larga(30000, 'A');
    ConGuion({{"Proceso cancelado",
               [](QDialog &d) {
                   EXPECT_GE(d.width(), AnchoConTitulo(d));
                   Pulsar(d, "Aceptar");
               }},
              {"Proceso cancelado",
               [](QDialog &d) {
                   const QString texto = qobject_cast<QMessageBox *>(&d)->text();
                   EXPECT_TRUE(texto.startsWith(QStringLiteral("[AAAA")));
                   EXPECT_TRUE(texto.endsWith(QStringLiteral("]. Pto 199"))) << texto.right(20).toStdString();
                   EXPECT_LE(d.width(), 960);
                   EXPECT_LE(d.height(), 700);
                   Pulsar(d, "Aceptar");
               }}},
             [&] {
                 MostrarMensaje(AVentana(ventana.get()), "No");
                 MostrarMensaje(AVentana(ventana.get()), "[" + larga + "]. Pto 199");
             });
}
