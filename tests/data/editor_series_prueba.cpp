// The grid on series: what the cells show, and what becomes of what is typed.
#include "data/editor_apoyo.h"
#include "data/editor_series.h"

#include "language/lote_sentencias.h"
#include "platform/campos_texto.h"
#include "platform/texto.h"
#include "store/archivo.h"

#include <gtest/gtest.h>

#include <cstring>

namespace {

bool Presente(int fila, int serie) {
    return ArchivoTrabajo.PresenciaObs[fila][serie] == 1;
}

double Valor(int fila, int serie) {
    return ArchivoTrabajo.ValoresObs[fila][serie];
}

std::string CodigoDe(int serie) {
    return std::string(Recortado(ArchivoTrabajo.Codigos[serie]));
}

} // namespace

// ----- What the cells show

TEST(EditorSeries, EsquinaYPeriodos) {
    struct Caso {
        int tipo;
        const char *intervalo, *esquina, *primero, *decimosexto;
    };
    constexpr Caso Casos[] = {
        {TipoSinPeriodicidad, "", "Observac.   ", "     1", "     16"},
        {TipoAnual, "1990#2010", " Periodo    ", "    1990", "    2005"},
        {TipoTrimestral, "1990#1#1994#4", " Periodo    ", "   1990.1", "   1993.4"},
        {TipoMensual, "1990#01#1992#12", " Periodo    ", "  1990.01", "  1991.04"},
    };
    for (const Caso &c : Casos) {
        SCOPED_TRACE(c.intervalo);
        AbrirSeries(c.tipo, c.intervalo);
        EXPECT_EQ(TextoDeCelda(0), c.esquina);
        EXPECT_EQ(TextoDeCelda(1), c.primero);
        EXPECT_EQ(TextoDeCelda(16), c.decimosexto);
        EntrarEnEditor({DesplazaFilas, 15});
        EXPECT_EQ(Recortado(TextoDeCelda(1)), Recortado(c.decimosexto));
    }
}

TEST(EditorSeries, UnPeriodoLargoSeCorta) {
    AbrirSeries();
    PonerTextoPeriodo(0, "12345678901234567890");
    PonerTextoPeriodo(1, "123456789012");
    PonerTextoPeriodo(2, "12345678901");
    PonerTextoPeriodo(3, "1234567890");
    EXPECT_EQ(TextoDeCelda(1), "123456789012");
    EXPECT_EQ(TextoDeCelda(2), "123456789012");
    EXPECT_EQ(TextoDeCelda(3), "12345678901");
    EXPECT_EQ(TextoDeCelda(4), " 1234567890");
}

TEST(EditorSeries, SinEtiquetasCincoSeries) {
    AbrirSeries();
    for (int s = 0; s < 7; ++s) PonerSerie(Formatear("S%d", s), {s + 0.25, s + 0.5});
    for (int c = 1; c <= 5; ++c) {
        EXPECT_EQ(Celda(CeldaEn(c, 0)), Formatear("S%d", c - 1));
        EXPECT_EQ(TextoDeCelda(CeldaEn(c, 1)), Formatear("%12.2f", c - 1 + 0.25));
        EXPECT_EQ(TextoDeCelda(CeldaEn(c, 2)), Formatear("%12.2f", c - 1 + 0.5));
        EXPECT_EQ(Celda(CeldaEn(c, 3)), "");
    }
    EntrarEnEditor({BarraEnColumna, 2});
    EXPECT_EQ(Celda(CeldaEn(1, 0)), "S2");
    EXPECT_EQ(Celda(CeldaEn(5, 2)), "6.50");
    EntrarEnEditor({BarraEnFila, 1});
    EXPECT_EQ(Celda(CeldaEn(5, 1)), "6.50");
}

TEST(EditorSeries, ConEtiquetasCuatro) {
    AbrirSeries(0, "", true);
    for (int s = 0; s < 6; ++s) PonerSerie(Formatear("S%d", s), {s + 0.25});
    PonerCampo(ArchivoTrabajo.EtiquetasObs[0], "Peñón"_w, AnchoEtiqueta);
    PonerCampo(ArchivoTrabajo.EtiquetasObs[15], "Última"_w, AnchoEtiqueta);
    EXPECT_EQ(TextoDeCelda(17), "Etiquetas   ");
    EXPECT_EQ(TextoDeCelda(18), "Peñón       "_w);
    EXPECT_EQ(Celda(33), "Última");
    for (int c = 2; c <= 5; ++c) {
        EXPECT_EQ(Celda(CeldaEn(c, 0)), Formatear("S%d", c - 2));
        EXPECT_EQ(Celda(CeldaEn(c, 1)), Formatear("%.2f", c - 2 + 0.25));
    }
    EntrarEnEditor({BarraEnColumna, 2});
    EXPECT_EQ(Celda(18), "Peñón"); // the labels stay where they are
    EXPECT_EQ(Celda(CeldaEn(2, 0)), "S2");
}

