// A whole session by keys alone: data type, a table of series, a matrix, a save, the end, and the next start.
#include "apoyo_escritorio.h"

#include "data/rejilla.h"
#include "data/trabajo.h"
#include "data/ventanas/ventana_editor.h"
#include "platform/campos_texto.h"
#include "store/archivo.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QMenu>
#include <QTemporaryDir>

#include <bit>
#include <cstdint>

namespace {

// Every key goes to whatever has the keyboard.
void Tecla(Qt::Key tecla, Qt::KeyboardModifiers con = {}) {
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    QTest::keyClick(QApplication::focusWidget(), tecla, con);
}
void Teclear(const QString &texto) {
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    QTest::keyClicks(QApplication::focusWidget(), texto);
}
void Teclear(const char *texto) {
    Teclear(QString::fromUtf8(texto));
}

// In a dialog: a text in the control that has the keyboard, and Enter.
Paso Contestando(const char *titulo, const QString &texto) {
    return {titulo, [=](QDialog &d) {
                Activar(d);
                Teclear(texto);
                Tecla(Qt::Key_Return);
            }};
}

class Sesion : public Escritorio {
protected:
    void SetUp() override {
        Escritorio::SetUp();
        Trabajo = {};
        ventana->showMaximized();
        ASSERT_TRUE(QTest::qWaitForWindowActive(ventana.get()));
        QTest::qWait(1); // the first painting
        ventana->PantallaEdicion->setFocus();
    }
    // From the statements a menu by its letter with Alt, then the keys that choose in it.
    void Menu(Qt::Key letra, const std::vector<Qt::Key> &teclas, const Guion &guion = {}) {
        EsperarSentencias();
        ConGuion(guion, [&] {
            Tecla(letra, Qt::AltModifier);
            for (const Qt::Key t : teclas) {
                auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
                ASSERT_NE(menu, nullptr);
                QTest::keyClick(menu, t);
            }
        });
    }
    void EsperarEditor() {
        ASSERT_TRUE(
            QTest::qWaitFor([&] { return QApplication::activeWindow() == ventana->EditorDatos; }, 5000));
    }
    // The keyboard comes back to the statements, as a window manager brings it.
    void EsperarSentencias() {
        ventana->activateWindow();
        ASSERT_TRUE(QTest::qWaitFor([&] { return ventana->PantallaEdicion->hasFocus(); }, 5000));
    }
    void EditarSeries() {
        Menu(Qt::Key_D, {Qt::Key_E});
        EsperarEditor();
    }
    // Two entries of the menu have this letter: the key goes from one to the other.
    void EditarMatrices() {
        Menu(Qt::Key_D, {Qt::Key_M, Qt::Key_Return});
        EsperarEditor();
    }
    QTemporaryDir carpeta;
};

std::uint64_t Bits(double valor) {
    return std::bit_cast<std::uint64_t>(valor);
}

struct DatoTecleado {
    const char *teclas;
    double valor;
};

// What the field takes is read as the nearest number there is; "-0" keeps its sign.
constexpr DatoTecleado Tecleados[] = {
    {"0.1", 0.1},
    {"-7", -7},
    {"1234567.891", 1234567.891},
    {"0.12345678901234567", 0.12345678901234567},
    {"99999999999999999999", 99999999999999999999.0},
    {"-0", -0.0},
};

} // namespace

