// The texts of the status line: the work file, its sample, and what stands there after a batch.
#include "shell/barra_estado.h"

#include "apoyo/plataforma_prueba.h"
#include "language/lote_sentencias.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <gtest/gtest.h>

namespace {

std::string Barra(int linea = 1, int columna = 1) {
    return Utf8De1252(TextoDeBarra(EstadoActualDeBarra(), linea, columna));
}
std::string Mensaje() {
    return Utf8De1252(MensajeDeBarra());
}

class BarraDeEstado : public testing::Test {
protected:
    void SetUp() override {
        EmpezarPrueba();
        OlvidarMensajeDeBarra();
        AntesDeCadaLote = EmpezarLoteEnBarra;
        DespuesDeCadaLote = TerminarLoteEnBarra;
    }
    void TearDown() override { AntesDeCadaLote = DespuesDeCadaLote = nullptr; }
};

constexpr struct {
    int tipo;
    const char *intervalo, *sentencias, *barra; // behind the statements
} Casos[] = {
    {TipoAnual, "1920#1941", "", "Anual 1920-1941 | Muestra 1920-1941 (22 de 22) | VSR SI | Lín 5, Col 9"},
    {TipoAnual, "1920#1941", "MUEST 1921 1924",
     "Anual 1920-1941 | Muestra 1921-1924 (4 de 22) | VSR SI | Lín 5, Col 9"},
    {TipoAnual, "1920#1941", "VSR NO",
     "Anual 1920-1941 | Muestra 1920-1941 (22 de 22) | VSR NO | Lín 5, Col 9"},
    {TipoTrimestral, "1990#2#1991#1", "",
     "Trimestral 1990.2-1991.1 | Muestra 1990.2-1991.1 (4 de 4) | VSR SI | Lín 5, Col 9"},
    {TipoMensual, "1990#09#1991#01", "MUEST 1990.10 1990.12",
     "Mensual 1990.09-1991.01 | Muestra 1990.10-1990.12 (3 de 5) | VSR SI | Lín 5, Col 9"},
    {TipoSinPeriodicidad, "", "",
     "Sin periodicidad 1-4000 | Muestra 1-4000 (4000 de 4000) | VSR SI | Lín 5, Col 9"},
};

} // namespace

TEST_F(BarraDeEstado, CadaTipo) {
    EXPECT_EQ(Barra(), "Sin tipo de datos | VSR SI | Lín 1, Col 1");
    ArchivoTrabajo.TipoDatos = TipoSinPeriodicidad; // as the tables are before they are set up
    ArchivoTrabajo.NumObs = 0;
    EXPECT_EQ(Barra(), "Sin tipo de datos | VSR SI | Lín 1, Col 1");
    for (const auto &c : Casos) {
        SCOPED_TRACE(c.barra);
        EmpezarConDatos(c.tipo, c.intervalo);
        if (*c.sentencias != '\0') Procesar(c.sentencias);
        EXPECT_EQ(Barra(5, 9), c.barra);
    }
}

// The names of the rows of a panel have hyphens of their own.
TEST_F(BarraDeEstado, Panel) {
    EmpezarConDatos(TipoAnual, "1990#1991");
    ArchivoTrabajo.TipoDatos = TipoPanel;
    PonerTextoPeriodo(0, "1990-1");
    PonerTextoPeriodo(1, "1990-2");
    EXPECT_EQ(Barra(), "Panel 1990-1 a 1990-2 | Muestra 1990-1 a 1990-2 (2 de 2) | VSR SI | Lín 1, Col 1");
}

// The line tells what the next refresh makes of the sample; it does not refresh it.
TEST_F(BarraDeEstado, NoTocaLaMuestra) {
    EmpezarConDatos(TipoAnual, "1920#1941");
    ActualizarMuestra();
    PonerSerie("X", {1, 2, 3}, 4);
    EXPECT_EQ(Barra(), "Anual 1920-1941 | Muestra 1924-1926 (3 de 22) | VSR SI | Lín 1, Col 1");
    EXPECT_EQ(Muestra.InicioMuestra, 0);
    EXPECT_EQ(Muestra.FinMuestra, 21);
}

// A series that was declared and holds nothing: the end lies behind the tables.
TEST_F(BarraDeEstado, SinDatos) {
    EmpezarConDatos(TipoAnual, "1920#1941");
    PonerSerie("X", {});
    EXPECT_EQ(Barra(), "Anual 1920-1941 | Muestra 1920-1941 (22 de 22) | VSR SI | Lín 1, Col 1");
}

