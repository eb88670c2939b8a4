// A formula of which one row is taken, computed on that row alone: the same value to the last bit, the same boxes, the same
// place where the text stops, as when all rows are computed.
#include "language/formulas.h"
#include "language/lote_sentencias.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <cstring>
#include <random>

namespace {

void Empezar() {
    EmpezarConDatos(TipoAnual, "1990#2009");
    std::mt19937 azar(21);
    std::uniform_real_distribution<double> valor(-3.0, 9.0);
    for (const char *codigo : {"X", "Y", "TEND1"}) {
        std::vector<double> v(20);
        for (double &x : v) x = azar() % 7 == 0 ? Falta : valor(azar);
        PonerSerie(codigo, v);
    }
    PonerEscalar(nullptr, "A", 2.0);
    PonerEscalar(nullptr, "P", 1994.0);
    const double m[] = {1, 2, 3, 4};
    GuardarMatriz("M", m, 2, 2);
}

// What an evaluation leaves for the outside.
struct Resultado {
    int bien = 0, posicion = 0;
    double valor = 0.0;
    std::vector<CajaVista> cajas;
    std::int32_t primera = 0, ultima = 0, lag = 0;
};

using Evaluacion = int (*)(LineasSentencia &, int &, int, int);

Resultado Evaluar(Evaluacion rutina, const std::string &formula, int primera, int ultima) {
    Prueba.cajas.clear();
    Prueba.segundos = 1234;
    LimpiarEvaluador();
    LineasSentencia lineas;
    lineas[0] = formula;
    Resultado r;
    r.bien = rutina(lineas, r.posicion, primera, ultima);
    r.valor = r.bien == 1 ? ValorSuperior() : 0.0;
    r.cajas = Prueba.cajas;
    r.primera = Evaluador.PrimeraEval;
    r.ultima = Evaluador.UltimaEval;
    r.lag = Evaluador.MarcaRetardo;
    SoltarTodasMatrices();
    return r;
}

void Comparar(const std::string &formula, int primera, int ultima) {
    SCOPED_TRACE(formula);
    const Resultado todas = Evaluar(EvaluarFormula, formula, primera, ultima);
    const Resultado una = Evaluar(EvaluarPrimeraFila, formula, primera, ultima);
    EXPECT_EQ(una.bien, todas.bien);
    EXPECT_EQ(una.posicion, todas.posicion);
    EXPECT_EQ(std::memcmp(&una.valor, &todas.valor, sizeof una.valor), 0) << una.valor << " " << todas.valor;
    EXPECT_EQ(una.cajas, todas.cajas);
    EXPECT_EQ(una.primera, todas.primera);
    EXPECT_EQ(una.ultima, todas.ultima);
    EXPECT_EQ(una.lag, todas.lag);
}

// Every form by itself, so that a stranger can add one by a line.
constexpr const char *Formas[] = {
    "X",           "X(-1)",     "X(2)",       "X[1994]",       "X(-1)[1995]",  "X[P]",
    "X[2009](-1)", "SUMSER(X)", "MEDSER(X)",  "DESSER(X) + Y", "MAXSER(Y)",    "MINSER(X) * 2",
    "TEND",        "TEND(X,Y)", "PROG(X,2)",  "RND",           "RNDN + X",     "TEND1 + X",
    "POT(X,2)",    "LN(X)",     "EXP(X) / Y", "NOT(X)",        "X AND Y",      "X OR Y > 2",
    "M[1,2]",      "SUMA(M)",   "NOBS",       "ESCAL(M)",      "-X",           "X - (Y * A)",
    "X[1980]",     "X)(",       "()",         "PROBT(X,A)",    "PROBF(X,A,Y)", "(SUMSER(X))",
    "X(A)",        "X ** 2",    "X = Y",      "NADIE",         "X Y",          "LN(SUMSER(X))",
};

const char *const Piezas[] = {"X",       "Y",           "A",    "3",    "0.5",     "(",      ")",     "+",
                              "-",       "*",           "/",    ":",    ">",       "=",      "?",     "|",
                              " AND ",   " OR ",        "LN(",  "EXP(", "POT(",    ",",      "X(-1)", "Y(2)",
                              "X[1994]", "Y(-2)[2000]", "NOT(", "ABS(", "M[2,1]",  "NOBS",   "P",     "[P]",
                              " ",       "SUMSER(",     "TEND", "RND",  "SUMA(M)", "PROBN(", "RCUAD("};

} // namespace

TEST(UnaFila, CadaForma) {
    Empezar();
    AbrirPilaColumnas();
    for (const char *formula : Formas)
        for (const int primera : {0, 4, 19})
            for (const int ultima : {primera - 1, primera, 19}) Comparar(formula, primera, ultima);
    CerrarPilaColumnas();
}

