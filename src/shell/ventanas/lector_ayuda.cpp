// The reader of the manual.
#include "shell/ventanas/lector_ayuda.h"

#include "platform/datos_programa.h"
#include "platform/qt/superficie_qt.h"
#include "platform/qt/texto_qt.h"
#include "platform/qt/ventana_qt.h"
#include "shell/ayuda_palabras.h"
#include "shell/ventanas/documento_tutorial.h"

#include <QDesktopServices>
#include <QDialog>
#include <QDir>
#include <QFontMetrics>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QScrollBar>
#include <QShortcut>
#include <QSignalBlocker>
#include <QSplitter>
#include <QStackedWidget>
#include <QTextBrowser>
#include <QTextCursor>
#include <QUrl>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int IdDePagina = Qt::UserRole;
constexpr int LineasDelTexto = 27;
constexpr int AnchoMinimoDeImagen = 400; // pixels; a narrower page is moved beside it

// The chapters of the tutorial stand in the list behind the pages, which have positive ids.
constexpr int IdDeCapitulo(int cual) {
    return -1 - cual;
}
constexpr int CapituloDeId(int id) {
    return -1 - id;
}

QPushButton *Boton(const char *nombre, const char *texto) {
    auto *boton = new QPushButton(QString::fromUtf8(texto));
    boton->setObjectName(QString::fromLatin1(nombre));
    boton->setAutoDefault(false); // Enter is the search field's
    return boton;
}

// Marks what is searched for, and brings the first place to sight.
template <class Control>
void Marcar(Control &control, const std::vector<int> &lugares, int largo, const QPalette &paleta) {
    QList<QTextEdit::ExtraSelection> marcas;
    for (const int lugar : lugares) {
        QTextEdit::ExtraSelection marca;
        marca.cursor = QTextCursor(control.document());
        marca.cursor.setPosition(lugar);
        marca.cursor.setPosition(lugar + largo, QTextCursor::KeepAnchor);
        marca.format.setBackground(paleta.highlight());
        marca.format.setForeground(paleta.highlightedText());
        marcas.push_back(marca);
    }
    control.setExtraSelections(marcas);
    if (lugares.empty()) return;
    QTextCursor primera(control.document());
    primera.setPosition(lugares.front());
    control.setTextCursor(primera);
    control.ensureCursorVisible();
}

class LectorAyuda : public QDialog {
public:
    explicit LectorAyuda(QWidget *padre)
        : QDialog(padre), carpeta(QString::fromStdString(CarpetaDeDatos(DatosDelPrograma::Tutorial))),
          capitulos(LeerTutorial(carpeta.toStdString())), buscar(new QLineEdit), paginas(new QListWidget),
          texto(new QPlainTextEdit), tutorial(new QTextBrowser), hoja(new QStackedWidget) {
        setObjectName(QStringLiteral("lectorAyuda"));
        setWindowTitle(QStringLiteral("Ayuda"));
        setWindowFlag(Qt::WindowMaximizeButtonHint);
        buscar->setObjectName(QStringLiteral("buscar"));
        buscar->setPlaceholderText(QStringLiteral("Buscar en todas las páginas"));
        buscar->setAccessibleName(buscar->placeholderText());
        buscar->setClearButtonEnabled(true);
        paginas->setObjectName(QStringLiteral("paginas"));
        paginas->setAccessibleName(QStringLiteral("Páginas"));
        PrepararHojas();
        auto *indice = new QWidget;
        auto *columna = new QVBoxLayout(indice);
        columna->setContentsMargins(0, 0, 0, 0);
        columna->addWidget(buscar);
        columna->addWidget(paginas, 1);
        columna->addLayout(BotonesDelTutorial());
        auto *partes = new QSplitter;
        partes->addWidget(indice);
        partes->addWidget(hoja);
        partes->setStretchFactor(1, 1);
        partes->setChildrenCollapsible(false);
        auto *disposicion = new QVBoxLayout(this);
        disposicion->addWidget(partes);
        connect(buscar, &QLineEdit::textChanged, this, [this] { Listar(PaginaElegida()); });
        connect(paginas, &QListWidget::currentItemChanged, this, [this] { Mostrar(); });
        Listar(0);
        const QFontMetrics letra(texto->font());
        const int anchoIndice = paginas->sizeHintForColumn(0) + 4 * letra.horizontalAdvance(u'0');
        const QSize lado =
            DentroDeLaPantalla(*this, {anchoIndice + AnchoHoja(), letra.lineSpacing() * LineasDelTexto});
        resize(lado);
        // A small screen takes from the list, whose titles are read in its tips, before it takes from the pages.
        const int quedan = std::max(lado.width() - AnchoHoja(), anchoIndice / 2);
        partes->setSizes({quedan, lado.width() - quedan});
    }

