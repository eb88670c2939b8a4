// The result window of a regression, and the ways to get the result out of it: printer, clipboard, files.
#include "apoyo_escritorio.h"

#include "apoyo/datos_csv.h"
#include "charts/ventanas/guardar_resultado.h"
#include "platform/qt/plataforma_qt.h"
#include "platform/texto.h"
#include "store/archivo.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDir>
#include <QImage>
#include <QLineEdit>
#include <QLocale>
#include <QMenu>
#include <QMenuBar>
#include <QProcess>
#include <QRegularExpression>
#include <QScrollBar>
#include <QStandardPaths>
#include <QTimer>

#include <clocale>
#include <cmath>

using Resultado = Escritorio;

namespace {

constexpr const char *Titulo = "Mínimos cuadrados ordinarios";

const Paso Ver = Caja("Aviso", "¿Desea ver la regresion?", "Si", QMessageBox::Question);
const Paso NoVer = Caja("Aviso", "¿Desea ver la regresion?", "No", QMessageBox::Question);

// Klein's consumption function (1950), as published: constant, profits, profits of the year before, wages.
constexpr double Publicados[] = {16.237, 0.193, 0.090, 0.796};

void EscribirKlein(VentanaPrincipal &v) {
    PonerDatos(TipoAnual, "1920#1941");
    ASSERT_TRUE(CargarCsv("klein.csv"));
    v.PantallaEdicion->setPlainText(
        QStringLiteral("SER SALARIOS = SALPRIV + SALPUB\nMC CONSUMO 1 BENEF BENEF(-1) SALARIOS\n"));
    v.PantallaEdicion->selectAll();
}

// What the user does in the window of Klein's function,
// and in those that he opens from it.
void EnKlein(VentanaPrincipal &v, const std::function<void(QDialog &, QAbstractScrollArea &)> &hacer,
             const Guion &mas = {}) {
    EscribirKlein(v);
    Guion guion = {Ver, {Titulo, [&](QDialog &d) {
                             EXPECT_TRUE(QTest::qWaitForWindowExposed(&d));
                             if (auto *area = Hijo<QAbstractScrollArea>(d, "areaResultado")) hacer(d, *area);
                             if (d.isVisible()) d.reject();
                         }}};
    guion.insert(guion.end(), mas.begin(), mas.end());
    ConGuion(guion, [&] { v.findChild<QAction *>(QStringLiteral("comando2006"))->trigger(); });
}

// Chooses an entry of the context menu.
void DelMenu(QAbstractScrollArea &area, const char *entrada) {
    QTimer::singleShot(20, &area, [=] {
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        for (QAction *a : menu->actions()) {
            if (QString(a->text()).remove(u'&').toStdString() != entrada) continue;
            menu->setActiveAction(a);
            QTest::keyClick(menu, Qt::Key_Return);
            return;
        }
        ADD_FAILURE() << "no entry " << entrada;
        menu->close();
    });
    QContextMenuEvent suceso(QContextMenuEvent::Keyboard, {20, 20},
                             area.viewport()->mapToGlobal(QPoint(20, 20)));
    QApplication::sendEvent(area.viewport(), &suceso);
}

std::string Portapapeles() {
    return QApplication::clipboard()->text().toStdString();
}

// A line with each stretch of blanks made one.
QString Apretada(const QString &linea) {
    return linea.simplified();
}

QStringList TextoDePdf(const QString &ruta) {
    QProcess p;
    p.start(QStringLiteral("pdftotext"), {QStringLiteral("-layout"), QStringLiteral("-enc"),
                                          QStringLiteral("UTF-8"), ruta, QStringLiteral("-")});
    if (!p.waitForStarted() || !p.waitForFinished()) return {};
    return QString::fromUtf8(p.readAllStandardOutput()).split(u'\n');
}

bool HayPdftotext() {
    return !QStandardPaths::findExecutable(QStringLiteral("pdftotext")).isEmpty();
}

// The home of this run.
QString Casa() {
    return qEnvironmentVariable("HOME");
}

QDir Documentos() {
    return {QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)};
}

