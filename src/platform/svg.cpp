// Drawing operations as a scalable picture. The toolkit's own writer sets every character apart, so that nobody can search
// the text; a picture of lines, rectangles and texts takes these few lines.
#include "platform/svg.h"

#include "platform/texto.h"

#include <algorithm>
#include <cstdlib>

namespace {

std::string DeColor(const Color &c) {
    return Formatear("#%02x%02x%02x", c.r, c.g, c.b);
}

// A wide pen is solid, as everywhere.
std::string DePluma(const Pluma &p) {
    static constexpr const char *Trazos[] = {"", " stroke-dasharray=\"1 2\"", " stroke-dasharray=\"4 2\"",
                                             " stroke-dasharray=\"4 2 1 2\""};
    return Formatear(" stroke=\"%s\" stroke-width=\"%d\"%s", DeColor(p.color).c_str(), p.ancho,
                     p.ancho > 1 ? "" : Trazos[p.estilo]);
}

std::string DeTexto(std::string_view texto) {
    std::string r;
    for (const char c : Utf8De1252(texto)) {
        switch (c) {
        case '<': r += "&lt;"; break;
        case '>': r += "&gt;"; break;
        case '&': r += "&amp;"; break;
        default: r += static_cast<unsigned char>(c) < ' ' ? ' ' : c; // a control character isn't XML
        }
    }
    return r;
}

} // namespace

std::string SvgDeOrdenes(const std::vector<OrdenDibujo> &ordenes, int ancho, int alto, int anchoCaracter,
                         int altoLinea) {
    std::string svg = Formatear("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                                "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"%d\" height=\"%d\" "
                                "viewBox=\"0 0 %d %d\">\n"
                                "<rect width=\"%d\" height=\"%d\" fill=\"#ffffff\"/>\n"
                                "<g font-family=\"'DejaVu Sans Mono', monospace\" font-size=\"%.2f\" "
                                "shape-rendering=\"crispEdges\">\n",
                                ancho, alto, ancho, alto, ancho, alto, anchoCaracter / 0.602);
    for (const OrdenDibujo &o : ordenes) {
        switch (o.clase) {
        case OrdenLinea:
            svg += Formatear("<line x1=\"%d\" y1=\"%d\" x2=\"%d\" y2=\"%d\"%s/>\n", o.x1, o.y1, o.x2, o.y2,
                             DePluma(o.pluma).c_str());
            break;
        case OrdenRectangulo:
            svg += Formatear("<rect x=\"%d\" y=\"%d\" width=\"%d\" height=\"%d\"%s fill=\"%s\"/>\n",
                             std::min(o.x1, o.x2), std::min(o.y1, o.y2), std::abs(o.x2 - o.x1),
                             std::abs(o.y2 - o.y1), DePluma(o.pluma).c_str(),
                             o.conRelleno ? DeColor(o.relleno).c_str() : "none");
            break;
        case OrdenTexto:
            if (o.texto.empty()) break;
            // The base line stands four fifths down the cell.
            svg += Formatear("<text x=\"%d\" y=\"%d\" textLength=\"%d\" xml:space=\"preserve\">%s</text>\n",
                             o.x1, o.y1 + altoLinea * 4 / 5, static_cast<int>(o.texto.size()) * anchoCaracter,
                             DeTexto(o.texto).c_str());
            break;
        }
    }
    return svg + "</g>\n</svg>\n";
}
