// The grid: its keys, the field, and scrolling. What a cell means is the affair of the two modes.
#include "data/rejilla.h"

#include "platform/campos_texto.h"
#include "platform/texto.h"
#include "store/archivo.h"

#include <algorithm>
#include <cstring>

EstadoEditor Editor = {EditorDeSeries, CeldasPorColumna, CeldasPorColumna, 0, 0, 0, FocoEnCelda, {}, 0, 0, 0};

namespace {

constexpr int UltimaColumnaCampo = AnchoCampoEdicion - 1;
constexpr char PrimerCaracter = ' ', UltimoCaracter = '}'; // what can be typed
// Where a work file with more rows than the tables has its end: the rows aren't held then, and this only keeps sums of
// positions from overflowing.
constexpr int FilaSinFin = 1'000'000;

// ---------------------------------------------------------------------------------------------------------------
// Scrolling

// Every step checks the codes and clears the columns that lost theirs; whether a code is refused doesn't matter here.
void ValidarAlDesplazar() {
    std::string ignorado;
    ValidarCodigosSeries(false, ignorado);
}

void LlevarColumnas(int destino) {
    ValidarAlDesplazar();
    Editor.ColumnaInicial = std::clamp(destino, 0, MaxSeries - RejillaActual().columnasPorPagina());
    Editor.CeldaActual = Editor.CeldaInicial;
    RefrescarRejilla();
}

void LlevarFilas(int destino) {
    ValidarAlDesplazar();
    Editor.FilaInicial = RejillaActual().filasAcotadas() ? std::clamp(destino, 0, UltimaFilaInicial)
                                                         : std::clamp(destino, -FilaSinFin, FilaSinFin);
    RefrescarRejilla();
}

void PasarColumnas(int paginas) {
    LlevarColumnas(Editor.ColumnaInicial + paginas * RejillaActual().columnasPorPagina());
}

void PasarFilas(int paginas) {
    LlevarFilas(Editor.FilaInicial + paginas * FilasVisibles);
}

// ---------------------------------------------------------------------------------------------------------------
// Keys at a cell. Each leaves CeldaActual where the cursor goes.

void MoverTab() {
    if (Editor.ShiftPulsado != 0) {
        Editor.CeldaActual -= CeldasPorColumna;
        if (Editor.CeldaActual < Editor.CeldaInicial) PasarColumnas(-1);
        return;
    }
    Editor.CeldaActual += CeldasPorColumna;
    if (Editor.CeldaActual > UltimaCelda) PasarColumnas(1);
}

// Down scrolls at the last row exactly as Enter does, whatever the help page says of the arrows.
void MoverAbajo() {
    Editor.CeldaActual = std::min(Editor.CeldaActual + 1, NumCeldas);
    if (FilaDeCelda(Editor.CeldaActual) != 0 || Editor.CeldaActual < CeldasPorColumna) return;
    Editor.CeldaActual -= FilasVisibles;
    if (Editor.CeldaActual < Editor.CeldaInicial) Editor.CeldaActual = UltimaCelda - FilasVisibles + 1;
    PasarFilas(1);
}

// Up walks through the head of a column into the bottom of the one at its left, without scrolling.
void MoverArriba() {
    --Editor.CeldaActual;
    if (Editor.CeldaActual < Editor.CeldaInicial) Editor.CeldaActual = UltimaCelda;
}

void MoverAlInicio() {
    Editor.CeldaActual = Editor.CeldaInicial;
}

void MoverAlFin() {
    Editor.CeldaActual = UltimaCelda;
}

void MoverRePag() {
    MoverAlInicio();
    PasarFilas(-1);
}

void MoverAvPag() {
    MoverAlInicio();
    PasarFilas(1);
}

// By EntradasEditor, from PulsaTab to PulsaAvPag.
constexpr void (*Movimientos[])() = {MoverTab,      MoverAbajo, MoverAbajo, MoverArriba,
                                     MoverAlInicio, MoverAlFin, MoverRePag, MoverAvPag};
constexpr int NumMovimientos = static_cast<int>(std::size(Movimientos));

// From the code of the matrix there is one way: into the grid.
void MoverDesdeCodigo(EntradasEditor clase) {
    const bool alGrid = clase <= PulsaArriba;
    if (alGrid) {
        MoverAlInicio();
    } else {
        Movimientos[clase]();
    }
}

void MoverDesdeCelda(EntradasEditor clase) {
    if (!RejillaActual().tomaTeclas(Editor.CeldaActual)) return;
    if (Editor.CeldaActual == CeldaCodigoMatriz) {
        MoverDesdeCodigo(clase);
    } else {
        Movimientos[clase]();
    }
    IrACelda(Editor.CeldaActual);
}

// ---------------------------------------------------------------------------------------------------------------
// The field

void BlanquearCampo() {
    RellenarCadena(Editor.CampoEdicion, ' ', AnchoCampoEdicion);
    Editor.cursorCampo = 0;
}

void QuitarCaracter() {
    char *const desde = Editor.CampoEdicion + Editor.cursorCampo;
    std::memmove(desde, desde + 1, static_cast<std::size_t>(UltimaColumnaCampo - Editor.cursorCampo));
    Editor.CampoEdicion[UltimaColumnaCampo] = ' ';
}

void DarVuelta() {
    if (Editor.cursorCampo >= UltimaColumnaCampo) Editor.cursorCampo = 0;
}

bool CaracterDeValor(char c) {
    return (c >= '0' && c <= '9') || c == '.' || c == '-';
}

// The caret goes on over a character that is refused, too.
void EscribirEnCampo(char c) {
    if (RejillaActual().tipo(Editor.CeldaActual) != CeldaDeValor || CaracterDeValor(c))
        Editor.CampoEdicion[Editor.cursorCampo] = c;
    ++Editor.cursorCampo;
    DarVuelta();
}

void EntrarEnCampo(const EntradaEditor &e) {
    Editor.foco = FocoEnCampo;
    switch (e.clase) {
    case PulsaIzquierda: Editor.cursorCampo = std::max(Editor.cursorCampo - 1, 0); break;
    case PulsaDerecha: Editor.cursorCampo = std::min(Editor.cursorCampo + 1, UltimaColumnaCampo); break;
    case PulsaSuprimir: QuitarCaracter(); break;
    case EscribeRetroceso:
        DarVuelta(); // at the start of each character, and this is one
        if (Editor.cursorCampo == 0) break;
        --Editor.cursorCampo;
        QuitarCaracter();
        break;
    case EscribeEscape: BlanquearCampo(); break;
    case EscribeCaracter:
        DarVuelta();
        EscribirEnCampo(static_cast<char>(e.dato));
        break;
    default: break;
    }
}

// What was typed goes where it belongs, and the key on to the cell, which moves. There is no way back.
void ConfirmarCampo(EntradasEditor clase) {
    RejillaActual().confirmar(Editor.CeldaActual, Editor.CampoEdicion);
    BlanquearCampo();
    MoverDesdeCelda(clase);
}

// ---------------------------------------------------------------------------------------------------------------
// Who takes what

bool EsTeclaDeCampo(EntradasEditor clase) {
    return clase == PulsaIzquierda || clase == PulsaDerecha || clase == PulsaSuprimir ||
           clase == EscribeRetroceso || clase == EscribeEscape || clase == EscribeCaracter;
}

void EntrarPorTeclado(const EntradaEditor &e) {
    const bool enCampo = Editor.foco == FocoEnCampo;
    if (e.clase == EscribeCaracter && (e.dato < PrimerCaracter || e.dato > UltimoCaracter)) return;
    if (e.clase < NumMovimientos) {
        if (enCampo) {
            ConfirmarCampo(e.clase);
        } else {
            MoverDesdeCelda(e.clase);
        }
        return;
    }
    if (enCampo) {
        // Shift is no key of the field: Shift+Tab behind a typed text goes to the right.
        if (EsTeclaDeCampo(e.clase)) EntrarEnCampo(e);
        return;
    }
    if (!RejillaActual().tomaTeclas(Editor.CeldaActual)) return;
    if (e.clase == PulsaShift) Editor.ShiftPulsado = 1;
    if (e.clase == SueltaShift) Editor.ShiftPulsado = 0;
    if (e.clase == EscribeCaracter) Editor.ShiftPulsado = 0; // a capital was typed
    if (EsTeclaDeCampo(e.clase)) EntrarEnCampo(e);
}

// A click takes what was typed and not confirmed away.
void PulsarCelda(int celda) {
    const bool deLaRejilla = celda >= Editor.CeldaInicial && celda <= UltimaCelda;
    const bool delCodigo = celda == CeldaCodigoMatriz && Editor.ModoEditor == EditorDeMatrices;
    if (deLaRejilla || delCodigo) IrACelda(celda);
}

void PulsarCampo(int columna) {
    Editor.foco = FocoEnCampo;
    Editor.cursorCampo = std::clamp(columna, 0, UltimaColumnaCampo);
}

// Normal is what has its full width and no blank in front, unless all of it is blank.
void NormalizarRotulo(char *rotulo, int ancho) {
    const bool entero = std::strlen(rotulo) == static_cast<std::size_t>(ancho - 1);
    if (entero && (rotulo[0] != ' ' || CadenaDeCaracter(rotulo, ' ') == 1)) return;
    PonerCampo(rotulo, std::string(Recortado(rotulo)), ancho);
}

} // namespace

