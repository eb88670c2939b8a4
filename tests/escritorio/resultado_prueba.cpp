// The result window of a regression, and the ways to get the result out of it: printer, clipboard, files.
#include "apoyo_escritorio.h"
#include "apoyo_pdf.h"

#include "apoyo/datos_csv.h"
#include "charts/resultados/formatos_tabla.h"
#include "charts/resultados/ventanas/guardar_resultado.h"
#include "platform/qt/superficie_qt.h"
#include "platform/texto.h"
#include "shell/ventanas/escritorio.h"
#include "store/archivo.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDir>
#include <QFileDialog>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QScreen>
#include <QScrollBar>
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

std::string Portapapeles() {
    return QApplication::clipboard()->text().toStdString();
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
    PrepararEscritorio();
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
        // Black on white paper: the frame, and nothing near the foot.
        const QImage imagen = area.viewport()->grab().toImage();
        EXPECT_EQ(imagen.pixelColor(imagen.width() / 2, 0), QColor(Qt::black));
        EXPECT_EQ(imagen.pixelColor(imagen.width() / 2, imagen.height() - 8), QColor(Qt::white));
        menu[1]->trigger();
        EXPECT_FALSE(d.isVisible());
    });
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

// As many columns and lines as it opens with, where the screen has them; on a smaller one it stays inside.
TEST_F(Resultado, CabeEnLaPantalla) {
    EnKlein(*ventana, [](QDialog &d, QAbstractScrollArea &area) {
        const QSize pantalla = d.screen()->availableSize();
        EXPECT_LE(d.width(), pantalla.width());
        EXPECT_LT(d.height(), pantalla.height()) << "there is room for the title bar";
        const QFontMetrics letra(FuenteFijaDePantalla());
        const QSize suyo(77 * letra.horizontalAdvance(u'0'), 30 * letra.lineSpacing());
        if (suyo.width() + 40 > pantalla.width() || suyo.height() + 120 > pantalla.height()) return;
        EXPECT_EQ(area.viewport()->size(), suyo);
    });
}

TEST_F(Resultado, SinRaton) {
    for (const QString &f : Documentos().entryList({QStringLiteral("*.pdf")}))
        QFile::remove(Documentos().filePath(f));
    testing::internal::CaptureStderr();
    EnKlein(*ventana, [](QDialog &d, QAbstractScrollArea &area) {
        Activar(d);
        EXPECT_EQ(QApplication::focusWidget(), &area);
        QTest::keyClick(&area, Qt::Key_Return); // no button: nothing happens
        EXPECT_TRUE(d.isVisible());
        QTest::keyClick(&area, Qt::Key_I, Qt::AltModifier);
        EXPECT_EQ(Documentos().entryList({QStringLiteral("*.pdf")}).size(), 1);
        EXPECT_TRUE(d.isVisible());
        QTest::keyClick(&area, Qt::Key_S, Qt::AltModifier);
        EXPECT_FALSE(d.isVisible());
    });
    testing::internal::GetCapturedStderr();
    EnKlein(*ventana, [](QDialog &d, QAbstractScrollArea &area) {
        Activar(d);
        QTest::keyClick(&area, Qt::Key_Escape);
        EXPECT_FALSE(d.isVisible());
    });
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
        DelMenu(*area.viewport(), "Copiar");
        const std::string texto = Portapapeles();
        for (const char *numero : {"16.2366", "0.1929", "0.0898", "0.7962"})
            EXPECT_NE(texto.find(numero), std::string::npos) << numero << "\n" << texto;
        EXPECT_NE(texto.find("Típic"), std::string::npos);
        QApplication::clipboard()->clear();
        QTest::keyClick(&area, Qt::Key_C, Qt::ControlModifier);
        EXPECT_EQ(Portapapeles(), texto);
        QApplication::clipboard()->clear();
        ElegirDelMenu(area, "Copiar");
        QTest::keyClick(&area, Qt::Key_F10, Qt::ShiftModifier);
        EXPECT_EQ(Portapapeles(), texto);
    });
}

