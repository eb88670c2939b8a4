// What is stored by a regression is the same to the last bit as by the chain of formulas that defines it.
#include "apoyo/cadena_formulas.h"
#include "apoyo/plataforma_prueba.h"
#include "estimation/ecuacion.h"
#include "estimation/pasos.h"
#include "language/lote_sentencias.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <bit>
#include <cmath>
#include <gtest/gtest.h>
#include <random>

namespace {

struct Objeto {
    std::string nombre;
    int filas, columnas;
    std::vector<double> valores;
    std::vector<int> presencia; // of a series
};

using Almacen = std::vector<Objeto>;

Almacen Fotografiar() {
    Almacen r;
    for (int m = 0; m < TablaMatrices.numero; ++m) {
        Objeto o{TablaMatrices.registro[m].Codigo, 0, 0, {}, {}};
        o.valores = MatrizDe(o.nombre, o.filas, o.columnas);
        r.push_back(o);
    }
    for (int e = 0; e < TablaEscalares.numero; ++e)
        r.push_back({TablaEscalares.registro[e].Codigo, 0, 0, {TablaEscalares.registro[e].Valor}, {}});
    for (int s = 0; s < ArchivoTrabajo.NumSeries; ++s) {
        Objeto o{ArchivoTrabajo.Codigos[s], 0, 0, {}, {}};
        for (int i = 0; i < MaxObservaciones; ++i) {
            o.valores.push_back(ArchivoTrabajo.ValoresObs[i][s]);
            o.presencia.push_back(ArchivoTrabajo.PresenciaObs[i][s]);
        }
        r.push_back(o);
    }
    return r;
}

bool MismosBits(double a, double b) {
    return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b) ||
           (std::isnan(a) && std::isnan(b));
}

void Comparar(const Almacen &directo, const Almacen &cadena) {
    ASSERT_EQ(directo.size(), cadena.size());
    for (std::size_t i = 0; i < directo.size(); ++i) {
        const Objeto &a = directo[i], &b = cadena[i];
        SCOPED_TRACE(a.nombre);
        ASSERT_EQ(a.nombre, b.nombre);
        EXPECT_EQ(a.filas, b.filas);
        EXPECT_EQ(a.columnas, b.columnas);
        ASSERT_EQ(a.valores.size(), b.valores.size());
        EXPECT_EQ(a.presencia, b.presencia);
        for (std::size_t j = 0; j < a.valores.size(); ++j)
            ASSERT_TRUE(MismosBits(a.valores[j], b.valores[j]))
                << j << ": " << a.valores[j] << " " << b.valores[j];
    }
}

// How the columns of a problem are drawn.
enum Clases { Normales, Negativas, Ficticias, ConCeros, MalEscaladas, Mezcla, Repetidas, NumClases };

double Sorteo(std::mt19937 &azar, int clase, int columna) {
    std::normal_distribution<double> normal;
    const double x = normal(azar);
    switch (clase) {
    case Negativas: return -std::fabs(x) * 10.0;
    case Ficticias: return x > 0.3 ? 1.0 : 0.0;
    case ConCeros: return x > 0.0 ? x : 0.0;
    case MalEscaladas: return x * std::pow(10.0, columna % 2 == 0 ? 5 : -1);
    case Mezcla: return Sorteo(azar, columna % 4, columna);
    default: return x;
    }
}

struct Problema {
    int n, k, clase;
    int primera; // of the sample in the work file
    unsigned semilla;
    OpcionesCadena opciones = {};
};

void Montar(const Problema &p, std::vector<std::string> &columnas) {
    EmpezarConDatos(TipoSinPeriodicidad, "");
    std::mt19937 azar(p.semilla);
    std::vector<double> y(static_cast<std::size_t>(p.n)), x(y.size());
    columnas = {"1"};
    for (double &v : y) v = Sorteo(azar, p.clase == Ficticias ? Normales : p.clase, 1) + 3.0;
    PonerSerie("Y", y, p.primera);
    for (int j = 1; j < p.k; ++j) {
        if (p.clase != Repetidas || j < 2)
            for (double &v : x) v = Sorteo(azar, p.clase, j);
        PonerSerie(Formatear("X%d", j), x, p.primera);
        columnas.push_back(Formatear("X%d", j));
    }
    Muestra.InicioRegresion = p.primera;
    Muestra.FinRegresion = p.primera + p.n - 1;
    LimpiarEvaluador();
    Evaluador.ventana = nullptr;
}