TEST(EditorSeries, UnValorSeVeSiTieneCodigoYEsta) {
    AbrirSeries();
    PonerSerie("A", {1, 2});
    ArchivoTrabajo.PresenciaObs[0][0] = 0;
    EXPECT_EQ(Celda(CeldaEn(1, 1)), "");
    EXPECT_EQ(Celda(CeldaEn(1, 2)), "2.00");
    PonerCodigoSerie(0, "");
    EXPECT_EQ(Celda(CeldaEn(1, 2)), "");
    ArchivoTrabajo.Codigos[0][0] = '\0'; // empty, as before the first reset
    EXPECT_EQ(Celda(CeldaEn(1, 2)), "");
}

TEST(EditorSeries, ConLosDecimalesDeSalida) {
    constexpr const char *Textos[] = {"          -3", "        -3.1", "       -3.14", "      -3.142",
                                      "     -3.1416", "    -3.14159", "   -3.141593"};
    AbrirSeries();
    PonerSerie("A", {-3.14159265});
    for (int d = 0; d <= 6; ++d) {
        Lote.DecimalesSalida = d;
        EXPECT_EQ(TextoDeCelda(CeldaEn(1, 1)), Textos[d]);
    }
}

// The cell shows 12 characters, the field the value in full.
TEST(EditorSeries, UnNumeroLargo) {
    AbrirSeries();
    PonerSerie("A", {123456789012.5, 1e300});
    EXPECT_EQ(TextoDeCelda(CeldaEn(1, 1)), "123456789012");
    Clic(CeldaEn(1, 1));
    EXPECT_EQ(Campo(), "123456789012.50000000");
    Clic(CeldaEn(1, 2));
    EXPECT_EQ(Campo().size(), 21u);
}

// ----- Detail and place

TEST(EditorSeries, DetalleYLugar) {
    AbrirSeries(1, "1990#1995", true);
    PonerSerie("CONSUMO", {1.0 / 3});
    PonerCodigoSerie(1, "ABCDEFGHIJKL");
    PonerCampo(ArchivoTrabajo.EtiquetasObs[1], "Dos", AnchoEtiqueta);
    struct Caso {
        int celda;
        const char *campo, *lugar;
    };
    const Caso Casos[] = {
        {CeldaEn(1, 2), "Dos", "1991; Etiquetas"},
        {CeldaEn(1, 1), "", "1990; Etiquetas"},
        {CeldaEn(2, 0), "CONSUMO", "Código: CONSUMO"},
        {CeldaEn(3, 0), "ABCDEFGHI", "Código: ABCDEFGHIJKL"},
        {CeldaEn(4, 0), "", "Código:"},
        {CeldaEn(2, 1), "        0.3333333333", "1990; CONSUMO"},
        {CeldaEn(2, 2), "", "1991; CONSUMO"},
        {CeldaEn(4, 3), "", "1992;"},
        {CeldaEn(2, 7), "", "; CONSUMO"}, // the work file ends in 1995
    };
    for (const Caso &c : Casos) {
        SCOPED_TRACE(c.lugar);
        Clic(c.celda);
        EXPECT_EQ(Campo(), c.campo);
        EXPECT_EQ(Celda(CeldaInformacion), c.lugar);
    }
    AbrirEditor(EditorDeSeries);
    EXPECT_EQ(Celda(CeldaInformacion), "Código: Etiquetas");
}

TEST(EditorSeries, ElDetalleDeUnDatoPresenteSinCodigo) {
    AbrirSeries();
    PonerSerie("A", {4});
    PonerCodigoSerie(0, "");
    Clic(CeldaEn(1, 1));
    EXPECT_EQ(Campo(), "        4.0000000000"); // by its flag alone, until the next check of the codes
}

// ----- Confirming

TEST(EditorSeries, UnaTablaDeDatos) {
    AbrirSeries(1, "1990#1993");
    Teclear("renta<Tab>gasto<Enter>10.5<Tab>");
    Clic(CeldaEn(1, 1));
    Teclear("-7<Enter>.25<Enter>-.5<Enter>1-2<Enter>9<Enter>");
    Clic(CeldaEn(2, 0));
    Teclear("<Enter><Enter>2.<Enter>");
    EXPECT_EQ(CodigoDe(0), "renta"); // capitals come with the check
    EXPECT_EQ(CodigoDe(1), "gasto");
    EXPECT_EQ(Valor(0, 0), -7.0);
    EXPECT_EQ(Valor(1, 0), 0.25);
    EXPECT_EQ(Valor(2, 0), -0.5);
    EXPECT_EQ(Valor(3, 0), 1.0); // as far as it is a number
    EXPECT_TRUE(Presente(3, 0));
    EXPECT_FALSE(Presente(4, 0)); // 1994 is no row of the work file
    EXPECT_EQ(Valor(0, 1), 10.5);
    EXPECT_EQ(Valor(1, 1), 2.0);
    EXPECT_EQ(ArchivoTrabajo.NumSeries, 0); // raised by the compaction
    EXPECT_TRUE(Prueba.cajas.empty());
}

