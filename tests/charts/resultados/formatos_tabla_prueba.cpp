// A result's table in the forms of documents: HTML, LaTeX, Markdown, CSV.
#include "charts/resultados/formatos_tabla.h"

#include "platform/literal.h"
#include "platform/texto.h"

#include <gtest/gtest.h>

#include <string>

namespace {

// The head of a report, its coefficients and a statistic; the constant is called "1".
constexpr const char *Regresion = "Variable Dep.\tCONS_1\n"
                                  "Muestra\t1990.1\t1994.4\n"
                                  "Nº Observaciones\t20\n"
                                  "\n"
                                  "Regresores\tCoeficiente\tProb>|t|\n"
                                  "1\t-16.25\t1e-05\n"
                                  "A&B\t0.5\t0.75\n"
                                  "\n"
                                  "R Cuadrado\t0.98\n";

std::string En1252(const char *utf8) {
    return Texto1252DeUtf8(utf8);
}

std::size_t Veces(const std::string &texto, const std::string &trozo) {
    std::size_t n = 0;
    for (std::size_t i = texto.find(trozo); i != std::string::npos; i = texto.find(trozo, i + 1)) ++n;
    return n;
}

struct CasoDeTexto {
    const char *tabla, *esperada;
};

} // namespace

TEST(FormatosTabla, LatexDeUnaRegresion) {
    EXPECT_EQ(Utf8De1252(TablaEnLatex(En1252("Mínimos & cía."), En1252(Regresion), PuntoDecimal)),
              R"(% \usepackage{booktabs}
\begin{table}[htbp]
  \centering
  \caption{Mínimos \& cía.}
  \begin{tabular}{lrr}
    \toprule
    Variable Dep. & CONS\_1 &  \\
    Muestra & 1990.1 & 1994.4 \\
    Nº Observaciones & 20 &  \\
    \midrule
    Regresores & Coeficiente & Prob\textgreater{}\textbar{}t\textbar{} \\
    \midrule
    1 & $-$16.25 & 1e-05 \\
    A\&B & 0.5 & 0.75 \\
    \midrule
    R Cuadrado & 0.98 &  \\
    \bottomrule
  \end{tabular}
\end{table}
)");
}

TEST(FormatosTabla, MarkdownDeUnaRegresion) {
    EXPECT_EQ(Utf8De1252(TablaEnMarkdown("Informe", En1252(Regresion), PuntoDecimal)), R"(**Informe**

|  |  |  |
|:---|---:|---:|
| Variable Dep. | CONS\_1 |  |
| Muestra | 1990.1 | 1994.4 |
| Nº Observaciones | 20 |  |

| Regresores | Coeficiente | Prob>\|t\| |
|:---|---:|---:|
| 1 | -16.25 | 1e-05 |
| A&amp;B | 0.5 | 0.75 |

|  |  |
|:---|---:|
| R Cuadrado | 0.98 |
)");
}

TEST(FormatosTabla, CsvDeUnaRegresion) {
    EXPECT_EQ(Utf8De1252(TablaEnCsv(En1252(Regresion), PuntoDecimal)), "Variable Dep.,CONS_1,\r\n"
                                                                       "Muestra,1990.1,1994.4\r\n"
                                                                       "Nº Observaciones,20,\r\n"
                                                                       ",,\r\n"
                                                                       "Regresores,Coeficiente,Prob>|t|\r\n"
                                                                       "1,-16.25,1e-05\r\n"
                                                                       "A&B,0.5,0.75\r\n"
                                                                       ",,\r\n"
                                                                       "R Cuadrado,0.98,\r\n");
}

