// CodigoOrden: what the first word of a statement asks for. It selects the names under which a command stores what it
// computes.
#pragma once

enum CodigosOrden {
    OrdenDesconocida = 0,
    OrdenAES = 1,
    OrdenAED = 2,
    OrdenSER = 3,
    OrdenCAL = 4,
    OrdenESC = 5,
    OrdenMAT = 6,
    OrdenMC = 8,
    OrdenCR = 9,
    OrdenMGN = 10,
    OrdenMGD = 11,
    OrdenCWH = 12,
    OrdenMCP = 13,
    OrdenOBS = 24,
    OrdenFICTIC = 25,
    OrdenCWA = 101,
    OrdenCHN = 102,
    OrdenCGQ = 103,
    OrdenCRA = 104,
    OrdenCDU = 105,
    OrdenVSR = 106,
    NumOrdenes // of a table indexed by the code
};
