// What the program costs, as ratios in one run: regressions against Eigen and against their formulas one by one, series
// formulas against a loop by hand, statements split into text, columns and store, and the batch runner as a process.
#include "analysis/prediccion.h"
#include "apoyo/cadena_formulas.h"
#include "apoyo/plataforma_prueba.h"
#include "data/fichero_trabajo.h"
#include "data/observaciones.h"
#include "hypothesis/dialogo_goldfeld.h"
#include "language/asignaciones.h"
#include "language/lote_sentencias.h"
#include "language/traza.h"
#include "shell/registro.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <Eigen/Dense>
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <malloc.h>
#include <map>
#include <random>
#include <spawn.h>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

constexpr int NumColumnas = 10;

// Y and X1 to X10 over `n` observations without periodicity.
void PrepararSeries(int n) {
    EmpezarConDatos(TipoSinPeriodicidad, "");
    std::mt19937 azar(7);
    std::normal_distribution<double> normal(5.0, 2.0);
    std::vector<double> y(static_cast<std::size_t>(n));
    for (int j = 1; j <= NumColumnas; ++j) {
        std::vector<double> x(y.size());
        for (std::size_t i = 0; i < x.size(); ++i) {
            x[i] = normal(azar);
            y[i] += x[i] / j;
        }
        PonerSerie("X" + std::to_string(j), x);
    }
    for (double &v : y) v += normal(azar);
    PonerSerie("Y", y);
    ActualizarMuestra();
    Lote.VerRegresion = 0;
}

// A batch that stopped would be measured as a fast one.
void ExigirFin(const std::string &sentencias) {
    if (Lote.detenido == 0) return;
    std::fprintf(stderr, "%s: %s\n", sentencias.c_str(),
                 Prueba.cajas.empty() ? "" : Prueba.cajas.back().texto.c_str());
    std::exit(1);
}

void Ejecutar(const std::string &sentencia) {
    ProcesarLote(nullptr, nullptr, 246, sentencia, Muestra.InicioMuestra, Muestra.FinMuestra);
    ExigirFin(sentencia);
}

// ----- Regression

void RegresionTabira(benchmark::State &estado) {
    PrepararSeries(MaxObservaciones);
    for (auto _ : estado) Ejecutar("MC Y 1 X1 X2 X3 X4 X5 X6 X7 X8 X9");
}

void RegresionHeterocedasticidad(benchmark::State &estado) {
    PrepararSeries(MaxObservaciones);
    for (auto _ : estado) Ejecutar("MC (CH) Y 1 X1 X2 X3 X4 X5 X6 X7 X8 X9");
}

void RegresionAutocorrelacion(benchmark::State &estado) {
    PrepararSeries(MaxObservaciones);
    for (auto _ : estado) Ejecutar("MC (CA 4) Y 1 X1 X2 X3 X4 X5 X6 X7 X8 X9");
}

// Its results are recorded and thrown away, as no window takes them.
void White(benchmark::State &estado) {
    PrepararSeries(MaxObservaciones);
    Ejecutar("MC Y 1 X1 X2 X3");
    for (auto _ : estado) {
        Ejecutar("CWH PC");
        Prueba.resultados.clear();
    }
}

void RegresionEigen(benchmark::State &estado) {
    PrepararSeries(MaxObservaciones);
    Eigen::MatrixXd x(MaxObservaciones, NumColumnas);
    Eigen::VectorXd y(MaxObservaciones);
    for (int i = 0; i < MaxObservaciones; ++i) {
        x(i, 0) = 1.0;
        for (int j = 1; j < NumColumnas; ++j) x(i, j) = ArchivoTrabajo.ValoresObs[i][j - 1];
        y(i) = ArchivoTrabajo.ValoresObs[i][NumColumnas];
    }
    for (auto _ : estado) {
        const Eigen::MatrixXd momentos = x.transpose() * x;
        const Eigen::VectorXd beta = momentos.ldlt().solve(x.transpose() * y);
        const Eigen::VectorXd residuos = y - x * beta;
        benchmark::DoNotOptimize(residuos.squaredNorm());
    }
}

void RegresionPorFormulas(benchmark::State &estado) {
    PrepararSeries(MaxObservaciones);
    std::vector<std::string> columnas = {"1"};
    for (int j = 1; j < NumColumnas; ++j) columnas.push_back("X" + std::to_string(j));
    Muestra.InicioRegresion = Muestra.InicioMuestra;
    Muestra.FinRegresion = Muestra.FinMuestra;
    for (auto _ : estado) {
        AbrirPilaColumnas();
        if (!EstimarPorFormulas("Y", columnas, NumColumnas - 1)) std::exit(1);
        CerrarPilaColumnas();
    }
}