    // The page of this id, whatever was searched for before.
    void IrA(int pagina) {
        buscar->clear();
        Listar(pagina);
        // The chapters that follow are seen, too.
        if (pagina < 0 && !capitulos.empty()) paginas->scrollToItem(paginas->item(paginas->count() - 1));
        paginas->setFocus();
    }

protected:
    void changeEvent(QEvent *suceso) override {
        QDialog::changeEvent(suceso);
        if (suceso->type() != QEvent::PaletteChange && suceso->type() != QEvent::FontChange) return;
        capituloPuesto = -1; // its colours and letters are those of before
        if (PaginaElegida() < 0) Mostrar();
    }

private:
    void PrepararHojas() {
        texto->setObjectName(QStringLiteral("texto"));
        texto->setFont(FuenteFijaDePantalla()); // the pages are set out in columns
        texto->setReadOnly(true);
        texto->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        texto->setLineWrapMode(QPlainTextEdit::NoWrap);
        tutorial->setObjectName(QStringLiteral("tutorial"));
        tutorial->setAccessibleName(QStringLiteral("Tutorial"));
        tutorial->setTextInteractionFlags(Qt::TextBrowserInteraction | Qt::TextSelectableByKeyboard);
        tutorial->setOpenLinks(false); // nothing is fetched from outside
        connect(tutorial, &QTextBrowser::anchorClicked, this, [this](const QUrl &enlace) {
            const int cual =
                CapituloDeEnlace(capitulos, QUrl::fromPercentEncoding(enlace.toEncoded()).toStdString());
            if (cual >= 0) IrA(IdDeCapitulo(cual));
        });
        hoja->addWidget(texto);
        hoja->addWidget(tutorial);
    }

    QHBoxLayout *BotonesDelTutorial() {
        auto *fila = new QHBoxLayout;
        auto *primero = Boton("irAlTutorial", "&Tutorial");
        connect(primero, &QPushButton::clicked, this, [this] { IrA(IdDeCapitulo(0)); });
        fila->addWidget(primero);
        // One page with all the chapters, where it was made.
        const QString pagina = QDir(carpeta).filePath(QStringLiteral("tutorial.html"));
        if (!capitulos.empty() && QFile::exists(pagina)) {
            auto *fuera = Boton("enElNavegador", "En el na&vegador");
            connect(fuera, &QPushButton::clicked, this,
                    [pagina] { QDesktopServices::openUrl(QUrl::fromLocalFile(pagina)); });
            fila->addWidget(fuera);
        }
        fila->addStretch(1);
        return fila;
    }

    int AnchoHoja() const {
        return QFontMetrics(texto->font()).horizontalAdvance(u'0') * (AnchoLineaAyuda + 8);
    }

    int PaginaElegida() const {
        const QListWidgetItem *elegida = paginas->currentItem();
        return elegida != nullptr ? elegida->data(IdDePagina).toInt() : 0;
    }

    std::string Buscado() const { return De1252Q(buscar->text().trimmed()); }

