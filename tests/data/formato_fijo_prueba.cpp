// The table of the fixed format: checks of its dialog, lines of its list; and import of fixed records.
#include "data/ascii_apoyo.h"
#include "platform/campos_texto.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace {

std::string LineasDeTabla() {
    std::string r;
    for (int f = 0; f < TablaCampos.numero; ++f) r += LineaDeCampo(TablaCampos.campo[f]) + "\n";
    return r;
}

enum Direccion { Exporta, Importa };

// Concept of the panel, -1 for data without periodicity.
constexpr int Serie = -1;

struct CasoAnadir {
    Direccion direccion;
    int panel; // Serie, PeriodoPrimero or IndividuoPrimero
    std::initializer_list<std::string_view> antes;
    EdicionCampo edicion; // code, type, start, length
    const char *mensaje;  // empty: the row is taken
};

// The series X and Y exist. Each refused row fails in the test that it stands for and in later ones, where it can: the
// first one speaks.
const CasoAnadir Anadir[] = {
    {Exporta, Serie, {}, {"X", "N", "1", "5"}, ""},
    {Exporta, Serie, {}, {"", "", "", ""}, "Introduzca nombre de serie"},
    {Importa, Serie, {}, {"   ", "N", "1", "5"}, "Introduzca nombre de serie"},
    {Exporta, Serie, {}, {"Z", "", "", ""}, "Nombre de serie no existe"},
    {Exporta, Serie, {}, {"x", "N", "1", "5"}, "Nombre de serie no existe"},
    {Exporta, Serie, {}, {"PERI", "P", "1", "5"}, "Nombre de serie no existe"},
    {Exporta, Serie, {}, {"DENO", "A", "1", "5"}, ""},
    {Importa, Serie, {}, {"Z", "N", "1", "5"}, ""},
    {Importa, Serie, {}, {"NUEVELETRAS", "N", "1", "5"}, ""}, // read with 8 characters
    {Exporta, PeriodoPrimero, {}, {"Z", "N", "1", "5"}, "Nombre de serie no existe"},
    {Exporta, PeriodoPrimero, {"N/1/5/X"}, {"PERI", "P", "1", "5"}, ""},
    {Exporta, IndividuoPrimero, {"N/1/5/X"}, {"INDI", "I", "1", "5"}, ""},
    {Importa, PeriodoPrimero, {"N/1/5/Z"}, {"PERI", "", "", ""}, "El período debe estar en el primer campo"},
    {Importa,
     IndividuoPrimero,
     {"N/1/5/Z"},
     {"INDI", "", "", ""},
     "Los individúos deben estar en el primer campo"},
    {Importa,
     PeriodoPrimero,
     {"P/1/5/PERI"},
     {"DENO", "", "", ""},
     "Las Etiquetas deben estar en el primer ó tercer campo"},
    {Importa,
     PeriodoPrimero,
     {"P/1/5/PERI", "I/6/5/INDI", "N/1/5/Z"},
     {"DENO", "A", "1", "5"},
     "Las Etiquetas deben estar en el primer ó tercer campo"},
    {Importa, PeriodoPrimero, {"P/1/5/PERI", "I/6/5/INDI"}, {"DENO", "A", "1", "5"}, ""},
    {Importa, PeriodoPrimero, {"P/1/5/PERI"}, {"INDI", "I", "6", "5"}, ""},
    {Importa, IndividuoPrimero, {}, {"INDI", "I", "1", "5"}, ""},
    {Importa, Serie, {"N/1/5/Z"}, {"Z", "", "", ""}, "Nombre de serie repetido"},
    {Exporta, Serie, {"N/1/5/X"}, {"X", "N", "6", "5"}, "Nombre de serie repetido"},
    {Importa, Serie, {"N/1/5/Z"}, {"Z1", "N", "6", "5"}, ""},
    {Exporta, Serie, {}, {"X", "", "", ""}, "Tipo debe ser 'A' ó 'N'"},
    {Exporta, Serie, {}, {"X", "P", "1", "5"}, "Tipo debe ser 'A' ó 'N'"},
    {Importa, Serie, {}, {"X", "Z", "1", "5"}, "Tipo debe ser 'A' ó 'N'"},
    {Importa, PeriodoPrimero, {}, {"X", "Z", "", ""}, "Tipo debe ser 'A','N','P' ó 'I'"},
    {Exporta, PeriodoPrimero, {}, {"X", "", "1", "5"}, "Tipo debe ser 'A','N','P' ó 'I'"},
    {Exporta, Serie, {}, {"X", "n", "1", "5"}, ""},
    {Exporta, Serie, {}, {"X", "a", "1", "5"}, ""},
    {Exporta, PeriodoPrimero, {}, {"X", "p", "1", "5"}, ""},
    {Exporta, PeriodoPrimero, {}, {"X", "i", "1", "5"}, ""},
    {Importa, Serie, {"N/1/5/Z"}, {"W", "A", "", ""}, "Tipo debe ser 'N'"},
    {Exporta, Serie, {"N/1/5/X"}, {"Y", "A", "6", "5"}, ""},
    {Importa, PeriodoPrimero, {"N/1/5/Z"}, {"W", "A", "", ""}, "Tipo no válido"},
    {Importa, PeriodoPrimero, {"N/1/5/Z", "N/6/5/V"}, {"W", "A", "6", "5"}, ""},
    {Importa, PeriodoPrimero, {"N/1/5/Z"}, {"W", "P", "", ""}, "Tipo no válido"},
    // A panel with the individual first can't have its period in the second field.
    {Importa, IndividuoPrimero, {"I/1/5/INDI"}, {"PERI", "P", "6", "5"}, "Tipo no válido"},
    {Exporta, IndividuoPrimero, {"I/1/5/INDI"}, {"PERI", "P", "6", "5"}, ""},
    {Exporta, Serie, {}, {"X", "N", "", ""}, "Posición de inicio no válida"},
    {Exporta, Serie, {}, {"X", "N", "0", "5"}, "Posición de inicio no válida"},
    {Exporta, Serie, {}, {"X", "N", "-3", "0"}, "Posición de inicio no válida"},
    {Exporta, Serie, {}, {"X", "N", "uno", "5"}, "Posición de inicio no válida"},
    {Exporta, Serie, {}, {"X", "N", "1", ""}, "Longitud no válida"},
    {Exporta, Serie, {}, {"X", "N", "1", "0"}, "Longitud no válida"},
    {Exporta, Serie, {}, {"X", "N", "0001", "5"}, "Posición de inicio no válida"}, // 3 digits are read
    {Exporta, Serie, {}, {"X", "N", "9991", "1234"}, ""},
    {Exporta, Serie, {}, {"DENO", "N", "1", "0"}, "Longitud no válida"},
    {Exporta, Serie, {}, {"DENO", "N", "1", "5"}, "Tipo debe ser 'A'"},
    {Importa, Serie, {}, {"PERI", "N", "1", "5"}, "Tipo debe ser 'P'"},
    {Importa, Serie, {}, {"INDI", "N", "1", "5"}, "Tipo debe ser 'I'"},
    {Exporta, PeriodoPrimero, {}, {"PERI", "I", "1", "5"}, "Tipo debe ser 'P'"},
    {Exporta, PeriodoPrimero, {}, {"INDI", "A", "1", "5"}, "Tipo debe ser 'I'"},
};