// Fields parted by tabulators, numbers with all their digits and a decimal point.
TEST_F(Resultado, CopiarComoTabla) {
    EnKlein(*ventana, [](QDialog &, QAbstractScrollArea &area) {
        QApplication::clipboard()->clear();
        DelMenu(*area.viewport(), "Copiar como tabla");
        const QStringList lineas = QApplication::clipboard()->text().split(u'\n');
        EXPECT_TRUE(lineas.contains(QStringLiteral("Nº Observaciones\t21")));
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
    static constexpr struct {
        const char *filtro, *nombre, *archivo, *empieza;
    } Casos[] = {
        {"Texto (*.txt)", "elegido", "elegido.txt", "Mínimos cuadrados"},
        {"Texto (*.txt)", "elegido.txt", "elegido.txt", "Mínimos cuadrados"},
        {"Documento PDF (*.pdf)", "klein", "klein.pdf", "%PDF"},
        {"Documento PDF (*.pdf)", "klein 1.5", "klein 1.5.pdf", "%PDF"},
        {"Tabla para hojas de cálculo (*.tsv)", "a.b.c", "a.b.c.tsv", "Variable Dep.\t"},
        {"Imagen PNG (*.png)", "peñón", "peñón.png", "\x89PNG"},
        {"Imagen PNG (*.png)", "otra.PDF", "otra.PDF", "%PDF"}, // the ending that was typed holds
    };
    const QDir casa(Casa());
    const auto guardar = [](QDialog &, QAbstractScrollArea &area) {
        DelMenu(*area.viewport(), "Guardar como...");
    };
    EnKlein(*ventana, guardar, {ConEscape("Guardar como")});
    for (const auto &c : Casos) {
        SCOPED_TRACE(std::string(c.filtro) + ": " + c.nombre);
        const QString ruta = casa.filePath(QString::fromUtf8(c.archivo));
        QFile::remove(ruta);
        const Paso elegir = {"Guardar como", [&](QDialog &d) {
                                 auto *nombre = d.findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
                                 ASSERT_NE(nombre, nullptr);
                                 EXPECT_EQ(nombre->text(), QStringLiteral("Mínimos cuadrados ordinarios"));
                                 qobject_cast<QFileDialog *>(&d)->selectNameFilter(
                                     QString::fromUtf8(c.filtro));
                                 nombre->setText(casa.filePath(QString::fromUtf8(c.nombre)));
                                 QTest::keyClick(nombre, Qt::Key_Return);
                             }};
        EnKlein(*ventana, guardar, {elegir});
        EXPECT_TRUE(Leer(ruta).startsWith(c.empieza)) << Leer(ruta).left(20).toStdString();
    }
}

// What is there already goes only after a question; "No" leads back to the dialog.
TEST_F(Resultado, GuardarSobreOtro) {
    const QString ruta = Casa() + QStringLiteral("/hay.txt");
    const auto guardar = [](QDialog &, QAbstractScrollArea &area) {
        DelMenu(*area.viewport(), "Guardar como...");
    };
    const Paso elegir = {"Guardar como", [&](QDialog &d) {
                             auto *nombre = d.findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
                             nombre->setText(Casa() + QStringLiteral("/hay"));
                             QTest::keyClick(nombre, Qt::Key_Return);
                         }};
    const auto pregunta = [](const char *boton) {
        return Caja("Guardar como", "hay.txt ya existe. ¿Desea reemplazarlo?", boton, QMessageBox::Question);
    };
    QFile antes(ruta);
    ASSERT_TRUE(antes.open(QIODevice::WriteOnly));
    antes.write("lo de antes");
    antes.close();
    EnKlein(*ventana, guardar, {elegir, pregunta("No"), ConEscape("Guardar como")});
    EXPECT_EQ(Leer(ruta), "lo de antes");
    EnKlein(*ventana, guardar, {elegir, pregunta("Si")});
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
    EXPECT_TRUE(enElPdf(QStringLiteral("linea 3999")));
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
        auto *alPie = Hijo<QLabel>(d, "lugarDeImpresion");
        ASSERT_NE(alPie, nullptr);
        EXPECT_FALSE(alPie->isVisible());
        for (int i = 0; i < 3; ++i) imprimir->trigger();
        EXPECT_TRUE(d.isVisible());
        EXPECT_TRUE(alPie->isVisible()); // the main window's line may be covered
        EXPECT_TRUE(QString(alPie->text()).remove(QChar(0x200B)).contains(documentos.path()))
            << alPie->text().toStdString();
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
