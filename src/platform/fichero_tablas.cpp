// The tables of a file, over SQLite.
#include "platform/fichero_tablas.h"

#include "platform/archivos.h"
#include "platform/texto.h"

#include <bit>
#include <cmath>
#include <cstring>
#include <sqlite3.h>

struct BaseDeTablas {
    sqlite3 *base = nullptr;
    std::string bytes; // what was read; the database stands on it
    int trozosDeTrabajo = 0;
};

struct FilasDeTabla {
    sqlite3_stmt *sentencia = nullptr;
    bool bien = true; // every cell that was set was taken
};

namespace {

constexpr std::size_t BytesDeDoble = 8;
constexpr std::size_t BytesDeValor = 1 + BytesDeDoble;

// Work that reading may cost, in steps of the database's machine. The fullest file takes some two million.
constexpr int PasosDeTrozo = 1'000'000;
constexpr int MaxTrozosDeTrabajo = 40;

// Places of the header of a database.
constexpr std::string_view Cabecera("SQLite format 3\0", 16);
constexpr std::size_t LargoCabecera = 100;
constexpr std::size_t LugarVersion = 60;
constexpr std::size_t LugarAplicacion = 68;

std::uint32_t Leer32(std::string_view bytes, std::size_t lugar) {
    std::uint32_t r = 0;
    for (std::size_t i = 0; i < 4; ++i) r = (r << 8) | static_cast<unsigned char>(bytes[lugar + i]);
    return r;
}

void EscribirDoble(unsigned char *destino, double valor) {
    const auto bits = std::bit_cast<std::uint64_t>(valor);
    for (std::size_t i = 0; i < BytesDeDoble; ++i)
        destino[i] = static_cast<unsigned char>(bits >> (8 * (BytesDeDoble - 1 - i)));
}

double LeerDoble(const unsigned char *origen) {
    std::uint64_t bits = 0;
    for (std::size_t i = 0; i < BytesDeDoble; ++i) bits = (bits << 8) | origen[i];
    return std::bit_cast<double>(bits);
}

TablasAbiertas AbrirEnMemoria() {
    TablasAbiertas t(new BaseDeTablas);
    const int modo = SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_MEMORY;
    if (sqlite3_open_v2(":memory:", &t->base, modo, nullptr) != SQLITE_OK) return nullptr;
    return t;
}

int GastarTrabajo(void *tablas) {
    return ++static_cast<BaseDeTablas *>(tablas)->trozosDeTrabajo > MaxTrozosDeTrabajo ? 1 : 0;
}

// Whatever stands in the file: nothing in it runs, and what it may take has bounds.
void Proteger(BaseDeTablas *t) {
    constexpr int Apagados[] = {SQLITE_DBCONFIG_TRUSTED_SCHEMA, SQLITE_DBCONFIG_ENABLE_VIEW,
                                SQLITE_DBCONFIG_ENABLE_TRIGGER, SQLITE_DBCONFIG_ENABLE_LOAD_EXTENSION,
                                SQLITE_DBCONFIG_ENABLE_FTS3_TOKENIZER};
    for (const int opcion : Apagados) sqlite3_db_config(t->base, opcion, 0, nullptr);
    sqlite3_db_config(t->base, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    constexpr int Limites[][2] = {{SQLITE_LIMIT_LENGTH, 1 << 20},  {SQLITE_LIMIT_SQL_LENGTH, 1 << 16},
                                  {SQLITE_LIMIT_COLUMN, 200},      {SQLITE_LIMIT_EXPR_DEPTH, 50},
                                  {SQLITE_LIMIT_VDBE_OP, 1 << 16}, {SQLITE_LIMIT_ATTACHED, 0},
                                  {SQLITE_LIMIT_TRIGGER_DEPTH, 1}, {SQLITE_LIMIT_WORKER_THREADS, 0}};
    for (const auto &limite : Limites) sqlite3_limit(t->base, limite[0], limite[1]);
    sqlite3_progress_handler(t->base, PasosDeTrozo, GastarTrabajo, t);
}

LecturasDeTablas MirarCabecera(std::string_view bytes, const MarcaDeFichero &marca) {
    if (bytes.size() < LargoCabecera || bytes.substr(0, Cabecera.size()) != Cabecera ||
        Leer32(bytes, LugarAplicacion) != marca.aplicacion)
        return TablasAjenas;
    const std::uint32_t version = Leer32(bytes, LugarVersion);
    if (version > marca.version) return TablasPosteriores;
    return version >= 1 ? TablasLeidas : TablasDanadas;
}

} // namespace

void CierreDeTablas::operator()(BaseDeTablas *tablas) const {
    sqlite3_close(tablas->base);
    delete tablas;
}

void CierreDeFilas::operator()(FilasDeTabla *filas) const {
    sqlite3_finalize(filas->sentencia);
    delete filas;
}

// ---------------------------------------------------------------------------------------------------------------
// The file

TablasAbiertas CrearTablas(const MarcaDeFichero &marca) {
    TablasAbiertas t = AbrirEnMemoria();
    if (t == nullptr) return nullptr;
    const bool bien = EjecutarEnTablas(t.get(), "PRAGMA encoding = 'UTF-8'") &&
                      EjecutarEnTablas(t.get(), "PRAGMA auto_vacuum = NONE") &&
                      EjecutarEnTablas(t.get(), "PRAGMA journal_mode = OFF") &&
                      EjecutarEnTablas(t.get(), Formatear("PRAGMA application_id = %u", marca.aplicacion)) &&
                      EjecutarEnTablas(t.get(), Formatear("PRAGMA user_version = %u", marca.version)) &&
                      EjecutarEnTablas(t.get(), "BEGIN");
    return bien ? std::move(t) : nullptr;
}

bool EscribirTablas(BaseDeTablas *tablas, const std::string &ruta) {
    if (!EjecutarEnTablas(tablas, "COMMIT")) return false;
    sqlite3_int64 n = 0;
    unsigned char *bytes = sqlite3_serialize(tablas->base, "main", &n, 0);
    if (bytes == nullptr) return false;
    const bool bien =
        EscribirArchivo(ruta, {reinterpret_cast<const char *>(bytes), static_cast<std::size_t>(n)});
    sqlite3_free(bytes);
    return bien;
}

TablasAbiertas LeerTablas(const std::string &ruta, const MarcaDeFichero &marca, LecturasDeTablas &resultado) {
    TablasAbiertas t = AbrirEnMemoria();
    resultado = TablasSinAbrir;
    if (t == nullptr || !LeerArchivo(ruta, t->bytes, marca.maximo)) return nullptr;
    resultado = MirarCabecera(t->bytes, marca);
    if (resultado != TablasLeidas) return nullptr;
    Proteger(t.get());
    const auto n = static_cast<sqlite3_int64>(t->bytes.size());
    if (sqlite3_deserialize(t->base, "main", reinterpret_cast<unsigned char *>(t->bytes.data()), n, n,
                            SQLITE_DESERIALIZE_READONLY) != SQLITE_OK) {
        resultado = TablasDanadas;
        return nullptr;
    }
    return t;
}

bool EjecutarEnTablas(BaseDeTablas *tablas, const std::string &sql) {
    return sqlite3_exec(tablas->base, Utf8De1252(sql).c_str(), nullptr, nullptr, nullptr) == SQLITE_OK;
}

bool EsTabla(BaseDeTablas *tablas, const std::string &nombre, const std::string &sql) {
    // The type too: a view may bear the name, and the text of a virtual table would run its module.
    const FilasAbiertas f =
        PrepararFilas(tablas, "SELECT type, sql FROM sqlite_master WHERE name = '" + nombre + "'");
    std::string tipo, texto;
    return f != nullptr && SiguienteFila(f.get()) == HayFila && LeerTextoDeFila(f.get(), 0, 5, tipo) &&
           LeerTextoDeFila(f.get(), 1, static_cast<int>(sql.size()), texto) && tipo == "table" &&
           texto == sql;
}

// ---------------------------------------------------------------------------------------------------------------
// Rows

FilasAbiertas PrepararFilas(BaseDeTablas *tablas, const std::string &sql) {
    FilasAbiertas f(new FilasDeTabla);
    if (sqlite3_prepare_v2(tablas->base, sql.c_str(), -1, &f->sentencia, nullptr) != SQLITE_OK)
        return nullptr;
    return f;
}

namespace {

void Anotar(FilasDeTabla *filas, int resultado) {
    if (resultado != SQLITE_OK) filas->bien = false;
}

} // namespace

void PonerEntero(FilasDeTabla *filas, int columna, std::int64_t valor) {
    Anotar(filas, sqlite3_bind_int64(filas->sentencia, columna + 1, valor));
}

void PonerTexto(FilasDeTabla *filas, int columna, std::string_view texto) {
    const std::string utf8 = Utf8De1252(texto);
    Anotar(filas, sqlite3_bind_text(filas->sentencia, columna + 1, utf8.c_str(),
                                    static_cast<int>(utf8.size()), SQLITE_TRANSIENT));
}

void PonerDobles(FilasDeTabla *filas, int columna, const double *valores, int n) {
    const std::size_t bytes = static_cast<std::size_t>(n) * BytesDeDoble;
    auto *destino = static_cast<unsigned char *>(sqlite3_malloc64(bytes > 0 ? bytes : 1));
    if (destino == nullptr) {
        filas->bien = false;
        return;
    }
    for (int i = 0; i < n; ++i)
        EscribirDoble(destino + static_cast<std::size_t>(i) * BytesDeDoble, valores[i]);
    Anotar(filas, sqlite3_bind_blob64(filas->sentencia, columna + 1, destino, bytes, sqlite3_free));
}

void PonerValor(FilasDeTabla *filas, int columna, double valor, bool presente) {
    const auto bits = std::bit_cast<std::uint64_t>(valor);
    if (!presente && bits == 0) {
        Anotar(filas, sqlite3_bind_null(filas->sentencia, columna + 1));
    } else if (presente && !std::isnan(valor) && (valor != 0.0 || bits == 0)) {
        Anotar(filas, sqlite3_bind_double(filas->sentencia, columna + 1, valor));
    } else {
        unsigned char celda[BytesDeValor] = {static_cast<unsigned char>(presente ? 1 : 0)};
        EscribirDoble(celda + 1, valor);
        Anotar(filas,
               sqlite3_bind_blob(filas->sentencia, columna + 1, celda, sizeof celda, SQLITE_TRANSIENT));
    }
}

bool AnadirFila(FilasDeTabla *filas) {
    const bool hecho = filas->bien && sqlite3_step(filas->sentencia) == SQLITE_DONE;
    Anotar(filas, sqlite3_reset(filas->sentencia));
    return hecho;
}

PasosDeFila SiguienteFila(FilasDeTabla *filas) {
    switch (sqlite3_step(filas->sentencia)) {
    case SQLITE_ROW: return HayFila;
    case SQLITE_DONE: return NoHayMasFilas;
    default: return FilaDanada;
    }
}

bool LeerEnteroDeFila(FilasDeTabla *filas, int columna, std::int64_t minimo, std::int64_t maximo,
                      std::int64_t &valor) {
    if (sqlite3_column_type(filas->sentencia, columna) != SQLITE_INTEGER) return false;
    const std::int64_t leido = sqlite3_column_int64(filas->sentencia, columna);
    if (leido < minimo || leido > maximo) return false;
    valor = leido;
    return true;
}

bool LeerTextoDeFila(FilasDeTabla *filas, int columna, int maximo, std::string &texto) {
    if (sqlite3_column_type(filas->sentencia, columna) != SQLITE_TEXT) return false;
    const auto *utf8 = reinterpret_cast<const char *>(sqlite3_column_text(filas->sentencia, columna));
    const int n = sqlite3_column_bytes(filas->sentencia, columna);
    if (utf8 == nullptr) return false;
    bool valido = false;
    std::string leido = Texto1252DeUtf8({utf8, static_cast<std::size_t>(n)}, &valido);
    if (!valido || leido.size() > static_cast<std::size_t>(maximo) || leido.find('\0') != std::string::npos)
        return false;
    texto = std::move(leido);
    return true;
}

bool LeerDoblesDeFila(FilasDeTabla *filas, int columna, double *valores, int n) {
    if (sqlite3_column_type(filas->sentencia, columna) != SQLITE_BLOB) return false;
    const auto *bytes = static_cast<const unsigned char *>(sqlite3_column_blob(filas->sentencia, columna));
    if (static_cast<std::size_t>(sqlite3_column_bytes(filas->sentencia, columna)) !=
        static_cast<std::size_t>(n) * BytesDeDoble)
        return false;
    for (int i = 0; i < n; ++i) valores[i] = LeerDoble(bytes + static_cast<std::size_t>(i) * BytesDeDoble);
    return true;
}

bool LeerValorDeFila(FilasDeTabla *filas, int columna, double &valor, bool &presente) {
    sqlite3_stmt *s = filas->sentencia;
    switch (sqlite3_column_type(s, columna)) {
    case SQLITE_NULL:
        valor = 0.0;
        presente = false;
        return true;
    case SQLITE_FLOAT:
    case SQLITE_INTEGER:
        valor = sqlite3_column_double(s, columna);
        presente = true;
        return true;
    case SQLITE_BLOB: {
        const auto *celda = static_cast<const unsigned char *>(sqlite3_column_blob(s, columna));
        if (sqlite3_column_bytes(s, columna) != static_cast<int>(BytesDeValor) || celda[0] > 1) return false;
        valor = LeerDoble(celda + 1);
        presente = celda[0] == 1;
        return true;
    }
    default: return false;
    }
}
