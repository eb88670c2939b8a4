// The statement driver: what is cut out of the text, checked, recognised, and what stops a batch.
#include "apoyo/plataforma_prueba.h"
#include "language/lote_sentencias.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

using Textos = std::vector<std::string>;

// Ten years, 1990 to 1999, with the series X (1 to 10) and Y (2, 4, ... 20).
void EmpezarLote() {
    EmpezarConDatos(TipoAnual, "1990#1999");
    std::vector<double> x, y;
    for (int i = 1; i <= 10; ++i) {
        x.push_back(i);
        y.push_back(2.0 * i);
    }
    PonerSerie("X", x);
    PonerSerie("Y", y);
    ActualizarMuestra();
}

const Textos NoHay = {"No hay datos a procesar. Punto 3."};

TEST(Lote, SinTipoDeDatosNoCorreNada) {
    EmpezarPrueba();
    EXPECT_FALSE(Procesar("ESC A = 1"));
    EXPECT_FALSE(Sentencia("ESC A = 1"));
    const CajaVista caja{"Proceso cancelado", "Tipo de datos no válidos", IconoInformacion, BotonesAceptar};
    EXPECT_EQ(Prueba.cajas, (std::vector<CajaVista>{caja, caja}));
    EXPECT_TRUE(std::isnan(EscalarDe("A")));
}

// ----- Selections

struct CasoSeleccion {
    const char *texto;
    int desde, hasta;
    Textos cajas;
    double a, b; // scalars afterwards, NaN for none
};

constexpr double Nada = std::numeric_limits<double>::quiet_NaN();

const CasoSeleccion Selecciones[] = {
    {"ESC A = 12\r\nESC B = 34", 0, 0, NoHay, Nada, Nada},
    {"ESC A = 12\r\nESC B = 34", 7, 7, NoHay, Nada, Nada},
    {"ESC A = 12\r\nESC B = 34", 9, 3, NoHay, Nada, Nada},
    {"", 0, 0, NoHay, Nada, Nada},
    {"ESC A = 12\r\nESC B = 34", 100, 200, NoHay, Nada, Nada},
    {"ESC A = 12\r\nESC B = 34", 0, 22, {}, 12, 34},
    {"ESC A = 12\r\nESC B = 34", 0, 100, {}, 12, 34},
    {"ESC A = 12\r\nESC B = 34", -5, 10, {}, 12, Nada},
    {"ESC A = 12\nESC B = 34", 0, 21, {}, 12, 34},
    // Inside a line one character more than selected is taken.
    {"ESC A = 12\r\nESC B = 34", 0, 9, {}, 12, Nada},
    {"ESC A = 12\r\nESC B = 34", 0, 8, {}, 1, Nada},
    {"ESC A = 12\r\nESC B = 34", 0, 20, {}, 12, 3},
    // At a line's end that character is the line feed or the next line's first one, which alone says nothing.
    {"ESC A = 12\r\nESC B = 34", 0, 10, {}, 12, Nada},
    {"ESC A = 12\r\nESC B = 34", 0, 12, {}, 12, Nada},
    {"ESC A = 12\r\n(", 0, 12, {"Número inadecuado de paréntesis"}, 12, Nada},
    // A selection that begins inside a line runs what is left of it.
    {"AESC A = 12", 1, 11, {}, 12, Nada},
    {"  \t\r\n\r\n   ESC A = 7   \r\n\t \r\n", 0, 30, {}, 7, Nada},
    {" ", 0, 1, {}, Nada, Nada},
    // A block reaches to the end of the selection and not beyond; its first line, as any line, one character further.
    {"SI (1 = 1) ENTONCES\nESC A = 12\nFINSI\nESC B = 34", 0, 36, {}, 12, Nada},
    {"SI (1 = 1) ENTONCES\nESC A = 12\nFINSI\nESC B = 34",
     0,
     35,
     {"No se ha cerrado el bucle: [FINS]. Pto 7", "Secuencia no válida. Punto 89"},
     Nada,
     Nada},
    {"SI (1 = 1) ENTONCES\nESC A = 12\nFINSI\nESC B = 34",
     0,
     18,
     {"No se ha cerrado el bucle: []. Pto 7", "Secuencia no válida. Punto 89"},
     Nada,
     Nada},
    {"SI (1 = 1) ENTONCES\nESC A = 12\nFINSI\nESC B = 34", 0, 47, {}, 12, 34},
};

