// Support of the tests of the work file on disk.
#include "data/trabajo_apoyo.h"

#include "apoyo/plataforma_prueba.h"
#include "platform/archivos.h"
#include "platform/campos_texto.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <bit>
#include <limits>
#include <random>
#include <sqlite3.h>
#include <unistd.h>

namespace fs = std::filesystem;

void EnCarpeta::SetUp() {
    carpeta = fs::temp_directory_path() / ("tabira trabajo ñ " + std::to_string(getpid()));
    fs::remove_all(carpeta);
    fs::create_directories(carpeta);
    EmpezarPrueba();
}

void EnCarpeta::TearDown() {
    fs::remove_all(carpeta);
}

long EnCarpeta::Ficheros() const {
    return std::distance(fs::directory_iterator(carpeta), fs::directory_iterator());
}

namespace {

// What a number of a database can't be comes often, the rest is any double.
double Numero(std::mt19937_64 &azar) {
    using L = std::numeric_limits<double>;
    static const double Raros[] = {L::quiet_NaN(),
                                   -L::quiet_NaN(),
                                   L::infinity(),
                                   -L::infinity(),
                                   0.0,
                                   -0.0,
                                   L::denorm_min(),
                                   -3 * L::denorm_min(),
                                   L::max(),
                                   -L::max(),
                                   L::min(),
                                   std::bit_cast<double>(0x7FF0000000000001),
                                   1.0,
                                   9007199254740992.0,
                                   -1e18,
                                   0.1};
    const std::uint64_t bits = azar();
    return bits % 4 == 0 ? Raros[bits / 4 % std::size(Raros)] : std::bit_cast<double>(azar());
}

void LlenarMatrices(std::mt19937_64 &azar) {
    static constexpr int Formas[][2] = {{200, 200}, {1, 32767}, {32767, 1}, {13, 3077}, {1, 1}};
    for (int m = 0; m < MaxMatrices; ++m) {
        const auto &[filas, columnas] = Formas[m < 5 ? m : 0];
        double *d = AnadirMatriz(TablaMatrices, Formatear("M%d", m), filas, columnas);
        for (int i = 0; i < filas * columnas; ++i) d[i] = Numero(azar);
    }
}

void LlenarPanel() {
    DescripcionDePanel &p = DescripcionPanel;
    p.FormaPanel = PanelVariable;
    p.PrimerConcepto = IndividuoPrimero;
    p.NumEntradas = MaxIndividuosEtiqueta;
    for (int i = 0; i < MaxIndividuosEtiqueta; ++i) {
        PonerCampo(p.EtiquetasIndividuo[i], i % 3 == 0 ? "" : Texto1252DeUtf8("Peñón " + std::to_string(i)),
                   AnchoEtiqueta);
        p.individuos[i].orden = 2 * i + 1;
        p.individuos[i].numPeriodos = i % (MaxPeriodosIndividuo + 1); // none, too
        for (int t = 0; t < p.individuos[i].numPeriodos; ++t)
            PonerCampo(p.individuos[i].periodos[t], Formatear("%d", 1990 + t), 10);
    }
}

} // namespace

