// The reader of the manual: F1 on a word, the list, the search.
#include "apoyo_escritorio.h"

#include "platform/datos_programa.h"
#include "platform/qt/texto_qt.h"
#include "platform/texto.h"
#include "shell/ayuda_palabras.h"
#include "shell/tutorial.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTextBrowser>

namespace {

class Lector : public Escritorio {
protected:
    // F1 with the caret at this place of the statements.
    QDialog *Pedir(const char *texto, int posicion) {
        QPlainTextEdit *p = ventana->PantallaEdicion;
        p->setPlainText(QString::fromUtf8(texto));
        QTextCursor c = p->textCursor();
        c.setPosition(posicion);
        p->setTextCursor(c);
        ventana->activateWindow();
        p->setFocus();
        EXPECT_TRUE(QTest::qWaitFor([&] { return p->hasFocus(); }, 2000));
        QTest::keyClick(p, Qt::Key_F1);
        return ventana->findChild<QDialog *>(QStringLiteral("lectorAyuda"));
    }
    void SetUp() override {
        Escritorio::SetUp();
        ventana->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(ventana.get()));
    }
};

std::string PaginaDelLector(QDialog &d) {
    return Hijo<QPlainTextEdit>(d, "texto")->toPlainText().toStdString();
}

std::string TextoDeLaPagina(int id) {
    return Utf8De1252(TextoDePagina(*BuscarPagina(id)));
}

} // namespace

TEST_F(Lector, F1SobreUnaPalabra) {
    QDialog *d = Pedir("SER X = LN(Y)\nCGQ (X) 1 8 13 20", 9);
    ASSERT_NE(d, nullptr);
    EXPECT_TRUE(d->isVisible());
    EXPECT_FALSE(d->isModal()) << "the statements stay open beside it";
    EXPECT_EQ(PaginaDelLector(*d), TextoDeLaPagina(1130));
    EXPECT_EQ(Hijo<QListWidget>(*d, "paginas")->currentItem()->text(),
              QStringLiteral("Generación de series (2 de 7)"));
    EXPECT_EQ(ventana->PantallaEdicion->toPlainText(), QStringLiteral("SER X = LN(Y)\nCGQ (X) 1 8 13 20"));
    // The same window again, at another page.
    EXPECT_EQ(Pedir("SER X = LN(Y)\nCGQ (X) 1 8 13 20", 15), d);
    EXPECT_EQ(PaginaDelLector(*d), TextoDeLaPagina(1133));
    EXPECT_EQ(ventana->findChildren<QDialog *>(QStringLiteral("lectorAyuda")).size(), 1);
}

TEST_F(Lector, SeCierraYVuelve) {
    QDialog *d = Pedir("", 0);
    ASSERT_NE(d, nullptr);
    EXPECT_EQ(PaginaDelLector(*d), TextoDeLaPagina(1194));
    QTest::keyClick(d, Qt::Key_Escape);
    EXPECT_FALSE(d->isVisible());
    EXPECT_EQ(Pedir("MC", 1), d);
    EXPECT_TRUE(d->isVisible());
    EXPECT_EQ(PaginaDelLector(*d), TextoDeLaPagina(1191));
}

TEST_F(Lector, LaLista) {
    QDialog *d = Pedir("", 0);
    ASSERT_NE(d, nullptr);
    const std::vector<const PaginaManual *> paginas = PaginasDelLector();
    auto *lista = Hijo<QListWidget>(*d, "paginas");
    const std::vector<CapituloTutorial> capitulos = LeerTutorial(CarpetaDeDatos(DatosDelPrograma::Tutorial));
    ASSERT_EQ(lista->count(), static_cast<int>(paginas.size() + capitulos.size()));
    for (int i = 0; i < static_cast<int>(paginas.size()); ++i) {
        QTest::keyClick(lista, i == 0 ? Qt::Key_Home : Qt::Key_Down);
        EXPECT_EQ(PaginaDelLector(*d), TextoDeLaPagina(paginas[static_cast<std::size_t>(i)]->id)) << i;
    }
    // The chapters of the tutorial stand behind them.
    for (std::size_t i = 0; i < capitulos.size(); ++i) {
        QTest::keyClick(lista, Qt::Key_Down);
        EXPECT_EQ(lista->currentItem()->text().toStdString(),
                  "Tutorial " + std::to_string(i + 1) + ": " + capitulos[i].titulo);
        auto *tutorial = Hijo<QTextBrowser>(*d, "tutorial");
        EXPECT_TRUE(tutorial->isVisible());
        EXPECT_EQ(tutorial->document()->begin().text().toStdString(), capitulos[i].titulo);
    }
}

