// The runner of chains of formulas: placeholders, rows, and the box of a step that fails.
#include "language/cadena.h"

#include "apoyo/plataforma_prueba.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/ordenes.h"

#include <gtest/gtest.h>

namespace {

using Textos = std::vector<std::string>;

constexpr double Falta = __builtin_nan("");

struct CadenaAbierta {
    LineasSentencia lineas;
    Cadena cadena;
};

// Six observations, A and B; the chain goes over rows 1 to 4.
void Empezar(CadenaAbierta &c) {
    EmpezarConDatos(TipoSinPeriodicidad, "");
    PonerSerie("A", {1, 2, 3, 4, 5, 6});
    PonerSerie("B", {10, 20, Falta, 40, 50, 60});
    PonerEscalar(nullptr, "E", 7.0);
    PonerMatriz("M", {1, 2, 3, 4}, 2, 2);
    PonerMatriz("V", {5, 6, 7}, 3, 1);
    AbrirPilaColumnas();
    LimpiarEvaluador();
    Evaluador.ventana = nullptr;
    c.cadena = {&c.lineas, nullptr, 1, 4};
}

} // namespace

// ----- Placeholders

TEST(TextoDePaso, ValoresYNombres) {
    const DatoCadena datos[] = {DatoNumero("gl", 17), DatoNumero("media", 2.5), DatoNumero("peso", 1.0 / 3),
                                DatoTexto("nombre", "SALARIO"), DatoTexto("DW", "otro")};
    static const struct {
        const char *modelo;
        int codigo;
        const char *texto;
    } Casos[] = {
        {"", 8, ""},
        {"A + B", 8, "A + B"},
        {"RCUAD(%(SCR)s/%(gl)d)", 8, "RCUAD(_SCR/17)"},
        {"RCUAD(%(SCR)s/%(gl)d)", 9, "RCUAD(_SCRR/17)"},
        {"%(SCR)s %(SCR)s", 10, "_SCRGN _SCRGN"},
        {"%(COV)s", 11, "_COVGD"},
        {"%(RES)s2", 12, "_RESW2"},
        {"%(BETA)s", 13, "_BETA"},
        {"%(media)10.6f", 8, "  2.500000"},
        {" %(peso)30.10f * X", 8, "                   0.3333333333 * X"},
        {"%(peso)f", 8, "0.333333"},
        {"[%(nombre)s](%(gl)4d)", 8, "[SALARIO](  17)"},
        {"%(DW)s", 8, "otro"}, // the caller's names come first
        {"%(nadie)d", 8, "%(nadie)d"},
        {"A%(nadie)s+%(gl)d", 8, "A%(nadie)s+17"},
        {"50% %(gl)d", 8, "50% 17"},
        {"%(gl", 8, "%(gl"},
        {"%(gl)", 8, "%(gl)"},
    };
    Cadena c;
    c.datos = datos;
    for (const auto &caso : Casos) {
        c.codigo = caso.codigo;
        EXPECT_EQ(TextoDePaso(c, caso.modelo), caso.texto) << caso.modelo;
    }
}

// ----- Results

TEST(Cadena, GuardaCadaClase) {
    static constexpr PasoCadena Pasos[] = {
        {PasoMatriz, PrimeraFila, "M2", "M * M", ""},
        {PasoEscalar, TodasLasFilas, "TOTAL", "SUMSER(A)", ""},
        {PasoEscalar, PrimeraFila, "UNA", "SUMSER(A)", ""},
        {PasoEscalar, PrimeraFila, "X%(n)d", "%(n)d * E", ""},
        {PasoSerie, TodasLasFilas, "COPIA", "A", ""},
        {PasoSerie, TodasLasFilas, "%(destino)s", "COPIA - MEDSER(COPIA)", ""},
        {PasoSerie, TodasLasFilas, "CERO", " 0 ", ""},
        {PasoMatriz, TodasLasFilas, "LLAVES", "{1 A}", ""},
        {PasoMatriz, PrimeraFila, "FILA", "{1 A}", ""},
    };
    const DatoCadena datos[] = {DatoNumero("n", 3), DatoTexto("destino", "DESVIO")};
    CadenaAbierta c;
    Empezar(c);
    c.cadena.datos = datos;
    Evaluador.NivelLinea = 2;
    ASSERT_EQ(EjecutarCadena(c.cadena, Pasos), 1);
    EXPECT_EQ(Evaluador.NivelLinea, 2);
    EXPECT_EQ(TextosDeCajas(), Textos{});
    EXPECT_EQ(EscalarDe("TOTAL"), 2 + 3 + 4 + 5);
    EXPECT_EQ(EscalarDe("UNA"), 2);
    EXPECT_EQ(EscalarDe("X3"), 21);
    const int d = BuscarSerie("DESVIO"), k = BuscarSerie("CERO"), copia = BuscarSerie("COPIA");
    const double esperado[] = {0, -1.5, -0.5, 0.5, 1.5, 0};
    for (int i = 0; i < 6; ++i) {
        const bool dentro = i >= 1 && i <= 4;
        EXPECT_EQ(ArchivoTrabajo.PresenciaObs[i][d], dentro ? 1 : 0) << i;
        EXPECT_EQ(ArchivoTrabajo.PresenciaObs[i][k], dentro ? 1 : 0) << i;
        EXPECT_EQ(ArchivoTrabajo.ValoresObs[i][copia], dentro ? i + 1.0 : 0.0) << i;
        EXPECT_EQ(ArchivoTrabajo.ValoresObs[i][d], esperado[i]) << i;
    }
    int filas = 0, columnas = 0;
    EXPECT_EQ(MatrizDe("M2", filas, columnas), (std::vector<double>{7, 10, 15, 22}));
    EXPECT_EQ(MatrizDe("LLAVES", filas, columnas), (std::vector<double>{1, 2, 1, 3, 1, 4, 1, 5}));
    EXPECT_EQ(MatrizDe("FILA", filas, columnas), (std::vector<double>{1, 2}));
    CerrarPilaColumnas();
}

