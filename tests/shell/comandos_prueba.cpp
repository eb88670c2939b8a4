// The table of commands and the closing of the program, without a window.
#include "apoyo/plataforma_prueba.h"
#include "data/copia_seguridad.h"
#include "data/fichero_trabajo.h"
#include "data/rejilla.h"
#include "data/trabajo.h"
#include "language/lote_sentencias.h"
#include "platform/archivo_dado.h"
#include "platform/archivos.h"
#include "platform/carpeta_estado.h"
#include "platform/texto.h"
#include "shell/abrir_fichero.h"
#include "shell/comandos.h"
#include "shell/listas.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <filesystem>
#include <unistd.h>

namespace {

// A folder of state that goes with the test.
struct Carpeta {
    std::string ruta =
        (std::filesystem::temp_directory_path() / ("tabira comandos " + std::to_string(getpid()))).string();
    Carpeta() { std::filesystem::create_directories(ruta); }
    ~Carpeta() { std::filesystem::remove_all(ruta); }
};

constexpr const char *Plural = "Tipo de datos no válidos", *Singular = "Tipo de datos no válido";

// ----- A desktop that notes what it is asked for

std::vector<std::string> Pedido;

void Anotar(const char *que) {
    Pedido.emplace_back(que);
}

const OperacionesEscritorio Anotadas = {
    .pantallaEdicion = [](Ventana *) -> ControlTexto * {
        Anotar("pantalla");
        return nullptr;
    },
    .editar = [](Ventana *, AccionesDeEdicion a) { Pedido.push_back("editar " + std::to_string(a)); },
    .mostrarEditor = [](Ventana *) { Pedido.push_back("editor " + std::to_string(Editor.ModoEditor)); },
    .destruir = [](Ventana *) { Anotar("destruir"); },
};

// As it is noted: number of the dialog, and its mode where it has one.
std::string Abre(Dialogo cual, int modo = 0) {
    return "dialogo " + std::to_string(static_cast<int>(cual)) + " " + std::to_string(modo);
}

void Ordenar(int id) {
    Pedido.clear();
    Prueba.cajas.clear();
    InstalarEscritorio(Anotadas);
    static OperacionesPlataforma anotada;
    anotada = Plataforma();
    anotada.ponerTitulo = [](Ventana *, std::string_view t) { Pedido.push_back("titulo " + Utf8De1252(t)); };
    anotada.abrirDialogo = [](Ventana *, Dialogo cual, const DatosDialogo &d) {
        Pedido.push_back(Abre(cual, d.modo));
    };
    anotada.refrescarEditor = [] { Anotar("refresco"); };
    InstalarPlataforma(anotada);
    EjecutarComando(nullptr, id);
}

// ----- The table

struct FilaEsperada {
    int id;
    bool refresca;
    const char *guardia;
};

constexpr FilaEsperada Filas[] = {
    {2055, true, nullptr},  {2056, true, nullptr},  {2057, true, nullptr},   {2021, false, nullptr},
    {2047, false, nullptr}, {2048, false, nullptr}, {2049, false, nullptr},  {2050, false, nullptr},
    {2020, false, nullptr}, {2035, true, Singular}, {2054, false, Singular}, {2065, true, nullptr},
    {2064, true, nullptr},  {2066, true, nullptr},  {2085, true, Plural},    {2038, false, Plural},
    {2006, true, Plural},   {2039, true, Plural},   {2007, true, Singular},  {2036, false, Singular},
    {2094, true, nullptr},  {2013, true, nullptr},  {2023, true, nullptr},   {2004, true, Plural},
    {2081, true, Plural},   {2086, true, nullptr},  {2012, false, Plural},   {2075, false, Plural},
    {2078, false, Plural},  {2080, false, Plural},  {2079, false, Plural},   {2082, false, Plural},
    {2083, false, Plural},  {2073, true, Singular}, {2093, true, Singular},  {2087, true, Singular},
    {2071, true, Plural},   {2072, true, Plural},   {2088, false, nullptr},  {2092, false, nullptr},
    {2091, false, nullptr}, {2090, false, nullptr},
};

const Comando *BuscarComando(int id) {
    const auto *fin = TablaComandos + NumComandos;
    const auto *c = std::find_if(TablaComandos, fin, [&](const Comando &fila) { return fila.id == id; });
    return c != fin ? c : nullptr;
}

} // namespace

