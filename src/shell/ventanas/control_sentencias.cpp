// The text control of the statements.
#include "shell/ventanas/control_sentencias.h"

#include "platform/qt/superficie_qt.h"
#include "platform/qt/texto_qt.h"
#include "platform/qt/ventana_qt.h"
#include "shell/ejemplos.h"
#include "shell/ventanas/colores_sentencias.h"

#include <QMenu>
#include <QMimeData>
#include <QPainter>
#include <QTextBlock>
#include <QTimer>
#include <QWheelEvent>

#include <algorithm>
#include <memory>

namespace {

constexpr int ZoomMinimo = 50, ZoomMaximo = 400, PasoDeZoom = 10; // per cent

class Margen : public QWidget {
public:
    explicit Margen(ControlSentencias *dueno) : QWidget(dueno), control(dueno) {}

protected:
    void paintEvent(QPaintEvent *suceso) override { control->PintarMargen(suceso); }

private:
    ControlSentencias *control;
};

// The file of the user's machine that is dragged here, empty for none.
QString FicheroArrastrado(const QMimeData *datos) {
    if (datos == nullptr || !datos->hasUrls()) return {};
    for (const QUrl &url : datos->urls())
        if (url.isLocalFile()) return url.toLocalFile();
    return {};
}

QFont ConZoom(QFont fuente, int porCiento) {
    if (fuente.pointSizeF() > 0) {
        fuente.setPointSizeF(fuente.pointSizeF() * porCiento / 100);
    } else { // a desktop that sets its letters in pixels
        fuente.setPixelSize(std::max(fuente.pixelSize() * porCiento / 100, 1));
    }
    return fuente;
}

} // namespace

ControlSentencias::ControlSentencias(QWidget *padre)
    : QPlainTextEdit(padre), margen(new Margen(this)), colores(new ColoresDeSentencias(document())),
      fuenteSinZoom(FuenteFijaDePantalla()) {
    setObjectName(QStringLiteral("PantallaEdicion"));
    setAccessibleName(QStringLiteral("Pantalla de edición"));
    margen->setObjectName(QStringLiteral("margen"));
    setFont(fuenteSinZoom);
    setLineWrapMode(QPlainTextEdit::NoWrap);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setFrameShape(QFrame::NoFrame);
    // Tab goes on to the next control in dialogs; here it writes, as in any editor of statements.
    setTabChangesFocus(false);
    connect(this, &QPlainTextEdit::blockCountChanged, this, [this] { AjustarMargen(); });
    connect(this, &QPlainTextEdit::updateRequest, margen, [this](const QRect &zona, int corrido) {
        if (corrido != 0) {
            margen->scroll(0, corrido);
        } else {
            margen->update(0, zona.y(), margen->width(), zona.height());
        }
    });
    connect(this, &QPlainTextEdit::textChanged, this, &ControlSentencias::AlCambiarElTexto);
    connect(this, &QPlainTextEdit::cursorPositionChanged, this, &ControlSentencias::Resaltar);
    PonerPaleta();
    AjustarMargen();
}

// ----- The margin

int ControlSentencias::AnchoDelMargen() const {
    const QFontMetrics m(font());
    const int cifras = std::max(3, static_cast<int>(QString::number(blockCount()).size()));
    return m.height() + cifras * m.horizontalAdvance(u'0') +
           m.horizontalAdvance(u'0') / 2; // mark, number, a gap
}

void ControlSentencias::AjustarMargen() {
    const int ancho = AnchoDelMargen();
    setViewportMargins(ancho, 0, 0, 0);
    const QRect dentro = contentsRect();
    margen->setGeometry(dentro.left(), dentro.top(), ancho, viewport()->height());
}

