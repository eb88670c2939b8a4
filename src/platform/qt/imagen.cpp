// Drawing operations as a picture.
#include "platform/qt/imagen.h"

#include "platform/archivos.h"
#include "platform/qt/pdf.h"
#include "platform/qt/superficie_qt.h"

#include <QBuffer>
#include <QByteArray>
#include <QCoreApplication>

#include <algorithm>

QImage ImagenDeOrdenes(const std::vector<OrdenDibujo> &ordenes, int ancho, int alto, int anchoCaracter,
                       double escala) {
    const auto lado = [escala](int unidades) { return std::max(static_cast<int>(unidades * escala), 1); };
    QImage imagen(lado(ancho), lado(alto), QImage::Format_RGB32);
    imagen.fill(Qt::white);
    QPainter pintor(&imagen);
    pintor.scale(escala, escala);
    PintorSuperficie propio;
    Superficie s = SuperficieDePintor(propio, pintor, FuenteFija(anchoCaracter), ancho, alto);
    propio.anchoCaracter = anchoCaracter; // of the sheet, whatever the font's own advance rounds to
    Reproducir(ordenes, s);
    return imagen;
}

bool EscribirPng(const std::string &ruta, const std::vector<OrdenDibujo> &ordenes, int ancho, int alto,
                 int anchoCaracter, double escala) {
    if (QCoreApplication::instance() == nullptr) CrearAplicacionSinPantalla();
    QByteArray bytes;
    QBuffer memoria(&bytes);
    memoria.open(QIODevice::WriteOnly);
    return ImagenDeOrdenes(ordenes, ancho, alto, anchoCaracter, escala).save(&memoria, "PNG") &&
           EscribirArchivo(ruta, {bytes.constData(), static_cast<std::size_t>(bytes.size())});
}
