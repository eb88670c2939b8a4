// The free functions of the seam: each hands its call to the installed table of operations.
#include "platform/plataforma.h"

#include "platform/texto.h"

namespace {
const OperacionesPlataforma *Instalada = nullptr;
}

void InstalarPlataforma(const OperacionesPlataforma &operaciones) {
    Instalada = &operaciones;
}

const OperacionesPlataforma &Plataforma() {
    return *Instalada;
}

Respuesta MostrarCaja(Ventana *ventana, std::string_view texto, std::string_view titulo, Icono icono,
                      Botones botones) {
    return Instalada->caja(ventana, texto, titulo, icono, botones);
}

void MostrarMensaje(Ventana *ventana, std::string_view texto, std::string_view titulo) {
    MostrarCaja(ventana, texto, titulo, IconoInformacion, BotonesAceptar);
}

int MensajeCancelado(Ventana *ventana, std::string_view texto) {
    MostrarMensaje(ventana, texto);
    return 0;
}

int MensajeAviso(Ventana *ventana, std::string_view texto) {
    MostrarMensaje(ventana, texto, TituloAviso);
    return 0;
}

int MensajePunto(Ventana *ventana, std::string_view texto, int punto) {
    MostrarMensaje(ventana, std::string(texto) + Formatear(". Pto %d", punto));
    return 0;
}

void MensajeSinMemoria(int a, int b, Ventana *ventana) {
    MostrarMensaje(ventana, Formatear("No hay suficiente memoria. Ptos: %d %d", a, b));
}

void PonerCursor(Cursor cursor) {
    Instalada->cursor(cursor);
}

std::string TextoDeControl(ControlTexto *control) {
    return Instalada->textoDeControl(control);
}

void SeleccionDeControl(ControlTexto *control, int &desde, int &hasta) {
    Instalada->seleccionDeControl(control, desde, hasta);
}

void SeleccionarEnControl(ControlTexto *control, int desde, int hasta) {
    Instalada->seleccionarEnControl(control, desde, hasta);
}

void MostrarVentanaResultado(Ventana *ventana, const SalidaResultado &salida) {
    Instalada->mostrarResultado(ventana, salida);
}

void RefrescarEditor() {
    Instalada->refrescarEditor();
}

std::int32_t SegundosDeCalendario() {
    return Instalada->segundos();
}
