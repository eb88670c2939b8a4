// The window of the trace: the tree of the steps, and a page for the one that is chosen.
#include "charts/resultados/ventanas/ventana_traza.h"

#include "charts/resultados/traza_texto.h"
#include "charts/resultados/ventanas/copiar_resultado.h"
#include "charts/resultados/ventanas/modelo_traza.h"
#include "platform/archivos.h"
#include "platform/qt/ajustes_qt.h"
#include "platform/qt/superficie_qt.h"
#include "platform/qt/texto_qt.h"
#include "platform/qt/ventana_qt.h"
#include "platform/texto.h"

#include <QApplication>
#include <QCheckBox>
#include <QContextMenuEvent>
#include <QDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QPushButton>
#include <QShortcut>
#include <QSignalBlocker>
#include <QSplitter>
#include <QTextBrowser>
#include <QTimer>
#include <QTreeView>
#include <QVBoxLayout>
#include <QWindow>

namespace {

constexpr const char *ClaveDeTraza = "traza/anotar";
constexpr const char *EnlaceDePaso = "paso:";
constexpr int MaxPasosAbiertos = 300; // a statement with more of them opens level by level
constexpr int LineasDelArbol = 30, ColumnasDelArbol = 62, ColumnasDeLaPagina = 66, ColumnasDelResumen = 14;

// The page of a step. Tab goes from link to link.
class PaginaDePaso : public QTextBrowser {
public:
    PaginaDePaso() {
        setObjectName(QStringLiteral("detalleTraza"));
        setAccessibleName(QStringLiteral("El paso elegido"));
        setOpenLinks(false);
        setWordWrapMode(QTextOption::WordWrap); // a number is never broken
        setTextInteractionFlags(Qt::TextBrowserInteraction | Qt::TextSelectableByKeyboard);
    }
    // The keyboard, on the first link.
    void Entrar() {
        moveCursor(QTextCursor::Start);
        setFocus(Qt::OtherFocusReason);
        focusNextPrevChild(true);
    }
};

class VentanaTraza : public QDialog {
public:
    // `abridora`: the window that it is opened from.
    VentanaTraza(QWidget *padre, const QWidget &abridora)
        : QDialog(padre), buscar(new QLineEdit), arbol(new QTreeView), detalle(new PaginaDePaso),
          anotar(new QCheckBox(QStringLiteral("Anotar los &pasos"))), estado(new QLabel),
          volver(new QPushButton(QStringLiteral("&Atrás"))) {
        setObjectName(QStringLiteral("ventanaTraza"));
        setWindowTitle(QStringLiteral("Cómo se calcula"));
        setWindowFlag(Qt::WindowMaximizeButtonHint);
        auto *copiar = new QPushButton(QStringLiteral("&Copiar como tabla"));
        auto *guardar = new QPushButton(QStringLiteral("&Guardar como..."));
        copiar->setObjectName(QStringLiteral("copiarTraza"));
        guardar->setObjectName(QStringLiteral("guardarTraza"));
        volver->setObjectName(QStringLiteral("volverTraza"));
        volver->setToolTip(QStringLiteral("Al paso anterior (Alt+Izquierda)"));
        PrepararCampos();
        auto *disposicion = new QVBoxLayout(this);
        auto *arriba = new QHBoxLayout;
        arriba->addWidget(buscar, 1);
        for (QPushButton *boton : {volver, copiar, guardar}) {
            boton->setAutoDefault(false); // Enter belongs to the tree and to the search
            arriba->addWidget(boton);
        }
        auto *partes = new QSplitter;
        partes->addWidget(arbol);
        partes->addWidget(detalle);
        partes->setChildrenCollapsible(false);
        auto *abajo = new QHBoxLayout;
        abajo->addWidget(estado, 1);
        abajo->addWidget(anotar);
        disposicion->addLayout(arriba);
        disposicion->addWidget(partes, 1);
        disposicion->addLayout(abajo);
        connect(copiar, &QPushButton::clicked, this, [this] { Copiar(); });
        connect(guardar, &QPushButton::clicked, this, [this] { Guardar(); });
        connect(volver, &QPushButton::clicked, this, [this] { Volver(); });
        QWidget *const enOrden[] = {buscar, volver, copiar, guardar, arbol, detalle, anotar};
        for (std::size_t i = 1; i < std::size(enOrden); ++i) setTabOrder(enOrden[i - 1], enOrden[i]);
        CrearTeclas();
        reloj.setSingleShot(true);
        connect(&reloj, &QTimer::timeout, this, [this] { Refrescar(); });
        PonerColores();
        const QFontMetrics letra(FuenteFijaDePantalla());
        const int c = letra.horizontalAdvance(u'0');
        const QSize lado = DentroDeLaPantalla(
            *this, {c * (ColumnasDelArbol + ColumnasDeLaPagina), letra.lineSpacing() * LineasDelArbol});
        resize(lado);
        const QSize conMarco = lado + QSize(c, 4 * letra.height());
        move(LugarQueMenosTapa(abridora.frameGeometry(), conMarco, abridora.screen()->availableGeometry()));
        const int delArbol = lado.width() * ColumnasDelArbol / (ColumnasDelArbol + ColumnasDeLaPagina);
        partes->setSizes({delArbol, lado.width() - delArbol});
        arbol->header()->resizeSection(ColumnaResumen, c * ColumnasDelResumen);
    }

