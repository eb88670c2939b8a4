// Tables kept together in one file: an SQLite database that is built in memory and written whole, or read whole and only
// looked at. What the tables are called and what stands in them is the caller's; texts are the core's here and UTF-8 in
// the file.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

struct BaseDeTablas; // an open database
struct FilasDeTabla; // a statement: rows to be added, or rows that are read

struct CierreDeTablas {
    void operator()(BaseDeTablas *tablas) const;
};
struct CierreDeFilas {
    void operator()(FilasDeTabla *filas) const;
};
// Rows are closed before their tables.
using TablasAbiertas = std::unique_ptr<BaseDeTablas, CierreDeTablas>;
using FilasAbiertas = std::unique_ptr<FilasDeTabla, CierreDeFilas>;

// What a file says about itself before anything else in it counts.
struct MarcaDeFichero {
    std::uint32_t aplicacion; // whose files these are
    std::uint32_t version;    // of their layout, from 1
    std::size_t maximo;       // bytes that no such file needs
};

// An empty database in memory; null without memory.
TablasAbiertas CrearTablas(const MarcaDeFichero &marca);

// Writes what was built as EscribirArchivo does: a failure leaves the old file whole. Nothing can be added afterwards.
bool EscribirTablas(BaseDeTablas *tablas, const std::string &ruta);

enum LecturasDeTablas {
    TablasLeidas,
    TablasSinAbrir,    // the file can't be opened or read, or is longer than any such file
    TablasAjenas,      // it is no such file
    TablasPosteriores, // its layout is newer than `marca`
    TablasDanadas
};

// Reads a file. It may hold anything: the database is opened from a copy in memory, read-only, without extensions, views or
// triggers, with limits of size and of work. Null unless the result is TablasLeidas.
TablasAbiertas LeerTablas(const std::string &ruta, const MarcaDeFichero &marca, LecturasDeTablas &resultado);

// Runs one statement without rows. False when it fails.
bool EjecutarEnTablas(BaseDeTablas *tablas, const std::string &sql);

// True when the database holds a table that exactly this statement created.
bool EsTabla(BaseDeTablas *tablas, const std::string &nombre, const std::string &sql);

// ---------------------------------------------------------------------------------------------------------------
// Rows. Columns count from 0.

// Null when the statement can't be read.
FilasAbiertas PrepararFilas(BaseDeTablas *tablas, const std::string &sql);

// The cells of the row to be added, then the row. A cell that isn't set keeps what the row before had.
void PonerEntero(FilasDeTabla *filas, int columna, std::int64_t valor);
void PonerTexto(FilasDeTabla *filas, int columna, std::string_view texto);
// n doubles as one cell, 8 bytes each, the highest byte first.
void PonerDobles(FilasDeTabla *filas, int columna, const double *valores, int n);
// A value that can be missing, to the last bit: NULL is a missing 0.0, a number a value that is there. What a number of
// the database can't be (no number, -0.0, a missing value other than 0.0) is a cell of 9 bytes: 1 or 0 for there or
// missing, then the 8 bytes of the double.
void PonerValor(FilasDeTabla *filas, int columna, double valor, bool presente);
bool AnadirFila(FilasDeTabla *filas);

enum PasosDeFila { HayFila, NoHayMasFilas, FilaDanada };
PasosDeFila SiguienteFila(FilasDeTabla *filas);

// The cells of the row at hand. False, with nothing set, for a cell of another kind, a whole number outside
// [minimo, maximo], a text of more than `maximo` characters, one that is no UTF-8 or has a NUL in it, other than n doubles.
bool LeerEnteroDeFila(FilasDeTabla *filas, int columna, std::int64_t minimo, std::int64_t maximo,
                      std::int64_t &valor);
bool LeerTextoDeFila(FilasDeTabla *filas, int columna, int maximo, std::string &texto);
bool LeerDoblesDeFila(FilasDeTabla *filas, int columna, double *valores, int n);
bool LeerValorDeFila(FilasDeTabla *filas, int columna, double &valor, bool &presente);
