// A printer that records: it takes every document and keeps its pages as drawing operations. The batch runner and the
// desktop send what it kept to paper or to a PDF document when the job is over; the tests read it.
#pragma once

#include "platform/superficie.h"

#include <deque>
#include <string>
#include <string_view>
#include <vector>

// A document of the printer, or what stands in for it.
struct DispositivoImpresion;

// A page of A4 in portrait: 79 columns of the fixed-pitch font fill its width.
inline constexpr int PuntosPorPulgada = 300;
inline constexpr int AnchoPagina = 2480;
inline constexpr int AltoPagina = 3508;
inline constexpr int AnchoCaracterPagina = 31;
inline constexpr int AltoLineaPagina = 60;

struct PaginaImpresa {
    std::vector<OrdenDibujo> ordenes;
};

// What one job left behind. A page keeps its place in memory, since a surface points at it.
struct TrabajoImpreso {
    std::string documento; // name of the first document; empty when none was begun
    std::string titulo;
    std::deque<PaginaImpresa> paginas;
};

// Begins a job with nothing in it.
void EmpezarTrabajoGrabado(std::string_view titulo);

// Ends the job and hands it over. Pages at the end on which nothing was drawn are left out: no blank sheet leaves the
// printer.
TrabajoImpreso TerminarTrabajoGrabado();

// The same for a job that nobody wants.
void OlvidarTrabajoGrabado();

// The operations of a printer, for the table of platform/impresora.h. Several devices may be open at once; their pages stand
// in the order in which they were begun.
DispositivoImpresion *AbrirImpresoraGrabadora();
bool IniciarDocumentoGrabado(DispositivoImpresion *dispositivo, const char *nombre);
bool IniciarPaginaGrabada(DispositivoImpresion *dispositivo);
// Null while no page is begun.
Superficie *SuperficieGrabada(DispositivoImpresion *dispositivo);
bool TerminarPaginaGrabada(DispositivoImpresion *dispositivo);
bool TerminarDocumentoGrabado(DispositivoImpresion *dispositivo);
void CerrarImpresoraGrabadora(DispositivoImpresion *dispositivo);

// The lines of text of a page from top to bottom, trailing blanks removed. Texts at the same height are one line, each
// in the column in which it was drawn.
std::vector<std::string> LineasDePagina(const PaginaImpresa &pagina);
