// The commands of the menu.
#include "shell/comandos.h"

#include "charts/resultados/listados.h"
#include "language/palabras.h"
#include "platform/campos_texto.h"
#include "shell/ayuda.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <algorithm>

namespace {

const OperacionesEscritorio *Escritorio = nullptr;

constexpr const char *SinTipo = "Tipo de datos no válidos"_w;
constexpr const char *SinTipoSingular = "Tipo de datos no válido"_w; // some commands say it in the singular

constexpr int IdGuardar = 2056;

void NoEstaEnsamblada(Ventana *ventana, int) {
    Escritorio->dialogoNoEnsamblada(ventana);
}

void Salir(Ventana *ventana, int) {
    CerrarPrograma(ventana);
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
    Escritorio->dialogoTipoDatos(ventana);
    // The title is rebuilt whether the user accepted or not.
    Escritorio->ponerTitulo(
        ventana, "Tabira: " + std::string(Recortado(ArchivoTrabajo.NombreProyecto, RecorteDerecha)));
}

void Relacion(Ventana *ventana, int id) {
    const ListasDeElementos lista = id == 2065 ? ListaSeries : id == 2064 ? ListaMatrices : ListaEscalares;
    Escritorio->dialogoLista(ventana, lista);
}

void MuestraEnCurso(Ventana *ventana, int) {
    Escritorio->dialogoMuestraActual(ventana);
}
void AcotarMuestra(Ventana *ventana, int) {
    Escritorio->dialogoMuestra(ventana);
}
void VerUltimaRegresion(Ventana *ventana, int) {
    Escritorio->dialogoUltimaRegresion(ventana);
}

void Procesar(Ventana *ventana, int) {
    ProcesarLote(ventana, Escritorio->pantallaEdicion(ventana), 0, {}, Muestra.InicioMuestra,
                 Muestra.FinMuestra);
}

void ImprimirTexto(Ventana *ventana, int) {
    ImprimirSeleccion(ventana, Escritorio->pantallaEdicion(ventana));
}

void Ayuda(Ventana *ventana, int id) {
    Escritorio->paginaAyuda(ventana, PaginaDeComando(id));
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

// Entries without a routine are announced and not built yet; they all open the same dialog. Those with the id 2002 are
// announced for good: three entries share the id.
const Comando TablaComandos[] = {
    {2055, Archivo, "&Abrir archivo trabajo...", "WLVPT", true, nullptr, nullptr},
    {IdGuardar, Archivo, "&Guardar archivo trabajo ... ", "WLVPT", true, nullptr, nullptr},
    {2057, Archivo, "Guardar archivo &trabajo como ...", "WLVPT", true, nullptr, nullptr},
    {2021, Archivo, "&Salir", "", false, nullptr, Salir},
    {2047, Edicion, "&Deshacer", "", false, nullptr, Deshacer},
    {2048, Edicion, "&Cortar", "", false, nullptr, Cortar},
    {2049, Edicion, "C&opiar", "", false, nullptr, Copiar},
    {2050, Edicion, "&Pegar", "", false, nullptr, Pegar},
    {2020, Datos, "&Tipo de datos ...", "WLVPT", false, nullptr, ElegirTipo},
    {2035, Datos, "&Editor de series...", "WLVPT", true, SinTipoSingular, nullptr},
    {2054, Datos, "Editor de &matrices...", "WLVPT", false, SinTipoSingular, nullptr},
    {2065, Datos, "&Relación de series..."_w, "T", true, nullptr, Relacion},
    {2064, Datos, "Relación &de matrices..."_w, "T", true, nullptr, Relacion},
    {2066, Datos, "Re&lación de escalares..."_w, "T", true, nullptr, Relacion},
    {2085, Datos, "&Muestra actual...", "T", true, SinTipo, MuestraEnCurso},
    {2038, Proced, "&Muestra...", "WLVPT", false, SinTipo, AcotarMuestra},
    {2006, Proced, "&Procesar", "WVPTE", true, SinTipo, Procesar},
    {2039, Estadistica, "&Estadísticos descriptivos..."_w, "WVPT", true, SinTipo, nullptr},
    {2007, Estadistica, "&Histograma...", "VPT", true, SinTipoSingular, nullptr},
    {2036, Estadistica, "&Predicción y evaluación..."_w, "LVPT", false, SinTipoSingular, nullptr},
    {2094, Estadistica, "Transformación de series..."_w, "WLVPT", true, nullptr, nullptr},
    {2013, Graficos, "&Gráficos temporales..."_w, "WLVPT", true, nullptr, nullptr},
    {2023, Graficos, "Gráficos &de dispersión..."_w, "WLVPT", true, nullptr, nullptr},
    {2004, Estimacion, "&Mínimos cuadrados..."_w, "WVPTE", true, SinTipo, nullptr},
    {2081, Estimacion, "Mínimos &cuadrados ponderados..."_w, "WVPTE", true, SinTipo, nullptr},
    {2002, Estimacion, "Método &variables instrumentales..."_w, "", false, nullptr, NoEstaEnsamblada},
    {2086, Estimacion, "&Última regresión..."_w, "T", true, nullptr, VerUltimaRegresion},
    {2012, Significatividad, "&Especificando Hipótesis nula..."_w, "WVPT", false, SinTipo, nullptr},
    {2075, Significatividad, "Especificando &Modelo restringido...", "WVPT", false, SinTipo, nullptr},
    {2078, Heteroscedasticidad, "&Goldfeld y Quandt...", "WVPT", false, SinTipo, nullptr},
    {2080, Heteroscedasticidad, "&White...", "WVPT", false, SinTipo, nullptr},
    {2079, Heteroscedasticidad, "&Rangos...", "WVPT", false, SinTipo, nullptr},
    {2082, Autocorrelacion, "&h de Durbin...", "WVPT", false, SinTipo, nullptr},
    {2083, Autocorrelacion, "&Contraste de Wallis...", "WVPT", false, SinTipo, nullptr},
    {2073, Autocorrelacion, "&Función de autocorrelación..."_w, "VPT", true, SinTipoSingular, nullptr},
    {2093, Autocorrelacion, "Función de autocorrelación parcial..."_w, "VPT", true, SinTipoSingular, nullptr},
    {2087, Contrastes, "Contraste de &normalidad...", "LVPT", true, SinTipoSingular, nullptr},
    {2002, Contrastes, "&Otros contrastes", "", false, nullptr, NoEstaEnsamblada},
    {2071, Util, "&Exportar a ASCII...", "LVPT", true, SinTipo, nullptr},
    {2072, Util, "I&mportar de ASCII...", "LVPT", true, SinTipo, nullptr},
    {2002, Util, "&Combinar archivos", "", false, nullptr, NoEstaEnsamblada},
    {2088, Util, "&Imprimir selección"_w, "", false, nullptr, ImprimirTexto},
    {2092, Util, "&Abrir fichero sentencias...", "", false, nullptr, nullptr},
    {2091, Util, "&Guardar fichero sentencias...", "", false, nullptr, nullptr},
    {2090, Util, "Aña&dir fichero sentencias..."_w, "", false, nullptr, nullptr},
    {2067, MenuDeAyuda, "&Reglas generales...", "", false, nullptr, Ayuda},
    {2101, MenuDeAyuda, "Acotación de la muestra..."_w, "", false, nullptr, Ayuda},
    {2051, MenuDeAyuda, "&Transformación de series..."_w, "", false, nullptr, Ayuda},
    {2068, MenuDeAyuda, "&Escalares...", "", false, nullptr, Ayuda},
    {2053, MenuDeAyuda, "&Calculadora...", "", false, nullptr, Ayuda},
    {2069, MenuDeAyuda, "Cálculo &matricial..."_w, "", false, nullptr, Ayuda},
    {2084, MenuDeAyuda, "Mét&odos y contrastes..."_w, "", false, nullptr, Ayuda},
    {2089, MenuDeAyuda, "Co&ntrol de flujo y otros...", "", false, nullptr, Ayuda},
    {2096, MenuDeAyuda, "Operadores lógicos..."_w, "", false, nullptr, Ayuda},
    {2097, MenuDeAyuda, "Series ficticias...", "", false, nullptr, Ayuda},
    {2098, MenuDeAyuda, "Probabilidades...", "", false, nullptr, Ayuda},
    {2102, MenuDeAyuda, "Funciones desde Pantalla Edición"_w, "", false, nullptr, Ayuda},
    {2100, MenuDeAyuda, "Ejemplos de ayuda...", "", false, nullptr, Ayuda},
    {2046, MenuDeAyuda, "&Acerca de Tabira...", "", false, nullptr, Ayuda},
    // Ids that no entry bears.
    {2052, nullptr, nullptr, "", false, nullptr, Ayuda},
    {2099, nullptr, nullptr, "", false, nullptr, Ayuda},
    {2001, nullptr, nullptr, "", false, nullptr, NoEstaEnsamblada},
    {2003, nullptr, nullptr, "", false, nullptr, NoEstaEnsamblada},
    {2010, nullptr, nullptr, "", false, nullptr, NoEstaEnsamblada},
    {2, nullptr, nullptr, "", false, nullptr, Salir}, // the cancel key
};

const int NumComandos = static_cast<int>(std::size(TablaComandos));

void InstalarEscritorio(const OperacionesEscritorio &operaciones) {
    Escritorio = &operaciones;
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
    // With neither series nor matrices the question isn't asked, even if there are scalars.
    if (ArchivoTrabajo.NumSeries > 0 || TablaMatrices.numero > 0) {
        const Respuesta respuesta = MostrarCaja(ventana, "¿Desea guardar su trabajo?"_w, TituloAviso,
                                                IconoPregunta, BotonesSiNoCancelar);
        if (respuesta == RespuestaCancelar) return false;
        if (respuesta == RespuestaSi) {
            EjecutarComando(ventana, IdGuardar);
            // Saving isn't built yet: whoever asked for it keeps the work and the program.
            return false;
        }
    }
    LiberarMatrices();
    Escritorio->destruir(ventana);
    return true;
}

void IniciarPrograma() {
    IniciarArchivoTrabajo();
    IniciarProcedimientos();
}
