// The steps of the trace as lines, cells, tables and pages.
#include "charts/resultados/traza_texto.h"

#include "apoyo/plataforma_prueba.h"
#include "charts/resultados/formatos_tabla.h"
#include "language/traza.h"
#include "platform/literal.h"
#include "platform/texto.h"
#include "store/archivo.h"

#include <gtest/gtest.h>

namespace {

PasoTraza Nuevo(ClasesTraza clase, int nivel, const char *destino, const char *formula,
                const char *explicacion) {
    PasoTraza p{};
    p.clase = clase;
    p.nivel = nivel;
    p.sentencia = 0;
    p.destino = destino;
    p.formula = formula;
    p.explicacion = explicacion;
    return p;
}

ValorTraza Numero(double v) {
    return {1, 1, {v}, {}, {}};
}

// The edges of a matrix whose element (i, j) is 100 i + j.
ValorTraza Cuadro(int filas, int columnas) {
    ValorTraza v{filas, columnas, {}, {}, {}};
    for (const int i : LugaresMostrados(filas))
        for (const int j : LugaresMostrados(columnas)) v.valores.push_back(100.0 * i + j);
    return v;
}

void PonerPasos(std::vector<PasoTraza> pasos) {
    ++Traza.corrida;
    Traza.pasos = std::move(pasos);
    Traza.numero = static_cast<std::int64_t>(Traza.pasos.size());
}

// 0 statement, 1 group, 2 matrix, 3 scalar of it, 4 failure, 5 statement.
void PonerEjemplo() {
    EmpezarConDatos(TipoAnual, "1920#1941");
    PasoTraza matriz = Nuevo(TrazaMatriz, 2, "_BETA", "_A$ * _B", "Coeficientes: inversa de X'X por X'y");
    matriz.resultado = {2, 1, {0.1, 2}, {}, {}};
    PasoTraza escalar = Nuevo(TrazaEscalar, 2, "", "_BETA / 3 < 1", "Razón"_w);
    escalar.resultado = Numero(1.0 / 3.0);
    escalar.operandos = {{"_BETA", TrazaMatriz, 2, {}}, {"K", TrazaEscalar, -1, Numero(0.25)}};
    PasoTraza fallo = Nuevo(TrazaMatriz, 2, "_C", "_D", "Otra");
    fallo.fallo = "No existe & no";
    PonerPasos({Nuevo(TrazaSentencia, 0, "", "MC Y 1 X", "Sentencia"),
                Nuevo(TrazaGrupo, 1, "", "MC Y 1 X", "Regresión por mínimos cuadrados"_w), matriz, escalar,
                fallo, Nuevo(TrazaSentencia, 0, "", "ESC A = 1", "Sentencia")});
}

using Cadenas = std::vector<std::string>;

FilasDeTexto EnUtf8(FilasDeTexto filas) {
    for (auto &fila : filas)
        for (std::string &celda : fila) celda = Utf8De1252(celda);
    return filas;
}

} // namespace

TEST(TrazaTexto, Lugares) {
    PonerEjemplo();
    static constexpr int Detras[] = {5, 5, 3, 4, 5, 6}, Encima[] = {-1, 0, 1, 1, 1, -1};
    for (int i = 0; i < 6; ++i) {
        EXPECT_EQ(DetrasDelPaso(i), Detras[i]) << i;
        EXPECT_EQ(PasoDeEncima(i), Encima[i]) << i;
    }
    EXPECT_EQ(SentenciaEnTraza("  MC Y 1 X "), 0);
    EXPECT_EQ(SentenciaEnTraza("ESC B = 1"), 5);
    EXPECT_EQ(SentenciaEnTraza(""), 5);
    PonerPasos({});
    EXPECT_EQ(SentenciaEnTraza("MC Y 1 X"), -1);
}

TEST(TrazaTexto, RotulosYResumenes) {
    PonerEjemplo();
    static constexpr const char *Rotulos[] = {"MC Y 1 X",         "Regresión por mínimos cuadrados",
                                              "_BETA = _A$ * _B", "_BETA / 3 < 1",
                                              "_C = _D",          "ESC A = 1"};
    static constexpr const char *Resumenes[] = {"", "", "2 x 1", "0.333333", "Fallo", ""};
    for (int i = 0; i < 6; ++i) {
        EXPECT_EQ(Utf8De1252(RotuloDePaso(i)), Rotulos[i]);
        EXPECT_EQ(ResumenDePaso(i), Resumenes[i]);
    }
}

