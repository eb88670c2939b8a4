// The cursors of what is dragged in a chart, drawn as arrows along the ways that are open.
#include "charts/graficos/ventanas/cursores.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

namespace {

constexpr int Lado = 32, Centro = Lado / 2;

// A double arrow through the centre, as it lies to the right.
QPainterPath FlechaDoble() {
    QPainterPath f;
    f.addPolygon(QPolygonF({QPointF(-12, 0), QPointF(-7, -5), QPointF(-7, -1.5), QPointF(7, -1.5),
                            QPointF(7, -5), QPointF(12, 0), QPointF(7, 5), QPointF(7, 1.5), QPointF(-7, 1.5),
                            QPointF(-7, 5), QPointF(-12, 0)}));
    return f;
}

QCursor Dibujado(bool horizontal, bool vertical) {
    QPixmap imagen(Lado, Lado);
    imagen.fill(Qt::transparent);
    QPainter pintor(&imagen);
    pintor.setRenderHint(QPainter::Antialiasing);
    pintor.translate(Centro, Centro);
    QPainterPath forma;
    if (horizontal) forma = FlechaDoble();
    if (vertical) forma = forma.united(QTransform().rotate(90).map(FlechaDoble()));
    pintor.setPen(QPen(Qt::white, 2)); // seen on dark, too
    pintor.setBrush(Qt::black);
    pintor.drawPath(forma);
    pintor.end();
    return QCursor(imagen, Centro, Centro);
}

} // namespace

QCursor CursorDeGrafico(Cursor cursor) {
    switch (cursor) {
    case CursorDesplazar: {
        static const QCursor Slide = Dibujado(true, true);
        return Slide;
    }
    case CursorHorizontal: {
        static const QCursor Hormove = Dibujado(true, false);
        return Hormove;
    }
    case CursorVertical: {
        static const QCursor Vertmove = Dibujado(false, true);
        return Vertmove;
    }
    default: return QCursor(Qt::ArrowCursor);
    }
}
