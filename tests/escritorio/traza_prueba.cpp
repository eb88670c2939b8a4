// "Cómo se calcula": the window, the ways to it, what it shows, and what leaves it.
#include "apoyo/datos_csv.h"
#include "apoyo_escritorio.h"
#include "apoyo_pdf.h"

#include "charts/resultados/ventana_resultado.h"
#include "charts/resultados/ventanas/ventana_resultado_qt.h"
#include "charts/resultados/ventanas/ventana_traza.h"
#include "language/traza.h"
#include "platform/qt/ajustes_qt.h"
#include "platform/qt/superficie_qt.h"
#include "platform/qt/texto_qt.h"
#include "platform/qt/ventana_qt.h"
#include "platform/texto.h"
#include "shell/registro.h"
#include "shell/ventanas/escritorio.h"
#include "store/archivo.h"

#include <QAbstractScrollArea>
#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextTable>
#include <QToolTip>
#include <QTreeView>
#include <QWindow>

#include <set>

namespace {

constexpr const char *Titulo = "Mínimos cuadrados ordinarios";
constexpr const char *MC = "MC CONSUMO 1 BENEF SALARIOS";

const Paso Ver = Caja("Aviso", "¿Desea ver la regresion?", "Si", QMessageBox::Question);
const Paso NoVer = Caja("Aviso", "¿Desea ver la regresion?", "No", QMessageBox::Question);

class VentanaDeTraza : public Escritorio {
protected:
    void SetUp() override {
        Escritorio::SetUp();
        PonerDatos(TipoAnual, "1920#1941");
        ASSERT_TRUE(CargarCsv("klein.csv"));
        PonerTraza(true);
        VaciarRegistro();
        ventana->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(ventana.get()));
        Correr("SER SALARIOS = SALPRIV + SALPUB\nMUEST 1920 1941");
    }
    void TearDown() override {
        PonerTraza(false);
        PonerEleccion("traza/anotar", true);
    }

    void Correr(const char *texto, const Guion &guion = {}) {
        ventana->PantallaEdicion->setPlainText(QString::fromUtf8(texto));
        ventana->PantallaEdicion->selectAll();
        ConGuion(guion, [&] { Ordenar(2006); });
        QCoreApplication::processEvents();
    }

    // Runs the statement and looks at its report.
    void EnInforme(const char *texto, const std::function<void(QDialog &, QAbstractScrollArea &)> &hacer) {
        Correr(texto, {Ver, {Titulo, [&](QDialog &d) {
                                 EXPECT_TRUE(QTest::qWaitForWindowExposed(&d));
                                 if (auto *area = Hijo<QAbstractScrollArea>(d, "areaResultado"))
                                     hacer(d, *area);
                                 d.reject();
                             }}});
    }

    QDialog *Ventana() { return ventana->findChild<QDialog *>(QStringLiteral("ventanaTraza")); }
    QTreeView &Arbol() { return *Ventana()->findChild<QTreeView *>(QStringLiteral("arbolTraza")); }
    QTextBrowser &Pagina() { return *Ventana()->findChild<QTextBrowser *>(QStringLiteral("detalleTraza")); }

    std::string Elegido() {
        return Arbol().currentIndex().siblingAtColumn(0).data().toString().toStdString();
    }
    std::string TextoDePagina() { return Pagina().toPlainText().toStdString(); }
    std::string Estado() { return TextoDe(*Ventana(), "estadoTraza"); }

    // The number that is marked in the page.
    std::string Marcado() {
        const QColor marca = Ventana()->palette().color(QPalette::Highlight);
        QString r;
        for (QTextBlock b = Pagina().document()->begin(); b.isValid(); b = b.next()) {
            const QTextTable *tabla = QTextCursor(b).currentTable();
            if (tabla != nullptr && tabla->cellAt(b.position()).format().background().color() == marca &&
                tabla->cellAt(b.position()).format().hasProperty(QTextFormat::BackgroundBrush))
                r += b.text();
        }
        return r.toStdString();
    }

