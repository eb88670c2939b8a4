// The grid of the editor, drawn.
#include "data/ventanas/rejilla_qt.h"

#include "data/portapapeles.h"
#include "platform/qt/superficie_qt.h"
#include "platform/qt/texto_qt.h"
#include "platform/qt/ventana_qt.h"

#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QLocale>
#include <QMenu>
#include <QMimeData>
#include <QPainter>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QWheelEvent>

namespace {

// The measures of the window, in units of an eighth of a character's width and a sixteenth of a line's height. Lines
// take a height that is divided by four where there is room, so that all rows are of one pitch.
constexpr int LetraAncho = 8, LetraAlto = 16;
constexpr int AnchoTotal = 4 + 103 * (ColumnasVisibles + 1), AltoTotal = 70 + 20 * FilasVisibles + 20;
constexpr int FilasPorMuesca = 3; // of the wheel

// What is drawn is black on white whatever the desktop's colours are: the window's own grey stands around it.
constexpr QRgb FondoDeCelda = qRgb(255, 255, 255), FondoDeCabecera = qRgb(240, 240, 240);

struct TeclaDeQt {
    int tecla;
    EntradasEditor clase;
};

// Shift changes none of them: Shift+Tab is told by the key itself.
constexpr TeclaDeQt Teclas[] = {
    {Qt::Key_Tab, PulsaTab},         {Qt::Key_Backtab, PulsaTab},    {Qt::Key_Return, PulsaEnter},
    {Qt::Key_Enter, PulsaEnter},     {Qt::Key_Down, PulsaAbajo},     {Qt::Key_Up, PulsaArriba},
    {Qt::Key_Home, PulsaInicio},     {Qt::Key_End, PulsaFin},        {Qt::Key_PageUp, PulsaRePag},
    {Qt::Key_PageDown, PulsaAvPag},  {Qt::Key_Left, PulsaIzquierda}, {Qt::Key_Right, PulsaDerecha},
    {Qt::Key_Delete, PulsaSuprimir}, {Qt::Key_Shift, PulsaShift},    {Qt::Key_Backspace, EscribeRetroceso},
    {Qt::Key_Escape, EscribeEscape},
};

bool EsCabecera(int celda) {
    return celda < NumCeldas && (FilaDeCelda(celda) == 0 || ColumnaDeCelda(celda) == 0);
}

void PintarTexto(QPainter &p, const QRect &sitio, std::string_view texto, const QFont &fuente) {
    PintorSuperficie propio;
    Superficie s = SuperficieDePintor(propio, p, fuente, sitio.width(), sitio.height());
    p.save();
    p.setClipRect(sitio);
    Texto(s, sitio.left(), sitio.top() + (sitio.height() - s.altoLinea) / 2, texto);
    p.restore();
}

} // namespace

RejillaQt::RejillaQt(QWidget *padre) : QAbstractScrollArea(padre) {
    setObjectName(QStringLiteral("rejilla"));
    setFocusPolicy(Qt::StrongFocus);
    setFrameShape(QFrame::NoFrame);
    setAttribute(Qt::WA_InputMethodEnabled); // "^" is part of a code, and a dead key on many keyboards
    setInputMethodHints(Qt::ImhNoPredictiveText);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    verticalScrollBar()->setPageStep(FilasVisibles);
    MedirLetras(FuenteFijaDePantalla(), true);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this,
            [this](int fila) { Entrar(BarraEnFila, fila); });
    connect(horizontalScrollBar(), &QScrollBar::valueChanged, this,
            [this](int columna) { Entrar(BarraEnColumna, columna); });
}

// ---------------------------------------------------------------------------------------------------------------
// Measures

void RejillaQt::MedirLetras(const QFont &letras, bool holgado) {
    fuente = letras;
    const QFontMetrics m(fuente);
    anchoLetra = m.horizontalAdvance(u'0');
    altoLetra = m.lineSpacing();
    pasoAlto = holgado ? (altoLetra + 3) / 4 * 4 : altoLetra;
}

QRect RejillaQt::Proporcion(int x, int y, int ancho, int alto) const {
    const QPoint desde(x * anchoLetra / LetraAncho, y * pasoAlto / LetraAlto);
    const QPoint hasta((x + ancho) * anchoLetra / LetraAncho, (y + alto) * pasoAlto / LetraAlto);
    return {desde, hasta - QPoint(1, 1)};
}

QRect RejillaQt::SitioDeCelda(int celda) const {
    if (celda == CeldaCodigoMatriz) return Proporcion(182, 10, 72, 20);
    if (celda == CeldaInformacion) return Proporcion(4, 35, 176, 20);
    const int fila = FilaDeCelda(celda);
    return Proporcion(4 + 103 * ColumnaDeCelda(celda), fila == 0 ? 65 : 70 + 20 * fila, 100, 17);
}

QRect RejillaQt::SitioDelCampo() const {
    return Proporcion(182, 35, 174, 20);
}