void ControlSentencias::PintarMargen(QPaintEvent *suceso) {
    QPainter pintor(margen);
    const bool oscura = EsOscura(palette());
    const QFontMetrics m(font());
    pintor.fillRect(suceso->rect(), palette().color(QPalette::AlternateBase));
    pintor.setFont(font());
    for (QTextBlock linea = firstVisibleBlock(); linea.isValid(); linea = linea.next()) {
        const QRectF sitio = blockBoundingGeometry(linea).translated(contentOffset());
        if (sitio.top() > suceso->rect().bottom()) break;
        const int y = qRound(sitio.top());
        const bool parada = linea.blockNumber() == lineaDeParada;
        pintor.setPen(parada ? TintaDeParada(oscura) : TintaDelMargen(oscura));
        pintor.drawText(0, y, margen->width() - m.horizontalAdvance(u'0') / 2, m.height(), Qt::AlignRight,
                        QString::number(linea.blockNumber() + 1));
        if (!parada) continue;
        pintor.setRenderHint(QPainter::Antialiasing);
        pintor.setBrush(TintaDeParada(oscura));
        const double lado = 0.6 * m.height(), borde = 0.2 * m.height();
        pintor.drawEllipse(QRectF(borde, y + borde, lado, lado));
        pintor.setBrush(Qt::NoBrush);
    }
}

void ControlSentencias::resizeEvent(QResizeEvent *suceso) {
    QPlainTextEdit::resizeEvent(suceso);
    AjustarMargen();
}

// ----- Colours and marks

void ControlSentencias::PonerPaleta() {
    colores->PonerPaleta(palette());
    Resaltar();
    viewport()->update();
    margen->update();
}

void ControlSentencias::RefrescarColores() {
    if (colores->MirarNombres()) viewport()->update();
}

void ControlSentencias::ColorearLoVisible() {
    const QTextBlock primera = firstVisibleBlock();
    QTextBlock ultima = primera;
    const int fondo = viewport()->height();
    while (ultima.next().isValid() &&
           blockBoundingGeometry(ultima.next()).translated(contentOffset()).top() <= fondo)
        ultima = ultima.next();
    colores->ALaVista(primera, ultima);
}

// What comes to the screen gets its colours here, wherever it came from: a key, the wheel, a change of the work file.
void ControlSentencias::paintEvent(QPaintEvent *suceso) {
    ColorearLoVisible();
    QPlainTextEdit::paintEvent(suceso);
}

void ControlSentencias::changeEvent(QEvent *suceso) {
    QPlainTextEdit::changeEvent(suceso);
    if (suceso->type() == QEvent::PaletteChange || suceso->type() == QEvent::StyleChange) PonerPaleta();
    if (suceso->type() == QEvent::FontChange) AjustarMargen();
}

void ControlSentencias::Resaltar() {
    QList<QTextEdit::ExtraSelection> marcas;
    if (lineaDeParada >= 0) {
        QTextEdit::ExtraSelection m;
        m.cursor = QTextCursor(document()->findBlockByNumber(lineaDeParada));
        m.format.setBackground(PapelDeParada(EsOscura(palette())));
        m.format.setProperty(QTextFormat::FullWidthSelection, true);
        marcas.append(m);
    }
    // The bracket before the caret, else the one behind it, with the one that belongs to it.
    const QTextCursor cursor = textCursor();
    const QTextBlock linea = cursor.block();
    const std::string texto = De1252Q(linea.text());
    for (const int en : {cursor.positionInBlock() - 1, cursor.positionInBlock()}) {
        const int pareja = Pareja(texto, en);
        if (pareja < 0) continue;
        for (const int sitio : {en, pareja}) {
            QTextEdit::ExtraSelection m;
            m.cursor = QTextCursor(linea);
            m.cursor.setPosition(linea.position() + sitio);
            m.cursor.movePosition(QTextCursor::NextCharacter, QTextCursor::KeepAnchor);
            m.format.setBackground(palette().color(QPalette::Highlight));
            m.format.setForeground(palette().color(QPalette::HighlightedText));
            marcas.append(m);
        }
        break;
    }
    setExtraSelections(marcas);
}

