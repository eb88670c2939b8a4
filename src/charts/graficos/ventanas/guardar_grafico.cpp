// A chart as a picture and as a file.
#include "charts/graficos/ventanas/guardar_grafico.h"

#include "platform/archivos.h"
#include "platform/qt/imagen.h"
#include "platform/qt/impresora_qt.h"
#include "platform/qt/ventana_qt.h"
#include "platform/svg.h"

#include <QFileInfo>

namespace {

constexpr double EscalaDeImagen = 2;

std::vector<OrdenDibujo> OrdenesDeVentana(const Grafico &g) {
    std::vector<OrdenDibujo> ordenes;
    const DisposicionGrafico &d = g.disposicion;
    Superficie s = SuperficieGrabadora(ordenes, d.ancho, d.alto, d.c, d.h);
    Grafico copia = g;
    PintarGrafico(s, copia);
    return ordenes;
}

bool GuardarPng(const Grafico &g, const std::string &ruta) {
    const DisposicionGrafico &d = g.disposicion;
    return EscribirPng(ruta, OrdenesDeVentana(g), d.ancho, d.alto, d.c, EscalaDeImagen);
}

bool GuardarSvg(const Grafico &g, const std::string &ruta) {
    const DisposicionGrafico &d = g.disposicion;
    return EscribirArchivo(ruta, SvgDeOrdenes(OrdenesDeVentana(g), d.ancho, d.alto, d.c, d.h));
}

bool GuardarPdf(const Grafico &g, const std::string &ruta) {
    return ImprimirEnDocumento(ruta, [&] { return ImprimirVentanaGrafico(nullptr, g) == 0; });
}

constexpr FormatoArchivo Formatos[] = {
    {"png", "Imagen PNG (*.png)"}, {"svg", "Dibujo SVG (*.svg)"}, {"pdf", "Documento PDF (*.pdf)"}};

// In the order of Formatos.
constexpr bool (*Guardar[])(const Grafico &, const std::string &) = {GuardarPng, GuardarSvg, GuardarPdf};

} // namespace

QImage ImagenDeGrafico(const Grafico &g) {
    const DisposicionGrafico &d = g.disposicion;
    return ImagenDeOrdenes(OrdenesDeVentana(g), d.ancho, d.alto, d.c, EscalaDeImagen);
}

bool GuardarGrafico(const Grafico &g, const std::string &ruta) {
    const QString terminacion = QFileInfo(QString::fromStdString(ruta)).suffix().toLower();
    for (std::size_t i = 0; i < std::size(Formatos); ++i)
        if (terminacion == QLatin1String(Formatos[i].terminacion)) return Guardar[i](g, ruta);
    return GuardarPng(g, ruta);
}

void DialogoGuardarGrafico(QWidget *padre, const Grafico &g) {
    std::string ruta;
    if (!ElegirArchivo(AVentana(padre), {true, "Guardar como", Formatos, g.tituloVentana}, ruta)) return;
    if (!GuardarGrafico(g, ruta)) MostrarMensaje(AVentana(padre), "No se ha podido guardar el archivo");
}
