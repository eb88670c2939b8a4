// The help pages teach what the program does: every example in them runs, and what they say of results holds.
#include "datos_ayuda.h"

#include "apoyo/plataforma_prueba.h"
#include "language/lote_sentencias.h"
#include "platform/numeros.h"
#include "platform/texto.h"
#include "shell/ayuda.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

std::string PrimeraPalabra(std::string_view linea) {
    const std::size_t i = linea.find_first_not_of(' ');
    return i == std::string_view::npos ? "" : std::string(linea.substr(i, linea.find(' ', i) - i));
}

// The statements of a page's examples; a block is one of them, with all its lines.
std::vector<std::string> EjemplosDe(const PaginaManual &pagina) {
    std::vector<std::string> r;
    std::string cierre; // the word that ends the block being read
    for (const LineaAyuda *l = pagina.lineas; l->texto != nullptr; ++l) {
        if (l->tipo != LineaDeEjemplo) continue;
        const std::string linea = Utf8De1252(l->texto), palabra = PrimeraPalabra(linea);
        if (!cierre.empty()) {
            r.back() += "\r\n" + linea;
            if (palabra == cierre) cierre.clear();
            continue;
        }
        r.push_back(linea.substr(linea.find_first_not_of(' ')));
        if (palabra == "REPITE" || palabra == "MIENTRAS" || palabra == "SI") cierre = "FIN" + palabra;
    }
    EXPECT_EQ(cierre, "") << pagina.id;
    return r;
}

// Examples that want another type of data than years.
struct ExcepcionDeTipo {
    const char *comienzo;
    int tipo;
};
constexpr ExcepcionDeTipo Tipos[] = {
    {"REPITE J DESDE 1998.1", Trimestrales}, {"MUEST 10 50", 0},
    {"MUEST 1995.1 1996.4", Trimestrales},   {"MUEST 1995.01 1996.12", Mensuales},
    {"MUEST 1990-1 1992-3", DePanel},
};

int TipoDe(std::string_view sentencia) {
    for (const ExcepcionDeTipo &e : Tipos)
        if (sentencia.starts_with(e.comienzo)) return e.tipo;
    return Anuales;
}

// "CAL 2 + 3 * 4   ; 14": the number behind the semicolon is what the box shows.
void ComprobarResultado(std::string_view sentencia) {
    const std::size_t puntoYComa = sentencia.find(';');
    if (!sentencia.starts_with("CAL ") || puntoYComa == std::string_view::npos) return;
    const double esperado = std::strtod(std::string(sentencia.substr(puntoYComa + 1)).c_str(), nullptr);
    ASSERT_EQ(Prueba.cajas.size(), 1u);
    EXPECT_EQ(Prueba.cajas[0].texto, Formatear(" %8.4f ", esperado));
}

// CGQ stops whatever stands behind it, also when all was well.
bool DetieneElProceso(std::string_view texto) {
    return texto.find("CGQ (") != texto.npos;
}

void ProcesarEjemplo(const std::string &sentencia) {
    Prueba.cajas.clear();
    const bool bien = Procesar(sentencia);
    EXPECT_EQ(bien, !DetieneElProceso(sentencia));
    for (const CajaVista &c : Prueba.cajas)
        EXPECT_TRUE(c.titulo == "Resultado" || c.texto == "¿Desea ver la regresion?")
            << c.titulo << ": " << c.texto;
    ComprobarResultado(sentencia);
}

// Runs the examples of a page one behind the other, as a reader would.
void ProcesarPagina(int id) {
    const PaginaManual *pagina = BuscarPagina(id);
    ASSERT_NE(pagina, nullptr);
    EmpezarPagina();
    for (const std::string &sentencia : EjemplosDe(*pagina)) {
        SCOPED_TRACE(sentencia);
        const int tipo = TipoDe(sentencia);
        if (tipo != Anuales) EmpezarPagina(tipo);
        ProcesarEjemplo(sentencia);
        if (tipo != Anuales) EmpezarPagina();
    }
}

