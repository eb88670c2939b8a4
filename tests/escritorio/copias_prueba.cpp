// What the result window gives away: copies for documents, files, its text for screen readers; its keys, its least width, the
// sign of lines below, and the note of a printed document.
#include "apoyo_escritorio.h"
#include "apoyo_pdf.h"

#include "charts/resultados/formatos_tabla.h"
#include "charts/resultados/ventanas/copiar_resultado.h"
#include "charts/resultados/ventanas/guardar_resultado.h"
#include "charts/resultados/ventanas/ventana_resultado_qt.h"
#include "platform/qt/superficie_qt.h"
#include "platform/texto.h"

#include <QAbstractScrollArea>
#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QDir>
#include <QLabel>
#include <QMimeData>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTextBrowser>

namespace {

class Copias : public Escritorio {
protected:
    void SetUp() override {
        Escritorio::SetUp();
        PonerComasAlCopiar(false);
    }
    void TearDown() override { PonerComasAlCopiar(false); }
};

constexpr const char *Tabla = "Regresores\tCoeficiente\tDesv. Típica\nBENEF\t0.25\t-1.5\n";

using Hacer = std::function<void(QDialog &, QAbstractScrollArea &, const SalidaResultado &)>;

// A report of so many lines without rules between them.
void EnInforme(int numero, const Hacer &hacer, const Guion &mas = {}) {
    TextoSalida lineas;
    for (int i = 0; i < numero; ++i) AnadirLinea(lineas, 0, "linea " + std::to_string(i));
    const std::string tabla = Texto1252DeUtf8(Tabla);
    const SalidaResultado salida = {.tipo = SalidaRegresion,
                                    .titulo = "Informe",
                                    .Clase = 8,
                                    .Contenido = 0,
                                    .lineas = &lineas,
                                    .fijas = nullptr,
                                    .tablas = nullptr,
                                    .tabla = tabla};
    Guion guion = {{"Informe", [&](QDialog &d) {
                        EXPECT_TRUE(QTest::qWaitForWindowExposed(&d));
                        if (auto *area = Hijo<QAbstractScrollArea>(d, "areaResultado"))
                            hacer(d, *area, salida);
                        if (d.isVisible()) d.reject();
                    }}};
    guion.insert(guion.end(), mas.begin(), mas.end());
    ConGuion(guion, [&] { MostrarResultadoQt(nullptr, salida); });
}

QString Texto() {
    return QApplication::clipboard()->text();
}

QStringList Impresos() {
    return Documentos().entryList({QStringLiteral("*.pdf")});
}

} // namespace

// Text and HTML together: a spreadsheet takes the one, a word processor the other.
TEST_F(Copias, ComoTabla) {
    EnInforme(3, [](QDialog &, QAbstractScrollArea &area, const SalidaResultado &) {
        QApplication::clipboard()->clear();
        DelMenu(*area.viewport(), "Copiar como tabla");
        const QMimeData *datos = QApplication::clipboard()->mimeData();
        EXPECT_EQ(datos->text(), QString::fromUtf8(Tabla));
        ASSERT_TRUE(datos->hasHtml());
        EXPECT_TRUE(datos->html().contains(QStringLiteral("<caption>Informe</caption>")));
        EXPECT_TRUE(datos->html().contains(QStringLiteral(">Desv. Típica</th>")));
        EXPECT_TRUE(datos->html().contains(QStringLiteral("<td align=\"right\">0.25</td>")));
    });
}

TEST_F(Copias, ComoLatexYMarkdown) {
    EnInforme(3, [](QDialog &, QAbstractScrollArea &area, const SalidaResultado &) {
        DelMenu(*area.viewport(), "Copiar como LaTeX");
        EXPECT_TRUE(Texto().contains(QStringLiteral("BENEF & 0.25 & $-$1.5 \\\\"))) << Texto().toStdString();
        EXPECT_TRUE(Texto().contains(QStringLiteral("Desv. Típica")));
        DelMenu(*area.viewport(), "Copiar como Markdown");
        EXPECT_TRUE(Texto().contains(QStringLiteral("| BENEF | 0.25 | -1.5 |"))) << Texto().toStdString();
    });
}