void PrediccionTabira(benchmark::State &estado) {
    PrepararSeries(MaxObservaciones);
    Ejecutar("MC Y 1 X1 X2 X3 X4 X5 X6 X7 X8 X9");
    for (auto _ : estado) {
        if (AceptarPrediccion(nullptr, {}) == 0) std::exit(1);
        Prueba.resultados.clear();
    }
}

// ----- Series formulas

void SerieTabira(benchmark::State &estado) {
    PrepararSeries(MaxObservaciones);
    Ejecutar("SER Z = X1");
    for (auto _ : estado) Ejecutar("SER Z = X1 + X2 - X3 + X4 - X5 + X6 - X7 + X8 - X9 + X10");
}

void SerieAMano(benchmark::State &estado) {
    PrepararSeries(MaxObservaciones);
    Ejecutar("SER Z = X1");
    const int z = BuscarSerie("Z");
    for (auto _ : estado) {
        for (int i = 0; i < MaxObservaciones; ++i) {
            const double *x = ArchivoTrabajo.ValoresObs[i];
            ArchivoTrabajo.ValoresObs[i][z] =
                x[0] + x[1] - x[2] + x[3] - x[4] + x[5] - x[6] + x[7] - x[8] + x[9];
        }
        benchmark::ClobberMemory();
    }
}

// ----- Statements of a loop over 100 observations

constexpr int ObservacionesBucle = 100;
constexpr int VueltasBucle = 1000;
constexpr int SentenciasVuelta = 3;

// One turn: ESC, SER and OBS.
const char *const LineasBucle = "ESC A = A + 1\nSER Z = X1 + A * X2\nOBS Z[50] = A / 2\n";

void PrepararBucle() {
    PrepararSeries(ObservacionesBucle);
    Ejecutar("ESC A = 0");
    Ejecutar("SER Z = X1");
}

void CorrerBucle(const std::string &lineas, int vueltas = VueltasBucle) {
    Prueba.textoControl = "REPITE J DESDE 1 HASTA " + std::to_string(vueltas) + "\n" + lineas + "FINREPITE\n";
    Prueba.desde = 0;
    Prueba.hasta = static_cast<int>(Prueba.textoControl.size());
    ProcesarLote(nullptr, nullptr, 0, {}, Muestra.InicioMuestra, Muestra.FinMuestra);
    ExigirFin(lineas);
}

void Bucle(benchmark::State &estado) {
    PrepararBucle();
    for (auto _ : estado) CorrerBucle(LineasBucle);
}

constexpr int VueltasBucleLargo = 100000;

void BucleLargo(benchmark::State &estado) {
    PrepararBucle();
    for (auto _ : estado) CorrerBucle(LineasBucle, VueltasBucleLargo);
}

// A loop that has nothing of the program: what the long one is compared with from one machine to the next.
void Calibracion(benchmark::State &estado) {
    for (auto _ : estado) {
        double x = 0.5;
        for (int i = 0; i < 100000000; ++i) x = x * 0.999999 + 1e-6;
        benchmark::DoNotOptimize(x);
    }
}

// One statement alone, over one row: all of it is text.
void SoloTexto(benchmark::State &estado) {
    PrepararSeries(ObservacionesBucle);
    Muestra.InicioMuestra = Muestra.FinMuestra = 0;
    for (auto _ : estado) CorrerBucle("SER Z = X1 + X2 * 2\n");
}

// ----- Recursive series, and an experiment that is replicated

void SerieRecursivaTabira(benchmark::State &estado) {
    PrepararSeries(MaxObservaciones);
    Ejecutar("SER Z = X1");
    for (auto _ : estado) Ejecutar("SER Z = Z(-1) * 0.5 + X1");
}

void SerieSinRecursion(benchmark::State &estado) {
    PrepararSeries(MaxObservaciones);
    Ejecutar("SER Z = X1");
    for (auto _ : estado) Ejecutar("SER Z = X2 * 0.5 + X1");
}

constexpr int NumReplicas = 500;