TEST(EjemplosAyuda, TodosSeProcesan) {
    int ejemplos = 0;
    for (const PaginaManual &p : PaginasManual()) {
        SCOPED_TRACE(p.id);
        ejemplos += static_cast<int>(EjemplosDe(p).size());
        ProcesarPagina(p.id);
    }
    EXPECT_GT(ejemplos, 100);
}

// The examples that stand together on a page, as a reader copies them: with the blanks in front and in one selection.
std::vector<std::string> GruposDe(const PaginaManual &pagina) {
    std::vector<std::string> r;
    bool seguido = false;
    for (const LineaAyuda *l = pagina.lineas; l->texto != nullptr; ++l) {
        if (l->tipo == LineaDeEjemplo) {
            if (!seguido) r.emplace_back();
            r.back() += "    " + Utf8De1252(l->texto) + "\n";
        }
        seguido = l->tipo == LineaDeEjemplo;
    }
    return r;
}

void ProcesarGrupo(const std::string &grupo) {
    SCOPED_TRACE(grupo);
    Prueba.cajas.clear();
    EXPECT_EQ(Procesar(grupo), !DetieneElProceso(grupo));
    for (const CajaVista &c : Prueba.cajas)
        EXPECT_TRUE(c.titulo == "Resultado" || c.texto == "¿Desea ver la regresion?") << c.texto;
}

int TipoDeGrupo(std::string_view grupo) {
    return TipoDe(grupo.substr(grupo.find_first_not_of(' ')));
}

TEST(EjemplosAyuda, TambienComoSeCopian) {
    int grupos = 0;
    for (const PaginaManual &p : PaginasManual()) {
        SCOPED_TRACE(p.id);
        EmpezarPagina();
        for (const std::string &grupo : GruposDe(p)) {
            const int tipo = TipoDeGrupo(grupo);
            if (tipo != Anuales) EmpezarPagina(tipo);
            ProcesarGrupo(grupo);
            if (tipo != Anuales) EmpezarPagina();
            ++grupos;
        }
    }
    EXPECT_GT(grupos, 50);
}

// Deletes the matrices behind the first `quedan` that are no results of a regression, and notes their codes.
void RetirarMatrices(int quedan, std::vector<std::string> &retiradas) {
    for (int m = TablaMatrices.numero - 1; m >= quedan; --m) {
        if (TablaMatrices.registro[m].Codigo[0] == '_') continue;
        retiradas.emplace_back(TablaMatrices.registro[m].Codigo);
        BorrarMatriz(nullptr, m);
    }
}

// One work file serves for the whole manual: no page gives a code to another kind of thing than a page before. The
// matrices make room for a consistent covariance matrix, which takes 23 of the 30 while it is computed.
TEST(EjemplosAyuda, TodasLasPaginasSeguidas) {
    EmpezarPagina();
    const int dePartida = TablaMatrices.numero;
    std::vector<std::string> retiradas;
    for (const PaginaManual &p : PaginasManual()) {
        SCOPED_TRACE(p.id);
        for (const std::string &grupo : GruposDe(p)) {
            if (grupo.find("(CH)") != grupo.npos) RetirarMatrices(dePartida, retiradas);
            if (TipoDeGrupo(grupo) == Anuales) ProcesarGrupo(grupo);
        }
        Procesar("MUEST 1980 1999"); // as every page supposes
        for (const std::string &codigo : retiradas)
            EXPECT_TRUE(BuscarSerie(codigo) < 0 && BuscarEscalar(codigo) < 0) << codigo;
    }
}

