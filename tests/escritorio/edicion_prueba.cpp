// The edit screen: its commands, and Procesar over a selection.
#include "apoyo_escritorio.h"

#include "store/archivo.h"

#include <QApplication>
#include <QClipboard>
#include <QFontInfo>
#include <QImage>
#include <QLineEdit>
#include <QMimeData>

#include <cmath>

using Edicion = Escritorio;
using Codigos = std::vector<std::string>;

namespace {

void Seleccionar(QPlainTextEdit &p, int desde, int hasta) {
    QTextCursor c = p.textCursor();
    c.setPosition(desde);
    c.setPosition(hasta, QTextCursor::KeepAnchor);
    p.setTextCursor(c);
}

} // namespace

TEST_F(Edicion, ElControl) {
    const QPlainTextEdit &p = *ventana->PantallaEdicion;
    EXPECT_EQ(p.objectName(), QStringLiteral("PantallaEdicion"));
    EXPECT_TRUE(QFontInfo(p.font()).fixedPitch());
    EXPECT_EQ(p.verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOn);
    EXPECT_EQ(p.horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOn);
    EXPECT_EQ(p.lineWrapMode(), QPlainTextEdit::NoWrap);
    EXPECT_TRUE(p.toPlainText().isEmpty());
}

TEST_F(Edicion, DeshacerCortarCopiarYPegar) {
    QPlainTextEdit &p = *ventana->PantallaEdicion;
    QTest::keyClicks(&p, QStringLiteral("ESC A = 1"));
    Seleccionar(p, 4, 5);
    Ordenar(2049);
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("A"));
    EXPECT_EQ(p.toPlainText(), QStringLiteral("ESC A = 1"));
    Seleccionar(p, 8, 9);
    Ordenar(2050);
    EXPECT_EQ(p.toPlainText(), QStringLiteral("ESC A = A"));
    Ordenar(2047);
    EXPECT_EQ(p.toPlainText(), QStringLiteral("ESC A = 1"));
    Seleccionar(p, 0, 4);
    Ordenar(2048);
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("ESC "));
    EXPECT_EQ(p.toPlainText(), QStringLiteral("A = 1"));
    Ordenar(2047);
    EXPECT_EQ(p.toPlainText(), QStringLiteral("ESC A = 1"));
}

// Alt is for the menus: a letter that none of them bears leaves the selection as it is. With Control it is the third
// level of some keyboards, which writes brackets and braces.
TEST_F(Edicion, AltNoEscribe) {
    constexpr struct {
        const char *teclas;
        Qt::KeyboardModifiers con;
        const char *queda;
    } Casos[] = {
        {"i", Qt::AltModifier, "SER X = 1"},
        {"I", Qt::AltModifier | Qt::ShiftModifier, "SER X = 1"},
        {"7", Qt::AltModifier, "SER X = 1"},
        {"i", Qt::NoModifier, "i"},
        {"{", Qt::AltModifier | Qt::ControlModifier, "{"},
        {"[", Qt::GroupSwitchModifier, "["},
    };
    QPlainTextEdit &p = *ventana->PantallaEdicion;
    for (const auto &c : Casos) {
        SCOPED_TRACE(c.teclas);
        p.setPlainText(QStringLiteral("SER X = 1"));
        p.selectAll();
        QTest::keyClicks(&p, QString::fromLatin1(c.teclas), c.con);
        EXPECT_EQ(p.toPlainText(), QString::fromLatin1(c.queda));
    }
}

// Nor in the field of a dialog.
TEST_F(Edicion, AltNoEscribeEnUnCampo) {
    ConGuion({{"Tipos de datos",
               [](QDialog &d) {
                   auto *nombre = Hijo<QLineEdit>(d, "NombreProyecto");
                   const QString antes = nombre->text();
                   nombre->selectAll();
                   QTest::keyClicks(nombre, QStringLiteral("x"), Qt::AltModifier);
                   EXPECT_EQ(nombre->text(), antes);
                   QTest::keyClicks(nombre, QStringLiteral("x"));
                   EXPECT_EQ(nombre->text(), QStringLiteral("x"));
                   Pulsar(d, "Cancela");
               }}},
             [&] { Ordenar(2020); });
}

// With nothing selected nothing is cut or copied; with nothing to undo nothing happens.
TEST_F(Edicion, SinNadaQueHacer) {
    QPlainTextEdit &p = *ventana->PantallaEdicion;
    QApplication::clipboard()->setText(QStringLiteral("antes"));
    for (const int id : {2047, 2048, 2049}) Ordenar(id);
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("antes"));
    EXPECT_TRUE(p.toPlainText().isEmpty());
    Ordenar(2050);
    EXPECT_EQ(p.toPlainText(), QStringLiteral("antes"));
}

