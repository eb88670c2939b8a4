// The commands of the work file.
#include "data/trabajo.h"

#include "data/copia_seguridad.h"
#include "data/fichero_trabajo.h"
#include "estimation/regresion.h"
#include "platform/archivos.h"
#include "platform/campos_texto.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <string_view>

EstadoDeTrabajo Trabajo;

namespace {

constexpr std::size_t LargoNombre = 8;                   // characters of a file's name that name the project
constexpr std::string_view NombreSinElegir = "PROYEC01"; // what the dialog of the data type proposes

constexpr FormatoArchivo Formatos[] = {{"tr2", "Archivos de trabajo (*.TR2)"}};

std::string Nombre() {
    return std::string(Recortado(ArchivoTrabajo.NombreProyecto, RecorteDerecha));
}

// The name of the project that a file has.
std::string NombreDeFichero(const std::string &ruta) {
    const std::string nombre = NombreDeRuta(ruta).substr(0, LargoNombre);
    return std::string(Recortado(nombre, RecorteDerecha));
}

void PonerNombre(std::string_view nombre) {
    PonerCampo(ArchivoTrabajo.NombreProyecto, nombre, AnchoProyecto);
}

bool Elegir(Ventana *ventana, bool guardar, std::string &ruta) {
    const std::string propuesto = guardar ? Nombre() + ".TR2" : std::string("*.TR2");
    const char *titulo = guardar ? "Guardar archivo de trabajo" : "Abrir archivo de trabajo";
    const std::string carpeta = CarpetaDeRuta(Trabajo.ruta);
    return ElegirArchivo(
        ventana,
        {.guardar = guardar, .titulo = titulo, .formatos = Formatos, .nombre = propuesto, .carpeta = carpeta},
        ruta);
}

// Writes under the name of the file, which is the project's then. A failure leaves the old one.
bool Escribir(Ventana *ventana, const std::string &ruta) {
    const std::string anterior = Nombre();
    PonerCursor(CursorEspera);
    PonerNombre(NombreDeFichero(ruta));
    const bool bien = EscribirFicheroTrabajo(ruta);
    PonerCursor(CursorFlecha);
    if (!bien) {
        PonerNombre(anterior);
        return MensajeCancelado(ventana, "Error al guardar el archivo de trabajo") == 1;
    }
    Trabajo.ruta = ruta;
    AnotarTrabajoGuardado();
    return true;
}

bool Abrir(Ventana *ventana) {
    std::string ruta;
    if (!Elegir(ventana, false, ruta) || !LeerTrabajo(ventana, ruta)) return false;
    PonerNombre(NombreDeFichero(ruta));
    Trabajo.ruta = ruta;
    AnotarTrabajoGuardado();
    return true;
}

bool PreguntarYGuardar(Ventana *ventana) {
    std::string ruta;
    return Elegir(ventana, true, ruta) && Escribir(ventana, ruta);
}

// Saving without a dialog, as far as it's clear where: work must not go silently to a file that nobody named.
bool Guardar(Ventana *ventana) {
    if (Trabajo.ruta.empty()) return PreguntarYGuardar(ventana);
    if (NombreDeFichero(Trabajo.ruta) == Nombre()) return Escribir(ventana, Trabajo.ruta);
    const std::string ruta = RutaJunto(Trabajo.ruta, Nombre() + ".TR2");
    if (ruta.empty() || !ExisteArchivo(ruta)) return PreguntarYGuardar(ventana);
    if (MostrarCaja(ventana, "El archivo ya existe ¿Sobreescribir?"_w, TituloAviso, IconoAlto,
                    BotonesAceptarCancelar) != RespuestaAceptar)
        return false;
    return Escribir(ventana, ruta);
}

// The steps that the three commands share.
bool EjecutarPasos(Ventana *ventana, ComandosDeTrabajo comando) {
    if (comando == AbrirTrabajo) IniciarRegresion();
    if (ArchivoTrabajo.TipoDatos == SinTipoDatos) {
        ArchivoTrabajo.TipoDatos = TipoSinPeriodicidad;
        ArchivoTrabajo.ConEtiquetas = 0;
        VaciarArchivoTrabajo();
    }
    ActualizarMuestra();
    bool hecho = false;
    switch (comando) {
    case AbrirTrabajo: hecho = Abrir(ventana); break;
    case GuardarTrabajo: hecho = Guardar(ventana); break;
    case GuardarTrabajoComo: hecho = PreguntarYGuardar(ventana); break;
    }
    if (comando == AbrirTrabajo) Trabajo.UltimoNombreGuardado = Nombre();
    ActualizarMuestra();
    LimpiarLimitesMuestra(); // the bounds themselves follow at the next command
    PonerTituloTrabajo(ventana);
    return hecho;
}

} // namespace

bool EjecutarTrabajo(Ventana *ventana, ComandosDeTrabajo comando) {
    if (comando == GuardarTrabajo) {
        if (Nombre() == NombreSinElegir) return EjecutarTrabajo(ventana, GuardarTrabajoComo);
        // At first the two differ by their start values: a first save always asks for a name.
        if (Nombre() != Trabajo.UltimoNombreGuardado) {
            const bool hecho = EjecutarTrabajo(ventana, GuardarTrabajoComo);
            Trabajo.UltimoNombreGuardado = Nombre();
            return hecho;
        }
    }
    // Before the dialog: a save under a new name leaves the old one here, and the next save asks once more.
    if (comando == GuardarTrabajoComo) Trabajo.UltimoNombreGuardado = Nombre();
    return EjecutarPasos(ventana, comando);
}

bool LeerTrabajo(Ventana *ventana, const std::string &ruta) {
    // By LecturasDeTablas.
    static constexpr const char *Rechazos[] = {
        nullptr, "Error al abrir el archivo", "El archivo no es un archivo de trabajo",
        "El archivo de trabajo es de una versión posterior del programa"_w,
        "El archivo de trabajo está dañado"_w};
    PonerCursor(CursorEspera);
    const LecturasDeTablas resultado = LeerFicheroTrabajo(ruta);
    PonerCursor(CursorFlecha);
    return resultado == TablasLeidas || MensajeCancelado(ventana, Rechazos[resultado]) == 1;
}

void PonerTituloTrabajo(Ventana *ventana) {
    PonerTitulo(ventana, "Tabira: " + Nombre());
}
