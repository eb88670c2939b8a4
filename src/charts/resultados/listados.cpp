// Listings of series, matrices and the text of the main screen.
#include "charts/resultados/listados.h"

#include "charts/resultados/partes_informe.h"
#include "platform/campos_texto.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <algorithm>

namespace {

constexpr Pluma PlumaRegla = {{0, 0, 0}, 3, PlumaContinua};

constexpr int PrimeraFila = 3; // rows left free at the top of the paper

constexpr int AnchoListado = 65; // characters between the side rules
constexpr int AnchoRenglon = 64; // characters of a printed line of series
constexpr int AnchoNumero = 15;  // of a value, a code, a period
constexpr int ContadorTrasCabecera = 10;
constexpr int SeriesPorBloque = 3;
constexpr int SeriesPorBloqueConEtiquetas = 2;
constexpr int FilasCabeceraSeries = 3;
constexpr int FilasCabeceraMatriz = 6;
constexpr int ElementosPorRenglon = 4;

constexpr int AnchoPantalla = 70;
constexpr int AnchoCabeceraPantalla = 79;
constexpr int ContadorPantalla = 12;  // after the head of the main screen's listing
constexpr int ContadorInicial = 1000; // above the lines of any page, so that the first line opens a head
constexpr int FinalPantalla = 32000;  // where the selection of the whole text ends

// ---------------------------------------------------------------------------------------------------------------
// The paper

struct Hoja {
    DispositivoImpresion *dispositivo;
    Ventana *ventana;
    Superficie *s;
    int izquierda, derecha;
    int lineasPagina, contador;
    int fila;                   // next row on the paper
    bool trasRegla;             // the row above holds a rule
    const char *cabeceraPagina; // head of a page, for its number
    int pagina;
    std::string cabecera; // head line of the block being listed
    int filasCabecera;    // what that line and its rules count
    bool avisarFin;       // a page whose end is refused is told
    int decimales;        // of the numbers
};

Hoja AbrirHoja(DispositivoImpresion *dispositivo, Ventana *ventana, int ancho, int decimales = 0) {
    Hoja h{};
    h.dispositivo = dispositivo;
    h.ventana = ventana;
    h.s = ImpresoraEnUso().superficieDePagina(dispositivo);
    h.izquierda = std::max((h.s->ancho - ancho * h.s->anchoCaracter) / 2, 1);
    h.derecha = std::min(h.izquierda + ancho * h.s->anchoCaracter, h.s->ancho);
    h.lineasPagina = h.s->alto / h.s->altoLinea;
    h.fila = PrimeraFila;
    h.decimales = std::clamp(decimales, 0, 6);
    return h;
}

int AlturaDeRegla(const Hoja &h, int fila) {
    return fila * h.s->altoLinea + h.s->altoLinea / 2;
}

void PonerRegla(Hoja &h) {
    if (h.trasRegla) return;
    const int y = AlturaDeRegla(h, h.fila++);
    Linea(*h.s, h.izquierda, y, h.derecha, y, PlumaRegla);
    h.trasRegla = true;
}

void PonerTexto(Hoja &h, int x, std::string_view texto) {
    Texto(*h.s, x, h.fila++ * h.s->altoLinea, texto);
    h.trasRegla = false;
}

void PonerRenglon(Hoja &h, std::string_view texto) {
    PonerTexto(h, h.izquierda + h.s->anchoCaracter, texto);
}

// ---------------------------------------------------------------------------------------------------------------
// Pages of the listings of series and matrices

void PonerCabeceraDePagina(Hoja &h) {
    h.fila = PrimeraFila;
    h.trasRegla = false;
    PonerRegla(h);
    PonerRenglon(h, Formatear(h.cabeceraPagina, ++h.pagina));
    PonerRegla(h);
    h.contador = ContadorTrasCabecera;
}

void PonerCabeceraDeBloque(Hoja &h) {
    PonerRegla(h);
    PonerRenglon(h, h.cabecera);
    PonerRegla(h);
    h.contador += h.filasCabecera;
}

bool CerrarPagina(Hoja &h) {
    PonerRegla(h);
    const int arriba = AlturaDeRegla(h, PrimeraFila), abajo = AlturaDeRegla(h, h.fila - 1);
    Linea(*h.s, h.izquierda, arriba, h.izquierda, abajo, PlumaRegla);
    Linea(*h.s, h.derecha, arriba, h.derecha, abajo, PlumaRegla);
    if (TerminarPaginaImpresion(h.dispositivo) || !h.avisarFin) return true;
    MostrarMensaje(h.ventana, "Ha habido un error en la impresión"_w, TituloAviso);
    return false;
}

bool CambiarPagina(Hoja &h) {
    if (!CerrarPagina(h)) return false;
    h.dispositivo = NuevaPaginaImpresion(h.ventana, h.pagina == 1 ? 1 : 0);
    if (h.dispositivo == nullptr) return false;
    h.s = ImpresoraEnUso().superficieDePagina(h.dispositivo);
    PonerCabeceraDePagina(h);
    PonerCabeceraDeBloque(h);
    return true;
}

// Begins a block under its head line; on the next page when the line count would go above the lines of this one.
bool AbrirBloque(Hoja &h, std::string cabecera) {
    h.cabecera = std::move(cabecera);
    if (h.contador + h.filasCabecera > h.lineasPagina) return CambiarPagina(h);
    PonerCabeceraDeBloque(h);
    return true;
}

bool Listar(Hoja &h, std::string_view renglon) {
    if (h.contador > h.lineasPagina && !CambiarPagina(h)) return false;
    PonerRenglon(h, renglon);
    ++h.contador;
    return true;
}

std::string NumeroDeListado(const Hoja &h, double valor) {
    return Formatear("%15.*f ", h.decimales, valor);
}

// ---------------------------------------------------------------------------------------------------------------
// Series

// The rows of the sample that can be listed. A work file of more rows than the tables hold is listed when its sample
// is short, and then from the first row on.
bool FilasAListar(int &primera, int &ultima) {
    primera = std::max(Muestra.InicioMuestra, 0);
    ultima = Muestra.FinMuestra;
    if (ArchivoTrabajo.NumObs > MaxObservaciones) {
        if (ultima - primera + 1 >= MaxObservaciones) return false;
        ultima -= primera;
        primera = 0;
    }
    ultima = std::min(ultima, FilasEnUso() - 1);
    return true;
}

std::string CabeceraDeSeries(const std::vector<int> &bloque) {
    std::string r = ArchivoTrabajo.TipoDatos != TipoSinPeriodicidad ? "  Período     "_w : "  Observac.   ";
    if (ArchivoTrabajo.ConEtiquetas != 0) r += "  Etiquetas   ";
    for (const int s : bloque)
        r += Formatear("%15s ", std::string(Recortado(ArchivoTrabajo.Codigos[s])).c_str());
    r.resize(std::max<std::size_t>(r.size(), AnchoRenglon), ' ');
    return r;
}

// One observation of the block; what doesn't fit in a printed line goes on in the next.
bool ListarObservacion(Hoja &h, const std::vector<int> &bloque, int fila) {
    std::string renglon = Centrado(TextoPeriodo(fila), AnchoNumero);
    if (ArchivoTrabajo.ConEtiquetas != 0) renglon += Formatear("%15s", ArchivoTrabajo.EtiquetasObs[fila]);
    for (const int s : bloque) {
        // A missing value has 12 blanks where a number has 15 places.
        const std::string valor = ArchivoTrabajo.PresenciaObs[fila][s] == 1
                                      ? NumeroDeListado(h, ArchivoTrabajo.ValoresObs[fila][s])
                                      : std::string(12 + 1, ' ');
        if (!renglon.empty() && renglon.size() + valor.size() > AnchoRenglon) {
            if (!Listar(h, renglon)) return false;
            renglon.clear();
        }
        renglon += valor;
    }
    return Listar(h, renglon);
}

bool ListarBloqueDeSeries(Hoja &h, const std::vector<int> &bloque, int primera, int ultima) {
    if (!AbrirBloque(h, CabeceraDeSeries(bloque))) return false;
    for (int fila = primera; fila <= ultima; ++fila)
        if (!ListarObservacion(h, bloque, fila)) return false;
    return true;
}

// Slots of the codes of the list that exist.
std::vector<int> HuecosAListar(const ListaDeCodigos &lista, int (*buscar)(std::string_view)) {
    std::vector<int> huecos;
    for (const std::string &codigo : lista.codigos)
        if (const int hueco = buscar(codigo); hueco >= 0) huecos.push_back(hueco);
    return huecos;
}

// ---------------------------------------------------------------------------------------------------------------
// Matrices

// One row between braces, four elements to a printed line.
bool ListarFilaDeMatriz(Hoja &h, const double *elementos, int columnas) {
    std::string renglon = "{";
    for (int c = 0; c < columnas; ++c) {
        if (c > 0 && c % ElementosPorRenglon == 0) {
            if (!Listar(h, renglon)) return false;
            renglon = " ";
        }
        renglon += NumeroDeListado(h, elementos[c]);
    }
    return Listar(h, renglon + "}");
}

bool ListarMatriz(Hoja &h, int matriz) {
    const RegistroMatriz &r = TablaMatrices.registro[matriz];
    if (!AbrirBloque(h, Formatear("  Nombre Matriz..: %12s     Nº Filas: %3d Nº Col.: %3d  "_w, r.Codigo,
                                  r.Filas, r.Columnas)))
        return false;
    if (!FijarMatriz(matriz)) return true;
    bool bien = true;
    for (int f = 0; f < r.Filas && bien; ++f)
        bien = ListarFilaDeMatriz(h, r.Datos + f * r.Columnas, r.Columnas);
    SoltarMatriz(matriz);
    return bien;
}

// ---------------------------------------------------------------------------------------------------------------
// Main screen

void PonerCabeceraDePantalla(Hoja &h) {
    if (h.contador <= h.lineasPagina) return;
    PonerRegla(h);
    // The page number stays 0: this listing has one page only.
    std::string texto = Formatear("            LISTADO PANTALLA PRINCIPAL        Página.: %3d  "_w, h.pagina);
    const int caben = std::min(AnchoCabeceraPantalla, (h.derecha - h.izquierda) / h.s->anchoCaracter);
    texto.resize(static_cast<std::size_t>(std::max(caben, 0)), ' ');
    PonerTexto(h, h.izquierda + (h.derecha - h.izquierda - caben * h.s->anchoCaracter) / 2, texto);
    ++h.fila;
    PonerRegla(h);
    h.contador = ContadorPantalla;
}

void PonerLineaDePantalla(Hoja &h, std::string_view linea) {
    PonerCabeceraDePantalla(h);
    PonerRenglon(h, linea);
    ++h.contador;
}

} // namespace

