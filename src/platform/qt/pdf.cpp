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
#include <memory>

namespace {

// Fonts need a QGuiApplication. One of our own takes no display, reads no arguments of the user's, and says nothing:
// its warnings on the locale or the run-time folder are none of the user's business.
std::unique_ptr<QGuiApplication> AplicacionSinPantalla() {
    static char nombre[] = "tabira", opcion[] = "-platform", valor[] = "offscreen";
    static char *argumentos[] = {nombre, opcion, valor, nullptr};
    static int numero = 3;
    const auto anterior = qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    auto aplicacion = std::make_unique<QGuiApplication>(numero, argumentos);
    qInstallMessageHandler(anterior);
    std::setlocale(LC_NUMERIC, "C"); // the toolkit takes the desktop's locale, and numbers don't
    return aplicacion;
}

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
    QPainter pintor;
    if (!pintor.begin(&escritor)) return {};
    const QFont fuente = FuenteFija(AnchoCaracterPagina);
    for (const PaginaImpresa &p : paginas) {
        if (&p != &paginas.front() && !escritor.newPage()) return {};
        PintarPagina(pintor, fuente, p);
    }
    return pintor.end() ? bytes : QByteArray();
}

} // namespace

bool EscribirPdf(const std::string &ruta, std::string_view titulo, const std::deque<PaginaImpresa> &paginas) {
    if (paginas.empty()) return false;
    std::unique_ptr<QGuiApplication> propia;
    if (QCoreApplication::instance() == nullptr) propia = AplicacionSinPantalla();
    const QByteArray bytes = Componer(titulo, paginas);
    return !bytes.isEmpty() && EscribirArchivo(ruta, {bytes.constData(), static_cast<std::size_t>(bytes.size())});
}
