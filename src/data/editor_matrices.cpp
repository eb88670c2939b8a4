// The grid on a matrix.
#include "data/editor_matrices.h"

#include "data/portapapeles.h"
#include "data/rejilla.h"
#include "language/lote_sentencias.h"
#include "platform/campos_texto.h"
#include "platform/numeros.h"
#include "platform/texto.h"
#include "store/archivo.h"

#include <algorithm>
#include <vector>

namespace {

constexpr int PrimeraCeldaDeDatos = CeldasPorColumna + 1;

bool EsCabecera(int celda) {
    return celda != CeldaCodigoMatriz && (FilaDeCelda(celda) == 0 || ColumnaDeCelda(celda) == 0);
}

int FilaDeMatriz(int celda) {
    return FilaDeCelda(celda) - 1 + Editor.FilaInicial;
}

int ColumnaDeMatriz(int celda) {
    return ColumnaDeCelda(celda) - 1 + Editor.ColumnaInicial;
}

// Where an element stands in BufferMatriz, -1 beyond the working area. A column beyond the 40th is a place of a later row:
// what is typed there wraps.
int LugarDe(int fila, int columna) {
    const int lugar = fila * LadoAreaMatriz + columna;
    return lugar >= 0 && lugar < LugaresAreaMatriz ? lugar : -1;
}

// The element of a cell as it is shown, which knows no wrapping; null for none.
const double *ElementoDeCelda(int celda) {
    const int fila = FilaDeMatriz(celda), columna = ColumnaDeMatriz(celda);
    if (fila < 0 || fila >= LadoAreaMatriz || columna < 0 || columna >= LadoAreaMatriz) return nullptr;
    const int lugar = LugarDe(fila, columna);
    return BufferMatriz.presencia[lugar] == 1 ? BufferMatriz.datos + lugar : nullptr;
}

void PonerElemento(int lugar, double valor, bool presente) {
    BufferMatriz.datos[lugar] = presente ? valor : 0.0;
    BufferMatriz.presencia[lugar] = presente ? 1 : 0;
    BufferMatriz.enUso = std::max(BufferMatriz.enUso, lugar + 1);
}

// ---------------------------------------------------------------------------------------------------------------
// What the cells show

int CeldaInicialDeMatriz() {
    return PrimeraCeldaDeDatos;
}

int ColumnasPorPagina() {
    return ColumnasVisibles;
}

bool FilasAcotadas() {
    return true;
}

TiposDeCelda TipoDeCelda(int celda) {
    if (celda == CeldaCodigoMatriz) return CeldaDeTexto;
    return EsCabecera(celda) ? CeldaFija : CeldaDeValor;
}

// A head takes none, though Up leads there: a click or a command of the menu leads away.
bool TomaTeclas(int celda) {
    return !EsCabecera(celda);
}

std::string TextoDeCeldaDeMatriz(int celda) {
    if (celda == CeldaCodigoMatriz) return BufferMatriz.Codigo;
    if (celda == 0) return {};
    if (ColumnaDeCelda(celda) == 0) return Formatear("   %3d     ", FilaDeMatriz(celda) + 1);
    if (FilaDeCelda(celda) == 0) return Formatear("    %2d     ", ColumnaDeMatriz(celda) + 1);
    const double *elemento = ElementoDeCelda(celda);
    return elemento != nullptr ? NumeroDeCelda(*elemento, Lote.DecimalesSalida) : std::string();
}

std::string DetalleDeMatriz(int celda) {
    if (celda == CeldaCodigoMatriz) return BufferMatriz.Codigo;
    const double *elemento = EsCabecera(celda) ? nullptr : ElementoDeCelda(celda);
    return elemento != nullptr ? NumeroCompleto(*elemento) : std::string();
}

std::string InformacionDeMatriz(int celda) {
    if (celda == CeldaCodigoMatriz) return "Código...:"_w;
    return Formatear("%3d;%3d", FilaDeCelda(celda) + Editor.FilaInicial,
                     ColumnaDeCelda(celda) + Editor.ColumnaInicial);
}

void ConfirmarMatriz(int celda, std::string_view texto) {
    if (celda == CeldaCodigoMatriz) {
        PonerCampo(BufferMatriz.Codigo, texto.substr(0, SignificativosCodigo), AnchoCodigo);
    } else if (!EsCabecera(celda)) {
        EntrarEnMatriz(FilaDeMatriz(celda), ColumnaDeMatriz(celda), texto);
    }
}

// ---------------------------------------------------------------------------------------------------------------
// The shape of what was typed

struct FormaTecleada {
    int r1, c1, r2, c2; // both ends included
    int Filas() const { return r2 - r1 + 1; }
    int Columnas() const { return c2 - c1 + 1; }
};

bool HayElemento(int fila, int columna) {
    return BufferMatriz.presencia[LugarDe(fila, columna)] == 1;
}

// The rows and columns of the first and the last place that are flagged, by rows. False when none is.
bool Extremos(FormaTecleada &r) {
    const std::int32_t *const desde = BufferMatriz.presencia, *const hasta = desde + LugaresAreaMatriz;
    const auto *primero = std::find(desde, hasta, 1);
    if (primero == hasta) return false;
    const auto *ultimo = hasta - 1;
    while (*ultimo != 1) --ultimo;
    const int a = static_cast<int>(primero - desde), b = static_cast<int>(ultimo - desde);
    r = {a / LadoAreaMatriz, a % LadoAreaMatriz, b / LadoAreaMatriz, b % LadoAreaMatriz};
    return true;
}

// True when the column has no element, or its first and its last one stand in the rows r1 and r2.
bool ColumnaEntera(int columna, int r1, int r2) {
    int primera = -1, ultima = -1;
    for (int f = 0; f < LadoAreaMatriz; ++f) {
        if (!HayElemento(f, columna)) continue;
        if (primera < 0) primera = f;
        ultima = f;
    }
    return primera < 0 || (primera == r1 && ultima == r2);
}

// Null when what was typed is a full rectangle, else the message that refuses it.
const char *RechazoPorForma(FormaTecleada &r) {
    if (!Extremos(r)) return "Introduzca Datos";
    for (int c = 0; c < LadoAreaMatriz; ++c)
        if (!ColumnaEntera(c, r.r1, r.r2)) return "Matriz no Válida.P1"_w;
    for (int f = r.r1; f <= r.r2; ++f)
        for (int c = r.c1; c <= r.c2; ++c)
            if (!HayElemento(f, c)) return "Matriz no Válida.P4"_w;
    return nullptr;
}

// Everything shown anew, and the cursor at the code.
void IrAlCodigo() {
    Editor.FilaInicial = Editor.ColumnaInicial = 0;
    IrACelda(CeldaCodigoMatriz);
}

// Elements go by rows into a grid 40 columns wide. A wider matrix folds over itself, and rows beyond fall away: the editor
// isn't meant for it, and says nothing.
void Desplegar(const RegistroMatriz &registro) {
    const int columnas = registro.Columnas;
    for (int k = 0; k < registro.Filas * columnas; ++k) {
        const int lugar = k + k / columnas * (LadoAreaMatriz - columnas);
        if (lugar < LugaresAreaMatriz) PonerElemento(lugar, registro.Datos[k], true);
    }
}

// A block doesn't wrap: columns beyond the 40th find no place.
bool PegarEnMatriz(int columna, int fila, std::string_view texto) {
    const int f = fila - 1 + Editor.FilaInicial, c = columna - 1 + Editor.ColumnaInicial;
    const bool cabe = fila > 0 && f < LadoAreaMatriz && c < LadoAreaMatriz;
    std::string numero;
    if (!texto.empty() && (!cabe || !NumeroPegado(texto, numero))) return false;
    if (cabe) EntrarEnMatriz(f, c, numero);
    return true;
}

// What was typed, without the empty rows and columns around it.
std::string CopiarMatriz(char marcaDecimal) {
    FormaTecleada r{};
    if (!Extremos(r)) return {};
    for (int c = 0; c < LadoAreaMatriz; ++c) {
        for (int f = r.r1; f <= r.r2; ++f) {
            if (!HayElemento(f, c)) continue;
            r.c1 = std::min(r.c1, c);
            r.c2 = std::max(r.c2, c);
        }
    }
    std::string texto;
    for (int f = r.r1; f <= r.r2; ++f) {
        std::vector<std::string> linea;
        for (int c = r.c1; c <= r.c2; ++c)
            linea.push_back(HayElemento(f, c)
                                ? NumeroParaHoja(BufferMatriz.datos[LugarDe(f, c)], marcaDecimal)
                                : std::string());
        texto += LineaDeHoja(linea);
    }
    return texto;
}

} // namespace

