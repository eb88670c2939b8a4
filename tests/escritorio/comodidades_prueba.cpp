// What stands around the fixed texts of the main window: status line, stops, keys that run, colours, find and
// replace, zoom, files that are dropped.
#include "apoyo_escritorio.h"

#include "data/fichero_trabajo.h"
#include "platform/archivo_dado.h"
#include "platform/qt/ajustes_qt.h"
#include "platform/qt/ventana_qt.h"
#include "shell/barra_estado.h"
#include "shell/comandos.h"
#include "shell/ventanas/abrir_fichero_qt.h"
#include "shell/ventanas/barra_buscar.h"
#include "shell/ventanas/barra_estado_qt.h"
#include "shell/ventanas/colores_sentencias.h"
#include "store/archivo.h"

#include <QApplication>
#include <QDir>
#include <QDragEnterEvent>
#include <QElapsedTimer>
#include <QFile>
#include <QMimeData>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTextLayout>
#include <QTimer>
#include <QWheelEvent>

#include <algorithm>
#include <functional>

namespace {

class Comodidades : public Escritorio {
protected:
    void SetUp() override {
        Escritorio::SetUp();
        OlvidarMensajeDeBarra();
        ventana->showMaximized();
        ASSERT_TRUE(QTest::qWaitForWindowActive(ventana.get()));
        QTest::qWait(1); // the first painting
        ventana->PantallaEdicion->setFocus();
    }
    // A key, once the window has the keyboard back from a box.
    void Tecla(Qt::Key tecla, Qt::KeyboardModifiers con = {}) {
        ASSERT_TRUE(QTest::qWaitForWindowActive(ventana.get()));
        QTest::keyClick(&Texto(), tecla, con);
    }
    ControlSentencias &Texto() { return *ventana->PantallaEdicion; }
    std::string Barra(const char *parte) {
        return Hijo<QLabel>(*ventana->barra, parte)->objectName() == QStringLiteral("estado")
                   ? Hijo<QLabel>(*ventana->barra, parte)->accessibleName().toStdString()
                   : TextoDe(*ventana->barra, parte);
    }
    void Poner(const char *texto, int desde, int hasta) {
        Texto().setPlainText(QString::fromUtf8(texto));
        SeleccionarEnControl(AControl(&Texto()), desde, hasta);
    }
    std::pair<int, int> Seleccion() {
        return {Texto().textCursor().selectionStart(), Texto().textCursor().selectionEnd()};
    }
    // What the user reads in a colour of its own, in the line: the format at a character.
    QTextCharFormat FormatoEn(int linea, int columna) {
        Texto().repaint();
        for (const QTextLayout::FormatRange &r :
             Texto().document()->findBlockByNumber(linea).layout()->formats())
            if (columna >= r.start && columna < r.start + r.length) return r.format;
        return {};
    }
    QColor ColorEn(int linea, int columna) { return FormatoEn(linea, columna).foreground().color(); }
};

// The boxes of a failure, however many there are: another test reads them.
std::vector<std::string> SinLeerCajas(const std::function<void()> &llamada) {
    std::vector<std::string> textos;
    QTimer mirar;
    QObject::connect(&mirar, &QTimer::timeout, [&] {
        if (auto *caja = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
            textos.push_back(caja->text().toStdString());
            caja->done(QMessageBox::Ok);
        }
    });
    mirar.start(5);
    llamada();
    return textos;
}

constexpr auto ParadaEnDos = "Detenido en la línea 2: SER LB = LN(BENEFF)";

} // namespace

// ----- The status line

TEST_F(Comodidades, BarraDeEstado) {
    EXPECT_TRUE(ventana->barra->isVisible());
    EXPECT_EQ(Barra("estado"), "Sin tipo de datos | VSR SI | Lín 1, Col 1");
    EXPECT_EQ(Barra("mensaje"), "");
    PonerDatos(TipoAnual, "1920#1941");
    Poner("MUEST 1921 1924\nVSR NO", 0, 22);
    ConGuion({}, [&] { Ordenar(2006); });
    EXPECT_EQ(Barra("estado"), "Anual 1920-1941 | Muestra 1921-1924 (4 de 22) | VSR NO | Lín 2, Col 7");
    EXPECT_EQ(Barra("mensaje"), "2 sentencias procesadas");
    QTest::keyClick(&Texto(), Qt::Key_Up);
    EXPECT_EQ(Barra("estado"), "Anual 1920-1941 | Muestra 1921-1924 (4 de 22) | VSR NO | Lín 1, Col 7");
    // The next command takes the message away.
    ConGuion({ConEscape("Acotación de la muestra a utilizar")}, [&] { Ordenar(2038); });
    EXPECT_EQ(Barra("mensaje"), "");
}