// Every statement word of the language has an example, and so has every function.
TEST(EjemplosAyuda, TodasLasPalabras) {
    std::string todo;
    for (const PaginaManual &p : PaginasManual())
        for (const std::string &s : EjemplosDe(p)) todo += "\n" + s;
    for (const char *palabra :
         {"AES ",      "AED ",      "SER ",      "CAL ",  "ESC ",        "MAT ",        "MC ",    "MC (CH)",
          "MC (CA 2)", "CR ",       "CWH ",      "MCP ",  "OBS ",        "SER FICTIC ", "CWA",    "CHN IR",
          "CHN MR",    "CHN FR",    "CGQ ",      "CRA ",  "CDU",         "VSR NO",      "VSR SI", "REPITE ",
          "SALTA ",    "FINREPITE", "MIENTRAS ", "ENUM",  "FINMIENTRAS", "SI (",        "SINO",   "FINSI",
          "ROMPE",     "CONTINUA",  "MUEST ",    "GRAF ", "HIST ",       "DECI "})
        EXPECT_NE(todo.find(palabra), std::string::npos) << palabra;
    for (const char *funcion :
         {"LOG(",    "LN(",     "RCUAD(", "ABS(",  "EXP(",   "POT(",   "TEND",   "PROG(",  "SUMSER(",
          "MEDSER(", "DESSER(", "RNDN",   "NOT(",  "PROBT(", "PROBF(", "PROBN(", "PROBC(", " AND ",
          " OR ",    "DET(",    "ESCAL(", "DIAG(", "VECT(",  "RCMT(",  "NFILA(", "NOBS"})
        EXPECT_NE(todo.find(funcion), std::string::npos) << funcion;
}

// What stands in the tables of functions without an example of its own runs too.
TEST(EjemplosAyuda, FuncionesSinEjemplo) {
    constexpr struct {
        const char *formula;
        double valor;
    } Casos[] = {
        {"MAXSER(EDAD)", 67},
        {"MINSER(EDAD)", 19},
        {"NREG(X)", 2},
        {"NCOLU(X)", 2},
        {"SUMA(A)", 7},
        {"TRAZA(A)", 5},
        {"MAX(A)", 3},
        {"MIN(A)", 1},
        {"DET(A)", 5},
        {"LNDET(A)", 1.6094},
        {"SUMA(LNMT(V))", 2.7726},
        {"SUMA(RCMT(V))", 5.8284},
        {"NFILA(X)", 4},
    };
    EmpezarPagina();
    for (const auto &c : Casos) {
        SCOPED_TRACE(c.formula);
        Prueba.cajas.clear();
        EXPECT_TRUE(Procesar(std::string("CAL ") + c.formula));
        EXPECT_EQ(TextosDeCajas(), std::vector<std::string>{Formatear(" %8.4f ", c.valor)});
    }
}

// Values that the examples leave, where the page says what they are: name, row, value.
struct ValorDejado {
    int pagina;
    const char *codigo;
    int fila;
    double valor;
};

TEST(EjemplosAyuda, ValoresQueDejan) {
    constexpr double Missing = NAN;
    const ValorDejado Casos[] = {
        {1130, "T", 0, 1},
        {1130, "T", 19, 20},
        {1130, "PARES", 4, 10},
        {1130, "CAPITAL", 2, 110.25},
        {1131, "PRECIO", 10, 100},
        {1131, "PRECIO", 11, 105},
        {1131, "CRECIM", 0, Missing},
        {1218, "SEXO0", 0, 0},
        {1218, "SEXO1", 0, 1},
        {1218, "ESTUD1", 0, 1},
        {1218, "ESTUD2", 1, 1},
        {1218, "ESTUD3", 19, 0},
        {1218, "ESCALON", 9, 0},
        {1218, "ESCALON", 10, 1},
        {1217, "JOVEN", 0, 1},
        {1217, "MAYOR", 3, 1},
        {1217, "ACTIVO", 3, 0},
        {1217, "BASICOS", 0, 1},
        {1217, "GRUPO", 0, 1},
        {1217, "GRUPO", 1, 0},
        {1127, "BASE90", 10, 100},
        {1193, "RENTA2", 1, Missing},
        {1193, "RENTA2", 2, 60},
        {1223, "AR3", 0, 100},
        {1223, "AR3", 1, 80},
        {1223, "AR3", 2, 66},
    };
    int ultima = 0;
    for (const ValorDejado &c : Casos) {
        SCOPED_TRACE(std::string(c.codigo) + " de " + std::to_string(c.pagina));
        if (c.pagina != ultima) ProcesarPagina(c.pagina);
        ultima = c.pagina;
        const double valor = ValoresDe(c.codigo, Filas)[static_cast<std::size_t>(c.fila)];
        if (std::isnan(c.valor))
            EXPECT_TRUE(std::isnan(valor)) << valor;
        else
            EXPECT_NEAR(valor, c.valor, 1e-9);
    }
}

