// Import of variable records: how a record is cut into fields and where each field goes.
#include "data/ascii_apoyo.h"
#include "platform/archivos.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>

namespace {

const ValoresFormatoVariable Dialogo = {}; // as it opens
const ValoresFormatoVariable Codigos = {.primerRegistroCodigos = true};
const ValoresFormatoVariable Todo = {.delimitadasSoloEtiquetas = false};
const ValoresFormatoVariable TodoCodigos = {.delimitadasSoloEtiquetas = false, .primerRegistroCodigos = true};
const ValoresFormatoVariable Etiquetas = {.primerCampoEtiquetas = true};
const ValoresFormatoVariable EtiquetasCodigos = {.primerRegistroCodigos = true, .primerCampoEtiquetas = true};

struct Caso {
    const char *nombre;
    ValoresFormatoVariable valores;
    std::string texto;
    const char *series; // VolcadoSeries of 4 rows
    const char *etiquetas = "|||||";
};

const Caso Casos[] = {
    {"numbers", Dialogo, "1,2\n3,4.5\n", "VAR01: 1 3 . . / VAR02: 2 4.5 . ."},
    {"no line end at the end", Dialogo, "1,2\n3,4", "VAR01: 1 3 . . / VAR02: 2 4 . ."},
    {"line ends of every kind", Dialogo, "1\r\n2\n3\r4\r\n", "VAR01: 1 2 3 4"},
    {"codes", Codigos, "X,Y\n1,2\n3,4\n", "X: 1 3 . . / Y: 2 4 . ."},
    {"codes with blanks around", Codigos, "  X  , Y\n1,2\n", "X: 1 . . . / Y: 2 . . ."},
    {"codes only", Codigos, "X,Y\n", "X: . . . . / Y: . . . ."},
    // No code of a file is checked here: the editor does, later.
    {"codes as they come", Codigos, "x,x,LARGUISIMO,1-a,Año\n1,2,3,4,5\n",
     "x: 1 . . . / x: 2 . . . / LARGUISI: 3 . . . / 1-a: 4 . . . / Año: 5 . . ."},
    {"blank lines are no records", Dialogo, "\n   \n1\n\n \n2\n\n", "VAR01: 1 2 . ."},
    {"empty file", Dialogo, "", ""},
    {"separators in a row", Dialogo, "1,,3\n,2,\n", "VAR01: 1 . . . / VAR02: . 2 . . / VAR03: 3 . . ."},
    {"separator at the end makes no field", Dialogo, "1,2,\n", "VAR01: 1 . . . / VAR02: 2 . . ."},
    {"a record shorter than the first", Dialogo, "1,2\n3\n4,5\n", "VAR01: 1 3 4 . / VAR02: 2 . 5 ."},
    {"missing: empty, blank, hyphens", Dialogo, "1,1,1\n,   ,---\n2,2,-\n",
     "VAR01: 1 . 2 . / VAR02: 1 . 2 . / VAR03: 1 . . ."},
    {"no number", Dialogo, "abc,12x\n1e2,-.5\n+3,\t4\n", "VAR01: 0 100 3 . / VAR02: 12 -0.5 4 ."},
    {"tabs", {.separador = SeparadorTabuladores}, "1\t2,5\n", "VAR01: 1 . . . / VAR02: 2 . . ."},
    {"others",
     {.separador = SeparadorOtros, .otroSeparador = ";"},
     "1;2\n",
     "VAR01: 1 . . . / VAR02: 2 . . ."},
    {"others, empty: blank",
     {.separador = SeparadorOtros},
     "1 2  3\n",
     "VAR01: 1 . . . / VAR02: 2 . . . / VAR03: . . . . / VAR04: 3 . . ."},
    {"decimals with commas",
     {.separador = SeparadorOtros, .otroSeparador = ";", .decimalesConComas = true},
     "1,5;2\n",
     "VAR01: 1.5 . . . / VAR02: 2 . . ."},
    {"commas part first", {.decimalesConComas = true}, "1,5\n", "VAR01: 1 . . . / VAR02: 5 . . ."},
    // An all-blank code ends its record; values of the columns behind it are written where nobody sees them.
    {"blank code", Codigos, "A, ,C\n1,2,3\n", "A: 1 . . ."},
    {"blank code in the last field", Codigos, "A,  \n1,2\n", "A: . . . ."},
    {"blank code first and last", Codigos, ",\n1\n", ""},
    {"later records may be longer", Dialogo, "1\n2,3\n", "VAR01: 1 2 . ."},
    {"records beyond the sample", Dialogo, "1\n2\n3\n4\n5\n6\n", "VAR01: 1 2 3 4"},

    {"delimited fields", TodoCodigos, "\"X\",\"Y\"\n\"1\",\"2\"\n", "X: 1 . . . / Y: 2 . . ."},
    {"what stands outside is passed over", Todo, "a\"1\",7,b\"2\"c\n", "VAR01: 1 . . . / VAR02: 2 . . ."},
    {"separators inside", Todo, "\"1,5\",\"2\"\n", "VAR01: 1 . . . / VAR02: 2 . . ."},
    // The closing delimiter is looked for behind the first character: two in a row don't make an empty field.
    {"two delimiters in a row", Todo, "\"\"5\"\"6\"\n", "VAR01: 0 . . . / VAR02: 6 . . ."},
    {"a field that isn't closed", Todo, "\"1\"\"2\n", "VAR01: 1 . . ."},
    {"a delimiter and nothing more", Todo, "\"\n\"\"\n\"1\"\n", ""},
    {"blank code among delimited ones", TodoCodigos, "\"A\",\" \",\"C\"\n\"1\",\"2\",\"3\"\n", "A: 1 . . ."},
    {"blank code in the last delimited field", TodoCodigos, "\"A\",\" \"\n\"1\",\"2\"\n", "A: . . . ."},
    {"other delimiter",
     {.delimitador = DelimitadorOtros, .otroDelimitador = "'", .delimitadasSoloEtiquetas = false},
     "'1','2'\n",
     "VAR01: 1 . . . / VAR02: 2 . . ."},
    {"no delimiter: everything is cut",
     {.delimitador = DelimitadorNada, .delimitadasSoloEtiquetas = false},
     "\"1\",2\n",
     "VAR01: 0 . . . / VAR02: 2 . . ."},
    // With labels only delimited, delimiters around values are part of them.
    {"delimited values, read undelimited", Dialogo, "\"1\",2\n", "VAR01: 0 . . . / VAR02: 2 . . ."},

    {"labels", Etiquetas, "\"Uno\",1\n\"   Dos  \",2\n", "VAR01: 1 2 . .", "|Uno|Dos|||"},
    {"labels and codes", EtiquetasCodigos, "\"Nombre\",X\n\"Uno\",1\n\"Peñón\",2\n", "X: 1 2 . .",
     "|Uno|Peñón|||"},
    {"labels are cut at 12", Etiquetas, "\"abcdefghijklmn\",1\n", "VAR01: 1 . . .", "|abcdefghijkl||||"},
    {"delimiters inside a label go", Etiquetas, "\"a\"b\"c\",1\n", "VAR01: 1 . . .", "|abc||||"},
    {"an empty label", Etiquetas, ",1\n\"\",2\n", "VAR01: 1 2 . .", "|||||"},
    // The first character is taken for the delimiter, whatever it is.
    {"labels without delimiter lose a letter",
     {.delimitador = DelimitadorNada, .primerCampoEtiquetas = true},
     "Uno,1\n Dos,2\n  \"3\",3\n",
     "VAR01: 1 2 3 .",
     "|no|Dos|\"3\"||"},
    {"labels among delimited series stay whole",
     {.delimitadasSoloEtiquetas = false, .primerCampoEtiquetas = true},
     "\"   Nueve letras\",\"1\"\n",
     "VAR01: 1 . . .",
     "|   Nueve let||||"},
    {"commas of labels",
     {.separador = SeparadorOtros,
      .otroSeparador = ";",
      .primerCampoEtiquetas = true,
      .decimalesConComas = true},
     "\"a,b\";1,5\n",
     "VAR01: 1.5 . . .",
     "|a.b||||"},
    {"labels alone", Etiquetas, "\"Uno\"\n\"Dos\"\n", "", "|Uno|Dos|||"},
};

TEST(ImportarVariable, Registros) {
    for (const Caso &caso : Casos) {
        SCOPED_TRACE(caso.nombre);
        PrepararAscii(TipoSinPeriodicidad, 4);
        ImportarUtf8(Variable(caso.valores), caso.texto);
        EXPECT_EQ(VolcadoSeries(4), caso.series);
        EXPECT_EQ(VolcadoEtiquetas(4), caso.etiquetas);
        EXPECT_TRUE(Prueba.cajas.empty()) << "a damaged file gives no message";
    }
}

TEST(ImportarVariable, ColumnasSinContar) {
    PrepararAscii(TipoSinPeriodicidad, 4);
    ImportarUtf8(Variable(Codigos), "A, ,C\n1,2,3\n");
    EXPECT_EQ(ArchivoTrabajo.NumSeries, 1);
    EXPECT_EQ(ArchivoTrabajo.PresenciaObs[0][2], 1) << "written, and unseen";
    EXPECT_EQ(ArchivoTrabajo.ValoresObs[0][2], 3.0);
    EXPECT_EQ(std::string(ArchivoTrabajo.Codigos[2]), std::string(12, ' '));
}

// Panel: period, individual and label come first; the first two are skipped, whatever they hold.
TEST(ImportarVariable, TercerCampoEtiquetas) {
    PrepararAscii(TipoPanel, 4);
    ImportarUtf8(Variable({.primerRegistroCodigos = true, .tercerCampoEtiquetas = true}),
                 "Periodo,Individuo,Denominacion,X,Y\n2001,7,\"Uno\",1,2\n2001,8,\"Dos\",3,4\n");
    EXPECT_EQ(VolcadoSeries(2), "X: 1 3 / Y: 2 4");
    EXPECT_EQ(VolcadoEtiquetas(2), "|Uno|Dos|");
    EXPECT_EQ(VolcadoPeriodos(2), "|1990-1|1990-2|");
    ImportarUtf8(Variable({.tercerCampoEtiquetas = true}), "2001,7,\"Tres\",5\n");
    EXPECT_EQ(VolcadoEtiquetas(1), "|Tres|");
    EXPECT_EQ(VolcadoSeries(1), "X: 1 / Y: 2 / VAR03: 5");
}

// Without labels the panel fields of a file are taken for series.
TEST(ImportarVariable, CamposPanelSonSeries) {
    PrepararAscii(TipoPanel, 2);
    ImportarUtf8(Variable({.camposPanel = true}), "1990,1,7\n1990,2,8\n");
    EXPECT_EQ(VolcadoSeries(2), "VAR01: 1990 1990 / VAR02: 1 2 / VAR03: 7 8");
    EXPECT_EQ(VolcadoPeriodos(2), "|1990-1|1990-2|");
}

struct CasoMuestra {
    int observaciones, inicio, fin;
    const char *series; // after importing 1 to 6 over the series "Z" of nines, six rows
};

TEST(ImportarVariable, DentroDeLaMuestra) {
    static const CasoMuestra Muestras[] = {
        {6, 0, 5, "Z: 9 9 9 9 9 9 / VAR02: 1 2 3 4 5 6"},
        {6, 2, 3, "Z: 9 9 9 9 9 9 / VAR02: . . 1 2 . ."},
        {6, 5, 5, "Z: 9 9 9 9 9 9 / VAR02: . . . . . 1"},
        {6, 4, 100000, "Z: 9 9 9 9 9 9 / VAR02: . . . . 1 2"}, // the end that a sample without data has
        {3, 0, 100000, "Z: 9 9 9 9 9 9 / VAR02: 1 2 3 . . ."}, // never beyond the work file
        {3, 2, 3, "Z: 9 9 9 9 9 9 / VAR02: . . 1 . . ."},      // a first limit on the last row gives this end
        {3, -7, 1, "Z: 9 9 9 9 9 9 / VAR02: 1 2 . . . ."},
        {3, INT_MIN, INT_MAX, "Z: 9 9 9 9 9 9 / VAR02: 1 2 3 . . ."},
        {3, INT_MAX, INT_MIN, "Z: 9 9 9 9 9 9 / VAR02: . . . . . ."},
        {3, 100000, 100000, "Z: 9 9 9 9 9 9 / VAR02: . . . . . ."},
    };
    for (const CasoMuestra &caso : Muestras) {
        SCOPED_TRACE(testing::Message() << caso.inicio << " to " << caso.fin);
        PrepararAscii(TipoSinPeriodicidad, caso.observaciones);
        PonerSerie("Z", {9, 9, 9, 9, 9, 9});
        Muestra.InicioMuestra = caso.inicio;
        Muestra.FinMuestra = caso.fin;
        ImportarUtf8(Variable(Dialogo), "1\n2\n3\n4\n5\n6\n");
        EXPECT_EQ(VolcadoSeries(6), caso.series);
    }
}

// Rows before the sample stay as they were, in a column that is used again too.
TEST(ImportarVariable, FilasFueraDeMuestraSiguen) {
    PrepararAscii(TipoSinPeriodicidad, 4);
    PonerSerie("Z", {9, 9, 9, 9});
    ArchivoTrabajo.NumSeries = 0;
    Muestra.InicioMuestra = 1;
    Muestra.FinMuestra = 2;
    ImportarUtf8(Variable(Codigos), "X\n1\n2\n3\n");
    EXPECT_EQ(VolcadoSeries(4), "X: 9 1 2 9");
}

TEST(ImportarVariable, SustituirSeries) {
    struct {
        int sustituir;
        bool etiquetas;
        const char *texto, *series, *rotulos;
    } static const Casos2[] = {
        {1, false, "1\n", "VAR01: 1 .", "|a|b|"},
        {1, true, "\"x\",1\n", "VAR01: 1 .", "|x||"},
        {0, false, "1\n", "P: 5 6 / Q: 7 8 / VAR03: 1 .", "|a|b|"},
        {0, true, "\"x\",1\n", "P: 5 6 / Q: 7 8 / VAR03: 1 .", "|x|b|"},
        // The label field counts up to the series that were there.
        {0, true, "\"x\"\n", "P: 5 6 / Q: 7 8", "|x|b|"},
        // The count starts from zero and only fields raise it: the series are no longer counted.
        {0, false, "\n   \n", "", "|a|b|"},
        {1, false, "", "", "|a|b|"},
    };
    for (const auto &caso : Casos2) {
        SCOPED_TRACE(testing::Message() << caso.sustituir << caso.texto);
        PrepararAscii(TipoSinPeriodicidad, 2);
        PonerSerie("P", {5, 6});
        PonerSerie("Q", {7, 8});
        PonerCodigoSerie(99, "LEJOS");
        PonerObservacion(3999, 99, 4.0, 1);
        for (int i = 0; i < 2; ++i) ArchivoTrabajo.EtiquetasObs[i][0] = i == 0 ? 'a' : 'b';
        OpcionesIntercambio opciones = Variable({.primerCampoEtiquetas = caso.etiquetas});
        opciones.SustituirSeries = caso.sustituir;
        ImportarUtf8(opciones, caso.texto);
        EXPECT_EQ(VolcadoSeries(2), caso.series);
        EXPECT_EQ(VolcadoEtiquetas(2), caso.rotulos);
        // All 4,000 rows of all 100 columns go, or none.
        EXPECT_EQ(ArchivoTrabajo.PresenciaObs[3999][99], caso.sustituir == 1 ? 0 : 1);
        EXPECT_EQ(ArchivoTrabajo.ValoresObs[3999][99], caso.sustituir == 1 ? 0.0 : 4.0);
        EXPECT_EQ(BuscarSerieEnTabla("LEJOS"), caso.sustituir == 1 ? -1 : 99);
    }
}

std::string Fila(int campos) {
    std::string r;
    for (int i = 0; i < campos; ++i) r += std::to_string(i + 1) + ",";
    return r + "\n";
}

// The last slot is never reached: a field whose number, and the series before it, make 100 is skipped.
TEST(ImportarVariable, Tope) {
    struct {
        int antes, campos;
        bool etiquetas;
        int series;
    } static const Topes[] = {{0, 98, false, 98},  {0, 99, false, 99},  {0, 100, false, 99},
                              {0, 900, false, 99}, {0, 99, true, 98},   {0, 900, true, 98},
                              {90, 8, false, 98},  {90, 30, false, 99}, {98, 5, false, 99},
                              {99, 5, false, 0},   {100, 5, false, 0},  {98, 5, true, 98}};
    for (const auto &caso : Topes) {
        SCOPED_TRACE(testing::Message() << caso.antes << " + " << caso.campos);
        PrepararAscii(TipoSinPeriodicidad, 2);
        ArchivoTrabajo.NumSeries = static_cast<std::uint16_t>(caso.antes);
        ImportarUtf8(Variable({.primerCampoEtiquetas = caso.etiquetas}),
                     Fila(caso.campos) + Fila(caso.campos));
        EXPECT_EQ(ArchivoTrabajo.NumSeries, caso.series);
    }
    PrepararAscii(TipoSinPeriodicidad, 1);
    ImportarUtf8(Variable(Dialogo), Fila(99));
    EXPECT_EQ(BuscarSerie("VAR01"), 0);
    EXPECT_EQ(BuscarSerie("VAR010"), 9); // the zero is part of every default name
    EXPECT_EQ(BuscarSerie("VAR099"), 98);
    EXPECT_EQ(ArchivoTrabajo.ValoresObs[0][98], 99.0);
}

// 3,071 characters of a line are read; what is left of it is no record of its own.
TEST(ImportarVariable, LineasLargas) {
    struct {
        std::string texto;
        const char *series;
    } static const Largas[] = {
        {std::string(3070, '0') + "7\n5\n", "VAR01: 7 5 . ."},
        {std::string(3071, '0') + "7\n5\n", "VAR01: 0 5 . ."},
        {std::string(3071, '0') + "7\r\n5\r\n", "VAR01: 0 5 . ."},
        {"1,2" + std::string(3068, ' ') + ",9\n3,4\n", "VAR01: 1 3 . . / VAR02: 2 4 . ."},
        {std::string(3071, '0') + "\n5\n", "VAR01: 0 5 . ."},
        {std::string(3071, '0') + "\r\n5\n", "VAR01: 0 5 . ."},
        {std::string(3070, '0') + "\r\n5\n", "VAR01: 0 5 . ."},
        {"4," + std::string(1000000, '1') + "\n5\n", "VAR01: 4 5 . . / VAR02: inf . . ."},
        {std::string(100000, ','), nullptr},
        {std::string(100000, '\r'), ""},
        // Blank as far as it is read.
        {std::string(100000, ' ') + "3\n4\n", "VAR01: 4 . . ."},
    };
    for (const auto &caso : Largas) {
        SCOPED_TRACE(caso.texto.size());
        PrepararAscii(TipoSinPeriodicidad, 4);
        ImportarUtf8(Variable(Dialogo), caso.texto);
        if (caso.series != nullptr) {
            EXPECT_EQ(VolcadoSeries(4), caso.series);
        }
        EXPECT_LE(ArchivoTrabajo.NumSeries, MaxSeries);
    }
}

TEST(ImportarVariable, Ejemplo) {
    PrepararAscii(TipoAnual, 22);
    std::string texto;
    ASSERT_TRUE(LeerArchivo(TABIRA_DATOS "/klein.csv", texto));
    ImportarUtf8(Variable(Codigos), texto);
    EXPECT_EQ(VolcadoSeries(2),
              "CONSUMO: 39.8 41.9 / BENEF: 12.7 12.4 / SALPRIV: 28.8 25.5 / INVER: 2.7 -0.2 / "
              "CAPITAL: 182.8 182.6 / RENTA: 44.9 45.6 / SALPUB: 2.2 2.7 / GASTO: 2.4 3.9 / "
              "IMPUEST: 3.4 7.7");
    EXPECT_EQ(ArchivoTrabajo.UltimaObs[8], 21);
}

TEST(ImportarVariable, LimitesDeLasSeries) {
    PrepararAscii(TipoSinPeriodicidad, 5);
    PonerSerie("VIEJA", {1, 2}, 3);
    ImportarUtf8(Variable(Codigos), "X,Y,Z\n,1,\n1,,\n2,4,\n,,\n");
    const int esperados[][2] = {{3, 4}, {1, 2}, {0, 2}, {0, 0}};
    ASSERT_EQ(ArchivoTrabajo.NumSeries, 4);
    for (int s = 0; s < 4; ++s) {
        EXPECT_EQ(ArchivoTrabajo.PrimeraObs[s], esperados[s][0]) << s;
        EXPECT_EQ(ArchivoTrabajo.UltimaObs[s], esperados[s][1]) << s;
    }
}

} // namespace