TEST(Lote, CorreLaSeleccion) {
    for (const CasoSeleccion &c : Selecciones) {
        SCOPED_TRACE(std::string(c.texto) + " " + std::to_string(c.desde) + " " + std::to_string(c.hasta));
        EmpezarLote();
        Prueba.textoControl = c.texto;
        Prueba.desde = c.desde;
        Prueba.hasta = c.hasta;
        EXPECT_EQ(ProcesarLote(nullptr, nullptr, 0, {}, 0, 9), 0);
        EXPECT_EQ(TextosDeCajas(), c.cajas);
        EXPECT_EQ(Lote.detenido, c.cajas.empty() ? 0 : 1);
        const double a = EscalarDe("A");
        const double b = EscalarDe("B");
        EXPECT_TRUE(a == c.a || (std::isnan(a) && std::isnan(c.a))) << a;
        EXPECT_TRUE(b == c.b || (std::isnan(b) && std::isnan(c.b))) << b;
        EXPECT_EQ(Prueba.cursor, CursorFlecha);
    }
}

// ----- Statements with their boxes

struct CasoSentencia {
    const char *texto;
    Textos cajas;
    bool sigue; // the batch runs to its end
};

const CasoSentencia Sentencias[] = {
    // Parentheses and brackets: totals only, comments too.
    {"SER Z = (X", {"Número inadecuado de paréntesis"}, false},
    {"SER Z = X)", {"Número inadecuado de paréntesis"}, false},
    {"SER Z = X[1990", {"Número inadecuado de corchetes"}, false},
    {"SER Z = (X[1990", {"Número inadecuado de paréntesis"}, false},
    {"OBS X 1990] = 3", {"Número inadecuado de corchetes"}, false},
    {"; a comment (", {"Número inadecuado de paréntesis"}, false},
    {";a comment ]", {"Número inadecuado de corchetes"}, false},
    {"Q)(", {"Funciones o parámetros no válidos: \n (Q))"}, false},
    {"; )(", {}, true},
    {";", {}, true},
    {";comment", {}, true},
    {"; comment of any length = 3", {}, true},
    {";;", {}, true},
    // Unknown words.
    {"Q", {}, true},
    {"Q = 3", {}, true},
    {"(Q)", {}, true}, // the word in front of the parenthesis is empty
    {"QQ", {"Funciones o parámetros no válidos: \n (QQ)"}, false},
    {"qq x", {"Funciones o parámetros no válidos: \n (QQ)"}, false},
    {"año 3", {"Funciones o parámetros no válidos: \n (AñO)"}, false},
    {"SER(X)", {"Funciones o parámetros no válidos: \n (SER)"}, false},
    {"SER (X) = 3", {"Funciones o parámetros no válidos: \n (SER)"}, false},
    {"MAT (X)", {"Funciones o parámetros no válidos: \n (MAT)"}, false},
    {"SER\tZ = 1", {"Funciones o parámetros no válidos: \n (SER\tZ)"}, false},
    {"FINREPITE", {"Funciones o parámetros no válidos: \n (FINREPITE)"}, false},
    {"SINO", {"Funciones o parámetros no válidos: \n (SINO)"}, false},
    {"ROMPE", {"Funciones o parámetros no válidos: \n (ROMPE)"}, false},
    {"SERIE X", {"Funciones o parámetros no válidos: \n (SERIE)"}, false},
    // Accepted and ignored.
    {"AES LOG 0.3 X", {}, true},
    {"AED X", {}, true},
    {"aes", {}, true},
    // VSR.
    {"VSR", {"Punto 39,  : Faltan datos"}, false},
    {"VSR   ", {"Punto 39,  : Faltan datos"}, false},
    {"VSR SI", {}, true},
    // CAL.
    {"CAL", {"Punto 39,  : Faltan datos"}, false},
    {"CAL 2 + 3 * 4", {"  14.0000 "}, true},
    {"CAL 2 * 3 + 4", {"  10.0000 "}, true},
    {"cal (2 + 3)*4", {"  20.0000 "}, true},
    {"CAL(2 + 3)*4", {"  20.0000 "}, true},
    {"CAL 2 ** 3", {"   8.0000 "}, true},
    {"CAL 0 - 3.25", {"  -3.2500 "}, true},
    {"CAL X", {"   1.0000 "}, true},
    {"CAL 12345678 * 10", {" 123456780.0000 "}, true},
    {"CAL 3 >= 3", {"   1.0000 "}, true},
    {"CAL 3 <> 3", {"   0.0000 "}, true},
    {"CAL 3 <= 2", {"   0.0000 "}, true},
    // A chart goes on whatever becomes of it.
    {"GRAF X", {}, true},
    {"GRAF QQ", {"No se ha introducido ninguna serie válida"}, true},
    {"HIST X", {}, true},
    {"HIST QQ", {"Variable no encontrada"}, true},
    // Tests, without a regression.
    {"CHN", {"Introduzca factor restricciones: []. Pto 2663"}, false},
    {"CGQ X", {"Indroduzca ponderación. Pto 1633"}, false},
    {"CRA X", {"Realize primero una regresión. P11"}, false},
    {"CDU", {"No se encuentra la matriz de covarianza"}, false},
    {"CWA", {"Realize previamente una regresión"}, false},
    // Sample and decimals go on whatever they are given.
    {"MUEST", {}, true},
    {"MUEST 3000 4000", {}, true},
    {"DECI 3", {}, true},
};