void Replicas(benchmark::State &estado) {
    PrepararSeries(ObservacionesBucle);
    Ejecutar("MUEST 1 100");
    Ejecutar("SER PEND = 0");
    for (auto _ : estado)
        CorrerBucle("SER E = RNDN\nSER V = 1 + 2 * X1 + E\nMC V 1 X1\nOBS PEND[1] = _BETA[2,1]\n",
                    NumReplicas);
}

void RegresionesSueltas(benchmark::State &estado) {
    PrepararSeries(ObservacionesBucle);
    Ejecutar("MUEST 1 100");
    for (auto _ : estado) CorrerBucle("MC Y 1 X1\n", NumReplicas);
}

// ----- The parts of a statement

// The three formulas of a turn, evaluated over the given rows.
void FormulasDeVuelta(benchmark::State &estado, int ultima) {
    PrepararBucle();
    AbrirPilaColumnas();
    LineasSentencia lineas;
    const char *const formulas[] = {"A + 1", "X1 +( A * X2)", "A / 2"};
    for (auto _ : estado) {
        for (const char *f : formulas) {
            LimpiarEvaluador();
            lineas[0].assign(f);
            int posicion = 0;
            EvaluarFormula(lineas, posicion, 0, ultima);
        }
    }
    CerrarPilaColumnas();
}
void FormulasEnUnaFila(benchmark::State &estado) {
    FormulasDeVuelta(estado, 0);
}
void FormulasEnLasFilas(benchmark::State &estado) {
    FormulasDeVuelta(estado, ObservacionesBucle - 1);
}

// The three store operations of a turn, on a column at hand.
void AlmacenDeVuelta(benchmark::State &estado) {
    PrepararBucle();
    AbrirPilaColumnas();
    std::snprintf(Evaluador.CodigoEscalarDestino, sizeof Evaluador.CodigoEscalarDestino, "%-12s", "A");
    std::snprintf(Evaluador.CodigoSerieDestino, sizeof Evaluador.CodigoSerieDestino, "%-12s", "Z");
    LineasSentencia lineas;
    lineas[0] = "X1";
    LimpiarEvaluador();
    int posicion = 0;
    EvaluarFormula(lineas, posicion, 0, ObservacionesBucle - 1);
    for (auto _ : estado) {
        Evaluador.profundidad = 1;
        GuardarEscalar();
        GuardarSerie();
        GuardarObservacion("50", nullptr);
    }
    CerrarPilaColumnas();
}

// ----- Tests that sort

void PrepararContraste() {
    PrepararSeries(MaxObservaciones);
    Procesar("MUEST 1 4000");
    Ejecutar("MC Y 1 X1 X2 X3 X4 X5 X6 X7 X8 X9");
}

void Rangos(benchmark::State &estado) {
    PrepararContraste();
    for (auto _ : estado) Ejecutar("CRA X10");
}

// The dialog's way, which puts the sample back.
void Goldfeld(benchmark::State &estado) {
    PrepararContraste();
    for (auto _ : estado) AceptarGoldfeld(nullptr, {"X10", "1", "1500", "2501", "4000", false});
}

// ----- A full work file: on disk, and its observations sorted

void LlenarTrabajo() {
    EmpezarConDatos(TipoSinPeriodicidad, "");
    std::mt19937 azar(5);
    std::normal_distribution<double> normal(0.0, 1.0);
    ArchivoTrabajo.NumSeries = MaxSeries;
    for (int s = 0; s < MaxSeries; ++s) {
        PonerCodigoSerie(s, "S" + std::to_string(s));
        for (int i = 0; i < MaxObservaciones; ++i) PonerObservacion(i, s, normal(azar), 1);
    }
    for (int m = 0; m < MaxMatrices; ++m) {
        double *elementos = AnadirMatriz(TablaMatrices, "M" + std::to_string(m), 200, 200);
        std::generate_n(elementos, MaxElementos, [&] { return normal(azar); });
    }
}

std::string RutaTrabajo() {
    return (std::filesystem::temp_directory_path() / ("bench" + std::to_string(getpid()) + ".TR2")).string();
}

void GuardarLleno(benchmark::State &estado) {
    LlenarTrabajo();
    for (auto _ : estado) benchmark::DoNotOptimize(EscribirFicheroTrabajo(RutaTrabajo()));
}

void AbrirLleno(benchmark::State &estado) {
    LlenarTrabajo();
    EscribirFicheroTrabajo(RutaTrabajo());
    for (auto _ : estado) benchmark::DoNotOptimize(LeerFicheroTrabajo(RutaTrabajo()));
    std::filesystem::remove(RutaTrabajo());
}

