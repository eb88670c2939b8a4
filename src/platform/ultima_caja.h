// The last box that was shown: for whoever records why something failed.
#pragma once

#include <cstdint>
#include <string>

struct CajaMostrada {
    std::int64_t numero = 0; // of the boxes shown so far
    std::string texto;
};

extern CajaMostrada UltimaCaja;