// Text with a format of its own comes in as plain text.
TEST_F(Edicion, PegaTextoSolo) {
    auto *datos = new QMimeData;
    datos->setHtml(QStringLiteral("<b>ESC</b> A = 1"));
    datos->setText(QStringLiteral("ESC A = 1"));
    QApplication::clipboard()->setMimeData(datos);
    Ordenar(2050);
    EXPECT_EQ(ventana->PantallaEdicion->toPlainText(), QStringLiteral("ESC A = 1"));
}

TEST_F(Edicion, TabuladorEscribe) {
    QPlainTextEdit &p = *ventana->PantallaEdicion;
    QTest::keyClicks(&p, QStringLiteral("A"));
    QTest::keyClick(&p, Qt::Key_Tab);
    EXPECT_EQ(p.toPlainText(), QStringLiteral("A\t"));
}

TEST_F(Edicion, ProcesarSinSeleccion) {
    PonerDatos(TipoSinPeriodicidad, "");
    for (const char *texto : {"", "ESC A = 1", "ESC A = 1\nESC B = 2\n"}) {
        SCOPED_TRACE(texto);
        ventana->PantallaEdicion->setPlainText(QString::fromUtf8(texto));
        ConGuion({Caja("Proceso cancelado", "No hay datos a procesar. Punto 3.")}, [&] { Ordenar(2006); });
        EXPECT_EQ(TablaEscalares.numero, 0);
    }
}

namespace {

struct CasoProcesar {
    const char *nombre, *texto;
    int desde, hasta; // the cursor goes from here to there
    std::vector<std::pair<const char *, double>> escalares;
    const char *caja = nullptr, *titulo = "Proceso cancelado";
    int falla = -1; // where the statement begins that stopped it
};

const CasoProcesar Procesados[] = {
    {"a line", "ESC A = 1", 0, 9, {{"A", 1}}},
    {"half a line brings one character more", "ESC A = 1234", 0, 10, {{"A", 123}}},
    {"up to the last but one", "ESC A = 1234", 0, 11, {{"A", 1234}}},
    {"the character more is the end of the line", "ESC A = 1\nESC B = 2", 0, 9, {{"A", 1}}},
    {"the next line's first character is no statement", "ESC A = 1\nESC B = 2", 0, 10, {{"A", 1}}},
    {"several lines", "ESC A = 1\nESC B = 2\nESC C = 3\n", 0, 30, {{"A", 1}, {"B", 2}, {"C", 3}}},
    {"the middle line", "ESC A = 1\nESC B = 2\nESC C = 3\n", 10, 19, {{"B", 2}}},
    {"backwards", "ESC A = 1\nESC B = 2\nESC C = 3\n", 19, 0, {{"A", 1}, {"B", 2}}},
    {"backwards from half a line", "ESC A = 1\nESC B = 234\nESC C = 3\n", 20, 10, {{"B", 234}}},
    {"from inside a line", "XXESC A = 1", 2, 11, {{"A", 1}}},
    {"accents take one place", "; Peñón\nESC A = 12", 8, 17, {{"A", 12}}},
    {"so does what the tables lack", "; \xe2\x82\xac \xce\xb1\nESC A = 12", 6, 15, {{"A", 12}}},
    {"and a sign of two units takes two", "; \xf0\x9f\x98\x80\nESC A = 12", 5, 14, {{"A", 12}}},
    {"stops at the first that fails",
     "ESC A = 1\nQQ\nESC B = 2",
     0,
     22,
     {{"A", 1}},
     "Funciones o parámetros no válidos: \n (QQ)",
     "Proceso Cancelado",
     10},
    {"one character is a selection",
     "QQ",
     0,
     1,
     {},
     "Funciones o parámetros no válidos: \n (QQ)",
     "Proceso Cancelado",
     0},
    {"parentheses", "ESC A = (1", 0, 10, {}, "Número inadecuado de paréntesis", "Proceso cancelado", 0},
    {"blank lines", "\n\n  \t\nESC A = 1\n\n", 0, 17, {{"A", 1}}},
};

} // namespace

TEST_F(Edicion, ProcesarLoSeleccionado) {
    for (const CasoProcesar &c : Procesados) {
        SCOPED_TRACE(c.nombre);
        PonerDatos(TipoSinPeriodicidad, "");
        ventana->PantallaEdicion->setPlainText(QString::fromUtf8(c.texto));
        Seleccionar(*ventana->PantallaEdicion, c.desde, c.hasta);
        Guion guion;
        if (c.caja != nullptr) guion.push_back(Caja(c.titulo, c.caja));
        ConGuion(guion, [&] { Ordenar(2006); });
        EXPECT_EQ(TablaEscalares.numero, static_cast<int>(c.escalares.size()));
        for (const auto &[codigo, valor] : c.escalares) EXPECT_EQ(EscalarDe(codigo), valor) << codigo;
        // The user finds the text and the selection as they were (the caret at the statement that failed, where one did),
        // and the arrow cursor.
        EXPECT_EQ(ventana->PantallaEdicion->toPlainText().toStdString(), c.texto);
        EXPECT_EQ(ventana->PantallaEdicion->textCursor().position(), c.falla >= 0 ? c.falla : c.hasta);
        EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    }
}

