// The editor's window: keys, clicks, bars and the clipboard on the real widgets.
#include "apoyo_escritorio.h"

#include "data/ventanas/rejilla_qt.h"
#include "data/ventanas/ventana_editor.h"
#include "platform/qt/ventana_qt.h"
#include "platform/texto.h"
#include "store/archivo.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QLocale>
#include <QMenu>
#include <QMenuBar>
#include <QScrollBar>
#include <QWheelEvent>

#include <random>

namespace {

class EditorAbierto : public Escritorio {
protected:
    // Until the window has the keyboard: an owner of the active window passes for active too.
    bool EsperarEditor() {
        return QTest::qWaitFor([&] { return QApplication::activeWindow() == ventana->EditorDatos; }, 5000);
    }
    // The editor by its command, with the keyboard.
    void AbrirEditor(int id) {
        ventana->showMaximized(); // as the program does; it would grow, and come to the front, by itself
        ASSERT_TRUE(QTest::qWaitForWindowActive(ventana.get()));
        QTest::qWait(1); // the first painting
        Ordenar(id);
        ASSERT_TRUE(EsperarEditor());
        rejilla = ventana->EditorDatos->findChild<RejillaQt *>();
        ASSERT_NE(rejilla, nullptr);
        ASSERT_TRUE(rejilla->hasFocus());
    }
    void AbrirSeries(int tipo = TipoAnual, const char *intervalo = "1990#1999") {
        PonerDatos(tipo, intervalo);
        AbrirEditor(2035);
    }
    void AbrirMatrices() {
        PonerDatos(TipoAnual, "1990#1999");
        AbrirEditor(2054);
    }

    // The grid has the keyboard from the opening on.
    void Teclear(const char *texto) { QTest::keyClicks(rejilla, QString::fromUtf8(texto)); }
    void Tecla(Qt::Key tecla, Qt::KeyboardModifiers con = {}) { QTest::keyClick(rejilla, tecla, con); }
    void Clic(int celda) {
        QTest::mouseClick(rejilla->viewport(), Qt::LeftButton, {}, rejilla->SitioDeCelda(celda).center());
    }
    QAction *Entrada(int id) {
        return ventana->EditorDatos->findChild<QAction *>(QStringLiteral("editor%1").arg(id));
    }

    RejillaQt *rejilla = nullptr;
};

} // namespace

// ----- Opening and leaving

TEST_F(EditorAbierto, SinTipoDeDatosNoSeAbre) {
    ventana->show();
    for (const int id : {2035, 2054}) {
        ConGuion({Caja("Proceso cancelado", "Tipo de datos no válido")}, [&] { Ordenar(id); });
        EXPECT_FALSE(ventana->EditorDatos->isVisible());
        EXPECT_TRUE(ventana->PantallaEdicion->isVisible());
    }
}

TEST_F(EditorAbierto, OcupaElSitioDeLasSentencias) {
    AbrirSeries();
    EXPECT_FALSE(ventana->PantallaEdicion->isVisible());
    EXPECT_TRUE(ventana->EditorDatos->isMaximized());
    EXPECT_EQ(ventana->EditorDatos->windowTitle().toStdString(), "Editor de series");
    Entrada(2021)->trigger();
    EXPECT_FALSE(ventana->EditorDatos->isVisible());
    EXPECT_TRUE(ventana->PantallaEdicion->isVisible());
    EXPECT_TRUE(QTest::qWaitFor([&] { return ventana->PantallaEdicion->hasFocus(); }, 2000));
    AbrirMatrices();
    EXPECT_EQ(ventana->EditorDatos->windowTitle().toStdString(), "Editor de matrices");
    EXPECT_EQ(Editor.CeldaActual, CeldaCodigoMatriz);
    ventana->EditorDatos->close(); // as "Salir"
    EXPECT_FALSE(ventana->EditorDatos->isVisible());
    EXPECT_TRUE(ventana->PantallaEdicion->isVisible());
}