TEST(TrazaTexto, Buscar) {
    PonerEjemplo();
    static constexpr struct {
        const char *texto;
        int desde;
        bool haciaDelante;
        int hallado;
    } Casos[] = {
        {"mc y", -1, true, 0},
        {"mc y", 0, true, 1},
        {"mc y", 1, true, 0},
        {"mc y", 0, false, 1},
        {"_beta", -1, true, 2},
        {"_beta", 2, true, 3},
        {"_beta", -1, false, 3},
        {"RAZÓN"_w, -1, true, 3},
        {"nada", -1, true, -1},
        {"  ", -1, true, -1},
        {"ESC", 5, true, 5},
        // As it stands in a row.
        {"_beta = _A$", -1, true, 2},
    };
    for (const auto &c : Casos)
        EXPECT_EQ(BuscarEnTraza(c.texto, c.desde, c.haciaDelante), c.hallado) << c.texto << " " << c.desde;
    PonerPasos({});
    EXPECT_EQ(BuscarEnTraza("MC", -1, true), -1);
}

// Numbers of a usual size have no exponent; the summary has six digits, or all of those of a number with no more.
TEST(TrazaTexto, Numeros) {
    static constexpr struct {
        double valor;
        const char *entero, *resumen;
    } Casos[] = {
        {0, "0", "0"},
        {100000, "100000", "100000"},
        {-250000, "-250000", "-250000"},
        {1000000, "1000000", "1000000"},
        {1234567.5, "1234567.5", "1.23457e+06"},
        {999999999999999, "999999999999999", "1e+15"},
        {1e15, "1e+15", "1e+15"},
        {-2.5e300, "-2.5e+300", "-2.5e+300"},
        {0.1, "0.1", "0.1"},
        {0.00012, "0.00012", "0.00012"},
        {1e-5, "0.00001", "0.00001"},
        {9e-6, "9e-06", "9e-06"},
        {1.0 / 3.0, "0.3333333333333333", "0.333333"},
    };
    for (const auto &c : Casos) {
        PasoTraza p = Nuevo(TrazaMatriz, 0, "M", "f", "e");
        p.resultado = Numero(c.valor);
        PonerPasos({p});
        EXPECT_EQ(FilasDelResultado(0), (FilasDeTexto{{c.entero}}));
        EXPECT_EQ(ResumenDePaso(0), c.resumen);
        EXPECT_NE(TablaDePaso(0).find("\n" + std::string(c.entero) + "\n"), std::string::npos);
        EXPECT_NE(TextoDeTraza().find(" " + std::string(c.entero) + "\n"), std::string::npos);
    }
}

// What leaves the window says how many steps were not kept.
TEST(TrazaTexto, LosQueNoSeGuardan) {
    PonerEjemplo();
    static constexpr const char *Demas = "Se han hecho otros 10004 pasos, que no se guardan";
    EXPECT_EQ(PasosSinGuardar(), "");
    Traza.numero += 10004;
    EXPECT_EQ(PasosSinGuardar(), Demas);
    EXPECT_TRUE(TextoDeTraza().starts_with(std::string(Demas) + "\nMC Y 1 X\n"));
    EXPECT_NE(PaginaDeTraza().find("<p>" + std::string(Demas) + "</p>"), std::string::npos);
    // They come behind the last statement, not in the first one.
    EXPECT_TRUE(TablaDePaso(5).ends_with("\n\t\t\t" + std::string(Demas) + "\t\n"));
    EXPECT_EQ(TablaDePaso(0).find(Demas), std::string::npos);
    Traza.numero = 7;
    EXPECT_EQ(PasosSinGuardar(), "Se ha hecho otro paso, que no se guarda");
}