TEST_F(Comodidades, MuestraQueSeAcorta) {
    PonerDatos(TipoAnual, "1920#1941");
    PonerSerie("X", std::vector<double>(22, 1.5));
    Poner("ESC A = 1", 0, 9);
    ConGuion({}, [&] { Ordenar(2006); });
    auto *estado = Hijo<QLabel>(*ventana->barra, "estado");
    EXPECT_FALSE(estado->text().contains(QStringLiteral("<b")));
    EXPECT_TRUE(estado->toolTip().isEmpty());
    PonerSerie("_BETA2", {1, 2, 3});
    ventana->barra->Refrescar();
    EXPECT_TRUE(estado->text().contains(QStringLiteral("Muestra 1920-1922 (3 de 22)&nbsp;</b>")))
        << estado->text().toStdString();
    EXPECT_TRUE(estado->toolTip().contains(QStringLiteral("_BETA2")));
    EXPECT_EQ(Barra("estado"), "Anual 1920-1941 | Muestra 1920-1922 (3 de 22) | VSR SI | Lín 1, Col 10");
}

// While boxes stand, too; a dialog's statement tells its end as one of the text does.
TEST_F(Comodidades, ProcesandoYDespues) {
    PonerDatos(TipoAnual, "1920#1941");
    Poner("ESC A = 1\nQQ", 0, 12);
    ConGuion({{"Proceso Cancelado",
               [&](QDialog &d) {
                   EXPECT_EQ(Barra("mensaje"), "Procesando...");
                   Pulsar(d, "Aceptar");
               }}},
             [&] { Ordenar(2006); });
    EXPECT_EQ(Barra("mensaje"), "Detenido en la línea 2: QQ");
    ConGuion({Caja("Proceso cancelado", "No hay datos a procesar. Punto 3.")}, [&] {
        SeleccionarEnControl(AControl(&Texto()), 0, 0);
        Ordenar(2006);
    });
    EXPECT_EQ(Barra("mensaje"), "");
}

// A note of the platform stands there, and doesn't block.
TEST_F(Comodidades, Notas) {
    PonerDatos(TipoAnual, "1920#1941");
    Poner("ESC A = 3,5", 0, 11);
    ConGuion({}, [&] { Ordenar(2006); });
    EXPECT_EQ(Barra("mensaje"),
              "1 sentencia procesada | Línea 1: La fórmula se lee hasta la coma; los decimales "
              "se escriben con punto");
    ventana->barra->Olvidar();
    PonerNota("texto", 0);
    EXPECT_EQ(Barra("mensaje"), "texto");
}

// ----- Where a batch stopped

TEST_F(Comodidades, MarcaDeLaParada) {
    PonerDatos(TipoAnual, "1920#1941");
    Poner("ESC A = 1\n  SER LB = LN(BENEFF)\nESC B = 1", 0, 41);
    EXPECT_FALSE(SinLeerCajas([&] { Ordenar(2006); }).empty());
    EXPECT_EQ(Barra("mensaje"), ParadaEnDos);
    EXPECT_EQ(Seleccion(), std::pair(12, 12));
    EXPECT_EQ(Texto().LineaDeParada(), 1);
    // The mark on the line is there, and in the margin.
    const auto enLinea = [&] {
        const auto todas = Texto().extraSelections();
        return std::any_of(todas.begin(), todas.end(), [](const QTextEdit::ExtraSelection &s) {
            return s.format.boolProperty(QTextFormat::FullWidthSelection) && s.cursor.blockNumber() == 1;
        });
    };
    const auto rojoEnMargen = [&] {
        const QImage i = Hijo<QWidget>(Texto(), "margen")->grab().toImage();
        const QColor tinta = TintaDeParada(EsOscura(Texto().palette()));
        for (int y = 0; y < i.height(); ++y)
            if (i.pixelColor(QFontMetrics(Texto().font()).height() / 2, y) == tinta) return true;
        return false;
    };
    EXPECT_TRUE(enLinea());
    EXPECT_TRUE(rojoEnMargen());
    // Walking and looking leave them, an edition takes them away; so does the next batch.
    QTest::keyClick(&Texto(), Qt::Key_Down);
    Texto().repaint();
    EXPECT_EQ(Texto().LineaDeParada(), 1);
    QTest::keyClick(&Texto(), Qt::Key_X);
    EXPECT_EQ(Texto().LineaDeParada(), -1);
    EXPECT_FALSE(enLinea());
    EXPECT_FALSE(rojoEnMargen());
    Poner("QQ\nESC C = 1", 0, 2);
    ConGuion({Pulsando("Proceso Cancelado", "Aceptar")}, [&] { Ordenar(2006); });
    EXPECT_EQ(Texto().LineaDeParada(), 0);
    SeleccionarEnControl(AControl(&Texto()), 3, 12);
    ConGuion({}, [&] { Ordenar(2006); });
    EXPECT_EQ(Texto().LineaDeParada(), -1);
}

