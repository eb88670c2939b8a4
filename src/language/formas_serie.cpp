// The special forms of SER: from a matrix, recursive, and the dummy series of FICTIC.
#include "language/asignaciones.h"
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
// SER serie = serie(-n) resto

namespace {

// Recognises the form; `retardo` receives n and `resto` the index behind the ")".
bool LeerRecursiva(const std::string &linea, int posicion, int &retardo, std::size_t &resto) {
    const std::size_t desde = static_cast<std::size_t>(posicion);
    const std::size_t abre = linea.find_first_of(" =(", desde);
    if (abre == std::string::npos || linea[abre] != '(') return false;
    if (std::string_view(linea).substr(desde, abre - desde) != Recortado(Evaluador.CodigoSerieDestino))
        return false;
    const std::size_t cierra = linea.find(')', abre);
    if (cierra == std::string::npos) return false;
    // Only these digits count: signs don't, and "10" is a lag of 1.
    std::string cifras;
    std::copy_if(linea.begin() + static_cast<std::ptrdiff_t>(abre),
                 linea.begin() + static_cast<std::ptrdiff_t>(cierra), std::back_inserter(cifras),
                 [](char c) { return c >= '1' && c <= '9'; });
    retardo = LeerEntero(cifras);
    resto = cierra + 1;
    return true;
}

// Builds the statement of row i in buffer 0 and evaluates it from behind its "=".
int EvaluarFila(LineasSentencia &lineas, int i, int retardo, std::string_view resto, int primera,
                int ultima) {
    const std::string_view serie = Recortado(Evaluador.CodigoSerieDestino);
    LimpiarEvaluador();
    std::string &linea = lineas[0];
    linea.assign("OBS ").append(serie).append("[").append(TextoPeriodo(i)).append("] = ");
    int posicion = static_cast<int>(linea.size());
    linea.append(serie).append("[").append(TextoPeriodo(i - retardo)).append("] ").append(resto);
    return EvaluarPrimeraFila(lineas, posicion, primera, ultima);
}

} // namespace

int SerieRecursiva(int posicion, Ventana *ventana, LineasSentencia &lineas, int primera, int ultima) {
    int retardo = 0;
    std::size_t detras = 0;
    if (!LeerRecursiva(lineas[0], posicion, retardo, detras)) return 0;
    const std::string resto = lineas[0].substr(detras);
    // With a sample that starts beyond row 0 the end falls short of the sample's by `primera` rows.
    const std::int64_t fin = std::min<std::int64_t>(std::int64_t{ultima} - primera + 1, MaxObservaciones);
    for (std::int64_t i = std::int64_t{std::max(primera, 0)} + retardo; i < fin; ++i) {
        const int fila = static_cast<int>(i);
        // This form doesn't create its series.
        const bool existe = BuscarSerie(Evaluador.CodigoSerieDestino) >= 0;
        if (existe && EvaluarFila(lineas, fila, retardo, resto, primera, ultima) != 1) {
            MostrarMensaje(ventana, "Error en el cálculo"_w);
            return 1;
        }
        if (!existe || GuardarObservacionMuestra(TextoPeriodo(fila), ventana) != 1) {
            MostrarMensaje(ventana, "Error en las asignaciones");
            return 1;
        }
    }
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
    std::string base(Recortado(Evaluador.CodigoSerieDestino));
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
    }
}