void Preparar(int panel) {
    PrepararAscii(panel == Serie ? TipoSinPeriodicidad : TipoPanel, 4, std::max(panel, 0));
    PonerSerie("X", {1, 2});
    PonerSerie("Y", {3, 4});
}

EdicionCampo EnNucleo(EdicionCampo e) {
    for (std::string *t : {&e.codigo, &e.tipo, &e.inicio, &e.longitud}) *t = Texto1252DeUtf8(*t);
    return e;
}

TEST(FormatoFijo, Anadir) {
    for (const CasoAnadir &caso : Anadir) {
        SCOPED_TRACE(testing::Message() << "code '" << caso.edicion.codigo << "' type '" << caso.edicion.tipo
                                        << "' " << caso.mensaje);
        Preparar(caso.panel);
        ASSERT_TRUE(AnadirFilas(caso.direccion == Importa, caso.antes));
        const std::string antes = LineasDeTabla();
        EdicionCampo edicion = EnNucleo(caso.edicion);
        const bool bien = AnadirCampo(nullptr, caso.direccion == Importa, edicion);
        if (*caso.mensaje == '\0') {
            EXPECT_TRUE(bien);
            EXPECT_TRUE(Prueba.cajas.empty());
            EXPECT_EQ(TablaCampos.numero, static_cast<int>(caso.antes.size()) + 1);
        } else {
            EXPECT_FALSE(bien);
            ASSERT_EQ(Prueba.cajas.size(), 1u);
            EXPECT_EQ(Prueba.cajas[0], (CajaVista{"Aviso", caso.mensaje, IconoInformacion, BotonesAceptar}));
            EXPECT_EQ(LineasDeTabla(), antes);
            EXPECT_EQ(edicion.codigo, EnNucleo(caso.edicion).codigo) << "the fields stay";
        }
    }
}

