// Printing from the desktop where there is no printer: the documents, their folder, and the page.
#include "apoyo_escritorio.h"
#include "apoyo_pdf.h"

#include "platform/impresora_grabadora.h"
#include "platform/qt/impresora_qt.h"
#include "platform/qt/pdf.h"

#include <QDateTime>
#include <QFile>
#include <QPageSize>
#include <QPdfWriter>
#include <QPrinter>
#include <QRegularExpression>

#include <algorithm>
#include <array>

using Impresion = Escritorio;

namespace {

QStringList Escritos() {
    return Documentos().entryList({QStringLiteral("*.pdf")}, QDir::Files | QDir::System);
}

void VaciarDocumentos() {
    for (const QString &f : Escritos()) QFile::remove(Documentos().filePath(f));
}

void EscribirEn(const QString &ruta, const char *contenido) {
    QFile f(ruta);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(contenido);
}

// Prints the edit screen; what the note of the main window tells then, which is on standard error, too.
QString Imprimir(VentanaPrincipal &v) {
    v.PantallaEdicion->setPlainText(QStringLiteral("ESC A = 1"));
    testing::internal::CaptureStderr();
    ConGuion({}, [&] { v.findChild<QAction *>(QStringLiteral("comando2088"))->trigger(); });
    const QString nota = QString::fromStdString(testing::internal::GetCapturedStderr());
    const QString estado = NotaDeImpresion(v);
    EXPECT_EQ(nota, QStringLiteral("tabira: %1\n").arg(estado));
    return estado;
}

// Corners of the words of the first page, in points: left, top, right, bottom.
std::vector<std::array<double, 4>> Palabras(const QString &ruta) {
    static const QRegularExpression Palabra(QStringLiteral(
        "<word xMin=\"([-0-9.]+)\" yMin=\"([-0-9.]+)\" xMax=\"([-0-9.]+)\" yMax=\"([-0-9.]+)\""));
    const QString todo = SalidaDe("pdftotext", {QStringLiteral("-bbox"), ruta, QStringLiteral("-")});
    std::vector<std::array<double, 4>> r;
    for (auto i = Palabra.globalMatch(todo); i.hasNext();) {
        const QRegularExpressionMatch m = i.next();
        r.push_back({m.captured(1).toDouble(), m.captured(2).toDouble(), m.captured(3).toDouble(),
                     m.captured(4).toDouble()});
    }
    return r;
}

} // namespace

// The text of the edit screen: what is selected, or all of it.
TEST_F(Impresion, Seleccion) {
    const QDir documentos = Documentos();
    static constexpr struct {
        int desde, hasta;
        const char *esta, *noEsta;
    } Casos[] = {{0, 0, "ESC B = 2", "nada"}, {3, 4, "ESC B = 2", "nada"}, {0, 9, "ESC A = 1", "ESC B"}};
    for (const auto &c : Casos) {
        VaciarDocumentos();
        ventana->PantallaEdicion->setPlainText(QStringLiteral("ESC A = 1\nESC B = 2\n; Peñón"));
        QTextCursor cursor = ventana->PantallaEdicion->textCursor();
        cursor.setPosition(c.desde);
        cursor.setPosition(c.hasta, QTextCursor::KeepAnchor);
        ventana->PantallaEdicion->setTextCursor(cursor);
        testing::internal::CaptureStderr();
        ConGuion({}, [&] { Ordenar(2088); });
        EXPECT_NE(testing::internal::GetCapturedStderr(), "");
        const QStringList escritos = documentos.entryList({QStringLiteral("*.pdf")});
        ASSERT_EQ(escritos.size(), 1);
        const QString texto = TextoDePdf(documentos.filePath(escritos[0])).join(u'\n');
        EXPECT_TRUE(texto.contains(QStringLiteral("LISTADO PANTALLA PRINCIPAL"))) << texto.toStdString();
        EXPECT_TRUE(texto.contains(QString::fromUtf8(c.esta))) << texto.toStdString();
        EXPECT_FALSE(texto.contains(QString::fromUtf8(c.noEsta))) << texto.toStdString();
    }
}

TEST_F(Impresion, SinTexto) {
    ConGuion({Caja("Proceso cancelado", "No hay datos a procesar. Punto 3.")}, [&] { Ordenar(2088); });
}