    // F9 in the statements, the caret at this place.
    void F9(int posicion = 0) {
        QTextCursor c = ventana->PantallaEdicion->textCursor();
        c.setPosition(posicion);
        ventana->PantallaEdicion->setTextCursor(c);
        ventana->activateWindow();
        ventana->PantallaEdicion->setFocus();
        ASSERT_TRUE(QTest::qWaitFor([&] { return ventana->PantallaEdicion->hasFocus(); }, 2000));
        QTest::keyClick(ventana->PantallaEdicion, Qt::Key_F9);
        ASSERT_NE(Ventana(), nullptr);
        ASSERT_TRUE(Ventana()->isVisible());
        ASSERT_TRUE(QTest::qWaitFor([&] { return Arbol().hasFocus(); }, 2000));
    }

    // Chooses the first step whose label begins so.
    void ElegirPaso(const char *rotulo) {
        const QModelIndexList hallados =
            Arbol().model()->match(Arbol().model()->index(0, 0), Qt::DisplayRole, QString::fromUtf8(rotulo),
                                   1, Qt::MatchStartsWith | Qt::MatchRecursive);
        ASSERT_FALSE(hallados.isEmpty()) << rotulo;
        Arbol().setCurrentIndex(hallados.first());
    }
};

// The mouse comes there.
void Mover(QAbstractScrollArea &area, const QPoint &lugar) {
    QMouseEvent suceso(QEvent::MouseMove, lugar, area.viewport()->mapToGlobal(lugar), Qt::NoButton,
                       Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(area.viewport(), &suceso);
}

// The middle of a number of the report that was shown last, in its window.
QPoint LugarDe(QAbstractScrollArea &area, const char *numero, const SalidaResultado &salida) {
    QImage nada(1, 1, QImage::Format_RGB32);
    QPainter pintor(&nada);
    PintorSuperficie propio;
    const QSize lado = area.viewport()->size();
    const Superficie s =
        SuperficieDePintor(propio, pintor, FuenteFijaDePantalla(), lado.width(), lado.height());
    EstadoVentanaResultado estado{};
    estado.anchoCaracter = s.anchoCaracter;
    estado.altoLinea = s.altoLinea;
    int linea = 0, columna = 0;
    for (int y = 0; y < lado.height(); y += s.altoLinea / 2)
        for (int x = 0; x < lado.width(); x += s.anchoCaracter) {
            if (!LineaEnPunto(estado, salida, lado.width(), lado.height(), {x, y}, linea, columna)) continue;
            const std::string_view texto = (*salida.lineas)[static_cast<std::size_t>(linea)].texto;
            if (texto.substr(std::min(texto.size(), static_cast<std::size_t>(columna))).starts_with(numero))
                return {x + 2 * s.anchoCaracter, y};
        }
    ADD_FAILURE() << "no number " << numero;
    return {};
}
QPoint LugarDe(QAbstractScrollArea &area, const char *numero) {
    return LugarDe(area, numero, EntradasRegistro().back().resultado->salida);
}

} // namespace

TEST_F(VentanaDeTraza, F9EnLasSentencias) {
    Correr(("SER Z = BENEF * 2\n" + std::string(MC) + "\nESC A = 3").c_str(), {NoVer});
    F9(0);
    EXPECT_FALSE(Ventana()->isModal());
    EXPECT_EQ(Elegido(), "SER Z = BENEF * 2") << "that of the caret";
    F9(20);
    EXPECT_EQ(Elegido(), MC);
    ventana->PantallaEdicion->setPlainText(QStringLiteral("; otra cosa"));
    F9(0);
    EXPECT_EQ(Elegido(), "ESC A = 3") << "the last one, where the record has not that of the caret";
    EXPECT_EQ(ventana->findChildren<QDialog *>(QStringLiteral("ventanaTraza")).size(), 1);
    QTest::keyClick(&Arbol(), Qt::Key_Escape);
    EXPECT_FALSE(Ventana()->isVisible());
}

TEST_F(VentanaDeTraza, DesdeLosDosMenus) {
    Correr(MC, {NoVer});
    DelMenu(*ventana->PantallaEdicion, "Cómo se calcula...");
    ASSERT_NE(Ventana(), nullptr);
    EXPECT_TRUE(Ventana()->isVisible());
    EXPECT_EQ(Elegido(), MC);
    Ventana()->reject();
    EnInforme(MC, [&](QDialog &, QAbstractScrollArea &area) {
        DelMenu(area, "Cómo se calcula...");
        EXPECT_TRUE(Ventana()->isVisible());
        EXPECT_EQ(Elegido(), MC);
    });
}