// The lines of the text are in the document, with their columns: fields of a line stand as far apart as they did.
void EstaEnElPdf(const QString &texto, const QString &ruta) {
    if (!HayPdftotext()) return;
    const QStringList paginas = TextoDePdf(ruta);
    QStringList apretadas;
    for (const QString &l : paginas) apretadas << Apretada(l);
    static const QRegularExpression Palabra(QStringLiteral("[0-9A-Za-z]"));
    for (const QString &linea : texto.split(u'\n')) {
        if (!linea.contains(Palabra)) continue;
        EXPECT_TRUE(apretadas.contains(Apretada(linea.left(70)))) << linea.toStdString();
    }
}

QByteArray Leer(const QString &ruta) {
    QFile f(ruta);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

// A result of the program, as the window gets it.
struct ResultadoGuardado {
    TextoSalida lineas;
    std::vector<TablaCoeficientes> tablas;
    std::string titulo, tabla;
    SalidaResultado Salida() const {
        return {SalidaRegresion, titulo, 8, 0, &lineas, nullptr, &tablas, tabla};
    }
};

ResultadoGuardado Guardado;

// Klein's function once, its result kept.
void TomarKlein(VentanaPrincipal &v) {
    EscribirKlein(v);
    OperacionesPlataforma mirona = Plataforma();
    mirona.mostrarResultado = [](Ventana *, const SalidaResultado &s) {
        Guardado.lineas = *s.lineas;
        if (s.tablas != nullptr) Guardado.tablas = *s.tablas;
        Guardado.titulo = s.titulo;
        Guardado.tabla = s.tabla;
    };
    InstalarPlataforma(mirona);
    ConGuion({Ver}, [&] { v.findChild<QAction *>(QStringLiteral("comando2006"))->trigger(); });
    InstalarPlataformaQt();
    ASSERT_FALSE(Guardado.lineas.empty());
}

} // namespace