// The choice holds for every table that is copied, in this window and in the next; files keep the point.
TEST_F(Copias, ConComas) {
    EnInforme(3, [](QDialog &, QAbstractScrollArea &area, const SalidaResultado &) {
        DelMenu(*area.viewport(), "Comas decimales al copiar");
        DelMenu(*area.viewport(), "Copiar como tabla");
        EXPECT_EQ(Texto(), QString::fromUtf8(Tabla)
                               .replace(u'.', u',')
                               .replace(QStringLiteral("Desv,"), QStringLiteral("Desv.")));
        EXPECT_TRUE(QApplication::clipboard()->mimeData()->html().contains(QStringLiteral(">-1,5</td>")));
    });
    EnInforme(3, [](QDialog &, QAbstractScrollArea &area, const SalidaResultado &salida) {
        DelMenu(*area.viewport(), "Copiar como LaTeX");
        EXPECT_TRUE(Texto().contains(QStringLiteral("BENEF & 0,25 & $-$1,5 \\\\")));
        DelMenu(*area.viewport(), "Copiar como Markdown");
        EXPECT_TRUE(Texto().contains(QStringLiteral("| BENEF | 0,25 | -1,5 |")));
        DelMenu(*area.viewport(), "Copiar"); // the lines are what they are
        EXPECT_EQ(Texto(), QStringLiteral("linea 0\nlinea 1\nlinea 2\n"));
        const QString csv = Casa() + QStringLiteral("/comas.csv");
        ASSERT_TRUE(GuardarResultado(salida, csv));
        EXPECT_TRUE(Leer(csv).contains("BENEF,0.25,-1.5\r\n"));
        DelMenu(*area.viewport(), "Comas decimales al copiar");
        DelMenu(*area.viewport(), "Copiar como tabla");
        EXPECT_EQ(Texto(), QString::fromUtf8(Tabla));
    });
}

TEST_F(Copias, Ficheros) {
    EnInforme(3, [](QDialog &, QAbstractScrollArea &, const SalidaResultado &salida) {
        static constexpr struct {
            const char *nombre, *contiene;
        } Casos[] = {{"a.csv", "Regresores,Coeficiente,Desv. Típica\r\nBENEF,0.25,-1.5\r\n"},
                     {"a.html", "<th align=\"right\">Desv. Típica</th>"},
                     {"a.TEX", "Regresores & Coeficiente & Desv. Típica \\\\"}};
        for (const auto &c : Casos) {
            const QString ruta = Casa() + u'/' + QLatin1String(c.nombre);
            ASSERT_TRUE(GuardarResultado(salida, ruta)) << c.nombre;
            EXPECT_TRUE(Leer(ruta).contains(c.contiene)) << Leer(ruta).toStdString();
        }
        EXPECT_FALSE(GuardarResultado(salida, Casa() + QStringLiteral("/no/hay/a.tex")));
    });
}

// However small it is made, the block of seventy characters stays whole.
TEST_F(Copias, NoSeEstrecha) {
    EnInforme(3, [](QDialog &d, QAbstractScrollArea &area, const SalidaResultado &) {
        d.resize(50, 300);
        QCoreApplication::processEvents();
        const int minimo = 72 * QFontMetrics(FuenteFijaDePantalla()).horizontalAdvance(u'0');
        const int pantalla = d.screen()->availableSize().width() - area.verticalScrollBar()->width();
        EXPECT_GE(area.viewport()->width(), std::min(minimo, pantalla));
    });
}