// The autoregressive series are what their recurrence gives.
TEST(EjemplosAyuda, SeriesAutorregresivas) {
    ProcesarPagina(1223);
    const std::vector<double> u = ValoresDe("RUIDO", Filas), a = ValoresDe("AR1", Filas),
                              b = ValoresDe("AR2", Filas);
    EXPECT_DOUBLE_EQ(a[0], u[0]);
    for (std::size_t t = 1; t < Filas; ++t) EXPECT_NEAR(a[t], 0.7 * a[t - 1] + u[t], 1e-12) << t;
    EXPECT_DOUBLE_EQ(b[1], u[1]);
    for (std::size_t t = 2; t < Filas; ++t)
        EXPECT_NEAR(b[t], 0.5 * b[t - 1] + 0.3 * b[t - 2] + u[t], 1e-12) << t;
}

// A lagged series in SER has the data from before the statement; REPITE and the recursive form have the new ones.
TEST(EjemplosAyuda, RetardosYRepeticion) {
    const std::vector<std::string> e = EjemplosDe(*BuscarPagina(1222));
    ASSERT_EQ(e.size(), 6u);
    EmpezarPagina();
    for (int i = 0; i < 3; ++i) ProcesarEjemplo(e[static_cast<std::size_t>(i)]);
    const std::vector<double> u = ValoresDe("RUIDO", Filas);
    std::vector<double> z = ValoresDe("Z", Filas);
    EXPECT_TRUE(std::isnan(z[0]));
    for (std::size_t t = 1; t < Filas; ++t) EXPECT_NEAR(z[t], 0.7 * u[t - 1] + u[t], 1e-12) << t;
    ProcesarEjemplo(e[3]);
    ProcesarEjemplo(e[4]);
    z = ValoresDe("Z", Filas);
    for (std::size_t t = 1; t < Filas; ++t) EXPECT_NEAR(z[t], 0.7 * z[t - 1] + u[t], 1e-12) << t;
    ProcesarEjemplo(e[5]);
    z = ValoresDe("Z", Filas);
    for (std::size_t t = 1; t < Filas; ++t) EXPECT_NEAR(z[t], 0.7 * z[t - 1] + 10, 1e-9) << t;
}

TEST(EjemplosAyuda, RepitePorTrimestres) {
    EmpezarPagina(Trimestrales);
    ProcesarEjemplo(EjemplosDe(*BuscarPagina(1190))[0]);
    const std::vector<double> indice = ValoresDe("INDICE", Filas);
    for (std::size_t t = 0; t < Filas; ++t) EXPECT_NEAR(indice[t], t < 12 ? 100 : 105, 1e-9) << t;
}

// The regression of the page on matrices gives the coefficients of MC.
TEST(EjemplosAyuda, RegresionPasoAPaso) {
    ProcesarPagina(1129);
    int filas = 0, columnas = 0;
    const std::vector<double> beta = MatrizDe("BETA", filas, columnas);
    ASSERT_TRUE(Procesar("VSR NO\r\nMC CONSUMO 1 RENTA PRECIO"));
    const std::vector<double> mc = MatrizDe("_BETA", filas, columnas);
    ASSERT_EQ(beta.size(), 3u);
    ASSERT_EQ(mc.size(), 3u);
    for (std::size_t i = 0; i < 3; ++i) EXPECT_NEAR(beta[i], mc[i], 1e-6);
}

