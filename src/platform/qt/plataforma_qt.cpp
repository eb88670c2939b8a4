// The desktop behind the seam.
#include "platform/qt/plataforma_qt.h"

#include "platform/qt/cajas_qt.h"
#include "platform/qt/elegir_archivo_qt.h"
#include "platform/qt/texto_qt.h"
#include "platform/qt/ventana_qt.h"

#include <QApplication>
#include <QTextCursor>

#include <algorithm>
#include <ctime>

namespace {

std::span<const FilaDeDialogo> Dialogos;

constexpr Qt::CursorShape Formas[] = {Qt::ArrowCursor, Qt::WaitCursor, Qt::SizeAllCursor, Qt::SizeHorCursor,
                                      Qt::SizeVerCursor};

// The program sets the wait cursor for each line and the arrow at the end; one override stands for all of them. A
// loop runs lines by the hundred thousand: a cursor that stands already isn't sent to the display again.
void CursorQt(Cursor cursor) {
    const QCursor *puesto = QApplication::overrideCursor();
    if (cursor != CursorFlecha && puesto != nullptr && puesto->shape() == Formas[cursor]) return;
    while (QApplication::overrideCursor() != nullptr) QApplication::restoreOverrideCursor();
    if (cursor != CursorFlecha) QApplication::setOverrideCursor(Formas[cursor]);
}

void SeleccionQt(ControlTexto *control, int &desde, int &hasta) {
    const QTextCursor c = DeControl(control)->textCursor();
    desde = c.selectionStart();
    hasta = c.selectionEnd();
}

void SeleccionarQt(ControlTexto *control, int desde, int hasta) {
    QPlainTextEdit *e = DeControl(control);
    const int fin = std::max(0, e->document()->characterCount() - 1);
    QTextCursor c = e->textCursor();
    c.setPosition(std::clamp(desde, 0, fin));
    c.setPosition(std::clamp(hasta, 0, fin), QTextCursor::KeepAnchor);
    e->setTextCursor(c);
}

// Undone as one step; a selected text is replaced.
void EscribirQt(ControlTexto *control, std::string_view texto) {
    DeControl(control)->insertPlainText(QDe1252(texto));
}

void TituloQt(Ventana *ventana, std::string_view titulo) {
    // The toolkit takes a lone "[*]" for the place of its mark of changes.
    const QString marca = QStringLiteral("[*]");
    DeVentana(ventana)->setWindowTitle(QDe1252(titulo).replace(marca, marca + marca));
}

void AbrirDialogoQt(Ventana *ventana, Dialogo cual, const DatosDialogo &datos) {
    for (const FilaDeDialogo &fila : Dialogos)
        if (fila.cual == cual) return fila.abrir(ventana, datos);
}

} // namespace

void InstalarPlataformaQt(const VentanasQt &ventanas) {
    static OperacionesPlataforma Operaciones = {
        .caja = CajaQt,
        .cursor = CursorQt,
        .textoDeControl = [](ControlTexto *c) { return De1252Q(DeControl(c)->toPlainText()); },
        .seleccionDeControl = SeleccionQt,
        .seleccionarEnControl = SeleccionarQt,
        .escribirEnControl = EscribirQt,
        .ponerTitulo = TituloQt,
        .abrirDialogo = AbrirDialogoQt,
        .elegirArchivo = ElegirArchivoQt,
        .segundos = [] { return static_cast<std::int32_t>(std::time(nullptr)); },
    };
    Operaciones.mostrarResultado = ventanas.mostrarResultado;
    Operaciones.mostrarGrafico = ventanas.mostrarGrafico;
    Operaciones.refrescarEditor = ventanas.refrescarEditor;
    Operaciones.nota = ventanas.nota;
    Dialogos = ventanas.dialogos;
    InstalarPlataforma(Operaciones);
}