TEST(Lote, CadaSentenciaConSusCajas) {
    for (const CasoSentencia &c : Sentencias) {
        SCOPED_TRACE(c.texto);
        EmpezarLote();
        EXPECT_EQ(Procesar(c.texto), c.sigue);
        EXPECT_EQ(TextosDeCajas(), c.cajas);
        EXPECT_EQ(Lote.NingunaSentenciaHecha, c.sigue ? 0 : 1);
        EXPECT_EQ(ArchivoTrabajo.NumSeries, 2);
    }
}

TEST(Lote, UnaSentenciaDeDialogoEsComoUnaLinea) {
    // Taken as it is, a dialog's statement that begins with a blank has an empty first word.
    const CasoSentencia casos[] = {
        {"CAL 2 + 3 * 4", {"  14.0000 "}, true},
        {"SER Z = (X", {"Número inadecuado de paréntesis"}, false},
        {"QQ", {"Funciones o parámetros no válidos: \n (QQ)"}, false},
        {"", {}, true},
        {" QQ", {}, true},
        {"REPITE J DESDE 1 HASTA 3", {"Funciones o parámetros no válidos: \n (REPITE)"}, false},
        {"MIENTRAS (X > 1) ENTONCES", {"Funciones o parámetros no válidos: \n (MIENTRAS)"}, false},
        {"SI (X > 1) ENTONCES", {"Funciones o parámetros no válidos: \n (SI)"}, false},
    };
    for (const CasoSentencia &c : casos) {
        SCOPED_TRACE(c.texto);
        EmpezarLote();
        EXPECT_EQ(Sentencia(c.texto), c.sigue);
        EXPECT_EQ(TextosDeCajas(), c.cajas);
    }
}

TEST(Lote, TitulosDeLasCajas) {
    const struct {
        const char *texto, *titulo;
    } casos[] = {
        {"QQ", "Proceso Cancelado"},  {"SER Z = (X", "Proceso cancelado"},
        {"VSR", "Proceso cancelado"}, {"CAL 1", "Resultado"},
        {"GRAF QQ", "Aviso"},         {"SER FICTIC NADA", "Serie no existe"},
    };
    for (const auto &c : casos) {
        SCOPED_TRACE(c.texto);
        EmpezarLote();
        Procesar(c.texto);
        ASSERT_EQ(Prueba.cajas.size(), 1u);
        EXPECT_EQ(Prueba.cajas[0].titulo, c.titulo);
        EXPECT_EQ(Prueba.cajas[0].icono, IconoInformacion);
        EXPECT_EQ(Prueba.cajas[0].botones, BotonesAceptar);
    }
}

TEST(Lote, DECISiempreLeeLaPropiaPalabra) {
    const struct {
        const char *texto;
        int decimales;
    } casos[] = {{"DECI 3", 0}, {"DECI 9", 0}, {"deci x", 0}, {"DECI", 4}, {"DECI  ", 4}, {"DECI(3)", 4}};
    for (const auto &c : casos) {
        SCOPED_TRACE(c.texto);
        EmpezarLote();
        Lote.DecimalesSalida = 4;
        EXPECT_TRUE(Procesar(c.texto));
        EXPECT_EQ(Lote.DecimalesSalida, c.decimales);
    }
}