TEST(Comandos, CadaUnoConSuRefrescoYSuGuardia) {
    for (const FilaEsperada &f : Filas) {
        SCOPED_TRACE(f.id);
        const Comando *c = BuscarComando(f.id);
        ASSERT_NE(c, nullptr);
        EXPECT_EQ(c->refrescaMuestra, f.refresca);
        EXPECT_EQ(c->guardia != nullptr ? Utf8De1252(c->guardia) : "", f.guardia != nullptr ? f.guardia : "");
    }
}

// While no data type is chosen a guarded command shows its message and leaves all as it was, the sample too; with one
// it finds the sample refreshed if its row says so. The other commands don't ask.
TEST(Comandos, LaGuardiaYElRefrescoDeCadaFila) {
    for (const FilaEsperada &f : Filas) {
        SCOPED_TRACE(f.id);
        for (const bool conTipo : {false, true}) {
            EmpezarConDatos(TipoAnual, "1990#1999");
            PonerSerie("A", {1, 2, 3}, 2);
            // These three give a work file without a type the one without periodicity, and empty it.
            if (!conTipo && f.id >= 2055 && f.id <= 2057) continue;
            if (!conTipo) ArchivoTrabajo.TipoDatos = SinTipoDatos;
            Muestra.InicioMuestra = Muestra.FinMuestra = 9;
            Prueba.respuestas = {RespuestaCancelar}; // to the question of Salir
            Ordenar(f.id);
            const bool pasa = conTipo || f.guardia == nullptr;
            EXPECT_EQ(Muestra.InicioMuestra, pasa && f.refresca ? 2 : 9);
            EXPECT_EQ(Muestra.FinMuestra, pasa && f.refresca ? 4 : 9);
            if (pasa) continue;
            EXPECT_EQ(Prueba.cajas, (std::vector<CajaVista>{
                                        {"Proceso cancelado", f.guardia, IconoInformacion, BotonesAceptar}}));
            EXPECT_TRUE(Pedido.empty());
        }
    }
}