// Each time by another series, so that it finds the rows out of order.
void Ordenar(benchmark::State &estado) {
    LlenarTrabajo();
    ArchivoTrabajo.NumSeries = MaxSeries - 1;
    int serie = 0;
    for (auto _ : estado)
        AceptarOrdenacion(nullptr, "S" + std::to_string(serie++ % ArchivoTrabajo.NumSeries), false);
}

// ----- The log of the desktop

constexpr int LineasDelLote = 20000;

// The same batch with the log and without it, one behind the other: the ratios of their times of the processor.
std::vector<double> CostesDelRegistro;

double Mediana(std::vector<double> &valores) {
    if (valores.empty()) return 0.0; // this one wasn't asked for
    const auto medio = valores.begin() + static_cast<long>(valores.size() / 2);
    std::nth_element(valores.begin(), medio, valores.end());
    return *medio;
}

void LoteConRegistro(benchmark::State &estado) {
    PrepararSeries(ObservacionesBucle);
    Prueba.textoControl.clear();
    for (int i = 0; i < LineasDelLote; ++i) Prueba.textoControl += "ESC A = 1\n";
    Prueba.desde = 0;
    Prueba.hasta = static_cast<int>(Prueba.textoControl.size());
    const OperacionesPlataforma &sin = Plataforma();
    RegistrarPlataforma();
    const OperacionesPlataforma &con = Plataforma();
    const auto correr = [](const OperacionesPlataforma &operaciones) {
        InstalarPlataforma(operaciones);
        const std::clock_t empieza = std::clock();
        ProcesarLote(nullptr, nullptr, 0, {}, Muestra.InicioMuestra, Muestra.FinMuestra);
        const std::clock_t tarda = std::clock() - empieza;
        ExigirFin("ESC A = 1");
        return static_cast<double>(tarda);
    };
    for (auto _ : estado) {
        const double solo = correr(sin);
        CostesDelRegistro.push_back(correr(con) / solo);
    }
    VaciarRegistro();
}

// ----- The trace

std::vector<double> CostesDeLaTraza;

// An MC with the trace and without it, one behind the other.
void RegresionTrazada(benchmark::State &estado) {
    PrepararSeries(MaxObservaciones);
    const auto correr = [](bool traza) {
        PonerTraza(traza);
        const std::clock_t empieza = std::clock();
        for (int i = 0; i < 10; ++i) Ejecutar("MC Y 1 X1 X2 X3 X4 X5 X6 X7 X8 X9");
        return static_cast<double>(std::clock() - empieza);
    };
    for (auto _ : estado) {
        const double sola = correr(false);
        CostesDeLaTraza.push_back(correr(true) / sola);
    }
    PonerTraza(false);
}

std::size_t MemoriaDeLaTraza = 0; // bytes, the largest record

// Full records: of regressions with as many regressors as there can be, and of matrices that are kept whole, each with two
// operands that are none of its steps.
void RegistrosLlenos(benchmark::State &estado) {
    constexpr const char *Bucles[] = {
        "REPITE J DESDE 1 HASTA 500\nMC Y 1 X1 X2 X3 X4 X5 X6 X7 X8 X9 X10 X1(-1) X2(-1) X3(-1) X4(-1) "
        "X5(-1) "
        "X6(-1)\nFINREPITE\n",
        "REPITE J DESDE 1 HASTA 12000\nMAT R = P + Q + P\nFINREPITE\n",
    };
    const auto ocupados = [] {
        const auto m = mallinfo2();
        return m.uordblks + m.hblkhd;
    };
    for (auto _ : estado)
        for (const char *bucle : Bucles) {
            PrepararSeries(ObservacionesBucle);
            PonerMatriz("P", std::vector<double>(100, 1.0), 10, 10);
            PonerMatriz("Q", std::vector<double>(100, 2.0), 10, 10);
            Traza = {};
            const std::size_t antes = ocupados();
            PonerTraza(true);
            Procesar(std::string("VSR NO\nMUEST 1 100\n") + bucle);
            PonerTraza(false);
            ExigirFin(bucle);
            if (Traza.pasos.size() < MaxPasosTraza) std::exit(1);
            MemoriaDeLaTraza = std::max(MemoriaDeLaTraza, ocupados() - antes);
        }
    Traza = {};
}