TEST_F(EditorAbierto, UnCodigoMaloNoDejaSalir) {
    AbrirSeries();
    Teclear("A");
    Tecla(Qt::Key_Tab);
    Teclear("A");
    Tecla(Qt::Key_Return);
    ConGuion({Caja("Proceso cancelado", "Códigos repetidos : A           ")},
             [&] { ventana->EditorDatos->close(); });
    EXPECT_TRUE(ventana->EditorDatos->isVisible());
    EXPECT_TRUE(EsperarEditor());
    EXPECT_TRUE(rejilla->hasFocus());
}

// Closing the program doesn't wait for the editor.
TEST_F(EditorAbierto, ElProgramaSeCierraConElEditorAbierto) {
    AbrirSeries();
    Teclear("A");
    Tecla(Qt::Key_Return);
    const auto cerrar = [&](const char *boton) {
        ConGuion({Caja("Aviso", "¿Desea guardar su trabajo?", boton, QMessageBox::Question)},
                 [&] { Ordenar(2021); });
    };
    cerrar("Cancelar");
    EXPECT_TRUE(ventana->EditorDatos->isVisible());
    cerrar("No");
    EXPECT_FALSE(ventana->EditorDatos->isVisible());
    EXPECT_TRUE(ventana->Destruida);
}

// ----- The menus

TEST_F(EditorAbierto, Menus) {
    const auto entradas = [&] {
        std::vector<std::string> r;
        for (const QAction *a : ventana->EditorDatos->findChild<QMenuBar *>()->actions())
            r.push_back((a->isEnabled() ? "" : "- ") + a->text().toStdString());
        return r;
    };
    AbrirSeries();
    EXPECT_EQ(entradas(), (std::vector<std::string>{"&Restaurar pantalla", "&Borrar todas las series",
                                                    "- &Eliminar observación...", "- &Ordenar series...",
                                                    "&Salir", "&Decimales", "&Imprimir", "&Ayuda"}));
    Entrada(2021)->trigger();
    AbrirMatrices();
    EXPECT_EQ(entradas(),
              (std::vector<std::string>{"&Salvar matriz", "&Borrar matriz", "Blanquear &pantalla",
                                        "M&ostrar matriz", "Sa&lir", "&Decimales", "&Imprimir", "&Ayuda"}));
    Entrada(2021)->trigger();
    AbrirSeries(TipoSinPeriodicidad, "");
    EXPECT_TRUE(Entrada(2076)->isEnabled());
    EXPECT_TRUE(Entrada(2077)->isEnabled());
}

// Another data type, chosen beside the open editor, counts when the keyboard comes back to it.
TEST_F(EditorAbierto, ElMenuAlVolver) {
    AbrirSeries();
    EXPECT_FALSE(Entrada(2076)->isEnabled());
    for (const int tipo : {TipoSinPeriodicidad, TipoTrimestral}) {
        ventana->activateWindow();
        ASSERT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == ventana.get(); }, 5000));
        ArchivoTrabajo.TipoDatos = static_cast<std::int16_t>(tipo);
        ventana->EditorDatos->activateWindow();
        ASSERT_TRUE(EsperarEditor());
        for (const int id : {2076, 2077}) EXPECT_EQ(Entrada(id)->isEnabled(), tipo == TipoSinPeriodicidad);
        EXPECT_TRUE(Entrada(2021)->isEnabled());
    }
}