// A lag of one formula is none of the next, and what a formula leaves on the stack is gone.
TEST(Cadena, CadaFormulaEmpiezaLimpia) {
    static constexpr PasoCadena Pasos[] = {
        {PasoSerie, TodasLasFilas, "RETARDO", "A(-1)", ""},
        {PasoSerie, TodasLasFilas, "DOBLE", "A * 2", ""},
    };
    CadenaAbierta c;
    Empezar(c);
    c.cadena.primera = 0;
    ASSERT_EQ(EjecutarCadena(c.cadena, Pasos), 1);
    EXPECT_EQ(ArchivoTrabajo.PresenciaObs[0][BuscarSerie("RETARDO")], 0);
    EXPECT_EQ(ValoresDe("DOBLE", 5), (std::vector<double>{2, 4, 6, 8, 10}));
    CerrarPilaColumnas();
}

TEST(Cadena, SerieDeMatriz) {
    static constexpr PasoCadena Pasos[] = {{PasoSerieDeMatriz, TodasLasFilas, "S", "V", ""}};
    CadenaAbierta c;
    Empezar(c);
    Procesar("MUEST 1 6");
    AbrirPilaColumnas();
    ASSERT_EQ(EjecutarCadena(c.cadena, Pasos), 1);
    EXPECT_GE(BuscarSerie("S"), 0);
    CerrarPilaColumnas();
}

// ----- Failures

struct FalloDeCadena {
    const char *que;
    MensajesCadena mensajes;
    PasoCadena paso;
    std::vector<CajaVista> cajas;
};

void PrintTo(const FalloDeCadena &f, std::ostream *salida) {
    *salida << f.que;
}

class FallosDeCadena : public testing::TestWithParam<FalloDeCadena> {};

TEST_P(FallosDeCadena, Caja) {
    const FalloDeCadena &f = GetParam();
    CadenaAbierta c;
    Empezar(c);
    c.cadena.mensajes = &f.mensajes;
    const PasoCadena pasos[] = {
        {PasoEscalar, PrimeraFila, "ANTES", "1", ""}, f.paso, {PasoEscalar, PrimeraFila, "DESPUES", "1", ""}};
    EXPECT_EQ(EjecutarCadena(c.cadena, pasos), 0);
    EXPECT_EQ(Prueba.cajas, f.cajas);
    // What came before stays, what comes behind doesn't run.
    EXPECT_EQ(EscalarDe("ANTES"), 1.0);
    EXPECT_EQ(BuscarEscalar("DESPUES"), -1);
    EXPECT_EQ(Evaluador.NivelLinea, 0);
    CerrarPilaColumnas();
}

namespace {

CajaVista Caja(const char *texto, const char *titulo = "Proceso cancelado") {
    return {titulo, texto, IconoInformacion, BotonesAceptar};
}

const CajaVista Desconocida = Caja("Función desconocida [QQ]"), EnFormula = Caja("QQ. Pto 199");

constexpr PasoCadena Mala = {PasoEscalar, PrimeraFila, "X", "QQ", "", 12, 13};
constexpr PasoCadena Ocupado = {PasoEscalar, PrimeraFila, "A", "1", "", 12, 13};

} // namespace