TEST_F(Lector, Buscar) {
    QDialog *d = Pedir("", 0);
    ASSERT_NE(d, nullptr);
    auto *lista = Hijo<QListWidget>(*d, "paginas");
    auto *texto = Hijo<QPlainTextEdit>(*d, "texto");
    const int todas = lista->count();
    Escribir(*d, "buscar", "LOGARITMO");
    EXPECT_GT(lista->count(), 1);
    EXPECT_LT(lista->count(), todas);
    for (int i = 0; i < lista->count(); ++i) {
        lista->setCurrentRow(i);
        if (!texto->isVisible()) continue; // a chapter
        EXPECT_TRUE(texto->toPlainText().contains(QStringLiteral("logaritmo"), Qt::CaseInsensitive)) << i;
        ASSERT_FALSE(texto->extraSelections().isEmpty()) << i;
        for (const QTextEdit::ExtraSelection &marca : texto->extraSelections())
            EXPECT_EQ(marca.cursor.selectedText().toLower(), QStringLiteral("logaritmo"));
    }
    // The page that was read stays, where it mentions what is searched for.
    lista->setCurrentRow(1);
    const QString leida = lista->currentItem()->text();
    Escribir(*d, "buscar", "logar");
    EXPECT_EQ(lista->currentItem()->text(), leida);
    Escribir(*d, "buscar", "no hay tal cosa");
    EXPECT_EQ(lista->count(), 0);
    EXPECT_TRUE(texto->extraSelections().isEmpty());
    Hijo<QLineEdit>(*d, "buscar")->clear();
    EXPECT_EQ(lista->count(), todas);
    EXPECT_TRUE(texto->extraSelections().isEmpty());
    // F1 leaves the search behind.
    Escribir(*d, "buscar", "goldfeld");
    EXPECT_EQ(Pedir("OBS", 1), d);
    EXPECT_EQ(lista->count(), todas);
    EXPECT_EQ(PaginaDelLector(*d), TextoDeLaPagina(1131));
}

// ----- The tutorial

namespace {

QTextBlock BloqueQueEmpieza(const QTextBrowser &b, const char *texto) {
    for (QTextBlock bloque = b.document()->begin(); bloque.isValid(); bloque = bloque.next())
        if (bloque.text().startsWith(QString::fromUtf8(texto))) return bloque;
    ADD_FAILURE() << texto;
    return {};
}

int EnlaceEn(const QTextBrowser &b, const char *texto) {
    const int lugar = static_cast<int>(b.document()->toPlainText().indexOf(QString::fromUtf8(texto)));
    EXPECT_GE(lugar, 0);
    return lugar + 1;
}

} // namespace

TEST_F(Lector, ElBotonDelTutorial) {
    QDialog *d = Pedir("", 0);
    ASSERT_NE(d, nullptr);
    auto *tutorial = Hijo<QTextBrowser>(*d, "tutorial");
    auto *lista = Hijo<QListWidget>(*d, "paginas");
    EXPECT_FALSE(tutorial->isVisible());
    Activar(*d);
    Escribir(*d, "buscar", "goldfeld");
    QTest::keyClick(d, Qt::Key_T, Qt::AltModifier);
    // A button that was clicked by its letter looks pressed for a moment.
    EXPECT_TRUE(QTest::qWaitFor([&] { return tutorial->isVisible(); }, 2000));
    EXPECT_EQ(lista->currentItem()->text(), QStringLiteral("Tutorial 1: Los datos"));
    EXPECT_TRUE(lista->viewport()->rect().intersects(lista->visualItemRect(lista->currentItem())));
    EXPECT_TRUE(tutorial->toPlainText().startsWith(QStringLiteral("Los datos\n")));
    // F1 at a word goes to the manual again.
    EXPECT_EQ(Pedir("OBS", 1), d);
    EXPECT_FALSE(tutorial->isVisible());
    EXPECT_EQ(PaginaDelLector(*d), TextoDeLaPagina(1131));
}