    // To a step, which opens; -1: none is chosen. `aviso` stands in the last line until another one is chosen.
    void IrA(int paso, int elemento = -1, const QString &aviso = {}) {
        if (modelo.Refrescar() && corrida != Traza.corrida) visitados.clear();
        const QModelIndex indice = modelo.IndiceDe(paso);
        elementoMarcado = elemento;
        {
            const QSignalBlocker callado(arbol->selectionModel());
            arbol->setCurrentIndex(indice);
        }
        if (indice.isValid()) {
            AbrirLaSuya(indice);
            arbol->scrollTo(indice);
        }
        avisado = aviso;
        Mostrar();
    }

    // IrA for whatever jumps: from there, "Atrás" leads to where it is now.
    void Saltar(int paso, int elemento = -1, const QString &aviso = {}) {
        if (const int antes = PasoElegido(); antes >= 0 && antes != paso) visitados.push_back(antes);
        IrA(paso, elemento, aviso);
    }

    // In front of the others, whatever holds them, with the keyboard in the tree.
    void Presentar() {
        show();
        ColgarDelModal();
        raise();
        activateWindow();
        arbol->setFocus();
    }

    // What the record has by now. A new one is shown at its last statement.
    void Refrescar() {
        const int antes = PasoElegido();
        if (!modelo.Cambiado()) return Mostrar(); // the last step may have its result now
        const bool laMisma = corrida == Traza.corrida && antes >= 0;
        IrA(laMisma ? antes : SentenciaEnTraza({}), laMisma ? elementoMarcado : -1);
    }

    // The results of these steps are known. Between two of these calls a box may have shown them without.
    void Avisar(int desde, int hasta) {
        modelo.Terminar(desde, hasta);
        if (isVisible() && !reloj.isActive()) reloj.start(0);
    }

    // A window that holds the rest of the program leaves alone those in front of it: this one goes there. It comes back to
    // its own when that one closes.
    void ColgarDelModal() {
        QWidget *modal = QApplication::activeModalWidget();
        if (windowHandle() == nullptr) return;
        if (modal != nullptr && modal->objectName() == QLatin1String("ventanaResultado")) {
            if (sosten != modal)
                connect(modal, &QObject::destroyed, this,
                        [this] { QTimer::singleShot(0, this, [this] { ColgarDelModal(); }); });
            sosten = modal;
            windowHandle()->setTransientParent(modal->windowHandle());
        } else if (sosten.isNull() && parentWidget() != nullptr) {
            windowHandle()->setTransientParent(parentWidget()->windowHandle());
        }
    }

protected:
    bool event(QEvent *suceso) override {
        if (suceso->type() == QEvent::WindowBlocked)
            QTimer::singleShot(0, this, [this] { ColgarDelModal(); });
        if (suceso->type() == QEvent::PaletteChange) {
            PonerColores();
            Mostrar();
        }
        return QDialog::event(suceso);
    }