TEST(TrazaTexto, CeldasDeUnaMatriz) {
    PasoTraza p = Nuevo(TrazaMatriz, 0, "M", "f", "e");
    p.resultado = Cuadro(2, 3);
    PonerPasos({p});
    EXPECT_EQ(FilasDelResultado(0), (FilasDeTexto{{"0", "1", "2"}, {"100", "101", "102"}}));
    // Five rows from each end of eleven, five columns from each end of twelve.
    p.resultado = Cuadro(11, 12);
    PonerPasos({p});
    const FilasDeTexto filas = EnUtf8(FilasDelResultado(0));
    ASSERT_EQ(filas.size(), 11u);
    EXPECT_EQ(filas[0], (Cadenas{"0", "1", "2", "3", "4", "…", "7", "8", "9", "10", "11"}));
    EXPECT_EQ(filas[4][0], "400");
    EXPECT_EQ(filas[5], Cadenas(11, "…"));
    EXPECT_EQ(filas[6][0], "600");
    EXPECT_EQ(filas[10],
              (Cadenas{"1000", "1001", "1002", "1003", "1004", "…", "1007", "1008", "1009", "1010", "1011"}));
    p.resultado = {};
    PonerPasos({p});
    EXPECT_TRUE(FilasDelResultado(0).empty());
}

TEST(TrazaTexto, CeldasDeUnaSerie) {
    EmpezarConDatos(TipoAnual, "1920#1941");
    PasoTraza p = Nuevo(TrazaSerie, 0, "S", "f", "e");
    p.resultado = {3, 1, {0.1, 2, 3}, "1921", "1923"};
    PonerPasos({p});
    EXPECT_EQ(FilasDelResultado(0), (FilasDeTexto{{"1921", "0.1"}, {"1922", "2"}, {"1923", "3"}}));
    // A missing value among them: only those of the ends are known.
    p.resultado = {3, 1, {1, 2, 3}, "1921", "1924"};
    PonerPasos({p});
    EXPECT_EQ(FilasDelResultado(0), (FilasDeTexto{{"1921", "1"}, {"", "2"}, {"1924", "3"}}));
    p.resultado = {21, 1, {1, 2, 3, 4, 5, 17, 18, 19, 20, 21}, "1921", "1941"};
    PonerPasos({p});
    const FilasDeTexto filas = EnUtf8(FilasDelResultado(0));
    ASSERT_EQ(filas.size(), 11u);
    EXPECT_EQ(filas[4], (Cadenas{"1925", "5"}));
    EXPECT_EQ(filas[5], (Cadenas{"…", "…"}));
    EXPECT_EQ(filas[6], (Cadenas{"1937", "17"}));
    EXPECT_EQ(filas[10], (Cadenas{"1941", "21"}));
    // Of another work file, whose periods are no longer there.
    p.resultado.primerPeriodo = "1890.1";
    PonerPasos({p});
    EXPECT_EQ(FilasDelResultado(0)[0], (Cadenas{"1890.1", "1"}));
    EXPECT_EQ(FilasDelResultado(0)[1], (Cadenas{"", "2"}));
}

TEST(TrazaTexto, Tablas) {
    PonerEjemplo();
    EXPECT_EQ(Utf8De1252(TablaDePaso(2)), "Paso\t_BETA = _A$ * _B\n"
                                          "Explicación\tCoeficientes: inversa de X'X por X'y\n"
                                          "\n0.1\n2\n");
    EXPECT_EQ(Utf8De1252(TablaDePaso(4)), "Paso\t_C = _D\nExplicación\tOtra\nFallo\tNo existe & no\n");
    EXPECT_EQ(Utf8De1252(TablaDePaso(0)), "Nivel\tDestino\tFórmula\tExplicación\tResultado\n"
                                          "0\t\tMC Y 1 X\tSentencia\t\n"
                                          "1\t\tMC Y 1 X\tRegresión por mínimos cuadrados\t\n"
                                          "2\t_BETA\t_A$ * _B\tCoeficientes: inversa de X'X por X'y\t2 x 1\n"
                                          "2\t\t_BETA / 3 < 1\tRazón\t0.3333333333333333\n"
                                          "2\t_C\t_D\tOtra\tNo existe & no\n");
    EXPECT_EQ(TablaEnTexto(TablaDePaso(2), ComaDecimal),
              "Paso\t_BETA = _A$ * _B\nExplicación\tCoeficientes: inversa de X'X por X'y\n\n0,1\n2\n"_w);
}