// Links between chapters are followed within the reader, by mouse and by keys; nothing else is.
TEST_F(Lector, LosEnlacesDelTutorial) {
    QDialog *d = Pedir("", 0);
    ASSERT_NE(d, nullptr);
    Pulsar(*d, "irAlTutorial");
    auto *tutorial = Hijo<QTextBrowser>(*d, "tutorial");
    auto *lista = Hijo<QListWidget>(*d, "paginas");
    QTextCursor c(tutorial->document());
    c.setPosition(EnlaceEn(*tutorial, "capítulo 3"));
    tutorial->setTextCursor(c);
    tutorial->ensureCursorVisible();
    QTest::mouseClick(tutorial->viewport(), Qt::LeftButton, {}, tutorial->cursorRect().center());
    EXPECT_EQ(lista->currentItem()->text(), QStringLiteral("Tutorial 3: La muestra"));
    EXPECT_EQ(tutorial->document()->begin().text(), QStringLiteral("La muestra"));
    EXPECT_EQ(tutorial->verticalScrollBar()->value(), 0);

    lista->setCurrentRow(lista->currentRow() + 4); // chapter 7, whose link has accents
    tutorial->setFocus();
    QTest::keyClick(tutorial, Qt::Key_Tab);
    QTest::keyClick(tutorial, Qt::Key_Return);
    EXPECT_EQ(lista->currentItem()->text(), QStringLiteral("Tutorial 9: Estimación ponderada y robusta"));
    for (const char *fuera : {"https://example.org/", "file:///etc/passwd", "02_series.md", "#nada"})
        emit tutorial->anchorClicked(QUrl(QString::fromUtf8(fuera)));
    EXPECT_EQ(lista->currentItem()->text(), QStringLiteral("Tutorial 9: Estimación ponderada y robusta"));
    EXPECT_EQ(tutorial->document()->begin().text(), QStringLiteral("Estimación ponderada y robusta"));
}

TEST_F(Lector, LasImagenesDelTutorial) {
    QDialog *d = Pedir("", 0);
    ASSERT_NE(d, nullptr);
    Pulsar(*d, "irAlTutorial");
    auto *tutorial = Hijo<QTextBrowser>(*d, "tutorial");
    int imagenes = 0;
    for (auto *lista = Hijo<QListWidget>(*d, "paginas"); lista->currentRow() + 1 < lista->count();
         lista->setCurrentRow(lista->currentRow() + 1))
        for (QTextBlock b = tutorial->document()->begin(); b.isValid(); b = b.next())
            for (auto i = b.begin(); !i.atEnd(); ++i) {
                const QTextCharFormat f = i.fragment().charFormat();
                if (!f.isImageFormat()) continue;
                const auto imagen =
                    tutorial->document()
                        ->resource(QTextDocument::ImageResource, QUrl(f.toImageFormat().name()))
                        .value<QImage>();
                EXPECT_FALSE(imagen.isNull()) << f.toImageFormat().name().toStdString();
                EXPECT_EQ(imagen.devicePixelRatio(), d->devicePixelRatioF());
                // As wide as the page, but never too small to be looked at.
                const double pagina =
                    tutorial->viewport()->width() - 2 * tutorial->document()->documentMargin();
                EXPECT_NEAR(imagen.deviceIndependentSize().width(), std::max(pagina, 400.0), 1);
                ++imagenes;
            }
    EXPECT_GE(imagenes, 10);
}

// The search covers the chapters, whatever the case and the accents, and marks what is found.
TEST_F(Lector, BuscarEnElTutorial) {
    QDialog *d = Pedir("", 0);
    ASSERT_NE(d, nullptr);
    auto *lista = Hijo<QListWidget>(*d, "paginas");
    auto *tutorial = Hijo<QTextBrowser>(*d, "tutorial");
    Escribir(*d, "buscar", "asuan");
    ASSERT_GE(lista->count(), 2);
    EXPECT_EQ(lista->item(0)->text(), QStringLiteral("Tutorial 1: Los datos")) << "no page of the manual";
    for (int i = 0; i < lista->count(); ++i) {
        lista->setCurrentRow(i);
        EXPECT_TRUE(tutorial->isVisible());
        ASSERT_FALSE(tutorial->extraSelections().isEmpty()) << i;
        for (const QTextEdit::ExtraSelection &marca : tutorial->extraSelections())
            EXPECT_EQ(marca.cursor.selectedText(), QStringLiteral("Asuán")) << i;
        EXPECT_TRUE(tutorial->viewport()->rect().intersects(tutorial->cursorRect())) << i;
    }
    // What is said in tables and frames is found too; the marks of the format aren't.
    Escribir(*d, "buscar", "0.91000|");
    EXPECT_EQ(lista->count(), 0);
    Escribir(*d, "buscar", "{.tabira}");
    EXPECT_EQ(lista->count(), 0);
    Escribir(*d, "buscar", "-0.316081871345029E-14");
    ASSERT_EQ(lista->count(), 1);
    EXPECT_EQ(tutorial->extraSelections().constFirst().cursor.selectedText(),
              QStringLiteral("-0.316081871345029E-14"));
}