// ----- The batch runner as a process

long MemoriaDelProceso = 0; // kB, the largest run

void ProcesoKlein(benchmark::State &estado) {
    if (chdir(TABIRA_DATOS) != 0) std::exit(1);
    const char *const argumentos[] = {TABIRA_LOTE, "--tipo",     "anual:1920:1941", "--importar",
                                      "klein.csv", "--procesar", "klein.txt",       nullptr};
    posix_spawn_file_actions_t acciones;
    posix_spawn_file_actions_init(&acciones);
    posix_spawn_file_actions_addopen(&acciones, STDOUT_FILENO, "/dev/null", 1, 0);
    for (auto _ : estado) {
        pid_t hijo = 0;
        if (posix_spawn(&hijo, TABIRA_LOTE, &acciones, nullptr, const_cast<char **>(argumentos), environ) !=
            0)
            std::exit(1);
        int fin = 0;
        rusage uso{};
        wait4(hijo, &fin, 0, &uso);
        if (fin != 0) std::exit(1);
        MemoriaDelProceso = std::max(MemoriaDelProceso, uso.ru_maxrss);
    }
    posix_spawn_file_actions_destroy(&acciones);
}

// ----- The table of ratios

// Keeps the time of each benchmark, in nanoseconds of its wall clock.
class Recogedor : public benchmark::ConsoleReporter {
public:
    std::map<std::string, double> tiempo;
    void ReportRuns(const std::vector<Run> &corridas) override {
        for (const Run &r : corridas)
            if (r.run_type == Run::RT_Iteration)
                tiempo[r.benchmark_name()] =
                    r.real_accumulated_time / static_cast<double>(r.iterations) * 1e9;
        ConsoleReporter::ReportRuns(corridas);
    }
};

void Razon(const char *que, double valor, const char *unidad, const char *quiere) {
    std::printf("  %-66s %10.2f %-6s (%s)\n", que, valor, unidad, quiere);
}

} // namespace