// The statements MUEST of the page and the periods that they take in.
TEST(EjemplosAyuda, MuestrasDeLaPagina) {
    constexpr struct {
        const char *sentencia, *primero, *ultimo;
    } Casos[] = {
        {"MUEST 10 50", "10", "50"},
        {"MUEST 1980 1999", "1980", "1999"},
        {"MUEST 1995.1 1996.4", "1995.1", "1996.4"},
        {"MUEST 1995.01 1996.12", "1995.01", "1996.12"},
        {"MUEST 1990-1 1992-3", "1990-1", "1992-3"},
        {"MUEST 0 0", "1980", "1999"},
    };
    const std::vector<std::string> ejemplos = EjemplosDe(*BuscarPagina(PaginaMuestra));
    ASSERT_EQ(ejemplos.size(), std::size(Casos));
    for (std::size_t i = 0; i < std::size(Casos); ++i) {
        SCOPED_TRACE(Casos[i].sentencia);
        EXPECT_EQ(ejemplos[i], Casos[i].sentencia);
        EmpezarPagina(TipoDe(ejemplos[i]));
        ProcesarEjemplo(ejemplos[i]);
        EXPECT_EQ(TextoPeriodo(Muestra.InicioMuestra), Casos[i].primero);
        EXPECT_EQ(TextoPeriodo(Muestra.FinMuestra), Casos[i].ultimo);
    }
}

// Two formulas that a page says to be the same.
TEST(EjemplosAyuda, FormulasIguales) {
    constexpr struct {
        int pagina;
        const char *una, *otra;
    } Casos[] = {
        {1138, "SUMSER(RENTA * PRECIO ** 2)", "SUMSER((RENTA * PRECIO) ** 2)"},
        {1130, "SUMSER(TEND)", "SUMSER(TEND(1,1))"},
        {1130, "EXP(0)", "0"},
        {1127, "B[1,2]", "2"}, // B is 4 0 by 2 1
        {1127, "B[2,1]", "0"},
        {1127, "V[4,1]", "4"},
        {1132, "PROBT(-2,10)", "PROBT(2,10)"},
        {1217, "SUMSER(EDAD > 30 + 10)", "SUMSER((EDAD > 30) + 10)"},
        {1217, "SUMSER(16 < EDAD < 65)", "SUMSER((16 < EDAD) < 65)"},
        {1192, "SUMA(A + B A)", "SUMA((A + B) A)"},
        {1197, "5 / 0.0000001", "0"},
    };
    for (const auto &c : Casos) {
        SCOPED_TRACE(c.una);
        EmpezarPagina();
        EXPECT_TRUE(Procesar(std::string("CAL ") + c.una + "\r\nCAL " + c.otra));
        ASSERT_EQ(Prueba.cajas.size(), 2u);
        EXPECT_EQ(Prueba.cajas[0].texto, Prueba.cajas[1].texto);
    }
}

// Without limits a regression cuts the sample of what is processed next to as many observations as regressors.
TEST(EjemplosAyuda, LaRegresionAcortaLaMuestraSinAcotar) {
    EmpezarPagina();
    ASSERT_TRUE(Procesar("MUEST 0 0\r\nVSR NO\r\nMC CONSUMO 1 RENTA PRECIO"));
    ActualizarMuestra();
    EXPECT_EQ(TextoPeriodo(Muestra.InicioMuestra), "1980");
    EXPECT_EQ(TextoPeriodo(Muestra.FinMuestra), "1982");
}

TEST(EjemplosAyuda, DeciQuitaLosDecimales) {
    EmpezarPagina();
    Lote.DecimalesSalida = 4;
    EXPECT_TRUE(Procesar("DECI 3"));
    EXPECT_EQ(Lote.DecimalesSalida, 0);
}

// What stands behind a decimal comma isn't read.
TEST(EjemplosAyuda, ComaDecimal) {
    EmpezarConDatos(TipoAnual, "1980#1999");
    EXPECT_TRUE(Procesar("CAL 3,5"));
    ASSERT_EQ(Prueba.cajas.size(), 1u);
    EXPECT_EQ(LeerDecimal(Prueba.cajas[0].texto), 3.0);
}

// What the pages say doesn't work, or works in another way than one would think: page, text, the first box.
struct Advertencia {
    int pagina;
    const char *texto;
    const char *caja; // "" when it stops with no box, null for a box that only shows the text
};