bool ListarSeries(DispositivoImpresion *dispositivo, Ventana *ventana, const ListaDeCodigos &lista) {
    const std::vector<int> series = HuecosAListar(lista, BuscarSerie);
    if (series.empty()) {
        MostrarMensaje(ventana, "No existen series a listar", TituloAviso);
        return false;
    }
    int primera = 0, ultima = 0;
    if (!FilasAListar(primera, ultima)) return false;
    Hoja h = AbrirHoja(dispositivo, ventana, AnchoListado, lista.decimales);
    h.cabeceraPagina = "        Listado de Series                Página.: %3d  "_w;
    h.filasCabecera = FilasCabeceraSeries;
    h.avisarFin = true;
    PonerCabeceraDePagina(h);
    const int porBloque = ArchivoTrabajo.ConEtiquetas != 0 ? SeriesPorBloqueConEtiquetas : SeriesPorBloque;
    for (std::size_t i = 0; i < series.size(); i += static_cast<std::size_t>(porBloque)) {
        const auto fin = std::min(series.size(), i + static_cast<std::size_t>(porBloque));
        const std::vector<int> bloque(series.begin() + static_cast<std::ptrdiff_t>(i),
                                      series.begin() + static_cast<std::ptrdiff_t>(fin));
        if (!ListarBloqueDeSeries(h, bloque, primera, ultima)) return false;
    }
    return CerrarPagina(h);
}

