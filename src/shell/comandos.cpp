// The commands of the menu.
#include "shell/comandos.h"

#include "analysis/prediccion.h"
#include "charts/graficos/series_grafico.h"
#include "charts/resultados/listados.h"
#include "data/copia_seguridad.h"
#include "data/fichero_sentencias.h"
#include "data/intercambio.h"
#include "data/rejilla.h"
#include "data/trabajo.h"
#include "language/lote_sentencias.h"
#include "language/palabras.h"
#include "platform/campos_texto.h"
#include "platform/carpeta_estado.h"
#include "shell/ayuda.h"
#include "shell/barra_estado.h"
#include "shell/listas.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <algorithm>
#include <iterator>

namespace {

const OperacionesEscritorio *Escritorio = nullptr;

constexpr const char *SinTipo = "Tipo de datos no válidos"_w;
constexpr const char *SinTipoSingular = "Tipo de datos no válido"_w; // some commands say it in the singular

// Shows a dialog: the routine of the commands that do nothing else.
template <Dialogo cual, int modo = 0> void Abre(Ventana *ventana, int) {
    AbrirDialogo(ventana, cual, {modo});
}

constexpr RutinaDeComando NoEstaEnsamblada = Abre<Dialogo::NoEnsamblada>;

void Salir(Ventana *ventana, int) {
    CerrarPrograma(ventana);
}

template <ComandosDeTrabajo cual> void ConTrabajo(Ventana *ventana, int) {
    EjecutarTrabajo(ventana, cual);
}

template <ComandosDeSentencias cual> void ConSentencias(Ventana *ventana, int) {
    ComandoSentencias(ventana, Escritorio->pantallaEdicion(ventana), cual);
}

void Deshacer(Ventana *ventana, int) {
    Escritorio->editar(ventana, EditarDeshacer);
}
void Cortar(Ventana *ventana, int) {
    Escritorio->editar(ventana, EditarCortar);
}
void Copiar(Ventana *ventana, int) {
    Escritorio->editar(ventana, EditarCopiar);
}
void Pegar(Ventana *ventana, int) {
    Escritorio->editar(ventana, EditarPegar);
}

void ElegirTipo(Ventana *ventana, int) {
    AbrirDialogo(ventana, Dialogo::TipoDatos);
    PonerTituloTrabajo(ventana); // whether the user accepted or not
}

void Procesar(Ventana *ventana, int) {
    ProcesarLote(ventana, Escritorio->pantallaEdicion(ventana), 0, {}, Muestra.InicioMuestra,
                 Muestra.FinMuestra);
}

void ImprimirTexto(Ventana *ventana, int) {
    ImprimirSeleccion(ventana, Escritorio->pantallaEdicion(ventana));
}

template <ModosDeEditor modo> void Editar(Ventana *ventana, int) {
    AbrirEditor(modo);
    Escritorio->mostrarEditor(ventana);
}

void Exportar(Ventana *ventana, int) {
    IntercambiarAscii(ventana, false);
}

void Importar(Ventana *ventana, int) {
    IntercambiarAscii(ventana, true);
    RefrescarEditor();
}

void Predecir(Ventana *ventana, int) {
    if (EmpezarPrediccion(ventana) == 1) AbrirDialogo(ventana, Dialogo::Prediccion);
}

// The dialog of an estimator. Until the first regression its sample is that of the moment.
template <Dialogo cual> void Estima(Ventana *ventana, int) {
    if (Muestra.FinRegresion == 0) {
        Muestra.InicioRegresion = Muestra.InicioMuestra;
        Muestra.FinRegresion = Muestra.FinMuestra;
    }
    AbrirDialogo(ventana, cual);
}

// The tests without a dialog.
void Durbin(Ventana *ventana, int) {
    ProcesarSentencia(ventana, "CDU  ", Muestra.InicioMuestra, Muestra.FinMuestra);
}
void Wallis(Ventana *ventana, int) {
    ProcesarSentencia(ventana, "CWA  ", Muestra.InicioMuestra, Muestra.FinMuestra);
}

void VerAyuda(Ventana *ventana, int id) {
    AbrirDialogo(ventana, Dialogo::Ayuda, {PaginaDeComando(id)});
}

// A series has its code from the moment it is typed into the editor, which counts it only when it checks all codes.
bool HaySeries() {
    return ArchivoTrabajo.NumSeries > 0 ||
           std::any_of(std::begin(ArchivoTrabajo.Codigos), std::end(ArchivoTrabajo.Codigos),
                       [](const char *codigo) { return CadenaDeCaracter(codigo, ' ') == 0; });
}

// What goes with each batch.
void AntesDelLote() {
    GuardarCopia();
    EmpezarLoteEnBarra();
    if (Escritorio->empiezaLote != nullptr) Escritorio->empiezaLote();
}

void DespuesDelLote() {
    TerminarLoteEnBarra();
    if (Escritorio->terminaLote != nullptr) Escritorio->terminaLote();
}

constexpr const char *Archivo = "&Archivo";
constexpr const char *Edicion = "&Edición"_w;
constexpr const char *Datos = "&Datos";
constexpr const char *Proced = "&Proced.";
constexpr const char *Estadistica = "E&stad. y Gráf."_w;
constexpr const char *Graficos = "E&stad. y Gráf./&Gráficos"_w;
constexpr const char *Estimacion = "Es&timación"_w;
constexpr const char *Contrastes = "&Contrastes";
constexpr const char *Significatividad = "&Contrastes/Contrastes de &Significatividad";
constexpr const char *Heteroscedasticidad = "&Contrastes/Contrastes de &heteroscedasticidad";
constexpr const char *Autocorrelacion = "&Contrastes/Contrastes de &autocorrelación"_w;
constexpr const char *Util = "&Util.";
constexpr const char *MenuDeAyuda = "A&yuda";

} // namespace