// On dark and on light paper all is read; the three frames differ by more than their colours.
TEST_F(Lector, ElTutorialSeLee) {
    const QPalette antes = QApplication::palette();
    QDialog *d = Pedir("", 0);
    ASSERT_NE(d, nullptr);
    Pulsar(*d, "irAlTutorial");
    auto *tutorial = Hijo<QTextBrowser>(*d, "tutorial");
    for (const bool oscura : {true, false}) {
        SCOPED_TRACE(oscura);
        QPalette paleta(oscura ? QColor(0x30, 0x30, 0x30) : QColor(0xF0, 0xF0, 0xF0));
        paleta.setColor(QPalette::Base, oscura ? QColor(0x1E, 0x1E, 0x1E) : Qt::white);
        paleta.setColor(QPalette::Text, oscura ? QColor(0xE6, 0xE6, 0xE6) : Qt::black);
        QApplication::setPalette(paleta);
        QTest::qWait(1);
        const QColor letra = tutorial->palette().color(QPalette::Text);
        std::vector<QTextBlock> recuadros;
        for (const char *linea : {"Datos > Muestra actual", "CAL CONSUMO[1920]", "Período final: 1941"})
            recuadros.push_back(BloqueQueEmpieza(*tutorial, linea));
        for (const QTextBlock &b : recuadros) {
            const QColor papel = b.blockFormat().background().color();
            EXPECT_GE(Contraste(letra, papel), 7) << b.text().toStdString();
            EXPECT_NE(papel, tutorial->palette().color(QPalette::Base));
            const QTextCharFormat f = b.begin().fragment().charFormat();
            EXPECT_TRUE(QFontInfo(f.font()).fixedPitch());
            EXPECT_EQ(f.fontItalic(), b == recuadros[0]);
            EXPECT_EQ(f.fontWeight() == QFont::Bold, b == recuadros[1]);
        }
        QTextCursor c(tutorial->document());
        c.setPosition(EnlaceEn(*tutorial, "capítulo 3"));
        EXPECT_GE(Contraste(c.charFormat().foreground().color(), tutorial->palette().color(QPalette::Base)),
                  4.5);
    }
    QApplication::setPalette(antes);
}

// The page for the browser, where the package has one; a program without its tutorial says so.
TEST_F(Lector, TutorialInstaladoONo) {
    const QTemporaryDir carpeta;
    const QDir raiz(carpeta.path());
    ASSERT_TRUE(raiz.mkpath(QStringLiteral("bin")));
    PonerCarpetaDelPrograma(raiz.filePath(QStringLiteral("bin")).toStdString());
    QDialog *d = Pedir("", 0);
    ASSERT_NE(d, nullptr);
    auto *lista = Hijo<QListWidget>(*d, "paginas");
    EXPECT_EQ(lista->count(), static_cast<int>(PaginasDelLector().size()));
    EXPECT_EQ(d->findChild<QPushButton *>(QStringLiteral("enElNavegador")), nullptr);
    Pulsar(*d, "irAlTutorial");
    EXPECT_EQ(PaginaDelLector(*d), "No se encuentra el tutorial del programa");
    EXPECT_EQ(lista->currentItem(), nullptr);
    QTest::keyClick(lista, Qt::Key_Down);
    EXPECT_EQ(PaginaDelLector(*d), TextoDeLaPagina(1194));
    delete d;

    const QString tutorial = raiz.filePath(QStringLiteral("share/tabira/tutorial"));
    ASSERT_TRUE(raiz.mkpath(tutorial));
    for (const auto &[nombre, texto] :
         {std::pair{"01_uno.md", "# Uno\n\nTexto.\n"}, {"tutorial.html", "<p>"}}) {
        QFile f(QDir(tutorial).filePath(QString::fromUtf8(nombre)));
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(texto);
    }
    d = Pedir("", 0);
    ASSERT_NE(d, nullptr);
    EXPECT_EQ(Hijo<QListWidget>(*d, "paginas")->count(), static_cast<int>(PaginasDelLector().size() + 1));
    QTextBrowser navegador;
    QDesktopServices::setUrlHandler(QStringLiteral("file"), &navegador, "setSource");
    Pulsar(*d, "enElNavegador");
    QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
    EXPECT_EQ(navegador.source(),
              QUrl::fromLocalFile(QDir(tutorial).filePath(QStringLiteral("tutorial.html"))));
    Pulsar(*d, "irAlTutorial");
    EXPECT_EQ(Hijo<QTextBrowser>(*d, "tutorial")->toPlainText(), QStringLiteral("Uno\nTexto."));
}