TEST_F(BarraDeEstado, MuestraMasCorta) {
    const std::vector<double> veinte(20, 1.5);
    const auto porque = [] { return Utf8De1252(EstadoActualDeBarra().porque); };
    EmpezarConDatos(TipoAnual, "1920#1939");
    PonerSerie("X", veinte);
    EXPECT_EQ(porque(), "");
    Procesar("ESC A = 1");
    EXPECT_EQ(porque(), "");
    PonerSerie("_BETA2", {1, 2, 3});
    EXPECT_EQ(porque(),
              "Es más corta que la del último lote, de 20 observaciones: sin MUEST la muestra llega hasta "
              "donde llegan todas las series. Con menos datos: _BETA2. MUEST fija la muestra.");
    PonerSerie("B", veinte, 1);
    EXPECT_NE(porque().find("datos: _BETA2 y B."), std::string::npos);
    PonerSerie("C", {1, 2, 3});
    EXPECT_NE(porque().find("datos: _BETA2, B y C."), std::string::npos);
    PonerSerie("D", {1}); // in the first row alone: it doesn't count
    EXPECT_NE(porque().find("datos: _BETA2, B y C."), std::string::npos);
    PonerSerie("E", {1, 2, 3});
    PonerSerie("F", {1, 2, 3});
    EXPECT_NE(porque().find("datos: _BETA2, B, C y 2 más."), std::string::npos);
    // One that the user fixed is as short as he wants it.
    MuestraDeSentencia("MUEST 1921 1922");
    EXPECT_EQ(porque(), "");
    MuestraDeSentencia("MUEST");
    EXPECT_NE(porque(), "");
    // The next batch had the short one already.
    Procesar("ESC A = 1");
    EXPECT_EQ(porque(), "");
    // Another work file is no shorter one.
    EmpezarConDatos(TipoAnual, "1920#1921");
    EXPECT_EQ(porque(), "");
}

// ----- The message

namespace {

// X, Y and Z have 20 rows; behind MC, CGQ can order by X.
constexpr const char *Regresion = "VSR NO\nMC Y 1 X\n";

constexpr struct {
    const char *antes, *texto, *mensaje;
} Finales[] = {
    {"", "ESC A = 1\nESC B = 2", "2 sentencias procesadas"},
    {"", "; nada\n\nESC A = 1", "1 sentencia procesada"},
    {"", "; nada", "0 sentencias procesadas"},
    {"", "", ""},
    {"", "ESC A = 1\n\n  SER LB = LN(BENEFF)\nESC B = 1", "Detenido en la línea 3: SER LB = LN(BENEFF)"},
    {"ESC A = 1", "SER A = 1", "Detenido en la línea 1: SER A = 1"}, // a taken name: no box
    {"", "REPITE I DESDE 1 HASTA 2\nESC A = NADIE\nFINREPITE", "Detenido en la línea 2: ESC A = NADIE"},
    {"", "ESC A = 3,5",
     "1 sentencia procesada | Línea 1: La fórmula se lee hasta la coma; los decimales se escriben con punto"},
    {"", "ESC A = 3,5\nESC B = 3,5",
     "2 sentencias procesadas | Línea 1: La fórmula se lee hasta la coma; los decimales se escriben con "
     "punto "
     "(y otra nota)"},
    {"", "ESC A = 3,5\nESC B = 3,5\nESC C = 3,5\nQQ",
     "Detenido en la línea 4: QQ | Línea 1: La fórmula se lee hasta la coma; los decimales se escriben con "
     "punto (y otras 2 notas)"},
    // A test that went well ends its batch by rule; one that didn't stops it.
    {Regresion, "ESC A = 1\nCGQ (X) 1 8 13 20\nESC B = 1", "Procesado hasta la línea 2"},
    {Regresion, "ESC A = 1\nCGQ (NADIE) 1 8 13 20", "Detenido en la línea 2: CGQ (NADIE) 1 8 13 20"},
    {Regresion, "CGQ (X 1 8 13 20", "Detenido en la línea 1: CGQ (X 1 8 13 20"},
};

void DatosDeRegresion() {
    EmpezarConDatos(TipoAnual, "1920#1939");
    std::vector<double> x, y;
    for (int i = 0; i < 20; ++i) {
        x.push_back((i * 7) % 20 + 1);
        y.push_back(3 + 2 * x.back() + (i * i) % 7);
    }
    PonerSerie("X", x);
    PonerSerie("Y", y);
}

} // namespace

TEST_F(BarraDeEstado, TrasElLote) {
    // Notes go where the desktop sends them.
    static OperacionesPlataforma conNotas;
    for (const auto &c : Finales) {
        SCOPED_TRACE(c.texto);
        DatosDeRegresion();
        conNotas = Plataforma();
        conNotas.nota = AnotarEnBarra;
        InstalarPlataforma(conNotas);
        if (*c.antes != '\0') {
            ASSERT_TRUE(Procesar(c.antes));
        }
        Procesar(c.texto);
        EXPECT_EQ(Mensaje(), c.mensaje);
        OlvidarMensajeDeBarra();
        EXPECT_EQ(Mensaje(), "");
    }
}

// The statement of a dialog has no line of the user's text.
TEST_F(BarraDeEstado, TrasUnDialogo) {
    DatosDeRegresion();
    Sentencia("ESC A = 1");
    EXPECT_EQ(Mensaje(), "1 sentencia procesada");
    Sentencia("SER Z = NADIE");
    EXPECT_EQ(Mensaje(), "Detenido: SER Z = NADIE");
    ASSERT_TRUE(Procesar(Regresion));
    Sentencia("CGQ (X) 1 8 13 20");
    EXPECT_EQ(Mensaje(), "1 sentencia procesada");
}

TEST_F(BarraDeEstado, MientrasCorre) {
    static std::string visto;
    AntesDeCadaLote = [] {
        EmpezarLoteEnBarra();
        visto = MensajeDeBarra();
    };
    DatosDeRegresion();
    Procesar("ESC A = 1");
    EXPECT_EQ(visto, "Procesando...");
}

TEST_F(BarraDeEstado, NotasSinLote) {
    AnotarEnBarra("Una sola serie", 0);
    EXPECT_EQ(Mensaje(), "Una sola serie");
    AnotarEnBarra("Otra", 0);
    EXPECT_EQ(Mensaje(), "Una sola serie (y otra nota)");
}