// A stop without a box is marked as one with it.
TEST_F(Comodidades, ParadaSinCaja) {
    PonerDatos(TipoAnual, "1920#1941");
    Poner("ESC A = 1\nSER A = 1\nESC B = 1", 0, 29);
    EXPECT_EQ(SinLeerCajas([&] { Ordenar(2006); }), std::vector<std::string>{});
    EXPECT_EQ(Texto().LineaDeParada(), 1);
    EXPECT_EQ(Barra("mensaje"), "Detenido en la línea 2: SER A = 1");
}

// The statement of a dialog or command is no line of the text.
TEST_F(Comodidades, ParadaDeUnaOrden) {
    PonerDatos(TipoAnual, "1920#1941");
    Poner("ESC A = 1", 3, 3);
    EXPECT_FALSE(SinLeerCajas([&] { Ordenar(2082); }).empty());
    EXPECT_EQ(Texto().LineaDeParada(), -1);
    EXPECT_EQ(Seleccion(), std::pair(3, 3));
    EXPECT_EQ(Barra("mensaje").substr(0, 13), "Detenido: CDU");
}

// ----- The keys that run

TEST_F(Comodidades, TeclasQueProcesan) {
    const struct {
        Qt::Key tecla;
        Qt::KeyboardModifiers con;
        int desde, hasta; // selected before, and behind
        std::vector<std::string> escalares;
    } Casos[] = {
        {Qt::Key_Return, Qt::ControlModifier, 13, 13, {"B"}}, // the line of the caret
        {Qt::Key_Enter, Qt::ControlModifier | Qt::KeypadModifier, 13, 13, {"B"}},
        {Qt::Key_Return, Qt::ControlModifier, 10, 10, {"B"}},
        {Qt::Key_Return, Qt::ControlModifier, 19, 19, {"B"}},
        {Qt::Key_Return, Qt::ControlModifier, 29, 29, {"C"}}, // the last one, which no line end follows
        {Qt::Key_Return, Qt::ControlModifier, 0, 19, {"A", "B"}},
        {Qt::Key_F5, Qt::NoModifier, 4, 4, {"A", "B", "C"}},
        {Qt::Key_F5, Qt::NoModifier, 0, 9, {"A", "B", "C"}}, // whatever is selected
    };
    for (const auto &c : Casos) {
        SCOPED_TRACE(testing::Message() << c.tecla << " " << c.desde << " " << c.hasta);
        PonerDatos(TipoSinPeriodicidad, "");
        Poner("ESC A = 1\nESC B = 2\nESC C = 3", c.desde, c.hasta);
        ConGuion({}, [&] { Tecla(c.tecla, c.con); });
        EXPECT_EQ(CodigosDeEscalares(), c.escalares);
        EXPECT_EQ(Seleccion(), std::pair(c.desde, c.hasta));
        EXPECT_EQ(Texto().toPlainText(), QStringLiteral("ESC A = 1\nESC B = 2\nESC C = 3"));
    }
}

TEST_F(Comodidades, TeclasQueSeDetienen) {
    Poner("ESC A = 1", 2, 2);
    ConGuion({Caja("Proceso cancelado", "Tipo de datos no válidos")}, [&] { Tecla(Qt::Key_F5); });
    EXPECT_EQ(Seleccion(), std::pair(2, 2));
    PonerDatos(TipoSinPeriodicidad, "");
    Poner("ESC A = 1\nQQ\nESC B = 1", 2, 2);
    ConGuion({Pulsando("Proceso Cancelado", "Aceptar")}, [&] { Tecla(Qt::Key_F5); });
    EXPECT_EQ(Seleccion(), std::pair(10, 10));
    // An empty line is no statement.
    Poner("ESC A = 1\n\n", 10, 10);
    ConGuion({Caja("Proceso cancelado", "No hay datos a procesar. Punto 3.")},
             [&] { Tecla(Qt::Key_Return, Qt::ControlModifier); });
    EXPECT_EQ(Seleccion(), std::pair(10, 10));
}

