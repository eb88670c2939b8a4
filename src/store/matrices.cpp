// The table of matrices and their blocks.
#include "platform/campos_texto.h"
#include "store/archivo.h"
#include "store/codigo_buscado.h"

#include <algorithm>
#include <cstring>
#include <new>

TablaDeMatrices TablaMatrices;
MatrizDeTrabajo BufferMatriz;

namespace {

// A block for `elementos` doubles. What it holds beyond the elements of its matrix is never read, so it isn't cleared.
bool ReservarBloque(TablaDeMatrices &tabla, int matriz, int elementos) {
    double *bloque = new (std::nothrow) double[static_cast<std::size_t>(std::max(elementos, 1))];
    if (bloque == nullptr) return false;
    tabla.bloque[matriz] = bloque;
    tabla.capacidad[matriz] = std::max(elementos, 1);
    tabla.EstadoBloque[matriz] = BloqueSuelto;
    return true;
}

void LiberarBloque(TablaDeMatrices &tabla, int matriz) {
    delete[] tabla.bloque[matriz];
    tabla.bloque[matriz] = nullptr;
    tabla.capacidad[matriz] = 0;
    tabla.registro[matriz].Datos = nullptr;
    tabla.EstadoBloque[matriz] = SinBloque;
}

void PonerRegistro(RegistroMatriz &r, std::string_view codigo, int filas, int columnas) {
    PonerCampo(r.Codigo, codigo, AnchoCodigo);
    r.Filas = static_cast<std::int16_t>(filas);
    r.Columnas = static_cast<std::int16_t>(columnas);
}

// Elements of the matrix; never more than its block holds, whatever a damaged record says.
int Elementos(int matriz) {
    const RegistroMatriz &r = TablaMatrices.registro[matriz];
    return std::clamp(r.Filas * r.Columnas, 0, std::min(TablaMatrices.capacidad[matriz], ElementosBloque));
}

// The matrix as BufferMatriz carries it: elements, flags of presence, code and size.
void CopiarABuffer(int matriz) {
    const RegistroMatriz &r = TablaMatrices.registro[matriz];
    const int n = Elementos(matriz);
    LimpiarBufferMatriz();
    std::copy_n(r.Datos, n, BufferMatriz.datos);
    std::fill_n(BufferMatriz.presencia, n, 1);
    std::memcpy(BufferMatriz.Codigo, r.Codigo, AnchoCodigo);
    BufferMatriz.Filas = r.Filas;
    BufferMatriz.Columnas = r.Columnas;
    BufferMatriz.enUso = n;
}

// Moves matrix j to slot j - 1, whose block is gone. It goes through BufferMatriz into a block of its own exact size; of a
// row of moves only the last one can be seen there afterwards (`ultima`), so the others hand their block over, which from
// then on counts as one of that size.
int BajarMatriz(Ventana *ventana, int j, bool ultima) {
    const auto falla = [&](const std::string &texto) {
        MostrarMensaje(ventana, texto);
        return 0;
    };
    RegistroMatriz &destino = TablaMatrices.registro[j - 1];
    if (TablaMatrices.EstadoBloque[j] == SinBloque) return falla("No hay suficiente Memoria. P21");
    if (TablaMatrices.bloque[j] == nullptr) return falla("No hay suficiente Memoria. P26");
    if (!FijarMatriz(j)) return falla("No hay suficiente Memoria. P24");
    if (ultima) CopiarABuffer(j);
    destino = TablaMatrices.registro[j];
    destino.Datos = nullptr;
    TablaMatrices.bloque[j - 1] = TablaMatrices.bloque[j];
    TablaMatrices.capacidad[j - 1] = std::max(Elementos(j), 1);
    TablaMatrices.EstadoBloque[j - 1] = BloqueSuelto;
    TablaMatrices.bloque[j] = nullptr;
    LiberarBloque(TablaMatrices, j);
    return 1;
}

} // namespace

int BuscarMatriz(std::string_view codigo) {
    const CodigoBuscado buscado = PrepararCodigo(codigo);
    for (int m = 0; m < TablaMatrices.numero; ++m)
        if (EsCodigo(TablaMatrices.registro[m].Codigo, buscado)) return m;
    return -1;
}

bool FijarMatriz(int matriz) {
    if (TablaMatrices.bloque[matriz] == nullptr) return false;
    TablaMatrices.registro[matriz].Datos = TablaMatrices.bloque[matriz];
    TablaMatrices.EstadoBloque[matriz] = BloqueFijado;
    return true;
}

void SoltarMatriz(int matriz) {
    if (TablaMatrices.EstadoBloque[matriz] != BloqueFijado) return;
    TablaMatrices.registro[matriz].Datos = nullptr;
    TablaMatrices.EstadoBloque[matriz] = BloqueSuelto;
}

void SoltarTodasMatrices() {
    for (int m = 0; m < MaxMatrices; ++m)
        if (TablaMatrices.EstadoBloque[m] == BloqueFijado) SoltarMatriz(m);
}

ResultadoGuardarMatriz GuardarMatriz(std::string_view codigo, const double *datos, int filas, int columnas) {
    int m = BuscarMatriz(codigo);
    const bool nueva = m < 0;
    if (nueva && TablaMatrices.numero > TopeMatrices) return MatrizSinSitio;
    if (nueva) m = TablaMatrices.numero;
    // An existing matrix takes a full block even if it had one of its own size after a move. A new one in a slot that
    // kept its block through a reset goes on with the old block, unless that one was of a smaller matrix.
    const int minimo = nueva ? filas * columnas : ElementosBloque;
    if (TablaMatrices.capacidad[m] < minimo || TablaMatrices.EstadoBloque[m] == SinBloque) {
        LiberarBloque(TablaMatrices, m);
        if (!ReservarBloque(TablaMatrices, m, ElementosBloque)) return MatrizSinMemoria;
    }
    FijarMatriz(m);
    RegistroMatriz &r = TablaMatrices.registro[m];
    std::copy_n(datos, filas * columnas, r.Datos);
    PonerRegistro(r, codigo, filas, columnas);
    if (nueva) ++TablaMatrices.numero;
    SoltarMatriz(m);
    return MatrizGuardada;
}

double *AnadirMatriz(TablaDeMatrices &tabla, std::string_view codigo, int filas, int columnas) {
    const int m = tabla.numero;
    LiberarBloque(tabla, m);
    if (!ReservarBloque(tabla, m, ElementosBloque)) return nullptr;
    PonerRegistro(tabla.registro[m], codigo, filas, columnas);
    ++tabla.numero;
    return tabla.bloque[m];
}

int BorrarMatriz(Ventana *ventana, int matriz) {
    LiberarBloque(TablaMatrices, matriz);
    for (int j = matriz + 1; j < TablaMatrices.numero; ++j)
        if (BajarMatriz(ventana, j, j + 1 == TablaMatrices.numero) == 0) return 0;
    --TablaMatrices.numero;
    return 1;
}

void LiberarMatrices(TablaDeMatrices &tabla) {
    for (int m = 0; m < MaxMatrices; ++m) LiberarBloque(tabla, m);
    tabla.numero = 0;
}

void LimpiarBufferMatriz() {
    std::fill_n(BufferMatriz.datos, BufferMatriz.enUso, 0.0);
    std::fill_n(BufferMatriz.presencia, BufferMatriz.enUso, 0);
    BufferMatriz.enUso = 0;
    RellenarCadena(BufferMatriz.Codigo, ' ', AnchoCodigo - 1);
    BufferMatriz.Filas = 0;
    BufferMatriz.Columnas = 0;
}
