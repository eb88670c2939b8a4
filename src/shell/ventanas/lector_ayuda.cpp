// The reader of the manual.
#include "shell/ventanas/lector_ayuda.h"

#include "platform/qt/superficie_qt.h"
#include "platform/qt/texto_qt.h"
#include "platform/qt/ventana_qt.h"
#include "shell/ayuda_palabras.h"

#include <QDialog>
#include <QFontMetrics>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QShortcut>
#include <QSignalBlocker>
#include <QSplitter>
#include <QTextCursor>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int IdDePagina = Qt::UserRole;
constexpr int LineasDelTexto = 27;

class LectorAyuda : public QDialog {
public:
    explicit LectorAyuda(QWidget *padre)
        : QDialog(padre), buscar(new QLineEdit), paginas(new QListWidget), texto(new QPlainTextEdit) {
        setObjectName(QStringLiteral("lectorAyuda"));
        setWindowTitle(QStringLiteral("Ayuda"));
        setWindowFlag(Qt::WindowMaximizeButtonHint);
        buscar->setObjectName(QStringLiteral("buscar"));
        buscar->setPlaceholderText(QStringLiteral("Buscar en todas las páginas"));
        buscar->setAccessibleName(buscar->placeholderText());
        buscar->setClearButtonEnabled(true);
        paginas->setObjectName(QStringLiteral("paginas"));
        paginas->setAccessibleName(QStringLiteral("Páginas"));
        texto->setObjectName(QStringLiteral("texto"));
        texto->setFont(FuenteFijaDePantalla()); // the pages are set out in columns
        texto->setReadOnly(true);
        texto->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        texto->setLineWrapMode(QPlainTextEdit::NoWrap);
        auto *indice = new QWidget;
        auto *columna = new QVBoxLayout(indice);
        columna->setContentsMargins(0, 0, 0, 0);
        columna->addWidget(buscar);
        columna->addWidget(paginas, 1);
        auto *partes = new QSplitter;
        partes->addWidget(indice);
        partes->addWidget(texto);
        partes->setStretchFactor(1, 1);
        partes->setChildrenCollapsible(false);
        auto *disposicion = new QVBoxLayout(this);
        disposicion->addWidget(partes);
        connect(buscar, &QLineEdit::textChanged, this, [this] { Listar(PaginaElegida()); });
        connect(paginas, &QListWidget::currentItemChanged, this, [this] { Mostrar(); });
        Listar(0);
        const QFontMetrics letra(texto->font());
        const int anchoTexto = letra.horizontalAdvance(u'0') * (AnchoLineaAyuda + 8);
        const int anchoIndice = paginas->sizeHintForColumn(0) + 4 * letra.horizontalAdvance(u'0');
        const QSize lado =
            DentroDeLaPantalla(*this, {anchoIndice + anchoTexto, letra.lineSpacing() * LineasDelTexto});
        resize(lado);
        // A small screen takes from the list, whose titles are read in its tips, before it takes from the pages.
        const int quedan = std::max(lado.width() - anchoTexto, anchoIndice / 2);
        partes->setSizes({quedan, lado.width() - quedan});
    }

    // The page of this id, whatever was searched for before.
    void IrA(int pagina) {
        buscar->clear();
        Listar(pagina);
        paginas->setFocus();
    }

private:
    int PaginaElegida() const {
        const QListWidgetItem *elegida = paginas->currentItem();
        return elegida != nullptr ? elegida->data(IdDePagina).toInt() : 0;
    }

    std::string Buscado() const { return De1252Q(buscar->text().trimmed()); }

    // The pages that mention what is searched for, all without a search; `pagina` is the current one if it is among them.
    void Listar(int pagina) {
        const std::string buscado = Buscado();
        const QSignalBlocker callada(paginas);
        paginas->clear();
        for (const PaginaManual *p : PaginasDelLector()) {
            if (!buscado.empty() && LugaresEnPagina(*p, buscado).empty()) continue;
            auto *linea = new QListWidgetItem(QDe1252(TituloConLugar(*p)), paginas);
            linea->setData(IdDePagina, p->id);
            linea->setToolTip(linea->text());
            if (p->id == pagina || paginas->count() == 1) paginas->setCurrentItem(linea);
        }
        Mostrar();
    }

    // The current page, with what is searched for marked, the first place in sight.
    void Mostrar() {
        const PaginaManual *pagina = BuscarPagina(PaginaElegida());
        texto->setPlainText(pagina != nullptr ? QDe1252(TextoDePagina(*pagina))
                                              : QStringLiteral("Ninguna página lo menciona"));
        QList<QTextEdit::ExtraSelection> marcas;
        const std::string buscado = Buscado();
        if (pagina != nullptr)
            for (const int lugar : LugaresEnPagina(*pagina, buscado)) {
                QTextEdit::ExtraSelection marca;
                marca.cursor = QTextCursor(texto->document());
                marca.cursor.setPosition(lugar);
                marca.cursor.setPosition(lugar + static_cast<int>(buscado.size()), QTextCursor::KeepAnchor);
                marca.format.setBackground(palette().highlight());
                marca.format.setForeground(palette().highlightedText());
                marcas.push_back(marca);
            }
        texto->setExtraSelections(marcas);
        if (marcas.isEmpty()) return;
        QTextCursor primera(texto->document());
        primera.setPosition(marcas.constFirst().cursor.selectionStart());
        texto->setTextCursor(primera);
        texto->ensureCursorVisible();
    }

    QLineEdit *buscar;
    QListWidget *paginas;
    QPlainTextEdit *texto;
};

} // namespace

void PonerLector(QPlainTextEdit &control) {
    auto *tecla = new QShortcut(Qt::Key_F1, &control);
    tecla->setContext(Qt::WidgetShortcut);
    QObject::connect(
        tecla, &QShortcut::activated, &control, [&control, lector = QPointer<LectorAyuda>()]() mutable {
            if (lector.isNull()) lector = new LectorAyuda(control.window());
            lector->IrA(PaginaDelLugar(De1252Q(control.toPlainText()), control.textCursor().position()));
            lector->show();
            lector->raise();
            lector->activateWindow();
        });
}
