// Nothing clipped and nothing without a name: every dialog with the user's letters, and with letters twice as large.
#include "todos_los_dialogos.h"

#include "store/archivo.h"

#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSpinBox>

using Ajuste = Escritorio;

namespace {

bool ConTexto(const QWidget *w) {
    return qobject_cast<const QLabel *>(w) != nullptr ||
           qobject_cast<const QAbstractButton *>(w) != nullptr ||
           qobject_cast<const QLineEdit *>(w) != nullptr || qobject_cast<const QGroupBox *>(w) != nullptr;
}

// The room that a control has is the room that its text asks for, inside its parent.
void CabeEnSuSitio(const QWidget *w) {
    SCOPED_TRACE(w->objectName().toStdString());
    // A field and a box around other controls like more room than they need.
    const bool holgado =
        qobject_cast<const QLineEdit *>(w) != nullptr || qobject_cast<const QGroupBox *>(w) != nullptr;
    QSize pide = holgado ? w->minimumSizeHint() : w->sizeHint();
    if (const auto *l = qobject_cast<const QLabel *>(w); l != nullptr && l->wordWrap()) {
        pide = {l->minimumSizeHint().width(), l->heightForWidth(l->width())};
    }
    EXPECT_GE(w->width(), pide.width());
    EXPECT_GE(w->height(), pide.height());
    EXPECT_TRUE(w->parentWidget() == nullptr || w->parentWidget()->rect().contains(w->geometry()));
}

void TodoCabe(QDialog &d) {
    for (const QWidget *w : d.findChildren<QWidget *>())
        if (w->isVisible() && ConTexto(w) && !w->objectName().startsWith(QStringLiteral("qt_")))
            CabeEnSuSitio(w);
}

} // namespace

// With a folder in TABIRA_CAPTURAS it leaves a picture of each dialog there.
TEST_F(Ajuste, ConLasLetrasDelUsuario) {
    const QString capturas = qEnvironmentVariable("TABIRA_CAPTURAS");
    for (const AperturaDeDialogo &a : TodosLosDialogos()) {
        SCOPED_TRACE(a.titulo);
        EnDialogo(*ventana, a, [&](QDialog &d) {
            TodoCabe(d);
            // A laptop's screen at twice its density, without the bar of the desktop.
            EXPECT_LE(d.width(), 960);
            EXPECT_LE(d.height(), 500);
            if (!capturas.isEmpty()) {
                EXPECT_TRUE(d.grab().save(capturas + u'/' + d.objectName() + QStringLiteral(".png")));
            }
        });
    }
}

TEST_F(Ajuste, ConLetrasDelDoble) {
    const QFont antes = QApplication::font();
    QFont doble = antes;
    doble.setPointSizeF(antes.pointSizeF() * 2);
    QApplication::setFont(doble);
    for (const AperturaDeDialogo &a : TodosLosDialogos()) {
        SCOPED_TRACE(a.titulo);
        EnDialogo(*ventana, a, TodoCabe);
    }
    QApplication::setFont(antes);
}

// A long text in a label makes the dialog wider, or breaks; it isn't cut.
TEST_F(Ajuste, RegresionDeMuchosRegresores) {
    PonerDatos(TipoAnual, "1990#1999");
    std::string ecuacion = "VSR NO\nMC Y 1";
    std::vector<double> y;
    for (int i = 0; i < 10; ++i) y.push_back(i * i % 7);
    PonerSerie("Y", y);
    for (int r = 1; r <= 6; ++r) {
        const std::string codigo = "REGRESO" + std::to_string(r);
        std::vector<double> x;
        for (int i = 0; i < 10; ++i) x.push_back((i * r + i * i * (r + 1)) % 11);
        PonerSerie(codigo, x);
        ecuacion += " " + codigo;
    }
    ventana->PantallaEdicion->setPlainText(QString::fromStdString(ecuacion));
    ventana->PantallaEdicion->selectAll();
    ConGuion({}, [&] { Ordenar(2006); });
    ConGuion({{"Última regresión",
               [](QDialog &d) {
                   EXPECT_EQ(TextoDe(d, "linea2"),
                             "Y  1  REGRESO1  REGRESO2  REGRESO3  REGRESO4  REGRESO5  REGRESO6");
                   TodoCabe(d);
                   Pulsar(d, "OK");
               }}},
             [&] { Ordenar(2086); });
}

TEST_F(Ajuste, CadaControlConSuNombre) {
    for (const AperturaDeDialogo &a : TodosLosDialogos()) {
        SCOPED_TRACE(a.titulo);
        EnDialogo(*ventana, a, [&](QDialog &d) {
            EXPECT_FALSE(d.objectName().isEmpty());
            for (const QWidget *w : d.findChildren<QWidget *>()) {
                if (!ConTexto(w) && qobject_cast<const QListWidget *>(w) == nullptr) continue;
                EXPECT_FALSE(w->objectName().isEmpty()) << w->metaObject()->className();
            }
            for (const QWidget *w : d.findChildren<QWidget *>()) {
                // What has no text of its own tells a reader of the screen what it is.
                if (qobject_cast<const QLineEdit *>(w) == nullptr &&
                    qobject_cast<const QListWidget *>(w) == nullptr)
                    continue;
                EXPECT_FALSE(w->accessibleName().isEmpty()) << w->objectName().toStdString();
            }
        });
    }
}
