// The surface over QPainter.
#include "platform/qt/superficie_qt.h"

#include "platform/qt/texto_qt.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QPen>

#include <algorithm>
#include <cstdlib>
#include <optional>

namespace {

PintorSuperficie &Propio(void *p) {
    return *static_cast<PintorSuperficie *>(p);
}

QColor De(Color c) {
    return {c.r, c.g, c.b};
}

QPen De(const Pluma &pluma) {
    static constexpr Qt::PenStyle Estilos[] = {Qt::SolidLine, Qt::DotLine, Qt::DashLine, Qt::DashDotLine};
    // A style is drawn with one unit only: wider pens are solid.
    QPen p(De(pluma.color), pluma.ancho, pluma.ancho > 1 ? Qt::SolidLine : Estilos[pluma.estilo]);
    p.setCapStyle(Qt::FlatCap);
    return p;
}

// Lines of one pen come by the thousand: it is set once.
void Usar(PintorSuperficie &s, const Pluma &pluma) {
    const auto igual = [](const Color &a, const Color &b) { return a.r == b.r && a.g == b.g && a.b == b.b; };
    if (s.conPluma && s.puesta.ancho == pluma.ancho && s.puesta.estilo == pluma.estilo &&
        igual(s.puesta.color, pluma.color))
        return;
    s.pintor->setPen(De(pluma));
    s.puesta = pluma;
    s.conPluma = true;
}

void PintarLinea(void *p, int x1, int y1, int x2, int y2, const Pluma &pluma) {
    Usar(Propio(p), pluma);
    Propio(p).pintor->drawLine(x1, y1, x2, y2);
}

// What a path covers of one column of units.
struct Tramo {
    int x, arriba, abajo;
};

// What a solid pen covers of a column is filled at once, which the toolkit does much faster than it draws the lines.
void Rellenar(QPainter &pintor, const Tramo &t, const Pluma &pluma) {
    pintor.fillRect(t.x - pluma.ancho / 2, t.arriba, pluma.ancho, t.abajo - t.arriba + 1, De(pluma.color));
}

// Long series have several points in each column, and steep lines from one column to the next.
void PintarCamino(void *p, const PuntoDibujo *puntos, int n, const Pluma &pluma) {
    QPainter &pintor = *Propio(p).pintor;
    const bool continua = pluma.ancho > 1 || pluma.estilo == PlumaContinua;
    std::optional<Tramo> tramo;
    const auto terminar = [&] {
        if (tramo) Rellenar(pintor, *tramo, pluma);
        tramo.reset();
    };
    const auto cubrir = [&](int x, int y1, int y2) {
        const Tramo pieza = {x, std::min(y1, y2), std::max(y1, y2)};
        if (tramo && tramo->x == x) {
            tramo->arriba = std::min(tramo->arriba, pieza.arriba);
            tramo->abajo = std::max(tramo->abajo, pieza.abajo);
            return;
        }
        terminar();
        tramo = pieza;
    };
    for (int i = 1; i < n; ++i) {
        const PuntoDibujo &a = puntos[i - 1], &b = puntos[i];
        if (!continua || std::abs(b.x - a.x) > 1) {
            terminar(); // the path may come back to this column elsewhere
            PintarLinea(p, a.x, a.y, b.x, b.y, pluma);
            continue;
        }
        const int medio = a.y + (b.y - a.y) / 2;
        cubrir(a.x, a.y, medio);
        cubrir(b.x, medio, b.y);
    }
    terminar();
}

void PintarRectangulo(void *p, int x1, int y1, int x2, int y2, const Pluma &pluma, const Color *relleno) {
    QPainter &pintor = *Propio(p).pintor;
    Usar(Propio(p), pluma);
    pintor.setBrush(relleno != nullptr ? QBrush(De(*relleno)) : QBrush(Qt::NoBrush));
    pintor.drawRect(QRect(std::min(x1, x2), std::min(y1, y2), std::abs(x2 - x1), std::abs(y2 - y1)));
}

// Each character is set in its own cell: the columns stand even where a fallback font brings a character, or where
// the advance of the font isn't a whole number of units.
void PintarTexto(void *p, int x, int y, std::string_view texto) {
    PintorSuperficie &s = Propio(p);
    s.pintor->setPen(Qt::black);
    s.conPluma = false;
    const QString todo = QDe1252(texto);
    for (qsizetype i = 0; i < todo.size(); ++i) {
        if (todo[i] == u' ') continue;
        s.pintor->drawText(x + static_cast<int>(i) * s.anchoCaracter, y + s.ascenso, QString(todo[i]));
    }
}

QFont Base() {
    static const QFont Fija = [] {
        for (const char *familia : {"DejaVu Sans Mono", "Liberation Mono", "Noto Sans Mono"}) {
            QFont f(QString::fromLatin1(familia));
            f.setStyleHint(QFont::TypeWriter);
            if (QFontInfo(f).exactMatch() && QFontInfo(f).fixedPitch()) return f;
        }
        QFont f = QFontDatabase::systemFont(QFontDatabase::FixedFont);
        f.setStyleHint(QFont::TypeWriter);
        return f;
    }();
    return Fija;
}

} // namespace

QFont FuenteFija(int anchoCaracter) {
    QFont f = Base();
    // The widest size whose cell still fits.
    int tamano = anchoCaracter * 2;
    do {
        f.setPixelSize(tamano);
    } while (--tamano > 4 && QFontMetrics(f).horizontalAdvance(QLatin1Char('0')) > anchoCaracter);
    return f;
}

QFont FuenteFijaDePantalla() {
    const QFont letras = QGuiApplication::font();
    QFont f = Base();
    if (letras.pointSizeF() > 0) {
        f.setPointSizeF(letras.pointSizeF());
    } else { // a desktop that sets its letters in pixels
        f.setPixelSize(letras.pixelSize());
    }
    return f;
}

Superficie SuperficieDePintor(PintorSuperficie &propio, QPainter &pintor, const QFont &fuente, int ancho,
                              int alto) {
    pintor.setFont(fuente);
    const QFontMetrics metrica(fuente, pintor.device());
    propio = {&pintor, metrica.horizontalAdvance(QLatin1Char('0')), metrica.ascent()};
    return {&propio,
            ancho,
            alto,
            propio.anchoCaracter,
            metrica.lineSpacing(),
            PintarLinea,
            PintarCamino,
            PintarRectangulo,
            PintarTexto};
}