TEST(FormatoFijo, FilaAnadida) {
    Preparar(Serie);
    EdicionCampo edicion = {"Y", "n", "10", "7"};
    ASSERT_TRUE(AnadirCampo(nullptr, false, edicion));
    EXPECT_EQ(LineasDeTabla(), "N---10---7---Y       \n");
    EXPECT_EQ(TablaCampos.campo[0].IndiceSerie, 1);
    // Type keeps its value, the next start is proposed, the rest is cleared.
    EXPECT_EQ(edicion.codigo, "");
    EXPECT_EQ(edicion.tipo, "n");
    EXPECT_EQ(edicion.inicio, "17");
    EXPECT_EQ(edicion.longitud, "");
}

// What goes into the list comes out of it again, whatever was typed.
TEST(FormatoFijo, PosicionesComoSeEscriben) {
    static const struct {
        const char *inicio, *longitud, *linea;
    } Casos[] = {
        {"1", "18", "N---1---18---X       \n"},    {"007", " 5", "N---007--- 5---X       \n"},
        {"1-5", "5", "N---1---5---X       \n"},    {"5-", "3--", "N---5---3---X       \n"},
        {"+5", "2.5", "N---5---2---X       \n"},   {"1234", "9999", "N---123---999---X       \n"},
        {"12-4", "1x", "N---12---1---X       \n"},
    };
    for (const auto &caso : Casos) {
        SCOPED_TRACE(caso.inicio);
        Preparar(Serie);
        EdicionCampo edicion = {"X", "N", caso.inicio, caso.longitud};
        ASSERT_TRUE(AnadirCampo(nullptr, true, edicion));
        EXPECT_EQ(LineasDeTabla(), caso.linea);
        OpcionesIntercambio o;
        ASSERT_TRUE(AceptarFormatoFijo(nullptr, false, o));
        EXPECT_EQ(LineasDeTabla(), caso.linea);
    }
}

TEST(FormatoFijo, DemasiadasSeries) {
    Preparar(Serie);
    for (int i = 0; i < 103; ++i) {
        EdicionCampo edicion = {Formatear("S%d", i), "N", "1", "1"};
        EXPECT_TRUE(AnadirCampo(nullptr, true, edicion));
    }
    EdicionCampo edicion = {"S103", "N", "1", "1"};
    EXPECT_FALSE(AnadirCampo(nullptr, true, edicion));
    edicion = {"DENO", "N", "1", "1"}; // the count comes before the pairs of code and type
    EXPECT_FALSE(AnadirCampo(nullptr, true, edicion));
    EXPECT_EQ(TextosDeCajas(), (std::vector<std::string>{"Demasiadas Series", "Demasiadas Series"}));
    EXPECT_EQ(TablaCampos.numero, 103);
}

TEST(FormatoFijo, Eliminar) {
    Preparar(Serie);
    ASSERT_TRUE(AnadirFilas(true, {"N/1/5/A", "N/6/4/B", "N/10/3/C"}));
    EdicionCampo edicion;
    for (const int fuera : {-1, 3, 1000}) EXPECT_FALSE(EliminarCampo(fuera, edicion));
    ASSERT_TRUE(EliminarCampo(1, edicion));
    EXPECT_EQ(LineasDeTabla(), "N---1---5---A       \nN---10---3---C       \n");
    EXPECT_EQ(edicion.codigo + "/" + edicion.tipo + "/" + edicion.inicio + "/" + edicion.longitud, "B/N/6/4");
    ASSERT_TRUE(AnadirCampo(nullptr, true, edicion)) << "and back, at the end";
    EXPECT_EQ(LineasDeTabla(), "N---1---5---A       \nN---10---3---C       \nN---6---4---B       \n");
}

struct CasoLinea {
    const char *linea;
    char tipo;
    const char *inicio, *longitud, *codigo;
};