// The text doesn't run away under the user's eyes.
TEST_F(Comodidades, F5NoMueveElTexto) {
    PonerDatos(TipoSinPeriodicidad, "");
    QString texto;
    for (int i = 0; i < 500; ++i) texto += QStringLiteral("ESC A = 1\n");
    Texto().setPlainText(texto);
    Texto().verticalScrollBar()->setValue(100);
    SeleccionarEnControl(AControl(&Texto()), 1050, 1050);
    const int sitio = Texto().verticalScrollBar()->value();
    ConGuion({}, [&] { Tecla(Qt::Key_F5); });
    EXPECT_EQ(Texto().verticalScrollBar()->value(), sitio);
    EXPECT_EQ(Barra("mensaje"), "500 sentencias procesadas");
}

// ----- Colours

TEST(Colores, SeLeenEnClaroYOscuro) {
    // The papers of usual desktops.
    const struct {
        bool oscura;
        QRgb papel;
    } Papeles[] = {
        {false, 0xFFFFFFFF}, {false, 0xFFF3F3F3}, {true, 0xFF353535}, {true, 0xFF1E1E1E}, {true, 0xFF000000}};
    for (const auto &p : Papeles) {
        QPalette paleta;
        paleta.setColor(QPalette::Base, QColor::fromRgb(p.papel));
        ASSERT_EQ(EsOscura(paleta), p.oscura);
        for (int clase = 0; clase <= TrozoAjeno; ++clase) {
            const QColor tinta = TintaDeTrozo(static_cast<ClasesDeTrozo>(clase), p.oscura);
            EXPECT_GE(Contraste(tinta, QColor::fromRgb(p.papel)), 4.5) << clase;
            EXPECT_GE(Contraste(tinta, PapelDeParada(p.oscura)), 4.5) << clase;
        }
    }
}

TEST_F(Comodidades, ColoresDelLenguaje) {
    PonerDatos(TipoAnual, "1920#1941");
    PonerSerie("SALPRIV", std::vector<double>(22, 1));
    Poner("SER Z = LN(SALPRIV) + NADIE * 2 ; nota\nNADA\n", 0, 0);
    const bool oscura = EsOscura(Texto().palette());
    const auto tinta = [&](ClasesDeTrozo c) { return TintaDeTrozo(c, oscura); };
    const struct {
        int linea, columna;
        ClasesDeTrozo clase;
    } Sitios[] = {{0, 0, TrozoPalabra},     {0, 4, TrozoObjetivo},   {0, 8, TrozoFuncion},
                  {0, 11, TrozoCodigo},     {0, 22, TrozoSinCodigo}, {0, 30, TrozoNumero},
                  {0, 32, TrozoComentario}, {1, 0, TrozoAjeno}};
    for (const auto &s : Sitios) EXPECT_EQ(ColorEn(s.linea, s.columna), tinta(s.clase)) << s.columna;
    EXPECT_EQ(FormatoEn(0, 20), QTextCharFormat()); // "+"
    // A name that a batch makes is one from then on, without a key.
    ConGuion({}, [&] {
        ventana->PantallaEdicion->setFocus();
        SeleccionarEnControl(AControl(&Texto()), 0, 0);
        Sentencia("SER NADIE = 1");
    });
    EXPECT_EQ(ColorEn(0, 22), tinta(TrozoCodigo));
    EXPECT_EQ(ColorEn(0, 4), tinta(TrozoObjetivo));
    // The text is as it was, for the undo too.
    EXPECT_FALSE(Texto().document()->isUndoAvailable());
}

TEST_F(Comodidades, OtraPaleta) {
    PonerDatos(TipoAnual, "1920#1941");
    Poner("SER Z = 1", 0, 0);
    for (const bool oscura : {true, false, true}) {
        Texto().setPalette(Paleta(oscura));
        EXPECT_EQ(EsOscura(Texto().palette()), oscura);
        EXPECT_EQ(ColorEn(0, 0), TintaDeTrozo(TrozoPalabra, oscura));
    }
}

TEST_F(Comodidades, ParentesisQueSeCorresponden) {
    Poner("CAL ((1 + 2) * 3)", 0, 0);
    const struct {
        int caret;
        std::vector<int> marcadas;
    } Casos[] = {{0, {}},      {4, {4, 16}},  {5, {4, 16}}, // the one before the caret comes first
                 {6, {5, 11}}, {12, {11, 5}}, {11, {11, 5}}, {17, {16, 4}}, {9, {}}};
    for (const auto &c : Casos) {
        SeleccionarEnControl(AControl(&Texto()), c.caret, c.caret);
        std::vector<int> marcadas;
        for (const auto &s : Texto().extraSelections()) marcadas.push_back(s.cursor.selectionStart());
        EXPECT_EQ(marcadas, c.marcadas) << c.caret;
    }
}

// ----- Margin, zoom

