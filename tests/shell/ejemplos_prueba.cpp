// The practice data: what each one of them brings, and that they are copies.
#include "shell/ejemplos.h"

#include "apoyo/plataforma_prueba.h"
#include "data/copia_seguridad.h"
#include "data/fichero_trabajo.h"
#include "data/trabajo.h"
#include "estimation/regresion.h"
#include "platform/archivos.h"
#include "platform/campos_texto.h"
#include "platform/datos_programa.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

const CajaVista Pregunta = {"Aviso", "¿Desea guardar su trabajo?", IconoPregunta, BotonesSiNoCancelar};

// A folder that goes with the test, the copies of the work begun anew: nothing is saved.
class Ejemplos : public testing::Test {
protected:
    void SetUp() override {
        fs::create_directories(carpeta);
        EmpezarPrueba();
        EmpezarCopias("");
        Trabajo = {};
    }
    void TearDown() override { fs::remove_all(carpeta); }
    std::string Ruta(const char *nombre) const { return (carpeta / nombre).string(); }
    fs::path carpeta = fs::temp_directory_path() / ("tabira ejemplos " + std::to_string(getpid()));
};

int FilaDe(std::string_view fichero) {
    int i = 0;
    while (i < NumEjemplos && TablaEjemplos[i].fichero != fichero) ++i;
    return i;
}

bool Abrir(const char *fichero) {
    return AbrirEjemplo(nullptr, nullptr, FilaDe(fichero));
}

std::string Nombre() {
    return std::string(Recortado(ArchivoTrabajo.NombreProyecto, RecorteDerecha));
}

} // namespace

TEST_F(Ejemplos, CadaUnoTraeSusDatos) {
    // First and last values as published.
    struct {
        const char *fichero, *nombre;
        int tipo, series, observaciones;
        const char *inicio, *fin, *primera;
        double valorInicial, valorFinal;
    } const casos[] = {
        {"klein.csv", "KLEIN", TipoAnual, 9, 22, "1920", "1941", "CONSUMO", 39.8, 69.7},
        {"longley.csv", "LONGLEY", TipoAnual, 7, 16, "1947", "1962", "TOTEMP", 60323, 70551},
        {"pasajeros.csv", "PASAJERO", TipoMensual, 1, 144, "1949.01", "1960.12", "PASAJ", 112, 432},
        {"nilo.csv", "NILO", TipoSinPeriodicidad, 1, 100, "1", "100", "CAUDAL", 1120, 740},
        {"norris.csv", "NORRIS", TipoSinPeriodicidad, 2, 36, "1", "36", "Y", 0.1, 0.2},
        {"pontius.csv", "PONTIUS", TipoSinPeriodicidad, 2, 40, "1", "40", "Y", 0.11019, 2.16829},
    };
    int datos = 0;
    for (int i = 0; i < NumEjemplos; ++i) datos += TablaEjemplos[i].nombre != nullptr ? 1 : 0;
    ASSERT_EQ(datos, static_cast<int>(std::size(casos)));
    for (const auto &c : casos) {
        SCOPED_TRACE(c.fichero);
        Prueba.cajas.clear();
        Prueba.refrescos = 0;
        ASSERT_TRUE(Abrir(c.fichero));
        EXPECT_TRUE(Prueba.cajas.empty()) << "an example that nobody touched goes without a question";
        EXPECT_EQ(Nombre(), c.nombre);
        EXPECT_EQ(Prueba.titulo, std::string("Tabira: ") + c.nombre);
        EXPECT_GT(Prueba.refrescos, 0);
        EXPECT_EQ(ArchivoTrabajo.TipoDatos, c.tipo);
        EXPECT_EQ(ArchivoTrabajo.NumSeries, c.series);
        EXPECT_EQ(Muestra.FinMuestra - Muestra.InicioMuestra + 1, c.observaciones);
        EXPECT_EQ(std::string(Recortado(TextoPeriodo(Muestra.InicioMuestra))), c.inicio);
        EXPECT_EQ(std::string(Recortado(TextoPeriodo(Muestra.FinMuestra))), c.fin);
        const std::vector<double> valores = ValoresDe(c.primera, c.observaciones);
        EXPECT_EQ(valores.front(), c.valorInicial);
        EXPECT_EQ(valores.back(), c.valorFinal);
        for (int s = 0; s < c.series; ++s)
            for (int f = 0; f < c.observaciones; ++f)
                EXPECT_EQ(ArchivoTrabajo.PresenciaObs[f][s], 1) << s << " " << f;
        ASSERT_FALSE(Prueba.notas.empty());
        EXPECT_EQ(Prueba.notas.back(),
                  (NotaVista{0, std::string("Ejemplo ") + c.nombre + ": " + std::to_string(c.series) +
                                    (c.series == 1 ? " serie, " : " series, ") +
                                    std::to_string(c.observaciones) + " observaciones"}));
    }
}

// The work goes as when another one is opened: limits of the sample and regression too.
TEST_F(Ejemplos, NadaQuedaDeLoAnterior) {
    EmpezarConDatos(TipoAnual, "1990#2005");
    PonerSerie("X", {1, 2, 4, 3});
    ASSERT_TRUE(Procesar("MUEST 1990 1992\nESC A = 3\nMAT M = {X}\n"));
    UltimaRegresion.SentenciaRegresion = "MC X 1";
    Prueba.respuestas = {RespuestaNo};
    ASSERT_TRUE(Abrir("klein.csv"));
    EXPECT_EQ(Prueba.cajas, std::vector<CajaVista>{Pregunta});
    EXPECT_EQ(TablaEscalares.numero, 0);
    EXPECT_EQ(TablaMatrices.numero, 0);
    EXPECT_EQ(UltimaRegresion.SentenciaRegresion, "");
    EXPECT_EQ(Muestra.FinMuestra, 21);
}