const CasoLinea Lineas[] = {
    {"N---1---18---CONSUMO ", 'N', "1", "18", "CONSUMO "},
    {"A---  1---18---DENO    ", 'A', "  1", "18", "DENO    "},
    {"N---1---18---X", 'N', "1", "18", "X       "},
    // A code with a hyphen can't go through: the count of hyphens goes on inside it.
    {"N---1---18---A-B     ", 'N', "1", "18", "A       "},
    {"N---1---18----AB     ", 'N', "1", "18", "        "},
    {"N---1-2---18---AB", 'N', "1", "", "        "},
    {"N---12345---6789---LARGUISIMO", 'N', "123", "678", "LARGUISI"},
    {"", '\0', "", "", "        "},
    {"-----------------", '\0', "", "", "        "},
};

TEST(FormatoFijo, LineasDeLaLista) {
    for (const CasoLinea &caso : Lineas) {
        SCOPED_TRACE(caso.linea);
        const CampoFijo c = CampoDeLinea(caso.linea);
        EXPECT_EQ(c.Tipo, caso.tipo);
        EXPECT_STREQ(c.Inicio, caso.inicio);
        EXPECT_STREQ(c.Longitud, caso.longitud);
        EXPECT_STREQ(c.Codigo, caso.codigo);
        EXPECT_EQ(c.IndiceSerie, 0);
    }
}

TEST(FormatoFijo, AbrirAlExportar) {
    Preparar(Serie);
    AnadirFilas(true, {"N/1/5/VIEJA"});
    EdicionCampo edicion = {"a", "b", "c", "d"};
    AbrirFormatoFijo(false, edicion);
    EXPECT_EQ(LineasDeTabla(), "N---  1---18---X       \nN--- 19---18---Y       \n");
    EXPECT_EQ(TablaCampos.campo[1].IndiceSerie, 1);
    EXPECT_EQ(edicion.inicio, "");
    ArchivoTrabajo.ConEtiquetas = 1;
    AbrirFormatoFijo(false, edicion);
    EXPECT_EQ(LineasDeTabla(), "A---  1---18---DENO    \nN--- 19---18---X       \nN--- 37---18---Y       \n");
    // A position has three digits: the 57th field, at 1009, is proposed at 100.
    for (int s = 0; s < MaxSeries; ++s) PonerCodigoSerie(s, Formatear("S%d", s));
    ArchivoTrabajo.NumSeries = MaxSeries;
    AbrirFormatoFijo(false, edicion);
    EXPECT_EQ(TablaCampos.numero, 101);
    EXPECT_STREQ(TablaCampos.campo[55].Inicio, "991");
    EXPECT_STREQ(TablaCampos.campo[56].Inicio, "100");
}

TEST(FormatoFijo, AbrirAlImportar) {
    Preparar(Serie);
    AnadirFilas(true, {"N/1/5/VIEJA"});
    EdicionCampo edicion = {"a", "b", "c", "d"};
    AbrirFormatoFijo(true, edicion);
    EXPECT_EQ(LineasDeTabla(), "N---1---5---VIEJA   \n") << "the table as it stood";
    EXPECT_EQ(edicion.inicio, "1");
    EXPECT_EQ(edicion.codigo + edicion.tipo + edicion.longitud, "");
}

struct CasoAceptar {
    int panel;
    const char *tipos;   // of the rows, in order
    const char *mensaje; // empty: accepted
    int modo, camposPanel;
};

const CasoAceptar Aceptar[] = {
    {Serie, "", "Introduzca datos", 0, 0},
    {Serie, "N", "", 0, 0},
    {Serie, "AN", "", 1, 0},
    {Serie, "PIA", "", 0, 0}, // left over from panel data: nothing is asked
    {PeriodoPrimero, "PI", "", 0, 1},
    {PeriodoPrimero, "PIN", "", 0, 1},
    {PeriodoPrimero, "PIA", "", 2, 1},
    {PeriodoPrimero, "PIAN", "", 2, 1},
    {PeriodoPrimero, "P", "El segundo campo deben ser los individuos", 0, 0},
    {PeriodoPrimero, "PN", "El segundo campo deben ser los individuos", 0, 0},
    {PeriodoPrimero, "NI", "El primer campo debe ser el período", 0, 0},
    {PeriodoPrimero, "AI", "El primer campo debe ser el período", 1, 0},
    {PeriodoPrimero, "IP", "", 0, 0}, // neither of the two
    {PeriodoPrimero, "NNI", "", 0, 0},
    {PeriodoPrimero, "ANN", "", 1, 0},
    {IndividuoPrimero, "IP", "", 0, 1},
    {IndividuoPrimero, "IPA", "", 2, 1},
    {IndividuoPrimero, "I", "El segundo campo debe ser el período", 0, 0},
    {IndividuoPrimero, "IN", "El segundo campo debe ser el período", 0, 0},
    {IndividuoPrimero, "NP", "El primer campo deben ser los individuos", 0, 0},
    {IndividuoPrimero, "PI", "", 0, 0},
};

