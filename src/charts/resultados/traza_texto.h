// The steps of the trace as they are read: on the screen, on the clipboard, in files. A step is named by its place in the
// record, from 0, which must be one of it. All text is Windows-1252.
#pragma once

#include <string>
#include <vector>

// The place behind a step and all the steps below it.
int DetrasDelPaso(int paso);

// The step above; -1 for none.
int PasoDeEncima(int paso);

// The last statement whose text this is, blanks at the sides left out; the last of the record where there is none, a step of
// no level above it counted as one. -1 for an empty record.
int SentenciaEnTraza(const std::string &texto);

// In a line: what was computed ("_DW = formula"; of a statement its text, of a group what it is), and what came out: a
// number of six digits (all those of a number that has no more), a size, a failure.
std::string RotuloDePaso(int paso);
std::string ResumenDePaso(int paso);

// The next step behind `desde`, or before it, whose label, formula or explanation has this text in it, capital or not;
// round the ends of the record. -1 when there is none. `desde` -1: from the start.
int BuscarEnTraza(const std::string &texto, int desde, bool haciaDelante);

// A result as rows of cells: a matrix row by row with "…" where its edges are cut; of a series a row for each value, its
// period in front where it is known. Numbers have all their digits, and an exponent only below 0.00001 and from 1e15 on.
using FilasDeTexto = std::vector<std::vector<std::string>>;
FilasDeTexto FilasDelResultado(int paso);

// A table as formatos_tabla.h takes it. A step with a result: what it is, then its numbers. A statement or a group: the list
// of the steps below it.
std::string TablaDePaso(int paso);

// A part of a page. Its classes are "formula", "fallo", "numeros" and "elegido"; a link to another step is `enlace` and
// the place of that step. `elemento` of the result, from 0 as FuenteDeNumero has it, is marked; -1 for none.
std::string HtmlDePaso(int paso, const char *enlace, int elemento = -1);

// How many steps the run has made beyond those that the record keeps, as a sentence; empty for none.
std::string PasosSinGuardar();

// All the record, those left out counted in front: as lines, and as a page in which the links lead from step to step.
std::string TextoDeTraza();
std::string PaginaDeTraza();
