// The reader of the manual: F1 on a word, the list, the search.
#include "apoyo_escritorio.h"

#include "platform/texto.h"
#include "shell/ayuda_palabras.h"

#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>

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
    ASSERT_EQ(lista->count(), static_cast<int>(paginas.size()));
    for (int i = 0; i < lista->count(); ++i) {
        QTest::keyClick(lista, i == 0 ? Qt::Key_Home : Qt::Key_Down);
        EXPECT_EQ(PaginaDelLector(*d), TextoDeLaPagina(paginas[static_cast<std::size_t>(i)]->id)) << i;
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
        EXPECT_TRUE(texto->toPlainText().contains(QStringLiteral("logaritmo"), Qt::CaseInsensitive)) << i;
        ASSERT_FALSE(texto->extraSelections().isEmpty()) << i;
        for (const QTextEdit::ExtraSelection &marca : texto->extraSelections())
            EXPECT_EQ(marca.cursor.selectedText().toLower(), QStringLiteral("logaritmo"));
    }
    // The page that was read stays, where it mentions what is searched for.
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