const ModoDeRejilla &RejillaActual() {
    return Editor.ModoEditor == EditorDeMatrices ? RejillaDeMatrices : RejillaDeSeries;
}

void EntrarEnEditor(const EntradaEditor &entrada) {
    // No wheel asks for more at once.
    const int paso = std::clamp(entrada.dato, -MaxObservaciones, MaxObservaciones);
    Editor.CeldaInicial = RejillaActual().celdaInicial();
    switch (entrada.clase) {
    case ClicEnCelda: PulsarCelda(entrada.dato); return;
    case ClicEnCampo: PulsarCampo(entrada.dato); return;
    case DesplazaColumnas: LlevarColumnas(Editor.ColumnaInicial + paso); break;
    case PaginaDeColumnas: PasarColumnas(paso); break;
    case BarraEnColumna: LlevarColumnas(entrada.dato); break;
    case DesplazaFilas: LlevarFilas(Editor.FilaInicial + paso); break;
    case PaginaDeFilas: PasarFilas(paso); break;
    case BarraEnFila: LlevarFilas(entrada.dato); break;
    default: EntrarPorTeclado(entrada); return;
    }
    // The cell holds something else now: the field must not go on showing what stood there before.
    IrACelda(Editor.CeldaActual);
}

void AbrirEditor(ModosDeEditor modo) {
    Editor.ModoEditor = modo;
    Editor.FilaInicial = Editor.ColumnaInicial = 0;
    Editor.ShiftPulsado = 0;
    Editor.CeldaInicial = RejillaActual().celdaInicial();
    // On series the cursor begins at the head of the first column, even when that is the one of the labels.
    IrACelda(modo == EditorDeMatrices ? CeldaCodigoMatriz : CeldasPorColumna);
}

