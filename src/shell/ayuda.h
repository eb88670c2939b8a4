// The help pages: what each one says, which command opens it, and how the buttons lead from page to page.
#pragma once

#include "platform/dialogos.h"
#include "platform/literal.h"

#include <span>
#include <string>

// An example line holds a statement, or a line of a block, that runs as it stands.
enum TiposDeLineaAyuda { LineaDeTexto, LineaDeEjemplo };

struct LineaAyuda {
    TiposDeLineaAyuda tipo;
    const char *texto; // at most AnchoLineaAyuda characters; null behind the last line of a page
};

inline constexpr int AnchoLineaAyuda = 78;

struct PaginaManual {
    int id;
    const char *titulo;
    int comando;        // command of the main window that opens it, 0 for none
    int botonSiguiente; // id of its button "Siguiente", 0 for none
    const LineaAyuda *lineas;
};

// The lines of a page as they are shown, without an end behind the last one. Examples are indented further than the text,
// syntaxes included, and so stand out.
std::string TextoDePagina(const PaginaManual &pagina);

// All the pages.
std::span<const PaginaManual> PaginasManual();

// The page with this id, null when there is none.
const PaginaManual *BuscarPagina(int id);

// Id of the page that a command of the main window opens, 0 when it opens none.
int PaginaDeComando(int comando);

// Id of the page that a "Siguiente" button opens, 0 for any other id. Button 5072 leads to a page that doesn't exist.
int PaginaDeBoton(int boton);

// What stands in the name fields of the page "Acerca de..", the first beside "Diseño :" and the others beside
// "Programación informática:".
std::span<const char *const> NombresAcercaDe();

// Ids of the buttons that every page may have; "Siguiente" has an id of its own on each page.
enum BotonesAyuda { BotonAyudaOK = 1, BotonAyudaCancelar = 2, BotonAyudaAnterior = 3 };

struct BotonPagina {
    int id;
    const char *texto;
};

// The buttons of a page, from left to right. A page alone has "OK"; a page of a chain has "Anterior" if a page leads to
// it, "Siguiente" if it leads to one, and "Cancelar". "OK" closes only the page on top, which on the last page of a chain
// would be another "Anterior"; so no page of a chain bears it.
struct BotonesPagina {
    BotonPagina boton[3];
    int numero;
};
BotonesPagina BotonesDePagina(const PaginaManual &pagina);

struct EstadoAyuda {
    int CerrarAyuda; // 1 once "Cancelar" was pressed, so that every page below closes too
};

extern EstadoAyuda Ayuda;

// Shows one page, modal, above `ventana`, until it is closed. Every button that is pressed goes to PulsarBotonAyuda, and
// so does BotonAyudaCancelar when the page is closed in another way.
using AbrirPagina = void (*)(Ventana *ventana, const PaginaManual &pagina);

// Shows a page, and above it those to which its buttons lead. An id without a page shows nothing.
void PaginaAyuda(Ventana *ventana, int id, AbrirPagina abrir);

// A button of a page that is open in `ventana`: "Siguiente" opens the next page above this one, and comes back when that
// one is closed; "Anterior" and "OK" go back to the page below; "Cancelar" closes all. 1 when the page has to close, 0
// when it stays.
int PulsarBotonAyuda(Ventana *ventana, const PaginaManual &pagina, int boton, AbrirPagina abrir);
