// The main window from its first paint to its end.
#include "apoyo_escritorio.h"

#include "data/copia_seguridad.h"
#include "platform/campos_texto.h"
#include "platform/qt/ventana_qt.h"
#include "shell/comandos.h"
#include "store/archivo.h"

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QTemporaryDir>
#include <QTimer>
#include <QWindow>

using Cierre = Escritorio;

namespace {

// The ways to ask for the end.
enum Formas { PorMenu, PorVentana, PorOrden2 };

// Runs the program's loop, closes in it, and returns whether the program ended.
bool Cerrar(VentanaPrincipal &v, Formas forma, const Guion &guion) {
    constexpr int Sigue = 77;
    QTimer::singleShot(0, &v, [&] {
        ConGuion(guion, [&] {
            switch (forma) {
            case PorMenu: v.findChild<QAction *>(QStringLiteral("comando2021"))->trigger(); break;
            case PorVentana: v.close(); break;
            case PorOrden2: EjecutarComando(AVentana(&v), 2); break;
            }
        });
        QTimer::singleShot(0, &v, [] { QApplication::exit(Sigue); });
    });
    return QApplication::exec() != Sigue;
}

Paso Pregunta(const char *boton) {
    return Caja("Aviso", "¿Desea guardar su trabajo?", boton, QMessageBox::Question);
}

struct CasoCierre {
    const char *nombre;
    bool serie, matriz, escalar;
    const char *boton; // null: not asked
    bool termina;
};

constexpr CasoCierre Casos[] = {
    {"nothing", false, false, false, nullptr, true},
    {"scalars only", false, false, true, nullptr, true},
    {"a series, no", true, false, false, "No", true},
    {"a series, cancel", true, false, false, "Cancelar", false},
    {"a matrix, no", false, true, false, "No", true},
    {"a matrix, cancel", false, true, true, "Cancelar", false},
    {"a series, yes", true, false, false, "Si", true}, // the save is cancelled: the work stays as a copy
};

// How often the picture is painted, and under which cursor.
class TestigoDePortada : public QObject {
public:
    int pintadas = 0;
    bool conEspera = false;
    QPoint sitio;
    QWidget *padre = nullptr;

protected:
    bool eventFilter(QObject *objeto, QEvent *suceso) override {
        if (suceso->type() == QEvent::Paint && objeto->objectName() == QStringLiteral("imagen")) {
            ++pintadas;
            auto *etiqueta = qobject_cast<QLabel *>(objeto);
            sitio = etiqueta->pos();
            padre = etiqueta->parentWidget();
            const QCursor *cursor = QApplication::overrideCursor();
            conEspera = cursor != nullptr && cursor->shape() == Qt::WaitCursor;
        }
        return false;
    }
};

} // namespace

TEST_F(Cierre, ConSuPregunta) {
    for (const CasoCierre &c : Casos) {
        for (const Formas forma : {PorMenu, PorVentana, PorOrden2}) {
            SCOPED_TRACE(testing::Message() << c.nombre << ", way " << forma);
            SetUp();
            ventana->show();
            PonerDatos(TipoAnual, "1990#1999");
            if (c.serie) PonerSerie("A", {1, 2, 3});
            if (c.matriz) PonerMatriz("M", {1, 2}, 1, 2);
            if (c.escalar) PonerEscalar(nullptr, "E", 1);
            Guion guion;
            if (c.boton != nullptr) guion.push_back(Pregunta(c.boton));
            if (c.boton != nullptr && std::string(c.boton) == "Si")
                guion.push_back(ConEscape("Guardar archivo de trabajo"));
            const QTemporaryDir estado;
            EmpezarCopias(estado.path().toStdString());
            EXPECT_EQ(Cerrar(*ventana, forma, guion), c.termina);
            EXPECT_EQ(ventana->isVisible(), !c.termina);
            EXPECT_EQ(QDir(estado.path()).entryList({QStringLiteral("*.TR2")}).size(),
                      guion.size() == 2 ? 1 : 0);
            TerminarCopias(false);
            if (c.termina) continue;
            EXPECT_EQ(ArchivoTrabajo.NumSeries, c.serie ? 1 : 0);
            EXPECT_EQ(TablaMatrices.numero, c.matriz ? 1 : 0);
            EXPECT_TRUE(!c.serie || ValoresDe("A", 3) == (std::vector<double>{1, 2, 3}));
        }
    }
}

