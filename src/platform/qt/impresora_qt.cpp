// The desktop's printer.
#include "platform/qt/impresora_qt.h"

#include "platform/impresora.h"
#include "platform/qt/pdf.h"
#include "platform/qt/texto_qt.h"

#include <QApplication>
#include <QDateTime>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLayout>
#include <QMainWindow>
#include <QPrinter>
#include <QPrinterInfo>
#include <QStandardPaths>
#include <QStatusBar>

#include <cstdio>
#include <vector>

namespace {

// Where the present job goes.
struct DestinoDeTrabajo {
    const std::string *documento; // a PDF document; null for the printer
    bool escrito;                 // the document, or not
};
DestinoDeTrabajo Destino{};

// Takes a name for a document of ours, as an empty file under it. False when something stands there, a link to nowhere
// included. Where no file can be made the name is as good as any other: writing the document will fail.
bool Reservar(const QString &ruta) {
    QFile f(ruta);
    if (f.open(QIODevice::WriteOnly | QIODevice::NewOnly)) return true;
    const QFileInfo hay(ruta);
    return !hay.exists() && !hay.isSymLink();
}

// "Imprime1: Imprimiendo" becomes "Imprime1 Imprimiendo 2026-11-21 10.15.30.pdf", with a number behind where that
// name is taken: nothing of the user's is overwritten, nor the document of another Tabira.
QString DocumentoNuevo(const std::string &documento) {
    const QDir carpeta(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    carpeta.mkpath(QStringLiteral("."));
    const QString nombre = QDe1252(documento).remove(u':') +
                           QDateTime::currentDateTime().toString(QStringLiteral(" yyyy-MM-dd HH.mm.ss"));
    QString ruta = carpeta.filePath(nombre + QStringLiteral(".pdf"));
    for (int n = 2; !Reservar(ruta); ++n)
        ruta = carpeta.filePath(nombre + QStringLiteral(" (%1).pdf").arg(n));
    return ruta;
}

// The lines for notes: the status of the main window, and that of the dialog that may stand before it.
std::vector<QStatusBar *> LineasDeNota() {
    std::vector<QStatusBar *> lineas;
    for (QWidget *w : QApplication::topLevelWidgets()) {
        auto *principal = qobject_cast<QMainWindow *>(w);
        auto *linea = principal != nullptr ? principal->statusBar() : w->findChild<QStatusBar *>();
        if (linea != nullptr) lineas.push_back(linea);
    }
    return lineas;
}

// Tells it to the user, and to whoever started the program from a terminal.
void Avisar(const QString &texto) {
    std::fprintf(stderr, "tabira: %s\n", texto.toUtf8().constData());
    for (QStatusBar *linea : LineasDeNota()) {
        linea->show();
        linea->showMessage(texto);
    }
}

void EmpezarTrabajoQt(std::string_view titulo) {
    for (QStatusBar *linea : LineasDeNota()) linea->clearMessage(); // what it tells is of the job before
    EmpezarTrabajoGrabado(titulo);
}

void TerminarTrabajoQt() {
    const TrabajoImpreso trabajo = TerminarTrabajoGrabado();
    if (trabajo.paginas.empty()) return;
    if (Destino.documento != nullptr) {
        Destino.escrito = EscribirPdf(*Destino.documento, trabajo.titulo, trabajo.paginas);
        return;
    }
    const QPrinterInfo impresora = QPrinterInfo::defaultPrinter();
    if (!impresora.isNull()) {
        QPrinter papel(impresora, QPrinter::HighResolution);
        if (ImprimirEnPapel(papel, trabajo)) return;
    }
    const QString ruta = DocumentoNuevo(trabajo.documento);
    const QString donde = QDir::toNativeSeparators(ruta);
    if (EscribirPdf(ruta.toStdString(), trabajo.titulo, trabajo.paginas)) {
        const QString porque = impresora.isNull() ? QStringLiteral("Sin impresora")
                                                  : QStringLiteral("La impresora no ha respondido");
        Avisar(porque + QStringLiteral(": impreso en ") + donde);
    } else {
        QFile::remove(ruta); // the empty file that took the name
        Avisar(QStringLiteral("No se ha podido imprimir en ") + donde);
    }
}

} // namespace

void PonerNotaDeImpresion(QDialog &dialogo) {
    auto *nota = new QStatusBar(&dialogo);
    nota->hide();
    dialogo.layout()->addWidget(nota);
}

bool ImprimirEnPapel(QPrinter &papel, const TrabajoImpreso &trabajo) {
    papel.setDocName(QDe1252(trabajo.documento));
    papel.setPageOrientation(QPageLayout::Portrait);
    return PintarPaginas(papel, trabajo.paginas);
}

bool ImprimirEnDocumento(const std::string &ruta, const std::function<bool()> &imprimir) {
    Destino = {&ruta, false};
    const bool bien = imprimir() && Destino.escrito;
    Destino = {};
    return bien;
}

void InstalarImpresoraQt() {
    static const OperacionesImpresora Operaciones = {
        .empezarTrabajo = EmpezarTrabajoQt,
        .terminarTrabajo = TerminarTrabajoQt,
    };
    InstalarImpresora(Operaciones);
}