// The sign counts what isn't drawn below: as many lines down it is gone.
TEST_F(Copias, LoQueSigue) {
    EnInforme(3, [](QDialog &d, QAbstractScrollArea &, const SalidaResultado &) {
        EXPECT_FALSE(Hijo<QLabel>(d, "siguenLineas")->isVisible());
    });
    EnInforme(60, [](QDialog &d, QAbstractScrollArea &area, const SalidaResultado &) {
        auto *senal = Hijo<QLabel>(d, "siguenLineas");
        const auto cuantas = [&] {
            return senal->isVisible() ? senal->text().section(u' ', 2, 2).toInt() : 0;
        };
        const int faltan = cuantas();
        ASSERT_GT(faltan, 30) << senal->text().toStdString();
        ASSERT_LT(faltan, 60);
        EXPECT_TRUE(area.viewport()->rect().contains(senal->geometry()));
        QTest::keyClick(&area, Qt::Key_PageDown);
        EXPECT_EQ(cuantas(), faltan - 5);
        for (int i = 5; i < faltan - 1; ++i) QTest::keyClick(&area, Qt::Key_Down);
        EXPECT_EQ(senal->text(), QStringLiteral("▼ Sigue 1 línea"));
        QTest::keyClick(&area, Qt::Key_Down);
        EXPECT_FALSE(senal->isVisible());
        QTest::keyClick(&area, Qt::Key_Home);
        EXPECT_EQ(cuantas(), faltan);
        d.resize(d.width(), d.height() - 5 * QFontMetrics(FuenteFijaDePantalla()).lineSpacing());
        QCoreApplication::processEvents();
        EXPECT_EQ(cuantas(), faltan + 5);
    });
}

// A screen reader finds the lines, and reads on from the first one shown.
TEST_F(Copias, LoLeeUnLector) {
    EnInforme(60, [](QDialog &, QAbstractScrollArea &area, const SalidaResultado &salida) {
        QAccessibleInterface *lector = QAccessible::queryAccessibleInterface(&area);
        ASSERT_NE(lector, nullptr);
        EXPECT_EQ(lector->role(), QAccessible::Document);
        EXPECT_EQ(lector->text(QAccessible::Name), QStringLiteral("Informe"));
        EXPECT_TRUE(lector->state().readOnly);
        QAccessibleTextInterface *texto = lector->textInterface();
        ASSERT_NE(texto, nullptr);
        const QString todo = QString::fromStdString(TextoDeResultado(salida));
        EXPECT_EQ(texto->characterCount(), todo.size());
        EXPECT_EQ(texto->text(0, texto->characterCount()), todo);
        EXPECT_EQ(texto->text(8, 15), QStringLiteral("linea 1"));
        int desde = 0, hasta = 0;
        EXPECT_EQ(texto->textAtOffset(9, QAccessible::LineBoundary, &desde, &hasta).trimmed(),
                  QStringLiteral("linea 1"));
        EXPECT_EQ(texto->cursorPosition(), 0);
        QTest::keyClick(&area, Qt::Key_PageDown);
        EXPECT_EQ(texto->cursorPosition(), 5 * 8);
        EXPECT_EQ(
            texto->textAtOffset(texto->cursorPosition(), QAccessible::LineBoundary, &desde, &hasta).trimmed(),
            QStringLiteral("linea 5"));
        QTest::keyClick(&area, Qt::Key_Home);
        EXPECT_EQ(texto->cursorPosition(), 0);
    });
}

TEST_F(Copias, Teclas) {
    for (const QString &f : Impresos()) QFile::remove(Documentos().filePath(f));
    testing::internal::CaptureStderr();
    EnInforme(3,
              [](QDialog &d, QAbstractScrollArea &area, const SalidaResultado &) {
                  QTest::keyClick(&area, Qt::Key_P, Qt::ControlModifier);
                  ASSERT_EQ(Impresos().size(), 1);
                  EXPECT_TRUE(NotaDeImpresion(d).endsWith(Documentos().filePath(Impresos().constFirst())))
                      << NotaDeImpresion(d).toStdString();
                  QTest::keyClick(&area, Qt::Key_S, Qt::ControlModifier);
                  EXPECT_EQ(NotaDeImpresion(d), QString()) << "gone at the next command";
                  QTest::keyClick(&area, Qt::Key_C, Qt::ControlModifier);
                  EXPECT_EQ(Texto(), QStringLiteral("linea 0\nlinea 1\nlinea 2\n"));
                  EXPECT_TRUE(d.isVisible());
              },
              {ConEscape("Guardar como")});
    testing::internal::GetCapturedStderr();
}

