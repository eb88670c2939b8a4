// The dialog of the last regression: what it shows.
#pragma once

#include "platform/literal.h"

#include <string>
#include <vector>

inline constexpr const char *TituloUltimaRegresion = "Última regresión"_w;

// Its three texts: the first and the last period of the regression sample, and the codes of the dependent variable and
// the regressors; in place of the codes "No se ha realizado ninguna regresión" when the dependent is no series now.
std::vector<std::string> LineasUltimaRegresion();
