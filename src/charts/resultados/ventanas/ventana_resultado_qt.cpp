// The result window of the desktop: a surface that the core paints, its bar, keys and wheel, and ways to get the result
// out: printer, clipboard, files.
#include "charts/resultados/ventanas/ventana_resultado_qt.h"

#include "charts/resultados/formatos_tabla.h"
#include "charts/resultados/fuentes.h"
#include "charts/resultados/impresion.h"
#include "charts/resultados/ventana_resultado.h"
#include "charts/resultados/ventanas/copiar_resultado.h"
#include "charts/resultados/ventanas/guardar_resultado.h"
#include "charts/resultados/ventanas/lectura_resultado.h"
#include "charts/resultados/ventanas/ventana_traza.h"
#include "platform/qt/impresora_qt.h"
#include "platform/qt/superficie_qt.h"
#include "platform/qt/texto_qt.h"
#include "platform/qt/ventana_qt.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QContextMenuEvent>
#include <QDialog>
#include <QImage>
#include <QKeyEvent>
#include <QLabel>
#include <QLayout>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QShortcut>
#include <QSignalBlocker>
#include <QToolTip>
#include <QWheelEvent>

namespace {

constexpr int FilasDeLaVentana = 30; // lines that the window shows when it opens, where the screen has them

class AreaResultado : public QAbstractScrollArea {
public:
    AreaResultado(QWidget *padre, const SalidaResultado &resultado)
        : QAbstractScrollArea(padre), salida(resultado), fuente(FuenteFijaDePantalla()) {
        estado.Clase = salida.Clase;
        estado.Contenido = salida.Contenido;
        setObjectName(QStringLiteral("areaResultado"));
        setFocusPolicy(Qt::StrongFocus);
        setAccessibleName(QDe1252(salida.titulo));
        HacerLegible(*this, QDe1252(TextoDeResultado(salida)));
        siguen.setObjectName(QStringLiteral("siguenLineas"));
        siguen.setAutoFillBackground(true);
        siguen.setBackgroundRole(QPalette::ToolTipBase);
        siguen.setForegroundRole(QPalette::ToolTipText);
        siguen.setFrameShape(QFrame::Box);
        siguen.setMargin(2);
        siguen.setAttribute(Qt::WA_TransparentForMouseEvents);
        siguen.hide();
        viewport()->setMouseTracking(true); // over a number the mouse shows that it leads somewhere
        setFrameShape(QFrame::NoFrame);
        const int tope = FormaDe(salida).topeBarra;
        verticalScrollBar()->setRange(0, tope);
        verticalScrollBar()->setSingleStep(1);
        verticalScrollBar()->setPageStep(5);
        setVerticalScrollBarPolicy(tope > 0 ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
        connect(verticalScrollBar(), &QScrollBar::valueChanged, this,
                [this](int valor) { Mover([&] { DesplazarResultado(estado, salida, DesplazarA, valor); }); });
    }

    QSize TamanoInicial() const {
        const QFontMetrics m(fuente);
        return {m.horizontalAdvance(u'0') * ColumnasAlAbrir(FormaDe(salida)) +
                    verticalScrollBar()->sizeHint().width(),
                m.lineSpacing() * FilasDeLaVentana};
    }

    // Width that the block and the bar ask for, as far as the screen has it.
    int AnchoMinimo() const {
        const int barra = FormaDe(salida).topeBarra > 0 ? verticalScrollBar()->sizeHint().width() : 0;
        const QSize lado(
            QFontMetrics(fuente).horizontalAdvance(u'0') * ColumnasMinimas(FormaDe(salida)) + barra, 0);
        return DentroDeLaPantalla(*this, lado).width();
    }

    void Imprimir() { ImprimirResultado(AVentana(window()), salida); }

    void ComoSeCalcula() { AbrirTrazaDeResultado(window(), salida); }

    EstadoVentanaResultado estado{};

protected:
    void paintEvent(QPaintEvent *) override {
        QPainter pintor(viewport());
        PintorSuperficie propio;
        Superficie s = SuperficieDePintor(propio, pintor, fuente, viewport()->width(), viewport()->height());
        // The background of a dark desktop is not the paper's: the result is drawn in black on white.
        pintor.fillRect(viewport()->rect(), Qt::white);
        PintarResultado(s, estado, salida);
    }

    void resizeEvent(QResizeEvent *suceso) override {
        QAbstractScrollArea::resizeEvent(suceso);
        SenalarLoQueSigue();
    }

    void keyPressEvent(QKeyEvent *suceso) override {
        static constexpr struct {
            int tecla;
            TeclasResultado que;
        } Teclas[] = {{Qt::Key_Up, TeclaArriba},           {Qt::Key_Down, TeclaAbajo},
                      {Qt::Key_PageUp, TeclaPaginaArriba}, {Qt::Key_PageDown, TeclaPaginaAbajo},
                      {Qt::Key_Home, TeclaInicio},         {Qt::Key_End, TeclaFin}};
        for (const auto &t : Teclas) {
            if (t.tecla != suceso->key()) continue;
            Mover([&] { DesplazarConTecla(estado, salida, t.que); });
            return;
        }
        if (suceso->matches(QKeySequence::Copy)) return Sacar(CopiarTexto);
        if (suceso->matches(QKeySequence::Save)) return Guardar();
        if (suceso->matches(QKeySequence::Print)) return Imprimir();
        // The toolkit knows the key of the context menu, which many keyboards lack, but not its usual stand-in.
        if (suceso->key() == Qt::Key_F10 && suceso->modifiers() == Qt::ShiftModifier) {
            const QPoint centro = rect().center();
            QContextMenuEvent menu(QContextMenuEvent::Keyboard, centro, mapToGlobal(centro));
            contextMenuEvent(&menu);
            return;
        }
        QAbstractScrollArea::keyPressEvent(suceso);
    }

    void wheelEvent(QWheelEvent *suceso) override {
        resto += suceso->angleDelta().y();
        const int muescas = resto / 120;
        resto -= muescas * 120;
        if (muescas != 0) Mover([&] { DesplazarConRueda(estado, salida, -muescas); });
    }

    // A number leads to the step that gave it.
    void mouseReleaseEvent(QMouseEvent *suceso) override {
        const FuenteDeNumero *origen = FuenteEn(suceso->position().toPoint());
        if (suceso->button() == Qt::LeftButton && origen != nullptr)
            return AbrirTrazaEnFuente(window(), salida, *origen);
        QAbstractScrollArea::mouseReleaseEvent(suceso);
    }

    void mouseMoveEvent(QMouseEvent *suceso) override {
        PonerMano(FuenteEn(suceso->position().toPoint()) != nullptr);
        QAbstractScrollArea::mouseMoveEvent(suceso);
    }

    bool viewportEvent(QEvent *suceso) override {
        if (suceso->type() == QEvent::Leave) PonerMano(false);
        if (suceso->type() == QEvent::ToolTip) {
            const auto *ayuda = static_cast<QHelpEvent *>(suceso);
            const FuenteDeNumero *origen = FuenteEn(ayuda->pos());
            const int paso = origen != nullptr ? PasoDeFuente(*origen, salida.traza) : -1;
            if (paso >= 0)
                QToolTip::showText(ayuda->globalPos(),
                                   QDe1252(Traza.pasos[static_cast<std::size_t>(paso)].explicacion), this);
            else
                QToolTip::hideText();
            return true;
        }
        return QAbstractScrollArea::viewportEvent(suceso);
    }

    void contextMenuEvent(QContextMenuEvent *suceso) override {
        QMenu menu(this);
        menu.setObjectName(QStringLiteral("menuContexto"));
        menu.addAction(QStringLiteral("&Copiar"), this, [this] { Sacar(CopiarTexto); });
        menu.addAction(QStringLiteral("Copiar como &tabla"), this, [this] { Sacar(CopiarComoTabla); });
        menu.addAction(QStringLiteral("Copiar como &LaTeX"), this, [this] { Sacar(CopiarComoLatex); });
        menu.addAction(QStringLiteral("Copiar como &Markdown"), this, [this] { Sacar(CopiarComoMarkdown); });
        QAction *comas = menu.addAction(QStringLiteral("Comas &decimales al copiar"));
        comas->setCheckable(true);
        comas->setChecked(ComasAlCopiar());
        connect(comas, &QAction::toggled, this, PonerComasAlCopiar);
        menu.addAction(QStringLiteral("&Guardar como..."), this, [this] { Guardar(); });
        menu.addAction(QStringLiteral("Cómo &se calcula..."), this, [this] { ComoSeCalcula(); });
        menu.exec(suceso->globalPos());
    }

private:
    // Moves the first line, and the bar to where it really stands now.
    template <class Movimiento> void Mover(Movimiento mover) {
        mover();
        const QSignalBlocker callada(verticalScrollBar());
        verticalScrollBar()->setValue(estado.LineaInicial);
        viewport()->update();
        SenalarLoQueSigue();
        const int fijas = salida.fijas != nullptr ? static_cast<int>(salida.fijas->size()) : 0;
        LeerDesdeLinea(*this, estado.LineaInicial > 0 ? fijas + estado.LineaInicial : 0);
    }

    // The source of the number at a place, null where there is none.
    const FuenteDeNumero *FuenteEn(const QPoint &lugar) const {
        int linea = 0, columna = 0, primera = 0, detras = 0;
        if (salida.fuentes == nullptr ||
            !LineaEnPunto(estado, salida, viewport()->width(), viewport()->height(), {lugar.x(), lugar.y()},
                          linea, columna))
            return nullptr;
        const char *texto = (*salida.lineas)[static_cast<std::size_t>(linea)].texto;
        for (const FuentesDeLinea &f : *salida.fuentes)
            if (f.linea == linea) return FuenteEnColumna(texto, f.numeros, columna, primera, detras);
        return nullptr;
    }

    // The cursor of the window is that of the program, which a batch may have set.
    static void PonerMano(bool mano) {
        if (QApplication::overrideCursor() != nullptr)
            QApplication::changeOverrideCursor(mano ? Qt::PointingHandCursor : Qt::ArrowCursor);
    }

    // Every command of the window takes away what the one before told.
    void Sacar(void (*copiar)(const SalidaResultado &)) {
        BorrarNotasDeImpresion();
        copiar(salida);
    }
    void Guardar() {
        BorrarNotasDeImpresion();
        DialogoGuardarResultado(this, salida);
    }

    // The same painting on nothing tells how many lines the window doesn't reach.
    void SenalarLoQueSigue() {
        QImage nada(1, 1, QImage::Format_RGB32);
        EstadoVentanaResultado medido = estado;
        {
            QPainter pintor(&nada);
            PintorSuperficie propio;
            Superficie s =
                SuperficieDePintor(propio, pintor, fuente, viewport()->width(), viewport()->height());
            PintarResultado(s, medido, salida);
        }
        constexpr int Separacion = 8; // from the frame of the window
        const int faltan = LineasPorDebajo(medido, salida);
        siguen.setText(faltan == 1 ? QStringLiteral("▼ Sigue 1 línea")
                                   : QStringLiteral("▼ Siguen %1 líneas").arg(faltan));
        siguen.adjustSize();
        siguen.move(viewport()->width() - siguen.width() - Separacion,
                    viewport()->height() - siguen.height() - Separacion);
        siguen.setVisible(faltan > 0);
    }

    const SalidaResultado &salida;
    QFont fuente;
    int resto = 0;             // of the wheel, below a notch
    QLabel siguen{viewport()}; // the sign that lines are hidden below
};

} // namespace

void MostrarResultadoQt(Ventana *ventana, const SalidaResultado &salida) {
    QDialog dialogo(DeVentana(ventana));
    auto *area = new AreaResultado(&dialogo, salida);
    PrepararVentanaQueImprime(dialogo, *area, "ventanaResultado", salida.titulo);
    auto *barra = new QMenuBar(&dialogo);
    barra->setObjectName(QStringLiteral("menuResultado"));
    QAction *imprimir = barra->addAction(QStringLiteral("&Imprimir"));
    imprimir->setObjectName(QStringLiteral("comando2006"));
    QObject::connect(imprimir, &QAction::triggered, area, [area] { area->Imprimir(); });
    if (FormaDe(salida).conGraficos) {
        QAction *graficos = barra->addAction(QStringLiteral("&Gráficos"));
        graficos->setObjectName(QStringLiteral("comandoGraficos"));
        QObject::connect(graficos, &QAction::triggered, &dialogo, [&] {
            BorrarNotasDeImpresion();
            if (salida.graficos != nullptr) salida.graficos(AVentana(&dialogo));
        });
    } else {
        QAction *salir = barra->addAction(QStringLiteral("&Salir"));
        salir->setObjectName(QStringLiteral("comando2021"));
        QObject::connect(salir, &QAction::triggered, &dialogo, &QDialog::accept);
    }
    dialogo.layout()->setMenuBar(barra);
    area->setMinimumWidth(area->AnchoMinimo());
    QObject::connect(new QShortcut(Qt::Key_F9, &dialogo), &QShortcut::activated, area,
                     [area] { area->ComoSeCalcula(); });
    dialogo.resize(DentroDeLaPantalla(dialogo, area->TamanoInicial() + QSize(0, barra->sizeHint().height())));
    // A statement runs under the wait cursor; its result is looked at under the arrow.
    QApplication::setOverrideCursor(Qt::ArrowCursor);
    Modal(dialogo);
    QApplication::restoreOverrideCursor();
}
