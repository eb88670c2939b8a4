// Charts on the desktop: the window with its mouse and its menu, the option dialogs, the choosers, the histogram.
#include "apoyo_escritorio.h"
#include "apoyo_pdf.h"

#include "charts/graficos/grafico.h"
#include "charts/graficos/series_grafico.h"
#include "charts/graficos/ventanas/cursores.h"
#include "charts/graficos/ventanas/dialogos_opciones.h"
#include "charts/graficos/ventanas/guardar_grafico.h"
#include "charts/graficos/ventanas/ventana_grafico_qt.h"
#include "language/lote_sentencias.h"
#include "platform/qt/ventana_qt.h"
#include "platform/texto.h"
#include "store/archivo.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QRadioButton>
#include <QTimer>

namespace {

constexpr const char *TituloSeries = "Representación gráfica de series";

class Graficos : public Escritorio {
protected:
    void SetUp() override {
        Escritorio::SetUp();
        PonerDatos(TipoAnual, "1990#1993");
        PonerSerie("X", {1, 2, 4, 3});
        PonerSerie("Y", {10, 20, 40, 30});
        ActualizarMuestra();
    }

    Grafico DeSeries() {
        Grafico g = GraficoNuevo(GraficoSeries, 4);
        TomarPeriodos(g, 0, 3);
        AnadirSerie(g, "X", 0, 3);
        AnadirSerie(g, "Y", 0, 3);
        g.opciones.titulo = "Titulo";
        CalcularLimites(g);
        return g;
    }

    // Shows the chart, and does `hacer` in its window; the windows that open from it are `mas`.
    void EnVentana(Grafico &g, const std::function<void(QDialog &, QWidget &)> &hacer,
                   const Guion &mas = {}) {
        Guion guion = {{Titulo(g), [&](QDialog &d) {
                            EXPECT_TRUE(QTest::qWaitForWindowExposed(&d));
                            if (auto *area = Hijo<QWidget>(d, "areaGrafico")) hacer(d, *area);
                            if (d.isVisible()) d.reject();
                        }}};
        guion.insert(guion.end(), mas.begin(), mas.end());
        ConGuion(guion, [&] { MostrarGraficoQt(AVentana(ventana.get()), g); });
    }

    const char *Titulo(const Grafico &g) {
        titulo = Utf8De1252(g.tituloVentana);
        return titulo.c_str();
    }

    std::string titulo;
};

void Entrada(QDialog &d, const char *texto) {
    for (QAction *a : d.layout()->menuBar()->findChildren<QAction *>())
        if (a->text().remove(u'&') == QString::fromUtf8(texto)) return a->trigger();
    ADD_FAILURE() << "no entry " << texto;
}

void Mover(QWidget &area, QPoint a) {
    QMouseEvent suceso(QEvent::MouseMove, a, area.mapToGlobal(a), Qt::NoButton, Qt::LeftButton,
                       Qt::NoModifier);
    QApplication::sendEvent(&area, &suceso);
}

QPoint Centro(const CajaGrafico &c) {
    return {(c.izquierda + c.derecha) / 2, (c.superior + c.inferior) / 2};
}

// Pixels of the area that aren't white.
int Pintados(QWidget &area, const QRect &donde) {
    const QImage imagen = area.grab(donde).toImage();
    int n = 0;
    for (int y = 0; y < imagen.height(); ++y)
        for (int x = 0; x < imagen.width(); ++x) n += imagen.pixelColor(x, y) != Qt::white;
    return n;
}

} // namespace

TEST_F(Graficos, LaVentanaDeUnaSentencia) {
    ventana->PantallaEdicion->setPlainText(QStringLiteral("GRAF X Y\nSER Z = X\n"));
    ventana->PantallaEdicion->selectAll();
    ConGuion({{TituloSeries,
               [](QDialog &d) {
                   EXPECT_EQ(EntradasDelMenu(d), (std::vector<std::string>{"I&mprimir", "&Ayuda"}));
                   EXPECT_EQ(BuscarSerie("Z"), -1); // the batch waits
                   EXPECT_EQ(QApplication::overrideCursor(), nullptr);
                   d.reject();
               }}},
             [&] { Ordenar(2006); });
    EXPECT_GE(BuscarSerie("Z"), 0);
}

