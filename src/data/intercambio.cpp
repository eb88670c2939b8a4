// ASCII exchange: what stands before the transfer, and the transfer between tables and file.
#include "data/intercambio.h"

#include "language/lote_sentencias.h"
#include "platform/archivo_dado.h"
#include "platform/archivos.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <algorithm>

EstadoIntercambio Intercambio;

namespace {

// A box within the transfer, which has the wait cursor: the arrow while the box is open.
Respuesta CajaEnTransferencia(Ventana *ventana, const char *texto, const char *titulo, Icono icono,
                              Botones botones) {
    PonerCursor(CursorFlecha);
    const Respuesta r = MostrarCaja(ventana, texto, titulo, icono, botones);
    PonerCursor(CursorEspera);
    return r;
}

bool Rechazar(Ventana *ventana, const char *texto) {
    CajaEnTransferencia(ventana, texto, TituloCancelado, IconoInformacion, BotonesAceptar);
    return false;
}

bool ImportarArchivo(Ventana *ventana, const OpcionesIntercambio &opciones, const std::string &archivo) {
    std::string bytes;
    if (!LeerArchivo(archivo, bytes)) return Rechazar(ventana, "Error al abrir el archivo");
    ImportarTexto(opciones, Texto1252DeArchivo(bytes), Muestra.InicioMuestra, Muestra.FinMuestra);
    return true;
}

bool ExportarArchivo(Ventana *ventana, const OpcionesIntercambio &opciones, const std::string &archivo,
                     int decimales) {
    if (ExisteArchivo(archivo) &&
        CajaEnTransferencia(ventana, "El archivo ya existe ¿Sobreescribir?"_w, TituloAviso, IconoAlto,
                            BotonesAceptarCancelar) != RespuestaAceptar)
        return false;
    const std::string texto =
        TextoDeExportacion(opciones, Muestra.InicioMuestra, Muestra.FinMuestra, decimales);
    return EscribirArchivo(archivo, texto) || Rechazar(ventana, "Error al abrir el archivo");
}

bool Transferir(Ventana *ventana, OpcionesIntercambio &opciones, std::string &archivo, int decimales) {
    opciones.Aceptado = 1;
    if (opciones.FormatoElegido == 0) return Rechazar(ventana, "Opciones no válidas"_w);
    if (!AjustarNombreArchivo(archivo)) return Rechazar(ventana, "Nombre archivo incorrecto");
    Lote.DecimalesSalida = decimales;
    return opciones.Importando != 0 ? ImportarArchivo(ventana, opciones, archivo)
                                    : ExportarArchivo(ventana, opciones, archivo, decimales);
}

// The first character other than a blank among the three that the dialog reads from an edit field; 0 for none.
char PrimerCaracter(std::string_view edicion) {
    const std::string_view leido = edicion.substr(0, 3);
    const std::size_t i = leido.find_first_not_of(' ');
    return i == std::string_view::npos ? '\0' : leido[i];
}

} // namespace

const char *TituloIntercambio(bool importando) {
    return importando ? "Importación de Series"_w : "Exportación de Series"_w;
}

bool ElegirArchivoDeIntercambio(Ventana *ventana) {
    static constexpr FormatoArchivo Formatos[] = {{"txt", "Archivos de texto (*.TXT)"}};
    Intercambio.archivo = ArchivoSinElegir;
    // Which names may be written, and over which files, is the transfer's own question.
    return ElegirArchivo(ventana,
                         {.guardar = Intercambio.opciones.Importando == 0,
                          .titulo = "Seleccionar archivo",
                          .formatos = Formatos,
                          .nombre = {},
                          .nombreLibre = true},
                         Intercambio.archivo);
}

void IntercambiarAscii(Ventana *ventana, bool importando) {
    if (!EmpezarIntercambio(ventana, importando, Intercambio.opciones)) return;
    Intercambio.archivo = ArchivoSinElegir;
    if (importando && HayArchivoDado()) ElegirArchivoDeIntercambio(ventana);
    Intercambio.decimales = Lote.DecimalesSalida;
    AbrirDialogo(ventana, Dialogo::Intercambio);
    if (Intercambio.opciones.Aceptado == 0) {
        Intercambio.archivo = ArchivoSinElegir;
        return;
    }
    IntercambioAscii(ventana, Intercambio.opciones, Intercambio.archivo, Intercambio.decimales);
}