TEST_F(EditorAbierto, SusDialogos) {
    AbrirSeries(TipoSinPeriodicidad, "");
    PonerSerie("B", {3, 1, 2});
    const std::string lado = Formatear("%d %d", rejilla->viewport()->width(), rejilla->viewport()->height());
    ConGuion({Caja("final peropero", lado.c_str()), Pulsando("Ventana de Edición", "OK")},
             [&] { Entrada(2046)->trigger(); });
    ConGuion({{"Formato decimal",
               [](QDialog &d) {
                   Pulsar(d, "decimales4");
                   Pulsar(d, "OK");
               }}},
             [&] { Entrada(2007)->trigger(); });
    EXPECT_EQ(TextoDeCelda(18), "      3.0000");
    ConGuion({Pulsando("Selección de series", "Cancela")}, [&] { Entrada(2006)->trigger(); });
    ConGuion({{"Ordenación de series",
               [](QDialog &d) {
                   Pulsar(d, "OK");
                   EXPECT_TRUE(d.isVisible());
                   EXPECT_EQ(LineasDe(d, "lista"), (std::vector<std::string>{"B           "}));
                   Elegir(d, "lista", 0);
                   Pulsar(d, "OK");
               }},
              Caja("Aviso", "Serie desconocida")},
             [&] { Entrada(2077)->trigger(); });
    EXPECT_EQ(ValoresDe("B", 3), (std::vector<double>{1, 2, 3}));
    ConGuion({{"Ordenación de series",
               [](QDialog &d) {
                   Elegir(d, "lista", 0);
                   Pulsar(d, "descendente");
                   Pulsar(d, "OK");
               }}},
             [&] { Entrada(2077)->trigger(); });
    EXPECT_EQ(ValoresDe("B", 3), (std::vector<double>{3, 2, 1}));
    Clic(19);
    ConGuion({Caja("Aviso", "¿Está seguro de desear eliminar la presente observación?", "Aceptar",
                   QMessageBox::Critical)},
             [&] { Entrada(2076)->trigger(); });
    EXPECT_EQ(ValoresDe("B", 2), (std::vector<double>{3, 1}));
}

// ----- By keys alone

TEST_F(EditorAbierto, UnaTablaSinRaton) {
    AbrirSeries(TipoTrimestral, "1995#1#1996#4");
    Teclear("renta");
    Tecla(Qt::Key_Tab);
    Teclear("gasto");
    Tecla(Qt::Key_Home);
    Tecla(Qt::Key_Down);
    for (const char *valor : {"10.5", "0.1", "-7", "1234567.891"}) {
        Teclear(valor);
        Tecla(Qt::Key_Return);
    }
    // To the second column, up to its head by going through it
    Tecla(Qt::Key_Tab);
    for (int i = 0; i < 4; ++i) Tecla(Qt::Key_Up);
    EXPECT_EQ(TextoDeCelda(CeldaInformacion), "1995.1; gasto");
    Teclear("3x.5"); // the letter leaves a blank
    Tecla(Qt::Key_Left);
    Tecla(Qt::Key_Left);
    Tecla(Qt::Key_Left);
    Tecla(Qt::Key_Delete);
    Tecla(Qt::Key_Enter);
    Teclear("99");
    Tecla(Qt::Key_Escape);
    Teclear("2");
    Tecla(Qt::Key_Backspace);
    Teclear("4");
    Tecla(Qt::Key_PageDown);
    EXPECT_EQ(Editor.FilaInicial, 16);
    Tecla(Qt::Key_PageUp);
    Tecla(Qt::Key_End);
    EXPECT_EQ(Editor.CeldaActual, 101);
    QTest::keyPress(rejilla, Qt::Key_Shift);
    QTest::keyClick(rejilla, Qt::Key_Backtab, Qt::ShiftModifier);
    QTest::keyRelease(rejilla, Qt::Key_Shift);
    EXPECT_EQ(Editor.CeldaActual, 84);
    Tecla(Qt::Key_S, Qt::AltModifier); // "Salir"
    EXPECT_FALSE(ventana->EditorDatos->isVisible());
    EXPECT_EQ(CodigosDeSeries(), (std::vector<std::string>{"RENTA", "GASTO"}));
    EXPECT_EQ(ValoresDe("RENTA", 4), (std::vector<double>{10.5, 0.1, -7, 1234567.891}));
    EXPECT_EQ(ValoresDe("GASTO", 2), (std::vector<double>{3.5, 4}));
    EXPECT_EQ(ArchivoTrabajo.UltimaObs[0], 3);
}

