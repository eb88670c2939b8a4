// A result as a file.
#include "charts/resultados/ventanas/guardar_resultado.h"

#include "charts/resultados/formatos_tabla.h"
#include "charts/resultados/impresion.h"
#include "charts/resultados/ventana_resultado.h"
#include "platform/archivos.h"
#include "platform/literal.h"
#include "platform/qt/impresora_qt.h"
#include "platform/qt/superficie_qt.h"
#include "platform/qt/texto_qt.h"
#include "platform/qt/ventana_qt.h"
#include "platform/texto.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImage>
#include <QRegularExpression>

#include <algorithm>
#include <iterator>

namespace {

std::string Bytes(const QString &ruta) {
    return ruta.toStdString();
}

bool GuardarTexto(const SalidaResultado &salida, const QString &ruta) {
    return EscribirArchivo(Bytes(ruta),
                           Utf8De1252(std::string(salida.titulo) + "\n\n" + TextoDeResultado(salida)));
}

bool GuardarTabla(const SalidaResultado &salida, const QString &ruta) {
    return EscribirArchivo(Bytes(ruta), Utf8De1252(TablaDeResultado(salida)));
}

bool GuardarCsv(const SalidaResultado &salida, const QString &ruta) {
    return EscribirArchivo(Bytes(ruta), Utf8De1252(TablaEnCsv(TablaDeResultado(salida), PuntoDecimal)));
}

// As a page or as a table of LaTeX.
template <std::string (*enForma)(std::string_view, std::string_view, SignoDecimal)>
bool GuardarDocumento(const SalidaResultado &salida, const QString &ruta) {
    return EscribirArchivo(Bytes(ruta),
                           Utf8De1252(enForma(salida.titulo, TablaDeResultado(salida), PuntoDecimal)));
}

// The pages that the printer would get.
bool GuardarPdf(const SalidaResultado &salida, const QString &ruta) {
    return ImprimirEnDocumento(Bytes(ruta), [&] { return ImprimirResultado(nullptr, salida) == 0; });
}

// The window's own painting, as long as the text is, at twice the screen's points.
bool GuardarImagen(const SalidaResultado &salida, const QString &ruta) {
    constexpr int AnchoCaracter = 16;
    constexpr int AlturaMaxima = 32767; // what a painter reaches
    const QFont fuente = FuenteFija(AnchoCaracter);
    const int alto = QFontMetrics(fuente).lineSpacing();
    const std::size_t fijas = salida.fijas != nullptr ? salida.fijas->size() : 0;
    const auto filas = static_cast<int>(salida.lineas->size() + fijas) * 2 + 8; // every line may bring a rule
    const int ancho = AnchoCaracter * ColumnasAlAbrir(FormaDe(salida));
    EstadoVentanaResultado estado{};
    estado.Clase = salida.Clase;
    estado.Contenido = salida.Contenido;
    {
        // First beside the sheet, to learn how many rows it takes; then on a sheet of that size.
        QImage minima(1, 1, QImage::Format_RGB32);
        QPainter pintor(&minima);
        PintorSuperficie propio;
        Superficie s = SuperficieDePintor(propio, pintor, fuente, ancho, alto * filas);
        PintarResultado(s, estado, salida);
    }
    const int altura = alto * (estado.Fila + 4) + 50;
    if (altura > AlturaMaxima) return false;
    QImage imagen(ancho, altura, QImage::Format_RGB32);
    imagen.fill(Qt::white);
    {
        QPainter pintor(&imagen);
        PintorSuperficie propio;
        Superficie s = SuperficieDePintor(propio, pintor, fuente, imagen.width(), imagen.height());
        PintarResultado(s, estado, salida);
    }
    QByteArray bytes;
    QBuffer memoria(&bytes);
    memoria.open(QIODevice::WriteOnly);
    return imagen.save(&memoria, "PNG") &&
           EscribirArchivo(Bytes(ruta), {bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

// The forms in which a result is saved, in the order of Guardados.
constexpr FormatoArchivo Formatos[] = {
    {"txt", "Texto (*.txt)"},
    {"pdf", "Documento PDF (*.pdf)"},
    {"tsv", "Tabla para hojas de cálculo (*.tsv)"_w},
    {"png", "Imagen PNG (*.png)"},
    {"csv", "Valores separados por comas (*.csv)"},
    {"html", "Página HTML (*.html)"_w},
    {"tex", "Tabla LaTeX (*.tex)"},
};
using RutinaDeGuardar = bool (*)(const SalidaResultado &salida, const QString &ruta);
constexpr RutinaDeGuardar Guardados[] = {GuardarTexto,
                                         GuardarPdf,
                                         GuardarTabla,
                                         GuardarImagen,
                                         GuardarCsv,
                                         GuardarDocumento<TablaEnHtml>,
                                         GuardarDocumento<TablaEnLatex>};
static_assert(std::size(Guardados) == std::size(Formatos));

} // namespace

bool GuardarResultado(const SalidaResultado &salida, const QString &ruta) {
    const QString terminacion = QFileInfo(ruta).suffix().toLower();
    for (std::size_t i = 0; i < std::size(Formatos); ++i)
        if (terminacion == QLatin1String(Formatos[i].terminacion)) return Guardados[i](salida, ruta);
    return GuardarTexto(salida, ruta);
}

void DialogoGuardarResultado(QWidget *padre, const SalidaResultado &salida) {
    static const QRegularExpression NoEnNombres(QStringLiteral("[^\\w ()-]+"),
                                                QRegularExpression::UseUnicodePropertiesOption);
    const std::string nombre = De1252Q(QDe1252(salida.titulo).remove(NoEnNombres));
    std::string ruta;
    if (!ElegirArchivo(AVentana(padre), {true, "Guardar como", Formatos, nombre}, ruta)) return;
    if (!GuardarResultado(salida, QString::fromStdString(ruta)))
        MostrarMensaje(AVentana(padre), "No se ha podido guardar el archivo");
}