TEST(TrazaTexto, Lineas) {
    PonerEjemplo();
    EXPECT_EQ(Utf8De1252(TextoDeTraza()), "MC Y 1 X\n"
                                          "  Regresión por mínimos cuadrados\n"
                                          "    _BETA = _A$ * _B\n"
                                          "      Coeficientes: inversa de X'X por X'y\n"
                                          "      Matriz de 2 x 1\n"
                                          "        0.1\n"
                                          "        2\n"
                                          "    _BETA / 3 < 1\n"
                                          "      Razón\n"
                                          "        0.3333333333333333\n"
                                          "    _C = _D\n"
                                          "      Otra\n"
                                          "      Fallo: No existe & no\n"
                                          "ESC A = 1\n");
    PonerPasos({});
    EXPECT_EQ(TextoDeTraza(), "");
}

TEST(TrazaTexto, ParteDeUnaPagina) {
    PonerEjemplo();
    const std::string escalar = Utf8De1252(HtmlDePaso(3, "paso:"));
    for (const char *parte :
         {"<h2>Razón</h2>", "<p class=\"formula\">_BETA / 3 &lt; 1</p>", "<a href=\"paso:2\">_BETA</a>",
          "Coeficientes: inversa de X'X por X'y", "<b>K</b>", "0.25", "0.3333333333333333"})
        EXPECT_NE(escalar.find(parte), std::string::npos) << parte << "\n" << escalar;
    EXPECT_NE(HtmlDePaso(4, "paso:").find("<p class=\"fallo\">Fallo: No existe &amp; no</p>"),
              std::string::npos);
    EXPECT_EQ(HtmlDePaso(4, "paso:").find("Resultado"), std::string::npos);
    // A statement leads to all the steps below it, down to the formulas.
    const std::string sentencia = HtmlDePaso(0, "paso:");
    for (const char *enlace : {"paso:1\"", "paso:2\"", "paso:3\"", "paso:4\""})
        EXPECT_NE(sentencia.find(enlace), std::string::npos) << enlace;
    EXPECT_EQ(sentencia.find("paso:5\""), std::string::npos);
}

// The element that is marked, behind a cut too; one that isn't shown marks nothing.
TEST(TrazaTexto, ElElegido) {
    static constexpr struct {
        ClasesTraza clase;
        int filas, columnas, elemento;
        const char *celda;
    } Casos[] = {
        {TrazaMatriz, 3, 1, 1, "100"},   {TrazaMatriz, 1, 3, 2, "2"},   {TrazaMatriz, 12, 1, 11, "1100"},
        {TrazaMatriz, 2, 12, 23, "111"}, {TrazaMatriz, 12, 1, 5, ""},   {TrazaMatriz, 3, 1, -1, ""},
        {TrazaMatriz, 3, 1, 3, ""},      {TrazaSerie, 12, 1, 7, "700"}, {TrazaSerie, 12, 1, 5, ""},
    };
    for (const auto &c : Casos) {
        PasoTraza p = Nuevo(c.clase, 0, "M", "f", "e");
        p.resultado = Cuadro(c.filas, c.columnas);
        PonerPasos({p});
        const std::string r = HtmlDePaso(0, "", c.elemento), marca = "class=\"elegido\">";
        const std::size_t desde = r.find(marca);
        const std::string celda =
            desde == std::string::npos
                ? ""
                : r.substr(desde + marca.size(), r.find('<', desde) - desde - marca.size());
        EXPECT_EQ(celda, c.celda) << c.filas << " x " << c.columnas << ": " << c.elemento;
    }
}

TEST(TrazaTexto, Pagina) {
    PonerEjemplo();
    const std::string pagina = Utf8De1252(PaginaDeTraza());
    EXPECT_TRUE(pagina.starts_with("<!DOCTYPE html>"));
    EXPECT_NE(pagina.find("charset=\"utf-8\""), std::string::npos);
    EXPECT_NE(pagina.find("<h1>Cómo se calcula</h1>"), std::string::npos);
    // Each link of the page has its place there.
    for (std::size_t i = pagina.find("href=\"#"); i != std::string::npos;
         i = pagina.find("href=\"#", i + 1)) {
        const std::string destino = pagina.substr(i + 7, pagina.find('"', i + 7) - i - 7);
        EXPECT_NE(pagina.find("id=\"" + destino + "\""), std::string::npos) << destino;
    }
    PonerPasos({});
}