// The step, all digits of its result, and the values of what it took.
TEST_F(VentanaDeTraza, LaPagina) {
    Correr("ESC A = 0.1\nESC B = (A + 2) * 3", {});
    F9(12);
    EXPECT_EQ(Elegido(), "ESC B = (A + 2) * 3");
    ElegirPaso("B = ");
    const std::string pagina = TextoDePagina();
    EXPECT_NE(pagina.find("B = (A + 2) * 3"), std::string::npos) << pagina;
    EXPECT_NE(pagina.find("6.300000000000001"), std::string::npos) << pagina;
    EXPECT_NE(pagina.find("A"), std::string::npos);
    // The reductions stand below it.
    EXPECT_GE(Arbol().model()->rowCount(Arbol().currentIndex()), 2);
}

// Enter goes to the links of a step, Enter follows one, Backspace comes back.
TEST_F(VentanaDeTraza, SeSigueUnOperando) {
    Correr(MC, {NoVer});
    F9();
    ElegirPaso("_BETA = _TMF5$ * _TMF6");
    QTest::keyClick(&Arbol(), Qt::Key_Return);
    EXPECT_TRUE(Pagina().hasFocus());
    EXPECT_EQ(Pagina().textCursor().selectedText(), QStringLiteral("_TMF5"));
    QTest::keyClick(&Pagina(), Qt::Key_Return);
    EXPECT_EQ(Elegido(), "_TMF5 = suma de x(t) x(t)', 1920 a 1941");
    QTest::keyClick(&Pagina(), Qt::Key_Backspace);
    EXPECT_EQ(Elegido(), "_BETA = _TMF5$ * _TMF6");
    // By the mouse, the second one.
    QTextCursor c = Pagina().document()->find(QStringLiteral("_TMF6"),
                                              Pagina().document()->find(QStringLiteral("Operandos")));
    ASSERT_FALSE(c.isNull());
    c.setPosition(c.selectionStart() + 2);
    QTest::mouseClick(Pagina().viewport(), Qt::LeftButton, {}, Pagina().cursorRect(c).center());
    EXPECT_EQ(Elegido(), "_TMF6 = suma de x(t) y(t), 1920 a 1941");
    Pulsar(*Ventana(), "volverTraza");
    EXPECT_EQ(Elegido(), "_BETA = _TMF5$ * _TMF6");
}

TEST_F(VentanaDeTraza, UnClicEnUnNumero) {
    EnInforme(MC, [&](QDialog &, QAbstractScrollArea &area) {
        // Row, column of the coefficients, and statistics; by the digits that the report shows.
        static constexpr struct {
            const char *numero, *paso;
            const char *marcado; // the number whole, where it is one of several
        } Casos[] = {
            {"14.642715", "_BETA = ", "14.6427"}, {"0.259850", "_BETA = ", "0.25984"},
            {"0.097372", "_DTE = ", "0.09737"},   {"15.74", "_DIV = ", "15.737"},
            {"0.0152", "_PROBT = ", "0.0151"},    {"1.4216", "_DTR = ", nullptr},
            {"0.9661", "_RC = ", nullptr},        {"271.0068", "_FORLA = ", nullptr},
        };
        for (const auto &c : Casos) {
            SCOPED_TRACE(c.numero);
            const QPoint lugar = LugarDe(area, c.numero);
            Mover(area, lugar);
            EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::PointingHandCursor);
            QTest::mouseClick(area.viewport(), Qt::LeftButton, {}, lugar);
            ASSERT_NE(Ventana(), nullptr);
            EXPECT_TRUE(Elegido().starts_with(c.paso)) << Elegido();
            EXPECT_EQ(Marcado().empty(), c.marcado == nullptr);
            if (c.marcado != nullptr) {
                EXPECT_TRUE(Marcado().starts_with(c.marcado)) << Marcado();
            }
        }
        const QPoint beta = LugarDe(area, "0.838146");
        QHelpEvent consejo(QEvent::ToolTip, beta, area.viewport()->mapToGlobal(beta));
        QApplication::sendEvent(area.viewport(), &consejo);
        EXPECT_EQ(QToolTip::text(), QStringLiteral("Coeficientes: inversa de X'X por X'y"));
        QToolTip::hideText();
        // A text leads nowhere, nor does a number that the program was given.
        for (const char *texto : {"Variable", "22"}) {
            const QPoint lugar = LugarDe(area, texto);
            Mover(area, lugar);
            EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::ArrowCursor) << texto;
            QTest::mouseClick(area.viewport(), Qt::LeftButton, {}, lugar);
            EXPECT_TRUE(Elegido().starts_with("_FORLA = ")) << Elegido();
        }
    });
}

