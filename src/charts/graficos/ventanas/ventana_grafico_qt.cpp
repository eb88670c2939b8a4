// The chart window of the desktop: a surface that the core paints, the mouse, the menu, and ways to get the chart out.
#include "charts/graficos/ventanas/ventana_grafico_qt.h"

#include "charts/graficos/grafico.h"
#include "charts/graficos/interaccion.h"
#include "charts/graficos/ventanas/cursores.h"
#include "charts/graficos/ventanas/dialogos_opciones.h"
#include "charts/graficos/ventanas/guardar_grafico.h"
#include "language/lote_sentencias.h"
#include "platform/qt/dialogo_decimales.h"
#include "platform/qt/formulario.h"
#include "platform/qt/impresora_qt.h"
#include "platform/qt/superficie_qt.h"
#include "platform/qt/texto_qt.h"
#include "platform/qt/ventana_qt.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDialog>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPainter>
#include <QPixmap>

namespace {

// The window as it opens: of this width its plot fits on paper as it is.
constexpr int ColumnasDeLaVentana = 90, FilasDeLaVentana = 32;

class AreaGrafico : public QWidget {
public:
    AreaGrafico(QWidget *padre, Grafico &grafico)
        : QWidget(padre), g(grafico), fuente(FuenteFijaDePantalla()) {
        setObjectName(QStringLiteral("areaGrafico"));
        setAccessibleName(QDe1252(g.tituloVentana));
        setFocusPolicy(Qt::StrongFocus);
        setMouseTracking(true);
        setAttribute(Qt::WA_OpaquePaintEvent);
    }

    QSize sizeHint() const override {
        const QFontMetrics m(fuente);
        return {m.horizontalAdvance(u'0') * ColumnasDeLaVentana, m.lineSpacing() * FilasDeLaVentana};
    }

    // Options have changed.
    void Rehacer() {
        CalcularLimites(g);
        pintado = QPixmap();
        update();
    }

protected:
    // The chart is painted once and kept; what is being dragged moves over it, so that the outline keeps up with the mouse.
    void paintEvent(QPaintEvent *) override {
        if (pintado.isNull() || pintado.size() != size() * devicePixelRatio()) Pintar();
        QPainter pintor(this);
        pintor.drawPixmap(0, 0, pintado);
        PintorSuperficie propio;
        Superficie s = SuperficieDePintor(propio, pintor, fuente, width(), height());
        PintarContorno(s, g);
    }

    void mousePressEvent(QMouseEvent *suceso) override {
        if (suceso->button() != Qt::LeftButton) return QWidget::mousePressEvent(suceso);
        const QPoint p = suceso->position().toPoint();
        Aplicar(PulsarEnGrafico(g, p.x(), p.y()));
    }

    void mouseMoveEvent(QMouseEvent *suceso) override {
        const QPoint p = suceso->position().toPoint();
        Aplicar(MoverEnGrafico(g, p.x(), p.y()));
    }

    void mouseReleaseEvent(QMouseEvent *suceso) override {
        if (suceso->button() == Qt::LeftButton) Aplicar(SoltarEnGrafico(g));
    }

    void mouseDoubleClickEvent(QMouseEvent *suceso) override {
        if (suceso->button() == Qt::LeftButton) Aplicar(SoltarEnGrafico(g));
    }

    void keyPressEvent(QKeyEvent *suceso) override {
        if (suceso->matches(QKeySequence::Copy)) return CopiarImagen();
        // The toolkit knows the key of the context menu, which many keyboards lack, but not its usual stand-in.
        if (suceso->key() == Qt::Key_F10 && suceso->modifiers() == Qt::ShiftModifier) {
            const QPoint centro = rect().center();
            QContextMenuEvent menu(QContextMenuEvent::Keyboard, centro, mapToGlobal(centro));
            return contextMenuEvent(&menu);
        }
        QWidget::keyPressEvent(suceso);
    }

