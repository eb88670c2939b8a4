// The log of the session in the main window: a text that grows, with search, copy and file; a result opens again from it.
#include "shell/ventanas/registro_qt.h"

#include "charts/resultados/ventanas/ventana_resultado_qt.h"
#include "platform/archivos.h"
#include "platform/qt/superficie_qt.h"
#include "platform/qt/texto_qt.h"
#include "platform/qt/ventana_qt.h"
#include "platform/texto.h"
#include "shell/registro.h"
#include "shell/ventanas/colores_sentencias.h"

#include <QApplication>
#include <QClipboard>
#include <QDockWidget>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QStatusBar>
#include <QTextBlock>
#include <QTextCursor>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int MaxLineasALaVista = 20'000; // the oldest go; a copy and a file have all that the log keeps
constexpr int ColumnasALaVista = 76;      // a report's lines and a gap

class PanelRegistro;
PanelRegistro *EnPantalla = nullptr; // the program has one main window

class PanelRegistro : public QDockWidget {
public:
    explicit PanelRegistro(QMainWindow &principal)
        : QDockWidget(QStringLiteral("Registro"), &principal), buscar(new QLineEdit),
          texto(new QPlainTextEdit) {
        setObjectName(QStringLiteral("registro"));
        setAllowedAreas(Qt::AllDockWidgetAreas);
        buscar->setObjectName(QStringLiteral("buscarEnRegistro"));
        buscar->setPlaceholderText(QStringLiteral("Buscar en el registro"));
        buscar->setAccessibleName(buscar->placeholderText());
        buscar->setClearButtonEnabled(true);
        texto->setObjectName(QStringLiteral("textoRegistro"));
        texto->setAccessibleName(QStringLiteral("Registro"));
        texto->setFont(FuenteFijaDePantalla());
        texto->setReadOnly(true);
        texto->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        texto->setLineWrapMode(QPlainTextEdit::NoWrap);
        texto->setUndoRedoEnabled(false);
        texto->setMaximumBlockCount(MaxLineasALaVista);
        texto->installEventFilter(this);
        texto->viewport()->installEventFilter(this);
        auto *copiar = new QPushButton(QStringLiteral("Copiar"));
        copiar->setObjectName(QStringLiteral("copiarRegistro"));
        auto *guardar = new QPushButton(QStringLiteral("Guardar como..."));
        guardar->setObjectName(QStringLiteral("guardarRegistro"));
        auto *panel = new QWidget;
        auto *disposicion = new QVBoxLayout(panel);
        disposicion->setContentsMargins(0, 0, 0, 0);
        auto *fila = new QHBoxLayout;
        fila->addWidget(buscar, 1);
        fila->addWidget(copiar);
        fila->addWidget(guardar);
        disposicion->addLayout(fila);
        disposicion->addWidget(texto, 1);
        setWidget(panel);
        connect(buscar, &QLineEdit::returnPressed, this, [this] { Buscar(); });
        connect(copiar, &QPushButton::clicked, this, [this] { Copiar(); });
        connect(guardar, &QPushButton::clicked, this, [this] { Guardar(); });
        connect(this, &QDockWidget::visibilityChanged, this, [this, &principal](bool visible) {
            if (!visible) return;
            if (ultima == 0) TomarSitio(principal);
            Refrescar();
        });
        reloj.setSingleShot(true);
        connect(&reloj, &QTimer::timeout, this, [this] {
            if (isVisible()) Refrescar();
        });
        EnPantalla = this;
    }

    ~PanelRegistro() override {
        if (EnPantalla == this) EnPantalla = nullptr;
    }

    // What a batch brings is shown when it has ended, or while it waits for the user.
    void Avisar() {
        if (isVisible() && !reloj.isActive()) reloj.start(0);
    }

protected:
    bool eventFilter(QObject *objeto, QEvent *suceso) override {
        if (suceso->type() == QEvent::MouseButtonDblClick && objeto == texto->viewport()) {
            const QPoint lugar = static_cast<QMouseEvent *>(suceso)->position().toPoint();
            if (AbrirResultado(texto->cursorForPosition(lugar).block())) return true;
        }
        if (suceso->type() == QEvent::KeyPress && objeto == texto) {
            const int tecla = static_cast<QKeyEvent *>(suceso)->key();
            if ((tecla == Qt::Key_Return || tecla == Qt::Key_Enter) &&
                AbrirResultado(texto->textCursor().block()))
                return true;
        }
        return QDockWidget::eventFilter(objeto, suceso);
    }

