// The stack of columns, and the operands that are pushed on it.
//
// An operand is a column of all the rows of the work file: a number or a scalar is the same value in each. But
// nothing reads a row outside PrimeraEval to UltimaCalculada: operators, functions, period access and the stores keep
// inside, and a lag, which follows directly behind the push of its series, reads the rows that it shifts in from the
// store. So a push fills these rows only, and the columns are never cleared.
#include "language/evaluador_interno.h"

#include "platform/numeros.h"
#include "store/archivo.h"

#include <new>

bool AbrirPilaColumnas() {
    if (Evaluador.PilaColumnas == nullptr)
        Evaluador.PilaColumnas = new (std::nothrow) ColumnaPila[MaxColumnasPila];
    return Evaluador.PilaColumnas != nullptr;
}

void CerrarPilaColumnas() {
    delete[] Evaluador.PilaColumnas;
    Evaluador.PilaColumnas = nullptr;
    Evaluador.profundidad = 0;
}

ColumnaPila &ColumnaSuperior() {
    return Columna(0);
}

double ValorSuperior() {
    const std::int32_t fila = Evaluador.PrimeraEval;
    if (Evaluador.profundidad < 1 || fila < 0 || fila >= MaxObservaciones) return 0.0;
    return Columna(0).valor[fila];
}

void PonerValorUnico(double valor) {
    Evaluador.profundidad = 1;
    Columna(0).valor[Evaluador.PrimeraEval] = valor;
}

namespace {

bool ApilarColumna() {
    if (Evaluador.PilaColumnas == nullptr || Evaluador.profundidad >= MaxColumnasPila) return false;
    ++Evaluador.profundidad;
    return true;
}

// A lag beyond the table empties the column, however far it goes.
int AcotarRetardo(double retardo) {
    if (retardo >= MaxObservaciones) return MaxObservaciones;
    if (retardo <= -MaxObservaciones) return -MaxObservaciones;
    return retardo == retardo ? static_cast<int>(retardo) : 0; // what is no number shifts nothing
}

// The values of the series, shifted. The rows that nothing is shifted into get 0.0; a lead empties one row more than
// it needs to. The flags stay: a missing value stays missing at its own row, with the value that was shifted there,
// and the row that received its 0.0 shows it as a present value.
double ValorDesplazado(int serie, int retardo, int fila) {
    const int primeraLlena = retardo < 0 ? -retardo : 0;
    const int primeraVacia = retardo > 0 ? MaxObservaciones - 1 - retardo : MaxObservaciones;
    return fila < primeraLlena || fila >= primeraVacia ? 0.0
                                                       : ArchivoTrabajo.ValoresObs[fila + retardo][serie];
}

void DesplazarSerie(ColumnaPila &c, int serie, int retardo) {
    const FilasEvaluacion f = FilasDeCarga();
    for (int i = f.desde; i <= f.hasta; ++i) c.valor[i] = ValorDesplazado(serie, retardo, i);
}

// First row of the sample whose period has this number, or -1. A text of a period that equals the text of the formula
// has the same number, so comparing the numbers alone finds the first row where either is equal.
int FilaDePeriodo(double periodo) {
    const FilasEvaluacion f = FilasDePeriodos();
    return FilaDeValorPeriodo(periodo, f.desde, f.hasta);
}

} // namespace

bool ApilarNumero(double valor) {
    if (!ApilarColumna()) return false;
    ColumnaPila &c = Columna(0);
    const FilasEvaluacion f = FilasDeCarga();
    for (int i = f.desde; i <= f.hasta; ++i) c.valor[i] = valor;
    for (int i = f.desde; i <= f.hasta; ++i) c.presente[i] = 1;
    return true;
}

bool ApilarSerie(int serie) {
    if (!ApilarColumna()) return false;
    ColumnaPila &c = Columna(0);
    const FilasEvaluacion f = FilasDeCarga();
    for (int i = f.desde; i <= f.hasta; ++i) {
        c.valor[i] = ArchivoTrabajo.ValoresObs[i][serie];
        c.presente[i] = ArchivoTrabajo.PresenciaObs[i][serie] != 0;
    }
    return true;
}

bool AplicarRetardo(int serie, const std::string &texto, int &posicion) {
    ++posicion;
    std::string_view token = SiguienteToken(texto, posicion);
    int signo = 1;
    if (token == "-") {
        signo = -1;
        token = SiguienteToken(texto, posicion);
    }
    int retardo = LeerEntero(token);
    if (retardo >= 1) {
        retardo = signo * AcotarRetardo(retardo);
    } else {
        // A scalar brings its own sign, and the one in the text is ignored.
        const int e = token.empty() ? -1 : BuscarEscalar(token);
        if (e < 0) return false;
        retardo = AcotarRetardo(TablaEscalares.registro[e].Valor);
    }
    if (retardo != 0) DesplazarSerie(Columna(0), serie, retardo);
    if (CaracterEn(texto, posicion) != ')') return false;
    ++posicion;
    Evaluador.ValorRetardo = retardo;
    Evaluador.MarcaRetardo = 1;
    return true;
}

int LeerPeriodo(const std::string &texto, int &posicion) {
    const std::string_view token = SiguienteToken(texto, posicion);
    const int fila = FilaDePeriodo(LeerDecimal(token));
    if (fila >= 0) return fila;
    const int e = token.empty() ? -1 : BuscarEscalar(token);
    return e >= 0 ? FilaDePeriodo(TablaEscalares.registro[e].Valor) : -1;
}

bool AplicarPeriodo(int serie, int retardo, const std::string &texto, int &posicion) {
    ++posicion;
    const int fila = LeerPeriodo(texto, posicion);
    if (fila < 0) return false;
    // The flags stay as they are: a row where the series is missing stays missing.
    ColumnaPila &c = Columna(0);
    const double valor = ValorDesplazado(serie, retardo, fila); // the row may be one that isn't computed
    const FilasEvaluacion f = FilasDeEvaluacion();
    for (int i = f.desde; i <= f.hasta; ++i) c.valor[i] = valor;
    if (CaracterEn(texto, posicion) != ']') return false;
    ++posicion;
    return true;
}

int ApilarElementoMatriz(int matriz, const std::string &texto, int &posicion) {
    SaltarBlancos(texto, posicion);
    if (CaracterEn(texto, posicion) != '[') return 881;
    ++posicion;
    const int i = LeerEntero(SiguienteToken(texto, posicion));
    if (i < 1) return 887;
    if (CaracterEn(texto, posicion) != ',') return 882;
    ++posicion;
    const int j = LeerEntero(SiguienteToken(texto, posicion));
    if (j < 1) return 883;
    const RegistroMatriz &m = TablaMatrices.registro[matriz];
    if (i > m.Filas || j > m.Columnas) return 884;
    // Elements stand by rows, so this is row j, column i, and not row i, column j: a square matrix reads transposed.
    // On one with more columns than rows the place can lie behind the elements.
    const int lugar = i - 1 + (j - 1) * m.Columnas;
    // So can every place of a damaged record, whose block can't hold what it says.
    const int elementos = std::min(m.Filas * m.Columnas, TablaMatrices.capacidad[matriz]);
    if (lugar >= elementos || !FijarMatriz(matriz)) return 884;
    const double valor = m.Datos[lugar];
    SoltarMatriz(matriz);
    if (!ApilarNumero(valor)) return 885;
    if (CaracterEn(texto, posicion) != ']') return 886;
    ++posicion;
    return 1;
}
