// The window of the editor.
#include "data/ventanas/ventana_editor.h"

#include "data/comandos_editor.h"
#include "data/ventanas/rejilla_qt.h"
#include "platform/qt/texto_qt.h"
#include "platform/qt/ventana_qt.h"

#include <QCloseEvent>
#include <QVBoxLayout>

namespace {

RejillaQt *RejillaEnPantalla = nullptr; // the program has one

} // namespace

VentanaEditor::VentanaEditor(QWidget *duena)
    : QWidget(duena, Qt::Window), menu(new QMenuBar(this)), rejilla(new RejillaQt(this)) {
    setObjectName(QStringLiteral("EditorDatos"));
    setWindowTitle(QStringLiteral("Editor de Series/Matrices"));
    setPalette(QPalette(Qt::lightGray));
    menu->setObjectName(QStringLiteral("menuEditor"));
    menu->setNativeMenuBar(false); // it changes with what is edited
    auto *disposicion = new QVBoxLayout(this);
    disposicion->setContentsMargins(0, 0, 0, 0);
    disposicion->setMenuBar(menu);
    disposicion->addWidget(rejilla);
    resize(640, 450); // until it is shown, maximised
    RejillaEnPantalla = rejilla;
}

VentanaEditor::~VentanaEditor() {
    if (RejillaEnPantalla == rejilla) RejillaEnPantalla = nullptr;
}

void VentanaEditor::Mostrar(const std::function<void()> &salida) {
    alSalir = salida;
    setWindowTitle(QDe1252(TituloDelEditor()));
    PonerMenu();
    showMaximized();
    activateWindow();
    rejilla->setFocus();
    rejilla->Refrescar();
}

void VentanaEditor::PonerMenu() {
    qDeleteAll(menu->actions());
    for (const ComandoDeEditor &c : ComandosDelEditor(static_cast<ModosDeEditor>(Editor.ModoEditor))) {
        if (c.entrada == nullptr) continue;
        QAction *accion = menu->addAction(QDe1252(c.entrada));
        accion->setObjectName(QStringLiteral("editor%1").arg(c.id));
        connect(accion, &QAction::triggered, this, [this, id = c.id] { Ordenar(id); });
    }
    HabilitarEntradas();
}

void VentanaEditor::HabilitarEntradas() {
    for (const ComandoDeEditor &c : ComandosDelEditor(static_cast<ModosDeEditor>(Editor.ModoEditor)))
        if (auto *accion = menu->findChild<QAction *>(QStringLiteral("editor%1").arg(c.id)))
            accion->setEnabled(c.habilitado == nullptr || c.habilitado());
}

// The main window may have chosen another data type while this one stood beside it.
void VentanaEditor::changeEvent(QEvent *suceso) {
    QWidget::changeEvent(suceso);
    if (suceso->type() == QEvent::ActivationChange && isActiveWindow()) HabilitarEntradas();
}

void VentanaEditor::Ordenar(int id) {
    const bool sale = EjecutarComandoEditor(AVentana(this), id);
    rejilla->Refrescar();
    if (!sale) return;
    hide();
    if (alSalir) alSalir();
}

// The window goes as "Salir" does, or stays.
void VentanaEditor::closeEvent(QCloseEvent *suceso) {
    suceso->ignore();
    Ordenar(EditorSalir);
}

void RefrescarEditorQt() {
    NormalizarRotulos();
    if (RejillaEnPantalla != nullptr && RejillaEnPantalla->isVisible()) RejillaEnPantalla->Refrescar();
}
