// The status line of the main window.
#include "shell/ventanas/barra_estado_qt.h"

#include "platform/qt/texto_qt.h"

#include <QPainter>
#include <QStyle>

namespace {

// A long statement must not widen the window: as much of it as there is room for, and a sign that it goes on.
class Mensaje : public QLabel {
public:
    explicit Mensaje(QWidget *padre) : QLabel(padre) {
        setTextFormat(Qt::PlainText);
        setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    }

protected:
    void paintEvent(QPaintEvent *) override {
        QPainter pintor(this);
        const QRect dentro = contentsRect();
        const QString cabe = fontMetrics().elidedText(text(), Qt::ElideRight, dentro.width());
        style()->drawItemText(&pintor, dentro, Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(), cabe,
                              foregroundRole());
    }
};

QString EnHtml(const std::string &texto) {
    return QDe1252(texto).toHtmlEscaped();
}

} // namespace

BarraDeEstado::BarraDeEstado(QWidget *padre, const QPlainTextEdit &control)
    : QStatusBar(padre), pantalla(control), mensaje(new Mensaje(this)), estado(new QLabel(this)) {
    setObjectName(QStringLiteral("BarraDeEstado"));
    mensaje->setObjectName(QStringLiteral("mensaje"));
    estado->setObjectName(QStringLiteral("estado"));
    estado->setTextFormat(Qt::RichText);
    estado->setMinimumWidth(1);
    addWidget(mensaje, 1);
    addPermanentWidget(estado);
    connect(&pantalla, &QPlainTextEdit::cursorPositionChanged, this, [this] { RefrescarEstado(); });
    Refrescar();
}

void BarraDeEstado::Refrescar() {
    actual = EstadoActualDeBarra();
    RefrescarEstado();
    RefrescarMensaje();
}

void BarraDeEstado::RefrescarEstado() {
    const QTextCursor c = pantalla.textCursor();
    const QString todo = QDe1252(TextoDeBarra(actual, c.blockNumber() + 1, c.positionInBlock() + 1));
    QString html = todo.toHtmlEscaped();
    // The paper's own ink turned around: it stands out in any palette.
    if (!actual.porque.empty()) {
        const QString muestra = EnHtml(actual.muestra);
        html.replace(muestra, QStringLiteral("<b style='color:%1;background-color:%2'>&nbsp;%3&nbsp;</b>")
                                  .arg(palette().color(QPalette::HighlightedText).name(),
                                       palette().color(QPalette::Highlight).name(), muestra));
    }
    estado->setText(html);
    estado->setToolTip(EnHtml(actual.porque));
    estado->setAccessibleName(todo);
    estado->setAccessibleDescription(QDe1252(actual.porque));
}

void BarraDeEstado::RefrescarMensaje() {
    mensaje->setText(QDe1252(MensajeDeBarra()));
    mensaje->setToolTip(EnHtml(MensajeDeBarra()));
    // A batch runs to its end before anything else is painted.
    mensaje->repaint();
}

void BarraDeEstado::Olvidar() {
    OlvidarMensajeDeBarra();
    RefrescarMensaje();
}
