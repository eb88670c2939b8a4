// The windows of the tests and the analyses: the result window in its other shapes.
#include "apoyo_escritorio.h"

#include "charts/resultados/formatos_tabla.h"
#include "charts/resultados/ventanas/guardar_resultado.h"
#include "charts/resultados/ventanas/ventana_resultado_qt.h"
#include "platform/qt/superficie_qt.h"
#include "platform/texto.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QImage>
#include <QMenuBar>
#include <QScreen>
#include <QScrollBar>

using VentanasDeResultado = Escritorio;

namespace {

struct ClaseDeVentana {
    TiposDeSalida tipo;
    const char *titulo;
    const char *segunda; // entry of its menu
    int tope;            // of its bar, 0 for none
    int columnas;        // of the window as it opens
};

constexpr ClaseDeVentana Clases[] = {
    {SalidaHipotesis, "Contrastes de significatividad: Hipótesis nula", "&Salir", 0, 92},
    {SalidaAutocorrelacion, "Contrastes de autocorrelación estimada", "&Gráficos", 250, 77},
    {SalidaNormalidad, "Contraste de normalidad  Bera y Jarque", "&Salir", 0, 77},
    {SalidaPrediccion, "Predicción y evaluación de la capacidad predictiva", "&Gráficos", 20, 77},
    {SalidaDescriptivos, "Medidas descriptivas", "&Salir", 100, 77},
};

// Fifty lines; the first one as wide as a hypothesis shows.
TextoSalida CincuentaLineas() {
    TextoSalida t;
    AnadirLinea(t, 0, "  2*beta(1)-" + std::string(70, '1') + "=0.5");
    for (int i = 1; i < 50; ++i) AnadirLinea(t, i / 10, "linea " + std::to_string(i));
    return t;
}

int graficosPedidos = 0;

// Opens a window of the class and does something in it.
void EnVentana(const ClaseDeVentana &clase, bool conGraficos,
               const std::function<void(QDialog &, QAbstractScrollArea &, const SalidaResultado &)> &hacer) {
    const TextoSalida lineas = CincuentaLineas();
    const std::string titulo = Texto1252DeUtf8(clase.titulo);
    SalidaResultado salida = {.tipo = clase.tipo,
                              .titulo = titulo,
                              .Clase = 0,
                              .Contenido = 0,
                              .lineas = &lineas,
                              .fijas = nullptr,
                              .tablas = nullptr,
                              .tabla = "a\tb\n"};
    if (conGraficos) salida.graficos = [](Ventana *v) { return v != nullptr ? ++graficosPedidos : 0; };
    ConGuion({{clase.titulo,
               [&](QDialog &d) {
                   EXPECT_TRUE(QTest::qWaitForWindowExposed(&d));
                   if (auto *area = Hijo<QAbstractScrollArea>(d, "areaResultado")) hacer(d, *area, salida);
                   if (d.isVisible()) d.reject();
               }}},
             [&] { MostrarResultadoQt(nullptr, salida); });
}

} // namespace

TEST_F(VentanasDeResultado, MenuYBarra) {
    for (const ClaseDeVentana &clase : Clases) {
        SCOPED_TRACE(clase.titulo);
        EnVentana(clase, false, [&](QDialog &d, QAbstractScrollArea &area, const SalidaResultado &) {
            const QList<QAction *> menu = Hijo<QMenuBar>(d, "menuResultado")->actions();
            ASSERT_EQ(menu.size(), 2);
            EXPECT_EQ(menu[0]->text(), QStringLiteral("&Imprimir"));
            EXPECT_EQ(menu[1]->text(), QString::fromUtf8(clase.segunda));
            EXPECT_EQ(area.verticalScrollBar()->maximum(), clase.tope);
            EXPECT_EQ(area.verticalScrollBar()->isVisible(), clase.tope > 0);
            const QFontMetrics letra(FuenteFijaDePantalla());
            const int suyo = clase.columnas * letra.horizontalAdvance(u'0');
            const int barra = clase.tope > 0 ? 0 : area.verticalScrollBar()->sizeHint().width();
            if (suyo + 40 <= d.screen()->availableSize().width()) {
                EXPECT_EQ(area.viewport()->width(), suyo + barra);
            }
            const bool conGraficos = menu[1]->text() != QStringLiteral("&Salir");
            menu[1]->trigger(); // without a chart behind it, "&Gráficos" does nothing
            EXPECT_EQ(d.isVisible(), conGraficos);
        });
    }
}