// A report that the log opens again: of the last batch its numbers still lead there, of an earlier one they no longer do.
TEST_F(VentanaDeTraza, UnResultadoDeAntes) {
    static constexpr const char *YaNo = "Los pasos de este resultado ya no están anotados";
    EnInforme(MC, [](QDialog &, QAbstractScrollArea &) {});
    const std::shared_ptr<const ResultadoGuardado> guardado = EntradasRegistro().back().resultado;
    const auto otraVez = [&](const std::function<void(QAbstractScrollArea &)> &hacer) {
        ConGuion({{Titulo,
                   [&](QDialog &d) {
                       EXPECT_TRUE(QTest::qWaitForWindowExposed(&d));
                       hacer(*Hijo<QAbstractScrollArea>(d, "areaResultado"));
                       d.reject();
                   }}},
                 [&] { MostrarResultadoQt(AVentana(ventana.get()), guardado->salida); });
    };
    otraVez([&](QAbstractScrollArea &area) {
        QTest::mouseClick(area.viewport(), Qt::LeftButton, {}, LugarDe(area, "14.642715", guardado->salida));
        EXPECT_TRUE(Elegido().starts_with("_BETA = ")) << Elegido();
    });
    Correr("ESC A = 3");
    otraVez([&](QAbstractScrollArea &area) {
        QTest::mouseClick(area.viewport(), Qt::LeftButton, {}, LugarDe(area, "14.642715", guardado->salida));
        EXPECT_EQ(Elegido(), "");
        EXPECT_EQ(Estado(), YaNo);
        EXPECT_EQ(TextoDePagina(), "");
        ElegirPaso("ESC A = 3");
        EXPECT_EQ(Estado(), "2 pasos");
        QTest::keyClick(&area, Qt::Key_F9);
        EXPECT_EQ(Estado(), YaNo);
    });
}

// The report holds the rest of the program, and this window stays in use: opened before it, and from it.
TEST_F(VentanaDeTraza, MientrasElInformeEstaAbierto) {
    F9();
    EnInforme(MC, [&](QDialog &d, QAbstractScrollArea &area) {
        EXPECT_TRUE(QTest::qWaitFor(
            [&] { return Ventana()->windowHandle()->transientParent() == d.windowHandle(); }));
        const auto enElla = [&](const char *rotulo) {
            SCOPED_TRACE(rotulo);
            const QModelIndexList hallados = Arbol().model()->match(
                Arbol().model()->index(0, 0), Qt::DisplayRole, QString::fromUtf8(rotulo), 1,
                Qt::MatchStartsWith | Qt::MatchRecursive);
            ASSERT_FALSE(hallados.isEmpty());
            Arbol().scrollTo(hallados.first());
            // By the screen's own way: a window that is held gets nothing there.
            const QPoint lugar =
                Arbol().viewport()->mapTo(Ventana(), Arbol().visualRect(hallados.first()).center());
            QTest::mouseClick(Ventana()->windowHandle(), Qt::LeftButton, {}, lugar);
            EXPECT_TRUE(Elegido().starts_with(rotulo)) << Elegido();
        };
        EXPECT_EQ(Elegido(), MC) << "it follows the batch that waits";
        enElla("_BETA = ");
        Ventana()->reject();
        QTest::keyClick(&area, Qt::Key_F9);
        EXPECT_TRUE(Ventana()->isVisible());
        EXPECT_EQ(Elegido(), MC);
        enElla("_DTE = ");
        EXPECT_TRUE(d.isVisible());
    });
    // The report has gone, and the window is that of the program again.
    EXPECT_TRUE(Ventana()->isVisible());
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return Ventana()->windowHandle()->transientParent() == ventana->windowHandle(); }));
    EnInforme(MC, [&](QDialog &, QAbstractScrollArea &) {});
    EXPECT_EQ(Elegido(), MC);
}

