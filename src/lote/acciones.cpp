// The actions of tabira-lote. Each one calls the routine that the menu or the statement calls; it computes nothing.
#include "lote/acciones.h"

#include "analysis/diagrama_prediccion.h"
#include "charts/graficos/regresion_grafico.h"
#include "charts/resultados/seleccion.h"
#include "data/observaciones.h"
#include "data/trabajo.h"
#include "estimation/ecuaciones.h"
#include "estimation/listados_regresion.h"
#include "estimation/regresion.h"
#include "language/lote_sentencias.h"
#include "language/traza.h"
#include "lote/acciones_analisis.h"
#include "lote/ayuda.h"
#include "lote/corrida.h"
#include "lote/graficos.h"
#include "lote/impresora.h"
#include "lote/sucesos.h"
#include "lote/tipo.h"
#include "platform/archivos.h"
#include "platform/campos_texto.h"
#include "platform/numeros.h"
#include "platform/texto.h"
#include "shell/listas.h"
#include "shell/ultima_regresion.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <string_view>

EstadoDeCorrida Corrida;

namespace {

// One action of the command line, read and ready to be carried out.
struct Accion;

// What an action does. False when it failed or was refused.
using RutinaDeAccion = bool (*)(const Accion &accion);

// Reads the value of an action. False when it can't be read.
using LectorDeValor = bool (*)(const std::string &valor, Accion &accion);

struct Accion {
    RutinaDeAccion rutina;
    std::string valor;
    PropuestaTipoDatos tipo;
    FormatoAscii formato;
    PeticionHistograma histograma;
    int numero;           // a choice or a count, by action
    std::string elemento; // behind the first ":" or "=" of the value, in the characters of the core
    std::string codigo;   // before that "="
    bool deRegresion;     // a listing of the last regression, not of series or matrices
};

// What a menu command refuses while no data type was chosen; the text is the command's.
bool HayTipoDeDatos(const char *mensaje) {
    if (ArchivoTrabajo.TipoDatos < SinTipoDatos) return true;
    MostrarMensaje(nullptr, mensaje);
    return false;
}

// The text of the editor and of the tests. A name of its own: clang drops a literal made while compiling inside a template.
constexpr const char *SinTipoElegido = "Tipo de datos no válido"_w;

bool HayTipoDeDatos() {
    return HayTipoDeDatos("Tipo de datos no válidos"_w);
}

// ---------------------------------------------------------------------------------------------------------------
// Readers of values

constexpr std::string_view NombresLista[] = {"series", "matrices", "escalares"};
constexpr std::string_view NombresElemento[] = {"serie", "matriz", "escalar"};
constexpr std::string_view NombresListado[] = {"series", "matrices"}; // in the order of ModosSeleccion
constexpr std::string_view ListadosDeRegresion[] = {"covarianza", "valores",
                                                    "varianza"}; // by ListadosRegresion
constexpr std::string_view NombresGrafico[] = {"residuos", "residuos:estandarizados", "valores",
                                               "prediccion"};
constexpr std::string_view NombresRespuesta[] = {"si", "no", "cancelar"};

template <std::size_t N>
bool Elegir(const std::string_view (&nombres)[N], std::string_view palabra, int &cual) {
    const auto *p = std::find(std::begin(nombres), std::end(nombres), palabra);
    cual = static_cast<int>(p - std::begin(nombres));
    return p != std::end(nombres);
}

bool LeerTexto(const std::string &, Accion &) {
    return true;
}

bool LeerTipoDeDatos(const std::string &valor, Accion &accion) {
    return LeerTipo(Texto1252DeUtf8(valor), accion.tipo);
}

bool LeerFormatoDeRegistro(const std::string &valor, Accion &accion) {
    return LeerFormato(Texto1252DeUtf8(valor), accion.formato);
}

bool LeerRespuesta(const std::string &valor, Accion &accion) {
    return Elegir(NombresRespuesta, valor, accion.numero);
}

bool LeerDecimales(const std::string &valor, Accion &accion) {
    accion.numero = valor.size() == 1 ? valor[0] - '0' : -1;
    return accion.numero >= 0 && accion.numero <= 6;
}

// A number that a clock of whole seconds can show.
bool LeerSemilla(const std::string &valor, Accion &accion) {
    const auto [fin, error] = std::from_chars(valor.data(), valor.data() + valor.size(), accion.numero);
    return error == std::errc() && fin == valor.data() + valor.size() && accion.numero >= 0;
}

// What --ayuda explains; a word that isn't one of these is the next action.
bool LeerAyuda(const std::string &valor, Accion &) {
    return TextoDeAyuda(valor) != nullptr;
}

bool LeerRelacion(const std::string &valor, Accion &accion) {
    return Elegir(NombresLista, valor, accion.numero);
}

bool LeerElemento(const std::string &valor, Accion &accion) {
    const std::size_t dosPuntos = valor.find(':');
    if (dosPuntos == std::string::npos || dosPuntos + 1 == valor.size()) return false;
    accion.elemento = Texto1252DeUtf8(std::string_view(valor).substr(dosPuntos + 1));
    return Elegir(NombresElemento, std::string_view(valor).substr(0, dosPuntos), accion.numero);
}

bool LeerEcuacionNombrada(const std::string &valor, Accion &accion) {
    const std::size_t igual = valor.find('=');
    if (igual == std::string::npos) return false;
    accion.codigo = Texto1252DeUtf8(std::string_view(valor).substr(0, igual));
    accion.elemento = Texto1252DeUtf8(std::string_view(valor).substr(igual + 1));
    return true;
}

bool LeerListado(const std::string &valor, Accion &accion) {
    accion.deRegresion = Elegir(ListadosDeRegresion, valor, accion.numero);
    if (accion.deRegresion) return true;
    const std::size_t dosPuntos = valor.find(':');
    if (dosPuntos == std::string::npos) return false;
    accion.elemento = Texto1252DeUtf8(std::string_view(valor).substr(dosPuntos + 1));
    return Elegir(NombresListado, std::string_view(valor).substr(0, dosPuntos), accion.numero);
}

template <bool parcial> bool LeerFuncion(const std::string &valor, Accion &) {
    return SeLeeAutocorrelacion(valor, parcial);
}

bool LeerPrediccion(const std::string &valor, Accion &) {
    return SeLeePrediccion(valor);
}

bool LeerTransformacion(const std::string &valor, Accion &) {
    return SeLeeTransformacion(valor);
}

bool LeerGrafico(const std::string &valor, Accion &accion) {
    return Elegir(NombresGrafico, valor, accion.numero);
}

bool LeerHistograma(const std::string &valor, Accion &accion) {
    return LeerPeticionHistograma(Texto1252DeUtf8(valor), accion.histograma);
}

bool LeerRuta(const std::string &valor, Accion &) {
    return !valor.empty();
}

constexpr std::string_view NombresOrden[] = {"ascendente", "descendente"}; // the first one is never written

bool LeerOrdenacion(const std::string &valor, Accion &accion) {
    const std::size_t dosPuntos = std::min(valor.find(':'), valor.size());
    accion.elemento = Texto1252DeUtf8(std::string_view(valor).substr(0, dosPuntos));
    if (accion.elemento.empty()) return false;
    if (dosPuntos == valor.size()) return true;
    return Elegir(NombresOrden, std::string_view(valor).substr(dosPuntos + 1), accion.numero) &&
           accion.numero == 1;
}

// From 1 on in the command line, from 0 on in the tables.
bool LeerObservacion(const std::string &valor, Accion &accion) {
    constexpr std::size_t Cifras = 4;
    if (valor.empty() || valor.size() > Cifras || valor.find_first_not_of("0123456789") != std::string::npos)
        return false;
    accion.numero = LeerEntero(valor) - 1;
    return accion.numero >= 0 && accion.numero < MaxObservaciones;
}

// ---------------------------------------------------------------------------------------------------------------
// The actions

void MostrarUso();

bool HacerAyuda(const Accion &accion) {
    // With events in JSON standard output belongs to them alone.
    std::FILE *f = Corrida.json ? stderr : stdout;
    if (accion.valor.empty()) {
        MostrarUso();
    } else {
        std::fputs(TextoDeAyuda(accion.valor), f);
    }
    return true;
}

bool HacerVersion(const Accion &) {
    std::fputs("tabira-lote " TABIRA_VERSION "\n", Corrida.json ? stderr : stdout);
    return true;
}

bool HacerSemilla(const Accion &accion) {
    Corrida.conSemilla = true;
    Corrida.semilla = accion.numero;
    return true;
}

bool HacerJson(const Accion &) {
    Corrida.json = true;
    return true;
}

bool HacerTraza(const Accion &) {
    PonerTraza(true);
    return true;
}

bool HacerSeguir(const Accion &) {
    Corrida.seguir = true;
    return true;
}

bool HacerRespuesta(const Accion &accion) {
    Corrida.respuesta = static_cast<RespuestasDeCorrida>(accion.numero);
    return true;
}

bool HacerTipo(const Accion &accion) {
    return AceptarTipoDatos(nullptr, accion.tipo) == 1;
}

bool HacerFormato(const Accion &accion) {
    Corrida.formato = accion.formato;
    return true;
}

bool HacerImportar(const Accion &accion) {
    ActualizarMuestra();
    return EjecutarIntercambio(nullptr, Corrida.formato, true, accion.valor);
}

bool HacerExportar(const Accion &accion) {
    ActualizarMuestra();
    return EjecutarIntercambio(nullptr, Corrida.formato, false, accion.valor);
}

bool HacerTrabajo(const Accion &accion, ComandosDeTrabajo comando) {
    ActualizarMuestra();
    Corrida.archivo = accion.valor;
    return EjecutarTrabajo(nullptr, comando);
}

bool HacerAbrir(const Accion &accion) {
    return HacerTrabajo(accion, AbrirTrabajo);
}

bool HacerGuardar(const Accion &accion) {
    return HacerTrabajo(accion, GuardarTrabajoComo);
}

// What comes before the two commands on observations, as in the editor: its guard, what it greys, its check.
bool EmpezarConObservaciones(const char *accion) {
    if (!HayTipoDeDatos(SinTipoElegido)) return false;
    ActualizarMuestra();
    if (ConObservacionesLibres()) return EmpezarObservaciones(nullptr);
    Quejarse(std::string(accion) + " solo es posible con datos sin periodicidad");
    return false;
}

bool HacerOrdenar(const Accion &accion) {
    return EmpezarConObservaciones("--ordenar") &&
           AceptarOrdenacion(nullptr, accion.elemento, accion.numero == 1) == OrdenacionHecha;
}

bool HacerEliminarObservacion(const Accion &accion) {
    if (!EmpezarConObservaciones("--eliminar-observacion") || !EliminarObservacion(nullptr, accion.numero))
        return false;
    ActualizarLimitesSeries(); // as the editor does when it is left
    return true;
}

bool HacerProcesar(const Accion &accion) {
    std::string bytes;
    const bool leido = accion.valor == "-" ? LeerEntradaEstandar(bytes) : LeerArchivo(accion.valor, bytes);
    if (!leido) {
        Quejarse("no se puede leer '" + accion.valor + "'");
        return false;
    }
    if (!HayTipoDeDatos()) return false;
    ActualizarMuestra();
    std::string texto = Texto1252DeArchivo(bytes);
    ProcesarLote(nullptr, reinterpret_cast<ControlTexto *>(&texto), 0, {}, Muestra.InicioMuestra,
                 Muestra.FinMuestra);
    return Lote.detenido == 0;
}

bool HacerSentencia(const Accion &accion) {
    ActualizarMuestra();
    return ProcesarSentencia(nullptr, Texto1252DeUtf8(accion.valor), Muestra.InicioMuestra,
                             Muestra.FinMuestra) == 1;
}

bool HacerDecimales(const Accion &accion) {
    Lote.DecimalesSalida = accion.numero;
    return true;
}

// The dialogs that keep the equations open with this guard. What they leave out without a message isn't told here either.
bool HacerEcuacion(const Accion &accion) {
    if (!HayTipoDeDatos()) return false;
    AltaEcuacion(accion.codigo, accion.elemento);
    return true;
}

bool HacerRelacion(const Accion &accion) {
    ActualizarMuestra();
    const auto lista = static_cast<ListasDeElementos>(accion.numero);
    SucesoLineas(SalidaRelacion, TituloLista(lista), LineasLista(lista));
    return true;
}

bool HacerBorrar(const Accion &accion) {
    ActualizarMuestra();
    if (BorrarElemento(nullptr, static_cast<ListasDeElementos>(accion.numero), accion.elemento)) return true;
    Quejarse("no se ha borrado '" + accion.valor + "'");
    return false;
}

bool HacerMuestraActual(const Accion &) {
    if (!HayTipoDeDatos()) return false;
    ActualizarMuestra();
    SucesoLineas(SalidaMuestra, "Muestra actual", LineasMuestraActual());
    return true;
}

bool HacerUltimaRegresion(const Accion &) {
    ActualizarMuestra();
    SucesoLineas(SalidaUltimaRegresion, TituloUltimaRegresion, LineasUltimaRegresion());
    return true;
}

// The listings are a command of the editor, which opens with this guard, or of the dialogs of the regressions.
bool HacerListado(const Accion &accion) {
    if (!HayTipoDeDatos(SinTipoElegido)) return false;
    ActualizarMuestra();
    if (accion.deRegresion)
        return PedirListado(nullptr, static_cast<ListadosRegresion>(accion.numero),
                            UltimaRegresion.SentenciaRegresion, UltimaRegresion.MetodoRegresion);
    EstadoSeleccion seleccion = IniciarSeleccion(static_cast<ModosSeleccion>(accion.numero));
    bool bien = true;
    std::string_view resto = accion.elemento;
    while (!resto.empty()) {
        const std::size_t coma = std::min(resto.find(','), resto.size());
        const std::string_view codigo = Recortado(resto.substr(0, coma));
        resto.remove_prefix(std::min(coma + 1, resto.size()));
        const auto p = std::find(seleccion.disponibles.begin(), seleccion.disponibles.end(), codigo);
        if (p != seleccion.disponibles.end()) {
            AnadirASeleccion(seleccion, static_cast<int>(p - seleccion.disponibles.begin()), nullptr);
        } else {
            Quejarse("no se puede listar '" + Utf8De1252(codigo) + "'");
            bien = false;
        }
    }
    return ImprimirElegidas(seleccion, Lote.DecimalesSalida, nullptr) == 0 && bien;
}

// What the dialogs of the tests and of the analysis do. Each has the guard of its command.
template <auto Rutina> bool ConTipoDeDatos(const Accion &accion) {
    if (!HayTipoDeDatos(SinTipoElegido)) return false;
    ActualizarMuestra();
    return Rutina(accion.valor);
}

bool HacerEstadisticos(const Accion &accion) {
    if (!HayTipoDeDatos()) return false;
    ActualizarMuestra();
    return EjecutarDescriptivos(accion.valor);
}

bool HacerTransformar(const Accion &accion) {
    ActualizarMuestra();
    return EjecutarTransformacion(accion.valor);
}

// The charts of a regression belong to the estimation dialogs, which open with this guard.
bool HacerGrafico(const Accion &accion) {
    static constexpr struct {
        ClasesDeGrafico clase;
        ResiduosDelGrafico residuos;
    } Graficos[] = {{GraficoResiduos, ResiduosOrdinarios},
                    {GraficoResiduos, ResiduosEstandarizados},
                    {GraficoValores, ResiduosOrdinarios}};
    if (!HayTipoDeDatos()) return false;
    ActualizarMuestra();
    if (accion.numero == static_cast<int>(std::size(Graficos))) {
        AbrirDiagramaPrediccion(nullptr); // a prediction of original values has none
        return true;
    }
    return AbrirGraficoDeRegresion(nullptr, Graficos[accion.numero].clase,
                                   Graficos[accion.numero].residuos) == 1;
}

bool HacerHistograma(const Accion &accion) {
    if (!HayTipoDeDatos(SinTipoElegido)) return false;
    ActualizarMuestra();
    return AceptarHistograma(nullptr, accion.histograma.opciones, accion.histograma.serie,
                             Muestra.InicioMuestra, Muestra.FinMuestra) == 1;
}

bool HacerGraficos(const Accion &accion) {
    if (ElegirCarpetaDeGraficos(accion.valor)) return true;
    Quejarse("no se puede crear '" + accion.valor + "'");
    return false;
}

bool HacerImprimir(const Accion &accion) {
    ElegirDocumento(accion.valor);
    return true;
}

bool HacerImprimirSalidas(const Accion &) {
    Corrida.imprimirSalidas = true;
    return true;
}

bool HacerVolcado(const Accion &) {
    SucesoVolcado();
    return true;
}

// ---------------------------------------------------------------------------------------------------------------
// The table of actions.

struct FilaDeAccion {
    std::string_view nombre;
    const char *valor; // how the usage names the value, null without one
    LectorDeValor leer;
    RutinaDeAccion rutina;
    const char *explicacion;    // UTF-8, for the usage
    bool valorOpcional = false; // the value may be left out: what can't be read as one is the next action
};

constexpr FilaDeAccion TablaAcciones[] = {
    {"--ayuda", "[tipo|formato|sucesos]", LeerAyuda, HacerAyuda, "muestra este texto, o explica eso", true},
    {"-h", nullptr, nullptr, HacerAyuda, "muestra este texto"},
    {"--version", nullptr, nullptr, HacerVersion, "muestra la versión"},
    {"--json", nullptr, nullptr, HacerJson, "cada suceso, un objeto JSON en una línea"},
    {"--seguir", nullptr, nullptr, HacerSeguir, "una acción que falla no termina la ejecución"},
    {"--respuesta", "si|no|cancelar", LeerRespuesta, HacerRespuesta, "respuesta a las preguntas que siguen"},
    {"--tipo", "TIPO", LeerTipoDeDatos, HacerTipo, "elige el tipo de datos: sin, anual:1990:2005, panel:..."},
    {"--formato", "F", LeerFormatoDeRegistro, HacerFormato,
     "formato de registro: variable:OP,... o fijo:..."},
    {"--importar", "ARCHIVO", LeerTexto, HacerImportar, "importa series de un archivo ASCII"},
    {"--exportar", "ARCHIVO", LeerTexto, HacerExportar, "exporta las series a un archivo ASCII"},
    {"--abrir", "ARCHIVO", LeerRuta, HacerAbrir, "abre un archivo de trabajo (*.TR2)"},
    {"--guardar", "ARCHIVO", LeerRuta, HacerGuardar, "guarda el archivo de trabajo"},
    {"--ordenar", "X[:descendente]", LeerOrdenacion, HacerOrdenar, "ordena las observaciones por una serie"},
    {"--eliminar-observacion", "N", LeerObservacion, HacerEliminarObservacion,
     "elimina una observación, desde 1"},
    {"--procesar", "ARCHIVO", LeerTexto, HacerProcesar,
     "procesa un archivo de sentencias (-: entrada estándar)"},
    {"--sentencia", "TEXTO", LeerTexto, HacerSentencia, "ejecuta una sentencia"},
    {"--decimales", "N", LeerDecimales, HacerDecimales, "decimales de las salidas, de 0 a 6"},
    {"--ecuacion", "CODIGO=TEXTO", LeerEcuacionNombrada, HacerEcuacion, "guarda una ecuación con su código"},
    {"--relacion", "series|matrices|escalares", LeerRelacion, HacerRelacion, "lista los elementos"},
    {"--borrar", "serie:X|matriz:M|escalar:E", LeerElemento, HacerBorrar, "borra un elemento"},
    {"--muestra-actual", nullptr, nullptr, HacerMuestraActual, "muestra la muestra en curso"},
    {"--ultima-regresion", nullptr, nullptr, HacerUltimaRegresion, "muestra la última regresión"},
    {"--imprimir", "F.pdf", LeerRuta, HacerImprimir, "lo que se imprima después va a este documento"},
    {"--imprimir-salidas", nullptr, nullptr, HacerImprimirSalidas,
     "imprime también cada ventana de resultados"},
    {"--listado", "series:X,Y|matrices:A,B", LeerListado, HacerListado,
     "imprime series o matrices; covarianza, valores, varianza: de la regresión"},
    {"--histograma", "X[:OP,...]", LeerHistograma, HacerHistograma,
     "histograma: clases=N, limites=a/b/c, min=A, max=B"},
    {"--grafico", "residuos|valores|prediccion", LeerGrafico, HacerGrafico,
     "gráfico de la última regresión o predicción (también residuos:estandarizados)"},
    {"--graficos", "DIR", LeerRuta, HacerGraficos, "cada gráfico que sigue, también como imagen en DIR"},
    {"--estadisticos", "X,Y,...", LeerTexto, HacerEstadisticos, "medidas descriptivas y correlaciones"},
    {"--normalidad", "X", LeerTexto, ConTipoDeDatos<EjecutarNormalidad>, "contraste de normalidad"},
    {"--fac", "X:N[:BANDA]", LeerFuncion<false>, ConTipoDeDatos<EjecutarFac>,
     "función de autocorrelación; BANDA: uniforme, arma o sin"},
    {"--facp", "X:N[:BANDA]", LeerFuncion<true>, ConTipoDeDatos<EjecutarFacp>,
     "función de autocorrelación parcial"},
    {"--prediccion", "INICIO:FIN[:MODO[:P:M:I]]", LeerPrediccion, ConTipoDeDatos<EjecutarPrediccion>,
     "predicción y evaluación; MODO: originales, tasas, incrementos"},
    {"--transformar", "X:DESTINO:OP=N,...", LeerTransformacion, HacerTransformar,
     "transforma X; OP: boxcox, estacional, regular"},
    {"--semilla", "N", LeerSemilla, HacerSemilla, "el reloj de RND y RNDN empieza en N y avanza en cada uso"},
    {"--traza", nullptr, nullptr, HacerTraza, "cada paso de los cálculos que siguen es también un suceso"},
    {"--volcado", nullptr, nullptr, HacerVolcado, "muestra el contenido del archivo de trabajo"},
};

void MostrarUso() {
    // With events in JSON standard output belongs to them alone.
    std::FILE *f = Corrida.json ? stderr : stdout;
    std::fputs("Uso: tabira-lote [ACCIÓN]...\n\nTabira sin ventanas. Las acciones se ejecutan en el orden en "
               "que están.\n\n",
               f);
    for (const FilaDeAccion &fila : TablaAcciones) {
        std::string izquierda(fila.nombre);
        if (fila.valor != nullptr) izquierda += std::string(" ") + fila.valor;
        std::fprintf(f, "  %-38s %s\n", izquierda.c_str(), fila.explicacion);
    }
    std::fputs("\nEstado de salida: 0, todo se ejecutó; 1, algo falló o fue rechazado; 2, línea de órdenes "
               "incorrecta.\n",
               f);
}

// Reads the whole command line into `acciones`, or says in `queja` what is wrong with it.
bool LeerLinea(const std::vector<std::string> &argumentos, std::vector<Accion> &acciones,
               std::string &queja) {
    for (std::size_t i = 0; i < argumentos.size(); ++i) {
        const std::string &nombre = argumentos[i];
        const auto *fila = std::find_if(std::begin(TablaAcciones), std::end(TablaAcciones),
                                        [&](const FilaDeAccion &f) { return f.nombre == nombre; });
        if (fila == std::end(TablaAcciones)) {
            queja = "acción desconocida: '" + nombre + "' (--ayuda las muestra)";
            return false;
        }
        Accion &accion = acciones.emplace_back();
        accion.rutina = fila->rutina;
        if (fila->valor == nullptr) continue;
        if (fila->valorOpcional) {
            if (i + 1 < argumentos.size() && fila->leer(argumentos[i + 1], accion))
                accion.valor = argumentos[++i];
            continue;
        }
        if (++i == argumentos.size()) {
            queja = "falta el valor de " + nombre + " (" + fila->valor + ")";
            return false;
        }
        accion.valor = argumentos[i];
        if (!fila->leer(accion.valor, accion)) {
            queja = "valor incorrecto de " + nombre + ": '" + accion.valor + "'";
            return false;
        }
    }
    return true;
}

} // namespace

int EjecutarLinea(const std::vector<std::string> &argumentos) {
    Corrida = {};
    OlvidarDocumentos();
    OlvidarGraficos();
    Corrida.formato = FormatoInicial();
    std::vector<Accion> acciones;
    std::string queja;
    int estado = EstadoBien;
    if (!LeerLinea(argumentos, acciones, queja)) {
        Quejarse(queja);
        estado = EstadoMalaLinea;
        acciones.clear();
        // Whoever reads events is told the end of this run, too.
        Corrida.json = std::find(argumentos.begin(), argumentos.end(), "--json") != argumentos.end();
    } else if (acciones.empty()) {
        MostrarUso();
    }
    for (const Accion &accion : acciones) {
        if (accion.rutina(accion)) continue;
        estado = EstadoFallo;
        if (!Corrida.seguir) break;
    }
    // What was printed before a failure is kept.
    if (!EscribirDocumentos()) estado = EstadoFallo;
    if (!GraficosEscritos()) estado = EstadoFallo;
    SucesoFin(estado);
    return estado;
}
