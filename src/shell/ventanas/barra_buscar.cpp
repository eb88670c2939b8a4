// Find and replace.
#include "shell/ventanas/barra_buscar.h"

#include "platform/qt/formulario.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QPushButton>

namespace {

QLineEdit *Campo(QWidget *padre, const char *nombre, const QString &rotulo) {
    auto *campo = new QLineEdit(padre);
    campo->setObjectName(QLatin1String(nombre));
    campo->setAccessibleName(rotulo);
    campo->installEventFilter(new CampoSinAlt(campo));
    return campo;
}

} // namespace

BarraBuscar::BarraBuscar(QWidget *padre, QPlainTextEdit &control)
    : QWidget(padre), pantalla(control), buscado(Campo(this, "buscado", QStringLiteral("Buscar"))),
      nuevo(Campo(this, "nuevo", QStringLiteral("Reemplazar por"))), aviso(new QLabel(this)) {
    setObjectName(QStringLiteral("barraBuscar"));
    aviso->setObjectName(QStringLiteral("aviso"));
    aviso->setTextFormat(Qt::PlainText);
    auto *rejilla = new QGridLayout(this);
    rejilla->setContentsMargins(4, 4, 4, 4);
    // No letters with Alt: they are the menus'.
    const auto boton = [&](const char *nombre, const QString &texto, int fila, int columna, auto hacer) {
        auto *b = new QPushButton(texto, this);
        b->setObjectName(QLatin1String(nombre));
        connect(b, &QPushButton::clicked, this, hacer);
        rejilla->addWidget(b, fila, columna);
    };
    rejilla->addWidget(new QLabel(QStringLiteral("Buscar:"), this), 0, 0);
    rejilla->addWidget(buscado, 0, 1);
    boton("siguiente", QStringLiteral("Siguiente"), 0, 2, [this] { Buscar({}); });
    boton("anterior", QStringLiteral("Anterior"), 0, 3, [this] { Buscar(QTextDocument::FindBackward); });
    boton("cerrar", QStringLiteral("Cerrar"), 0, 4, [this] { Cerrar(); });
    rejilla->addWidget(new QLabel(QStringLiteral("Reemplazar por:"), this), 1, 0);
    rejilla->addWidget(nuevo, 1, 1);
    boton("reemplazar", QStringLiteral("Reemplazar"), 1, 2, [this] { Reemplazar(); });
    boton("reemplazarTodo", QStringLiteral("Reemplazar todo"), 1, 3, [this] { ReemplazarTodo(); });
    rejilla->addWidget(aviso, 1, 4);
    rejilla->setColumnStretch(1, 1);
    connect(buscado, &QLineEdit::textChanged, aviso, &QLabel::clear);
    hide();
}

void BarraBuscar::Abrir() {
    const QString elegido = pantalla.textCursor().selectedText();
    if (!elegido.isEmpty() && !elegido.contains(QChar::ParagraphSeparator)) buscado->setText(elegido);
    aviso->clear();
    show();
    buscado->setFocus();
    buscado->selectAll();
}

void BarraBuscar::Cerrar() {
    hide();
    pantalla.setFocus();
}

void BarraBuscar::keyPressEvent(QKeyEvent *tecla) {
    switch (tecla->key()) {
    case Qt::Key_Escape: return Cerrar();
    case Qt::Key_Return:
    case Qt::Key_Enter: {
        if (auto *pulsado = qobject_cast<QPushButton *>(focusWidget())) return pulsado->click();
        if (focusWidget() == nuevo) return Reemplazar();
        Buscar(tecla->modifiers() & Qt::ShiftModifier ? QTextDocument::FindBackward
                                                      : QTextDocument::FindFlags{});
        return;
    }
    default: QWidget::keyPressEvent(tecla);
    }
}

// Selects the next place, from the other end of the text when there is none up to this one. Capitals and small letters are
// the same, as they are to the language. False, and a word about it, when there is none at all.
bool BarraBuscar::Buscar(QTextDocument::FindFlags hacia) {
    aviso->clear();
    if (buscado->text().isEmpty()) return false;
    if (pantalla.find(buscado->text(), hacia)) return true;
    const QTextCursor antes = pantalla.textCursor();
    pantalla.moveCursor(hacia & QTextDocument::FindBackward ? QTextCursor::End : QTextCursor::Start);
    if (pantalla.find(buscado->text(), hacia)) return true;
    pantalla.setTextCursor(antes);
    aviso->setText(QStringLiteral("No se encuentra"));
    return false;
}

// What is selected goes if it is what is looked for; the next place is selected in any case.
void BarraBuscar::Reemplazar() {
    QTextCursor cursor = pantalla.textCursor();
    if (!buscado->text().isEmpty() &&
        cursor.selectedText().compare(buscado->text(), Qt::CaseInsensitive) == 0)
        cursor.insertText(nuevo->text());
    Buscar({});
}

// One step for the text's undo.
void BarraBuscar::ReemplazarTodo() {
    if (buscado->text().isEmpty()) return;
    int veces = 0;
    QTextCursor deTodo(pantalla.document());
    deTodo.beginEditBlock();
    for (QTextCursor c = pantalla.document()->find(buscado->text(), 0); !c.isNull();
         c = pantalla.document()->find(buscado->text(), c)) {
        c.insertText(nuevo->text());
        ++veces;
    }
    deTodo.endEditBlock();
    aviso->setText(veces == 0   ? QStringLiteral("No se encuentra")
                   : veces == 1 ? QStringLiteral("Un reemplazo")
                                : QStringLiteral("%1 reemplazos").arg(veces));
}
