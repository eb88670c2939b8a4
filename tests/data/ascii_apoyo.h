// What the tests of the ASCII exchange share. Texts are UTF-8 here.
#pragma once

#include "apoyo/plataforma_prueba.h"
#include "data/intercambio.h"

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

// An empty work file of the type (TiposDeDatos) with `observaciones` rows, the sample over all of them, and no row in
// TablaCampos. Row texts are the numbers from 1, or for a panel "1990-1", "1990-2", "1991-1", ..., two individuals a
// year (PrimerConcepto 0), or "1-1990", "2-1990", ... (1).
void PrepararAscii(int tipo, int observaciones, int primerConcepto = 0);

// The series in use with their first rows: "X: 1 2.5 . / Y: 3 . 4"; "." is a missing value.
std::string VolcadoSeries(int filas);

// Labels of the first rows, trailing blanks removed, between bars: "|Uno|Dos|".
std::string VolcadoEtiquetas(int filas);

// Period texts of the first rows, the same way.
std::string VolcadoPeriodos(int filas);

// Imports a text (UTF-8) into the sample of Muestra.
void ImportarUtf8(const OpcionesIntercambio &opciones, std::string_view texto);

// Exports the sample of Muestra, in UTF-8.
std::string ExportarUtf8(const OpcionesIntercambio &opciones, int decimales = 2);

// Options as the variable dialog accepts them.
OpcionesIntercambio Variable(const ValoresFormatoVariable &valores, bool importando = true);

// The rows "T/INICIO/LONGITUD/CODIGO" go one by one into TablaCampos; false when one was refused.
bool AnadirFilas(bool importando, std::initializer_list<std::string_view> filas);

// Options as the fixed dialog accepts them with these rows in the table.
OpcionesIntercambio Fijo(std::initializer_list<std::string_view> filas, bool importando = true,
                         bool comas = false);

// A new empty folder as the current one, so that file names are free of whatever the path to it holds (a hyphen in it
// would be refused). SalirDeCarpeta goes back and removes it.
void EntrarEnCarpeta();
void SalirDeCarpeta();
