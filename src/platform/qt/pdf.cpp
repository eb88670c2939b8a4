// Printed pages as a PDF document.
#include "platform/qt/pdf.h"

#include "platform/archivos.h"
#include "platform/qt/superficie_qt.h"
#include "platform/qt/texto_qt.h"

#include <QBuffer>
#include <QByteArray>
#include <QGuiApplication>
#include <QPageSize>
#include <QPdfWriter>

#include <clocale>

namespace {

void PintarPagina(QPainter &pintor, const QFont &fuente, const PaginaImpresa &pagina) {
    PintorSuperficie propio;
    Superficie s = SuperficieDePintor(propio, pintor, fuente, AnchoPagina, AltoPagina);
    propio.anchoCaracter = AnchoCaracterPagina; // of the page, whatever the font's own advance rounds to
    Reproducir(pagina.ordenes, s);
}

QByteArray Componer(std::string_view titulo, const std::deque<PaginaImpresa> &paginas) {
    QByteArray bytes;
    QBuffer memoria(&bytes);
    memoria.open(QIODevice::WriteOnly);
    QPdfWriter escritor(&memoria);
    escritor.setPageSize(QPageSize(QPageSize::A4));
    escritor.setPageMargins({0, 0, 0, 0});
    escritor.setResolution(PuntosPorPulgada);
    escritor.setTitle(QDe1252(titulo));
    escritor.setCreator(QStringLiteral("Tabira"));
    return PintarPaginas(escritor, paginas) ? bytes : QByteArray();
}

} // namespace

// Fonts need a QGuiApplication. One of our own takes no display, reads no arguments of the user's, and says nothing:
// its warnings on the locale or the run-time folder are none of the user's business. It stays until the process ends,
// since fonts that were used once remember it.
void CrearAplicacionSinPantalla() {
    static char nombre[] = "tabira", opcion[] = "-platform", valor[] = "offscreen";
    static char *argumentos[] = {nombre, opcion, valor, nullptr};
    static int numero = 3;
    const auto anterior =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    new QGuiApplication(numero, argumentos); // NOLINT: it stays
    qInstallMessageHandler(anterior);
    std::setlocale(LC_NUMERIC, "C"); // the toolkit takes the desktop's locale, and numbers don't
}

bool PintarPaginas(QPagedPaintDevice &papel, const std::deque<PaginaImpresa> &paginas) {
    QPainter pintor;
    if (!pintor.begin(&papel)) return false;
    // The recorded page is laid over the paper, whatever its resolution and the margins that it can't print on. Paper of
    // another shape than A4 shows it as large as it can without stretching the letters.
    const QSize papelUtil = pintor.viewport().size();
    const QSize hoja = QSize(AnchoPagina, AltoPagina).scaled(papelUtil, Qt::KeepAspectRatio);
    pintor.setViewport((papelUtil.width() - hoja.width()) / 2, 0, hoja.width(), hoja.height());
    pintor.setWindow(0, 0, AnchoPagina, AltoPagina);
    const QFont fuente = FuenteFija(AnchoCaracterPagina);
    for (const PaginaImpresa &p : paginas) {
        if (&p != &paginas.front() && !papel.newPage()) return false;
        PintarPagina(pintor, fuente, p);
    }
    return pintor.end();
}

bool EscribirPdf(const std::string &ruta, std::string_view titulo, const std::deque<PaginaImpresa> &paginas) {
    if (paginas.empty()) return false;
    if (QCoreApplication::instance() == nullptr) CrearAplicacionSinPantalla();
    const QByteArray bytes = Componer(titulo, paginas);
    return !bytes.isEmpty() &&
           EscribirArchivo(ruta, {bytes.constData(), static_cast<std::size_t>(bytes.size())});
}
