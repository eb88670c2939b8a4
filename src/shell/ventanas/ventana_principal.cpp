// The main window.
#include "shell/ventanas/ventana_principal.h"

#include "charts/resultados/ventanas/ventana_traza.h"
#include "data/copia_seguridad.h"
#include "data/ventanas/ventana_editor.h"
#include "language/lote_sentencias.h"
#include "platform/qt/impresora_qt.h"
#include "platform/qt/texto_qt.h"
#include "platform/qt/ventana_qt.h"
#include "shell/comandos.h"
#include "shell/ejemplos.h"
#include "shell/ventanas/abrir_fichero_qt.h"
#include "shell/ventanas/barra_buscar.h"
#include "shell/ventanas/barra_estado_qt.h"
#include "shell/ventanas/lector_ayuda.h"
#include "shell/ventanas/registro_qt.h"

#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPixmap>
#include <QScrollBar>
#include <QShortcut>
#include <QTextBlock>
#include <QTimer>
#include <QVBoxLayout>

namespace {

constexpr int MinutoEnMilisegundos = 60'000;

VentanaPrincipal *EnPantalla = nullptr; // the program has one

VentanaPrincipal *Principal(Ventana *ventana) {
    return qobject_cast<VentanaPrincipal *>(DeVentana(ventana));
}

// The menu of a path such as "&Contrastes/Contrastes de &heteroscedasticidad", created where it's missing.
QMenu *MenuDeRuta(QMenuBar *barra, const QString &ruta) {
    QMenu *menu = nullptr;
    for (const QString &titulo : ruta.split(u'/')) {
        const QList<QAction *> entradas = menu != nullptr ? menu->actions() : barra->actions();
        QMenu *siguiente = nullptr;
        for (QAction *a : entradas)
            if (a->menu() != nullptr && a->menu()->title() == titulo) siguiente = a->menu();
        if (siguiente == nullptr) {
            siguiente = menu != nullptr ? menu->addMenu(titulo) : barra->addMenu(titulo);
            siguiente->setObjectName(QStringLiteral("menu") + QString(titulo).remove(u'&').remove(u' '));
        }
        menu = siguiente;
    }
    return menu;
}

// A fixed amount of work, not a timer: nothing else happens while the picture stands.
void EsperarDeLaPortada() {
    for (int i = 0; i < 30000; ++i)
        for (int j = 0; j < 2000; ++j) asm volatile("" : : "r"(j)); // nothing, but the loop stays
}

} // namespace

void NotaEnPantalla(std::string_view texto, int linea) {
    AnotarEnBarra(texto, linea);
    if (EnPantalla != nullptr && !EnLote()) EnPantalla->barra->RefrescarMensaje();
}

VentanaPrincipal::VentanaPrincipal()
    : EditorDatos(new VentanaEditor(this)), PantallaEdicion(new ControlSentencias(this)),
      buscar(new BarraBuscar(this, *PantallaEdicion)), barra(new BarraDeEstado(this, *PantallaEdicion)) {
    setObjectName(QStringLiteral("MiClaseVentana"));
    setWindowTitle(QStringLiteral("Tabira"));
    auto *centro = new QWidget(this);
    auto *disposicion = new QVBoxLayout(centro);
    disposicion->setContentsMargins(0, 0, 0, 0);
    disposicion->setSpacing(0);
    disposicion->addWidget(PantallaEdicion);
    disposicion->addWidget(buscar);
    PonerNotaDeImpresion(*centro);
    setCentralWidget(centro);
    setStatusBar(barra);
    resize(640, 400);
    CrearMenus();
    CrearTeclas();
    PonerLector(*PantallaEdicion);
    PonerRegistro(*this);
    auto *reloj = new QTimer(this);
    reloj->setObjectName(QStringLiteral("relojDeCopias"));
    connect(reloj, &QTimer::timeout, this, GuardarCopia);
    reloj->start(MinutoEnMilisegundos);
    PantallaEdicion->setFocus();
    EnPantalla = this;
}

VentanaPrincipal::~VentanaPrincipal() {
    if (EnPantalla == this) EnPantalla = nullptr;
}

void VentanaPrincipal::Ordenar(int id) {
    ConLaBarra([&] { EjecutarComando(AVentana(this), id); });
}

void VentanaPrincipal::ConLaBarra(const std::function<void()> &hacer) {
    BorrarNotasDeImpresion();
    barra->Olvidar();
    hacer();
    if (!Destruida) Refrescar();
}

void VentanaPrincipal::Refrescar() {
    barra->Refrescar();
    PantallaEdicion->RefrescarColores();
}

void VentanaPrincipal::TrasElLote() {
    if (!Lote.deDialogo) {
        PantallaEdicion->QuitarParada();
        if (Lote.detenido != 0 && Lote.parada.linea > 0 && !Lote.finPorRegla)
            PantallaEdicion->MarcarParada(Lote.parada.inicio);
    }
    Refrescar();
}