TEST_F(Graficos, ArrastrarLaLeyenda) {
    Grafico g = DeSeries();
    EnVentana(g, [&](QDialog &, QWidget &area) {
        const CajaGrafico antes = g.disposicion.parte[ParteLeyenda];
        const QPoint dentro = Centro(antes) + QPoint(30, -10);
        QTest::mouseClick(&area, Qt::LeftButton, {}, dentro);
        EXPECT_EQ(g.arrastre.estadoLeyenda, LeyendaElegida);
        QTest::qWait(QApplication::doubleClickInterval() + 50); // else the next press is a double click
        QTest::mousePress(&area, Qt::LeftButton, {}, dentro);
        EXPECT_EQ(g.arrastre.estadoLeyenda, LeyendaMoviendose);
        Mover(area, {100, 90});
        EXPECT_EQ(g.disposicion.parte[ParteLeyenda].izquierda, 100);
        QTest::mouseRelease(&area, Qt::LeftButton, {}, {100, 90});
        EXPECT_EQ(g.arrastre.estadoLeyenda, LeyendaQuieta);
        EXPECT_EQ(area.cursor().shape(), Qt::ArrowCursor);
        area.grab();
        // Painted at its new place, and it stays there when the window grows.
        EXPECT_EQ(g.disposicion.parte[ParteLeyenda].izquierda, 100);
        EXPECT_EQ(g.disposicion.parte[ParteLeyenda].superior, 90);
        EXPECT_GT(Pintados(area, QRect(99, 89, 3, 20)), 10);
        area.window()->resize(area.window()->size() + QSize(40, 40));
        area.grab();
        EXPECT_EQ(g.disposicion.parte[ParteLeyenda].izquierda, 100);
    });
}

TEST_F(Graficos, CursoresDeLaLeyenda) {
    Grafico g = DeSeries();
    EnVentana(g, [&](QDialog &, QWidget &area) {
        const CajaGrafico c = g.disposicion.parte[ParteLeyenda];
        QTest::mouseClick(&area, Qt::LeftButton, {}, Centro(c) + QPoint(30, -10));
        const QPoint izquierda(c.izquierda, Centro(c).y()), arriba(Centro(c).x(), c.superior);
        QTest::mouseMove(&area, izquierda);
        Mover(area, izquierda);
        EXPECT_EQ(area.cursor().pixmap().toImage(), CursorDeGrafico(CursorHorizontal).pixmap().toImage());
        Mover(area, arriba);
        EXPECT_EQ(area.cursor().pixmap().toImage(), CursorDeGrafico(CursorVertical).pixmap().toImage());
        Mover(area, {5, 5});
        EXPECT_EQ(area.cursor().shape(), Qt::ArrowCursor);
        EXPECT_NE(CursorDeGrafico(CursorHorizontal).pixmap().toImage(),
                  CursorDeGrafico(CursorDesplazar).pixmap().toImage());
    });
}

// Each handle at the middle of a side takes that side along, and the chart is painted with what came of it.
TEST_F(Graficos, TirarDeCadaAsa) {
    struct Asa {
        int CajaGrafico::*lado;
        QPoint desde, hasta; // from the centre of the legend, in halves of its sides
        Cursor cursor;
    };
    const Asa asas[] = {{&CajaGrafico::izquierda, {-1, 0}, {-2, 0}, CursorHorizontal},
                        {&CajaGrafico::derecha, {1, 0}, {2, 0}, CursorHorizontal},
                        {&CajaGrafico::superior, {0, -1}, {0, -2}, CursorVertical},
                        {&CajaGrafico::inferior, {0, 1}, {0, 2}, CursorVertical}};
    for (const Asa &asa : asas) {
        SCOPED_TRACE(&asa - asas);
        Grafico g = DeSeries();
        EnVentana(g, [&](QDialog &, QWidget &area) {
            const CajaGrafico antes = g.disposicion.parte[ParteLeyenda];
            const int ancho = antes.derecha - antes.izquierda, alto = antes.inferior - antes.superior;
            const auto punto = [&](QPoint mitades) {
                return Centro(antes) + QPoint(mitades.x() * ancho / 2, mitades.y() * alto / 2);
            };
            const QPoint desde = punto(asa.desde) - asa.desde * 2; // a little inside
            QTest::mouseClick(&area, Qt::LeftButton, {}, desde);
            QTest::qWait(QApplication::doubleClickInterval() + 50);
            QTest::mousePress(&area, Qt::LeftButton, {}, desde);
            Mover(area, desde);
            EXPECT_EQ(g.arrastre.estadoLeyenda, LeyendaCambiandose);
            const QPoint hasta = punto(asa.hasta);
            Mover(area, hasta);
            EXPECT_EQ(area.cursor().pixmap().toImage(), CursorDeGrafico(asa.cursor).pixmap().toImage());
            QTest::mouseRelease(&area, Qt::LeftButton, {}, hasta);
            area.grab();
            CajaGrafico despues = antes;
            despues.*asa.lado = asa.cursor == CursorHorizontal ? hasta.x() : hasta.y();
            EXPECT_EQ(g.disposicion.parte[ParteLeyenda], despues);
            EXPECT_EQ(g.arrastre.estadoLeyenda, LeyendaQuieta);
        });
    }
}