// Whatever parts the lines of a pasted text, and whatever kind of blank stands in it, the selection is the text.
TEST_F(Edicion, ProcesarLoPegado) {
    PonerDatos(TipoSinPeriodicidad, "");
    QApplication::clipboard()->setText(
        QStringLiteral("ESC A = 1\r\nESC B = 2\rESC C = 3\u2028ESC D = 4\u2029ESC\u00a0E = 56"));
    Ordenar(2050);
    QPlainTextEdit &p = *ventana->PantallaEdicion;
    const int fin = p.document()->characterCount() - 1;
    Seleccionar(p, 0, fin - 2); // the last but one character comes along
    ConGuion({}, [&] { Ordenar(2006); });
    EXPECT_EQ(CodigosDeEscalares(), (Codigos{"A", "B", "C", "D", "E"}));
    EXPECT_EQ(EscalarDe("D"), 4);
    EXPECT_EQ(EscalarDe("E"), 5);
}

// Positions don't end at 65,535.
TEST_F(Edicion, ProcesarMuyAbajo) {
    PonerDatos(TipoSinPeriodicidad, "");
    QPlainTextEdit &p = *ventana->PantallaEdicion;
    QString texto;
    for (int i = 0; i < 7000; ++i) texto += QStringLiteral("ESC A = 1\n");
    p.setPlainText(texto + QStringLiteral("ESC B = 2\nESC C = 3"));
    Seleccionar(p, 70000, 70009);
    ConGuion({}, [&] { Ordenar(2006); });
    EXPECT_EQ(CodigosDeEscalares(), (Codigos{"B"}));
    EXPECT_EQ(EscalarDe("B"), 2);
}

// The batch runs over the sample as it is now, and MUEST changes it for what follows.
TEST_F(Edicion, ProcesarSobreLaMuestra) {
    PonerDatos(TipoAnual, "1990#1999");
    PonerSerie("A", {1, 2, 3, 4, 5, 6}, 2);
    ventana->PantallaEdicion->setPlainText(QStringLiteral("SER B = A\nMUEST 1993 1994\nSER C = A"));
    ventana->PantallaEdicion->selectAll();
    ConGuion({}, [&] { Ordenar(2006); });
    EXPECT_EQ(CodigosDeSeries(), (Codigos{"A", "B", "C"}));
    // Rows 2 to 7 have a value of A; the limits 1993 and 1994 are the rows 3 and 4.
    const auto presentes = [](const char *codigo) {
        std::vector<int> filas;
        const std::vector<double> v = ValoresDe(codigo, 10);
        for (int i = 0; i < 10; ++i)
            if (!std::isnan(v[static_cast<std::size_t>(i)])) filas.push_back(i);
        return filas;
    };
    EXPECT_EQ(presentes("B"), (std::vector<int>{2, 3, 4, 5, 6, 7}));
    EXPECT_EQ(presentes("C"), (std::vector<int>{3, 4}));
}

// A line runs under the wait cursor, whatever the line before it set; a box is read under the arrow.
TEST_F(Edicion, CursorDeEspera) {
    const auto forma = [] {
        const QCursor *c = QApplication::overrideCursor();
        return c != nullptr ? c->shape() : Qt::BlankCursor; // blank stands for none of its own
    };
    PonerCursor(CursorEspera);
    PonerCursor(CursorEspera);
    EXPECT_EQ(forma(), Qt::WaitCursor);
    ConGuion({{"Aviso",
               [&](QDialog &d) {
                   EXPECT_EQ(forma(), Qt::ArrowCursor);
                   Pulsar(d, "Aceptar");
               }}},
             [] { MostrarMensaje(nullptr, "texto", TituloAviso); });
    EXPECT_EQ(forma(), Qt::WaitCursor);
    PonerCursor(CursorFlecha);
    EXPECT_EQ(forma(), Qt::BlankCursor);
}

// Nothing was copied since the desktop began: there is nothing to paste, in no format.
TEST_F(Edicion, PegarDeUnPortapapelesVacio) {
    QPlainTextEdit &p = *ventana->PantallaEdicion;
    p.setPlainText(QStringLiteral("SER X = 1"));
    QApplication::clipboard()->setMimeData(new QMimeData);
    Ordenar(2050);
    p.paste();
    QTest::keyClick(&p, Qt::Key_Insert, Qt::ShiftModifier);
    EXPECT_EQ(p.toPlainText(), QStringLiteral("SER X = 1"));
    auto *imagen = new QMimeData;
    imagen->setImageData(QImage(2, 2, QImage::Format_RGB32));
    QApplication::clipboard()->setMimeData(imagen);
    Ordenar(2050);
    EXPECT_EQ(p.toPlainText(), QStringLiteral("SER X = 1"));
    QApplication::clipboard()->setText(QStringLiteral("+"));
    Ordenar(2050);
    EXPECT_EQ(p.toPlainText().size(), 10);
}
