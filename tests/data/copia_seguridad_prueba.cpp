// The copy of unsaved work: when it is written, when it goes, how it is offered.
#include "data/copia_seguridad.h"

#include "apoyo/plataforma_prueba.h"
#include "data/fichero_trabajo.h"
#include "data/trabajo.h"
#include "data/trabajo_apoyo.h"
#include "platform/campos_texto.h"
#include "store/archivo.h"
#include "store/panel.h"
#include "store/periodos.h"

#include <functional>
#include <sys/wait.h>
#include <unistd.h>

namespace {

const CajaVista Oferta = {
    "Aviso", "Quedó trabajo sin guardar la última vez. ¿Desea recuperarlo? Si contesta No, se borrará.",
    IconoPregunta, BotonesSiNoCancelar};

class CopiaSeguridad : public EnCarpeta {
protected:
    void SetUp() override {
        EnCarpeta::SetUp();
        Trabajo = {};
        EmpezarCopias(carpeta.string());
    }
    void TearDown() override {
        TerminarCopias(false);
        EnCarpeta::TearDown();
    }
    std::vector<std::string> Copias() const {
        std::vector<std::string> r;
        for (const auto &e : std::filesystem::directory_iterator(carpeta))
            if (e.path().extension() == ".TR2") r.push_back(e.path().string());
        return r;
    }
    // Another run of the program: it keeps a copy of this work and is killed.
    void ProgramaQueMuere(double valor) {
        const pid_t hijo = fork();
        ASSERT_GE(hijo, 0);
        if (hijo == 0) {
            EmpezarConDatos(TipoAnual, "1990#1999");
            PonerSerie("PERDIDA", {valor});
            PonerCampo(ArchivoTrabajo.NombreProyecto, "perdido", AnchoProyecto);
            EmpezarCopias(carpeta.string());
            GuardarCopia();
            _exit(0);
        }
        waitpid(hijo, nullptr, 0);
    }
};

TEST_F(CopiaSeguridad, SeEscribeCuandoElTrabajoCambia) {
    TrabajoPequeno(1);
    GuardarCopia();
    ASSERT_EQ(Copias().size(), 1u);
    const std::string ruta = Copias()[0];
    const std::string primera = BytesDe(ruta);
    PonerBytes(ruta, "marca");
    GuardarCopia(); // nothing has changed
    EXPECT_EQ(BytesDe(ruta), "marca");
    ArchivoTrabajo.ValoresObs[1][0] = 77;
    GuardarCopia();
    EXPECT_NE(BytesDe(ruta), "marca");
    EXPECT_NE(BytesDe(ruta), primera);
    EmpezarPrueba();
    ASSERT_EQ(LeerFicheroTrabajo(ruta), TablasLeidas);
    EXPECT_EQ(ArchivoTrabajo.ValoresObs[1][0], 77);
}

// Whatever persists counts as a change.
TEST_F(CopiaSeguridad, CadaTablaCuenta) {
    const std::function<void()> cambios[] = {
        [] { PonerObservacion(9, 1, 0, 1); },
        [] { PonerObservacion(3999, 1, -0.0, 0); },
        [] { PonerCodigoSerie(0, "OTRO"); },
        [] { PonerCampo(ArchivoTrabajo.EtiquetasObs[5], "x", AnchoEtiqueta); },
        [] { PonerTextoPeriodo(5, "x"); },
        [] { ArchivoTrabajo.ConEtiquetas = 1; },
        [] { ArchivoTrabajo.TipoDatos = TipoPanel; },
        [] { ArchivoTrabajo.NumObs = 9; },
        [] { PonerCampo(ArchivoTrabajo.TextoIntervalo, "x", AnchoIntervalo); },
        [] { TablaMatrices.bloque[0][5] = 0; },
        [] { std::swap(TablaMatrices.registro[0].Filas, TablaMatrices.registro[0].Columnas); },
        [] { PonerMatriz("OTRA", {1}, 1, 1); },
        [] { TablaEscalares.registro[0].Valor += 1; },
        [] { PonerEscalar(nullptr, "OTRO", 1); },
        [] { TablaEcuaciones.TextosEcuacion[0][0] = 'x'; },
        [] { TablaEcuaciones.Codigos[0][0] = 'x'; },
        [] { DescripcionPanel.NumEntradas = 3; },
        [] { PonerCampo(DescripcionPanel.EtiquetasIndividuo[49], "x", AnchoEtiqueta); },
    };
    int n = 0;
    for (const auto &cambio : cambios) {
        SCOPED_TRACE(++n);
        TrabajoPequeno(1);
        AnotarTrabajoGuardado();
        GuardarCopia();
        ASSERT_TRUE(Copias().empty());
        cambio();
        GuardarCopia();
        EXPECT_EQ(Copias().size(), 1u);
    }
}

TEST_F(CopiaSeguridad, SinTrabajoNoHayCopia) {
    GuardarCopia();
    EmpezarConDatos(TipoAnual, "1990#1999");
    GuardarCopia();
    EXPECT_TRUE(Copias().empty());
    PonerEscalar(nullptr, "E", 1); // nothing is asked about scalars at the end, but they are work
    GuardarCopia();
    EXPECT_EQ(Copias().size(), 1u);
}

TEST_F(CopiaSeguridad, LoGuardadoNoNecesitaCopia) {
    TrabajoPequeno(1);
    GuardarCopia();
    ASSERT_EQ(Copias().size(), 1u);
    Prueba.rutas = {Ruta("x.trabajo")};
    ASSERT_TRUE(EjecutarTrabajo(nullptr, GuardarTrabajoComo));
    EXPECT_TRUE(Copias().empty());
    GuardarCopia();
    EXPECT_TRUE(Copias().empty());
    // Changed and changed back: what stands in the file needs no copy.
    TablaEscalares.registro[0].Valor += 1;
    GuardarCopia();
    EXPECT_EQ(Copias().size(), 1u);
    TablaEscalares.registro[0].Valor -= 1;
    GuardarCopia();
    EXPECT_TRUE(Copias().empty());
    // What was opened is safe, too.
    TrabajoPequeno(2);
    Prueba.rutas = {Ruta("x.trabajo")};
    ASSERT_TRUE(EjecutarTrabajo(nullptr, AbrirTrabajo));
    GuardarCopia();
    EXPECT_TRUE(Copias().empty());
}

TEST_F(CopiaSeguridad, AlTerminarEnOrdenSeVa) {
    TrabajoPequeno(1);
    GuardarCopia();
    EXPECT_TRUE(TerminarCopias(false));
    EXPECT_EQ(Ficheros(), 0); // its lock has gone, too
    GuardarCopia();
    EXPECT_EQ(Ficheros(), 0); // nothing is kept any more
}

TEST_F(CopiaSeguridad, AlTerminarSinGuardarQueda) {
    TrabajoPequeno(1);
    EXPECT_TRUE(TerminarCopias(true));
    ASSERT_EQ(Copias().size(), 1u);
    EXPECT_EQ(Ficheros(), 1);
    // The next start offers it.
    const std::string antes = RetratoDelTrabajo();
    EmpezarPrueba();
    EmpezarCopias(carpeta.string());
    OfrecerCopia(nullptr);
    EXPECT_EQ(Prueba.cajas, std::vector<CajaVista>{Oferta});
    EXPECT_TRUE(RetratoDelTrabajo() == antes);
    // What was saved leaves nothing.
    AnotarTrabajoGuardado();
    EXPECT_TRUE(TerminarCopias(true));
    EXPECT_EQ(Ficheros(), 0);
}

TEST_F(CopiaSeguridad, SinCarpetaNoSeTerminaSinGuardar) {
    TerminarCopias(false);
    for (const std::string &donde : {std::string(), Ruta("no hay")}) {
        EmpezarCopias(donde);
        TrabajoPequeno(1);
        GuardarCopia();
        OfrecerCopia(nullptr);
        EXPECT_FALSE(TerminarCopias(true));
        EXPECT_TRUE(TerminarCopias(false));
        EmpezarConDatos(TipoAnual, "1990#1999");
        EXPECT_TRUE(TerminarCopias(true)); // there is nothing to lose
    }
    EXPECT_EQ(Ficheros(), 0);
    EXPECT_TRUE(Prueba.cajas.empty());
}

TEST_F(CopiaSeguridad, SeOfreceLaQueDejoUnProgramaMuerto) {
    ProgramaQueMuere(42);
    ASSERT_EQ(Copias().size(), 1u);
    OfrecerCopia(nullptr); // yes
    EXPECT_EQ(Prueba.cajas, std::vector<CajaVista>{Oferta});
    EXPECT_EQ(ValoresDe("PERDIDA", 1), std::vector<double>{42});
    EXPECT_EQ(Prueba.titulo, "Tabira: perdido");
    EXPECT_EQ(Muestra.FinMuestra, 100000); // refreshed
    // It is this program's copy now: another start isn't offered it, and the first save asks for a place.
    EXPECT_EQ(Copias().size(), 1u);
    Prueba.cajas.clear();
    OfrecerCopia(nullptr);
    EXPECT_TRUE(Prueba.cajas.empty());
    EXPECT_FALSE(EjecutarTrabajo(nullptr, GuardarTrabajo));
    EXPECT_EQ(Prueba.archivos.size(), 1u);
    EXPECT_TRUE(TerminarCopias(true));
    EXPECT_EQ(Copias().size(), 1u); // and still isn't saved
}

TEST_F(CopiaSeguridad, NoLaBorraYCancelarLaDeja) {
    ProgramaQueMuere(1);
    Prueba.respuestas = {RespuestaCancelar, RespuestaNo};
    OfrecerCopia(nullptr);
    EXPECT_EQ(Copias().size(), 1u);
    EXPECT_EQ(ArchivoTrabajo.NumSeries, 0);
    OfrecerCopia(nullptr);
    EXPECT_TRUE(Copias().empty());
    EXPECT_EQ(ArchivoTrabajo.NumSeries, 0);
    OfrecerCopia(nullptr);
    EXPECT_EQ(Prueba.cajas.size(), 2u);
}

// One box a start: the newest first, the others at the starts that follow.
TEST_F(CopiaSeguridad, DeVariasLaMasReciente) {
    ProgramaQueMuere(1);
    const std::string vieja = Copias()[0];
    std::filesystem::last_write_time(vieja, std::filesystem::last_write_time(vieja) - std::chrono::hours(1));
    ProgramaQueMuere(2);
    ASSERT_EQ(Copias().size(), 2u);
    Prueba.respuestas = {RespuestaNo};
    OfrecerCopia(nullptr);
    EXPECT_EQ(Prueba.cajas.size(), 1u);
    EXPECT_EQ(Copias(), std::vector<std::string>{vieja});
}

// The copy of a program that runs isn't offered, this one's neither.
TEST_F(CopiaSeguridad, LaDeUnProgramaQueCorreNo) {
    TrabajoPequeno(1);
    GuardarCopia();
    OfrecerCopia(nullptr);
    EXPECT_TRUE(Prueba.cajas.empty());
    const pid_t hijo = fork();
    if (hijo == 0) {
        EmpezarPrueba();
        EmpezarCopias(carpeta.string());
        OfrecerCopia(nullptr);
        _exit(Prueba.cajas.empty() ? 0 : 1);
    }
    int estado = 0;
    waitpid(hijo, &estado, 0);
    EXPECT_TRUE(WIFEXITED(estado) && WEXITSTATUS(estado) == 0);
    EXPECT_EQ(Copias().size(), 1u);
}

TEST_F(CopiaSeguridad, UnaDanadaSeAparta) {
    ProgramaQueMuere(1);
    PonerBytes(Copias()[0], "SQLite format 3, pero no");
    OfrecerCopia(nullptr);
    ASSERT_EQ(Prueba.cajas.size(), 2u);
    EXPECT_EQ(Prueba.cajas[1].texto, "El archivo no es un archivo de trabajo");
    EXPECT_TRUE(Copias().empty());
    EXPECT_EQ(ArchivoTrabajo.NumSeries, 0);
    OfrecerCopia(nullptr);
    EXPECT_EQ(Prueba.cajas.size(), 2u);
}

// A copy that was left under the number of this process isn't written over.
TEST_F(CopiaSeguridad, UnNumeroRepetido) {
    TrabajoPequeno(1);
    GuardarCopia();
    const std::string ruta = Copias()[0];
    const std::string bytes = BytesDe(ruta);
    TerminarCopias(false);
    PonerBytes(ruta, bytes);
    EmpezarCopias(carpeta.string());
    TrabajoPequeno(2);
    GuardarCopia();
    EXPECT_EQ(Copias().size(), 2u);
    EXPECT_EQ(BytesDe(ruta), bytes);
    Prueba.respuestas = {RespuestaSi};
    OfrecerCopia(nullptr);
    EXPECT_EQ(Prueba.cajas, std::vector<CajaVista>{Oferta});
}

// ----- The text of the statements

// The test's platform has one control, whoever asks.
ControlTexto *Pantalla() {
    static int una;
    return reinterpret_cast<ControlTexto *>(&una);
}

class CopiaDeSentencias : public CopiaSeguridad {
protected:
    void SetUp() override {
        CopiaSeguridad::SetUp();
        TerminarCopias(false);
        EmpezarCopias(carpeta.string(), Pantalla());
    }
    std::vector<std::string> Textos() const {
        std::vector<std::string> r;
        for (const auto &e : std::filesystem::directory_iterator(carpeta))
            if (e.path().extension() == ".TXT") r.push_back(BytesDe(e.path().string()));
        return r;
    }
    // Another run of the program: it keeps a copy of its statements, and of its work if it has one, and is killed.
    void MuereConTexto(const std::string &texto, bool conTrabajo) {
        const pid_t hijo = fork();
        ASSERT_GE(hijo, 0);
        if (hijo == 0) {
            EmpezarPrueba();
            if (conTrabajo) TrabajoPequeno(1);
            EmpezarCopias(carpeta.string(), Pantalla());
            Prueba.textoControl = texto;
            GuardarCopia();
            _exit(0);
        }
        waitpid(hijo, nullptr, 0);
    }
};

TEST_F(CopiaDeSentencias, SigueALaPantalla) {
    for (const char *texto : {"", "SER A = 1", "SER A = 1\n; Pe\xf1\xf3n", "x", ""}) {
        SCOPED_TRACE(texto);
        Prueba.textoControl = texto;
        GuardarCopia();
        EXPECT_EQ(Textos(), *texto == '\0' ? std::vector<std::string>{} : std::vector<std::string>{texto});
        EXPECT_TRUE(Copias().empty()); // there is no work yet
    }
}

TEST_F(CopiaDeSentencias, AlTerminarEnOrdenSeVa) {
    Prueba.textoControl = "SER A = 1";
    GuardarCopia();
    AnotarTrabajoGuardado(); // of the work, not of the text
    EXPECT_EQ(Textos().size(), 1u);
    EXPECT_TRUE(TerminarCopias(true)); // and nothing is left that would have to be saved
    EXPECT_EQ(Ficheros(), 0);
}

// What is kept because a save came to nothing is kept whole.
TEST_F(CopiaDeSentencias, QuedaConElTrabajo) {
    TrabajoPequeno(1);
    Prueba.textoControl = "SER A = 1";
    EXPECT_TRUE(TerminarCopias(true));
    EXPECT_EQ(Copias().size(), 1u);
    EXPECT_EQ(Textos(), std::vector<std::string>{"SER A = 1"});
}

TEST_F(CopiaDeSentencias, SeOfrecenEnLaMismaCaja) {
    for (const bool conTrabajo : {true, false}) {
        SCOPED_TRACE(conTrabajo);
        MuereConTexto("SER A = 1\nSER B = 2", conTrabajo);
        EmpezarPrueba();
        OfrecerCopia(nullptr);
        EXPECT_EQ(Prueba.cajas, std::vector<CajaVista>{Oferta});
        EXPECT_EQ(Prueba.textoControl, "SER A = 1\nSER B = 2");
        EXPECT_EQ(ArchivoTrabajo.NumSeries > 0, conTrabajo);
        EXPECT_EQ(Prueba.titulo.empty(), !conTrabajo);
        // It is this program's now, and goes with it.
        EXPECT_EQ(Textos().size(), 1u);
        OfrecerCopia(nullptr);
        EXPECT_EQ(Prueba.cajas.size(), 1u);
        TerminarCopias(false);
        EXPECT_EQ(Ficheros(), 0);
        EmpezarCopias(carpeta.string(), Pantalla());
    }
}

TEST_F(CopiaDeSentencias, NoLasBorraYCancelarLasDeja) {
    MuereConTexto("SER A = 1", true);
    Prueba.respuestas = {RespuestaCancelar, RespuestaNo};
    OfrecerCopia(nullptr);
    EXPECT_EQ(Textos().size(), 1u);
    EXPECT_EQ(Copias().size(), 1u);
    OfrecerCopia(nullptr);
    EXPECT_TRUE(Textos().empty());
    EXPECT_TRUE(Copias().empty());
    EXPECT_EQ(Prueba.textoControl, "");
}

// A work that can't be read doesn't take the statements with it.
TEST_F(CopiaDeSentencias, DeUnaDanadaQuedanLasSentencias) {
    MuereConTexto("SER A = 1", true);
    PonerBytes(Copias()[0], "SQLite format 3, pero no");
    OfrecerCopia(nullptr);
    EXPECT_EQ(Prueba.cajas.size(), 2u);
    EXPECT_EQ(Prueba.textoControl, "SER A = 1");
    EXPECT_TRUE(Copias().empty());
}

} // namespace