// Entries without a routine are announced and not built yet; they all open the same dialog. Those with the id
// ComandoSinEnsamblar are announced for good: three entries share it.
const Comando TablaComandos[] = {
    {ComandoAbrirTrabajo, Archivo, "&Abrir archivo trabajo...", true, nullptr, ConTrabajo<AbrirTrabajo>},
    {ComandoGuardarTrabajo, Archivo, "&Guardar archivo trabajo ... ", true, nullptr,
     ConTrabajo<GuardarTrabajo>},
    {ComandoGuardarTrabajoComo, Archivo, "Guardar archivo &trabajo como ...", true, nullptr,
     ConTrabajo<GuardarTrabajoComo>},
    {ComandoSalir, Archivo, "&Salir", false, nullptr, Salir},
    {ComandoDeshacer, Edicion, "&Deshacer", false, nullptr, Deshacer},
    {ComandoCortar, Edicion, "&Cortar", false, nullptr, Cortar},
    {ComandoCopiar, Edicion, "C&opiar", false, nullptr, Copiar},
    {ComandoPegar, Edicion, "&Pegar", false, nullptr, Pegar},
    {ComandoTipoDatos, Datos, "&Tipo de datos ...", false, nullptr, ElegirTipo},
    {ComandoEditorSeries, Datos, "&Editor de series...", true, SinTipoSingular, Editar<EditorDeSeries>},
    {ComandoEditorMatrices, Datos, "Editor de &matrices...", false, SinTipoSingular,
     Editar<EditorDeMatrices>},
    {ComandoRelacionSeries, Datos, "&Relación de series..."_w, true, nullptr,
     Abre<Dialogo::Lista, ListaSeries>},
    {ComandoRelacionMatrices, Datos, "Relación &de matrices..."_w, true, nullptr,
     Abre<Dialogo::Lista, ListaMatrices>},
    {ComandoRelacionEscalares, Datos, "Re&lación de escalares..."_w, true, nullptr,
     Abre<Dialogo::Lista, ListaEscalares>},
    {ComandoMuestraActual, Datos, "&Muestra actual...", true, SinTipo, Abre<Dialogo::MuestraActual>},
    {ComandoMuestra, Proced, "&Muestra...", false, SinTipo, Abre<Dialogo::Muestra>},
    {ComandoProcesar, Proced, "&Procesar", true, SinTipo, Procesar},
    {ComandoDescriptivos, Estadistica, "&Estadísticos descriptivos..."_w, true, SinTipo,
     Abre<Dialogo::Descriptivos>},
    {ComandoHistograma, Estadistica, "&Histograma...", true, SinTipoSingular, Abre<Dialogo::Histograma>},
    {ComandoPrediccion, Estadistica, "&Predicción y evaluación..."_w, false, SinTipoSingular, Predecir},
    {ComandoTransformacion, Estadistica, "Transformación de series..."_w, true, nullptr,
     Abre<Dialogo::Transformacion>},
    {ComandoGraficosTemporales, Graficos, "&Gráficos temporales..."_w, true, nullptr,
     Abre<Dialogo::GraficosSeries, GraficosTemporales>},
    {ComandoGraficosDispersion, Graficos, "Gráficos &de dispersión..."_w, true, nullptr,
     Abre<Dialogo::GraficosSeries, GraficosDeDispersion>},
    {ComandoMinimosCuadrados, Estimacion, "&Mínimos cuadrados..."_w, true, SinTipo, Estima<Dialogo::MC>},
    {ComandoMinimosPonderados, Estimacion, "Mínimos &cuadrados ponderados..."_w, true, SinTipo,
     Estima<Dialogo::MCP>},
    {ComandoSinEnsamblar, Estimacion, "Método &variables instrumentales..."_w, false, nullptr,
     NoEstaEnsamblada},
    {ComandoUltimaRegresion, Estimacion, "&Última regresión..."_w, true, nullptr,
     Abre<Dialogo::UltimaRegresion>},
    {ComandoHipotesisNula, Significatividad, "&Especificando Hipótesis nula..."_w, false, SinTipo,
     Abre<Dialogo::HipotesisNula>},
    {ComandoModeloRestringido, Significatividad, "Especificando &Modelo restringido...", false, SinTipo,
     Abre<Dialogo::ModeloRestringido>},
    {ComandoGoldfeldQuandt, Heteroscedasticidad, "&Goldfeld y Quandt...", false, SinTipo,
     Abre<Dialogo::GoldfeldQuandt>},
    {ComandoWhite, Heteroscedasticidad, "&White...", false, SinTipo, Abre<Dialogo::White>},
    {ComandoRangos, Heteroscedasticidad, "&Rangos...", false, SinTipo, Abre<Dialogo::Rangos>},
    {ComandoDurbin, Autocorrelacion, "&h de Durbin...", false, SinTipo, Durbin},
    {ComandoWallis, Autocorrelacion, "&Contraste de Wallis...", false, SinTipo, Wallis},
    {ComandoAutocorrelacion, Autocorrelacion, "&Función de autocorrelación..."_w, true, SinTipoSingular,
     Abre<Dialogo::Autocorrelacion, ComandoAutocorrelacion>},
    {ComandoAutocorrelacionParcial, Autocorrelacion, "Función de autocorrelación parcial..."_w, true,
     SinTipoSingular, Abre<Dialogo::Autocorrelacion, ComandoAutocorrelacionParcial>},
    {ComandoNormalidad, Contrastes, "Contraste de &normalidad...", true, SinTipoSingular,
     Abre<Dialogo::Normalidad>},
    {ComandoSinEnsamblar, Contrastes, "&Otros contrastes", false, nullptr, NoEstaEnsamblada},
    {ComandoExportar, Util, "&Exportar a ASCII...", true, SinTipo, Exportar},
    {ComandoImportar, Util, "I&mportar de ASCII...", true, SinTipo, Importar},
    {ComandoSinEnsamblar, Util, "&Combinar archivos", false, nullptr, NoEstaEnsamblada},
    {ComandoImprimirSeleccion, Util, "&Imprimir selección"_w, false, nullptr, ImprimirTexto},
    {ComandoAbrirSentencias, Util, "&Abrir fichero sentencias...", false, nullptr,
     ConSentencias<AbrirSentencias>},
    {ComandoGuardarSentencias, Util, "&Guardar fichero sentencias...", false, nullptr,
     ConSentencias<GuardarSentencias>},
    {ComandoAnadirSentencias, Util, "Aña&dir fichero sentencias..."_w, false, nullptr,
     ConSentencias<AnadirSentencias>},
    {ComandoAyudaReglas, MenuDeAyuda, "&Reglas generales...", false, nullptr, VerAyuda},
    {ComandoAyudaMuestra, MenuDeAyuda, "Acotación de la muestra..."_w, false, nullptr, VerAyuda},
    {ComandoAyudaSeries, MenuDeAyuda, "&Transformación de series..."_w, false, nullptr, VerAyuda},
    {ComandoAyudaEscalares, MenuDeAyuda, "&Escalares...", false, nullptr, VerAyuda},
    {ComandoAyudaCalculadora, MenuDeAyuda, "&Calculadora...", false, nullptr, VerAyuda},
    {ComandoAyudaMatrices, MenuDeAyuda, "Cálculo &matricial..."_w, false, nullptr, VerAyuda},
    {ComandoAyudaMetodos, MenuDeAyuda, "Mét&odos y contrastes..."_w, false, nullptr, VerAyuda},
    {ComandoAyudaControl, MenuDeAyuda, "Co&ntrol de flujo y otros...", false, nullptr, VerAyuda},
    {ComandoAyudaLogicos, MenuDeAyuda, "Operadores lógicos..."_w, false, nullptr, VerAyuda},
    {ComandoAyudaFicticias, MenuDeAyuda, "Series ficticias...", false, nullptr, VerAyuda},
    {ComandoAyudaProbabilidades, MenuDeAyuda, "Probabilidades...", false, nullptr, VerAyuda},
    {ComandoAyudaPantalla, MenuDeAyuda, "Funciones desde Pantalla Edición"_w, false, nullptr, VerAyuda},
    {ComandoAyudaEjemplos, MenuDeAyuda, "Ejemplos de ayuda...", false, nullptr, VerAyuda},
    {ComandoAcerca, MenuDeAyuda, "&Acerca de Tabira...", false, nullptr, VerAyuda},
    // Ids that no entry bears.
    {ComandoAyudaAlisado, nullptr, nullptr, false, nullptr, VerAyuda},
    {ComandoAyudaRetardadas, nullptr, nullptr, false, nullptr, VerAyuda},
    {ComandosSinEnsamblar[0], nullptr, nullptr, false, nullptr, NoEstaEnsamblada},
    {ComandosSinEnsamblar[2], nullptr, nullptr, false, nullptr, NoEstaEnsamblada},
    {ComandosSinEnsamblar[3], nullptr, nullptr, false, nullptr, NoEstaEnsamblada},
    {ComandoCancelar, nullptr, nullptr, false, nullptr, Salir}, // the cancel key
};