TEST_F(Graficos, DobleClicSueltaElTitulo) {
    Grafico g = DeSeries();
    EnVentana(g, [&](QDialog &, QWidget &area) {
        const QPoint p = Centro(g.disposicion.parte[ParteTitulo]);
        QTest::mousePress(&area, Qt::LeftButton, {}, p);
        EXPECT_EQ(g.arrastre.titulo, ParteTitulo);
        QTest::mouseDClick(&area, Qt::LeftButton, {}, p);
        EXPECT_EQ(g.arrastre.titulo, ParteLeyenda);
        QTest::mousePress(&area, Qt::RightButton, {}, p);
        EXPECT_EQ(g.arrastre.titulo, ParteLeyenda);
    });
}

TEST_F(Graficos, CopiarYGuardar) {
    Grafico g = DeSeries();
    EnVentana(g, [&](QDialog &d, QWidget &area) {
        DelMenu(area, "Copiar");
        const QImage imagen = QApplication::clipboard()->image();
        EXPECT_EQ(imagen.size(), area.size() * 2);
        DelMenu(area, "Copiar como tabla");
        EXPECT_EQ(QApplication::clipboard()->text().toStdString(),
                  "Período\tX\tY\n1990\t1\t10\n1991\t2\t20\n1992\t4\t40\n1993\t3\t30\n");
        QTest::keyClick(&area, Qt::Key_C, Qt::ControlModifier);
        EXPECT_EQ(QApplication::clipboard()->image().size(), area.size() * 2);
        d.reject();
    });
    const std::string base = Documentos().filePath(QStringLiteral("grafico")).toStdString();
    for (const char *terminacion : {".png", ".svg", ".pdf"})
        EXPECT_TRUE(GuardarGrafico(g, base + terminacion)) << terminacion;
    EXPECT_EQ(Leer(QString::fromStdString(base + ".png")).left(8), QByteArray("\x89PNG\r\n\x1a\n"));
    const QByteArray svg = Leer(QString::fromStdString(base + ".svg"));
    for (const char *texto :
         {">Titulo</text>", ">90</text>", ">40.00</text>", ">X</text>", "<line ", "</svg>"})
        EXPECT_TRUE(svg.contains(texto)) << texto;
    const QString pdf = TextoDePdf(QString::fromStdString(base + ".pdf")).join(u'\n');
    for (const char *texto : {"Titulo", "90", "40.00"})
        EXPECT_TRUE(pdf.contains(QLatin1String(texto))) << texto;
    EXPECT_FALSE(GuardarGrafico(g, "/nada/nada.png"));
}

TEST_F(Graficos, ImprimirDesdeLaVentana) {
    Grafico g = DeSeries();
    EnVentana(g, [&](QDialog &d, QWidget &) {
        Entrada(d, "Imprimir");
        EXPECT_NE(TextoDe(d, "lugarDeImpresion"), ""); // where the document went
    });
}

