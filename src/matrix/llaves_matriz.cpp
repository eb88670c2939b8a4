// The brace form: a matrix whose columns are series, scalars and numbers, the only bridge from series to matrices.
#include "matrix/evaluador_matriz.h"

#include "platform/numeros.h"
#include "platform/texto.h"
#include "store/archivo.h"

#include <algorithm>
#include <cstdint>

namespace {

// The columns as they are read. Their values go from the tables straight into the matrix: columns of PilaColumnas
// would hold the same 4,000 rows once more.
struct ColumnasLeidas {
    std::int32_t serie[MaxColumnasPila]; // slot, -1 for a constant
    double valor[MaxColumnasPila];       // of the constant
};

ColumnasLeidas Columnas;

int CopiarLlaves(LineasSentencia &lineas, int &posicion, Ventana *ventana) {
    if (UltimoNivel()) return MensajePunto(ventana, "Excesivos paréntesis"_w, 63);
    const std::string &texto = LineaDelNivel(lineas);
    const std::size_t desde = static_cast<std::size_t>(posicion) + 1;
    const std::size_t cierre = std::min(texto.find('}', desde), texto.size());
    LineaDelNivel(lineas, 1).assign(texto, desde, cierre - desde);
    posicion = static_cast<int>(std::min(cierre + 1, texto.size()));
    ++Evaluador.NivelLinea;
    return 1;
}

// The kinds of columns, in the order in which a token is tried, and what tells that 50 are there already.
int AnadirColumna(std::string_view token, Ventana *ventana) {
    const auto anadir = [&](int serie, double valor, const char *mensaje, int punto) {
        if (Evaluador.profundidad >= MaxColumnasPila) return MensajePunto(ventana, mensaje, punto);
        Columnas.serie[Evaluador.profundidad] = serie;
        Columnas.valor[Evaluador.profundidad++] = valor;
        return 1;
    };
    if (EsNumero(token)) return anadir(-1, LeerDecimal(token), "Error en número"_w, 22);
    if (const int e = BuscarEscalar(token); e >= 0)
        return anadir(-1, TablaEscalares.registro[e].Valor, "Error en escalar", 38);
    if (const int s = BuscarSerie(token); s >= 0) return anadir(s, 0.0, "Excesivos datos temporales", 391);
    return MensajePunto(ventana, "Secuencia desconocida: [" + std::string(token) + "]", 23);
}

int ColumnasDesdeLlaves(const std::string &texto, Ventana *ventana) {
    int posicion = 0;
    SaltarBlancos(texto, posicion);
    while (CaracterEn(texto, posicion) != '\0') {
        const std::string_view token = LeerElementoMatriz(texto, posicion);
        // What begins no token, a parenthesis among it, is named by itself.
        if (token.empty())
            return MensajePunto(ventana,
                                Formatear("Secuencia desconocida: [%c]", CaracterEn(texto, posicion)), 24);
        if (AnadirColumna(token, ventana) == 0) return 0;
        SaltarBlancos(texto, posicion);
    }
    return 1;
}

// The rows of the tables lie hundreds of bytes apart, a distance at which the processor doesn't fetch ahead by itself;
// asked for some rows before they are read, they cost half the time.
void PedirFila(std::int64_t obs, int columnas) {
    if (obs < 0 || obs >= MaxObservaciones) return;
    for (int j = 0; j < columnas; ++j) {
        const std::int32_t s = std::max(Columnas.serie[j], 0);
        __builtin_prefetch(&ArchivoTrabajo.ValoresObs[obs][s]);
        __builtin_prefetch(&ArchivoTrabajo.PresenciaObs[obs][s]);
    }
}

// Writes one row of the matrix. A missing value is 0.0; true when there was one. A row outside the tables has nothing.
bool EscribirFila(std::int64_t obs, int columnas, double *fila) {
    if (obs < 0 || obs >= MaxObservaciones) {
        std::fill_n(fila, columnas, 0.0);
        return true;
    }
    const double *valores = ArchivoTrabajo.ValoresObs[obs];
    const std::int32_t *presencia = ArchivoTrabajo.PresenciaObs[obs];
    bool faltan = false;
    for (int j = 0; j < columnas; ++j) {
        const std::int32_t s = Columnas.serie[j];
        const bool falta = s >= 0 && presencia[s] != 1;
        faltan |= falta;
        fila[j] = s < 0 ? Columnas.valor[j] : falta ? 0.0 : valores[s];
    }
    return faltan;
}

int MatrizDesdeColumnas(int primera, int ultima, Ventana *ventana) {
    const std::int64_t rango = static_cast<std::int64_t>(ultima) - primera + 1;
    const int filas = static_cast<int>(std::clamp<std::int64_t>(rango, 0, MaxObservaciones));
    const int columnas = Evaluador.profundidad;
    if (columnas == 0) return MensajePunto(ventana, "Secuencia no válida"_w, 67);
    if (filas * columnas > MaxElementos)
        return MensajePunto(ventana, "Escoja matrices mas pequeñas o quite regresores"_w, 62);
    bool faltan = filas == 0;
    double *datos = FormulaMatriz.trabajo.datos;
    constexpr int FilasPorDelante = 12;
    for (int i = 0; i < filas; ++i) {
        const std::int64_t obs = static_cast<std::int64_t>(primera) + i;
        PedirFila(obs + FilasPorDelante, columnas);
        if (EscribirFila(obs, columnas, datos + i * columnas)) faltan = true;
    }
    FijarTamano(FormulaMatriz.trabajo, filas, columnas);
    // A range without rows has nothing to store, only something missing.
    if (filas > 0 && GuardarMatrizDestino(datos, filas, columnas, ventana) == 0) return 0;
    return faltan ? MensajePunto(ventana, "Existen valores missing", 62) : 1;
}

} // namespace

int EvaluarLlaves(LineasSentencia &lineas, int &posicion, Ventana *ventana, int primera, int ultima) {
    if (CopiarLlaves(lineas, posicion, ventana) == 0) return 0;
    const std::string &texto = LineaDelNivel(lineas);
    const int r =
        ColumnasDesdeLlaves(texto, ventana) == 1 ? MatrizDesdeColumnas(primera, ultima, ventana) : 0;
    // The columns were only counted, so none may be found on the stack.
    Evaluador.profundidad = 0;
    return r;
}