void LlenarTrabajo(unsigned semilla, bool panel) {
    EmpezarPrueba();
    std::mt19937_64 azar(semilla);
    CabeceraArchivo &a = ArchivoTrabajo;
    a.TipoDatos = panel ? TipoPanel : TipoSinPeriodicidad;
    a.ConEtiquetas = 1;
    LlenarPanel();
    VaciarArchivoTrabajo();
    PonerCampo(a.NombreProyecto, Texto1252DeUtf8("Año €1"), AnchoProyecto);
    a.NumSeries = MaxSeries;
    for (int s = 0; s < MaxSeries; ++s) {
        PonerCodigoSerie(s, s == 7 ? "a-B\"'\x01\xFF" : Formatear("S%d", s));
        a.PrimeraObs[s] = static_cast<std::int16_t>(s);
        a.UltimaObs[s] = static_cast<std::int16_t>(MaxObservaciones - 1 - s);
    }
    for (int i = 0; i < MaxObservaciones; ++i) {
        PonerCampo(a.EtiquetasObs[i], Formatear(" \x80%d", i), AnchoEtiqueta);
        for (int s = 0; s < MaxSeries; ++s) {
            const double valor = azar() % 16 == 0 ? 0.0 : Numero(azar);
            PonerObservacion(i, s, valor, azar() % 8 != 0 ? 1 : 0);
        }
    }
    LlenarMatrices(azar);
    TablaEscalares.numero = MaxEscalares;
    for (int e = 0; e < MaxEscalares; ++e) {
        PonerCampo(TablaEscalares.registro[e].Codigo, Formatear("_E%d", e), AnchoCodigo);
        TablaEscalares.registro[e].Valor = Numero(azar);
    }
    TablaEcuaciones.numero = MaxEcuaciones - 1;
    for (int e = 0; e < TablaEcuaciones.numero; ++e) {
        PonerCampo(TablaEcuaciones.Codigos[e], Formatear("EC%d", e), AnchoCodigo);
        const std::string texto = Formatear("Y%d 1 X ", e) + std::string(static_cast<std::size_t>(e), '\xD1');
        std::copy(texto.begin(), texto.end(), TablaEcuaciones.TextosEcuacion[e]);
    }
    std::fill_n(TablaEcuaciones.TextosEcuacion[3], AnchoEcuacion - 1, 'x');
}

void TrabajoPequeno(unsigned semilla) {
    EmpezarConDatos(TipoAnual, "1990#1999");
    PonerSerie("CONSUMO", {1.5 + semilla, 2.25, std::numeric_limits<double>::quiet_NaN(), 4}, 1);
    PonerSerie("RENTA", {-1, 0, 1e-5 * semilla});
    PonerMatriz("MAT1", {1, 2, 3, 4, 5, 6.5 + semilla}, 2, 3);
    PonerEscalar(nullptr, "ESC1", 3.25 - semilla);
    TablaEcuaciones.numero = 1;
    PonerCampo(TablaEcuaciones.Codigos[0], "EC1", AnchoCodigo);
    PonerCampo(TablaEcuaciones.TextosEcuacion[0], "CONSUMO 1 RENTA", AnchoEcuacion);
}

namespace {

template <class T> void Poner(std::string &r, const T *datos, std::size_t n) {
    r.append(reinterpret_cast<const char *>(datos), n * sizeof(T));
}
template <std::size_t N> void PonerTextoDe(std::string &r, const char (&campo)[N]) {
    r.append(campo, strnlen(campo, N)).append(1, '\0');
}
template <class T> void PonerNumero(std::string &r, T valor) {
    Poner(r, &valor, 1);
}

void PonerRetratoPanel(std::string &r) {
    const DescripcionDePanel &p = DescripcionPanel;
    for (const int n : {p.FormaPanel, p.PrimerConcepto, p.NumEntradas, p.TipoPeriodoPanel}) PonerNumero(r, n);
    for (const auto &etiqueta : p.EtiquetasIndividuo) PonerTextoDe(r, etiqueta);
    if (p.FormaPanel == PanelConstante) return;
    for (int e = 0; e < p.NumEntradas; ++e) {
        if (p.PrimerConcepto == PeriodoPrimero) {
            PonerNumero(r, p.periodos[e].individuos);
            PonerTextoDe(r, p.periodos[e].periodo);
            continue;
        }
        PonerNumero(r, p.individuos[e].orden);
        PonerNumero(r, p.individuos[e].numPeriodos);
        for (int t = 0; t < p.individuos[e].numPeriodos; ++t) PonerTextoDe(r, p.individuos[e].periodos[t]);
    }
}

} // namespace

