// Random numbers. A routine takes the address of a seed, which it updates.
#pragma once

#include <cstdint>

// Uniform between 0 and 1, both excluded.
double AleatorioUniforme(std::int32_t *semilla);
// Standard normal.
double AleatorioNormal(std::int32_t *semilla);
