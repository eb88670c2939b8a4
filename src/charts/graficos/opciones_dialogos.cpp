// What the option dialogs of charts decide.
#include "charts/graficos/opciones_dialogos.h"

#include "platform/campos_texto.h"
#include "platform/numeros.h"
#include "platform/texto.h"

#include <array>

namespace {

std::string Leido(const std::string &campo, std::size_t ancho) {
    return std::string(Recortado(std::string_view(campo).substr(0, ancho), RecorteDerecha));
}

std::string LimiteReal(double v) {
    return Formatear("%2.0f", v);
}

bool Aplicar(Ventana *ventana, std::array<int, MaxSeriesGrafico> &tabla, int lugar, int valor) {
    if (lugar < 0 || lugar >= MaxSeriesGrafico)
        return MensajeAviso(ventana, "Error al Crear La Lista de Series") != 0;
    tabla[static_cast<std::size_t>(lugar)] = valor;
    return true;
}

} // namespace

ValoresIntervalos ValoresDeIntervalos(const OpcionesGrafico &o) {
    return {.titulo = o.titulo,
            .tituloY = o.tituloY,
            .tituloX = o.tituloX,
            .intervalosX = std::to_string(o.intervalosX),
            .intervalosY = std::to_string(o.intervalosY),
            .minYDefecto = o.minYDefecto != 0,
            .maxYDefecto = o.maxYDefecto != 0,
            .minXDefecto = o.minXDefecto != 0,
            .maxXDefecto = o.maxXDefecto != 0,
            .minY = LimiteReal(o.minY),
            .maxY = LimiteReal(o.maxY),
            .minX = std::string(Recortado(o.minXTexto)),
            .maxX = std::string(Recortado(o.maxXTexto)),
            .verLeyenda = o.verLeyenda != 0,
            .leyendaConMarco = o.leyendaConMarco != 0};
}

void AceptarIntervalos(OpcionesGrafico &o, const ValoresIntervalos &v) {
    o.titulo = Leido(v.titulo, AnchoTitulo);
    o.tituloY = Leido(v.tituloY, AnchoTituloY);
    o.tituloX = Leido(v.tituloX, AnchoTitulo);
    o.intervalosX = LeerEntero(v.intervalosX);
    o.intervalosY = LeerEntero(v.intervalosY);
    o.minYDefecto = v.minYDefecto ? 1 : 0;
    o.maxYDefecto = v.maxYDefecto ? 1 : 0;
    o.minXDefecto = v.minXDefecto ? 1 : 0;
    o.maxXDefecto = v.maxXDefecto ? 1 : 0;
    o.minY = LeerDecimal(Leido(v.minY, AnchoCampoLimite));
    o.maxY = LeerDecimal(Leido(v.maxY, AnchoCampoLimite));
    o.minXTexto = Leido(v.minX, AnchoCampoLimite);
    o.maxXTexto = Leido(v.maxX, AnchoCampoLimite);
    o.minXTexto.resize(AnchoLimiteX, ' ');
    o.maxXTexto.resize(AnchoLimiteX, ' ');
    o.verLeyenda = v.verLeyenda ? 1 : 0;
    o.leyendaConMarco = v.leyendaConMarco ? 1 : 0;
}

std::string TituloDeOpciones(ClasesDeGrafico clase, const char *dialogo) {
    const char *grafico = clase == GraficoSeries       ? "Gráficos temporales"_w
                          : clase == GraficoDispersion ? "Gráficos de dispersión"_w
                                                       : DescripcionDe(clase).titulo;
    return std::string(grafico) + ": " + dialogo;
}

bool AplicarColor(Ventana *ventana, OpcionesGrafico &opciones, int lugar, int color) {
    const bool elegida = lugar >= 0 && lugar < MaxSeriesGrafico;
    if (color == ColorPorDefecto && elegida) return true;
    return Aplicar(ventana, opciones.color, lugar, color);
}

bool AplicarGrosor(Ventana *ventana, OpcionesGrafico &opciones, int lugar, int grosor) {
    return Aplicar(ventana, opciones.grosor, lugar, grosor);
}

bool AplicarTrazo(Ventana *ventana, OpcionesGrafico &opciones, int lugar, int trazo) {
    return Aplicar(ventana, opciones.trazo, lugar, trazo);
}
