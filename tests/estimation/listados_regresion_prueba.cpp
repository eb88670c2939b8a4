// The listings of the last regression: lines, windows, paper, and what refuses them.
#include "estimation/listados_regresion.h"

#include "apoyo/datos_regresion.h"
#include "charts/resultados/impresion.h"
#include "platform/campos_texto.h"

#include <gtest/gtest.h>

namespace {

using Lineas = std::vector<std::pair<int, std::string>>;
using Textos = std::vector<std::string>;

// Y on 1, X and EDUCACIO(-1) over 1992 to 1996, as a regression would leave it.
void DejarRegresion(int codigo = OrdenMC) {
    EmpezarConDatos(TipoAnual, "1990#1999");
    Lote.DecimalesSalida = 2;
    PonerSerie("Y", {9, 9, 1, 2, 3, 4, 6, 9});
    PonerSerie("_RES", {0.25, -0.5, 0, 0.125, 1}, 2);
    PonerSerie("_RESN", {1, 1, 1, 1, 1}, 2);
    PonerMatriz("_COV", {4, -1.5, 2, -1.5, 0.25, 1000.125, 2, 1000.125, 9}, 3, 3);
    PonerEscalar(nullptr, "_SCR", 0.8);
    PonerEscalar(nullptr, "_NREG", 2.0);
    PonerEscalar(nullptr, "_FORLA", 52.5);
    PonerEscalar(nullptr, "_ESTF", 0.0054);
    UltimaRegresion.RegresionHecha = 1;
    UltimaRegresion.MetodoRegresion = codigo;
    PonerCampo(UltimaRegresion.CodigoDependiente, "Y", AnchoCodigo);
    UltimaRegresion.CodigosRegresores = {"1", "X", "EDUCACIO(-1)"};
    UltimaRegresion.PrimeraObsRegresion = 2;
    UltimaRegresion.UltimaObsRegresion = 6;
    UltimaRegresion.SeriesRegresion[OrdenMC] = 1;
}

const ResultadoVisto &Pedir(ListadosRegresion cual, int codigo = OrdenMC) {
    EXPECT_TRUE(PedirListado(nullptr, cual, "MC  Y 1 X EDUCACIO(-1) ", codigo));
    EXPECT_TRUE(Prueba.cajas.empty());
    EXPECT_EQ(Prueba.resultados.size(), 1u);
    EXPECT_EQ(Prueba.resultados[0].tipo, SalidaRegresion);
    EXPECT_EQ(Prueba.resultados[0].clase, codigo);
    return Prueba.resultados[0];
}

// Prints the listing that was asked for.
const TrabajoVisto &Imprimir(ListadosRegresion cual, int codigo = OrdenMC) {
    static OperacionesPlataforma queImprime;
    queImprime = Plataforma();
    queImprime.mostrarResultado = [](Ventana *v, const SalidaResultado &s) {
        EXPECT_EQ(ImprimirResultado(v, s), 0);
    };
    InstalarPlataforma(queImprime);
    EXPECT_TRUE(PedirListado(nullptr, cual, "MC  Y 1 X EDUCACIO(-1) ", codigo));
    return Prueba.trabajos.at(0);
}

// ----- Covariance

const Textos Covarianza = {
    // 13 blanks, the name of the row, that of the column, the value; 25 blanks in the lines that follow.
    "             1            1                       4.00",
    "             X            1                      -1.50",
    "                         X                       0.25",
    "             EDUCACIO(-1) 1                       2.00",
    "                         X                    1000.12",
    "                         EDUCACIO(-1)            9.00",
};

TEST(ListadoCovarianza, TrianguloInferior) {
    DejarRegresion();
    const ResultadoVisto &r = Pedir(ListadoCovarianza);
    EXPECT_EQ(r.titulo, "Matriz de covarianza");
    EXPECT_EQ(r.contenido, 1);
    EXPECT_TRUE(r.fijas.empty());
    Lineas esperadas;
    for (const std::string &l : Covarianza) esperadas.emplace_back(1, l);
    EXPECT_EQ(r.lineas, esperadas);
}

TEST(ListadoCovarianza, Decimales) {
    static constexpr struct {
        int decimales;
        const char *valor; // of 1000.125 in 15 characters
    } Casos[] = {{0, "           1000"},
                 {3, "       1000.125"},
                 {6, "    1000.125000"},
                 {9, "    1000.125000"},
                 {-1, "           1000"}};
    for (const auto &c : Casos) {
        DejarRegresion();
        Lote.DecimalesSalida = c.decimales;
        EXPECT_EQ(Pedir(ListadoCovarianza).lineas.at(4).second,
                  "                         X            " + std::string(c.valor));
    }
}

TEST(ListadoCovarianza, EnPapel) {
    DejarRegresion();
    Textos pagina = {"Matriz de covarianza de los estimadores      Página.:   1", " MC  Y 1 X EDUCACIO(-1)"};
    for (const std::string &l : Covarianza) pagina.push_back(l);
    const TrabajoVisto &t = Imprimir(ListadoCovarianza);
    EXPECT_EQ(t.titulo, "Matriz de covarianza");
    ASSERT_EQ(t.paginas.size(), 1u);
    // A line begins where its text is drawn: the blanks in front of it belong to it.
    EXPECT_EQ(t.paginas[0], pagina);
}

// Twelve regressors: 78 lines, more than a page has. The line that opens the next page names its row anew.
TEST(ListadoCovarianza, VariasPaginasEnPapel) {
    DejarRegresion();
    UltimaRegresion.CodigosRegresores.clear();
    for (int i = 0; i < 12; ++i) UltimaRegresion.CodigosRegresores.push_back(Formatear("R%02d", i));
    PonerMatriz("_COV", std::vector<double>(144, 1.0), 12, 12);
    const TrabajoVisto &t = Imprimir(ListadoCovarianza);
    ASSERT_EQ(t.paginas.size(), 2u);
    EXPECT_EQ(t.paginas[0].size() + t.paginas[1].size(), 78u + 2 * 2u);
    EXPECT_EQ(t.paginas[1][0], "Matriz de covarianza de los estimadores      Página.:   2");
    EXPECT_EQ(t.paginas[1][1], " MC  Y 1 X EDUCACIO(-1)");
    // Where the page broke.
    int linea = static_cast<int>(t.paginas[0].size()) - 2, fila = 0;
    while ((fila + 1) * (fila + 2) / 2 <= linea) ++fila;
    const int columna = linea - fila * (fila + 1) / 2;
    ASSERT_GT(columna, 0) << "the first line of a row would say nothing";
    EXPECT_EQ(t.paginas[1][2],
              Formatear("             R%02d          R%02d                     1.00", fila, columna));
    EXPECT_EQ(t.paginas[1][3],
              Formatear("                         R%02d                     1.00", columna + 1));
}

// ----- Values

TEST(ListadoValores, SinEtiquetas) {
    DejarRegresion();
    const ResultadoVisto &r = Pedir(ListadoValores);
    EXPECT_EQ(r.titulo, "Valores observados");
    EXPECT_EQ(r.contenido, 2);
    EXPECT_EQ(r.fijas, (Lineas{{0, "MC  Y 1 X EDUCACIO(-1)"},
                               {0, " Período    Valores observados    Valores estimados    Residuos"}}));
    EXPECT_EQ(r.lineas, (Lineas{
                            {1, "    1992                1.00             0.75             0.25"},
                            {1, "    1993                2.00             2.50            -0.50"},
                            {1, "    1994                3.00             3.00             0.00"},
                            {1, "    1995                4.00             3.88             0.12"},
                            {1, "    1996                6.00             5.00             1.00"},
                        }));
}

TEST(ListadoValores, ConEtiquetas) {
    DejarRegresion();
    ArchivoTrabajo.ConEtiquetas = 1;
    for (int i = 0; i < 10; ++i) PonerCampo(ArchivoTrabajo.EtiquetasObs[i], "Peñón"_w, AnchoEtiqueta);
    const ResultadoVisto &r = Pedir(ListadoValores);
    EXPECT_EQ(r.fijas.at(1).second, " Período  Etiquetas     Valores observ.   Valores estim.  Residuos");
    ASSERT_EQ(r.lineas.size(), 5u);
    EXPECT_EQ(r.lineas[1].second, "  1993   Peñón                   2.00            2.50           -0.50");
}

TEST(ListadoValores, TrasPonderar) {
    DejarRegresion(OrdenMCP);
    EXPECT_EQ(Pedir(ListadoValores, OrdenMCP).lineas.at(0).second,
              "    1992                1.00             0.00             1.00");
}

TEST(ListadoValores, EnPapel) {
    DejarRegresion();
    const TrabajoVisto &t = Imprimir(ListadoValores);
    ASSERT_EQ(t.paginas.size(), 1u);
    EXPECT_EQ(t.paginas[0].at(0), "MC  Y 1 X EDUCACIO(-1)                             Página.:  1");
    EXPECT_EQ(t.paginas[0].at(1), " Período    Valores observados    Valores estimados    Residuos");
    EXPECT_EQ(t.paginas[0].at(2), "    1992                1.00             0.75             0.25");
    EXPECT_EQ(t.paginas[0].size(), 7u);
    for (const OrdenDibujo &o : t.dibujo[0].ordenes) {
        if (o.clase != OrdenTexto) continue;
        if (o.texto.starts_with(" Per")) {
            EXPECT_TRUE(o.texto.ends_with("Residuos    "));
        }
        // Three numbers of 15 characters, two blanks behind each.
        if (o.texto.starts_with("    1992")) {
            EXPECT_EQ(o.texto, "    1992                1.00             0.75             0.25  ");
        }
    }
}

// The range as far as the tables go.
TEST(ListadoValores, FilasQueNoHay) {
    DejarRegresion();
    UltimaRegresion.PrimeraObsRegresion = -3;
    UltimaRegresion.UltimaObsRegresion = 5000;
    EXPECT_EQ(Pedir(ListadoValores).lineas.size(), 4000u);
}

// ----- Analysis of variance

// Y is 1, 2, 3, 4 and 6: mean 3.2, sum of squares about it 14.8.
TEST(ListadoVarianza, Lineas) {
    DejarRegresion();
    const ResultadoVisto &r = Pedir(ListadoVarianza);
    EXPECT_EQ(r.titulo, "Análisis de la varianza");
    EXPECT_EQ(r.contenido, 3);
    EXPECT_TRUE(r.fijas.empty());
    EXPECT_EQ(r.lineas, (Lineas{{0, "Fuente de       Suma de    Grados de     Media        F     Prob>F"},
                                {0, "variación      cuadrados   libertad    cuadrática"},
                                // 52.5000 is one too long for six characters: five are left.
                                {1, "Regresión         14.0000       1         14.0000   52.50    0.0054"},
                                {1, "Residual           0.8000       3          0.2667"},
                                {1, "Total             14.8000       4          3.7000"}}));
}

TEST(ListadoVarianza, SinGradosDeLibertad) {
    DejarRegresion();
    PonerEscalar(nullptr, "_NREG", 5.0); // as many as observations
    EXPECT_EQ(Pedir(ListadoVarianza).lineas.at(3).second,
              "Residual           0.8000       0          0.0000");
    DejarRegresion();
    for (const char *e : {"_SCR", "_NREG", "_FORLA", "_ESTF"}) BorrarEscalar(BuscarEscalar(e));
    const Lineas l = Pedir(ListadoVarianza).lineas;
    EXPECT_EQ(l.at(2).second, "Regresión         14.8000      -1          0.0000  0.0000    0.0000")
        << "0 for what is missing";
    EXPECT_EQ(l.at(3).second, "Residual           0.0000       5          0.0000");
}

TEST(ListadoVarianza, EnPapel) {
    DejarRegresion();
    const TrabajoVisto &t = Imprimir(ListadoVarianza);
    ASSERT_EQ(t.paginas.size(), 1u);
    EXPECT_EQ(t.paginas[0].size(), 6u);
    EXPECT_EQ(t.paginas[0][0], "Análisis de la varianza de la regresión");
    EXPECT_EQ(t.paginas[0][5], "Total             14.8000       4          3.7000");
    int finas = 0;
    for (const OrdenDibujo &o : t.dibujo[0].ordenes) finas += o.clase == OrdenLinea && o.pluma.ancho == 1;
    EXPECT_EQ(finas, 4) << "vertical rules over the sums";
}

// ----- What refuses a listing

TEST(ListadosDeRegresion, SinRegresion) {
    for (const ListadosRegresion l : {ListadoCovarianza, ListadoValores, ListadoVarianza}) {
        DejarRegresion();
        UltimaRegresion.RegresionHecha = 0;
        EXPECT_FALSE(PedirListado(nullptr, l, "MC", OrdenMC));
        ASSERT_EQ(Prueba.cajas.size(), 1u);
        EXPECT_EQ(Prueba.cajas[0],
                  (CajaVista{"Aviso", "Efectue primero una regresión", IconoInformacion, BotonesAceptar}));
        EXPECT_TRUE(Prueba.resultados.empty());
    }
}

TEST(ListadosDeRegresion, SinTerminoIndependiente) {
    static constexpr struct {
        ListadosRegresion cual;
        int series;
        bool seVe;
    } Casos[] = {{ListadoVarianza, 2, false},
                 {ListadoVarianza, 1, true},
                 {ListadoVarianza, 3, true},
                 {ListadoCovarianza, 2, true},
                 {ListadoValores, 2, true}};
    for (const auto &c : Casos) {
        DejarRegresion();
        UltimaRegresion.SeriesRegresion[OrdenMC] = c.series;
        EXPECT_EQ(PedirListado(nullptr, c.cual, "MC", OrdenMC), c.seVe);
        EXPECT_EQ(Prueba.resultados.size(), c.seVe ? 1u : 0u);
        if (c.seVe) continue;
        ASSERT_EQ(Prueba.cajas.size(), 1u);
        EXPECT_EQ(Prueba.cajas[0], (CajaVista{"Aviso", "Introduzca el término independiente",
                                              IconoInformacion, BotonesAceptar}));
    }
}

TEST(ListadosDeRegresion, SinTipoDeDatos) {
    for (const ListadosRegresion l : {ListadoCovarianza, ListadoValores, ListadoVarianza}) {
        DejarRegresion();
        const PeticionListado peticion = PeticionDeUltimaRegresion("MC", OrdenMC);
        ArchivoTrabajo.TipoDatos = SinTipoDatos;
        EXPECT_FALSE(MostrarListado(nullptr, l, peticion));
        ASSERT_EQ(Prueba.cajas.size(), 1u);
        EXPECT_EQ(Prueba.cajas[0], (CajaVista{"Proceso cancelado", "Tipo de datos no válido",
                                              IconoInformacion, BotonesAceptar}));
        EXPECT_TRUE(Prueba.resultados.empty());
    }
}

// The message, then the window with nothing in it.
TEST(ListadosDeRegresion, LoQueFalta) {
    static constexpr struct {
        ListadosRegresion cual;
        int codigo;
        const char *falta, *caja;
        std::size_t fijas;
    } Casos[] = {
        {ListadoCovarianza, 8, "_COV", "No existe la matriz de covarianza. Pto 1", 0},
        {ListadoValores, 8, "Y", "No existe la variable dependiente. Pto 1", 2},
        {ListadoValores, 8, "_RES", "No existe la serie de residuos. Pto 1", 2},
        {ListadoValores, 13, "_RESN", "No existe la serie de residuos. Pto 1", 2},
        {ListadoVarianza, 8, "Y", "No existe la variable dependiente. Pto 1", 0},
    };
    for (const auto &c : Casos) {
        SCOPED_TRACE(c.caja);
        DejarRegresion();
        if (BuscarMatriz(c.falta) >= 0) BorrarMatriz(nullptr, BuscarMatriz(c.falta));
        if (BuscarSerie(c.falta) >= 0) EliminarSerie(BuscarSerie(c.falta));
        EXPECT_TRUE(PedirListado(nullptr, c.cual, "MC", c.codigo));
        EXPECT_EQ(TextosDeCajas(), Textos{c.caja});
        EXPECT_EQ(Prueba.cajas[0].titulo, "Proceso cancelado");
        ASSERT_EQ(Prueba.resultados.size(), 1u);
        EXPECT_TRUE(Prueba.resultados[0].lineas.empty());
        EXPECT_EQ(Prueba.resultados[0].fijas.size(), c.fijas);
    }
}

// More names than the matrix has rows: as many as both have.
TEST(ListadosDeRegresion, MatrizDeOtroTamano) {
    DejarRegresion();
    PonerMatriz("_COV", {4, 1, 1, 2}, 2, 2);
    EXPECT_EQ(Pedir(ListadoCovarianza).lineas.size(), 3u);
}

} // namespace
