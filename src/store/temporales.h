// The names that a command computes with, and their deletion.
#pragma once

#include "platform/plataforma.h"

#include <span>
#include <string_view>

// The 25 result families of a regression.
enum Familias {
    FamBETA,
    FamNREG,
    FamANREG,
    FamSCR,
    FamDTR,
    FamDIV,
    FamMTR,
    FamCOV,
    FamDTE,
    FamMVD,
    FamSTVD,
    FamLV,
    FamAIC,
    FamSCVD,
    FamDTVD,
    FamDCR,
    FamRC,
    FamDW,
    FamRCC,
    FamEA1,
    FamPROBT,
    FamNORE,
    FamFORLA,
    FamESTF,
    FamRES,
    NumFamilias
};

// Name of a result: base and the suffix of the code (8 and 13 none, 9 R, 10 GN, 11 GD, 12 W). Any other code: base.
const char *NombreFamilia(Familias familia, int codigo);

// The family whose base is "_" and `nombre`, or NumFamilias.
Familias FamiliaDeNombre(std::string_view nombre);

// How many numbered series a command may have left, for their deletion.
struct CuentasTemporales {
    int regresores;              // of the last MC or MCP
    std::span<const int> series; // series regressors by CodigoOrden; a code beyond its end has none
};

// Deletes the temporaries of a command: codes 8 to 13 are regressions, 104 the rank test, any other code has none. With
// 11 those of 10 go first, since the two belong to one test. Result 0. A deletion of a matrix that fails shows its
// message and ends the routine at once.
int BorrarTemporales(Ventana *ventana, int codigo, const CuentasTemporales &cuentas);
