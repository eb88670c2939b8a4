// What forms repeat: groups of buttons, menu bars of dialogs, lists that put what is chosen behind a field's text.
#include "apoyo_escritorio.h"

#include "platform/qt/formulario.h"

#include <QMenuBar>
#include <QRadioButton>
#include <QVBoxLayout>

namespace {

// A dialog with a list, a field and an OK that Enter would press.
struct DialogoDePrueba {
    QDialog dialogo;
    QListWidget *lista = new QListWidget;
    QLineEdit *campo = new QLineEdit;
    QPushButton *OK = new QPushButton(QStringLiteral("OK"));

    DialogoDePrueba() {
        auto *l = new QVBoxLayout(&dialogo);
        for (QWidget *w : std::initializer_list<QWidget *>{lista, campo, OK}) l->addWidget(w);
        for (const char *linea : {"X1", "X2", "(-1)  "}) lista->addItem(QString::fromUtf8(linea));
        lista->setCurrentIndex({});
        OK->setDefault(true);
        QObject::connect(OK, &QPushButton::clicked, &dialogo, &QDialog::accept);
        dialogo.show();
        Activar(dialogo);
    }

    QPoint Centro(int linea) const { return lista->visualItemRect(lista->item(linea)).center(); }
    void Clic(int linea) const { QTest::mouseClick(lista->viewport(), Qt::LeftButton, {}, Centro(linea)); }
    // As the user's two clicks arrive.
    void DobleClic(int linea) const {
        Clic(linea);
        QTest::mouseDClick(lista->viewport(), Qt::LeftButton, {}, Centro(linea));
    }
    std::string Texto() const { return campo->text().toStdString(); }
};

constexpr ReglaDeAnadir Regla = {" ", 10, 12};

} // namespace

TEST(Formulario, BotonElegido) {
    QRadioButton a, b, c;
    EXPECT_EQ(BotonElegido({&a, &b, &c}), -1);
    c.setChecked(true);
    EXPECT_EQ(BotonElegido({&a, &b, &c}), 2);
    a.setChecked(true); // without a parent they are no group
    EXPECT_EQ(BotonElegido({&a, &b, &c}), 0);
}

TEST(Formulario, UnClicAnadeUnaVez) {
    DialogoDePrueba d;
    AnadeAlCampo(*d.lista, EligeUnClic, *d.campo, Regla);
    EXPECT_EQ(d.campo->maxLength(), 12);
    d.Clic(0);
    EXPECT_EQ(d.Texto(), " X1");
    d.Clic(0); // the line that stands chosen is chosen again
    EXPECT_EQ(d.Texto(), " X1 X1");
    d.campo->clear();
    d.DobleClic(1);
    EXPECT_EQ(d.Texto(), " X2");
    QTest::mouseClick(d.lista->viewport(), Qt::RightButton, {}, d.Centro(0));
    EXPECT_EQ(d.Texto(), " X2");
}

TEST(Formulario, UnDobleClicAnadeUnaVez) {
    DialogoDePrueba d;
    AnadeAlCampo(*d.lista, EligeDobleClic, *d.campo, Regla);
    d.Clic(0);
    EXPECT_EQ(d.Texto(), "");
    d.DobleClic(1);
    EXPECT_EQ(d.Texto(), " X2");
    d.campo->undo();
    EXPECT_EQ(d.Texto(), "");
}

// The arrows walk the list, Enter and the blank choose; neither closes the dialog.
TEST(Formulario, ElTeclado) {
    for (const Eleccion eleccion : {EligeUnClic, EligeDobleClic}) {
        DialogoDePrueba d;
        AnadeAlCampo(*d.lista, eleccion, *d.campo, Regla);
        d.lista->setFocus();
        for (const Qt::Key tecla : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space})
            QTest::keyClick(d.lista, tecla); // no line yet
        EXPECT_EQ(d.Texto(), "");
        QTest::keyClick(d.lista, Qt::Key_Down);
        QTest::keyClick(d.lista, Qt::Key_Down);
        EXPECT_EQ(d.Texto(), "");
        QTest::keyClick(d.lista, Qt::Key_Return);
        EXPECT_EQ(d.Texto(), " X2");
        QTest::keyClick(d.lista, Qt::Key_Up);
        QTest::keyClick(d.lista, Qt::Key_Space);
        EXPECT_EQ(d.Texto(), " X2 X1");
        QTest::keyClick(d.lista, Qt::Key_Enter);
        EXPECT_EQ(d.Texto(), " X2 X1 X1");
        EXPECT_TRUE(d.dialogo.isVisible());
        EXPECT_TRUE(d.lista->hasFocus());
    }
}

// A button beside the list.
TEST(Formulario, AnadirElegido) {
    DialogoDePrueba d;
    AnadirElegido(*d.lista, *d.campo, Regla);
    EXPECT_EQ(d.Texto(), "");
    d.Clic(2);
    AnadirElegido(*d.lista, *d.campo, Regla);
    EXPECT_EQ(d.Texto(), " (-1)  ");
}

TEST(Formulario, ElCampoLleno) {
    DialogoDePrueba d;
    AnadeAlCampo(*d.lista, EligeUnClic, *d.campo, Regla);
    d.campo->setText(QStringLiteral("123456789"));
    d.Clic(0);
    EXPECT_EQ(d.Texto(), "123456789 X1");
    d.Clic(0);
    EXPECT_EQ(d.Texto(), "123456789 X1");
}

using FormularioConEscritorio = Escritorio;

TEST_F(FormularioConEscritorio, MenuDelDialogo) {
    DialogoDePrueba d;
    int decimales = 5;
    MenuDecimales(d.dialogo, decimales);
    MenuAyuda(d.dialogo, PaginaMuestra);
    auto *barra = Hijo<QMenuBar>(d.dialogo, "menuDialogo");
    ASSERT_NE(barra, nullptr);
    ASSERT_EQ(barra->actions().size(), 2);
    EXPECT_EQ(d.dialogo.layout()->menuBar(), barra);
    EXPECT_EQ(barra->actions()[0]->text().toStdString(), "&Decimales");
    EXPECT_EQ(barra->actions()[0]->objectName().toStdString(), "Decimales");
    EXPECT_EQ(barra->actions()[1]->text().toStdString(), "&Ayuda");
    EXPECT_EQ(barra->actions()[1]->objectName().toStdString(), "Ayuda");
    ConGuion({{"Formato decimal",
               [](QDialog &f) {
                   Pulsar(f, "decimales3");
                   Pulsar(f, "OK");
               }}},
             [&] { barra->actions()[0]->trigger(); });
    EXPECT_EQ(decimales, 3);
    ConGuion({Pulsando("Acotación intervalos muestra", "OK")}, [&] { barra->actions()[1]->trigger(); });
}

TEST_F(FormularioConEscritorio, BotonDeAyuda) {
    DialogoDePrueba d;
    AbreAyuda(d.dialogo, *d.OK, PaginaMuestra);
    QObject::disconnect(d.OK, nullptr, &d.dialogo, SLOT(accept()));
    ConGuion({Pulsando("Acotación intervalos muestra", "OK")}, [&] { d.OK->click(); });
}
