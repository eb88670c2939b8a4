// The last boxes that were shown: for whoever records why something failed.
#pragma once

#include <array>
#include <cstdint>
#include <string>

inline constexpr int CajasRecordadas = 4; // each level of a formula that fails shows one

struct CajasMostradas {
    std::int64_t numero = 0;                         // of the boxes shown so far
    std::array<std::string, CajasRecordadas> textos; // of box number i, from 0, at i % CajasRecordadas
};

extern CajasMostradas UltimaCaja;