TEST_F(Graficos, OpcionesDeLaVentanaDeResiduos) {
    Grafico g = GraficoNuevo(GraficoResiduos, 4);
    TomarPeriodos(g, 0, 3);
    AnadirSerie(g, "X", 0, 3);
    g.desviacion = 1;
    CalcularLimites(g);
    EnVentana(g,
              [&](QDialog &d, QWidget &) {
                  EXPECT_EQ(EntradasDelMenu(d), (std::vector<std::string>{
                                                    "&Intervalos y títulos", "&Formas y colores",
                                                    "&Otras opciones", "&Decimales", "I&mprimir", "&Ayuda"}));
                  Entrada(d, "Intervalos y títulos");
                  EXPECT_EQ(g.opciones.titulo, "Residuos");
                  EXPECT_EQ(g.limites.maxY, 8); // the chart has its new limits at once
                  EXPECT_EQ(g.opciones.verLeyenda, 0);
                  Entrada(d, "Formas y colores");
                  EXPECT_EQ(g.opciones.forma, FormaBarras);
                  EXPECT_EQ(g.opciones.color[0], 2);
                  EXPECT_EQ(g.opciones.grosor[0], 1);
                  EXPECT_EQ(g.opciones.trazo[0], 3);
                  Entrada(d, "Otras opciones");
                  EXPECT_EQ(g.conBanda, 0);
                  EXPECT_EQ(g.marcasAlMedio, 0);
                  Entrada(d, "Decimales");
                  EXPECT_EQ(Lote.DecimalesSalida, 4);
              },
              {{"Gráfico de los residuos: Intervalos y títulos",
                [](QDialog &d) {
                    Escribir(d, "titulo", "Residuos");
                    Escribir(d, "maxY", "8"); // writing chooses "Otros"
                    EXPECT_TRUE(Hijo<QRadioButton>(d, "maxYOtros")->isChecked());
                    Pulsar(d, "verLeyenda");
                    Pulsar(d, "OK");
                }},
               {"Gráfico de los residuos: Formas y colores",
                [](QDialog &d) {
                    EXPECT_EQ(LineasDe(d, "series"), std::vector<std::string>{"X"});
                    Elegir(d, "series", 0);
                    for (const char *b :
                         {"color4", "SiColor", "grosor1", "SiGrosor", "trazo3", "SiTrazo", "forma2", "OK"})
                        Pulsar(d, b);
                }},
               {"Gráfico de los residuos: Otras opciones",
                [](QDialog &d) {
                    for (const char *b : {"sinBanda", "parteInferior", "OK"}) Pulsar(d, b);
                }},
               {"Formato decimal", [](QDialog &d) {
                    Pulsar(d, "decimales4");
                    Pulsar(d, "OK");
                }}});
    Lote.DecimalesSalida = 2;
}

// Each button gives its own colour of the table.
TEST_F(Graficos, BotonesDeColor) {
    static constexpr int Esperados[] = {5, 3, 0, 1, 2, 4, 5, 6, 7}; // the first leaves the colour as it is
    for (int i = 0; i < 9; ++i) {
        SCOPED_TRACE(i);
        OpcionesGrafico o = OpcionesPorDefecto(4);
        o.color[0] = 5;
        ConGuion({{"Gráficos temporales: Formas y colores",
                   [i](QDialog &d) {
                       Elegir(d, "series", 0);
                       Pulsar(d, ("color" + std::to_string(i)).c_str());
                       Pulsar(d, "SiColor");
                       d.reject(); // it stays all the same
                   }}},
                 [&] { DialogoFormas(AVentana(ventana.get()), GraficoSeries, o, {"X"}); });
        EXPECT_EQ(o.color[0], Esperados[i]);
    }
}

TEST_F(Graficos, FormasSinSerieElegida) {
    OpcionesGrafico o = OpcionesPorDefecto(4);
    ConGuion({{"Gráficos temporales: Formas y colores",
               [](QDialog &d) {
                   Pulsar(d, "SiTrazo");
                   Pulsar(d, "forma3");
                   Pulsar(d, "Cancela");
               }},
              Caja("Aviso", "Error al Crear La Lista de Series")},
             [&] { DialogoFormas(AVentana(ventana.get()), GraficoSeries, o, {"X"}); });
    EXPECT_EQ(o.forma, FormaLineas); // Cancela leaves it
}

