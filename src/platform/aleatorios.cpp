// Random numbers: a counter that walks through all 32-bit values, scrambled by the finaliser of MurmurHash3 (the 32-bit
// form of SplitMix: Steele, Lea and Flood, "Fast splittable pseudorandom number generators", 2014). Seeds are calendar
// seconds, so neighbouring seeds must give sequences that have nothing in common; a plain congruential generator
// would begin them with nearly the same number.
#include "platform/aleatorios.h"

#include <cmath>
#include <numbers>

namespace {

std::uint32_t Siguiente(std::int32_t *semilla) {
    std::uint32_t z = static_cast<std::uint32_t>(*semilla) + 0x9E3779B9u;
    *semilla = static_cast<std::int32_t>(z);
    z = (z ^ (z >> 16)) * 0x85EBCA6Bu;
    z = (z ^ (z >> 13)) * 0xC2B2AE35u;
    return z ^ (z >> 16);
}

} // namespace

double AleatorioUniforme(std::int32_t *semilla) {
    return (static_cast<double>(Siguiente(semilla)) + 0.5) / 4294967296.0; // 2 to the power 32
}

// Box and Muller, the cosine branch: two uniform numbers a normal one, so that the seed alone is the state.
double AleatorioNormal(std::int32_t *semilla) {
    const double radio = std::sqrt(-2.0 * std::log(AleatorioUniforme(semilla)));
    return radio * std::cos(2.0 * std::numbers::pi * AleatorioUniforme(semilla));
}
