// The program without a mouse: Tab, mnemonics, Enter and Escape in every dialog and menu.
#include "todos_los_dialogos.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>

#include <algorithm>
#include <map>

using Teclado = Escritorio;

namespace {

std::string ConFoco(QDialog &d) {
    QWidget *w = QApplication::focusWidget() != nullptr ? QApplication::focusWidget() : d.focusWidget();
    return w != nullptr ? w->objectName().toStdString() : "";
}

// The letter behind "&", as a capital; 0 for none.
QChar Nemonico(const QString &texto) {
    for (qsizetype i = 0; i + 1 < texto.size(); ++i) {
        if (texto[i] != u'&') continue;
        if (texto[i + 1] != u'&') return texto[i + 1].toUpper();
        ++i;
    }
    return {};
}

// Two entries of the menu "Datos" bear an M: as in any menu, the key goes from one to the other.
constexpr const char *Repetidos[] = {"Datos M"};

void SinRepetir(const std::string &donde, const QList<QAction *> &acciones) {
    std::map<QChar, int> veces;
    for (QAction *a : acciones) {
        if (a->menu() != nullptr)
            SinRepetir(QString(a->text()).remove(u'&').toStdString(), a->menu()->actions());
        const QChar letra = Nemonico(a->text());
        if (!letra.isNull()) ++veces[letra];
    }
    for (const auto &[letra, n] : veces) {
        const std::string caso = donde + " " + QString(letra).toStdString();
        const bool consabido =
            std::find(std::begin(Repetidos), std::end(Repetidos), caso) != std::end(Repetidos);
        EXPECT_EQ(n, consabido ? 2 : 1) << caso;
    }
}

} // namespace

TEST_F(Teclado, TabRecorreCadaDialogo) {
    for (const AperturaDeDialogo &a : TodosLosDialogos()) {
        SCOPED_TRACE(a.titulo);
        EnDialogo(*ventana, a, [&](QDialog &d) {
            Activar(d);
            const std::size_t n = a.orden.size();
            // Twice around, and back again.
            for (std::size_t i = 0; i < 2 * n; ++i) {
                EXPECT_EQ(ConFoco(d), a.orden[i % n]) << i;
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            }
            for (std::size_t i = n; i > 0; --i) {
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
                EXPECT_EQ(ConFoco(d), a.orden[i - 1]) << i;
            }
        });
    }
}

TEST_F(Teclado, EscapeCancelaCadaDialogo) {
    for (const AperturaDeDialogo &a : TodosLosDialogos()) {
        SCOPED_TRACE(a.titulo);
        int resultado = -1;
        EnDialogo(*ventana, a, [&](QDialog &d) {
            QObject::connect(&d, &QDialog::finished, [&](int r) { resultado = r; });
            Activar(d);
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
            EXPECT_FALSE(d.isVisible());
        });
        EXPECT_TRUE(std::string(a.titulo) == "Aviso" || resultado == QDialog::Rejected);
    }
}

// From wherever the keyboard is at the beginning.
TEST_F(Teclado, EnterEsElBotonOK) {
    for (const AperturaDeDialogo &a : TodosLosDialogos()) {
        if (!a.aceptaConEnter || std::string(a.titulo).starts_with("Datos "))
            continue; // these would close all above them
        SCOPED_TRACE(a.titulo);
        EnDialogo(*ventana, a, [&](QDialog &d) {
            Activar(d);
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
            EXPECT_FALSE(d.isVisible());
        });
    }
}

