// The examples of the program.
#include "shell/ejemplos.h"

#include "data/copia_seguridad.h"
#include "data/fichero_sentencias.h"
#include "data/intercambio.h"
#include "data/trabajo.h"
#include "estimation/regresion.h"
#include "platform/archivos.h"
#include "platform/datos_programa.h"
#include "platform/texto.h"
#include "shell/barra_estado.h"
#include "store/tipos_datos.h"

#include <iterator>
#include <string>

// The Nile's years begin before 1900, which no annual data do.
const Ejemplo TablaEjemplos[] = {
    {"&Klein: economía de Estados Unidos, 1920 a 1941"_w, "klein.csv", "KLEIN", TipoAnual, "1920", "1941"},
    {"&Longley: empleo en Estados Unidos, 1947 a 1962", "longley.csv", "LONGLEY", TipoAnual, "1947", "1962"},
    {"&Pasajeros de líneas aéreas, 1949 a 1960, por meses"_w, "pasajeros.csv", "PASAJERO", TipoMensual,
     "1949.01", "1960.12"},
    {"&Nilo: caudal en Asuán, 1871 a 1970"_w, "nilo.csv", "NILO", TipoSinPeriodicidad, "", ""},
    {"N&orris: calibración de un aparato, 36 medidas"_w, "norris.csv", "NORRIS", TipoSinPeriodicidad, "", ""},
    {"Pon&tius: deformación de una célula de carga, 40 medidas"_w, "pontius.csv", "PONTIUS",
     TipoSinPeriodicidad, "", ""},
    {"&Sentencias: función de consumo de Klein"_w, "klein.txt", nullptr, SinTipoDatos, "", ""},
};

const int NumEjemplos = static_cast<int>(std::size(TablaEjemplos));

namespace {

// False when the present work is to stay.
bool PuedeIrseElTrabajo(Ventana *ventana) {
    if (!HayTrabajoSinGuardar()) return true;
    const Respuesta r =
        MostrarCaja(ventana, "¿Desea guardar su trabajo?"_w, TituloAviso, IconoPregunta, BotonesSiNoCancelar);
    return r == RespuestaNo || (r == RespuestaSi && EjecutarTrabajo(ventana, GuardarTrabajo));
}

// What the user does in the dialogs of the data type and of the import.
void PonerDatos(Ventana *ventana, const Ejemplo &e, const std::string &bytes) {
    IniciarRegresion();
    PropuestaTipoDatos propuesta;
    propuesta.nombre = e.nombre;
    propuesta.tipo = e.tipo;
    propuesta.inicio = e.inicio;
    propuesta.fin = e.fin;
    AceptarDialogoDelTipo(ventana, propuesta);
    LimpiarLimitesMuestra();
    ActualizarMuestra();
    OpcionesIntercambio opciones;
    opciones.Importando = 1;
    ValoresFormatoVariable formato;
    formato.primerRegistroCodigos = true;
    AceptarFormatoVariable(formato, opciones);
    ImportarTexto(opciones, Texto1252DeArchivo(bytes), Muestra.InicioMuestra, Muestra.FinMuestra);
    ActualizarMuestra();
    RefrescarEditor();
}

} // namespace

bool AbrirEjemplo(Ventana *ventana, ControlTexto *pantalla, int cual) {
    const Ejemplo &e = TablaEjemplos[cual];
    const std::string carpeta = CarpetaDeDatos(DatosDelPrograma::Ejemplos);
    if (carpeta.empty()) return MensajeCancelado(ventana, "No se encuentran los ejemplos del programa") == 1;
    const std::string ruta = carpeta + "/" + e.fichero;
    if (e.nombre == nullptr) return AbrirFicheroSentencias(ventana, pantalla, ruta);
    std::string bytes;
    if (!LeerArchivo(ruta, bytes)) return MensajeCancelado(ventana, "Error al abrir el archivo") == 1;
    if (!PuedeIrseElTrabajo(ventana)) return false;
    PonerDatos(ventana, e, bytes);
    Trabajo = {}; // no file is the work's: the next save asks for one
    AnotarTrabajoGuardado();
    PonerTituloTrabajo(ventana);
    OlvidarMensajeDeBarra(); // what the import noted is known of these files
    PonerNota("Ejemplo " + std::string(e.nombre) + ": " + std::to_string(ArchivoTrabajo.NumSeries) +
                  (ArchivoTrabajo.NumSeries == 1 ? " serie, " : " series, ") +
                  std::to_string(Muestra.FinMuestra - Muestra.InicioMuestra + 1) + " observaciones",
              0);
    return true;
}
