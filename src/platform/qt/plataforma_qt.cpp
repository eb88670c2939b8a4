// The desktop behind the seam.
#include "platform/qt/plataforma_qt.h"

#include "charts/resultados/ventanas/ventana_resultado_qt.h"
#include "platform/impresora_grabadora.h"
#include "platform/plataforma.h"
#include "platform/qt/cajas_qt.h"
#include "platform/qt/impresora_qt.h"
#include "platform/qt/texto_qt.h"
#include "platform/qt/ventana_qt.h"

#include <QApplication>
#include <QTextCursor>

#include <algorithm>
#include <ctime>

namespace {

// The program sets the wait cursor for each line and the arrow at the end; one override stands for all of them. A
// loop runs lines by the hundred thousand: a cursor that stands already isn't sent to the display again.
void CursorQt(Cursor cursor) {
    const QCursor *puesto = QApplication::overrideCursor();
    if (cursor == CursorEspera && puesto != nullptr && puesto->shape() == Qt::WaitCursor) return;
    while (QApplication::overrideCursor() != nullptr) QApplication::restoreOverrideCursor();
    if (cursor == CursorEspera) QApplication::setOverrideCursor(Qt::WaitCursor);
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

} // namespace

void InstalarPlataformaQt() {
    static const OperacionesPlataforma Operaciones = {
        .caja = CajaQt,
        .cursor = CursorQt,
        .textoDeControl = [](ControlTexto *c) { return De1252Q(DeControl(c)->toPlainText()); },
        .seleccionDeControl = SeleccionQt,
        .seleccionarEnControl = SeleccionarQt,
        .mostrarResultado = MostrarResultadoQt,
        .refrescarEditor = [] {},
        .empezarTrabajo = EmpezarTrabajoQt,
        .terminarTrabajo = TerminarTrabajoQt,
        .abrirImpresora = AbrirImpresoraGrabadora,
        .iniciarDocumento = IniciarDocumentoGrabado,
        .iniciarPagina = IniciarPaginaGrabada,
        .superficieDePagina = SuperficieGrabada,
        .terminarPagina = TerminarPaginaGrabada,
        .terminarDocumento = TerminarDocumentoGrabado,
        .cerrarImpresora = CerrarImpresoraGrabadora,
        .segundos = [] { return static_cast<std::int32_t>(std::time(nullptr)); },
    };
    InstalarPlataforma(Operaciones);
}
