// The commands of the editor.
#include "data/comandos_editor.h"

#include "charts/resultados/seleccion.h"
#include "data/editor_matrices.h"
#include "data/editor_series.h"
#include "data/intercambio.h"
#include "data/observaciones.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/periodos.h"

namespace {

// Most commands of the series begin so: the codes are checked and the series close up. A code that is refused leaves the
// position as it was, behind its message.
template <void (*hacer)(Ventana *)> bool TrasValidar(Ventana *ventana) {
    if (!ValidarYCompactar(ventana)) return false;
    hacer(ventana);
    PosicionInicial();
    return false;
}

void Nada(Ventana *) {}

bool BorrarSeries(Ventana *) {
    BorrarTodasLasSeries(true);
    PosicionInicial();
    return false;
}

// The head row stands for no observation, whatever rows are hidden above it.
bool EliminarLaObservacion(Ventana *ventana) {
    if (!ValidarYCompactar(ventana)) return false;
    const int fila = FilaDeCelda(Editor.CeldaActual);
    if (fila > 0 && EliminarObservacion(ventana, fila - 1 + Editor.FilaInicial)) {
        PosicionInicial();
    } else {
        IrACelda(Editor.CeldaActual); // the series may have closed up
    }
    return false;
}

void Ordenar(Ventana *ventana) {
    AbrirDialogo(ventana, Dialogo::OrdenarSeries);
}

void ElegirDecimales(Ventana *ventana) {
    AbrirDialogo(ventana, Dialogo::Decimales);
}

void ListarSeriesElegidas(Ventana *ventana) {
    ActualizarLimitesSeries();
    ActualizarMuestra();
    AbrirDialogo(ventana, Dialogo::Seleccion, {SeleccionDeSeries});
}

void VerAyuda(Ventana *ventana) {
    AbrirDialogo(ventana, Dialogo::Ayuda, {PaginaEdicion});
}

// The box with the size of the window comes first, whatever the codes are: it has always been there.
bool Ayudar(Ventana *ventana) {
    MostrarMensaje(ventana, Formatear("%d %d", Editor.ancho, Editor.alto), "final peropero");
    return TrasValidar<VerAyuda>(ventana);
}

bool SalirDeSeries(Ventana *ventana) {
    if (!ValidarYCompactar(ventana)) return false;
    PosicionInicial();
    if (ArchivoTrabajo.NumObs <= MaxObservaciones) ActualizarLimitesSeries();
    return true;
}

bool NoEstaEnsamblada(Ventana *ventana) {
    AbrirDialogo(ventana, Dialogo::NoEnsamblada);
    return false;
}

template <int (*rutina)(Ventana *)> bool DeMatriz(Ventana *ventana) {
    rutina(ventana);
    return false;
}

bool Blanquear(Ventana *) {
    BlanquearAreaMatriz();
    return false;
}

bool DecimalesDeMatriz(Ventana *ventana) {
    LeerCodigoMatriz(ventana, false);
    ElegirDecimales(ventana);
    PosicionInicial();
    return false;
}

bool ListarMatricesElegidas(Ventana *ventana) {
    AbrirDialogo(ventana, Dialogo::Seleccion, {SeleccionDeMatrices});
    return false;
}

// What was typed and not stored goes without a question, also when a code of the series then keeps the editor open.
bool SalirDeMatrices(Ventana *ventana) {
    BlanquearAreaMatriz();
    return SalirDeSeries(ventana);
}

constexpr ComandoDeEditor DeSeries[] = {
    {EditorRestaurar, "&Restaurar pantalla", nullptr, TrasValidar<Nada>},
    {EditorBorrarSeries, "&Borrar todas las series", nullptr, BorrarSeries},
    {EditorEliminarObservacion, "&Eliminar observación..."_w, ConObservacionesLibres, EliminarLaObservacion},
    {EditorOrdenarSeries, "&Ordenar series...", ConObservacionesLibres, TrasValidar<Ordenar>},
    {EditorSalir, "&Salir", nullptr, SalirDeSeries},
    {EditorDecimales, "&Decimales", nullptr, TrasValidar<ElegirDecimales>},
    {EditorImprimir, "&Imprimir", nullptr, TrasValidar<ListarSeriesElegidas>},
    {EditorAyuda, "&Ayuda", nullptr, Ayudar},
    {EditorSinEnsamblar, nullptr, nullptr, NoEstaEnsamblada},
};

constexpr ComandoDeEditor DeMatrices[] = {
    {EditorSalvarMatriz, "&Salvar matriz", nullptr, DeMatriz<SalvarMatriz>},
    {EditorBorrarMatriz, "&Borrar matriz", nullptr, DeMatriz<BorrarMatrizDelEditor>},
    {EditorBlanquear, "Blanquear &pantalla", nullptr, Blanquear},
    {EditorMostrarMatriz, "M&ostrar matriz", nullptr, DeMatriz<MostrarMatriz>},
    {EditorSalir, "Sa&lir", nullptr, SalirDeMatrices},
    {EditorDecimales, "&Decimales", nullptr, DecimalesDeMatriz},
    {EditorImprimir, "&Imprimir", nullptr, ListarMatricesElegidas},
    {EditorAyuda, "&Ayuda", nullptr, Ayudar},
};

} // namespace

std::span<const ComandoDeEditor> ComandosDelEditor(ModosDeEditor modo) {
    if (modo == EditorDeMatrices) return DeMatrices;
    return DeSeries;
}

bool EjecutarComandoEditor(Ventana *ventana, int id) {
    for (const ComandoDeEditor &c : ComandosDelEditor(static_cast<ModosDeEditor>(Editor.ModoEditor)))
        if (c.id == id) return (c.habilitado == nullptr || c.habilitado()) && c.rutina(ventana);
    return false;
}

const char *TituloDelEditor() {
    return Editor.ModoEditor == EditorDeMatrices ? "Editor de matrices" : "Editor de series";
}