const int NumComandos = static_cast<int>(std::size(TablaComandos));

void InstalarEscritorio(const OperacionesEscritorio &operaciones) {
    Escritorio = &operaciones;
    AntesDeCadaLote = AntesDelLote;
    DespuesDeCadaLote = DespuesDelLote;
}

void EjecutarComando(Ventana *ventana, int id) {
    const auto *c = std::find_if(std::begin(TablaComandos), std::end(TablaComandos),
                                 [&](const Comando &fila) { return fila.id == id; });
    if (c == std::end(TablaComandos)) return;
    if (c->guardia != nullptr && ArchivoTrabajo.TipoDatos >= SinTipoDatos) {
        MostrarMensaje(ventana, c->guardia);
        return;
    }
    if (c->refrescaMuestra) ActualizarMuestra();
    (c->rutina != nullptr ? c->rutina : NoEstaEnsamblada)(ventana, id);
}

bool CerrarPrograma(Ventana *ventana) {
    Respuesta respuesta = RespuestaNo;
    // With neither series nor matrices the question isn't asked, even if there are scalars.
    if (HaySeries() || TablaMatrices.numero > 0)
        respuesta = MostrarCaja(ventana, "¿Desea guardar su trabajo?"_w, TituloAviso, IconoPregunta,
                                BotonesSiNoCancelar);
    if (respuesta == RespuestaCancelar) return false;
    if (respuesta == RespuestaSi) EjecutarComando(ventana, ComandoGuardarTrabajo);
    // The program ends also when the save came to nothing: the copy is kept then, for the next start.
    if (!TerminarCopias(respuesta == RespuestaSi)) return false;
    LiberarMatrices();
    Escritorio->destruir(ventana);
    return true;
}

void IniciarPrograma() {
    IniciarArchivoTrabajo();
    IniciarProcedimientos();
    Trabajo = {};
}

void IniciarCopias(Ventana *ventana) {
    EmpezarCopias(CarpetaDeEstado(), Escritorio->pantallaEdicion(ventana));
    OfrecerCopia(ventana);
}
