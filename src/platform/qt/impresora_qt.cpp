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
#include <QPrinter>
#include <QPrinterInfo>
#include <QPushButton>
#include <QStandardPaths>
#include <QUrl>
#include <QVBoxLayout>

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
constexpr QChar Rotura(0x200B); // a blank of no width

// The text may break behind each folder of its path, and within a name that is long: all of it is to be read, however
// narrow the window is.
QString ConRoturas(const QString &texto) {
    constexpr int MaximoEntero = 24; // characters of a name without a blank
    QString roto;
    int entero = 0;
    for (const QChar c : texto) {
        roto += c;
        entero = c.isSpace() ? 0 : entero + 1;
        if (c != u'/' && entero < MaximoEntero) continue;
        roto += Rotura;
        entero = 0;
    }
    return roto;
}

// A button that opens the folder of a document, named by its property.
QPushButton *BotonDeCarpeta(QWidget *padre) {
    auto *boton = new QPushButton(QStringLiteral("Abrir carpeta"), padre);
    boton->setObjectName(QStringLiteral("abrirCarpeta"));
    QObject::connect(boton, &QPushButton::clicked, boton, [boton] {
        QDesktopServices::openUrl(QUrl::fromLocalFile(boton->property("carpeta").toString()));
    });
    return boton;
}

// In every window that has room for it. `texto` empty: there is nothing to tell; `carpeta` empty: no document to go to.
void PonerNotas(const QString &texto, const QString &carpeta) {
    for (QWidget *nota : QApplication::allWidgets()) {
        if (nota->objectName() != QLatin1String(NombreDeNota)) continue;
        nota->findChild<QLabel *>()->setText(ConRoturas(texto));
        auto *boton = nota->findChild<QPushButton *>();
        boton->setProperty("carpeta", carpeta);
        boton->setVisible(!carpeta.isEmpty());
        nota->setVisible(!texto.isEmpty());
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

void PonerNotaDeImpresion(QWidget &ventana) {
    auto *nota = new QWidget(&ventana);
    nota->setObjectName(QLatin1String(NombreDeNota));
    auto *disposicion = new QHBoxLayout(nota);
    auto *texto = new QLabel(nota);
    texto->setObjectName(QStringLiteral("lugarDeImpresion"));
    texto->setTextFormat(Qt::PlainText);
    texto->setWordWrap(true);
    disposicion->addWidget(texto, 1);
    // Where no other button answers Enter, this one must not.
    const bool conBotones = !ventana.findChildren<QPushButton *>().isEmpty();
    auto *boton = BotonDeCarpeta(nota);
    boton->setAutoDefault(conBotones);
    disposicion->addWidget(boton);
    nota->hide();
    ventana.layout()->addWidget(nota);
}

void PrepararVentanaQueImprime(QDialog &dialogo, QWidget &area, const char *nombre, std::string_view titulo) {
    dialogo.setObjectName(QLatin1String(nombre));
    dialogo.setWindowTitle(QDe1252(titulo));
    dialogo.setWindowFlag(Qt::WindowMaximizeButtonHint);
    auto *disposicion = new QVBoxLayout(&dialogo);
    disposicion->setContentsMargins(0, 0, 0, 0);
    disposicion->addWidget(&area, 1);
    PonerNotaDeImpresion(dialogo);
    area.setFocus();
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