bool EmpezarIntercambio(Ventana *ventana, bool importando, OpcionesIntercambio &opciones) {
    if (ArchivoTrabajo.TipoDatos >= SinTipoDatos) {
        MostrarMensaje(ventana, "Tipo de datos no válidos"_w);
        return false;
    }
    Respuesta sustituir = RespuestaNo;
    if (importando && ArchivoTrabajo.NumSeries > 0) {
        sustituir = MostrarCaja(ventana, "Existen Series ¿Desea sustituirlas?"_w, TituloAviso, IconoPregunta,
                                BotonesSiNoCancelar);
        if (sustituir == RespuestaCancelar) return false;
    }
    opciones = {};
    opciones.Importando = importando ? 1 : 0;
    opciones.SustituirSeries = sustituir == RespuestaSi ? 1 : 0;
    return true;
}

bool AjustarNombreArchivo(std::string &archivo) {
    // The hyphen is refused in the folders of the path too.
    if (archivo.empty() || archivo.find_first_of("*?-") != std::string::npos) return false;
    if (archivo.find('.') == std::string::npos) archivo += ".TXT";
    return true;
}

bool IntercambioAscii(Ventana *ventana, OpcionesIntercambio &opciones, std::string archivo, int decimales) {
    PonerCursor(CursorEspera);
    const bool hecho = Transferir(ventana, opciones, archivo, decimales);
    PonerCursor(CursorFlecha);
    return hecho;
}

void AceptarFormatoVariable(const ValoresFormatoVariable &valores, OpcionesIntercambio &opciones) {
    const bool panel = ArchivoTrabajo.TipoDatos == TipoPanel;
    switch (valores.separador) {
    case SeparadorComas: opciones.Separador = ','; break;
    case SeparadorTabuladores: opciones.Separador = '\t'; break;
    case SeparadorOtros: opciones.Separador = PrimerCaracter(valores.otroSeparador); break;
    }
    if (valores.separador == SeparadorOtros && static_cast<unsigned char>(opciones.Separador) < ' ')
        opciones.Separador = ' '; // an empty field, or a control character
    switch (valores.delimitador) {
    case DelimitadorComillas: opciones.Delimitador = '"'; break;
    case DelimitadorNada: opciones.Delimitador = '\0'; break;
    case DelimitadorOtros: opciones.Delimitador = PrimerCaracter(valores.otroDelimitador); break;
    }
    opciones.SoloEtiquetas = valores.delimitadasSoloEtiquetas ? 1 : 0;
    opciones.PrimerRegistroCodigos = valores.primerRegistroCodigos ? 1 : 0;
    opciones.ModoEtiquetas = valores.primerCampoEtiquetas ? EtiquetasPrimerCampo : SinEtiquetas;
    if (panel && valores.tercerCampoEtiquetas) opciones.ModoEtiquetas = EtiquetasTercerCampo;
    opciones.DecimalesConComas = valores.decimalesConComas ? 1 : 0;
    opciones.CamposPanel = panel && valores.camposPanel ? 1 : 0;
    opciones.FormatoElegido = 1;
    opciones.FormatoVariable = 1;
}

void ActualizarLimitesSeries() {
    CabeceraArchivo &a = ArchivoTrabajo;
    const int series = std::min<int>(a.NumSeries, MaxSeries);
    for (int s = 0; s < series; ++s) a.PrimeraObs[s] = -1;
    // By rows, as the table lies in memory.
    for (int i = 0; i < MaxObservaciones; ++i) {
        for (int s = 0; s < series; ++s) {
            if (a.PresenciaObs[i][s] != 1) continue;
            a.UltimaObs[s] = static_cast<std::int16_t>(i);
            if (a.PrimeraObs[s] < 0) a.PrimeraObs[s] = static_cast<std::int16_t>(i);
        }
    }
    for (int s = 0; s < series; ++s)
        if (a.PrimeraObs[s] < 0) a.PrimeraObs[s] = a.UltimaObs[s] = 0;
}
