// The test of Bera and Jarque: whether a series has the skewness and the kurtosis of a normal one.
#pragma once

#include "platform/plataforma.h"

#include <span>
#include <string_view>

struct ContrasteNormalidad {
    double asimetria, curtosis;
    double estadistico;  // chi-square with 2 degrees of freedom if the series is normal
    double probabilidad; // of a greater one
};

// The test of the values (C. M. Jarque and A. K. Bera 1980, Economics Letters 6). The moments are about zero, as for
// residuals, and not about the mean: a series far from zero has a kurtosis near 1 and a large statistic. Moments that can't
// be divided count as 0.
ContrasteNormalidad ContrastarNormalidad(std::span<const double> x);

// OK of the dialog: tests the series over the present sample, missing values as their stored zeros, and opens the window.
// 1, or 0 after "No existe la serie escogida. Pto 1", title "Proceso cancelado"; a blank code names no series.
int AceptarNormalidad(Ventana *ventana, std::string_view serie);