constexpr Advertencia Advertencias[] = {
    {1194, "; un comentario (abierto", "Número inadecuado de paréntesis"},
    {1194, "CAL 2 + 3 * 4 ; uno + dos", "Función desconocida [DOS]"},
    {1138, "SER Z = RENTA + 2 * -3", nullptr},
    {1138, "SER AÑO = 2", "Punto 36, Nombre no válido"},
    {1138, "SER LN = 2", "Punto 36, Nombre no válido"},
    {1138, "SER NUEVELET9 = 2", "Punto 36, Nombre no válido"},
    {1197, "SER Z = +RENTA", "SER Z = +RENTA. Pto 1129"},
    {1197, "SER A = 2", ""},
    {1127, "SER Z = RND(1)", "SER Z = RND(1). Pto 131"},
    {1127, "SER Z = PRECIO[1990 + 1]", "SER Z = PRECIO[1990 + 1]. Pto 88"},
    {1127, "SER Z = PRECIO[1990-1]", "SER Z = PRECIO[1990-1]. Pto 88"},
    {1217, "SER Z = EDAD<=30", "Función desconocida [EDAD@]"},
    {1131, "OBS NOHAY[1990] = 3", ""},
    {1192, "MAT Z = A + 3", "Secuencia no correcta: [+],1. Pto 21"},
    {1192, "MAT Z = -A", "Secuencia no correcta. Pto 18"},
    {1192, "MAT Z = A (B)", "Error en secuencia. Pto 53"},
    {1129, "MAT Z = 2 * DIAG(V)", "Secuencia no correcta. Pto 14"},
    {1129, "MAT Z = {LN(RENTA)}", "Secuencia desconocida: [LN]. Pto 23"},
    {1129, "SER Z = RENTA(-1)\r\nMAT D = {Z}", "Existen valores missing. Pto 62"},
    {1191, "SER Z = RENTA(-1)\r\nMC CONSUMO 1 Z", "Existen valores missing. Pto 62"},
    {1129, "MAT Z = {-1 RENTA}", "Secuencia desconocida: [-]. Pto 23"},
    {1193, "ESC RENTA = 2", "Error en la generación de escalares"},
    {1190, "REPITE J DESDE 1 HASTA 2\r\nREPITE K DESDE 1 HASTA 2\r\nFINREPITE\r\nFINREPITE",
     "Sintaxis no adecuada: [REPITE]: REPITE K DESDE 1 HASTA 2. Pto 6"},
    {1190, "REPITE J DESDE 1 HASTA 2\r\nSER Z = POT(EDAD,J)\r\nFINREPITE", "Función desconocida [J]"},
    {1135, "MIENTRAS (1 > (0 + 0)) ENTONCES\r\nESC I = 1\r\nFINMIENTRAS", "Número inadecuado de paréntesis"},
    {1190, "REPITE J DESDE 1 HASTA 2\r\nVSR NO\r\nFINREPITE", "Sintaxis no adecuada: [VSR]: VSR NO. Pto 6"},
    {1135, "ESC I = 5\r\nMIENTRAS (I < 3) ENTONCES\r\nESC I = I + 1\r\nFINMIENTRAS",
     "No es una comparación válida. Pto 8"},
    {1136, "SI (1 >= 1) ENTONCES\r\nESC I = 1\r\nFINSI", "Número inadecuado de paréntesis"},
};

TEST(EjemplosAyuda, AdvertenciasCiertas) {
    for (const Advertencia &a : Advertencias) {
        SCOPED_TRACE(a.texto);
        EmpezarPagina();
        EXPECT_FALSE(Procesar(a.texto));
        if (a.caja == nullptr) {
            EXPECT_FALSE(Prueba.cajas.empty());
        } else if (*a.caja == '\0') {
            EXPECT_TRUE(Prueba.cajas.empty());
        } else {
            ASSERT_FALSE(Prueba.cajas.empty());
            EXPECT_EQ(Prueba.cajas[0].texto, a.caja);
        }
    }
}

} // namespace