    bool eventFilter(QObject *objeto, QEvent *suceso) override {
        if (suceso->type() == QEvent::KeyPress) {
            const auto *tecla = static_cast<QKeyEvent *>(suceso);
            const bool entrar = tecla->key() == Qt::Key_Return || tecla->key() == Qt::Key_Enter;
            if (entrar && objeto == arbol) {
                detalle->Entrar();
                return true;
            }
            if (entrar && objeto == buscar) {
                Buscar((tecla->modifiers() & Qt::ShiftModifier) == 0);
                return true;
            }
            if (tecla->key() == Qt::Key_Backspace && objeto == detalle) {
                Volver();
                return true;
            }
        }
        if (suceso->type() == QEvent::ContextMenu && objeto == arbol->viewport()) {
            MostrarMenu(static_cast<QContextMenuEvent *>(suceso)->globalPos());
            return true;
        }
        return QDialog::eventFilter(objeto, suceso);
    }

private:
    void PrepararCampos() {
        buscar->setObjectName(QStringLiteral("buscarEnTraza"));
        buscar->setPlaceholderText(QStringLiteral("Buscar en los pasos (Ctrl+F)"));
        buscar->setAccessibleName(QStringLiteral("Buscar en los pasos"));
        buscar->setClearButtonEnabled(true);
        buscar->installEventFilter(this);
        arbol->setObjectName(QStringLiteral("arbolTraza"));
        arbol->setAccessibleName(QStringLiteral("Sentencias y pasos"));
        arbol->setModel(&modelo);
        arbol->setUniformRowHeights(true); // thousands of rows, none of them measured
        arbol->setAllColumnsShowFocus(true);
        arbol->header()->setStretchLastSection(false);
        arbol->header()->setSectionResizeMode(ColumnaPaso, QHeaderView::Stretch);
        arbol->installEventFilter(this);
        arbol->viewport()->installEventFilter(this);
        detalle->installEventFilter(this);
        anotar->setObjectName(QStringLiteral("anotarPasos"));
        anotar->setToolTip(QStringLiteral("Guardar los pasos de lo que se procese desde ahora"));
        anotar->setChecked(Trazando());
        estado->setObjectName(QStringLiteral("estadoTraza"));
        estado->setWordWrap(true);
        estado->setTextInteractionFlags(Qt::TextSelectableByMouse);
        connect(arbol->selectionModel(), &QItemSelectionModel::currentChanged, this, [this] {
            elementoMarcado = -1;
            avisado.clear();
            Mostrar();
        });
        connect(detalle, &QTextBrowser::anchorClicked, this, [this](const QUrl &enlace) {
            bool esNumero = false;
            const int paso = enlace.path().toInt(&esNumero);
            if (esNumero) Seguir(paso);
        });
        connect(anotar, &QCheckBox::toggled, this, [this](bool si) {
            PonerEleccion(ClaveDeTraza, si);
            PonerTraza(si);
            avisado.clear();
            MostrarEstado();
        });
    }

    void CrearTeclas() {
        const auto tecla = [this](const QKeySequence &cual, auto hacer) {
            connect(new QShortcut(cual, this), &QShortcut::activated, this, hacer);
        };
        tecla(QKeySequence::Find, [this] {
            buscar->setFocus();
            buscar->selectAll();
        });
        tecla(Qt::Key_F3, [this] { Buscar(true); });
        tecla(Qt::SHIFT | Qt::Key_F3, [this] { Buscar(false); });
        tecla(Qt::ALT | Qt::Key_Left, [this] { Volver(); });
        tecla(QKeySequence::Save, [this] { Guardar(); });
    }

    int PasoElegido() const { return modelo.PasoDe(arbol->currentIndex()); }