    void contextMenuEvent(QContextMenuEvent *suceso) override {
        QMenu menu(this);
        menu.setObjectName(QStringLiteral("menuContexto"));
        menu.addAction(QStringLiteral("&Copiar"), this, [this] { CopiarImagen(); });
        menu.addAction(QStringLiteral("Copiar como &tabla"), this,
                       [this] { QApplication::clipboard()->setText(QDe1252(TablaDeGrafico(g))); });
        menu.addAction(QStringLiteral("&Guardar como..."), this, [this] { DialogoGuardarGrafico(this, g); });
        menu.exec(suceso->globalPos());
    }

private:
    void Pintar() {
        pintado = QPixmap(size() * devicePixelRatio());
        pintado.setDevicePixelRatio(devicePixelRatio());
        pintado.fill(Qt::white); // the paper's, whatever the desktop's colours are
        QPainter pintor(&pintado);
        PintorSuperficie propio;
        Superficie s = SuperficieDePintor(propio, pintor, fuente, width(), height());
        PintarGrafico(s, g);
        if (g.errorInterno.empty() || avisado) return;
        avisado = true; // the next painting would find the same
        // No box can stand over a window that is being painted.
        QMetaObject::invokeMethod(
            this, [this] { AvisarErrorInterno(AVentana(window()), g); }, Qt::QueuedConnection);
    }

    void Aplicar(const EfectoDelRaton &efecto) {
        setCursor(CursorDeGrafico(efecto.cursor));
        if (efecto.repintar) pintado = QPixmap();
        if (efecto.repintar || efecto.contorno) update();
    }

    void CopiarImagen() { QApplication::clipboard()->setImage(ImagenDeGrafico(g)); }

    Grafico &g;
    QFont fuente;
    QPixmap pintado;
    bool avisado = false;
};

int PaginaDeAyuda(ClasesDeGrafico clase) {
    static constexpr int Paginas[NumClasesDeGrafico] = {
        PaginaGraficos,          PaginaGraficos,        PaginaGraficosRegresion, PaginaGraficosRegresion,
        PaginaGraficosRegresion, PaginaAutocorrelacion, PaginaHistograma};
    return Paginas[clase];
}

std::vector<std::string> Nombres(const Grafico &g) {
    std::vector<std::string> nombres;
    for (const SerieGrafico &s : g.series) nombres.push_back(s.nombre);
    return nombres;
}

void PonerMenu(QDialog &dialogo, AreaGrafico &area, Grafico &g) {
    const ClaseDeGrafico &clase = DescripcionDe(g.clase);
    const auto opcion = [&](const char *texto, const std::function<void()> &hacer) {
        EntradaDeMenu(dialogo, texto, [&area, hacer] {
            hacer();
            area.Rehacer();
        });
    };
    Ventana *ventana = AVentana(&dialogo);
    if (clase.conOpciones) {
        opcion("&Intervalos y títulos"_w, [ventana, &g] { DialogoIntervalos(ventana, g.clase, g.opciones); });
        opcion("&Formas y colores",
               [ventana, &g] { DialogoFormas(ventana, g.clase, g.opciones, Nombres(g)); });
        if (clase.conOtras) opcion("&Otras opciones", [ventana, &g] { DialogoOtrasOpciones(ventana, g); });
        opcion("&Decimales", [ventana] { DialogoDecimales(Lote.DecimalesSalida, ventana); });
    }
    EntradaDeMenu(dialogo, "I&mprimir", [ventana, &g] { ImprimirVentanaGrafico(ventana, g); });
    MenuAyuda(dialogo, PaginaDeAyuda(g.clase));
}

} // namespace

void MostrarGraficoQt(Ventana *ventana, Grafico &grafico) {
    QDialog dialogo(DeVentana(ventana));
    auto *area = new AreaGrafico(&dialogo, grafico);
    PrepararVentanaQueImprime(dialogo, *area, "ventanaGrafico", grafico.tituloVentana);
    PonerMenu(dialogo, *area, grafico);
    dialogo.resize(DentroDeLaPantalla(dialogo, dialogo.sizeHint()));
    PonerCursor(CursorFlecha); // a statement runs under the wait cursor, which would hide those of the chart
    Modal(dialogo);
}