struct CasoDeValor {
    const char *teclas;
    bool presente;
    double valor;
};

constexpr CasoDeValor Valores[] = {
    {"5", true, 5},
    {"-5.25", true, -5.25},
    {".", true, 0},
    {"-", true, 0},
    {"--5", true, 0},
    {"1.2.3", true, 1.2},
    {"1 2", true, 12 - 11},
    {"0", true, 0},
    {"A", false, 0}, // nothing was stored
    {" ", false, 0},
    {"<Derecha>", false, 0},
    {"7<Escape>", false, 0},
    {"7<Retroceso>", false, 0},
    {"17<Izquierda><Izquierda><Suprimir>", true, 7},
    {"0.12345678901234567", true, 0.12345678901234567},
    {"12345678901234567890", true, 12345678901234567890.0},
};

TEST(EditorSeries, LoQueValeUnValor) {
    for (const CasoDeValor &c : Valores) {
        SCOPED_TRACE(c.teclas);
        AbrirSeries();
        Teclear("A<Enter>");
        Teclear(c.teclas);
        Teclear("<Enter>");
        EXPECT_EQ(Presente(0, 0), c.presente);
        EXPECT_EQ(Valor(0, 0), c.valor);
        EXPECT_EQ(Editor.CeldaActual, 19);
    }
}

// Blanking a value makes it missing; so does anything typed where there is no code, or no period.
TEST(EditorSeries, UnValorSePierde) {
    AbrirSeries(1, "1990#1991");
    PonerSerie("A", {1, 2, 3});
    PonerCodigoSerie(1, "   ");
    PonerObservacion(0, 1, 8, 1);
    Clic(CeldaEn(1, 1));
    Teclear("<Escape><Enter>");
    EXPECT_FALSE(Presente(0, 0));
    EXPECT_EQ(Valor(0, 0), 0.0);
    Clic(CeldaEn(2, 1));
    Teclear("5<Enter>");
    EXPECT_FALSE(Presente(0, 1));
    EXPECT_EQ(Valor(0, 1), 0.0);
    Clic(CeldaEn(1, 3));
    Teclear("5<Enter>");
    EXPECT_FALSE(Presente(2, 0));
    EXPECT_EQ(Valor(2, 0), 0.0);
    EXPECT_EQ(Valor(1, 0), 2.0); // the others stay
}

// The field is confirmed as it stands: what is shown with ten decimals is stored so.
TEST(EditorSeries, SeConfirmaLoQueSeVe) {
    AbrirSeries();
    PonerSerie("A", {1.0 / 3, 2.0});
    Clic(CeldaEn(1, 1));
    Teclear("<Enter>"); // at the cell: nothing is confirmed
    EXPECT_EQ(Valor(0, 0), 1.0 / 3);
    Clic(CeldaEn(1, 1));
    Teclear("<Izquierda><Enter>");
    EXPECT_EQ(Valor(0, 0), 0.3333333333);
    EXPECT_TRUE(Presente(0, 0));
    Clic(CeldaEn(1, 2));
    Teclear("7<Enter>"); // over the first of the blanks
    EXPECT_EQ(Valor(1, 0), 7.0);
}

TEST(EditorSeries, Codigos) {
    AbrirSeries();
    PonerSerie("VIEJO", {1, 2});
    Teclear("<Izquierda><Escape>NUEVA SERIE 1234<Enter>");
    EXPECT_STREQ(ArchivoTrabajo.Codigos[0], "NUEVA SERIE "); // no test is made now
    EXPECT_EQ(Valor(1, 0), 2.0);
    Clic(17);
    Teclear("<Escape><Enter>"); // its code alone deletes a series, at the next check
    EXPECT_STREQ(ArchivoTrabajo.Codigos[0], "            ");
    EXPECT_EQ(Valor(1, 0), 2.0);
    EntrarEnEditor({DesplazaFilas, 1});
    EXPECT_EQ(Valor(1, 0), 0.0);
    EXPECT_FALSE(Presente(1, 0));
}

