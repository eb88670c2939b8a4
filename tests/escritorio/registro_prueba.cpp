// The log in the main window: its dock, what it shows, search, copy, file, and results that open again.
#include "apoyo_escritorio.h"
#include "apoyo_pdf.h"

#include "platform/texto.h"
#include "shell/registro.h"
#include "store/archivo.h"

#include <QApplication>
#include <QClipboard>
#include <QDockWidget>
#include <QFileDialog>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextBlock>
#include <QToolButton>

#include <algorithm>

namespace {

constexpr const char *Titulo = "Mínimos cuadrados ordinarios";

class RegistroAbierto : public Escritorio {
protected:
    void SetUp() override {
        Escritorio::SetUp();
        PonerDatos(TipoAnual, "1990#1999");
        PonerSerie("X", {1, 4, 2, 8, 5, 7, 3, 9, 6, 11});
        PonerSerie("Y", {2, 9, 5, 15, 11, 13, 7, 20, 10, 24});
        VaciarRegistro();
        ventana->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(ventana.get()));
    }

    void Correr(const char *texto, const Guion &guion = {}) {
        ventana->PantallaEdicion->setPlainText(QString::fromUtf8(texto));
        ventana->PantallaEdicion->selectAll();
        ConGuion(guion, [&] { Ordenar(2006); });
    }

    QDockWidget &Panel() { return *ventana->findChild<QDockWidget *>(QStringLiteral("registro")); }
    QPlainTextEdit &Texto() { return *ventana->findChild<QPlainTextEdit *>(QStringLiteral("textoRegistro")); }

    void Abrir() { QTest::mouseClick(Hijo<QToolButton>(*ventana, "abrirRegistro"), Qt::LeftButton); }

    // What the dock shows, once it has taken notice.
    std::string Mostrado() {
        QCoreApplication::processEvents();
        return Texto().toPlainText().toStdString();
    }
};

const Paso Ver = Caja("Aviso", "¿Desea ver la regresion?", "Si", QMessageBox::Question);

Paso MirarInforme(std::function<void(QDialog &)> hacer = [](QDialog &) {}) {
    return {Titulo, [hacer](QDialog &d) {
                hacer(d);
                d.reject();
            }};
}

} // namespace

TEST_F(RegistroAbierto, SeAbreYSeCierra) {
    EXPECT_FALSE(Panel().isVisible()) << "closed at the start";
    Correr("CAL 2 + 3", {Caja("Resultado", "   5.0000 ")});
    Abrir();
    EXPECT_TRUE(Panel().isVisible());
    EXPECT_EQ(Mostrado(), "CAL 2 + 3\n; [Resultado] 5.0000\n");
    Correr("ESC A = 1");
    EXPECT_EQ(Mostrado(), "CAL 2 + 3\n; [Resultado] 5.0000\nESC A = 1\n");
    Panel().close();
    Correr("ESC B = 1");
    EXPECT_FALSE(Panel().isVisible());
    Abrir();
    EXPECT_EQ(Mostrado(), "CAL 2 + 3\n; [Resultado] 5.0000\nESC A = 1\nESC B = 1\n");
}

// A report is read whole where the window has room for it and as much for the statements.
TEST_F(RegistroAbierto, TieneSitioParaUnInforme) {
    const int informe = QFontMetrics(Texto().font()).horizontalAdvance(QString(72, u'-'));
    constexpr int Orla = 50; // bars, margins, frames
    ASSERT_TRUE(QTest::qWaitFor([&] { return ventana->isMaximized(); }));
    Abrir();
    QCoreApplication::processEvents();
    const int mitad = ventana->width() / 2 - Orla;
    EXPECT_GE(Texto().viewport()->width(), std::min(informe, mitad));
    EXPECT_GE(ventana->PantallaEdicion->width(), mitad);
}

// What a box said is told from a statement, and read on any paper, also where that changes.
TEST_F(RegistroAbierto, SeLeeEnClaroYOscuro) {
    const QPalette antes = QApplication::palette();
    Correr("CAL 2 + 3", {Caja("Resultado", "   5.0000 ")});
    Abrir();
    for (const bool oscura : {false, true, false}) {
        QApplication::setPalette(Paleta(oscura));
        EXPECT_EQ(Mostrado(), "CAL 2 + 3\n; [Resultado] 5.0000\n");
        const QColor papel = Texto().palette().color(QPalette::Base);
        const QTextCursor caja = Texto().document()->find(QStringLiteral("Resultado"));
        EXPECT_GE(Contraste(caja.charFormat().foreground().color(), papel), 4.5) << oscura;
        EXPECT_NE(caja.charFormat().foreground().color(), Texto().palette().color(QPalette::Text));
    }
    QApplication::setPalette(antes);
}