std::string RetratoDelTrabajo() {
    const CabeceraArchivo &a = ArchivoTrabajo;
    std::string r;
    r.reserve(sizeof a + sizeof a / 4);
    PonerTextoDe(r, a.NombreProyecto);
    PonerTextoDe(r, a.TextoIntervalo);
    for (const int n : {int{a.NumSeries}, int{a.TipoDatos}, int{a.NumObs}, int{a.ConEtiquetas}})
        PonerNumero(r, n);
    Poner(r, &a.Codigos, 1);
    Poner(r, &a.TextosPeriodo, 1);
    Poner(r, &a.EtiquetasObs, 1);
    Poner(r, a.ValoresPeriodo, std::size(a.ValoresPeriodo));
    Poner(r, &a.ValoresObs[0][0], std::size_t{MaxObservaciones} * MaxSeries);
    Poner(r, &a.PresenciaObs[0][0], std::size_t{MaxObservaciones} * MaxSeries);
    Poner(r, a.PrimeraObs, a.NumSeries);
    Poner(r, a.UltimaObs, a.NumSeries);
    PonerNumero(r, TablaMatrices.numero);
    for (int m = 0; m < TablaMatrices.numero; ++m) {
        const RegistroMatriz &reg = TablaMatrices.registro[m];
        PonerTextoDe(r, reg.Codigo);
        PonerNumero(r, reg.Filas);
        PonerNumero(r, reg.Columnas);
        Poner(r, TablaMatrices.bloque[m], static_cast<std::size_t>(reg.Filas * reg.Columnas));
    }
    PonerNumero(r, TablaEscalares.numero);
    for (int e = 0; e < TablaEscalares.numero; ++e) {
        PonerTextoDe(r, TablaEscalares.registro[e].Codigo);
        PonerNumero(r, TablaEscalares.registro[e].Valor);
    }
    PonerNumero(r, TablaEcuaciones.numero);
    for (int e = 0; e < TablaEcuaciones.numero; ++e) {
        PonerTextoDe(r, TablaEcuaciones.Codigos[e]);
        PonerTextoDe(r, TablaEcuaciones.TextosEcuacion[e]);
    }
    PonerRetratoPanel(r);
    return r;
}

std::string BytesDe(const std::string &ruta) {
    std::string bytes;
    EXPECT_TRUE(LeerArchivo(ruta, bytes)) << ruta;
    return bytes;
}

void PonerBytes(const std::string &ruta, const std::string &bytes) {
    std::FILE *f = std::fopen(ruta.c_str(), "wb");
    ASSERT_NE(f, nullptr) << ruta;
    EXPECT_EQ(std::fwrite(bytes.data(), 1, bytes.size(), f), bytes.size());
    EXPECT_EQ(std::fclose(f), 0);
}

namespace {

sqlite3 *Abrir(const std::string &ruta) {
    sqlite3 *base = nullptr;
    EXPECT_EQ(sqlite3_open(ruta.c_str(), &base), SQLITE_OK);
    // Damage is done on purpose here.
    sqlite3_db_config(base, SQLITE_DBCONFIG_WRITABLE_SCHEMA, 1, nullptr);
    return base;
}

} // namespace

bool Sql(const std::string &ruta, const std::string &sentencias) {
    sqlite3 *base = Abrir(ruta);
    const bool bien = sqlite3_exec(base, sentencias.c_str(), nullptr, nullptr, nullptr) == SQLITE_OK;
    if (!bien) ADD_FAILURE() << sentencias << ": " << sqlite3_errmsg(base);
    sqlite3_close(base);
    return bien;
}

std::string Consulta(const std::string &ruta, const std::string &sql) {
    sqlite3 *base = Abrir(ruta);
    sqlite3_stmt *s = nullptr;
    std::string r = "NULL";
    EXPECT_EQ(sqlite3_prepare_v2(base, sql.c_str(), -1, &s, nullptr), SQLITE_OK)
        << sql << ": " << sqlite3_errmsg(base);
    if (sqlite3_step(s) == SQLITE_ROW && sqlite3_column_text(s, 0) != nullptr)
        r = reinterpret_cast<const char *>(sqlite3_column_text(s, 0));
    sqlite3_finalize(s);
    sqlite3_close(base);
    return r;
}
