// What the tests of the two editors share: keys as text.
#pragma once

#include "apoyo/plataforma_prueba.h"
#include "data/rejilla.h"

#include <string>
#include <string_view>

// Feeds the editor. Every character is typed; a name in angle brackets is a key: <Tab> <Enter> <Abajo> <Arriba> <Inicio>
// <Fin> <RePag> <AvPag> <Izquierda> <Derecha> <Suprimir> <Shift> <shift> (let go) <Retroceso> <Escape>.
void Teclear(std::string_view teclas);

// A key from its name, as above, without the brackets; NumEntradasEditor for none.
EntradasEditor TeclaDeNombre(std::string_view nombre);

void Clic(int celda);

// The field without the blanks behind it.
std::string Campo();

// Text of a cell without the blanks at its sides, UTF-8.
std::string Celda(int celda);

// The cell at row `fila` (0 the head) of column `columna` (0 the head) of the grid.
inline int CeldaEn(int columna, int fila) {
    return columna * 17 + fila;
}

// A work file of this kind, and the editor open on it.
void AbrirSeries(int tipo = 0, std::string_view intervalo = "", bool etiquetas = false);
void AbrirMatrices();