TEST_F(EditorAbierto, UnaMatrizSinRaton) {
    AbrirMatrices();
    Teclear("beta");
    Tecla(Qt::Key_Return);
    Teclear("1.1");
    Tecla(Qt::Key_Tab);
    Teclear("2.2");
    Tecla(Qt::Key_Home);
    Tecla(Qt::Key_Down);
    Teclear("3.3");
    Tecla(Qt::Key_Tab);
    Teclear("4.4");
    Tecla(Qt::Key_Down);
    Tecla(Qt::Key_S, Qt::AltModifier); // "Salvar matriz"
    int filas = 0, columnas = 0;
    EXPECT_EQ(MatrizDe("BETA", filas, columnas), (std::vector<double>{1.1, 2.2, 3.3, 4.4}));
    EXPECT_EQ(filas, 2);
    EXPECT_EQ(Editor.CeldaActual, CeldaCodigoMatriz);
    Teclear("beta");
    Tecla(Qt::Key_Return);
    Tecla(Qt::Key_O, Qt::AltModifier); // "Mostrar matriz"
    EXPECT_EQ(TextoDeCelda(36), "        4.40");
    Tecla(Qt::Key_L, Qt::AltModifier);
    EXPECT_FALSE(ventana->EditorDatos->isVisible());
}

// Chords do nothing but the two of the clipboard; the third level of a keyboard writes.
TEST_F(EditorAbierto, Acordes) {
    AbrirSeries();
    for (const Qt::Key tecla : {Qt::Key_A, Qt::Key_Z, Qt::Key_Home, Qt::Key_Return, Qt::Key_Delete})
        Tecla(tecla, Qt::ControlModifier);
    QTest::keyClick(rejilla, 'q', Qt::AltModifier);
    QTest::keyClick(rejilla, Qt::Key_F5);
    EXPECT_EQ(Editor.CeldaActual, 17);
    EXPECT_EQ(Editor.foco, FocoEnCelda);
    QKeyEvent llave(QEvent::KeyPress, Qt::Key_BraceLeft, Qt::ControlModifier | Qt::AltModifier,
                    QStringLiteral("{"));
    QApplication::sendEvent(rejilla, &llave);
    EXPECT_EQ(Editor.CampoEdicion[0], '{');
}

TEST_F(EditorAbierto, LoQueComponeElTeclado) {
    AbrirSeries();
    QInputMethodEvent compuesto;
    compuesto.setCommitString(QStringLiteral("A^1é"));
    QApplication::sendEvent(rejilla, &compuesto);
    EXPECT_EQ(std::string(Editor.CampoEdicion).substr(0, 4), "A^1 ");
}

// Shift that goes up over another window must not turn the next Tab around.
TEST_F(EditorAbierto, ShiftSeSueltaFuera) {
    AbrirSeries();
    QTest::keyPress(rejilla, Qt::Key_Shift);
    EXPECT_EQ(Editor.ShiftPulsado, 1);
    rejilla->clearFocus();
    EXPECT_EQ(Editor.ShiftPulsado, 0);
}

// ----- Mouse and bars

TEST_F(EditorAbierto, UnClicEnCadaCelda) {
    AbrirMatrices();
    for (int c = 18; c < NumCeldas; ++c) {
        Clic(c);
        EXPECT_EQ(Editor.CeldaActual, c);
    }
    Clic(17);
    Clic(5);
    EXPECT_EQ(Editor.CeldaActual, 101);
    Clic(CeldaCodigoMatriz);
    EXPECT_EQ(Editor.CeldaActual, CeldaCodigoMatriz);
    QTest::mouseClick(rejilla->viewport(), Qt::RightButton, {}, rejilla->SitioDeCelda(50).center());
    EXPECT_EQ(Editor.CeldaActual, CeldaCodigoMatriz);
}

