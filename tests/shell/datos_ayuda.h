// The work file that the help pages suppose.
#pragma once

constexpr int Anuales = 1, Trimestrales = 2, Mensuales = 3, DePanel = 4;
constexpr int Filas = 20;

// Begins anew, with as many observations of this data type as a page needs and with the series, matrices and scalars that
// the pages name. The sample has its limits, as the first page asks: a regression leaves series of as many values as
// regressors, which cut a sample without limits for what is processed next.
void EmpezarPagina(int tipo = Anuales);