TEST(Lote, VSRPreguntaSoloConSI) {
    const struct {
        const char *texto;
        int ver;
    } casos[] = {{"VSR SI", 1}, {"VSR si", 1},  {"VSR   SI  ", 1}, {"VSR NO", 0},
                 {"VSR X", 0},  {"VSR SIN", 0}, {"VSR S I", 0}};
    for (const auto &c : casos) {
        SCOPED_TRACE(c.texto);
        EmpezarLote();
        Lote.VerRegresion = 1 - c.ver;
        EXPECT_TRUE(Procesar(c.texto));
        EXPECT_EQ(Lote.VerRegresion, c.ver);
    }
}

TEST(Lote, LoHechoQuedaYLoDeDetrasNoCorre) {
    EmpezarLote();
    EXPECT_FALSE(Procesar("ESC A = 1\nESC B = 2\nQQ\nESC C = 3"));
    EXPECT_EQ(EscalarDe("A"), 1.0);
    EXPECT_EQ(EscalarDe("B"), 2.0);
    EXPECT_TRUE(std::isnan(EscalarDe("C")));
    EXPECT_EQ(Lote.NingunaSentenciaHecha, 0);
}

TEST(Lote, UnaLetraNoDetieneElLote) {
    EmpezarLote();
    EXPECT_TRUE(Procesar("Q\n;\nESC A = 1\n; fin"));
    EXPECT_EQ(EscalarDe("A"), 1.0);
    EXPECT_TRUE(Prueba.cajas.empty());
}

TEST(Lote, MUESTCambiaLaMuestraDeLoQueSigue) {
    EmpezarLote();
    EXPECT_TRUE(Procesar("ESC A = SUMSER(X)\nMUEST 1992 1994\nESC B = SUMSER(X)\nSER Z = X"));
    EXPECT_EQ(EscalarDe("A"), 55.0);
    EXPECT_EQ(EscalarDe("B"), 12.0); // 3 + 4 + 5
    const std::vector<double> z = ValoresDe("Z", 10);
    for (int i = 0; i < 10; ++i) EXPECT_EQ(std::isnan(z[static_cast<std::size_t>(i)]), i < 2 || i > 4) << i;
}

TEST(Lote, LaMuestraLlegaConLaLlamada) {
    EmpezarLote();
    ProcesarLote(nullptr, nullptr, 246, "ESC A = SUMSER(X)", 3, 5);
    EXPECT_EQ(EscalarDe("A"), 15.0);
}

// The statement of a dialog, over the rows that the dialog names.
TEST(Lote, SentenciaDeDialogo) {
    const struct {
        const char *texto;
        int resultado;
        int cajas;
    } casos[] = {{"ESC A = SUMSER(X)", 1, 0},
                 {"ESC A = SUMSER(X", 0, 1},
                 {"QQ", 0, 1},
                 {"; nada", 1, 0},
                 // Control flow needs a selection: here its words are unknown.
                 {"REPITE J DESDE 1 HASTA 3", 0, 1}};
    for (const auto &c : casos) {
        SCOPED_TRACE(c.texto);
        EmpezarLote();
        EXPECT_EQ(ProcesarSentencia(nullptr, c.texto, 3, 5), c.resultado);
        EXPECT_EQ(Lote.NingunaSentenciaHecha, 1 - c.resultado);
        EXPECT_EQ(static_cast<int>(Prueba.cajas.size()), c.cajas);
    }
    EmpezarLote();
    ProcesarSentencia(nullptr, "ESC A = SUMSER(X)", 3, 5);
    EXPECT_EQ(EscalarDe("A"), 15.0);
}

// Each operator of two characters becomes one and a blank; the order of the passes decides what overlaps.
TEST(Lote, OperadoresDeDosCaracteres) {
    const struct {
        const char *texto;
        double valor;
    } casos[] = {{"ESC A = 2**3", 8},   {"ESC A = 2 ** 3 ** 2", 64}, {"ESC A = 3>=3", 1},
                 {"ESC A = 3 <= 2", 0}, {"ESC A = 3<>2", 1},         {"esc a = 2", 2}};
    for (const auto &c : casos) {
        SCOPED_TRACE(c.texto);
        EmpezarLote();
        EXPECT_TRUE(Procesar(c.texto));
        EXPECT_EQ(EscalarDe("A"), c.valor);
    }
    EmpezarLote();
    EXPECT_FALSE(Procesar("ESC A = 2 <>= 3")); // ">=" is rewritten first: "<" and "?" stand together
    EXPECT_FALSE(Procesar("ESC A = 2 *** 3"));
}

