// The charts of the last regression.
#include "charts/graficos/regresion_grafico.h"

#include "estimation/regresion.h"
#include "language/lote_sentencias.h"
#include "platform/campos_texto.h"
#include "store/archivo.h"

#include <algorithm>

namespace {

struct FilasDeRegresion {
    int primera, ultima;
};

// The sample of the last regression, inside the table of observations.
FilasDeRegresion MuestraDelGrafico() {
    const int primera = std::clamp(UltimaRegresion.PrimeraObsRegresion, 0, MaxObservaciones - 1);
    return {primera, std::clamp(UltimaRegresion.UltimaObsRegresion, primera, MaxObservaciones - 1)};
}

Grafico GraficoDeRegresion(ClasesDeGrafico clase, const FilasDeRegresion &filas) {
    Grafico g = GraficoNuevo(clase, filas.ultima - filas.primera + 1);
    TomarPeriodos(g, filas.primera, filas.ultima);
    return g;
}

} // namespace

int AbrirGraficoDeResiduos(Ventana *ventana, double desviacion, ResiduosDelGrafico residuos) {
    if (ArchivoTrabajo.TipoDatos >= SinTipoDatos)
        return MensajeCancelado(ventana, "Tipo de datos no válido"_w);
    bool estandarizados = residuos == ResiduosEstandarizados;
    if (residuos == PreguntarPorResiduos) {
        const Respuesta respuesta =
            MostrarCaja(ventana, "¿Desea ver los residuos estandarizados?"_w, "Gráfico de los residuos"_w,
                        IconoPregunta, BotonesSiNoCancelar);
        if (respuesta == RespuestaCancelar) return 0;
        estandarizados = respuesta == RespuestaSi;
    }
    const FilasDeRegresion filas = MuestraDelGrafico();
    Grafico g = GraficoDeRegresion(GraficoResiduos, filas);
    if (!AnadirSerie(g, "_RES", filas.primera, filas.ultima))
        return MensajeAviso(ventana, "No existe la serie de residuos");
    g.desviacion = desviacion;
    g.estandarizados = estandarizados ? 1 : 0;
    if (estandarizados && desviacion > 0)
        for (double &v : g.series.front().valores) v /= desviacion;
    AbrirVentanaGrafico(ventana, g);
    return 1;
}

int AbrirGraficoDeValores(Ventana *ventana) {
    const FilasDeRegresion filas = MuestraDelGrafico();
    Grafico g = GraficoDeRegresion(GraficoValores, filas);
    const std::string_view dependiente = Recortado(UltimaRegresion.CodigoDependiente);
    if (dependiente.empty() || !AnadirSerie(g, dependiente, filas.primera, filas.ultima))
        return MensajeAviso(ventana, "No existe la variable dependiente");
    const char *residuos = UltimaRegresion.MetodoRegresion == OrdenMCP ? "_RESN" : "_RES";
    if (!AnadirSerie(g, residuos, filas.primera, filas.ultima))
        return MensajeAviso(ventana, "No existe la serie de residuos");
    SerieGrafico &estimada = g.series.back();
    estimada.nombre = "V. ESTIM.";
    for (std::size_t i = 0; i < estimada.valores.size(); ++i)
        estimada.valores[i] = g.series.front().valores[i] - estimada.valores[i];
    AbrirVentanaGrafico(ventana, g);
    return 1;
}

bool ComponerGraficoDePrediccion(const DatosPrediccion &datos, Grafico &g) {
    const int n = static_cast<int>(std::min(datos.prediccion.size(), datos.observacion.size()));
    if (n == 0 || datos.primera < 0 || datos.primera + n > MaxObservaciones) return false;
    g = GraficoDeRegresion(GraficoPrediccion, {datos.primera, datos.primera + n - 1});
    g.opciones.forma = FormaSimbolos;
    g.opciones.ejeX = "Predicción"_w;
    g.ejeX = datos.prediccion;
    g.series.push_back({datos.nombre, datos.observacion});
    CalcularLimites(g);
    return true;
}

int AbrirGraficoDePrediccion(Ventana *ventana, const DatosPrediccion &datos) {
    Grafico g;
    if (!ComponerGraficoDePrediccion(datos, g)) return 0;
    AbrirVentanaGrafico(ventana, g);
    return 1;
}

int AbrirGraficoDeRegresion(Ventana *ventana, ClasesDeGrafico clase, ResiduosDelGrafico residuos) {
    if (UltimaRegresion.RegresionHecha == 0) return MensajeAviso(ventana, "Efectue primero una regresión"_w);
    if (clase == GraficoValores) return AbrirGraficoDeValores(ventana);
    const int dtr = BuscarEscalar("_DTR");
    return AbrirGraficoDeResiduos(ventana, dtr >= 0 ? TablaEscalares.registro[dtr].Valor : 0, residuos);
}