TEST_F(Impresion, LaCarpetaQueFaltaSeHace) {
    VaciarDocumentos();
    ASSERT_TRUE(Documentos().removeRecursively());
    const QString estado = Imprimir(*ventana);
    ASSERT_EQ(Escritos().size(), 1);
    EXPECT_EQ(estado, QStringLiteral("Sin impresora: impreso en ") + Documentos().filePath(Escritos()[0]));
}

TEST_F(Impresion, CarpetaEnLaQueNoSeEscribe) {
    VaciarDocumentos();
    const QString carpeta = Documentos().path();
    ASSERT_TRUE(QDir(carpeta).removeRecursively());
    EscribirEn(carpeta, "mio"); // a file stands where the folder should
    const QString estado = Imprimir(*ventana);
    EXPECT_TRUE(estado.startsWith(
        QStringLiteral("No se ha podido imprimir en %1/Imprime1 Imprimiendo ").arg(carpeta)))
        << estado.toStdString();
    EXPECT_EQ(Leer(carpeta), "mio");
    QFile::remove(carpeta);
    EXPECT_TRUE(QDir().mkpath(carpeta));
}

// Something of the user's stands under every name that this job could choose at first: a document, and a link to where
// nothing is.
TEST_F(Impresion, NadaSePisa) {
    VaciarDocumentos();
    const QDateTime ahora = QDateTime::currentDateTime();
    const QString destino = Casa() + QStringLiteral("/no hay");
    constexpr int Segundos = 30;
    for (int s = 0; s < Segundos; ++s) {
        const QString nombre = Documentos().filePath(
            ahora.addSecs(s).toString(QStringLiteral("'Imprime1 Imprimiendo' yyyy-MM-dd HH.mm.ss")));
        EscribirEn(nombre + QStringLiteral(".pdf"), "mio");
        ASSERT_TRUE(QFile::link(destino, nombre + QStringLiteral(" (2).pdf")));
    }
    const QString estado = Imprimir(*ventana);
    EXPECT_TRUE(estado.endsWith(QStringLiteral(" (3).pdf"))) << estado.toStdString();
    int ajenos = 0;
    for (const QString &f : Escritos()) ajenos += Leer(Documentos().filePath(f)) == "mio" ? 1 : 0;
    EXPECT_EQ(ajenos, Segundos);
    EXPECT_FALSE(QFile::exists(destino));
    VaciarDocumentos();
}

TEST_F(Impresion, Columnas79EnUnA4) {
    constexpr int Columnas = 79;
    std::deque<PaginaImpresa> paginas(1);
    Superficie s = SuperficieGrabadora(paginas[0].ordenes, AnchoPagina, AltoPagina, AnchoCaracterPagina,
                                       AltoLineaPagina);
    const std::string linea(Columnas, 'M');
    const int izquierda = (AnchoPagina - Columnas * AnchoCaracterPagina) / 2;
    ASSERT_GE(izquierda, 0);
    Texto(s, izquierda, 0, linea);
    Texto(s, izquierda, AltoPagina - AltoLineaPagina, linea);
    const QString ruta = Casa() + QStringLiteral("/columnas.pdf");
    ASSERT_TRUE(EscribirPdf(ruta.toStdString(), "Columnas", paginas));
    const QString texto = TextoDePdf(ruta).join(u'\n').remove(u' ');
    EXPECT_EQ(texto.count(QString::fromStdString(linea)), 2) << texto.toStdString();
    const auto palabras = Palabras(ruta);
    ASSERT_EQ(palabras.size(), 2u);
    for (const auto &[x1, y1, x2, y2] : palabras) { // an A4 is 595 by 842 points
        EXPECT_GE(x1, 0);
        EXPECT_LE(x2, 595.5);
        EXPECT_NEAR(x2 - x1, Columnas * AnchoCaracterPagina * 72.0 / PuntosPorPulgada, 8);
        EXPECT_GE(y1, -1);
        EXPECT_LE(y2, 842);
    }
}