TEST_F(Sesion, TecladaGuardadaYVueltaAAbrir) {
    Menu(Qt::Key_D, {Qt::Key_T},
         {{"Tipos de datos",
           [](QDialog &d) {
               Activar(d);
               Teclear("TECLAS"); // the old name is selected
               for (const Qt::Key t : {Qt::Key_Tab, Qt::Key_Space, Qt::Key_Down, Qt::Key_Return}) Tecla(t);
           }},
          {"Datos anuales", [](QDialog &d) {
               Activar(d);
               Teclear("1990");
               Tecla(Qt::Key_Tab);
               Teclear("1996");
               Tecla(Qt::Key_Return);
           }}});
    EditarSeries();
    Teclear("renta");
    Tecla(Qt::Key_Return);
    for (const DatoTecleado &d : Tecleados) {
        Teclear(d.teclas);
        Tecla(Qt::Key_Return);
    }
    Tecla(Qt::Key_S, Qt::AltModifier); // "Salir"

    EditarMatrices();
    Teclear("beta");
    Tecla(Qt::Key_Return);
    for (const int fila : {0, 1, 2}) { // two columns, the second one backwards
        Teclear(Tecleados[fila].teclas);
        Tecla(Qt::Key_Tab);
        Teclear(Tecleados[5 - fila].teclas);
        Tecla(Qt::Key_Return);
        QTest::keyPress(QApplication::focusWidget(), Qt::Key_Shift);
        Tecla(Qt::Key_Backtab, Qt::ShiftModifier); // back to the first column, one row on
        QTest::keyRelease(QApplication::focusWidget(), Qt::Key_Shift);
    }
    Tecla(Qt::Key_S, Qt::AltModifier); // "Salvar matriz"
    Tecla(Qt::Key_L, Qt::AltModifier); // "Salir"

    const QString fichero = carpeta.filePath(QStringLiteral("teclas.TR2"));
    Menu(Qt::Key_A, {Qt::Key_G}, {Contestando("Guardar archivo de trabajo", fichero)});
    ASSERT_TRUE(QFile::exists(fichero));
    const auto antes = std::make_unique<CabeceraArchivo>(ArchivoTrabajo);
    // The end: Enter says yes to the question, and now it is known where.
    Menu(Qt::Key_A, {Qt::Key_S}, {{"Aviso", [](QDialog &d) {
                                       Activar(d);
                                       Tecla(Qt::Key_Return);
                                   }}});
    ASSERT_TRUE(ventana->Destruida);

    SetUp();
    EXPECT_EQ(ArchivoTrabajo.NumSeries, 0);
    Menu(Qt::Key_A, {Qt::Key_A}, {Contestando("Abrir archivo de trabajo", fichero)});
    EXPECT_EQ(ventana->windowTitle(), QStringLiteral("Tabira: teclas"));
    EXPECT_EQ(CodigosDeSeries(), std::vector<std::string>{"RENTA"});
    for (std::size_t i = 0; i < std::size(Tecleados); ++i) {
        EXPECT_EQ(Bits(ArchivoTrabajo.ValoresObs[i][0]), Bits(Tecleados[i].valor)) << i;
        EXPECT_EQ(ArchivoTrabajo.PresenciaObs[i][0], 1) << i;
    }
    EXPECT_EQ(ArchivoTrabajo.PresenciaObs[6][0], 0);
    EXPECT_EQ(std::memcmp(ArchivoTrabajo.ValoresObs, antes->ValoresObs, sizeof antes->ValoresObs), 0);
    EXPECT_EQ(std::memcmp(ArchivoTrabajo.PresenciaObs, antes->PresenciaObs, sizeof antes->PresenciaObs), 0);
    EXPECT_EQ(std::memcmp(ArchivoTrabajo.TextosPeriodo, antes->TextosPeriodo, sizeof antes->TextosPeriodo),
              0);
    EXPECT_EQ(ArchivoTrabajo.UltimaObs[0], 5);
    int filas = 0, columnas = 0;
    const std::vector<double> beta = MatrizDe("BETA", filas, columnas);
    ASSERT_EQ(beta.size(), 6u);
    EXPECT_EQ(filas, 3);
    for (std::size_t f = 0; f < 3; ++f) {
        EXPECT_EQ(Bits(beta[2 * f]), Bits(Tecleados[f].valor)) << f;
        EXPECT_EQ(Bits(beta[2 * f + 1]), Bits(Tecleados[5 - f].valor)) << f;
    }

    // And one goes on: the grid shows what stands there.
    EditarSeries();
    EXPECT_EQ(TextoDeCelda(20), "  1234567.89");
    Tecla(Qt::Key_S, Qt::AltModifier);
    EditarMatrices();
    Teclear("beta");
    Tecla(Qt::Key_Return);
    Tecla(Qt::Key_O, Qt::AltModifier); // "Mostrar matriz"
    EXPECT_EQ(TextoDeCelda(19), "       -7.00");
    Tecla(Qt::Key_L, Qt::AltModifier);
}