// Nothing of the grid lies over another part, or outside the window.
TEST_F(EditorAbierto, CadaCeldaEnSuSitio) {
    AbrirMatrices();
    std::vector<QRect> sitios;
    for (int c = 0; c <= CeldaInformacion; ++c) sitios.push_back(rejilla->SitioDeCelda(c));
    sitios.push_back(rejilla->SitioDelCampo());
    for (std::size_t i = 0; i < sitios.size(); ++i) {
        EXPECT_TRUE(rejilla->viewport()->rect().contains(sitios[i])) << i;
        for (std::size_t j = i + 1; j < sitios.size(); ++j)
            EXPECT_FALSE(sitios[i].intersects(sitios[j])) << i << " " << j;
    }
    // The rows and columns of one pitch
    EXPECT_EQ(sitios[1].left(), sitios[16].left());
    EXPECT_EQ(sitios[17].top(), sitios[85].top());
}

TEST_F(EditorAbierto, ClicEnElCampo) {
    AbrirSeries();
    Teclear("ABCDEF");
    const QRect campo = rejilla->SitioDelCampo();
    const int letra = campo.width() / 21;
    QTest::mouseClick(rejilla->viewport(), Qt::LeftButton, {},
                      campo.topLeft() + QPoint(2 * letra + letra / 2, 4));
    EXPECT_EQ(Editor.cursorCampo, 2);
    Teclear("x");
    EXPECT_EQ(std::string(Editor.CampoEdicion).substr(0, 6), "ABxDEF");
}

TEST_F(EditorAbierto, LasBarras) {
    AbrirSeries();
    QScrollBar *filas = rejilla->verticalScrollBar(), *columnas = rejilla->horizontalScrollBar();
    EXPECT_EQ(filas->maximum(), 3984);
    EXPECT_EQ(filas->pageStep(), 16);
    EXPECT_EQ(columnas->maximum(), 95);
    EXPECT_EQ(columnas->pageStep(), 5);
    filas->triggerAction(QScrollBar::SliderPageStepAdd);
    EXPECT_EQ(Editor.FilaInicial, 16);
    filas->triggerAction(QScrollBar::SliderSingleStepAdd);
    EXPECT_EQ(Editor.FilaInicial, 17);
    columnas->triggerAction(QScrollBar::SliderPageStepAdd);
    EXPECT_EQ(Editor.ColumnaInicial, 5);
    columnas->setValue(95);
    EXPECT_EQ(Editor.ColumnaInicial, 95);
    Tecla(Qt::Key_PageUp);
    EXPECT_EQ(filas->value(), 1); // the bar follows the keys
    Editor.CeldaActual = 101;
    Tecla(Qt::Key_Tab);
    EXPECT_EQ(columnas->value(), 95);
}