// A double click or Enter on any line of a report opens it as it was, and leaves no trace of its own.
TEST_F(RegistroAbierto, UnInformeSeAbreOtraVez) {
    QString primero;
    Correr("MC Y 1 X", {Ver, MirarInforme()});
    Correr("MUEST 1990 1999\nMC X 1 Y", {Ver, MirarInforme()});
    Abrir();
    const std::string antes = Mostrado();
    const std::size_t entradas = EntradasRegistro().size();
    const auto copiar = [&](QDialog &d) {
        QTest::keyClick(Hijo<QWidget>(d, "areaResultado"), Qt::Key_C, Qt::ControlModifier);
        primero = QApplication::clipboard()->text();
    };
    QTextCursor c = Texto().document()->find(QStringLiteral("Estadís. Durbin"));
    ASSERT_FALSE(c.isNull());
    c.clearSelection();
    Texto().setTextCursor(c);
    Texto().setFocus();
    ConGuion({MirarInforme(copiar)}, [&] { QTest::keyClick(&Texto(), Qt::Key_Return); });
    EXPECT_TRUE(primero.startsWith(QStringLiteral("Variable Dep.: Y"))) << primero.toStdString();
    c = Texto().document()->find(QStringLiteral("Variable Dep.: X"));
    ASSERT_FALSE(c.isNull());
    Texto().setTextCursor(c);
    Texto().ensureCursorVisible();
    const QPoint lugar = Texto().cursorRect(c).center() - QPoint(20, 0);
    ConGuion({MirarInforme(copiar)},
             [&] { QTest::mouseDClick(Texto().viewport(), Qt::LeftButton, {}, lugar); });
    EXPECT_TRUE(primero.startsWith(QStringLiteral("Variable Dep.: X"))) << primero.toStdString();
    EXPECT_EQ(Mostrado(), antes);
    EXPECT_EQ(EntradasRegistro().size(), entradas);
    // Nothing opens from a statement.
    Texto().moveCursor(QTextCursor::Start);
    ConGuion({}, [&] { QTest::keyClick(&Texto(), Qt::Key_Return); });
}

TEST_F(RegistroAbierto, Buscar) {
    Correr("ESC ALFA = 1\nESC BETA1 = 2\nESC ALFA = 3");
    Abrir();
    QCoreApplication::processEvents();
    Texto().moveCursor(QTextCursor::Start);
    auto *buscar = Hijo<QLineEdit>(*ventana, "buscarEnRegistro");
    Escribir(*ventana, "buscarEnRegistro", "alfa");
    for (const int linea : {0, 2, 0}) {
        QTest::keyClick(buscar, Qt::Key_Return);
        EXPECT_EQ(Texto().textCursor().selectedText(), QStringLiteral("ALFA"));
        EXPECT_EQ(Texto().textCursor().blockNumber(), linea);
    }
    const QTextCursor antes = Texto().textCursor();
    Escribir(*ventana, "buscarEnRegistro", "gamma");
    QTest::keyClick(buscar, Qt::Key_Return);
    EXPECT_EQ(Texto().textCursor(), antes);
}

TEST_F(RegistroAbierto, CopiarYGuardar) {
    Correr("ESC A = 1\n; Peñón\nESC B = 2");
    Abrir();
    const QString todo = QStringLiteral("ESC A = 1\n; Peñón\nESC B = 2\n");
    EXPECT_EQ(Mostrado(), todo.toStdString());
    QApplication::clipboard()->clear();
    Pulsar(*ventana, "copiarRegistro");
    EXPECT_EQ(QApplication::clipboard()->text(), todo);
    Texto().setTextCursor(Texto().document()->find(QStringLiteral("Peñón")));
    Pulsar(*ventana, "copiarRegistro");
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("Peñón"));
    const QString ruta = Casa() + QStringLiteral("/sesion.txt");
    ConGuion({{"Guardar como",
               [&](QDialog &d) {
                   auto *nombre = Hijo<QLineEdit>(d, "fileNameEdit");
                   EXPECT_EQ(nombre->text(), QStringLiteral("Registro"));
                   nombre->setText(Casa() + QStringLiteral("/sesion"));
                   QTest::keyClick(nombre, Qt::Key_Return);
               }}},
             [&] { Pulsar(*ventana, "guardarRegistro"); });
    EXPECT_EQ(QString::fromUtf8(Leer(ruta)), todo);
}

// More lines than the dock shows: the newest ones stay.
TEST_F(RegistroAbierto, MuchasLineas) {
    Abrir();
    std::string lote;
    for (int i = 0; i < 25'000; ++i) lote += "; linea " + std::to_string(i) + "\n";
    Correr((lote + "ESC A = 1").c_str());
    QCoreApplication::processEvents();
    EXPECT_LE(Texto().blockCount(), 20'001);
    EXPECT_EQ(Texto().document()->lastBlock().previous().text(), QStringLiteral("ESC A = 1"));
}
