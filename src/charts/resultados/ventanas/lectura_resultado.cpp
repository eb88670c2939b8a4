// The lines of a result for screen readers.
#include "charts/resultados/ventanas/lectura_resultado.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QVariant>
#include <QWidget>

#include <algorithm>

namespace {

constexpr const char *Texto = "textoLegible"; // properties of the widget
constexpr const char *Caret = "caretLegible";

class LecturaDeResultado : public QAccessibleWidget, public QAccessibleTextInterface {
public:
    explicit LecturaDeResultado(QWidget *w) : QAccessibleWidget(w, QAccessible::Document) {}

    void *interface_cast(QAccessible::InterfaceType tipo) override {
        if (tipo == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface *>(this);
        return QAccessibleWidget::interface_cast(tipo);
    }

    QAccessible::State state() const override {
        QAccessible::State estado = QAccessibleWidget::state();
        estado.readOnly = true;
        estado.multiLine = true;
        return estado;
    }

    // Nothing in it can be selected.
    void selection(int, int *desde, int *hasta) const override { *desde = *hasta = 0; }
    int selectionCount() const override { return 0; }
    void addSelection(int, int) override {}
    void removeSelection(int) override {}
    void setSelection(int, int, int) override {}

    int cursorPosition() const override { return widget()->property(Caret).toInt(); }
    void setCursorPosition(int posicion) override {
        widget()->setProperty(Caret, std::clamp(posicion, 0, characterCount()));
    }

    QString text(int desde, int hasta) const override {
        const QString todo = Todo();
        const int fin = hasta < 0 ? characterCount() : hasta;
        return todo.mid(desde, fin - desde);
    }
    int characterCount() const override { return static_cast<int>(Todo().size()); }

    // Where a character stands is the painter's affair.
    QRect characterRect(int) const override { return {}; }
    int offsetAtPoint(const QPoint &) const override { return -1; }
    void scrollToSubstring(int, int) override {}
    QString attributes(int, int *desde, int *hasta) const override {
        *desde = 0;
        *hasta = characterCount();
        return {};
    }

private:
    QString Todo() const { return widget()->property(Texto).toString(); }
};

QAccessibleInterface *LecturaDe(const QString &, QObject *objeto) {
    auto *w = qobject_cast<QWidget *>(objeto);
    return w != nullptr && w->property(Texto).isValid() ? new LecturaDeResultado(w) : nullptr;
}

} // namespace

void HacerLegible(QWidget &pintado, const QString &texto) {
    static const bool Puesta = [] {
        QAccessible::installFactory(LecturaDe);
        return true;
    }();
    static_cast<void>(Puesta);
    // Whoever asked for the widget before got what the toolkit makes of any, and would keep it.
    if (QAccessibleInterface *deAntes = QAccessible::queryAccessibleInterface(&pintado))
        QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(deAntes));
    pintado.setProperty(Texto, texto);
    pintado.setProperty(Caret, 0);
}

void LeerDesdeLinea(QWidget &pintado, int linea) {
    const QString texto = pintado.property(Texto).toString();
    qsizetype posicion = 0;
    for (int i = 0; i < linea; ++i) {
        const qsizetype fin = texto.indexOf(u'\n', posicion);
        if (fin < 0) break;
        posicion = fin + 1;
    }
    pintado.setProperty(Caret, static_cast<int>(posicion));
    QAccessibleTextCursorEvent suceso(&pintado, static_cast<int>(posicion));
    QAccessible::updateAccessibility(&suceso);
}