    // The pictures leave room for the bar and the margins.
    AspectoTutorial Aspecto() const {
        const int resto = tutorial->verticalScrollBar()->sizeHint().width() + 2 * tutorial->frameWidth() +
                          2 * static_cast<int>(tutorial->document()->documentMargin());
        return {palette(), std::max(hoja->width() - resto, AnchoMinimoDeImagen), devicePixelRatioF()};
    }

    // The places in a chapter, as it is shown: what is no text in its file can't be found.
    std::vector<int> LugaresEnCapitulo(int cual, const std::string &buscado) {
        if (buscado.empty()) return {};
        if (llanos.empty())
            for (const CapituloTutorial &c : capitulos) {
                QTextDocument documento;
                documento.setMarkdown(QString::fromStdString(c.texto));
                llanos.push_back(De1252Q(documento.toPlainText()));
            }
        return LugaresEnTexto(llanos[static_cast<std::size_t>(cual)], buscado);
    }

    void Anadir(const QString &titulo, int id, int actual) {
        auto *linea = new QListWidgetItem(titulo, paginas);
        linea->setData(IdDePagina, id);
        linea->setToolTip(titulo);
        if (id == actual || paginas->count() == 1) paginas->setCurrentItem(linea);
    }

    // The pages that mention what is searched for, all without a search; `pagina` is the current one if it is among them.
    void Listar(int pagina) {
        const std::string buscado = Buscado();
        const QSignalBlocker callada(paginas);
        paginas->clear();
        for (const PaginaManual *p : PaginasDelLector())
            if (buscado.empty() || !LugaresEnPagina(*p, buscado).empty())
                Anadir(QDe1252(TituloConLugar(*p)), p->id, pagina);
        for (int i = 0; i < static_cast<int>(capitulos.size()); ++i)
            if (buscado.empty() || !LugaresEnCapitulo(i, buscado).empty())
                Anadir(QStringLiteral("Tutorial %1: %2")
                           .arg(i + 1)
                           .arg(QString::fromStdString(capitulos[static_cast<std::size_t>(i)].titulo)),
                       IdDeCapitulo(i), pagina);
        if (pagina < 0 && capitulos.empty()) paginas->setCurrentItem(nullptr);
        Mostrar(pagina < 0 ? "No se encuentra el tutorial del programa" : "Ninguna página lo menciona");
    }

    // The current page, with what is searched for marked, the first place in sight; this line where there is none.
    void Mostrar(const char *sinPagina = "") {
        const std::string buscado = Buscado();
        const int largo = static_cast<int>(buscado.size());
        if (const int id = PaginaElegida(); id < 0) {
            const int cual = CapituloDeId(id);
            if (cual != capituloPuesto) {
                PonerCapitulo(*tutorial->document(), capitulos[static_cast<std::size_t>(cual)], carpeta,
                              Aspecto());
                tutorial->moveCursor(QTextCursor::Start);
            }
            capituloPuesto = cual;
            hoja->setCurrentWidget(tutorial);
            Marcar(*tutorial, LugaresEnCapitulo(cual, buscado), largo, palette());
            return;
        }
        const PaginaManual *pagina = BuscarPagina(PaginaElegida());
        texto->setPlainText(pagina != nullptr ? QDe1252(TextoDePagina(*pagina))
                                              : QString::fromUtf8(sinPagina));
        hoja->setCurrentWidget(texto);
        Marcar(*texto, pagina != nullptr ? LugaresEnPagina(*pagina, buscado) : std::vector<int>(), largo,
               palette());
    }

    QString carpeta;                         // of the tutorial; empty: there is none
    std::vector<CapituloTutorial> capitulos; // of it
    std::vector<std::string> llanos;         // their texts as they are shown, from the first search on
    int capituloPuesto = -1;                 // that the control of the tutorial holds
    QLineEdit *buscar;
    QListWidget *paginas;
    QPlainTextEdit *texto;
    QTextBrowser *tutorial;
    QStackedWidget *hoja;
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
