// A chapter of the tutorial as a document.
#include "shell/ventanas/documento_tutorial.h"

#include "platform/qt/superficie_qt.h"
#include "shell/ventanas/colores_sentencias.h"

#include <QDir>
#include <QFontInfo>
#include <QImage>
#include <QTextBlock>
#include <QTextCursor>
#include <QUrl>

#include <algorithm>
#include <iterator>
#include <vector>

namespace {

// The frames of the chapters are told apart by their letters, too.
struct Recuadro {
    QLatin1String clase; // what their fence begins with
    QRgb claro, oscuro;  // their paper, under the text of the desktop
    bool negrita, cursiva;
    bool seParte; // long lines go on in the next one; the others are set out in columns
};

const Recuadro Recuadros[] = {
    {QLatin1String("{.menu"), 0xFFFBF3DC, 0xFF3B3420, false, true, true},
    {QLatin1String("{.tabira"), 0xFFE6EFF9, 0xFF1F3144, true, false, false},
    {QLatin1String("{.resultado"), 0xFFF0F0F0, 0xFF303030, false, false, false},
};

constexpr QRgb EnlaceClaro = 0xFF0B4FB3, EnlaceOscuro = 0xFF8AB4F8;
constexpr int Aire = 6; // pixels around a frame, and within it at its left

const Recuadro *RecuadroDe(const QTextBlock &bloque) {
    const QString clase = bloque.blockFormat().stringProperty(QTextFormat::BlockCodeLanguage);
    const auto *r = std::find_if(std::begin(Recuadros), std::end(Recuadros),
                                 [&](const Recuadro &fila) { return clase.startsWith(fila.clase); });
    return r != std::end(Recuadros) ? r : nullptr;
}

// A frame is a run of paragraphs, one a line.
void VestirBloque(const QTextBlock &bloque, bool oscura) {
    QTextBlockFormat formato = bloque.blockFormat();
    if (formato.headingLevel() > 0) {
        formato.setTopMargin(formato.headingLevel() == 1 ? 0 : 3 * Aire);
        formato.setBottomMargin(Aire);
    }
    if (const Recuadro *r = RecuadroDe(bloque); r != nullptr) {
        formato.setBackground(QColor::fromRgb(oscura ? r->oscuro : r->claro));
        formato.setNonBreakableLines(!r->seParte);
        formato.setLeftMargin(Aire);
        formato.setTopMargin(RecuadroDe(bloque.previous()) == r ? 0 : Aire);
        formato.setBottomMargin(RecuadroDe(bloque.next()) == r ? 0 : Aire);
    }
    QTextCursor(bloque).setBlockFormat(formato);
}

// The picture of this name in the width of the page. On a dense screen it is the one that was made for it.
QImage Imagen(const QString &carpeta, const QString &nombre, const AspectoTutorial &aspecto) {
    QImage imagen;
    QString doble = nombre;
    doble.replace(QStringLiteral(".png"), QStringLiteral("_200.png"));
    if (aspecto.densidad > 1) imagen.load(QDir(carpeta).filePath(doble));
    const double hechaPara = imagen.isNull() ? 1 : 2;
    if (imagen.isNull()) imagen.load(QDir(carpeta).filePath(nombre));
    if (imagen.isNull()) return imagen;
    const double ancho = std::min(imagen.width() / hechaPara, static_cast<double>(aspecto.anchoImagen));
    imagen = imagen.scaledToWidth(qRound(ancho * aspecto.densidad), Qt::SmoothTransformation);
    imagen.setDevicePixelRatio(aspecto.densidad);
    return imagen;
}

// A stretch of one format.
struct Letras {
    int inicio, fin;
    QTextCharFormat formato;
};

std::vector<Letras> LetrasDe(const QTextBlock &bloque) {
    std::vector<Letras> todas;
    for (auto i = bloque.begin(); !i.atEnd(); ++i) {
        const QTextFragment f = i.fragment();
        todas.push_back({f.position(), f.position() + f.length(), f.charFormat()});
    }
    return todas;
}

void VestirLetras(QTextDocument &documento, const Letras &letras, const Recuadro *recuadro,
                  const QString &carpeta, const AspectoTutorial &aspecto) {
    if (letras.formato.isImageFormat()) {
        const QString nombre = letras.formato.toImageFormat().name();
        documento.addResource(QTextDocument::ImageResource, QUrl(nombre), Imagen(carpeta, nombre, aspecto));
        return;
    }
    QTextCharFormat puesto;
    if (letras.formato.fontFixedPitch() || recuadro != nullptr) {
        const QFont fija = FuenteFijaDePantalla();
        puesto.setFontFamilies({QFontInfo(fija).family()});
        puesto.setFontPointSize(QFontInfo(fija).pointSizeF());
    }
    if (recuadro != nullptr) {
        puesto.setFontWeight(recuadro->negrita ? QFont::Bold : QFont::Normal);
        puesto.setFontItalic(recuadro->cursiva);
    }
    if (letras.formato.isAnchor())
        puesto.setForeground(QColor::fromRgb(EsOscura(aspecto.paleta) ? EnlaceOscuro : EnlaceClaro));
    QTextCursor c(&documento);
    c.setPosition(letras.inicio);
    c.setPosition(letras.fin, QTextCursor::KeepAnchor);
    c.mergeCharFormat(puesto);
}

} // namespace

void PonerCapitulo(QTextDocument &documento, const CapituloTutorial &capitulo, const QString &carpeta,
                   const AspectoTutorial &aspecto) {
    documento.setMarkdown(QString::fromStdString(capitulo.texto));
    QTextCursor todo(&documento);
    todo.beginEditBlock(); // a document on the screen would be set out anew behind each change
    for (QTextBlock b = documento.begin(); b.isValid(); b = b.next()) {
        VestirBloque(b, EsOscura(aspecto.paleta));
        for (const Letras &t : LetrasDe(b)) VestirLetras(documento, t, RecuadroDe(b), carpeta, aspecto);
    }
    todo.endEditBlock();
}