TEST(FormatosTabla, HtmlDeUnaRegresion) {
    const std::string html = Utf8De1252(TablaEnHtml("A<B", En1252(Regresion), PuntoDecimal));
    EXPECT_TRUE(html.starts_with("<!DOCTYPE html>\n<html lang=\"es\">\n<head>\n"
                                 "<meta http-equiv=\"Content-Type\" content=\"text/html; charset=utf-8\">"));
    EXPECT_EQ(Veces(html, "<table"), 1u);
    EXPECT_NE(html.find("<caption>A&lt;B</caption>"), std::string::npos);
    EXPECT_EQ(Veces(html, "<tr>"), 7u);
    EXPECT_EQ(Veces(html, "<th "), 3u);
    EXPECT_EQ(Veces(html, "<td "), 18u) << "every row has the cells of the widest one";
    EXPECT_NE(html.find("<tr><td align=\"left\">A&amp;B</td><td align=\"right\">0.5</td>"
                        "<td align=\"right\">0.75</td></tr>"),
              std::string::npos)
        << html;
    EXPECT_NE(html.find("<th align=\"right\">Prob&gt;|t|</th>"), std::string::npos);
}

// Only whole numbers of a field change, and periods that look like them don't.
TEST(FormatosTabla, ComasDecimales) {
    static constexpr CasoDeTexto Casos[] = {
        {"a\t1.5\n", "a\t1,5\n"},
        {"a\t-0.25\t+3.\n", "a\t-0,25\t+3,\n"},
        {"a\t1.5e-07\t2E+3.1\n", "a\t1,5e-07\t2E+3.1\n"},
        {"a\t1.2.3\tX1.5\t.\t.5\n", "a\t1.2.3\tX1.5\t.\t.5\n"},
        {"1.5\t2.5\n", "1,5\t2,5\n"},
        {"Muestra\t1990.1\t1994.4\nR\t0.5\n", "Muestra\t1990.1\t1994.4\nR\t0,5\n"},
        {"Muestra Orde.\t1\t8\n", "Muestra Orde.\t1\t8\n"},
        {"Período\tValores\tResiduos\n1990.1\t2.5\t-0.5\n",
         "Período\tValores\tResiduos\n1990.1\t2,5\t-0,5\n"},
        {"a\t1.5\n\n\nb\t2.5\n", "a\t1,5\n\nb\t2,5\n"},
        {"", ""},
    };
    for (const CasoDeTexto &c : Casos) {
        EXPECT_EQ(Utf8De1252(TablaEnTexto(En1252(c.tabla), ComaDecimal)), c.esperada) << c.tabla;
        EXPECT_EQ(Utf8De1252(TablaEnTexto(En1252(c.tabla), PuntoDecimal)), c.tabla);
    }
    EXPECT_NE(TablaEnLatex("", En1252(Regresion), ComaDecimal).find("1 & $-$16,25 & 1e-05"),
              std::string::npos);
    EXPECT_NE(TablaEnMarkdown("", En1252(Regresion), ComaDecimal).find("| 1 | -16,25 | 1e-05 |"),
              std::string::npos);
    EXPECT_NE(TablaEnHtml("", En1252(Regresion), ComaDecimal).find("<td align=\"right\">-16,25</td>"),
              std::string::npos);
    EXPECT_NE(TablaEnCsv(En1252(Regresion), ComaDecimal).find("1,\"-16,25\",1e-05\r\n"), std::string::npos);
}

// Which first lines name columns: it shows in Markdown, where a table without a head has an empty one.
TEST(FormatosTabla, Cabeceras) {
    static constexpr struct {
        const char *tabla;
        bool conCabecera;
    } Casos[] = {
        {"Serie\tMedia\tDesviación\nX\t1\t2\n", true},
        {"\t1\tBENEF\n1\t0.5\t0.25\n", true}, // covariances
        {"Retardo\tCoeficiente\n1\t0.5\n", true},
        {"Fuente\tSuma\tMedia\tF\nRegresión\t1\t2\t3\nResidual\t1\t2\n", true},
        {"Variable Dep.\tY\nMuestra\t1990\t1999\n", false},
        {"Variable Dep.\tY\nNº Observaciones\t20\n", false},
        {"A\tB\t0.5\nA\tC\t0.25\n", false}, // correlations
        {"Retardo\tCoeficiente\n", false},
        {"solo\nsolo\n", false},
    };
    for (const auto &c : Casos) {
        const std::string md = TablaEnMarkdown("T", En1252(c.tabla), PuntoDecimal);
        const std::string cabeza = md.substr(7, md.find('\n', 7) - 7); // behind the title and an empty line
        EXPECT_EQ(cabeza.find_first_not_of("| ") != std::string::npos, c.conCabecera) << c.tabla << md;
    }
}

