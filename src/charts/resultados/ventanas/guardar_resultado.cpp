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
#include <QFileDialog>
#include <QFileInfo>
#include <QImage>
#include <QRegularExpression>
#include <QStandardPaths>

#include <algorithm>

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
    constexpr int Ancho = AnchoCaracter * ColumnasVentanaResultado;
    EstadoVentanaResultado estado{};
    estado.Clase = salida.Clase;
    estado.Contenido = salida.Contenido;
    {
        // First beside the sheet, to learn how many rows it takes; then on a sheet of that size.
        QImage minima(1, 1, QImage::Format_RGB32);
        QPainter pintor(&minima);
        PintorSuperficie propio;
        Superficie s = SuperficieDePintor(propio, pintor, fuente, Ancho, alto * filas);
        PintarResultado(s, estado, salida);
    }
    const int altura = alto * (estado.Fila + 4) + 50;
    if (altura > AlturaMaxima) return false;
    QImage imagen(Ancho, altura, QImage::Format_RGB32);
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

struct FormatoDeArchivo {
    const char *terminacion;
    const char *filtro; // Windows-1252
    bool (*guardar)(const SalidaResultado &salida, const QString &ruta);
};

constexpr FormatoDeArchivo Formatos[] = {
    {"txt", "Texto (*.txt)", GuardarTexto},
    {"pdf", "Documento PDF (*.pdf)", GuardarPdf},
    {"tsv", "Tabla para hojas de cálculo (*.tsv)"_w, GuardarTabla},
    {"png", "Imagen PNG (*.png)", GuardarImagen},
};

// The format that the ending of a name tells, null for none of ours.
const FormatoDeArchivo *FormatoDelNombre(const QString &ruta) {
    const QString terminacion = QFileInfo(ruta).suffix().toLower();
    for (const FormatoDeArchivo &f : Formatos)
        if (terminacion == QLatin1String(f.terminacion)) return &f;
    return nullptr;
}

// A name such as "klein 1.5" has no ending of ours: the format chosen gives it one.
QString ConTerminacion(const QString &ruta, const FormatoDeArchivo &elegido) {
    return FormatoDelNombre(ruta) != nullptr ? ruta : ruta + u'.' + QLatin1String(elegido.terminacion);
}

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
    const FormatoDeArchivo *formato = FormatoDelNombre(ruta);
    return formato != nullptr ? formato->guardar(salida, ruta) : GuardarTexto(salida, ruta);
}

void DialogoGuardarResultado(QWidget *padre, const SalidaResultado &salida) {
    QStringList filtros;
    for (const FormatoDeArchivo &f : Formatos) filtros << QDe1252(f.filtro);
    QFileDialog dialogo(padre, QStringLiteral("Guardar como"),
                        QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation),
                        filtros.join(QStringLiteral(";;")));
    dialogo.setAcceptMode(QFileDialog::AcceptSave);
    dialogo.setOption(QFileDialog::DontConfirmOverwrite); // the name isn't whole yet when it would look
    static const QRegularExpression NoEnNombres(QStringLiteral("[^\\w ()-]+"),
                                                QRegularExpression::UseUnicodePropertiesOption);
    dialogo.selectFile(QDe1252(salida.titulo).remove(NoEnNombres));
    dialogo.resize(DentroDeLaPantalla(dialogo, dialogo.sizeHint()));
    while (Modal(dialogo) == QDialog::Accepted && !dialogo.selectedFiles().isEmpty()) {
        const auto elegido = std::max(filtros.indexOf(dialogo.selectedNameFilter()), qsizetype{0});
        const QString ruta = ConTerminacion(dialogo.selectedFiles().constFirst(), Formatos[elegido]);
        const std::string yaExiste =
            De1252Q(QFileInfo(ruta).fileName()) + " ya existe. ¿Desea reemplazarlo?"_w;
        if (QFileInfo::exists(ruta) && MostrarCaja(AVentana(&dialogo), yaExiste, "Guardar como",
                                                   IconoPregunta, BotonesSiNo) != RespuestaSi)
            continue;
        if (!GuardarResultado(salida, ruta))
            MostrarMensaje(AVentana(padre), "No se ha podido guardar el archivo");
        return;
    }
}