// On paper of another shape the page is whole, and its letters keep theirs.
TEST_F(Impresion, PapelDeOtraForma) {
    std::deque<PaginaImpresa> paginas(1);
    Superficie s = SuperficieGrabadora(paginas[0].ordenes, AnchoPagina, AltoPagina, AnchoCaracterPagina,
                                       AltoLineaPagina);
    constexpr int X = AnchoPagina - 2 * AnchoCaracterPagina, Y = AltoPagina - 2 * AltoLineaPagina;
    Texto(s, 0, 0, "A");
    Texto(s, X, 0, "B");
    Texto(s, 0, Y, "C");
    static constexpr struct {
        QPageSize::PageSizeId papel;
        QPageLayout::Orientation orientacion;
        int margen; // in points
    } Casos[] = {
        {QPageSize::A4, QPageLayout::Portrait, 0},     {QPageSize::A4, QPageLayout::Portrait, 18},
        {QPageSize::Letter, QPageLayout::Portrait, 0}, {QPageSize::Legal, QPageLayout::Portrait, 36},
        {QPageSize::A5, QPageLayout::Portrait, 0},     {QPageSize::A4, QPageLayout::Landscape, 0},
    };
    for (const auto &c : Casos) {
        const QString ruta = Casa() + QStringLiteral("/forma.pdf");
        const QPageSize papel(c.papel);
        SCOPED_TRACE(papel.name().toStdString());
        {
            QPdfWriter escritor(ruta);
            escritor.setPageSize(papel);
            escritor.setPageOrientation(c.orientacion);
            escritor.setPageMargins(QMarginsF(c.margen, c.margen, c.margen, c.margen), QPageLayout::Point);
            ASSERT_TRUE(PintarPaginas(escritor, paginas));
        }
        const auto p = Palabras(ruta);
        ASSERT_EQ(p.size(), 3u);
        // Extremes of the corners, in whatever order the words were read.
        std::array<double, 4> menor = p[0], mayor = p[0];
        for (const auto &palabra : p)
            for (std::size_t i = 0; i < palabra.size(); ++i) {
                menor[i] = std::min(menor[i], palabra[i]);
                mayor[i] = std::max(mayor[i], palabra[i]);
            }
        EXPECT_NEAR((mayor[0] - menor[0]) / (mayor[1] - menor[1]), double(X) / Y, 0.005);
        const QSizeF lado = c.orientacion == QPageLayout::Landscape ? papel.sizePoints().transposed()
                                                                    : QSizeF(papel.sizePoints());
        EXPECT_GE(menor[0], c.margen - 1);
        EXPECT_LE(mayor[2], lado.width() - c.margen + 1);
        EXPECT_GE(menor[1], c.margen - 1);
        EXPECT_LE(mayor[3], lado.height() - c.margen + 1);
    }
}

// What a note tells is of its own job: the next one begins without it.
TEST_F(Impresion, LaNotaEsDeSuTrabajo) {
    ImpresoraEnUso().empezarTrabajo("sin nota"); // a job that a printer takes has none
    EXPECT_TRUE(NotaDeImpresion(*ventana).isEmpty());
    ASSERT_FALSE(Imprimir(*ventana).isEmpty());
    ImpresoraEnUso().empezarTrabajo("otro");
    EXPECT_TRUE(NotaDeImpresion(*ventana).isEmpty());
}

// The printer itself: here one that writes a file, and one whose file can't be written.
TEST_F(Impresion, EnPapel) {
    TrabajoImpreso trabajo;
    trabajo.documento = "Imprime1: Imprimiendo";
    trabajo.paginas.resize(2);
    for (PaginaImpresa &pagina : trabajo.paginas) {
        Superficie s = SuperficieGrabadora(pagina.ordenes, AnchoPagina, AltoPagina, AnchoCaracterPagina,
                                           AltoLineaPagina);
        Texto(s, 0, 0, "papel");
    }
    const QString ruta = Casa() + QStringLiteral("/papel.pdf");
    QPrinter papel(QPrinter::HighResolution);
    papel.setOutputFormat(QPrinter::PdfFormat);
    papel.setOutputFileName(ruta);
    papel.setPageOrientation(QPageLayout::Landscape);
    ASSERT_TRUE(ImprimirEnPapel(papel, trabajo));
    EXPECT_EQ(papel.docName(), QStringLiteral("Imprime1: Imprimiendo"));
    EXPECT_EQ(papel.pageLayout().orientation(), QPageLayout::Portrait);
    EXPECT_EQ(TextoDePdf(ruta).join(u'\n').count(QStringLiteral("papel")), 2);

    QPrinter sinPapel(QPrinter::HighResolution);
    sinPapel.setOutputFormat(QPrinter::PdfFormat);
    sinPapel.setOutputFileName(Casa() + QStringLiteral("/no/hay/papel.pdf"));
    EXPECT_FALSE(ImprimirEnPapel(sinPapel, trabajo));
}