INSTANTIATE_TEST_SUITE_P(
    Formas, FallosDeCadena,
    testing::Values(
        FalloDeCadena{"secuencia, formula",
                      MensajesSecuencia,
                      Mala,
                      {Desconocida, EnFormula, Caja("Secuencia no válida. Pto 12")}},
        FalloDeCadena{"secuencia, store", MensajesSecuencia, Ocupado, {Caja("Secuencia no válida. Pto 13")}},
        FalloDeCadena{"calculos, formula",
                      MensajesCalculos,
                      Mala,
                      {Desconocida, EnFormula, Caja("Error en cálculos. P12")}},
        FalloDeCadena{"calculos, store", MensajesCalculos, Ocupado, {Caja("Error en cálculos. P13")}},
        FalloDeCadena{"variables, formula",
                      MensajesVariables,
                      Mala,
                      {Desconocida, EnFormula, Caja("No se pueden generar las variables temporales. P12")}},
        FalloDeCadena{"variables, store",
                      MensajesVariables,
                      Ocupado,
                      {Caja("No se pueden generar las variables temporales. P13")}},
        FalloDeCadena{"aviso secuencia, formula",
                      MensajesAvisoSecuencia,
                      Mala,
                      {Desconocida, EnFormula, Caja("Secuencia no válida", "Aviso")}},
        FalloDeCadena{"aviso secuencia, store",
                      MensajesAvisoSecuencia,
                      Ocupado,
                      {Caja("Secuencia no válida", "Aviso")}},
        FalloDeCadena{"aviso calculos, formula",
                      MensajesAvisoCalculos,
                      Mala,
                      {Desconocida, EnFormula, Caja("Problemas en los cálculos", "Aviso")}},
        FalloDeCadena{"aviso calculos, store",
                      MensajesAvisoCalculos,
                      Ocupado,
                      {Caja("Borre algunos escalares", "Aviso")}},
        FalloDeCadena{"del evaluador, formula", MensajesDelEvaluador, Mala, {Desconocida, EnFormula}},
        FalloDeCadena{"del evaluador, store", MensajesDelEvaluador, Ocupado, {}},
        FalloDeCadena{"causa, serie",
                      MensajesSecuencia,
                      {PasoEscalar, PrimeraFila, "A", "1", "", 12, 780, GuardarCausa},
                      {Caja("Secuencia no válida. Pto 781")}},
        FalloDeCadena{"causa, matriz",
                      MensajesCalculos,
                      {PasoEscalar, PrimeraFila, "M", "1", "", 12, 780, GuardarCausa},
                      {Caja("Error en cálculos. P782")}},
        FalloDeCadena{"sin punto",
                      MensajesCalculos,
                      {PasoEscalar, PrimeraFila, "M", "1", "", 12, 861, GuardarSinPunto},
                      {Caja("Secuencia no válida. 861. Pto 2")}},
        FalloDeCadena{"series",
                      MensajesVariables,
                      {PasoSerie, TodasLasFilas, "E", "A", "", 12, 8622, GuardarSeries},
                      {Caja("Borre algunas series. Pto 8622")}},
        FalloDeCadena{"serie, store",
                      MensajesVariables,
                      {PasoSerie, TodasLasFilas, "M", "A", "", 22, 23},
                      {Caja("No se pueden generar las variables temporales. P23")}},
        FalloDeCadena{"serie, formula",
                      MensajesVariables,
                      {PasoSerie, TodasLasFilas, "X", "QQ", "", 22, 23},
                      {Desconocida, EnFormula, Caja("No se pueden generar las variables temporales. P22")}},
        FalloDeCadena{"matriz, store",
                      MensajesCalculos,
                      {PasoMatriz, PrimeraFila, "E", "M", "", 14},
                      {Caja("Nombre matriz no válido. Pto 29"), Caja("Error en cálculos. P14")}},
        FalloDeCadena{"serie de matriz",
                      MensajesSecuencia,
                      {PasoSerieDeMatriz, TodasLasFilas, "X", "QQ", ""},
                      {Caja("Nombre Matriz no Válido. Pto 30")}}));

TEST(Cadena, EnElUltimoNivelSoloLaCajaDelPaso) {
    for (const ClasesPaso clase : {PasoMatriz, PasoEscalar, PasoSerie}) {
        CadenaAbierta c;
        Empezar(c);
        c.cadena.mensajes = &MensajesCalculos;
        const PasoCadena paso = {clase, PrimeraFila, "X", "M", "", 12, 13};
        Evaluador.NivelLinea = MaxNiveles - 1;
        EXPECT_EQ(EjecutarCadena(c.cadena, {&paso, 1}), 0);
        EXPECT_EQ(Evaluador.NivelLinea, MaxNiveles - 1);
        EXPECT_EQ(TextosDeCajas(), Textos{"Error en cálculos. P12"});
        CerrarPilaColumnas();
    }
}

TEST(Cadena, VaciaNoHaceNada) {
    Cadena c;
    EXPECT_EQ(EjecutarCadena(c, {}), 1);
}