TEST(FormatoFijo, Aceptar) {
    for (const CasoAceptar &caso : Aceptar) {
        SCOPED_TRACE(testing::Message() << caso.panel << caso.tipos);
        Preparar(caso.panel);
        int f = 0;
        for (const char *t = caso.tipos; *t != '\0'; ++t, ++f)
            TablaCampos.campo[f] = CampoDeLinea(Formatear("%c---1---5---C%d", *t, f));
        TablaCampos.numero = f;
        TablaCampos.campo[f].Tipo = 'I'; // what lies behind the last row doesn't count
        OpcionesIntercambio o;
        const bool bien = AceptarFormatoFijo(nullptr, true, o);
        EXPECT_EQ(bien, *caso.mensaje == '\0');
        EXPECT_EQ(o.FormatoElegido, bien ? 1 : 0);
        EXPECT_EQ(o.FormatoVariable, 0);
        EXPECT_EQ(o.ModoEtiquetas, caso.modo);
        EXPECT_EQ(o.CamposPanel, caso.camposPanel);
        if (!bien) {
            ASSERT_EQ(Prueba.cajas.size(), 1u);
            EXPECT_EQ(Prueba.cajas[0], (CajaVista{"Aviso", caso.mensaje, IconoInformacion, BotonesAceptar}));
        }
    }
}

TEST(FormatoFijo, AceptarVuelveALeerLaTabla) {
    Preparar(Serie);
    ASSERT_TRUE(AnadirFilas(true, {"N/1/5/Y", "N/6/5/A-B", "N/11/5/Z"}));
    OpcionesIntercambio o;
    ASSERT_TRUE(AceptarFormatoFijo(nullptr, true, o));
    EXPECT_EQ(LineasDeTabla(), "N---1---5---Y       \nN---6---5---A       \nN---11---5---Z       \n");
    EXPECT_EQ(TablaCampos.campo[0].IndiceSerie, 1) << "searched anew";
    EXPECT_EQ(TablaCampos.campo[2].IndiceSerie, 0) << "no series";
    EXPECT_EQ(o.DecimalesConComas, 1);
}

// ---------------------------------------------------------------------------------------------------------------
// Import

struct CasoFijo {
    const char *nombre;
    std::initializer_list<std::string_view> filas;
    const char *texto;
    const char *series; // of 4 rows
    bool comas = false;
};

const CasoFijo Fijos[] = {
    {"two fields", {"N/1/3/X", "N/5/2/Y"}, "1.5 20\n 30 -1\n", "X: 1.5 30 . . / Y: 20 -1 . ."},
    {"CR LF", {"N/1/3/X", "N/5/2/Y"}, "1.5 20\r\n 30 -1\r\n", "X: 1.5 30 . . / Y: 20 -1 . ."},
    {"order of the table, not of the record",
     {"N/5/2/Y", "N/1/3/X"},
     "1.5 20\n",
     "Y: 20 . . . / X: 1.5 . . ."},
    {"fields that overlap", {"N/1/4/X", "N/2/2/Y"}, "1234\n", "X: 1234 . . . / Y: 23 . . ."},
    {"missing", {"N/1/3/X", "N/4/3/Y"}, "      \n---   \n  1---\n", "X: . 1 . . / Y: . . . ."},
    {"blank lines are no records", {"N/1/1/X"}, "\n1\n   \n2\n", "X: 1 2 . ."},
    {"commas", {"N/1/3/X"}, "1,5\n", "X: 1.5 . . .", true},
    {"points", {"N/1/3/X"}, "1,5\n", "X: 1 . . ."},
    // The record is dropped from the first field on that the line, with its end, doesn't reach.
    {"short lines", {"N/1/2/X", "N/3/2/Y"}, "1122\n112\n11\n1\n", "X: 11 11 11 . / Y: 22 . . ."},
    {"a short line drops what follows",
     {"N/1/2/X", "N/9/2/Y", "N/3/2/Z"},
     "1122\n11223344 5\n",
     "X: 11 11 . . / : . 5 . . / : . 22 . ."},
    {"the first record names the series", {"N/1/2/X", "N/3/2/Y"}, "11\n1122\n", "X: 11 11 . . / : . 22 . ."},
    // Without its end the last line is a character short.
    {"no line end at the end", {"N/1/2/X"}, "11\n22", "X: 11 . . ."},
    {"records beyond the sample", {"N/1/1/X"}, "1\n2\n3\n4\n5\n6\n", "X: 1 2 3 4"},
    // The label is counted as a series.
    {"label", {"A/1/4/DENO", "N/5/1/X"}, "Uno 1\nDos 2\n", "X: 1 2 . . / : . . . ."},
    {"no records", {"N/1/1/X"}, "\n", ""},
};

