// First and last period of the work file: as four numbers, and as the fixed columns of TextoIntervalo.
#pragma once

#include "platform/plataforma.h"

#include <string>
#include <string_view>

// Years and sub-periods (quarter 1 to 4, month 1 to 12); 0 stands for what was left blank. Annual data use 1 as the
// sub-period once the interval is complete.
struct Intervalo {
    int primerAno, primerSub, ultimoAno, ultimoSub;
};

// The first year where none is given.
inline constexpr int AnoPorDefecto = 2001;

// Sub-periods of a year for TipoAnual, TipoTrimestral and TipoMensual, which are also the values of TipoPeriodoPanel:
// 1, 4 or 12. 1 for any other value.
int PeriodosPorAno(int periodicidad);

// Reads the columns of TextoIntervalo: the years stand at 0 and 5 (annual), 7 (quarters) or 8 (months), the sub-periods
// at 5 and 12 or 13. What is no number there is 0.
Intervalo LeerIntervalo(std::string_view texto, int porAno);

// The fields joined with "#" in these columns, as a dialog leaves them: "1990#2005", "1990#1#2005#4",
// "1990#01#2005#12". A year of 0 leaves its columns blank. Years have at most four characters.
std::string ComponerIntervalo(const Intervalo &intervalo, int porAno);

// The same range as VaciarArchivoTrabajo rewrites it: "1990#2005", "1990.1#2005.4", "1990. 1#2005.12".
std::string TextoDeIntervalo(const Intervalo &intervalo, int porAno);

// A period as a number that grows by one from each period to the next, and back.
int IndicePeriodo(int ano, int sub, int porAno);
void PeriodoDeIndice(int indice, int porAno, int &ano, int &sub);

// Text of the period with this number: "1995", "1995.1", "1995.01".
std::string TextoDeIndice(int indice, int porAno);

// Checks the two fields of annual, quarterly or monthly periods. Fields are cut at 4, 18 and 8 characters, split at the
// point into year (4 characters) and sub-period. 1 with the result in `intervalo`, sub-periods that were left blank
// being the first and the last one of the year; two blank fields give blank years. 0 after a message, title "Proceso cancelado".
// `panel`: a blank first year is 2001 before the checks, and a last year below the first is accepted.
int ComprobarPeriodos(Ventana *ventana, int periodicidad, std::string_view inicio, std::string_view fin,
                      bool panel, Intervalo &intervalo);