void RedimensionarEditor(int ancho, int alto) {
    Editor.ancho = ancho;
    Editor.alto = alto;
    Editor.CeldaInicial = CeldasPorColumna;
    // The keyboard stays with the code of the matrix, which is no cell of the grid.
    if (Editor.CeldaActual != CeldaCodigoMatriz) IrACelda(CeldasPorColumna);
}

std::string TextoDeCelda(int celda) {
    const ModoDeRejilla &rejilla = RejillaActual();
    if (celda == CeldaInformacion) return rejilla.informacion(Editor.CeldaActual);
    if (celda < 0 || celda > CeldaInformacion) return {};
    return rejilla.texto(celda).substr(0, AnchoCelda);
}

int CeldaConCursor() {
    return Editor.foco == FocoEnCelda && RejillaActual().tomaTeclas(Editor.CeldaActual) ? Editor.CeldaActual
                                                                                        : -1;
}

std::string TextoHablado() {
    const std::string contenido(Recortado(RejillaActual().detalle(Editor.CeldaActual)));
    const std::string lugar(Recortado(TextoDeCelda(CeldaInformacion)));
    if (contenido.empty()) return lugar + " en blanco";
    return lugar.ends_with(contenido) ? lugar : lugar + ": " + contenido; // the place of a code tells it
}

int TopeBarraFilas() {
    return RejillaActual().filasAcotadas() ? UltimaFilaInicial : ArchivoTrabajo.NumObs - FilasVisibles;
}

void IrACelda(int celda) {
    Editor.CeldaActual = celda;
    Editor.foco = FocoEnCelda;
    BlanquearCampo();
    const std::string detalle = RejillaActual().detalle(celda).substr(0, AnchoCampoEdicion);
    detalle.copy(Editor.CampoEdicion, detalle.size());
}

void PosicionInicial() {
    Editor.FilaInicial = Editor.ColumnaInicial = 0;
    Editor.CeldaInicial = RejillaActual().celdaInicial();
    RefrescarRejilla();
    IrACelda(Editor.CeldaInicial);
}

std::string NumeroDeCelda(double valor, int decimales) {
    const int d = decimales >= 0 && decimales <= MaxDecimales ? decimales : MaxDecimales;
    return Formatear("%12.*f", d, valor);
}

std::string NumeroCompleto(double valor) {
    return Formatear("%20.10f", valor);
}

void NormalizarRotulos() {
    for (auto &codigo : ArchivoTrabajo.Codigos) NormalizarRotulo(codigo, AnchoCodigo);
    if (ArchivoTrabajo.ConEtiquetas == 0) return; // nobody sees them
    for (auto &etiqueta : ArchivoTrabajo.EtiquetasObs) NormalizarRotulo(etiqueta, AnchoEtiqueta);
}

void RefrescarRejilla() {
    NormalizarRotulos();
    RefrescarEditor();
}