TEST(FormatosTabla, CaracteresPropios) {
    EXPECT_EQ(TablaEnCsv("a\"b\tc,d\n", PuntoDecimal), "\"a\"\"b\",\"c,d\"\r\n");
    EXPECT_NE(TablaEnLatex("", "\\{}$&#%_^~<>|\tx\n", PuntoDecimal)
                  .find("\\textbackslash{}\\{\\}\\$\\&\\#\\%\\_\\textasciicircum{}\\textasciitilde{}"
                        "\\textless{}\\textgreater{}\\textbar{} & x"),
              std::string::npos);
    EXPECT_NE(TablaEnMarkdown("", "*_`<&[]|~\\\tx\n", PuntoDecimal)
                  .find("| \\*\\_\\`&lt;&amp;\\[\\]\\|\\~\\\\ | x |"),
              std::string::npos);
    EXPECT_NE(TablaEnHtml("", "<&>\"\tx\n", PuntoDecimal).find("&lt;&amp;&gt;&quot;"), std::string::npos);
}

// A table that no page holds.
TEST(FormatosTabla, LatexLarga) {
    std::string tabla = "Período\tValor\tOtro\n"_w;
    for (int i = 0; i < 44; ++i) tabla += std::to_string(1900 + i) + "\t1\t2\n";
    EXPECT_EQ(TablaEnLatex("T", tabla, PuntoDecimal).find("longtable"), std::string::npos);
    tabla += "1999\t1\t2\n";
    const std::string larga = TablaEnLatex("T", tabla, PuntoDecimal);
    EXPECT_TRUE(larga.starts_with("% \\usepackage{booktabs,longtable}\n\\begin{longtable}{lrr}\n"
                                  "    \\caption{T} \\\\\n    \\toprule\n"));
    EXPECT_TRUE(larga.ends_with("    \\bottomrule\n\\end{longtable}\n"));
}

// A result without a table of its own is parted at two blanks or more.
TEST(FormatosTabla, DeLasLineas) {
    TextoSalida fijas, lineas;
    AnadirLinea(fijas, 0, "  Cabeza  Valor   ");
    AnadirLinea(lineas, 0, " uno dos   1.50");
    AnadirLinea(lineas, 1, "");
    const SalidaResultado salida = {.tipo = SalidaDescriptivos,
                                    .titulo = "T",
                                    .Clase = 0,
                                    .Contenido = 0,
                                    .lineas = &lineas,
                                    .fijas = &fijas,
                                    .tablas = nullptr};
    EXPECT_EQ(TextoDeResultado(salida), "  Cabeza  Valor\n uno dos   1.50\n\n");
    EXPECT_EQ(TablaDeResultado(salida), "Cabeza\tValor\n uno dos\t1.50\n\n");
}

// What a table begins or ends with is no matter of crashing.
TEST(FormatosTabla, Vacias) {
    for (const char *tabla : {"", "\n", "\n\n", "\t", "\t\n\t\t", "x"}) {
        for (const SignoDecimal signo : {PuntoDecimal, ComaDecimal}) {
            EXPECT_NE(TablaEnHtml("T", tabla, signo).find("</table>"), std::string::npos);
            EXPECT_NE(TablaEnLatex("T", tabla, signo).find("\\bottomrule"), std::string::npos);
            EXPECT_TRUE(TablaEnMarkdown("T", tabla, signo).starts_with("**T**\n"));
            TablaEnCsv(tabla, signo);
        }
    }
    EXPECT_EQ(TablaEnCsv("x", PuntoDecimal), "x\r\n");
}