void ControlSentencias::MarcarParada(int posicion) {
    QTextCursor cursor = textCursor();
    cursor.setPosition(std::clamp(posicion, 0, document()->characterCount() - 1));
    lineaDeParada = cursor.blockNumber();
    textoDeParada = toPlainText();
    setTextCursor(cursor);
    Resaltar();
    margen->update();
}

void ControlSentencias::QuitarParada() {
    if (lineaDeParada < 0) return;
    lineaDeParada = -1;
    textoDeParada.clear();
    Resaltar();
    margen->update();
}

// The toolkit calls it a change, too, when a line gets its colours.
void ControlSentencias::AlCambiarElTexto() {
    if (colores->Coloreando()) return;
    if (lineaDeParada >= 0 && toPlainText() != textoDeParada) QuitarParada();
    Resaltar();
}

// ----- Keys, mouse, clipboard

// The toolkit's control writes the letter of Alt+letter.
void ControlSentencias::keyPressEvent(QKeyEvent *tecla) {
    if (!EsLetraConAlt(*tecla)) QPlainTextEdit::keyPressEvent(tecla);
}

// It looks at the first format of what is pasted, too: version 6.4 ends the program when the clipboard has none, on a
// desktop where nothing was copied yet, or whose owner has gone.
void ControlSentencias::insertFromMimeData(const QMimeData *datos) {
    if (datos != nullptr && datos->hasText()) QPlainTextEdit::insertFromMimeData(datos);
}

void ControlSentencias::wheelEvent(QWheelEvent *suceso) {
    if ((suceso->modifiers() & Qt::ControlModifier) == 0) return QPlainTextEdit::wheelEvent(suceso);
    restoDeRueda += suceso->angleDelta().y();
    const int muescas = restoDeRueda / 120;
    restoDeRueda -= muescas * 120;
    zoom = std::clamp(zoom + muescas * PasoDeZoom, ZoomMinimo, ZoomMaximo);
    setFont(ConZoom(fuenteSinZoom, zoom));
    suceso->accept();
}

void ControlSentencias::contextMenuEvent(QContextMenuEvent *suceso) {
    const std::unique_ptr<QMenu> menu(createStandardContextMenu());
    menu->setObjectName(QStringLiteral("menuContexto"));
    menu->addSeparator();
    menu->addAction(QStringLiteral("&Buscar y reemplazar..."), this, &ControlSentencias::PideBuscar);
    menu->addAction(QStringLiteral("Cómo &se calcula..."), this, &ControlSentencias::PideTraza);
    QMenu *ejemplos = menu->addMenu(QStringLiteral("&Ejemplos"));
    ejemplos->setObjectName(QStringLiteral("menuEjemplos"));
    for (int i = 0; i < NumEjemplos; ++i) {
        if (i > 0 && TablaEjemplos[i].nombre == nullptr && TablaEjemplos[i - 1].nombre != nullptr)
            ejemplos->addSeparator(); // statements behind the data
        ejemplos->addAction(QDe1252(TablaEjemplos[i].entrada), this, [this, i] { emit PideEjemplo(i); });
    }
    menu->exec(suceso->globalPos());
}

// ----- Files dropped on it

void ControlSentencias::dragEnterEvent(QDragEnterEvent *suceso) {
    if (FicheroArrastrado(suceso->mimeData()).isEmpty()) return QPlainTextEdit::dragEnterEvent(suceso);
    suceso->acceptProposedAction();
}

void ControlSentencias::dragMoveEvent(QDragMoveEvent *suceso) {
    if (FicheroArrastrado(suceso->mimeData()).isEmpty()) return QPlainTextEdit::dragMoveEvent(suceso);
    suceso->acceptProposedAction();
}

// It is opened when the drop has ended: whoever dragged it waits for that, and boxes may come.
void ControlSentencias::dropEvent(QDropEvent *suceso) {
    const QString ruta = FicheroArrastrado(suceso->mimeData());
    if (ruta.isEmpty()) return QPlainTextEdit::dropEvent(suceso);
    suceso->acceptProposedAction();
    QTimer::singleShot(0, this, [this, ruta] { emit FicheroSoltado(ruta); });
}