TEST_F(VentanaDeTraza, OtroLoteYElRegistroVacio) {
    Correr("ESC A = 1\nESC B = A + 1");
    F9();
    EXPECT_EQ(Arbol().model()->rowCount(), 2);
    Correr("ESC C = 5");
    EXPECT_EQ(Arbol().model()->rowCount(), 1);
    EXPECT_EQ(Elegido(), "ESC C = 5") << "the window follows";
    ElegirPaso("C = 5");
    // The record is emptied below it, and something is asked of what it shows.
    EmpezarTraza();
    Ventana()->repaint();
    EXPECT_EQ(Elegido(), "");
    Pulsar(*Ventana(), "copiarTraza");
    QTest::keyClick(&Arbol(), Qt::Key_Return);
    Arbol().collapseAll();
    Arbol().expandAll();
    QTest::keyClick(&Arbol(), Qt::Key_Down);
    TerminarTraza();
    QCoreApplication::processEvents();
    EXPECT_EQ(Arbol().model()->rowCount(), 0);
    EXPECT_EQ(Estado(), "No hay pasos: procese una sentencia y se anotarán aquí");
    for (const Qt::Key tecla : {Qt::Key_Down, Qt::Key_Return, Qt::Key_Home}) QTest::keyClick(&Arbol(), tecla);
    Escribir(*Ventana(), "buscarEnTraza", "A");
    QTest::keyClick(Hijo<QLineEdit>(*Ventana(), "buscarEnTraza"), Qt::Key_Return);
    Pulsar(*Ventana(), "copiarTraza");
}

TEST_F(VentanaDeTraza, ApagarYEncender) {
    Correr("ESC A = 1");
    F9();
    QTest::mouseClick(Hijo<QCheckBox>(*Ventana(), "anotarPasos"), Qt::LeftButton, {}, QPoint(8, 10));
    EXPECT_FALSE(Trazando());
    EXPECT_EQ(Estado(), "No se anotan los pasos: marque «Anotar los pasos» y vuelva a procesar");
    Correr("ESC B = 1");
    EXPECT_EQ(Arbol().model()->rowCount(), 1);
    EXPECT_EQ(Elegido(), "ESC A = 1") << "what was recorded stays";
    // The choice is remembered.
    PonerTraza(true);
    PrepararEscritorio();
    EXPECT_FALSE(Trazando());
    // A result that was made meanwhile has no steps.
    EnInforme(MC, [&](QDialog &, QAbstractScrollArea &area) {
        QTest::keyClick(&area, Qt::Key_F9);
        EXPECT_EQ(Estado(), "Este resultado se calculó sin anotar los pasos");
    });
    QTest::mouseClick(Hijo<QCheckBox>(*Ventana(), "anotarPasos"), Qt::LeftButton, {}, QPoint(8, 10));
    Correr("ESC C = 1");
    EXPECT_EQ(Elegido(), "ESC C = 1");
    EXPECT_EQ(Estado(), "2 pasos");
}