int main(int numArgumentos, char **argumentos) {
    const auto registrar = [](const char *nombre, void (*rutina)(benchmark::State &),
                              benchmark::TimeUnit unidad) {
        benchmark::RegisterBenchmark(nombre, rutina)->Unit(unidad)->UseRealTime();
    };
    // First, since the memory of a process counts that of the one that started it, which is small now.
    registrar("ProcesoKlein", ProcesoKlein, benchmark::kMillisecond);
    registrar("RegresionTabira", RegresionTabira, benchmark::kMicrosecond);
    registrar("RegresionHeterocedasticidad", RegresionHeterocedasticidad, benchmark::kMicrosecond);
    registrar("RegresionAutocorrelacion", RegresionAutocorrelacion, benchmark::kMicrosecond);
    registrar("White", White, benchmark::kMicrosecond);
    registrar("RegresionEigen", RegresionEigen, benchmark::kMicrosecond);
    registrar("RegresionPorFormulas", RegresionPorFormulas, benchmark::kMillisecond);
    registrar("PrediccionTabira", PrediccionTabira, benchmark::kMicrosecond);
    registrar("SerieTabira", SerieTabira, benchmark::kMicrosecond);
    registrar("SerieAMano", SerieAMano, benchmark::kMicrosecond);
    registrar("Bucle", Bucle, benchmark::kMillisecond);
    registrar("BucleLargo", BucleLargo, benchmark::kMillisecond);
    registrar("Calibracion", Calibracion, benchmark::kMillisecond);
    registrar("SoloTexto", SoloTexto, benchmark::kMicrosecond);
    registrar("SerieRecursiva", SerieRecursivaTabira, benchmark::kMicrosecond);
    registrar("SerieSinRecursion", SerieSinRecursion, benchmark::kMicrosecond);
    registrar("Replicas", Replicas, benchmark::kMillisecond);
    registrar("RegresionesSueltas", RegresionesSueltas, benchmark::kMillisecond);
    registrar("FormulasEnUnaFila", FormulasEnUnaFila, benchmark::kMicrosecond);
    registrar("FormulasEnLasFilas", FormulasEnLasFilas, benchmark::kMicrosecond);
    registrar("AlmacenDeVuelta", AlmacenDeVuelta, benchmark::kMicrosecond);
    registrar("Rangos", Rangos, benchmark::kMillisecond);
    registrar("Goldfeld", Goldfeld, benchmark::kMillisecond);
    registrar("LoteConRegistro", LoteConRegistro, benchmark::kMillisecond);
    registrar("RegresionTrazada", RegresionTrazada, benchmark::kMillisecond);
    registrar("RegistrosLlenos", RegistrosLlenos, benchmark::kMillisecond);
    registrar("GuardarLleno", GuardarLleno, benchmark::kMillisecond);
    registrar("AbrirLleno", AbrirLleno, benchmark::kMillisecond);
    registrar("Ordenar", Ordenar, benchmark::kMillisecond);
    benchmark::Initialize(&numArgumentos, argumentos);
    Recogedor recogedor;
    benchmark::RunSpecifiedBenchmarks(&recogedor);

    const auto t = [&](const char *nombre) { return recogedor.tiempo[std::string(nombre) + "/real_time"]; };
    const double sentencia = t("Bucle") / (VueltasBucle * SentenciasVuelta);
    const double columnas = (t("FormulasEnLasFilas") - t("FormulasEnUnaFila")) / SentenciasVuelta;
    const double almacen = t("AlmacenDeVuelta") / SentenciasVuelta;
    std::printf("\nRatios of this run\n");
    Razon("MC, 4,000 observations, 10 regressors / Eigen's X'X, ldlt, residuals",
          t("RegresionTabira") / t("RegresionEigen"), "times", "at most 5");
    Razon("MC formula by formula / MC", t("RegresionPorFormulas") / t("RegresionTabira"), "times",
          "at least 50");
    Razon("MC (CH) / MC", t("RegresionHeterocedasticidad") / t("RegresionTabira"), "times", "at most 3");
    Razon("MC (CA 4) / MC", t("RegresionAutocorrelacion") / t("RegresionTabira"), "times", "at most 8");
    Razon("CWH PC on a constant and 3 series / that MC", t("White") / t("RegresionTabira"), "times",
          "at most 12");
    Razon("Prediction and evaluation over 4,000 rows / MC", t("PrediccionTabira") / t("RegresionTabira"),
          "times", "at most 5");
    Razon("SER of ten operands, 4,000 rows / the loop by hand", t("SerieTabira") / t("SerieAMano"), "times",
          "at most 8");
    Razon("A statement of a loop over 100 observations", sentencia / 1e3, "us", "");
    Razon("  its columns", columnas / 1e3, "us", "");
    Razon("  its store", almacen / 1e3, "us", "");
    Razon("  its text", (sentencia - columnas - almacen) / 1e3, "us", "below 5");
    Razon("CRA, 4,000 observations", t("Rangos") / 1e6, "ms", "below 60");
    Razon("CGQ, 4,000 observations, 10 regressors", t("Goldfeld") / 1e6, "ms", "below 60");
    Razon("The text of SER Z = X1 + X2 * 2 in a loop, its turn included", t("SoloTexto") / VueltasBucle / 1e3,
          "us", "at most 0.8");
    Razon("100,000 turns of three statements over 100 rows", t("BucleLargo") / 1e9, "s", "at most 1.3");
    Razon("  the same / a loop of 100 million sums and products", t("BucleLargo") / t("Calibracion"), "times",
          "");
    Razon("Recursive SER, 4,000 rows / SER without recursion", t("SerieRecursiva") / t("SerieSinRecursion"),
          "times", "at most 40");
    Razon("500 replications of a regression, 100 rows / 500 regressions alone",
          t("Replicas") / t("RegresionesSueltas"), "times", "at most 1.5");
    Razon("A batch of 20,000 lines with the log / without it", Mediana(CostesDelRegistro), "times",
          "below 1.05");
    Razon("MC, 4,000 observations, 10 regressors, with the trace / without it", Mediana(CostesDeLaTraza),
          "times", "at most 1.5");
    Razon("  the memory of 20,000 steps", static_cast<double>(MemoriaDeLaTraza) / 1048576.0, "MB",
          "below 50");
    Razon("A full work file saved", t("GuardarLleno") / 1e6, "ms", "below 200");
    Razon("  opened", t("AbrirLleno") / 1e6, "ms", "below 100");
    Razon("4,000 rows of 99 series sorted", t("Ordenar") / 1e6, "ms", "below 100");
    Razon("tabira-lote on Klein's example, the whole process", t("ProcesoKlein") / 1e6, "ms", "below 20");
    Razon("  its memory", static_cast<double>(MemoriaDelProceso) / 1024.0, "MB", "below 64");
    return 0;
}
