// Print jobs.
#include "charts/resultados/impresion.h"

#include "charts/resultados/forma_ventana.h"

#include <algorithm>

namespace {

struct DocumentoImpresion {
    DispositivoImpresion *dispositivo;
    bool conDocumento, conPagina;
};

// The two documents that a job may hold open: its own with the first page, and that of the last page change.
struct EstadoImpresion {
    DocumentoImpresion propio, siguiente;
};

EstadoImpresion Impresion;

RutinaDeImpresion RutinaDe(int clase) {
    const auto fila = std::find_if(TablaImpresion.begin(), TablaImpresion.end(),
                                   [clase](const FilaDeImpresion &f) { return f.clase == clase; });
    return fila != TablaImpresion.end() ? fila->rutina : nullptr;
}

bool IniciarDocumento(DocumentoImpresion &d, const char *nombre) {
    d.conDocumento = ImpresoraEnUso().iniciarDocumento(d.dispositivo, nombre);
    return d.conDocumento;
}

bool IniciarPagina(DocumentoImpresion &d) {
    d.conPagina = ImpresoraEnUso().iniciarPagina(d.dispositivo);
    return d.conPagina;
}

// Ends what is open, from the page to the device. False when a step fails; the later ones are taken all the same.
bool CerrarDocumento(DocumentoImpresion &d) {
    if (d.dispositivo == nullptr) return true;
    bool bien = true;
    if (d.conPagina) bien = ImpresoraEnUso().terminarPagina(d.dispositivo);
    if (d.conDocumento) bien = ImpresoraEnUso().terminarDocumento(d.dispositivo) && bien;
    ImpresoraEnUso().cerrar(d.dispositivo);
    d = {};
    return bien;
}

bool HacerTrabajo(Ventana *ventana, RutinaDeImpresion rutina, const void *datos) {
    DocumentoImpresion &d = Impresion.propio;
    d = {.dispositivo = AbrirImpresora(), .conDocumento = false, .conPagina = false};
    if (d.dispositivo == nullptr) return false;
    bool bien = IniciarDocumento(d, "Imprime1: Imprimiendo") && IniciarPagina(d) &&
                rutina(d.dispositivo, ventana, datos);
    bien = CerrarDocumento(d) && bien;
    // No page change follows that would end the document of the last one.
    return CerrarDocumento(Impresion.siguiente) && bien;
}

DispositivoImpresion *ErrorDePagina(Ventana *ventana, const char *texto) {
    MostrarMensaje(ventana, texto, TituloAviso);
    CerrarDocumento(Impresion.siguiente);
    return nullptr;
}

} // namespace

DispositivoImpresion *AbrirImpresora() {
    return ImpresoraEnUso().abrir();
}

int ImprimirSalida(Ventana *ventana, std::string_view titulo, int clase, const void *datos) {
    const RutinaDeImpresion rutina = RutinaDe(clase);
    if (rutina == nullptr || datos == nullptr) return 1;
    PonerCursor(CursorEspera);
    ImpresoraEnUso().empezarTrabajo(titulo);
    const bool bien = HacerTrabajo(ventana, rutina, datos);
    ImpresoraEnUso().terminarTrabajo();
    PonerCursor(CursorFlecha);
    return bien ? 0 : 1;
}

int ImprimirResultado(Ventana *ventana, const SalidaResultado &salida) {
    return ImprimirSalida(ventana, salida.titulo, FormaDe(salida).claseImpresion, &salida);
}

DispositivoImpresion *NuevaPaginaImpresion(Ventana *ventana, int primera) {
    DocumentoImpresion &d = Impresion.siguiente;
    if (primera == 0) CerrarDocumento(d);
    d = {.dispositivo = AbrirImpresora(), .conDocumento = false, .conPagina = false};
    if (d.dispositivo == nullptr) return ErrorDePagina(ventana, "Error imprimiedo. 1");
    if (!IniciarDocumento(d, "Imprime: Imprimiendo")) return ErrorDePagina(ventana, "Error imprimiedo. 3");
    if (!IniciarPagina(d)) return ErrorDePagina(ventana, "Error imprimiedo. 2");
    return d.dispositivo;
}

bool TerminarPaginaImpresion(DispositivoImpresion *dispositivo) {
    DocumentoImpresion &d =
        dispositivo == Impresion.propio.dispositivo ? Impresion.propio : Impresion.siguiente;
    d.conPagina = false;
    return ImpresoraEnUso().terminarPagina(dispositivo);
}