TEST_F(Comodidades, NumerosDeLinea) {
    const int estrecho = Texto().AnchoDelMargen();
    QString texto;
    for (int i = 0; i < 2000; ++i) texto += QStringLiteral("ESC A = 1\n");
    Texto().setPlainText(texto);
    EXPECT_GT(Texto().AnchoDelMargen(), estrecho);
    EXPECT_EQ(Texto().viewport()->x(), Texto().AnchoDelMargen());
    EXPECT_EQ(Hijo<QWidget>(Texto(), "margen")->width(), Texto().AnchoDelMargen());
}

TEST_F(Comodidades, ZoomConLaRueda) {
    const auto rueda = [&](int giro, Qt::KeyboardModifiers con) {
        QWheelEvent e({20, 20}, Texto().viewport()->mapToGlobal(QPointF(20, 20)), {}, {0, giro}, {}, con,
                      Qt::NoScrollPhase, false);
        QApplication::sendEvent(Texto().viewport(), &e);
    };
    const double antes = Texto().font().pointSizeF();
    const int margen = Texto().AnchoDelMargen();
    for (int i = 0; i < 5; ++i) rueda(120, Qt::ControlModifier);
    EXPECT_NEAR(Texto().font().pointSizeF(), antes * 1.5, 0.01);
    EXPECT_GT(Texto().AnchoDelMargen(), margen);
    EXPECT_EQ(Texto().viewport()->x(), Texto().AnchoDelMargen());
    rueda(120, {}); // without Ctrl it scrolls
    EXPECT_NEAR(Texto().font().pointSizeF(), antes * 1.5, 0.01);
    rueda(-60, Qt::ControlModifier);
    rueda(-60, Qt::ControlModifier); // two halves are a notch
    EXPECT_NEAR(Texto().font().pointSizeF(), antes * 1.4, 0.01);
    for (int i = 0; i < 100; ++i) rueda(-120, Qt::ControlModifier);
    EXPECT_NEAR(Texto().font().pointSizeF(), antes * 0.5, 0.01);
    for (int i = 0; i < 100; ++i) rueda(120, Qt::ControlModifier);
    EXPECT_NEAR(Texto().font().pointSizeF(), antes * 4, 0.01);
}

// ----- Find and replace

TEST_F(Comodidades, Buscar) {
    Poner("SER A = X\nser b = x + XX\nSER C = Y", 8, 9);
    EXPECT_FALSE(ventana->buscar->isVisible());
    DelMenu(Texto(), "Buscar y reemplazar...");
    EXPECT_TRUE(ventana->buscar->isVisible());
    auto *buscado = Hijo<QLineEdit>(*ventana->buscar, "buscado");
    EXPECT_TRUE(QTest::qWaitFor([&] { return buscado->hasFocus(); }, 1000));
    EXPECT_EQ(buscado->text(), QStringLiteral("X")); // what was selected
    const auto enter = [&](Qt::KeyboardModifiers con) { QTest::keyClick(buscado, Qt::Key_Return, con); };
    const std::pair<int, int> sitios[] = {{18, 19}, {22, 23}, {23, 24}, {8, 9}};
    for (const auto &s : sitios) {
        enter({});
        EXPECT_EQ(Seleccion(), s);
    }
    enter(Qt::ShiftModifier);
    EXPECT_EQ(Seleccion(), sitios[2]);
    Escribir(*ventana->buscar, "buscado", "NADIE");
    enter({});
    EXPECT_EQ(Seleccion(), sitios[2]);
    EXPECT_EQ(TextoDe(*ventana->buscar, "aviso"), "No se encuentra");
    Escribir(*ventana->buscar, "buscado", "");
    enter({});
    EXPECT_EQ(TextoDe(*ventana->buscar, "aviso"), "");
    QTest::keyClick(buscado, Qt::Key_Escape);
    EXPECT_FALSE(ventana->buscar->isVisible());
    EXPECT_TRUE(QTest::qWaitFor([&] { return Texto().hasFocus(); }, 1000));
}

TEST_F(Comodidades, Reemplazar) {
    const QString antes = QStringLiteral("SER A = X\nser b = x + XX");
    Poner(antes.toUtf8().constData(), 0, 0);
    ventana->buscar->Abrir();
    Escribir(*ventana->buscar, "buscado", "x");
    Escribir(*ventana->buscar, "nuevo", "XY");
    Pulsar(*ventana->buscar, "reemplazar"); // the first one is only found
    EXPECT_EQ(Texto().toPlainText(), antes);
    Pulsar(*ventana->buscar, "reemplazar");
    EXPECT_EQ(Texto().toPlainText(), QStringLiteral("SER A = XY\nser b = x + XX"));
    EXPECT_EQ(Seleccion(), std::pair(19, 20));
    Texto().undo();
    EXPECT_EQ(Texto().toPlainText(), antes);
    Pulsar(*ventana->buscar, "reemplazarTodo");
    EXPECT_EQ(Texto().toPlainText(), QStringLiteral("SER A = XY\nser b = XY + XYXY"));
    EXPECT_EQ(TextoDe(*ventana->buscar, "aviso"), "4 reemplazos");
    Texto().undo(); // one step
    EXPECT_EQ(Texto().toPlainText(), antes);
    Pulsar(*ventana->buscar, "cerrar");
    EXPECT_FALSE(ventana->buscar->isVisible());
}