// Escape on the question keeps the program.
TEST_F(Cierre, EscapeEsCancelar) {
    PonerDatos(TipoAnual, "1990#1999");
    PonerSerie("A", {1, 2, 3});
    ventana->show();
    EXPECT_FALSE(Cerrar(*ventana, PorVentana, {ConEscape("Aviso")}));
    EXPECT_TRUE(ventana->isVisible());
}

TEST_F(Cierre, PortadaUnaVez) {
    TestigoDePortada testigo;
    qApp->installEventFilter(&testigo);
    int despues = 0;
    ventana->TrasLaPortada = [&] {
        ++despues;
        EXPECT_TRUE(ventana->isMaximized());
        EXPECT_EQ(ventana->findChild<QLabel *>(QStringLiteral("imagen")), nullptr);
    };
    ventana->showMaximized();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(ventana.get()));
    EXPECT_TRUE(QTest::qWaitFor([&] { return testigo.pintadas > 0; }));
    EXPECT_TRUE(testigo.conEspera);
    EXPECT_EQ(testigo.sitio, QPoint(50, 10));
    EXPECT_EQ(testigo.padre, ventana->PantallaEdicion); // at the corner of the client area, over the margin
    QTest::qWait(50);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(ventana->findChild<QLabel *>(QStringLiteral("imagen")), nullptr);
    const int pintadas = testigo.pintadas;
    ventana->hide();
    ventana->show();
    ventana->update();
    QTest::qWait(100);
    EXPECT_EQ(testigo.pintadas, pintadas);
    EXPECT_EQ(despues, 1);
    qApp->removeEventFilter(&testigo);
}

// After a change of its size the next paint maximises the window again.
TEST_F(Cierre, VuelveAMaximizarse) {
    ventana->showMaximized();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(ventana.get()));
    QTest::qWait(50);
    EXPECT_TRUE(ventana->isMaximized());
    ventana->showNormal();
    ventana->resize(300, 200);
    EXPECT_TRUE(QTest::qWaitFor([&] { return ventana->isMaximized(); }));
    // The screen of the statements fills the client area.
    EXPECT_EQ(ventana->PantallaEdicion->width(), ventana->width());
}

TEST_F(Cierre, AlEmpezar) {
    EXPECT_EQ(ventana->windowTitle(), QStringLiteral("Tabira"));
    EXPECT_EQ(ArchivoTrabajo.TipoDatos, SinTipoDatos);
    EXPECT_EQ(ArchivoTrabajo.NumSeries, 0);
    ventana->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(ventana.get()));
    EXPECT_TRUE(ventana->PantallaEdicion->hasFocus()); // ready to type
}

// The window of the editor is there from the start, belongs to the main window, and waits hidden.
TEST_F(Cierre, ElEditorEsperaOculto) {
    ventana->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(ventana.get()));
    const auto *editor = ventana->findChild<QWidget *>(QStringLiteral("EditorDatos"));
    ASSERT_NE(editor, nullptr);
    EXPECT_TRUE(editor->isWindow());
    EXPECT_FALSE(editor->isVisible());
    EXPECT_EQ(editor->parentWidget(), ventana.get());
    EXPECT_EQ(editor->windowTitle(), QStringLiteral("Editor de Series/Matrices"));
    EXPECT_EQ(editor->size(), QSize(640, 450));
}

// A name is shown as it was typed, even where the toolkit has a mark of its own.
TEST_F(Cierre, ElTituloLlevaElNombreTalCual) {
    ventana->show();
    for (const char *nombre : {"KLEIN", "A [*] B", "[*][*]", "5% &c<b>"}) {
        PonerCampo(ArchivoTrabajo.NombreProyecto, nombre, AnchoProyecto);
        ConGuion({ConEscape("Tipos de datos")}, [&] { Ordenar(2020); });
        EXPECT_EQ(ventana->windowHandle()->title().toStdString(), std::string("Tabira: ") + nombre);
    }
}