TEST(Comandos, LoQuePidenAlEscritorio) {
    struct {
        int id;
        std::vector<std::string> pedido;
    } const casos[] = {
        {2047, {"editar 0"}},
        {2048, {"editar 1"}},
        {2049, {"editar 2"}},
        {2050, {"editar 3"}},
        {2020, {Abre(Dialogo::TipoDatos), "titulo Tabira: Proyec01"}},
        {2065, {Abre(Dialogo::Lista, ListaSeries)}},
        {2064, {Abre(Dialogo::Lista, ListaMatrices)}},
        {2066, {Abre(Dialogo::Lista, ListaEscalares)}},
        {2085, {Abre(Dialogo::MuestraActual)}},
        {2038, {Abre(Dialogo::Muestra)}},
        {2006, {"pantalla"}},
        {2035, {"editor 0"}},
        {2054, {"editor 1"}},
        {2071, {Abre(Dialogo::Intercambio)}},
        {2072, {Abre(Dialogo::Intercambio), "refresco"}},
        {2004, {Abre(Dialogo::MC)}},
        {2081, {Abre(Dialogo::MCP)}},
        {2012, {Abre(Dialogo::HipotesisNula)}},
        {2075, {Abre(Dialogo::ModeloRestringido)}},
        {2078, {Abre(Dialogo::GoldfeldQuandt)}},
        {2080, {Abre(Dialogo::White)}},
        {2079, {Abre(Dialogo::Rangos)}},
        {2055, {"titulo Tabira: Proyec01"}}, // cancelled
        {2056, {"titulo Tabira: Proyec01"}},
        {2057, {"titulo Tabira: Proyec01"}},
        {2092, {"pantalla"}},
        {2091, {"pantalla"}},
        {2090, {"pantalla"}},
        {2086, {Abre(Dialogo::UltimaRegresion)}},
        {2073, {Abre(Dialogo::Autocorrelacion, 2073)}},
        {2093, {Abre(Dialogo::Autocorrelacion, 2093)}},
        {2087, {Abre(Dialogo::Normalidad)}},
        {2036, {}}, // without a regression there is a box instead
        {2039, {Abre(Dialogo::Descriptivos)}},
        {2094, {Abre(Dialogo::Transformacion)}},
        {2013, {Abre(Dialogo::GraficosSeries, 0)}},
        {2023, {Abre(Dialogo::GraficosSeries, 1)}},
        {2007, {Abre(Dialogo::Histograma)}},
        {2001, {Abre(Dialogo::NoEnsamblada)}},
        {2002, {Abre(Dialogo::NoEnsamblada)}},
        {2003, {Abre(Dialogo::NoEnsamblada)}},
        {2010, {Abre(Dialogo::NoEnsamblada)}},
        {2088, {"pantalla"}},
        {2067, {Abre(Dialogo::Ayuda, 1194)}},
        {2046, {Abre(Dialogo::Ayuda, 1198)}},
        {2052, {Abre(Dialogo::Ayuda, 1195)}},
        {2099, {Abre(Dialogo::Ayuda, 1222)}},
        {2021, {"destruir"}},
        {2, {"destruir"}},
        {0, {}},
        {1, {}},
        {120, {}},
        {2074, {}}, // the editor's
        {-2002, {}},
    };
    for (const auto &c : casos) {
        SCOPED_TRACE(c.id);
        EmpezarConDatos(TipoAnual, "1990#1999");
        Ordenar(c.id);
        EXPECT_EQ(Pedido, c.pedido);
    }
}

// The sample of the last regression is that of the moment until there is one; of its bounds the last one tells.
TEST(Comandos, LaMuestraDeLosEstimadores) {
    for (const int id : {2004, 2081}) {
        for (const auto &[inicio, fin, inicioDespues, finDespues] :
             {std::array{0, 0, 2, 4}, std::array{1, 0, 2, 4}, std::array{0, 1, 0, 1},
              std::array{3, 6, 3, 6}}) {
            SCOPED_TRACE(testing::Message() << id << " " << inicio << " " << fin);
            EmpezarConDatos(TipoAnual, "1990#1999");
            PonerSerie("A", {1, 2, 3}, 2);
            Muestra.InicioRegresion = inicio;
            Muestra.FinRegresion = fin;
            Ordenar(id);
            EXPECT_EQ(Muestra.InicioRegresion, inicioDespues);
            EXPECT_EQ(Muestra.FinRegresion, finDespues);
        }
    }
}

// The two tests without a dialog run as statements.
TEST(Comandos, DurbinYWallis) {
    for (const auto &[id, codigo] : {std::pair{2082, OrdenCDU}, std::pair{2083, OrdenCWA}}) {
        SCOPED_TRACE(id);
        EmpezarConDatos(TipoAnual, "1980#1999");
        PonerSerie("Y", {3, 5, 4, 8, 7, 9, 12, 11, 15, 13, 17, 16, 18, 22, 21, 20, 25, 24, 27, 30});
        PonerSerie("X", {1, 3, 2, 4, 6, 5, 7, 9, 11, 8, 12, 10, 13, 17, 14, 16, 19, 15, 20, 22});
        ASSERT_TRUE(Procesar("VSR NO\r\nMC Y 1 X Y(-1)"));
        Prueba.resultados.clear();
        Ordenar(id);
        ASSERT_EQ(Prueba.resultados.size(), 1u);
        EXPECT_EQ(Prueba.resultados[0].clase, codigo);
        EXPECT_TRUE(Prueba.cajas.empty());
    }
}

// ----- The closing