TEST(ImportarFijo, Registros) {
    for (const CasoFijo &caso : Fijos) {
        SCOPED_TRACE(caso.nombre);
        PrepararAscii(TipoSinPeriodicidad, 4);
        ImportarUtf8(Fijo(caso.filas, true, caso.comas), caso.texto);
        EXPECT_EQ(VolcadoSeries(4), caso.series);
        EXPECT_TRUE(Prueba.cajas.empty());
    }
}

TEST(ImportarFijo, Etiquetas) {
    PrepararAscii(TipoSinPeriodicidad, 3);
    ImportarUtf8(Fijo({"A/1/16/DENO", "N/17/2/X"}), "Peñón           11\n  Sangrado y más22\n");
    EXPECT_EQ(VolcadoEtiquetas(3), "|Peñón|  Sangrado y||");
    EXPECT_EQ(VolcadoSeries(2), "X: 11 22 / : . .");
    CompactarSeries();
    EXPECT_EQ(VolcadoSeries(2), "X: 11 22");
}

struct CasoPanel {
    const char *nombre;
    int primero;
    const char *lineas; // of the list, joined by line feeds, so that tables of earlier data can be tried too
    const char *texto;
    const char *series, *etiquetas, *periodos; // two rows
};

const CasoPanel Paneles[] = {
    {"period, individual, series", PeriodoPrimero, "P---1---7---PERI\nI---8---3---INDI\nN---11---2---X",
     " 2001.1 7 11\n200212312322\n", "X: 11 22 / : . . / : . .", "|||", "|2001.1-7|2002123-123|"},
    {"with labels", PeriodoPrimero, "P---1---4---PERI\nI---5---1---INDI\nA---6---3---DENO\nN---9---1---X",
     "20017Uno1\n20028Dos2\n", "X: 1 2 / : . . / : . . / : . .", "|Uno|Dos|", "|2001-7|2002-8|"},
    {"cut at 7 and 3", PeriodoPrimero, "P---1---9---PERI\nI---10---5---INDI\nN---15---1---X",
     "12345678912345x\n", "X: 0 . / : . . / : . .", "|||", "|1234567-123|1990-2|"},
    {"individual first", IndividuoPrimero, "I---1---3---INDI\nP---4---7---PERI\nN---11---1---X",
     " 7  1999  1\n  8   20022\n", "X: 1 2 / : . . / : . .", "|||", "|7- 1999|8-   2002|"},
    // Alone, the second concept is added to whatever stands there.
    {"individual alone", PeriodoPrimero, "N---1---1---X\nN---2---1---Y\nI---3---1---INDI", "127\n348\n",
     "X: 1 3 / Y: 2 4 / : . .", "|||", "|1990-1-7|1990-2-8|"},
    {"period alone", IndividuoPrimero, "P---1---4---OTRA\nN---5---1---X", "20011\n20022\n", ": . . / X: 1 2",
     "|||", "|1-1990-2001|2-1990-2002|"},
};

