// The seam: what the core asks of the outside. A routine of the core calls a free function of this file; behind it
// stands the table of operations that the executable installs at start: the desktop's, the batch runner's or a
// test's. Text that passes here is text of the core (Windows-1252).
#pragma once

#include "platform/literal.h"
#include "platform/superficie.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

struct Ventana;         // a window of the outside; the core only hands it on
struct ControlTexto;    // a text control of the outside
struct SalidaResultado; // a result window (charts/resultados/resultado.h)

enum Icono { IconoInformacion, IconoPregunta, IconoExclamacion, IconoAlto };
enum Botones { BotonesAceptar, BotonesAceptarCancelar, BotonesSiNo, BotonesSiNoCancelar };
enum Respuesta { RespuestaAceptar, RespuestaCancelar, RespuestaSi, RespuestaNo };
enum Cursor { CursorFlecha, CursorEspera };

// A document of the printer, or what stands in for it (platform/impresora_grabadora.h has the one that records).
struct DispositivoImpresion;

struct OperacionesPlataforma {
    Respuesta (*caja)(Ventana *ventana, std::string_view texto, std::string_view titulo, Icono icono,
                      Botones botones);
    void (*cursor)(Cursor cursor);
    // The whole text of a control and its selection, [desde, hasta) in characters.
    std::string (*textoDeControl)(ControlTexto *control);
    void (*seleccionDeControl)(ControlTexto *control, int &desde, int &hasta);
    void (*seleccionarEnControl)(ControlTexto *control, int desde, int hasta);
    // Shows a result window and returns when it is closed.
    void (*mostrarResultado)(Ventana *ventana, const SalidaResultado &salida);
    // The grid of the editor shows the tables anew, if it is open.
    void (*refrescarEditor)();
    // Around every print job, whatever documents it opens: what the user is told about it and where its pages go is
    // decided here.
    void (*empezarTrabajo)(std::string_view titulo);
    void (*terminarTrabajo)();
    // Steps of a print job: null, or false, when the printer refuses.
    DispositivoImpresion *(*abrirImpresora)();
    bool (*iniciarDocumento)(DispositivoImpresion *dispositivo, const char *nombre);
    bool (*iniciarPagina)(DispositivoImpresion *dispositivo);
    Superficie *(*superficieDePagina)(DispositivoImpresion *dispositivo);
    bool (*terminarPagina)(DispositivoImpresion *dispositivo);
    bool (*terminarDocumento)(DispositivoImpresion *dispositivo);
    void (*cerrarImpresora)(DispositivoImpresion *dispositivo);
    // Calendar time in whole seconds, the seed of the random numbers.
    std::int32_t (*segundos)();
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
void RefrescarEditor();
const OperacionesPlataforma &Plataforma(); // for the print jobs, which use their operations one by one
std::int32_t SegundosDeCalendario();
