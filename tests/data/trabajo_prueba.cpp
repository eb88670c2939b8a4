// The commands of the work file: names, paths, what goes with each.
#include "data/trabajo.h"

#include "apoyo/plataforma_prueba.h"
#include "data/fichero_trabajo.h"
#include "data/trabajo_apoyo.h"
#include "estimation/regresion.h"
#include "platform/campos_texto.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/periodos.h"

namespace {

class Comandos : public EnCarpeta {
protected:
    void SetUp() override {
        EnCarpeta::SetUp();
        Trabajo = {};
    }
    // One command; the answer to the file asked for, or none: the user cancels.
    bool Ejecutar(ComandosDeTrabajo comando, const std::string &nombre = "") {
        Prueba.cajas.clear();
        Prueba.archivos.clear();
        Prueba.rutas.clear();
        if (!nombre.empty()) Prueba.rutas = {Ruta(nombre)};
        return EjecutarTrabajo(nullptr, comando);
    }
    bool SePidio() const { return !Prueba.archivos.empty(); }
    // The name in a file, and the first value of its first series.
    std::string Contenido(const std::string &nombre) {
        return Consulta(Ruta(nombre),
                        "SELECT proyecto || ' ' || s1 FROM cabecera, observaciones WHERE fila = 1");
    }
    static std::string Nombre() { return Utf8De1252(Recortado(ArchivoTrabajo.NombreProyecto)); }
    static void Empezar(double valor) {
        EmpezarConDatos(TipoAnual, "1990#1999");
        PonerSerie("A", {valor, 2, 3});
    }
    static void PonerNombre(std::string_view nombre) {
        PonerCampo(ArchivoTrabajo.NombreProyecto, nombre, AnchoProyecto);
    }
};

std::vector<CajaVista> Cancelado(const char *texto) {
    return {{"Proceso cancelado", texto, IconoInformacion, BotonesAceptar}};
}

// ----- Names

TEST_F(Comandos, ElPrimerGuardarPideNombreYElSiguienteNo) {
    Empezar(1);
    EXPECT_TRUE(Ejecutar(GuardarTrabajo, "klein.TR2")); // Proyec01, PROYECT01
    ASSERT_TRUE(SePidio());
    EXPECT_TRUE(Prueba.archivos[0].guardar);
    EXPECT_EQ(Prueba.archivos[0].nombre, "Proyec01.TR2");
    EXPECT_EQ(Prueba.archivos[0].filtros, std::vector<std::string>{"Archivos de trabajo (*.TR2)"});
    EXPECT_EQ(Nombre(), "klein");
    EXPECT_EQ(Trabajo.UltimoNombreGuardado, "klein");
    EXPECT_EQ(Prueba.titulo, "Tabira: klein");
    EXPECT_EQ(Contenido("klein.TR2"), "klein 1.0");
    PonerSerie("A", {5});
    EXPECT_TRUE(Ejecutar(GuardarTrabajo));
    EXPECT_FALSE(SePidio());
    EXPECT_EQ(Contenido("klein.TR2"), "klein 5.0");
    EXPECT_EQ(Ficheros(), 1);
}

// The name that the dialog of the data type proposes is never one to save under, in this very spelling.
TEST_F(Comandos, Proyec01SePideSiempre) {
    Empezar(1);
    PonerNombre("PROYEC01");
    Trabajo.UltimoNombreGuardado = "PROYEC01";
    Trabajo.ruta = Ruta("PROYEC01.TR2");
    for (int vez = 0; vez < 2; ++vez) {
        EXPECT_TRUE(Ejecutar(GuardarTrabajo, "PROYEC01.TR2"));
        EXPECT_TRUE(SePidio());
    }
    PonerNombre("proyec01");
    Trabajo = {"proyec01", Ruta("proyec01.TR2")};
    EXPECT_TRUE(Ejecutar(GuardarTrabajo));
    EXPECT_FALSE(SePidio());
}

// A save under a new name leaves the old one behind, and the next save asks once more; the one after it doesn't.
TEST_F(Comandos, TrasGuardarComoElSiguienteGuardarPregunta) {
    Empezar(1);
    ASSERT_TRUE(Ejecutar(GuardarTrabajo, "uno.TR2"));
    EXPECT_TRUE(Ejecutar(GuardarTrabajoComo, "dos.TR2"));
    EXPECT_EQ(Trabajo.UltimoNombreGuardado, "uno");
    EXPECT_EQ(Nombre(), "dos");
    EXPECT_TRUE(Ejecutar(GuardarTrabajo, "dos.TR2"));
    EXPECT_TRUE(SePidio());
    EXPECT_EQ(Trabajo.UltimoNombreGuardado, "dos");
    EXPECT_TRUE(Ejecutar(GuardarTrabajo));
    EXPECT_FALSE(SePidio());
    // Saved as what it was: nothing is behind.
    EXPECT_TRUE(Ejecutar(GuardarTrabajoComo, "dos.TR2"));
    EXPECT_TRUE(Ejecutar(GuardarTrabajo));
    EXPECT_FALSE(SePidio());
}

TEST_F(Comandos, ElNombreDelProyectoEsElDelFichero) {
    struct {
        const char *fichero, *nombre;
    } const casos[] = {
        {"klein.TR2", "klein"},
        {"KLEIN.tr2", "KLEIN"},
        {"12345678.TR2", "12345678"},
        {"123456789.TR2", "12345678"},
        {"consumo de año.TR2", "consumo"},
        {"peñón.TR2", "peñón"},
        {"日本.TR2", "??"},
        {"a.b.TR2", "a.b"},
        {"sin_terminación", "sin_term"},
    };
    for (const auto &c : casos) {
        SCOPED_TRACE(c.fichero);
        Empezar(1);
        EXPECT_TRUE(Ejecutar(GuardarTrabajoComo, c.fichero));
        EXPECT_EQ(Nombre(), c.nombre);
        Empezar(2);
        EXPECT_TRUE(Ejecutar(AbrirTrabajo, c.fichero));
        EXPECT_EQ(Nombre(), c.nombre);
        EXPECT_EQ(Trabajo.UltimoNombreGuardado, Texto1252DeUtf8(c.nombre));
        // However long the name is, saving goes back to this file.
        PonerSerie("A", {7});
        EXPECT_TRUE(Ejecutar(GuardarTrabajo));
        EXPECT_FALSE(SePidio());
        EXPECT_EQ(Consulta(Ruta(c.fichero), "SELECT s1 FROM observaciones WHERE fila = 1"), "7.0");
    }
    EXPECT_EQ(Ficheros(), static_cast<long>(std::size(casos)));
}

// A file that was renamed since bears its new name.
TEST_F(Comandos, AbrirTomaElNombreDelFicheroNoElDeDentro) {
    Empezar(1);
    ASSERT_TRUE(Ejecutar(GuardarTrabajoComo, "uno.TR2"));
    std::filesystem::rename(Ruta("uno.TR2"), Ruta("otro.TR2"));
    EXPECT_TRUE(Ejecutar(AbrirTrabajo, "otro.TR2"));
    EXPECT_FALSE(Prueba.archivos[0].guardar);
    EXPECT_EQ(Nombre(), "otro");
    EXPECT_EQ(Prueba.titulo, "Tabira: otro");
}

// ----- Where a save goes

// The dialog of the data type gave the name of a file beside the last one: it is asked before that one is replaced.
TEST_F(Comandos, ConOtroNombreSePreguntaAntesDeSobreescribir) {
    Empezar(1);
    ASSERT_TRUE(Ejecutar(GuardarTrabajoComo, "a.TR2"));
    Empezar(2);
    ASSERT_TRUE(Ejecutar(GuardarTrabajoComo, "b.TR2"));
    PonerNombre("a");
    Trabajo.UltimoNombreGuardado = "a";
    PonerSerie("A", {9});
    const std::vector<CajaVista> pregunta = {
        {"Aviso", "El archivo ya existe ¿Sobreescribir?", IconoAlto, BotonesAceptarCancelar}};
    Prueba.respuestas = {RespuestaCancelar, RespuestaAceptar};
    EXPECT_FALSE(Ejecutar(GuardarTrabajo));
    EXPECT_EQ(Prueba.cajas, pregunta);
    EXPECT_EQ(Contenido("a.TR2"), "a 1.0");
    EXPECT_TRUE(Ejecutar(GuardarTrabajo));
    EXPECT_EQ(Prueba.cajas, pregunta);
    EXPECT_FALSE(SePidio());
    EXPECT_EQ(Contenido("a.TR2"), "a 9.0");
    EXPECT_EQ(Contenido("b.TR2"), "b 2.0");
    EXPECT_EQ(Trabajo.ruta, Ruta("a.TR2"));
}

// A dialog that was cancelled has made the two names equal, but no file of that name was ever written: it is asked for.
TEST_F(Comandos, TrasCancelarSePideSitio) {
    Empezar(1);
    EXPECT_FALSE(Ejecutar(GuardarTrabajo));
    EXPECT_EQ(Trabajo.UltimoNombreGuardado, "Proyec01");
    EXPECT_FALSE(Ejecutar(GuardarTrabajo));
    EXPECT_TRUE(SePidio());
    ASSERT_TRUE(Ejecutar(GuardarTrabajo, "a.TR2"));
    PonerNombre("nuevo");
    EXPECT_FALSE(Ejecutar(GuardarTrabajo));
    EXPECT_EQ(Trabajo.UltimoNombreGuardado, "nuevo");
    EXPECT_FALSE(Ejecutar(GuardarTrabajo));
    EXPECT_TRUE(SePidio());
    EXPECT_TRUE(Ejecutar(GuardarTrabajo, "nuevo.TR2"));
    EXPECT_EQ(Contenido("a.TR2"), "a 1.0");
    // A name that leads into another folder names no file beside the last one.
    std::filesystem::create_directory(Ruta("x"));
    PonerBytes(Ruta("x/y.TR2"), "no");
    PonerNombre("x/y");
    Trabajo.UltimoNombreGuardado = "x/y";
    EXPECT_FALSE(Ejecutar(GuardarTrabajo));
    EXPECT_TRUE(SePidio());
    EXPECT_EQ(BytesDe(Ruta("x/y.TR2")), "no");
}

TEST_F(Comandos, UnaEscrituraQueFallaDejaElNombre) {
    Empezar(1);
    ASSERT_TRUE(Ejecutar(GuardarTrabajo, "a.TR2"));
    EXPECT_FALSE(Ejecutar(GuardarTrabajoComo, "no_hay/b.TR2"));
    EXPECT_EQ(Prueba.cajas, Cancelado("Error al guardar el archivo de trabajo"));
    EXPECT_EQ(Nombre(), "a");
    EXPECT_EQ(Trabajo.ruta, Ruta("a.TR2"));
    EXPECT_EQ(Prueba.titulo, "Tabira: a");
    EXPECT_EQ(Prueba.cursor, CursorFlecha);
}

// ----- What goes with the commands

TEST_F(Comandos, SinTipoDeDatosElArchivoQuedaSinPeriodicidad) {
    Empezar(1);
    ASSERT_TRUE(Ejecutar(GuardarTrabajoComo, "a.TR2"));
    PonerBytes(Ruta("malo.TR2"), "nada");
    for (const ComandosDeTrabajo c : {AbrirTrabajo, GuardarTrabajo, GuardarTrabajoComo}) {
        for (const char *nombre : {"", "malo.TR2"}) {
            SCOPED_TRACE(testing::Message() << c << nombre);
            EmpezarPrueba();
            ArchivoTrabajo.ConEtiquetas = 1;
            PonerEscalar(nullptr, "E", 1);
            Trabajo = {};
            EXPECT_EQ(Ejecutar(c, nombre), c != AbrirTrabajo && *nombre != '\0');
            EXPECT_EQ(ArchivoTrabajo.TipoDatos, TipoSinPeriodicidad);
            EXPECT_EQ(ArchivoTrabajo.ConEtiquetas, 0);
            EXPECT_EQ(ArchivoTrabajo.NumObs, MaxObservaciones);
            EXPECT_EQ(TextoPeriodo(3999), "4000");
            EXPECT_EQ(TablaEscalares.numero, 0); // emptied before the dialog
            PonerBytes(Ruta("malo.TR2"), "nada");
        }
    }
    EmpezarPrueba();
    EXPECT_TRUE(Ejecutar(AbrirTrabajo, "a.TR2"));
    EXPECT_EQ(ArchivoTrabajo.TipoDatos, TipoAnual);
}

TEST_F(Comandos, CancelarOUnFicheroRechazadoDejanLasTablas) {
    Empezar(4);
    PonerBytes(Ruta("malo.TR2"), "nada");
    const std::string antes = RetratoDelTrabajo();
    for (const char *nombre : {"", "malo.TR2", "no_hay.TR2"}) {
        SCOPED_TRACE(nombre);
        EXPECT_FALSE(Ejecutar(AbrirTrabajo, nombre));
        EXPECT_TRUE(RetratoDelTrabajo() == antes);
        EXPECT_EQ(Trabajo.UltimoNombreGuardado, "Proyec01"); // taken from the name as it stands
        EXPECT_TRUE(Trabajo.ruta.empty());
        EXPECT_EQ(Prueba.titulo, "Tabira: Proyec01");
    }
}

TEST_F(Comandos, LosMensajesDeUnFicheroQueNoSeAbre) {
    Empezar(1);
    ASSERT_TRUE(Ejecutar(GuardarTrabajoComo, "a.TR2"));
    const std::string bueno = BytesDe(Ruta("a.TR2"));
    PonerBytes(Ruta("ajeno.TR2"), "MC Y 1 X\n");
    PonerBytes(Ruta("danado.TR2"), bueno.substr(0, 5000));
    PonerBytes(Ruta("posterior.TR2"), bueno);
    Sql(Ruta("posterior.TR2"), "PRAGMA user_version = 2");
    struct {
        const char *nombre, *mensaje;
    } const casos[] = {
        {"no_hay.TR2", "Error al abrir el archivo"},
        {"ajeno.TR2", "El archivo no es un archivo de trabajo"},
        {"posterior.TR2", "El archivo de trabajo es de una versión posterior del programa"},
        {"danado.TR2", "El archivo de trabajo está dañado"},
    };
    for (const auto &c : casos) {
        EXPECT_FALSE(Ejecutar(AbrirTrabajo, c.nombre));
        EXPECT_EQ(Prueba.cajas, Cancelado(c.mensaje));
        EXPECT_EQ(Prueba.cursor, CursorFlecha);
    }
}

// Opening forgets the last regression, whatever comes of it; the other two leave it.
TEST_F(Comandos, AbrirOlvidaLaUltimaRegresion) {
    for (const ComandosDeTrabajo c : {AbrirTrabajo, GuardarTrabajo, GuardarTrabajoComo}) {
        Empezar(1);
        UltimaRegresion.RegresionHecha = 1;
        UltimaRegresion.TextoEcuacion = "A 1";
        Ejecutar(c);
        EXPECT_EQ(UltimaRegresion.RegresionHecha, c == AbrirTrabajo ? 0 : 1);
        EXPECT_EQ(UltimaRegresion.TextoEcuacion, c == AbrirTrabajo ? "" : "A 1");
    }
}

// The limits that the user wrote go, so that the next command works on the whole sample.
TEST_F(Comandos, LosLimitesDeLaMuestraSeOlvidan) {
    for (const ComandosDeTrabajo c : {AbrirTrabajo, GuardarTrabajo, GuardarTrabajoComo}) {
        for (const char *nombre : {"", "a.TR2"}) {
            SCOPED_TRACE(testing::Message() << c << nombre);
            Empezar(1);
            ASSERT_TRUE(EscribirFicheroTrabajo(Ruta("a.TR2")));
            ASSERT_TRUE(Sentencia("MUEST 1991 1992"));
            Ejecutar(c, nombre);
            EXPECT_EQ(Muestra.LimiteInicial, "");
            EXPECT_EQ(Muestra.AnoInicial, 0);
            EXPECT_EQ(Muestra.AnoFinal, 0);
            ActualizarMuestra();
            EXPECT_EQ(Muestra.InicioMuestra, 0);
            EXPECT_EQ(Muestra.FinMuestra, 2);
        }
    }
}

} // namespace
