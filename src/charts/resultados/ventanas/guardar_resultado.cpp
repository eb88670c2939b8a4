// A result as text, as a table and as a file.
#include "charts/resultados/ventanas/guardar_resultado.h"

#include "charts/resultados/impresion.h"
#include "charts/resultados/ventana_resultado.h"
#include "platform/archivos.h"
#include "platform/campos_texto.h"
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

void PonerLineas(std::string &texto, const TextoSalida *lineas) {
    if (lineas == nullptr) return;
    for (const LineaSalida &l : *lineas) texto += std::string(Recortado(l.texto, RecorteDerecha)) + "\n";
}

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
};
using RutinaDeGuardar = bool (*)(const SalidaResultado &salida, const QString &ruta);
constexpr RutinaDeGuardar Guardados[] = {GuardarTexto, GuardarPdf, GuardarTabla, GuardarImagen};
static_assert(std::size(Guardados) == std::size(Formatos));

} // namespace

std::string TextoDeResultado(const SalidaResultado &salida) {
    std::string texto;
    PonerLineas(texto, salida.fijas);
    PonerLineas(texto, salida.lineas);
    return texto;
}

std::string TablaDeResultado(const SalidaResultado &salida) {
    if (!salida.tabla.empty()) return std::string(salida.tabla);
    // A result without a table of its own is parted where its lines leave two blanks or more.
    const std::string tabla = TextoDeResultado(salida);
    std::string partida;
    for (std::size_t i = 0; i < tabla.size();) {
        const std::size_t fin = std::min(tabla.find_first_not_of(' ', i), tabla.size());
        const bool alPrincipio = partida.empty() || partida.back() == '\n';
        if (fin - i >= 2) {
            if (!alPrincipio) partida += '\t';
        } else {
            partida.append(fin - i, ' ');
        }
        if (fin < tabla.size()) partida += tabla[fin];
        i = fin + 1;
    }
    return partida;
}

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