TEST_F(Resultado, NoQuiereVerlo) {
    EscribirKlein(*ventana);
    ConGuion({NoVer}, [&] { Ordenar(2006); });
    EXPECT_NEAR(ValoresDe("CONSUMO", 1).front(), 39.8, 1e-9);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(Resultado, LaVentana) {
    EnKlein(*ventana, [](QDialog &d, QAbstractScrollArea &area) {
        const QList<QAction *> menu = Hijo<QMenuBar>(d, "menuResultado")->actions();
        ASSERT_EQ(menu.size(), 2);
        EXPECT_EQ(menu[0]->text(), QStringLiteral("&Imprimir"));
        EXPECT_EQ(menu[1]->text(), QStringLiteral("&Salir"));
        EXPECT_EQ(area.verticalScrollBar()->minimum(), 0);
        EXPECT_EQ(area.verticalScrollBar()->maximum(), 4000);
        EXPECT_EQ(area.verticalScrollBar()->value(), 0);
        // Looked at under the arrow, though the batch goes on behind it.
        ASSERT_NE(QApplication::overrideCursor(), nullptr);
        EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::ArrowCursor);
        // Something black on white paper.
        const QImage imagen = area.viewport()->grab().toImage();
        EXPECT_EQ(imagen.pixelColor(imagen.width() / 2, imagen.height() - 8), QColor(Qt::white));
        menu[1]->trigger();
        EXPECT_FALSE(d.isVisible());
    });
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(Resultado, Desplazarse) {
    EnKlein(*ventana, [](QDialog &, QAbstractScrollArea &area) {
        QScrollBar &barra = *area.verticalScrollBar();
        const QImage arriba = area.viewport()->grab().toImage();
        static constexpr struct {
            Qt::Key tecla;
            int linea;
        } Teclas[] = {{Qt::Key_Up, 0},       {Qt::Key_Down, 1},   {Qt::Key_Down, 2},
                      {Qt::Key_PageDown, 7}, {Qt::Key_PageUp, 2}, {Qt::Key_PageUp, 0},
                      {Qt::Key_PageDown, 5}, {Qt::Key_Up, 4},     {Qt::Key_Home, 0}};
        for (const auto &t : Teclas) {
            QTest::keyClick(&area, t.tecla);
            EXPECT_EQ(barra.value(), t.linea);
        }
        EXPECT_EQ(area.viewport()->grab().toImage(), arriba);
        // Past the end the last line stays on top, and the bar shows where it is.
        QTest::keyClick(&area, Qt::Key_End);
        const int ultima = barra.value();
        EXPECT_GT(ultima, 10);
        EXPECT_LT(ultima, 200);
        EXPECT_NE(area.viewport()->grab().toImage(), arriba);
        QTest::keyClick(&area, Qt::Key_Down);
        QTest::keyClick(&area, Qt::Key_PageDown);
        EXPECT_EQ(barra.value(), ultima);
        barra.setValue(4000);
        EXPECT_EQ(barra.value(), ultima);
        barra.setValue(3);
        EXPECT_EQ(barra.value(), 3);
        barra.triggerAction(QAbstractSlider::SliderSingleStepAdd);
        EXPECT_EQ(barra.value(), 4);
        barra.triggerAction(QAbstractSlider::SliderPageStepAdd);
        EXPECT_EQ(barra.value(), 9);
        barra.triggerAction(QAbstractSlider::SliderPageStepSub);
        EXPECT_EQ(barra.value(), 4);
        barra.setValue(0);
        // The wheel: three lines a notch; parts of a notch wait for the rest.
        const auto rueda = [&](int grados) {
            QWheelEvent suceso({20, 20}, area.viewport()->mapToGlobal(QPointF(20, 20)), {}, {0, grados},
                               Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
            QApplication::sendEvent(area.viewport(), &suceso);
            return barra.value();
        };
        EXPECT_EQ(rueda(-120), 3);
        EXPECT_EQ(rueda(-60), 3);
        EXPECT_EQ(rueda(-60), 6);
        EXPECT_EQ(rueda(240), 0);
        EXPECT_EQ(rueda(1 << 20), 0);
        EXPECT_EQ(rueda(-(1 << 20)), ultima);
    });
}

TEST_F(Resultado, Copiar) {
    EnKlein(*ventana, [](QDialog &, QAbstractScrollArea &area) {
        QApplication::clipboard()->clear();
        DelMenu(area, "Copiar");
        const std::string texto = Portapapeles();
        for (const char *numero : {"16.2366", "0.1929", "0.0898", "0.7962"})
            EXPECT_NE(texto.find(numero), std::string::npos) << numero << "\n" << texto;
        EXPECT_NE(texto.find("Típic"), std::string::npos);
        QApplication::clipboard()->clear();
        QTest::keyClick(&area, Qt::Key_C, Qt::ControlModifier);
        EXPECT_EQ(Portapapeles(), texto);
    });
}

// Fields parted by tabulators, numbers with all their digits and a decimal point.
TEST_F(Resultado, CopiarComoTabla) {
    EnKlein(*ventana, [](QDialog &, QAbstractScrollArea &area) {
        QApplication::clipboard()->clear();
        DelMenu(area, "Copiar como tabla");
        const QStringList lineas = QApplication::clipboard()->text().split(u'\n');
        static constexpr const char *Nombres[] = {"1", "BENEF", "BENEF(-1)", "SALARIOS"};
        for (std::size_t i = 0; i < std::size(Nombres); ++i) {
            const QStringList filas = lineas.filter(QRegularExpression(
                QStringLiteral("^%1\\t").arg(QRegularExpression::escape(QString::fromLatin1(Nombres[i])))));
            ASSERT_EQ(filas.size(), 1) << Nombres[i];
            const QStringList campos = filas[0].split(u'\t');
            ASSERT_EQ(campos.size(), 5);
            EXPECT_NEAR(QLocale::c().toDouble(campos[1]), Publicados[i], 5e-4);
            EXPECT_GE(campos[1].size(), 15) << campos[1].toStdString();
            EXPECT_FALSE(filas[0].contains(u','));
        }
    });
}

TEST_F(Resultado, GuardarComo) {
    const QString ruta = Casa() + QStringLiteral("/elegido.txt");
    QFile::remove(ruta);
    const auto guardar = [](QDialog &, QAbstractScrollArea &area) { DelMenu(area, "Guardar como..."); };
    EnKlein(*ventana, guardar, {ConEscape("Guardar como")});
    EXPECT_FALSE(QFile::exists(ruta));
    EnKlein(*ventana, guardar, {{"Guardar como", [&](QDialog &d) {
                                     auto *nombre = d.findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
                                     ASSERT_NE(nombre, nullptr);
                                     nombre->setText(Casa() + QStringLiteral("/elegido")); // gets its ending
                                     QTest::keyClick(nombre, Qt::Key_Return);
                                 }}});
    EXPECT_TRUE(QFile::exists(ruta));
    EXPECT_TRUE(Leer(ruta).contains("16.236600"));
}

TEST_F(Resultado, GuardarEnTodasLasFormas) {
    TomarKlein(*ventana);
    const SalidaResultado salida = Guardado.Salida();
    const QString texto = QString::fromStdString(Utf8De1252(TextoDeResultado(salida)));
    QDir carpeta(Casa() + QStringLiteral("/guardados con eñe"));
    carpeta.removeRecursively();
    ASSERT_TRUE(carpeta.mkpath(QStringLiteral(".")));

    const QString txt = carpeta.filePath(QStringLiteral("klein.txt"));
    ASSERT_TRUE(GuardarResultado(salida, txt));
    const QString leido = QString::fromUtf8(Leer(txt));
    EXPECT_TRUE(leido.startsWith(QStringLiteral("Mínimos cuadrados ordinarios\n")));
    EXPECT_TRUE(leido.contains(texto));

    const QString tsv = carpeta.filePath(QStringLiteral("klein.TSV"));
    ASSERT_TRUE(GuardarResultado(salida, tsv));
    EXPECT_EQ(QString::fromUtf8(Leer(tsv)).toStdString(), Utf8De1252(TablaDeResultado(salida)));
    EXPECT_TRUE(Leer(tsv).contains("\nBENEF(-1)\t0.0898"));

    const QString pdf = carpeta.filePath(QStringLiteral("klein.pdf"));
    ASSERT_TRUE(GuardarResultado(salida, pdf));
    EXPECT_TRUE(Leer(pdf).startsWith("%PDF-"));
    EstaEnElPdf(texto, pdf);

    const QString png = carpeta.filePath(QStringLiteral("klein.png"));
    ASSERT_TRUE(GuardarResultado(salida, png));
    const QImage imagen(png);
    ASSERT_FALSE(imagen.isNull());
    // As high as the text is: a line of letters has twelve units at least, and there are rules between some.
    EXPECT_GT(imagen.height(), 12 * static_cast<int>(Guardado.lineas.size()));
    EXPECT_LT(imagen.height(), 100 * static_cast<int>(Guardado.lineas.size()));

    // Any other ending is text.
    const QString otro = carpeta.filePath(QStringLiteral("klein"));
    ASSERT_TRUE(GuardarResultado(salida, otro));
    EXPECT_EQ(Leer(otro), Leer(txt));
}

TEST_F(Resultado, GuardarDondeNoSePuede) {
    TomarKlein(*ventana);
    for (const char *final : {"txt", "tsv", "pdf", "png"})
        EXPECT_FALSE(
            GuardarResultado(Guardado.Salida(),
                             Casa() + QStringLiteral("/no/existe/klein.%1").arg(QString::fromLatin1(final))))
            << final;
}

// The longest result: 4,000 lines, each of another kind. A picture of it would be larger than a picture can be.
TEST_F(Resultado, GuardarElMasLargo) {
    ResultadoGuardado largo;
    largo.titulo = "Largo";
    for (int i = 0; i < MaxLineasSalida; ++i) AnadirLinea(largo.lineas, i % 2, "linea " + std::to_string(i));
    const QString pdf = Casa() + QStringLiteral("/largo.pdf"), png = Casa() + QStringLiteral("/largo.png");
    QFile::remove(png);
    ASSERT_TRUE(GuardarResultado(largo.Salida(), pdf));
    const auto enElPdf = [&](const QString &linea) { return TextoDePdf(pdf).filter(linea).size() == 1; };
    EXPECT_TRUE(!HayPdftotext() || enElPdf(QStringLiteral("linea 3999")));
    EXPECT_FALSE(GuardarResultado(largo.Salida(), png));
    EXPECT_FALSE(QFile::exists(png));
}

// Without a printer a document of its own each time, whose place a note tells.
TEST_F(Resultado, ImprimirSinImpresora) {
    const QDir documentos = Documentos();
    ASSERT_TRUE(documentos.path().startsWith(Casa())); // not in anybody's folder
    for (const QString &f : documentos.entryList({QStringLiteral("*.pdf")}))
        QFile::remove(documentos.filePath(f));
    QString texto;
    testing::internal::CaptureStderr();
    EnKlein(*ventana, [&](QDialog &d, QAbstractScrollArea &area) {
        QTest::keyClick(&area, Qt::Key_C, Qt::ControlModifier);
        texto = QApplication::clipboard()->text();
        auto *imprimir = Hijo<QAction>(d, "comando2006");
        for (int i = 0; i < 3; ++i) imprimir->trigger();
        EXPECT_TRUE(d.isVisible());
    });
    const QString nota = QString::fromStdString(testing::internal::GetCapturedStderr());
    const QStringList escritos = documentos.entryList({QStringLiteral("*.pdf")});
    EXPECT_EQ(escritos.size(), 3); // nothing overwritten
    static const QRegularExpression Nombre(QStringLiteral(
        "^Imprime1 Imprimiendo \\d{4}-\\d\\d-\\d\\d \\d\\d\\.\\d\\d\\.\\d\\d( \\(\\d\\))?\\.pdf$"));
    for (const QString &f : escritos) {
        EXPECT_TRUE(Nombre.match(f).hasMatch()) << f.toStdString();
        EXPECT_TRUE(nota.contains(documentos.filePath(f))) << nota.toStdString();
        EstaEnElPdf(texto, documentos.filePath(f));
    }
}

// The text of the edit screen: what is selected, or all of it.
TEST_F(Resultado, ImprimirSeleccion) {
    const QDir documentos = Documentos();
    static constexpr struct {
        int desde, hasta;
        const char *esta, *noEsta;
    } Casos[] = {{0, 0, "ESC B = 2", "nada"}, {3, 4, "ESC B = 2", "nada"}, {0, 9, "ESC A = 1", "ESC B"}};
    for (const auto &c : Casos) {
        for (const QString &f : documentos.entryList({QStringLiteral("*.pdf")}))
            QFile::remove(documentos.filePath(f));
        ventana->PantallaEdicion->setPlainText(QStringLiteral("ESC A = 1\nESC B = 2\n; Peñón"));
        QTextCursor cursor = ventana->PantallaEdicion->textCursor();
        cursor.setPosition(c.desde);
        cursor.setPosition(c.hasta, QTextCursor::KeepAnchor);
        ventana->PantallaEdicion->setTextCursor(cursor);
        testing::internal::CaptureStderr();
        ConGuion({}, [&] { Ordenar(2088); });
        EXPECT_NE(testing::internal::GetCapturedStderr(), "");
        const QStringList escritos = documentos.entryList({QStringLiteral("*.pdf")});
        ASSERT_EQ(escritos.size(), 1);
        if (!HayPdftotext()) continue;
        const QString texto = TextoDePdf(documentos.filePath(escritos[0])).join(u'\n');
        EXPECT_TRUE(texto.contains(QStringLiteral("LISTADO PANTALLA PRINCIPAL"))) << texto.toStdString();
        EXPECT_TRUE(texto.contains(QString::fromUtf8(c.esta))) << texto.toStdString();
        EXPECT_FALSE(texto.contains(QString::fromUtf8(c.noEsta))) << texto.toStdString();
    }
}

TEST_F(Resultado, ImprimirNada) {
    ConGuion({Caja("Proceso cancelado", "No hay datos a procesar. Punto 3.")}, [&] { Ordenar(2088); });
}

// Where the desktop speaks Spanish its own texts have a comma; those of the program don't.
TEST_F(Resultado, ElPuntoDecimalQueda) {
    const std::string local = qgetenv("LC_ALL").toStdString();
    if (!local.starts_with("es_ES")) GTEST_SKIP() << "run again with LC_ALL=es_ES.UTF-8";
    EXPECT_EQ(QLocale().decimalPoint(), QStringLiteral(","));
    EXPECT_STREQ(std::localeconv()->decimal_point, ".");
    PonerDatos(TipoAnual, "1990#1999");
    ventana->PantallaEdicion->setPlainText(QStringLiteral("ESC A = 1.5"));
    ventana->PantallaEdicion->selectAll();
    ConGuion({}, [&] { Ordenar(2006); });
    EXPECT_EQ(EscalarDe("A"), 1.5);
    ConGuion({{"Relación de escalares",
               [](QDialog &d) {
                   EXPECT_EQ(LineasDe(d, "lista").back(), "A           =   1.5000");
                   Pulsar(d, "OK");
               }}},
             [&] { Ordenar(2066); });
}