TEST_F(Graficos, FormasConElTeclado) {
    OpcionesGrafico o = OpcionesPorDefecto(4);
    ConGuion({{"Gráficos temporales: Formas y colores",
               [](QDialog &d) {
                   Activar(d);
                   const auto teclear = [&](std::initializer_list<Qt::Key> teclas) {
                       for (const Qt::Key t : teclas) QTest::keyClick(d.focusWidget(), t);
                   };
                   // The second series; bars; red; "Si"; thick; "Si"; OK.
                   teclear({Qt::Key_Down, Qt::Key_Down, Qt::Key_Tab});
                   teclear({Qt::Key_Down, Qt::Key_Down, Qt::Key_Tab});
                   teclear({Qt::Key_Down, Qt::Key_Down, Qt::Key_Tab, Qt::Key_Space, Qt::Key_Tab});
                   teclear({Qt::Key_Down, Qt::Key_Tab, Qt::Key_Space, Qt::Key_Tab});
                   teclear({Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Space});
               }}},
             [&] {
                 DialogoFormas(AVentana(ventana.get()), GraficoSeries, o, {"X", "Y"});
             });
    EXPECT_EQ(o.forma, FormaBarras);
    EXPECT_EQ(o.color[0], 0);
    EXPECT_EQ(o.color[1], 0); // green before
    EXPECT_EQ(o.grosor[0], 0);
    EXPECT_EQ(o.grosor[1], 1);
}

TEST_F(Graficos, IntervalosDeLaPrediccion) {
    OpcionesGrafico o = OpcionesPorDefecto(4);
    ConGuion({{"Diagrama predicción-observación: Intervalos y títulos",
               [](QDialog &d) {
                   EXPECT_EQ(d.findChild<QGroupBox *>(QStringLiteral("ejeY"))->title(),
                             QStringLiteral("Ejes Y - X"));
                   EXPECT_FALSE(d.findChild<QWidget *>(QStringLiteral("ejeX"))->isVisible());
                   d.reject();
               }}},
             [&] { DialogoIntervalos(AVentana(ventana.get()), GraficoPrediccion, o); });
}

TEST_F(Graficos, OtrasOpcionesDeLaPrediccion) {
    Grafico g = GraficoNuevo(GraficoPrediccion, 4);
    ConGuion({{"Diagrama predicción-observación: Otras opciones",
               [](QDialog &d) {
                   EXPECT_FALSE(d.findChild<QWidget *>(QStringLiteral("banda"))->isVisible());
                   Pulsar(d, "izquierda");
                   Pulsar(d, "OK");
               }}},
             [&] { DialogoOtrasOpciones(AVentana(ventana.get()), g); });
    EXPECT_EQ(g.marcasYAlMedio, 0);
    EXPECT_EQ(g.marcasAlMedio, 1);
}

TEST_F(Graficos, ElegirSeries) {
    ConGuion({{"Gráficos temporales",
               [](QDialog &d) {
                   EXPECT_EQ(EntradasDelMenu(d),
                             (std::vector<std::string>{"&Intervalos y títulos", "&Formas y colores",
                                                       "&Decimales", "I&mprimir", "&Ayuda"}));
                   EXPECT_EQ(TextoDe(d, "textoDisponibles"), "Series en el archivo de trabajo");
                   EXPECT_EQ(TextoDe(d, "textoElegidas"), "Series seleccionadas");
                   EXPECT_FALSE(Hijo<QWidget>(d, "codigoX")->isVisible());
                   Pulsar(d, "OK"); // nothing chosen
                   Elegir(d, "disponibles", 1);
                   Pulsar(d, "Anadir");
                   Entrada(d, "Formas y colores");
                   Pulsar(d, "OK");
                   EXPECT_TRUE(d.isVisible()); // open for another try
                   Entrada(d, "Imprimir");
                   EXPECT_NE(TextoDe(d, "lugarDeImpresion"), "");
                   Pulsar(d, "Cancela");
               }},
              Caja("Aviso", "No se ha introducido ninguna serie válida"),
              {"Gráficos temporales: Formas y colores",
               [](QDialog &d) {
                   EXPECT_EQ(LineasDe(d, "series"), std::vector<std::string>{"Y"});
                   Pulsar(d, "forma2");
                   Pulsar(d, "OK");
               }},
              ConEscape(TituloSeries)},
             [&] { Ordenar(2013); });
    EXPECT_EQ(OpcionesDeSeries.forma, FormaBarras);
}

