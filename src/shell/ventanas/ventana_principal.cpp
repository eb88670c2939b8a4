// The main window.
#include "shell/ventanas/ventana_principal.h"

#include "data/copia_seguridad.h"
#include "data/ventanas/ventana_editor.h"
#include "platform/qt/impresora_qt.h"
#include "platform/qt/superficie_qt.h"
#include "platform/qt/texto_qt.h"
#include "platform/qt/ventana_qt.h"
#include "shell/comandos.h"
#include "shell/ventanas/lector_ayuda.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QPixmap>
#include <QStatusBar>
#include <QTimer>

namespace {

constexpr int MinutoEnMilisegundos = 60'000;

// Two things that the toolkit's control does otherwise. It writes the letter of Alt+letter. And it looks at the first
// format of what is pasted: version 6.4 ends the program when the clipboard has none, on a desktop where nothing was copied
// yet, or whose owner has gone.
class ControlDeSentencias : public QPlainTextEdit {
public:
    using QPlainTextEdit::QPlainTextEdit;

protected:
    void keyPressEvent(QKeyEvent *tecla) override {
        if (!EsLetraConAlt(*tecla)) QPlainTextEdit::keyPressEvent(tecla);
    }
    void insertFromMimeData(const QMimeData *datos) override {
        if (datos != nullptr && datos->hasText()) QPlainTextEdit::insertFromMimeData(datos);
    }
};

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

VentanaPrincipal::VentanaPrincipal()
    : EditorDatos(new VentanaEditor(this)), PantallaEdicion(new ControlDeSentencias(this)) {
    setObjectName(QStringLiteral("MiClaseVentana"));
    setWindowTitle(QStringLiteral("Tabira"));
    PantallaEdicion->setObjectName(QStringLiteral("PantallaEdicion"));
    PantallaEdicion->setAccessibleName(QStringLiteral("Pantalla de edición"));
    PantallaEdicion->setFont(FuenteFijaDePantalla());
    PantallaEdicion->setLineWrapMode(QPlainTextEdit::NoWrap);
    PantallaEdicion->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    PantallaEdicion->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    PantallaEdicion->setFrameShape(QFrame::NoFrame);
    // Tab goes on to the next control in dialogs; here it writes, as in any editor of statements.
    PantallaEdicion->setTabChangesFocus(false);
    setCentralWidget(PantallaEdicion);
    statusBar()->hide(); // it takes room from the first note on
    resize(640, 400);
    CrearMenus();
    PonerLector(*PantallaEdicion);
    auto *reloj = new QTimer(this);
    reloj->setObjectName(QStringLiteral("relojDeCopias"));
    connect(reloj, &QTimer::timeout, this, GuardarCopia);
    reloj->start(MinutoEnMilisegundos);
    PantallaEdicion->setFocus();
}

void VentanaPrincipal::CrearMenus() {
    for (int i = 0; i < NumComandos; ++i) {
        const Comando &c = TablaComandos[i];
        if (c.entrada == nullptr) continue;
        QAction *accion = MenuDeRuta(menuBar(), QDe1252(c.menu))->addAction(QDe1252(c.entrada));
        accion->setData(c.id);
        accion->setObjectName(QStringLiteral("comando%1").arg(c.id));
        const int id = c.id;
        connect(accion, &QAction::triggered, this, [this, id] {
            BorrarNotasDeImpresion();
            EjecutarComando(AVentana(this), id);
        });
    }
}

void VentanaPrincipal::closeEvent(QCloseEvent *suceso) {
    if (Destruida || CerrarPrograma(AVentana(this))) {
        suceso->accept();
    } else {
        suceso->ignore();
    }
}

// No entry of the menu has a tip for the status line, and the toolkit would wipe out with it what stands there: where
// the last document was printed to.
bool VentanaPrincipal::event(QEvent *suceso) {
    return suceso->type() == QEvent::StatusTip || QMainWindow::event(suceso);
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
    QLabel portada(PantallaEdicion->viewport());
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
    };
    InstalarEscritorio(Operaciones);
}