// ----- Files that are named outside the menus

namespace {

QString Escrito(const QTemporaryDir &carpeta, const char *nombre, const char *contenido) {
    const QString ruta = carpeta.filePath(QString::fromUtf8(nombre));
    QFile f(ruta);
    EXPECT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(contenido);
    return ruta;
}

// Folders with a hyphen are refused, as the menu refuses them.
struct CarpetaSinGuion : QTemporaryDir {
    CarpetaSinGuion() : QTemporaryDir(QDir::tempPath() + QStringLiteral("/tabiraXXXXXX")) {}
};

void Soltar(QWidget &w, const QString &ruta) {
    QMimeData datos;
    datos.setUrls({QUrl::fromLocalFile(ruta)});
    QDragEnterEvent entra({20, 20}, Qt::CopyAction, &datos, Qt::LeftButton, {});
    QApplication::sendEvent(&w, &entra);
    EXPECT_TRUE(entra.isAccepted());
    QDropEvent suelta({20, 20}, Qt::CopyAction, &datos, Qt::LeftButton, {});
    QApplication::sendEvent(&w, &suelta);
    EXPECT_TRUE(suelta.isAccepted());
    QTest::qWait(10);
}

} // namespace

TEST_F(Comodidades, SentenciasSoltadas) {
    const CarpetaSinGuion carpeta;
    const QString ruta = Escrito(carpeta, "a.txt", "SER A = 1\nSER B = 2\n");
    Poner("antes", 0, 0);
    ConGuion({}, [&] { Soltar(*Texto().viewport(), ruta); });
    EXPECT_EQ(Texto().toPlainText(), QStringLiteral("SER A = 1\nSER B = 2"));
    Texto().undo(); // as the menu's
    EXPECT_EQ(Texto().toPlainText(), QStringLiteral("antes"));
    // What isn't there is refused as the menu refuses it.
    ConGuion({Caja("Proceso cancelado", "Error al abrir el archivo")},
             [&] { AbrirFichero(*ventana, carpeta.filePath(QStringLiteral("nada.TXT"))); });
    EXPECT_EQ(Texto().toPlainText(), QStringLiteral("antes"));
}

// Text that is dragged is text.
TEST_F(Comodidades, TextoArrastradoSigueSiendoTexto) {
    Poner("x", 1, 1);
    QMimeData datos;
    datos.setText(QStringLiteral("ESC A = 1"));
    QDragEnterEvent entra({20, 5}, Qt::CopyAction, &datos, Qt::LeftButton, {});
    QApplication::sendEvent(Texto().viewport(), &entra);
    QDropEvent suelta({20, 5}, Qt::CopyAction, &datos, Qt::LeftButton, {});
    QApplication::sendEvent(Texto().viewport(), &suelta);
    EXPECT_NE(Texto().toPlainText().indexOf(QStringLiteral("ESC A = 1")), -1);
}

TEST_F(Comodidades, TrabajoNombrado) {
    const CarpetaSinGuion carpeta;
    PonerDatos(TipoAnual, "1920#1941");
    PonerSerie("X", {1, 2, 3});
    const std::string ruta = carpeta.filePath(QStringLiteral("klein.TR2")).toStdString();
    ASSERT_TRUE(EscribirFicheroTrabajo(ruta));
    PonerDatos(TipoSinPeriodicidad, "");
    ConGuion({}, [&] { AbrirFichero(*ventana, QString::fromStdString(ruta)); });
    EXPECT_EQ(CodigosDeSeries(), std::vector<std::string>{"X"});
    EXPECT_EQ(ventana->windowTitle(), QStringLiteral("Tabira: klein"));
    EXPECT_EQ(Barra("estado"), "Anual 1920-1941 | Muestra 1920-1922 (3 de 22) | VSR SI | Lín 1, Col 1");
    EXPECT_EQ(CarpetasRecientes().value(0), QFileInfo(QString::fromStdString(ruta)).absolutePath());
}

