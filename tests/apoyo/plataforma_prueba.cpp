// The platform of the tests.
#include "apoyo/plataforma_prueba.h"

#include "charts/graficos/grafico.h"
#include "language/palabras.h"
#include "language/traza.h"
#include "platform/campos_texto.h"
#include "platform/datos_programa.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>

PlataformaDePrueba Prueba;

namespace {

Respuesta Caja(Ventana *, std::string_view texto, std::string_view titulo, Icono icono, Botones botones) {
    Prueba.cajas.push_back({Utf8De1252(titulo), Utf8De1252(texto), icono, botones});
    if (botones == BotonesAceptar) return RespuestaAceptar;
    if (!Prueba.respuestas.empty()) {
        const Respuesta r = Prueba.respuestas.front();
        Prueba.respuestas.pop_front();
        return r;
    }
    return botones == BotonesAceptarCancelar ? RespuestaAceptar : RespuestaSi;
}

std::vector<std::pair<int, std::string>> Lineas(const TextoSalida *texto) {
    std::vector<std::pair<int, std::string>> r;
    if (texto != nullptr)
        for (const LineaSalida &l : *texto)
            r.emplace_back(l.Grupo, Utf8De1252(Recortado(l.texto, RecorteDerecha)));
    return r;
}

void MostrarGrafico(Ventana *ventana, Grafico &g) {
    GraficoVisto visto = {Utf8De1252(g.tituloVentana), {}};
    Superficie s = SuperficieGrabadora(visto.ordenes, 1024, 768, 8, 16);
    PintarGrafico(s, g);
    AvisarErrorInterno(ventana, g);
    Prueba.graficos.push_back(std::move(visto));
    if (Prueba.enGrafico) Prueba.enGrafico(g);
}

// In the table of a histogram the user chooses the command "&Gráficos".
void Resultado(Ventana *ventana, const SalidaResultado &s) {
    Prueba.resultados.push_back(
        {s.tipo, Utf8De1252(s.titulo), s.Clase, s.Contenido, Lineas(s.lineas), Lineas(s.fijas)});
    if (s.tipo == SalidaHistograma && s.graficos != nullptr) s.graficos(ventana);
}

int VecesDelPaso[NumPasosDeImpresora];

// Writes the step down; false when it is told to refuse.
bool DarPaso(PasosDeImpresora paso, const std::string &nombre) {
    Prueba.pasosImpresora.push_back(nombre);
    const int desde = Prueba.fallaPaso[paso];
    return ++VecesDelPaso[paso] < desde || desde == 0;
}

void EmpezarTrabajo(std::string_view titulo) {
    std::fill(std::begin(VecesDelPaso), std::end(VecesDelPaso), 0);
    EmpezarTrabajoGrabado(titulo);
}

void TerminarTrabajo() {
    TrabajoImpreso t = TerminarTrabajoGrabado();
    TrabajoVisto &visto = Prueba.trabajos.emplace_back();
    visto.titulo = Utf8De1252(t.titulo);
    visto.documento = t.documento;
    for (const PaginaImpresa &p : t.paginas) {
        std::vector<std::string> &lineas = visto.paginas.emplace_back();
        for (const std::string &l : LineasDePagina(p)) lineas.push_back(Utf8De1252(l));
    }
    visto.dibujo = std::move(t.paginas);
}

bool Archivo(Ventana *, const PeticionArchivo &p, std::string &ruta) {
    ArchivoPedido &pedido = Prueba.archivos.emplace_back();
    pedido = {p.guardar, Utf8De1252(p.titulo), Utf8De1252(p.nombre), {}};
    for (const FormatoArchivo &f : p.formatos) pedido.filtros.push_back(Utf8De1252(f.filtro));
    if (Prueba.rutas.empty()) return false;
    ruta = Prueba.rutas.front();
    Prueba.rutas.pop_front();
    return true;
}

const OperacionesPlataforma Operaciones = {
    .caja = Caja,
    .cursor = [](Cursor c) { Prueba.cursor = c; },
    .textoDeControl = [](ControlTexto *) { return Prueba.textoControl; },
    .seleccionDeControl =
        [](ControlTexto *, int &desde, int &hasta) {
            desde = Prueba.desde;
            hasta = Prueba.hasta;
        },
    .seleccionarEnControl =
        [](ControlTexto *, int desde, int hasta) {
            const int n = static_cast<int>(Prueba.textoControl.size());
            Prueba.desde = std::min(desde, n);
            Prueba.hasta = std::min(hasta, n);
        },
    .escribirEnControl =
        [](ControlTexto *, std::string_view texto) {
            const auto desde = static_cast<std::size_t>(Prueba.desde);
            Prueba.textoControl.replace(desde, static_cast<std::size_t>(Prueba.hasta) - desde, texto);
            Prueba.desde = Prueba.hasta = static_cast<int>(desde + texto.size());
        },
    .ponerTitulo = [](Ventana *, std::string_view titulo) { Prueba.titulo = Utf8De1252(titulo); },
    .mostrarResultado = Resultado,
    .mostrarGrafico = MostrarGrafico,
    .abrirDialogo =
        [](Ventana *, Dialogo cual, const DatosDialogo &datos) {
            Prueba.dialogos.push_back({cual, datos});
            if (Prueba.enDialogo) Prueba.enDialogo(Prueba.dialogos.back());
        },
    .elegirArchivo = Archivo,
    .refrescarEditor = [] { ++Prueba.refrescos; },
    .nota =
        [](std::string_view texto, int linea) {
            Prueba.notas.push_back({linea, Utf8De1252(texto)});
        },
    .segundos = [] { return Prueba.segundos; },
};

const OperacionesImpresora Impresora = {
    .empezarTrabajo = EmpezarTrabajo,
    .terminarTrabajo = TerminarTrabajo,
    .abrir = [] { return DarPaso(PasoAbrir, "abrir") ? AbrirImpresoraGrabadora() : nullptr; },
    .iniciarDocumento =
        [](DispositivoImpresion *d, const char *nombre) {
            return DarPaso(PasoDocumento, std::string("documento ") + nombre) &&
                   IniciarDocumentoGrabado(d, nombre);
        },
    .iniciarPagina =
        [](DispositivoImpresion *d) { return DarPaso(PasoPagina, "pagina") && IniciarPaginaGrabada(d); },
    .terminarPagina =
        [](DispositivoImpresion *d) {
            return DarPaso(PasoFinPagina, "fin pagina") && TerminarPaginaGrabada(d);
        },
    .terminarDocumento =
        [](DispositivoImpresion *d) {
            return DarPaso(PasoFinDocumento, "fin documento") && TerminarDocumentoGrabado(d);
        },
    .cerrar =
        [](DispositivoImpresion *d) {
            Prueba.pasosImpresora.emplace_back("cerrar");
            CerrarImpresoraGrabadora(d);
        },
};

constexpr double Nada = std::numeric_limits<double>::quiet_NaN();

} // namespace