// MC works on the bounds of the batch; CR goes on with those of the last MC.
TEST(Lote, LaMuestraDeLaRegresion) {
    EmpezarLote();
    EXPECT_TRUE(Procesar("VSR NO\nMUEST 1992 1998\nMC Y 1 X"));
    EXPECT_EQ(Muestra.InicioRegresion, 2);
    EXPECT_EQ(Muestra.FinRegresion, 8);
    EXPECT_TRUE(Prueba.cajas.empty());
    Procesar("MUEST 1990 1999\nCR Y 1");
    EXPECT_EQ(Muestra.InicioRegresion, 2);
    EXPECT_EQ(Muestra.FinRegresion, 8);
    // Residuals come back to series in the rows of the regression.
    EXPECT_TRUE(Procesar("MAT R = {X}\nSER Z = {R}"));
    const std::vector<double> z = ValoresDe("Z", 10);
    for (int i = 0; i < 10; ++i) EXPECT_EQ(std::isnan(z[static_cast<std::size_t>(i)]), i < 2 || i > 8) << i;
}

TEST(Lote, LasMatricesQuedanSueltas) {
    EmpezarLote();
    PonerMatriz("M", {1, 2, 3, 4}, 2, 2);
    FijarMatriz(0);
    EXPECT_FALSE(Procesar("QQ"));
    EXPECT_EQ(TablaMatrices.EstadoBloque[0], BloqueSuelto);
    FijarMatriz(0);
    EXPECT_TRUE(Procesar("CAL 1"));
    EXPECT_EQ(TablaMatrices.EstadoBloque[0], BloqueSuelto);
}

// Whatever was processed, the data are what they were and the next statement runs.
void EsperarProgramaEntero() {
    EXPECT_EQ(ValoresDe("X", 10), (std::vector<double>{1, 2, 3, 4, 5, 6, 7, 8, 9, 10}));
    Prueba.cajas.clear();
    EXPECT_TRUE(Procesar("CAL 7"));
    EXPECT_EQ(TextosDeCajas(), Textos{"   7.0000 "});
}

// Lines of 100,000 characters and bytes of any value.
TEST(Lote, CualquierTextoTermina) {
    const std::string textos[] = {
        std::string(100000, 'A'),
        std::string(100000, '('),
        std::string(100000, '*'),
        std::string(50000, '(') + std::string(50000, ')'),
        "ESC A = " + std::string(10000, '(') + "1" + std::string(10000, ')'),
        "ESC A = 1" + std::string(100000, '0'),
        "SER " + std::string(100000, 'A') + " = 1",
        "OBS X[" + std::string(100000, '1') + "] = 1",
        "VSR " + std::string(100000, 'S'),
        "CAL " + std::string(300, '9') + " * " + std::string(300, '9'),
        "SER X = X(-" + std::string(1000, '9') + ") * 2",
        "REPITE J DESDE " + std::string(400, '9') + " HASTA " + std::string(400, '9') + "\nCAL J\nFINREPITE",
    };
    for (const std::string &texto : textos) {
        SCOPED_TRACE(texto.substr(0, 20));
        EmpezarLote();
        Procesar(texto);
        EsperarProgramaEntero();
    }
    std::string bytes;
    for (int i = 1; i < 256; ++i) bytes += static_cast<char>(i);
    const char *const comienzos[] = {"",     "SER ", "SER A=", "OBS X[", "ESC ",    "MAT ",
                                     "CAL ", "MC ",  "MUEST ", "SI (",   "REPITE ", "SER A={"};
    for (const char *comienzo : comienzos) {
        SCOPED_TRACE(comienzo);
        EmpezarLote();
        Prueba.textoControl = comienzo + bytes;
        Prueba.hasta = static_cast<int>(Prueba.textoControl.size());
        ProcesarLote(nullptr, nullptr, 0, {}, 0, 9);
        EsperarProgramaEntero();
    }
}