TEST(Comandos, LaPreguntaDelCierre) {
    const CajaVista pregunta{"Aviso", "¿Desea guardar su trabajo?", IconoPregunta, BotonesSiNoCancelar};
    struct {
        bool serie, matriz, escalar;
        Respuesta respuesta;
        std::vector<CajaVista> cajas;
        std::vector<std::string> pedido;
    } const casos[] = {
        {false, false, false, RespuestaCancelar, {}, {"destruir"}},
        {false, false, true, RespuestaCancelar, {}, {"destruir"}},
        {true, false, false, RespuestaCancelar, {pregunta}, {}},
        {false, true, false, RespuestaCancelar, {pregunta}, {}},
        {true, true, true, RespuestaNo, {pregunta}, {"destruir"}},
        // The save is cancelled, and the program goes on all the same.
        {true, false, false, RespuestaSi, {pregunta}, {"titulo Tabira: Proyec01", "destruir"}},
    };
    for (const auto &c : casos) {
        SCOPED_TRACE(testing::Message() << c.serie << c.matriz << c.escalar << c.respuesta);
        EmpezarConDatos(TipoAnual, "1990#1999");
        if (c.serie) PonerSerie("A", {1, 2, 3});
        if (c.matriz) PonerMatriz("M", {1, 2}, 1, 2);
        if (c.escalar) PonerEscalar(nullptr, "E", 1);
        Prueba.respuestas = {c.respuesta};
        const Carpeta carpeta;
        EmpezarCopias(carpeta.ruta);
        GuardarCopia();
        Ordenar(2021);
        EXPECT_EQ(Prueba.cajas, c.cajas);
        EXPECT_EQ(Pedido, c.pedido);
        // What isn't saved is kept where the user wanted it saved, and while the program goes on.
        const bool trabajo = c.serie || c.matriz || c.escalar;
        const bool queda = c.respuesta == RespuestaSi || (c.pedido.empty() && trabajo);
        EXPECT_EQ(ArchivosConTerminacion(carpeta.ruta, ".TR2").size(), queda ? 1u : 0u);
        TerminarCopias(false);
    }
}

// What is being typed into the editor isn't counted yet, and can be lost all the same.
TEST(Comandos, LaPreguntaDelCierreConElEditorAbierto) {
    for (const char *codigo : {"", "A"}) {
        EmpezarConDatos(TipoAnual, "1990#1999");
        AbrirEditor(EditorDeSeries);
        PonerCodigoSerie(99, codigo);
        PonerObservacion(0, 99, 7, 1);
        ASSERT_EQ(ArchivoTrabajo.NumSeries, 0);
        Prueba.respuestas = {RespuestaCancelar};
        Ordenar(2021);
        EXPECT_EQ(Prueba.cajas.size(), *codigo != '\0' ? 1u : 0u);
        EXPECT_EQ(Pedido.empty(), *codigo != '\0');
    }
    // Before the first reset a code is an empty text.
    EmpezarPrueba();
    IniciarArchivoTrabajo();
    Ordenar(2021);
    EXPECT_EQ(Pedido, std::vector<std::string>{"destruir"});
}

TEST(Comandos, ElCierreGuardaYTermina) {
    const Carpeta carpeta;
    EmpezarConDatos(TipoAnual, "1990#1999");
    Trabajo = {};
    PonerSerie("A", {1, 2, 3});
    EmpezarCopias(carpeta.ruta);
    Prueba.respuestas = {RespuestaSi};
    Prueba.rutas = {carpeta.ruta + "/klein.tr2"};
    Ordenar(2021);
    EXPECT_EQ(Pedido, (std::vector<std::string>{"titulo Tabira: klein", "destruir"}));
    EXPECT_TRUE(ExisteArchivo(carpeta.ruta + "/klein.tr2"));
    EXPECT_TRUE(ArchivosConTerminacion(carpeta.ruta, ".TR2").empty());
}