// Data: the dialog of the menu, with the file in its place.
TEST_F(Comodidades, DatosNombrados) {
    const CarpetaSinGuion carpeta;
    const QString ruta = Escrito(carpeta, "datos.csv", "A,B\n1,2\n3,4\n");
    ConGuion({Caja("Proceso cancelado", "Tipo de datos no válidos")}, [&] { AbrirFichero(*ventana, ruta); });
    EXPECT_FALSE(HayArchivoDado());
    PonerDatos(TipoSinPeriodicidad, "");
    ConGuion({{"Importación de Series",
               [](QDialog &d) {
                   EXPECT_EQ(TextoDe(d, "archivo"), "datos.csv");
                   Pulsar(d, "FormatoVariable");
                   Pulsar(d, "OK");
               }},
              {"Importación de Series: Formato variable",
               [](QDialog &d) {
                   Hijo<QAbstractButton>(d, "primerRegistroCodigos")->setChecked(true);
                   Pulsar(d, "OK");
               }}},
             [&] { AbrirFichero(*ventana, ruta); });
    EXPECT_EQ(CodigosDeSeries(), (std::vector<std::string>{"A", "B"}));
    EXPECT_EQ(ValoresDe("B", 2), (std::vector<double>{2, 4}));
}

// ----- What is remembered

TEST_F(Comodidades, SitioDeUnDialogo) {
    RecordarSitios(*qApp);
    const auto filtro = qApp->children().constLast();
    QPoint sitio;
    QSize lado;
    const auto abrir = [&](const std::function<void(QDialog &)> &hacer) {
        ConGuion({{"Opción del menú",
                   [&](QDialog &d) {
                       sitio = d.geometry().topLeft();
                       lado = d.size();
                       hacer(d);
                       d.reject();
                   }}},
                 [&] { Ordenar(2002); });
    };
    QPoint puesto;
    abrir([&](QDialog &d) {
        d.move(60, 70);
        puesto = d.geometry().topLeft();
        EXPECT_NE(puesto, d.pos()) << "no frame around it";
    });
    const QSize primero = lado;
    for (int veces = 0; veces < 2; ++veces) {
        abrir([](QDialog &) {});
        EXPECT_EQ(sitio, puesto);
    }
    abrir([](QDialog &d) { d.resize(d.size() + QSize(40, 30)); });
    EXPECT_EQ(lado, primero);
    abrir([](QDialog &d) { d.move(100000, -5000); }); // off the screen
    EXPECT_EQ(lado, primero + QSize(40, 30));
    abrir([](QDialog &) {});
    constexpr int AltoDeBarra = 10; // of the window, at least
    EXPECT_TRUE(QGuiApplication::primaryScreen()->availableGeometry().contains(
        QRect(sitio, lado).adjusted(0, -AltoDeBarra, 0, 0)));
    delete filtro;
    abrir([](QDialog &) {});
    EXPECT_EQ(lado, primero);
}

TEST(Ajustes, Recientes) {
    const QTemporaryDir una, otra;
    const QString a = Escrito(una, "a.txt", ""), b = Escrito(otra, "b.TXT", ""),
                  c = Escrito(una, "c.txt", ""), d = Escrito(una, "d.tr2", "");
    for (const QString &ruta : {d, a, b, c, a}) AnotarReciente(ruta);
    EXPECT_EQ(FicherosRecientes().mid(0, 4), (QStringList{a, c, b, d}));
    EXPECT_EQ(FicherosRecientes({QStringLiteral("txt")}).mid(0, 3), (QStringList{a, c, b}));
    EXPECT_EQ(FicherosRecientes({QStringLiteral("tr2")}).value(0), d);
    EXPECT_EQ(CarpetasRecientes().mid(0, 2), (QStringList{una.path(), otra.path()}));
    QFile::remove(a);
    QFile::remove(c);
    EXPECT_EQ(FicherosRecientes().mid(0, 2), (QStringList{b, d}));
    EXPECT_EQ(CarpetasRecientes().value(0), otra.path());
    // Ten of an ending are kept, and none of these is there; those of another one stay.
    for (int i = 0; i < 20; ++i) AnotarReciente(QStringLiteral("/no hay/%1.txt").arg(i));
    EXPECT_TRUE(FicherosRecientes({QStringLiteral("txt")}).isEmpty());
    EXPECT_EQ(FicherosRecientes().value(0), d);
}