TEST_F(EditorAbierto, LaRueda) {
    AbrirSeries();
    const auto girar = [&](QPoint angulo) {
        const QPoint p = rejilla->SitioDeCelda(40).center();
        QWheelEvent rueda(p, rejilla->viewport()->mapToGlobal(p), {}, angulo, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(rejilla->viewport(), &rueda);
    };
    girar({0, -120});
    EXPECT_EQ(Editor.FilaInicial, 3);
    girar({0, -60});
    EXPECT_EQ(Editor.FilaInicial, 3);
    girar({0, -60});
    EXPECT_EQ(Editor.FilaInicial, 6);
    girar({0, 120});
    EXPECT_EQ(Editor.FilaInicial, 3);
    girar({-240, 0});
    EXPECT_EQ(Editor.ColumnaInicial, 2);
}

// ----- Clipboard

TEST_F(EditorAbierto, CopiarYPegar) {
    AbrirSeries(TipoAnual, "1990#1992");
    QApplication::clipboard()->setText(QStringLiteral("A\tB\n1,5\t2\n3\t4.5\nx\t7"));
    ConGuion({Caja("Aviso", "Datos sin pegar: 1. Les falta código o fila, o no son números.")},
             [&] { Tecla(Qt::Key_V, Qt::ControlModifier); });
    EXPECT_EQ(ArchivoTrabajo.ValoresObs[0][0], 1.5);
    EXPECT_EQ(ArchivoTrabajo.ValoresObs[2][1], 7.0);
    Tecla(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text().toStdString(),
              QStringLiteral("A\tB\n1.5\t2\n3\t4.5\n\t7\n")
                  .replace(u'.', QLocale::system().decimalPoint())
                  .toStdString());
    // The same by the menu of the right button
    const auto delMenu = [&](int entrada) {
        QTimer::singleShot(50, [entrada] {
            auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
            ASSERT_NE(menu, nullptr);
            menu->setActiveAction(menu->actions().at(entrada));
            QTest::keyClick(menu, Qt::Key_Return);
        });
        Tecla(Qt::Key_F10, Qt::ShiftModifier);
    };
    Clic(18);
    QApplication::clipboard()->setText(QStringLiteral("42"));
    delMenu(1);
    EXPECT_EQ(ArchivoTrabajo.ValoresObs[0][0], 42.0);
    delMenu(0);
    EXPECT_TRUE(QApplication::clipboard()->text().startsWith(QStringLiteral("A\tB\n42\t2\n")));
}

// ----- What is shown

TEST_F(EditorAbierto, LoQueLeeUnLectorDePantalla) {
    AbrirSeries();
    EXPECT_EQ(rejilla->accessibleName().toStdString(), "Código: en blanco");
    Teclear("RENTA");
    Tecla(Qt::Key_Return);
    Teclear("12");
    Tecla(Qt::Key_Return);
    EXPECT_EQ(rejilla->accessibleName().toStdString(), "1991; RENTA en blanco");
    Tecla(Qt::Key_Up);
    EXPECT_EQ(rejilla->accessibleName().toStdString(), "1990; RENTA: 12.0000000000");
}

// What stores series refreshes the window, and leaves labels without blanks in front.
TEST_F(EditorAbierto, SeRefresca) {
    AbrirSeries();
    PonerSerie("A", {1});
    PonerCodigoSerie(0, " A");
    RefrescarEditor();
    EXPECT_STREQ(ArchivoTrabajo.Codigos[0], "A           ");
    EXPECT_EQ(rejilla->accessibleName().toStdString(), "Código: A");
}

// On a small screen the letters shrink until the whole grid is there.
TEST_F(EditorAbierto, CabeEnUnaVentanaPequena) {
    AbrirMatrices();
    ventana->EditorDatos->showNormal();
    ventana->EditorDatos->resize(420, 330);
    QTest::qWait(50);
    for (int c = 0; c <= CeldaInformacion; ++c)
        EXPECT_TRUE(rejilla->viewport()->rect().contains(rejilla->SitioDeCelda(c))) << c;
    EXPECT_EQ(Editor.CeldaActual, CeldaCodigoMatriz);
    Clic(50);
    EXPECT_EQ(Editor.CeldaActual, 50);
    ventana->EditorDatos->resize(430, 330);
    QTest::qWait(50);
    EXPECT_EQ(Editor.CeldaActual, 17);
}

// The current cell is framed and has the caret, the field its own; with a folder in TABIRA_CAPTURAS pictures of both stay
// there.
TEST_F(EditorAbierto, SePinta) {
    const QString capturas = qEnvironmentVariable("TABIRA_CAPTURAS");
    const auto guardar = [&](const char *nombre) {
        const QImage imagen = ventana->EditorDatos->grab().toImage();
        if (!capturas.isEmpty()) {
            EXPECT_TRUE(imagen.save(capturas + u'/' + QLatin1String(nombre) + QStringLiteral(".png")));
        }
    };
    const auto color = [&](QPoint p) {
        const QImage imagen = rejilla->viewport()->grab().toImage();
        return QColor(imagen.pixel((p * imagen.devicePixelRatio())));
    };
    AbrirSeries(TipoTrimestral, "1995#1#2002#4");
    PonerSerie("CONSUMO", {11.25, 12.5, 13, -4.125});
    PonerSerie("RENTA", {101, 102.5, 1e7});
    RefrescarEditor();
    Clic(36);
    const QRect celda = rejilla->SitioDeCelda(36);
    EXPECT_EQ(color(celda.topLeft()), QColor(Qt::black));
    EXPECT_EQ(color(rejilla->SitioDeCelda(37).topLeft()), QColor(Qt::white));
    const QPoint cursor = celda.topLeft() + QPoint(4, celda.height() / 2);
    EXPECT_EQ(color(cursor), QColor(Qt::black));
    guardar("editor_series");
    Tecla(Qt::Key_Right);
    EXPECT_EQ(color(cursor), QColor(Qt::white));
    Entrada(2021)->trigger();
    AbrirMatrices();
    Teclear("BETA");
    Tecla(Qt::Key_Return);
    Teclear("1.5");
    Tecla(Qt::Key_Tab);
    Teclear("2");
    guardar("editor_matrices");
    EXPECT_EQ(color(rejilla->SitioDeCelda(CeldaCodigoMatriz).topLeft()), QColor(Qt::black));
}

// ----- Anything at all

// Keys, clicks and bars at random on both editors. TABIRA_AZAR asks for another number of each.
TEST_F(EditorAbierto, AlAzar) {
    constexpr Qt::Key Teclas[] = {Qt::Key_Tab,    Qt::Key_Backtab,   Qt::Key_Return, Qt::Key_Enter,
                                  Qt::Key_Down,   Qt::Key_Up,        Qt::Key_Home,   Qt::Key_End,
                                  Qt::Key_PageUp, Qt::Key_PageDown,  Qt::Key_Left,   Qt::Key_Right,
                                  Qt::Key_Delete, Qt::Key_Backspace, Qt::Key_Escape, Qt::Key_F5};
    bool pedido = false;
    const int pedidas = qEnvironmentVariableIntValue("TABIRA_AZAR", &pedido);
    const int veces = pedido ? pedidas : 400;
    std::mt19937 azar(9);
    const auto hasta = [&](int n) { return static_cast<int>(azar() % static_cast<unsigned>(n)); };
    for (const bool deMatrices : {false, true}) {
        if (deMatrices) {
            Entrada(2008)->trigger(); // without codes that keep the window open
            Entrada(2021)->trigger();
            AbrirMatrices();
        } else {
            AbrirSeries();
        }
        const QRect lado = rejilla->viewport()->rect();
        for (int k = 0; k < veces; ++k) {
            SCOPED_TRACE(k);
            const QPoint punto(hasta(lado.width()), hasta(lado.height()));
            switch (hasta(10)) {
            case 0: QTest::mouseClick(rejilla->viewport(), Qt::LeftButton, {}, punto); break;
            case 1:
                QTest::sendKeyEvent(hasta(2) == 0 ? QTest::Press : QTest::Release, rejilla, Qt::Key_Shift,
                                    QString(), {});
                break;
            case 2:
                (hasta(2) == 0 ? rejilla->verticalScrollBar() : rejilla->horizontalScrollBar())
                    ->triggerAction(static_cast<QAbstractSlider::SliderAction>(1 + hasta(6)));
                break;
            case 3:
            case 4:
            case 5: Tecla(Teclas[hasta(static_cast<int>(std::size(Teclas)))]); break;
            default: QTest::keyClick(rejilla, static_cast<char>(' ' + hasta(95))); break;
            }
            if (k % 40 == 0) rejilla->viewport()->grab();
            if (k % 500 == 0) Tecla(Qt::Key_C, Qt::ControlModifier);
            ASSERT_TRUE(Editor.CeldaActual >= 17 && Editor.CeldaActual <= (deMatrices ? 102 : 101));
            ASSERT_EQ(rejilla->verticalScrollBar()->value(), Editor.FilaInicial);
            ASSERT_TRUE(rejilla->hasFocus());
        }
    }
}