// Series with nothing beyond row 0 leave the end of the sample at 100,000, which counts as the last row: a series that holds
// no values yet doesn't stop everything else. Bounds that begin outside the tables change nothing.
struct CasoSinFin {
    const char *texto;
    const char *caja;                      // text of the one box, null for none
    std::vector<std::pair<int, double>> x; // rows of X that hold a value besides row 0
    std::vector<std::pair<const char *, double>> escalares;
    int filasZ; // rows of the series Z that are present, -1 without it
};

const std::vector<CasoSinFin> SinFin = {
    {"CAL 2 + 3", "   5.0000 ", {}, {}, -1},
    {"SER Z = X", nullptr, {}, {}, 1},
    {"SER Z = 3", nullptr, {}, {}, 10},
    {"SER Z = TEND", nullptr, {}, {}, 10},
    {"SER Z = {M}", nullptr, {}, {}, 2},
    {"ESC A = X", nullptr, {}, {{"A", 5}}, -1},
    {"ESC A = SUMSER(X)", nullptr, {}, {{"A", 5}}, -1},
    {"ESC A = NOBS", nullptr, {}, {{"A", 10}}, -1},
    {"ESC A = X[1990]", nullptr, {}, {{"A", 5}}, -1},
    {"OBS X[1995] = X", nullptr, {{5, 5}}, {}, -1},
    {"SER X = X(-1) * 2",
     nullptr,
     {{1, 10}, {2, 20}, {3, 40}, {4, 80}, {5, 160}, {6, 320}, {7, 640}, {8, 1280}, {9, 2560}},
     {},
     -1},
    {"SER FICTIC X", nullptr, {}, {}, -1},
    {"MUEST 1995 1999", nullptr, {}, {}, -1},
};

void EmpezarSinFin() {
    EmpezarConDatos(TipoAnual, "1990#1999");
    PonerSerie("X", {5});
    PonerMatriz("M", {1, 2}, 2, 1);
    ActualizarMuestra();
    Muestra.FinRegresion = 100000;
}

TEST(Lote, UnaMuestraSinFinAcabaConElArchivo) {
    for (const CasoSinFin &c : SinFin) {
        SCOPED_TRACE(c.texto);
        EmpezarSinFin();
        ASSERT_EQ(Muestra.FinMuestra, 100000);
        ProcesarLote(nullptr, nullptr, 246, c.texto, Muestra.InicioMuestra, Muestra.FinMuestra);
        EXPECT_EQ(Lote.detenido, 0);
        ASSERT_EQ(Prueba.cajas.size(), c.caja != nullptr ? 1u : 0u);
        if (c.caja != nullptr) {
            EXPECT_EQ(Prueba.cajas[0].texto, c.caja);
        }
        std::vector<double> esperada(MaxObservaciones, std::nan(""));
        esperada[0] = 5;
        for (const auto &[fila, valor] : c.x) esperada[static_cast<std::size_t>(fila)] = valor;
        const std::vector<double> x = ValoresDe("X", MaxObservaciones);
        for (std::size_t i = 0; i < x.size(); ++i)
            EXPECT_TRUE(x[i] == esperada[i] || (std::isnan(x[i]) && std::isnan(esperada[i])))
                << i << ": " << x[i];
        for (const auto &[codigo, valor] : c.escalares) EXPECT_EQ(EscalarDe(codigo), valor);
        const std::vector<double> z = ValoresDe("Z", MaxObservaciones);
        EXPECT_EQ(BuscarSerie("Z") >= 0, c.filasZ >= 0);
        EXPECT_EQ(std::count_if(z.begin(), z.end(), [](double v) { return !std::isnan(v); }),
                  std::max(c.filasZ, 0));
    }
}

TEST(Lote, LimitesFueraDeLasTablas) {
    for (const CasoSinFin &c : SinFin)
        for (const int fila : {100000, -1}) {
            SCOPED_TRACE(c.texto);
            EmpezarSinFin();
            ProcesarLote(nullptr, nullptr, 246, c.texto, fila, fila);
            const std::vector<double> x = ValoresDe("X", MaxObservaciones);
            EXPECT_EQ(x[0], 5.0);
            EXPECT_TRUE(std::all_of(x.begin() + 1, x.end(), [](double v) { return std::isnan(v); }));
        }
}

} // namespace