TEST_F(Graficos, ElegirSeriesDeDispersion) {
    ConGuion({{"Gráficos de dispersión",
               [](QDialog &d) {
                   Elegir(d, "disponibles", 0);
                   Pulsar(d, "Anadir");
                   Escribir(d, "codigoX", "NADA");
                   Pulsar(d, "OK");
                   Escribir(d, "codigoX", "y");
                   Pulsar(d, "OK");
                   Pulsar(d, "Cancela");
               }},
              Caja("Aviso", "Serie no existe [NADA]"),
              ConEscape(TituloSeries)},
             [&] { Ordenar(2023); });
    EXPECT_EQ(OpcionesDeSeries.ejeX, "Y");
}

// The box of an error of the drawing comes once, however often the window is painted.
TEST_F(Graficos, ErrorInternoDelDibujo) {
    Grafico g = GraficoNuevo(GraficoAutocorrelacion, 10);
    g.autocorrelacion.retardos = 1;
    g.autocorrelacion.observaciones = 10;
    g.autocorrelacion.coeficientes = {0, 2};
    // The box comes behind the first painting, and a look may come before that: the chart waits for it.
    int cajas = 0, vueltas = 0;
    QTimer reloj;
    QObject::connect(&reloj, &QTimer::timeout, [&] {
        auto *d = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (d == nullptr || !d->isVisible()) return;
        if (auto *caja = qobject_cast<QMessageBox *>(d)) {
            ++cajas;
            EXPECT_EQ(caja->windowTitle(), QStringLiteral("Aviso de error interno"));
            EXPECT_TRUE(caja->text().startsWith(QStringLiteral("sup "))) << caja->text().toStdString();
            EXPECT_TRUE(caja->text().contains(QStringLiteral(" serie[n] 2.000000 n 1 yy ")));
            caja->accept();
        } else if (cajas == 1) { // painted again, it isn't told again
            auto *area = Hijo<QWidget>(*d, "areaGrafico");
            area->resize(area->width() + 40, area->height() + 40);
            EXPECT_GT(Pintados(*area, area->rect()), 0);
            d->reject();
        } else if (++vueltas > 2000) {
            d->reject();
        }
    });
    reloj.start(1);
    MostrarGraficoQt(AVentana(ventana.get()), g);
    QCoreApplication::processEvents();
    EXPECT_EQ(cajas, 1);
}

TEST_F(Graficos, DialogoDelHistograma) {
    ConGuion({{"HISTOGRAMA",
               [](QDialog &d) {
                   EXPECT_EQ(LineasDe(d, "series"), (std::vector<std::string>{"X", "Y"}));
                   Pulsar(d, "OK"); // no series
                   EXPECT_FALSE(Hijo<QWidget>(d, "minimo")->isEnabled());
                   EXPECT_TRUE(Hijo<QRadioButton>(d, "modo0")->isChecked());
                   EXPECT_EQ(TextoDe(d, "divisiones"), "10");
                   EXPECT_TRUE(Hijo<QRadioButton>(d, "minYDefecto")->isChecked());
                   EXPECT_TRUE(Hijo<QRadioButton>(d, "maxYDefecto")->isChecked());
                   EXPECT_TRUE(Hijo<QCheckBox>(d, "conTitulo")->isChecked());
                   EXPECT_TRUE(Hijo<QCheckBox>(d, "tituloArriba")->isChecked());
                   EXPECT_EQ(TextoDe(d, "titulo"), " ");
                   EXPECT_EQ(Hijo<QLineEdit>(d, "titulo")->maxLength(), 60);
                   Elegir(d, "series", 0);
                   Pulsar(d, "modo1");
                   Escribir(d, "minimo", "0");
                   Escribir(d, "maximo", "4");
                   Escribir(d, "intervalos", "2");
                   Escribir(d, "titulo", "Edades");
                   Pulsar(d, "OK");
                   Pulsar(d, "Cancela");
               }},
              Caja("Aviso", "Serie no válida."),
              {"Representación gráfica",
               [](QDialog &d) {
                   for (QAction *a : d.findChild<QMenuBar *>()->actions())
                       if (a->text() == QStringLiteral("&Gráficos")) a->trigger();
                   d.reject();
               }},
              {"Representación gráfica",
               [](QDialog &d) {
                   EXPECT_EQ(d.objectName(), QStringLiteral("ventanaGrafico"));
                   d.reject();
               }}},
             [&] { Ordenar(2007); });
}
