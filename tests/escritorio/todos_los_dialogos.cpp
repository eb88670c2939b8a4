// Every dialog of the program and how a user gets to it.
#include "todos_los_dialogos.h"

#include "charts/graficos/ventanas/dialogos_opciones.h"
#include "charts/resultados/ventanas/dialogo_seleccion.h"
#include "platform/qt/cajas_qt.h"
#include "platform/qt/dialogo_decimales.h"
#include "platform/qt/ventana_qt.h"
#include "platform/texto.h"
#include "shell/comandos.h"
#include "store/archivo.h"

namespace {

std::function<void(VentanaPrincipal &)> Orden(int id) {
    return [=](VentanaPrincipal &v) { EjecutarComando(AVentana(&v), id); };
}

Paso Pulsados(const char *titulo, const std::vector<const char *> &botones) {
    return {titulo, [=](QDialog &d) {
                for (const char *b : botones) Pulsar(d, b);
            }};
}

Guion Hasta(const char *tipo, const std::vector<const char *> &panel = {}) {
    Guion camino = {Pulsados("Tipos de datos", {tipo, "OK"})};
    if (!panel.empty()) camino.push_back(Pulsados("Datos Panel", panel));
    return camino;
}

} // namespace

std::vector<AperturaDeDialogo> TodosLosDialogos() {
    const auto tipo = Orden(2020);
    return {
        // Of a group of buttons Tab reaches the one that is checked, or the first; the arrows go on from there.
        {"Tipos de datos", {}, tipo, {"NombreProyecto", "tipo0", "OK", "Cancela", "Ayuda"}, false},
        {"Datos sin periodicidad", Hasta("tipo0"), tipo, {"etiquetas", "OK", "Cancela"}},
        {"Datos anuales", Hasta("tipo1"), tipo, {"inicio", "fin", "OK", "Cancela"}},
        {"Datos trimestrales", Hasta("tipo2"), tipo, {"inicio", "fin", "OK", "Cancela"}},
        {"Datos mensuales", Hasta("tipo3"), tipo, {"inicio", "fin", "OK", "Cancela"}},
        {"Datos Panel",
         Hasta("tipo4"),
         tipo,
         {"periodoPrimero", "constante", "etiquetas", "introducirPeriodos", "introducirEtiquetas", "OK",
          "Cancela"},
         false},
        {"Períodos/Individúos constante y secuencial",
         Hasta("tipo4", {"constante", "introducirPeriodos"}),
         tipo,
         {"individuos", "anual", "inicio", "fin", "OK", "Cancela"},
         false},
        {"Períodos e Individúos",
         Hasta("tipo4", {"variable", "periodoPrimero", "introducirPeriodos"}),
         tipo,
         {"periodo", "individuos", "anadir", "lista", "eliminar", "OK", "Cancela"}},
        {"Individúos y Períodos",
         Hasta("tipo4", {"variable", "individuoPrimero", "introducirPeriodos"}),
         tipo,
         {"orden", "anadirIndividuo", "individuos", "eliminarIndividuo", "periodo", "anadirPeriodo",
          "periodos", "eliminarPeriodo", "OK", "Cancela"}},
        {"Introducción de Etiquetas",
         Hasta("tipo4", {"introducirEtiquetas"}),
         tipo,
         {"orden", "etiqueta", "anadir", "lista", "OK", "Cancela"}},
        {"Acotación de la muestra a utilizar",
         {},
         Orden(2038),
         {"TextoInicial", "TextoFinal", "OK", "Cancela", "Ayuda"}},
        {"Muestra actual", {}, Orden(2085), {"OK"}},
        {"Relación de series", {}, Orden(2065), {"lista", "Borrar", "OK"}},
        {"Relación de matrices", {}, Orden(2064), {"lista", "Borrar", "OK"}},
        {"Relación de escalares", {}, Orden(2066), {"lista", "Borrar", "OK"}},
        {"Última regresión", {}, Orden(2086), {"OK"}},
        {"Opción del menú", {}, Orden(2002), {"OK"}},
        {"Formato decimal",
         {},
         [](VentanaPrincipal &v) {
             static int decimales;
             DialogoDecimales(decimales, AVentana(&v));
         },
         {"decimales2", "OK", "Cancela"}},
        {"Selección de matrices",
         {},
         [](VentanaPrincipal &v) { DialogoSeleccion(AVentana(&v), SeleccionDeMatrices); },
         {"disponibles", "Anadir", "Eliminar", "elegidas", "Decimales", "OK", "Cancela"},
         false},
        {"Ordenación de series",
         {},
         [](VentanaPrincipal &v) { AbrirDialogo(AVentana(&v), Dialogo::OrdenarSeries); },
         {"lista", "descendente", "OK", "Cancela"},
         false},
        {"Importación de Series",
         {},
         Orden(2072),
         {"FormatoVariable", "FormatoFijo", "SeleccionarArchivo", "OK", "Cancela"},
         false},
        {"Exportación de Series: Formato variable",
         {Pulsados("Exportación de Series", {"FormatoVariable"})},
         Orden(2071),
         {"separador0", "otroSeparador", "delimitador0", "otroDelimitador", "soloEtiquetas",
          "primerRegistroCodigos", "primerCampoEtiquetas", "decimalesConComas", "camposPanel",
          "tercerCampoEtiquetas", "AyudaPanel", "OK", "Cancela"}},
        {"Importación de Series: Formato fijo",
         {Pulsados("Importación de Series", {"FormatoFijo"})},
         Orden(2072),
         {"codigo", "tipo", "inicio", "longitud", "Anadir", "lista", "Eliminar", "decimalesConComas",
          "AyudaPanel", "OK", "Cancela"},
         false},
        {"Función de autocorrelación estimada",
         {},
         Orden(2073),
         {"series", "alMedio", "bandas", "retardos", "conTitulo", "titulo", "tituloArriba", "OK", "Cancela"},
         false},
        {"Función de autocorrelación parcial estimada",
         {},
         Orden(2093),
         {"series", "alMedio", "bandas", "retardos", "conTitulo", "titulo", "tituloArriba", "OK", "Cancela"},
         false},
        {"Contraste de normalidad", {}, Orden(2087), {"series", "OK", "Cancela"}, false},
        // The command asks for a regression first.
        {"Predicción y evaluación de la capacidad predictiva",
         {},
         [](VentanaPrincipal &v) { AbrirDialogo(AVentana(&v), Dialogo::Prediccion); },
         {"inicio", "fin", "codigoPred", "codigoDtm", "codigoDti", "originales", "OK", "Cancela"},
         false},
        {"Selección de series",
         {},
         Orden(2039),
         {"disponibles", "Anadir", "Eliminar", "elegidas", "OK", "Cancela"},
         false},
        {"Transformación de series",
         {},
         Orden(2094),
         {"series", "boxCox", "estacionales", "noEstacionales", "codigo", "lambda", "ordenEstacional",
          "ordenNoEstacional", "OK", "Cancela"},
         false},
        {"Mínimos cuadrados ordinarios",
         {},
         Orden(2004),
         {"ecuacion", "retardos", "anadirRetardo", "regresores", "anadirRegresor", "codigosEcuacion",
          "textosEcuacion", "codigoEcuacion", "alta", "baja", "estandard", "resultados", "covarianza",
          "valores", "graficoValores", "graficoResiduos", "varianza", "OK", "Cancela"},
         false},
        {"Método: Mínimos cuadrados ponderados",
         {},
         Orden(2081),
         {"ponderacion", "ecuacion", "retardos", "anadirRetardo", "regresores", "anadirRegresor",
          "codigosEcuacion", "textosEcuacion", "codigoEcuacion", "alta", "baja", "resultados", "covarianza",
          "valores", "graficoValores", "graficoResiduos", "varianza", "OK", "Cancela"},
         false},
        {"Contrastes de significatividad: Hipótesis nula",
         {},
         Orden(2012),
         {"numero", "SI", "simbolos", "Anadir", "OK", "Cancela"},
         false},
        {"Contrastes de significatividad: Modelo restringido",
         {},
         Orden(2075),
         {"texto", "series", "retardos", "OK", "Cancela"},
         false},
        {"Contrastes de heteroscedasticidad: Goldfeld y Quandt",
         {},
         Orden(2078),
         {"variable", "series", "primeraDenominador", "ultimaDenominador", "primeraNumerador",
          "ultimaNumerador", "verRegresiones", "OK", "Cancela"},
         false},
        {"Contrastes de heteroscedasticidad: White",
         {},
         Orden(2080),
         {"productosCruzados", "verRegresion", "OK", "Cancela"},
         false},
        {"Contrastes de heteroscedasticidad: Rangos",
         {},
         Orden(2079),
         {"variable", "series", "OK", "Cancela"},
         false},
        {"Gráficos temporales",
         {},
         Orden(2013),
         {"disponibles", "Anadir", "Eliminar", "elegidas", "OK", "Cancela"},
         false},
        {"Gráficos de dispersión",
         {},
         Orden(2023),
         {"disponibles", "Anadir", "Eliminar", "elegidas", "codigoX", "OK", "Cancela"},
         false},
        {"HISTOGRAMA",
         {},
         Orden(2007),
         {"series", "modo0", "divisiones", "minYDefecto", "maxYDefecto", "conTitulo", "titulo",
          "tituloArriba", "OK", "Cancela"},
         false},
        {"Gráficos temporales: Intervalos y títulos",
         {},
         [](VentanaPrincipal &v) {
             OpcionesGrafico o = OpcionesPorDefecto(10);
             DialogoIntervalos(AVentana(&v), GraficoSeries, o);
         },
         {"titulo", "tituloY", "tituloX", "intervalosY", "intervalosX", "verLeyenda", "leyendaConMarco",
          "minYDefecto", "minY", "maxYDefecto", "maxY", "minXDefecto", "minX", "maxXDefecto", "maxX", "OK",
          "Cancela"}},
        {"Gráfico de los residuos: Formas y colores",
         {},
         [](VentanaPrincipal &v) {
             OpcionesGrafico o = OpcionesPorDefecto(10);
             DialogoFormas(AVentana(&v), GraficoResiduos, o, {"_RES"});
         },
         {"series", "forma0", "color0", "SiColor", "grosor0", "SiGrosor", "trazo0", "SiTrazo", "OK",
          "Cancela"},
         false},
        {"Gráfico de los residuos: Otras opciones",
         {},
         [](VentanaPrincipal &v) {
             Grafico g = GraficoNuevo(GraficoResiduos, 10);
             DialogoOtrasOpciones(AVentana(&v), g);
         },
         {"conBanda", "alMedioX", "OK", "Cancela"}},
        {"Acerca de..", {}, Orden(2046), {"OK"}},
        {"Reglas generales", {}, Orden(2067), {"Siguiente", "Cancelar", "texto"}, false},
        {"Reglas generales",
         {Pulsados("Reglas generales", {"Siguiente"})},
         Orden(2067),
         {"Siguiente", "Anterior", "Cancelar", "texto"},
         false},
        {"Reglas generales",
         {Pulsados("Reglas generales", {"Siguiente"}), Pulsados("Reglas generales", {"Siguiente"})},
         Orden(2067),
         {"Cancelar", "texto", "Anterior"}},
        {"Calculadora", {}, Orden(2053), {"OK", "texto"}},
        {"Aviso",
         {},
         [](VentanaPrincipal &v) {
             CajaQt(AVentana(&v), Texto1252DeUtf8("¿Desea guardar su trabajo?"), "Aviso", IconoPregunta,
                    BotonesSiNoCancelar);
         },
         {"Si", "No", "Cancelar"}},
    };
}

void EnDialogo(VentanaPrincipal &ventana, const AperturaDeDialogo &a,
               const std::function<void(QDialog &)> &hacer) {
    PonerDatos(TipoAnual, "1990#1999");
    PonerMatriz("M", {1, 2}, 1, 2);
    PonerEscalar(nullptr, "E", 1);
    Guion guion = a.camino;
    guion.push_back({a.titulo, [&](QDialog &d) {
                         hacer(d);
                         if (d.isVisible()) d.reject();
                     }});
    // A page of the manual closes those below it itself.
    for (auto p = a.camino.rbegin(); p != a.camino.rend() && std::string(p->titulo) != "Reglas generales";
         ++p)
        guion.push_back({p->titulo, [](QDialog &d) { d.reject(); }});
    ConGuion(guion, [&] { a.abrir(ventana); });
}