bool ListarMatrices(DispositivoImpresion *dispositivo, Ventana *ventana, const ListaDeCodigos &lista) {
    const std::vector<int> matrices = HuecosAListar(lista, BuscarMatriz);
    if (matrices.empty()) {
        MostrarMensaje(ventana, "No existen matrices a listar", TituloAviso);
        return false;
    }
    Hoja h = AbrirHoja(dispositivo, ventana, AnchoListado, lista.decimales);
    // The brace that closes a row of four elements stands in column 66: the right rule leaves it inside.
    h.derecha = std::min(h.derecha + 2 * h.s->anchoCaracter, h.s->ancho);
    h.cabeceraPagina = "      Listado de Matrices                Página.: %3d  "_w;
    h.filasCabecera = FilasCabeceraMatriz;
    PonerCabeceraDePagina(h);
    for (const int m : matrices)
        if (!ListarMatriz(h, m)) return false;
    return CerrarPagina(h);
}

bool ListarPantalla(DispositivoImpresion *dispositivo, Ventana *ventana, const std::string &texto) {
    Hoja h = AbrirHoja(dispositivo, ventana, AnchoPantalla);
    h.contador = ContadorInicial;
    std::string_view resto = texto;
    for (std::size_t fin = 0; (fin = resto.find_first_of("\r\n")) != std::string_view::npos;) {
        PonerLineaDePantalla(h, resto.substr(0, fin));
        resto.remove_prefix(resto.substr(fin, 2) == "\r\n" ? fin + 2 : fin + 1);
    }
    PonerLineaDePantalla(h, resto);
    // Nothing is drawn on this page; all that shows of it is the message of a printer that fails now.
    return NuevaPaginaImpresion(ventana, 1) != nullptr;
}

int ImprimirSeleccion(Ventana *ventana, ControlTexto *control) {
    const std::string texto = TextoDeControl(control);
    int desde = 0, hasta = 0;
    const auto leer = [&] {
        SeleccionDeControl(control, desde, hasta);
        return hasta - desde > 1; // one character counts as nothing selected
    };
    if (!leer()) {
        SeleccionarEnControl(control, 0, FinalPantalla);
        if (!leer()) {
            MostrarMensaje(ventana, "No hay datos a procesar. Punto 3.");
            return 1;
        }
    }
    PonerCursor(CursorEspera);
    const auto inicio = std::min(static_cast<std::size_t>(desde), texto.size());
    const std::string elegido = texto.substr(inicio, static_cast<std::size_t>(hasta - desde) + 1);
    return ImprimirSalida(ventana, "Listado Pantalla principal", ImprimirPantalla, &elegido);
}