// Where neither the save nor the copy can be written the program stays: the work has no other place.
TEST(Comandos, SinSitioParaLaCopiaElProgramaSigue) {
    EmpezarConDatos(TipoAnual, "1990#1999");
    PonerSerie("A", {1, 2, 3});
    EmpezarCopias("");
    Prueba.respuestas = {RespuestaSi};
    Ordenar(2021);
    EXPECT_EQ(Pedido, std::vector<std::string>{"titulo Tabira: Proyec01"});
    EXPECT_EQ(ValoresDe("A", 3), (std::vector<double>{1, 2, 3}));
    Prueba.respuestas = {RespuestaNo};
    Ordenar(2021);
    EXPECT_EQ(Pedido, std::vector<std::string>{"destruir"});
}

// From the start of the copies on, each batch is preceded by one; what a dead program left is offered there.
TEST(Comandos, UnaCopiaAntesDeCadaLote) {
    const Carpeta carpeta;
    EmpezarConDatos(TipoAnual, "1990#1999");
    PonerSerie("A", {1, 2, 3});
    setenv("XDG_STATE_HOME", carpeta.ruta.c_str(), 1);
    const std::string casa = carpeta.ruta + "/tabira";
    InstalarEscritorio(Anotadas);
    IniciarCopias(nullptr);
    EXPECT_TRUE(Prueba.cajas.empty());
    EXPECT_TRUE(ArchivosConTerminacion(casa, ".TR2").empty());
    EXPECT_TRUE(Sentencia("ESC E = 1"));
    ASSERT_EQ(ArchivosConTerminacion(casa, ".TR2").size(), 1u);
    EXPECT_EQ(EscalarDe("E"), 1); // which the copy doesn't hold
    ASSERT_EQ(LeerFicheroTrabajo(ArchivosConTerminacion(casa, ".TR2")[0]), TablasLeidas);
    EXPECT_EQ(TablaEscalares.numero, 0);
    EXPECT_EQ(ValoresDe("A", 3), (std::vector<double>{1, 2, 3}));
    TerminarCopias(false);
    unsetenv("XDG_STATE_HOME");
}

TEST(Comandos, SinMemoria) {
    EmpezarPrueba();
    MensajeSinMemoria(2001, 3999, nullptr);
    EXPECT_EQ(Prueba.cajas,
              (std::vector<CajaVista>{{"Proceso cancelado", "No hay suficiente memoria. Ptos: 2001 3999",
                                       IconoInformacion, BotonesAceptar}}));
}

// ----- Files that are named outside the menus

TEST(Comandos, ComandoDeCadaFichero) {
    constexpr struct {
        const char *ruta;
        int comando;
    } Casos[] = {
        {"/casa/klein.TR2", 2055}, {"klein.tr2", 2055},
        {"/casa/klein.txt", 2092}, {"KLEIN.TXT", 2092},
        {"/casa/klein.csv", 2072}, {"klein.TR2.csv", 2072},
        {"klein", 2072},           {"/casa.TR2/klein", 2072},
        {"/casa.txt/a.tr2", 2055}, {"", 2072},
    };
    for (const auto &c : Casos) EXPECT_EQ(ComandoDeFichero(c.ruta), c.comando) << c.ruta;
}

// The next question for a file to open has its answer; one for a place to save hasn't.
TEST(Comandos, ArchivoDado) {
    EmpezarPrueba();
    DarArchivo("/no hay/klein.TR2");
    std::string ruta;
    EXPECT_FALSE(ElegirArchivo(nullptr, {true, "Guardar", {}, "x"}, ruta));
    EXPECT_EQ(Prueba.archivos.size(), 1u);
    EXPECT_TRUE(HayArchivoDado());
    EXPECT_TRUE(ElegirArchivo(nullptr, {false, "Abrir", {}, "x"}, ruta));
    EXPECT_EQ(ruta, "/no hay/klein.TR2");
    EXPECT_EQ(Prueba.archivos.size(), 1u);
    EXPECT_FALSE(HayArchivoDado());
    EXPECT_FALSE(ElegirArchivo(nullptr, {false, "Abrir", {}, "x"}, ruta));
}
