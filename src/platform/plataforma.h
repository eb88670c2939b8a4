// The seam: what the core asks of the outside. A routine of the core calls a free function of this file; behind it
// stands the table of operations that the executable installs at start: the desktop's, the batch runner's or a
// test's. Text that passes here is text of the core (Windows-1252). The printer has a table of its own, platform/impresora.h.
#pragma once

#include "platform/dialogos.h"
#include "platform/literal.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

struct Ventana;         // a window of the outside; the core only hands it on
struct ControlTexto;    // a text control of the outside
struct SalidaResultado; // a result window (charts/resultados/resultado.h)
struct Grafico;         // a chart, known to the rooms that draw it

enum Icono { IconoInformacion, IconoPregunta, IconoExclamacion, IconoAlto };
enum Botones { BotonesAceptar, BotonesAceptarCancelar, BotonesSiNo, BotonesSiNoCancelar };
enum Respuesta { RespuestaAceptar, RespuestaCancelar, RespuestaSi, RespuestaNo };

// The last three show what dragging does in a chart: it moves a thing, or a side of it to the left and right or up and
// down (SLIDE, HORMOVE, VERTMOVE).
enum Cursor { CursorFlecha, CursorEspera, CursorDesplazar, CursorHorizontal, CursorVertical };

// A kind of file that the user is offered.
struct FormatoArchivo {
    const char *terminacion; // "txt"; a chosen name without an ending of those offered gets it
    const char *filtro;      // Windows-1252: "Texto (*.txt)"
};

// What the user is asked when a file is to be opened or saved.
struct PeticionArchivo {
    bool guardar; // a name to write under; before an existing file is replaced the user is asked
    std::string_view titulo;
    std::span<const FormatoArchivo> formatos; // the first is the one chosen at the start
    std::string_view nombre;                  // suggested
    // Whoever asks looks at the name: one with another ending keeps it, and no question is put before a file is replaced.
    bool nombreLibre = false;
    std::string_view carpeta = {}; // path of the one to begin with; empty: the user's documents
};

// What a program doesn't give is null, and does nothing: no text, no selection, no file, second 0. A box it always gives.
struct OperacionesPlataforma {
    Respuesta (*caja)(Ventana *ventana, std::string_view texto, std::string_view titulo, Icono icono,
                      Botones botones) = nullptr;
    void (*cursor)(Cursor cursor) = nullptr;
    // The whole text of a control and its selection, [desde, hasta) in characters.
    std::string (*textoDeControl)(ControlTexto *control) = nullptr;
    void (*seleccionDeControl)(ControlTexto *control, int &desde, int &hasta) = nullptr;
    void (*seleccionarEnControl)(ControlTexto *control, int desde, int hasta) = nullptr;
    void (*escribirEnControl)(ControlTexto *control, std::string_view texto) = nullptr;
    void (*ponerTitulo)(Ventana *ventana, std::string_view titulo) = nullptr;
    // Each of these shows a window and returns when it is closed.
    void (*mostrarResultado)(Ventana *ventana, const SalidaResultado &salida) = nullptr;
    void (*mostrarGrafico)(Ventana *ventana, Grafico &grafico) = nullptr;
    void (*abrirDialogo)(Ventana *ventana, Dialogo cual, const DatosDialogo &datos) = nullptr;
    bool (*elegirArchivo)(Ventana *ventana, const PeticionArchivo &peticion, std::string &ruta) = nullptr;
    // The grid of the editor shows the tables anew, if it is open.
    void (*refrescarEditor)() = nullptr;
    // A note beside the results: what was accepted though a person hardly meant it. Nothing waits for it. `linea` of the batch
    // at hand, 0 for none.
    void (*nota)(std::string_view texto, int linea) = nullptr;
    // Calendar time in whole seconds, the seed of the random numbers.
    std::int32_t (*segundos)() = nullptr;
};

// Installs the operations of this run; called once at start, and by each test. `operaciones` must outlive its use.
void InstalarPlataforma(const OperacionesPlataforma &operaciones);

inline constexpr const char *TituloCancelado = "Proceso cancelado";
inline constexpr const char *TituloAviso = "Aviso";

// A modal box; returns the button that closed it.
Respuesta MostrarCaja(Ventana *ventana, std::string_view texto, std::string_view titulo, Icono icono,
                      Botones botones);

// A box with the information icon and one button.
void MostrarMensaje(Ventana *ventana, std::string_view texto, std::string_view titulo = TituloCancelado);

// The box with the title "Proceso cancelado" or "Aviso", for a check that refuses. Always returns 0.
int MensajeCancelado(Ventana *ventana, std::string_view texto);
int MensajeAviso(Ventana *ventana, std::string_view texto);

// The box "texto. Pto punto", title "Proceso cancelado". Always returns 0, the result of a routine that stops.
int MensajePunto(Ventana *ventana, std::string_view texto, int punto);

// "No hay suficiente memoria. Ptos: a b", title "Proceso cancelado"; the two numbers name the site.
void MensajeSinMemoria(int a, int b, Ventana *ventana);

// The operations of the same names. A character of the control is a byte of its text; desde <= hasta; positions outside
// the text mean its ends.
void PonerCursor(Cursor cursor);
std::string TextoDeControl(ControlTexto *control);
void SeleccionDeControl(ControlTexto *control, int &desde, int &hasta);
void SeleccionarEnControl(ControlTexto *control, int desde, int hasta);
void MostrarVentanaResultado(Ventana *ventana, const SalidaResultado &salida);
void MostrarVentanaGrafico(Ventana *ventana, Grafico &grafico);
void PonerTitulo(Ventana *ventana, std::string_view titulo);
void RefrescarEditor();
void PonerNota(std::string_view texto, int linea);
std::int32_t SegundosDeCalendario();

// Puts a text in the place of the control's selection, so that the control's undo takes it back.
void EscribirEnControl(ControlTexto *control, std::string_view texto);

// Asks for a file. False when the user cancels, else `ruta` is the path as platform/archivos.h takes it.
bool ElegirArchivo(Ventana *ventana, const PeticionArchivo &peticion, std::string &ruta);

// The installed table, for who stands before it and hands most calls on.
const OperacionesPlataforma &Plataforma();