const ModoDeRejilla RejillaDeMatrices = {
    .celdaInicial = CeldaInicialDeMatriz,
    .columnasPorPagina = ColumnasPorPagina,
    .filasAcotadas = FilasAcotadas,
    .tipo = TipoDeCelda,
    .tomaTeclas = TomaTeclas,
    .texto = TextoDeCeldaDeMatriz,
    .detalle = DetalleDeMatriz,
    .informacion = InformacionDeMatriz,
    .confirmar = ConfirmarMatriz,
    .pegar = PegarEnMatriz,
    .copiar = CopiarMatriz,
};

void EntrarEnMatriz(int fila, int columna, std::string_view texto) {
    const int lugar = LugarDe(fila, columna);
    if (lugar >= 0) PonerElemento(lugar, LeerDecimal(texto), CadenaDeCaracter(texto, ' ') == 0);
}

int LeerCodigoMatriz(Ventana *ventana, bool prueba) {
    const std::string_view escrito = Recortado(BufferMatriz.Codigo, RecorteIzquierda);
    Codigo codigo;
    PonerCampo(codigo, escrito.substr(0, SignificativosCodigo), AnchoCodigo);
    if (prueba) {
        if (CadenaDeCaracter(codigo, ' ') == 1)
            return MensajeCancelado(ventana, "Introduzca Nombre Matriz y apriete \"Enter\"");
        // Padded as it is, it never equals a reserved word: a matrix can be called LOG.
        if (CodigoValido(std::string(codigo), codigo) == 0)
            return MensajeCancelado(ventana, "Nombre de Matriz no Válido"_w);
    }
    PonerCampo(BufferMatriz.Codigo, codigo, AnchoCodigo);
    return 1;
}

