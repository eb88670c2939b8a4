// The special forms of SER: from a matrix, recursive, and the dummy series of FICTIC.
#include "language/asignaciones.h"
#include "language/traza.h"
#include "platform/campos_texto.h"
#include "platform/numeros.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <algorithm>
#include <cmath>
#include <limits>

// ---------------------------------------------------------------------------------------------------------------
// SER serie = {matriz}

namespace {

// What ends the name of the matrix: operators and delimiters of a formula, and the closing brace.
constexpr const char *FinesDeNombre = "+-/*:=><?|\xBF ()}";

// Slot of the matrix with one column that stands behind the "{", or -1 after a message.
int LeerMatrizDeLlaves(const std::string &texto, int posicion, Ventana *ventana) {
    SaltarBlancos(texto, posicion);
    const std::size_t desde = static_cast<std::size_t>(posicion);
    const std::size_t hasta = std::min(texto.find_first_of(FinesDeNombre, desde), texto.size());
    const std::string nombre = texto.substr(desde, hasta - desde);
    posicion = static_cast<int>(hasta);
    SaltarBlancos(texto, posicion);
    const int matriz = BuscarMatriz(nombre);
    if (CaracterEn(texto, posicion) != '}') {
        MensajePunto(ventana, nombre, 309);
    } else if (matriz < 0) {
        MensajePunto(ventana, "Nombre Matriz no Válido"_w, 30);
    } else if (TablaMatrices.registro[matriz].Columnas > 1) {
        MensajePunto(ventana, "Dimensiones de Matriz no Válidas"_w, 30);
    } else {
        return matriz;
    }
    return -1;
}

// The rows are those of the regression's sample, not of the batch: this form brings results of a regression back to
// series.
void LlenarDesdeMatriz(int serie, int m) {
    const RegistroMatriz &matriz = TablaMatrices.registro[m];
    const int inicio = Muestra.InicioRegresion;
    const int fin = std::min(Muestra.FinRegresion, MaxObservaciones - 1);
    // One column, and never more rows than the block has, whatever a damaged record says.
    const int filas = matriz.Columnas == 1 ? std::min<int>(matriz.Filas, TablaMatrices.capacidad[m]) : 0;
    for (int i = std::max(0, -inicio); i < filas && inicio + i <= fin; ++i)
        PonerObservacion(inicio + i, serie, matriz.Datos[i], 1);
}

} // namespace

int SerieDesdeMatriz(std::string_view serie, const std::string &texto, int posicion, Ventana *ventana) {
    if (BuscarMatriz(serie) >= 0) return MensajePunto(ventana, "Nombre Serie no Válido"_w, 4);
    if (BuscarEscalar(serie) >= 0) return MensajePunto(ventana, "Nombre Serie no Válido"_w, 5);
    const std::uint16_t antes = ArchivoTrabajo.NumSeries;
    const int s = TomarSerie(serie);
    if (s < 0) return MensajePunto(ventana, "Falta memoria", 6);
    const int m = LeerMatrizDeLlaves(texto, posicion, ventana);
    if (m < 0) {
        ArchivoTrabajo.NumSeries = antes;
        return 0;
    }
    LimpiarColumna(s);
    if (!FijarMatriz(m)) {
        ArchivoTrabajo.NumSeries = antes;
        return MensajePunto(ventana, "Falta memoria", 1);
    }
    LlenarDesdeMatriz(s, m);
    PonerCodigoSerie(s, serie);
    RefrescarEditor();
    SoltarTodasMatrices();
    return 1;
}

// ---------------------------------------------------------------------------------------------------------------
// SER FICTIC serie

namespace {

// Towards zero; what no int holds stays at the bound.
int Truncado(double valor) {
    constexpr double Minimo = std::numeric_limits<int>::min(), Maximo = std::numeric_limits<int>::max();
    return std::isnan(valor) ? 0 : static_cast<int>(std::clamp(std::trunc(valor), Minimo, Maximo));
}

struct ValoresDistintos {
    int valor[MaxValoresFicticios];
    int numero;
};

ValoresDistintos ReunirValores(int serie, int desde, int hasta) {
    ValoresDistintos v{};
    for (int i = desde; i < hasta && v.numero < MaxValoresFicticios; ++i) {
        if (ArchivoTrabajo.PresenciaObs[i][serie] == 0) continue;
        const int valor = Truncado(ArchivoTrabajo.ValoresObs[i][serie]);
        if (std::find(v.valor, v.valor + v.numero, valor) == v.valor + v.numero) v.valor[v.numero++] = valor;
    }
    return v;
}

void LlenarFicticia(int ficticia, int serie, int valor, int desde, int hasta) {
    LimpiarColumna(ficticia);
    for (int i = desde; i < hasta; ++i) {
        if (ArchivoTrabajo.PresenciaObs[i][serie] != 1) continue;
        const bool igual = Truncado(ArchivoTrabajo.ValoresObs[i][serie]) == valor;
        PonerObservacion(i, ficticia, igual ? 1.0 : 0.0, 1);
    }
}

} // namespace

void SeriesFicticias(Ventana *ventana, int primera, int ultima) {
    const int serie = BuscarSerie(Evaluador.CodigoSerieDestino);
    if (serie < 0) {
        MostrarMensaje(ventana, Formatear("(%s)", Evaluador.CodigoSerieDestino), "Serie no existe");
        return;
    }
    const std::string codigo(Recortado(Evaluador.CodigoSerieDestino));
    std::string base = codigo;
    if (base.size() > 6) base.resize(5);
    const int desde = std::max(primera, 0);
    const int hasta =
        static_cast<int>(std::clamp<std::int64_t>(std::int64_t{ultima} - primera + 1, 0, MaxObservaciones));
    const ValoresDistintos valores = ReunirValores(serie, desde, hasta);
    for (int k = 0; k < valores.numero; ++k) {
        const std::string nombre = base + Formatear("%d", valores.valor[k]);
        if (BuscarSerie(nombre) < 0 && ArchivoTrabajo.NumSeries > TopeSeriesFicticias) return;
        const int ficticia = TomarSerie(nombre);
        PonerCodigoSerie(ficticia, nombre);
        LlenarFicticia(ficticia, serie, valores.valor[k], desde, hasta);
        if (Trazando())
            TrazarSerie(
                nombre, Formatear("%s = %d", codigo.c_str(), valores.valor[k]),
                "Variable ficticia: 1 donde la parte entera de la serie es ese valor, 0 en las demás"_w,
                {desde, hasta - 1});
    }
}
