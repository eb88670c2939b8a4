// The grid on a matrix: the working area, a grid 40 columns wide in BufferMatriz, and the commands that store it, load
// it, delete a matrix and clear it. A matrix that is typed doesn't exist until it is stored.
#pragma once

#include "platform/plataforma.h"

#include <string_view>

inline constexpr int LadoAreaMatriz = 40; // rows and columns of the working area
inline constexpr int LugaresAreaMatriz = LadoAreaMatriz * LadoAreaMatriz;

// The routines behind the commands. Each shows its failure in a box with the title "Proceso cancelado" and gives 0.
// "Borrar matriz" asks no question.
int SalvarMatriz(Ventana *ventana);
int MostrarMatriz(Ventana *ventana);
int BorrarMatrizDelEditor(Ventana *ventana);
void BlanquearAreaMatriz();

// The code as the commands take it: without blanks in front, 8 characters, padded; written back to the working area.
// With `prueba`, 0 after "Introduzca Nombre Matriz y apriete "Enter"" or "Nombre de Matriz no Válido".
int LeerCodigoMatriz(Ventana *ventana, bool prueba);

// A value for row `fila` and column `columna` of the grid, from 0, as typed: blank takes it away. What lies beyond the
// working area's last place is dropped; a column beyond the 40th goes on in the next row.
void EntrarEnMatriz(int fila, int columna, std::string_view texto);
