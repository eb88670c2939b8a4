// The desktop: its windows, its printer, and every dialog of the program.
#include "shell/ventanas/escritorio.h"

#include "charts/resultados/ventanas/ventana_resultado_qt.h"
#include "platform/qt/impresora_qt.h"
#include "shell/ventanas/dialogos.h"
#include "shell/ventanas/ventana_principal.h"
#include "store/ventanas/dialogo_tipo_datos.h"

namespace {

constexpr FilaDeDialogo Dialogos[] = {
    {Dialogo::TipoDatos, ElegirTipoDatos},
    {Dialogo::Muestra, DialogoMuestra},
    {Dialogo::MuestraActual, DialogoMuestraActual},
    {Dialogo::Lista, DialogoLista},
    {Dialogo::UltimaRegresion, DialogoUltimaRegresion},
    {Dialogo::NoEnsamblada, DialogoNoEnsamblada},
    {Dialogo::Ayuda, DialogoAyuda},
};

// No routine draws a chart yet.
void MostrarGraficoQt(Ventana *ventana, Grafico &) {
    AbrirDialogo(ventana, Dialogo::NoEnsamblada);
}

} // namespace

std::span<const FilaDeDialogo> TablaDeDialogos() {
    return Dialogos;
}

void InstalarVentanas() {
    InstalarPlataformaQt({MostrarResultadoQt, MostrarGraficoQt, Dialogos});
}

void PrepararEscritorio() {
    InstalarVentanas();
    InstalarImpresoraQt();
    InstalarOperacionesEscritorio();
}