TEST(UnaFila, DiezMilFormulasAlAzar) {
    Empezar();
    AbrirPilaColumnas();
    std::mt19937 azar(99);
    int bien = 0;
    for (int vez = 0; vez < 10000; ++vez) {
        std::string formula;
        for (std::size_t n = 1 + azar() % 9; n > 0; --n) formula += Piezas[azar() % std::size(Piezas)];
        // Half of them with all that is open closed, so that many are formulas.
        if (vez % 2 == 0)
            for (auto abiertos = std::count(formula.begin(), formula.end(), '(') -
                                 std::count(formula.begin(), formula.end(), ')');
                 abiertos > 0; --abiertos)
                formula += ')';
        const int primera = static_cast<int>(azar() % 20), ultima = primera + static_cast<int>(azar() % 20);
        Comparar(formula, primera, std::min(ultima, 19));
        bien += Evaluar(EvaluarFormula, formula, primera, 19).bien;
    }
    EXPECT_GT(bien, 700);
    CerrarPilaColumnas();
}

// The recursive form reads the text of its first row and makes the same steps for the others. What stands behind a comma is
// ignored, but a total there makes it read every row: values, boxes and flags are the same.
TEST(UnaFila, LaRecursivaLeaOnoCadaFila) {
    struct Caso {
        std::vector<double> valores;
        std::vector<CajaVista> cajas;
    };
    const auto correr = [](const std::string &sentencia, bool leyendo, int primera, int ultima) {
        Empezar();
        Prueba.segundos = 1234;
        const std::string cola = " , SUMSER";
        ProcesarLote(nullptr, nullptr, 246, leyendo ? sentencia + cola : sentencia, primera, ultima);
        Caso c;
        for (int i = 0; i < 20; ++i) {
            c.valores.push_back(ArchivoTrabajo.ValoresObs[i][0]);
            c.valores.push_back(ArchivoTrabajo.PresenciaObs[i][0]);
        }
        for (CajaVista &caja : Prueba.cajas)
            if (const std::size_t i = caja.texto.find(cola); i != std::string::npos)
                caja.texto.erase(i, cola.size());
        c.cajas = Prueba.cajas;
        return c;
    };
    constexpr const char *Restos[] = {
        "",         "* 0.5",   "* 0.5 + Y",   "+ (Y * A)", "+ X",    "* Y[1994]",  "/ A - Y(-1)",
        "- M[1,2]", "+ LN(Y)", "* POT(Y,2)",  "> 3",       "AND Y",  "OR (Y > 2)", "+ NADIE",
        "+ RNDN",   "+ TEND",  "+ NOBS",      "+ SUMA(M)", "Y",      "+ X[1992]",  "* -Y",
        "- - Y",    ")(",      "+ Y[1980]",   "(-1)",      "[1994]", "+ ()",       "AND (Y OR A)",
        ": 2",      "+",       "* (Y > (A))", "+ X2",
    };
    for (const char *resto : Restos)
        for (const char *retardo : {"(-1)", "(-2)", "(0)", "(-30)"})
            for (const int primera : {0, 3, 19})
                for (const int ultima : {primera, 19, 100000}) {
                    const std::string sentencia = std::string("SER X = X") + retardo + " " + resto;
                    SCOPED_TRACE(sentencia + " " + std::to_string(primera) + " " + std::to_string(ultima));
                    const Caso leida = correr(sentencia, true, primera, ultima);
                    const Caso conPasos = correr(sentencia, false, primera, ultima);
                    ASSERT_EQ(0, std::memcmp(leida.valores.data(), conPasos.valores.data(),
                                             leida.valores.size() * sizeof(double)));
                    ASSERT_EQ(leida.cajas, conPasos.cajas);
                }
}

// Behind the one row nothing is computed: what stood on the stack there still stands.
TEST(UnaFila, LasDemasFilasNoSeTocan) {
    Empezar();
    AbrirPilaColumnas();
    LimpiarEvaluador();
    LineasSentencia lineas;
    lineas[0] = "X + Y";
    int posicion = 0;
    Evaluador.PilaColumnas[0].valor[7] = 77.0;
    ASSERT_EQ(EvaluarPrimeraFila(lineas, posicion, 3, 19), 1);
    EXPECT_EQ(Evaluador.PilaColumnas[0].valor[7], 77.0);
    LimpiarEvaluador();
    lineas[0] = "X + SUMSER(Y)";
    posicion = 0;
    ASSERT_EQ(EvaluarPrimeraFila(lineas, posicion, 3, 19), 1);
    EXPECT_NE(Evaluador.PilaColumnas[0].valor[7], 77.0);
    CerrarPilaColumnas();
}