int SalvarMatriz(Ventana *ventana) {
    if (LeerCodigoMatriz(ventana, true) == 0) return 0;
    if (BuscarSerie(BufferMatriz.Codigo) >= 0 || BuscarEscalar(BufferMatriz.Codigo) >= 0)
        return MensajeCancelado(ventana, "Nombre Matriz no Válido"_w);
    FormaTecleada r{};
    if (const char *rechazo = RechazoPorForma(r)) return MensajeCancelado(ventana, rechazo);
    BufferMatriz.Filas = static_cast<std::int16_t>(r.Filas());
    BufferMatriz.Columnas = static_cast<std::int16_t>(r.Columnas());
    std::vector<double> datos;
    for (int f = r.r1; f <= r.r2; ++f) {
        const double *fila = BufferMatriz.datos + LugarDe(f, 0);
        datos.insert(datos.end(), fila + r.c1, fila + r.c2 + 1);
    }
    switch (GuardarMatriz(BufferMatriz.Codigo, datos.data(), r.Filas(), r.Columnas())) {
    case MatrizSinSitio: return MensajeCancelado(ventana, "Demasiadas Matrices");
    case MatrizSinMemoria: return MensajeCancelado(ventana, "No hay suficiente memoria. P1");
    case MatrizGuardada: break;
    }
    LimpiarBufferMatriz();
    IrAlCodigo();
    return 1;
}

int MostrarMatriz(Ventana *ventana) {
    // The working area is cleared first: a code that is refused, or isn't found, leaves it empty under that code.
    Codigo codigo;
    PonerCampo(codigo, BufferMatriz.Codigo, AnchoCodigo);
    LimpiarBufferMatriz();
    PonerCampo(BufferMatriz.Codigo, codigo, AnchoCodigo);
    IrAlCodigo();
    if (LeerCodigoMatriz(ventana, true) == 0) return 0;
    const int m = BuscarMatriz(BufferMatriz.Codigo);
    if (m < 0) return MensajeCancelado(ventana, "No Existe la Matriz");
    if (TablaMatrices.EstadoBloque[m] == SinBloque)
        return MensajeCancelado(ventana, "No hay suficiente Memoria. P21");
    if (TablaMatrices.bloque[m] == nullptr)
        return MensajeCancelado(ventana, Formatear("Error en Memoria. P23. %d", m));
    if (!FijarMatriz(m)) return MensajeCancelado(ventana, "No hay suficiente Memoria. P24");
    Desplegar(TablaMatrices.registro[m]);
    BufferMatriz.Filas = TablaMatrices.registro[m].Filas;
    BufferMatriz.Columnas = TablaMatrices.registro[m].Columnas;
    SoltarMatriz(m);
    IrAlCodigo();
    return 1;
}

int BorrarMatrizDelEditor(Ventana *ventana) {
    if (LeerCodigoMatriz(ventana, true) == 0) return 0;
    const int m = BuscarMatriz(BufferMatriz.Codigo);
    if (m < 0) return MensajeCancelado(ventana, "No existe la Matriz");
    const int bien = BorrarMatriz(ventana, m);
    // The matrices that moved down went through the working area: nothing of what was typed is left there.
    BlanquearAreaMatriz();
    return bien;
}

void BlanquearAreaMatriz() {
    LimpiarBufferMatriz();
    IrAlCodigo();
}