TEST_F(VentanaDeTraza, Buscar) {
    Correr("ESC A = 1\nESC B = A + 1\nESC Z = B * A");
    F9();
    QTest::keyClick(&Arbol(), Qt::Key_F, Qt::ControlModifier);
    auto *buscar = Hijo<QLineEdit>(*Ventana(), "buscarEnTraza");
    EXPECT_TRUE(QTest::qWaitFor([&] { return buscar->hasFocus(); }, 2000));
    Arbol().setCurrentIndex({});
    Escribir(*Ventana(), "buscarEnTraza", "a + 1");
    QTest::keyClick(buscar, Qt::Key_Return);
    EXPECT_EQ(Elegido(), "ESC B = A + 1");
    QTest::keyClick(buscar, Qt::Key_Return);
    EXPECT_EQ(Elegido(), "B = A + 1");
    QTest::keyClick(buscar, Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(Elegido(), "ESC B = A + 1");
    Escribir(*Ventana(), "buscarEnTraza", "zzz");
    QTest::keyClick(buscar, Qt::Key_Return);
    EXPECT_EQ(Estado(), "Ningún paso lo menciona");
    EXPECT_EQ(Elegido(), "ESC B = A + 1");
}

TEST_F(VentanaDeTraza, CopiarYGuardar) {
    Correr("ESC A = 2.5\nMAT M = {CONSUMO BENEF}");
    F9();
    ElegirPaso("A = 2.5");
    Pulsar(*Ventana(), "copiarTraza");
    const QMimeData *datos = QApplication::clipboard()->mimeData();
    EXPECT_TRUE(datos->text().endsWith(QStringLiteral("\n\n2.5\n"))) << datos->text().toStdString();
    EXPECT_TRUE(datos->html().contains(QStringLiteral("<td>2.5</td>")) ||
                datos->html().contains(QStringLiteral(">2.5<")));
    // With the decimal commas of whoever chose them.
    DelMenu(*Arbol().viewport(), "Comas decimales al copiar");
    DelMenu(*Arbol().viewport(), "Copiar como tabla");
    EXPECT_TRUE(QApplication::clipboard()->text().endsWith(QStringLiteral("\n\n2,5\n")));
    DelMenu(*Arbol().viewport(), "Comas decimales al copiar");
    for (const char *terminacion : {"html", "txt"}) {
        const QString ruta = Casa() + QStringLiteral("/pasos.") + QString::fromLatin1(terminacion);
        ConGuion({{"Guardar como",
                   [&](QDialog &d) {
                       auto *nombre = Hijo<QLineEdit>(d, "fileNameEdit");
                       nombre->setText(ruta);
                       QTest::keyClick(nombre, Qt::Key_Return);
                   }}},
                 [&] { Pulsar(*Ventana(), "guardarTraza"); });
        const QString guardado = QString::fromUtf8(Leer(ruta));
        EXPECT_EQ(guardado.startsWith(QStringLiteral("<!DOCTYPE html>")),
                  ruta.endsWith(QStringLiteral("html")));
        EXPECT_TRUE(guardado.contains(QStringLiteral("MAT M = {CONSUMO BENEF}")));
        EXPECT_TRUE(guardado.contains(QStringLiteral("39.8")));
    }
}

// What failed is told, and stands out down to its step.
TEST_F(VentanaDeTraza, UnFallo) {
    Correr("ESC A = 1\nMAT M = {CONSUMO BENEF}\nMAT N = M * M",
           {{"Proceso cancelado", [](QDialog &d) { d.reject(); }}});
    F9();
    const QModelIndex ultima = Arbol().model()->index(2, 0);
    EXPECT_EQ(ultima.data().toString(), QStringLiteral("MAT N = M * M"));
    EXPECT_TRUE(ultima.data(Qt::ForegroundRole).isValid());
    EXPECT_FALSE(Arbol().model()->index(0, 0).data(Qt::ForegroundRole).isValid());
    ElegirPaso("N = M * M");
    EXPECT_EQ(Arbol().currentIndex().siblingAtColumn(1).data().toString(), QStringLiteral("Fallo"));
    EXPECT_NE(TextoDePagina().find("Fallo: "), std::string::npos) << TextoDePagina();
}

// A box shows the tree while the step that it is about has no result yet: the row is drawn anew when it has.
TEST_F(VentanaDeTraza, LasFilasTrasUnaCaja) {
    Correr("ESC A = 1");
    F9();
    std::set<std::string> pintadas;
    QObject::connect(Arbol().model(), &QAbstractItemModel::dataChanged, Ventana(),
                     [&](const QModelIndex &desde, const QModelIndex &hasta) {
                         EXPECT_EQ(hasta.column(), 1);
                         pintadas.insert(desde.data().toString().toStdString());
                     });
    const auto enLaCaja = [&](const char *sentencia) {
        return [this, sentencia](QDialog &d) {
            EXPECT_TRUE(QTest::qWaitFor([&] { return Elegido() == sentencia; }, 2000)) << Elegido();
            EXPECT_EQ(Arbol().model()->rowCount(Arbol().currentIndex()), 1);
            d.reject();
        };
    };
    Correr("CAL 7 + 4 * 2", {{"Resultado", enLaCaja("CAL 7 + 4 * 2")}});
    const QModelIndex formula = Arbol().model()->index(0, 0, Arbol().model()->index(0, 0));
    EXPECT_EQ(formula.siblingAtColumn(1).data().toString(), QStringLiteral("15"));
    EXPECT_TRUE(pintadas.contains(formula.data().toString().toStdString()));
    EXPECT_NE(TextoDePagina().find("15"), std::string::npos) << TextoDePagina();
    pintadas.clear();
    Correr("SER BAD = BENEF + NOHAY", {{"Proceso cancelado", enLaCaja("SER BAD = BENEF + NOHAY")},
                                       {"Proceso cancelado", [](QDialog &d) { d.reject(); }}});
    const QModelIndex sentencia = Arbol().model()->index(0, 0);
    for (const QModelIndex &fila : {sentencia, Arbol().model()->index(0, 0, sentencia)}) {
        const std::string rotulo = fila.data().toString().toStdString();
        EXPECT_TRUE(fila.data(Qt::ForegroundRole).isValid()) << rotulo;
        EXPECT_TRUE(pintadas.contains(rotulo)) << rotulo;
    }
    EXPECT_NE(TextoDePagina().find("Fallo"), std::string::npos) << TextoDePagina();
}

// However narrow the page is.
TEST_F(VentanaDeTraza, LosNumerosNoSeParten) {
    Correr(MC, {NoVer});
    F9();
    ElegirPaso("_DTE = ");
    Ventana()->resize(300, 500);
    QCoreApplication::processEvents();
    int numeros = 0;
    for (QTextBlock b = Pagina().document()->begin(); b.isValid(); b = b.next()) {
        bool esNumero = false;
        b.text().toDouble(&esNumero);
        if (!esNumero) continue;
        ++numeros;
        EXPECT_EQ(b.layout()->lineCount(), 1) << b.text().toStdString();
    }
    EXPECT_GE(numeros, 3);
}

// "Atrás" leads back from whatever jumped; the arrows don't.
TEST_F(VentanaDeTraza, AtrasTrasUnSalto) {
    Correr("ESC A = 1\nESC B = A + 1\nESC Z = B * A");
    F9();
    EXPECT_EQ(Elegido(), "ESC A = 1");
    Escribir(*Ventana(), "buscarEnTraza", "z = b");
    QTest::keyClick(Hijo<QLineEdit>(*Ventana(), "buscarEnTraza"), Qt::Key_Return);
    EXPECT_EQ(Elegido(), "ESC Z = B * A");
    F9(12);
    EXPECT_EQ(Elegido(), "ESC B = A + 1");
    QTest::keyClick(&Arbol(), Qt::Key_Down);
    for (const char *antes : {"ESC Z = B * A", "ESC A = 1"}) {
        Pulsar(*Ventana(), "volverTraza");
        EXPECT_EQ(Elegido(), antes);
    }
    EXPECT_FALSE(Hijo<QPushButton>(*Ventana(), "volverTraza")->isEnabled());
    EnInforme(MC, [&](QDialog &, QAbstractScrollArea &area) {
        for (const char *numero : {"14.642715", "0.097372"})
            QTest::mouseClick(area.viewport(), Qt::LeftButton, {}, LugarDe(area, numero));
        EXPECT_TRUE(Elegido().starts_with("_DTE = ")) << Elegido();
        Pulsar(*Ventana(), "volverTraza");
        EXPECT_TRUE(Elegido().starts_with("_BETA = ")) << Elegido();
    });
}

TEST(VentanaTraza, LugarQueMenosTapa) {
    static const struct {
        QRect otra;
        QPoint lugar;
    } Casos[] = {
        {{100, 50, 800, 600}, {900, 50}},   // to the right
        {{100, 500, 800, 600}, {900, 430}}, // its bottom within the screen
        {{100, -20, 800, 600}, {900, 30}},  // and its top
        {{200, 50, 1600, 300}, {200, 350}}, // below
        {{1300, 50, 600, 300}, {920, 350}}, // its right side within the screen
        {{100, 50, 1700, 900}, {920, 430}}, // in the corner
    };
    for (const auto &c : Casos) {
        const QPoint lugar = LugarQueMenosTapa(c.otra, {1000, 600}, {0, 30, 1920, 1000});
        EXPECT_EQ(lugar, c.lugar) << lugar.x() << " " << lugar.y();
    }
    // A screen that has no room for it shows where it begins.
    EXPECT_EQ(LugarQueMenosTapa({0, 0, 400, 400}, {1000, 600}, {0, 30, 800, 500}), QPoint(0, 30));
}

// The most that a record holds opens at once, and says what it has left out.
TEST_F(VentanaDeTraza, VeinteMilPasos) {
    Correr("ESC A = 0\nESC I = 1\nREPITE I DESDE 1 HASTA 15000\nESC A = A + I\nFINREPITE");
    ASSERT_EQ(Traza.pasos.size(), static_cast<std::size_t>(MaxPasosTraza));
    QElapsedTimer reloj;
    reloj.start();
    F9();
    Ventana()->repaint();
    const auto milisegundos = static_cast<int>(reloj.elapsed());
    RecordProperty("abrir_ms", milisegundos);
    EXPECT_LT(milisegundos, 1500) << "a fifth of that without instruments";
    EXPECT_TRUE(Estado().find("que no se guardan") != std::string::npos) << Estado();
    reloj.restart();
    for (int i = 0; i < 20; ++i) QTest::keyClick(&Arbol(), Qt::Key_PageUp);
    QTest::keyClick(&Arbol(), Qt::Key_Home);
    QTest::keyClick(&Arbol(), Qt::Key_End);
    Escribir(*Ventana(), "buscarEnTraza", "zzz");
    QTest::keyClick(Hijo<QLineEdit>(*Ventana(), "buscarEnTraza"), Qt::Key_Return);
    EXPECT_LT(reloj.elapsed(), 5000);
}

// What a screen reader gets.
TEST_F(VentanaDeTraza, Lectura) {
    Correr("ESC A = 2");
    F9();
    ElegirPaso("A = 2");
    for (const char *control : {"buscarEnTraza", "arbolTraza", "detalleTraza"})
        EXPECT_FALSE(Hijo<QWidget>(*Ventana(), control)->accessibleName().isEmpty()) << control;
    QAccessibleInterface *arbol = QAccessible::queryAccessibleInterface(&Arbol());
    ASSERT_NE(arbol, nullptr);
    EXPECT_EQ(arbol->text(QAccessible::Name), QStringLiteral("Sentencias y pasos"));
    const QString leido = Arbol().currentIndex().data(Qt::AccessibleTextRole).toString();
    EXPECT_TRUE(leido.endsWith(QStringLiteral(": A = 2"))) << leido.toStdString();
}

// On a dark desktop what failed and what is marked are as easy to read.
TEST_F(VentanaDeTraza, TemaOscuro) {
    const QPalette claro = QApplication::palette();
    QPalette oscuro(QColor(45, 45, 45), QColor(35, 35, 35));
    oscuro.setColor(QPalette::Link, QColor(138, 180, 248));
    Correr("MAT M = {CONSUMO BENEF}\nMAT N = M * M", {{"Proceso cancelado", [](QDialog &d) { d.reject(); }}});
    F9();
    const auto fallo = [&] {
        return Arbol().model()->index(1, 0).data(Qt::ForegroundRole).value<QColor>().lightness();
    };
    EXPECT_LT(fallo(), 128);
    ElegirPaso("N = M * M");
    QApplication::setPalette(oscuro);
    QCoreApplication::processEvents();
    EXPECT_LT(Arbol().palette().color(QPalette::Base).lightness(), 128);
    EXPECT_GT(fallo(), 128);
    QTextCursor c = Pagina().document()->find(QStringLiteral("Fallo: "));
    ASSERT_FALSE(c.isNull());
    EXPECT_GT(c.charFormat().foreground().color().lightness(), 128);
    if (qEnvironmentVariableIsSet("FOTO")) Ventana()->grab().save(qEnvironmentVariable("FOTO"));
    QApplication::setPalette(claro);
}