// The chooser of files offers the files of its kind, by the keyboard alone.
TEST_F(Comodidades, RecientesAlElegir) {
    static constexpr FormatoArchivo Formatos[] = {{"txt", "Texto (*.txt)"}};
    const QTemporaryDir una, otra;
    for (int i = 0; i < 10; ++i)
        AnotarReciente(QStringLiteral("/no hay/%1.txt").arg(i)); // of other tests, no more
    const QString a = Escrito(una, "a.txt", ""), b = Escrito(otra, "b.txt", ""),
                  c = Escrito(una, "c.tr2", "");
    const auto elegir = [&](bool libre, const std::function<void(QDialog &)> &hacer) {
        std::string ruta;
        ConGuion({{"Abrir",
                   [&](QDialog &d) {
                       Activar(d);
                       hacer(d);
                   }}},
                 [&] {
                     ElegirArchivo(AVentana(ventana.get()), {false, "Abrir", Formatos, "", libre}, ruta);
                 });
        return QString::fromStdString(ruta);
    };
    EXPECT_EQ(elegir(false,
                     [](QDialog &d) {
                         EXPECT_EQ(d.findChild<QComboBox *>(QStringLiteral("recientes")), nullptr);
                         d.reject();
                     }),
              QString());
    for (const QString &ruta : {a, c, b}) AnotarReciente(ruta);
    const auto linea = [](const QString &ruta) {
        return QStringLiteral("%1 (%2)").arg(QFileInfo(ruta).fileName(), QFileInfo(ruta).absolutePath());
    };
    EXPECT_EQ(elegir(false,
                     [&](QDialog &d) {
                         auto *recientes = Hijo<QComboBox>(d, "recientes");
                         ASSERT_EQ(recientes->count(), 2);
                         EXPECT_EQ(recientes->itemText(0), linea(b));
                         EXPECT_EQ(recientes->itemText(1), linea(a));
                         QTest::keyClick(&d, Qt::Key_R, Qt::AltModifier);
                         EXPECT_EQ(QApplication::focusWidget(), recientes);
                         QTest::keyClick(recientes, Qt::Key_Down);
                         EXPECT_EQ(Hijo<QLineEdit>(d, "fileNameEdit")->text(), QStringLiteral("b.txt"));
                         QTest::keyClick(recientes, Qt::Key_Down);
                         EXPECT_EQ(Hijo<QLineEdit>(d, "fileNameEdit")->text(), QStringLiteral("a.txt"));
                         QTest::keyClick(recientes, Qt::Key_Return);
                     }),
              a);
    // Where the name is free all of them are; the one just opened comes first.
    EXPECT_EQ(elegir(true,
                     [&](QDialog &d) {
                         auto *recientes = Hijo<QComboBox>(d, "recientes");
                         EXPECT_EQ(recientes->itemText(0), linea(a));
                         EXPECT_EQ(recientes->itemText(2), linea(c));
                         d.reject();
                     }),
              QString());
}

// ----- The cost

// A key in a text of 32,000 characters on 20,000 lines, and behind a statement that makes a new name: what the
// toolkit does with it, the colours included, and with them the repainting.
TEST_F(Comodidades, TextoLargoEsFluido) {
    PonerDatos(TipoSinPeriodicidad, "");
    for (int i = 0; i < 95; ++i) PonerSerie("SERIE" + std::to_string(i), {1, 2, 3});
    QString texto;
    for (int i = 0; i < 1000; ++i) texto += QStringLiteral("SER Z = LN(SERIE%1) + NADIE * 2\n").arg(i % 99);
    for (int i = 0; i < 19000; ++i) texto += QStringLiteral("\n");
    ASSERT_GE(texto.size(), 32000);
    QElapsedTimer reloj;
    reloj.start();
    Texto().setPlainText(texto);
    Texto().repaint();
    RecordProperty("abrir_us", static_cast<int>(reloj.nsecsElapsed() / 1000));
    SeleccionarEnControl(AControl(&Texto()), 500, 500);
    Texto().repaint();
    std::vector<double> teclas;
    for (int i = 0; i < 60; ++i) {
        reloj.restart();
        QTest::keyClick(&Texto(), Qt::Key_X);
        teclas.push_back(static_cast<double>(reloj.nsecsElapsed()) / 1e6);
    }
    std::sort(teclas.begin(), teclas.end());
    RecordProperty("tecla_us", static_cast<int>(teclas[30] * 1000));
    std::vector<double> nombres;
    for (int i = 0; i < 20; ++i) {
        PonerEscalar(nullptr, "E" + std::to_string(i), 1);
        reloj.restart();
        Texto().RefrescarColores();
        Texto().repaint();
        nombres.push_back(static_cast<double>(reloj.nsecsElapsed()) / 1e6);
    }
    std::sort(nombres.begin(), nombres.end());
    RecordProperty("nombres_us", static_cast<int>(nombres[10] * 1000));
    std::printf("key %.2f ms (worst %.2f), new name with repaint %.2f ms\n", teclas[30], teclas.back(),
                nombres[10]);
    EXPECT_LT(teclas[30], 5.0);
}