TEST(ImportarFijo, Panel) {
    for (const CasoPanel &caso : Paneles) {
        SCOPED_TRACE(caso.nombre);
        PrepararAscii(TipoPanel, 2, caso.primero);
        std::string_view lineas = caso.lineas;
        while (!lineas.empty()) {
            const std::size_t fin = std::min(lineas.find('\n'), lineas.size());
            TablaCampos.campo[TablaCampos.numero++] = CampoDeLinea(lineas.substr(0, fin));
            lineas.remove_prefix(std::min(fin + 1, lineas.size()));
        }
        OpcionesIntercambio o;
        o.Importando = 1;
        ASSERT_TRUE(AceptarFormatoFijo(nullptr, false, o));
        ImportarUtf8(o, caso.texto);
        EXPECT_EQ(VolcadoSeries(2), caso.series);
        EXPECT_EQ(VolcadoEtiquetas(2), caso.etiquetas);
        EXPECT_EQ(VolcadoPeriodos(2), caso.periodos);
    }
}

TEST(ImportarFijo, DetrasDeLasSeriesYEnLaMuestra) {
    PrepararAscii(TipoSinPeriodicidad, 4);
    PonerSerie("Z", {9, 9, 9, 9});
    Muestra.InicioMuestra = 1;
    Muestra.FinMuestra = 2;
    ImportarUtf8(Fijo({"N/1/1/X"}), "1\n2\n3\n");
    EXPECT_EQ(VolcadoSeries(4), "Z: 9 9 9 9 / X: . 1 2 .");
    EXPECT_EQ(ArchivoTrabajo.PrimeraObs[1], 1);
    EXPECT_EQ(ArchivoTrabajo.UltimaObs[1], 2);
    // As in the variable format, only fields raise the count.
    ImportarUtf8(Fijo({"N/1/1/X"}), "  \n");
    EXPECT_EQ(ArchivoTrabajo.NumSeries, 0);
}

// A first record of codes changes nothing here: it would be read as data.
TEST(ImportarFijo, PrimerRegistroCodigosNoCuenta) {
    PrepararAscii(TipoSinPeriodicidad, 4);
    OpcionesIntercambio o = Variable({.primerRegistroCodigos = true});
    ASSERT_TRUE(AnadirFilas(true, {"N/1/2/X"}));
    ASSERT_TRUE(AceptarFormatoFijo(nullptr, false, o));
    ImportarUtf8(o, "11\n22\n");
    EXPECT_EQ(VolcadoSeries(4), "X: 11 22 . .");
}

// 103 rows, one of them a label, would make 102 columns: nothing goes beyond the table, nor does the count.
TEST(ImportarFijo, Tope) {
    for (const bool etiqueta : {false, true}) {
        SCOPED_TRACE(etiqueta);
        PrepararAscii(TipoSinPeriodicidad, 2);
        if (etiqueta) AnadirFilas(true, {"A/1/1/DENO"});
        while (TablaCampos.numero < MaxCamposFijos) {
            EdicionCampo e = {Formatear("S%d", TablaCampos.numero), "N",
                              Formatear("%d", TablaCampos.numero + 1), "1"};
            ASSERT_TRUE(AnadirCampo(nullptr, true, e));
        }
        OpcionesIntercambio o;
        o.Importando = 1;
        ASSERT_TRUE(AceptarFormatoFijo(nullptr, false, o));
        ImportarUtf8(o, std::string(103, '4') + "\n");
        EXPECT_EQ(ArchivoTrabajo.NumSeries, MaxSeries);
        EXPECT_EQ(BuscarSerieEnTabla(etiqueta ? "S100" : "S99"), 99);
        ImportarUtf8(o, std::string(103, '5') + "\n"); // no room behind 100 series
        EXPECT_EQ(ArchivoTrabajo.ValoresObs[0][98], 4.0);
    }
}

// Rows that came to nothing in the list, and what the variable dialog left behind.
TEST(ImportarFijo, TablaRara) {
    PrepararAscii(TipoPanel, 2);
    for (const char *linea :
         {"P---1---1---PERI", "I---2---1---INDI", "N---3---1---X", "N--------Y", "Z---1---1---W"})
        TablaCampos.campo[TablaCampos.numero++] = CampoDeLinea(linea);
    OpcionesIntercambio o = Variable({.tercerCampoEtiquetas = true});
    ASSERT_TRUE(AceptarFormatoFijo(nullptr, false, o));
    EXPECT_EQ(o.ModoEtiquetas, 2) << "the options of the two dialogs are not separated";
    ImportarUtf8(o, "123\n"); // X would go before the first slot
    EXPECT_EQ(VolcadoPeriodos(1), "|1-2|");
    EXPECT_EQ(ArchivoTrabajo.NumSeries, 3);
}

} // namespace
