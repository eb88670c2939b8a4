// The submenu of the practice data in the menu of the statements.
#include "apoyo_escritorio.h"

#include "data/copia_seguridad.h"
#include "data/trabajo.h"
#include "shell/ejemplos.h"
#include "shell/ventanas/barra_estado_qt.h"
#include "store/archivo.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QFile>
#include <QLabel>
#include <QMenu>
#include <QTimer>

namespace {

class MenuEjemplos : public Escritorio {
protected:
    void SetUp() override {
        Escritorio::SetUp();
        EmpezarCopias("");
        ventana->showMaximized();
        ASSERT_TRUE(QTest::qWaitForWindowActive(ventana.get()));
        QTest::qWait(1); // the first painting
        ventana->PantallaEdicion->setFocus();
    }
    // The key of the context menu, then keys in the menu at hand.
    void Teclear(const std::vector<Qt::Key> &teclas) {
        QPlainTextEdit &texto = *ventana->PantallaEdicion;
        QTimer::singleShot(20, &texto, [&] {
            for (const Qt::Key t : teclas) {
                auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
                ASSERT_NE(menu, nullptr);
                QTest::keyClick(menu, t);
            }
        });
        QContextMenuEvent suceso(QContextMenuEvent::Keyboard, {20, 20}, texto.mapToGlobal(QPoint(20, 20)));
        QApplication::sendEvent(&texto, &suceso);
    }
};

} // namespace

TEST_F(MenuEjemplos, PorTeclas) {
    ConGuion({}, [&] { Teclear({Qt::Key_E, Qt::Key_K}); });
    EXPECT_EQ(CodigosDeSeries().size(), 9u);
    EXPECT_EQ(ventana->windowTitle(), QStringLiteral("Tabira: KLEIN"));
    EXPECT_EQ(Hijo<QLabel>(*ventana->barra, "mensaje")->text(),
              QStringLiteral("Ejemplo KLEIN: 9 series, 22 observaciones"));
    EXPECT_TRUE(Hijo<QLabel>(*ventana->barra, "estado")
                    ->accessibleName()
                    .startsWith(QStringLiteral("Anual 1920-1941 | Muestra 1920-1941 (22 de 22)")));
    // Its statements, which the undo takes back, and their regression.
    ventana->PantallaEdicion->setPlainText(QStringLiteral("antes"));
    ConGuion({}, [&] { Teclear({Qt::Key_E, Qt::Key_S}); });
    EXPECT_TRUE(ventana->PantallaEdicion->toPlainText().endsWith(
        QStringLiteral("\nMC CONSUMO 1 BENEF BENEF(-1) SALARIOS")));
    // The keyboard comes back from the menu, as a window manager brings it.
    ventana->activateWindow();
    ASSERT_TRUE(QTest::qWaitFor([&] { return ventana->PantallaEdicion->hasFocus(); }, 5000));
    ConGuion({Pulsando("Aviso", "No")}, [&] { QTest::keyClick(ventana->PantallaEdicion, Qt::Key_F5); });
    EXPECT_NEAR(ValoresDe("SALARIOS", 1)[0], 31, 1e-12); // 28.8 + 2.2
    ventana->PantallaEdicion->undo();
    EXPECT_EQ(ventana->PantallaEdicion->toPlainText(), QStringLiteral("antes"));
    // There is work now that no file holds.
    ConGuion({Caja("Aviso", "¿Desea guardar su trabajo?", "Cancelar", QMessageBox::Question)}, [&] {
        Teclear({Qt::Key_E, Qt::Key_N});
    });
    EXPECT_EQ(ventana->windowTitle(), QStringLiteral("Tabira: KLEIN"));
    ConGuion({Pulsando("Aviso", "No")}, [&] { Teclear({Qt::Key_E, Qt::Key_N}); });
    EXPECT_EQ(CodigosDeSeries(), std::vector<std::string>{"CAUDAL"});
    EXPECT_EQ(Hijo<QLabel>(*ventana->barra, "mensaje")->text(),
              QStringLiteral("Ejemplo NILO: 1 serie, 100 observaciones"));
}

// A save asks for a name; the example's file stays as it is.
TEST_F(MenuEjemplos, SonCopias) {
    QFile original(QStringLiteral(TABIRA_DATOS "/klein.csv"));
    ASSERT_TRUE(original.open(QIODevice::ReadOnly));
    const QByteArray antes = original.readAll();
    ConGuion({}, [&] { Teclear({Qt::Key_E, Qt::Key_K}); });
    ConGuion({ConEscape("Guardar archivo de trabajo")}, [&] { Ordenar(2056); });
    original.seek(0);
    EXPECT_EQ(original.readAll(), antes);
    EXPECT_TRUE(Trabajo.ruta.empty());
}

// Each entry has a letter of its own, and opens its row.
TEST_F(MenuEjemplos, CadaEntradaTieneSuLetra) {
    QTimer::singleShot(20, ventana.get(), [&] {
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        const auto *ejemplos = menu->findChild<QMenu *>(QStringLiteral("menuEjemplos"));
        ASSERT_NE(ejemplos, nullptr);
        QStringList letras;
        for (const QAction *a : ejemplos->actions()) {
            if (a->isSeparator()) continue;
            const qsizetype en = a->text().indexOf(u'&');
            ASSERT_GE(en, 0) << a->text().toStdString();
            letras += a->text().mid(en + 1, 1).toUpper();
        }
        EXPECT_EQ(letras.size(), NumEjemplos);
        EXPECT_EQ(letras.removeDuplicates(), 0);
        menu->close();
    });
    QContextMenuEvent suceso(QContextMenuEvent::Keyboard, {20, 20},
                             ventana->PantallaEdicion->mapToGlobal(QPoint(20, 20)));
    QApplication::sendEvent(ventana->PantallaEdicion, &suceso);
}
