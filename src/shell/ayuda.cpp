// The tables of the help pages and the walk from page to page.
#include "shell/ayuda.h"

#include "shell/ayuda_textos.h"
#include "shell/ids_comandos.h"

EstadoAyuda Ayuda;

namespace {

constexpr const char *TituloReglas = "Reglas generales";
constexpr const char *TituloSeries = "Generación de series"_w;
constexpr const char *TituloMatrices = "Generación de matrices"_w;
constexpr const char *TituloMetodos = "Métodos y contrastes"_w;
constexpr const char *TituloControl = "Control de flujo y otros";

// Three texts stand twice: in a chain, and alone behind an entry of their own.
constexpr PaginaManual Paginas[] = {
    {1194, TituloReglas, ComandoAyudaReglas, 5074, TextoReglas1},
    {1138, TituloReglas, 0, 5035, TextoReglas2},
    {1128, TituloReglas, 0, 0, TextoReglas3},
    {1197, TituloSeries, ComandoAyudaSeries, 5015, TextoSeries1},
    {1130, TituloSeries, 0, 5058, TextoSeries2},
    {1127, TituloSeries, 0, 5033, TextoSeries3},
    {1131, TituloSeries, 0, 5034, TextoSeries4},
    {1132, TituloSeries, 0, 5073, TextoProbabilidades},
    {1217, TituloSeries, 0, 5075, TextoLogicos},
    {1218, TituloSeries, 0, 0, TextoFicticias},
    {1192, TituloMatrices, ComandoAyudaMatrices, 5018, TextoMatrices1},
    {1129, TituloMatrices, 0, 0, TextoMatrices2},
    {1191, TituloMetodos, ComandoAyudaMetodos, 5065, TextoMetodos1},
    {1133, TituloMetodos, 0, 5068, TextoMetodos2},
    {1134, TituloMetodos, 0, 0, TextoMetodos3},
    {1190, TituloControl, ComandoAyudaControl, 5070, TextoControl1},
    {1135, TituloControl, 0, 5071, TextoControl2},
    {1136, TituloControl, 0, 0, TextoControl3},
    {1193, "Generación de escalares"_w, ComandoAyudaEscalares, 0, TextoEscalares},
    {1196, "Calculadora", ComandoAyudaCalculadora, 0, TextoCalculadora},
    {PaginaMuestra, "Acotación intervalos muestra"_w, ComandoAyudaMuestra, 0, TextoMuestra},
    {1220, TituloSeries, ComandoAyudaLogicos, 0, TextoLogicos},
    {1221, TituloSeries, ComandoAyudaFicticias, 0, TextoFicticias},
    {1219, TituloSeries, ComandoAyudaProbabilidades, 0, TextoProbabilidades},
    {1224, "Acceso a procedimientos desde la Pantalla de Edición"_w, ComandoAyudaPantalla, 0, TextoPantalla},
    {1223, "Ejemplos de ayuda", ComandoAyudaEjemplos, 0, TextoEjemplos},
    {PaginaAcerca, "Acerca de..", ComandoAcerca, 0, TextoAcerca},
    {1222, TituloSeries, ComandoAyudaRetardadas, 0, TextoRetardadas},
    {1195, "Alisado exponencial", ComandoAyudaAlisado, 0, TextoAlisado},
    {PaginaEdicion, "Ventana de Edición"_w, 0, 0, TextoEdicion},
    {PaginaNoEnsamblada, "Opción del menú"_w, 0, 0, TextoNoEnsamblada},
    {PaginaAscii, "Importación/Exportación a/de  ASCII"_w, 0, 0, TextoAscii},
    {PaginaAutocorrelacion, "Funciones de autocorrelación"_w, 0, 0, TextoAutocorrelacion},
    {PaginaPanel, "Datos Panel", 0, 0, TextoPanel},
    {PaginaHistograma, "Histograma", 0, 0, TextoHistograma},
    {PaginaHipotesisNula, "Contrastes de significatividad: Hipótesis nula"_w, 0, 0, TextoHipotesisNula},
    {PaginaGoldfeldQuandt, "Contrastes de heteroscedasticidad: Goldfeld y Quandt", 0, 0, TextoGoldfeldQuandt},
    {PaginaGraficos, "Gráficos de series"_w, 0, 0, TextoGraficos},
    {PaginaGraficosRegresion, "Gráficos de la regresión"_w, 0, 0, TextoGraficosRegresion},
};

struct EnlaceAyuda {
    int origen, pagina;
};

constexpr EnlaceAyuda BotonesSiguiente[] = {
    {5015, 1130}, {5018, 1129}, {5033, 1131}, {5034, 1132}, {5035, 1128}, {5058, 1127}, {5065, 1133},
    {5068, 1134}, {5070, 1135}, {5071, 1136}, {5072, 1137}, {5073, 1217}, {5074, 1138}, {5075, 1218},
};

constexpr const char *Nombres[] = {"Los autores de Tabira", "Los autores de Tabira",
                                   "Colaboradores de Tabira"};

int Enlazada(std::span<const EnlaceAyuda> enlaces, int origen) {
    for (const EnlaceAyuda &e : enlaces)
        if (e.origen == origen) return e.pagina;
    return 0;
}

bool TieneAnterior(const PaginaManual &pagina) {
    for (const PaginaManual &p : Paginas)
        if (p.botonSiguiente != 0 && PaginaDeBoton(p.botonSiguiente) == pagina.id) return true;
    return false;
}

} // namespace