    // The statement of a step opens whole where that leaves an overview.
    void AbrirLaSuya(QModelIndex indice) {
        while (indice.parent().isValid()) indice = indice.parent();
        const int paso = modelo.PasoDe(indice);
        if (paso >= 0 && DetrasDelPaso(paso) - paso <= MaxPasosAbiertos)
            arbol->expandRecursively(indice);
        else
            arbol->expand(indice);
    }

    void Mostrar() {
        const int paso = PasoElegido();
        corrida = Traza.corrida;
        detalle->setHtml(paso < 0 ? QString() : QDe1252(HtmlDePaso(paso, EnlaceDePaso, elementoMarcado)));
        volver->setEnabled(!visitados.empty());
        MostrarEstado();
    }

    void MostrarEstado() {
        const auto guardados = static_cast<std::int64_t>(Traza.pasos.size());
        QString texto = avisado;
        if (texto.isEmpty() && !Trazando()) {
            texto = QStringLiteral("No se anotan los pasos: marque «Anotar los pasos» y vuelva a procesar");
        } else if (texto.isEmpty() && guardados == 0) {
            texto = QStringLiteral("No hay pasos: procese una sentencia y se anotarán aquí");
        } else if (texto.isEmpty()) {
            texto = guardados == 1 ? QStringLiteral("1 paso") : QStringLiteral("%1 pasos").arg(guardados);
            if (const std::string demas = PasosSinGuardar(); !demas.empty())
                texto += QStringLiteral(". ") + QDe1252(demas);
        }
        estado->setText(texto);
        const QSignalBlocker callado(anotar);
        anotar->setChecked(Trazando());
    }

    void PonerColores() {
        const bool oscuro = palette().color(QPalette::Base).lightness() < 128;
        const QString fallo = oscuro ? QStringLiteral("#ff8a80") : QStringLiteral("#b00020");
        modelo.PonerColorDeFallo(QColor(fallo));
        const QPalette &p = palette();
        detalle->document()->setDefaultStyleSheet(
            QStringLiteral("h2 { font-size: large; } h3 { font-size: medium; } a { color: %1; } "
                           ".formula, .numeros { font-family: '%2'; } .numeros td { white-space: nowrap; } "
                           ".fallo { color: %3; font-weight: bold; } "
                           "td.elegido { background-color: %4; color: %5; }")
                .arg(p.color(QPalette::Link).name(), FuenteFijaDePantalla().family(), fallo,
                     p.color(QPalette::Highlight).name(), p.color(QPalette::HighlightedText).name()));
    }

    // ----- From step to step

    void Seguir(int paso) {
        if (corrida != Traza.corrida) return Refrescar(); // the page is of steps that have gone
        const bool conTeclado = detalle->hasFocus();
        Saltar(paso);
        if (conTeclado) detalle->Entrar();
    }

    void Volver() {
        if (visitados.empty()) return;
        const int paso = visitados.back();
        visitados.pop_back();
        IrA(paso);
        if (!detalle->hasFocus()) arbol->setFocus();
    }

    void Buscar(bool haciaDelante) {
        const int paso = BuscarEnTraza(De1252Q(buscar->text()), PasoElegido(), haciaDelante);
        if (paso >= 0) return Saltar(paso);
        avisado = QStringLiteral("Ningún paso lo menciona");
        MostrarEstado();
    }

    // ----- Out of the window

    void Copiar() {
        if (const int paso = PasoElegido(); paso >= 0) CopiarTabla(RotuloDePaso(paso), TablaDePaso(paso));
    }

    void Guardar() {
        static constexpr FormatoArchivo Formatos[] = {{"html", "Página HTML (*.html)"_w},
                                                      {"txt", "Texto (*.txt)"}};
        const std::string nombre = "Cómo se calcula"_w;
        std::string ruta;
        if (!ElegirArchivo(AVentana(this), {true, "Guardar como", Formatos, nombre}, ruta)) return;
        const bool comoPagina =
            QString::fromStdString(ruta).endsWith(QLatin1String(".html"), Qt::CaseInsensitive);
        if (!EscribirArchivo(ruta, Utf8De1252(comoPagina ? PaginaDeTraza() : TextoDeTraza())))
            MostrarMensaje(AVentana(this), "No se ha podido guardar el archivo");
    }