TEST_F(Ejemplos, ElTrabajoSinGuardarSePregunta) {
    const auto conTrabajo = [] {
        EmpezarConDatos(TipoAnual, "1990#2005");
        PonerSerie("X", {1, 2, 4, 3});
    };
    conTrabajo();
    Prueba.respuestas = {RespuestaCancelar};
    EXPECT_FALSE(Abrir("klein.csv"));
    EXPECT_EQ(ArchivoTrabajo.NumSeries, 1);
    // A save that comes to nothing leaves the work, too.
    Prueba.respuestas = {RespuestaSi};
    EXPECT_FALSE(Abrir("klein.csv"));
    EXPECT_EQ(Prueba.archivos.size(), 1u);
    EXPECT_EQ(ArchivoTrabajo.NumSeries, 1);
    Prueba.respuestas = {RespuestaSi};
    Prueba.rutas = {Ruta("mio.TR2")};
    EXPECT_TRUE(Abrir("klein.csv"));
    EXPECT_EQ(ArchivoTrabajo.NumSeries, 9);
    ASSERT_EQ(LeerFicheroTrabajo(Ruta("mio.TR2")), TablasLeidas);
    EXPECT_EQ(ArchivoTrabajo.NumSeries, 1);
    // What was saved is not asked for, until it changes.
    Prueba.cajas.clear();
    AnotarTrabajoGuardado();
    EXPECT_TRUE(Abrir("nilo.csv"));
    EXPECT_TRUE(Prueba.cajas.empty());
    ASSERT_TRUE(Procesar("SER LC = LN(CAUDAL)\n"));
    Prueba.respuestas = {RespuestaNo};
    EXPECT_TRUE(Abrir("nilo.csv"));
    EXPECT_EQ(Prueba.cajas, std::vector<CajaVista>{Pregunta});
}

// A save asks for a file, also where the user's own work of this name was open before; no example is written.
TEST_F(Ejemplos, SeGuardaComoNuevo) {
    EmpezarConDatos(TipoAnual, "1990#2005");
    PonerSerie("X", {1, 2, 4, 3});
    Prueba.rutas = {Ruta("KLEIN.TR2"), Ruta("KLEIN.TR2")};
    ASSERT_TRUE(EjecutarTrabajo(nullptr, GuardarTrabajoComo));
    ASSERT_TRUE(EjecutarTrabajo(nullptr, AbrirTrabajo));
    ASSERT_EQ(Trabajo.UltimoNombreGuardado, "KLEIN");
    std::string antes, despues;
    ASSERT_TRUE(LeerArchivo(Ruta("KLEIN.TR2"), antes));
    ASSERT_TRUE(Abrir("klein.csv"));
    Prueba.archivos.clear();
    EXPECT_FALSE(EjecutarTrabajo(nullptr, GuardarTrabajo)); // the user cancels
    ASSERT_EQ(Prueba.archivos.size(), 1u);
    EXPECT_TRUE(Prueba.archivos[0].guardar);
    EXPECT_EQ(Prueba.archivos[0].nombre, "KLEIN.TR2");
    ASSERT_TRUE(LeerArchivo(Ruta("KLEIN.TR2"), despues));
    EXPECT_EQ(antes, despues);
}

TEST_F(Ejemplos, LasSentencias) {
    Prueba.textoControl = "antes";
    EmpezarConDatos(TipoAnual, "1990#2005");
    PonerSerie("X", {1, 2, 4, 3});
    ASSERT_TRUE(Abrir("klein.txt"));
    EXPECT_TRUE(Prueba.cajas.empty());
    EXPECT_EQ(ArchivoTrabajo.NumSeries, 1);
    EXPECT_EQ(Utf8De1252(Prueba.textoControl),
              "; Función de consumo de Klein: el consumo depende de los beneficios, de los del año anterior\n"
              "; y de todos los salarios. El retardo deja fuera el primer año, 1920.\n"
              "SER SALARIOS = SALPRIV + SALPUB\n"
              "MC CONSUMO 1 BENEF BENEF(-1) SALARIOS");
}

// Folders that the menus refuse, for their hyphen, hold examples all the same; what isn't there is told.
TEST_F(Ejemplos, DondeEstan) {
    const fs::path programa = carpeta / "con-guion" / "bin";
    const fs::path datos = carpeta / "con-guion" / "share" / "tabira" / "ejemplos";
    fs::create_directories(programa);
    PonerCarpetaDelPrograma(programa.string());
    EXPECT_FALSE(Abrir("klein.csv"));
    EXPECT_EQ(Prueba.cajas,
              (std::vector<CajaVista>{{"Proceso cancelado", "No se encuentran los ejemplos del programa",
                                       IconoInformacion, BotonesAceptar}}));
    fs::create_directories(datos);
    Prueba.cajas.clear();
    EXPECT_FALSE(Abrir("klein.csv"));
    EXPECT_FALSE(Abrir("klein.txt"));
    const CajaVista sinArchivo = {"Proceso cancelado", "Error al abrir el archivo", IconoInformacion,
                                  BotonesAceptar};
    EXPECT_EQ(Prueba.cajas, (std::vector<CajaVista>{sinArchivo, sinArchivo}));
    EXPECT_EQ(ArchivoTrabajo.TipoDatos, SinTipoDatos);
    for (const char *fichero : {"klein.csv", "klein.txt"})
        fs::copy_file(fs::path(TABIRA_DATOS) / fichero, datos / fichero);
    EXPECT_TRUE(Abrir("klein.csv"));
    EXPECT_TRUE(Abrir("klein.txt"));
    EXPECT_EQ(ArchivoTrabajo.NumSeries, 9);
}