TEST_F(VentanasDeResultado, SeDesplazaLaQueTieneBarra) {
    for (const ClaseDeVentana &clase : Clases) {
        SCOPED_TRACE(clase.titulo);
        EnVentana(clase, false, [&](QDialog &, QAbstractScrollArea &area, const SalidaResultado &) {
            const QImage antes = area.viewport()->grab().toImage();
            QTest::keyClick(&area, Qt::Key_PageDown);
            EXPECT_EQ(area.verticalScrollBar()->value(), clase.tope > 0 ? 5 : 0);
            EXPECT_EQ(area.viewport()->grab().toImage() == antes, clase.tope == 0);
            QTest::keyClick(&area, Qt::Key_End); // the bar ends at 20 where the lines go on
            EXPECT_EQ(area.verticalScrollBar()->value(), std::min(clase.tope, 49));
            QTest::keyClick(&area, Qt::Key_Home);
            EXPECT_EQ(area.viewport()->grab().toImage(), antes);
        });
    }
}

TEST_F(VentanasDeResultado, AbreSusGraficos) {
    for (const ClaseDeVentana &clase : Clases) {
        if (std::string_view(clase.segunda) == "&Salir") continue;
        SCOPED_TRACE(clase.titulo);
        graficosPedidos = 0;
        EnVentana(clase, true, [&](QDialog &d, QAbstractScrollArea &, const SalidaResultado &) {
            Hijo<QAction>(d, "comandoGraficos")->trigger();
            EXPECT_EQ(graficosPedidos, 1) << "over this window";
            EXPECT_TRUE(d.isVisible());
        });
    }
}

// Copied and saved like a report: lines, table, picture and pages.
TEST_F(VentanasDeResultado, CopiarYGuardar) {
    QDir carpeta(QDir::tempPath() +
                 QStringLiteral("/tabira_ventanas_resultado_%1").arg(QCoreApplication::applicationPid()));
    carpeta.removeRecursively();
    ASSERT_TRUE(carpeta.mkpath(QStringLiteral(".")));
    for (const ClaseDeVentana &clase : Clases) {
        SCOPED_TRACE(clase.titulo);
        EnVentana(clase, false, [&](QDialog &, QAbstractScrollArea &area, const SalidaResultado &salida) {
            QTest::keyClick(&area, Qt::Key_C, Qt::ControlModifier);
            const std::string texto = QApplication::clipboard()->text().toStdString();
            EXPECT_EQ(texto.substr(0, 12), "  2*beta(1)-") << texto;
            EXPECT_TRUE(texto.ends_with("linea 49\n"));
            EXPECT_EQ(TablaDeResultado(salida), "a\tb\n");
            const QString png = carpeta.filePath(QStringLiteral("salida.png"));
            ASSERT_TRUE(GuardarResultado(salida, png));
            const QImage imagen(png);
            EXPECT_EQ(imagen.width(), 16 * clase.columnas);
            for (const char *nombre : {"salida.pdf", "salida.txt", "salida.tsv"}) {
                const QString ruta = carpeta.filePath(QString::fromLatin1(nombre));
                EXPECT_TRUE(GuardarResultado(salida, ruta)) << nombre;
                EXPECT_GT(QFileInfo(ruta).size(), 0) << nombre;
            }
        });
    }
    carpeta.removeRecursively();
}