void BuscarEnLasFuentes() {
    PonerCarpetaDelPrograma(TABIRA_DATOS "/../build/pruebas/src/shell");
}

void EmpezarPrueba() {
    Prueba = {};
    BuscarEnLasFuentes();
    InstalarPlataforma(Operaciones);
    InstalarImpresora(Impresora);
    IniciarArchivoTrabajo();
    IniciarProcedimientos();
    PonerTraza(std::getenv("TABIRA_PRUEBAS_TRAZA") != nullptr);
}

void EmpezarConDatos(int tipo, std::string_view intervalo) {
    EmpezarPrueba();
    ArchivoTrabajo.TipoDatos = static_cast<std::int16_t>(tipo);
    PonerCampo(ArchivoTrabajo.TextoIntervalo, intervalo, AnchoIntervalo);
    VaciarArchivoTrabajo();
    ActualizarMuestra();
    Prueba = {};
}

void PonerSerie(std::string_view codigo, const std::vector<double> &valores, int primera) {
    const int s = TomarSerie(codigo);
    PonerCodigoSerie(s, codigo);
    LimpiarColumna(s);
    for (std::size_t i = 0; i < valores.size(); ++i) {
        if (std::isnan(valores[i])) continue;
        PonerObservacion(primera + static_cast<int>(i), s, valores[i], 1);
    }
}

std::vector<double> ValoresDe(std::string_view codigo, int n) {
    std::vector<double> r(static_cast<std::size_t>(n), Nada);
    const int s = BuscarSerie(codigo);
    for (int i = 0; s >= 0 && i < n; ++i)
        if (ArchivoTrabajo.PresenciaObs[i][s] == 1)
            r[static_cast<std::size_t>(i)] = ArchivoTrabajo.ValoresObs[i][s];
    return r;
}

double EscalarDe(std::string_view codigo) {
    const int e = BuscarEscalar(codigo);
    return e >= 0 ? TablaEscalares.registro[e].Valor : Nada;
}

std::vector<double> MatrizDe(std::string_view codigo, int &filas, int &columnas) {
    filas = columnas = 0;
    const int m = BuscarMatriz(codigo);
    if (m < 0) return {};
    filas = TablaMatrices.registro[m].Filas;
    columnas = TablaMatrices.registro[m].Columnas;
    FijarMatriz(m);
    const double *d = TablaMatrices.registro[m].Datos;
    std::vector<double> r(d, d + filas * columnas);
    SoltarMatriz(m);
    return r;
}

void PonerMatriz(std::string_view codigo, const std::vector<double> &datos, int filas, int columnas) {
    GuardarMatriz(codigo, datos.data(), filas, columnas);
}

std::vector<std::string> TextosDeCajas() {
    std::vector<std::string> r;
    std::transform(Prueba.cajas.begin(), Prueba.cajas.end(), std::back_inserter(r),
                   [](const CajaVista &c) { return c.texto; });
    return r;
}

bool Procesar(std::string_view texto) {
    Prueba.textoControl = Texto1252DeUtf8(texto);
    Prueba.desde = 0;
    Prueba.hasta = static_cast<int>(Prueba.textoControl.size());
    ActualizarMuestra();
    ProcesarLote(nullptr, nullptr, 0, {}, Muestra.InicioMuestra, Muestra.FinMuestra);
    return Lote.detenido == 0;
}

bool Sentencia(std::string_view texto) {
    ActualizarMuestra();
    ProcesarLote(nullptr, nullptr, 246, Texto1252DeUtf8(texto), Muestra.InicioMuestra, Muestra.FinMuestra);
    return Lote.detenido == 0;
}