int RejillaQt::CeldaEn(QPoint punto) const {
    for (int c = 0; c <= CeldaCodigoMatriz; ++c)
        if (SitioDeCelda(c).contains(punto)) return c;
    return -1;
}

QSize RejillaQt::sizeHint() const {
    return Proporcion(0, 0, AnchoTotal, AltoTotal).size() +
           QSize(verticalScrollBar()->sizeHint().width(), horizontalScrollBar()->sizeHint().height());
}

// Sixteen rows and five columns are always there: on a small screen with large letters these shrink.
void RejillaQt::resizeEvent(QResizeEvent *suceso) {
    QAbstractScrollArea::resizeEvent(suceso);
    constexpr qreal Menores = 5, Paso = 0.5;
    QFont letras = FuenteFijaDePantalla();
    const bool enPuntos = letras.pointSizeF() > 0;
    MedirLetras(letras, true);
    const auto cabe = [this] {
        const QSize lado = Proporcion(0, 0, AnchoTotal, AltoTotal).size();
        return lado.width() <= viewport()->width() && lado.height() <= viewport()->height();
    };
    for (qreal t = enPuntos ? letras.pointSizeF() : letras.pixelSize(); !cabe() && t > Menores; t -= Paso) {
        if (enPuntos) {
            letras.setPointSizeF(t - Paso);
        } else {
            letras.setPixelSize(static_cast<int>(t - Paso));
        }
        MedirLetras(letras, false);
    }
    RedimensionarEditor(viewport()->width(), viewport()->height());
    Refrescar();
}

// ---------------------------------------------------------------------------------------------------------------
// Painting

void RejillaQt::Refrescar() {
    const QSignalBlocker filas(verticalScrollBar()), columnas(horizontalScrollBar());
    verticalScrollBar()->setRange(0, TopeBarraFilas());
    verticalScrollBar()->setValue(Editor.FilaInicial);
    horizontalScrollBar()->setRange(0, TopeBarraColumnas);
    horizontalScrollBar()->setPageStep(RejillaActual().columnasPorPagina());
    horizontalScrollBar()->setValue(Editor.ColumnaInicial);
    // The name of what has the keyboard is read out when it changes: here it is the cell, its place and its content.
    setAccessibleName(QDe1252(TextoHablado()));
    viewport()->update();
}

void RejillaQt::paintEvent(QPaintEvent *) {
    QPainter p(viewport());
    p.fillRect(viewport()->rect(), Qt::lightGray);
    const bool deMatrices = Editor.ModoEditor == EditorDeMatrices;
    const int conCursor = hasFocus() ? CeldaConCursor() : -1;
    const auto caja = [&](const QRect &sitio, QRgb fondo, bool borde) {
        p.setPen(borde ? QPen(Qt::black) : QPen(Qt::NoPen));
        p.setBrush(QColor(fondo));
        p.drawRect(borde ? sitio.adjusted(0, 0, -1, -1) : sitio);
    };
    const int margen = Margen();
    const auto cursor = [&](const QRect &sitio, int columna, std::string_view texto) {
        const QRect bloque(sitio.left() + margen + columna * anchoLetra,
                           sitio.top() + (sitio.height() - altoLetra) / 2, anchoLetra, altoLetra);
        p.fillRect(bloque, Qt::black);
        if (columna < static_cast<int>(texto.size())) {
            p.setPen(Qt::white);
            p.setFont(fuente);
            p.drawText(bloque.left(), bloque.top() + QFontMetrics(fuente).ascent(),
                       QDe1252(texto.substr(static_cast<std::size_t>(columna), 1)));
        }
    };
    for (int c = 0; c <= CeldaInformacion; ++c) {
        if (c == CeldaCodigoMatriz && !deMatrices) continue;
        const QRect sitio = SitioDeCelda(c);
        caja(sitio, EsCabecera(c) ? FondoDeCabecera : FondoDeCelda,
             c >= NumCeldas || c == Editor.CeldaActual);
        const std::string texto = TextoDeCelda(c);
        PintarTexto(p, sitio.adjusted(margen, 0, 0, 0), texto, fuente);
        if (c == conCursor) cursor(sitio, 0, texto);
    }
    if (deMatrices) PintarTexto(p, Proporcion(4, 10, 176, 20), "Código matriz.......:"_w, fuente);
    const QRect campo = SitioDelCampo();
    caja(campo, FondoDeCelda, true);
    PintarTexto(p, campo.adjusted(margen, 0, 0, 0), Editor.CampoEdicion, fuente);
    if (hasFocus() && Editor.foco == FocoEnCampo) cursor(campo, Editor.cursorCampo, Editor.CampoEdicion);
}

// ---------------------------------------------------------------------------------------------------------------
// What the user does

void RejillaQt::Entrar(EntradasEditor clase, int dato) {
    EntrarEnEditor({clase, dato});
    Refrescar();
}

