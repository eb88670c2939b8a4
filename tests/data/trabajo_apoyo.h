// What the tests of the work file on disk share: a folder of their own, work of every size, and what of it must persist as
// one string of bytes.
#pragma once

#include <cstdint>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>

// A folder that goes with the test.
class EnCarpeta : public testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;
    std::string Ruta(const std::string &nombre) const { return (carpeta / nombre).string(); }
    long Ficheros() const;
    std::filesystem::path carpeta;
};

// Work whose every table is full: 100 series of 4,000 observations (no number, infinities, -0.0 and denormal numbers among
// them, values at rows that are missing), 30 matrices of 40,000 elements, 60 scalars, 19 equations, labels, and the
// description of a variable panel of individuals. Panel data, or without periodicity.
void LlenarTrabajo(unsigned semilla, bool panel);

// A small work file: two series of annual data, a matrix, a scalar, an equation. Numbers differ by seed.
void TrabajoPequeno(unsigned semilla);

// All that must persist, to the last bit.
std::string RetratoDelTrabajo();

// The bytes of a file, and a file of these bytes.
std::string BytesDe(const std::string &ruta);
void PonerBytes(const std::string &ruta, const std::string &bytes);

// Runs statements of the database's language on a file, with another program's eyes. False when one fails.
bool Sql(const std::string &ruta, const std::string &sentencias);
// The first cell of the first row as text; "NULL" for none.
std::string Consulta(const std::string &ruta, const std::string &sql);
