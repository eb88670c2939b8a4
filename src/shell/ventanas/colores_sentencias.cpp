// The colours of the statements.
#include "shell/ventanas/colores_sentencias.h"

#include "platform/qt/texto_qt.h"
#include "store/archivo.h"

#include <QTextBlock>

#include <iterator>

namespace {

struct Tinta {
    QRgb clara, oscura; // on light paper and on dark paper
    bool negrita, cursiva;
    QTextCharFormat::UnderlineStyle raya; // for eyes that don't tell the colours apart
};

constexpr auto SinRaya = QTextCharFormat::NoUnderline;

// By ClasesDeTrozo.
constexpr Tinta Tintas[] = {
    {0xFF0B3D91, 0xFF8AB4F8, true, false, SinRaya},                             // word
    {0xFF6A1B9A, 0xFFD7A8E6, false, false, SinRaya},                            // function
    {0xFF00594F, 0xFF80CBC4, false, false, SinRaya},                            // number
    {0xFF1B5E20, 0xFFA5D6A7, false, false, SinRaya},                            // code
    {0xFFB00020, 0xFFFF9E94, false, false, QTextCharFormat::DotLine},           // a name that nothing bears
    {0xFF7A4100, 0xFFFFCC80, false, false, SinRaya},                            // target
    {0xFF55595E, 0xFFB4B9BF, false, true, SinRaya},                             // comment
    {0xFFB00020, 0xFFFF9E94, true, false, QTextCharFormat::SpellCheckUnderline} // foreign
};
static_assert(std::size(Tintas) == TrozoAjeno + 1);

constexpr int LineasAlrededor = 100; // of the screen, that are coloured with it
// Characters of a line; a longer one is no statement, and stays plain: at each key the toolkit lays a line out anew, which
// for 32,000 characters in their colours takes it 80 ms, and for these 3.
constexpr qsizetype MaximoColoreado = 2000;

class EdadDeLinea : public QTextBlockUserData {
public:
    int edad = 0;
};

int EdadDe(const QTextBlock &linea) {
    const auto *datos = static_cast<const EdadDeLinea *>(linea.userData());
    return datos != nullptr ? datos->edad : 0;
}

std::string NombresDelArchivo() {
    std::string todos;
    for (int s = 0; s < ArchivoTrabajo.NumSeries; ++s) todos += ArchivoTrabajo.Codigos[s];
    for (int m = 0; m < TablaMatrices.numero; ++m) todos += TablaMatrices.registro[m].Codigo;
    for (int e = 0; e < TablaEscalares.numero; ++e) todos += TablaEscalares.registro[e].Codigo;
    return todos;
}

} // namespace

bool EsOscura(const QPalette &paleta) {
    return paleta.color(QPalette::Base).lightness() < 128;
}

QColor TintaDeTrozo(ClasesDeTrozo clase, bool oscura) {
    return QColor::fromRgb(oscura ? Tintas[clase].oscura : Tintas[clase].clara);
}

QColor TintaDelMargen(bool oscura) {
    return TintaDeTrozo(TrozoComentario, oscura);
}

QColor TintaDeParada(bool oscura) {
    return TintaDeTrozo(TrozoAjeno, oscura);
}

QColor PapelDeParada(bool oscura) {
    return QColor::fromRgb(oscura ? 0xFF4A2323 : 0xFFFFE3E0);
}

ColoresDeSentencias::ColoresDeSentencias(QTextDocument *documento) : QSyntaxHighlighter(documento) {}

void ColoresDeSentencias::PonerPaleta(const QPalette &paleta) {
    for (int clase = 0; clase <= TrozoAjeno; ++clase) {
        const Tinta &t = Tintas[clase];
        QTextCharFormat &f = formatos[clase];
        f.setForeground(TintaDeTrozo(static_cast<ClasesDeTrozo>(clase), EsOscura(paleta)));
        f.setUnderlineColor(f.foreground().color());
        f.setUnderlineStyle(t.raya);
        f.setFontItalic(t.cursiva);
        if (t.negrita) f.setFontWeight(QFont::Bold);
    }
    ++edad;
}

bool ColoresDeSentencias::MirarNombres() {
    std::string ahora = NombresDelArchivo();
    if (ahora == nombres) return false;
    nombres = std::move(ahora);
    ++edad;
    return true;
}

void ColoresDeSentencias::ALaVista(const QTextBlock &primera, const QTextBlock &ultima) {
    desde = primera.blockNumber();
    hasta = ultima.blockNumber();
    coloreando = true;
    for (QTextBlock linea = primera; linea.isValid() && linea.blockNumber() <= hasta; linea = linea.next())
        if (EdadDe(linea) != edad) rehighlightBlock(linea);
    coloreando = false;
}

void ColoresDeSentencias::highlightBlock(const QString &texto) {
    const int linea = currentBlock().blockNumber();
    const bool cerca = linea >= desde - LineasAlrededor && linea <= hasta + LineasAlrededor;
    auto *datos = static_cast<EdadDeLinea *>(currentBlockUserData());
    if (datos == nullptr) setCurrentBlockUserData(datos = new EdadDeLinea);
    datos->edad = cerca ? edad : 0;
    if (!cerca || texto.size() > MaximoColoreado) return;
    for (const Trozo &t : TrozosDeLinea(De1252Q(texto))) setFormat(t.desde, t.largo, formatos[t.clase]);
}
