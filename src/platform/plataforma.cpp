// The free functions of the seam: each hands its call to the installed table of operations.
#include "platform/plataforma.h"

#include "platform/archivo_dado.h"
#include "platform/texto.h"
#include "platform/ultima_caja.h"

#include <utility>

namespace {
const OperacionesPlataforma *Instalada = nullptr;
std::string Dado; // the file that was named beforehand
} // namespace

CajasMostradas UltimaCaja;

void InstalarPlataforma(const OperacionesPlataforma &operaciones) {
    Instalada = &operaciones;
}

const OperacionesPlataforma &Plataforma() {
    return *Instalada;
}

Respuesta MostrarCaja(Ventana *ventana, std::string_view texto, std::string_view titulo, Icono icono,
                      Botones botones) {
    UltimaCaja.textos[static_cast<std::size_t>(UltimaCaja.numero++ % CajasRecordadas)] = texto;
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
    if (Instalada->cursor != nullptr) Instalada->cursor(cursor);
}

std::string TextoDeControl(ControlTexto *control) {
    return Instalada->textoDeControl != nullptr ? Instalada->textoDeControl(control) : std::string();
}

void SeleccionDeControl(ControlTexto *control, int &desde, int &hasta) {
    desde = hasta = 0;
    if (Instalada->seleccionDeControl != nullptr) Instalada->seleccionDeControl(control, desde, hasta);
}

void SeleccionarEnControl(ControlTexto *control, int desde, int hasta) {
    if (Instalada->seleccionarEnControl != nullptr) Instalada->seleccionarEnControl(control, desde, hasta);
}

void EscribirEnControl(ControlTexto *control, std::string_view texto) {
    if (Instalada->escribirEnControl != nullptr) Instalada->escribirEnControl(control, texto);
}

void PonerTitulo(Ventana *ventana, std::string_view titulo) {
    if (Instalada->ponerTitulo != nullptr) Instalada->ponerTitulo(ventana, titulo);
}

void MostrarVentanaResultado(Ventana *ventana, const SalidaResultado &salida) {
    if (Instalada->mostrarResultado != nullptr) Instalada->mostrarResultado(ventana, salida);
}

void MostrarVentanaGrafico(Ventana *ventana, Grafico &grafico) {
    if (Instalada->mostrarGrafico != nullptr) Instalada->mostrarGrafico(ventana, grafico);
}

void AbrirDialogo(Ventana *ventana, Dialogo cual, const DatosDialogo &datos) {
    if (Instalada->abrirDialogo != nullptr) Instalada->abrirDialogo(ventana, cual, datos);
}

void DarArchivo(const std::string &ruta) {
    Dado = ruta;
}

bool HayArchivoDado() {
    return !Dado.empty();
}

bool ElegirArchivo(Ventana *ventana, const PeticionArchivo &peticion, std::string &ruta) {
    if (!peticion.guardar && HayArchivoDado()) {
        ruta = std::exchange(Dado, {});
        return true;
    }
    return Instalada->elegirArchivo != nullptr && Instalada->elegirArchivo(ventana, peticion, ruta);
}

void RefrescarEditor() {
    if (Instalada->refrescarEditor != nullptr) Instalada->refrescarEditor();
}

void PonerNota(std::string_view texto, int linea) {
    if (Instalada->nota != nullptr) Instalada->nota(texto, linea);
}

std::int32_t SegundosDeCalendario() {
    return Instalada->segundos != nullptr ? Instalada->segundos() : 0;
}