    void MostrarMenu(const QPoint &lugar) {
        QMenu menu(this);
        menu.setObjectName(QStringLiteral("menuContexto"));
        menu.addAction(QStringLiteral("Copiar como &tabla"), this, [this] { Copiar(); });
        QAction *comas = menu.addAction(QStringLiteral("Comas &decimales al copiar"));
        comas->setCheckable(true);
        comas->setChecked(ComasAlCopiar());
        connect(comas, &QAction::toggled, this, PonerComasAlCopiar);
        menu.addAction(QStringLiteral("&Guardar como..."), this, [this] { Guardar(); });
        menu.exec(lugar);
    }

    ModeloTraza modelo;
    QLineEdit *buscar;
    QTreeView *arbol;
    PaginaDePaso *detalle;
    QCheckBox *anotar;
    QLabel *estado;
    QPushButton *volver;
    QTimer reloj;
    QPointer<QWidget> sosten;   // the window of a result in front of which it stands
    std::vector<int> visitados; // before each jump
    QString avisado;            // stands in the last line
    int elementoMarcado = -1;
    int corrida = 0; // of what is shown
};

QPointer<VentanaTraza> Abierta;

// The window above all of them: it lives as long as the program.
QWidget *Primera(QWidget *ventana) {
    while (ventana != nullptr && ventana->parentWidget() != nullptr) ventana = ventana->parentWidget();
    return ventana;
}

void Abrir(QWidget *duena, int paso, int elemento = -1, const QString &aviso = {}) {
    if (Abierta.isNull()) Abierta = new VentanaTraza(Primera(duena), *duena->window());
    Abierta->Saltar(paso, elemento, aviso);
    Abierta->Presentar();
}

QString SinPasos(const MomentoDeTraza &momento) {
    if (momento.corrida == 0) return QStringLiteral("Este resultado se calculó sin anotar los pasos");
    return QStringLiteral("Los pasos de este resultado ya no están anotados");
}

} // namespace

QPoint LugarQueMenosTapa(const QRect &otra, const QSize &lado, const QRect &pantalla) {
    const int x = std::max(pantalla.left(), pantalla.right() + 1 - lado.width());
    const int y = std::max(pantalla.top(), pantalla.bottom() + 1 - lado.height());
    if (otra.right() + 1 <= x) return {otra.right() + 1, std::max(pantalla.top(), std::min(otra.top(), y))};
    if (otra.bottom() + 1 <= y)
        return {std::max(pantalla.left(), std::min(otra.left(), x)), otra.bottom() + 1};
    return {x, y};
}

void IniciarVentanaTraza() {
    PonerTraza(Eleccion(ClaveDeTraza, true));
    AlTrazar = [](int desde, int hasta) {
        if (!Abierta.isNull()) Abierta->Avisar(desde, hasta);
    };
}

void AbrirTrazaEnSentencia(QWidget *duena, const QString &sentencia) {
    Abrir(duena, SentenciaEnTraza(De1252Q(sentencia)));
}

void AbrirTrazaDeResultado(QWidget *duena, const SalidaResultado &salida) {
    int paso = salida.traza.pasos - 1;
    if (!SigueAnotado(salida.traza) || paso < 0) return Abrir(duena, -1, -1, SinPasos(salida.traza));
    while (PasoDeEncima(paso) >= 0) paso = PasoDeEncima(paso);
    Abrir(duena, paso);
}

void AbrirTrazaEnFuente(QWidget *duena, const SalidaResultado &salida, const FuenteDeNumero &fuente) {
    if (!SigueAnotado(salida.traza)) return Abrir(duena, -1, -1, SinPasos(salida.traza));
    const int paso = PasoDeFuente(fuente, salida.traza);
    if (paso < 0) return Abrir(duena, -1, -1, QStringLiteral("El paso que dio este número no está anotado"));
    Abrir(duena, paso, fuente.elemento);
}