// On Cancela, Enter must not accept: it presses the button that has the keyboard.
TEST_F(Teclado, EnterEsElBotonQueTieneElTeclado) {
    for (const AperturaDeDialogo &a : TodosLosDialogos()) {
        SCOPED_TRACE(a.titulo);
        int resultado = -1;
        EnDialogo(*ventana, a, [&](QDialog &d) {
            for (auto *b : d.findChildren<QPushButton *>())
                EXPECT_TRUE(b->autoDefault()) << b->objectName().toStdString();
            auto *cancela = d.findChild<QPushButton *>(QStringLiteral("Cancela"));
            if (cancela == nullptr) return;
            QObject::connect(&d, &QDialog::finished, [&](int r) { resultado = r; });
            Activar(d);
            cancela->setFocus();
            QTest::keyClick(cancela, Qt::Key_Return);
            EXPECT_FALSE(d.isVisible());
            EXPECT_EQ(resultado, QDialog::Rejected);
        });
    }
}

TEST_F(Teclado, FlechasEntreLosTipos) {
    ConGuion({{"Tipos de datos",
               [](QDialog &d) {
                   Activar(d);
                   QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
                   QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
                   EXPECT_TRUE(Hijo<QAbstractButton>(d, "tipo0")->isChecked());
                   for (const char *tipo : {"tipo1", "tipo2", "tipo3", "tipo4"}) {
                       QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
                       EXPECT_EQ(ConFoco(d), tipo);
                       EXPECT_TRUE(Hijo<QAbstractButton>(d, tipo)->isChecked());
                   }
                   Pulsar(d, "Cancela");
               }}},
             [&] { Ordenar(2020); });
}

// A data type from beginning to end by keys alone.
TEST_F(Teclado, TipoDeDatosSinRaton) {
    ConGuion({{"Tipos de datos",
               [](QDialog &d) {
                   Activar(d);
                   QTest::keyClicks(QApplication::focusWidget(),
                                    QStringLiteral("TECLAS")); // the old name is selected
                   for (const Qt::Key tecla : {Qt::Key_Tab, Qt::Key_Space, Qt::Key_Down})
                       QTest::keyClick(QApplication::focusWidget(), tecla);
                   QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
               }},
              {"Datos anuales",
               [](QDialog &d) {
                   Activar(d);
                   QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("1990"));
                   QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
                   QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("1995"));
                   QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
               }}},
             [&] { Ordenar(2020); });
    EXPECT_EQ(ventana->windowTitle(), QStringLiteral("Tabira: TECLAS"));
}

TEST_F(Teclado, NemonicosDeLosMenus) {
    SinRepetir("", ventana->menuBar()->actions());
}

TEST_F(Teclado, NemonicosDeLosDialogos) {
    for (const AperturaDeDialogo &a : TodosLosDialogos()) {
        SCOPED_TRACE(a.titulo);
        EnDialogo(*ventana, a, [&](QDialog &d) {
            std::map<QChar, int> veces;
            for (auto *b : d.findChildren<QAbstractButton *>()) {
                if (!b->isVisible()) continue;
                ++veces[Nemonico(b->text())];
                // The arrows go from one choice to the next, but from afar only the letter leads there.
                const bool eleccion = qobject_cast<QPushButton *>(b) == nullptr && !b->text().isEmpty();
                EXPECT_FALSE(eleccion && Nemonico(b->text()).isNull()) << b->objectName().toStdString();
            }
            if (auto *menu = d.findChild<QMenuBar *>(); menu != nullptr)
                for (QAction *entrada : menu->actions()) ++veces[Nemonico(entrada->text())];
            for (auto *l : d.findChildren<QLabel *>())
                if (l->buddy() != nullptr) ++veces[Nemonico(l->text())];
            veces.erase(QChar());
            for (const auto &[letra, n] : veces) EXPECT_EQ(n, 1) << QString(letra).toStdString();
        });
    }
}

// The menus open and run by keys.
TEST_F(Teclado, UnaEntradaPorSuNemonico) {
    ventana->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(ventana.get()));
    auto *datos = ventana->findChild<QMenu *>(QStringLiteral("menuDatos"));
    ASSERT_NE(datos, nullptr);
    ConGuion({Pulsando("Relación de series", "OK")}, [&] {
        datos->popup({10, 10});
        QTest::keyClick(datos, Qt::Key_R);
    });
}
