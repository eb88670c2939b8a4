// The desktop's printer.
#include "platform/qt/impresora_qt.h"

#include "platform/impresora.h"
#include "platform/qt/pdf.h"
#include "platform/qt/texto_qt.h"

#include <QApplication>
#include <QDateTime>
#include <QDesktopServices>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QMainWindow>
#include <QPrinter>
#include <QPrinterInfo>
#include <QPushButton>
#include <QStandardPaths>
#include <QStatusBar>
#include <QUrl>

#include <cstdio>

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

constexpr const char *NombreDeNota = "notaDeImpresion";
constexpr const char *NombreDeBoton = "abrirCarpeta";
constexpr QChar Rotura(0x200B); // a blank of no width

// A button that opens the folder of a document, named by its property.
QPushButton *BotonDeCarpeta(QWidget *padre) {
    auto *boton = new QPushButton(QStringLiteral("Abrir carpeta"), padre);
    boton->setObjectName(QLatin1String(NombreDeBoton));
    QObject::connect(boton, &QPushButton::clicked, boton, [boton] {
        QDesktopServices::openUrl(QUrl::fromLocalFile(boton->property("carpeta").toString()));
    });
    return boton;
}

// `carpeta` empty: there is no document to go to.
void PonerCarpeta(QPushButton &boton, const QString &carpeta) {
    boton.setProperty("carpeta", carpeta);
    boton.setVisible(!carpeta.isEmpty());
}

// In a dialog the text takes as many lines as it needs: a path may break behind each of its folders.
void PonerEnDialogo(QWidget &nota, const QString &texto, const QString &carpeta) {
    nota.findChild<QLabel *>()->setText(QString(texto).replace(u'/', QStringLiteral("/") + Rotura));
    PonerCarpeta(*nota.findChild<QPushButton *>(), carpeta);
    nota.setVisible(!texto.isEmpty());
}

// In the main window it stands in the status line, and whole in its tip. Whoever clears the line takes all of it away.
void PonerEnPrincipal(QStatusBar &linea, const QString &texto, const QString &carpeta) {
    if (texto.isEmpty()) return linea.clearMessage();
    auto *boton = linea.findChild<QPushButton *>(QLatin1String(NombreDeBoton));
    if (boton == nullptr) {
        boton = BotonDeCarpeta(&linea);
        linea.addPermanentWidget(boton);
        QObject::connect(&linea, &QStatusBar::messageChanged, boton, [&linea, boton](const QString &mensaje) {
            linea.setToolTip(mensaje);
            if (mensaje.isEmpty()) boton->hide();
        });
    }
    linea.show();
    linea.showMessage(texto);
    PonerCarpeta(*boton, carpeta);
}

// The main window and the dialog that may stand before it.
void PonerNotas(const QString &texto, const QString &carpeta) {
    for (QWidget *w : QApplication::topLevelWidgets()) {
        if (auto *principal = qobject_cast<QMainWindow *>(w)) {
            PonerEnPrincipal(*principal->statusBar(), texto, carpeta);
        } else if (auto *nota = w->findChild<QWidget *>(QLatin1String(NombreDeNota))) {
            PonerEnDialogo(*nota, texto, carpeta);
        }
    }
}

// Tells it to the user, and to whoever started the program from a terminal.
void Avisar(const QString &texto, const QString &carpeta) {
    std::fprintf(stderr, "tabira: %s\n", texto.toUtf8().constData());
    PonerNotas(texto, carpeta);
}

void EmpezarTrabajoQt(std::string_view titulo) {
    BorrarNotasDeImpresion(); // what they tell is of the job before
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
        Avisar(porque + QStringLiteral(": impreso en ") + donde, QFileInfo(ruta).absolutePath());
    } else {
        QFile::remove(ruta); // the empty file that took the name
        Avisar(QStringLiteral("No se ha podido imprimir en ") + donde, {});
    }
}

} // namespace

void PonerNotaDeImpresion(QDialog &dialogo) {
    auto *nota = new QWidget(&dialogo);
    nota->setObjectName(QLatin1String(NombreDeNota));
    auto *disposicion = new QHBoxLayout(nota);
    auto *texto = new QLabel(nota);
    texto->setObjectName(QStringLiteral("lugarDeImpresion"));
    texto->setTextFormat(Qt::PlainText);
    texto->setWordWrap(true);
    disposicion->addWidget(texto, 1);
    // Where no other button answers Enter, this one must not.
    const bool conBotones = !dialogo.findChildren<QPushButton *>().isEmpty();
    auto *boton = BotonDeCarpeta(nota);
    boton->setAutoDefault(conBotones);
    disposicion->addWidget(boton);
    nota->hide();
    dialogo.layout()->addWidget(nota);
}

void BorrarNotasDeImpresion() {
    PonerNotas({}, {});
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