// What the menu has no entry for.
void VentanaPrincipal::CrearTeclas() {
    const auto tecla = [this](const QKeySequence &cual, void (VentanaPrincipal::*hacer)()) {
        connect(new QShortcut(cual, this), &QShortcut::activated, this, hacer);
    };
    tecla(Qt::CTRL | Qt::Key_Return, &VentanaPrincipal::ProcesarLinea);
    tecla(Qt::CTRL | Qt::Key_Enter, &VentanaPrincipal::ProcesarLinea);
    tecla(Qt::Key_F5, &VentanaPrincipal::ProcesarTodo);
    tecla(Qt::Key_F9, &VentanaPrincipal::ComoSeCalcula);
    connect(PantallaEdicion, &ControlSentencias::PideBuscar, buscar, &BarraBuscar::Abrir);
    connect(PantallaEdicion, &ControlSentencias::PideTraza, this, &VentanaPrincipal::ComoSeCalcula);
    connect(PantallaEdicion, &ControlSentencias::FicheroSoltado, this,
            [this](const QString &ruta) { AbrirFichero(*this, ruta); });
    connect(PantallaEdicion, &ControlSentencias::PideEjemplo, this, [this](int cual) {
        ConLaBarra([&] { AbrirEjemplo(AVentana(this), AControl(PantallaEdicion), cual); });
    });
}

void VentanaPrincipal::ProcesarTramo(int desde, int hasta) {
    const QTextCursor antes = PantallaEdicion->textCursor();
    QScrollBar *barras[] = {PantallaEdicion->verticalScrollBar(), PantallaEdicion->horizontalScrollBar()};
    const int sitio[] = {barras[0]->value(), barras[1]->value()};
    ControlTexto *control = AControl(PantallaEdicion);
    SeleccionarEnControl(control, desde, hasta);
    Ordenar(ComandoProcesar);
    int inicio = 0, fin = 0;
    SeleccionDeControl(control, inicio, fin);
    if (Destruida || inicio != desde || fin != hasta) return; // the caret is where it stopped
    PantallaEdicion->setTextCursor(antes);
    for (int i = 0; i < 2; ++i) barras[i]->setValue(sitio[i]);
}

void VentanaPrincipal::ProcesarLinea() {
    const QTextCursor cursor = PantallaEdicion->textCursor();
    if (cursor.hasSelection()) return Ordenar(ComandoProcesar);
    const QTextBlock linea = cursor.block();
    ProcesarTramo(linea.position(), linea.position() + linea.length() - 1);
}

void VentanaPrincipal::ProcesarTodo() {
    ProcesarTramo(0, PantallaEdicion->document()->characterCount() - 1);
}

void VentanaPrincipal::ComoSeCalcula() {
    AbrirTrazaEnSentencia(this, PantallaEdicion->textCursor().block().text());
}

void VentanaPrincipal::CrearMenus() {
    for (int i = 0; i < NumComandos; ++i) {
        const Comando &c = TablaComandos[i];
        if (c.entrada == nullptr) continue;
        QAction *accion = MenuDeRuta(menuBar(), QDe1252(c.menu))->addAction(QDe1252(c.entrada));
        accion->setData(c.id);
        accion->setObjectName(QStringLiteral("comando%1").arg(c.id));
        const int id = c.id;
        connect(accion, &QAction::triggered, this, [this, id] { Ordenar(id); });
    }
}

void VentanaPrincipal::closeEvent(QCloseEvent *suceso) {
    if (Destruida || CerrarPrograma(AVentana(this))) {
        suceso->accept();
    } else {
        suceso->ignore();
    }
}

bool VentanaPrincipal::event(QEvent *suceso) {
    if (suceso->type() == QEvent::WindowActivate) Refrescar(); // the editor may have changed the data
    return QMainWindow::event(suceso);
}

// Every painting, first or not, shows the window maximised again: after a change of its size it grows back.
void VentanaPrincipal::paintEvent(QPaintEvent *suceso) {
    QMainWindow::paintEvent(suceso);
    if (!isMaximized()) QTimer::singleShot(0, this, &QWidget::showMaximized);
    if (PortadaMostrada) return;
    PortadaMostrada = true;
    QTimer::singleShot(0, this, [this] {
        MostrarPortada();
        if (TrasLaPortada) TrasLaPortada();
    });
}

void VentanaPrincipal::MostrarPortada() {
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const QPixmap imagen(QStringLiteral(":/tabira/portada.png"));
    QLabel portada(PantallaEdicion);
    portada.setObjectName(QStringLiteral("imagen"));
    portada.setPixmap(imagen);
    portada.move(50, 10);
    portada.show();
    portada.repaint();
    EsperarDeLaPortada();
    QApplication::restoreOverrideCursor();
}

void InstalarOperacionesEscritorio() {
    static const OperacionesEscritorio Operaciones = {
        .pantallaEdicion = [](Ventana *v) { return AControl(Principal(v)->PantallaEdicion); },
        .editar =
            [](Ventana *v, AccionesDeEdicion accion) {
                QPlainTextEdit *p = Principal(v)->PantallaEdicion;
                switch (accion) {
                case EditarDeshacer: p->undo(); break;
                case EditarCortar: p->cut(); break;
                case EditarCopiar: p->copy(); break;
                case EditarPegar: p->paste(); break;
                }
            },
        .mostrarEditor =
            [](Ventana *v) {
                VentanaPrincipal *w = Principal(v);
                w->PantallaEdicion->hide();
                w->EditorDatos->Mostrar([w] {
                    w->PantallaEdicion->show();
                    w->activateWindow();
                    w->PantallaEdicion->setFocus();
                });
            },
        .destruir =
            [](Ventana *v) {
                Principal(v)->EditorDatos->hide(); // it would hold the program open until it is left
                Principal(v)->Destruida = true;
                Principal(v)->close();
                QCoreApplication::quit();
            },
        .empiezaLote =
            [] {
                if (EnPantalla != nullptr) EnPantalla->barra->RefrescarMensaje();
            },
        .terminaLote =
            [] {
                if (EnPantalla != nullptr) EnPantalla->TrasElLote();
            },
    };
    InstalarEscritorio(Operaciones);
}