std::string TextoDePagina(const PaginaManual &pagina) {
    std::string texto;
    for (const LineaAyuda *l = pagina.lineas; l->texto != nullptr; ++l) {
        if (l != pagina.lineas) texto += '\n';
        if (l->tipo == LineaDeEjemplo) texto += "    ";
        texto += l->texto;
    }
    return texto;
}

std::span<const PaginaManual> PaginasManual() {
    return Paginas;
}

std::span<const char *const> NombresAcercaDe() {
    return Nombres;
}

const PaginaManual *BuscarPagina(int id) {
    for (const PaginaManual &p : Paginas)
        if (p.id == id) return &p;
    return nullptr;
}

int PaginaDeComando(int comando) {
    for (const PaginaManual &p : Paginas)
        if (p.comando != 0 && p.comando == comando) return p.id;
    return 0;
}

int PaginaDeBoton(int boton) {
    return Enlazada(BotonesSiguiente, boton);
}

BotonesPagina BotonesDePagina(const PaginaManual &pagina) {
    BotonesPagina b{};
    const bool anterior = TieneAnterior(pagina), siguiente = pagina.botonSiguiente != 0;
    if (!anterior && !siguiente) {
        b.boton[b.numero++] = {BotonAyudaOK, "OK"};
        return b;
    }
    if (anterior) b.boton[b.numero++] = {BotonAyudaAnterior, "Anterior"};
    if (siguiente) b.boton[b.numero++] = {pagina.botonSiguiente, "Siguiente"};
    b.boton[b.numero++] = {BotonAyudaCancelar, "Cancelar"};
    return b;
}

void PaginaAyuda(Ventana *ventana, int id, AbrirPagina abrir) {
    const PaginaManual *pagina = BuscarPagina(id);
    if (pagina != nullptr) abrir(ventana, *pagina);
}

int PulsarBotonAyuda(Ventana *ventana, const PaginaManual &pagina, int boton, AbrirPagina abrir) {
    if (boton == BotonAyudaCancelar) Ayuda.CerrarAyuda = 1;
    if (boton == 0 || boton != pagina.botonSiguiente) return 1;
    Ayuda.CerrarAyuda = 0;
    PaginaAyuda(ventana, PaginaDeBoton(boton), abrir);
    return Ayuda.CerrarAyuda;
}
