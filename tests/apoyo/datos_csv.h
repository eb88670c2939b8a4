// Example data for the tests: comma separated, codes in the first record, --- for a missing value.
#pragma once

#include <string>
#include <string_view>
#include <vector>

struct ColumnaCsv {
    std::string codigo;
    std::vector<double> valores; // NaN for a missing value
};

// The columns of a file of the folder of examples; empty when it can't be read.
std::vector<ColumnaCsv> LeerCsv(std::string_view archivo);

// LeerCsv, each column stored as a series from row 0 on. False when nothing was read.
bool CargarCsv(std::string_view archivo);