TEST(EditorSeries, LaUltimaSerieYLaUltimaFila) {
    AbrirSeries();
    EntrarEnEditor({BarraEnColumna, 95});
    EntrarEnEditor({BarraEnFila, 3984});
    Clic(CeldaEn(5, 0));
    Teclear("ULTIMA<Enter>");
    Clic(CeldaEn(5, 16));
    Teclear("4<Enter>");
    EXPECT_EQ(CodigoDe(99), "ULTIMA");
    EXPECT_EQ(Valor(3999, 99), 4.0);
    EXPECT_TRUE(Presente(3999, 99));
    EXPECT_EQ(Celda(CeldaEn(0, 16)), "4000");
    AbrirSeries(0, "", true);
    EntrarEnEditor({BarraEnColumna, 96});
    Clic(CeldaEn(5, 0));
    Teclear("ULTIMA<Enter>");
    EXPECT_EQ(CodigoDe(99), "ULTIMA");
}

TEST(EditorSeries, Etiquetas) {
    AbrirSeries(0, "", true);
    Teclear("<Enter>Una etiqueta larga<Enter>  dos<Enter>tres<Enter>");
    EXPECT_STREQ(ArchivoTrabajo.EtiquetasObs[0], "Una etiqueta");
    EXPECT_STREQ(ArchivoTrabajo.EtiquetasObs[1], "  dos       ");
    EXPECT_STREQ(ArchivoTrabajo.EtiquetasObs[2], "tres        ");
    EntrarEnEditor({DesplazaFilas, 1}); // what refreshes the grid leaves no blanks in front
    EXPECT_STREQ(ArchivoTrabajo.EtiquetasObs[1], "dos         ");
    Clic(18);
    Teclear("<Escape><Enter>");
    EXPECT_STREQ(ArchivoTrabajo.EtiquetasObs[1], "            ");
}

TEST(EditorSeries, RotulosNormales) {
    AbrirSeries(0, "", true);
    PonerCodigoSerie(0, "  b");
    ArchivoTrabajo.Codigos[1][0] = '\0';
    std::strcpy(ArchivoTrabajo.EtiquetasObs[0], "corta");
    std::strcpy(ArchivoTrabajo.EtiquetasObs[1], " doce letras");
    std::strcpy(ArchivoTrabajo.EtiquetasObs[2], "doce letras ");
    std::strcpy(ArchivoTrabajo.EtiquetasObs[3999], "  ");
    NormalizarRotulos();
    EXPECT_STREQ(ArchivoTrabajo.Codigos[0], "b           "); // in lower case until it is checked
    EXPECT_STREQ(ArchivoTrabajo.Codigos[1], "            ");
    EXPECT_STREQ(ArchivoTrabajo.EtiquetasObs[0], "corta       ");
    EXPECT_STREQ(ArchivoTrabajo.EtiquetasObs[1], "doce letras ");
    EXPECT_STREQ(ArchivoTrabajo.EtiquetasObs[2], "doce letras ");
    EXPECT_STREQ(ArchivoTrabajo.EtiquetasObs[3999], "            ");
}

// ----- Places

TEST(EditorSeries, LugarDeCadaCelda) {
    AbrirSeries(0, "", true);
    EntrarEnEditor({BarraEnColumna, 10});
    EntrarEnEditor({BarraEnFila, 20});
    struct Caso {
        int celda;
        LugarDeSerie lugar;
    };
    const Caso Casos[] = {
        {-1, {LugarNinguno, -1, -1}},
        {0, {LugarEsquina, -1, -1}},
        {1, {LugarPeriodo, -1, 20}},
        {16, {LugarPeriodo, -1, 35}},
        {17, {LugarCabeceraEtiquetas, -1, -1}},
        {18, {LugarEtiqueta, -1, 20}},
        {33, {LugarEtiqueta, -1, 35}},
        {34, {LugarCodigo, 10, -1}},
        {35, {LugarValor, 10, 20}},
        {101, {LugarValor, 13, 35}},
        {102, {LugarNinguno, -1, -1}},
    };
    for (const Caso &c : Casos) {
        SCOPED_TRACE(c.celda);
        const LugarDeSerie l = LugarDeCelda(c.celda);
        EXPECT_EQ(l.clase, c.lugar.clase);
        EXPECT_EQ(l.serie, c.lugar.serie);
        EXPECT_EQ(l.fila, c.lugar.fila);
    }
    EXPECT_EQ(LugarEnRejilla(91, 0).serie, 99);
    EXPECT_EQ(LugarEnRejilla(92, 0).clase, LugarNinguno);
    EXPECT_EQ(LugarEnRejilla(2, 3980).fila, 3999);
    EXPECT_EQ(LugarEnRejilla(2, 3981).clase, LugarNinguno);
}