void CompararProblema(const Problema &p) {
    std::vector<std::string> columnas;
    Montar(p, columnas);
    LineasSentencia lineas;
    const OpcionesCadena &o = p.opciones;
    lineas[0] = o.ponderada         ? "(X1 - 0.5)"
                : o.covarianza == 1 ? ""
                : o.covarianza == 2 ? "(CH)"
                                    : Formatear("(CA %d)", o.retardos);
    lineas[0] += " Y";
    for (const std::string &c : columnas) lineas[0] += " " + c;
    Estimacion e;
    e.lineas = &lineas;
    e.codigo = o.ponderada ? OrdenMCP : OrdenMC;
    const bool bien = LeerEcuacion(e, 0) == 1 && EjecutarPasos(e) == 1;
    SoltarTodasMatrices();
    const Almacen directo = Fotografiar();
    std::vector<std::string> cajas = TextosDeCajas();

    Montar(p, columnas);
    if (o.ponderada) {
        Cadena c{&lineas, nullptr, Muestra.InicioRegresion, Muestra.FinRegresion};
        ASSERT_EQ(SerieDeFormula(c, "_VORD", "X1 - 0.5", ""), FormulaGuardada);
    }
    EXPECT_EQ(EstimarPorFormulas("Y", columnas, p.k - 1, o), bien);
    SoltarTodasMatrices();
    Comparar(directo, Fotografiar());
    // The cause is the same; the regression adds the box of its step, but for those of a consistent covariance.
    if (!bien && !e.seQuedan) cajas.pop_back();
    EXPECT_EQ(cajas, TextosDeCajas());
}

} // namespace

TEST(CadenaDeFormulas, LosMismosBits) {
    ASSERT_TRUE(AbrirPilaColumnas());
    std::mt19937 azar(20240501);
    std::vector<Problema> problemas = {
        {3, 1, Normales, 0, 1},    {3, 2, Ficticias, 5, 2},   {3, 3, Normales, 0, 3},
        {200, 12, Normales, 0, 4}, {5, 7, Normales, 0, 5},    {200, 12, Mezcla, 17, 6},
        {60, 3, Repetidas, 0, 7},  {4000, 3, Normales, 0, 8}, {30, 17, Normales, 0, 9},
        {30, 18, Normales, 0, 10},
    };
    for (int i = 0; i < 40; ++i) {
        const int k = 1 + static_cast<int>(azar() % 12);
        problemas.push_back({k + 2 + static_cast<int>(azar() % 180), k, i % NumClases,
                             static_cast<int>(azar() % 40), static_cast<unsigned>(azar())});
    }
    // With the options, on problems of every class; more lags than observations too.
    const std::size_t simples = problemas.size();
    const OpcionesCadena opciones[] = {{2}, {3, 0}, {3, 1}, {3, 4}, {3, 300}, {1, 1, true}};
    for (std::size_t i = 0; i < simples; ++i) {
        Problema p = problemas[i];
        p.opciones = opciones[i % std::size(opciones)];
        if (p.n > 300 || (p.n > 60 && p.opciones.retardos > 4)) p.opciones = {2};
        if (p.k == 1) p.opciones.ponderada = false; // the weight is made from X1
        problemas.push_back(p);
    }
    problemas.push_back({4, 1, Normales, 3, 11, {2}});
    problemas.push_back({5, 2, Normales, 3, 12, {3, 40}});
    problemas.push_back({20, 3, Mezcla, 3, 13, {3, 20}});
    problemas.push_back({20, 3, Mezcla, 3, 14, {3, 19}});
    for (const Problema &p : problemas) {
        SCOPED_TRACE(Formatear("n %d k %d clase %d primera %d semilla %u covarianza %d %d ponderada %d", p.n,
                               p.k, p.clase, p.primera, p.semilla, p.opciones.covarianza, p.opciones.retardos,
                               p.opciones.ponderada));
        CompararProblema(p);
    }
    CerrarPilaColumnas();
}
