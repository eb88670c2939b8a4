// The functions of series formulas: each is applied once, to whole columns, row by row over the sample.
#include "language/evaluador_interno.h"

#include "matrix/probabilidad.h"
#include "platform/aleatorios.h"
#include "platform/indice_palabras.h"
#include "store/archivo.h"

#include <cmath>

// A function of one argument works on the top column, a; one of two on a, the column below the top, and b, the top;
// the result replaces a.
using ValorDeFila = double (*)(double x);
using RutinaDeColumna = void (*)(ColumnaPila &a, const ColumnaPila &b, int desde, int hasta);

enum ClasesFuncion {
    FuncionDeFila,    // each row by itself
    FuncionPositiva,  // the same, and 0.0 at or below zero
    FuncionDeColumna, // each row by itself, of two columns
    FuncionSeguida,   // row after row, each from the one before
    FuncionTotal,     // one value for the sample; its argument sees series whatever SeriesPermitidas says
    FuncionDeProbabilidad, // Probabilidad of each row, of the kind that the fifth letter of the name tells
};

struct FuncionSerie {
    std::string_view nombre;
    int argumentos; // 0: none in the text, and one column of ones on the stack
    ClasesFuncion clase;
    ValorDeFila fila;
    RutinaDeColumna columna;
};

namespace {

constexpr int MaxArgumentos = 3;

// ---------------------------------------------------------------------------------------------------------------
// Columns

void PonerEnTodas(ColumnaPila &a, int desde, int hasta, double valor) {
    for (int i = desde; i <= hasta; ++i) a.valor[i] = valor;
}

void Potencia(ColumnaPila &a, const ColumnaPila &b, int desde, int hasta) {
    for (int i = desde; i <= hasta; ++i) a.valor[i] = std::pow(a.valor[i], b.valor[i]);
}

void Tendencia(ColumnaPila &a, const ColumnaPila &b, int desde, int hasta) {
    for (int i = desde + 1; i <= hasta; ++i) a.valor[i] = a.valor[i - 1] + b.valor[i];
}

void Progresion(ColumnaPila &a, const ColumnaPila &b, int desde, int hasta) {
    for (int i = desde + 1; i <= hasta; ++i) a.valor[i] = a.valor[i - 1] * b.valor[i];
}

// Sum of the rows that are present, and their number.
double SumaPresentes(const ColumnaPila &a, int desde, int hasta, int &cuantas) {
    double suma = 0.0;
    cuantas = 0;
    for (int i = desde; i <= hasta; ++i) {
        if (a.presente[i] == 0) continue;
        suma += a.valor[i];
        ++cuantas;
    }
    return suma;
}

void Suma(ColumnaPila &a, const ColumnaPila &, int desde, int hasta) {
    int cuantas = 0;
    PonerEnTodas(a, desde, hasta, SumaPresentes(a, desde, hasta, cuantas));
}

// With no row present this is zero over zero, and the value is what comes of it.
void Media(ColumnaPila &a, const ColumnaPila &, int desde, int hasta) {
    int cuantas = 0;
    const double suma = SumaPresentes(a, desde, hasta, cuantas);
    PonerEnTodas(a, desde, hasta, suma / cuantas);
}

// Divided by the number of rows, not by one less. Which rows enter the sum of squares depends on the flag of the last
// row alone: with it present all do, the missing ones with their 0.0; with it missing none does, and the result is 0.0.
// Without missing rows it is the usual deviation.
void Desviacion(ColumnaPila &a, const ColumnaPila &, int desde, int hasta) {
    if (hasta < desde) return;
    double resultado = 0.0;
    if (a.presente[hasta] != 0) {
        int cuantas = 0;
        const double media = SumaPresentes(a, desde, hasta, cuantas) / cuantas;
        double cuadrados = 0.0;
        for (int i = desde; i <= hasta; ++i) cuadrados += (a.valor[i] - media) * (a.valor[i] - media);
        resultado = std::sqrt(cuadrados / cuantas);
    }
    PonerEnTodas(a, desde, hasta, resultado);
}

// Where the search for the extremes starts when the first row is missing.
constexpr double ExtremoInicial = 9999999.0;

void Maximo(ColumnaPila &a, const ColumnaPila &, int desde, int hasta) {
    if (hasta < desde) return;
    double mayor = a.presente[desde] != 0 ? a.valor[desde] : -ExtremoInicial;
    for (int i = desde + 1; i <= hasta; ++i)
        if (a.presente[i] != 0 && a.valor[i] > mayor) mayor = a.valor[i];
    PonerEnTodas(a, desde, hasta, mayor);
}

void Minimo(ColumnaPila &a, const ColumnaPila &, int desde, int hasta) {
    if (hasta < desde) return;
    double menor = a.presente[desde] != 0 ? a.valor[desde] : ExtremoInicial;
    for (int i = desde + 1; i <= hasta; ++i)
        if (a.presente[i] != 0 && a.valor[i] < menor) menor = a.valor[i];
    PonerEnTodas(a, desde, hasta, menor);
}

// Each evaluation starts from the calendar, so that two within the same second give the same numbers.
void Aleatorios(ColumnaPila &a, int desde, int hasta, double (*generador)(std::int32_t *semilla)) {
    std::int32_t semilla = SegundosDeCalendario();
    for (int i = desde; i <= hasta; ++i) a.valor[i] = generador(&semilla);
}

void Uniformes(ColumnaPila &a, const ColumnaPila &, int desde, int hasta) {
    Aleatorios(a, desde, hasta, AleatorioUniforme);
}

void Normales(ColumnaPila &a, const ColumnaPila &, int desde, int hasta) {
    Aleatorios(a, desde, hasta, AleatorioNormal);
}

// ---------------------------------------------------------------------------------------------------------------
// The table

double Decimal(double x) {
    return std::log10(x);
}
double Neperiano(double x) {
    return std::log(x);
}
double Raiz(double x) {
    return std::sqrt(x);
}
double Exponencial(double x) {
    return std::exp(x);
}
double Absoluto(double x) {
    return std::fabs(x);
}
double Negacion(double x) {
    return x <= 0.0 ? 1.0 : 0.0;
}

// EXP stands among the functions of positive numbers on purpose: EXP(0) and EXP(-1) are 0.0.
constexpr FuncionSerie Funciones[] = {
    {"LOG", 1, FuncionPositiva, Decimal, nullptr},
    {"LN", 1, FuncionPositiva, Neperiano, nullptr},
    {"RCUAD", 1, FuncionPositiva, Raiz, nullptr},
    {"EXP", 1, FuncionPositiva, Exponencial, nullptr},
    {"ABS", 1, FuncionDeFila, Absoluto, nullptr},
    {"NOT", 1, FuncionDeFila, Negacion, nullptr},
    {"POT", 2, FuncionDeColumna, nullptr, Potencia},
    {"TEND", 2, FuncionSeguida, nullptr, Tendencia},
    {"PROG", 2, FuncionSeguida, nullptr, Progresion},
    {"SUMSER", 1, FuncionTotal, nullptr, Suma},
    {"MEDSER", 1, FuncionTotal, nullptr, Media},
    {"DESSER", 1, FuncionTotal, nullptr, Desviacion},
    {"MAXSER", 1, FuncionTotal, nullptr, Maximo},
    {"MINSER", 1, FuncionTotal, nullptr, Minimo},
    {"RND", 0, FuncionSeguida, nullptr, Uniformes},
    {"RNDN", 0, FuncionSeguida, nullptr, Normales},
    {"PROBT", 2, FuncionDeProbabilidad, nullptr, nullptr},
    {"PROBF", 3, FuncionDeProbabilidad, nullptr, nullptr},
    {"PROBN", 1, FuncionDeProbabilidad, nullptr, nullptr},
    {"PROBC", 2, FuncionDeProbabilidad, nullptr, nullptr},
};

// ---------------------------------------------------------------------------------------------------------------
// Arguments

// Index of the "," or ")" that ends the argument at `posicion`, or the text's length.
int FinArgumento(const std::string &texto, int posicion) {
    const int largo = static_cast<int>(texto.size());
    int abiertos = 0;
    for (int i = posicion; i < largo; ++i) {
        const char c = texto[static_cast<std::size_t>(i)];
        if (abiertos == 0 && (c == ',' || c == ')')) return i;
        if (c == '(') ++abiertos;
        if (c == ')') --abiertos;
    }
    return largo;
}

bool EvaluarArgumento(LineasSentencia &lineas, int &posicion) {
    static constexpr const char *Titulo = "Proceso Cancelado";
    if (UltimoNivel()) {
        MostrarMensaje(Evaluador.ventana, "Demasiados parentesis", Titulo);
        return false;
    }
    const int fin = FinArgumento(LineaDelNivel(lineas), posicion);
    if (EvaluarTrozo(lineas, posicion, fin) == 0) {
        MostrarMensaje(Evaluador.ventana, "Error en los calculos", Titulo);
        return false;
    }
    posicion = fin;
    return true;
}

// Without parentheses TEND is TEND(1,1), and the random numbers take a column to write on; nothing else has a default.
int ArgumentosPorDefecto(const FuncionSerie &f) {
    if (f.argumentos == 0) return ApilarNumero(1.0) ? 0 : 138;
    if (f.nombre != "TEND") return 31;
    if (!ApilarNumero(1.0)) return 38;
    return ApilarNumero(1.0) ? 0 : 39;
}

// Each argument is a formula of its own and leaves one column. 0, or the number of the failure.
int LeerArgumentos(const FuncionSerie &f, LineasSentencia &lineas, int &posicion) {
    const std::string &texto = LineaDelNivel(lineas);
    if (CaracterEn(texto, posicion) != '(') return ArgumentosPorDefecto(f);
    if (f.argumentos == 0) return 131;
    if (f.clase == FuncionTotal) Evaluador.SeriesPermitidas = 1; // for the rest of the statement
    for (int k = 1; k <= f.argumentos; ++k) {
        const bool ultimo = k == f.argumentos;
        ++posicion;
        if (!EvaluarArgumento(lineas, posicion)) return ultimo ? 78 : 34;
        if (CaracterEn(texto, posicion) != (ultimo ? ')' : ',')) return ultimo ? 37 : 36;
    }
    return 0;
}

// ---------------------------------------------------------------------------------------------------------------
// Application

bool AnotarFuncion(std::string_view nombre) {
    EstadoEvaluador &e = Evaluador;
    if (e.numFunciones >= MaxFuncionesPendientes) return false;
    auto &lugar = e.FuncionesPendientes[static_cast<std::size_t>(e.numFunciones++)];
    lugar[nombre.copy(lugar.data(), lugar.size() - 1)] = '\0';
    return true;
}

// A value at or below zero doesn't touch the flag: the 0.0 that it gives counts as present.
void AplicarPorFila(const FuncionSerie &f, ColumnaPila &a, int desde, int hasta) {
    const bool positiva = f.clase == FuncionPositiva;
    for (int i = desde; i <= hasta; ++i)
        a.valor[i] = positiva && a.valor[i] <= 0.0 ? 0.0 : f.fila(a.valor[i]);
}

// False when the stack lacks the columns that the function needs.
bool BucleDeColumna(const FuncionSerie &f) {
    const int columnas = f.argumentos == 2 ? 2 : 1;
    if (Evaluador.profundidad < columnas) return false;
    ColumnaPila &a = Columna(columnas - 1);
    const ColumnaPila &b = Columna(0);
    const FilasEvaluacion filas = FilasDeEvaluacion();
    if (f.fila != nullptr) {
        AplicarPorFila(f, a, filas.desde, filas.hasta);
    } else {
        f.columna(a, b, filas.desde, filas.hasta);
    }
    if (columnas == 2) JuntarPresencia(a, b);
    Evaluador.profundidad -= columnas - 1;
    return true;
}

// The probability of each row, with the flags of the first argument. Rows often have the arguments of the row before,
// as with scalars, and then its value too.
bool BucleDeProbabilidad(const FuncionSerie &f) {
    if (Evaluador.profundidad < f.argumentos) return false;
    const char tipo = static_cast<char>(f.nombre[4] - 'A' + 'a');
    ColumnaPila &a = Columna(f.argumentos - 1);
    const FilasEvaluacion filas = FilasDeEvaluacion();
    double anterior[MaxArgumentos] = {};
    double valor = 0.0;
    for (int i = filas.desde; i <= filas.hasta; ++i) {
        double arg[MaxArgumentos] = {};
        for (int k = 0; k < f.argumentos; ++k) arg[k] = Columna(f.argumentos - 1 - k).valor[i];
        if (i == filas.desde || !std::equal(arg, arg + MaxArgumentos, anterior)) {
            valor = 0.0; // stays when Probabilidad declines
            Probabilidad(tipo, arg[0], arg[1], arg[2], valor);
            std::copy_n(arg, MaxArgumentos, anterior);
        }
        a.valor[i] = valor;
    }
    Evaluador.profundidad -= f.argumentos - 1;
    return true;
}

} // namespace

const FuncionSerie *BuscarFuncionSerie(std::string_view nombre) {
    static constexpr auto Indice = IndexarPalabras(Funciones, [](const FuncionSerie &f) { return f.nombre; });
    const int lugar = BuscarPalabra(Indice, nombre);
    return lugar >= 0 ? &Funciones[lugar] : nullptr;
}

bool MezclaFilas(const FuncionSerie &funcion) {
    return funcion.clase == FuncionTotal || funcion.clase == FuncionSeguida;
}

int AplicarFuncionSerie(const FuncionSerie &funcion, LineasSentencia &lineas, int &posicion) {
    if (!AnotarFuncion(funcion.nombre)) return 303;
    const int fallo = LeerArgumentos(funcion, lineas, posicion);
    if (fallo != 0) return fallo;
    --Evaluador.numFunciones;
    if (funcion.clase == FuncionDeProbabilidad) return BucleDeProbabilidad(funcion) ? 0 : 32;
    return BucleDeColumna(funcion) ? 0 : 33;
}