// The place is told whole, however narrow the window is, and its button opens the folder.
TEST_F(Copias, ElLugarDeLoImpreso) {
    QTextBrowser escritorio; // takes the address in the place of the desktop
    QDesktopServices::setUrlHandler(QStringLiteral("file"), &escritorio, "setSource");
    testing::internal::CaptureStderr();
    EnInforme(3, [&](QDialog &d, QAbstractScrollArea &area, const SalidaResultado &) {
        QTest::keyClick(&area, Qt::Key_P, Qt::ControlModifier);
        QCoreApplication::processEvents();
        const auto *lugar = Hijo<QLabel>(d, "lugarDeImpresion");
        EXPECT_GE(lugar->height(), lugar->heightForWidth(lugar->width()));
        QTest::keyClick(&area, Qt::Key_Return); // no button of this window answers it
        EXPECT_TRUE(escritorio.source().isEmpty());
        QTest::mouseClick(Hijo<QPushButton>(d, "abrirCarpeta"), Qt::LeftButton);
        EXPECT_EQ(QDir(escritorio.source().toLocalFile()), Documentos());
        QTest::keyClick(&area, Qt::Key_C, Qt::ControlModifier);
        EXPECT_EQ(NotaDeImpresion(d), QString());
    });
    testing::internal::GetCapturedStderr();
    QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
}

// The same in the main window, on a small screen and where the documents lie deep.
TEST_F(Copias, ElLugarEnLaPrincipal) {
    const QString casa = Casa();
    const struct {
        QString carpeta;
        int largo; // of the path, at least
    } casos[] = {
        {QStringLiteral("/facultad/econometría"), 60},
        {QStringLiteral("/facultad de económicas/segundo curso/econometría/prácticas de regresión"), 120},
        {u'/' + QString(60, u'm') + QStringLiteral("/") + QString(60, u'W'), 160}, // no blanks to break at
    };
    for (const auto &c : casos) {
        SCOPED_TRACE(c.carpeta.toStdString());
        qputenv("HOME", (casa + c.carpeta).toUtf8());
        const QString carpeta = casa + c.carpeta + QStringLiteral("/Documents");
        testing::internal::CaptureStderr();
        ventana->PantallaEdicion->setPlainText(QStringLiteral("ESC A = 1"));
        ventana->show(); // it fills its screen
        ConGuion({}, [&] { Ordenar(2088); });
        testing::internal::GetCapturedStderr();
        QCoreApplication::processEvents();
        ASSERT_LE(ventana->width(), 800);
        const QStringList impresos = QDir(carpeta).entryList({QStringLiteral("*.pdf")});
        ASSERT_EQ(impresos.size(), 1);
        const QString donde = carpeta + u'/' + impresos[0];
        EXPECT_GE(donde.size(), c.largo);
        EXPECT_EQ(NotaDeImpresion(*ventana), QStringLiteral("Sin impresora: impreso en ") + donde);
        // All of it is within the label, in its lines: nothing is cut at any side.
        const auto *lugar = Hijo<QLabel>(*ventana, "lugarDeImpresion");
        const QRect hueco = lugar->contentsRect();
        const QRect escrito = lugar->fontMetrics().boundingRect(QRect(0, 0, hueco.width(), 10'000),
                                                                Qt::TextWordWrap, lugar->text());
        EXPECT_LE(escrito.width(), hueco.width());
        EXPECT_LE(escrito.height(), hueco.height());
        auto *boton = Hijo<QPushButton>(*ventana, "abrirCarpeta");
        for (const QWidget *w : {static_cast<const QWidget *>(lugar), static_cast<const QWidget *>(boton)}) {
            EXPECT_TRUE(w->isVisible());
            EXPECT_TRUE(ventana->rect().contains(QRect(w->mapTo(ventana.get(), QPoint(0, 0)), w->size())));
        }
        Ordenar(2049);
        EXPECT_EQ(NotaDeImpresion(*ventana), QString());
        EXPECT_FALSE(boton->isVisible());
    }
    qputenv("HOME", casa.toUtf8());
}