// Tab is a key of the grid; F6 and the menu's own key lead out of it.
bool RejillaQt::focusNextPrevChild(bool) {
    return false;
}

void RejillaQt::EscribirTexto(const QString &texto) {
    for (const char c : De1252Q(texto)) Entrar(EscribeCaracter, static_cast<unsigned char>(c));
}

void RejillaQt::keyPressEvent(QKeyEvent *tecla) {
    const auto mas = tecla->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    const bool tercerNivel = mas == (Qt::ControlModifier | Qt::AltModifier);
    if (mas == Qt::ControlModifier && tecla->key() == Qt::Key_C) return Copiar();
    if (mas == Qt::ControlModifier && tecla->key() == Qt::Key_V) return Pegar();
    if (tecla->key() == Qt::Key_F10 && tecla->modifiers() == Qt::ShiftModifier) {
        const QPoint sitio = SitioDeCelda(Editor.CeldaActual).center();
        QContextMenuEvent menu(QContextMenuEvent::Keyboard, sitio, viewport()->mapToGlobal(sitio));
        return contextMenuEvent(&menu);
    }
    if (mas != 0 && !tercerNivel) return tecla->ignore();
    for (const TeclaDeQt &t : Teclas)
        if (t.tecla == tecla->key()) return Entrar(t.clase);
    const QString texto = tecla->text();
    if (!texto.isEmpty() && texto.front().isPrint()) return EscribirTexto(texto);
    tecla->ignore();
}

void RejillaQt::keyReleaseEvent(QKeyEvent *tecla) {
    if (tecla->key() == Qt::Key_Shift && !tecla->isAutoRepeat()) return Entrar(SueltaShift);
    tecla->ignore();
}

void RejillaQt::inputMethodEvent(QInputMethodEvent *suceso) {
    EscribirTexto(suceso->commitString());
    suceso->accept();
}

QVariant RejillaQt::inputMethodQuery(Qt::InputMethodQuery pregunta) const {
    if (pregunta != Qt::ImCursorRectangle) return QAbstractScrollArea::inputMethodQuery(pregunta);
    const int celda = CeldaConCursor();
    return celda >= 0 ? SitioDeCelda(celda) : SitioDelCampo();
}

void RejillaQt::focusInEvent(QFocusEvent *suceso) {
    QAbstractScrollArea::focusInEvent(suceso);
    Refrescar();
}

// A Shift that is let go in another window, or in a menu, is never seen here.
void RejillaQt::focusOutEvent(QFocusEvent *suceso) {
    QAbstractScrollArea::focusOutEvent(suceso);
    if (Editor.foco == FocoEnCelda) EntrarEnEditor({SueltaShift});
    viewport()->update();
}

void RejillaQt::mousePressEvent(QMouseEvent *suceso) {
    if (suceso->button() != Qt::LeftButton) return;
    const QPoint punto = suceso->position().toPoint();
    if (SitioDelCampo().contains(punto)) {
        Entrar(ClicEnCampo, (punto.x() - SitioDelCampo().left() - Margen()) / anchoLetra);
    } else if (const int celda = CeldaEn(punto); celda >= 0) {
        Entrar(ClicEnCelda, celda);
    }
}

void RejillaQt::wheelEvent(QWheelEvent *suceso) {
    constexpr int Muesca = 120;
    restoFilas += suceso->angleDelta().y();
    restoColumnas += suceso->angleDelta().x();
    const int filas = restoFilas / Muesca, columnas = restoColumnas / Muesca;
    restoFilas -= filas * Muesca;
    restoColumnas -= columnas * Muesca;
    if (filas != 0) Entrar(DesplazaFilas, -filas * FilasPorMuesca);
    if (columnas != 0) Entrar(DesplazaColumnas, -columnas);
}

// ---------------------------------------------------------------------------------------------------------------
// The clipboard

// A spreadsheet takes numbers in the writing of the desktop's language.
void RejillaQt::Copiar() {
    const QString marca = QLocale::system().decimalPoint();
    QApplication::clipboard()->setText(QDe1252(CopiarDelEditor(marca == u"," ? ',' : '.')));
}

void RejillaQt::Pegar() {
    // Version 6.4 of the toolkit ends the program over a clipboard without formats.
    const QMimeData *datos = QApplication::clipboard()->mimeData();
    if (datos == nullptr || !datos->hasText()) return;
    PegarEnEditor(AVentana(window()), De1252Q(datos->text()));
    Refrescar();
}

void RejillaQt::contextMenuEvent(QContextMenuEvent *suceso) {
    QMenu menu(this);
    menu.setObjectName(QStringLiteral("menuContexto"));
    menu.addAction(Editor.ModoEditor == EditorDeMatrices ? QStringLiteral("&Copiar la matriz")
                                                         : QStringLiteral("&Copiar las series"),
                   this, [this] { Copiar(); });
    menu.addAction(QStringLiteral("&Pegar"), this, [this] { Pegar(); });
    menu.exec(suceso->globalPos());
}