    void changeEvent(QEvent *suceso) override {
        QDockWidget::changeEvent(suceso);
        if (suceso->type() != QEvent::PaletteChange || ultima == 0) return;
        texto->clear(); // its inks are those of before
        ultima = 0;
        if (isVisible()) Refrescar();
    }

private:
    // Room for a report, where the statements keep as much.
    void TomarSitio(QMainWindow &principal) {
        const int ancho = QFontMetrics(texto->font()).horizontalAdvance(u'0') * ColumnasALaVista +
                          texto->verticalScrollBar()->sizeHint().width();
        principal.resizeDocks({this}, {std::min(ancho, principal.width() / 2)}, Qt::Horizontal);
    }

    // Adds the entries that aren't shown yet; each of their lines knows its entry.
    void Refrescar() {
        const bool alFinal = texto->verticalScrollBar()->value() == texto->verticalScrollBar()->maximum();
        QTextCursor c(texto->document());
        c.movePosition(QTextCursor::End);
        c.beginEditBlock();
        for (const EntradaRegistro &e : EntradasRegistro()) {
            if (e.numero <= ultima) continue;
            ultima = e.numero;
            QTextCharFormat formato;
            if (e.clase == EntradaCaja || e.clase == EntradaNota)
                formato.setForeground(TintaDeTrozo(TrozoComentario, EsOscura(palette())));
            // The last line is always the empty one behind the last end.
            const QString lineas = QDe1252(e.texto);
            QTextBlock bloque = c.block();
            if (e.clase == EntradaResultado) {
                const qsizetype titulo = lineas.indexOf(u'\n');
                QTextCharFormat abrible;
                abrible.setFontWeight(QFont::Bold);
                abrible.setFontUnderline(true);
                c.insertText(lineas.left(titulo), abrible);
                c.insertText(lineas.mid(titulo), formato);
            } else {
                c.insertText(lineas, formato);
            }
            for (; bloque.isValid() && bloque != c.block(); bloque = bloque.next())
                bloque.setUserState(e.numero);
        }
        c.endEditBlock();
        if (alFinal) texto->verticalScrollBar()->setValue(texto->verticalScrollBar()->maximum());
    }

    // The result to which a line belongs, in its window again. False for any other line, or when the log has it no more.
    bool AbrirResultado(const QTextBlock &linea) {
        const EntradaRegistro *entrada = BuscarEntrada(linea.userState());
        if (entrada == nullptr || entrada->resultado == nullptr) return false;
        const std::shared_ptr<const ResultadoGuardado> resultado = entrada->resultado; // the log may drop it
        MostrarResultadoQt(AVentana(window()), resultado->salida);
        return true;
    }

    // The next place behind the caret, from the top again behind the last one.
    void Buscar() {
        if (buscar->text().isEmpty() || texto->find(buscar->text())) return;
        const QTextCursor antes = texto->textCursor();
        texto->moveCursor(QTextCursor::Start);
        if (!texto->find(buscar->text())) texto->setTextCursor(antes);
    }

    // What is selected, or all.
    void Copiar() {
        if (texto->textCursor().hasSelection()) return texto->copy();
        QApplication::clipboard()->setText(QDe1252(TextoDeRegistro()));
    }

    void Guardar() {
        static constexpr FormatoArchivo Formatos[] = {{"txt", "Texto (*.txt)"}};
        std::string ruta;
        if (!ElegirArchivo(AVentana(window()), {true, "Guardar como", Formatos, "Registro"}, ruta)) return;
        if (!EscribirArchivo(ruta, Utf8De1252(TextoDeRegistro())))
            MostrarMensaje(AVentana(window()), "No se ha podido guardar el archivo");
    }

    QLineEdit *buscar;
    QPlainTextEdit *texto;
    QTimer reloj;
    int ultima = 0; // number of the last entry that is shown
};

void Avisar() {
    if (EnPantalla != nullptr) EnPantalla->Avisar();
}

} // namespace

void PonerRegistro(QMainWindow &principal) {
    auto *panel = new PanelRegistro(principal);
    principal.addDockWidget(Qt::RightDockWidgetArea, panel);
    panel->hide();
    auto *boton = new QToolButton(&principal);
    boton->setObjectName(QStringLiteral("abrirRegistro"));
    boton->setDefaultAction(panel->toggleViewAction());
    boton->setAutoRaise(true);
    boton->setFocusPolicy(Qt::TabFocus);
    principal.statusBar()->addPermanentWidget(boton);
    AlCambiarRegistro = Avisar;
}
